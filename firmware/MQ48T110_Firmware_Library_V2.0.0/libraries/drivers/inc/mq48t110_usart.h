/**
  **************************************************************************
  * @file     mq48t110_usart.h
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

#ifndef __MQ48T110_USART_H
#define __MQ48T110_USART_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup usart
  * @{
  */

typedef enum
{
  USART_DATA_7BITS = 2, USART_DATA_8BITS = 0, USART_DATA_9BITS = 1
} usart_data_bit_num_type;

typedef enum
{
  USART_STOP_1_BIT = 0, USART_STOP_0_5_BIT = 1, USART_STOP_2_BIT = 2, USART_STOP_1_5_BIT = 3
} usart_stop_bit_num_type;

typedef enum
{
  USART_PARITY_NONE = 0, USART_PARITY_EVEN = 1, USART_PARITY_ODD = 2
} usart_parity_selection_type;

typedef enum
{
  USART_HARDWARE_FLOW_NONE = 0, USART_HARDWARE_FLOW_RTS = 1, USART_HARDWARE_FLOW_CTS = 2,
  USART_HARDWARE_FLOW_RTS_CTS = 3
} usart_hardware_flow_control_type;

typedef enum
{
  USART_CLOCK_POLARITY_LOW = 0, USART_CLOCK_POLARITY_HIGH = 1
} usart_clock_polarity_type;

typedef enum
{
  USART_CLOCK_PHASE_1EDGE = 0, USART_CLOCK_PHASE_2EDGE = 1
} usart_clock_phase_type;

typedef enum
{
  USART_CLOCK_LAST_BIT_NONE = 0, USART_CLOCK_LAST_BIT_OUTPUT = 1
} usart_lbcp_type;

typedef enum
{
  USART_BREAK_10BITS = 0, USART_BREAK_11BITS = 1
} usart_break_bit_num_type;

typedef enum
{
  USART_WAKEUP_BY_IDLE_FRAME = 0, USART_WAKEUP_BY_MATCHING_ID = 1
} usart_wakeup_mode_type;

typedef enum
{
  USART_ID_FIXED_4_BIT = 0, USART_ID_RELATED_DATA_BIT = 1
} usart_identification_bit_num_type;

typedef enum
{
  USART_DE_POLARITY_HIGH = 0, USART_DE_POLARITY_LOW = 1
} usart_de_polarity_type;

/**
  * @brief data direction and function of the usart, as the configuration names them
  */
typedef enum
{
  MODE_TX_RX = 0, MODE_TX = 1, MODE_RX = 2
} usart_direction_setting_type;

typedef enum
{
  VM_ASYNCHRONOUS = 0, VM_RECEIVERMUTE, VM_MODBUS, VM_HALFDUPLEX, VM_IRDA, VM_LIN, VM_SMARTCARD
} usart_function_setting_type;

/* interrupts and flags */
#define USART_PERR_INT                   ((uint32_t)0x00000100)
#define USART_TDBE_INT                   ((uint32_t)0x00000080)
#define USART_TDC_INT                    ((uint32_t)0x00000040)
#define USART_RDBF_INT                   ((uint32_t)0x00000020)
#define USART_IDLE_INT                   ((uint32_t)0x00000010)
#define USART_TDBE_FLAG                  ((uint32_t)0x00000080)
#define USART_TDC_FLAG                   ((uint32_t)0x00000040)
#define USART_RDBF_FLAG                  ((uint32_t)0x00000020)
#define USART_IDLEF_FLAG                 ((uint32_t)0x00000010)
#define USART_ROERR_FLAG                 ((uint32_t)0x00000008)

void usart_init(usart_type *usart_x, uint32_t baud_rate, usart_data_bit_num_type data_bit,
                usart_stop_bit_num_type stop_bit);
void usart_parity_selection_config(usart_type *usart_x, usart_parity_selection_type parity);
void usart_enable(usart_type *usart_x, confirm_state new_state);
void usart_transmitter_enable(usart_type *usart_x, confirm_state new_state);
void usart_receiver_enable(usart_type *usart_x, confirm_state new_state);
void usart_hardware_flow_control_set(usart_type *usart_x,
                                     usart_hardware_flow_control_type flow_state);
void usart_clock_config(usart_type *usart_x, usart_clock_polarity_type clk_pol,
                        usart_clock_phase_type clk_pha, usart_lbcp_type clk_lb);
void usart_clock_enable(usart_type *usart_x, confirm_state new_state);
void usart_irda_mode_enable(usart_type *usart_x, confirm_state new_state);
void usart_irda_low_power_enable(usart_type *usart_x, confirm_state new_state);
void usart_irda_smartcard_division_set(usart_type *usart_x, uint8_t div_val);
void usart_smartcard_mode_enable(usart_type *usart_x, confirm_state new_state);
void usart_smartcard_guard_time_set(usart_type *usart_x, uint8_t guard_time_val);
void usart_smartcard_nack_set(usart_type *usart_x, confirm_state new_state);
void usart_lin_mode_enable(usart_type *usart_x, confirm_state new_state);
void usart_break_bit_num_set(usart_type *usart_x, usart_break_bit_num_type break_bit);
void usart_wakeup_mode_set(usart_type *usart_x, usart_wakeup_mode_type wakeup_mode);
void usart_id_bit_num_set(usart_type *usart_x, usart_identification_bit_num_type id_bit_num);
void usart_wakeup_id_set(usart_type *usart_x, uint8_t usart_id);
void usart_receiver_mute_enable(usart_type *usart_x, confirm_state new_state);
void usart_single_line_halfduplex_select(usart_type *usart_x, confirm_state new_state);
void usart_de_polarity_set(usart_type *usart_x, usart_de_polarity_type de_polarity);
void usart_rs485_delay_time_config(usart_type *usart_x, uint8_t start_delay_time,
                                   uint8_t complete_delay_time);
void usart_rs485_mode_enable(usart_type *usart_x, confirm_state new_state);
void usart_dt_polarity_reverse(usart_type *usart_x, confirm_state new_state);
void usart_msb_transmit_first_enable(usart_type *usart_x, confirm_state new_state);
void usart_rx_polarity_reverse(usart_type *usart_x, confirm_state new_state);
void usart_tx_polarity_reverse(usart_type *usart_x, confirm_state new_state);
void usart_transmit_receive_pin_swap(usart_type *usart_x, confirm_state new_state);
void usart_dma_transmitter_enable(usart_type *usart_x, confirm_state new_state);
void usart_dma_receiver_enable(usart_type *usart_x, confirm_state new_state);
void usart_interrupt_enable(usart_type *usart_x, uint32_t usart_int, confirm_state new_state);
void usart_data_transmit(usart_type *usart_x, uint16_t data);
uint16_t usart_data_receive(usart_type *usart_x);
flag_status usart_flag_get(usart_type *usart_x, uint32_t flag);
void usart_flag_clear(usart_type *usart_x, uint32_t flag);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
