/**
  **************************************************************************
  * @file     mq48t110_misc.h
  * @brief    interrupt controller and system timer helpers of the mq48t110
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

#ifndef __MQ48T110_MISC_H
#define __MQ48T110_MISC_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup misc
  * @{
  */

/**
  * @brief priority grouping: n bits of preemption priority, 4 - n of sub priority
  */
typedef enum
{
  NVIC_PRIORITY_GROUP_0                  = 7, /*!< 0 bits preemption, 4 bits sub priority */
  NVIC_PRIORITY_GROUP_1                  = 6, /*!< 1 bit preemption, 3 bits sub priority */
  NVIC_PRIORITY_GROUP_2                  = 5, /*!< 2 bits preemption, 2 bits sub priority */
  NVIC_PRIORITY_GROUP_3                  = 4, /*!< 3 bits preemption, 1 bit sub priority */
  NVIC_PRIORITY_GROUP_4                  = 3  /*!< 4 bits preemption, 0 bits sub priority */
} nvic_priority_group_type;

/**
  * @brief clock of the system timer
  */
typedef enum
{
  SYSTICK_CLOCK_SOURCE_AHBCLK_DIV8       = 0,
  SYSTICK_CLOCK_SOURCE_AHBCLK_NODIV      = 1
} systick_clock_source_type;

void nvic_priority_group_config(nvic_priority_group_type priority_group);
void nvic_irq_enable(IRQn_Type irqn, uint32_t preempt_priority, uint32_t sub_priority);
void nvic_irq_disable(IRQn_Type irqn);
void nvic_system_reset(void);
void systick_clock_source_config(systick_clock_source_type source);
uint32_t systick_interrupt_config(uint32_t ticks);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
