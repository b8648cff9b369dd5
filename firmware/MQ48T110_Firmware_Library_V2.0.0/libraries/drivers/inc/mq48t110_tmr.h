/**
  **************************************************************************
  * @file     mq48t110_tmr.h
  * @brief    timer driver of the mq48t110
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

#ifndef __MQ48T110_TMR_H
#define __MQ48T110_TMR_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup tmr
  * @{
  */

typedef enum
{
  TMR_COUNT_UP = 0, TMR_COUNT_DOWN = 1, TMR_COUNT_TWO_WAY_1 = 2, TMR_COUNT_TWO_WAY_2 = 4,
  TMR_COUNT_TWO_WAY_3 = 6
} tmr_count_mode_type;

typedef enum
{
  TMR_CLOCK_DIV1 = 0, TMR_CLOCK_DIV2 = 1, TMR_CLOCK_DIV4 = 2
} tmr_clock_division_type;

/**
  * @brief where the counter clock comes from, as the configuration names it
  */
typedef enum
{
  TMR_CLOCKSOURCE_INTERNAL = 0, TMR_CLOCKSOURCE_EXTMODEB = 1
} tmr_clock_source_type;

typedef enum
{
  TMR_ES_FREQUENCY_DIV_1 = 0, TMR_ES_FREQUENCY_DIV_2 = 1, TMR_ES_FREQUENCY_DIV_4 = 2,
  TMR_ES_FREQUENCY_DIV_8 = 3
} tmr_external_signal_divider_type;

typedef enum
{
  TMR_ET_NON_INVERTED = 0, TMR_ET_INVERTED = 1
} tmr_external_signal_polarity_type;

/**
  * @brief subordinate modes (the reset value spells DIABLE)
  */
typedef enum
{
  TMR_SUB_MODE_DIABLE = 0, TMR_SUB_RESET_MODE = 4, TMR_SUB_HANG_MODE = 5,
  TMR_SUB_TRIGGER_MODE = 6, TMR_SUB_EXTERNAL_CLOCK_MODE_A = 7
} tmr_sub_mode_select_type;

typedef enum
{
  TMR_SUB_INPUT_SEL_IS0 = 0, TMR_SUB_INPUT_SEL_IS1 = 1, TMR_SUB_INPUT_SEL_IS2 = 2,
  TMR_SUB_INPUT_SEL_IS3 = 3, TMR_SUB_INPUT_SEL_C1INC = 4, TMR_SUB_INPUT_SEL_C1DF1 = 5,
  TMR_SUB_INPUT_SEL_C2DF2 = 6, TMR_SUB_INPUT_SEL_EXTIN = 7
} sub_tmr_input_sel_type;

typedef enum
{
  TMR_SELECT_CHANNEL_1 = 0, TMR_SELECT_CHANNEL_2 = 1, TMR_SELECT_CHANNEL_3 = 2,
  TMR_SELECT_CHANNEL_4 = 3
} tmr_channel_select_type;

typedef enum
{
  TMR_CC_CHANNEL_MAPPED_DIRECT = 1, TMR_CC_CHANNEL_MAPPED_INDIRECT = 2,
  TMR_CC_CHANNEL_MAPPED_STI = 3
} tmr_input_direction_mapped_type;

typedef enum
{
  TMR_INPUT_RISING_EDGE = 0, TMR_INPUT_FALLING_EDGE = 1, TMR_INPUT_BOTH_EDGE = 3
} tmr_input_polarity_type;

typedef enum
{
  TMR_CHANNEL_INPUT_DIV_1 = 0, TMR_CHANNEL_INPUT_DIV_2 = 1, TMR_CHANNEL_INPUT_DIV_4 = 2,
  TMR_CHANNEL_INPUT_DIV_8 = 3
} tmr_channel_input_divider_type;

typedef enum
{
  TMR_OUTPUT_CONTROL_OFF = 0, TMR_OUTPUT_CONTROL_HIGH = 1, TMR_OUTPUT_CONTROL_LOW = 2,
  TMR_OUTPUT_CONTROL_SWITCH = 3, TMR_OUTPUT_CONTROL_FORCE_LOW = 4,
  TMR_OUTPUT_CONTROL_FORCE_HIGH = 5, TMR_OUTPUT_CONTROL_PWM_MODE_A = 6,
  TMR_OUTPUT_CONTROL_PWM_MODE_B = 7
} tmr_output_control_mode_type;

typedef enum
{
  TMR_OUTPUT_ACTIVE_HIGH = 0, TMR_OUTPUT_ACTIVE_LOW = 1
} tmr_output_polarity_type;

typedef enum
{
  TMR_ENCODER_MODE_A = 1, TMR_ENCODER_MODE_B = 2, TMR_ENCODER_MODE_C = 3
} tmr_encoder_mode_type;

typedef enum
{
  TMR_BRK_INPUT_ACTIVE_LOW = 0, TMR_BRK_INPUT_ACTIVE_HIGH = 1
} tmr_brk_polarity_type;

typedef enum
{
  TMR_WP_OFF = 0, TMR_WP_LEVEL_3 = 1, TMR_WP_LEVEL_2 = 2, TMR_WP_LEVEL_1 = 3
} tmr_wp_level_type;

/**
  * @brief signal of the primary mode output (trgout)
  */
typedef enum
{
  TMR_PRIMARY_SEL_RESET = 0, TMR_PRIMARY_SEL_ENABLE = 1, TMR_PRIMARY_SEL_OVERFLOW = 2,
  TMR_PRIMARY_SEL_COMPARE = 3, TMR_PRIMARY_SEL_C1ORAW = 4, TMR_PRIMARY_SEL_C2ORAW = 5,
  TMR_PRIMARY_SEL_C3ORAW = 6, TMR_PRIMARY_SEL_C4ORAW = 7
} tmr_primary_select_type;

/**
  * @brief dma requests (bits of iden)
  */
typedef enum
{
  TMR_OVERFLOW_DMA_REQUEST = 0x0100, TMR_C1_DMA_REQUEST = 0x0200, TMR_C2_DMA_REQUEST = 0x0400,
  TMR_C3_DMA_REQUEST = 0x0800, TMR_C4_DMA_REQUEST = 0x1000, TMR_HALL_DMA_REQUEST = 0x2000,
  TMR_TRIGGER_DMA_REQUEST = 0x4000
} tmr_dma_request_type;

/**
  * @brief input of channel 1 of tmr14
  */
typedef enum
{
  TMR14_GPIO = 0, TMR14_ERTCCLK = 1, TMR14_HEXT_DIV32 = 2, TMR14_CLKOUT = 3
} tmr_input_remap_type;

/* interrupts (bits of iden) and flags (bits of ists) */
#define TMR_OVF_INT                      ((uint32_t)0x00000001)
#define TMR_C1_INT                       ((uint32_t)0x00000002)
#define TMR_C2_INT                       ((uint32_t)0x00000004)
#define TMR_C3_INT                       ((uint32_t)0x00000008)
#define TMR_C4_INT                       ((uint32_t)0x00000010)
#define TMR_HALL_INT                     ((uint32_t)0x00000020)
#define TMR_TRIGGER_INT                  ((uint32_t)0x00000040)
#define TMR_BRK_INT                      ((uint32_t)0x00000080)
#define TMR_OVF_FLAG                     TMR_OVF_INT
#define TMR_C1_FLAG                      TMR_C1_INT
#define TMR_C2_FLAG                      TMR_C2_INT
#define TMR_C3_FLAG                      TMR_C3_INT
#define TMR_C4_FLAG                      TMR_C4_INT

/**
  * @brief settings of an input channel
  */
typedef struct
{
  tmr_channel_select_type input_channel_select;
  tmr_input_polarity_type input_polarity_select;
  tmr_input_direction_mapped_type input_mapped_select;
  uint8_t input_filter_value;
} tmr_input_config_type;

/**
  * @brief settings of an output channel and its complementary output
  */
typedef struct
{
  tmr_output_control_mode_type oc_mode;
  confirm_state oc_idle_state;
  confirm_state occ_idle_state;
  tmr_output_polarity_type oc_polarity;
  tmr_output_polarity_type occ_polarity;
  confirm_state oc_output_state;
  confirm_state occ_output_state;
} tmr_output_config_type;

/**
  * @brief break input and dead time
  */
typedef struct
{
  uint8_t deadtime;
  tmr_brk_polarity_type brk_polarity;
  tmr_wp_level_type wp_level;
  confirm_state auto_output_enable;
  confirm_state fcsoen_state;
  confirm_state fcsodis_state;
  confirm_state brk_enable;
} tmr_brkdt_config_type;

void tmr_base_init(tmr_type *tmr_x, uint32_t tmr_pr, uint32_t tmr_div);
void tmr_cnt_dir_set(tmr_type *tmr_x, tmr_count_mode_type tmr_cnt_dir);
void tmr_clock_source_div_set(tmr_type *tmr_x, tmr_clock_division_type tmr_clock_div);
void tmr_repetition_counter_set(tmr_type *tmr_x, uint8_t tmr_rpr_value);
void tmr_period_buffer_enable(tmr_type *tmr_x, confirm_state new_state);
void tmr_counter_enable(tmr_type *tmr_x, confirm_state new_state);
void tmr_output_enable(tmr_type *tmr_x, confirm_state new_state);
void tmr_one_cycle_mode_enable(tmr_type *tmr_x, confirm_state new_state);
void tmr_overflow_event_disable(tmr_type *tmr_x, confirm_state new_state);
void tmr_overflow_request_source_set(tmr_type *tmr_x, confirm_state new_state);
void tmr_channel_control_refresh_enable(tmr_type *tmr_x, confirm_state new_state);
void tmr_channel_buffer_enable(tmr_type *tmr_x, confirm_state new_state);
void tmr_channel1_input_xor_enable(tmr_type *tmr_x, confirm_state new_state);
void tmr_external_clock_mode2_config(tmr_type *tmr_x, tmr_external_signal_divider_type es_divide,
                                     tmr_external_signal_polarity_type es_polarity,
                                     uint16_t es_filter);
void tmr_external_clock_config(tmr_type *tmr_x, tmr_external_signal_divider_type es_divide,
                               tmr_external_signal_polarity_type es_polarity, uint16_t es_filter);
void tmr_sub_mode_select(tmr_type *tmr_x, tmr_sub_mode_select_type sub_mode);
void tmr_trigger_input_select(tmr_type *tmr_x, sub_tmr_input_sel_type trigger_select);
void tmr_sub_sync_mode_set(tmr_type *tmr_x, confirm_state new_state);
void tmr_primary_mode_select(tmr_type *tmr_x, tmr_primary_select_type primary_mode);
void tmr_input_channel_init(tmr_type *tmr_x, tmr_input_config_type *input_struct,
                            tmr_channel_input_divider_type divider_factor);
void tmr_pwm_input_config(tmr_type *tmr_x, tmr_input_config_type *input_struct,
                          tmr_channel_input_divider_type divider_factor);
void tmr_encoder_mode_config(tmr_type *tmr_x, tmr_encoder_mode_type encoder_mode,
                             tmr_input_polarity_type ic1_polarity,
                             tmr_input_polarity_type ic2_polarity);
void tmr_iremap_config(tmr_type *tmr_x, tmr_input_remap_type input_remap);
void tmr_output_default_para_init(tmr_output_config_type *tmr_output_struct);
void tmr_output_channel_config(tmr_type *tmr_x, tmr_channel_select_type tmr_channel,
                               tmr_output_config_type *tmr_output_struct);
void tmr_channel_value_set(tmr_type *tmr_x, tmr_channel_select_type tmr_channel,
                           uint32_t tmr_channel_value);
void tmr_output_channel_buffer_enable(tmr_type *tmr_x, tmr_channel_select_type tmr_channel,
                                      confirm_state new_state);
void tmr_output_channel_immediately_set(tmr_type *tmr_x, tmr_channel_select_type tmr_channel,
                                        confirm_state new_state);
void tmr_brkdt_default_para_init(tmr_brkdt_config_type *tmr_brkdt_struct);
void tmr_brkdt_config(tmr_type *tmr_x, tmr_brkdt_config_type *tmr_brkdt_struct);
void tmr_dma_request_enable(tmr_type *tmr_x, tmr_dma_request_type dma_request,
                            confirm_state new_state);
void tmr_interrupt_enable(tmr_type *tmr_x, uint32_t tmr_interrupt, confirm_state new_state);
flag_status tmr_flag_get(tmr_type *tmr_x, uint32_t tmr_flag);
void tmr_flag_clear(tmr_type *tmr_x, uint32_t tmr_flag);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
