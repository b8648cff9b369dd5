/**
  **************************************************************************
  * @file     mq48t110_cmp.c
  * @brief    comparator driver of the mq48t110
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

#ifdef CMP_MODULE_ENABLED

/**
  * @brief  fills the settings with their reset values.
  * @param  cmp_init_struct: the settings to fill
  * @retval none
  */
void cmp_default_para_init(cmp_init_type *cmp_init_struct)
{
  cmp_init_struct->cmp_non_inverting = CMP_NON_INVERTING_PA1;
  cmp_init_struct->cmp_inverting = CMP_INVERTING_1_4VREFINT;
  cmp_init_struct->cmp_output = CMP_OUTPUT_NONE;
  cmp_init_struct->cmp_polarity = CMP_POL_NON_INVERTING;
  cmp_init_struct->cmp_speed = CMP_SPEED_FAST;
  cmp_init_struct->cmp_hysteresis = CMP_HYSTERESIS_NONE;
}

/**
  * @brief  applies the settings.
  * @param  cmp_sel: CMP1_SELECTION
  * @param  cmp_init_struct: the settings
  * @retval none
  */
void cmp_init(cmp_sel_type cmp_sel, cmp_init_type *cmp_init_struct)
{
  uint32_t value = CMP->ctrlsts & (uint32_t)0x1;
  (void)cmp_sel;
  MQ_FIELD_WRITE(value, 2, 2, cmp_init_struct->cmp_speed);
  MQ_FIELD_WRITE(value, 4, 3, cmp_init_struct->cmp_inverting);
  MQ_FIELD_WRITE(value, 7, 1, cmp_init_struct->cmp_non_inverting);
  MQ_FIELD_WRITE(value, 8, 3, cmp_init_struct->cmp_output);
  MQ_FIELD_WRITE(value, 11, 1, cmp_init_struct->cmp_polarity);
  MQ_FIELD_WRITE(value, 12, 2, cmp_init_struct->cmp_hysteresis);
  CMP->ctrlsts = value;
}

/**
  * @brief  switches the comparator on or off.
  * @param  cmp_sel: CMP1_SELECTION
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void cmp_enable(cmp_sel_type cmp_sel, confirm_state new_state)
{
  (void)cmp_sel;
  MQ_BIT_WRITE(CMP->ctrlsts, 0, new_state);
}

/**
  * @brief  locks the settings until the next reset.
  * @param  cmp_sel: CMP1_SELECTION
  * @retval none
  */
void cmp_write_protect_enable(cmp_sel_type cmp_sel)
{
  (void)cmp_sel;
  CMP->ctrlsts |= (uint32_t)1 << 31;
}

/**
  * @brief  the output level.
  * @param  cmp_sel: CMP1_SELECTION
  * @retval flag_status
  */
flag_status cmp_output_value_get(cmp_sel_type cmp_sel)
{
  (void)cmp_sel;
  return (CMP->ctrlsts & ((uint32_t)1 << 30)) != 0 ? SET : RESET;
}

#endif
