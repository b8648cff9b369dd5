"""The pin map shared by the generated series: package frames, the peripheral functions of
every port bit with their multiplexer numbers, and the pin table of one series built from them.

A series keeps, of the map, the signals of the instances it has. On the series with a
per-pin multiplexer the number is the `GPIO_MUX_n` of the signal; on the others (the remap
families) signals that stand on more than one pin move between pin sets by remap groups.

Multiplexer numbers: 0 system (debug, clock output), 1 TMR1/TMR2/TMR20, 2 TMR3-5,
3 TMR8-11, 4 I2C, 5 SPI1/2/4 and I2S1/2/4, 6 SPI3/I2S3 and I2S2 SDEXT, 7 USART1-3 and
I2S3 SDEXT, 8 UART4/5/7/8 and USART6, 9 CAN and TMR12-14, 10 USB OTGFS1, QSPI, SPIM,
11 EMAC, comparators, SDIO2, 12 XMC, SDIO1, second USB, 13 DVP, I2SF5, 14 TMR15-17 and
TMR20's second pins, 15 EVENTOUT.
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
         " | PA15 PC10-12 PD0-6 VSS VDD PD7 PG9-14 VSS VDD PG15 PH2 PB3-7 BOOT0 PB8 PB9 PE0"
         " PE1 VSS VDD",
}

# Peripheral functions of every port bit, "mux:SIGNAL" (an indented line continues the pin
# above). UART4, UART5, UART7 and UART8 take the name USARTn on the series whose instance is
# so called.
FUNCTIONS = """
PA0: 1:TMR2_CH1 1:TMR2_EXT 2:TMR5_CH1 3:TMR8_EXT 7:USART2_CTS 8:UART4_TX 11:EMAC_MII_CRS
      11:CMP1_OUT
PA1: 1:TMR2_CH2 2:TMR5_CH2 7:USART2_RTS 8:UART4_RX 10:QSPI1_IO3 11:EMAC_MII_RX_CLK
      11:EMAC_RMII_REF_CLK 14:TMR15_CH1C
PA2: 1:TMR2_CH3 2:TMR5_CH3 3:TMR9_CH1 7:USART2_TX 11:EMAC_MDIO 11:CMP2_OUT 14:TMR15_CH1
PA3: 1:TMR2_CH4 2:TMR5_CH4 3:TMR9_CH2 5:I2S2_MCK 7:USART2_RX 11:EMAC_MII_COL 14:TMR15_CH2
PA4: 5:SPI1_CS 5:I2S1_WS 6:SPI3_CS 6:I2S3_WS 7:USART2_CK 9:TMR14_CH1 12:USB_OTGFS2_SOF
      12:USB_OTGHS1_SOF 13:DVP_HSYNC
PA5: 1:TMR2_CH1 1:TMR2_EXT 3:TMR8_CH1C 5:SPI1_SCK 5:I2S1_CK
PA6: 1:TMR1_BRK 2:TMR3_CH1 3:TMR8_BRK 5:SPI1_MISO 5:I2S1_MCK 9:TMR13_CH1 11:CMP1_OUT
      13:DVP_PCLK 14:TMR16_CH1
PA7: 1:TMR1_CH1C 2:TMR3_CH2 3:TMR8_CH1C 5:SPI1_MOSI 5:I2S1_SD 9:TMR14_CH1 11:EMAC_MII_RX_DV
      11:EMAC_RMII_CRS_DV 11:CMP2_OUT 14:TMR17_CH1
PA8: 1:TMR1_CH1 4:I2C3_SCL 7:USART1_CK 10:USB_OTGFS1_SOF 2:TMR4_EXT 8:USART8_CK
PA9: 1:TMR1_CH2 4:I2C1_SCL 7:USART1_TX 10:USB_OTGFS1_VBUS 14:TMR15_BRK
PA10: 1:TMR1_CH3 4:I2C1_SDA 7:USART1_RX 10:USB_OTGFS1_ID 14:TMR17_BRK
PA11: 1:TMR1_CH4 4:I2C2_SCL 7:USART1_CTS 9:CAN1_RX 10:USB_OTGFS1_DM 10:USBFS_DM 8:USART8_CTS
PA12: 1:TMR1_EXT 4:I2C2_SDA 7:USART1_RTS 9:CAN1_TX 10:USB_OTGFS1_DP 10:USBFS_DP 8:USART8_RTS
PA13: 0:DEBUG_JTMS_SWDIO 1:IR_OUT
PA14: 0:DEBUG_JTCK_SWCLK 7:USART2_TX
PA15: 0:DEBUG_JTDI 1:TMR2_CH1 1:TMR2_EXT 5:SPI1_CS 5:I2S1_WS 6:SPI3_CS 6:I2S3_WS 7:USART2_RX
      8:UART7_TX 13:I2SF5_WS
PB0: 1:TMR1_CH2C 2:TMR3_CH3 3:TMR8_CH2C 10:QSPI1_IO1 11:EMAC_MII_RXD2 8:USART4_CTS
PB1: 1:TMR1_CH3C 2:TMR3_CH4 3:TMR8_CH3C 10:QSPI1_IO0 11:EMAC_MII_RXD3 13:I2SF5_CK
PB2: 10:QSPI1_SCK 10:SPIM_SCK 8:USART4_CK 2:TMR3_EXT
PB3: 0:DEBUG_JTDO_SWO 1:TMR2_CH2 5:SPI1_SCK 5:I2S1_CK 6:SPI3_SCK 6:I2S3_CK 8:UART7_RX
PB4: 0:DEBUG_JTRST 2:TMR3_CH1 5:SPI1_MISO 6:SPI3_MISO 7:I2S3_SDEXT
PB5: 2:TMR3_CH2 4:I2C1_SMBA 5:SPI1_MOSI 5:I2S1_SD 6:SPI3_MOSI 6:I2S3_SD 9:CAN2_RX
      11:EMAC_PPS_OUT 12:XMC_SDCKE1 13:DVP_D10 14:TMR16_BRK
PB6: 2:TMR4_CH1 4:I2C1_SCL 7:USART1_TX 9:CAN2_TX 10:QSPI1_CS 12:XMC_SDNE1 13:DVP_D5
      14:TMR16_CH1C
PB7: 2:TMR4_CH2 4:I2C1_SDA 7:USART1_RX 12:XMC_NADV 13:DVP_VSYNC 14:TMR17_CH1C
PB8: 2:TMR4_CH3 3:TMR10_CH1 4:I2C1_SCL 8:UART5_RX 9:CAN1_RX 11:SDIO2_D4 12:SDIO1_D4 13:DVP_D6
      14:TMR16_CH1
PB9: 2:TMR4_CH4 3:TMR11_CH1 4:I2C1_SDA 5:SPI2_CS 5:I2S2_WS 6:IR_OUT 8:UART5_TX 9:CAN1_TX
      11:SDIO2_D5 12:SDIO1_D5 13:DVP_D7 14:TMR17_CH1
PB10: 1:TMR2_CH3 4:I2C2_SCL 5:SPI2_SCK 5:I2S2_CK 7:USART3_TX 10:SPIM_IO2 11:EMAC_MII_RX_ER
      13:I2SF5_MCK
PB11: 1:TMR2_CH4 4:I2C2_SDA 7:USART3_RX 10:SPIM_IO3 11:EMAC_MII_TX_EN 11:EMAC_RMII_TX_EN
PB12: 1:TMR1_BRK 4:I2C2_SMBA 5:SPI2_CS 5:I2S2_WS 7:USART3_CK 9:CAN2_RX 10:SPIM_CS
      11:EMAC_MII_TXD0 11:EMAC_RMII_TXD0 12:USB_OTGFS2_ID 12:USB_OTGHS1_ID 8:USART5_CK
PB13: 1:TMR1_CH1C 5:SPI2_SCK 5:I2S2_CK 7:USART3_CTS 9:CAN2_TX 11:EMAC_MII_TXD1
      11:EMAC_RMII_TXD1 12:USB_OTGFS2_VBUS 12:USB_OTGHS1_VBUS 8:USART5_CTS
PB14: 1:TMR1_CH2C 3:TMR8_CH2C 5:SPI2_MISO 6:I2S2_SDEXT 7:USART3_RTS 9:TMR12_CH1
      12:USB_OTGFS2_DM 12:USB_OTGHS1_DM 13:I2SF5_SDEXT 14:TMR15_CH1 8:USART5_RTS
PB15: 1:TMR1_CH3C 3:TMR8_CH3C 5:SPI2_MOSI 5:I2S2_SD 9:TMR12_CH2 12:USB_OTGFS2_DP
      12:USB_OTGHS1_DP 13:I2SF5_SD 14:TMR15_CH2 8:USART4_RTS
PC0: 8:UART8_TX 11:SDIO2_D0 12:XMC_SDNWE
PC1: 11:EMAC_MDC 8:USART7_CK
PC2: 5:SPI2_MISO 6:I2S2_SDEXT 8:UART8_RX 11:EMAC_MII_TXD2 12:XMC_SDNE0
PC3: 5:SPI2_MOSI 5:I2S2_SD 11:EMAC_MII_TX_CLK 12:XMC_SDCKE0 8:USART7_CTS
PC4: 10:QSPI1_IO2 10:SPIM_IO0 11:EMAC_MII_RXD0 11:EMAC_RMII_RXD0 12:XMC_NE4 8:USART6_CTS
PC5: 10:SPIM_IO1 11:EMAC_MII_RXD1 11:EMAC_RMII_RXD1 8:USART6_RTS
PC6: 2:TMR3_CH1 3:TMR8_CH1 5:I2S2_MCK 8:USART6_TX 11:SDIO2_D6 12:SDIO1_D6 13:DVP_D0
PC7: 2:TMR3_CH2 3:TMR8_CH2 6:I2S3_MCK 8:USART6_RX 11:SDIO2_D7 12:SDIO1_D7 13:DVP_D1
PC8: 2:TMR3_CH3 3:TMR8_CH3 4:I2C3_SMBA 5:I2S4_MCK 8:USART6_CK 12:SDIO1_D0 13:DVP_D2
PC9: 2:TMR3_CH4 3:TMR8_CH4 4:I2C3_SDA 12:SDIO1_D1 13:DVP_D3 14:I2SF5_CKIN 8:USART7_RTS
PC10: 6:SPI3_SCK 6:I2S3_CK 7:USART3_TX 8:UART4_TX 12:SDIO1_D2 13:DVP_D8 2:TMR4_EXT
PC11: 6:SPI3_MISO 6:I2S3_SDEXT 7:USART3_RX 8:UART4_RX 12:SDIO1_D3
PC12: 6:SPI3_MOSI 6:I2S3_SD 7:USART3_CK 8:UART5_TX 12:SDIO1_CK 13:DVP_D9
PD0: 9:CAN1_RX 12:XMC_D2
PD1: 9:CAN1_TX 12:XMC_D3
PD2: 2:TMR3_EXT 8:UART5_RX 11:SDIO2_D2 12:SDIO1_CMD 13:DVP_D11
PD3: 7:USART2_CTS 11:SDIO2_D3 12:XMC_NE2 12:XMC_NCE4_1
PD4: 7:USART2_RTS 12:XMC_NOE
PD5: 7:USART2_TX 12:XMC_NWE
PD6: 7:USART2_RX 11:SDIO2_CK 12:XMC_NWAIT
PD7: 7:USART2_CK 11:SDIO2_CMD 12:XMC_NE1
PD8: 7:USART3_TX 12:XMC_D13
PD9: 7:USART3_RX 11:SDIO2_D1 12:XMC_D14
PD10: 7:USART3_CK 12:XMC_D15
PD11: 7:USART3_CTS 10:QSPI1_IO0 12:XMC_A16
PD12: 2:TMR4_CH1 7:USART3_RTS 10:QSPI1_IO1 12:XMC_A17
PD13: 2:TMR4_CH2 10:QSPI1_IO3 12:XMC_A18
PD14: 2:TMR4_CH3 12:XMC_D0
PD15: 2:TMR4_CH4 12:XMC_D1
PE0: 2:TMR4_EXT 8:UART8_RX 12:XMC_NBL0 14:TMR20_EXT
PE1: 8:UART8_TX 12:XMC_NBL1 14:TMR20_BRK
PE2: 5:SPI4_SCK 10:QSPI1_IO2 11:EMAC_MII_TXD3 12:XMC_A23 14:TMR20_CH1
PE3: 12:XMC_A19 14:TMR20_CH2
PE4: 5:SPI4_CS 12:XMC_A20 13:DVP_D4 14:TMR20_CH3
PE5: 3:TMR9_CH1 5:SPI4_MISO 12:XMC_A21 13:DVP_D6 14:TMR20_CH4
PE6: 3:TMR9_CH2 5:SPI4_MOSI 5:I2S4_SD 12:XMC_A22 13:DVP_D7
PE7: 1:TMR1_EXT 8:UART7_RX 10:QSPI2_CS 12:XMC_D4
PE8: 1:TMR1_CH1C 8:UART7_TX 10:QSPI2_SCK 12:XMC_D5
PE9: 1:TMR1_CH1 10:QSPI2_IO0 12:XMC_D6
PE10: 1:TMR1_CH2C 10:QSPI2_IO1 12:XMC_D7 8:USART7_CK
PE11: 1:TMR1_CH2 5:SPI4_CS 5:I2S4_WS 10:QSPI2_IO2 12:XMC_D8 8:USART7_CTS
PE12: 1:TMR1_CH3C 5:SPI4_SCK 5:I2S4_CK 10:QSPI2_IO3 12:XMC_D9 8:USART7_RTS
PE13: 1:TMR1_CH3 5:SPI4_MISO 12:XMC_D10 8:USART8_CK
PE14: 1:TMR1_CH4 5:SPI4_MOSI 5:I2S4_SD 12:XMC_D11 8:USART8_CTS
PE15: 1:TMR1_BRK 12:XMC_D12 8:USART8_RTS
PF0: 4:I2C2_SDA 12:XMC_A0
PF1: 4:I2C2_SCL 12:XMC_A1
PF2: 12:XMC_A2
PF3: 12:XMC_A3
PF4: 1:TMR20_CH1C 12:XMC_A4
PF5: 1:TMR20_CH2C 12:XMC_A5
PF6: 1:TMR20_CH3C 3:TMR10_CH1 12:XMC_NIORD
PF7: 3:TMR11_CH1 12:XMC_NREG
PF8: 9:TMR13_CH1 12:XMC_NIOWR
PF9: 9:TMR14_CH1 12:XMC_CD
PF10: 12:XMC_INTR 13:DVP_D12
PF11: 12:XMC_NRAS 13:DVP_D13
PF12: 1:TMR20_CH1 12:XMC_A6
PF13: 1:TMR20_CH2 12:XMC_A7
PF14: 1:TMR20_CH3 12:XMC_A8
PF15: 1:TMR20_CH4 12:XMC_A9
PG0: 1:TMR20_EXT 12:XMC_A10
PG1: 1:TMR20_BRK 12:XMC_A11
PG2: 12:XMC_A12
PG3: 12:XMC_A13
PG4: 12:XMC_A14
PG5: 12:XMC_A15
PG6: 12:XMC_NCE2
PG7: 8:USART6_CK 12:XMC_INT2
PG8: 8:USART6_RTS 12:XMC_SDCLK
PG9: 8:USART6_RX 12:XMC_NE2
PG10: 12:XMC_NE3
PG11: 11:EMAC_MII_TX_EN 11:EMAC_RMII_TX_EN 12:XMC_NCE3
PG12: 8:USART6_RTS 12:XMC_NE4
PG13: 8:USART6_CTS 11:EMAC_MII_TXD0 11:EMAC_RMII_TXD0 12:XMC_A24
PG14: 8:USART6_TX 11:EMAC_MII_TXD1 11:EMAC_RMII_TXD1 12:XMC_A25
PG15: 8:USART6_CTS 12:XMC_NCAS
"""

# On the data pins the low address lines share the pin in multiplexed mode (NADV): both
# functions are "Multi" there, so that an address and its data line stand together.
MULTIPLEXED = {"XMC_D%d" % n: "XMC_A%d" % n for n in range(16)}

# The XMC signals that only one kind of memory uses; the others serve every bank.
XMC_KINDS = {
    "SDRAM": {"XMC_SDCLK", "XMC_SDNWE", "XMC_SDNE0", "XMC_SDCKE0", "XMC_SDNE1",
              "XMC_SDCKE1", "XMC_NRAS", "XMC_NCAS"},
    "NAND": {"XMC_NCE2", "XMC_INT2", "XMC_NCE3"},
    "PCCARD": {"XMC_NCE4_1", "XMC_NIORD", "XMC_NIOWR", "XMC_NREG", "XMC_CD", "XMC_INTR"},
    "NOR": {"XMC_NE1", "XMC_NE2", "XMC_NE3", "XMC_NE4", "XMC_NADV"},
}

# Analog channels: port bit -> ADC channel number. ADC3 reaches only some of them.
ADC_CHANNELS = {"PA%d" % i: i for i in range(8)}
ADC_CHANNELS.update({"PB0": 8, "PB1": 9})
ADC_CHANNELS.update({"PC%d" % i: 10 + i for i in range(6)})
ADC3_PINS = {"PA0", "PA1", "PA2", "PA3", "PC0", "PC1", "PC2", "PC3"}
DAC_PINS = {"PA4": "DAC_OUT1", "PA5": "DAC_OUT2"}
# Comparator inputs: non-inverting INP0/INP1, inverting INM4 to INM7.
CMP_PINS = {
    "CMP1": {"PA1": "INP0", "PA7": "INP1", "PA4": "INM4", "PA5": "INM5", "PA0": "INM6",
             "PA2": "INM7"},
    "CMP2": {"PA3": "INP0", "PB0": "INP1", "PA4": "INM4", "PA5": "INM5", "PA2": "INM6",
             "PA0": "INM7"},
}
WKUP_PINS = {1: "PA0", 2: "PC13", 4: "PA2", 5: "PC5", 6: "PB5", 7: "PB15"}

SUPPLY = {
    "VDD": ("Power", "Digital supply", "数字电源"),
    "VSS": ("Power", "Digital ground", "数字地"),
    "VDDA": ("Power", "Analog supply", "模拟电源"),
    "VSSA": ("Power", "Analog ground", "模拟地"),
    "VBAT": ("Power", "Battery supply of the backup domain", "备份域电池电源"),
    "VREF+": ("Power", "Positive reference of the ADC/DAC", "ADC/DAC 正参考电压"),
    "VREF-": ("Power", "Negative reference of the ADC/DAC", "ADC/DAC 负参考电压"),
    "NRST": ("Reset", "Reset input, active low", "复位输入，低电平有效"),
    "BOOT0": ("Boot", "Boot mode selection", "启动模式选择"),
    "HEXT_IN": ("Clock", "External high speed crystal input", "外部高速晶振输入"),
    "HEXT_OUT": ("Clock", "External high speed crystal output", "外部高速晶振输出"),
}

PIN_RE = re.compile(r"P([A-H])(\d+)$")


def expand(frame):
    """Pin names of a frame in pin order; "|" only marks the sides for the reader."""
    out = []
    for tok in frame.split():
        if tok == "|":
            continue
        m = re.fullmatch(r"P([A-H])(\d+)-(\d+)", tok)
        if m:
            out += ["P%s%d" % (m.group(1), i)
                    for i in range(int(m.group(2)), int(m.group(3)) + 1)]
        else:
            out.append(tok)
    return out


def parse_functions(text=FUNCTIONS):
    """{pin: [(signal, mux)]}; an indented line continues the pin above it."""
    table = {}
    pin = None
    for line in text.strip("\n").splitlines():
        if not line.startswith(" "):
            pin, line = line.split(":", 1)
            table[pin] = []
        table[pin] += [(s.split(":", 1)[1], int(s.split(":", 1)[0])) for s in line.split()]
    return table


def instance_of(signal):
    """The instance that owns a signal name of the map."""
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
    inst = instance_of(signal)
    if signal.startswith(("CRM_HEXT", "CRM_LEXT")):
        return "Oscillator"
    if signal.startswith("DEBUG_"):
        return "Debug"
    if signal.startswith("EXINT"):
        return "ExternalInterrupt"
    if signal.startswith("PWC_WKUP"):
        return "WakeupInput"
    if inst.startswith(("ADC", "DAC")) or (inst.startswith("CMP") and short != "OUT"):
        return "Analog"
    if inst.startswith("I2C"):
        return "MuxOutputOpenDrain"
    if short in ("RX", "MISO", "CTS", "EXT", "BRK", "VBUS", "ID", "REFIN", "TAMP1", "TAMP2",
                 "TAMPER", "CKIN", "NWAIT", "INT2", "INTR", "CD", "COL", "CRS", "DV", "ER",
                 "HSYNC", "VSYNC", "PCLK") or signal.startswith("DVP_D") or \
            re.search(r"_RXD\d$|_RX_CLK$|_TX_CLK$|_REF_CLK$", signal):
        return "MuxInput"
    return "MuxOutputPushPull"


class GeneratedPins:
    """Pin table of one generated series (see family.py for the interface).

    ``plan`` keys: name, instances (set of instance names), devices (catalogue rows),
    remap (bool), osc ("PH", "PF" or "PD"), clkout {signal: ["PA8:0", ...]}, wkup (numbers),
    rtc ("ERTC" or "RTC"), tamper2 (bool), xmc (set of XMC_KINDS keys), remap_tssop (bool),
    series_index (catalogue place from 1), package_index, aliases {map prefix: instance}.
    """

    FIXED = {k: v for k, v in SUPPLY.items()}

    def __init__(self, plan):
        self.plan = plan
        self.name = plan["name"]
        inst = plan["instances"]
        table = parse_functions()
        aliases = plan.get("aliases", {})
        xmc = plan.get("xmc", set())
        self._mux = {}
        for pin, funcs in table.items():
            kept = []
            for sig, mux in funcs:
                owner = instance_of(sig)
                if owner in aliases:
                    sig = aliases[owner] + sig[len(owner):]
                    owner = aliases[owner]
                if owner == "XMC":
                    kinds = [k for k, names in XMC_KINDS.items() if sig in names]
                    if not xmc or kinds and not set(kinds) & xmc:
                        continue
                elif owner not in inst:
                    continue
                kept.append((sig, mux))
            self._mux[pin] = kept
        self._multi = set()
        if "NOR" in xmc:
            for pin, funcs in self._mux.items():
                for sig, mux in list(funcs):
                    if sig in MULTIPLEXED:
                        funcs.append((MULTIPLEXED[sig], mux))
                        self._multi |= {(pin, sig), (pin, MULTIPLEXED[sig])}
        for sig, places in plan.get("clkout", {}).items():
            for place in places:
                pin, mux = place.split(":")
                self._mux.setdefault(pin, []).append((sig, int(mux)))
        self.DEVICES = [(r["name"], r["package"], r["flash"], r["sram"])
                        for r in plan["devices"]]
        self.PACKAGES = {}
        for _, package, _, _ in self.DEVICES:
            if package in self.PACKAGES:
                continue
            count = int(re.sub(r"\D", "", package))
            word = re.sub(r"\d", "", package)
            x, y = (0, count // 2) if word == "TSSOP" else (count // 4, count // 4)
            self.PACKAGES[package] = (word, count, x, y, self._layout(count))
        self._io = set()
        for _, _, _, _, layout in self.PACKAGES.values():
            for name in layout:
                parts = name.split("/")
                if len(parts) == 2 and PIN_RE.match(parts[1]):
                    self._io.update(parts)  # a pin with two variants
                elif PIN_RE.match(parts[0]):
                    self._io.add(name)

    # ------------------------------------------------------------------ layout --

    def crystal(self, count):
        osc = self.plan["osc"]
        if osc == "PD":
            return ("PD0/HEXT_IN", "PD1/HEXT_OUT") if count <= 64 else ("HEXT_IN", "HEXT_OUT")
        return (osc + "0", osc + "1")

    def _layout(self, count):
        hin, hout = self.crystal(count)
        names = [hin if n == "OSCIN" else hout if n == "OSCOUT" else n
                 for n in expand(FRAMES[count])]
        if count == 20 and self.plan.get("remap_tssop"):
            names = ["PA9/PA11" if n == "PA9" else "PA10/PA12" if n == "PA10" else n
                     for n in names]
        bits = [self.port_bit(n) for n in names if self.port_bit(n)]
        if len(bits) != len(set(bits)):
            raise ValueError("%s %d: a port bit stands twice" % (self.name, count))
        return names

    # --------------------------------------------------------------- questions --

    @staticmethod
    def port_bit(name):
        m = PIN_RE.match(name.split("/")[0])
        return (m.group(1), int(m.group(2))) if m else None

    def port_of(self, pin):
        return self.port_bit(pin)[0]

    def pin_number(self, pin):
        return self.port_bit(pin)[1]

    def _bit(self, pin):
        return pin.split("/")[0]

    def all_io_pins(self):
        return sorted(self._io, key=lambda p: (self.port_bit(p), p))

    def mux_of(self, pin):
        if self.plan["remap"]:
            return []
        return [(s, m) for s, m in self._mux.get(self._bit(pin), [])] + [("EVENTOUT", 15)]

    def analog_of(self, bit):
        inst = self.plan["instances"]
        out = []
        if bit in ADC_CHANNELS:
            for adc in ("ADC1", "ADC2", "ADC3"):
                if adc in inst and (adc != "ADC3" or bit in ADC3_PINS):
                    out.append("%s_IN%d" % (adc, ADC_CHANNELS[bit]))
        if "DAC" in inst and bit in DAC_PINS:
            out.append(DAC_PINS[bit])
        for cmp_inst, pins in sorted(CMP_PINS.items()):
            if cmp_inst in inst and bit in pins:
                out.append("%s_%s" % (cmp_inst, pins[bit]))
        return out

    def direct_of(self, bit):
        """Functions without multiplexer: wake-up, backup domain, oscillators."""
        out = []
        for n in self.plan.get("wkup", ()):
            if WKUP_PINS[n] == bit:
                out.append("PWC_WKUP%d" % n)
        rtc = self.plan.get("rtc")
        if rtc == "ERTC":
            if bit == "PB15":
                out.append("ERTC_REFIN")
            if bit == "PC13":
                out += ["ERTC_TAMP1", "ERTC_OUT"]
            if bit == "PA0" and self.plan.get("tamper2"):
                out.append("ERTC_TAMP2")
        elif rtc == "RTC" and bit == "PC13":
            out += ["RTC_TAMPER", "RTC_OUT"]
        if bit == "PC14":
            out.append("CRM_LEXT_IN")
        if bit == "PC15":
            out.append("CRM_LEXT_OUT")
        return out

    def functions_of(self, pin):
        bit = self._bit(pin)
        f = [(w, w) for w in ("GPIO_Input", "GPIO_Output", "GPIO_Analog", "EVENTOUT")]
        f += [(s, io_mode(s)) for s, _ in self._mux.get(bit, [])]
        f += [(s, "Analog") for s in self.analog_of(bit)]
        f += [(s, io_mode(s)) for s in self.direct_of(bit)]
        if pin.endswith("HEXT_IN") or pin == self.crystal(48)[0]:
            f.append(("CRM_HEXT_IN", "Oscillator"))
        if pin.endswith("HEXT_OUT") or pin == self.crystal(48)[1]:
            f.append(("CRM_HEXT_OUT", "Oscillator"))
        f.append(("EXINT%d" % self.pin_number(pin), "ExternalInterrupt"))
        return f

    def is_multi(self, pin, func):
        return (self._bit(pin), func) in self._multi

    def fixed_functions(self, name):
        if name in ("HEXT_IN", "HEXT_OUT"):
            return [("CRM_" + name, "Oscillator")]
        return []

    def all_signals(self):
        sigs = set()
        for pin in self.all_io_pins():
            sigs.update(f for f, _ in self.functions_of(pin))
        for name in self.FIXED:
            sigs.update(f for f, _ in self.fixed_functions(name))
        return sigs

    def structure_of(self, pin):
        bit = self._bit(pin)
        if self.analog_of(bit):
            return "TCa"
        if bit in ("PC13", "PC14", "PC15"):
            return "TC"
        return "FT"

    def remarks(self, pin, remap_from=None):
        letter, n = self.port_bit(pin)
        en, ch = ["Port %s bit %d" % (letter, n)], ["端口 %s 第 %d 位" % (letter, n)]
        st = self.structure_of(pin)
        en.append({"FT": "5 V tolerant", "TC": "3.3 V", "TCa": "3.3 V, analog capable"}[st])
        ch.append({"FT": "5V 容忍", "TC": "3.3V", "TCa": "3.3V，可作模拟功能"}[st])
        bit = self._bit(pin)
        if bit in ("PC13", "PC14", "PC15"):
            en.append("battery domain, low drive (3 mA)")
            ch.append("电池域，弱驱动（3 mA）")
        funcs = [f for f, _ in self.functions_of(pin)]
        for sig, text_en, text_ch in (("CRM_HEXT_IN", "HEXT crystal input", "HEXT 晶振输入"),
                                      ("CRM_HEXT_OUT", "HEXT crystal output", "HEXT 晶振输出"),
                                      ("CRM_LEXT_IN", "LEXT crystal input", "LEXT 晶振输入"),
                                      ("CRM_LEXT_OUT", "LEXT crystal output",
                                       "LEXT 晶振输出")):
            if sig in funcs:
                en.append(text_en)
                ch.append(text_ch)
        if remap_from:
            en.append("takes the place of %s when PA11 PA12 remap is on" % remap_from)
            ch.append("PA11 PA12 重映射开启时取代 %s" % remap_from)
        return "; ".join(en), "；".join(ch)

    def pid_of(self, package, flash, sram):
        codes = {16: 0, 32: 2, 64: 4, 128: 7, 256: 9, 512: 11, 1024: 13, 4096: 16}
        v = (0x4D << 24 | self.plan["series_index"] << 16
             | self.plan["package_index"][package] << 11 | codes[flash] << 6
             | min(sram // 8, 63))
        return "0x%08X" % v

    # ------------------------------------------------------------ remap groups --

    def positions(self):
        """{instance: {signal: [pins in map order]}} of the signals that can move."""
        out = {}
        for pin in self.all_io_pins():
            for sig, _ in self._mux.get(self._bit(pin), []):
                owner = instance_of(sig)
                if owner in ("DEBUG", "CRM", "IRTMR", "XMC"):
                    continue
                out.setdefault(owner, {}).setdefault(sig, []).append(pin)
        return out

    def groups(self):
        """Remap groups of the families without per-pin multiplexer: group k puts every
        signal of an instance on its k-th pin (or its last one)."""
        if not self.plan["remap"]:
            return []
        out = []
        for inst, sigs in sorted(self.positions().items()):
            n = max(len(p) for p in sigs.values())
            if n < 2:
                continue
            for k in range(n):
                members = [(s, pins[min(k, len(pins) - 1)]) for s, pins in sigs.items()]
                gmux = "" if k == 0 else "%s_GMUX_%02d" % (inst, k)
                out.append((inst, k, gmux, members))
        return out
