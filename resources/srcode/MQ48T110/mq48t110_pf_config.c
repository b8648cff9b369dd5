/* add user code begin Header */
/**
  **************************************************************************
  * @file     mq48t110_pf_config.c
  * @brief    pin forge config program
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

[#clock_config]
/**
  * @brief  system clock config program
  * @note   the system clock is configured as follow:
  *         system clock (sclk)   = hick / 12 * pll_mult
  *         system clock source   = HICK_VALUE
  *         - lick                = on
  *         - lext                = off
  *         - hick                = on
  *         - hext                = off
  *         - sclk                = 120000000
  *         - ahbdiv              = 1
  *         - ahbclk              = 120000000
  *         - apb1div             = 1
  *         - apb1clk             = 120000000
  *         - apb2div             = 1
  *         - apb2clk             = 120000000
  *         - pll_mult            = 30
  *         - flash_wtcyc         = 3 cycle
  * @param  none
  * @retval none
  */
void pf_system_clock_config(void)
{
  /* reset crm */
  crm_reset();

[#flash psr]
  /* config flash psr register */
  flash_psr_set(FLASH_WAIT_CYCLE_3);
[/#flash psr]
[#enable lext]
  /* allow access to the battery powered domain */
  crm_periph_clock_enable(CRM_PWC_PERIPH_CLOCK, TRUE);
  pwc_battery_powered_domain_access(TRUE);

[#lext bypass]
  /* config lext bypass mode */
  crm_lext_bypass(TRUE);
[/#lext bypass]
  /* enable lext */
  crm_clock_source_enable(CRM_CLOCK_SOURCE_LEXT, TRUE);

  /* wait till lext is ready */
  while(crm_flag_get(CRM_LEXT_STABLE_FLAG) != SET)
  {
  }
[/#enable lext]
[#hext bypass]
  /* config hext bypass mode */
  crm_hext_bypass(TRUE);
[/#hext bypass]
[#enable hext]
  /* enable hext */
  crm_clock_source_enable(CRM_CLOCK_SOURCE_HEXT, TRUE);

  /* wait till hext is ready */
  while(crm_hext_stable_wait() == ERROR)
  {
  }
[/#enable hext]
[#enable hick]
  /* enable hick */
  crm_clock_source_enable(CRM_CLOCK_SOURCE_HICK, TRUE);

  /* wait till hick is ready */
  while(crm_flag_get(CRM_HICK_STABLE_FLAG) != SET)
  {
  }
[/#enable hick]
[#enable lick]
  /* enable lick */
  crm_clock_source_enable(CRM_CLOCK_SOURCE_LICK, TRUE);

  /* wait till lick is ready */
  while(crm_flag_get(CRM_LICK_STABLE_FLAG) != SET)
  {
  }
[/#enable lick]
[#enable pll]
[#pll normal]
  /* config pll clock resource */
  crm_pll_config(CRM_PLL_SOURCE_HICK, CRM_PLL_MULT_30);
[/#pll normal]
[#pll flexible]
  /* config pll clock resource:
     pll_clk = pll_input * pll_ns / (pll_ms * pll_fr) */
  crm_pll_config2(CRM_PLL_SOURCE_HICK, 120, 1, CRM_PLL_FR_8);
[/#pll flexible]
  /* enable pll */
  crm_clock_source_enable(CRM_CLOCK_SOURCE_PLL, TRUE);

  /* wait till pll is ready */
  while(crm_flag_get(CRM_PLL_STABLE_FLAG) != SET)
  {
  }
[/#enable pll]
  /* config ahbclk */
  crm_ahb_div_set(CRM_AHB_DIV_1);

  /* config apb2clk */
  crm_apb2_div_set(CRM_APB2_DIV_1);

  /* config apb1clk */
  crm_apb1_div_set(CRM_APB1_DIV_1);

[#enable auto step mode]
  /* enable auto step mode */
  crm_auto_step_mode_enable(TRUE);
[/#enable auto step mode]
[#pll sysclock]
  /* select pll as system clock source */
  crm_sysclk_switch(CRM_SCLK_PLL);

  /* wait till pll is used as system clock source */
  while(crm_sysclk_switch_status_get() != CRM_SCLK_PLL)
  {
  }
[/#pll sysclock]
[#hext sysclock]
  /* select hext as system clock source */
  crm_sysclk_switch(CRM_SCLK_HEXT);

  /* wait till hext is used as system clock source */
  while(crm_sysclk_switch_status_get() != CRM_SCLK_HEXT)
  {
  }
[/#hext sysclock]
[#hick sysclock]
[#hick48]
  /* the system clock takes hick undivided (48 mhz) */
  crm_hick_sclk_frequency_select(CRM_HICK_SCLK_48MHZ);
[/#hick48]
  /* select hick as system clock source */
  crm_sysclk_switch(CRM_SCLK_HICK);

  /* wait till hick is used as system clock source */
  while(crm_sysclk_switch_status_get() != CRM_SCLK_HICK)
  {
  }
[/#hick sysclock]
[#disable auto step mode]
  /* disable auto step mode */
  crm_auto_step_mode_enable(FALSE);
[/#disable auto step mode]
  /* update system_core_clock global variable */
  system_core_clock_update();
}
[/#clock_config]

[#config systick]
/**
  * @brief  systick config program
  * @param  none
  * @retval none
  */
void pf_systick_config(void)
{
  /* add user code begin systick_config 0 */

  /* add user code end systick_config 0 */

  /* the systick interrupt comes every 1 ms */
  systick_clock_source_config(SYSTICK_CLOCK_SOURCE_AHBCLK_DIV8);
  systick_interrupt_config(system_core_clock / 1000);

  /* add user code begin systick_config 1 */

  /* add user code end systick_config 1 */
}
[/#config systick]

[#config periph clock]
/**
  * @brief  config periph clock
  * @param  none
  * @retval none
  */
void pf_periph_clock_config(void)
{
  /* add user code begin periph_clock_config 0 */

  /* add user code end periph_clock_config 0 */

[#dma1 periph clock]
  /* enable dma1 periph clock */
  crm_periph_clock_enable(CRM_DMA1_PERIPH_CLOCK, TRUE);
[/#dma1 periph clock]
[#crc periph clock]
  /* enable crc periph clock */
  crm_periph_clock_enable(CRM_CRC_PERIPH_CLOCK, TRUE);
[/#crc periph clock]
[#gpioa periph clock]
  /* enable gpioa periph clock */
  crm_periph_clock_enable(CRM_GPIOA_PERIPH_CLOCK, TRUE);
[/#gpioa periph clock]
[#gpiob periph clock]
  /* enable gpiob periph clock */
  crm_periph_clock_enable(CRM_GPIOB_PERIPH_CLOCK, TRUE);
[/#gpiob periph clock]
[#gpioc periph clock]
  /* enable gpioc periph clock */
  crm_periph_clock_enable(CRM_GPIOC_PERIPH_CLOCK, TRUE);
[/#gpioc periph clock]
[#gpiof periph clock]
  /* enable gpiof periph clock */
  crm_periph_clock_enable(CRM_GPIOF_PERIPH_CLOCK, TRUE);
[/#gpiof periph clock]
[#scfg periph clock]
  /* enable scfg periph clock */
  crm_periph_clock_enable(CRM_SCFG_PERIPH_CLOCK, TRUE);
[/#scfg periph clock]
[#cmp periph clock]
  /* enable cmp periph clock */
  crm_periph_clock_enable(CRM_CMP_PERIPH_CLOCK, TRUE);
[/#cmp periph clock]
[#adc1 periph clock]
  /* enable adc1 periph clock */
  crm_periph_clock_enable(CRM_ADC1_PERIPH_CLOCK, TRUE);
[/#adc1 periph clock]
[#tmr1 periph clock]
  /* enable tmr1 periph clock */
  crm_periph_clock_enable(CRM_TMR1_PERIPH_CLOCK, TRUE);
[/#tmr1 periph clock]
[#tmr3 periph clock]
  /* enable tmr3 periph clock */
  crm_periph_clock_enable(CRM_TMR3_PERIPH_CLOCK, TRUE);
[/#tmr3 periph clock]
[#tmr6 periph clock]
  /* enable tmr6 periph clock */
  crm_periph_clock_enable(CRM_TMR6_PERIPH_CLOCK, TRUE);
[/#tmr6 periph clock]
[#tmr14 periph clock]
  /* enable tmr14 periph clock */
  crm_periph_clock_enable(CRM_TMR14_PERIPH_CLOCK, TRUE);
[/#tmr14 periph clock]
[#tmr15 periph clock]
  /* enable tmr15 periph clock */
  crm_periph_clock_enable(CRM_TMR15_PERIPH_CLOCK, TRUE);
[/#tmr15 periph clock]
[#tmr16 periph clock]
  /* enable tmr16 periph clock */
  crm_periph_clock_enable(CRM_TMR16_PERIPH_CLOCK, TRUE);
[/#tmr16 periph clock]
[#tmr17 periph clock]
  /* enable tmr17 periph clock */
  crm_periph_clock_enable(CRM_TMR17_PERIPH_CLOCK, TRUE);
[/#tmr17 periph clock]
[#usart1 periph clock]
  /* enable usart1 periph clock */
  crm_periph_clock_enable(CRM_USART1_PERIPH_CLOCK, TRUE);
[/#usart1 periph clock]
[#usart2 periph clock]
  /* enable usart2 periph clock */
  crm_periph_clock_enable(CRM_USART2_PERIPH_CLOCK, TRUE);
[/#usart2 periph clock]
[#spi1 periph clock]
  /* enable spi1 periph clock */
  crm_periph_clock_enable(CRM_SPI1_PERIPH_CLOCK, TRUE);
[/#spi1 periph clock]
[#spi2 periph clock]
  /* enable spi2 periph clock */
  crm_periph_clock_enable(CRM_SPI2_PERIPH_CLOCK, TRUE);
[/#spi2 periph clock]
[#i2c1 periph clock]
  /* enable i2c1 periph clock */
  crm_periph_clock_enable(CRM_I2C1_PERIPH_CLOCK, TRUE);
[/#i2c1 periph clock]
[#i2c2 periph clock]
  /* enable i2c2 periph clock */
  crm_periph_clock_enable(CRM_I2C2_PERIPH_CLOCK, TRUE);
[/#i2c2 periph clock]
[#wwdt periph clock]
  /* enable wwdt periph clock */
  crm_periph_clock_enable(CRM_WWDT_PERIPH_CLOCK, TRUE);
[/#wwdt periph clock]
[#pwc periph clock]
  /* enable pwc periph clock */
  crm_periph_clock_enable(CRM_PWC_PERIPH_CLOCK, TRUE);
[/#pwc periph clock]
  /* add user code begin periph_clock_config 1 */

  /* add user code end periph_clock_config 1 */
}
[/#config periph clock]

[#clkout function]
/**
  * @brief  init clkout function
  * @param  none
  * @retval none
  */
void pf_clkout_config(void)
{
  gpio_init_type gpio_init_struct;

  /* add user code begin clkout_config 0 */

  /* add user code end clkout_config 0 */

  crm_periph_clock_enable(CRM_GPIOA_PERIPH_CLOCK, TRUE);

  gpio_default_para_init(&gpio_init_struct);

  /* configure the CLKOUT pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_8;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE8, GPIO_MUX_0);

  /* config clkout output clock source */
  crm_clock_out_set(CRM_CLKOUT_SCLK);

  /* config clkout div */
  crm_clkout_div_set(CRM_CLKOUT_DIV_1);

  /* add user code begin clkout_config 1 */

  /* add user code end clkout_config 1 */
}
[/#clkout function]

[#config nvic]
/**
  * @brief  nvic config
  * @param  none
  * @retval none
  */
void pf_nvic_config(void)
{
  /* add user code begin nvic_config 0 */

  /* add user code end nvic_config 0 */

  nvic_priority_group_config(NVIC_PRIORITY_GROUP_4);

  nvic_irq_enable(Reset_IRQn, 0, 0);
  nvic_irq_enable(NonMaskableInt_IRQn, 0, 0);
  nvic_irq_enable(HardFault_IRQn, 0, 0);
  nvic_irq_enable(MemoryManagement_IRQn, 0, 0);
  nvic_irq_enable(BusFault_IRQn, 0, 0);
  nvic_irq_enable(UsageFault_IRQn, 0, 0);
  nvic_irq_enable(SVCall_IRQn, 0, 0);
  nvic_irq_enable(DebugMonitor_IRQn, 0, 0);
  nvic_irq_enable(PendSV_IRQn, 0, 0);
  nvic_irq_enable(SysTick_IRQn, 0, 0);
  nvic_irq_enable(WWDT_IRQn, 0, 0);
  nvic_irq_enable(PVM_IRQn, 0, 0);
  nvic_irq_enable(ERTC_IRQn, 0, 0);
  nvic_irq_enable(FLASH_IRQn, 0, 0);
  nvic_irq_enable(CRM_IRQn, 0, 0);
  nvic_irq_enable(EXINT1_0_IRQn, 0, 0);
  nvic_irq_enable(EXINT3_2_IRQn, 0, 0);
  nvic_irq_enable(EXINT15_4_IRQn, 0, 0);
  nvic_irq_enable(DMA1_Channel1_IRQn, 0, 0);
  nvic_irq_enable(DMA1_Channel3_2_IRQn, 0, 0);
  nvic_irq_enable(DMA1_Channel5_4_IRQn, 0, 0);
  nvic_irq_enable(ADC1_CMP_IRQn, 0, 0);
  nvic_irq_enable(TMR1_BRK_OVF_TRG_HALL_IRQn, 0, 0);
  nvic_irq_enable(TMR1_CH_IRQn, 0, 0);
  nvic_irq_enable(TMR3_GLOBAL_IRQn, 0, 0);
  nvic_irq_enable(TMR6_GLOBAL_IRQn, 0, 0);
  nvic_irq_enable(TMR14_GLOBAL_IRQn, 0, 0);
  nvic_irq_enable(TMR15_GLOBAL_IRQn, 0, 0);
  nvic_irq_enable(TMR16_GLOBAL_IRQn, 0, 0);
  nvic_irq_enable(TMR17_GLOBAL_IRQn, 0, 0);
  nvic_irq_enable(I2C1_EVT_IRQn, 0, 0);
  nvic_irq_enable(I2C1_ERR_IRQn, 0, 0);
  nvic_irq_enable(I2C2_EVT_IRQn, 0, 0);
  nvic_irq_enable(I2C2_ERR_IRQn, 0, 0);
  nvic_irq_enable(SPI1_IRQn, 0, 0);
  nvic_irq_enable(SPI2_IRQn, 0, 0);
  nvic_irq_enable(USART1_IRQn, 0, 0);
  nvic_irq_enable(USART2_IRQn, 0, 0);
  nvic_irq_enable(ERTCAlarm_IRQn, 0, 0);

  /* add user code begin nvic_config 1 */

  /* add user code end nvic_config 1 */
}
[/#config nvic]

[#gpio function]
/**
  * @brief  init gpio_input/gpio_output/gpio_analog/eventout function.
  * @param  none
  * @retval none
  */
void pf_gpio_config(void)
{
  gpio_init_type gpio_init_struct;

  /* add user code begin gpio_config 0 */

  /* add user code end gpio_config 0 */

  gpio_default_para_init(&gpio_init_struct);

  /* add user code begin gpio_config 1 */

  /* add user code end gpio_config 1 */

[#output]
  /* gpio output config */
[#output_level]
  gpio_bits_write(GPIOB, GPIO_PINS_0, FALSE);
[/#output_level]
[#init]
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_OUTPUT;
  gpio_init_struct.gpio_pins = GPIO_PINS_0;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
[/#init]
[/#output]
[#eventout]
  /* gpio eventout config */
[#init]
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_1;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
[/#init]
[#mux_config]
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE1, GPIO_MUX_0);
[/#mux_config]
[/#eventout]
[#input]
  /* gpio input config */
[#init]
  gpio_init_struct.gpio_mode = GPIO_MODE_INPUT;
  gpio_init_struct.gpio_pins = GPIO_PINS_2;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
[/#init]
[/#input]
[#analog]
  /* gpio analog config */
[#init]
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_3;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
[/#init]
[/#analog]
  /* add user code begin gpio_config 2 */

  /* add user code end gpio_config 2 */
}
[/#gpio function]

[#exint function]
/**
  * @brief  init exint function.
  * @param  none
  * @retval none
  */
void pf_exint_config(void)
{
  gpio_init_type gpio_init_struct;
  exint_init_type exint_init_struct;

  /* add user code begin exint_config 0 */

  /* add user code end exint_config 0 */

  gpio_default_para_init(&gpio_init_struct);

  /* add user code begin exint_config 1 */

  /* add user code end exint_config 1 */

[#exint_x]
  /* configure the EXINTx */
[#interrupt remarks]
  /**
   * Users need to configure EXINTx interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding EXINTx interrupt.
   *     --exint_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void EXINT1_0_IRQHandler(void)
   */
[/#interrupt remarks]
  gpio_init_struct.gpio_mode = GPIO_MODE_INPUT;
  gpio_init_struct.gpio_pins = GPIO_PINS_0;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  scfg_exint_line_config(SCFG_PORT_SOURCE_GPIOA, SCFG_PINS_SOURCE0);
  exint_default_para_init(&exint_init_struct);
  exint_init_struct.line_enable = TRUE;
  exint_init_struct.line_mode = EXINT_LINE_INTERRUPUT;
  exint_init_struct.line_select = EXINT_LINE_0;
  exint_init_struct.line_polarity = EXINT_TRIGGER_RISING_EDGE;
  exint_init(&exint_init_struct);
[/#exint_x]
  /* add user code begin exint_config 2 */

  /* add user code end exint_config 2 */
}
[/#exint function]

[#scfg function]
/**
  * @brief  init scfg function
  * @param  none
  * @retval none
  */
void pf_scfg_init(void)
{
  /* add user code begin scfg_init 0 */

  /* add user code end scfg_init 0 */

[#pa11pa12_remap]
  /* pins 17 and 18 of the small packages carry pa11 and pa12 */
  scfg_pa11pa12_pin_remap(TRUE);
[/#pa11pa12_remap]
  /* add user code begin scfg_init 1 */

  /* add user code end scfg_init 1 */
}
[/#scfg function]

[#adc1 function]
/**
  * @brief  init adc1 function
  * @param  none
  * @retval none
  */
void pf_adc1_init(void)
{
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]
  adc_base_config_type adc_base_struct;

  /* add user code begin adc1_init 0 */

  /* add user code end adc1_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin adc1_init 1 */

  /* add user code end adc1_init 1 */

[#IN0 pin]
  /* configure the IN0 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_0;
  gpio_init(GPIOA, &gpio_init_struct);
[/#IN0 pin]
[#IN1 pin]
  /* configure the IN1 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_1;
  gpio_init(GPIOA, &gpio_init_struct);
[/#IN1 pin]
[#IN2 pin]
  /* configure the IN2 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_2;
  gpio_init(GPIOA, &gpio_init_struct);
[/#IN2 pin]
[#IN3 pin]
  /* configure the IN3 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_3;
  gpio_init(GPIOA, &gpio_init_struct);
[/#IN3 pin]
[#IN4 pin]
  /* configure the IN4 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_4;
  gpio_init(GPIOA, &gpio_init_struct);
[/#IN4 pin]
[#IN5 pin]
  /* configure the IN5 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_5;
  gpio_init(GPIOA, &gpio_init_struct);
[/#IN5 pin]
[#IN6 pin]
  /* configure the IN6 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_6;
  gpio_init(GPIOA, &gpio_init_struct);
[/#IN6 pin]
[#IN7 pin]
  /* configure the IN7 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_7;
  gpio_init(GPIOA, &gpio_init_struct);
[/#IN7 pin]
[#IN8 pin]
  /* configure the IN8 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_0;
  gpio_init(GPIOB, &gpio_init_struct);
[/#IN8 pin]
[#IN9 pin]
  /* configure the IN9 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_1;
  gpio_init(GPIOB, &gpio_init_struct);
[/#IN9 pin]
  /* configure the adc clock */
  crm_adc_clock_div_set(CRM_ADC_DIV_6);

[#temperature sensor VINTRV channel]
  /* enable the temperature sensor and the internal reference voltage */
  adc_tempersensor_vintrv_enable(TRUE);
[/#temperature sensor VINTRV channel]
  /* configure the adc base parameters */
  adc_base_default_para_init(&adc_base_struct);
  adc_base_struct.sequence_mode = FALSE;
  adc_base_struct.repeat_mode = FALSE;
  adc_base_struct.data_align = ADC_RIGHT_ALIGNMENT;
  adc_base_struct.ordinary_channel_length = 1;
  adc_base_config(ADC1, &adc_base_struct);

[#ordinary_conversions]
  /* configure the ordinary channels */
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 1, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 2, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 3, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 4, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 5, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 6, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 7, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 8, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 9, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 10, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 11, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 12, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 13, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 14, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 15, ADC_SAMPLETIME_1_5);
  adc_ordinary_channel_set(ADC1, ADC_CHANNEL_0, 16, ADC_SAMPLETIME_1_5);
  adc_ordinary_conversion_trigger_set(ADC1, ADC12_ORDINARY_TRIG_SOFTWARE, TRUE);
[#number_of_partitioned_conversation]
  adc_ordinary_part_count_set(ADC1, 1);
[/#number_of_partitioned_conversation]
  adc_ordinary_part_mode_enable(ADC1, FALSE);
[/#ordinary_conversions]
[#dma_mode]
  adc_dma_mode_enable(ADC1, TRUE);
[/#dma_mode]
[#preempt_conversions]
  /* configure the preempted channels */
[#sequence_1]
  adc_preempt_channel_set(ADC1, ADC_CHANNEL_0, 1, ADC_SAMPLETIME_1_5);
  adc_preempt_offset_value_set(ADC1, ADC_PREEMPT_CHANNEL_1, 0x000);
[/#sequence_1]
[#sequence_2]
  adc_preempt_channel_set(ADC1, ADC_CHANNEL_0, 2, ADC_SAMPLETIME_1_5);
  adc_preempt_offset_value_set(ADC1, ADC_PREEMPT_CHANNEL_2, 0x000);
[/#sequence_2]
[#sequence_3]
  adc_preempt_channel_set(ADC1, ADC_CHANNEL_0, 3, ADC_SAMPLETIME_1_5);
  adc_preempt_offset_value_set(ADC1, ADC_PREEMPT_CHANNEL_3, 0x000);
[/#sequence_3]
[#sequence_4]
  adc_preempt_channel_set(ADC1, ADC_CHANNEL_0, 4, ADC_SAMPLETIME_1_5);
  adc_preempt_offset_value_set(ADC1, ADC_PREEMPT_CHANNEL_4, 0x000);
[/#sequence_4]
[#preempt_partitioned_mode]
  adc_preempt_part_mode_enable(ADC1, TRUE);
[/#preempt_partitioned_mode]
[#preempt_auto_mode]
  adc_preempt_auto_mode_enable(ADC1, TRUE);
[/#preempt_auto_mode]
[#preempt_conversion_trigger]
  adc_preempt_conversion_trigger_set(ADC1, ADC12_PREEMPT_TRIG_SOFTWARE, TRUE);
[/#preempt_conversion_trigger]
[#preempt_interrupt]
  adc_interrupt_enable(ADC1, ADC_PCCE_INT, TRUE);
[/#preempt_interrupt]
  adc_preempt_channel_length_set(ADC1, 1);
[/#preempt_conversions]
[#voltage_monitoring]
  /* configure the voltage monitor */
  adc_voltage_monitor_threshold_value_set(ADC1, 0xFFF, 0x000);
[#voltage_monitor_single_channel]
  adc_voltage_monitor_single_channel_select(ADC1, ADC_CHANNEL_0);
[/#voltage_monitor_single_channel]
[#voltage_monitoring_interrupt]
  adc_interrupt_enable(ADC1, ADC_VMOR_INT, TRUE);
[/#voltage_monitoring_interrupt]
  adc_voltage_monitor_enable(ADC1, ADC_VMONITOR_SINGLE_ORDINARY);
[/#voltage_monitoring]
[#interrupt remarks]
  /**
   * Users need to configure ADC1 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding ADC1 interrupt.
   *     --adc_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void ADC1_CMP_IRQHandler(void)
   */
[/#interrupt remarks]
  /* enable the adc */
  adc_enable(ADC1, TRUE);

[#adc_calibration]
  /* calibrate the adc */
  adc_calibration_init(ADC1);
  while(adc_calibration_init_status_get(ADC1))
  {
  }
  adc_calibration_start(ADC1);
  while(adc_calibration_status_get(ADC1))
  {
  }
[/#adc_calibration]
  /* add user code begin adc1_init 2 */

  /* add user code end adc1_init 2 */
}
[/#adc1 function]

[#cmp function]
/**
  * @brief  init cmp function
  * @param  none
  * @retval none
  */
void pf_cmp_init(void)
{
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]
  cmp_init_type cmp_init_struct;

  /* add user code begin cmp_init 0 */

  /* add user code end cmp_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin cmp_init 1 */

  /* add user code end cmp_init 1 */

[#out pin]
  /* configure the OUT pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_0;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE0, GPIO_MUX_7);
[/#out pin]
[#inp0 pin]
  /* configure the INP0 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_1;
  gpio_init(GPIOA, &gpio_init_struct);
[/#inp0 pin]
[#inp1 pin]
  /* configure the INP1 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_3;
  gpio_init(GPIOA, &gpio_init_struct);
[/#inp1 pin]
[#inm4 pin]
  /* configure the INM4 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_4;
  gpio_init(GPIOA, &gpio_init_struct);
[/#inm4 pin]
[#inm5 pin]
  /* configure the INM5 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_5;
  gpio_init(GPIOA, &gpio_init_struct);
[/#inm5 pin]
[#inm6 pin]
  /* configure the INM6 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_0;
  gpio_init(GPIOA, &gpio_init_struct);
[/#inm6 pin]
[#inm7 pin]
  /* configure the INM7 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_ANALOG;
  gpio_init_struct.gpio_pins = GPIO_PINS_2;
  gpio_init(GPIOA, &gpio_init_struct);
[/#inm7 pin]
  /* configure the comparator */
  cmp_default_para_init(&cmp_init_struct);
  cmp_init_struct.cmp_non_inverting = CMP_NON_INVERTING_PA1;
  cmp_init_struct.cmp_inverting = CMP_INVERTING_1_4VREFINT;
  cmp_init_struct.cmp_output = CMP_OUTPUT_NONE;
  cmp_init_struct.cmp_polarity = CMP_POL_NON_INVERTING;
  cmp_init_struct.cmp_speed = CMP_SPEED_FAST;
  cmp_init_struct.cmp_hysteresis = CMP_HYSTERESIS_NONE;
  cmp_init(CMP1_SELECTION, &cmp_init_struct);
  cmp_enable(CMP1_SELECTION, TRUE);

[#interrupt remarks]
  /**
   * Users need to configure CMP1 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding CMP1 interrupt.
   *     --cmp_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void ADC1_CMP_IRQHandler(void)
   */
[/#interrupt remarks]
[#write protect]
  /* lock the comparator configuration until the next reset */
  cmp_write_protect_enable(CMP1_SELECTION);
[/#write protect]
  /* add user code begin cmp_init 2 */

  /* add user code end cmp_init 2 */
}
[/#cmp function]

[#crc function]
/**
  * @brief  init crc function
  * @param  none
  * @retval none
  */
void pf_crc_init(void)
{
  /* add user code begin crc_init 0 */

  /* add user code end crc_init 0 */

  crc_data_reset();
  crc_poly_size_set(CRC_POLY_SIZE_32B);
  crc_poly_value_set(0x04C11DB7);
  crc_init_data_set(0xFFFFFFFF);
  crc_reverse_input_data_set(CRC_REVERSE_INPUT_NONE);
  crc_reverse_output_data_set(CRC_REVERSE_OUTPUT_NONE);

  /* add user code begin crc_init 1 */

  /* add user code end crc_init 1 */
}
[/#crc function]

[#ertc function]
/**
  * @brief  init ertc function
  * @param  none
  * @retval none
  */
void pf_ertc_init(void)
{
[#exint_init_struct]
  exint_init_type exint_init_struct;
[/#exint_init_struct]

  /* add user code begin ertc_init 0 */

  /* add user code end ertc_init 0 */

  /* allow access to the battery powered domain */
  crm_periph_clock_enable(CRM_PWC_PERIPH_CLOCK, TRUE);
  pwc_battery_powered_domain_access(TRUE);

  /* select and enable the ertc clock */
  crm_ertc_clock_select(CRM_ERTC_CLOCK_LICK);
  crm_ertc_clock_enable(TRUE);

  /* wait for the ertc registers to synchronise */
  ertc_reset();
  ertc_wait_update();

  /* configure the hour mode and the dividers */
  ertc_hour_mode_set(ERTC_HOUR_MODE_24);
  ertc_divider_set(127, 255);

  /* add user code begin ertc_init 1 */

  /* add user code end ertc_init 1 */

[#calender date]
  /* set the date: year, month, date, week day */
  ertc_date_set(0, 1, 1, 1);
[/#calender date]
[#calender time]
  /* set the time: hour, minute, second, am or pm */
  ertc_time_set(0, 0, 0, ERTC_AM);
[/#calender time]
[#ertc_daylight_set]
  ertc_daylight_set(ERTC_DST_ADD_1H, FALSE);
[/#ertc_daylight_set]
[#alarm a]
  /* configure alarm a: date, hour, minute, second, am or pm */
  ertc_alarm_mask_set(ERTC_ALA, ERTC_ALARM_NO_MASK);
  ertc_alarm_week_date_select(ERTC_ALA, ERTC_SLECT_DATE);
  ertc_alarm_set(ERTC_ALA, 1, 0, 0, 0, ERTC_AM);
[#alarm a interrupt]
  ertc_interrupt_enable(ERTC_ALA_INT, TRUE);
  exint_default_para_init(&exint_init_struct);
  exint_init_struct.line_enable = TRUE;
  exint_init_struct.line_mode = EXINT_LINE_INTERRUPUT;
  exint_init_struct.line_select = EXINT_LINE_17;
  exint_init_struct.line_polarity = EXINT_TRIGGER_RISING_EDGE;
  exint_init(&exint_init_struct);
[/#alarm a interrupt]
  ertc_alarm_enable(ERTC_ALA, TRUE);
[/#alarm a]
[#alarm b]
  /* configure alarm b: date, hour, minute, second, am or pm */
  ertc_alarm_mask_set(ERTC_ALB, ERTC_ALARM_NO_MASK);
  ertc_alarm_week_date_select(ERTC_ALB, ERTC_SLECT_DATE);
  ertc_alarm_set(ERTC_ALB, 1, 0, 0, 0, ERTC_AM);
[#alarm b interrupt]
  ertc_interrupt_enable(ERTC_ALB_INT, TRUE);
  exint_default_para_init(&exint_init_struct);
  exint_init_struct.line_enable = TRUE;
  exint_init_struct.line_mode = EXINT_LINE_INTERRUPUT;
  exint_init_struct.line_select = EXINT_LINE_17;
  exint_init_struct.line_polarity = EXINT_TRIGGER_RISING_EDGE;
  exint_init(&exint_init_struct);
[/#alarm b interrupt]
  ertc_alarm_enable(ERTC_ALB, TRUE);
[/#alarm b]
[#wakeup timer]
  /* configure the wakeup timer */
  ertc_wakeup_clock_set(ERTC_WAT_CLK_ERTCCLK_DIV16);
  ertc_wakeup_counter_set(0);
[#wakeup interrupt]
  ertc_interrupt_enable(ERTC_WAT_INT, TRUE);
  exint_default_para_init(&exint_init_struct);
  exint_init_struct.line_enable = TRUE;
  exint_init_struct.line_mode = EXINT_LINE_INTERRUPUT;
  exint_init_struct.line_select = EXINT_LINE_20;
  exint_init_struct.line_polarity = EXINT_TRIGGER_RISING_EDGE;
  exint_init(&exint_init_struct);
[/#wakeup interrupt]
  ertc_wakeup_enable(TRUE);
[/#wakeup timer]
[#output]
  /* route an alarm or the wakeup flag to the ertc output pin */
  ertc_output_set(ERTC_OUTPUT_ALARM_A, ERTC_OUTPUT_POLARITY_HIGH, ERTC_OUTPUT_TYPE_OPEN_DRAIN);
[/#output]
[#calibration]
  /* output the calibration clock on the ertc output pin */
  ertc_calibration_output_set(ERTC_CALIBRATION_OUTPUT_512HZ);
[/#calibration]
[#tamper]
  /* configure the tamper detection */
[#tamper 1]
  ertc_tamper_valid_edge_set(ERTC_TAMPER_1, ERTC_TAMPER_EDGE_RISING);
[/#tamper 1]
[#tamper interrupt]
  ertc_interrupt_enable(ERTC_TP_INT, TRUE);
  exint_default_para_init(&exint_init_struct);
  exint_init_struct.line_enable = TRUE;
  exint_init_struct.line_mode = EXINT_LINE_INTERRUPUT;
  exint_init_struct.line_select = EXINT_LINE_19;
  exint_init_struct.line_polarity = EXINT_TRIGGER_RISING_EDGE;
  exint_init(&exint_init_struct);
[/#tamper interrupt]
  ertc_tamper_enable(ERTC_TAMPER_1, TRUE);
[/#tamper]
[#timestamp]
  /* configure the time stamp */
  ertc_timestamp_valid_edge_set(ERTC_TIMESTAMP_EDGE_RISING);
[#timestamp interrupt]
  ertc_interrupt_enable(ERTC_TS_INT, TRUE);
  exint_default_para_init(&exint_init_struct);
  exint_init_struct.line_enable = TRUE;
  exint_init_struct.line_mode = EXINT_LINE_INTERRUPUT;
  exint_init_struct.line_select = EXINT_LINE_19;
  exint_init_struct.line_polarity = EXINT_TRIGGER_RISING_EDGE;
  exint_init(&exint_init_struct);
[/#timestamp interrupt]
  ertc_timestamp_enable(TRUE);
[/#timestamp]
[#reference clock]
  /* detect the 50/60 hz reference clock */
  ertc_refer_clock_detect_enable(TRUE);
[/#reference clock]
[#interrupt remarks]
  /**
   * Users need to configure ERTC interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding ERTC interrupt.
   *     --ertc_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void ERTCAlarm_IRQHandler(void)
   */
[/#interrupt remarks]
  /* add user code begin ertc_init 2 */

  /* add user code end ertc_init 2 */
}
[/#ertc function]

[#i2c1 function]
/**
  * @brief  init i2c1 function
  * @param  none
  * @retval none
  */
void pf_i2c1_init(void)
{
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]
  /* add user code begin i2c1_init 0 */

  /* add user code end i2c1_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin i2c1_init 1 */

  /* add user code end i2c1_init 1 */

[#scl pin]
  /* configure the SCL pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_OPEN_DRAIN;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_1;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOF, &gpio_init_struct);
  gpio_pin_mux_config(GPIOF, GPIO_PINS_SOURCE1, GPIO_MUX_1);
[/#scl pin]
[#sda pin]
  /* configure the SDA pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_OPEN_DRAIN;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_0;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOF, &gpio_init_struct);
  gpio_pin_mux_config(GPIOF, GPIO_PINS_SOURCE0, GPIO_MUX_1);
[/#sda pin]
[#smba pin]
  /* configure the SMBA pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_OPEN_DRAIN;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_1;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE1, GPIO_MUX_3);
[/#smba pin]
  /* configure param */
  i2c_init(I2C1, I2C_FSMODE_DUTY_2_1, 100000);
  i2c_own_address1_set(I2C1, I2C_ADDRESS_MODE_7BIT, 0x0);
[#dual address enable]
  i2c_own_address2_set(I2C1, 0x0);
  i2c_own_address2_enable(I2C1, TRUE);
[/#dual address enable]
  i2c_clock_stretch_enable(I2C1, TRUE);

[#smbus enable]
  /* configure the smbus mode */
  i2c_smbus_mode_set(I2C1, I2C_SMBUS_MODE_DEVICE);
[#smbus arp enable]
  i2c_arp_mode_enable(I2C1, TRUE);
[/#smbus arp enable]
  i2c_smbus_enable(I2C1, TRUE);
[/#smbus enable]
[#i2c dma enable]
  i2c_dma_enable(I2C1, TRUE);
[/#i2c dma enable]
[#interrupt remarks]
  /**
   * Users need to configure I2C1 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding I2C1 interrupt.
   *     --i2c_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void I2C1_EVT_IRQHandler(void)
   */
[/#interrupt remarks]
  i2c_enable(I2C1, TRUE);

  /* add user code begin i2c1_init 2 */

  /* add user code end i2c1_init 2 */
}
[/#i2c1 function]

[#i2c2 function]
/**
  * @brief  init i2c2 function
  * @param  none
  * @retval none
  */
void pf_i2c2_init(void)
{
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]
  /* add user code begin i2c2_init 0 */

  /* add user code end i2c2_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin i2c2_init 1 */

  /* add user code end i2c2_init 1 */

[#scl pin]
  /* configure the SCL pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_OPEN_DRAIN;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_10;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE10, GPIO_MUX_1);
[/#scl pin]
[#sda pin]
  /* configure the SDA pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_OPEN_DRAIN;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_11;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE11, GPIO_MUX_1);
[/#sda pin]
[#smba pin]
  /* configure the SMBA pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_OPEN_DRAIN;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_12;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE12, GPIO_MUX_5);
[/#smba pin]
  /* configure param */
  i2c_init(I2C2, I2C_FSMODE_DUTY_2_1, 100000);
  i2c_own_address1_set(I2C2, I2C_ADDRESS_MODE_7BIT, 0x0);
[#dual address enable]
  i2c_own_address2_set(I2C2, 0x0);
  i2c_own_address2_enable(I2C2, TRUE);
[/#dual address enable]
  i2c_clock_stretch_enable(I2C2, TRUE);

[#smbus enable]
  /* configure the smbus mode */
  i2c_smbus_mode_set(I2C2, I2C_SMBUS_MODE_DEVICE);
[#smbus arp enable]
  i2c_arp_mode_enable(I2C2, TRUE);
[/#smbus arp enable]
  i2c_smbus_enable(I2C2, TRUE);
[/#smbus enable]
[#i2c dma enable]
  i2c_dma_enable(I2C2, TRUE);
[/#i2c dma enable]
[#interrupt remarks]
  /**
   * Users need to configure I2C2 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding I2C2 interrupt.
   *     --i2c_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void I2C2_EVT_IRQHandler(void)
   */
[/#interrupt remarks]
  i2c_enable(I2C2, TRUE);

  /* add user code begin i2c2_init 2 */

  /* add user code end i2c2_init 2 */
}
[/#i2c2 function]

[#i2s1 function]
/**
  * @brief  init i2s1 function
  * @param  none
  * @retval none
  */
void pf_i2s1_init(void)
{
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]
  i2s_init_type i2s_init_struct;

  /* add user code begin i2s1_init 0 */

  /* add user code end i2s1_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin i2s1_init 1 */

  /* add user code end i2s1_init 1 */

[#ck pin]
  /* configure the CK pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_5;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE5, GPIO_MUX_0);
[/#ck pin]
[#sd pin]
  /* configure the SD pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_7;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE7, GPIO_MUX_0);
[/#sd pin]
[#ws pin]
  /* configure the WS pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_4;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE4, GPIO_MUX_0);
[/#ws pin]
[#mck pin]
  /* configure the MCK pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_6;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE6, GPIO_MUX_0);
[/#mck pin]
  /* configure param */
  i2s_default_para_init(&i2s_init_struct);
  i2s_init_struct.operation_mode = I2S_MODE_MASTER_TX;
  i2s_init_struct.audio_protocol = I2S_AUDIO_PROTOCOL_PHILLIPS;
  i2s_init_struct.data_channel_format = I2S_DATA_16BIT_CHANNEL_16BIT;
  i2s_init_struct.audio_sampling_freq = I2S_AUDIO_FREQUENCY_48K;
  i2s_init_struct.clock_polarity = I2S_CLOCK_POLARITY_LOW;
  i2s_init_struct.mclk_output_enable = FALSE;
  i2s_init(SPI1, &i2s_init_struct);

[#dma transmitter]
  spi_i2s_dma_transmitter_enable(SPI1, TRUE);
[/#dma transmitter]
[#dma receiver]
  spi_i2s_dma_receiver_enable(SPI1, TRUE);
[/#dma receiver]
[#interrupt remarks]
  /**
   * Users need to configure I2S1 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding I2S1 interrupt.
   *     --spi_i2s_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void SPI1_IRQHandler(void)
   */
[/#interrupt remarks]
  i2s_enable(SPI1, TRUE);

  /* add user code begin i2s1_init 2 */

  /* add user code end i2s1_init 2 */
}
[/#i2s1 function]

[#i2s2 function]
/**
  * @brief  init i2s2 function
  * @param  none
  * @retval none
  */
void pf_i2s2_init(void)
{
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]
  i2s_init_type i2s_init_struct;

  /* add user code begin i2s2_init 0 */

  /* add user code end i2s2_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin i2s2_init 1 */

  /* add user code end i2s2_init 1 */

[#ck pin]
  /* configure the CK pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_10;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE10, GPIO_MUX_5);
[/#ck pin]
[#sd pin]
  /* configure the SD pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_15;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE15, GPIO_MUX_0);
[/#sd pin]
[#ws pin]
  /* configure the WS pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_12;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE12, GPIO_MUX_0);
[/#ws pin]
[#mck pin]
  /* configure the MCK pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_14;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE14, GPIO_MUX_0);
[/#mck pin]
  /* configure param */
  i2s_default_para_init(&i2s_init_struct);
  i2s_init_struct.operation_mode = I2S_MODE_MASTER_TX;
  i2s_init_struct.audio_protocol = I2S_AUDIO_PROTOCOL_PHILLIPS;
  i2s_init_struct.data_channel_format = I2S_DATA_16BIT_CHANNEL_16BIT;
  i2s_init_struct.audio_sampling_freq = I2S_AUDIO_FREQUENCY_48K;
  i2s_init_struct.clock_polarity = I2S_CLOCK_POLARITY_LOW;
  i2s_init_struct.mclk_output_enable = FALSE;
  i2s_init(SPI2, &i2s_init_struct);

[#dma transmitter]
  spi_i2s_dma_transmitter_enable(SPI2, TRUE);
[/#dma transmitter]
[#dma receiver]
  spi_i2s_dma_receiver_enable(SPI2, TRUE);
[/#dma receiver]
[#interrupt remarks]
  /**
   * Users need to configure I2S2 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding I2S2 interrupt.
   *     --spi_i2s_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void SPI2_IRQHandler(void)
   */
[/#interrupt remarks]
  i2s_enable(SPI2, TRUE);

  /* add user code begin i2s2_init 2 */

  /* add user code end i2s2_init 2 */
}
[/#i2s2 function]

[#irtmr function]
/**
  * @brief  init irtmr function
  * @param  none
  * @retval none
  */
void pf_irtmr_init(void)
{
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]
  /* add user code begin irtmr_init 0 */

  /* add user code end irtmr_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin irtmr_init 1 */

  /* add user code end irtmr_init 1 */

[#ir_out pin]
  /* configure the IR_OUT pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_13;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE13, GPIO_MUX_1);
[/#ir_out pin]
  /* modulate the carrier of tmr16 with the envelope source */
  scfg_infrared_config(SCFG_IR_SOURCE_TMR17, SCFG_IR_POLARITY_NO_AFFECTED);

  /* add user code begin irtmr_init 2 */

  /* add user code end irtmr_init 2 */
}
[/#irtmr function]

[#pwc function]
/**
  * @brief  init pwc function
  * @param  none
  * @retval none
  */
void pf_pwc_init(void)
{
[#exint_init_struct]
  exint_init_type exint_init_struct;
[/#exint_init_struct]
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]

  /* add user code begin pwc_init 0 */

  /* add user code end pwc_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin pwc_init 1 */

  /* add user code end pwc_init 1 */

[#wkup1 pin]
  /* configure the WKUP1 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_INPUT;
  gpio_init_struct.gpio_pins = GPIO_PINS_0;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
[/#wkup1 pin]
[#wkup2 pin]
  /* configure the WKUP2 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_INPUT;
  gpio_init_struct.gpio_pins = GPIO_PINS_13;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOC, &gpio_init_struct);
[/#wkup2 pin]
[#wkup4 pin]
  /* configure the WKUP4 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_INPUT;
  gpio_init_struct.gpio_pins = GPIO_PINS_2;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
[/#wkup4 pin]
[#wkup6 pin]
  /* configure the WKUP6 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_INPUT;
  gpio_init_struct.gpio_pins = GPIO_PINS_5;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
[/#wkup6 pin]
[#wkup7 pin]
  /* configure the WKUP7 pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_INPUT;
  gpio_init_struct.gpio_pins = GPIO_PINS_15;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
[/#wkup7 pin]
[#voltage_monitor_enable]
  /* configure the power voltage monitor */
[#pvm_level]
  pwc_pvm_level_select(PWC_PVM_VOLTAGE_2V9);
[/#pvm_level]
[#pvm_special]
  /* the monitor output reaches the PVM interrupt through exint line 16 */
  exint_default_para_init(&exint_init_struct);
  exint_init_struct.line_enable = TRUE;
  exint_init_struct.line_mode = EXINT_LINE_INTERRUPUT;
  exint_init_struct.line_select = EXINT_LINE_16;
  exint_init_struct.line_polarity = EXINT_TRIGGER_BOTH_EDGE;
  exint_init(&exint_init_struct);
[/#pvm_special]
  pwc_power_voltage_monitor_enable(TRUE);
[/#voltage_monitor_enable]
[#wakeup_pin]
  pwc_wakeup_pin_enable(PWC_WAKEUP_PIN_1, TRUE);
[/#wakeup_pin]
[#interrupt remarks]
  /**
   * Users need to configure PVM interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding PVM interrupt.
   *     --exint_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void PVM_IRQHandler(void)
   */
[/#interrupt remarks]
  /* add user code begin pwc_init 2 */

  /* add user code end pwc_init 2 */
}
[/#pwc function]

[#spi1 function]
/**
  * @brief  init spi1 function
  * @param  none
  * @retval none
  */
void pf_spi1_init(void)
{
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]
  spi_init_type spi_init_struct;

  /* add user code begin spi1_init 0 */

  /* add user code end spi1_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin spi1_init 1 */

  /* add user code end spi1_init 1 */

[#sck pin]
  /* configure the SCK pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_5;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE5, GPIO_MUX_0);
[/#sck pin]
[#miso pin]
  /* configure the MISO pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_6;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE6, GPIO_MUX_0);
[/#miso pin]
[#mosi pin]
  /* configure the MOSI pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_7;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE7, GPIO_MUX_0);
[/#mosi pin]
[#cs pin]
  /* configure the CS pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_4;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE4, GPIO_MUX_0);
[/#cs pin]
  /* configure param */
  spi_default_para_init(&spi_init_struct);
  spi_init_struct.transmission_mode = SPI_TRANSMIT_FULL_DUPLEX;
  spi_init_struct.master_slave_mode = SPI_MODE_MASTER;
  spi_init_struct.mclk_freq_division = SPI_MCLK_DIV_2;
  spi_init_struct.first_bit_transmission = SPI_FIRST_BIT_MSB;
  spi_init_struct.frame_bit_num = SPI_FRAME_8BIT;
  spi_init_struct.clock_polarity = SPI_CLOCK_POLARITY_LOW;
  spi_init_struct.clock_phase = SPI_CLOCK_PHASE_1EDGE;
  spi_init_struct.cs_mode_selection = SPI_CS_SOFTWARE_MODE;
  spi_init(SPI1, &spi_init_struct);

[#software cs slave]
  /* select the slave by the internal cs level */
  spi_software_cs_internal_level_set(SPI1, SPI_SWCS_INTERNAL_LEVEL_LOW);
[/#software cs slave]
[#hardware cs master]
  spi_hardware_cs_output_enable(SPI1, TRUE);
[/#hardware cs master]
[#crc enable]
  spi_crc_polynomial_set(SPI1, 7);
  spi_crc_enable(SPI1, TRUE);
[/#crc enable]
[#interface protocol]
  spi_ti_mode_enable(SPI1, TRUE);
[/#interface protocol]
[#dma transmitter]
  spi_i2s_dma_transmitter_enable(SPI1, TRUE);
[/#dma transmitter]
[#dma receiver]
  spi_i2s_dma_receiver_enable(SPI1, TRUE);
[/#dma receiver]
[#interrupt remarks]
  /**
   * Users need to configure SPI1 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding SPI1 interrupt.
   *     --spi_i2s_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void SPI1_IRQHandler(void)
   */
[/#interrupt remarks]
  spi_enable(SPI1, TRUE);

  /* add user code begin spi1_init 2 */

  /* add user code end spi1_init 2 */
}
[/#spi1 function]

[#spi2 function]
/**
  * @brief  init spi2 function
  * @param  none
  * @retval none
  */
void pf_spi2_init(void)
{
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]
  spi_init_type spi_init_struct;

  /* add user code begin spi2_init 0 */

  /* add user code end spi2_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin spi2_init 1 */

  /* add user code end spi2_init 1 */

[#sck pin]
  /* configure the SCK pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_10;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE10, GPIO_MUX_5);
[/#sck pin]
[#miso pin]
  /* configure the MISO pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_14;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE14, GPIO_MUX_0);
[/#miso pin]
[#mosi pin]
  /* configure the MOSI pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_15;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE15, GPIO_MUX_0);
[/#mosi pin]
[#cs pin]
  /* configure the CS pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_12;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE12, GPIO_MUX_0);
[/#cs pin]
  /* configure param */
  spi_default_para_init(&spi_init_struct);
  spi_init_struct.transmission_mode = SPI_TRANSMIT_FULL_DUPLEX;
  spi_init_struct.master_slave_mode = SPI_MODE_MASTER;
  spi_init_struct.mclk_freq_division = SPI_MCLK_DIV_2;
  spi_init_struct.first_bit_transmission = SPI_FIRST_BIT_MSB;
  spi_init_struct.frame_bit_num = SPI_FRAME_8BIT;
  spi_init_struct.clock_polarity = SPI_CLOCK_POLARITY_LOW;
  spi_init_struct.clock_phase = SPI_CLOCK_PHASE_1EDGE;
  spi_init_struct.cs_mode_selection = SPI_CS_SOFTWARE_MODE;
  spi_init(SPI2, &spi_init_struct);

[#software cs slave]
  /* select the slave by the internal cs level */
  spi_software_cs_internal_level_set(SPI2, SPI_SWCS_INTERNAL_LEVEL_LOW);
[/#software cs slave]
[#hardware cs master]
  spi_hardware_cs_output_enable(SPI2, TRUE);
[/#hardware cs master]
[#crc enable]
  spi_crc_polynomial_set(SPI2, 7);
  spi_crc_enable(SPI2, TRUE);
[/#crc enable]
[#interface protocol]
  spi_ti_mode_enable(SPI2, TRUE);
[/#interface protocol]
[#dma transmitter]
  spi_i2s_dma_transmitter_enable(SPI2, TRUE);
[/#dma transmitter]
[#dma receiver]
  spi_i2s_dma_receiver_enable(SPI2, TRUE);
[/#dma receiver]
[#interrupt remarks]
  /**
   * Users need to configure SPI2 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding SPI2 interrupt.
   *     --spi_i2s_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void SPI2_IRQHandler(void)
   */
[/#interrupt remarks]
  spi_enable(SPI2, TRUE);

  /* add user code begin spi2_init 2 */

  /* add user code end spi2_init 2 */
}
[/#spi2 function]

[#tmr1 function]
/**
  * @brief  init tmr1 function
  * @param  none
  * @retval none
  */
void pf_tmr1_init(void)
{
[#tmr_input_struct]
  tmr_input_config_type tmr_input_struct;
[/#tmr_input_struct]
[#tmr_output_struct]
  tmr_output_config_type tmr_output_struct;
[/#tmr_output_struct]
[#tmr_brkdt_struct]
  tmr_brkdt_config_type tmr_brkdt_struct;
[/#tmr_brkdt_struct]
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]

  /* add user code begin tmr1_init 0 */

  /* add user code end tmr1_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin tmr1_init 1 */

  /* add user code end tmr1_init 1 */

[#ch1 pin]
  /* configure the CH1 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_8;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE8, GPIO_MUX_2);
[/#ch1 pin]
[#ch1c pin]
  /* configure the CH1C pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_7;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE7, GPIO_MUX_2);
[/#ch1c pin]
[#ch2 pin]
  /* configure the CH2 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_9;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE9, GPIO_MUX_2);
[/#ch2 pin]
[#ch2c pin]
  /* configure the CH2C pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_0;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE0, GPIO_MUX_2);
[/#ch2c pin]
[#ch3 pin]
  /* configure the CH3 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_10;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE10, GPIO_MUX_2);
[/#ch3 pin]
[#ch3c pin]
  /* configure the CH3C pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_1;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE1, GPIO_MUX_2);
[/#ch3c pin]
[#ch4 pin]
  /* configure the CH4 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_11;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE11, GPIO_MUX_2);
[/#ch4 pin]
[#ext pin]
  /* configure the EXT pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_12;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE12, GPIO_MUX_2);
[/#ext pin]
[#brk pin]
  /* configure the BRK pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_6;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE6, GPIO_MUX_2);
[/#brk pin]
  /* configure counter settings */
  tmr_base_init(TMR1, 65535, 0);
  tmr_cnt_dir_set(TMR1, TMR_COUNT_UP);
  tmr_clock_source_div_set(TMR1, TMR_CLOCK_DIV1);
  tmr_repetition_counter_set(TMR1, 0);
  tmr_period_buffer_enable(TMR1, FALSE);

[#external clock mode b settings]
  /* count the edges of the ext pin (external clock mode b) */
  tmr_external_clock_mode2_config(TMR1, TMR_ES_FREQUENCY_DIV_1, TMR_ET_NON_INVERTED, 0);
[/#external clock mode b settings]
[#sub-mode input]
  /* configure the trigger input of the subordinate mode */
[#sub-mode input ext]
  tmr_external_clock_config(TMR1, TMR_ES_FREQUENCY_DIV_1, TMR_ET_NON_INVERTED, 0);
[/#sub-mode input ext]
[#sub-mode input c1inc]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR1, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#sub-mode input c1inc]
[#sub-mode input c1df1]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR1, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#sub-mode input c1df1]
[#sub-mode input c2df2]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_2;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR1, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#sub-mode input c2df2]
  tmr_trigger_input_select(TMR1, TMR_SUB_INPUT_SEL_IS0);
[/#sub-mode input]
[#sub-mode]
  tmr_sub_mode_select(TMR1, TMR_SUB_RESET_MODE);
[/#sub-mode]
[#enable xor]
  tmr_channel1_input_xor_enable(TMR1, TRUE);
[/#enable xor]
[#enable one cycle mode]
  tmr_one_cycle_mode_enable(TMR1, TRUE);
[/#enable one cycle mode]
[#enable channel control bit refresh]
  tmr_channel_control_refresh_enable(TMR1, TRUE);
[/#enable channel control bit refresh]
[#enable channel buffer]
  tmr_channel_buffer_enable(TMR1, TRUE);
[/#enable channel buffer]
[#overflow event disable]
  tmr_overflow_event_disable(TMR1, TRUE);
[/#overflow event disable]
[#overflow request source]
  tmr_overflow_request_source_set(TMR1, TRUE);
[/#overflow request source]
[#channel 1 input settings]
  /* configure channel 1 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR1, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 1 input settings]
[#channel 1 output settings]
  /* configure channel 1 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.occ_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.occ_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_struct.occ_idle_state = FALSE;
  tmr_output_channel_config(TMR1, TMR_SELECT_CHANNEL_1, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR1, TMR_SELECT_CHANNEL_1, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR1, TMR_SELECT_CHANNEL_1, 0);
  tmr_output_channel_buffer_enable(TMR1, TMR_SELECT_CHANNEL_1, FALSE);
[/#channel 1 output settings]
[#channel 2 input settings]
  /* configure channel 2 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_2;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR1, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 2 input settings]
[#channel 2 output settings]
  /* configure channel 2 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.occ_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.occ_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_struct.occ_idle_state = FALSE;
  tmr_output_channel_config(TMR1, TMR_SELECT_CHANNEL_2, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR1, TMR_SELECT_CHANNEL_2, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR1, TMR_SELECT_CHANNEL_2, 0);
  tmr_output_channel_buffer_enable(TMR1, TMR_SELECT_CHANNEL_2, FALSE);
[/#channel 2 output settings]
[#channel 3 input settings]
  /* configure channel 3 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_3;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR1, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 3 input settings]
[#channel 3 output settings]
  /* configure channel 3 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.occ_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.occ_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_struct.occ_idle_state = FALSE;
  tmr_output_channel_config(TMR1, TMR_SELECT_CHANNEL_3, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR1, TMR_SELECT_CHANNEL_3, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR1, TMR_SELECT_CHANNEL_3, 0);
  tmr_output_channel_buffer_enable(TMR1, TMR_SELECT_CHANNEL_3, FALSE);
[/#channel 3 output settings]
[#channel 4 input settings]
  /* configure channel 4 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_4;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR1, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 4 input settings]
[#channel 4 output settings]
  /* configure channel 4 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_channel_config(TMR1, TMR_SELECT_CHANNEL_4, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR1, TMR_SELECT_CHANNEL_4, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR1, TMR_SELECT_CHANNEL_4, 0);
  tmr_output_channel_buffer_enable(TMR1, TMR_SELECT_CHANNEL_4, FALSE);
[/#channel 4 output settings]
[#break and dead-time settings]
  /* configure the break input and the dead time */
  tmr_brkdt_default_para_init(&tmr_brkdt_struct);
  tmr_brkdt_struct.brk_enable = FALSE;
  tmr_brkdt_struct.auto_output_enable = FALSE;
  tmr_brkdt_struct.brk_polarity = TMR_BRK_INPUT_ACTIVE_LOW;
  tmr_brkdt_struct.fcsoen_state = FALSE;
  tmr_brkdt_struct.fcsodis_state = FALSE;
  tmr_brkdt_struct.wp_level = TMR_WP_OFF;
  tmr_brkdt_struct.deadtime = 0;
  tmr_brkdt_config(TMR1, &tmr_brkdt_struct);
[/#break and dead-time settings]
[#encoder mode]
  /* configure the encoder interface on channels 1 and 2 */
[#ch1]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR1, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#ch1]
[#ch2]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_2;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR1, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#ch2]
  tmr_encoder_mode_config(TMR1, TMR_ENCODER_MODE_A, TMR_INPUT_RISING_EDGE, TMR_INPUT_RISING_EDGE);
[/#encoder mode]
[#pwm input with ch1 ch2]
  /* measure a pwm input: one channel captures the period, the other the duty */
  tmr_input_config_type tmr_ic_init_struct;
[#ch1]
  tmr_ic_init_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_ic_init_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_ic_init_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_ic_init_struct.input_filter_value = 0;
  tmr_pwm_input_config(TMR1, &tmr_ic_init_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#ch1]
[#ch2]
  tmr_ic_init_struct.input_channel_select = TMR_SELECT_CHANNEL_2;
  tmr_ic_init_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_ic_init_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_ic_init_struct.input_filter_value = 0;
  tmr_pwm_input_config(TMR1, &tmr_ic_init_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#ch2]
  tmr_trigger_input_select(TMR1, TMR_SUB_INPUT_SEL_C1DF1);
  tmr_sub_mode_select(TMR1, TMR_SUB_RESET_MODE);
[/#pwm input with ch1 ch2]
[#hall mode]
  /* hall sensor interface: the xor of channels 1 to 3 resets the counter
     and channel 2 delays the commutation */
  tmr_channel1_input_xor_enable(TMR1, TRUE);
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_STI;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR1, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
  tmr_trigger_input_select(TMR1, TMR_SUB_INPUT_SEL_C1INC);
  tmr_sub_mode_select(TMR1, TMR_SUB_RESET_MODE);
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_PWM_MODE_B;
  tmr_output_struct.oc_output_state = TRUE;
  tmr_output_channel_config(TMR1, TMR_SELECT_CHANNEL_2, &tmr_output_struct);
  tmr_channel_value_set(TMR1, TMR_SELECT_CHANNEL_2, 0);
[/#hall mode]
[#dma_overflow]
  tmr_dma_request_enable(TMR1, TMR_OVERFLOW_DMA_REQUEST, TRUE);
[/#dma_overflow]
[#dma_c1]
  tmr_dma_request_enable(TMR1, TMR_C1_DMA_REQUEST, TRUE);
[/#dma_c1]
[#dma_c2]
  tmr_dma_request_enable(TMR1, TMR_C2_DMA_REQUEST, TRUE);
[/#dma_c2]
[#dma_c3]
  tmr_dma_request_enable(TMR1, TMR_C3_DMA_REQUEST, TRUE);
[/#dma_c3]
[#dma_c4]
  tmr_dma_request_enable(TMR1, TMR_C4_DMA_REQUEST, TRUE);
[/#dma_c4]
[#dma_hall]
  tmr_dma_request_enable(TMR1, TMR_HALL_DMA_REQUEST, TRUE);
[/#dma_hall]
[#dma_trigger]
  tmr_dma_request_enable(TMR1, TMR_TRIGGER_DMA_REQUEST, TRUE);
[/#dma_trigger]
[#interrupt remarks]
  /**
   * Users need to configure TMR1 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding TMR1 interrupt.
   *     --tmr_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void TMR1_BRK_OVF_TRG_HALL_IRQHandler(void)
   */
[/#interrupt remarks]
[#tmr_output_enable]
  tmr_output_enable(TMR1, TRUE);
[/#tmr_output_enable]
  tmr_sub_sync_mode_set(TMR1, FALSE);
  tmr_primary_mode_select(TMR1, TMR_PRIMARY_SEL_RESET);

[#tmr_counter_enable]
  /* enable the counter */
  tmr_counter_enable(TMR1, TRUE);
[/#tmr_counter_enable]
  /* add user code begin tmr1_init 2 */

  /* add user code end tmr1_init 2 */
}
[/#tmr1 function]

[#tmr3 function]
/**
  * @brief  init tmr3 function
  * @param  none
  * @retval none
  */
void pf_tmr3_init(void)
{
[#tmr_input_struct]
  tmr_input_config_type tmr_input_struct;
[/#tmr_input_struct]
[#tmr_output_struct]
  tmr_output_config_type tmr_output_struct;
[/#tmr_output_struct]
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]

  /* add user code begin tmr3_init 0 */

  /* add user code end tmr3_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin tmr3_init 1 */

  /* add user code end tmr3_init 1 */

[#ch1 pin]
  /* configure the CH1 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_6;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE6, GPIO_MUX_1);
[/#ch1 pin]
[#ch2 pin]
  /* configure the CH2 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_7;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE7, GPIO_MUX_1);
[/#ch2 pin]
[#ch3 pin]
  /* configure the CH3 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_0;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE0, GPIO_MUX_1);
[/#ch3 pin]
[#ch4 pin]
  /* configure the CH4 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_1;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE1, GPIO_MUX_1);
[/#ch4 pin]
[#ext pin]
  /* configure the EXT pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_2;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE2, GPIO_MUX_1);
[/#ext pin]
  /* configure counter settings */
  tmr_base_init(TMR3, 65535, 0);
  tmr_cnt_dir_set(TMR3, TMR_COUNT_UP);
  tmr_clock_source_div_set(TMR3, TMR_CLOCK_DIV1);
  tmr_period_buffer_enable(TMR3, FALSE);

[#external clock mode b settings]
  /* count the edges of the ext pin (external clock mode b) */
  tmr_external_clock_mode2_config(TMR3, TMR_ES_FREQUENCY_DIV_1, TMR_ET_NON_INVERTED, 0);
[/#external clock mode b settings]
[#sub-mode input]
  /* configure the trigger input of the subordinate mode */
[#sub-mode input ext]
  tmr_external_clock_config(TMR3, TMR_ES_FREQUENCY_DIV_1, TMR_ET_NON_INVERTED, 0);
[/#sub-mode input ext]
[#sub-mode input c1inc]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR3, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#sub-mode input c1inc]
[#sub-mode input c1df1]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR3, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#sub-mode input c1df1]
[#sub-mode input c2df2]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_2;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR3, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#sub-mode input c2df2]
  tmr_trigger_input_select(TMR3, TMR_SUB_INPUT_SEL_IS0);
[/#sub-mode input]
[#sub-mode]
  tmr_sub_mode_select(TMR3, TMR_SUB_RESET_MODE);
[/#sub-mode]
[#enable xor]
  tmr_channel1_input_xor_enable(TMR3, TRUE);
[/#enable xor]
[#enable one cycle mode]
  tmr_one_cycle_mode_enable(TMR3, TRUE);
[/#enable one cycle mode]
[#enable channel control bit refresh]
  tmr_channel_control_refresh_enable(TMR3, TRUE);
[/#enable channel control bit refresh]
[#enable channel buffer]
  tmr_channel_buffer_enable(TMR3, TRUE);
[/#enable channel buffer]
[#overflow event disable]
  tmr_overflow_event_disable(TMR3, TRUE);
[/#overflow event disable]
[#overflow request source]
  tmr_overflow_request_source_set(TMR3, TRUE);
[/#overflow request source]
[#channel 1 input settings]
  /* configure channel 1 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR3, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 1 input settings]
[#channel 1 output settings]
  /* configure channel 1 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_channel_config(TMR3, TMR_SELECT_CHANNEL_1, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR3, TMR_SELECT_CHANNEL_1, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR3, TMR_SELECT_CHANNEL_1, 0);
  tmr_output_channel_buffer_enable(TMR3, TMR_SELECT_CHANNEL_1, FALSE);
[/#channel 1 output settings]
[#channel 2 input settings]
  /* configure channel 2 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_2;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR3, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 2 input settings]
[#channel 2 output settings]
  /* configure channel 2 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_channel_config(TMR3, TMR_SELECT_CHANNEL_2, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR3, TMR_SELECT_CHANNEL_2, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR3, TMR_SELECT_CHANNEL_2, 0);
  tmr_output_channel_buffer_enable(TMR3, TMR_SELECT_CHANNEL_2, FALSE);
[/#channel 2 output settings]
[#channel 3 input settings]
  /* configure channel 3 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_3;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR3, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 3 input settings]
[#channel 3 output settings]
  /* configure channel 3 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_channel_config(TMR3, TMR_SELECT_CHANNEL_3, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR3, TMR_SELECT_CHANNEL_3, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR3, TMR_SELECT_CHANNEL_3, 0);
  tmr_output_channel_buffer_enable(TMR3, TMR_SELECT_CHANNEL_3, FALSE);
[/#channel 3 output settings]
[#channel 4 input settings]
  /* configure channel 4 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_4;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR3, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 4 input settings]
[#channel 4 output settings]
  /* configure channel 4 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_channel_config(TMR3, TMR_SELECT_CHANNEL_4, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR3, TMR_SELECT_CHANNEL_4, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR3, TMR_SELECT_CHANNEL_4, 0);
  tmr_output_channel_buffer_enable(TMR3, TMR_SELECT_CHANNEL_4, FALSE);
[/#channel 4 output settings]
[#encoder mode]
  /* configure the encoder interface on channels 1 and 2 */
[#ch1]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR3, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#ch1]
[#ch2]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_2;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR3, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#ch2]
  tmr_encoder_mode_config(TMR3, TMR_ENCODER_MODE_A, TMR_INPUT_RISING_EDGE, TMR_INPUT_RISING_EDGE);
[/#encoder mode]
[#pwm input with ch1 ch2]
  /* measure a pwm input: one channel captures the period, the other the duty */
  tmr_input_config_type tmr_ic_init_struct;
[#ch1]
  tmr_ic_init_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_ic_init_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_ic_init_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_ic_init_struct.input_filter_value = 0;
  tmr_pwm_input_config(TMR3, &tmr_ic_init_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#ch1]
[#ch2]
  tmr_ic_init_struct.input_channel_select = TMR_SELECT_CHANNEL_2;
  tmr_ic_init_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_ic_init_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_ic_init_struct.input_filter_value = 0;
  tmr_pwm_input_config(TMR3, &tmr_ic_init_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#ch2]
  tmr_trigger_input_select(TMR3, TMR_SUB_INPUT_SEL_C1DF1);
  tmr_sub_mode_select(TMR3, TMR_SUB_RESET_MODE);
[/#pwm input with ch1 ch2]
[#hall mode]
  /* hall sensor interface: the xor of channels 1 to 3 resets the counter
     and channel 2 delays the commutation */
  tmr_channel1_input_xor_enable(TMR3, TRUE);
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_STI;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR3, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
  tmr_trigger_input_select(TMR3, TMR_SUB_INPUT_SEL_C1INC);
  tmr_sub_mode_select(TMR3, TMR_SUB_RESET_MODE);
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_PWM_MODE_B;
  tmr_output_struct.oc_output_state = TRUE;
  tmr_output_channel_config(TMR3, TMR_SELECT_CHANNEL_2, &tmr_output_struct);
  tmr_channel_value_set(TMR3, TMR_SELECT_CHANNEL_2, 0);
[/#hall mode]
[#dma_overflow]
  tmr_dma_request_enable(TMR3, TMR_OVERFLOW_DMA_REQUEST, TRUE);
[/#dma_overflow]
[#dma_c1]
  tmr_dma_request_enable(TMR3, TMR_C1_DMA_REQUEST, TRUE);
[/#dma_c1]
[#dma_c3]
  tmr_dma_request_enable(TMR3, TMR_C3_DMA_REQUEST, TRUE);
[/#dma_c3]
[#dma_c4]
  tmr_dma_request_enable(TMR3, TMR_C4_DMA_REQUEST, TRUE);
[/#dma_c4]
[#dma_trigger]
  tmr_dma_request_enable(TMR3, TMR_TRIGGER_DMA_REQUEST, TRUE);
[/#dma_trigger]
[#interrupt remarks]
  /**
   * Users need to configure TMR3 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding TMR3 interrupt.
   *     --tmr_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void TMR3_GLOBAL_IRQHandler(void)
   */
[/#interrupt remarks]
  tmr_sub_sync_mode_set(TMR3, FALSE);
  tmr_primary_mode_select(TMR3, TMR_PRIMARY_SEL_RESET);

[#tmr_counter_enable]
  /* enable the counter */
  tmr_counter_enable(TMR3, TRUE);
[/#tmr_counter_enable]
  /* add user code begin tmr3_init 2 */

  /* add user code end tmr3_init 2 */
}
[/#tmr3 function]

[#tmr6 function]
/**
  * @brief  init tmr6 function
  * @param  none
  * @retval none
  */
void pf_tmr6_init(void)
{

  /* add user code begin tmr6_init 0 */

  /* add user code end tmr6_init 0 */

  /* add user code begin tmr6_init 1 */

  /* add user code end tmr6_init 1 */

  /* configure counter settings */
  tmr_base_init(TMR6, 65535, 0);
  tmr_clock_source_div_set(TMR6, TMR_CLOCK_DIV1);
  tmr_period_buffer_enable(TMR6, FALSE);

[#enable xor]
  tmr_channel1_input_xor_enable(TMR6, TRUE);
[/#enable xor]
[#enable one cycle mode]
  tmr_one_cycle_mode_enable(TMR6, TRUE);
[/#enable one cycle mode]
[#enable channel control bit refresh]
  tmr_channel_control_refresh_enable(TMR6, TRUE);
[/#enable channel control bit refresh]
[#enable channel buffer]
  tmr_channel_buffer_enable(TMR6, TRUE);
[/#enable channel buffer]
[#overflow event disable]
  tmr_overflow_event_disable(TMR6, TRUE);
[/#overflow event disable]
[#overflow request source]
  tmr_overflow_request_source_set(TMR6, TRUE);
[/#overflow request source]
[#dma_overflow]
  tmr_dma_request_enable(TMR6, TMR_OVERFLOW_DMA_REQUEST, TRUE);
[/#dma_overflow]
[#interrupt remarks]
  /**
   * Users need to configure TMR6 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding TMR6 interrupt.
   *     --tmr_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void TMR6_GLOBAL_IRQHandler(void)
   */
[/#interrupt remarks]
  tmr_sub_sync_mode_set(TMR6, FALSE);
  tmr_primary_mode_select(TMR6, TMR_PRIMARY_SEL_RESET);

[#tmr_counter_enable]
  /* enable the counter */
  tmr_counter_enable(TMR6, TRUE);
[/#tmr_counter_enable]
  /* add user code begin tmr6_init 2 */

  /* add user code end tmr6_init 2 */
}
[/#tmr6 function]

[#tmr14 function]
/**
  * @brief  init tmr14 function
  * @param  none
  * @retval none
  */
void pf_tmr14_init(void)
{
[#tmr_input_struct]
  tmr_input_config_type tmr_input_struct;
[/#tmr_input_struct]
[#tmr_output_struct]
  tmr_output_config_type tmr_output_struct;
[/#tmr_output_struct]
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]

  /* add user code begin tmr14_init 0 */

  /* add user code end tmr14_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin tmr14_init 1 */

  /* add user code end tmr14_init 1 */

[#ch1 pin]
  /* configure the CH1 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_4;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE4, GPIO_MUX_4);
[/#ch1 pin]
  /* configure counter settings */
  tmr_base_init(TMR14, 65535, 0);
  tmr_clock_source_div_set(TMR14, TMR_CLOCK_DIV1);
  tmr_period_buffer_enable(TMR14, FALSE);

[#enable xor]
  tmr_channel1_input_xor_enable(TMR14, TRUE);
[/#enable xor]
[#enable one cycle mode]
  tmr_one_cycle_mode_enable(TMR14, TRUE);
[/#enable one cycle mode]
[#enable channel control bit refresh]
  tmr_channel_control_refresh_enable(TMR14, TRUE);
[/#enable channel control bit refresh]
[#enable channel buffer]
  tmr_channel_buffer_enable(TMR14, TRUE);
[/#enable channel buffer]
[#overflow event disable]
  tmr_overflow_event_disable(TMR14, TRUE);
[/#overflow event disable]
[#overflow request source]
  tmr_overflow_request_source_set(TMR14, TRUE);
[/#overflow request source]
[#channel 1 input settings]
  /* configure channel 1 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
[#channel 1 input remap]
  tmr_iremap_config(TMR14, TMR14_GPIO);
[/#channel 1 input remap]
  tmr_input_channel_init(TMR14, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 1 input settings]
[#channel 1 output settings]
  /* configure channel 1 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_channel_config(TMR14, TMR_SELECT_CHANNEL_1, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR14, TMR_SELECT_CHANNEL_1, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR14, TMR_SELECT_CHANNEL_1, 0);
  tmr_output_channel_buffer_enable(TMR14, TMR_SELECT_CHANNEL_1, FALSE);
[/#channel 1 output settings]
[#interrupt remarks]
  /**
   * Users need to configure TMR14 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding TMR14 interrupt.
   *     --tmr_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void TMR14_GLOBAL_IRQHandler(void)
   */
[/#interrupt remarks]
  tmr_sub_sync_mode_set(TMR14, FALSE);
  tmr_primary_mode_select(TMR14, TMR_PRIMARY_SEL_RESET);

[#tmr_counter_enable]
  /* enable the counter */
  tmr_counter_enable(TMR14, TRUE);
[/#tmr_counter_enable]
  /* add user code begin tmr14_init 2 */

  /* add user code end tmr14_init 2 */
}
[/#tmr14 function]

[#tmr15 function]
/**
  * @brief  init tmr15 function
  * @param  none
  * @retval none
  */
void pf_tmr15_init(void)
{
[#tmr_input_struct]
  tmr_input_config_type tmr_input_struct;
[/#tmr_input_struct]
[#tmr_output_struct]
  tmr_output_config_type tmr_output_struct;
[/#tmr_output_struct]
[#tmr_brkdt_struct]
  tmr_brkdt_config_type tmr_brkdt_struct;
[/#tmr_brkdt_struct]
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]

  /* add user code begin tmr15_init 0 */

  /* add user code end tmr15_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin tmr15_init 1 */

  /* add user code end tmr15_init 1 */

[#ch1 pin]
  /* configure the CH1 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_2;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE2, GPIO_MUX_0);
[/#ch1 pin]
[#ch1c pin]
  /* configure the CH1C pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_1;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE1, GPIO_MUX_5);
[/#ch1c pin]
[#ch2 pin]
  /* configure the CH2 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_3;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE3, GPIO_MUX_0);
[/#ch2 pin]
[#brk pin]
  /* configure the BRK pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_9;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE9, GPIO_MUX_0);
[/#brk pin]
  /* configure counter settings */
  tmr_base_init(TMR15, 65535, 0);
  tmr_cnt_dir_set(TMR15, TMR_COUNT_UP);
  tmr_clock_source_div_set(TMR15, TMR_CLOCK_DIV1);
  tmr_repetition_counter_set(TMR15, 0);
  tmr_period_buffer_enable(TMR15, FALSE);

[#sub-mode input]
  /* configure the trigger input of the subordinate mode */
[#sub-mode input c1inc]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR15, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#sub-mode input c1inc]
[#sub-mode input c1df1]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR15, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#sub-mode input c1df1]
[#sub-mode input c2df2]
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_2;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR15, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#sub-mode input c2df2]
  tmr_trigger_input_select(TMR15, TMR_SUB_INPUT_SEL_IS0);
[/#sub-mode input]
[#sub-mode]
  tmr_sub_mode_select(TMR15, TMR_SUB_RESET_MODE);
[/#sub-mode]
[#enable xor]
  tmr_channel1_input_xor_enable(TMR15, TRUE);
[/#enable xor]
[#enable one cycle mode]
  tmr_one_cycle_mode_enable(TMR15, TRUE);
[/#enable one cycle mode]
[#enable channel control bit refresh]
  tmr_channel_control_refresh_enable(TMR15, TRUE);
[/#enable channel control bit refresh]
[#enable channel buffer]
  tmr_channel_buffer_enable(TMR15, TRUE);
[/#enable channel buffer]
[#overflow event disable]
  tmr_overflow_event_disable(TMR15, TRUE);
[/#overflow event disable]
[#overflow request source]
  tmr_overflow_request_source_set(TMR15, TRUE);
[/#overflow request source]
[#channel 1 input settings]
  /* configure channel 1 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR15, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 1 input settings]
[#channel 1 output settings]
  /* configure channel 1 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.occ_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.occ_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_struct.occ_idle_state = FALSE;
  tmr_output_channel_config(TMR15, TMR_SELECT_CHANNEL_1, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR15, TMR_SELECT_CHANNEL_1, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR15, TMR_SELECT_CHANNEL_1, 0);
  tmr_output_channel_buffer_enable(TMR15, TMR_SELECT_CHANNEL_1, FALSE);
[/#channel 1 output settings]
[#channel 2 input settings]
  /* configure channel 2 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_2;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR15, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 2 input settings]
[#channel 2 output settings]
  /* configure channel 2 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_channel_config(TMR15, TMR_SELECT_CHANNEL_2, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR15, TMR_SELECT_CHANNEL_2, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR15, TMR_SELECT_CHANNEL_2, 0);
  tmr_output_channel_buffer_enable(TMR15, TMR_SELECT_CHANNEL_2, FALSE);
[/#channel 2 output settings]
[#break and dead-time settings]
  /* configure the break input and the dead time */
  tmr_brkdt_default_para_init(&tmr_brkdt_struct);
  tmr_brkdt_struct.brk_enable = FALSE;
  tmr_brkdt_struct.auto_output_enable = FALSE;
  tmr_brkdt_struct.brk_polarity = TMR_BRK_INPUT_ACTIVE_LOW;
  tmr_brkdt_struct.fcsoen_state = FALSE;
  tmr_brkdt_struct.fcsodis_state = FALSE;
  tmr_brkdt_struct.wp_level = TMR_WP_OFF;
  tmr_brkdt_struct.deadtime = 0;
  tmr_brkdt_config(TMR15, &tmr_brkdt_struct);
[/#break and dead-time settings]
[#pwm input with ch1 ch2]
  /* measure a pwm input: one channel captures the period, the other the duty */
  tmr_input_config_type tmr_ic_init_struct;
[#ch1]
  tmr_ic_init_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_ic_init_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_ic_init_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_ic_init_struct.input_filter_value = 0;
  tmr_pwm_input_config(TMR15, &tmr_ic_init_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#ch1]
[#ch2]
  tmr_ic_init_struct.input_channel_select = TMR_SELECT_CHANNEL_2;
  tmr_ic_init_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_ic_init_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_ic_init_struct.input_filter_value = 0;
  tmr_pwm_input_config(TMR15, &tmr_ic_init_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#ch2]
  tmr_trigger_input_select(TMR15, TMR_SUB_INPUT_SEL_C1DF1);
  tmr_sub_mode_select(TMR15, TMR_SUB_RESET_MODE);
[/#pwm input with ch1 ch2]
[#dma_overflow]
  tmr_dma_request_enable(TMR15, TMR_OVERFLOW_DMA_REQUEST, TRUE);
[/#dma_overflow]
[#dma_c1]
  tmr_dma_request_enable(TMR15, TMR_C1_DMA_REQUEST, TRUE);
[/#dma_c1]
[#dma_hall]
  tmr_dma_request_enable(TMR15, TMR_HALL_DMA_REQUEST, TRUE);
[/#dma_hall]
[#dma_trigger]
  tmr_dma_request_enable(TMR15, TMR_TRIGGER_DMA_REQUEST, TRUE);
[/#dma_trigger]
[#interrupt remarks]
  /**
   * Users need to configure TMR15 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding TMR15 interrupt.
   *     --tmr_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void TMR15_GLOBAL_IRQHandler(void)
   */
[/#interrupt remarks]
[#tmr_output_enable]
  tmr_output_enable(TMR15, TRUE);
[/#tmr_output_enable]
  tmr_sub_sync_mode_set(TMR15, FALSE);
  tmr_primary_mode_select(TMR15, TMR_PRIMARY_SEL_RESET);

[#tmr_counter_enable]
  /* enable the counter */
  tmr_counter_enable(TMR15, TRUE);
[/#tmr_counter_enable]
  /* add user code begin tmr15_init 2 */

  /* add user code end tmr15_init 2 */
}
[/#tmr15 function]

[#tmr16 function]
/**
  * @brief  init tmr16 function
  * @param  none
  * @retval none
  */
void pf_tmr16_init(void)
{
[#tmr_input_struct]
  tmr_input_config_type tmr_input_struct;
[/#tmr_input_struct]
[#tmr_output_struct]
  tmr_output_config_type tmr_output_struct;
[/#tmr_output_struct]
[#tmr_brkdt_struct]
  tmr_brkdt_config_type tmr_brkdt_struct;
[/#tmr_brkdt_struct]
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]

  /* add user code begin tmr16_init 0 */

  /* add user code end tmr16_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin tmr16_init 1 */

  /* add user code end tmr16_init 1 */

[#ch1 pin]
  /* configure the CH1 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_6;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE6, GPIO_MUX_5);
[/#ch1 pin]
[#ch1c pin]
  /* configure the CH1C pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_6;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE6, GPIO_MUX_2);
[/#ch1c pin]
[#brk pin]
  /* configure the BRK pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_5;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE5, GPIO_MUX_2);
[/#brk pin]
  /* configure counter settings */
  tmr_base_init(TMR16, 65535, 0);
  tmr_clock_source_div_set(TMR16, TMR_CLOCK_DIV1);
  tmr_repetition_counter_set(TMR16, 0);
  tmr_period_buffer_enable(TMR16, FALSE);

[#enable xor]
  tmr_channel1_input_xor_enable(TMR16, TRUE);
[/#enable xor]
[#enable one cycle mode]
  tmr_one_cycle_mode_enable(TMR16, TRUE);
[/#enable one cycle mode]
[#enable channel control bit refresh]
  tmr_channel_control_refresh_enable(TMR16, TRUE);
[/#enable channel control bit refresh]
[#enable channel buffer]
  tmr_channel_buffer_enable(TMR16, TRUE);
[/#enable channel buffer]
[#overflow event disable]
  tmr_overflow_event_disable(TMR16, TRUE);
[/#overflow event disable]
[#overflow request source]
  tmr_overflow_request_source_set(TMR16, TRUE);
[/#overflow request source]
[#channel 1 input settings]
  /* configure channel 1 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR16, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 1 input settings]
[#channel 1 output settings]
  /* configure channel 1 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.occ_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.occ_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_struct.occ_idle_state = FALSE;
  tmr_output_channel_config(TMR16, TMR_SELECT_CHANNEL_1, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR16, TMR_SELECT_CHANNEL_1, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR16, TMR_SELECT_CHANNEL_1, 0);
  tmr_output_channel_buffer_enable(TMR16, TMR_SELECT_CHANNEL_1, FALSE);
[/#channel 1 output settings]
[#break and dead-time settings]
  /* configure the break input and the dead time */
  tmr_brkdt_default_para_init(&tmr_brkdt_struct);
  tmr_brkdt_struct.brk_enable = FALSE;
  tmr_brkdt_struct.auto_output_enable = FALSE;
  tmr_brkdt_struct.brk_polarity = TMR_BRK_INPUT_ACTIVE_LOW;
  tmr_brkdt_struct.fcsoen_state = FALSE;
  tmr_brkdt_struct.fcsodis_state = FALSE;
  tmr_brkdt_struct.wp_level = TMR_WP_OFF;
  tmr_brkdt_struct.deadtime = 0;
  tmr_brkdt_config(TMR16, &tmr_brkdt_struct);
[/#break and dead-time settings]
[#dma_overflow]
  tmr_dma_request_enable(TMR16, TMR_OVERFLOW_DMA_REQUEST, TRUE);
[/#dma_overflow]
[#dma_c1]
  tmr_dma_request_enable(TMR16, TMR_C1_DMA_REQUEST, TRUE);
[/#dma_c1]
[#interrupt remarks]
  /**
   * Users need to configure TMR16 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding TMR16 interrupt.
   *     --tmr_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void TMR16_GLOBAL_IRQHandler(void)
   */
[/#interrupt remarks]
[#tmr_output_enable]
  tmr_output_enable(TMR16, TRUE);
[/#tmr_output_enable]
  tmr_sub_sync_mode_set(TMR16, FALSE);
  tmr_primary_mode_select(TMR16, TMR_PRIMARY_SEL_RESET);

[#tmr_counter_enable]
  /* enable the counter */
  tmr_counter_enable(TMR16, TRUE);
[/#tmr_counter_enable]
  /* add user code begin tmr16_init 2 */

  /* add user code end tmr16_init 2 */
}
[/#tmr16 function]

[#tmr17 function]
/**
  * @brief  init tmr17 function
  * @param  none
  * @retval none
  */
void pf_tmr17_init(void)
{
[#tmr_input_struct]
  tmr_input_config_type tmr_input_struct;
[/#tmr_input_struct]
[#tmr_output_struct]
  tmr_output_config_type tmr_output_struct;
[/#tmr_output_struct]
[#tmr_brkdt_struct]
  tmr_brkdt_config_type tmr_brkdt_struct;
[/#tmr_brkdt_struct]
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]

  /* add user code begin tmr17_init 0 */

  /* add user code end tmr17_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin tmr17_init 1 */

  /* add user code end tmr17_init 1 */

[#ch1 pin]
  /* configure the CH1 pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_7;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE7, GPIO_MUX_5);
[/#ch1 pin]
[#ch1c pin]
  /* configure the CH1C pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_7;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOB, &gpio_init_struct);
  gpio_pin_mux_config(GPIOB, GPIO_PINS_SOURCE7, GPIO_MUX_2);
[/#ch1c pin]
[#brk pin]
  /* configure the BRK pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_10;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE10, GPIO_MUX_0);
[/#brk pin]
  /* configure counter settings */
  tmr_base_init(TMR17, 65535, 0);
  tmr_clock_source_div_set(TMR17, TMR_CLOCK_DIV1);
  tmr_repetition_counter_set(TMR17, 0);
  tmr_period_buffer_enable(TMR17, FALSE);

[#enable xor]
  tmr_channel1_input_xor_enable(TMR17, TRUE);
[/#enable xor]
[#enable one cycle mode]
  tmr_one_cycle_mode_enable(TMR17, TRUE);
[/#enable one cycle mode]
[#enable channel control bit refresh]
  tmr_channel_control_refresh_enable(TMR17, TRUE);
[/#enable channel control bit refresh]
[#enable channel buffer]
  tmr_channel_buffer_enable(TMR17, TRUE);
[/#enable channel buffer]
[#overflow event disable]
  tmr_overflow_event_disable(TMR17, TRUE);
[/#overflow event disable]
[#overflow request source]
  tmr_overflow_request_source_set(TMR17, TRUE);
[/#overflow request source]
[#channel 1 input settings]
  /* configure channel 1 as input */
  tmr_input_struct.input_channel_select = TMR_SELECT_CHANNEL_1;
  tmr_input_struct.input_mapped_select = TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_struct.input_polarity_select = TMR_INPUT_RISING_EDGE;
  tmr_input_struct.input_filter_value = 0;
  tmr_input_channel_init(TMR17, &tmr_input_struct, TMR_CHANNEL_INPUT_DIV_1);
[/#channel 1 input settings]
[#channel 1 output settings]
  /* configure channel 1 as output */
  tmr_output_default_para_init(&tmr_output_struct);
  tmr_output_struct.oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct.oc_output_state = FALSE;
  tmr_output_struct.occ_output_state = FALSE;
  tmr_output_struct.oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.occ_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct.oc_idle_state = FALSE;
  tmr_output_struct.occ_idle_state = FALSE;
  tmr_output_channel_config(TMR17, TMR_SELECT_CHANNEL_1, &tmr_output_struct);
[#pwm mode]
  tmr_output_channel_immediately_set(TMR17, TMR_SELECT_CHANNEL_1, FALSE);
[/#pwm mode]
  tmr_channel_value_set(TMR17, TMR_SELECT_CHANNEL_1, 0);
  tmr_output_channel_buffer_enable(TMR17, TMR_SELECT_CHANNEL_1, FALSE);
[/#channel 1 output settings]
[#break and dead-time settings]
  /* configure the break input and the dead time */
  tmr_brkdt_default_para_init(&tmr_brkdt_struct);
  tmr_brkdt_struct.brk_enable = FALSE;
  tmr_brkdt_struct.auto_output_enable = FALSE;
  tmr_brkdt_struct.brk_polarity = TMR_BRK_INPUT_ACTIVE_LOW;
  tmr_brkdt_struct.fcsoen_state = FALSE;
  tmr_brkdt_struct.fcsodis_state = FALSE;
  tmr_brkdt_struct.wp_level = TMR_WP_OFF;
  tmr_brkdt_struct.deadtime = 0;
  tmr_brkdt_config(TMR17, &tmr_brkdt_struct);
[/#break and dead-time settings]
[#dma_overflow]
  tmr_dma_request_enable(TMR17, TMR_OVERFLOW_DMA_REQUEST, TRUE);
[/#dma_overflow]
[#dma_c1]
  tmr_dma_request_enable(TMR17, TMR_C1_DMA_REQUEST, TRUE);
[/#dma_c1]
[#interrupt remarks]
  /**
   * Users need to configure TMR17 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding TMR17 interrupt.
   *     --tmr_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void TMR17_GLOBAL_IRQHandler(void)
   */
[/#interrupt remarks]
[#tmr_output_enable]
  tmr_output_enable(TMR17, TRUE);
[/#tmr_output_enable]
  tmr_sub_sync_mode_set(TMR17, FALSE);
  tmr_primary_mode_select(TMR17, TMR_PRIMARY_SEL_RESET);

[#tmr_counter_enable]
  /* enable the counter */
  tmr_counter_enable(TMR17, TRUE);
[/#tmr_counter_enable]
  /* add user code begin tmr17_init 2 */

  /* add user code end tmr17_init 2 */
}
[/#tmr17 function]

[#usart1 function]
/**
  * @brief  init usart1 function
  * @param  none
  * @retval none
  */
void pf_usart1_init(void)
{
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]
  /* add user code begin usart1_init 0 */

  /* add user code end usart1_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin usart1_init 1 */

  /* add user code end usart1_init 1 */

[#tx pin]
  /* configure the TX pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_9;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE9, GPIO_MUX_1);
[/#tx pin]
[#rx pin]
  /* configure the RX pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_10;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE10, GPIO_MUX_1);
[/#rx pin]
[#cts pin]
  /* configure the CTS pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_11;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE11, GPIO_MUX_1);
[/#cts pin]
[#rts pin]
  /* configure the RTS pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_12;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE12, GPIO_MUX_1);
[/#rts pin]
[#ck pin]
  /* configure the CK pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_8;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE8, GPIO_MUX_1);
[/#ck pin]
  /* configure param */
  usart_init(USART1, 115200, USART_DATA_8BITS, USART_STOP_1_BIT);
  usart_parity_selection_config(USART1, USART_PARITY_NONE);
[#data direction trans]
  usart_transmitter_enable(USART1, TRUE);
[/#data direction trans]
[#data direction receive]
  usart_receiver_enable(USART1, TRUE);
[/#data direction receive]
  usart_hardware_flow_control_set(USART1, USART_HARDWARE_FLOW_NONE);

[#usart clock config]
  /* configure the clock output on the ck pin */
  usart_clock_config(USART1, USART_CLOCK_POLARITY_LOW, USART_CLOCK_PHASE_1EDGE, USART_CLOCK_LAST_BIT_NONE);
  usart_clock_enable(USART1, TRUE);
[/#usart clock config]
[#irda]
  /* configure the irda mode */
  usart_irda_low_power_enable(USART1, FALSE);
  usart_irda_smartcard_division_set(USART1, 1);
  usart_irda_mode_enable(USART1, TRUE);
[/#irda]
[#smartcard]
  /* configure the smartcard mode */
  usart_smartcard_guard_time_set(USART1, 0);
  usart_irda_smartcard_division_set(USART1, 1);
  usart_smartcard_nack_set(USART1, FALSE);
  usart_smartcard_mode_enable(USART1, TRUE);
[/#smartcard]
[#lin]
  /* configure the lin mode */
  usart_break_bit_num_set(USART1, USART_BREAK_10BITS);
  usart_lin_mode_enable(USART1, TRUE);
[/#lin]
[#receiver mute]
  /* configure the receiver mute mode */
  usart_wakeup_mode_set(USART1, USART_WAKEUP_BY_IDLE_FRAME);
  usart_id_bit_num_set(USART1, USART_ID_FIXED_4_BIT);
  usart_wakeup_id_set(USART1, 0);
  usart_receiver_mute_enable(USART1, TRUE);
[/#receiver mute]
[#half duplex]
  /* configure the single wire half duplex mode */
  usart_single_line_halfduplex_select(USART1, TRUE);
[/#half duplex]
[#modbus]
  /* configure the modbus mode: the receiver wakes up on its own id */
  usart_id_bit_num_set(USART1, USART_ID_FIXED_4_BIT);
  usart_wakeup_id_set(USART1, 0);
  usart_wakeup_mode_set(USART1, USART_WAKEUP_BY_MATCHING_ID);
  usart_receiver_mute_enable(USART1, TRUE);
[/#modbus]
[#rs485]
  /* configure the rs485 driver enable on the rts pin */
  usart_de_polarity_set(USART1, USART_DE_POLARITY_HIGH);
  usart_rs485_delay_time_config(USART1, 0, 0);
  usart_rs485_mode_enable(USART1, TRUE);
[/#rs485]
  usart_dt_polarity_reverse(USART1, FALSE);
  usart_msb_transmit_first_enable(USART1, FALSE);
  usart_rx_polarity_reverse(USART1, FALSE);
  usart_tx_polarity_reverse(USART1, FALSE);
  usart_transmit_receive_pin_swap(USART1, FALSE);

[#dma transmitter]
  usart_dma_transmitter_enable(USART1, TRUE);
[/#dma transmitter]
[#dma receiver]
  usart_dma_receiver_enable(USART1, TRUE);
[/#dma receiver]
[#interrupt remarks]
  /**
   * Users need to configure USART1 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding USART1 interrupt.
   *     --usart_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void USART1_IRQHandler(void)
   */
[/#interrupt remarks]
  usart_enable(USART1, TRUE);

  /* add user code begin usart1_init 2 */

  /* add user code end usart1_init 2 */
}
[/#usart1 function]

[#usart2 function]
/**
  * @brief  init usart2 function
  * @param  none
  * @retval none
  */
void pf_usart2_init(void)
{
[#gpio_init_struct]
  gpio_init_type gpio_init_struct;
[/#gpio_init_struct]
  /* add user code begin usart2_init 0 */

  /* add user code end usart2_init 0 */

[#gpio_default_para_init]
  gpio_default_para_init(&gpio_init_struct);
[/#gpio_default_para_init]
  /* add user code begin usart2_init 1 */

  /* add user code end usart2_init 1 */

[#tx pin]
  /* configure the TX pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_2;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE2, GPIO_MUX_1);
[/#tx pin]
[#rx pin]
  /* configure the RX pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_3;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE3, GPIO_MUX_1);
[/#rx pin]
[#cts pin]
  /* configure the CTS pin */
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_0;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE0, GPIO_MUX_1);
[/#cts pin]
[#rts pin]
  /* configure the RTS pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_1;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE1, GPIO_MUX_1);
[/#rts pin]
[#ck pin]
  /* configure the CK pin */
  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;
  gpio_init_struct.gpio_pins = GPIO_PINS_4;
  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;
  gpio_init(GPIOA, &gpio_init_struct);
  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE4, GPIO_MUX_1);
[/#ck pin]
  /* configure param */
  usart_init(USART2, 115200, USART_DATA_8BITS, USART_STOP_1_BIT);
  usart_parity_selection_config(USART2, USART_PARITY_NONE);
[#data direction trans]
  usart_transmitter_enable(USART2, TRUE);
[/#data direction trans]
[#data direction receive]
  usart_receiver_enable(USART2, TRUE);
[/#data direction receive]
  usart_hardware_flow_control_set(USART2, USART_HARDWARE_FLOW_NONE);

[#usart clock config]
  /* configure the clock output on the ck pin */
  usart_clock_config(USART2, USART_CLOCK_POLARITY_LOW, USART_CLOCK_PHASE_1EDGE, USART_CLOCK_LAST_BIT_NONE);
  usart_clock_enable(USART2, TRUE);
[/#usart clock config]
[#irda]
  /* configure the irda mode */
  usart_irda_low_power_enable(USART2, FALSE);
  usart_irda_smartcard_division_set(USART2, 1);
  usart_irda_mode_enable(USART2, TRUE);
[/#irda]
[#smartcard]
  /* configure the smartcard mode */
  usart_smartcard_guard_time_set(USART2, 0);
  usart_irda_smartcard_division_set(USART2, 1);
  usart_smartcard_nack_set(USART2, FALSE);
  usart_smartcard_mode_enable(USART2, TRUE);
[/#smartcard]
[#lin]
  /* configure the lin mode */
  usart_break_bit_num_set(USART2, USART_BREAK_10BITS);
  usart_lin_mode_enable(USART2, TRUE);
[/#lin]
[#receiver mute]
  /* configure the receiver mute mode */
  usart_wakeup_mode_set(USART2, USART_WAKEUP_BY_IDLE_FRAME);
  usart_id_bit_num_set(USART2, USART_ID_FIXED_4_BIT);
  usart_wakeup_id_set(USART2, 0);
  usart_receiver_mute_enable(USART2, TRUE);
[/#receiver mute]
[#half duplex]
  /* configure the single wire half duplex mode */
  usart_single_line_halfduplex_select(USART2, TRUE);
[/#half duplex]
[#modbus]
  /* configure the modbus mode: the receiver wakes up on its own id */
  usart_id_bit_num_set(USART2, USART_ID_FIXED_4_BIT);
  usart_wakeup_id_set(USART2, 0);
  usart_wakeup_mode_set(USART2, USART_WAKEUP_BY_MATCHING_ID);
  usart_receiver_mute_enable(USART2, TRUE);
[/#modbus]
[#rs485]
  /* configure the rs485 driver enable on the rts pin */
  usart_de_polarity_set(USART2, USART_DE_POLARITY_HIGH);
  usart_rs485_delay_time_config(USART2, 0, 0);
  usart_rs485_mode_enable(USART2, TRUE);
[/#rs485]
  usart_dt_polarity_reverse(USART2, FALSE);
  usart_msb_transmit_first_enable(USART2, FALSE);
  usart_rx_polarity_reverse(USART2, FALSE);
  usart_tx_polarity_reverse(USART2, FALSE);
  usart_transmit_receive_pin_swap(USART2, FALSE);

[#dma transmitter]
  usart_dma_transmitter_enable(USART2, TRUE);
[/#dma transmitter]
[#dma receiver]
  usart_dma_receiver_enable(USART2, TRUE);
[/#dma receiver]
[#interrupt remarks]
  /**
   * Users need to configure USART2 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding USART2 interrupt.
   *     --usart_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void USART2_IRQHandler(void)
   */
[/#interrupt remarks]
  usart_enable(USART2, TRUE);

  /* add user code begin usart2_init 2 */

  /* add user code end usart2_init 2 */
}
[/#usart2 function]

[#wdt function]
/**
  * @brief  init wdt function
  * @param  none
  * @retval none
  */
void pf_wdt_init(void)
{
  /* add user code begin wdt_init 0 */

  /* add user code end wdt_init 0 */

  /* the watchdog counts the lick clock */
  wdt_register_write_enable(TRUE);
  wdt_divider_set(WDT_CLK_DIV_4);
  wdt_reload_value_set(4095);
[#window]
  wdt_window_counter_set(4095);
[/#window]
  wdt_counter_reload();
  wdt_enable();

  /* add user code begin wdt_init 1 */

  /* add user code end wdt_init 1 */
}
[/#wdt function]

[#wwdt function]
/**
  * @brief  init wwdt function
  * @param  none
  * @retval none
  */
void pf_wwdt_init(void)
{
  /* add user code begin wwdt_init 0 */

  /* add user code end wwdt_init 0 */

  wwdt_divider_set(WWDT_PCLK1_DIV_4096);
  wwdt_window_counter_set(127);
  wwdt_counter_set(127);

[#interrupt remarks]
  /**
   * Users need to configure WWDT interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding WWDT interrupt.
   *     --wwdt_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void WWDT_IRQHandler(void)
   */
[/#interrupt remarks]
  wwdt_enable(127);

  /* add user code begin wwdt_init 1 */

  /* add user code end wwdt_init 1 */
}
[/#wwdt function]

[#dma1_channel1_init]
/**
  * @brief  init dma1 channel1 for "adc1"
  * @param  none
  * @retval none
  */
void pf_dma1_channel1_init(void)
{
  dma_init_type dma_init_struct;

  /* add user code begin dma1_channel1 0 */

  /* add user code end dma1_channel1 0 */

  dma_reset(DMA1_CHANNEL1);
  dma_default_para_init(&dma_init_struct);
  dma_init_struct.direction = DMA_DIR_PERIPHERAL_TO_MEMORY;
  dma_init_struct.memory_data_width = DMA_MEMORY_DATA_WIDTH_BYTE;
  dma_init_struct.memory_inc_enable = TRUE;
  dma_init_struct.peripheral_data_width = DMA_PERIPHERAL_DATA_WIDTH_BYTE;
  dma_init_struct.peripheral_inc_enable = FALSE;
  dma_init_struct.priority = DMA_PRIORITY_LOW;
  dma_init_struct.loop_mode_enable = FALSE;
  dma_init(DMA1_CHANNEL1, &dma_init_struct);

[#interrupt remarks]
  /**
   * Users need to configure DMA1 channel1 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding DMA1 channel1 interrupt.
   *     --dma_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void DMA1_Channel1_IRQHandler(void)
   */
[/#interrupt remarks]
  /* add user code begin dma1_channel1 1 */

  /* add user code end dma1_channel1 1 */
}
[/#dma1_channel1_init]

[#dma1_channel2_init]
/**
  * @brief  init dma1 channel2 for "usart1_tx"
  * @param  none
  * @retval none
  */
void pf_dma1_channel2_init(void)
{
  dma_init_type dma_init_struct;

  /* add user code begin dma1_channel2 0 */

  /* add user code end dma1_channel2 0 */

  dma_reset(DMA1_CHANNEL2);
  dma_default_para_init(&dma_init_struct);
  dma_init_struct.direction = DMA_DIR_MEMORY_TO_PERIPHERAL;
  dma_init_struct.memory_data_width = DMA_MEMORY_DATA_WIDTH_BYTE;
  dma_init_struct.memory_inc_enable = TRUE;
  dma_init_struct.peripheral_data_width = DMA_PERIPHERAL_DATA_WIDTH_BYTE;
  dma_init_struct.peripheral_inc_enable = FALSE;
  dma_init_struct.priority = DMA_PRIORITY_LOW;
  dma_init_struct.loop_mode_enable = FALSE;
  dma_init(DMA1_CHANNEL2, &dma_init_struct);

[#interrupt remarks]
  /**
   * Users need to configure DMA1 channel2 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding DMA1 channel2 interrupt.
   *     --dma_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void DMA1_Channel3_2_IRQHandler(void)
   */
[/#interrupt remarks]
  /* add user code begin dma1_channel2 1 */

  /* add user code end dma1_channel2 1 */
}
[/#dma1_channel2_init]

[#dma1_channel3_init]
/**
  * @brief  init dma1 channel3 for "usart1_rx"
  * @param  none
  * @retval none
  */
void pf_dma1_channel3_init(void)
{
  dma_init_type dma_init_struct;

  /* add user code begin dma1_channel3 0 */

  /* add user code end dma1_channel3 0 */

  dma_reset(DMA1_CHANNEL3);
  dma_default_para_init(&dma_init_struct);
  dma_init_struct.direction = DMA_DIR_PERIPHERAL_TO_MEMORY;
  dma_init_struct.memory_data_width = DMA_MEMORY_DATA_WIDTH_BYTE;
  dma_init_struct.memory_inc_enable = TRUE;
  dma_init_struct.peripheral_data_width = DMA_PERIPHERAL_DATA_WIDTH_BYTE;
  dma_init_struct.peripheral_inc_enable = FALSE;
  dma_init_struct.priority = DMA_PRIORITY_LOW;
  dma_init_struct.loop_mode_enable = FALSE;
  dma_init(DMA1_CHANNEL3, &dma_init_struct);

[#interrupt remarks]
  /**
   * Users need to configure DMA1 channel3 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding DMA1 channel3 interrupt.
   *     --dma_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void DMA1_Channel3_2_IRQHandler(void)
   */
[/#interrupt remarks]
  /* add user code begin dma1_channel3 1 */

  /* add user code end dma1_channel3 1 */
}
[/#dma1_channel3_init]

[#dma1_channel4_init]
/**
  * @brief  init dma1 channel4 for "usart2_tx"
  * @param  none
  * @retval none
  */
void pf_dma1_channel4_init(void)
{
  dma_init_type dma_init_struct;

  /* add user code begin dma1_channel4 0 */

  /* add user code end dma1_channel4 0 */

  dma_reset(DMA1_CHANNEL4);
  dma_default_para_init(&dma_init_struct);
  dma_init_struct.direction = DMA_DIR_MEMORY_TO_PERIPHERAL;
  dma_init_struct.memory_data_width = DMA_MEMORY_DATA_WIDTH_BYTE;
  dma_init_struct.memory_inc_enable = TRUE;
  dma_init_struct.peripheral_data_width = DMA_PERIPHERAL_DATA_WIDTH_BYTE;
  dma_init_struct.peripheral_inc_enable = FALSE;
  dma_init_struct.priority = DMA_PRIORITY_LOW;
  dma_init_struct.loop_mode_enable = FALSE;
  dma_init(DMA1_CHANNEL4, &dma_init_struct);

[#interrupt remarks]
  /**
   * Users need to configure DMA1 channel4 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding DMA1 channel4 interrupt.
   *     --dma_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void DMA1_Channel5_4_IRQHandler(void)
   */
[/#interrupt remarks]
  /* add user code begin dma1_channel4 1 */

  /* add user code end dma1_channel4 1 */
}
[/#dma1_channel4_init]

[#dma1_channel5_init]
/**
  * @brief  init dma1 channel5 for "usart2_rx"
  * @param  none
  * @retval none
  */
void pf_dma1_channel5_init(void)
{
  dma_init_type dma_init_struct;

  /* add user code begin dma1_channel5 0 */

  /* add user code end dma1_channel5 0 */

  dma_reset(DMA1_CHANNEL5);
  dma_default_para_init(&dma_init_struct);
  dma_init_struct.direction = DMA_DIR_PERIPHERAL_TO_MEMORY;
  dma_init_struct.memory_data_width = DMA_MEMORY_DATA_WIDTH_BYTE;
  dma_init_struct.memory_inc_enable = TRUE;
  dma_init_struct.peripheral_data_width = DMA_PERIPHERAL_DATA_WIDTH_BYTE;
  dma_init_struct.peripheral_inc_enable = FALSE;
  dma_init_struct.priority = DMA_PRIORITY_LOW;
  dma_init_struct.loop_mode_enable = FALSE;
  dma_init(DMA1_CHANNEL5, &dma_init_struct);

[#interrupt remarks]
  /**
   * Users need to configure DMA1 channel5 interrupt functions according to the actual application.
   * 1. Call the below function to enable the corresponding DMA1 channel5 interrupt.
   *     --dma_interrupt_enable(...)
   * 2. Add the user's interrupt handler code into the below function in the mq48t110_int.c file.
   *     --void DMA1_Channel5_4_IRQHandler(void)
   */
[/#interrupt remarks]
  /* add user code begin dma1_channel5 1 */

  /* add user code end dma1_channel5 1 */
}
[/#dma1_channel5_init]

[#dma_channel_config]
/**
  * @brief  config dma channel transfer parameter
  * @param  dmax_channely: DMAx_CHANNELy
  * @param  peripheral_base_addr: peripheral address.
  * @param  memory_base_addr: memory address.
  * @param  buffer_size: buffer size.
  * @retval none
  */
void pf_dma_channel_config(dma_channel_type* dmax_channely, uint32_t peripheral_base_addr, uint32_t memory_base_addr, uint16_t buffer_size)
{
  dmax_channely->dtcnt = buffer_size;
  dmax_channely->paddr = peripheral_base_addr;
  dmax_channely->maddr = memory_base_addr;
}
[/#dma_channel_config]
