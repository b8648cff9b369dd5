/**
  **************************************************************************
  * @file     mq48t110_gpio.c
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

#include "mq48t110_conf.h"

#ifdef GPIO_MODULE_ENABLED

/**
  * @brief  fills the settings with their reset values: analog input, no pull.
  * @param  gpio_init_struct: the settings to fill
  * @retval none
  */
void gpio_default_para_init(gpio_init_type *gpio_init_struct)
{
  gpio_init_struct->gpio_pins = GPIO_PINS_ALL;
  gpio_init_struct->gpio_mode = GPIO_MODE_INPUT;
  gpio_init_struct->gpio_out_type = GPIO_OUTPUT_PUSH_PULL;
  gpio_init_struct->gpio_pull = GPIO_PULL_NONE;
  gpio_init_struct->gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;
}

/**
  * @brief  applies the settings to every pin named in gpio_pins.
  * @param  gpio_x: GPIOA, GPIOB, GPIOC or GPIOF
  * @param  gpio_init_struct: the settings
  * @retval none
  */
void gpio_init(gpio_type *gpio_x, gpio_init_type *gpio_init_struct)
{
  uint32_t pin;
  for(pin = 0; pin < 16; pin++)
  {
    if((gpio_init_struct->gpio_pins & ((uint32_t)1 << pin)) == 0)
    {
      continue;
    }
    MQ_FIELD_WRITE(gpio_x->cfgr, pin * 2, 2, gpio_init_struct->gpio_mode);
    MQ_FIELD_WRITE(gpio_x->omode, pin, 1, gpio_init_struct->gpio_out_type);
    MQ_FIELD_WRITE(gpio_x->odrvr, pin * 2, 2, gpio_init_struct->gpio_drive_strength);
    MQ_FIELD_WRITE(gpio_x->pull, pin * 2, 2, gpio_init_struct->gpio_pull);
  }
}

/**
  * @brief  selects the multiplexer function of a pin.
  * @param  gpio_x: the port
  * @param  gpio_pin_source: a GPIO_PINS_SOURCEn value
  * @param  gpio_mux: a GPIO_MUX_n value
  * @retval none
  */
void gpio_pin_mux_config(gpio_type *gpio_x, gpio_pins_source_type gpio_pin_source,
                         gpio_mux_sel_type gpio_mux)
{
  const uint32_t pos = ((uint32_t)gpio_pin_source & 0x7) * 4;
  if(gpio_pin_source < GPIO_PINS_SOURCE8)
  {
    MQ_FIELD_WRITE(gpio_x->muxl, pos, 4, gpio_mux);
  }
  else
  {
    MQ_FIELD_WRITE(gpio_x->muxh, pos, 4, gpio_mux);
  }
}

/**
  * @brief  drives pins high.
  * @param  gpio_x: the port
  * @param  pins: GPIO_PINS_n values
  * @retval none
  */
void gpio_bits_set(gpio_type *gpio_x, uint16_t pins)
{
  gpio_x->scr = pins;
}

/**
  * @brief  drives pins low.
  * @param  gpio_x: the port
  * @param  pins: GPIO_PINS_n values
  * @retval none
  */
void gpio_bits_reset(gpio_type *gpio_x, uint16_t pins)
{
  gpio_x->clr = pins;
}

/**
  * @brief  drives pins high (TRUE) or low (FALSE).
  * @param  gpio_x: the port
  * @param  pins: GPIO_PINS_n values
  * @param  bit_state: TRUE or FALSE
  * @retval none
  */
void gpio_bits_write(gpio_type *gpio_x, uint16_t pins, confirm_state bit_state)
{
  if(bit_state != FALSE)
  {
    gpio_x->scr = pins;
  }
  else
  {
    gpio_x->clr = pins;
  }
}

/**
  * @brief  inverts output pins.
  * @param  gpio_x: the port
  * @param  pins: GPIO_PINS_n values
  * @retval none
  */
void gpio_bits_toggle(gpio_type *gpio_x, uint16_t pins)
{
  gpio_x->odt ^= pins;
}

/**
  * @brief  reads the level of input pins.
  * @param  gpio_x: the port
  * @param  pins: GPIO_PINS_n values
  * @retval flag_status
  */
flag_status gpio_input_data_bit_read(gpio_type *gpio_x, uint16_t pins)
{
  return (gpio_x->idt & pins) != 0 ? SET : RESET;
}

/**
  * @brief  reads the output latch of pins.
  * @param  gpio_x: the port
  * @param  pins: GPIO_PINS_n values
  * @retval flag_status
  */
flag_status gpio_output_data_bit_read(gpio_type *gpio_x, uint16_t pins)
{
  return (gpio_x->odt & pins) != 0 ? SET : RESET;
}

/**
  * @brief  reads all inputs of a port.
  * @param  gpio_x: the port
  * @retval uint16_t
  */
uint16_t gpio_input_data_read(gpio_type *gpio_x)
{
  return (uint16_t)gpio_x->idt;
}

#endif
