"""Builds the Family of every series of families.py: peripheral rows in tree order, pin table,
interrupt vectors, DMA requests and timer kinds."""
import re

import families as F
import irqmap
import pinmap
from family import Family

# ------------------------------------------------------------------- tree rows --

GROUPS = [
    ("System Core", ["CRM", "DEBUG", "DMA", "EDMA", "EXINT", "GPIO", "NVIC", "PWC", "SCFG",
                     "WDT", "WWDT"]),
    ("Analog", ["ADC-Common", "ADC", "DAC", "CMP"]),
    ("Timers", ["RTC", "ERTC", "TMR", "IRTMR"]),
    ("Connectivity", ["CAN", "EMAC", "I2C", "QSPI", "SDIO", "SPIM", "SPI", "UART", "USART",
                      "USB", "XMC"]),
    ("Multimedia", ["DVP", "I2SF", "I2S"]),
    ("Computing", ["CRC", "ACC"]),
]

ABOUT = {
    "CRM": ("Clock and reset management: crystals and clock output",
            "时钟和复位管理：晶振与时钟输出"),
    "DEBUG": ("Debug port: serial wire and JTAG", "调试端口：串行线与 JTAG"),
    "DMA": ("DMA controllers, %s", "DMA 控制器，%s"),
    "EDMA": ("Enhanced DMA with %d streams, FIFO, 2D and linked list modes",
             "增强型 DMA，%d 个数据流，支持 FIFO、二维和链表模式"),
    "EXINT": ("External interrupt and event lines", "外部中断和事件线"),
    "GPIO": ("General purpose I/O ports %s", "通用 I/O 端口 %s"),
    "NVIC": ("Nested vectored interrupt controller", "嵌套向量中断控制器"),
    "PWC": ("Power control: voltage monitor and wake-up pins", "电源控制：电压监测和唤醒引脚"),
    "SCFG": ("System configuration: pin strength, remaps and locks",
             "系统配置：引脚驱动强度、重映射与锁定"),
    "WDT": ("Watchdog timer on the LICK clock", "看门狗定时器（LICK 时钟）"),
    "WWDT": ("Window watchdog timer", "窗口看门狗定时器"),
    "ADC-Common": ("Settings shared by the ADCs: combined modes, clock, DMA",
                   "ADC 共用设置：组合模式、时钟、DMA"),
    "ADC": ("12-bit ADC, %d external channels", "12 位 ADC，%d 个外部通道"),
    "DAC": ("12-bit DAC, two outputs", "12 位 DAC，两路输出"),
    "CMP": ("Analog comparator", "模拟比较器"),
    "RTC": ("Real-time clock with alarm and tamper pin", "实时时钟，带闹钟和侵入检测引脚"),
    "ERTC": ("Enhanced real-time clock with calendar and alarms",
             "增强型实时时钟，带日历和闹钟"),
    "TMR_adv": ("Advanced-control timer, 16 bit, 4 channels", "高级控制定时器，16 位，4 通道"),
    "TMR_gen4": ("General-purpose timer, %d bit, 4 channels", "通用定时器，%d 位，4 通道"),
    "TMR_gen2": ("General-purpose timer, 16 bit, 2 channels", "通用定时器，16 位，2 通道"),
    "TMR_gen1": ("General-purpose timer, 16 bit, 1 channel", "通用定时器，16 位，1 通道"),
    "TMR_basic": ("Basic timer, 16 bit", "基本定时器，16 位"),
    "IRTMR": ("Infrared signal from %s and %s", "由 %s 和 %s 产生的红外信号"),
    "CAN": ("CAN 2.0B controller", "CAN 2.0B 控制器"),
    "EMAC": ("Ethernet MAC 10/100 with MII and RMII", "以太网 MAC 10/100，支持 MII 和 RMII"),
    "I2C": ("I2C bus interface with SMBus", "I2C 总线接口，支持 SMBus"),
    "QSPI": ("Quad SPI interface for external flash", "四线 SPI 外部闪存接口"),
    "SDIO": ("SD, SDIO and MMC card interface", "SD、SDIO 和 MMC 卡接口"),
    "SPIM": ("SPI interface of the external program flash", "外部程序闪存 SPI 接口"),
    "SPI": ("Serial peripheral interface", "串行外设接口"),
    "USART": ("Universal synchronous/asynchronous receiver transmitter",
              "通用同步/异步收发器"),
    "UART": ("Universal asynchronous receiver transmitter", "通用异步收发器"),
    "USBFS": ("USB 2.0 full speed device", "USB 2.0 全速设备"),
    "USB_OTGFS": ("USB 2.0 full speed OTG", "USB 2.0 全速 OTG"),
    "USB_OTGHS": ("USB 2.0 high speed OTG with on-chip PHY", "USB 2.0 高速 OTG，片上 PHY"),
    "XMC_NOR": ("External memory bank %s: NOR flash, PSRAM, SRAM, ROM or LCD",
                "外部存储器块 %s：NOR 闪存、PSRAM、SRAM、ROM 或 LCD"),
    "XMC_NAND": ("External memory: NAND flash bank %s", "外部存储器：NAND 闪存块 %s"),
    "XMC_PCCARD": ("External memory: PC card bank", "外部存储器：PC 卡块"),
    "XMC_SDRAM": ("External memory: SDRAM bank %s", "外部存储器：SDRAM 块 %s"),
    "DVP": ("Digital video parallel interface", "数字视频并行接口"),
    "I2S": ("I2S audio interface (shares %s)", "I2S 音频接口（与 %s 共用）"),
    "I2SF": ("Full duplex I2S audio interface with its own clock",
             "全双工 I2S 音频接口，独立时钟"),
    "CRC": ("CRC calculation unit", "CRC 计算单元"),
    "ACC": ("HICK automatic clock calibration from the USB frames",
            "依据 USB 帧自动校准 HICK 时钟"),
}

TIMER_KINDS = {
    "TMR1": dict(ch=4, comp=(1, 2, 3), ext=True, brk=True, rep=True, sub=True, enc=True,
                 twoway=True, pwmin=True),
    "TMR2": dict(ch=4, ext=True, sub=True, enc=True, twoway=True, pwmin=True, bits=32),
    "TMR3": dict(ch=4, ext=True, sub=True, enc=True, twoway=True, pwmin=True),
    "TMR5": dict(ch=4, sub=True, enc=True, twoway=True, pwmin=True, bits=32, ch4mux=True),
    "TMR6_7": dict(ch=0, basic=True),
    "TMR9": dict(ch=2, sub=True, pwmin=True),
    "TMR10_11_13": dict(ch=1),
    "TMR14": dict(ch=1, remap=True),
    "TMR15": dict(ch=2, comp=(1,), brk=True, rep=True, sub=True, pwmin=True),
    "TMR16": dict(ch=1, comp=(1,), brk=True, rep=True),
}
TIMER_KINDS["TMR8"] = TIMER_KINDS["TMR20"] = TIMER_KINDS["TMR1"]
TIMER_KINDS["TMR4"] = TIMER_KINDS["TMR3"]
TIMER_KINDS["TMR12"] = TIMER_KINDS["TMR9"]
TIMER_KINDS["TMR10_11_13_14"] = TIMER_KINDS["TMR10_11_13"]
TIMER_KINDS["TMR17"] = TIMER_KINDS["TMR16"]


def number(inst):
    m = re.search(r"(\d+)$", inst)
    return int(m.group(1)) if m else 0


def kind_of(inst):
    """The GROUPS word of an instance."""
    if inst.startswith("ADC-"):
        return "ADC-Common"
    if inst.startswith("XMC"):
        return "XMC"
    if inst.startswith("USB"):
        return "USB"
    if inst == "I2SF5":
        return "I2SF"
    return re.sub(r"\d+$", "", inst)


def stem_of(row, inst, all_inst):
    k = kind_of(inst)
    if k in ("USART", "UART", "SPI", "I2S", "I2C", "CAN", "SDIO", "QSPI", "CMP", "I2SF"):
        return k
    if k == "USB":
        if inst.startswith("USB_OTGFS") and "USB_OTGFS2" in all_inst:
            return "USB_OTGFS"
        return inst
    if k == "XMC":
        n = inst.rsplit("_", 1)[-1]
        if "NORFlash" in inst:
            return "XMC" + n
        if inst == "XMC_NANDFlash":
            return inst
        return inst.replace("_" + n, n) if n.isdigit() else inst
    if k == "TMR":
        n = number(inst)
        if n in (6, 7):
            return "TMR6_7"
        if n in (10, 11, 13, 14):
            if "TMR15" in all_inst:
                return "TMR14" if n == 14 else "TMR10_11_13"
            return "TMR10_11_13_14" if "TMR14" in all_inst else "TMR10_11_13"
        return inst
    return inst


def about(row, inst, all_inst, dma_text):
    k = kind_of(inst)
    if k == "TMR":
        n = number(inst)
        kind = TIMER_KINDS[stem_of(row, inst, all_inst)]
        if kind.get("basic"):
            key = "TMR_basic"
        elif kind.get("comp") and kind["ch"] == 4:
            key = "TMR_adv"
        else:
            key = {4: "TMR_gen4", 2: "TMR_gen2", 1: "TMR_gen1"}[kind["ch"]]
        en, ch = ABOUT[key]
        if key == "TMR_gen4":
            bits = kind.get("bits", 16)
            return en % bits, ch % bits
        del n
        return en, ch
    if k == "XMC":
        key = ("XMC_NOR" if "NOR" in inst else "XMC_NAND" if "NAND" in inst else
               "XMC_PCCARD" if "PCCard" in inst else "XMC_SDRAM")
        en, ch = ABOUT[key]
        if "%s" in en:
            n = inst.rsplit("_", 1)[-1]
            n = n if n.isdigit() else "1"
            return en % n, ch % n
        return en, ch
    if k == "USB":
        key = "USBFS" if inst == "USBFS" else "USB_OTGHS" if "HS" in inst else "USB_OTGFS"
        return ABOUT[key]
    if k == "I2S":
        en, ch = ABOUT["I2S"]
        return en % ("SPI%d" % number(inst)), ch % ("SPI%d" % number(inst))
    if k == "IRTMR":
        car, env, _ = row["ir"]
        en, ch = ABOUT["IRTMR"]
        return en % (car, env), ch % (car, env)
    if k == "ADC":
        en, ch = ABOUT["ADC"]
        count = dma_text(inst)
        return en % count, ch % count
    if k in ("DMA", "EDMA", "GPIO"):
        en, ch = ABOUT[k]
        t = dma_text(inst)
        return en % t[0], ch % t[1]
    return ABOUT[k]


def peripheral_rows(name, row, pins):
    all_inst = F.instances(name)
    order = {}
    for gi, (group, kinds) in enumerate(GROUPS):
        for ki, k in enumerate(kinds):
            order[k] = (gi, ki)

    def info(inst):
        if inst == "DMA":
            chans = row["dma"]
            en = " and ".join("DMA%d with %d channels" % (i + 1, c)
                              for i, c in enumerate(chans))
            ch = "，".join("DMA%d %d 个通道" % (i + 1, c) for i, c in enumerate(chans))
            if row["dma_style"] == "dmamux":
                en += ", request multiplexer"
                ch += "，请求复用器"
            return en, ch
        if inst == "EDMA":
            return row["edma"], row["edma"]
        if inst == "GPIO":
            ports = sorted({pins.port_of(p) for p in pins.all_io_pins()})
            return ", ".join(ports), "、".join(ports)
        if inst.startswith("ADC"):
            return len([p for p in pins.all_io_pins()
                        if "%s_IN" % inst in " ".join(f for f, _ in pins.functions_of(p))])
        return None

    rows = {}
    for inst in all_inst:
        k = kind_of(inst)
        gi, ki = order[k]
        about_en, about_ch = about(row, inst, all_inst, info)
        rows.setdefault(gi, []).append(((ki, number(inst), inst),
                                        (inst, stem_of(row, inst, all_inst), about_en,
                                         about_ch)))
    out = []
    for gi in sorted(rows):
        out.append((GROUPS[gi][0], [r for _, r in sorted(rows[gi])]))
    return out


# ------------------------------------------------------------------ interrupts --

def irq_table(name, row):
    """[(vector stem, EN, CH, condition)] in vector order."""
    inst = set(F.instances(name))
    aliases = row.get("aliases", {})
    xmc = sorted(i for i in inst if i.startswith("XMC"))
    out, covered = [], set()
    for irq, conds, en, ch in irqmap.PERIPHERAL:
        names = [aliases.get(c, c) for c in conds.split(";")]
        if irq in ("DMA1", "DMA2"):
            n = int(irq[-1])
            count = row["dma"][n - 1] if len(row["dma"]) >= n else 0
            for c in range(1, count + 1):
                out.append(("%s_Channel%d" % (irq, c), "%s channel %d global interrupt" % (irq, c),
                            "%s 通道 %d 全局中断" % (irq, c), irq))
            continue
        if irq == "EDMA":
            for c in range(1, row.get("edma", 0) + 1):
                out.append(("EDMA_Stream%d" % c, "EDMA stream %d global interrupt" % c,
                            "EDMA 数据流 %d 全局中断" % c, "EDMA"))
            continue
        if names == ["DMAMUX"]:
            if row["dma_style"] == "dmamux":
                out.append(("DMAMUX", en, ch, "DMA1;DMA2" + (";EDMA" if row.get("edma") else "")))
            continue
        if names == ["XMC"]:
            # One vector serves every bank of the controller.
            names = xmc
            if not xmc:
                continue
        if not names or names[0] not in inst:
            continue
        present = [n for n in names if n in inst]
        stem = irq[:-len("_IRQn")]
        for c in conds.split(";"):
            if c in aliases:
                stem = stem.replace(c, aliases[c])
                en = en.replace(c, aliases[c])
                ch = ch.replace(c, aliases[c])
        for missing in (n for n in names if n not in inst):
            short = stem.replace("_" + missing, "")
            if short != stem:
                stem = short
                en = en.split(" and ")[0].split(",")[0]
                en = en if en.endswith("interrupt") else en + " interrupt"
                ch = ch.split("及")[0].split("和")[0]
                ch = ch if ch.endswith("中断") else ch + "中断"
        covered.update(present)
        out.append((stem, en, ch, ";".join(present)))
    for i in sorted(inst, key=number):
        if i.startswith("TMR") and i not in covered:
            out.append(("%s_GLOBAL" % i, "%s global interrupt" % i, "%s 全局中断" % i, i))
    return out


# ------------------------------------------------------------------------- DMA --

P2M, M2P, M2M = ("DMA_DIR_PERIPHERAL_TO_MEMORY", "DMA_DIR_MEMORY_TO_PERIPHERAL",
                 "DMA_DIR_MEMORY_TO_MEMORY")


def dma_channels(row, edma=False):
    if edma:
        return ["EDMA_Stream%d" % n for n in range(1, row["edma"] + 1)]
    return ["DMA%d_Channel%d" % (i + 1, c) for i, count in enumerate(row["dma"])
            for c in range(1, count + 1)]


def dma_sources(name, row):
    """[(request, peripheral, register block, direction, width, circular)] of a series."""
    inst = F.instances(name)
    out = []
    for i in sorted(inst, key=lambda x: (kind_of(x), number(x))):
        k = kind_of(i)
        if k in ("USART", "UART", "SPI", "I2C", "I2SF"):
            width = "BYTE"
            pair = [("_TX", M2P), ("_RX", P2M)]
            out += [(i + s, i, i, d, width, False) for s, d in pair]
        elif k == "I2S":
            out += [(i + "_TX", i, i, M2P, "HALFWORD", True),
                    (i + "_RX", i, i, P2M, "HALFWORD", True)]
            if row.get("i2s_ext") and i in ("I2S2", "I2S3"):
                out += [(i + "_EXT_TX", i, i + "EXT", M2P, "HALFWORD", True),
                        (i + "_EXT_RX", i, i + "EXT", P2M, "HALFWORD", True)]
        elif k == "ADC":
            out.append((i, i, i, P2M, "HALFWORD", True))
        elif k == "DAC":
            out += [("DAC1", "DAC", "DAC", M2P, "HALFWORD", True),
                    ("DAC2", "DAC", "DAC", M2P, "HALFWORD", True)]
        elif k in ("SDIO", "QSPI", "DVP"):
            out.append((i, i, i, P2M, "WORD", False))
        elif k == "TMR":
            kind = TIMER_KINDS[stem_of(row, i, inst)]
            events = ["CH%d" % c for c in range(1, kind["ch"] + 1)]
            if kind.get("sub"):
                events.append("TRIG")
            if kind.get("brk") and kind["ch"] == 4:
                events.append("HALL")
            events.append("OVERFLOW")
            out += [("%s_%s" % (i, e), i, i, M2P, "HALFWORD", False) for e in events]
    return out


def dma_requests(name, row, edma=False):
    """Requests in the form of the DMA file: (name, peripheral, register block, [channels],
    direction, width, circular). Fixed families give each request one or two channels."""
    chans = dma_channels(row, edma)
    out = []
    for k, (req, ip, handle, direction, width, circ) in enumerate(dma_sources(name, row)):
        if edma and ip.startswith("TMR"):
            continue
        if row["dma_style"] == "fixed" and not edma:
            allowed = [chans[k % len(chans)]]
            if k % 3 == 0:
                alt = chans[(k + 5) % len(chans)]
                if alt not in allowed:
                    allowed.append(alt)
        else:
            allowed = chans
        out.append((req, ip, handle, allowed, direction, width, circ))
    return out


# ---------------------------------------------------------------------- family --

def timers(name, row):
    inst = F.instances(name)
    out = {}
    for i in inst:
        if kind_of(i) != "TMR":
            continue
        stem = stem_of(row, i, inst)
        kind = dict(TIMER_KINDS[stem])
        car, env, route = row.get("ir", (None, None, None))
        members = [m for m in inst if stem_of(row, m, inst) == stem]
        if i == car:
            kind["ir"] = "carrier"
            kind["ir_remove"] = " ".join(m for m in members if m != car)
        if i == env:
            kind["ir_env"] = "envelope"
            kind["ir_env_remove"] = " ".join(m for m in members if m != env)
            kind["ir_env_cond"] = (car + "_IR_CARRIER") if route == "pair" else None
        prev = out.get(stem, {})
        prev.update(kind)
        out[stem] = prev
    return out


def build(name):
    row = dict(F.FAMILIES[name])
    inst = set(F.instances(name))
    plan = dict(row, name=name, instances=inst, devices=F.device_rows(name),
                remap=row.get("remap", False), series_index=F.series_index(name),
                package_index=F.PACKAGE_INDEX)
    pins = pinmap.GeneratedPins(plan)
    rows = peripheral_rows(name, row, pins)
    no_vbat = " ".join(p for p, (_, _, _, _, layout) in sorted(pins.PACKAGES.items())
                       if "PC13" not in layout)
    facts = dict(row)
    facts.update(
        remap=plan["remap"],
        PERIPH_IRQS=irq_table(name, row),
        DMA_CHANNELS=dma_channels(row),
        DMA_REQUESTS=dma_requests(name, row),
        TIMERS=timers(name, row),
        NO_VBAT_PINS=no_vbat,
        WKUP=row.get("wkup", ()),
        instance_set=inst,
        per_device_rows=True,
        routes=F.routes(name),
        adc_exint=tuple(F.routes(name).get("EXINT", ())),
        mark_virtual=True,
    )
    if row.get("edma"):
        facts.update(EDMA_CHANNELS=dma_channels(row, edma=True),
                     EDMA_REQUESTS=dma_requests(name, row, edma=True))
    return Family(name, pins, rows, **facts)


def all_families():
    return [build(name) for name in F.FAMILIES]
