/**
  **************************************************************************
  * @file     mq48t110_ertc.c
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

#include "mq48t110_conf.h"

#ifdef ERTC_MODULE_ENABLED

#define ERTC_TIMEOUT                     ((uint32_t)0x00100000)
#define ERTC_STS_INITF                   ((uint32_t)0x00000040)
#define ERTC_STS_IMEN                    ((uint32_t)0x00000080)
#define ERTC_STS_WATWF                   ((uint32_t)0x00000004)
#define ERTC_STS_ALAWF                   ((uint32_t)0x00000001)

/* two decimal digits of a value packed into one byte */
static uint32_t to_bcd(uint8_t value)
{
  return ((uint32_t)(value / 10) << 4) | (value % 10);
}

static void write_protect_disable(void)
{
  ERTC->wp = 0xCA;
  ERTC->wp = 0x53;
}

static void write_protect_enable(void)
{
  ERTC->wp = 0xFF;
}

/* enters the initialisation mode, in which time, date and dividers may change */
static error_status init_mode_enter(void)
{
  uint32_t counter = 0;
  ERTC->sts |= ERTC_STS_IMEN;
  while((ERTC->sts & ERTC_STS_INITF) == 0)
  {
    if(++counter > ERTC_TIMEOUT)
    {
      return ERROR;
    }
  }
  return SUCCESS;
}

static void init_mode_exit(void)
{
  ERTC->sts &= ~ERTC_STS_IMEN;
}
/**
  * @brief  returns the configuration registers of the ertc to their reset values; time and date stay.
  * @param  none
  * @retval error_status
  */
error_status ertc_reset(void)
{
  error_status status;
  write_protect_disable();
  status = init_mode_enter();
  if(status == SUCCESS)
  {
    ERTC->ctrl = 0;
    ERTC->wat = 0xFFFF;
    ERTC->ala = 0;
    ERTC->alb = 0;
    ERTC->tamp = 0;
    ERTC->ccal = 0;
  }
  init_mode_exit();
  write_protect_enable();
  return status;
}

/**
  * @brief  waits until the shadow registers hold the current time.
  * @param  none
  * @retval error_status
  */
error_status ertc_wait_update(void)
{
  uint32_t counter = 0;
  write_protect_disable();
  ERTC->sts &= ~ERTC_UPDF_FLAG;
  write_protect_enable();
  while((ERTC->sts & ERTC_UPDF_FLAG) == 0)
  {
    if(++counter > ERTC_TIMEOUT)
    {
      return ERROR;
    }
  }
  return SUCCESS;
}

/**
  * @brief  selects the 24 or 12 hour format.
  * @param  mode: a ERTC_HOUR_MODE_xx value
  * @retval none
  */
void ertc_hour_mode_set(ertc_hour_mode_set_type mode)
{
  write_protect_disable();
  MQ_FIELD_WRITE(ERTC->ctrl, 6, 1, mode);
  write_protect_enable();
}

/**
  * @brief  sets the dividers: ck_a = ertc clock / (div_a + 1), ck_b = ck_a / (div_b + 1).
  * @param  div_a: 0 to 127
  * @param  div_b: 0 to 32767
  * @retval error_status
  */
error_status ertc_divider_set(uint16_t div_a, uint16_t div_b)
{
  error_status status;
  write_protect_disable();
  status = init_mode_enter();
  if(status == SUCCESS)
  {
    ERTC->div = ((uint32_t)(div_a & 0x7F) << 16) | (div_b & (uint32_t)0x7FFF);
  }
  init_mode_exit();
  write_protect_enable();
  return status;
}

/**
  * @brief  sets the date.
  * @param  year: 0 to 99
  * @param  month: 1 to 12
  * @param  date: 1 to 31
  * @param  week: 1 to 7
  * @retval error_status
  */
error_status ertc_date_set(uint8_t year, uint8_t month, uint8_t date, uint8_t week)
{
  error_status status;
  write_protect_disable();
  status = init_mode_enter();
  if(status == SUCCESS)
  {
    ERTC->date = (to_bcd(year) << 16) | ((uint32_t)(week & 0x7) << 13) | (to_bcd(month) << 8) |
                 to_bcd(date);
  }
  init_mode_exit();
  write_protect_enable();
  return status;
}

/**
  * @brief  sets the time.
  * @param  hour: 0 to 23, or 1 to 12
  * @param  min: 0 to 59
  * @param  sec: 0 to 59
  * @param  ampm: ERTC_AM or ERTC_PM
  * @retval error_status
  */
error_status ertc_time_set(uint8_t hour, uint8_t min, uint8_t sec, ertc_am_pm_type ampm)
{
  error_status status;
  write_protect_disable();
  status = init_mode_enter();
  if(status == SUCCESS)
  {
    ERTC->time = ((uint32_t)ampm << 22) | (to_bcd(hour) << 16) | (to_bcd(min) << 8) | to_bcd(sec);
  }
  init_mode_exit();
  write_protect_enable();
  return status;
}

/**
  * @brief  adds or removes an hour and remembers that it was done.
  * @param  operation: a ERTC_DST_xxx value
  * @param  save: TRUE to remember the change
  * @retval none
  */
void ertc_daylight_set(ertc_dst_operation_type operation, confirm_state save)
{
  write_protect_disable();
  if(operation == ERTC_DST_ADD_1H)
  {
    ERTC->ctrl |= (uint32_t)1 << 16;
  }
  else if(operation == ERTC_DST_DEC_1H)
  {
    ERTC->ctrl |= (uint32_t)1 << 17;
  }
  MQ_BIT_WRITE(ERTC->ctrl, 18, save);
  write_protect_enable();
}

/**
  * @brief  selects the fields an alarm ignores.
  * @param  alarm_x: ERTC_ALA or ERTC_ALB
  * @param  mask: ERTC_ALARM_xxx values
  * @retval none
  */
void ertc_alarm_mask_set(ertc_alarm_type alarm_x, uint32_t mask)
{
  volatile uint32_t *reg = alarm_x == ERTC_ALA ? &ERTC->ala : &ERTC->alb;
  write_protect_disable();
  *reg = (*reg & ~ERTC_ALARM_MASK_ALL) | mask;
  write_protect_enable();
}

/**
  * @brief  compares the alarm with the date or with the week day.
  * @param  alarm_x: ERTC_ALA or ERTC_ALB
  * @param  wk: ERTC_SLECT_DATE or ERTC_SLECT_WEEK
  * @retval none
  */
void ertc_alarm_week_date_select(ertc_alarm_type alarm_x, ertc_week_date_select_type wk)
{
  volatile uint32_t *reg = alarm_x == ERTC_ALA ? &ERTC->ala : &ERTC->alb;
  write_protect_disable();
  MQ_FIELD_WRITE(*reg, 30, 1, wk);
  write_protect_enable();
}

/**
  * @brief  sets the time of an alarm.
  * @param  alarm_x: ERTC_ALA or ERTC_ALB
  * @param  week_date: date 1 to 31 or week day 1 to 7
  * @param  hour: the hour
  * @param  min: the minute
  * @param  sec: the second
  * @param  ampm: ERTC_AM or ERTC_PM
  * @retval none
  */
void ertc_alarm_set(ertc_alarm_type alarm_x, uint8_t week_date, uint8_t hour, uint8_t min,
                    uint8_t sec, ertc_am_pm_type ampm)
{
  volatile uint32_t *reg = alarm_x == ERTC_ALA ? &ERTC->ala : &ERTC->alb;
  const uint32_t keep = *reg & (ERTC_ALARM_MASK_ALL | ((uint32_t)1 << 30));
  write_protect_disable();
  *reg = keep | (to_bcd(week_date) << 24) | ((uint32_t)ampm << 22) | (to_bcd(hour) << 16) |
         (to_bcd(min) << 8) | to_bcd(sec);
  write_protect_enable();
}

/**
  * @brief  switches an alarm on or off.
  * @param  alarm_x: ERTC_ALA or ERTC_ALB
  * @param  new_state: TRUE or FALSE
  * @retval error_status
  */
error_status ertc_alarm_enable(ertc_alarm_type alarm_x, confirm_state new_state)
{
  write_protect_disable();
  MQ_BIT_WRITE(ERTC->ctrl, alarm_x == ERTC_ALA ? 8 : 9, new_state);
  write_protect_enable();
  return SUCCESS;
}

/**
  * @brief  enables or disables interrupts.
  * @param  source: ERTC_xxx_INT values
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void ertc_interrupt_enable(uint32_t source, confirm_state new_state)
{
  write_protect_disable();
  if(new_state != FALSE)
  {
    ERTC->ctrl |= source;
  }
  else
  {
    ERTC->ctrl &= ~source;
  }
  write_protect_enable();
}

/**
  * @brief  selects the clock of the wakeup timer.
  * @param  clock: a ERTC_WAT_CLK_xxx value
  * @retval none
  */
void ertc_wakeup_clock_set(ertc_wakeup_clock_type clock)
{
  write_protect_disable();
  MQ_FIELD_WRITE(ERTC->ctrl, 0, 3, clock);
  write_protect_enable();
}

/**
  * @brief  sets the reload value of the wakeup timer.
  * @param  counter: 0 to 0xFFFF
  * @retval none
  */
void ertc_wakeup_counter_set(uint32_t counter)
{
  write_protect_disable();
  ERTC->wat = counter & (uint32_t)0xFFFF;
  write_protect_enable();
}

/**
  * @brief  starts or stops the wakeup timer.
  * @param  new_state: TRUE or FALSE
  * @retval error_status
  */
error_status ertc_wakeup_enable(confirm_state new_state)
{
  write_protect_disable();
  MQ_BIT_WRITE(ERTC->ctrl, 10, new_state);
  write_protect_enable();
  return SUCCESS;
}

/**
  * @brief  routes an alarm or the wakeup flag to the output pin.
  * @param  source: a ERTC_OUTPUT_xxx value
  * @param  polarity: a ERTC_OUTPUT_POLARITY_xxx value
  * @param  type: a ERTC_OUTPUT_TYPE_xxx value
  * @retval none
  */
void ertc_output_set(ertc_output_source_type source, ertc_output_polarity_type polarity,
                     ertc_output_type type)
{
  write_protect_disable();
  MQ_FIELD_WRITE(ERTC->ctrl, 21, 2, source);
  MQ_FIELD_WRITE(ERTC->ctrl, 20, 1, polarity);
  MQ_FIELD_WRITE(ERTC->tamp, 18, 1, type);
  write_protect_enable();
}

/**
  * @brief  outputs the 512 hz or the 1 hz calibration clock.
  * @param  output: a ERTC_CALIBRATION_OUTPUT_xxx value
  * @retval none
  */
void ertc_calibration_output_set(ertc_cal_output_select_type output)
{
  write_protect_disable();
  MQ_FIELD_WRITE(ERTC->ctrl, 19, 1, output);
  ERTC->ctrl |= (uint32_t)1 << 23;
  write_protect_enable();
}

/**
  * @brief  sets the active edge of a tamper pin.
  * @param  tamper_x: ERTC_TAMPER_1
  * @param  trigger: a ERTC_TAMPER_EDGE_xxx value
  * @retval none
  */
void ertc_tamper_valid_edge_set(ertc_tamper_select_type tamper_x, ertc_tamper_valid_edge_type trigger)
{
  MQ_FIELD_WRITE(ERTC->tamp, (uint32_t)tamper_x * 3 + 1, 1, trigger);
}

/**
  * @brief  switches the detection of a tamper pin.
  * @param  tamper_x: ERTC_TAMPER_1
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void ertc_tamper_enable(ertc_tamper_select_type tamper_x, confirm_state new_state)
{
  MQ_BIT_WRITE(ERTC->tamp, (uint32_t)tamper_x * 3, new_state);
}

/**
  * @brief  sets the edge that takes a time stamp.
  * @param  edge: a ERTC_TIMESTAMP_EDGE_xxx value
  * @retval none
  */
void ertc_timestamp_valid_edge_set(ertc_timestamp_valid_edge_type edge)
{
  write_protect_disable();
  MQ_FIELD_WRITE(ERTC->ctrl, 3, 1, edge);
  write_protect_enable();
}

/**
  * @brief  switches the time stamp.
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void ertc_timestamp_enable(confirm_state new_state)
{
  write_protect_disable();
  MQ_BIT_WRITE(ERTC->ctrl, 11, new_state);
  write_protect_enable();
}

/**
  * @brief  locks the calendar to a 50 or 60 hz reference on the refin pin.
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void ertc_refer_clock_detect_enable(confirm_state new_state)
{
  write_protect_disable();
  MQ_BIT_WRITE(ERTC->ctrl, 4, new_state);
  write_protect_enable();
}

/**
  * @brief  reads a flag.
  * @param  flag: a ERTC_xxx_FLAG value
  * @retval flag_status
  */
flag_status ertc_flag_get(uint32_t flag)
{
  return (ERTC->sts & flag) != 0 ? SET : RESET;
}

/**
  * @brief  clears flags.
  * @param  flag: ERTC_xxx_FLAG values
  * @retval none
  */
void ertc_flag_clear(uint32_t flag)
{
  ERTC->sts &= ~flag;
}

#endif
