"""Pins, packages and devices of the MQ48T110 family.

MUX lists the multiplexed functions of every I/O pin as "mux:SIGNAL";
DIRECT lists the functions that need no multiplexer (analog inputs,
oscillator, wake-up and tamper pins). EXINTn lines and the three GPIO
words are added to every I/O pin by the generator.
"""

MUX = {
    "PA0": "1:USART2_CTS 7:CMP1_OUT",
    "PA1": "0:EVENTOUT 1:USART2_RTS 3:I2C1_SMBA 5:TMR15_CH1C",
    "PA2": "0:TMR15_CH1 1:USART2_TX",
    "PA3": "0:TMR15_CH2 1:USART2_RX",
    "PA4": "0:SPI1_CS 0:I2S1_WS 1:USART2_CK 4:TMR14_CH1",
    "PA5": "0:SPI1_SCK 0:I2S1_CK",
    "PA6": "0:SPI1_MISO 0:I2S1_MCK 1:TMR3_CH1 2:TMR1_BRK 5:TMR16_CH1 "
           "6:EVENTOUT 7:CMP1_OUT",
    "PA7": "0:SPI1_MOSI 0:I2S1_SD 1:TMR3_CH2 2:TMR1_CH1C 4:TMR14_CH1 "
           "5:TMR17_CH1 6:EVENTOUT",
    "PA8": "0:CRM_CLKOUT 1:USART1_CK 2:TMR1_CH1 3:EVENTOUT",
    "PA9": "0:TMR15_BRK 1:USART1_TX 2:TMR1_CH2 4:I2C1_SCL 5:CRM_CLKOUT",
    "PA10": "0:TMR17_BRK 1:USART1_RX 2:TMR1_CH3 4:I2C1_SDA",
    "PA11": "0:EVENTOUT 1:USART1_CTS 2:TMR1_CH4 5:I2C2_SCL 7:CMP1_OUT",
    "PA12": "0:EVENTOUT 1:USART1_RTS 2:TMR1_EXT 5:I2C2_SDA",
    "PA13": "0:DEBUG_JTMS_SWDIO 1:IR_OUT",
    "PA14": "0:DEBUG_JTCK_SWCLK 1:USART2_TX",
    "PA15": "0:SPI1_CS 0:I2S1_WS 1:USART2_RX 3:EVENTOUT",
    "PB0": "0:EVENTOUT 1:TMR3_CH3 2:TMR1_CH2C",
    "PB1": "0:TMR14_CH1 1:TMR3_CH4 2:TMR1_CH3C",
    "PB2": "1:TMR3_EXT",
    "PB3": "0:SPI1_SCK 0:I2S1_CK 1:EVENTOUT 2:TMR3_EXT",
    "PB4": "0:SPI1_MISO 0:I2S1_MCK 1:TMR3_CH1 2:EVENTOUT 5:TMR17_BRK",
    "PB5": "0:SPI1_MOSI 0:I2S1_SD 1:TMR3_CH2 2:TMR16_BRK 3:I2C1_SMBA",
    "PB6": "0:USART1_TX 1:I2C1_SCL 2:TMR16_CH1C",
    "PB7": "0:USART1_RX 1:I2C1_SDA 2:TMR17_CH1C",
    "PB8": "1:I2C1_SCL 2:TMR16_CH1",
    "PB9": "0:IR_OUT 1:I2C1_SDA 2:TMR17_CH1 3:EVENTOUT",
    "PB10": "1:I2C2_SCL 5:SPI2_SCK 5:I2S2_CK",
    "PB11": "0:EVENTOUT 1:I2C2_SDA",
    "PB12": "0:SPI2_CS 0:I2S2_WS 1:EVENTOUT 2:TMR1_BRK 5:I2C2_SMBA",
    "PB13": "0:SPI2_SCK 0:I2S2_CK 2:TMR1_CH1C",
    "PB14": "0:SPI2_MISO 0:I2S2_MCK 1:TMR15_CH1 2:TMR1_CH2C",
    "PB15": "0:SPI2_MOSI 0:I2S2_SD 1:TMR15_CH2 2:TMR1_CH3C 3:TMR15_CH1C",
    "PC13": "",
    "PC14": "",
    "PC15": "",
    "PF0": "1:I2C1_SDA",
    "PF1": "1:I2C1_SCL",
    "PF6": "0:I2C2_SCL",
    "PF7": "0:I2C2_SDA",
}

DIRECT = {
    "PA0": "ADC1_IN0 CMP1_INM6 PWC_WKUP1",
    "PA1": "ADC1_IN1 CMP1_INP0",
    "PA2": "ADC1_IN2 CMP1_INM7 PWC_WKUP4",
    "PA3": "ADC1_IN3 CMP1_INP1",
    "PA4": "ADC1_IN4 CMP1_INM4",
    "PA5": "ADC1_IN5 CMP1_INM5",
    "PA6": "ADC1_IN6",
    "PA7": "ADC1_IN7",
    "PB0": "ADC1_IN8",
    "PB1": "ADC1_IN9",
    "PB5": "PWC_WKUP6",
    "PB15": "ERTC_REFIN PWC_WKUP7",
    "PC13": "ERTC_TAMP1 ERTC_OUT PWC_WKUP2",
    "PC14": "CRM_LEXT_IN",
    "PC15": "CRM_LEXT_OUT",
    "PF0": "CRM_HEXT_IN",
    "PF1": "CRM_HEXT_OUT",
}

# I/O mode word of a signal where it stands on a pin; modes may override it
# (a timer channel used as input capture, an SPI slave clock, ...).
def iomode_of(sig):
    if sig.startswith("CRM_HEXT") or sig.startswith("CRM_LEXT"):
        return "Oscillator"
    if sig.startswith("EXINT"):
        return "ExternalInterrupt"
    if sig.startswith("DEBUG_"):
        return "Debug"
    if sig.startswith("PWC_WKUP"):
        return "WakeupInput"
    if sig.startswith("ADC1_IN") or sig.startswith("CMP1_IN"):
        return "Analog"
    if sig.startswith("I2C"):
        return "MuxOutputOpenDrain"
    tail = sig.split("_")[-1]
    if tail in ("RX", "CTS", "MISO", "EXT", "BRK", "REFIN", "TAMP1"):
        return "MuxInput"
    return "MuxOutputPushPull"


# Package layouts: pin number -> pin name. Fixed pins carry a kind.
FIXED = {
    "VDD": ("Power", "Digital supply voltage", "数字电源"),
    "VSS": ("Power", "Digital ground", "数字地"),
    "VDDA": ("Power", "Analog supply voltage", "模拟电源"),
    "VSSA": ("Power", "Analog ground", "模拟地"),
    "VBAT": ("Power", "Battery supply of the ERTC domain",
             "ERTC 电池域供电"),
    "NRST": ("Reset", "External reset input, active low", "外部复位输入，低电平有效"),
    "BOOT0": ("Boot", "Boot mode selection", "启动模式选择"),
}

LQFP48 = ("VBAT PC13 PC14 PC15 PF0 PF1 NRST VSSA VDDA PA0 PA1 PA2 PA3 PA4 "
          "PA5 PA6 PA7 PB0 PB1 PB2 PB10 PB11 VSS VDD PB12 PB13 PB14 PB15 "
          "PA8 PA9 PA10 PA11 PA12 PA13 PF6 PF7 PA14 PA15 PB3 PB4 PB5 PB6 "
          "PB7 BOOT0 PB8 PB9 VSS VDD").split()

PIN32 = ("VDD PC14 PC15 PF0 PF1 NRST VDDA PA0 PA1 PA2 PA3 PA4 PA5 PA6 PA7 "
         "PB0 PB1 VSS PA8 PA9 PA10 PA11 PA12 PA13 PA14 PA15 PB3 PB4 PB5 PB6 "
         "PB7 BOOT0").split()

# Pins 17 and 18 of the TSSOP20 carry PA9/PA10, or PA11/PA12 when the
# SCFG remap is on.
TSSOP20 = ("BOOT0 PF0 PF1 NRST VDDA PA0 PA1 PA2 PA3 PA4 PA5 PA6 PA7 PB1 VSS "
           "VDD PA9/PA11 PA10/PA12 PA13 PA14").split()

PACKAGES = {
    # name: (Package word, PinNums, xPinNum, yPinNum, layout)
    "TSSOP20": ("TSSOP", 20, 0, 10, TSSOP20),
    "QFN32": ("QFN", 32, 8, 8, PIN32),
    "LQFP32": ("LQFP", 32, 8, 8, PIN32),
    "LQFP48": ("LQFP", 48, 12, 12, LQFP48),
}

# name, package, flash KB, SRAM KB
DEVICES = [
    ("MQ48T110F6P", "TSSOP20", 32, 8),
    ("MQ48T110F8P", "TSSOP20", 64, 8),
    ("MQ48T110K6U", "QFN32", 32, 8),
    ("MQ48T110K8U", "QFN32", 64, 8),
    ("MQ48T110K8T", "LQFP32", 64, 8),
    ("MQ48T110C8T", "LQFP48", 64, 8),
    ("MQ48T110CBT", "LQFP48", 128, 16),
]

# Product identifier: 0x4D, series index, package index, flash code, SRAM.
SERIES_INDEX = 6            # place of MQ48T110 in the catalogue's series
PACKAGE_INDEX = {"TSSOP20": 0, "QFN32": 1, "QFN48": 2, "LQFP32": 3,
                 "LQFP48": 4}
FLASH_CODE = {16: 0, 32: 2, 64: 4, 128: 7}


def pid_of(package, flash, sram):
    v = (0x4D << 24 | SERIES_INDEX << 16 | PACKAGE_INDEX[package] << 11
         | FLASH_CODE[flash] << 6 | min(sram // 8, 63))
    return "0x%08X" % v

# "TCa": 3.3 V pin with an analog function; "TC": 3.3 V pin (the HEXT,
# LEXT and ERTC pins); "FT": 5 V tolerant.
def structure_of(pin):
    if any(d.startswith(("ADC1_IN", "CMP1_IN"))
           for d in DIRECT.get(pin, "").split()):
        return "TCa"
    if pin in ("PC13", "PC14", "PC15", "PF0", "PF1"):
        return "TC"
    return "FT"


def mux_of(pin):
    """[(signal, mux number)] in the order of MUX."""
    out = []
    for tok in MUX[pin].split():
        n, sig = tok.split(":")
        out.append((sig, int(n)))
    return out


def functions_of(pin):
    """All functions of an I/O pin: [(Func, IOMode)] in file order."""
    f = [("GPIO_Input", "GPIO_Input"), ("GPIO_Output", "GPIO_Output"),
         ("GPIO_Analog", "GPIO_Analog")]
    mux = mux_of(pin)
    if any(s == "EVENTOUT" for s, _ in mux):
        f.append(("EVENTOUT", "EVENTOUT"))
    for sig, _ in mux:
        if sig != "EVENTOUT":
            f.append((sig, iomode_of(sig)))
    for sig in DIRECT.get(pin, "").split():
        f.append((sig, iomode_of(sig)))
    f.append(("EXINT%d" % pin_number(pin), "ExternalInterrupt"))
    return f


def port_of(pin):
    return pin[1]


def pin_number(pin):
    return int(pin[2:])


def all_io_pins():
    """Every I/O pin name of the family, sorted by port and number."""
    return sorted(MUX, key=lambda p: (port_of(p), pin_number(p)))


def all_signals():
    """Every signal name that stands on some pin of some package."""
    sigs = set()
    for pin in MUX:
        for f, _ in functions_of(pin):
            sigs.add(f)
    return sigs
