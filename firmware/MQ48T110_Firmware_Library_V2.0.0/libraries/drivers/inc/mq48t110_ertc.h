/**
  **************************************************************************
  * @file     mq48t110_ertc.h
  * @brief    enhanced real time clock driver of the mq48t110
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

#ifndef __MQ48T110_ERTC_H
#define __MQ48T110_ERTC_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup ertc
  * @{
  */

typedef enum
{
  ERTC_HOUR_MODE_24 = 0, ERTC_HOUR_MODE_12 = 1
} ertc_hour_mode_set_type;

typedef enum
{
  ERTC_AM = 0, ERTC_PM = 1
} ertc_am_pm_type;

/**
  * @brief daylight saving: add or remove an hour now
  */
typedef enum
{
  ERTC_DST_NONE = 0, ERTC_DST_ADD_1H = 1, ERTC_DST_DEC_1H = 2
} ertc_dst_operation_type;

typedef enum
{
  ERTC_ALA = 0, ERTC_ALB = 1
} ertc_alarm_type;

typedef enum
{
  ERTC_SLECT_DATE = 0, ERTC_SLECT_WEEK = 1
} ertc_week_date_select_type;

/* alarm fields that are not compared */
#define ERTC_ALARM_NO_MASK               ((uint32_t)0x00000000)
#define ERTC_ALARM_MASK_SEC              ((uint32_t)0x00000080)
#define ERTC_ALARM_MASK_MIN              ((uint32_t)0x00008000)
#define ERTC_ALARM_MASK_HOUR             ((uint32_t)0x00800000)
#define ERTC_ALARM_MASK_DATE_WEEK        ((uint32_t)0x80000000)
#define ERTC_ALARM_MASK_ALL              ((uint32_t)0x80808080)

typedef enum
{
  ERTC_WAT_CLK_ERTCCLK_DIV16 = 0, ERTC_WAT_CLK_ERTCCLK_DIV8 = 1, ERTC_WAT_CLK_ERTCCLK_DIV4 = 2,
  ERTC_WAT_CLK_ERTCCLK_DIV2 = 3, ERTC_WAT_CLK_CK_B_16BITS = 4, ERTC_WAT_CLK_CK_B_17BITS = 6
} ertc_wakeup_clock_type;

typedef enum
{
  ERTC_OUTPUT_DISABLE = 0, ERTC_OUTPUT_ALARM_A = 1, ERTC_OUTPUT_ALARM_B = 2,
  ERTC_OUTPUT_WAKEUP = 3
} ertc_output_source_type;

typedef enum
{
  ERTC_OUTPUT_POLARITY_HIGH = 0, ERTC_OUTPUT_POLARITY_LOW = 1
} ertc_output_polarity_type;

typedef enum
{
  ERTC_OUTPUT_TYPE_OPEN_DRAIN = 0, ERTC_OUTPUT_TYPE_PUSH_PULL = 1
} ertc_output_type;

typedef enum
{
  ERTC_CALIBRATION_OUTPUT_512HZ = 0, ERTC_CALIBRATION_OUTPUT_1HZ = 1
} ertc_cal_output_select_type;

typedef enum
{
  ERTC_TAMPER_1 = 0
} ertc_tamper_select_type;

typedef enum
{
  ERTC_TAMPER_EDGE_RISING = 0, ERTC_TAMPER_EDGE_FALLING = 1
} ertc_tamper_valid_edge_type;

typedef enum
{
  ERTC_TIMESTAMP_EDGE_RISING = 0, ERTC_TIMESTAMP_EDGE_FALLING = 1
} ertc_timestamp_valid_edge_type;

/* interrupts (bits of ctrl) */
#define ERTC_TP_INT                      ((uint32_t)0x00000004)
#define ERTC_ALA_INT                     ((uint32_t)0x00001000)
#define ERTC_ALB_INT                     ((uint32_t)0x00002000)
#define ERTC_WAT_INT                     ((uint32_t)0x00004000)
#define ERTC_TS_INT                      ((uint32_t)0x00008000)

/* flags (bits of sts) */
#define ERTC_ALAF_FLAG                   ((uint32_t)0x00000100)
#define ERTC_ALBF_FLAG                   ((uint32_t)0x00000200)
#define ERTC_WATF_FLAG                   ((uint32_t)0x00000400)
#define ERTC_TSF_FLAG                    ((uint32_t)0x00000800)
#define ERTC_TP1F_FLAG                   ((uint32_t)0x00002000)
#define ERTC_UPDF_FLAG                   ((uint32_t)0x00000020)

error_status ertc_reset(void);
error_status ertc_wait_update(void);
void ertc_hour_mode_set(ertc_hour_mode_set_type mode);
error_status ertc_divider_set(uint16_t div_a, uint16_t div_b);
error_status ertc_date_set(uint8_t year, uint8_t month, uint8_t date, uint8_t week);
error_status ertc_time_set(uint8_t hour, uint8_t min, uint8_t sec, ertc_am_pm_type ampm);
void ertc_daylight_set(ertc_dst_operation_type operation, confirm_state save);
void ertc_alarm_mask_set(ertc_alarm_type alarm_x, uint32_t mask);
void ertc_alarm_week_date_select(ertc_alarm_type alarm_x, ertc_week_date_select_type wk);
void ertc_alarm_set(ertc_alarm_type alarm_x, uint8_t week_date, uint8_t hour, uint8_t min,
                    uint8_t sec, ertc_am_pm_type ampm);
error_status ertc_alarm_enable(ertc_alarm_type alarm_x, confirm_state new_state);
void ertc_interrupt_enable(uint32_t source, confirm_state new_state);
void ertc_wakeup_clock_set(ertc_wakeup_clock_type clock);
void ertc_wakeup_counter_set(uint32_t counter);
error_status ertc_wakeup_enable(confirm_state new_state);
void ertc_output_set(ertc_output_source_type source, ertc_output_polarity_type polarity,
                     ertc_output_type type);
void ertc_calibration_output_set(ertc_cal_output_select_type output);
void ertc_tamper_valid_edge_set(ertc_tamper_select_type tamper_x, ertc_tamper_valid_edge_type trigger);
void ertc_tamper_enable(ertc_tamper_select_type tamper_x, confirm_state new_state);
void ertc_timestamp_valid_edge_set(ertc_timestamp_valid_edge_type edge);
void ertc_timestamp_enable(confirm_state new_state);
void ertc_refer_clock_detect_enable(confirm_state new_state);
flag_status ertc_flag_get(uint32_t flag);
void ertc_flag_clear(uint32_t flag);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
