/* add user code begin Header */
/**
  **************************************************************************
  * @file     mq48t110_pf_config.h
  * @brief    header file of the pin forge config program
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
/* add user code end Header */

/* define to prevent recursive inclusion -------------------------------------*/
#ifndef __MQ48T110_PF_CONFIG_H
#define __MQ48T110_PF_CONFIG_H

#ifdef __cplusplus
extern "C" {
#endif

/* includes ------------------------------------------------------------------*/
#include "mq48t110.h"

/* private includes ----------------------------------------------------------*/
/* add user code begin private includes */

/* add user code end private includes */

/* exported types ------------------------------------------------------------*/
/* add user code begin exported types */

/* add user code end exported types */

/* exported constants --------------------------------------------------------*/
/* add user code begin exported constants */

/* add user code end exported constants */

/* exported macro ------------------------------------------------------------*/
/* add user code begin exported macro */

/* add user code end exported macro */

[#user_label]
/* Private defines -------------------------------------------------------------*/
[/#user_label]

/* dma values ----------------------------------------------------------------*/
/* add user code begin dma define */
/* user can only modify the dma define value */
//#define DMA1_CHANNEL1_BUFFER_SIZE   0
//#define DMA1_CHANNEL1_MEMORY_BASE_ADDR   0
//#define DMA1_CHANNEL1_PERIPHERAL_BASE_ADDR   0
//#define DMA1_CHANNEL2_BUFFER_SIZE   0
//#define DMA1_CHANNEL2_MEMORY_BASE_ADDR   0
//#define DMA1_CHANNEL2_PERIPHERAL_BASE_ADDR   0
//#define DMA1_CHANNEL3_BUFFER_SIZE   0
//#define DMA1_CHANNEL3_MEMORY_BASE_ADDR   0
//#define DMA1_CHANNEL3_PERIPHERAL_BASE_ADDR   0
//#define DMA1_CHANNEL4_BUFFER_SIZE   0
//#define DMA1_CHANNEL4_MEMORY_BASE_ADDR   0
//#define DMA1_CHANNEL4_PERIPHERAL_BASE_ADDR   0
//#define DMA1_CHANNEL5_BUFFER_SIZE   0
//#define DMA1_CHANNEL5_MEMORY_BASE_ADDR   0
//#define DMA1_CHANNEL5_PERIPHERAL_BASE_ADDR   0
/* add user code end dma define */

/* exported functions --------------------------------------------------------*/
/* system clock config. */
void pf_system_clock_config(void);

[#config periph clock]
/* config periph clock. */
void pf_periph_clock_config(void);
[/#config periph clock]
[#clkout function]
/* init clkout function. */
void pf_clkout_config(void);
[/#clkout function]
[#pwc function]
/* init pwc function. */
void pf_pwc_init(void);
[/#pwc function]
[#config systick]
/* config systick. */
void pf_systick_config(void);
[/#config systick]
[#config nvic]
/* nvic config. */
void pf_nvic_config(void);
[/#config nvic]
[#scfg function]
/* init scfg function. */
void pf_scfg_init(void);
[/#scfg function]
[#dma1_channel1_init]
/* init dma1 channel1 */
void pf_dma1_channel1_init(void);
[/#dma1_channel1_init]
[#dma1_channel2_init]
/* init dma1 channel2 */
void pf_dma1_channel2_init(void);
[/#dma1_channel2_init]
[#dma1_channel3_init]
/* init dma1 channel3 */
void pf_dma1_channel3_init(void);
[/#dma1_channel3_init]
[#dma1_channel4_init]
/* init dma1 channel4 */
void pf_dma1_channel4_init(void);
[/#dma1_channel4_init]
[#dma1_channel5_init]
/* init dma1 channel5 */
void pf_dma1_channel5_init(void);
[/#dma1_channel5_init]
[#usart1 function]
/* init usart1 function. */
void pf_usart1_init(void);
[/#usart1 function]
[#usart2 function]
/* init usart2 function. */
void pf_usart2_init(void);
[/#usart2 function]
[#spi1 function]
/* init spi1 function. */
void pf_spi1_init(void);
[/#spi1 function]
[#spi2 function]
/* init spi2 function. */
void pf_spi2_init(void);
[/#spi2 function]
[#i2s1 function]
/* init i2s1 function. */
void pf_i2s1_init(void);
[/#i2s1 function]
[#i2s2 function]
/* init i2s2 function. */
void pf_i2s2_init(void);
[/#i2s2 function]
[#i2c1 function]
/* init i2c1 function. */
void pf_i2c1_init(void);
[/#i2c1 function]
[#i2c2 function]
/* init i2c2 function. */
void pf_i2c2_init(void);
[/#i2c2 function]
[#crc function]
/* init crc function. */
void pf_crc_init(void);
[/#crc function]
[#wdt function]
/* init wdt function. */
void pf_wdt_init(void);
[/#wdt function]
[#wwdt function]
/* init wwdt function. */
void pf_wwdt_init(void);
[/#wwdt function]
[#ertc function]
/* init ertc function. */
void pf_ertc_init(void);
[/#ertc function]
[#cmp function]
/* init cmp function. */
void pf_cmp_init(void);
[/#cmp function]
[#adc1 function]
/* init adc1 function. */
void pf_adc1_init(void);
[/#adc1 function]
[#exint function]
/* init exint function. */
void pf_exint_config(void);
[/#exint function]
[#gpio function]
/* init gpio function. */
void pf_gpio_config(void);
[/#gpio function]
[#tmr1 function]
/* init tmr1 function. */
void pf_tmr1_init(void);
[/#tmr1 function]
[#tmr3 function]
/* init tmr3 function. */
void pf_tmr3_init(void);
[/#tmr3 function]
[#tmr6 function]
/* init tmr6 function. */
void pf_tmr6_init(void);
[/#tmr6 function]
[#tmr14 function]
/* init tmr14 function. */
void pf_tmr14_init(void);
[/#tmr14 function]
[#tmr15 function]
/* init tmr15 function. */
void pf_tmr15_init(void);
[/#tmr15 function]
[#tmr16 function]
/* init tmr16 function. */
void pf_tmr16_init(void);
[/#tmr16 function]
[#tmr17 function]
/* init tmr17 function. */
void pf_tmr17_init(void);
[/#tmr17 function]
[#irtmr function]
/* init irtmr function. */
void pf_irtmr_init(void);
[/#irtmr function]
[#dma_channel_config]
/* config dma channel transfer parameter */
void pf_dma_channel_config(dma_channel_type* dmax_channely, uint32_t peripheral_base_addr, uint32_t memory_base_addr, uint16_t buffer_size);
[/#dma_channel_config]

/* add user code begin exported functions */

/* add user code end exported functions */

#ifdef __cplusplus
}
#endif

#endif
