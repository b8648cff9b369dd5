/**
  **************************************************************************
  * @file     mq48t110_dma.c
  * @brief    dma controller driver of the mq48t110
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

#ifdef DMA_MODULE_ENABLED

/**
  * @brief  stops a channel and returns its registers to their reset values.
  * @param  dmax_channely: DMA1_CHANNEL1 to DMA1_CHANNEL5
  * @retval none
  */
void dma_reset(dma_channel_type *dmax_channely)
{
  const uint32_t index = ((uint32_t)dmax_channely - DMA1_CHANNEL1_BASE) / 0x14;
  dmax_channely->ctrl = 0;
  dmax_channely->dtcnt = 0;
  dmax_channely->paddr = 0;
  dmax_channely->maddr = 0;
  DMA1->clr = (uint32_t)0xF << (index * 4);
}

/**
  * @brief  fills the settings with their reset values.
  * @param  dma_init_struct: the settings to fill
  * @retval none
  */
void dma_default_para_init(dma_init_type *dma_init_struct)
{
  dma_init_struct->peripheral_base_addr = 0;
  dma_init_struct->memory_base_addr = 0;
  dma_init_struct->direction = DMA_DIR_PERIPHERAL_TO_MEMORY;
  dma_init_struct->buffer_size = 0;
  dma_init_struct->peripheral_inc_enable = FALSE;
  dma_init_struct->memory_inc_enable = FALSE;
  dma_init_struct->peripheral_data_width = DMA_PERIPHERAL_DATA_WIDTH_BYTE;
  dma_init_struct->memory_data_width = DMA_MEMORY_DATA_WIDTH_BYTE;
  dma_init_struct->loop_mode_enable = FALSE;
  dma_init_struct->priority = DMA_PRIORITY_LOW;
}

/**
  * @brief  applies the settings to a channel.
  * @param  dmax_channely: the channel
  * @param  dma_init_struct: the settings
  * @retval none
  */
void dma_init(dma_channel_type *dmax_channely, dma_init_type *dma_init_struct)
{
  uint32_t ctrl = dmax_channely->ctrl & (uint32_t)0x0000000F;
  if(dma_init_struct->direction == DMA_DIR_MEMORY_TO_PERIPHERAL)
  {
    ctrl |= (uint32_t)1 << 4;
  }
  else if(dma_init_struct->direction == DMA_DIR_MEMORY_TO_MEMORY)
  {
    ctrl |= (uint32_t)1 << 14;
  }
  MQ_BIT_WRITE(ctrl, 5, dma_init_struct->loop_mode_enable);
  MQ_BIT_WRITE(ctrl, 6, dma_init_struct->peripheral_inc_enable);
  MQ_BIT_WRITE(ctrl, 7, dma_init_struct->memory_inc_enable);
  MQ_FIELD_WRITE(ctrl, 8, 2, dma_init_struct->peripheral_data_width);
  MQ_FIELD_WRITE(ctrl, 10, 2, dma_init_struct->memory_data_width);
  MQ_FIELD_WRITE(ctrl, 12, 2, dma_init_struct->priority);
  dmax_channely->ctrl = ctrl;
  dmax_channely->dtcnt = dma_init_struct->buffer_size;
  dmax_channely->paddr = dma_init_struct->peripheral_base_addr;
  dmax_channely->maddr = dma_init_struct->memory_base_addr;
}

/**
  * @brief  starts or stops a channel.
  * @param  dmax_channely: the channel
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void dma_channel_enable(dma_channel_type *dmax_channely, confirm_state new_state)
{
  MQ_BIT_WRITE(dmax_channely->ctrl, 0, new_state);
}

/**
  * @brief  sets the number of data to transfer.
  * @param  dmax_channely: the channel
  * @param  data_number: 0 to 65535
  * @retval none
  */
void dma_data_number_set(dma_channel_type *dmax_channely, uint16_t data_number)
{
  dmax_channely->dtcnt = data_number;
}

/**
  * @brief  the number of data still to transfer.
  * @param  dmax_channely: the channel
  * @retval uint16_t
  */
uint16_t dma_data_number_get(dma_channel_type *dmax_channely)
{
  return (uint16_t)dmax_channely->dtcnt;
}

/**
  * @brief  enables or disables interrupts of a channel.
  * @param  dmax_channely: the channel
  * @param  dma_int: DMA_xxx_INT values
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void dma_interrupt_enable(dma_channel_type *dmax_channely, uint32_t dma_int,
                          confirm_state new_state)
{
  if(new_state != FALSE)
  {
    dmax_channely->ctrl |= dma_int;
  }
  else
  {
    dmax_channely->ctrl &= ~dma_int;
  }
}

/**
  * @brief  reads a flag.
  * @param  dmax_flag: a DMA1_xxx_FLAG value
  * @retval flag_status
  */
flag_status dma_flag_get(uint32_t dmax_flag)
{
  return (DMA1->sts & dmax_flag) != 0 ? SET : RESET;
}

/**
  * @brief  clears flags.
  * @param  dmax_flag: DMA1_xxx_FLAG values
  * @retval none
  */
void dma_flag_clear(uint32_t dmax_flag)
{
  DMA1->clr = dmax_flag;
}

#endif
