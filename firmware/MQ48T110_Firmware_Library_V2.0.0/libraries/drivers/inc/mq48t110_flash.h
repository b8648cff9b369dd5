/**
  **************************************************************************
  * @file     mq48t110_flash.h
  * @brief    flash memory interface driver of the mq48t110
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

#ifndef __MQ48T110_FLASH_H
#define __MQ48T110_FLASH_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup flash
  * @{
  */

/**
  * @brief flash wait cycles of the performance select register
  */
typedef enum
{
  FLASH_WAIT_CYCLE_0 = 0, FLASH_WAIT_CYCLE_1 = 1, FLASH_WAIT_CYCLE_2 = 2, FLASH_WAIT_CYCLE_3 = 3,
  FLASH_WAIT_CYCLE_4 = 4, FLASH_WAIT_CYCLE_5 = 5, FLASH_WAIT_CYCLE_6 = 6, FLASH_WAIT_CYCLE_7 = 7
} flash_wait_cycle_type;

#define FLASH_OBF_FLAG                   ((uint32_t)0x00000001) /*!< operation busy */
#define FLASH_PRGMERR_FLAG               ((uint32_t)0x00000004) /*!< programming error */
#define FLASH_EPPERR_FLAG                ((uint32_t)0x00000010) /*!< protection error */
#define FLASH_ODF_FLAG                   ((uint32_t)0x00000020) /*!< operation done */

#define FLASH_UNLOCK_KEY1                ((uint32_t)0x45670123)
#define FLASH_UNLOCK_KEY2                ((uint32_t)0xCDEF89AB)

void flash_psr_set(uint32_t psr);
void flash_unlock(void);
void flash_lock(void);
flag_status flash_flag_get(uint32_t flag);
void flash_flag_clear(uint32_t flag);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
