/**
  **************************************************************************
  * @file     mq48t110_exint.h
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

#ifndef __MQ48T110_EXINT_H
#define __MQ48T110_EXINT_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup exint
  * @{
  */

/* lines: 0 to 15 pins, 16 voltage monitor, 17 ertc alarm, 19 ertc tamper and time stamp,
   20 ertc wakeup, 21 comparator */
#define EXINT_LINE_0                     ((uint32_t)0x00000001)
#define EXINT_LINE_1                     ((uint32_t)0x00000002)
#define EXINT_LINE_2                     ((uint32_t)0x00000004)
#define EXINT_LINE_3                     ((uint32_t)0x00000008)
#define EXINT_LINE_4                     ((uint32_t)0x00000010)
#define EXINT_LINE_5                     ((uint32_t)0x00000020)
#define EXINT_LINE_6                     ((uint32_t)0x00000040)
#define EXINT_LINE_7                     ((uint32_t)0x00000080)
#define EXINT_LINE_8                     ((uint32_t)0x00000100)
#define EXINT_LINE_9                     ((uint32_t)0x00000200)
#define EXINT_LINE_10                    ((uint32_t)0x00000400)
#define EXINT_LINE_11                    ((uint32_t)0x00000800)
#define EXINT_LINE_12                    ((uint32_t)0x00001000)
#define EXINT_LINE_13                    ((uint32_t)0x00002000)
#define EXINT_LINE_14                    ((uint32_t)0x00004000)
#define EXINT_LINE_15                    ((uint32_t)0x00008000)
#define EXINT_LINE_16                    ((uint32_t)0x00010000)
#define EXINT_LINE_17                    ((uint32_t)0x00020000)
#define EXINT_LINE_18                    ((uint32_t)0x00040000)
#define EXINT_LINE_19                    ((uint32_t)0x00080000)
#define EXINT_LINE_20                    ((uint32_t)0x00100000)
#define EXINT_LINE_21                    ((uint32_t)0x00200000)
#define EXINT_LINE_22                    ((uint32_t)0x00400000)
#define EXINT_LINE_NONE                  ((uint32_t)0x00000000)

/**
  * @brief what a line raises
  */
typedef enum
{
  EXINT_LINE_INTERRUPUT                  = 0,
  EXINT_LINE_EVENT                       = 1
} exint_line_mode_type;

/**
  * @brief edges of a line
  */
typedef enum
{
  EXINT_TRIGGER_RISING_EDGE              = 0,
  EXINT_TRIGGER_FALLING_EDGE             = 1,
  EXINT_TRIGGER_BOTH_EDGE                = 2
} exint_polarity_config_type;

/**
  * @brief settings of exint lines
  */
typedef struct
{
  uint32_t line_select;                  /*!< EXINT_LINE_n values */
  confirm_state line_enable;
  exint_line_mode_type line_mode;
  exint_polarity_config_type line_polarity;
} exint_init_type;

void exint_default_para_init(exint_init_type *exint_struct);
void exint_init(exint_init_type *exint_struct);
void exint_interrupt_enable(uint32_t exint_line, confirm_state new_state);
void exint_software_interrupt_event_generate(uint32_t exint_line);
flag_status exint_flag_get(uint32_t exint_line);
flag_status exint_interrupt_flag_get(uint32_t exint_line);
void exint_flag_clear(uint32_t exint_line);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
