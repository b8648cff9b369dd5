/**
  **************************************************************************
  * @file     system_mq48t110.h
  * @brief    system start-up and core clock of the mq48t110
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

#ifndef __SYSTEM_MQ48T110_H
#define __SYSTEM_MQ48T110_H

#ifdef __cplusplus
extern "C" {
#endif

#include <stdint.h>

/* the core clock in hz, kept up to date by system_core_clock_update() */
extern unsigned int system_core_clock;

/**
  * @brief  brings the clock system to its reset state: hick as system clock,
  *         all dividers 1, pll off. called by the start-up code before main.
  */
void SystemInit(void);

/**
  * @brief  computes system_core_clock from the clock registers.
  */
void system_core_clock_update(void);

#ifdef __cplusplus
}
#endif

#endif
