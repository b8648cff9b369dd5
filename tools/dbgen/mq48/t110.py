"""Pins, packages and devices of the MQ48T110 family.

MUX lists the multiplexed functions of every I/O pin as "mux:SIGNAL";
DIRECT lists the functions that need no multiplexer (analog inputs,
oscillator, wake-up and tamper pins). EXINTn lines and the three GPIO
words are added to every I/O pin by the generator.
"""
import sys

from family import Family

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


# ------------------------------------------------------------ peripherals --

# Tree order of the peripherals: group, then rows (instance, file stem,
# about EN, about CH). The GPIO, NVIC and DMA rows also name the files of
# those panels.
PERIPHERALS = [
    ("System Core", [
        ("CRM", "CRM", "Clock and reset management",
         "时钟和复位管理"),
        ("DEBUG", "DEBUG", "Serial wire debug port", "串行线调试端口"),
        ("DMA", "DMA", "DMA controller, 5 channels",
         "DMA 控制器，5 个通道"),
        ("EXINT", "EXINT", "External interrupt and event lines",
         "外部中断和事件线"),
        ("GPIO", "GPIO", "General purpose I/O ports A, B, C, F",
         "通用 I/O 端口 A、B、C、F"),
        ("NVIC", "NVIC", "Nested vectored interrupt controller",
         "嵌套向量中断控制器"),
        ("PWC", "PWC", "Power control: voltage monitor and wake-up pins",
         "电源控制：电压监测和唤醒引脚"),
        ("SCFG", "SCFG", "System configuration: pin remap, DMA remap",
         "系统配置：引脚重映射、DMA 重映射"),
        ("WDT", "WDT", "Watchdog timer on the LICK clock",
         "看门狗定时器（LICK 时钟）"),
        ("WWDT", "WWDT", "Window watchdog timer", "窗口看门狗定时器"),
    ]),
    ("Analog", [
        ("ADC1", "ADC1", "12-bit ADC, 10 external channels",
         "12 位 ADC，10 个外部通道"),
        ("CMP1", "CMP", "Analog comparator", "模拟比较器"),
    ]),
    ("Timers", [
        ("ERTC", "ERTC", "Enhanced real-time clock with calendar and alarms",
         "增强型实时时钟，带日历和闹钟"),
        ("TMR1", "TMR1", "Advanced-control timer, 16 bit, 4 channels",
         "高级控制定时器，16 位，4 通道"),
        ("TMR3", "TMR3", "General-purpose timer, 16 bit, 4 channels",
         "通用定时器，16 位，4 通道"),
        ("TMR6", "TMR6_7", "Basic timer, 16 bit", "基本定时器，16 位"),
        ("TMR14", "TMR14", "General-purpose timer, 16 bit, 1 channel",
         "通用定时器，16 位，1 通道"),
        ("TMR15", "TMR15", "General-purpose timer, 16 bit, 2 channels",
         "通用定时器，16 位，2 通道"),
        ("TMR16", "TMR16", "General-purpose timer, 16 bit, 1 channel",
         "通用定时器，16 位，1 通道"),
        ("TMR17", "TMR17", "General-purpose timer, 16 bit, 1 channel",
         "通用定时器，16 位，1 通道"),
        ("IRTMR", "IRTMR", "Infrared signal from TMR16 and TMR17",
         "由 TMR16 和 TMR17 产生的红外信号"),
    ]),
    ("Connectivity", [
        ("I2C1", "I2C", "I2C bus interface with SMBus",
         "I2C 总线接口，支持 SMBus"),
        ("I2C2", "I2C", "I2C bus interface", "I2C 总线接口"),
        ("SPI1", "SPI", "Serial peripheral interface",
         "串行外设接口"),
        ("SPI2", "SPI", "Serial peripheral interface",
         "串行外设接口"),
        ("USART1", "USART",
         "Universal synchronous/asynchronous receiver transmitter",
         "通用同步/异步收发器"),
        ("USART2", "USART",
         "Universal synchronous/asynchronous receiver transmitter",
         "通用同步/异步收发器"),
    ]),
    ("Multimedia", [
        ("I2S1", "I2S", "I2S audio interface (shares SPI1)",
         "I2S 音频接口（与 SPI1 共用）"),
        ("I2S2", "I2S", "I2S audio interface (shares SPI2)",
         "I2S 音频接口（与 SPI2 共用）"),
    ]),
    ("Computing", [
        ("CRC", "CRC", "CRC calculation unit", "CRC 计算单元"),
    ]),
]



def remarks(pin, remap_from=None):
    st = structure_of(pin)
    en, ch = {
        "FT": ("I/O, 5 V tolerant", "I/O，5V 容忍"),
        "TCa": ("I/O, 3.3 V, analog capable", "I/O，3.3V，可作模拟功能"),
        "TC": ("I/O, 3.3 V", "I/O，3.3V"),
    }[st]
    if pin in ("PF0", "PF1"):
        en += "; HEXT crystal pin"
        ch += "；HEXT 晶振引脚"
    if pin in ("PC13", "PC14", "PC15"):
        en += "; battery domain, low drive (3 mA)"
        ch += "；电池域，弱驱动（3 mA）"
    if pin in ("PC14", "PC15"):
        en += "; LEXT crystal pin"
        ch += "；LEXT 晶振引脚"
    if remap_from:
        en += "; takes the place of %s when PA11 PA12 remap is on" % remap_from
        ch += "；PA11 PA12 重映射开启时取代 %s" % remap_from
    return en, ch




# ------------------------------------------------------------ interrupts --

# IRQ stem (name + "_IRQn", handler + "_IRQHandler"), en, ch, conditions
PERIPH_IRQS = [
    ("WWDT", "Window watchdog interrupt", "窗口看门狗中断", "WWDT"),
    ("PVM", "PVM interrupt through EXINT line 16", "PVM 中断（EXINT 线 16）",
     "PWC"),
    ("ERTC", "ERTC wake-up, tamper and time stamp interrupts through EXINT "
     "lines 19 and 20", "ERTC 唤醒、入侵和时间戳中断（EXINT 线 19、20）",
     "ERTC"),
    ("FLASH", "Flash global interrupt", "闪存全局中断", ""),
    ("CRM", "CRM global interrupt", "CRM 全局中断", "CRM"),
    ("EXINT1_0", "EXINT line 0 and 1 interrupts", "EXINT 线 0、1 中断",
     "EXINT"),
    ("EXINT3_2", "EXINT line 2 and 3 interrupts", "EXINT 线 2、3 中断",
     "EXINT"),
    ("EXINT15_4", "EXINT line 4 to 15 interrupts", "EXINT 线 4 至 15 中断",
     "EXINT"),
    ("DMA1_Channel1", "DMA1 channel 1 global interrupt",
     "DMA1 通道 1 全局中断", "DMA"),
    ("DMA1_Channel3_2", "DMA1 channel 2 and 3 global interrupts",
     "DMA1 通道 2、3 全局中断", "DMA"),
    ("DMA1_Channel5_4", "DMA1 channel 4 and 5 global interrupts",
     "DMA1 通道 4、5 全局中断", "DMA"),
    ("ADC1_CMP", "ADC1 and comparator interrupts (comparator through EXINT "
     "line 21)", "ADC1 和比较器中断（比较器经 EXINT 线 21）", "ADC1;CMP1"),
    ("TMR1_BRK_OVF_TRG_HALL", "TMR1 brake, overflow, trigger and hall "
     "interrupts", "TMR1 刹车、溢出、触发和霍尔中断", "TMR1"),
    ("TMR1_CH", "TMR1 channel interrupt", "TMR1 通道中断", "TMR1"),
    ("TMR3_GLOBAL", "TMR3 global interrupt", "TMR3 全局中断", "TMR3"),
    ("TMR6_GLOBAL", "TMR6 global interrupt", "TMR6 全局中断", "TMR6"),
    ("TMR14_GLOBAL", "TMR14 global interrupt", "TMR14 全局中断", "TMR14"),
    ("TMR15_GLOBAL", "TMR15 global interrupt", "TMR15 全局中断", "TMR15"),
    ("TMR16_GLOBAL", "TMR16 global interrupt", "TMR16 全局中断",
     "TMR16;IRTMR"),
    ("TMR17_GLOBAL", "TMR17 global interrupt", "TMR17 全局中断",
     "TMR17;IRTMR"),
    ("I2C1_EVT", "I2C1 event interrupt", "I2C1 事件中断", "I2C1"),
    ("I2C1_ERR", "I2C1 error interrupt", "I2C1 错误中断", "I2C1"),
    ("I2C2_EVT", "I2C2 event interrupt", "I2C2 事件中断", "I2C2"),
    ("I2C2_ERR", "I2C2 error interrupt", "I2C2 错误中断", "I2C2"),
    ("SPI1", "SPI1 and I2S1 global interrupt", "SPI1 和 I2S1 全局中断",
     "SPI1;I2S1"),
    ("SPI2", "SPI2 and I2S2 global interrupt", "SPI2 和 I2S2 全局中断",
     "SPI2;I2S2"),
    ("USART1", "USART1 global interrupt", "USART1 全局中断", "USART1"),
    ("USART2", "USART2 global interrupt", "USART2 全局中断", "USART2"),
    ("ERTCAlarm", "ERTC alarm interrupt through EXINT line 17",
     "ERTC 闹钟中断（EXINT 线 17）", "ERTC"),
]


# ------------------------------------------------------------------- DMA --

P2M, M2P, M2M = ("DMA_DIR_PERIPHERAL_TO_MEMORY", "DMA_DIR_MEMORY_TO_PERIPHERAL",
                 "DMA_DIR_MEMORY_TO_MEMORY")
BYTE, HALF, WORD = "BYTE", "HALFWORD", "WORD"

# request, peripheral, register block, channels, direction, width, circular
DMA_REQUESTS = [
    ("ADC1", "ADC1", "ADC1", [1, 2], P2M, HALF, True),
    ("USART1_TX", "USART1", "USART1", [2, 4], M2P, BYTE, False),
    ("USART1_RX", "USART1", "USART1", [3, 5], P2M, BYTE, False),
    ("USART2_TX", "USART2", "USART2", [4], M2P, BYTE, False),
    ("USART2_RX", "USART2", "USART2", [5], P2M, BYTE, False),
    ("SPI1_RX", "SPI1", "SPI1", [2], P2M, BYTE, False),
    ("SPI1_TX", "SPI1", "SPI1", [3], M2P, BYTE, False),
    ("SPI2_RX", "SPI2", "SPI2", [4], P2M, BYTE, False),
    ("SPI2_TX", "SPI2", "SPI2", [5], M2P, BYTE, False),
    ("I2S1_RX", "I2S1", "I2S1", [2], P2M, HALF, True),
    ("I2S1_TX", "I2S1", "I2S1", [3], M2P, HALF, True),
    ("I2S2_RX", "I2S2", "I2S2", [4], P2M, HALF, True),
    ("I2S2_TX", "I2S2", "I2S2", [5], M2P, HALF, True),
    ("I2C1_TX", "I2C1", "I2C1", [2], M2P, BYTE, False),
    ("I2C1_RX", "I2C1", "I2C1", [3], P2M, BYTE, False),
    ("I2C2_TX", "I2C2", "I2C2", [4], M2P, BYTE, False),
    ("I2C2_RX", "I2C2", "I2C2", [5], P2M, BYTE, False),
    ("TMR1_CH1", "TMR1", "TMR1", [2], M2P, HALF, False),
    ("TMR1_CH2", "TMR1", "TMR1", [3], M2P, HALF, False),
    ("TMR1_CH3", "TMR1", "TMR1", [5], M2P, HALF, False),
    ("TMR1_CH4", "TMR1", "TMR1", [4], M2P, HALF, False),
    ("TMR1_TRIG", "TMR1", "TMR1", [4], M2P, HALF, False),
    ("TMR1_HALL", "TMR1", "TMR1", [4], M2P, HALF, False),
    ("TMR1_OVERFLOW", "TMR1", "TMR1", [5], M2P, HALF, False),
    ("TMR3_CH1", "TMR3", "TMR3", [4], M2P, HALF, False),
    ("TMR3_CH3", "TMR3", "TMR3", [2], M2P, HALF, False),
    ("TMR3_CH4", "TMR3", "TMR3", [3], M2P, HALF, False),
    ("TMR3_TRIG", "TMR3", "TMR3", [4], M2P, HALF, False),
    ("TMR3_OVERFLOW", "TMR3", "TMR3", [3], M2P, HALF, False),
    ("TMR6_OVERFLOW", "TMR6", "TMR6", [3], M2P, HALF, False),
    ("TMR15_CH1", "TMR15", "TMR15", [5], M2P, HALF, False),
    ("TMR15_TRIG", "TMR15", "TMR15", [5], M2P, HALF, False),
    ("TMR15_HALL", "TMR15", "TMR15", [5], M2P, HALF, False),
    ("TMR15_OVERFLOW", "TMR15", "TMR15", [5], M2P, HALF, False),
    ("TMR16_CH1", "TMR16", "TMR16", [3, 4], M2P, HALF, False),
    ("TMR16_OVERFLOW", "TMR16", "TMR16", [3, 4], M2P, HALF, False),
    ("TMR17_CH1", "TMR17", "TMR17", [1, 2], M2P, HALF, False),
    ("TMR17_OVERFLOW", "TMR17", "TMR17", [1, 2], M2P, HALF, False),
]

DMA_CHANNELS = ["DMA1_Channel%d" % n for n in range(1, 6)]


# ---------------------------------------------------------------- timers --

# instance: channels, complementary channels, EXT pin, break, repetition
# counter, subordinate mode, encoder/hall, two-way counting, PWM input,
# IR role, input remap
TIMERS = {
    "TMR1": dict(ch=4, comp=(1, 2, 3), ext=True, brk=True, rep=True,
                 sub=True, enc=True, twoway=True, pwmin=True),
    "TMR3": dict(ch=4, ext=True, sub=True, enc=True, twoway=True, pwmin=True),
    "TMR6_7": dict(ch=0, basic=True),
    "TMR14": dict(ch=1, remap=True),
    "TMR15": dict(ch=2, comp=(1,), brk=True, rep=True, sub=True, pwmin=True),
    "TMR16": dict(ch=1, comp=(1,), brk=True, rep=True, ir="carrier"),
    "TMR17": dict(ch=1, comp=(1,), brk=True, rep=True, ir="envelope"),
}

# The battery domain pins (PC13 to PC15) exist on the 48-pin package only.
NO_VBAT_PINS = "TSSOP20 QFN32 LQFP32"
WKUP = (1, 2, 4, 6, 7)


# ------------------------------------------------------------------ ADC1 --

X = "$IpInstance_"
ADC_CHANNELS = list(range(10))
ADC_ORD_TRIGGERS = [("ADC12_ORDINARY_TRIG_SOFTWARE", "Software trigger", "软件触发"),
           ("ADC12_ORDINARY_TRIG_TMR1CH1", "TMR1 channel 1", "TMR1 通道 1"),
           ("ADC12_ORDINARY_TRIG_TMR1CH2", "TMR1 channel 2", "TMR1 通道 2"),
           ("ADC12_ORDINARY_TRIG_TMR1CH3", "TMR1 channel 3", "TMR1 通道 3"),
           ("ADC12_ORDINARY_TRIG_TMR3TRGOUT", "TMR3 trigger out",
            "TMR3 触发输出"),
           ("ADC12_ORDINARY_TRIG_TMR15TRGOUT", "TMR15 trigger out",
            "TMR15 触发输出"),
           ("ADC12_ORDINARY_TRIG_EXINT11", "EXINT line 11", "EXINT 线 11",
            None, X + "EXINT11")]
ADC_PRE_TRIGGERS = [("ADC12_PREEMPT_TRIG_SOFTWARE", "Software trigger", "软件触发"),
           ("ADC12_PREEMPT_TRIG_TMR1TRGOUT", "TMR1 trigger out",
            "TMR1 触发输出"),
           ("ADC12_PREEMPT_TRIG_TMR1CH4", "TMR1 channel 4", "TMR1 通道 4"),
           ("ADC12_PREEMPT_TRIG_TMR3CH4", "TMR3 channel 4", "TMR3 通道 4"),
           ("ADC12_PREEMPT_TRIG_TMR15CH1", "TMR15 channel 1", "TMR15 通道 1"),
           ("ADC12_PREEMPT_TRIG_EXINT15", "EXINT line 15", "EXINT 线 15",
            None, X + "EXINT15")]

FAMILY = Family(
    "MQ48T110", sys.modules[__name__], PERIPHERALS,
    PERIPH_IRQS=PERIPH_IRQS, DMA_REQUESTS=DMA_REQUESTS, DMA_CHANNELS=DMA_CHANNELS,
    TIMERS=TIMERS, NO_VBAT_PINS=NO_VBAT_PINS, WKUP=WKUP,
    ADC_CHANNELS=ADC_CHANNELS, ADC_ORD_TRIGGERS=ADC_ORD_TRIGGERS,
    ADC_PRE_TRIGGERS=ADC_PRE_TRIGGERS,
    routes=__import__("families").routes("MQ48T110"))
