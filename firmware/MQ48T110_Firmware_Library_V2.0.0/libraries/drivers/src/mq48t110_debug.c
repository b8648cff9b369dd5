/**
  **************************************************************************
  * @file     mq48t110_debug.c
  * @brief    debug support driver of the mq48t110
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

#ifdef DEBUG_MODULE_ENABLED

/**
  * @brief  the device identification.
  * @param  none
  * @retval uint32_t
  */
uint32_t debug_device_id_get(void)
{
  return DEBUGMCU->idcode;
}

/**
  * @brief  keeps the debugger connected in a low power mode.
  * @param  low_power_mode: DEBUG_SLEEP, DEBUG_DEEPSLEEP, DEBUG_STANDBY
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void debug_low_power_mode_set(uint32_t low_power_mode, confirm_state new_state)
{
  if(new_state != FALSE)
  {
    DEBUGMCU->ctrl |= low_power_mode;
  }
  else
  {
    DEBUGMCU->ctrl &= ~low_power_mode;
  }
}

/**
  * @brief  pauses apb1 peripherals while the core is halted.
  * @param  apb1_periph: DEBUG_xxx_PAUSE values of apb1
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void debug_apb1_periph_mode_set(uint32_t apb1_periph, confirm_state new_state)
{
  if(new_state != FALSE)
  {
    DEBUGMCU->apb1_pause |= apb1_periph;
  }
  else
  {
    DEBUGMCU->apb1_pause &= ~apb1_periph;
  }
}

/**
  * @brief  pauses apb2 peripherals while the core is halted.
  * @param  apb2_periph: DEBUG_xxx_PAUSE values of apb2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void debug_apb2_periph_mode_set(uint32_t apb2_periph, confirm_state new_state)
{
  if(new_state != FALSE)
  {
    DEBUGMCU->apb2_pause |= apb2_periph;
  }
  else
  {
    DEBUGMCU->apb2_pause &= ~apb2_periph;
  }
}

#endif
