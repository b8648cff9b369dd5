/**
  **************************************************************************
  * @file     mq48t110_conf.h
  * @brief    configuration of the firmware library
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

/* define to prevent recursive inclusion -------------------------------------*/
#ifndef __MQ48T110_CONF_H
#define __MQ48T110_CONF_H

#ifdef __cplusplus
extern "C" {
#endif

/**
  * @brief in the following line adjust the value of the high speed external
  *        crystal (hext) used in your application
  */
#if !defined HEXT_VALUE
#define HEXT_VALUE               ((uint32_t)8000000) /*!< value of the high speed external crystal in hz */
#endif

/**
  * @brief in the following line adjust the high speed external crystal (hext)
  *        startup timeout value
  */
#define HEXT_STARTUP_TIMEOUT     ((uint16_t)0x3000) /*!< time out for hext start up */
#define HICK_VALUE               ((uint32_t)48000000) /*!< value of the high speed internal clock in hz */
#define LEXT_VALUE               ((uint32_t)32768) /*!< value of the low speed external crystal in hz */

/* module define -------------------------------------------------------------*/
#define CRM_MODULE_ENABLED
#define CMP_MODULE_ENABLED
#define TMR_MODULE_ENABLED
#define ERTC_MODULE_ENABLED
#define GPIO_MODULE_ENABLED
#define I2C_MODULE_ENABLED
#define USART_MODULE_ENABLED
#define PWC_MODULE_ENABLED
#define ADC_MODULE_ENABLED
#define SPI_MODULE_ENABLED
#define DMA_MODULE_ENABLED
#define DEBUG_MODULE_ENABLED
#define FLASH_MODULE_ENABLED
#define CRC_MODULE_ENABLED
#define WWDT_MODULE_ENABLED
#define WDT_MODULE_ENABLED
#define EXINT_MODULE_ENABLED
#define MISC_MODULE_ENABLED
#define SCFG_MODULE_ENABLED

/* includes ------------------------------------------------------------------*/
#ifdef CRM_MODULE_ENABLED
#include "mq48t110_crm.h"
#endif
#ifdef CMP_MODULE_ENABLED
#include "mq48t110_cmp.h"
#endif
#ifdef TMR_MODULE_ENABLED
#include "mq48t110_tmr.h"
#endif
#ifdef ERTC_MODULE_ENABLED
#include "mq48t110_ertc.h"
#endif
#ifdef GPIO_MODULE_ENABLED
#include "mq48t110_gpio.h"
#endif
#ifdef I2C_MODULE_ENABLED
#include "mq48t110_i2c.h"
#endif
#ifdef USART_MODULE_ENABLED
#include "mq48t110_usart.h"
#endif
#ifdef PWC_MODULE_ENABLED
#include "mq48t110_pwc.h"
#endif
#ifdef ADC_MODULE_ENABLED
#include "mq48t110_adc.h"
#endif
#ifdef SPI_MODULE_ENABLED
#include "mq48t110_spi.h"
#endif
#ifdef DMA_MODULE_ENABLED
#include "mq48t110_dma.h"
#endif
#ifdef DEBUG_MODULE_ENABLED
#include "mq48t110_debug.h"
#endif
#ifdef FLASH_MODULE_ENABLED
#include "mq48t110_flash.h"
#endif
#ifdef CRC_MODULE_ENABLED
#include "mq48t110_crc.h"
#endif
#ifdef WWDT_MODULE_ENABLED
#include "mq48t110_wwdt.h"
#endif
#ifdef WDT_MODULE_ENABLED
#include "mq48t110_wdt.h"
#endif
#ifdef EXINT_MODULE_ENABLED
#include "mq48t110_exint.h"
#endif
#ifdef MISC_MODULE_ENABLED
#include "mq48t110_misc.h"
#endif
#ifdef SCFG_MODULE_ENABLED
#include "mq48t110_scfg.h"
#endif

#ifdef __cplusplus
}
#endif

#endif
