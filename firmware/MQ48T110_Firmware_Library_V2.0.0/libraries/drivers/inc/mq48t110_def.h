/**
  **************************************************************************
  * @file     mq48t110_def.h
  * @brief    definitions shared by the mq48t110 drivers
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

#ifndef __MQ48T110_DEF_H
#define __MQ48T110_DEF_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110.h"

/* a mask of the given number of low bits (1 to 31) */
#define MQ_MASK(width)                   ((uint32_t)(((uint32_t)1 << (width)) - 1))

/* writes a field of a register */
#define MQ_FIELD_WRITE(reg, pos, width, value) \
  ((reg) = ((reg) & ~(MQ_MASK(width) << (pos))) | ((((uint32_t)(value)) & MQ_MASK(width)) << (pos)))

/* reads a field of a register */
#define MQ_FIELD_READ(reg, pos, width)   ((((uint32_t)(reg)) >> (pos)) & MQ_MASK(width))

/* sets a bit when the state is not FALSE, clears it otherwise */
#define MQ_BIT_WRITE(reg, pos, state) \
  ((reg) = ((state) != FALSE) ? ((reg) | ((uint32_t)1 << (pos))) : ((reg) & ~((uint32_t)1 << (pos))))

/* a register of a block by its offset */
#define MQ_REG32(base, offset)           (*(volatile uint32_t *)((uint32_t)(base) + (uint32_t)(offset)))

#ifdef __cplusplus
}
#endif

#endif
