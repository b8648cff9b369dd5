/**
  **************************************************************************
  * @file     mq48t110_wdt.c
  * @brief    watchdog timer driver of the mq48t110
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

#ifdef WDT_MODULE_ENABLED

/**
  * @brief  starts the watchdog; it can not be stopped until the next reset.
  * @param  none
  * @retval none
  */
void wdt_enable(void)
{
  WDT->cmd = (uint32_t)0xCCCC;
}

/**
  * @brief  reloads the counter.
  * @param  none
  * @retval none
  */
void wdt_counter_reload(void)
{
  WDT->cmd = (uint32_t)0xAAAA;
}

/**
  * @brief  sets the reload value.
  * @param  reload_value: 0 to 4095
  * @retval none
  */
void wdt_reload_value_set(uint16_t reload_value)
{
  WDT->rld = reload_value & (uint32_t)0x0FFF;
}

/**
  * @brief  sets the divider of the lick clock.
  * @param  division: a WDT_CLK_DIV_n value
  * @retval none
  */
void wdt_divider_set(wdt_division_type division)
{
  WDT->div = (uint32_t)division;
}

/**
  * @brief  allows or forbids writes to the divider, reload and window registers.
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void wdt_register_write_enable(confirm_state new_state)
{
  WDT->cmd = new_state != FALSE ? (uint32_t)0x5555 : (uint32_t)0x0000;
}

/**
  * @brief  sets the window value.
  * @param  window_cnt: 0 to 4095
  * @retval none
  */
void wdt_window_counter_set(uint16_t window_cnt)
{
  WDT->win = window_cnt & (uint32_t)0x0FFF;
}

/**
  * @brief  reads an update flag.
  * @param  wdt_flag: a WDT_xxx_FLAG value
  * @retval flag_status
  */
flag_status wdt_flag_get(uint16_t wdt_flag)
{
  return (WDT->sts & wdt_flag) != 0 ? SET : RESET;
}

#endif
