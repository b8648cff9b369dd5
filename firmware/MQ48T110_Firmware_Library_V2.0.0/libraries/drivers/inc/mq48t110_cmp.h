/**
  **************************************************************************
  * @file     mq48t110_cmp.h
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

#ifndef __MQ48T110_CMP_H
#define __MQ48T110_CMP_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup cmp
  * @{
  */

typedef enum
{
  CMP1_SELECTION                         = 0
} cmp_sel_type;

typedef enum
{
  CMP_NON_INVERTING_PA1 = 0, CMP_NON_INVERTING_PA3 = 1
} cmp_non_inverting_type;

typedef enum
{
  CMP_INVERTING_1_4VREFINT = 0, CMP_INVERTING_1_2VREFINT = 1, CMP_INVERTING_3_4VREFINT = 2,
  CMP_INVERTING_VREFINT = 3, CMP_INVERTING_PA4 = 4, CMP_INVERTING_PA5 = 5,
  CMP_INVERTING_PA0 = 6, CMP_INVERTING_PA2 = 7
} cmp_inverting_type;

typedef enum
{
  CMP_OUTPUT_NONE = 0, CMP_OUTPUT_TMR1BRK = 1, CMP_OUTPUT_TMR1CH1 = 2, CMP_OUTPUT_TMR1CHCLR = 3,
  CMP_OUTPUT_TMR3CH1 = 4, CMP_OUTPUT_TMR3CHCLR = 5
} cmp_output_type;

typedef enum
{
  CMP_POL_NON_INVERTING = 0, CMP_POL_INVERTING = 1
} cmp_output_polarity_type;

typedef enum
{
  CMP_SPEED_FAST = 0, CMP_SPEED_MEDIUM = 1, CMP_SPEED_SLOW = 2, CMP_SPEED_ULTRALOW = 3
} cmp_speed_type;

typedef enum
{
  CMP_HYSTERESIS_NONE = 0, CMP_HYSTERESIS_LOW = 1, CMP_HYSTERESIS_MEDIUM = 2,
  CMP_HYSTERESIS_HIGH = 3
} cmp_hysteresis_type;

typedef struct
{
  cmp_non_inverting_type cmp_non_inverting;
  cmp_inverting_type cmp_inverting;
  cmp_output_type cmp_output;
  cmp_output_polarity_type cmp_polarity;
  cmp_speed_type cmp_speed;
  cmp_hysteresis_type cmp_hysteresis;
} cmp_init_type;

void cmp_default_para_init(cmp_init_type *cmp_init_struct);
void cmp_init(cmp_sel_type cmp_sel, cmp_init_type *cmp_init_struct);
void cmp_enable(cmp_sel_type cmp_sel, confirm_state new_state);
void cmp_write_protect_enable(cmp_sel_type cmp_sel);
flag_status cmp_output_value_get(cmp_sel_type cmp_sel);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
