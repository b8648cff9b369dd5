/* add user code begin Header */
/**
  **************************************************************************
  * @file     mq48t110_int.h
  * @brief    header file of main interrupt service routines.
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
#ifndef __MQ48T110_INT_H
#define __MQ48T110_INT_H

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

/* exported functions --------------------------------------------------------*/
void NMI_Handler(void);
void HardFault_Handler(void);
void MemManage_Handler(void);
void BusFault_Handler(void);
void UsageFault_Handler(void);
void SVC_Handler(void);
void DebugMon_Handler(void);
void PendSV_Handler(void);
void SysTick_Handler(void);
void WWDT_IRQHandler(void);
void PVM_IRQHandler(void);
void ERTC_IRQHandler(void);
void FLASH_IRQHandler(void);
void CRM_IRQHandler(void);
void EXINT1_0_IRQHandler(void);
void EXINT3_2_IRQHandler(void);
void EXINT15_4_IRQHandler(void);
void DMA1_Channel1_IRQHandler(void);
void DMA1_Channel3_2_IRQHandler(void);
void DMA1_Channel5_4_IRQHandler(void);
void ADC1_CMP_IRQHandler(void);
void TMR1_BRK_OVF_TRG_HALL_IRQHandler(void);
void TMR1_CH_IRQHandler(void);
void TMR3_GLOBAL_IRQHandler(void);
void TMR6_GLOBAL_IRQHandler(void);
void TMR14_GLOBAL_IRQHandler(void);
void TMR15_GLOBAL_IRQHandler(void);
void TMR16_GLOBAL_IRQHandler(void);
void TMR17_GLOBAL_IRQHandler(void);
void I2C1_EVT_IRQHandler(void);
void I2C1_ERR_IRQHandler(void);
void I2C2_EVT_IRQHandler(void);
void I2C2_ERR_IRQHandler(void);
void SPI1_IRQHandler(void);
void SPI2_IRQHandler(void);
void USART1_IRQHandler(void);
void USART2_IRQHandler(void);
void ERTCAlarm_IRQHandler(void);

/* add user code begin exported functions */

/* add user code end exported functions */

#ifdef __cplusplus
}
#endif

#endif
