/**
  **************************************************************************
  * @file     mq48t110_usart.c
  * @brief    universal synchronous/asynchronous receiver transmitter driver of the mq48t110
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

#ifdef USART_MODULE_ENABLED

/**
  * @brief  sets the baud rate from the bus clock of the usart, the data bits and the stop bits.
  * @param  usart_x: USART1 or USART2
  * @param  baud_rate: bits per second
  * @param  data_bit: a USART_DATA_nBITS value
  * @param  stop_bit: a USART_STOP_xxx value
  * @retval none
  */
void usart_init(usart_type *usart_x, uint32_t baud_rate, usart_data_bit_num_type data_bit,
                usart_stop_bit_num_type stop_bit)
{
  crm_clocks_freq_type clocks;
  uint32_t bus;
  crm_clocks_freq_get(&clocks);
  bus = usart_x == USART1 ? clocks.apb2_freq : clocks.apb1_freq;
  MQ_FIELD_WRITE(usart_x->ctrl1, 12, 1, (uint32_t)data_bit & 0x1);
  MQ_FIELD_WRITE(usart_x->ctrl1, 28, 1, ((uint32_t)data_bit >> 1) & 0x1);
  MQ_FIELD_WRITE(usart_x->ctrl2, 12, 2, stop_bit);
  if(baud_rate != 0)
  {
    usart_x->baudr = (bus + baud_rate / 2) / baud_rate;
  }
}

/**
  * @brief  selects the parity.
  * @param  usart_x: USART1 or USART2
  * @param  parity: a USART_PARITY_xxx value
  * @retval none
  */
void usart_parity_selection_config(usart_type *usart_x, usart_parity_selection_type parity)
{
  MQ_BIT_WRITE(usart_x->ctrl1, 10, parity != USART_PARITY_NONE ? TRUE : FALSE);
  MQ_BIT_WRITE(usart_x->ctrl1, 9, parity == USART_PARITY_ODD ? TRUE : FALSE);
}

/**
  * @brief  switches the usart on or off.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl1, 13, new_state);
}

/**
  * @brief  switches the transmitter on or off.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_transmitter_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl1, 3, new_state);
}

/**
  * @brief  switches the receiver on or off.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_receiver_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl1, 2, new_state);
}

/**
  * @brief  selects the hardware flow control.
  * @param  usart_x: USART1 or USART2
  * @param  flow_state: a USART_HARDWARE_FLOW_xxx value
  * @retval none
  */
void usart_hardware_flow_control_set(usart_type *usart_x,
                                     usart_hardware_flow_control_type flow_state)
{
  MQ_FIELD_WRITE(usart_x->ctrl3, 8, 2, flow_state);
}

/**
  * @brief  sets the clock output of the synchronous mode.
  * @param  usart_x: USART1 or USART2
  * @param  clk_pol: a USART_CLOCK_POLARITY_xxx value
  * @param  clk_pha: a USART_CLOCK_PHASE_xxx value
  * @param  clk_lb: a USART_CLOCK_LAST_BIT_xxx value
  * @retval none
  */
void usart_clock_config(usart_type *usart_x, usart_clock_polarity_type clk_pol,
                        usart_clock_phase_type clk_pha, usart_lbcp_type clk_lb)
{
  MQ_FIELD_WRITE(usart_x->ctrl2, 10, 1, clk_pol);
  MQ_FIELD_WRITE(usart_x->ctrl2, 9, 1, clk_pha);
  MQ_FIELD_WRITE(usart_x->ctrl2, 8, 1, clk_lb);
}

/**
  * @brief  drives the ck pin.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_clock_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl2, 11, new_state);
}

/**
  * @brief  switches the irda mode.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_irda_mode_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl3, 1, new_state);
}

/**
  * @brief  selects the low power irda mode.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_irda_low_power_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl3, 2, new_state);
}

/**
  * @brief  sets the divider of the irda low power clock or the smartcard clock.
  * @param  usart_x: USART1 or USART2
  * @param  div_val: 1 to 255
  * @retval none
  */
void usart_irda_smartcard_division_set(usart_type *usart_x, uint8_t div_val)
{
  MQ_FIELD_WRITE(usart_x->gdiv, 0, 8, div_val);
}

/**
  * @brief  switches the smartcard mode.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_smartcard_mode_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl3, 5, new_state);
}

/**
  * @brief  sets the guard time of the smartcard mode.
  * @param  usart_x: USART1 or USART2
  * @param  guard_time_val: bit times
  * @retval none
  */
void usart_smartcard_guard_time_set(usart_type *usart_x, uint8_t guard_time_val)
{
  MQ_FIELD_WRITE(usart_x->gdiv, 8, 8, guard_time_val);
}

/**
  * @brief  answers parity errors with a nack in the smartcard mode.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_smartcard_nack_set(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl3, 4, new_state);
}

/**
  * @brief  switches the lin mode.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_lin_mode_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl2, 14, new_state);
}

/**
  * @brief  sets the length of the break frame.
  * @param  usart_x: USART1 or USART2
  * @param  break_bit: a USART_BREAK_xxx value
  * @retval none
  */
void usart_break_bit_num_set(usart_type *usart_x, usart_break_bit_num_type break_bit)
{
  MQ_FIELD_WRITE(usart_x->ctrl2, 5, 1, break_bit);
}

/**
  * @brief  selects how a muted receiver wakes up.
  * @param  usart_x: USART1 or USART2
  * @param  wakeup_mode: a USART_WAKEUP_BY_xxx value
  * @retval none
  */
void usart_wakeup_mode_set(usart_type *usart_x, usart_wakeup_mode_type wakeup_mode)
{
  MQ_FIELD_WRITE(usart_x->ctrl1, 11, 1, wakeup_mode);
}

/**
  * @brief  sets the length of the identification.
  * @param  usart_x: USART1 or USART2
  * @param  id_bit_num: a USART_ID_xxx value
  * @retval none
  */
void usart_id_bit_num_set(usart_type *usart_x, usart_identification_bit_num_type id_bit_num)
{
  MQ_FIELD_WRITE(usart_x->ctrl2, 4, 1, id_bit_num);
}

/**
  * @brief  sets the identification of the usart.
  * @param  usart_x: USART1 or USART2
  * @param  usart_id: the identification
  * @retval none
  */
void usart_wakeup_id_set(usart_type *usart_x, uint8_t usart_id)
{
  MQ_FIELD_WRITE(usart_x->ctrl2, 24, 8, usart_id);
}

/**
  * @brief  mutes the receiver until its wakeup condition.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_receiver_mute_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl1, 1, new_state);
}

/**
  * @brief  selects the single wire half duplex mode.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_single_line_halfduplex_select(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl3, 3, new_state);
}

/**
  * @brief  sets the polarity of the rs485 driver enable.
  * @param  usart_x: USART1 or USART2
  * @param  de_polarity: a USART_DE_POLARITY_xxx value
  * @retval none
  */
void usart_de_polarity_set(usart_type *usart_x, usart_de_polarity_type de_polarity)
{
  MQ_FIELD_WRITE(usart_x->ctrl3, 15, 1, de_polarity);
}

/**
  * @brief  sets the delays of the rs485 driver enable in sample times.
  * @param  usart_x: USART1 or USART2
  * @param  start_delay_time: 0 to 31
  * @param  complete_delay_time: 0 to 31
  * @retval none
  */
void usart_rs485_delay_time_config(usart_type *usart_x, uint8_t start_delay_time,
                                   uint8_t complete_delay_time)
{
  MQ_FIELD_WRITE(usart_x->rs485, 0, 5, start_delay_time);
  MQ_FIELD_WRITE(usart_x->rs485, 8, 5, complete_delay_time);
}

/**
  * @brief  switches the rs485 driver enable on the rts pin.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_rs485_mode_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl3, 14, new_state);
}

/**
  * @brief  inverts the data bits.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_dt_polarity_reverse(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl2, 18, new_state);
}

/**
  * @brief  sends the most significant bit first.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_msb_transmit_first_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl2, 19, new_state);
}

/**
  * @brief  inverts the rx pin.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_rx_polarity_reverse(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl2, 16, new_state);
}

/**
  * @brief  inverts the tx pin.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_tx_polarity_reverse(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl2, 17, new_state);
}

/**
  * @brief  swaps the tx and rx pins.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_transmit_receive_pin_swap(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl2, 15, new_state);
}

/**
  * @brief  lets the transmitter request dma transfers.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_dma_transmitter_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl3, 7, new_state);
}

/**
  * @brief  lets the receiver request dma transfers.
  * @param  usart_x: USART1 or USART2
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_dma_receiver_enable(usart_type *usart_x, confirm_state new_state)
{
  MQ_BIT_WRITE(usart_x->ctrl3, 6, new_state);
}

/**
  * @brief  enables or disables interrupts.
  * @param  usart_x: USART1 or USART2
  * @param  usart_int: USART_xxx_INT values
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void usart_interrupt_enable(usart_type *usart_x, uint32_t usart_int, confirm_state new_state)
{
  if(new_state != FALSE)
  {
    usart_x->ctrl1 |= usart_int;
  }
  else
  {
    usart_x->ctrl1 &= ~usart_int;
  }
}

/**
  * @brief  sends one data.
  * @param  usart_x: USART1 or USART2
  * @param  data: the data
  * @retval none
  */
void usart_data_transmit(usart_type *usart_x, uint16_t data)
{
  usart_x->dt = data & (uint32_t)0x01FF;
}

/**
  * @brief  the data received last.
  * @param  usart_x: USART1 or USART2
  * @retval uint16_t
  */
uint16_t usart_data_receive(usart_type *usart_x)
{
  return (uint16_t)(usart_x->dt & (uint32_t)0x01FF);
}

/**
  * @brief  reads a flag.
  * @param  usart_x: USART1 or USART2
  * @param  flag: a USART_xxx_FLAG value
  * @retval flag_status
  */
flag_status usart_flag_get(usart_type *usart_x, uint32_t flag)
{
  return (usart_x->sts & flag) != 0 ? SET : RESET;
}

/**
  * @brief  clears flags.
  * @param  usart_x: USART1 or USART2
  * @param  flag: USART_xxx_FLAG values
  * @retval none
  */
void usart_flag_clear(usart_type *usart_x, uint32_t flag)
{
  usart_x->ifc = flag;
}

#endif
