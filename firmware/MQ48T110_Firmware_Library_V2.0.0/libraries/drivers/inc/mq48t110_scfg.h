/**
  **************************************************************************
  * @file     mq48t110_scfg.h
  * @brief    system configuration driver of the mq48t110
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

#ifndef __MQ48T110_SCFG_H
#define __MQ48T110_SCFG_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup scfg
  * @{
  */

/**
  * @brief port of an exint line
  */
typedef enum
{
  SCFG_PORT_SOURCE_GPIOA = 0, SCFG_PORT_SOURCE_GPIOB = 1, SCFG_PORT_SOURCE_GPIOC = 2,
  SCFG_PORT_SOURCE_GPIOF = 5
} scfg_port_source_type;

/**
  * @brief pin of an exint line
  */
typedef enum
{
  SCFG_PINS_SOURCE0 = 0, SCFG_PINS_SOURCE1, SCFG_PINS_SOURCE2, SCFG_PINS_SOURCE3,
  SCFG_PINS_SOURCE4, SCFG_PINS_SOURCE5, SCFG_PINS_SOURCE6, SCFG_PINS_SOURCE7,
  SCFG_PINS_SOURCE8, SCFG_PINS_SOURCE9, SCFG_PINS_SOURCE10, SCFG_PINS_SOURCE11,
  SCFG_PINS_SOURCE12, SCFG_PINS_SOURCE13, SCFG_PINS_SOURCE14, SCFG_PINS_SOURCE15
} scfg_pins_source_type;

/**
  * @brief dma requests that can move to another channel (bit of cfg1)
  */
typedef enum
{
  SCFG_DMA_REMAP_ADC1                    = 8,  /*!< channel 1 to channel 2 */
  SCFG_DMA_REMAP_USART1_TX               = 9,  /*!< channel 2 to channel 4 */
  SCFG_DMA_REMAP_USART1_RX               = 10, /*!< channel 3 to channel 5 */
  SCFG_DMA_REMAP_TMR16_CH1               = 11, /*!< channel 3 to channel 4 */
  SCFG_DMA_REMAP_TMR16_OVERFLOW          = 11, /*!< shares the bit of tmr16 channel 1 */
  SCFG_DMA_REMAP_TMR17_CH1               = 12, /*!< channel 1 to channel 2 */
  SCFG_DMA_REMAP_TMR17_OVERFLOW          = 12  /*!< shares the bit of tmr17 channel 1 */
} scfg_dma_remap_type;

/**
  * @brief envelope of the infrared output
  */
typedef enum
{
  SCFG_IR_SOURCE_TMR17 = 0, SCFG_IR_SOURCE_USART1 = 1, SCFG_IR_SOURCE_USART2 = 2
} scfg_ir_source_type;

/**
  * @brief polarity of the infrared output
  */
typedef enum
{
  SCFG_IR_POLARITY_NO_AFFECTED = 0, SCFG_IR_POLARITY_REVERSE = 1
} scfg_ir_polarity_type;

void scfg_exint_line_config(scfg_port_source_type port_source, scfg_pins_source_type pin_source);
void scfg_dma_channel_remap(scfg_dma_remap_type remap, confirm_state new_state);
void scfg_infrared_config(scfg_ir_source_type source, scfg_ir_polarity_type polarity);
void scfg_pa11pa12_pin_remap(confirm_state new_state);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
