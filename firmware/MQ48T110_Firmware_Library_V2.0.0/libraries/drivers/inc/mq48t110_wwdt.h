/**
  **************************************************************************
  * @file     mq48t110_wwdt.h
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

#ifndef __MQ48T110_WWDT_H
#define __MQ48T110_WWDT_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup wwdt
  * @{
  */

typedef enum
{
  WWDT_PCLK1_DIV_4096 = 0, WWDT_PCLK1_DIV_8192 = 1, WWDT_PCLK1_DIV_16384 = 2,
  WWDT_PCLK1_DIV_32768 = 3
} wwdt_division_type;

#define WWDT_EVENT_FLAG                  ((uint32_t)0x00000001)

void wwdt_divider_set(wwdt_division_type division);
void wwdt_window_counter_set(uint8_t window_counter);
void wwdt_counter_set(uint8_t counter);
void wwdt_enable(uint8_t counter);
void wwdt_interrupt_enable(void);
flag_status wwdt_flag_get(void);
void wwdt_flag_clear(void);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
