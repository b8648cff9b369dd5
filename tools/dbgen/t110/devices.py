"""Device files: base info, pins with their functions, peripheral list."""
import xml.etree.ElementTree as ET

import pins

# Tree order of the peripherals: group, then rows (instance, file stem,
# about EN, about CH). The GPIO, NVIC and DMA rows also name the files of
# those panels.
VERSION = "V1.0"

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


def peripheral_rows():
    for group, rows in PERIPHERALS:
        for inst, stem, en, ch in rows:
            yield group, inst, stem, en, ch


def file_stems():
    """{stem: [instances]} of every peripheral file."""
    out = {}
    for _, inst, stem, _, _ in peripheral_rows():
        out.setdefault(stem, []).append(inst)
    return out


def _remarks(pin, remap_from=None):
    st = pins.structure_of(pin)
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


def _pin_el(parent, num, name, variant=None, remap_from=None):
    el = ET.SubElement(parent, "Pin")
    el.set("PinNum", str(num))
    el.set("PinName", name)
    if name in pins.FIXED:
        # attribute order of the shared conventions
        kind, en, ch = pins.FIXED[name]
        el.set("PinType", kind)
        el.set("GPIOStructure", "")
        el.set("PinFixed", "true")
        el.set("Remarks_EN", en)
        el.set("Remarks_CH", ch)
        return el
    el.set("PinType", "I/O")
    el.set("GPIOStructure", pins.structure_of(name))
    en, ch = _remarks(name, remap_from)
    el.set("Remarks_EN", en)
    el.set("Remarks_CH", ch)
    if variant:
        el.set("Variant", variant)
    for func, iomode in pins.functions_of(name):
        f = ET.SubElement(el, "Signal")
        f.set("Func", func)
        f.set("IOMode", iomode)
    return el


def device_root(name, package, flash, sram):
    word, count, xn, yn, layout = pins.PACKAGES[package]
    root = ET.Element("Device")
    base = ET.SubElement(root, "Section", term="MCUBaseInfo")
    info = ET.SubElement(base, "Info")
    for k, v in (("MCUName", name), ("Package", word), ("PinNums", count),
                 ("xPinNum", xn), ("yPinNum", yn),
                 ("PID", pins.pid_of(package, flash, sram))):
        info.set(k, str(v))
    plist = ET.SubElement(root, "Section", term="PinsList")
    for num, pname in enumerate(layout, start=1):
        if "/" in pname:
            normal, remapped = pname.split("/")
            _pin_el(plist, num, normal, "NOPINREMAP")
            _pin_el(plist, num, remapped, "PINREMAP", remap_from=normal)
        else:
            _pin_el(plist, num, pname)
    # The T110 multiplexes every pin on its own: no signal groups.
    ET.SubElement(root, "Section", term="PinsSignalsGroup")
    periph = ET.SubElement(root, "Section", term="PeripheralsList")
    for group, inst, stem, en, ch in peripheral_rows():
        row = ET.SubElement(periph, "Peripheral")
        row.set("InstanceName", inst)
        row.set("Name", stem)
        row.set("GroupName", group)
        row.set("Version", VERSION)
        row.set("Config", "")
        row.set("About", en)
        row.set("AboutCH", ch)
    return root


def package_pins(package):
    """Set of I/O pin names present (in any variant) in a package."""
    out = set()
    for pname in pins.PACKAGES[package][4]:
        for p in pname.split("/"):
            if p not in pins.FIXED:
                out.add(p)
    return out
