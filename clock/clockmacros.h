#pragma once

#include <QString>

#include <cstddef>

// Firmware library macro names, as constant tables in a fixed order: the values index them.
namespace ClockMacros {

inline const QString PllSource[] = {
    "CRM_PLL_SOURCE_HEXT",
    "CRM_PLL_SOURCE_HEXT_DIV",
    "CRM_PLL_SOURCE_HICK",
};
inline const QString PllMultPrefix = "CRM_PLL_MULT_";
inline const QString HextDivPrefix = "CRM_HEXT_DIV_";
inline const QString PllOutputRange[] = {
    "CRM_PLL_OUTPUT_RANGE_LE72MHZ",
    "CRM_PLL_OUTPUT_RANGE_GT72MHZ",
};
inline const QString PllFr[] = {
    "CRM_PLL_FR_1", "CRM_PLL_FR_2",  "CRM_PLL_FR_4",
    "CRM_PLL_FR_8", "CRM_PLL_FR_16", "CRM_PLL_FR_32",
};
inline const QString PllFp[] = {
    "CRM_PLL_FP_1",  "CRM_PLL_FP_2",  "CRM_PLL_FP_4",  "CRM_PLL_FP_6",
    "CRM_PLL_FP_8",  "CRM_PLL_FP_10", "CRM_PLL_FP_12", "CRM_PLL_FP_14",
    "CRM_PLL_FP_16", "CRM_PLL_FP_18", "CRM_PLL_FP_20", "CRM_PLL_FP_22",
    "CRM_PLL_FP_24", "CRM_PLL_FP_26", "CRM_PLL_FP_28", "CRM_PLL_FP_30",
};
inline const QString PllFu[] = {
    "CRM_PLL_FU_11", "CRM_PLL_FU_13", "CRM_PLL_FU_12", "CRM_PLL_FU_14",
    "CRM_PLL_FU_16", "CRM_PLL_FU_18", "CRM_PLL_FU_20",
};
inline const QString Sclk[] = {
    "CRM_SCLK_HEXT",
    "CRM_SCLK_PLL",
    "CRM_SCLK_HICK",
};
inline const QString AhbDiv[] = {
    "CRM_AHB_DIV_1",  "CRM_AHB_DIV_2",   "CRM_AHB_DIV_4",   "CRM_AHB_DIV_8",   "CRM_AHB_DIV_16",
    "CRM_AHB_DIV_64", "CRM_AHB_DIV_128", "CRM_AHB_DIV_256", "CRM_AHB_DIV_512",
};
inline const QString Apb1Div[] = {
    "CRM_APB1_DIV_1", "CRM_APB1_DIV_2", "CRM_APB1_DIV_4", "CRM_APB1_DIV_8", "CRM_APB1_DIV_16",
};
inline const QString Apb2Div[] = {
    "CRM_APB2_DIV_1", "CRM_APB2_DIV_2", "CRM_APB2_DIV_4", "CRM_APB2_DIV_8", "CRM_APB2_DIV_16",
};
inline const QString FlashClockDiv[] = {
    "FLASH_CLOCK_DIV_2",
    "FLASH_CLOCK_DIV_3",
};
inline const QString FlashWaitCycle[] = {
    "FLASH_WAIT_CYCLE_0", "FLASH_WAIT_CYCLE_1", "FLASH_WAIT_CYCLE_2", "FLASH_WAIT_CYCLE_3",
    "FLASH_WAIT_CYCLE_4", "FLASH_WAIT_CYCLE_5", "FLASH_WAIT_CYCLE_6", "FLASH_WAIT_CYCLE_7",
};
inline const QString UsbDiv[] = {
    "CRM_USB_DIV_1",   "CRM_USB_DIV_1_5", "CRM_USB_DIV_2",   "CRM_USB_DIV_2_5", "CRM_USB_DIV_3",
    "CRM_USB_DIV_3_5", "CRM_USB_DIV_4",   "CRM_USB_DIV_4_5", "CRM_USB_DIV_5",   "CRM_USB_DIV_5_5",
    "CRM_USB_DIV_6",   "CRM_USB_DIV_6_5", "CRM_USB_DIV_7",   "CRM_USB_DIV_7_5", "CRM_USB_DIV_8",
    "CRM_USB_DIV_8_5", "CRM_USB_DIV_9",
};
inline const QString UsbClockSource[] = {
    "CRM_USB_CLOCK_SOURCE_PLL",
    "CRM_USB_CLOCK_SOURCE_HICK",
};
inline const QString UsbClockSourcePllu[] = {
    "CRM_USB_CLOCK_SOURCE_PLLU",
    "CRM_USB_CLOCK_SOURCE_HICK",
};
inline const QString Clkout1[] = {
    "CRM_CLKOUT1_HICK",
    "CRM_CLKOUT1_LEXT",
    "CRM_CLKOUT1_HEXT",
    "CRM_CLKOUT1_PLL",
};
inline const QString Clkout2[] = {
    "CRM_CLKOUT2_SCLK", "CRM_CLKOUT2_HEXT", "CRM_CLKOUT2_PLL",  "CRM_CLKOUT2_USB",
    "CRM_CLKOUT2_HICK", "CRM_CLKOUT2_ADC",  "CRM_CLKOUT2_LICK", "CRM_CLKOUT2_LEXT",
};
inline const QString Clkout[] = {
    "CRM_CLKOUT_NOCLK",     "CRM_CLKOUT_LICK",      "CRM_CLKOUT_LEXT", "CRM_CLKOUT_HICK",
    "CRM_CLKOUT_HEXT",      "CRM_CLKOUT_SCLK",      "CRM_CLKOUT_USB",  "CRM_CLKOUT_ADC",
    "CRM_CLKOUT_PLL_DIV_2", "CRM_CLKOUT_PLL_DIV_4", "CRM_CLKOUT_PLL",  "CRM_CLKOUT_USBFS",
};
inline const QString ClkoutIndex[] = {
    "CRM_CLKOUT_INDEX_1",
    "CRM_CLKOUT_INDEX_2",
};
inline const QString ClkoutDiv1[] = {
    "CRM_CLKOUT_DIV1_1", "CRM_CLKOUT_DIV1_2", "CRM_CLKOUT_DIV1_3",
    "CRM_CLKOUT_DIV1_4", "CRM_CLKOUT_DIV1_5",
};
inline const QString ClkoutDiv2[] = {
    "CRM_CLKOUT_DIV2_1",   "CRM_CLKOUT_DIV2_2",   "CRM_CLKOUT_DIV2_4",
    "CRM_CLKOUT_DIV2_8",   "CRM_CLKOUT_DIV2_16",  "CRM_CLKOUT_DIV2_64",
    "CRM_CLKOUT_DIV2_128", "CRM_CLKOUT_DIV2_256", "CRM_CLKOUT_DIV2_512",
};
inline const QString ClkoutDiv[] = {
    "CRM_CLKOUT_DIV_1",   "CRM_CLKOUT_DIV_2",   "CRM_CLKOUT_DIV_4",
    "CRM_CLKOUT_DIV_8",   "CRM_CLKOUT_DIV_16",  "CRM_CLKOUT_DIV_64",
    "CRM_CLKOUT_DIV_128", "CRM_CLKOUT_DIV_256", "CRM_CLKOUT_DIV_512",
};
inline const QString GpioClock[] = {
    "CRM_GPIOA_PERIPH_CLOCK", "CRM_GPIOB_PERIPH_CLOCK", "CRM_GPIOC_PERIPH_CLOCK",
    "CRM_GPIOD_PERIPH_CLOCK", "CRM_GPIOE_PERIPH_CLOCK", "CRM_GPIOF_PERIPH_CLOCK",
    "CRM_GPIOG_PERIPH_CLOCK", "CRM_GPIOH_PERIPH_CLOCK",
};
inline const QString GpioPort[] = {
    "GPIOA", "GPIOB", "GPIOC", "GPIOD", "GPIOE", "GPIOF", "GPIOG", "GPIOH",
};
inline const QString GpioPin[] = {
    "GPIO_PINS_0",  "GPIO_PINS_1",   "GPIO_PINS_2",  "GPIO_PINS_3",  "GPIO_PINS_4",
    "GPIO_PINS_5",  "GPIO_PINS_6",   "GPIO_PINS_7",  "GPIO_PINS_8",  "GPIO_PINS_9",
    "GPIO_PINS_10", "GPIO_PINS_11",  "GPIO_PINS_12", "GPIO_PINS_13", "GPIO_PINS_14",
    "GPIO_PINS_15", "GPIO_PINS_ALL",
};
inline const QString GpioPinSource[] = {
    "GPIO_PINS_SOURCE0",  "GPIO_PINS_SOURCE1",  "GPIO_PINS_SOURCE2",  "GPIO_PINS_SOURCE3",
    "GPIO_PINS_SOURCE4",  "GPIO_PINS_SOURCE5",  "GPIO_PINS_SOURCE6",  "GPIO_PINS_SOURCE7",
    "GPIO_PINS_SOURCE8",  "GPIO_PINS_SOURCE9",  "GPIO_PINS_SOURCE10", "GPIO_PINS_SOURCE11",
    "GPIO_PINS_SOURCE12", "GPIO_PINS_SOURCE13", "GPIO_PINS_SOURCE14", "GPIO_PINS_SOURCE15",
};
inline const QString GpioMux[] = {
    "GPIO_MUX_0",  "GPIO_MUX_1",  "GPIO_MUX_2",  "GPIO_MUX_3",  "GPIO_MUX_4",  "GPIO_MUX_5",
    "GPIO_MUX_6",  "GPIO_MUX_7",  "GPIO_MUX_8",  "GPIO_MUX_9",  "GPIO_MUX_10", "GPIO_MUX_11",
    "GPIO_MUX_12", "GPIO_MUX_13", "GPIO_MUX_14", "GPIO_MUX_15",
};
inline const QString AdcDiv[] = {
    "CRM_ADC_DIV_2", "CRM_ADC_DIV_3", "CRM_ADC_DIV_4",  "CRM_ADC_DIV_5",
    "CRM_ADC_DIV_6", "CRM_ADC_DIV_8", "CRM_ADC_DIV_12", "CRM_ADC_DIV_16",
};
inline const QString AdcClockSource[] = {
    "CRM_ADC_CLOCK_SOURCE_HCLK",
    "CRM_ADC_CLOCK_SOURCE_PLLCLK",
};
inline const QString Rtc[] = {
    "CRM_RTC_CLOCK_LEXT",
    "CRM_RTC_CLOCK_LICK",
    "CRM_RTC_CLOCK_HEXT_DIV",
};
inline const QString Ertc[] = {
    "CRM_ERTC_CLOCK_LICK",
    "CRM_ERTC_CLOCK_LEXT",
    "CRM_ERTC_CLOCK_HEXT_DIV",
};
inline const QString ErtcHextDiv[] = {
    "CRM_ERTC_CLOCK_HEXT_DIV_2",  "CRM_ERTC_CLOCK_HEXT_DIV_3",  "CRM_ERTC_CLOCK_HEXT_DIV_4",
    "CRM_ERTC_CLOCK_HEXT_DIV_5",  "CRM_ERTC_CLOCK_HEXT_DIV_6",  "CRM_ERTC_CLOCK_HEXT_DIV_7",
    "CRM_ERTC_CLOCK_HEXT_DIV_8",  "CRM_ERTC_CLOCK_HEXT_DIV_9",  "CRM_ERTC_CLOCK_HEXT_DIV_10",
    "CRM_ERTC_CLOCK_HEXT_DIV_11", "CRM_ERTC_CLOCK_HEXT_DIV_12", "CRM_ERTC_CLOCK_HEXT_DIV_13",
    "CRM_ERTC_CLOCK_HEXT_DIV_14", "CRM_ERTC_CLOCK_HEXT_DIV_15", "CRM_ERTC_CLOCK_HEXT_DIV_16",
    "CRM_ERTC_CLOCK_HEXT_DIV_17", "CRM_ERTC_CLOCK_HEXT_DIV_18", "CRM_ERTC_CLOCK_HEXT_DIV_19",
    "CRM_ERTC_CLOCK_HEXT_DIV_20", "CRM_ERTC_CLOCK_HEXT_DIV_21", "CRM_ERTC_CLOCK_HEXT_DIV_22",
    "CRM_ERTC_CLOCK_HEXT_DIV_23", "CRM_ERTC_CLOCK_HEXT_DIV_24", "CRM_ERTC_CLOCK_HEXT_DIV_25",
    "CRM_ERTC_CLOCK_HEXT_DIV_26", "CRM_ERTC_CLOCK_HEXT_DIV_27", "CRM_ERTC_CLOCK_HEXT_DIV_28",
    "CRM_ERTC_CLOCK_HEXT_DIV_29", "CRM_ERTC_CLOCK_HEXT_DIV_30", "CRM_ERTC_CLOCK_HEXT_DIV_31",
};
inline const QString UsartClockSource[] = {
    "CRM_USART_CLOCK_SOURCE_PCLK", "CRM_USART_CLOCK_SOURCE_SCLK", "CRM_USART_CLOCK_SOURCE_HICK48",
    "CRM_USART_CLOCK_SOURCE_LEXT", "CRM_USART_CLOCK_SOURCE_HICK",
};
inline const QString I2cClockSource[] = {
    "CRM_I2C_CLOCK_SOURCE_PCLK",
    "CRM_I2C_CLOCK_SOURCE_SCLK",
    "CRM_I2C_CLOCK_SOURCE_HICK48",
    "CRM_I2C_CLOCK_SOURCE_HICK",
};
inline const QString I2sf5ClockSource[] = {
    "CRM_I2SF5_CLOCK_SOURCE_PLLP",
    "CRM_I2SF5_CLOCK_SOURCE_SCLK",
    "CRM_I2SF5_CLOCK_SOURCE_HICK",
    "CRM_I2SF5_CLOCK_SOURCE_EXTERNAL",
};
inline const QString Ldo[] = {
    "PWC_LDO_OUTPUT_1V3",
    "PWC_LDO_OUTPUT_1V2",
    "PWC_LDO_OUTPUT_1V1",
    "PWC_LDO_OUTPUT_1V0",
};
inline const QString HextSclkDiv[] = {
    "CRM_HEXT_SCLK_DIV_1", "CRM_HEXT_SCLK_DIV_2",  "CRM_HEXT_SCLK_DIV_4",
    "CRM_HEXT_SCLK_DIV_8", "CRM_HEXT_SCLK_DIV_16", "CRM_HEXT_SCLK_DIV_32",
};
inline const QString HickSclkDiv[] = {
    "CRM_HICK_SCLK_DIV_1", "CRM_HICK_SCLK_DIV_2",  "CRM_HICK_SCLK_DIV_4",
    "CRM_HICK_SCLK_DIV_8", "CRM_HICK_SCLK_DIV_16",
};

// Entry `index` of a table, or an empty text when the index lies outside it.
template <std::size_t N> QString at(const QString (&table)[N], int index)
{
    return index >= 0 && static_cast<std::size_t>(index) < N ? table[index] : QString();
}

// The entry whose name ends in "_<value>" (the divider tables), or an empty text.
template <std::size_t N> QString byNumber(const QString (&table)[N], int value)
{
    const QString tail = QLatin1Char('_') + QString::number(value);
    for (const QString &name : table) {
        if (name.endsWith(tail))
            return name;
    }
    return QString();
}

} // namespace ClockMacros

// Divider values in the order of their combo boxes and macro tables.
namespace ClockDividers {
inline constexpr int Ahb[] = {1, 2, 4, 8, 16, 64, 128, 256, 512};
inline constexpr int Apb[] = {1, 2, 4, 8, 16};
inline constexpr int PllFr[] = {1, 2, 4, 8, 16, 32};
inline constexpr int PllFp[] = {1, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30};
inline constexpr int PllFu[] = {11, 13, 12, 14, 16, 18, 20};
inline constexpr int Adc[] = {2, 3, 4, 5, 6, 8, 12, 16};
inline constexpr int HextSclk[] = {1, 2, 4, 8, 16, 32};
inline constexpr int HickSclk[] = {1, 2, 4, 8, 16};
inline constexpr int ClkoutDiv1[] = {1, 2, 3, 4, 5};
inline constexpr int ClkoutDiv2[] = {1, 2, 4, 8, 16, 64, 128, 256, 512};

// Position of `value` in a divider list, or -1.
template <std::size_t N> constexpr int indexOf(const int (&list)[N], int value)
{
    for (std::size_t i = 0; i < N; ++i) {
        if (list[i] == value)
            return static_cast<int>(i);
    }
    return -1;
}
} // namespace ClockDividers
