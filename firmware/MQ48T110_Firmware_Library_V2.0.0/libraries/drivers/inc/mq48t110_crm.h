/**
  **************************************************************************
  * @file     mq48t110_crm.h
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

#ifndef __MQ48T110_CRM_H
#define __MQ48T110_CRM_H

#ifdef __cplusplus
extern "C" {
#endif

#include "mq48t110_def.h"

/** @addtogroup crm
  * @{
  */

/* a register of the crm block (offset) and a bit in it */
#define CRM_REG_BIT(offset, bit)         ((uint32_t)(((uint32_t)(offset) << 16) | (bit)))
#define CRM_REG_OFFSET(value)            ((uint32_t)(value) >> 16)
#define CRM_REG_POS(value)               ((uint32_t)(value) & 0x1F)

/**
  * @brief peripheral clocks (clock enable register and bit)
  */
typedef enum
{
  CRM_DMA1_PERIPH_CLOCK                  = CRM_REG_BIT(0x14, 0),
  CRM_CRC_PERIPH_CLOCK                   = CRM_REG_BIT(0x14, 6),
  CRM_GPIOA_PERIPH_CLOCK                 = CRM_REG_BIT(0x14, 17),
  CRM_GPIOB_PERIPH_CLOCK                 = CRM_REG_BIT(0x14, 18),
  CRM_GPIOC_PERIPH_CLOCK                 = CRM_REG_BIT(0x14, 19),
  CRM_GPIOF_PERIPH_CLOCK                 = CRM_REG_BIT(0x14, 22),
  CRM_SCFG_PERIPH_CLOCK                  = CRM_REG_BIT(0x18, 0),
  CRM_CMP_PERIPH_CLOCK                   = CRM_REG_BIT(0x18, 1),
  CRM_ADC1_PERIPH_CLOCK                  = CRM_REG_BIT(0x18, 9),
  CRM_TMR1_PERIPH_CLOCK                  = CRM_REG_BIT(0x18, 11),
  CRM_SPI1_PERIPH_CLOCK                  = CRM_REG_BIT(0x18, 12),
  CRM_USART1_PERIPH_CLOCK                = CRM_REG_BIT(0x18, 14),
  CRM_TMR15_PERIPH_CLOCK                 = CRM_REG_BIT(0x18, 16),
  CRM_TMR16_PERIPH_CLOCK                 = CRM_REG_BIT(0x18, 17),
  CRM_TMR17_PERIPH_CLOCK                 = CRM_REG_BIT(0x18, 18),
  CRM_TMR3_PERIPH_CLOCK                  = CRM_REG_BIT(0x1C, 1),
  CRM_TMR6_PERIPH_CLOCK                  = CRM_REG_BIT(0x1C, 4),
  CRM_TMR14_PERIPH_CLOCK                 = CRM_REG_BIT(0x1C, 8),
  CRM_WWDT_PERIPH_CLOCK                  = CRM_REG_BIT(0x1C, 11),
  CRM_SPI2_PERIPH_CLOCK                  = CRM_REG_BIT(0x1C, 14),
  CRM_USART2_PERIPH_CLOCK                = CRM_REG_BIT(0x1C, 17),
  CRM_I2C1_PERIPH_CLOCK                  = CRM_REG_BIT(0x1C, 21),
  CRM_I2C2_PERIPH_CLOCK                  = CRM_REG_BIT(0x1C, 22),
  CRM_PWC_PERIPH_CLOCK                   = CRM_REG_BIT(0x1C, 28)
} crm_periph_clock_type;

/**
  * @brief peripheral resets (reset register and bit)
  */
typedef enum
{
  CRM_GPIOA_PERIPH_RESET                 = CRM_REG_BIT(0x28, 17),
  CRM_GPIOB_PERIPH_RESET                 = CRM_REG_BIT(0x28, 18),
  CRM_GPIOC_PERIPH_RESET                 = CRM_REG_BIT(0x28, 19),
  CRM_GPIOF_PERIPH_RESET                 = CRM_REG_BIT(0x28, 22),
  CRM_SCFG_PERIPH_RESET                  = CRM_REG_BIT(0x0C, 0),
  CRM_CMP_PERIPH_RESET                   = CRM_REG_BIT(0x0C, 1),
  CRM_ADC1_PERIPH_RESET                  = CRM_REG_BIT(0x0C, 9),
  CRM_TMR1_PERIPH_RESET                  = CRM_REG_BIT(0x0C, 11),
  CRM_SPI1_PERIPH_RESET                  = CRM_REG_BIT(0x0C, 12),
  CRM_USART1_PERIPH_RESET                = CRM_REG_BIT(0x0C, 14),
  CRM_TMR15_PERIPH_RESET                 = CRM_REG_BIT(0x0C, 16),
  CRM_TMR16_PERIPH_RESET                 = CRM_REG_BIT(0x0C, 17),
  CRM_TMR17_PERIPH_RESET                 = CRM_REG_BIT(0x0C, 18),
  CRM_TMR3_PERIPH_RESET                  = CRM_REG_BIT(0x10, 1),
  CRM_TMR6_PERIPH_RESET                  = CRM_REG_BIT(0x10, 4),
  CRM_TMR14_PERIPH_RESET                 = CRM_REG_BIT(0x10, 8),
  CRM_WWDT_PERIPH_RESET                  = CRM_REG_BIT(0x10, 11),
  CRM_SPI2_PERIPH_RESET                  = CRM_REG_BIT(0x10, 14),
  CRM_USART2_PERIPH_RESET                = CRM_REG_BIT(0x10, 17),
  CRM_I2C1_PERIPH_RESET                  = CRM_REG_BIT(0x10, 21),
  CRM_I2C2_PERIPH_RESET                  = CRM_REG_BIT(0x10, 22),
  CRM_PWC_PERIPH_RESET                   = CRM_REG_BIT(0x10, 28)
} crm_periph_reset_type;

/**
  * @brief clock sources
  */
typedef enum
{
  CRM_CLOCK_SOURCE_HICK                  = 0,
  CRM_CLOCK_SOURCE_HEXT                  = 1,
  CRM_CLOCK_SOURCE_PLL                   = 2,
  CRM_CLOCK_SOURCE_LEXT                  = 3,
  CRM_CLOCK_SOURCE_LICK                  = 4
} crm_clock_source_type;

/**
  * @brief status flags (register and bit)
  */
typedef enum
{
  CRM_HICK_STABLE_FLAG                   = CRM_REG_BIT(0x00, 1),
  CRM_HEXT_STABLE_FLAG                   = CRM_REG_BIT(0x00, 17),
  CRM_PLL_STABLE_FLAG                    = CRM_REG_BIT(0x00, 25),
  CRM_LEXT_STABLE_FLAG                   = CRM_REG_BIT(0x20, 1),
  CRM_LICK_STABLE_FLAG                   = CRM_REG_BIT(0x24, 1)
} crm_flag_type;

/**
  * @brief pll clock source: hick / 12, hext, or hext / 2
  */
typedef enum
{
  CRM_PLL_SOURCE_HICK                    = 0,
  CRM_PLL_SOURCE_HEXT                    = 1,
  CRM_PLL_SOURCE_HEXT_DIV                = 3
} crm_pll_clock_source_type;

/**
  * @brief pll multiplication factor of the normal mode
  */
typedef enum
{
  CRM_PLL_MULT_2 = 0,   CRM_PLL_MULT_3,  CRM_PLL_MULT_4,  CRM_PLL_MULT_5,  CRM_PLL_MULT_6,
  CRM_PLL_MULT_7,       CRM_PLL_MULT_8,  CRM_PLL_MULT_9,  CRM_PLL_MULT_10, CRM_PLL_MULT_11,
  CRM_PLL_MULT_12,      CRM_PLL_MULT_13, CRM_PLL_MULT_14, CRM_PLL_MULT_15, CRM_PLL_MULT_16,
  CRM_PLL_MULT_17,      CRM_PLL_MULT_18, CRM_PLL_MULT_19, CRM_PLL_MULT_20, CRM_PLL_MULT_21,
  CRM_PLL_MULT_22,      CRM_PLL_MULT_23, CRM_PLL_MULT_24, CRM_PLL_MULT_25, CRM_PLL_MULT_26,
  CRM_PLL_MULT_27,      CRM_PLL_MULT_28, CRM_PLL_MULT_29, CRM_PLL_MULT_30, CRM_PLL_MULT_31,
  CRM_PLL_MULT_32,      CRM_PLL_MULT_33, CRM_PLL_MULT_34, CRM_PLL_MULT_35, CRM_PLL_MULT_36,
  CRM_PLL_MULT_37,      CRM_PLL_MULT_38, CRM_PLL_MULT_39, CRM_PLL_MULT_40, CRM_PLL_MULT_41,
  CRM_PLL_MULT_42,      CRM_PLL_MULT_43, CRM_PLL_MULT_44, CRM_PLL_MULT_45, CRM_PLL_MULT_46,
  CRM_PLL_MULT_47,      CRM_PLL_MULT_48, CRM_PLL_MULT_49, CRM_PLL_MULT_50, CRM_PLL_MULT_51,
  CRM_PLL_MULT_52,      CRM_PLL_MULT_53, CRM_PLL_MULT_54, CRM_PLL_MULT_55, CRM_PLL_MULT_56,
  CRM_PLL_MULT_57,      CRM_PLL_MULT_58, CRM_PLL_MULT_59, CRM_PLL_MULT_60, CRM_PLL_MULT_61,
  CRM_PLL_MULT_62,      CRM_PLL_MULT_63, CRM_PLL_MULT_64
} crm_pll_mult_type;

/**
  * @brief pll post divider of the flexible mode
  */
typedef enum
{
  CRM_PLL_FR_1 = 0, CRM_PLL_FR_2 = 1, CRM_PLL_FR_4 = 2, CRM_PLL_FR_8 = 3,
  CRM_PLL_FR_16 = 4, CRM_PLL_FR_32 = 5
} crm_pll_fr_type;

/**
  * @brief system clock sources
  */
typedef enum
{
  CRM_SCLK_HICK                          = 0,
  CRM_SCLK_HEXT                          = 1,
  CRM_SCLK_PLL                           = 2
} crm_sclk_type;

/**
  * @brief hick path to the system clock: divided by 6 or undivided
  */
typedef enum
{
  CRM_HICK_SCLK_8MHZ                     = 0,
  CRM_HICK_SCLK_48MHZ                    = 1
} crm_hick_sclk_frequency_type;

/**
  * @brief bus dividers
  */
typedef enum
{
  CRM_AHB_DIV_1 = 0, CRM_AHB_DIV_2 = 8, CRM_AHB_DIV_4 = 9, CRM_AHB_DIV_8 = 10,
  CRM_AHB_DIV_16 = 11, CRM_AHB_DIV_64 = 12, CRM_AHB_DIV_128 = 13, CRM_AHB_DIV_256 = 14,
  CRM_AHB_DIV_512 = 15
} crm_ahb_div_type;

typedef enum
{
  CRM_APB1_DIV_1 = 0, CRM_APB1_DIV_2 = 4, CRM_APB1_DIV_4 = 5, CRM_APB1_DIV_8 = 6,
  CRM_APB1_DIV_16 = 7
} crm_apb1_div_type;

typedef enum
{
  CRM_APB2_DIV_1 = 0, CRM_APB2_DIV_2 = 4, CRM_APB2_DIV_4 = 5, CRM_APB2_DIV_8 = 6,
  CRM_APB2_DIV_16 = 7
} crm_apb2_div_type;

/**
  * @brief adc clock divider behind apb2
  */
typedef enum
{
  CRM_ADC_DIV_2 = 0, CRM_ADC_DIV_4 = 1, CRM_ADC_DIV_6 = 2, CRM_ADC_DIV_8 = 3,
  CRM_ADC_DIV_3 = 4, CRM_ADC_DIV_5 = 5, CRM_ADC_DIV_12 = 6, CRM_ADC_DIV_16 = 7
} crm_adc_div_type;

/**
  * @brief clock output source and divider
  */
typedef enum
{
  CRM_CLKOUT_NOCLK = 0, CRM_CLKOUT_LICK = 1, CRM_CLKOUT_LEXT = 2, CRM_CLKOUT_HICK = 3,
  CRM_CLKOUT_HEXT = 4, CRM_CLKOUT_SCLK = 5, CRM_CLKOUT_ADC = 6, CRM_CLKOUT_PLL_DIV_2 = 7,
  CRM_CLKOUT_PLL_DIV_4 = 8
} crm_clkout_select_type;

typedef enum
{
  CRM_CLKOUT_DIV_1 = 0, CRM_CLKOUT_DIV_2 = 8, CRM_CLKOUT_DIV_4 = 9, CRM_CLKOUT_DIV_8 = 10,
  CRM_CLKOUT_DIV_16 = 11, CRM_CLKOUT_DIV_64 = 12, CRM_CLKOUT_DIV_128 = 13,
  CRM_CLKOUT_DIV_256 = 14, CRM_CLKOUT_DIV_512 = 15
} crm_clkout_div_type;

/**
  * @brief ertc clock source
  */
typedef enum
{
  CRM_ERTC_CLOCK_NOCLK                   = 0,
  CRM_ERTC_CLOCK_LEXT                    = 1,
  CRM_ERTC_CLOCK_LICK                    = 2,
  CRM_ERTC_CLOCK_HEXT_DIV                = 3
} crm_ertc_clock_type;

/**
  * @brief the clocks of the system
  */
typedef struct
{
  uint32_t sclk_freq;
  uint32_t ahb_freq;
  uint32_t apb2_freq;
  uint32_t apb1_freq;
  uint32_t adc_freq;
} crm_clocks_freq_type;

void crm_reset(void);
void crm_periph_clock_enable(crm_periph_clock_type value, confirm_state new_state);
void crm_periph_reset(crm_periph_reset_type value, confirm_state new_state);
void crm_clock_source_enable(crm_clock_source_type source, confirm_state new_state);
flag_status crm_flag_get(crm_flag_type flag);
error_status crm_hext_stable_wait(void);
void crm_hext_bypass(confirm_state new_state);
void crm_lext_bypass(confirm_state new_state);
void crm_pll_config(crm_pll_clock_source_type source, crm_pll_mult_type mult);
void crm_pll_config2(crm_pll_clock_source_type source, uint16_t pll_ns, uint16_t pll_ms,
                     crm_pll_fr_type pll_fr);
void crm_sysclk_switch(crm_sclk_type value);
crm_sclk_type crm_sysclk_switch_status_get(void);
void crm_hick_sclk_frequency_select(crm_hick_sclk_frequency_type value);
void crm_ahb_div_set(crm_ahb_div_type value);
void crm_apb1_div_set(crm_apb1_div_type value);
void crm_apb2_div_set(crm_apb2_div_type value);
void crm_adc_clock_div_set(crm_adc_div_type value);
void crm_auto_step_mode_enable(confirm_state new_state);
void crm_clock_out_set(crm_clkout_select_type source);
void crm_clkout_div_set(crm_clkout_div_type value);
void crm_ertc_clock_select(crm_ertc_clock_type value);
void crm_ertc_clock_enable(confirm_state new_state);
void crm_battery_powered_domain_reset(confirm_state new_state);
void crm_clocks_freq_get(crm_clocks_freq_type *clocks_struct);

/**
  * @}
  */

#ifdef __cplusplus
}
#endif

#endif
