/**
  **************************************************************************
  * @file     mq48t110_scfg.c
  * @brief    system configuration driver of the mq48t110
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

#ifdef SCFG_MODULE_ENABLED

/**
  * @brief  connects an exint line to the pin of the same number of a port.
  * @param  port_source: a SCFG_PORT_SOURCE_GPIOx value
  * @param  pin_source: a SCFG_PINS_SOURCEn value
  * @retval none
  */
void scfg_exint_line_config(scfg_port_source_type port_source, scfg_pins_source_type pin_source)
{
  const uint32_t line = (uint32_t)pin_source;
  MQ_FIELD_WRITE(SCFG->exintc[line >> 2], (line & 0x3) * 4, 4, port_source);
}

/**
  * @brief  moves a dma request to its second channel.
  * @param  remap: a SCFG_DMA_REMAP_xxx value
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void scfg_dma_channel_remap(scfg_dma_remap_type remap, confirm_state new_state)
{
  MQ_BIT_WRITE(SCFG->cfg1, (uint32_t)remap, new_state);
}

/**
  * @brief  selects the envelope and the polarity of the infrared output.
  * @param  source: a SCFG_IR_SOURCE_xxx value
  * @param  polarity: a SCFG_IR_POLARITY_xxx value
  * @retval none
  */
void scfg_infrared_config(scfg_ir_source_type source, scfg_ir_polarity_type polarity)
{
  MQ_FIELD_WRITE(SCFG->cfg1, 6, 2, source);
  MQ_FIELD_WRITE(SCFG->cfg1, 5, 1, polarity);
}

/**
  * @brief  puts pa11 and pa12 on the package pins of pa9 and pa10 (20-pin package).
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void scfg_pa11pa12_pin_remap(confirm_state new_state)
{
  MQ_BIT_WRITE(SCFG->cfg1, 4, new_state);
}

#endif
