/**
  **************************************************************************
  * @file     mq48t110_pwc.h
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

#ifndef __MQ48T110_PWC_H
#define __MQ48T110_PWC_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup pwc
  * @{
  */

/**
  * @brief threshold of the power voltage monitor
  */
typedef enum
{
  PWC_PVM_VOLTAGE_2V3 = 1, PWC_PVM_VOLTAGE_2V4 = 2, PWC_PVM_VOLTAGE_2V5 = 3,
  PWC_PVM_VOLTAGE_2V6 = 4, PWC_PVM_VOLTAGE_2V7 = 5, PWC_PVM_VOLTAGE_2V8 = 6,
  PWC_PVM_VOLTAGE_2V9 = 7
} pwc_pvm_voltage_type;

/* wakeup pins */
#define PWC_WAKEUP_PIN_1                 ((uint32_t)0x00000100)
#define PWC_WAKEUP_PIN_2                 ((uint32_t)0x00000200)
#define PWC_WAKEUP_PIN_4                 ((uint32_t)0x00000800)
#define PWC_WAKEUP_PIN_6                 ((uint32_t)0x00002000)
#define PWC_WAKEUP_PIN_7                 ((uint32_t)0x00004000)

/* flags */
#define PWC_WAKEUP_FLAG                  ((uint32_t)0x00000001)
#define PWC_STANDBY_FLAG                 ((uint32_t)0x00000002)
#define PWC_PVM_OUTPUT_FLAG              ((uint32_t)0x00000004)

void pwc_battery_powered_domain_access(confirm_state new_state);
void pwc_pvm_level_select(pwc_pvm_voltage_type pvm_voltage);
void pwc_power_voltage_monitor_enable(confirm_state new_state);
void pwc_wakeup_pin_enable(uint32_t pin_num, confirm_state new_state);
flag_status pwc_flag_get(uint32_t flag);
void pwc_flag_clear(uint32_t flag);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
