/**
  **************************************************************************
  * @file     mq48t110_flash.c
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

#include "mq48t110_conf.h"

#ifdef FLASH_MODULE_ENABLED

/**
  * @brief  sets the wait cycles of flash accesses for the system clock.
  * @param  psr: a FLASH_WAIT_CYCLE_n value
  * @retval none
  */
void flash_psr_set(uint32_t psr)
{
  MQ_FIELD_WRITE(FLASH->psr, 0, 3, psr);
}

/**
  * @brief  unlocks the flash programming interface.
  * @param  none
  * @retval none
  */
void flash_unlock(void)
{
  FLASH->unlock = FLASH_UNLOCK_KEY1;
  FLASH->unlock = FLASH_UNLOCK_KEY2;
}

/**
  * @brief  locks the flash programming interface.
  * @param  none
  * @retval none
  */
void flash_lock(void)
{
  FLASH->ctrl |= ((uint32_t)1 << 7);
}

/**
  * @brief  reads a status flag.
  * @param  flag: a FLASH_xxx_FLAG value
  * @retval flag_status
  */
flag_status flash_flag_get(uint32_t flag)
{
  return (FLASH->sts & flag) != 0 ? SET : RESET;
}

/**
  * @brief  clears status flags.
  * @param  flag: FLASH_xxx_FLAG values
  * @retval none
  */
void flash_flag_clear(uint32_t flag)
{
  FLASH->sts = flag;
}

#endif
