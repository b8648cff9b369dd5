/**
  **************************************************************************
  * @file     mq48t110_i2c.h
  * @brief    inter-integrated circuit bus driver of the mq48t110
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

#ifndef __MQ48T110_I2C_H
#define __MQ48T110_I2C_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup i2c
  * @{
  */

typedef enum
{
  I2C_FSMODE_DUTY_2_1 = 0, I2C_FSMODE_DUTY_16_9 = 1
} i2c_fsmode_duty_cycle_type;

typedef enum
{
  I2C_ADDRESS_MODE_7BIT = 0, I2C_ADDRESS_MODE_10BIT = 1
} i2c_address_mode_type;

typedef enum
{
  I2C_SMBUS_MODE_DEVICE = 0, I2C_SMBUS_MODE_HOST = 1
} i2c_smbus_mode_set_type;

/* interrupts and flags */
#define I2C_ERR_INT                      ((uint32_t)0x00000100)
#define I2C_EVT_INT                      ((uint32_t)0x00000200)
#define I2C_DATA_INT                     ((uint32_t)0x00000400)
#define I2C_STARTF_FLAG                  ((uint32_t)0x00000001)
#define I2C_ADDR7F_FLAG                  ((uint32_t)0x00000002)
#define I2C_TDC_FLAG                     ((uint32_t)0x00000004)
#define I2C_RDBF_FLAG                    ((uint32_t)0x00000040)
#define I2C_TDBE_FLAG                    ((uint32_t)0x00000080)

void i2c_init(i2c_type *i2c_x, i2c_fsmode_duty_cycle_type duty, uint32_t speed);
void i2c_own_address1_set(i2c_type *i2c_x, i2c_address_mode_type mode, uint16_t address);
void i2c_own_address2_set(i2c_type *i2c_x, uint8_t address);
void i2c_own_address2_enable(i2c_type *i2c_x, confirm_state new_state);
void i2c_clock_stretch_enable(i2c_type *i2c_x, confirm_state new_state);
void i2c_smbus_enable(i2c_type *i2c_x, confirm_state new_state);
void i2c_smbus_mode_set(i2c_type *i2c_x, i2c_smbus_mode_set_type mode);
void i2c_arp_mode_enable(i2c_type *i2c_x, confirm_state new_state);
void i2c_dma_enable(i2c_type *i2c_x, confirm_state new_state);
void i2c_enable(i2c_type *i2c_x, confirm_state new_state);
void i2c_interrupt_enable(i2c_type *i2c_x, uint32_t source, confirm_state new_state);
flag_status i2c_flag_get(i2c_type *i2c_x, uint32_t flag);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
