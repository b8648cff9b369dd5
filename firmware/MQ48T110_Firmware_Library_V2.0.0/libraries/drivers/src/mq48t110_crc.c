/**
  **************************************************************************
  * @file     mq48t110_crc.c
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

#include "mq48t110_conf.h"

#ifdef CRC_MODULE_ENABLED

/**
  * @brief  starts a new calculation from the initial value.
  * @param  none
  * @retval none
  */
void crc_data_reset(void)
{
  CRC->ctrl |= (uint32_t)0x1;
}

/**
  * @brief  sets the size of the polynomial.
  * @param  size: a CRC_POLY_SIZE_xxx value
  * @retval none
  */
void crc_poly_size_set(crc_poly_size_type size)
{
  MQ_FIELD_WRITE(CRC->ctrl, 3, 2, size);
}

/**
  * @brief  sets the polynomial.
  * @param  value: the polynomial
  * @retval none
  */
void crc_poly_value_set(uint32_t value)
{
  CRC->poly = value;
}

/**
  * @brief  sets the initial value.
  * @param  value: the initial value
  * @retval none
  */
void crc_init_data_set(uint32_t value)
{
  CRC->idt = value;
}

/**
  * @brief  sets the bit reversal of input data.
  * @param  value: a CRC_REVERSE_INPUT_xxx value
  * @retval none
  */
void crc_reverse_input_data_set(crc_reverse_input_type value)
{
  MQ_FIELD_WRITE(CRC->ctrl, 5, 2, value);
}

/**
  * @brief  sets the bit reversal of the result.
  * @param  value: a CRC_REVERSE_OUTPUT_xxx value
  * @retval none
  */
void crc_reverse_output_data_set(crc_reverse_output_type value)
{
  MQ_FIELD_WRITE(CRC->ctrl, 7, 1, value);
}

/**
  * @brief  adds one word to the calculation.
  * @param  data: the word
  * @retval uint32_t
  */
uint32_t crc_one_word_calculate(uint32_t data)
{
  CRC->dt = data;
  return CRC->dt;
}

/**
  * @brief  adds a block of words to the calculation.
  * @param  pbuffer: the words
  * @param  length: the number of words
  * @retval uint32_t
  */
uint32_t crc_block_calculate(const uint32_t *pbuffer, uint32_t length)
{
  uint32_t index;
  for(index = 0; index < length; index++)
  {
    CRC->dt = pbuffer[index];
  }
  return CRC->dt;
}

/**
  * @brief  the result so far.
  * @param  none
  * @retval uint32_t
  */
uint32_t crc_data_get(void)
{
  return CRC->dt;
}

#endif
