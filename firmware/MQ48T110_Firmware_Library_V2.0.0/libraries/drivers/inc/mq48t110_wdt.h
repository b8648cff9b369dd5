/**
  **************************************************************************
  * @file     mq48t110_wdt.h
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

#ifndef __MQ48T110_WDT_H
#define __MQ48T110_WDT_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup wdt
  * @{
  */

typedef enum
{
  WDT_CLK_DIV_4 = 0, WDT_CLK_DIV_8 = 1, WDT_CLK_DIV_16 = 2, WDT_CLK_DIV_32 = 3,
  WDT_CLK_DIV_64 = 4, WDT_CLK_DIV_128 = 5, WDT_CLK_DIV_256 = 6
} wdt_division_type;

#define WDT_DIVF_UPDATE_FLAG             ((uint16_t)0x0001)
#define WDT_RLDF_UPDATE_FLAG             ((uint16_t)0x0002)
#define WDT_WINF_UPDATE_FLAG             ((uint16_t)0x0004)

void wdt_enable(void);
void wdt_counter_reload(void);
void wdt_reload_value_set(uint16_t reload_value);
void wdt_divider_set(wdt_division_type division);
void wdt_register_write_enable(confirm_state new_state);
void wdt_window_counter_set(uint16_t window_cnt);
flag_status wdt_flag_get(uint16_t wdt_flag);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
