/**
  **************************************************************************
  * @file     mq48t110_i2c.c
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

#include "mq48t110_conf.h"

#ifdef I2C_MODULE_ENABLED

/**
  * @brief  sets the bus speed from the apb1 clock; above 100 khz the fast mode with its duty.
  * @param  i2c_x: I2C1 or I2C2
  * @param  duty: a I2C_FSMODE_DUTY_xxx value
  * @param  speed: bus speed in hz
  * @retval none
  */
void i2c_init(i2c_type *i2c_x, i2c_fsmode_duty_cycle_type duty, uint32_t speed)
{
  crm_clocks_freq_type clocks;
  uint32_t apb_mhz;
  uint32_t value;
  crm_clocks_freq_get(&clocks);
  apb_mhz = clocks.apb1_freq / 1000000;
  MQ_BIT_WRITE(i2c_x->ctrl1, 0, FALSE);
  MQ_FIELD_WRITE(i2c_x->ctrl2, 0, 8, apb_mhz);
  if(speed == 0)
  {
    speed = 100000;
  }
  if(speed <= 100000)
  {
    value = clocks.apb1_freq / (speed * 2);
    if(value < 4)
    {
      value = 4;
    }
    i2c_x->clkctrl = value & (uint32_t)0x0FFF;
    i2c_x->tmrise = apb_mhz + 1;
  }
  else
  {
    value = duty == I2C_FSMODE_DUTY_2_1 ? clocks.apb1_freq / (speed * 3) :
                                          clocks.apb1_freq / (speed * 25);
    if(value == 0)
    {
      value = 1;
    }
    i2c_x->clkctrl = (value & (uint32_t)0x0FFF) | ((uint32_t)1 << 15) |
                     (duty == I2C_FSMODE_DUTY_16_9 ? (uint32_t)1 << 14 : 0);
    i2c_x->tmrise = (apb_mhz * 300) / 1000 + 1;
  }
}

/**
  * @brief  sets the own address 1 and its length.
  * @param  i2c_x: I2C1 or I2C2
  * @param  mode: a I2C_ADDRESS_MODE_xxx value
  * @param  address: the address
  * @retval none
  */
void i2c_own_address1_set(i2c_type *i2c_x, i2c_address_mode_type mode, uint16_t address)
{
  i2c_x->oaddr1 = (address & (uint32_t)0x03FF) | ((uint32_t)mode << 15);
}

/**
  * @brief  sets the own address 2.
  * @param  i2c_x: I2C1 or I2C2
  * @param  address: the 7-bit address, shifted left
  * @retval none
  */
void i2c_own_address2_set(i2c_type *i2c_x, uint8_t address)
{
  MQ_FIELD_WRITE(i2c_x->oaddr2, 1, 7, address >> 1);
}

/**
  * @brief  answers to the own address 2 as well.
  * @param  i2c_x: I2C1 or I2C2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void i2c_own_address2_enable(i2c_type *i2c_x, confirm_state new_state)
{
  MQ_BIT_WRITE(i2c_x->oaddr2, 0, new_state);
}

/**
  * @brief  lets a slave stretch the clock.
  * @param  i2c_x: I2C1 or I2C2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void i2c_clock_stretch_enable(i2c_type *i2c_x, confirm_state new_state)
{
  MQ_BIT_WRITE(i2c_x->ctrl1, 7, new_state == FALSE ? TRUE : FALSE);
}

/**
  * @brief  switches the smbus mode.
  * @param  i2c_x: I2C1 or I2C2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void i2c_smbus_enable(i2c_type *i2c_x, confirm_state new_state)
{
  MQ_BIT_WRITE(i2c_x->ctrl1, 1, new_state);
}

/**
  * @brief  selects the smbus role.
  * @param  i2c_x: I2C1 or I2C2
  * @param  mode: a I2C_SMBUS_MODE_xxx value
  * @retval none
  */
void i2c_smbus_mode_set(i2c_type *i2c_x, i2c_smbus_mode_set_type mode)
{
  MQ_FIELD_WRITE(i2c_x->ctrl1, 3, 1, mode);
}

/**
  * @brief  switches the smbus address resolution protocol.
  * @param  i2c_x: I2C1 or I2C2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void i2c_arp_mode_enable(i2c_type *i2c_x, confirm_state new_state)
{
  MQ_BIT_WRITE(i2c_x->ctrl1, 4, new_state);
}

/**
  * @brief  lets the data register request dma transfers.
  * @param  i2c_x: I2C1 or I2C2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void i2c_dma_enable(i2c_type *i2c_x, confirm_state new_state)
{
  MQ_BIT_WRITE(i2c_x->ctrl2, 11, new_state);
}

/**
  * @brief  switches the i2c on or off.
  * @param  i2c_x: I2C1 or I2C2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void i2c_enable(i2c_type *i2c_x, confirm_state new_state)
{
  MQ_BIT_WRITE(i2c_x->ctrl1, 0, new_state);
}

/**
  * @brief  enables or disables interrupts.
  * @param  i2c_x: I2C1 or I2C2
  * @param  source: I2C_xxx_INT values
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void i2c_interrupt_enable(i2c_type *i2c_x, uint32_t source, confirm_state new_state)
{
  if(new_state != FALSE)
  {
    i2c_x->ctrl2 |= source;
  }
  else
  {
    i2c_x->ctrl2 &= ~source;
  }
}

/**
  * @brief  reads a flag.
  * @param  i2c_x: I2C1 or I2C2
  * @param  flag: a I2C_xxx_FLAG value
  * @retval flag_status
  */
flag_status i2c_flag_get(i2c_type *i2c_x, uint32_t flag)
{
  return (i2c_x->sts1 & flag) != 0 ? SET : RESET;
}

#endif
