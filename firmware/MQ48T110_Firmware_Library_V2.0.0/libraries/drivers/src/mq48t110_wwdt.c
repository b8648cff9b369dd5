/**
  **************************************************************************
  * @file     mq48t110_wwdt.c
  * @brief    window watchdog timer driver of the mq48t110
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

#ifdef WWDT_MODULE_ENABLED

/**
  * @brief  sets the divider of the apb1 clock.
  * @param  division: a WWDT_PCLK1_DIV_n value
  * @retval none
  */
void wwdt_divider_set(wwdt_division_type division)
{
  MQ_FIELD_WRITE(WWDT->cfg, 7, 2, division);
}

/**
  * @brief  sets the window: the counter may be reloaded only below it.
  * @param  window_counter: 0x40 to 0x7F
  * @retval none
  */
void wwdt_window_counter_set(uint8_t window_counter)
{
  MQ_FIELD_WRITE(WWDT->cfg, 0, 7, window_counter);
}

/**
  * @brief  reloads the counter.
  * @param  counter: 0x40 to 0x7F
  * @retval none
  */
void wwdt_counter_set(uint8_t counter)
{
  MQ_FIELD_WRITE(WWDT->ctrl, 0, 7, counter);
}

/**
  * @brief  starts the window watchdog with a counter value.
  * @param  counter: 0x40 to 0x7F
  * @retval none
  */
void wwdt_enable(uint8_t counter)
{
  WWDT->ctrl = ((uint32_t)1 << 7) | (counter & (uint32_t)0x7F);
}

/**
  * @brief  enables the early wakeup interrupt.
  * @param  none
  * @retval none
  */
void wwdt_interrupt_enable(void)
{
  WWDT->cfg |= (uint32_t)1 << 9;
}

/**
  * @brief  reads the early wakeup flag.
  * @param  none
  * @retval flag_status
  */
flag_status wwdt_flag_get(void)
{
  return (WWDT->sts & WWDT_EVENT_FLAG) != 0 ? SET : RESET;
}

/**
  * @brief  clears the early wakeup flag.
  * @param  none
  * @retval none
  */
void wwdt_flag_clear(void)
{
  WWDT->sts = 0;
}

#endif
