/**
  **************************************************************************
  * @file     mq48t110_crm.c
  * @brief    clock and reset management driver of the mq48t110
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

#ifdef CRM_MODULE_ENABLED

/* ctrl */
#define CRM_CTRL_HICKEN                  0
#define CRM_CTRL_HEXTEN                  16
#define CRM_CTRL_HEXTBYPS                18
#define CRM_CTRL_PLLEN                   24
/* cfg fields: position and width */
#define CRM_CFG_SCLKSEL                  0, 2
#define CRM_CFG_SCLKSTS                  2, 2
#define CRM_CFG_AHBDIV                   4, 4
#define CRM_CFG_APB1DIV                  8, 3
#define CRM_CFG_APB2DIV                  11, 3
#define CRM_CFG_ADCDIV                   14, 3
#define CRM_CFG_PLLSRC                   17, 2
#define CRM_CFG_PLLMULT                  19, 6
#define CRM_CFG_CLKOUTSEL                25, 4
/* bpdc and ctrlsts */
#define CRM_BPDC_LEXTEN                  0
#define CRM_BPDC_LEXTBYPS                2
#define CRM_BPDC_ERTCSEL                 8, 2
#define CRM_BPDC_ERTCEN                  15
#define CRM_BPDC_BPDRST                  16
#define CRM_CTRLSTS_LICKEN               0
/* pllcfg */
#define CRM_PLLCFG_NS                    0, 9
#define CRM_PLLCFG_MS                    9, 4
#define CRM_PLLCFG_FR                    13, 3
#define CRM_PLLCFG_FLEXIBLE              31
/* misc */
#define CRM_MISC1_CLKOUTDIV              0, 4
#define CRM_MISC1_HICK48                 8
#define CRM_MISC2_AUTOSTEP               12, 2

#define FIELD_WRITE(reg, field, value)   FIELD_WRITE_(reg, field, value)
#define FIELD_WRITE_(reg, pos, width, value) MQ_FIELD_WRITE(reg, pos, width, value)
#define FIELD_READ(reg, field)           FIELD_READ_(reg, field)
#define FIELD_READ_(reg, pos, width)     MQ_FIELD_READ(reg, pos, width)

/**
  * @brief  returns the clock system to its reset state (hick as system clock).
  * @param  none
  * @retval none
  */
void crm_reset(void)
{
  MQ_BIT_WRITE(CRM->ctrl, CRM_CTRL_HICKEN, TRUE);
  while(crm_flag_get(CRM_HICK_STABLE_FLAG) != SET)
  {
  }
  FIELD_WRITE(CRM->cfg, CRM_CFG_SCLKSEL, CRM_SCLK_HICK);
  while(crm_sysclk_switch_status_get() != CRM_SCLK_HICK)
  {
  }
  CRM->cfg = 0;
  MQ_BIT_WRITE(CRM->ctrl, CRM_CTRL_PLLEN, FALSE);
  MQ_BIT_WRITE(CRM->ctrl, CRM_CTRL_HEXTEN, FALSE);
  MQ_BIT_WRITE(CRM->ctrl, CRM_CTRL_HEXTBYPS, FALSE);
  CRM->pllcfg = 0;
  CRM->misc1 = 0;
  CRM->misc2 = 0;
  CRM->clkint = (uint32_t)0x009F0000;
}

/**
  * @brief  enables or disables the clock of a peripheral.
  * @param  value: the peripheral clock, a CRM_xxx_PERIPH_CLOCK value
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void crm_periph_clock_enable(crm_periph_clock_type value, confirm_state new_state)
{
  MQ_BIT_WRITE(MQ_REG32(CRM, CRM_REG_OFFSET(value)), CRM_REG_POS(value), new_state);
}

/**
  * @brief  holds a peripheral in reset or releases it.
  * @param  value: a CRM_xxx_PERIPH_RESET value
  * @param  new_state: TRUE holds the reset, FALSE releases it
  * @retval none
  */
void crm_periph_reset(crm_periph_reset_type value, confirm_state new_state)
{
  MQ_BIT_WRITE(MQ_REG32(CRM, CRM_REG_OFFSET(value)), CRM_REG_POS(value), new_state);
}

/**
  * @brief  starts or stops a clock source.
  * @param  source: a CRM_CLOCK_SOURCE_xxx value
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void crm_clock_source_enable(crm_clock_source_type source, confirm_state new_state)
{
  switch(source)
  {
    case CRM_CLOCK_SOURCE_HICK:
      MQ_BIT_WRITE(CRM->ctrl, CRM_CTRL_HICKEN, new_state);
      break;
    case CRM_CLOCK_SOURCE_HEXT:
      MQ_BIT_WRITE(CRM->ctrl, CRM_CTRL_HEXTEN, new_state);
      break;
    case CRM_CLOCK_SOURCE_PLL:
      MQ_BIT_WRITE(CRM->ctrl, CRM_CTRL_PLLEN, new_state);
      break;
    case CRM_CLOCK_SOURCE_LEXT:
      MQ_BIT_WRITE(CRM->bpdc, CRM_BPDC_LEXTEN, new_state);
      break;
    case CRM_CLOCK_SOURCE_LICK:
      MQ_BIT_WRITE(CRM->ctrlsts, CRM_CTRLSTS_LICKEN, new_state);
      break;
    default:
      break;
  }
}

/**
  * @brief  reads a status flag.
  * @param  flag: a CRM_xxx_STABLE_FLAG value
  * @retval SET or RESET
  */
flag_status crm_flag_get(crm_flag_type flag)
{
  return (MQ_REG32(CRM, CRM_REG_OFFSET(flag)) & ((uint32_t)1 << CRM_REG_POS(flag))) != 0 ?
         SET : RESET;
}

/**
  * @brief  waits for the high speed external crystal, at most HEXT_STARTUP_TIMEOUT turns.
  * @param  none
  * @retval SUCCESS when hext became stable, ERROR otherwise
  */
error_status crm_hext_stable_wait(void)
{
  uint32_t counter = 0;
  while((crm_flag_get(CRM_HEXT_STABLE_FLAG) != SET) && (counter < HEXT_STARTUP_TIMEOUT))
  {
    counter++;
  }
  return crm_flag_get(CRM_HEXT_STABLE_FLAG) == SET ? SUCCESS : ERROR;
}

/**
  * @brief  takes hext from an external clock instead of a crystal.
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void crm_hext_bypass(confirm_state new_state)
{
  MQ_BIT_WRITE(CRM->ctrl, CRM_CTRL_HEXTBYPS, new_state);
}

/**
  * @brief  takes lext from an external clock instead of a crystal.
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void crm_lext_bypass(confirm_state new_state)
{
  MQ_BIT_WRITE(CRM->bpdc, CRM_BPDC_LEXTBYPS, new_state);
}

/**
  * @brief  configures the pll in the normal mode: input times the multiplier.
  * @param  source: a CRM_PLL_SOURCE_xxx value
  * @param  mult: a CRM_PLL_MULT_n value
  * @retval none
  */
void crm_pll_config(crm_pll_clock_source_type source, crm_pll_mult_type mult)
{
  FIELD_WRITE(CRM->cfg, CRM_CFG_PLLSRC, source);
  FIELD_WRITE(CRM->cfg, CRM_CFG_PLLMULT, mult);
  MQ_BIT_WRITE(CRM->pllcfg, CRM_PLLCFG_FLEXIBLE, FALSE);
}

/**
  * @brief  configures the pll in the flexible mode:
  *         pll clock = input * pll_ns / (pll_ms * pll_fr).
  * @param  source: a CRM_PLL_SOURCE_xxx value
  * @param  pll_ns: 31 to 500
  * @param  pll_ms: 1 to 15
  * @param  pll_fr: a CRM_PLL_FR_n value
  * @retval none
  */
void crm_pll_config2(crm_pll_clock_source_type source, uint16_t pll_ns, uint16_t pll_ms,
                     crm_pll_fr_type pll_fr)
{
  FIELD_WRITE(CRM->cfg, CRM_CFG_PLLSRC, source);
  FIELD_WRITE(CRM->pllcfg, CRM_PLLCFG_NS, pll_ns);
  FIELD_WRITE(CRM->pllcfg, CRM_PLLCFG_MS, pll_ms);
  FIELD_WRITE(CRM->pllcfg, CRM_PLLCFG_FR, pll_fr);
  MQ_BIT_WRITE(CRM->pllcfg, CRM_PLLCFG_FLEXIBLE, TRUE);
}

/**
  * @brief  selects the system clock source.
  * @param  value: a CRM_SCLK_xxx value
  * @retval none
  */
void crm_sysclk_switch(crm_sclk_type value)
{
  FIELD_WRITE(CRM->cfg, CRM_CFG_SCLKSEL, value);
}

/**
  * @brief  the clock source the system runs on now.
  * @param  none
  * @retval a CRM_SCLK_xxx value
  */
crm_sclk_type crm_sysclk_switch_status_get(void)
{
  return (crm_sclk_type)FIELD_READ(CRM->cfg, CRM_CFG_SCLKSTS);
}

/**
  * @brief  selects whether hick reaches the system clock divided by 6 or undivided.
  * @param  value: CRM_HICK_SCLK_8MHZ or CRM_HICK_SCLK_48MHZ
  * @retval none
  */
void crm_hick_sclk_frequency_select(crm_hick_sclk_frequency_type value)
{
  MQ_BIT_WRITE(CRM->misc1, CRM_MISC1_HICK48, value == CRM_HICK_SCLK_48MHZ ? TRUE : FALSE);
}

/**
  * @brief  sets the ahb divider.
  * @param  value: a CRM_AHB_DIV_n value
  * @retval none
  */
void crm_ahb_div_set(crm_ahb_div_type value)
{
  FIELD_WRITE(CRM->cfg, CRM_CFG_AHBDIV, value);
}

/**
  * @brief  sets the apb1 divider.
  * @param  value: a CRM_APB1_DIV_n value
  * @retval none
  */
void crm_apb1_div_set(crm_apb1_div_type value)
{
  FIELD_WRITE(CRM->cfg, CRM_CFG_APB1DIV, value);
}

/**
  * @brief  sets the apb2 divider.
  * @param  value: a CRM_APB2_DIV_n value
  * @retval none
  */
void crm_apb2_div_set(crm_apb2_div_type value)
{
  FIELD_WRITE(CRM->cfg, CRM_CFG_APB2DIV, value);
}

/**
  * @brief  sets the adc clock divider.
  * @param  value: a CRM_ADC_DIV_n value
  * @retval none
  */
void crm_adc_clock_div_set(crm_adc_div_type value)
{
  FIELD_WRITE(CRM->cfg, CRM_CFG_ADCDIV, value);
}

/**
  * @brief  lets the system clock change in steps when it switches above 108 mhz.
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void crm_auto_step_mode_enable(confirm_state new_state)
{
  FIELD_WRITE(CRM->misc2, CRM_MISC2_AUTOSTEP, new_state != FALSE ? 3 : 0);
}

/**
  * @brief  selects the clock on the clkout pin.
  * @param  source: a CRM_CLKOUT_xxx value
  * @retval none
  */
void crm_clock_out_set(crm_clkout_select_type source)
{
  FIELD_WRITE(CRM->cfg, CRM_CFG_CLKOUTSEL, source);
}

/**
  * @brief  sets the clkout divider.
  * @param  value: a CRM_CLKOUT_DIV_n value
  * @retval none
  */
void crm_clkout_div_set(crm_clkout_div_type value)
{
  FIELD_WRITE(CRM->misc1, CRM_MISC1_CLKOUTDIV, value);
}

/**
  * @brief  selects the ertc clock (battery powered domain access is needed).
  * @param  value: a CRM_ERTC_CLOCK_xxx value
  * @retval none
  */
void crm_ertc_clock_select(crm_ertc_clock_type value)
{
  FIELD_WRITE(CRM->bpdc, CRM_BPDC_ERTCSEL, value);
}

/**
  * @brief  switches the ertc clock on or off.
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void crm_ertc_clock_enable(confirm_state new_state)
{
  MQ_BIT_WRITE(CRM->bpdc, CRM_BPDC_ERTCEN, new_state);
}

/**
  * @brief  holds the battery powered domain in reset or releases it.
  * @param  new_state: TRUE or FALSE
  * @retval none
  */
void crm_battery_powered_domain_reset(confirm_state new_state)
{
  MQ_BIT_WRITE(CRM->bpdc, CRM_BPDC_BPDRST, new_state);
}

/**
  * @brief  the clocks of the system as the registers set them now.
  * @param  clocks_struct: filled with the frequencies in hz
  * @retval none
  */
void crm_clocks_freq_get(crm_clocks_freq_type *clocks_struct)
{
  static const uint8_t apb_shift[8] = {0, 0, 0, 0, 1, 2, 3, 4};
  static const uint8_t adc_div[8] = {2, 4, 6, 8, 3, 5, 12, 16};
  uint32_t cfg;
  system_core_clock_update();
  cfg = CRM->cfg;
  clocks_struct->ahb_freq = system_core_clock;
  clocks_struct->sclk_freq = system_core_clock;
  clocks_struct->apb1_freq = system_core_clock >> apb_shift[FIELD_READ(cfg, CRM_CFG_APB1DIV)];
  clocks_struct->apb2_freq = system_core_clock >> apb_shift[FIELD_READ(cfg, CRM_CFG_APB2DIV)];
  clocks_struct->adc_freq = clocks_struct->apb2_freq / adc_div[FIELD_READ(cfg, CRM_CFG_ADCDIV)];
}

#endif
