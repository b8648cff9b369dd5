/**
  **************************************************************************
  * @file     mq48t110_pwc.c
  * @brief    power control driver of the mq48t110
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

#ifdef PWC_MODULE_ENABLED

/**
  * @brief  allows or forbids writes to the battery powered domain (ertc, lext).
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void pwc_battery_powered_domain_access(confirm_state new_state)
{
  MQ_BIT_WRITE(PWC->ctrl, 8, new_state);
}

/**
  * @brief  selects the threshold of the power voltage monitor.
  * @param  pvm_voltage: a PWC_PVM_VOLTAGE_xxx value
  * @retval none
  */
void pwc_pvm_level_select(pwc_pvm_voltage_type pvm_voltage)
{
  MQ_FIELD_WRITE(PWC->ctrl, 5, 3, pvm_voltage);
}

/**
  * @brief  switches the power voltage monitor on or off.
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void pwc_power_voltage_monitor_enable(confirm_state new_state)
{
  MQ_BIT_WRITE(PWC->ctrl, 4, new_state);
}

/**
  * @brief  lets a wakeup pin leave the standby mode.
  * @param  pin_num: PWC_WAKEUP_PIN_n values
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void pwc_wakeup_pin_enable(uint32_t pin_num, confirm_state new_state)
{
  if(new_state != FALSE)
  {
    PWC->ctrlsts |= pin_num;
  }
  else
  {
    PWC->ctrlsts &= ~pin_num;
  }
}

/**
  * @brief  reads a flag.
  * @param  flag: a PWC_xxx_FLAG value
  * @retval flag_status
  */
flag_status pwc_flag_get(uint32_t flag)
{
  return (PWC->ctrlsts & flag) != 0 ? SET : RESET;
}

/**
  * @brief  clears the wakeup and standby flags.
  * @param  flag: PWC_WAKEUP_FLAG or PWC_STANDBY_FLAG
  * @retval none
  */
void pwc_flag_clear(uint32_t flag)
{
  PWC->ctrl |= (flag & (PWC_WAKEUP_FLAG | PWC_STANDBY_FLAG)) << 2;
}

#endif
