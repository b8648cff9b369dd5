/**
  **************************************************************************
  * @file     mq48t110_adc.c
  * @brief    analog to digital converter driver of the mq48t110
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

#ifdef ADC_MODULE_ENABLED

/* ctrl1 */
#define ADC_CTRL1_SQEN                   8
#define ADC_CTRL1_OCPEN                  11
#define ADC_CTRL1_PCAUTOEN               10
#define ADC_CTRL1_PCPEN                  12
#define ADC_CTRL1_OCPCNT                 13, 3
/* ctrl2 */
#define ADC_CTRL2_ADCEN                  0
#define ADC_CTRL2_RPEN                   1
#define ADC_CTRL2_ADCALINIT              3
#define ADC_CTRL2_ADCAL                  2
#define ADC_CTRL2_OCDMAEN                8
#define ADC_CTRL2_DTALIGN                11
#define ADC_CTRL2_PCTESEL                12, 3
#define ADC_CTRL2_PCTEN                  15
#define ADC_CTRL2_OCTESEL                17, 3
#define ADC_CTRL2_OCTEN                  20
#define ADC_CTRL2_PCSWTRG                21
#define ADC_CTRL2_OCSWTRG                22
#define ADC_CTRL2_ITSRVEN                23

#define WRITE(reg, field, value)         WRITE_(reg, field, value)
#define WRITE_(reg, pos, width, value)   MQ_FIELD_WRITE(reg, pos, width, value)

/**
  * @brief  fills the base settings with their reset values.
  * @param  adc_base_struct: the settings to fill
  * @retval none
  */
void adc_base_default_para_init(adc_base_config_type *adc_base_struct)
{
  adc_base_struct->sequence_mode = FALSE;
  adc_base_struct->repeat_mode = FALSE;
  adc_base_struct->data_align = ADC_RIGHT_ALIGNMENT;
  adc_base_struct->ordinary_channel_length = 1;
}

/**
  * @brief  applies the base settings.
  * @param  adc_x: ADC1
  * @param  adc_base_struct: the settings
  * @retval none
  */
void adc_base_config(adc_type *adc_x, adc_base_config_type *adc_base_struct)
{
  MQ_BIT_WRITE(adc_x->ctrl1, ADC_CTRL1_SQEN, adc_base_struct->sequence_mode);
  MQ_BIT_WRITE(adc_x->ctrl2, ADC_CTRL2_RPEN, adc_base_struct->repeat_mode);
  MQ_FIELD_WRITE(adc_x->ctrl2, ADC_CTRL2_DTALIGN, 1, adc_base_struct->data_align);
  MQ_FIELD_WRITE(adc_x->osq[0], 20, 4, adc_base_struct->ordinary_channel_length - 1);
}

/**
  * @brief  switches the converter on or off.
  * @param  adc_x: ADC1
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void adc_enable(adc_type *adc_x, confirm_state new_state)
{
  MQ_BIT_WRITE(adc_x->ctrl2, ADC_CTRL2_ADCEN, new_state);
}

/**
  * @brief  lets the ordinary conversions request dma transfers.
  * @param  adc_x: ADC1
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void adc_dma_mode_enable(adc_type *adc_x, confirm_state new_state)
{
  MQ_BIT_WRITE(adc_x->ctrl2, ADC_CTRL2_OCDMAEN, new_state);
}

/**
  * @brief  enables or disables interrupts.
  * @param  adc_x: ADC1
  * @param  adc_int: ADC_xxx_INT values
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void adc_interrupt_enable(adc_type *adc_x, uint32_t adc_int, confirm_state new_state)
{
  if(new_state != FALSE)
  {
    adc_x->ctrl1 |= adc_int;
  }
  else
  {
    adc_x->ctrl1 &= ~adc_int;
  }
}

/**
  * @brief  connects the temperature sensor and the internal reference voltage.
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void adc_tempersensor_vintrv_enable(confirm_state new_state)
{
  MQ_BIT_WRITE(ADC1->ctrl2, ADC_CTRL2_ITSRVEN, new_state);
}

/**
  * @brief  resets the calibration.
  * @param  adc_x: ADC1
  * @retval none
  */
void adc_calibration_init(adc_type *adc_x)
{
  adc_x->ctrl2 |= (uint32_t)1 << ADC_CTRL2_ADCALINIT;
}

/**
  * @brief  SET while the calibration reset runs.
  * @param  adc_x: ADC1
  * @retval flag_status
  */
flag_status adc_calibration_init_status_get(adc_type *adc_x)
{
  return (adc_x->ctrl2 & ((uint32_t)1 << ADC_CTRL2_ADCALINIT)) != 0 ? SET : RESET;
}

/**
  * @brief  starts the calibration.
  * @param  adc_x: ADC1
  * @retval none
  */
void adc_calibration_start(adc_type *adc_x)
{
  adc_x->ctrl2 |= (uint32_t)1 << ADC_CTRL2_ADCAL;
}

/**
  * @brief  SET while the calibration runs.
  * @param  adc_x: ADC1
  * @retval flag_status
  */
flag_status adc_calibration_status_get(adc_type *adc_x)
{
  return (adc_x->ctrl2 & ((uint32_t)1 << ADC_CTRL2_ADCAL)) != 0 ? SET : RESET;
}

/**
  * @brief  places a channel in the ordinary sequence and sets its sampling time.
  * @param  adc_x: ADC1
  * @param  adc_channel: an ADC_CHANNEL_n value
  * @param  adc_sequence: 1 to 16
  * @param  adc_sampletime: an ADC_SAMPLETIME_xxx value
  * @retval none
  */
void adc_ordinary_channel_set(adc_type *adc_x, adc_channel_select_type adc_channel,
                              uint8_t adc_sequence, adc_sampletime_select_type adc_sampletime)
{
  const uint32_t channel = (uint32_t)adc_channel;
  const uint32_t slot = (uint32_t)adc_sequence - 1;
  if(channel < 10)
  {
    MQ_FIELD_WRITE(adc_x->spt2, channel * 3, 3, adc_sampletime);
  }
  else
  {
    MQ_FIELD_WRITE(adc_x->spt1, (channel - 10) * 3, 3, adc_sampletime);
  }
  if(slot < 16)
  {
    MQ_FIELD_WRITE(adc_x->osq[2 - slot / 6], (slot % 6) * 5, 5, channel);
  }
}

/**
  * @brief  selects the trigger of the ordinary conversions.
  * @param  adc_x: ADC1
  * @param  adc_ordinary_trig: an ADC12_ORDINARY_TRIG_xxx value
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void adc_ordinary_conversion_trigger_set(adc_type *adc_x,
                                         adc_ordinary_trig_select_type adc_ordinary_trig,
                                         confirm_state new_state)
{
  WRITE(adc_x->ctrl2, ADC_CTRL2_OCTESEL, adc_ordinary_trig);
  MQ_BIT_WRITE(adc_x->ctrl2, ADC_CTRL2_OCTEN, new_state);
}

/**
  * @brief  sets the number of ordinary channels converted per trigger in the partitioned mode.
  * @param  adc_x: ADC1
  * @param  adc_channel_count: 1 to 8
  * @retval none
  */
void adc_ordinary_part_count_set(adc_type *adc_x, uint8_t adc_channel_count)
{
  WRITE(adc_x->ctrl1, ADC_CTRL1_OCPCNT, adc_channel_count - 1);
}

/**
  * @brief  switches the partitioned mode of the ordinary channels.
  * @param  adc_x: ADC1
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void adc_ordinary_part_mode_enable(adc_type *adc_x, confirm_state new_state)
{
  MQ_BIT_WRITE(adc_x->ctrl1, ADC_CTRL1_OCPEN, new_state);
}

/**
  * @brief  starts the ordinary conversions by software.
  * @param  adc_x: ADC1
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void adc_ordinary_software_trigger_enable(adc_type *adc_x, confirm_state new_state)
{
  MQ_BIT_WRITE(adc_x->ctrl2, ADC_CTRL2_OCSWTRG, new_state);
}

/**
  * @brief  the last ordinary result.
  * @param  adc_x: ADC1
  * @retval uint16_t
  */
uint16_t adc_ordinary_conversion_data_get(adc_type *adc_x)
{
  return (uint16_t)adc_x->dt;
}

/**
  * @brief  sets the number of preempted channels.
  * @param  adc_x: ADC1
  * @param  adc_channel_lenght: 1 to 4
  * @retval none
  */
void adc_preempt_channel_length_set(adc_type *adc_x, uint8_t adc_channel_lenght)
{
  MQ_FIELD_WRITE(adc_x->psq, 20, 2, adc_channel_lenght - 1);
}

/**
  * @brief  places a channel in the preempted sequence and sets its sampling time.
  * @param  adc_x: ADC1
  * @param  adc_channel: an ADC_CHANNEL_n value
  * @param  adc_sequence: 1 to 4
  * @param  adc_sampletime: an ADC_SAMPLETIME_xxx value
  * @retval none
  */
void adc_preempt_channel_set(adc_type *adc_x, adc_channel_select_type adc_channel,
                             uint8_t adc_sequence, adc_sampletime_select_type adc_sampletime)
{
  const uint32_t channel = (uint32_t)adc_channel;
  if(channel < 10)
  {
    MQ_FIELD_WRITE(adc_x->spt2, channel * 3, 3, adc_sampletime);
  }
  else
  {
    MQ_FIELD_WRITE(adc_x->spt1, (channel - 10) * 3, 3, adc_sampletime);
  }
  if(adc_sequence >= 1 && adc_sequence <= 4)
  {
    MQ_FIELD_WRITE(adc_x->psq, ((uint32_t)adc_sequence - 1) * 5, 5, channel);
  }
}

/**
  * @brief  selects the trigger of the preempted conversions.
  * @param  adc_x: ADC1
  * @param  adc_preempt_trig: an ADC12_PREEMPT_TRIG_xxx value
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void adc_preempt_conversion_trigger_set(adc_type *adc_x,
                                        adc_preempt_trig_select_type adc_preempt_trig,
                                        confirm_state new_state)
{
  WRITE(adc_x->ctrl2, ADC_CTRL2_PCTESEL, adc_preempt_trig);
  MQ_BIT_WRITE(adc_x->ctrl2, ADC_CTRL2_PCTEN, new_state);
}

/**
  * @brief  sets the value subtracted from a preempted result.
  * @param  adc_x: ADC1
  * @param  adc_preempt_channel: an ADC_PREEMPT_CHANNEL_n value
  * @param  adc_offset_value: 0 to 0xFFF
  * @retval none
  */
void adc_preempt_offset_value_set(adc_type *adc_x, adc_preempt_channel_type adc_preempt_channel,
                                  uint16_t adc_offset_value)
{
  adc_x->pcdto[adc_preempt_channel] = adc_offset_value & (uint32_t)0x0FFF;
}

/**
  * @brief  switches the partitioned mode of the preempted channels.
  * @param  adc_x: ADC1
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void adc_preempt_part_mode_enable(adc_type *adc_x, confirm_state new_state)
{
  MQ_BIT_WRITE(adc_x->ctrl1, ADC_CTRL1_PCPEN, new_state);
}

/**
  * @brief  runs the preempted channels after the ordinary ones without a trigger.
  * @param  adc_x: ADC1
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void adc_preempt_auto_mode_enable(adc_type *adc_x, confirm_state new_state)
{
  MQ_BIT_WRITE(adc_x->ctrl1, ADC_CTRL1_PCAUTOEN, new_state);
}

/**
  * @brief  the result of a preempted channel.
  * @param  adc_x: ADC1
  * @param  adc_preempt_channel: an ADC_PREEMPT_CHANNEL_n value
  * @retval uint16_t
  */
uint16_t adc_preempt_conversion_data_get(adc_type *adc_x, adc_preempt_channel_type adc_preempt_channel)
{
  return (uint16_t)adc_x->pdt[adc_preempt_channel];
}

/**
  * @brief  selects the channels the voltage monitor watches.
  * @param  adc_x: ADC1
  * @param  adc_voltage_monitoring: an ADC_VMONITOR_xxx value
  * @retval none
  */
void adc_voltage_monitor_enable(adc_type *adc_x, adc_voltage_monitoring_type adc_voltage_monitoring)
{
  adc_x->ctrl1 &= ~(uint32_t)0x00C00200;
  adc_x->ctrl1 |= (uint32_t)adc_voltage_monitoring;
}

/**
  * @brief  sets the boundaries of the voltage monitor.
  * @param  adc_x: ADC1
  * @param  adc_high_threshold: 0 to 0xFFF
  * @param  adc_low_threshold: 0 to 0xFFF
  * @retval none
  */
void adc_voltage_monitor_threshold_value_set(adc_type *adc_x, uint16_t adc_high_threshold,
                                             uint16_t adc_low_threshold)
{
  adc_x->vmhb = adc_high_threshold & (uint32_t)0x0FFF;
  adc_x->vmlb = adc_low_threshold & (uint32_t)0x0FFF;
}

/**
  * @brief  selects the single channel of the voltage monitor.
  * @param  adc_x: ADC1
  * @param  adc_channel: an ADC_CHANNEL_n value
  * @retval none
  */
void adc_voltage_monitor_single_channel_select(adc_type *adc_x, adc_channel_select_type adc_channel)
{
  MQ_FIELD_WRITE(adc_x->ctrl1, 0, 5, adc_channel);
}

/**
  * @brief  reads a flag.
  * @param  adc_x: ADC1
  * @param  adc_flag: an ADC_xxx_FLAG value
  * @retval flag_status
  */
flag_status adc_flag_get(adc_type *adc_x, uint8_t adc_flag)
{
  return (adc_x->sts & adc_flag) != 0 ? SET : RESET;
}

/**
  * @brief  clears flags.
  * @param  adc_x: ADC1
  * @param  adc_flag: ADC_xxx_FLAG values
  * @retval none
  */
void adc_flag_clear(adc_type *adc_x, uint32_t adc_flag)
{
  adc_x->sts = ~adc_flag;
}

#endif
