/* add user code begin Header */
/**
  **************************************************************************
  * @file     mq48t110_int.c
  * @brief    main interrupt service routines.
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
#include "mq48t110_int.h"
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

/* external variables --------------------------------------------------------*/
/* add user code begin external variables */

/* add user code end external variables */

/**
  * @brief  this function handles nmi exception.
  * @param  none
  * @retval none
  */
void NMI_Handler(void)
{
  /* add user code begin NonMaskableInt_IRQ 0 */

  /* add user code end NonMaskableInt_IRQ 0 */

  /* add user code begin NonMaskableInt_IRQ 1 */

  /* add user code end NonMaskableInt_IRQ 1 */
}

/**
  * @brief  this function handles hard fault exception.
  * @param  none
  * @retval none
  */
void HardFault_Handler(void)
{
  /* add user code begin HardFault_IRQ 0 */

  /* add user code end HardFault_IRQ 0 */

  /* go to infinite loop when the exception occurs */
  while (1)
  {
    /* add user code begin W1_HardFault_IRQ 0 */

    /* add user code end W1_HardFault_IRQ 0 */
  }
}

/**
  * @brief  this function handles memory manage exception.
  * @param  none
  * @retval none
  */
void MemManage_Handler(void)
{
  /* add user code begin MemoryManagement_IRQ 0 */

  /* add user code end MemoryManagement_IRQ 0 */

  /* go to infinite loop when the exception occurs */
  while (1)
  {
    /* add user code begin W1_MemoryManagement_IRQ 0 */

    /* add user code end W1_MemoryManagement_IRQ 0 */
  }
}

/**
  * @brief  this function handles bus fault exception.
  * @param  none
  * @retval none
  */
void BusFault_Handler(void)
{
  /* add user code begin BusFault_IRQ 0 */

  /* add user code end BusFault_IRQ 0 */

  /* go to infinite loop when the exception occurs */
  while (1)
  {
    /* add user code begin W1_BusFault_IRQ 0 */

    /* add user code end W1_BusFault_IRQ 0 */
  }
}

/**
  * @brief  this function handles usage fault exception.
  * @param  none
  * @retval none
  */
void UsageFault_Handler(void)
{
  /* add user code begin UsageFault_IRQ 0 */

  /* add user code end UsageFault_IRQ 0 */

  /* go to infinite loop when the exception occurs */
  while (1)
  {
    /* add user code begin W1_UsageFault_IRQ 0 */

    /* add user code end W1_UsageFault_IRQ 0 */
  }
}

/**
  * @brief  this function handles svcall exception.
  * @param  none
  * @retval none
  */
void SVC_Handler(void)
{
  /* add user code begin SVCall_IRQ 0 */

  /* add user code end SVCall_IRQ 0 */

  /* add user code begin SVCall_IRQ 1 */

  /* add user code end SVCall_IRQ 1 */
}

/**
  * @brief  this function handles debug monitor exception.
  * @param  none
  * @retval none
  */
void DebugMon_Handler(void)
{
  /* add user code begin DebugMonitor_IRQ 0 */

  /* add user code end DebugMonitor_IRQ 0 */

  /* add user code begin DebugMonitor_IRQ 1 */

  /* add user code end DebugMonitor_IRQ 1 */
}

/**
  * @brief  this function handles pendsv exception.
  * @param  none
  * @retval none
  */
void PendSV_Handler(void)
{
  /* add user code begin PendSV_IRQ 0 */

  /* add user code end PendSV_IRQ 0 */

  /* add user code begin PendSV_IRQ 1 */

  /* add user code end PendSV_IRQ 1 */
}

[#SysTick_Handler]
/**
  * @brief  this function handles systick handler.
  * @param  none
  * @retval none
  */
void SysTick_Handler(void)
{
  /* add user code begin SysTick_IRQ 0 */

  /* add user code end SysTick_IRQ 0 */

  /* add user code begin SysTick_IRQ 1 */

  /* add user code end SysTick_IRQ 1 */
}
[/#SysTick_Handler]

[#WWDT_IRQHandler]
/**
  * @brief  this function handles window watchdog interrupt handler.
  * @param  none
  * @retval none
  */
void WWDT_IRQHandler(void)
{
  /* add user code begin WWDT_IRQ 0 */

  /* add user code end WWDT_IRQ 0 */

  /* add user code begin WWDT_IRQ 1 */

  /* add user code end WWDT_IRQ 1 */
}
[/#WWDT_IRQHandler]

[#PVM_IRQHandler]
/**
  * @brief  this function handles pvm interrupt through exint line 16 handler.
  * @param  none
  * @retval none
  */
void PVM_IRQHandler(void)
{
  /* add user code begin PVM_IRQ 0 */

  /* add user code end PVM_IRQ 0 */

  /* add user code begin PVM_IRQ 1 */

  /* add user code end PVM_IRQ 1 */
}
[/#PVM_IRQHandler]

[#ERTC_IRQHandler]
/**
  * @brief  this function handles ertc wake-up, tamper and time stamp interrupts through exint lines 19 and 20 handler.
  * @param  none
  * @retval none
  */
void ERTC_IRQHandler(void)
{
  /* add user code begin ERTC_IRQ 0 */

  /* add user code end ERTC_IRQ 0 */

  /* add user code begin ERTC_IRQ 1 */

  /* add user code end ERTC_IRQ 1 */
}
[/#ERTC_IRQHandler]

[#FLASH_IRQHandler]
/**
  * @brief  this function handles flash global interrupt handler.
  * @param  none
  * @retval none
  */
void FLASH_IRQHandler(void)
{
  /* add user code begin FLASH_IRQ 0 */

  /* add user code end FLASH_IRQ 0 */

  /* add user code begin FLASH_IRQ 1 */

  /* add user code end FLASH_IRQ 1 */
}
[/#FLASH_IRQHandler]

[#CRM_IRQHandler]
/**
  * @brief  this function handles crm global interrupt handler.
  * @param  none
  * @retval none
  */
void CRM_IRQHandler(void)
{
  /* add user code begin CRM_IRQ 0 */

  /* add user code end CRM_IRQ 0 */

  /* add user code begin CRM_IRQ 1 */

  /* add user code end CRM_IRQ 1 */
}
[/#CRM_IRQHandler]

[#EXINT1_0_IRQHandler]
/**
  * @brief  this function handles exint line 0 and 1 interrupts handler.
  * @param  none
  * @retval none
  */
void EXINT1_0_IRQHandler(void)
{
  /* add user code begin EXINT1_0_IRQ 0 */

  /* add user code end EXINT1_0_IRQ 0 */

  /* add user code begin EXINT1_0_IRQ 1 */

  /* add user code end EXINT1_0_IRQ 1 */
}
[/#EXINT1_0_IRQHandler]

[#EXINT3_2_IRQHandler]
/**
  * @brief  this function handles exint line 2 and 3 interrupts handler.
  * @param  none
  * @retval none
  */
void EXINT3_2_IRQHandler(void)
{
  /* add user code begin EXINT3_2_IRQ 0 */

  /* add user code end EXINT3_2_IRQ 0 */

  /* add user code begin EXINT3_2_IRQ 1 */

  /* add user code end EXINT3_2_IRQ 1 */
}
[/#EXINT3_2_IRQHandler]

[#EXINT15_4_IRQHandler]
/**
  * @brief  this function handles exint line 4 to 15 interrupts handler.
  * @param  none
  * @retval none
  */
void EXINT15_4_IRQHandler(void)
{
  /* add user code begin EXINT15_4_IRQ 0 */

  /* add user code end EXINT15_4_IRQ 0 */

  /* add user code begin EXINT15_4_IRQ 1 */

  /* add user code end EXINT15_4_IRQ 1 */
}
[/#EXINT15_4_IRQHandler]

[#DMA1_Channel1_IRQHandler]
/**
  * @brief  this function handles dma1 channel 1 global interrupt handler.
  * @param  none
  * @retval none
  */
void DMA1_Channel1_IRQHandler(void)
{
  /* add user code begin DMA1_Channel1_IRQ 0 */

  /* add user code end DMA1_Channel1_IRQ 0 */

  /* add user code begin DMA1_Channel1_IRQ 1 */

  /* add user code end DMA1_Channel1_IRQ 1 */
}
[/#DMA1_Channel1_IRQHandler]

[#DMA1_Channel3_2_IRQHandler]
/**
  * @brief  this function handles dma1 channel 2 and 3 global interrupts handler.
  * @param  none
  * @retval none
  */
void DMA1_Channel3_2_IRQHandler(void)
{
  /* add user code begin DMA1_Channel3_2_IRQ 0 */

  /* add user code end DMA1_Channel3_2_IRQ 0 */

  /* add user code begin DMA1_Channel3_2_IRQ 1 */

  /* add user code end DMA1_Channel3_2_IRQ 1 */
}
[/#DMA1_Channel3_2_IRQHandler]

[#DMA1_Channel5_4_IRQHandler]
/**
  * @brief  this function handles dma1 channel 4 and 5 global interrupts handler.
  * @param  none
  * @retval none
  */
void DMA1_Channel5_4_IRQHandler(void)
{
  /* add user code begin DMA1_Channel5_4_IRQ 0 */

  /* add user code end DMA1_Channel5_4_IRQ 0 */

  /* add user code begin DMA1_Channel5_4_IRQ 1 */

  /* add user code end DMA1_Channel5_4_IRQ 1 */
}
[/#DMA1_Channel5_4_IRQHandler]

[#ADC1_CMP_IRQHandler]
/**
  * @brief  this function handles adc1 and comparator interrupts (comparator through exint line 21) handler.
  * @param  none
  * @retval none
  */
void ADC1_CMP_IRQHandler(void)
{
  /* add user code begin ADC1_CMP_IRQ 0 */

  /* add user code end ADC1_CMP_IRQ 0 */

  /* add user code begin ADC1_CMP_IRQ 1 */

  /* add user code end ADC1_CMP_IRQ 1 */
}
[/#ADC1_CMP_IRQHandler]

[#TMR1_BRK_OVF_TRG_HALL_IRQHandler]
/**
  * @brief  this function handles tmr1 brake, overflow, trigger and hall interrupts handler.
  * @param  none
  * @retval none
  */
void TMR1_BRK_OVF_TRG_HALL_IRQHandler(void)
{
  /* add user code begin TMR1_BRK_OVF_TRG_HALL_IRQ 0 */

  /* add user code end TMR1_BRK_OVF_TRG_HALL_IRQ 0 */

  /* add user code begin TMR1_BRK_OVF_TRG_HALL_IRQ 1 */

  /* add user code end TMR1_BRK_OVF_TRG_HALL_IRQ 1 */
}
[/#TMR1_BRK_OVF_TRG_HALL_IRQHandler]

[#TMR1_CH_IRQHandler]
/**
  * @brief  this function handles tmr1 channel interrupt handler.
  * @param  none
  * @retval none
  */
void TMR1_CH_IRQHandler(void)
{
  /* add user code begin TMR1_CH_IRQ 0 */

  /* add user code end TMR1_CH_IRQ 0 */

  /* add user code begin TMR1_CH_IRQ 1 */

  /* add user code end TMR1_CH_IRQ 1 */
}
[/#TMR1_CH_IRQHandler]

[#TMR3_GLOBAL_IRQHandler]
/**
  * @brief  this function handles tmr3 global interrupt handler.
  * @param  none
  * @retval none
  */
void TMR3_GLOBAL_IRQHandler(void)
{
  /* add user code begin TMR3_GLOBAL_IRQ 0 */

  /* add user code end TMR3_GLOBAL_IRQ 0 */

  /* add user code begin TMR3_GLOBAL_IRQ 1 */

  /* add user code end TMR3_GLOBAL_IRQ 1 */
}
[/#TMR3_GLOBAL_IRQHandler]

[#TMR6_GLOBAL_IRQHandler]
/**
  * @brief  this function handles tmr6 global interrupt handler.
  * @param  none
  * @retval none
  */
void TMR6_GLOBAL_IRQHandler(void)
{
  /* add user code begin TMR6_GLOBAL_IRQ 0 */

  /* add user code end TMR6_GLOBAL_IRQ 0 */

  /* add user code begin TMR6_GLOBAL_IRQ 1 */

  /* add user code end TMR6_GLOBAL_IRQ 1 */
}
[/#TMR6_GLOBAL_IRQHandler]

[#TMR14_GLOBAL_IRQHandler]
/**
  * @brief  this function handles tmr14 global interrupt handler.
  * @param  none
  * @retval none
  */
void TMR14_GLOBAL_IRQHandler(void)
{
  /* add user code begin TMR14_GLOBAL_IRQ 0 */

  /* add user code end TMR14_GLOBAL_IRQ 0 */

  /* add user code begin TMR14_GLOBAL_IRQ 1 */

  /* add user code end TMR14_GLOBAL_IRQ 1 */
}
[/#TMR14_GLOBAL_IRQHandler]

[#TMR15_GLOBAL_IRQHandler]
/**
  * @brief  this function handles tmr15 global interrupt handler.
  * @param  none
  * @retval none
  */
void TMR15_GLOBAL_IRQHandler(void)
{
  /* add user code begin TMR15_GLOBAL_IRQ 0 */

  /* add user code end TMR15_GLOBAL_IRQ 0 */

  /* add user code begin TMR15_GLOBAL_IRQ 1 */

  /* add user code end TMR15_GLOBAL_IRQ 1 */
}
[/#TMR15_GLOBAL_IRQHandler]

[#TMR16_GLOBAL_IRQHandler]
/**
  * @brief  this function handles tmr16 global interrupt handler.
  * @param  none
  * @retval none
  */
void TMR16_GLOBAL_IRQHandler(void)
{
  /* add user code begin TMR16_GLOBAL_IRQ 0 */

  /* add user code end TMR16_GLOBAL_IRQ 0 */

  /* add user code begin TMR16_GLOBAL_IRQ 1 */

  /* add user code end TMR16_GLOBAL_IRQ 1 */
}
[/#TMR16_GLOBAL_IRQHandler]

[#TMR17_GLOBAL_IRQHandler]
/**
  * @brief  this function handles tmr17 global interrupt handler.
  * @param  none
  * @retval none
  */
void TMR17_GLOBAL_IRQHandler(void)
{
  /* add user code begin TMR17_GLOBAL_IRQ 0 */

  /* add user code end TMR17_GLOBAL_IRQ 0 */

  /* add user code begin TMR17_GLOBAL_IRQ 1 */

  /* add user code end TMR17_GLOBAL_IRQ 1 */
}
[/#TMR17_GLOBAL_IRQHandler]

[#I2C1_EVT_IRQHandler]
/**
  * @brief  this function handles i2c1 event interrupt handler.
  * @param  none
  * @retval none
  */
void I2C1_EVT_IRQHandler(void)
{
  /* add user code begin I2C1_EVT_IRQ 0 */

  /* add user code end I2C1_EVT_IRQ 0 */

  /* add user code begin I2C1_EVT_IRQ 1 */

  /* add user code end I2C1_EVT_IRQ 1 */
}
[/#I2C1_EVT_IRQHandler]

[#I2C1_ERR_IRQHandler]
/**
  * @brief  this function handles i2c1 error interrupt handler.
  * @param  none
  * @retval none
  */
void I2C1_ERR_IRQHandler(void)
{
  /* add user code begin I2C1_ERR_IRQ 0 */

  /* add user code end I2C1_ERR_IRQ 0 */

  /* add user code begin I2C1_ERR_IRQ 1 */

  /* add user code end I2C1_ERR_IRQ 1 */
}
[/#I2C1_ERR_IRQHandler]

[#I2C2_EVT_IRQHandler]
/**
  * @brief  this function handles i2c2 event interrupt handler.
  * @param  none
  * @retval none
  */
void I2C2_EVT_IRQHandler(void)
{
  /* add user code begin I2C2_EVT_IRQ 0 */

  /* add user code end I2C2_EVT_IRQ 0 */

  /* add user code begin I2C2_EVT_IRQ 1 */

  /* add user code end I2C2_EVT_IRQ 1 */
}
[/#I2C2_EVT_IRQHandler]

[#I2C2_ERR_IRQHandler]
/**
  * @brief  this function handles i2c2 error interrupt handler.
  * @param  none
  * @retval none
  */
void I2C2_ERR_IRQHandler(void)
{
  /* add user code begin I2C2_ERR_IRQ 0 */

  /* add user code end I2C2_ERR_IRQ 0 */

  /* add user code begin I2C2_ERR_IRQ 1 */

  /* add user code end I2C2_ERR_IRQ 1 */
}
[/#I2C2_ERR_IRQHandler]

[#SPI1_IRQHandler]
/**
  * @brief  this function handles spi1 and i2s1 global interrupt handler.
  * @param  none
  * @retval none
  */
void SPI1_IRQHandler(void)
{
  /* add user code begin SPI1_IRQ 0 */

  /* add user code end SPI1_IRQ 0 */

  /* add user code begin SPI1_IRQ 1 */

  /* add user code end SPI1_IRQ 1 */
}
[/#SPI1_IRQHandler]

[#SPI2_IRQHandler]
/**
  * @brief  this function handles spi2 and i2s2 global interrupt handler.
  * @param  none
  * @retval none
  */
void SPI2_IRQHandler(void)
{
  /* add user code begin SPI2_IRQ 0 */

  /* add user code end SPI2_IRQ 0 */

  /* add user code begin SPI2_IRQ 1 */

  /* add user code end SPI2_IRQ 1 */
}
[/#SPI2_IRQHandler]

[#USART1_IRQHandler]
/**
  * @brief  this function handles usart1 global interrupt handler.
  * @param  none
  * @retval none
  */
void USART1_IRQHandler(void)
{
  /* add user code begin USART1_IRQ 0 */

  /* add user code end USART1_IRQ 0 */

  /* add user code begin USART1_IRQ 1 */

  /* add user code end USART1_IRQ 1 */
}
[/#USART1_IRQHandler]

[#USART2_IRQHandler]
/**
  * @brief  this function handles usart2 global interrupt handler.
  * @param  none
  * @retval none
  */
void USART2_IRQHandler(void)
{
  /* add user code begin USART2_IRQ 0 */

  /* add user code end USART2_IRQ 0 */

  /* add user code begin USART2_IRQ 1 */

  /* add user code end USART2_IRQ 1 */
}
[/#USART2_IRQHandler]

[#ERTCAlarm_IRQHandler]
/**
  * @brief  this function handles ertc alarm interrupt through exint line 17 handler.
  * @param  none
  * @retval none
  */
void ERTCAlarm_IRQHandler(void)
{
  /* add user code begin ERTCAlarm_IRQ 0 */

  /* add user code end ERTCAlarm_IRQ 0 */

  /* add user code begin ERTCAlarm_IRQ 1 */

  /* add user code end ERTCAlarm_IRQ 1 */
}
[/#ERTCAlarm_IRQHandler]

