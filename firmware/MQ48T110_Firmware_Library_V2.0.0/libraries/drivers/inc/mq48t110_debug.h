/**
  **************************************************************************
  * @file     mq48t110_debug.h
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

#ifndef __MQ48T110_DEBUG_H
#define __MQ48T110_DEBUG_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup debug
  * @{
  */

#define DEBUG_SLEEP                      ((uint32_t)0x00000001)
#define DEBUG_DEEPSLEEP                  ((uint32_t)0x00000002)
#define DEBUG_STANDBY                    ((uint32_t)0x00000004)

#define DEBUG_TMR3_PAUSE                 ((uint32_t)0x00000002)
#define DEBUG_TMR6_PAUSE                 ((uint32_t)0x00000010)
#define DEBUG_TMR14_PAUSE                ((uint32_t)0x00000100)
#define DEBUG_ERTC_PAUSE                 ((uint32_t)0x00000400)
#define DEBUG_WWDT_PAUSE                 ((uint32_t)0x00000800)
#define DEBUG_WDT_PAUSE                  ((uint32_t)0x00001000)
#define DEBUG_I2C1_SMBUS_TIMEOUT         ((uint32_t)0x00200000)

#define DEBUG_TMR1_PAUSE                 ((uint32_t)0x00000800)
#define DEBUG_TMR15_PAUSE                ((uint32_t)0x00010000)
#define DEBUG_TMR16_PAUSE                ((uint32_t)0x00020000)
#define DEBUG_TMR17_PAUSE                ((uint32_t)0x00040000)

uint32_t debug_device_id_get(void);
void debug_low_power_mode_set(uint32_t low_power_mode, confirm_state new_state);
void debug_apb1_periph_mode_set(uint32_t apb1_periph, confirm_state new_state);
void debug_apb2_periph_mode_set(uint32_t apb2_periph, confirm_state new_state);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
