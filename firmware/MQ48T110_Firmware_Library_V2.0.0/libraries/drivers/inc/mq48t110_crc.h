/**
  **************************************************************************
  * @file     mq48t110_crc.h
  * @brief    crc calculation unit driver of the mq48t110
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

#ifndef __MQ48T110_CRC_H
#define __MQ48T110_CRC_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup crc
  * @{
  */

typedef enum
{
  CRC_POLY_SIZE_32B = 0, CRC_POLY_SIZE_16B = 1, CRC_POLY_SIZE_8B = 2, CRC_POLY_SIZE_7B = 3
} crc_poly_size_type;

typedef enum
{
  CRC_REVERSE_INPUT_NONE = 0, CRC_REVERSE_INPUT_BY_BYTE = 1, CRC_REVERSE_INPUT_BY_HALFWORD = 2,
  CRC_REVERSE_INPUT_BY_WORD = 3
} crc_reverse_input_type;

typedef enum
{
  CRC_REVERSE_OUTPUT_NONE = 0, CRC_REVERSE_OUTPUT_DATA = 1
} crc_reverse_output_type;

void crc_data_reset(void);
void crc_poly_size_set(crc_poly_size_type size);
void crc_poly_value_set(uint32_t value);
void crc_init_data_set(uint32_t value);
void crc_reverse_input_data_set(crc_reverse_input_type value);
void crc_reverse_output_data_set(crc_reverse_output_type value);
uint32_t crc_one_word_calculate(uint32_t data);
uint32_t crc_block_calculate(const uint32_t *pbuffer, uint32_t length);
uint32_t crc_data_get(void);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
