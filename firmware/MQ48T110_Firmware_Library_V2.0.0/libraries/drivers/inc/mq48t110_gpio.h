/**
  **************************************************************************
  * @file     mq48t110_gpio.h
  * @brief    general purpose i/o driver of the mq48t110
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

#ifndef __MQ48T110_GPIO_H
#define __MQ48T110_GPIO_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup gpio
  * @{
  */

/* pins of a port, usable as masks */
#define GPIO_PINS_0                      ((uint16_t)0x0001)
#define GPIO_PINS_1                      ((uint16_t)0x0002)
#define GPIO_PINS_2                      ((uint16_t)0x0004)
#define GPIO_PINS_3                      ((uint16_t)0x0008)
#define GPIO_PINS_4                      ((uint16_t)0x0010)
#define GPIO_PINS_5                      ((uint16_t)0x0020)
#define GPIO_PINS_6                      ((uint16_t)0x0040)
#define GPIO_PINS_7                      ((uint16_t)0x0080)
#define GPIO_PINS_8                      ((uint16_t)0x0100)
#define GPIO_PINS_9                      ((uint16_t)0x0200)
#define GPIO_PINS_10                     ((uint16_t)0x0400)
#define GPIO_PINS_11                     ((uint16_t)0x0800)
#define GPIO_PINS_12                     ((uint16_t)0x1000)
#define GPIO_PINS_13                     ((uint16_t)0x2000)
#define GPIO_PINS_14                     ((uint16_t)0x4000)
#define GPIO_PINS_15                     ((uint16_t)0x8000)
#define GPIO_PINS_ALL                    ((uint16_t)0xFFFF)

/**
  * @brief pin mode
  */
typedef enum
{
  GPIO_MODE_INPUT                        = 0,
  GPIO_MODE_OUTPUT                       = 1,
  GPIO_MODE_MUX                          = 2,
  GPIO_MODE_ANALOG                       = 3
} gpio_mode_type;

/**
  * @brief output type
  */
typedef enum
{
  GPIO_OUTPUT_PUSH_PULL                  = 0,
  GPIO_OUTPUT_OPEN_DRAIN                 = 1
} gpio_output_type;

/**
  * @brief pull resistor
  */
typedef enum
{
  GPIO_PULL_NONE                         = 0,
  GPIO_PULL_UP                           = 1,
  GPIO_PULL_DOWN                         = 2
} gpio_pull_type;

/**
  * @brief output drive strength
  */
typedef enum
{
  GPIO_DRIVE_STRENGTH_STRONGER           = 1,
  GPIO_DRIVE_STRENGTH_MODERATE           = 2
} gpio_drive_type;

/**
  * @brief start level of an output pin, as the configuration names it
  */
typedef enum
{
  GPIO_OUTPUTLEVEL_LOW                   = 0,
  GPIO_OUTPUTLEVEL_HIGH                  = 1
} gpio_output_level_type;

/**
  * @brief pin number for the multiplexer
  */
typedef enum
{
  GPIO_PINS_SOURCE0 = 0, GPIO_PINS_SOURCE1, GPIO_PINS_SOURCE2, GPIO_PINS_SOURCE3,
  GPIO_PINS_SOURCE4, GPIO_PINS_SOURCE5, GPIO_PINS_SOURCE6, GPIO_PINS_SOURCE7,
  GPIO_PINS_SOURCE8, GPIO_PINS_SOURCE9, GPIO_PINS_SOURCE10, GPIO_PINS_SOURCE11,
  GPIO_PINS_SOURCE12, GPIO_PINS_SOURCE13, GPIO_PINS_SOURCE14, GPIO_PINS_SOURCE15
} gpio_pins_source_type;

/**
  * @brief multiplexer function of a pin
  */
typedef enum
{
  GPIO_MUX_0 = 0, GPIO_MUX_1, GPIO_MUX_2, GPIO_MUX_3, GPIO_MUX_4, GPIO_MUX_5, GPIO_MUX_6,
  GPIO_MUX_7
} gpio_mux_sel_type;

/**
  * @brief settings of one or more pins of a port
  */
typedef struct
{
  uint32_t gpio_pins;                    /*!< GPIO_PINS_n values */
  gpio_output_type gpio_out_type;
  gpio_pull_type gpio_pull;
  gpio_mode_type gpio_mode;
  gpio_drive_type gpio_drive_strength;
} gpio_init_type;

void gpio_default_para_init(gpio_init_type *gpio_init_struct);
void gpio_init(gpio_type *gpio_x, gpio_init_type *gpio_init_struct);
void gpio_pin_mux_config(gpio_type *gpio_x, gpio_pins_source_type gpio_pin_source,
                         gpio_mux_sel_type gpio_mux);
void gpio_bits_set(gpio_type *gpio_x, uint16_t pins);
void gpio_bits_reset(gpio_type *gpio_x, uint16_t pins);
void gpio_bits_write(gpio_type *gpio_x, uint16_t pins, confirm_state bit_state);
void gpio_bits_toggle(gpio_type *gpio_x, uint16_t pins);
flag_status gpio_input_data_bit_read(gpio_type *gpio_x, uint16_t pins);
flag_status gpio_output_data_bit_read(gpio_type *gpio_x, uint16_t pins);
uint16_t gpio_input_data_read(gpio_type *gpio_x);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
