/**
  **************************************************************************
  * @file     mq48t110_spi.c
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

#include "mq48t110_conf.h"

#ifdef SPI_MODULE_ENABLED

/**
  * @brief  fills the spi settings with their reset values.
  * @param  spi_init_struct: the settings to fill
  * @retval none
  */
void spi_default_para_init(spi_init_type *spi_init_struct)
{
  spi_init_struct->transmission_mode = SPI_TRANSMIT_FULL_DUPLEX;
  spi_init_struct->master_slave_mode = SPI_MODE_SLAVE;
  spi_init_struct->mclk_freq_division = SPI_MCLK_DIV_2;
  spi_init_struct->first_bit_transmission = SPI_FIRST_BIT_MSB;
  spi_init_struct->frame_bit_num = SPI_FRAME_8BIT;
  spi_init_struct->clock_polarity = SPI_CLOCK_POLARITY_LOW;
  spi_init_struct->clock_phase = SPI_CLOCK_PHASE_1EDGE;
  spi_init_struct->cs_mode_selection = SPI_CS_SOFTWARE_MODE;
}

/**
  * @brief  applies the spi settings.
  * @param  spi_x: SPI1 or SPI2
  * @param  spi_init_struct: the settings
  * @retval none
  */
void spi_init(spi_type *spi_x, spi_init_type *spi_init_struct)
{
  uint32_t ctrl1 = spi_x->ctrl1 & ((uint32_t)1 << 6);
  const uint32_t div = (uint32_t)spi_init_struct->mclk_freq_division;
  MQ_FIELD_WRITE(ctrl1, 0, 1, spi_init_struct->clock_phase);
  MQ_FIELD_WRITE(ctrl1, 1, 1, spi_init_struct->clock_polarity);
  MQ_FIELD_WRITE(ctrl1, 2, 1, spi_init_struct->master_slave_mode);
  MQ_FIELD_WRITE(ctrl1, 3, 3, div > 7 ? 7 : div);
  MQ_FIELD_WRITE(ctrl1, 7, 1, spi_init_struct->first_bit_transmission);
  MQ_FIELD_WRITE(ctrl1, 9, 1, spi_init_struct->cs_mode_selection);
  MQ_FIELD_WRITE(ctrl1, 11, 1, spi_init_struct->frame_bit_num);
  MQ_FIELD_WRITE(ctrl1, 14, 2, spi_init_struct->transmission_mode);
  spi_x->ctrl1 = ctrl1;
  /* the dividers above 256 and the divider 3 have their own bits */
  MQ_FIELD_WRITE(spi_x->ctrl2, 8, 2, div > 7 ? div - 7 : 0);
}

/**
  * @brief  switches the spi on or off.
  * @param  spi_x: SPI1 or SPI2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void spi_enable(spi_type *spi_x, confirm_state new_state)
{
  MQ_BIT_WRITE(spi_x->ctrl1, 6, new_state);
}

/**
  * @brief  sets the crc polynomial.
  * @param  spi_x: SPI1 or SPI2
  * @param  crc_poly: the polynomial
  * @retval none
  */
void spi_crc_polynomial_set(spi_type *spi_x, uint16_t crc_poly)
{
  spi_x->cpoly = crc_poly;
}

/**
  * @brief  switches the crc calculation.
  * @param  spi_x: SPI1 or SPI2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void spi_crc_enable(spi_type *spi_x, confirm_state new_state)
{
  MQ_BIT_WRITE(spi_x->ctrl1, 13, new_state);
}

/**
  * @brief  drives the cs pin as a master.
  * @param  spi_x: SPI1 or SPI2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void spi_hardware_cs_output_enable(spi_type *spi_x, confirm_state new_state)
{
  MQ_BIT_WRITE(spi_x->ctrl2, 2, new_state);
}

/**
  * @brief  sets the internal cs level of the software cs mode.
  * @param  spi_x: SPI1 or SPI2
  * @param  level: a SPI_SWCS_INTERNAL_LEVEL_xxx value
  * @retval none
  */
void spi_software_cs_internal_level_set(spi_type *spi_x, spi_software_cs_level_type level)
{
  MQ_FIELD_WRITE(spi_x->ctrl1, 8, 1, level);
}

/**
  * @brief  switches the ti frame format.
  * @param  spi_x: SPI1 or SPI2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void spi_ti_mode_enable(spi_type *spi_x, confirm_state new_state)
{
  MQ_BIT_WRITE(spi_x->ctrl2, 4, new_state);
}

/**
  * @brief  lets the transmitter request dma transfers.
  * @param  spi_x: SPI1 or SPI2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void spi_i2s_dma_transmitter_enable(spi_type *spi_x, confirm_state new_state)
{
  MQ_BIT_WRITE(spi_x->ctrl2, 1, new_state);
}

/**
  * @brief  lets the receiver request dma transfers.
  * @param  spi_x: SPI1 or SPI2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void spi_i2s_dma_receiver_enable(spi_type *spi_x, confirm_state new_state)
{
  MQ_BIT_WRITE(spi_x->ctrl2, 0, new_state);
}

/**
  * @brief  enables or disables interrupts.
  * @param  spi_x: SPI1 or SPI2
  * @param  spi_i2s_int: SPI_I2S_xxx_INT values
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void spi_i2s_interrupt_enable(spi_type *spi_x, uint32_t spi_i2s_int, confirm_state new_state)
{
  if(new_state != FALSE)
  {
    spi_x->ctrl2 |= spi_i2s_int;
  }
  else
  {
    spi_x->ctrl2 &= ~spi_i2s_int;
  }
}

/**
  * @brief  sends one data.
  * @param  spi_x: SPI1 or SPI2
  * @param  tx_data: the data
  * @retval none
  */
void spi_i2s_data_transmit(spi_type *spi_x, uint16_t tx_data)
{
  spi_x->dt = tx_data;
}

/**
  * @brief  the data received last.
  * @param  spi_x: SPI1 or SPI2
  * @retval uint16_t
  */
uint16_t spi_i2s_data_receive(spi_type *spi_x)
{
  return (uint16_t)spi_x->dt;
}

/**
  * @brief  reads a flag.
  * @param  spi_x: SPI1 or SPI2
  * @param  spi_i2s_flag: a SPI_I2S_xxx_FLAG value
  * @retval flag_status
  */
flag_status spi_i2s_flag_get(spi_type *spi_x, uint32_t spi_i2s_flag)
{
  return (spi_x->sts & spi_i2s_flag) != 0 ? SET : RESET;
}

/**
  * @brief  fills the i2s settings with their reset values.
  * @param  i2s_init_struct: the settings to fill
  * @retval none
  */
void i2s_default_para_init(i2s_init_type *i2s_init_struct)
{
  i2s_init_struct->operation_mode = I2S_MODE_SLAVE_TX;
  i2s_init_struct->audio_protocol = I2S_AUDIO_PROTOCOL_PHILLIPS;
  i2s_init_struct->audio_sampling_freq = I2S_AUDIO_FREQUENCY_48K;
  i2s_init_struct->data_channel_format = I2S_DATA_16BIT_CHANNEL_16BIT;
  i2s_init_struct->clock_polarity = I2S_CLOCK_POLARITY_LOW;
  i2s_init_struct->mclk_output_enable = FALSE;
}

/**
  * @brief  applies the i2s settings; a master derives its divider from the system clock.
  * @param  spi_x: SPI1 or SPI2
  * @param  i2s_init_struct: the settings
  * @retval none
  */
void i2s_init(spi_type *spi_x, i2s_init_type *i2s_init_struct)
{
  crm_clocks_freq_type clocks;
  uint32_t ctrl = (uint32_t)1 << 11;
  uint32_t divider = 2;
  MQ_FIELD_WRITE(ctrl, 0, 3, i2s_init_struct->data_channel_format);
  MQ_FIELD_WRITE(ctrl, 3, 1, i2s_init_struct->clock_polarity);
  MQ_FIELD_WRITE(ctrl, 4, 3, i2s_init_struct->audio_protocol);
  MQ_FIELD_WRITE(ctrl, 8, 2, i2s_init_struct->operation_mode);
  if(i2s_init_struct->operation_mode == I2S_MODE_MASTER_TX ||
     i2s_init_struct->operation_mode == I2S_MODE_MASTER_RX)
  {
    const uint32_t frame = i2s_init_struct->mclk_output_enable != FALSE ? 256 :
                           (i2s_init_struct->data_channel_format == I2S_DATA_16BIT_CHANNEL_16BIT ? 32 : 64);
    crm_clocks_freq_get(&clocks);
    divider = (clocks.sclk_freq + (frame * (uint32_t)i2s_init_struct->audio_sampling_freq) / 2) /
              (frame * (uint32_t)i2s_init_struct->audio_sampling_freq);
    if(divider < 2)
    {
      divider = 2;
    }
  }
  spi_x->i2sclk = (divider & (uint32_t)0x3FF) |
                  (i2s_init_struct->mclk_output_enable != FALSE ? (uint32_t)1 << 12 : 0);
  spi_x->i2sctrl = ctrl;
}

/**
  * @brief  switches the i2s on or off.
  * @param  spi_x: SPI1 or SPI2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void i2s_enable(spi_type *spi_x, confirm_state new_state)
{
  MQ_BIT_WRITE(spi_x->i2sctrl, 10, new_state);
}

#endif
