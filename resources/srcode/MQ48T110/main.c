/* add user code begin Header */
/**
  **************************************************************************
  * @file     main.c
  * @brief    main program
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

/* includes ------------------------------------------------------------------*/
#include "mq48t110_pf_config.h"

/* private includes ----------------------------------------------------------*/
/* add user code begin private includes */

/* add user code end private includes */

/* private typedef -----------------------------------------------------------*/
/* add user code begin private typedef */

/* add user code end private typedef */

/* private define ------------------------------------------------------------*/
/* add user code begin private define */

/* add user code end private define */

/* private macro -------------------------------------------------------------*/
/* add user code begin private macro */

/* add user code end private macro */

/* private variables ---------------------------------------------------------*/
/* add user code begin private variables */

/* add user code end private variables */

/* private function prototypes -----------------------------------------------*/
/* add user code begin function prototypes */

/* add user code end function prototypes */

/* private user code ---------------------------------------------------------*/
/* add user code begin 0 */

/* add user code end 0 */

/**
  * @brief  main function.
  * @param  none
  * @retval none
  */
int main(void)
{
  /* add user code begin 1 */

  /* add user code end 1 */

  /* system clock config. */
  pf_system_clock_config();

[#config periph clock]
  /* config periph clock. */
  pf_periph_clock_config();
[/#config periph clock]
[#clkout function]
  /* init clkout function. */
  pf_clkout_config();
[/#clkout function]
[#pwc function]
  /* init pwc function. */
  pf_pwc_init();
[/#pwc function]
[#SysTick]
  /* config systick: SystTick_IRQHandler in mq48t110_int.c is entered every 1 ms. */
  pf_systick_config();
[/#SysTick]
[#config nvic]
  /* nvic config. */
  pf_nvic_config();
[/#config nvic]
[#scfg function]
  /* init scfg function. */
  pf_scfg_init();
[/#scfg function]
[#dma1_channel1_init]
  /* init dma1 channel1 */
  pf_dma1_channel1_init();
  /* config dma channel transfer parameter */
  /* user need to modify define values DMAx_CHANNELy_XXX_BASE_ADDR and
     DMAx_CHANNELy_BUFFER_SIZE in mq48t110_pf_config.h */
  pf_dma_channel_config(DMA1_CHANNEL1, (uint32_t)&ADC1->dt, DMA1_CHANNEL1_MEMORY_BASE_ADDR, DMA1_CHANNEL1_BUFFER_SIZE);
  dma_channel_enable(DMA1_CHANNEL1, TRUE);
[/#dma1_channel1_init]
[#dma1_channel2_init]
  /* init dma1 channel2 */
  pf_dma1_channel2_init();
[#adc_dma_remap]
  /* take the adc1 request to dma1 channel2 */
  scfg_dma_channel_remap(SCFG_DMA_REMAP_ADC1, TRUE);
[/#adc_dma_remap]
[#tmr17_ch1_dma_remap]
  /* take the tmr17_ch1 request to dma1 channel2 */
  scfg_dma_channel_remap(SCFG_DMA_REMAP_TMR17_CH1, TRUE);
[/#tmr17_ch1_dma_remap]
[#tmr17_overflow_dma_remap]
  /* take the tmr17_overflow request to dma1 channel2 */
  scfg_dma_channel_remap(SCFG_DMA_REMAP_TMR17_OVERFLOW, TRUE);
[/#tmr17_overflow_dma_remap]
  /* config dma channel transfer parameter */
  /* user need to modify define values DMAx_CHANNELy_XXX_BASE_ADDR and
     DMAx_CHANNELy_BUFFER_SIZE in mq48t110_pf_config.h */
  pf_dma_channel_config(DMA1_CHANNEL2, (uint32_t)&USART1->dt, DMA1_CHANNEL2_MEMORY_BASE_ADDR, DMA1_CHANNEL2_BUFFER_SIZE);
  dma_channel_enable(DMA1_CHANNEL2, TRUE);
[/#dma1_channel2_init]
[#dma1_channel3_init]
  /* init dma1 channel3 */
  pf_dma1_channel3_init();
  /* config dma channel transfer parameter */
  /* user need to modify define values DMAx_CHANNELy_XXX_BASE_ADDR and
     DMAx_CHANNELy_BUFFER_SIZE in mq48t110_pf_config.h */
  pf_dma_channel_config(DMA1_CHANNEL3, (uint32_t)&USART1->dt, DMA1_CHANNEL3_MEMORY_BASE_ADDR, DMA1_CHANNEL3_BUFFER_SIZE);
  dma_channel_enable(DMA1_CHANNEL3, TRUE);
[/#dma1_channel3_init]
[#dma1_channel4_init]
  /* init dma1 channel4 */
  pf_dma1_channel4_init();
[#usart1_tx_dma_remap]
  /* take the usart1_tx request to dma1 channel4 */
  scfg_dma_channel_remap(SCFG_DMA_REMAP_USART1_TX, TRUE);
[/#usart1_tx_dma_remap]
[#tmr16_ch1_dma_remap]
  /* take the tmr16_ch1 request to dma1 channel4 */
  scfg_dma_channel_remap(SCFG_DMA_REMAP_TMR16_CH1, TRUE);
[/#tmr16_ch1_dma_remap]
[#tmr16_overflow_dma_remap]
  /* take the tmr16_overflow request to dma1 channel4 */
  scfg_dma_channel_remap(SCFG_DMA_REMAP_TMR16_OVERFLOW, TRUE);
[/#tmr16_overflow_dma_remap]
  /* config dma channel transfer parameter */
  /* user need to modify define values DMAx_CHANNELy_XXX_BASE_ADDR and
     DMAx_CHANNELy_BUFFER_SIZE in mq48t110_pf_config.h */
  pf_dma_channel_config(DMA1_CHANNEL4, (uint32_t)&USART2->dt, DMA1_CHANNEL4_MEMORY_BASE_ADDR, DMA1_CHANNEL4_BUFFER_SIZE);
  dma_channel_enable(DMA1_CHANNEL4, TRUE);
[/#dma1_channel4_init]
[#dma1_channel5_init]
  /* init dma1 channel5 */
  pf_dma1_channel5_init();
[#usart1_rx_dma_remap]
  /* take the usart1_rx request to dma1 channel5 */
  scfg_dma_channel_remap(SCFG_DMA_REMAP_USART1_RX, TRUE);
[/#usart1_rx_dma_remap]
  /* config dma channel transfer parameter */
  /* user need to modify define values DMAx_CHANNELy_XXX_BASE_ADDR and
     DMAx_CHANNELy_BUFFER_SIZE in mq48t110_pf_config.h */
  pf_dma_channel_config(DMA1_CHANNEL5, (uint32_t)&USART2->dt, DMA1_CHANNEL5_MEMORY_BASE_ADDR, DMA1_CHANNEL5_BUFFER_SIZE);
  dma_channel_enable(DMA1_CHANNEL5, TRUE);
[/#dma1_channel5_init]
[#usart1 function]
  /* init usart1 function. */
  pf_usart1_init();
[/#usart1 function]
[#usart2 function]
  /* init usart2 function. */
  pf_usart2_init();
[/#usart2 function]
[#spi1 function]
  /* init spi1 function. */
  pf_spi1_init();
[/#spi1 function]
[#spi2 function]
  /* init spi2 function. */
  pf_spi2_init();
[/#spi2 function]
[#i2s1 function]
  /* init i2s1 function. */
  pf_i2s1_init();
[/#i2s1 function]
[#i2s2 function]
  /* init i2s2 function. */
  pf_i2s2_init();
[/#i2s2 function]
[#i2c1 function]
  /* init i2c1 function. */
  pf_i2c1_init();
[/#i2c1 function]
[#i2c2 function]
  /* init i2c2 function. */
  pf_i2c2_init();
[/#i2c2 function]
[#crc function]
  /* init crc function. */
  pf_crc_init();
[/#crc function]
[#wdt function]
  /* init wdt function. */
  pf_wdt_init();
[/#wdt function]
[#wwdt function]
  /* init wwdt function. */
  pf_wwdt_init();
[/#wwdt function]
[#ertc function]
  /* init ertc function. */
  pf_ertc_init();
[/#ertc function]
[#cmp function]
  /* init cmp function. */
  pf_cmp_init();
[/#cmp function]
[#adc1 function]
  /* init adc1 function. */
  pf_adc1_init();
[/#adc1 function]
[#exint function]
  /* init exint function. */
  pf_exint_config();
[/#exint function]
[#gpio function]
  /* init gpio function. */
  pf_gpio_config();
[/#gpio function]
[#tmr1 function]
  /* init tmr1 function. */
  pf_tmr1_init();
[/#tmr1 function]
[#tmr3 function]
  /* init tmr3 function. */
  pf_tmr3_init();
[/#tmr3 function]
[#tmr6 function]
  /* init tmr6 function. */
  pf_tmr6_init();
[/#tmr6 function]
[#tmr14 function]
  /* init tmr14 function. */
  pf_tmr14_init();
[/#tmr14 function]
[#tmr15 function]
  /* init tmr15 function. */
  pf_tmr15_init();
[/#tmr15 function]
[#tmr16 function]
  /* init tmr16 function. */
  pf_tmr16_init();
[/#tmr16 function]
[#tmr17 function]
  /* init tmr17 function. */
  pf_tmr17_init();
[/#tmr17 function]
[#irtmr function]
  /* init irtmr function. */
  pf_irtmr_init();
[/#irtmr function]
  /* add user code begin 2 */

  /* add user code end 2 */

  while(1)
  {
    /* add user code begin 3 */

    /* add user code end 3 */
  }
}
