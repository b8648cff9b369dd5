/**
  **************************************************************************
  * @file     mq48t110_adc.h
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

#ifndef __MQ48T110_ADC_H
#define __MQ48T110_ADC_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup adc
  * @{
  */

typedef enum
{
  ADC_CHANNEL_0 = 0, ADC_CHANNEL_1 = 1, ADC_CHANNEL_2 = 2, ADC_CHANNEL_3 = 3, ADC_CHANNEL_4 = 4, ADC_CHANNEL_5 = 5,
  ADC_CHANNEL_6 = 6, ADC_CHANNEL_7 = 7, ADC_CHANNEL_8 = 8, ADC_CHANNEL_9 = 9, ADC_CHANNEL_10 = 10, ADC_CHANNEL_11 = 11,
  ADC_CHANNEL_12 = 12, ADC_CHANNEL_13 = 13, ADC_CHANNEL_14 = 14, ADC_CHANNEL_15 = 15, ADC_CHANNEL_16 = 16, ADC_CHANNEL_17 = 17
} adc_channel_select_type;

typedef enum
{
  ADC_SAMPLETIME_1_5 = 0, ADC_SAMPLETIME_7_5 = 1, ADC_SAMPLETIME_13_5 = 2,
  ADC_SAMPLETIME_28_5 = 3, ADC_SAMPLETIME_41_5 = 4, ADC_SAMPLETIME_55_5 = 5,
  ADC_SAMPLETIME_71_5 = 6, ADC_SAMPLETIME_239_5 = 7
} adc_sampletime_select_type;

typedef enum
{
  ADC_RIGHT_ALIGNMENT = 0, ADC_LEFT_ALIGNMENT = 1
} adc_data_align_type;

/**
  * @brief trigger of the ordinary conversions
  */
typedef enum
{
  ADC12_ORDINARY_TRIG_TMR1CH1 = 0, ADC12_ORDINARY_TRIG_TMR1CH2 = 1,
  ADC12_ORDINARY_TRIG_TMR1CH3 = 2, ADC12_ORDINARY_TRIG_TMR3TRGOUT = 4,
  ADC12_ORDINARY_TRIG_TMR15TRGOUT = 5, ADC12_ORDINARY_TRIG_EXINT11 = 6,
  ADC12_ORDINARY_TRIG_SOFTWARE = 7
} adc_ordinary_trig_select_type;

/**
  * @brief trigger of the preempted conversions
  */
typedef enum
{
  ADC12_PREEMPT_TRIG_TMR1TRGOUT = 0, ADC12_PREEMPT_TRIG_TMR1CH4 = 1,
  ADC12_PREEMPT_TRIG_TMR3CH4 = 4, ADC12_PREEMPT_TRIG_TMR15CH1 = 5,
  ADC12_PREEMPT_TRIG_EXINT15 = 6, ADC12_PREEMPT_TRIG_SOFTWARE = 7
} adc_preempt_trig_select_type;

typedef enum
{
  ADC_PREEMPT_CHANNEL_1 = 0, ADC_PREEMPT_CHANNEL_2 = 1, ADC_PREEMPT_CHANNEL_3 = 2,
  ADC_PREEMPT_CHANNEL_4 = 3
} adc_preempt_channel_type;

/**
  * @brief channels watched by the voltage monitor
  */
typedef enum
{
  ADC_VMONITOR_SINGLE_ORDINARY = 0x00800200, ADC_VMONITOR_SINGLE_PREEMPT = 0x00400200,
  ADC_VMONITOR_SINGLE_ORDINARY_PREEMPT = 0x00C00200, ADC_VMONITOR_ALL_ORDINARY = 0x00800000,
  ADC_VMONITOR_ALL_PREEMPT = 0x00400000, ADC_VMONITOR_ALL_ORDINARY_PREEMPT = 0x00C00000,
  ADC_VMONITOR_NONE = 0x00000000
} adc_voltage_monitoring_type;

/* interrupts */
#define ADC_CCE_INT                      ((uint32_t)0x00000020) /*!< ordinary conversion end */
#define ADC_VMOR_INT                     ((uint32_t)0x00000040) /*!< voltage out of range */
#define ADC_PCCE_INT                     ((uint32_t)0x00000080) /*!< preempted conversions end */

/* flags */
#define ADC_VMOR_FLAG                    ((uint8_t)0x01)
#define ADC_CCE_FLAG                     ((uint8_t)0x02)
#define ADC_PCCE_FLAG                    ((uint8_t)0x04)
#define ADC_PCCS_FLAG                    ((uint8_t)0x08)
#define ADC_OCCS_FLAG                    ((uint8_t)0x10)

/**
  * @brief base settings of the converter
  */
typedef struct
{
  confirm_state sequence_mode;
  confirm_state repeat_mode;
  adc_data_align_type data_align;
  uint8_t ordinary_channel_length;
} adc_base_config_type;

void adc_base_default_para_init(adc_base_config_type *adc_base_struct);
void adc_base_config(adc_type *adc_x, adc_base_config_type *adc_base_struct);
void adc_enable(adc_type *adc_x, confirm_state new_state);
void adc_dma_mode_enable(adc_type *adc_x, confirm_state new_state);
void adc_interrupt_enable(adc_type *adc_x, uint32_t adc_int, confirm_state new_state);
void adc_tempersensor_vintrv_enable(confirm_state new_state);
void adc_calibration_init(adc_type *adc_x);
flag_status adc_calibration_init_status_get(adc_type *adc_x);
void adc_calibration_start(adc_type *adc_x);
flag_status adc_calibration_status_get(adc_type *adc_x);
void adc_ordinary_channel_set(adc_type *adc_x, adc_channel_select_type adc_channel,
                              uint8_t adc_sequence, adc_sampletime_select_type adc_sampletime);
void adc_ordinary_conversion_trigger_set(adc_type *adc_x,
                                         adc_ordinary_trig_select_type adc_ordinary_trig,
                                         confirm_state new_state);
void adc_ordinary_part_count_set(adc_type *adc_x, uint8_t adc_channel_count);
void adc_ordinary_part_mode_enable(adc_type *adc_x, confirm_state new_state);
void adc_ordinary_software_trigger_enable(adc_type *adc_x, confirm_state new_state);
uint16_t adc_ordinary_conversion_data_get(adc_type *adc_x);
void adc_preempt_channel_length_set(adc_type *adc_x, uint8_t adc_channel_lenght);
void adc_preempt_channel_set(adc_type *adc_x, adc_channel_select_type adc_channel,
                             uint8_t adc_sequence, adc_sampletime_select_type adc_sampletime);
void adc_preempt_conversion_trigger_set(adc_type *adc_x,
                                        adc_preempt_trig_select_type adc_preempt_trig,
                                        confirm_state new_state);
void adc_preempt_offset_value_set(adc_type *adc_x, adc_preempt_channel_type adc_preempt_channel,
                                  uint16_t adc_offset_value);
void adc_preempt_part_mode_enable(adc_type *adc_x, confirm_state new_state);
void adc_preempt_auto_mode_enable(adc_type *adc_x, confirm_state new_state);
uint16_t adc_preempt_conversion_data_get(adc_type *adc_x, adc_preempt_channel_type adc_preempt_channel);
void adc_voltage_monitor_enable(adc_type *adc_x, adc_voltage_monitoring_type adc_voltage_monitoring);
void adc_voltage_monitor_threshold_value_set(adc_type *adc_x, uint16_t adc_high_threshold,
                                             uint16_t adc_low_threshold);
void adc_voltage_monitor_single_channel_select(adc_type *adc_x, adc_channel_select_type adc_channel);
flag_status adc_flag_get(adc_type *adc_x, uint8_t adc_flag);
void adc_flag_clear(adc_type *adc_x, uint32_t adc_flag);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
