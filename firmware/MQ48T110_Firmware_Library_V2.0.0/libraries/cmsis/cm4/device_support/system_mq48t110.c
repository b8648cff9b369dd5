/**
  **************************************************************************
  * @file     system_mq48t110.c
  * @brief    system start-up and core clock of the mq48t110
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

#include "mq48t110.h"

#ifndef HEXT_VALUE
#define HEXT_VALUE                       ((uint32_t)8000000)
#endif
#ifndef HICK_VALUE
#define HICK_VALUE                       ((uint32_t)48000000)
#endif

/* the pll input from hick is hick / 12 */
#define HICK_PLL_DIVIDER                 12

/* the vector table lies at the start of the flash unless a project moves it */
#ifndef VECT_TAB_OFFSET
#define VECT_TAB_OFFSET                  0x0
#endif

unsigned int system_core_clock = HICK_VALUE / 6;

static const uint8_t ahb_shift[16] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 2, 3, 4, 6, 7, 8, 9};

void SystemInit(void)
{
#if defined(__ARM_FP)
  /* full access to the floating point unit */
  MQ_SCB->cpacr |= ((uint32_t)0xF << 20);
#endif
  /* hick on, hext and pll off, bypass cleared */
  CRM->ctrl |= (uint32_t)0x00000001;
  CRM->cfg = 0;
  CRM->ctrl &= ~((uint32_t)0x01050000);
  CRM->ctrl &= ~((uint32_t)0x00040000);
  CRM->pllcfg = 0;
  CRM->misc1 = 0;
  CRM->misc2 = 0;
  /* no clock interrupts, all flags cleared */
  CRM->clkint = (uint32_t)0x009F0000;
  MQ_SCB->vtor = FLASH_BASE | VECT_TAB_OFFSET;
}

void system_core_clock_update(void)
{
  const uint32_t cfg = CRM->cfg;
  const uint32_t source = (cfg >> 2) & 0x3;
  uint32_t sclk;
  if(source == 1)
  {
    sclk = HEXT_VALUE;
  }
  else if(source == 2)
  {
    uint32_t input;
    if(((cfg >> 17) & 0x1) == 0)
    {
      input = HICK_VALUE / HICK_PLL_DIVIDER;
    }
    else if(((cfg >> 18) & 0x1) != 0)
    {
      input = HEXT_VALUE / 2;
    }
    else
    {
      input = HEXT_VALUE;
    }
    if((CRM->pllcfg & ((uint32_t)1 << 31)) != 0)
    {
      const uint32_t ns = CRM->pllcfg & 0x1FF;
      const uint32_t ms = (CRM->pllcfg >> 9) & 0xF;
      const uint32_t fr = (CRM->pllcfg >> 13) & 0x7;
      sclk = (ms == 0) ? 0 : (uint32_t)(((uint64_t)input * ns) / (ms * ((uint32_t)1 << fr)));
    }
    else
    {
      sclk = input * (((cfg >> 19) & 0x3F) + 2);
    }
  }
  else
  {
    sclk = ((CRM->misc1 & ((uint32_t)1 << 8)) != 0) ? HICK_VALUE : HICK_VALUE / 6;
  }
  system_core_clock = sclk >> ahb_shift[(cfg >> 4) & 0xF];
}
