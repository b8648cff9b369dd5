/**
  **************************************************************************
  * @file     mq48t110_misc.c
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

#include "mq48t110_conf.h"

#ifdef MISC_MODULE_ENABLED

/**
  * @brief  sets how the priority bits divide into preemption and sub priority.
  * @param  priority_group: a NVIC_PRIORITY_GROUP_n value
  * @retval none
  */
void nvic_priority_group_config(nvic_priority_group_type priority_group)
{
  MQ_SCB->aircr = MQ_SCB_AIRCR_VECTKEY |
                  (((uint32_t)priority_group << MQ_SCB_AIRCR_PRIGROUP_POS) &
                   MQ_SCB_AIRCR_PRIGROUP_MASK);
}

/**
  * @brief  sets the priority of an interrupt and enables it; a system exception only takes the priority.
  * @param  irqn: the interrupt number
  * @param  preempt_priority: preemption priority
  * @param  sub_priority: sub priority
  * @retval none
  */
void nvic_irq_enable(IRQn_Type irqn, uint32_t preempt_priority, uint32_t sub_priority)
{
  const uint32_t grouping = mq_nvic_priority_grouping_get();
  uint32_t preempt_bits = grouping >= 3 ? 7 - grouping : MQ_NVIC_PRIORITY_BITS;
  uint32_t sub_bits;
  if(preempt_bits > MQ_NVIC_PRIORITY_BITS)
  {
    preempt_bits = MQ_NVIC_PRIORITY_BITS;
  }
  sub_bits = MQ_NVIC_PRIORITY_BITS - preempt_bits;
  mq_nvic_priority_set((int32_t)irqn,
                       ((preempt_priority & (((uint32_t)1 << preempt_bits) - 1)) << sub_bits) |
                       (sub_priority & (((uint32_t)1 << sub_bits) - 1)));
  mq_nvic_enable((int32_t)irqn);
}

/**
  * @brief  disables an interrupt.
  * @param  irqn: the interrupt number
  * @retval none
  */
void nvic_irq_disable(IRQn_Type irqn)
{
  mq_nvic_disable((int32_t)irqn);
}

/**
  * @brief  resets the system.
  * @param  none
  * @retval none
  */
void nvic_system_reset(void)
{
  mq_system_reset();
}

/**
  * @brief  selects the clock of the system timer.
  * @param  source: a SYSTICK_CLOCK_SOURCE_xxx value
  * @retval none
  */
void systick_clock_source_config(systick_clock_source_type source)
{
  if(source == SYSTICK_CLOCK_SOURCE_AHBCLK_NODIV)
  {
    MQ_SYSTICK->ctrl |= MQ_SYSTICK_CTRL_CLKSOURCE;
  }
  else
  {
    MQ_SYSTICK->ctrl &= ~MQ_SYSTICK_CTRL_CLKSOURCE;
  }
}

/**
  * @brief  starts the system timer with its interrupt every `ticks` counts.
  * @param  ticks: counts between two interrupts
  * @retval uint32_t
  */
uint32_t systick_interrupt_config(uint32_t ticks)
{
  if(ticks == 0 || (ticks - 1) > MQ_SYSTICK_LOAD_MAX)
  {
    return 1;
  }
  MQ_SYSTICK->load = ticks - 1;
  mq_nvic_priority_set((int32_t)SysTick_IRQn, ((uint32_t)1 << MQ_NVIC_PRIORITY_BITS) - 1);
  MQ_SYSTICK->val = 0;
  MQ_SYSTICK->ctrl |= MQ_SYSTICK_CTRL_TICKINT | MQ_SYSTICK_CTRL_ENABLE;
  return 0;
}

#endif
