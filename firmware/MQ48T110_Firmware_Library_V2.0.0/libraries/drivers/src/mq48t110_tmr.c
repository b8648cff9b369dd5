/**
  **************************************************************************
  * @file     mq48t110_tmr.c
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

#include "mq48t110_conf.h"

#ifdef TMR_MODULE_ENABLED

/* ctrl1 */
#define TMR_CTRL1_TMREN                  0
#define TMR_CTRL1_OVFEN                  1
#define TMR_CTRL1_OVFS                   2
#define TMR_CTRL1_OCMEN                  3
#define TMR_CTRL1_CNT_DIR                4, 3
#define TMR_CTRL1_PRBEN                  7
#define TMR_CTRL1_CLKDIV                 8, 2
/* ctrl2 */
#define TMR_CTRL2_CBCTRL                 0
#define TMR_CTRL2_CCFS                   2
#define TMR_CTRL2_PTOS                   4, 3
#define TMR_CTRL2_C1INSEL                7
/* stctrl */
#define TMR_STCTRL_SMSEL                 0, 3
#define TMR_STCTRL_STIS                  4, 3
#define TMR_STCTRL_STS                   7
#define TMR_STCTRL_ESF                   8, 4
#define TMR_STCTRL_ESDIV                 12, 2
#define TMR_STCTRL_ECMBEN                14
#define TMR_STCTRL_ESP                   15
/* brk */
#define TMR_BRK_OEN                      15

#define WRITE(reg, field, value)         WRITE_(reg, field, value)
#define WRITE_(reg, pos, width, value)   MQ_FIELD_WRITE(reg, pos, width, value)

/* the mode register of a channel and the position of its byte in it */
static volatile uint32_t *channel_mode_register(tmr_type *tmr_x, tmr_channel_select_type channel)
{
  return channel < TMR_SELECT_CHANNEL_3 ? &tmr_x->cm1 : &tmr_x->cm2;
}

static uint32_t channel_mode_pos(tmr_channel_select_type channel)
{
  return ((uint32_t)channel & 0x1) * 8;
}

/* the data register of a channel */
static volatile uint32_t *channel_data_register(tmr_type *tmr_x, tmr_channel_select_type channel)
{
  switch(channel)
  {
    case TMR_SELECT_CHANNEL_2:
      return &tmr_x->c2dt;
    case TMR_SELECT_CHANNEL_3:
      return &tmr_x->c3dt;
    case TMR_SELECT_CHANNEL_4:
      return &tmr_x->c4dt;
    default:
      return &tmr_x->c1dt;
  }
}

/* input settings of a channel without enabling it */
static void input_channel_set(tmr_type *tmr_x, const tmr_input_config_type *input_struct,
                              tmr_channel_input_divider_type divider_factor)
{
  const tmr_channel_select_type channel = input_struct->input_channel_select;
  volatile uint32_t *cm = channel_mode_register(tmr_x, channel);
  const uint32_t pos = channel_mode_pos(channel);
  const uint32_t cc = (uint32_t)channel * 4;
  MQ_FIELD_WRITE(*cm, pos, 2, input_struct->input_mapped_select);
  MQ_FIELD_WRITE(*cm, pos + 2, 2, divider_factor);
  MQ_FIELD_WRITE(*cm, pos + 4, 4, input_struct->input_filter_value);
  MQ_FIELD_WRITE(tmr_x->cctrl, cc + 1, 1, (uint32_t)input_struct->input_polarity_select & 0x1);
  MQ_FIELD_WRITE(tmr_x->cctrl, cc + 3, 1, ((uint32_t)input_struct->input_polarity_select >> 1) & 0x1);
}
/**
  * @brief  sets the period and the divider of the counter clock.
  * @param  tmr_x: the timer
  * @param  tmr_pr: period, 0 to 0xFFFF
  * @param  tmr_div: divider minus one
  * @retval none
  */
void tmr_base_init(tmr_type *tmr_x, uint32_t tmr_pr, uint32_t tmr_div)
{
  tmr_x->pr = tmr_pr;
  tmr_x->div = tmr_div;
  /* an update event loads the divider at once */
  tmr_x->swevt |= (uint32_t)0x1;
}

/**
  * @brief  sets the counting direction.
  * @param  tmr_x: the timer
  * @param  tmr_cnt_dir: a TMR_COUNT_xxx value
  * @retval none
  */
void tmr_cnt_dir_set(tmr_type *tmr_x, tmr_count_mode_type tmr_cnt_dir)
{
  WRITE(tmr_x->ctrl1, TMR_CTRL1_CNT_DIR, tmr_cnt_dir);
}

/**
  * @brief  sets the divider of the filter and dead time clock.
  * @param  tmr_x: the timer
  * @param  tmr_clock_div: a TMR_CLOCK_DIVn value
  * @retval none
  */
void tmr_clock_source_div_set(tmr_type *tmr_x, tmr_clock_division_type tmr_clock_div)
{
  WRITE(tmr_x->ctrl1, TMR_CTRL1_CLKDIV, tmr_clock_div);
}

/**
  * @brief  sets the repetition counter of the advanced timers.
  * @param  tmr_x: the timer
  * @param  tmr_rpr_value: 0 to 255
  * @retval none
  */
void tmr_repetition_counter_set(tmr_type *tmr_x, uint8_t tmr_rpr_value)
{
  tmr_x->rpr = tmr_rpr_value;
}

/**
  * @brief  buffers the period register.
  * @param  tmr_x: the timer
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_period_buffer_enable(tmr_type *tmr_x, confirm_state new_state)
{
  MQ_BIT_WRITE(tmr_x->ctrl1, TMR_CTRL1_PRBEN, new_state);
}

/**
  * @brief  starts or stops the counter.
  * @param  tmr_x: the timer
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_counter_enable(tmr_type *tmr_x, confirm_state new_state)
{
  MQ_BIT_WRITE(tmr_x->ctrl1, TMR_CTRL1_TMREN, new_state);
}

/**
  * @brief  switches all outputs of an advanced timer on or off.
  * @param  tmr_x: the timer
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_output_enable(tmr_type *tmr_x, confirm_state new_state)
{
  MQ_BIT_WRITE(tmr_x->brk, TMR_BRK_OEN, new_state);
}

/**
  * @brief  stops the counter at the next overflow.
  * @param  tmr_x: the timer
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_one_cycle_mode_enable(tmr_type *tmr_x, confirm_state new_state)
{
  MQ_BIT_WRITE(tmr_x->ctrl1, TMR_CTRL1_OCMEN, new_state);
}

/**
  * @brief  suppresses the overflow event.
  * @param  tmr_x: the timer
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_overflow_event_disable(tmr_type *tmr_x, confirm_state new_state)
{
  MQ_BIT_WRITE(tmr_x->ctrl1, TMR_CTRL1_OVFEN, new_state);
}

/**
  * @brief  raises the overflow event on counter overflows only.
  * @param  tmr_x: the timer
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_overflow_request_source_set(tmr_type *tmr_x, confirm_state new_state)
{
  MQ_BIT_WRITE(tmr_x->ctrl1, TMR_CTRL1_OVFS, new_state);
}

/**
  * @brief  refreshes the channel control bits on a trigger as well.
  * @param  tmr_x: the timer
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_channel_control_refresh_enable(tmr_type *tmr_x, confirm_state new_state)
{
  MQ_BIT_WRITE(tmr_x->ctrl2, TMR_CTRL2_CCFS, new_state);
}

/**
  * @brief  buffers the channel control bits.
  * @param  tmr_x: the timer
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_channel_buffer_enable(tmr_type *tmr_x, confirm_state new_state)
{
  MQ_BIT_WRITE(tmr_x->ctrl2, TMR_CTRL2_CBCTRL, new_state);
}

/**
  * @brief  feeds the xor of the inputs of channels 1 to 3 to channel 1.
  * @param  tmr_x: the timer
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_channel1_input_xor_enable(tmr_type *tmr_x, confirm_state new_state)
{
  MQ_BIT_WRITE(tmr_x->ctrl2, TMR_CTRL2_C1INSEL, new_state);
}

/**
  * @brief  counts the edges of the external signal (external clock mode b).
  * @param  tmr_x: the timer
  * @param  es_divide: a TMR_ES_FREQUENCY_DIV_n value
  * @param  es_polarity: a TMR_ET_xxx value
  * @param  es_filter: 0 to 15
  * @retval none
  */
void tmr_external_clock_mode2_config(tmr_type *tmr_x, tmr_external_signal_divider_type es_divide,
                                     tmr_external_signal_polarity_type es_polarity,
                                     uint16_t es_filter)
{
  tmr_external_clock_config(tmr_x, es_divide, es_polarity, es_filter);
  MQ_BIT_WRITE(tmr_x->stctrl, TMR_STCTRL_ECMBEN, TRUE);
}

/**
  * @brief  sets the divider, the polarity and the filter of the external signal.
  * @param  tmr_x: the timer
  * @param  es_divide: a TMR_ES_FREQUENCY_DIV_n value
  * @param  es_polarity: a TMR_ET_xxx value
  * @param  es_filter: 0 to 15
  * @retval none
  */
void tmr_external_clock_config(tmr_type *tmr_x, tmr_external_signal_divider_type es_divide,
                               tmr_external_signal_polarity_type es_polarity, uint16_t es_filter)
{
  WRITE(tmr_x->stctrl, TMR_STCTRL_ESDIV, es_divide);
  MQ_BIT_WRITE(tmr_x->stctrl, TMR_STCTRL_ESP, es_polarity == TMR_ET_INVERTED ? TRUE : FALSE);
  WRITE(tmr_x->stctrl, TMR_STCTRL_ESF, es_filter);
}

/**
  * @brief  selects the subordinate mode.
  * @param  tmr_x: the timer
  * @param  sub_mode: a TMR_SUB_xxx_MODE value
  * @retval none
  */
void tmr_sub_mode_select(tmr_type *tmr_x, tmr_sub_mode_select_type sub_mode)
{
  WRITE(tmr_x->stctrl, TMR_STCTRL_SMSEL, sub_mode);
}

/**
  * @brief  selects the trigger input of the subordinate mode.
  * @param  tmr_x: the timer
  * @param  trigger_select: a TMR_SUB_INPUT_SEL_xxx value
  * @retval none
  */
void tmr_trigger_input_select(tmr_type *tmr_x, sub_tmr_input_sel_type trigger_select)
{
  WRITE(tmr_x->stctrl, TMR_STCTRL_STIS, trigger_select);
}

/**
  * @brief  delays the trigger so that subordinate timers start together.
  * @param  tmr_x: the timer
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_sub_sync_mode_set(tmr_type *tmr_x, confirm_state new_state)
{
  MQ_BIT_WRITE(tmr_x->stctrl, TMR_STCTRL_STS, new_state);
}

/**
  * @brief  selects the signal of the primary mode output.
  * @param  tmr_x: the timer
  * @param  primary_mode: a TMR_PRIMARY_SEL_xxx value
  * @retval none
  */
void tmr_primary_mode_select(tmr_type *tmr_x, tmr_primary_select_type primary_mode)
{
  WRITE(tmr_x->ctrl2, TMR_CTRL2_PTOS, primary_mode);
}

/**
  * @brief  configures a channel as input capture and enables it.
  * @param  tmr_x: the timer
  * @param  input_struct: the input settings
  * @param  divider_factor: a TMR_CHANNEL_INPUT_DIV_n value
  * @retval none
  */
void tmr_input_channel_init(tmr_type *tmr_x, tmr_input_config_type *input_struct,
                            tmr_channel_input_divider_type divider_factor)
{
  input_channel_set(tmr_x, input_struct, divider_factor);
  tmr_x->cctrl |= (uint32_t)1 << ((uint32_t)input_struct->input_channel_select * 4);
}

/**
  * @brief  measures a pwm input: the given channel captures the period, its partner the duty.
  * @param  tmr_x: the timer
  * @param  input_struct: the settings of the measuring channel
  * @param  divider_factor: a TMR_CHANNEL_INPUT_DIV_n value
  * @retval none
  */
void tmr_pwm_input_config(tmr_type *tmr_x, tmr_input_config_type *input_struct,
                          tmr_channel_input_divider_type divider_factor)
{
  tmr_input_config_type partner = *input_struct;
  partner.input_channel_select = input_struct->input_channel_select == TMR_SELECT_CHANNEL_1 ?
                                 TMR_SELECT_CHANNEL_2 : TMR_SELECT_CHANNEL_1;
  partner.input_polarity_select = input_struct->input_polarity_select == TMR_INPUT_RISING_EDGE ?
                                  TMR_INPUT_FALLING_EDGE : TMR_INPUT_RISING_EDGE;
  partner.input_mapped_select = input_struct->input_mapped_select == TMR_CC_CHANNEL_MAPPED_DIRECT ?
                                TMR_CC_CHANNEL_MAPPED_INDIRECT : TMR_CC_CHANNEL_MAPPED_DIRECT;
  tmr_input_channel_init(tmr_x, input_struct, divider_factor);
  tmr_input_channel_init(tmr_x, &partner, divider_factor);
}

/**
  * @brief  counts the edges of channels 1 and 2 as an encoder interface.
  * @param  tmr_x: the timer
  * @param  encoder_mode: a TMR_ENCODER_MODE_x value
  * @param  ic1_polarity: polarity of channel 1
  * @param  ic2_polarity: polarity of channel 2
  * @retval none
  */
void tmr_encoder_mode_config(tmr_type *tmr_x, tmr_encoder_mode_type encoder_mode,
                             tmr_input_polarity_type ic1_polarity,
                             tmr_input_polarity_type ic2_polarity)
{
  WRITE(tmr_x->stctrl, TMR_STCTRL_SMSEL, encoder_mode);
  MQ_FIELD_WRITE(tmr_x->cm1, 0, 2, TMR_CC_CHANNEL_MAPPED_DIRECT);
  MQ_FIELD_WRITE(tmr_x->cm1, 8, 2, TMR_CC_CHANNEL_MAPPED_DIRECT);
  MQ_FIELD_WRITE(tmr_x->cctrl, 1, 1, (uint32_t)ic1_polarity & 0x1);
  MQ_FIELD_WRITE(tmr_x->cctrl, 5, 1, (uint32_t)ic2_polarity & 0x1);
}

/**
  * @brief  selects the input of channel 1 of tmr14.
  * @param  tmr_x: TMR14
  * @param  input_remap: a TMR14_xxx value
  * @retval none
  */
void tmr_iremap_config(tmr_type *tmr_x, tmr_input_remap_type input_remap)
{
  MQ_FIELD_WRITE(tmr_x->rmp, 0, 2, input_remap);
}

/**
  * @brief  fills the output settings with their reset values.
  * @param  tmr_output_struct: the settings to fill
  * @retval none
  */
void tmr_output_default_para_init(tmr_output_config_type *tmr_output_struct)
{
  tmr_output_struct->oc_mode = TMR_OUTPUT_CONTROL_OFF;
  tmr_output_struct->oc_idle_state = FALSE;
  tmr_output_struct->occ_idle_state = FALSE;
  tmr_output_struct->oc_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct->occ_polarity = TMR_OUTPUT_ACTIVE_HIGH;
  tmr_output_struct->oc_output_state = FALSE;
  tmr_output_struct->occ_output_state = FALSE;
}

/**
  * @brief  configures a channel as output compare or pwm.
  * @param  tmr_x: the timer
  * @param  tmr_channel: a TMR_SELECT_CHANNEL_n value
  * @param  tmr_output_struct: the output settings
  * @retval none
  */
void tmr_output_channel_config(tmr_type *tmr_x, tmr_channel_select_type tmr_channel,
                               tmr_output_config_type *tmr_output_struct)
{
  volatile uint32_t *cm = channel_mode_register(tmr_x, tmr_channel);
  const uint32_t pos = channel_mode_pos(tmr_channel);
  const uint32_t cc = (uint32_t)tmr_channel * 4;
  const uint32_t idle = 8 + (uint32_t)tmr_channel * 2;
  MQ_FIELD_WRITE(*cm, pos, 2, 0);
  MQ_FIELD_WRITE(*cm, pos + 4, 3, tmr_output_struct->oc_mode);
  MQ_BIT_WRITE(tmr_x->cctrl, cc, tmr_output_struct->oc_output_state);
  MQ_FIELD_WRITE(tmr_x->cctrl, cc + 1, 1, tmr_output_struct->oc_polarity);
  MQ_BIT_WRITE(tmr_x->cctrl, cc + 2, tmr_output_struct->occ_output_state);
  MQ_FIELD_WRITE(tmr_x->cctrl, cc + 3, 1, tmr_output_struct->occ_polarity);
  MQ_BIT_WRITE(tmr_x->ctrl2, idle, tmr_output_struct->oc_idle_state);
  MQ_BIT_WRITE(tmr_x->ctrl2, idle + 1, tmr_output_struct->occ_idle_state);
}

/**
  * @brief  sets the compare value of a channel.
  * @param  tmr_x: the timer
  * @param  tmr_channel: a TMR_SELECT_CHANNEL_n value
  * @param  tmr_channel_value: the compare value
  * @retval none
  */
void tmr_channel_value_set(tmr_type *tmr_x, tmr_channel_select_type tmr_channel,
                           uint32_t tmr_channel_value)
{
  *channel_data_register(tmr_x, tmr_channel) = tmr_channel_value;
}

/**
  * @brief  buffers the compare value of a channel.
  * @param  tmr_x: the timer
  * @param  tmr_channel: a TMR_SELECT_CHANNEL_n value
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_output_channel_buffer_enable(tmr_type *tmr_x, tmr_channel_select_type tmr_channel,
                                      confirm_state new_state)
{
  MQ_BIT_WRITE(*channel_mode_register(tmr_x, tmr_channel), channel_mode_pos(tmr_channel) + 3,
               new_state);
}

/**
  * @brief  lets a trigger change the pwm output at once.
  * @param  tmr_x: the timer
  * @param  tmr_channel: a TMR_SELECT_CHANNEL_n value
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_output_channel_immediately_set(tmr_type *tmr_x, tmr_channel_select_type tmr_channel,
                                        confirm_state new_state)
{
  MQ_BIT_WRITE(*channel_mode_register(tmr_x, tmr_channel), channel_mode_pos(tmr_channel) + 2,
               new_state);
}

/**
  * @brief  fills the break and dead time settings with their reset values.
  * @param  tmr_brkdt_struct: the settings to fill
  * @retval none
  */
void tmr_brkdt_default_para_init(tmr_brkdt_config_type *tmr_brkdt_struct)
{
  tmr_brkdt_struct->deadtime = 0;
  tmr_brkdt_struct->brk_polarity = TMR_BRK_INPUT_ACTIVE_LOW;
  tmr_brkdt_struct->wp_level = TMR_WP_OFF;
  tmr_brkdt_struct->auto_output_enable = FALSE;
  tmr_brkdt_struct->fcsoen_state = FALSE;
  tmr_brkdt_struct->fcsodis_state = FALSE;
  tmr_brkdt_struct->brk_enable = FALSE;
}

/**
  * @brief  applies the break and dead time settings (once per reset when protected).
  * @param  tmr_x: an advanced timer
  * @param  tmr_brkdt_struct: the settings
  * @retval none
  */
void tmr_brkdt_config(tmr_type *tmr_x, tmr_brkdt_config_type *tmr_brkdt_struct)
{
  uint32_t value = tmr_x->brk & ((uint32_t)1 << TMR_BRK_OEN);
  MQ_FIELD_WRITE(value, 0, 8, tmr_brkdt_struct->deadtime);
  MQ_FIELD_WRITE(value, 8, 2, tmr_brkdt_struct->wp_level);
  MQ_BIT_WRITE(value, 10, tmr_brkdt_struct->fcsodis_state);
  MQ_BIT_WRITE(value, 11, tmr_brkdt_struct->fcsoen_state);
  MQ_BIT_WRITE(value, 12, tmr_brkdt_struct->brk_enable);
  MQ_FIELD_WRITE(value, 13, 1, tmr_brkdt_struct->brk_polarity);
  MQ_BIT_WRITE(value, 14, tmr_brkdt_struct->auto_output_enable);
  tmr_x->brk = value;
}

/**
  * @brief  enables or disables a dma request.
  * @param  tmr_x: the timer
  * @param  dma_request: a TMR_xxx_DMA_REQUEST value
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_dma_request_enable(tmr_type *tmr_x, tmr_dma_request_type dma_request,
                            confirm_state new_state)
{
  if(new_state != FALSE)
  {
    tmr_x->iden |= (uint32_t)dma_request;
  }
  else
  {
    tmr_x->iden &= ~(uint32_t)dma_request;
  }
}

/**
  * @brief  enables or disables interrupts.
  * @param  tmr_x: the timer
  * @param  tmr_interrupt: TMR_xxx_INT values
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void tmr_interrupt_enable(tmr_type *tmr_x, uint32_t tmr_interrupt, confirm_state new_state)
{
  if(new_state != FALSE)
  {
    tmr_x->iden |= tmr_interrupt;
  }
  else
  {
    tmr_x->iden &= ~tmr_interrupt;
  }
}

/**
  * @brief  reads a flag.
  * @param  tmr_x: the timer
  * @param  tmr_flag: a TMR_xxx_FLAG value
  * @retval flag_status
  */
flag_status tmr_flag_get(tmr_type *tmr_x, uint32_t tmr_flag)
{
  return (tmr_x->ists & tmr_flag) != 0 ? SET : RESET;
}

/**
  * @brief  clears flags.
  * @param  tmr_x: the timer
  * @param  tmr_flag: TMR_xxx_FLAG values
  * @retval none
  */
void tmr_flag_clear(tmr_type *tmr_x, uint32_t tmr_flag)
{
  tmr_x->ists = ~tmr_flag;
}

#endif
