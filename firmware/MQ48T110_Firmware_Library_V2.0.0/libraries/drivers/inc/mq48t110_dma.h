/**
  **************************************************************************
  * @file     mq48t110_dma.h
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

#ifndef __MQ48T110_DMA_H
#define __MQ48T110_DMA_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup dma
  * @{
  */

/**
  * @brief transfer direction
  */
typedef enum
{
  DMA_DIR_PERIPHERAL_TO_MEMORY           = 0,
  DMA_DIR_MEMORY_TO_PERIPHERAL           = 1,
  DMA_DIR_MEMORY_TO_MEMORY               = 2
} dma_dir_type;

typedef enum
{
  DMA_PERIPHERAL_DATA_WIDTH_BYTE = 0, DMA_PERIPHERAL_DATA_WIDTH_HALFWORD = 1,
  DMA_PERIPHERAL_DATA_WIDTH_WORD = 2
} dma_peripheral_data_size_type;

typedef enum
{
  DMA_MEMORY_DATA_WIDTH_BYTE = 0, DMA_MEMORY_DATA_WIDTH_HALFWORD = 1,
  DMA_MEMORY_DATA_WIDTH_WORD = 2
} dma_memory_data_size_type;

typedef enum
{
  DMA_PRIORITY_LOW = 0, DMA_PRIORITY_MEDIUM = 1, DMA_PRIORITY_HIGH = 2,
  DMA_PRIORITY_VERY_HIGH = 3
} dma_priority_level_type;

/* channel interrupts */
#define DMA_FDT_INT                      ((uint32_t)0x00000002) /*!< transfer done */
#define DMA_HDT_INT                      ((uint32_t)0x00000004) /*!< half transfer done */
#define DMA_DTERR_INT                    ((uint32_t)0x00000008) /*!< transfer error */

/* flags of dma1: global, transfer done, half done, error per channel */
#define DMA1_GL1_FLAG                 ((uint32_t)0x00000001)
#define DMA1_FDT1_FLAG                ((uint32_t)0x00000002)
#define DMA1_HDT1_FLAG                ((uint32_t)0x00000004)
#define DMA1_DTERR1_FLAG              ((uint32_t)0x00000008)
#define DMA1_GL2_FLAG                 ((uint32_t)0x00000010)
#define DMA1_FDT2_FLAG                ((uint32_t)0x00000020)
#define DMA1_HDT2_FLAG                ((uint32_t)0x00000040)
#define DMA1_DTERR2_FLAG              ((uint32_t)0x00000080)
#define DMA1_GL3_FLAG                 ((uint32_t)0x00000100)
#define DMA1_FDT3_FLAG                ((uint32_t)0x00000200)
#define DMA1_HDT3_FLAG                ((uint32_t)0x00000400)
#define DMA1_DTERR3_FLAG              ((uint32_t)0x00000800)
#define DMA1_GL4_FLAG                 ((uint32_t)0x00001000)
#define DMA1_FDT4_FLAG                ((uint32_t)0x00002000)
#define DMA1_HDT4_FLAG                ((uint32_t)0x00004000)
#define DMA1_DTERR4_FLAG              ((uint32_t)0x00008000)
#define DMA1_GL5_FLAG                 ((uint32_t)0x00010000)
#define DMA1_FDT5_FLAG                ((uint32_t)0x00020000)
#define DMA1_HDT5_FLAG                ((uint32_t)0x00040000)
#define DMA1_DTERR5_FLAG              ((uint32_t)0x00080000)

/**
  * @brief settings of a channel
  */
typedef struct
{
  uint32_t peripheral_base_addr;
  uint32_t memory_base_addr;
  dma_dir_type direction;
  uint16_t buffer_size;
  confirm_state peripheral_inc_enable;
  confirm_state memory_inc_enable;
  dma_peripheral_data_size_type peripheral_data_width;
  dma_memory_data_size_type memory_data_width;
  confirm_state loop_mode_enable;
  dma_priority_level_type priority;
} dma_init_type;

void dma_reset(dma_channel_type *dmax_channely);
void dma_default_para_init(dma_init_type *dma_init_struct);
void dma_init(dma_channel_type *dmax_channely, dma_init_type *dma_init_struct);
void dma_channel_enable(dma_channel_type *dmax_channely, confirm_state new_state);
void dma_data_number_set(dma_channel_type *dmax_channely, uint16_t data_number);
uint16_t dma_data_number_get(dma_channel_type *dmax_channely);
void dma_interrupt_enable(dma_channel_type *dmax_channely, uint32_t dma_int,
                          confirm_state new_state);
flag_status dma_flag_get(uint32_t dmax_flag);
void dma_flag_clear(uint32_t dmax_flag);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
