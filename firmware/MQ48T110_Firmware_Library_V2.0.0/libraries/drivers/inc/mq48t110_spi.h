/**
  **************************************************************************
  * @file     mq48t110_spi.h
  * @brief    serial peripheral interface and i2s driver of the mq48t110
  **************************************************************************
  *                       Copyright notice & Disclaimer
  *
  * The software and its documentation are provided by Velmora "as is" to
  * help customers develop products with MQ48 microcontrollers. Velmora
  * grants the right to use, copy and modify this code in products built
  * with MQ48 microcontrollers. The software comes without warranty of any
  * kind, express or implied, including fitness for a particular purpose;
  * Velmora is not liable for any damage arising from its use.
  **************************************************************************
  */

#ifndef __MQ48T110_SPI_H
#define __MQ48T110_SPI_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup spi
  * @{
  */

typedef enum
{
  SPI_TRANSMIT_FULL_DUPLEX = 0, SPI_TRANSMIT_SIMPLEX_RX = 1, SPI_TRANSMIT_HALF_DUPLEX_RX = 2,
  SPI_TRANSMIT_HALF_DUPLEX_TX = 3
} spi_transmission_mode_type;

typedef enum
{
  SPI_MODE_SLAVE = 0, SPI_MODE_MASTER = 1
} spi_master_slave_mode_type;

typedef enum
{
  SPI_MCLK_DIV_2 = 0, SPI_MCLK_DIV_4 = 1, SPI_MCLK_DIV_8 = 2, SPI_MCLK_DIV_16 = 3,
  SPI_MCLK_DIV_32 = 4, SPI_MCLK_DIV_64 = 5, SPI_MCLK_DIV_128 = 6, SPI_MCLK_DIV_256 = 7,
  SPI_MCLK_DIV_512 = 8, SPI_MCLK_DIV_1024 = 9, SPI_MCLK_DIV_3 = 10
} spi_mclk_freq_div_type;

typedef enum
{
  SPI_FIRST_BIT_MSB = 0, SPI_FIRST_BIT_LSB = 1
} spi_first_bit_type;

typedef enum
{
  SPI_FRAME_8BIT = 0, SPI_FRAME_16BIT = 1
} spi_frame_bit_num_type;

typedef enum
{
  SPI_CLOCK_POLARITY_LOW = 0, SPI_CLOCK_POLARITY_HIGH = 1
} spi_clock_polarity_type;

typedef enum
{
  SPI_CLOCK_PHASE_1EDGE = 0, SPI_CLOCK_PHASE_2EDGE = 1
} spi_clock_phase_type;

typedef enum
{
  SPI_CS_HARDWARE_MODE = 0, SPI_CS_SOFTWARE_MODE = 1
} spi_cs_mode_type;

typedef enum
{
  SPI_SWCS_INTERNAL_LEVEL_LOW = 0, SPI_SWCS_INTERNAL_LEVEL_HIGH = 1
} spi_software_cs_level_type;

/**
  * @brief crc and ti mode switches, as the configuration names them
  */
typedef enum
{
  SPI_CRC_DISABLE = 0, SPI_CRC_ENABLE = 1
} spi_crc_setting_type;

typedef enum
{
  SPI_TIMODE_DISABLE = 0, SPI_TIMODE_ENABLE = 1
} spi_ti_mode_setting_type;

typedef enum
{
  I2S_MODE_SLAVE_TX = 0, I2S_MODE_SLAVE_RX = 1, I2S_MODE_MASTER_TX = 2, I2S_MODE_MASTER_RX = 3
} i2s_operation_mode_type;

typedef enum
{
  I2S_AUDIO_PROTOCOL_PHILLIPS = 0, I2S_AUDIO_PROTOCOL_MSB = 1, I2S_AUDIO_PROTOCOL_LSB = 2,
  I2S_AUDIO_PROTOCOL_PCM_SHORT = 3, I2S_AUDIO_PROTOCOL_PCM_LONG = 7
} i2s_audio_protocol_type;

typedef enum
{
  I2S_DATA_16BIT_CHANNEL_16BIT = 0, I2S_DATA_16BIT_CHANNEL_32BIT = 1,
  I2S_DATA_24BIT_CHANNEL_32BIT = 3, I2S_DATA_32BIT_CHANNEL_32BIT = 5
} i2s_data_channel_format_type;

typedef enum
{
  I2S_AUDIO_FREQUENCY_8K = 8000,
  I2S_AUDIO_FREQUENCY_11K = 11025,
  I2S_AUDIO_FREQUENCY_16K = 16000,
  I2S_AUDIO_FREQUENCY_22K = 22050,
  I2S_AUDIO_FREQUENCY_32K = 32000,
  I2S_AUDIO_FREQUENCY_44K = 44100,
  I2S_AUDIO_FREQUENCY_48K = 48000,
  I2S_AUDIO_FREQUENCY_96K = 96000,
  I2S_AUDIO_FREQUENCY_192K = 192000
} i2s_audio_sampling_freq_type;

typedef enum
{
  I2S_CLOCK_POLARITY_LOW = 0, I2S_CLOCK_POLARITY_HIGH = 1
} i2s_clock_polarity_type;

/* interrupts and flags */
#define SPI_I2S_ERROR_INT                ((uint32_t)0x00000020)
#define SPI_I2S_RDBF_INT                 ((uint32_t)0x00000040)
#define SPI_I2S_TDBE_INT                 ((uint32_t)0x00000080)
#define SPI_I2S_RDBF_FLAG                ((uint32_t)0x00000001)
#define SPI_I2S_TDBE_FLAG                ((uint32_t)0x00000002)
#define SPI_I2S_BF_FLAG                  ((uint32_t)0x00000080)

/**
  * @brief spi settings
  */
typedef struct
{
  spi_transmission_mode_type transmission_mode;
  spi_master_slave_mode_type master_slave_mode;
  spi_mclk_freq_div_type mclk_freq_division;
  spi_first_bit_type first_bit_transmission;
  spi_frame_bit_num_type frame_bit_num;
  spi_clock_polarity_type clock_polarity;
  spi_clock_phase_type clock_phase;
  spi_cs_mode_type cs_mode_selection;
} spi_init_type;

/**
  * @brief i2s settings
  */
typedef struct
{
  i2s_operation_mode_type operation_mode;
  i2s_audio_protocol_type audio_protocol;
  i2s_audio_sampling_freq_type audio_sampling_freq;
  i2s_data_channel_format_type data_channel_format;
  i2s_clock_polarity_type clock_polarity;
  confirm_state mclk_output_enable;
} i2s_init_type;

void spi_default_para_init(spi_init_type *spi_init_struct);
void spi_init(spi_type *spi_x, spi_init_type *spi_init_struct);
void spi_enable(spi_type *spi_x, confirm_state new_state);
void spi_crc_polynomial_set(spi_type *spi_x, uint16_t crc_poly);
void spi_crc_enable(spi_type *spi_x, confirm_state new_state);
void spi_hardware_cs_output_enable(spi_type *spi_x, confirm_state new_state);
void spi_software_cs_internal_level_set(spi_type *spi_x, spi_software_cs_level_type level);
void spi_ti_mode_enable(spi_type *spi_x, confirm_state new_state);
void spi_i2s_dma_transmitter_enable(spi_type *spi_x, confirm_state new_state);
void spi_i2s_dma_receiver_enable(spi_type *spi_x, confirm_state new_state);
void spi_i2s_interrupt_enable(spi_type *spi_x, uint32_t spi_i2s_int, confirm_state new_state);
void spi_i2s_data_transmit(spi_type *spi_x, uint16_t tx_data);
uint16_t spi_i2s_data_receive(spi_type *spi_x);
flag_status spi_i2s_flag_get(spi_type *spi_x, uint32_t spi_i2s_flag);
void i2s_default_para_init(i2s_init_type *i2s_init_struct);
void i2s_init(spi_type *spi_x, i2s_init_type *i2s_init_struct);
void i2s_enable(spi_type *spi_x, confirm_state new_state);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
