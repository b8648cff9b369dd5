"""Package frames and the pin-function table shared by the generated series.

A frame lists the pins of a package in pin order.  Port bits are written as ranges ("PA0-7");
"OSCIN"/"OSCOUT" stand for the crystal pins, which each family places itself.
"""
import re

FRAMES = {
    20: "BOOT0 OSCIN OSCOUT NRST VDDA PA0-4 | PA5-7 PB1 VSS VDD PA9 PA10 PA13 PA14",
    32: "VDD OSCIN OSCOUT NRST VDDA PA0-2 | PA3-7 PB0 PB1 VSS | PA8-15 | PB3-7 BOOT0 PC14 PC15",
    48: "VBAT PC13-15 OSCIN OSCOUT NRST VSSA VDDA PA0-2 | PA3-7 PB0-2 PB10 PB11 VSS VDD"
        " | PB12-15 PA8-13 VSS VDD | PA14 PA15 PB3-7 BOOT0 PB8 PB9 VSS VDD",
    64: "VBAT PC13-15 OSCIN OSCOUT NRST PC0-3 VSSA VDDA PA0-2"
        " | PA3 VSS VDD PA4-7 PC4 PC5 PB0-2 PB10 PB11 VSS VDD"
        " | PB12-15 PC6-9 PA8-13 VSS VDD"
        " | PA14 PA15 PC10-12 PD2 PB3-7 BOOT0 PB8 PB9 VSS VDD",
    100: "PE2-6 VBAT PC13-15 VSS VDD OSCIN OSCOUT NRST PC0-3 VDD VSSA VREF- VREF+ VDDA PA0 PA1"
         " | PA2 PA3 VSS VDD PA4-7 PC4 PC5 PB0-2 PE7-15 PB10 PB11 VSS"
         " | VDD PB12-15 PD8-15 PC6-9 PA8-13 VSS VDD"
         " | PA14 PA15 PC10-12 PD0-7 PB3-7 BOOT0 PB8 PB9 PE0 PE1 VSS VDD",
    144: "PE2-6 VBAT PC13-15 PF0-5 VSS VDD PF6-10 OSCIN OSCOUT NRST PC0-3 VDD VSSA VREF+ VDDA"
         " PA0-2"
         " | PA3 VSS VDD PA4-7 PC4 PC5 PB0-2 PF11 PF12 VSS VDD PF13-15 PG0 PG1 PE7-9 VSS VDD"
         " PE10-15 PB10 PB11 VSS VDD"
         " | PB12-15 PD8-13 VSS VDD PD14 PD15 PG2-8 VSS VDD PC6-9 PA8-13 VSS VDD PA14"
         " | PA15 PC10-12 PD0-6 VSS VDD PD7 PG9-14 VSS VDD PG15 PH2 PB3-7 BOOT0 PB8 PB9 PE0 PE1 VSS VDD",
}


def expand(frame):
    """Pin names of a frame in pin order; "|" only marks the sides for the reader."""
    out = []
    for tok in frame.split():
        if tok == "|":
            continue
        m = re.fullmatch(r"P([A-H])(\d+)-(\d+)", tok)
        if m:
            out += ["P%s%d" % (m.group(1), i) for i in range(int(m.group(2)), int(m.group(3)) + 1)]
        else:
            out.append(tok)
    return out


SUPPLY = {
    "VDD": ("Digital supply", "数字电源"),
    "VSS": ("Digital ground", "数字地"),
    "VDDA": ("Analog supply", "模拟电源"),
    "VSSA": ("Analog ground", "模拟地"),
    "VBAT": ("Battery supply of the backup domain", "备份域电池电源"),
    "VREF+": ("Positive reference of the ADC/DAC", "ADC/DAC 正参考电压"),
    "VREF-": ("Negative reference of the ADC/DAC", "ADC/DAC 负参考电压"),
}
RESET = ("Reset input, active low", "复位输入，低电平有效")
BOOT = ("Boot mode selection", "启动模式选择")

# Analog channels: port bit -> ADC channel number.
ADC_CHANNELS = {"PA%d" % i: i for i in range(8)}
ADC_CHANNELS.update({"PB0": 8, "PB1": 9})
ADC_CHANNELS.update({"PC%d" % i: 10 + i for i in range(6)})
ADC3_PINS = {"PA0", "PA1", "PA2", "PA3", "PC0", "PC1", "PC2", "PC3"}
ANALOG_EXTRA = {"PA4": ["DAC_OUT1", "CMP2_INM"], "PA5": ["DAC_OUT2", "CMP1_INM"],
                "PA1": ["CMP1_INP"], "PA3": ["CMP2_INP"]}

# Peripheral signals of each port bit, "SIGNAL:mux".  Families keep the signals of the
# instances they have; the families without per-pin multiplexer ignore the numbers.
FUNCTIONS = """
PA0: TMR2_CH1:1 TMR5_CH1:2 TMR8_ETR:3 USART2_CTS:7 UART4_TX:8 CMP1_OUT:11
PA1: TMR2_CH2:1 TMR5_CH2:2 USART2_RTS:7 UART4_RX:8 QSPI1_IO3:10 EMAC_RMII_REF_CLK:11
PA2: TMR2_CH3:1 TMR5_CH3:2 TMR9_CH1:3 USART2_TX:7 TMR15_CH1:9 EMAC_MDIO:11 CMP2_OUT:11
PA3: TMR2_CH4:1 TMR5_CH4:2 TMR9_CH2:3 I2S2_MCK:5 USART2_RX:7 TMR15_CH2:9
PA4: SPI1_CS:5 I2S1_WS:5 SPI3_CS:6 I2S3_WS:6 USART2_CK:7 DVP_HSYNC:13
PA5: TMR2_CH1:1 TMR8_CH1C:3 SPI1_SCK:5 I2S1_CK:5
PA6: TMR1_BRK:1 TMR3_CH1:2 TMR8_BRK:3 TMR16_CH1:4 SPI1_MISO:5 TMR13_CH1:9 CMP1_OUT:11 DVP_PCLK:13
PA7: TMR1_CH1C:1 TMR3_CH2:2 TMR8_CH1C:3 TMR17_CH1:4 SPI1_MOSI:5 I2S1_SD:5 TMR14_CH1:9 EMAC_RMII_CRS_DV:11 CMP2_OUT:11
PA8: TMR1_CH1:1 I2C3_SCL:4 USART1_CK:7 USB_OTGFS1_SOF:10
PA9: TMR1_CH2:1 I2C3_SMBA:4 USART1_TX:7 USB_OTGFS1_VBUS:10
PA10: TMR1_CH3:1 USART1_RX:7 USB_OTGFS1_ID:10
PA11: TMR1_CH4:1 USART1_CTS:7 CAN1_RX:9 USB_OTGFS1_DM:10 USBFS_DM:10
PA12: TMR1_ETR:1 USART1_RTS:7 CAN1_TX:9 USB_OTGFS1_DP:10 USBFS_DP:10
PA13: DEBUG_JTMS_SWDIO:0 IR_OUT:1
PA14: DEBUG_JTCK_SWCLK:0
PA15: DEBUG_JTDI:0 TMR2_CH1:1 SPI1_CS:5 SPI3_CS:6 I2S3_WS:6
PB0: TMR1_CH2C:1 TMR3_CH3:2 TMR8_CH2C:3
PB1: TMR1_CH3C:1 TMR3_CH4:2 TMR8_CH3C:3
PB2: QSPI1_SCK:9
PB3: DEBUG_JTDO_SWO:0 TMR2_CH2:1 SPI1_SCK:5 SPI3_SCK:6 I2S3_CK:6
PB4: DEBUG_JTRST:0 TMR3_CH1:2 SPI1_MISO:5 SPI3_MISO:6
PB5: TMR3_CH2:2 I2C1_SMBA:4 SPI1_MOSI:5 SPI3_MOSI:6 I2S3_SD:6 CAN2_RX:9
PB6: TMR4_CH1:2 TMR16_CH1C:2 I2C1_SCL:4 USART1_TX:7 CAN2_TX:9 QSPI1_CS:10 DVP_D5:13
PB7: TMR4_CH2:2 TMR17_CH1C:2 I2C1_SDA:4 USART1_RX:7 DVP_VSYNC:13
PB8: TMR4_CH3:2 TMR10_CH1:3 I2C1_SCL:4 CAN1_RX:9 SDIO1_D4:12
PB9: TMR4_CH4:2 TMR11_CH1:3 I2C1_SDA:4 SPI2_CS:5 I2S2_WS:5 IR_OUT:6 CAN1_TX:9 SDIO1_D5:12
PB10: TMR2_CH3:1 I2C2_SCL:4 SPI2_SCK:5 I2S2_CK:5 USART3_TX:7
PB11: TMR2_CH4:1 I2C2_SDA:4 USART3_RX:7 EMAC_RMII_TX_EN:11
PB12: TMR1_BRK:1 I2C2_SMBA:4 SPI2_CS:5 I2S2_WS:5 USART3_CK:7 CAN2_RX:9 EMAC_RMII_TXD0:11
PB13: TMR1_CH1C:1 SPI2_SCK:5 I2S2_CK:5 USART3_CTS:7 CAN2_TX:9 EMAC_RMII_TXD1:11
PB14: TMR1_CH2C:1 TMR8_CH2C:3 SPI2_MISO:5 USART3_RTS:7 TMR12_CH1:9 USB_OTGFS2_DM:12 USB_OTGHS1_DM:12
PB15: TMR1_CH3C:1 TMR8_CH3C:3 SPI2_MOSI:5 I2S2_SD:5 TMR12_CH2:9 USB_OTGFS2_DP:12 USB_OTGHS1_DP:12
PC1: EMAC_MDC:11
PC2: SPI2_MISO:5
PC3: SPI2_MOSI:5 I2S2_SD:5
PC4: EMAC_RMII_RXD0:11
PC5: EMAC_RMII_RXD1:11
PC6: TMR3_CH1:2 TMR8_CH1:3 I2S2_MCK:5 USART6_TX:8 SDIO1_D6:12 DVP_D0:13
PC7: TMR3_CH2:2 TMR8_CH2:3 I2S3_MCK:6 USART6_RX:8 SDIO1_D7:12 DVP_D1:13
PC8: TMR3_CH3:2 TMR8_CH3:3 USART6_CK:8 SDIO1_D0:12 DVP_D2:13
PC9: TMR3_CH4:2 TMR8_CH4:3 I2C3_SDA:4 SDIO1_D1:12 DVP_D3:13
PC10: SPI3_SCK:6 I2S3_CK:6 USART3_TX:7 UART4_TX:8 SDIO1_D2:12
PC11: SPI3_MISO:6 USART3_RX:7 UART4_RX:8 SDIO1_D3:12
PC12: SPI3_MOSI:6 I2S3_SD:6 USART3_CK:7 UART5_TX:8 SDIO1_CK:12
PD0: CAN1_RX:9 XMC_D2:12
PD1: CAN1_TX:9 XMC_D3:12
PD2: TMR3_ETR:2 UART5_RX:8 SDIO1_CMD:12
PD3: USART2_CTS:7
PD4: USART2_RTS:7 XMC_NOE:12
PD5: USART2_TX:7 XMC_NWE:12
PD6: USART2_RX:7 XMC_NWAIT:12
PD7: USART2_CK:7 XMC_NE1:12
PD8: USART3_TX:7 XMC_D13:12
PD9: USART3_RX:7 XMC_D14:12
PD10: USART3_CK:7 XMC_D15:12
PD11: USART3_CTS:7 QSPI1_IO0:9 XMC_A16:12
PD12: TMR4_CH1:2 USART3_RTS:7 QSPI1_IO1:9 XMC_A17:12
PD13: TMR4_CH2:2 XMC_A18:12
PD14: TMR4_CH3:2 XMC_D0:12
PD15: TMR4_CH4:2 XMC_D1:12
PE0: TMR4_ETR:2 UART8_RX:8 XMC_LB:12
PE1: UART8_TX:8 XMC_UB:12
PE2: SPI4_SCK:5 QSPI1_IO2:9 XMC_A23:12
PE3: XMC_A19:12
PE4: SPI4_CS:5 XMC_A20:12 DVP_D4:13
PE5: TMR9_CH1:3 SPI4_MISO:5 XMC_A21:12 DVP_D6:13
PE6: TMR9_CH2:3 SPI4_MOSI:5 XMC_A22:12 DVP_D7:13
PE7: TMR1_ETR:1 UART7_RX:8 XMC_D4:12
PE8: TMR1_CH1C:1 UART7_TX:8 XMC_D5:12
PE9: TMR1_CH1:1 XMC_D6:12
PE10: TMR1_CH2C:1 XMC_D7:12
PE11: TMR1_CH2:1 SPI4_CS:5 XMC_D8:12
PE12: TMR1_CH3C:1 SPI4_SCK:5 XMC_D9:12
PE13: TMR1_CH3:1 SPI4_MISO:5 XMC_D10:12
PE14: TMR1_CH4:1 SPI4_MOSI:5 XMC_D11:12
PE15: TMR1_BRK:1 XMC_D12:12
PF0: XMC_A0:12
PF1: XMC_A1:12
PF2: XMC_A2:12
PF3: XMC_A3:12
PF4: XMC_A4:12
PF5: XMC_A5:12
PF6: TMR10_CH1:3
PF7: TMR11_CH1:3
PF8: TMR13_CH1:9
PF9: TMR14_CH1:9
PF12: XMC_A6:12
PF13: XMC_A7:12
PF14: XMC_A8:12
PF15: XMC_A9:12
PG0: XMC_A10:12
PG1: XMC_A11:12
PG2: XMC_A12:12
PG3: XMC_A13:12
PG4: XMC_A14:12
PG5: XMC_A15:12
PG9: USART6_RX:8 XMC_NE2:12
PG14: USART6_TX:8
"""


def parse_functions():
    table = {}
    for line in FUNCTIONS.strip().splitlines():
        pin, rest = line.split(":", 1)
        table[pin.strip()] = [(s.rsplit(":", 1)[0], int(s.rsplit(":", 1)[1]))
                              for s in rest.split()]
    return table


def instance_of(signal):
    """Instance that owns a signal name; EXINT lines and IR_OUT map to EXINT and IRTMR."""
    if signal.startswith("EXINT"):
        return "EXINT"
    if signal == "IR_OUT":
        return "IRTMR"
    for prefix in ("USB_OTGFS1", "USB_OTGFS2", "USB_OTGHS1"):
        if signal.startswith(prefix + "_"):
            return prefix
    return signal.split("_", 1)[0]


def io_mode(signal):
    """Starting IOMode of a peripheral signal in the device file."""
    short = signal.split("_")[-1]
    if signal.startswith(("CRM_HEXT", "CRM_LEXT")):
        return "Oscillator"
    if signal.startswith("DEBUG_"):
        return "Debug"
    if signal.startswith("EXINT"):
        return "ExternalInterrupt"
    if re.fullmatch(r"IN\d+|OUT\d|INM|INP", short) and signal.split("_")[0] in (
            "ADC1", "ADC2", "ADC3", "DAC", "CMP1", "CMP2"):
        return "Analog"
    if signal.startswith("I2C") and short in ("SCL", "SDA", "SMBA"):
        return "MuxOutputOpenDrain"
    if short in ("RX", "MISO", "CTS", "ETR", "BRK", "VBUS", "ID", "CRS", "MDIO") or \
            signal.endswith(("_RX0", "_RXD0", "_RXD1", "_CRS_DV", "_REF_CLK", "_NWAIT")) or \
            signal.startswith("DVP_"):
        return "MuxInput"
    return "MuxOutputPushPull"
