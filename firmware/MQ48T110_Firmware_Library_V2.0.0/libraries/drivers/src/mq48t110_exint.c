/**
  **************************************************************************
  * @file     mq48t110_exint.c
  * @brief    external interrupt and event driver of the mq48t110
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

#ifdef EXINT_MODULE_ENABLED

/**
  * @brief  fills the settings with their reset values.
  * @param  exint_struct: the settings to fill
  * @retval none
  */
void exint_default_para_init(exint_init_type *exint_struct)
{
  exint_struct->line_select = EXINT_LINE_NONE;
  exint_struct->line_enable = FALSE;
  exint_struct->line_mode = EXINT_LINE_INTERRUPUT;
  exint_struct->line_polarity = EXINT_TRIGGER_RISING_EDGE;
}

/**
  * @brief  applies the settings to the lines named in line_select.
  * @param  exint_struct: the settings
  * @retval none
  */
void exint_init(exint_init_type *exint_struct)
{
  const uint32_t lines = exint_struct->line_select;
  EXINT->inten &= ~lines;
  EXINT->evten &= ~lines;
  EXINT->polcfg1 &= ~lines;
  EXINT->polcfg2 &= ~lines;
  if(exint_struct->line_enable == FALSE)
  {
    return;
  }
  if(exint_struct->line_mode == EXINT_LINE_INTERRUPUT)
  {
    EXINT->inten |= lines;
  }
  else
  {
    EXINT->evten |= lines;
  }
  if(exint_struct->line_polarity != EXINT_TRIGGER_FALLING_EDGE)
  {
    EXINT->polcfg1 |= lines;
  }
  if(exint_struct->line_polarity != EXINT_TRIGGER_RISING_EDGE)
  {
    EXINT->polcfg2 |= lines;
  }
}

/**
  * @brief  enables or disables the interrupt of lines.
  * @param  exint_line: EXINT_LINE_n values
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void exint_interrupt_enable(uint32_t exint_line, confirm_state new_state)
{
  if(new_state != FALSE)
  {
    EXINT->inten |= exint_line;
  }
  else
  {
    EXINT->inten &= ~exint_line;
  }
}

/**
  * @brief  raises lines by software.
  * @param  exint_line: EXINT_LINE_n values
  * @retval none
  */
void exint_software_interrupt_event_generate(uint32_t exint_line)
{
  EXINT->swtrg |= exint_line;
}

/**
  * @brief  reads the pending flag of a line.
  * @param  exint_line: an EXINT_LINE_n value
  * @retval flag_status
  */
flag_status exint_flag_get(uint32_t exint_line)
{
  return (EXINT->intsts & exint_line) != 0 ? SET : RESET;
}

/**
  * @brief  reads the pending flag of a line whose interrupt is enabled.
  * @param  exint_line: an EXINT_LINE_n value
  * @retval flag_status
  */
flag_status exint_interrupt_flag_get(uint32_t exint_line)
{
  return (EXINT->intsts & EXINT->inten & exint_line) != 0 ? SET : RESET;
}

/**
  * @brief  clears pending flags.
  * @param  exint_line: EXINT_LINE_n values
  * @retval none
  */
void exint_flag_clear(uint32_t exint_line)
{
  EXINT->intsts = exint_line;
}

#endif
