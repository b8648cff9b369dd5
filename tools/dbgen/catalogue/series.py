"""Series facts and the device rows of the catalogue.

Each series lists its devices as compact codes: pin-count letter, flash letter and package
letter ("VGT" = 100 pins, 1 MB, LQFP).  The SRAM size of a row follows the flash letter through
the series' `sram` table; `maxsram` names the largest SRAM a row can be configured to, where the
series allows it.
"""

PIN_LETTERS = {"F": 20, "K": 32, "C": 48, "R": 64, "V": 100, "Z": 144}
FLASH_LETTERS = {"4": 16, "6": 32, "8": 64, "B": 128, "C": 256, "E": 512, "G": 1024,
                 "M": 4096}
PACKAGE_LETTERS = {"P": "TSSOP", "U": "QFN", "T": "LQFP"}

# Order of the package list section of the catalogue.
PACKAGES = ["TSSOP20", "QFN32", "QFN48", "LQFP32", "LQFP48", "LQFP64", "LQFP100", "LQFP144"]

# Families whose pins have no per-pin multiplexer: peripherals move between pin sets by remap
# groups instead, and the external crystal shares PD0/PD1.
REMAP_FAMILIES = {"MQ48T230", "MQ48T250", "MQ48T260", "MQ48V250", "MQ48T310", "MQ48T320",
                  "MQ48W320"}

SERIES = [
    dict(name="MQ48T510", core="Cortex-M4F", mhz=288, supply="2.6 V - 3.6 V",
         temp="-40 ~ 105", sram={"E": 384, "G": 384, "M": 384}, maxsram=512,
         devices="RET RGT RMT VET VGT VMT ZGT ZMT",
         periph_en=["2 x USB OTG full speed", "2 x CAN", "4 x SPI/I2S", "3 x I2C",
                    "8 x USART/UART", "2 x QSPI", "2 x SDIO", "XMC with SDRAM", "DVP",
                    "3 x 12-bit ADC", "2 x 12-bit DAC", "EDMA and 2 x DMA",
                    "17 timers", "two clock outputs"],
         periph_ch=["2 个 USB OTG 全速", "2 个 CAN", "4 个 SPI/I2S", "3 个 I2C",
                    "8 个 USART/UART", "2 个 QSPI", "2 个 SDIO", "支持 SDRAM 的 XMC", "DVP",
                    "3 个 12 位 ADC", "2 个 12 位 DAC", "EDMA 及 2 个 DMA",
                    "17 个定时器", "两路时钟输出"],
         note_en="Above 240 MHz the supply must stay over 3.0 V and the ambient temperature "
                 "within -40 ~ 85 degrees.",
         note_ch="系统时钟高于 240 MHz 时，VDD 须高于 3.0 V，环境温度须在 -40 ~ 85 度之内。"),
    dict(name="MQ48T520", core="Cortex-M4F", mhz=288, supply="2.6 V - 3.6 V",
         temp="-40 ~ 105", sram={"G": 384, "M": 384}, maxsram=512,
         devices="VGT VMT ZGT ZMT",
         periph_en=["Ethernet MAC", "2 x USB OTG full speed", "2 x CAN", "4 x SPI/I2S",
                    "3 x I2C", "8 x USART/UART", "2 x QSPI", "2 x SDIO", "XMC with SDRAM",
                    "DVP", "3 x 12-bit ADC", "2 x 12-bit DAC", "EDMA and 2 x DMA",
                    "17 timers", "two clock outputs"],
         periph_ch=["以太网 MAC", "2 个 USB OTG 全速", "2 个 CAN", "4 个 SPI/I2S",
                    "3 个 I2C", "8 个 USART/UART", "2 个 QSPI", "2 个 SDIO",
                    "支持 SDRAM 的 XMC", "DVP", "3 个 12 位 ADC", "2 个 12 位 DAC",
                    "EDMA 及 2 个 DMA", "17 个定时器", "两路时钟输出"],
         note_en="Above 240 MHz the supply must stay over 3.0 V and the ambient temperature "
                 "within -40 ~ 85 degrees.",
         note_ch="系统时钟高于 240 MHz 时，VDD 须高于 3.0 V，环境温度须在 -40 ~ 85 度之内。"),
    dict(name="MQ48T250", core="Cortex-M4F", mhz=240, supply="2.6 V - 3.6 V",
         temp="-40 ~ 105", sram={"C": 96, "E": 96, "G": 96}, maxsram=224,
         devices="CCT RCT RET RGT VCT VET VGT ZET ZGT",
         periph_en=["USB full speed device", "2 x CAN", "4 x SPI/I2S", "3 x I2C",
                    "8 x USART/UART", "SPIM for external flash", "2 x SDIO", "XMC",
                    "3 x 12-bit ADC", "2 x 12-bit DAC", "2 x DMA", "14 timers"],
         periph_ch=["USB 全速设备", "2 个 CAN", "4 个 SPI/I2S", "3 个 I2C",
                    "8 个 USART/UART", "外部闪存接口 SPIM", "2 个 SDIO", "XMC",
                    "3 个 12 位 ADC", "2 个 12 位 DAC", "2 个 DMA", "14 个定时器"]),
    dict(name="MQ48V250", core="Cortex-M4F", mhz=200, supply="2.6 V - 3.6 V",
         temp="-40 ~ 105", sram={"C": 96, "E": 96}, maxsram=224,
         devices="RCT VCT VET ZET",
         periph_en=["Ethernet MAC", "USB full speed device", "2 x CAN", "4 x SPI/I2S",
                    "3 x I2C", "8 x USART/UART", "SPIM for external flash", "2 x SDIO", "XMC",
                    "3 x 12-bit ADC", "2 x 12-bit DAC", "2 x DMA", "14 timers"],
         periph_ch=["以太网 MAC", "USB 全速设备", "2 个 CAN", "4 个 SPI/I2S", "3 个 I2C",
                    "8 个 USART/UART", "外部闪存接口 SPIM", "2 个 SDIO", "XMC",
                    "3 个 12 位 ADC", "2 个 12 位 DAC", "2 个 DMA", "14 个定时器"]),
    dict(name="MQ48T260", core="Cortex-M4F", mhz=240, supply="2.6 V - 3.6 V",
         temp="-40 ~ 105", sram={"C": 96, "E": 96, "G": 96}, maxsram=224,
         devices="RCT RET VCT VET VGT ZET ZGT",
         periph_en=["Ethernet MAC", "USB full speed device", "2 x CAN", "4 x SPI/I2S",
                    "3 x I2C", "8 x USART/UART", "SPIM for external flash", "2 x SDIO", "XMC",
                    "3 x 12-bit ADC", "2 x 12-bit DAC", "2 x DMA", "14 timers"],
         periph_ch=["以太网 MAC", "USB 全速设备", "2 个 CAN", "4 个 SPI/I2S", "3 个 I2C",
                    "8 个 USART/UART", "外部闪存接口 SPIM", "2 个 SDIO", "XMC",
                    "3 个 12 位 ADC", "2 个 12 位 DAC", "2 个 DMA", "14 个定时器"]),
    dict(name="MQ48T110", core="Cortex-M4", mhz=120, supply="2.4 V - 3.6 V",
         temp="-40 ~ 105", sram={"6": 8, "8": 8, "B": 16}, maxsram=None,
         devices="F6P F8P K6U K8U K8T C8T CBT",
         periph_en=["2 x USART", "2 x SPI/I2S", "2 x I2C", "comparator", "12-bit ADC",
                    "5-channel DMA", "ERTC", "infrared timer", "8 timers"],
         periph_ch=["2 个 USART", "2 个 SPI/I2S", "2 个 I2C", "比较器", "12 位 ADC",
                    "5 通道 DMA", "ERTC", "红外定时器", "8 个定时器"]),
    dict(name="MQ48T120", core="Cortex-M4", mhz=96, supply="2.4 V - 3.6 V",
         temp="-40 ~ 105", sram={"8": 16, "B": 32}, maxsram=None,
         devices="F8P K8U K8T KBT C8T CBT CBU RBT",
         periph_en=["USB OTG full speed", "CAN", "3 x SPI/I2S", "2 x I2C", "4 x USART",
                    "12-bit ADC", "7-channel DMA", "ERTC", "infrared timer", "11 timers"],
         periph_ch=["USB OTG 全速", "CAN", "3 个 SPI/I2S", "2 个 I2C", "4 个 USART",
                    "12 位 ADC", "7 通道 DMA", "ERTC", "红外定时器", "11 个定时器"]),
    dict(name="MQ48T320", core="Cortex-M4", mhz=150, supply="2.4 V - 3.6 V",
         temp="-40 ~ 105", sram={"8": 16, "B": 32, "C": 48}, maxsram=None,
         devices="K8U C8T CBT CBU RBT RCT",
         periph_en=["USB OTG full speed", "CAN", "2 x SPI/I2S", "2 x I2C", "5 x USART/UART",
                    "SDIO", "2 x comparator", "12-bit ADC", "2 x DMA", "ERTC", "9 timers"],
         periph_ch=["USB OTG 全速", "CAN", "2 个 SPI/I2S", "2 个 I2C", "5 个 USART/UART",
                    "SDIO", "2 个比较器", "12 位 ADC", "2 个 DMA", "ERTC", "9 个定时器"]),
    dict(name="MQ48W320", core="Cortex-M4", mhz=150, supply="2.4 V - 3.6 V",
         temp="-40 ~ 105", sram={"B": 32, "C": 48}, maxsram=None,
         devices="CBU CCU",
         periph_en=["USB OTG full speed", "CAN", "SPI", "I2C", "3 x USART/UART",
                    "2 x comparator", "12-bit ADC", "DMA", "ERTC", "9 timers"],
         periph_ch=["USB OTG 全速", "CAN", "SPI", "I2C", "3 个 USART/UART",
                    "2 个比较器", "12 位 ADC", "DMA", "ERTC", "9 个定时器"],
         note_en="Compact variant of the MQ48T320 for module designs, in QFN48 only.",
         note_ch="MQ48T320 的紧凑型号，面向模块设计，仅有 QFN48 封装。"),
    dict(name="MQ48T310", core="Cortex-M4", mhz=200, supply="2.6 V - 3.6 V",
         temp="-40 ~ 105", sram={"8": 32, "B": 48, "C": 96}, maxsram=None,
         devices="C8T CBT CCT RBT RCT VBT VCT",
         periph_en=["USB full speed device", "2 x CAN", "2 x SPI/I2S", "2 x I2C",
                    "5 x USART/UART", "SPIM for external flash", "SDIO", "2 x 12-bit ADC",
                    "2 x DMA", "RTC", "9 timers"],
         periph_ch=["USB 全速设备", "2 个 CAN", "2 个 SPI/I2S", "2 个 I2C",
                    "5 个 USART/UART", "外部闪存接口 SPIM", "SDIO", "2 个 12 位 ADC",
                    "2 个 DMA", "RTC", "9 个定时器"]),
    dict(name="MQ48T230", core="Cortex-M4", mhz=200, supply="2.6 V - 3.6 V",
         temp="-40 ~ 85", sram={"B": 48, "C": 96, "E": 96}, maxsram=None,
         devices="CBT RCT RET VCT VET",
         periph_en=["USB full speed device", "CAN", "3 x SPI/I2S", "2 x I2C",
                    "5 x USART/UART", "SDIO", "2 x 12-bit ADC", "12-bit DAC", "2 x DMA", "RTC",
                    "10 timers"],
         periph_ch=["USB 全速设备", "CAN", "3 个 SPI/I2S", "2 个 I2C", "5 个 USART/UART",
                    "SDIO", "2 个 12 位 ADC", "12 位 DAC", "2 个 DMA", "RTC", "10 个定时器"],
         note_en="The clock tree of this series is shown as a picture only.",
         note_ch="本系列的时钟树仅以图片显示。"),
    dict(name="MQ48T050", core="Cortex-M0+", mhz=96, supply="2.0 V - 5.5 V",
         temp="-40 ~ 105", sram={"4": 4, "6": 8, "8": 8}, maxsram=None,
         devices="F4P F6P K6U K8T C8T",
         periph_en=["2 x USART", "SPI", "I2C", "12-bit ADC", "comparator", "5-channel DMA",
                    "ERTC", "6 timers"],
         periph_ch=["2 个 USART", "SPI", "I2C", "12 位 ADC", "比较器", "5 通道 DMA",
                    "ERTC", "6 个定时器"],
         note_en="5 V supply capable; the clock tree of this series is shown as a picture only.",
         note_ch="支持 5 V 供电；本系列的时钟树仅以图片显示。"),
    dict(name="MQ48T130", core="Cortex-M4", mhz=150, supply="2.4 V - 3.6 V",
         temp="-40 ~ 105", sram={"C": 64, "E": 96, "G": 96}, maxsram=None,
         devices="CCT CCU RCT RET VCT VET VGT",
         periph_en=["USB OTG full speed", "2 x CAN", "3 x SPI/I2S", "3 x I2C",
                    "8 x USART", "XMC", "12-bit ADC", "12-bit DAC", "2 x DMA with DMAMUX",
                    "ERTC", "infrared timer", "14 timers"],
         periph_ch=["USB OTG 全速", "2 个 CAN", "3 个 SPI/I2S", "3 个 I2C",
                    "8 个 USART", "XMC", "12 位 ADC", "12 位 DAC", "带 DMAMUX 的 2 个 DMA",
                    "ERTC", "红外定时器", "14 个定时器"]),
    dict(name="MQ48V130", core="Cortex-M4", mhz=150, supply="2.4 V - 3.6 V",
         temp="-40 ~ 105", sram={"8": 32, "B": 48, "C": 64}, maxsram=None,
         devices="C8T CBT RBT RCT",
         periph_en=["USB OTG full speed", "2 x CAN", "3 x SPI/I2S", "3 x I2C",
                    "8 x USART", "12-bit ADC", "12-bit DAC", "2 x DMA with DMAMUX",
                    "ERTC", "infrared timer", "14 timers"],
         periph_ch=["USB OTG 全速", "2 个 CAN", "3 个 SPI/I2S", "3 个 I2C",
                    "8 个 USART", "12 位 ADC", "12 位 DAC", "带 DMAMUX 的 2 个 DMA",
                    "ERTC", "红外定时器", "14 个定时器"],
         note_en="Value line of the MQ48T130, without the external memory controller.",
         note_ch="MQ48T130 的经济型号，不含外部存储控制器。"),
    dict(name="MQ48T220", core="Cortex-M4F", mhz=216, supply="2.6 V - 3.6 V",
         temp="-40 ~ 105", sram={"C": 128, "E": 192}, maxsram=None,
         devices="KCU CCT CCU RCT RET VCT VET",
         periph_en=["USB OTG high speed with PHY", "USB OTG full speed", "CAN",
                    "3 x SPI/I2S", "I2S full duplex (I2SF5)", "3 x I2C", "8 x USART/UART",
                    "QSPI", "12-bit ADC", "2 x DMA with DMAMUX", "ERTC", "infrared timer",
                    "13 timers"],
         periph_ch=["带 PHY 的 USB OTG 高速", "USB OTG 全速", "CAN", "3 个 SPI/I2S",
                    "全双工 I2S (I2SF5)", "3 个 I2C", "8 个 USART/UART", "QSPI", "12 位 ADC",
                    "带 DMAMUX 的 2 个 DMA", "ERTC", "红外定时器", "13 个定时器"]),
    dict(name="MQ48T210", core="Cortex-M4F", mhz=216, supply="2.6 V - 3.6 V",
         temp="-40 ~ 105", sram={"B": 64, "C": 96, "E": 96}, maxsram=None,
         devices="KBU CBT CCT RCT RET",
         periph_en=["USB OTG full speed", "CAN", "3 x SPI/I2S", "I2S full duplex (I2SF5)",
                    "3 x I2C", "8 x USART/UART", "QSPI", "12-bit ADC", "2 x DMA with DMAMUX",
                    "ERTC", "infrared timer", "13 timers"],
         periph_ch=["USB OTG 全速", "CAN", "3 个 SPI/I2S", "全双工 I2S (I2SF5)", "3 个 I2C",
                    "8 个 USART/UART", "QSPI", "12 位 ADC", "带 DMAMUX 的 2 个 DMA", "ERTC",
                    "红外定时器", "13 个定时器"]),
]


def kb(n):
    return "%d KB" % n


def device_rows(series):
    """The catalogue rows of a series: dicts with name, package, flash, sram, maxsram, pins."""
    rows = []
    for code in series["devices"].split():
        pins = PIN_LETTERS[code[0]]
        flash = FLASH_LETTERS[code[1]]
        package = PACKAGE_LETTERS[code[2]] + str(pins)
        if package not in PACKAGES:
            raise ValueError("%s%s: unknown package %s" % (series["name"], code, package))
        sram = series["sram"][code[1]]
        rows.append(dict(name=series["name"] + code, package=package, pins=pins,
                         kind=PACKAGE_LETTERS[code[2]], flash=flash, sram=sram,
                         maxsram=series["maxsram"]))
    return rows


def series_by_name(name):
    for s in SERIES:
        if s["name"] == name:
            return s
    raise KeyError(name)
