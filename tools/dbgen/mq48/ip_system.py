"""GPIO, NVIC, DMA, CRM, DEBUG, SCFG and EXINT of the MQ48T110."""
import xml.etree.ElementTree as ET

from model import (P, V, Mode, Check, G, S, RefMode, RefSignal, build_ip)

# ---------------------------------------------------------------- GPIO --

GP = ("GPIO settings", "GPIO 设置")

GPIO_VALUES = {
    "GPIO mode": [("GPIO_MODE_INPUT", "Input mode", "输入模式"),
                  ("GPIO_MODE_OUTPUT", "Output mode", "输出模式"),
                  ("GPIO_MODE_MUX", "Multiplexed function", "复用功能"),
                  ("GPIO_MODE_ANALOG", "Analog mode", "模拟模式")],
    "GPIO type": [("GPIO_OUTPUT_PUSH_PULL", "Push-pull", "推挽"),
                  ("GPIO_OUTPUT_OPEN_DRAIN", "Open drain", "开漏")],
    "Pull type": [("GPIO_PULL_NONE", "No pull-up and no pull-down", "无上拉无下拉"),
                  ("GPIO_PULL_UP", "Pull-up", "上拉"),
                  ("GPIO_PULL_DOWN", "Pull-down", "下拉")],
    "Driver capability": [
        ("GPIO_DRIVE_STRENGTH_STRONGER", "Stronger", "较强"),
        ("GPIO_DRIVE_STRENGTH_MODERATE", "Moderate", "适中")],
    "Output level": [("GPIO_OUTPUTLEVEL_LOW", "Low", "低电平"),
                     ("GPIO_OUTPUTLEVEL_HIGH", "High", "高电平")],
}
GPIO_TEXT = {
    "GPIO mode": ("GPIO mode", "GPIO 模式"),
    "GPIO type": ("GPIO type", "GPIO 输出类型"),
    "Pull type": ("Pull type", "上下拉"),
    "Driver capability": ("Driver capability", "驱动能力"),
    "Output level": ("Output level", "输出电平"),
}
GPIO_DESC = {
    "GPIO mode": "Function of the pin: input, output, multiplexed or analog.",
    "GPIO type": "Output stage: push-pull drives both levels, open drain "
                 "only pulls low.",
    "Pull type": "Internal pull-up or pull-down resistor of the pin.",
    "Driver capability": "Output drive strength; the stronger setting "
                         "gives faster edges and more noise.",
    "Output level": "Level written to the pin before it becomes an output.",
}

PP, OD = "GPIO_OUTPUT_PUSH_PULL", "GPIO_OUTPUT_OPEN_DRAIN"
ST, MO = "GPIO_DRIVE_STRENGTH_STRONGER", "GPIO_DRIVE_STRENGTH_MODERATE"
PULLS = ["GPIO_PULL_NONE", "GPIO_PULL_UP", "GPIO_PULL_DOWN"]

# IOMode word -> [(setting, allowed values)]; the first value is the
# default of the mode.
OUT_SETTINGS = [("GPIO mode", ["GPIO_MODE_MUX"]), ("GPIO type", [PP, OD]),
                ("Pull type", PULLS), ("Driver capability", [ST, MO])]
GPIO_MODES = {
    "GPIO_Output": [("Output level", ["GPIO_OUTPUTLEVEL_LOW",
                                      "GPIO_OUTPUTLEVEL_HIGH"]),
                    ("GPIO mode", ["GPIO_MODE_OUTPUT"]),
                    ("GPIO type", [PP, OD]),
                    ("Pull type", PULLS),
                    ("Driver capability", [ST, MO])],
    "GPIO_Input": [("GPIO mode", ["GPIO_MODE_INPUT"]), ("Pull type", PULLS)],
    "GPIO_Analog": [("GPIO mode", ["GPIO_MODE_ANALOG"])],
    "EVENTOUT": OUT_SETTINGS,
    "MuxOutputPushPull": OUT_SETTINGS,
    "MuxOutputOpenDrain": [("GPIO mode", ["GPIO_MODE_MUX"]),
                           ("GPIO type", [OD, PP]),
                           ("Pull type", PULLS),
                           ("Driver capability", [ST, MO])],
    "MuxInput": [("GPIO mode", ["GPIO_MODE_MUX"]), ("Pull type", PULLS)],
    "Analog": [("GPIO mode", ["GPIO_MODE_ANALOG"])],
    "ExternalInterrupt": [("GPIO mode", ["GPIO_MODE_INPUT"]),
                          ("Pull type", PULLS)],
    "WakeupInput": [("GPIO mode", ["GPIO_MODE_INPUT"]),
                    ("Pull type", ["GPIO_PULL_NONE", "GPIO_PULL_DOWN"])],
    "Oscillator": [],
    "Debug": [],
}
GPIO_MODE_TEXT = {
    "GPIO_Output": "General purpose output",
    "GPIO_Input": "General purpose input",
    "GPIO_Analog": "Analog, pin driver off",
    "EVENTOUT": "Cortex event output",
    "MuxOutputPushPull": "Multiplexed output or bidirectional signal",
    "MuxOutputOpenDrain": "Multiplexed open-drain signal (I2C)",
    "MuxInput": "Multiplexed input signal",
    "Analog": "Analog input of ADC or comparator",
    "ExternalInterrupt": "External interrupt line input",
    "Debug": "Serial wire debug pin, no GPIO settings",
    "WakeupInput": "Wake-up pin of the power controller",
    "Oscillator": "Crystal pin, no GPIO settings",
}


def gpio_modes(fam):
    """GPIO_MODES of a family: the remap families read their peripheral inputs as plain
    inputs."""
    if not fam.fact("remap"):
        return GPIO_MODES
    modes = dict(GPIO_MODES)
    modes["MuxInput"] = [("GPIO mode", ["GPIO_MODE_INPUT"]), ("Pull type", PULLS)]
    return modes


def gpio_defaults(iomode, setting):
    for name, vals in GPIO_MODES.get(iomode, []):
        if name == setting:
            return vals[0]
    return None


def _gpio_pins(fam, root):
    pins = fam.pins
    for pin in pins.all_io_pins():
        port = pins.port_of(pin)
        n = pins.pin_number(pin)
        el = ET.SubElement(root, "GPIO_Pin", Name=pin, PortName=port)
        # Without SCFG the EXINT line source is chosen through the GPIO block.
        scfg = "GPIO" if fam.fact("remap") else "SCFG"
        for field, val in (("GPIO_x", "GPIO" + port),
                           ("GPIO_Pin", "GPIO_PINS_%d" % n),
                           ("GPIO_PinSource", "GPIO_PINS_SOURCE%d" % n),
                           ("EXINT_LINE_x", "EXINT_LINE_%d" % n),
                           ("SCFG_GPIO_x", scfg + "_PORT_SOURCE_GPIO" + port),
                           ("SCFG_PINS_SOURCE_x", scfg + "_PINS_SOURCE%d" % n)):
            sp = ET.SubElement(el, "SpecificParameter", Name=field)
            ET.SubElement(sp, "PossibleValue", Value=val)
        for sig, mux in pins.mux_of(pin):
            ps = ET.SubElement(el, "PinSignal", Name=sig)
            sp = ET.SubElement(ps, "SpecificParameter", Name="GPIO_MUX")
            ET.SubElement(sp, "PossibleValue", Value="GPIO_MUX_%d" % mux)


def gpio_file(fam):
    items = []
    for iomode, settings in gpio_modes(fam).items():
        items.append(RefMode(iomode, GPIO_MODE_TEXT[iomode],
                             [(n, vals[0], vals) for n, vals in settings],
                             group=GP))
    for name, vals in GPIO_VALUES.items():
        items.append(P(name, GPIO_TEXT[name], GP, "list", vals[0][0],
                       [V(v, (en, ch)) for v, en, ch in vals],
                       desc=GPIO_DESC[name]))
    return build_ip(items, extra=lambda root: _gpio_pins(fam, root))


# ---------------------------------------------------------------- NVIC --

NV = ("Interrupt priorities", "中断优先级")

SYSTEM_IRQS = [
    # IRQ, handler, en, ch, "F2,F3:F4,F5", F7 (see CONVENTIONS.md)
    ("Reset_IRQn", "Reset_Handler", "Reset", "复位", "N,Y:Y,N", "N"),
    ("NonMaskableInt_IRQn", "NMI_Handler", "Non maskable interrupt",
     "不可屏蔽中断", "N,Y:Y,N", "N"),
    ("HardFault_IRQn", "HardFault_Handler", "Hard fault interrupt",
     "硬件错误中断", "N,Y:Y,N", "N"),
    ("MemoryManagement_IRQn", "MemManage_Handler",
     "Memory management fault", "存储器管理错误", "N,Y:Y,Y", "Y"),
    ("BusFault_IRQn", "BusFault_Handler", "Prefetch fault, memory access fault",
     "预取错误，存储器访问错误", "N,Y:Y,Y", "Y"),
    ("UsageFault_IRQn", "UsageFault_Handler",
     "Undefined instruction or illegal state", "未定义指令或非法状态",
     "N,Y:Y,Y", "Y"),
    ("SVCall_IRQn", "SVC_Handler", "System service call via SWI instruction",
     "通过 SWI 指令的系统服务调用", "N,Y:Y,Y", "Y"),
    ("DebugMonitor_IRQn", "DebugMon_Handler", "Debug monitor", "调试监控",
     "N,Y:Y,Y", "Y"),
    ("PendSV_IRQn", "PendSV_Handler", "Pendable request for system service",
     "可挂起的系统服务请求", "N,Y:Y,Y", "Y"),
    ("SysTick_IRQn", "SysTick_Handler", "System tick timer",
     "系统滴答定时器", "Y,N:Y,Y", "Y"),
]

GROUP_BITS = range(5)  # NVIC_PRIORITY_GROUP_0 .. 4: preemption bits


def irq_lines(fam):
    """All IRQn rows: (value line, en, ch, condition)."""
    rows = []
    for irq, handler, en, ch, flags, sub in SYSTEM_IRQS:
        rows.append(("%s,%s:0,%s:0,%s" % (irq, flags, sub, handler), en, ch,
                     ""))
    for stem, en, ch, cond in fam.PERIPH_IRQS:
        rows.append(("%s_IRQn,Y,N:N,Y:0,Y:0,%s_IRQHandler" % (stem, stem),
                     en, ch, cond))
    return rows


def nvic_file(fam):
    groups = [V("NVIC_PRIORITY_GROUP_%d" % n,
                ("%d bits for pre-emption priority, %d bits for subpriority"
                 % (n, 4 - n),
                 "%d 位抢占优先级，%d 位响应优先级" % (n, 4 - n)),
                sem="NVIC_PRIORITY_GROUP_%d" % n) for n in GROUP_BITS]

    def allowed(k, bits_of):
        return "|".join("NVIC_PRIORITY_GROUP_%d" % n for n in GROUP_BITS
                        if (1 << bits_of(n)) > k)

    pre = [V(str(k), (str(k), str(k)), cond=allowed(k, lambda n: n))
           for k in range(16)]
    sub = [V(str(k), (str(k), str(k)), cond=allowed(k, lambda n: 4 - n))
           for k in range(16)]
    irqs = [V(line, (en, ch), cond=cond) for line, en, ch, cond in irq_lines(fam)]
    items = [
        P("PriorityGroup", ("Priority group", "优先级分组"), NV, "list",
          "NVIC_PRIORITY_GROUP_4", groups,
          desc="Split of the four priority bits between pre-emption "
               "priority and subpriority."),
        P("PreemptionPriority", ("Preemption priority", "抢占优先级"), NV,
          "list", "0", pre,
          desc="Pre-emption priority; the range follows the priority group."),
        P("SubPriority", ("Sub priority", "响应优先级"), NV, "list", "0", sub,
          desc="Subpriority; the range follows the priority group."),
        P("IRQn", ("Interrupt table", "中断向量表"), NV, "list",
          irq_lines(fam)[0][0], irqs, visible=False,
          desc="Interrupt vectors of the device in vector order: name, "
               "shown, user enable, enabled, preemption editable, default "
               "preemption, sub editable, default sub, handler."),
    ]
    return build_ip(items)


# ----------------------------------------------------------------- DMA --

DM = ("DMA request settings", "DMA 请求设置")
P2M, M2P, M2M = ("DMA_DIR_PERIPHERAL_TO_MEMORY", "DMA_DIR_MEMORY_TO_PERIPHERAL",
                 "DMA_DIR_MEMORY_TO_MEMORY")
BYTE, HALF, WORD = "BYTE", "HALFWORD", "WORD"
WIDTHS = ((BYTE, "Byte", "字节"), (HALF, "Half word", "半字"), (WORD, "Word", "字"))
SYNC_POL = [("DISABLE", "No event", "无事件"), ("RISING", "Rising edge", "上升沿"),
            ("FALLING", "Falling edge", "下降沿"), ("RISINGFALLING", "Both edges", "双边沿")]


def dma_params(channels, pre="DMA"):
    """Full definitions of the request parameters; `pre` is "DMA" or "EDMA"."""
    group = DM if pre == "DMA" else ("EDMA request settings", "EDMA 请求设置")
    p2m, m2p, m2m = (d.replace("DMA_", pre + "_", 1) for d in (P2M, M2P, M2M))
    return [
        P("Instance", ("Channel", "通道"), group, "list", channels[0],
          [V(c, (c.replace("_", " "), c.replace("_Channel", " 通道 ")
                 .replace("_Stream", " 数据流 "))) for c in channels],
          desc="%s channel that serves the request." % pre),
        P("Direction", ("Direction", "方向"), group, "list", p2m,
          [V(p2m, ("Peripheral to memory", "外设到存储器")),
           V(m2p, ("Memory to peripheral", "存储器到外设")),
           V(m2m, ("Memory to memory", "存储器到存储器"))],
          desc="Direction of the transfer."),
        P("Priority", ("Priority", "优先级"), group, "list", pre + "_PRIORITY_LOW",
          [V(pre + "_PRIORITY_LOW", ("Low", "低")),
           V(pre + "_PRIORITY_MEDIUM", ("Medium", "中")),
           V(pre + "_PRIORITY_HIGH", ("High", "高")),
           V(pre + "_PRIORITY_VERY_HIGH", ("Very high", "最高"))],
          desc="Arbitration priority between the channels."),
        P("Mode", ("Loop mode", "循环模式"), group, "list", "FALSE",
          [V("FALSE", ("Normal", "普通")), V("TRUE", ("Circular", "循环"))],
          desc="Circular mode reloads the counter at the end of a block."),
        P("PeriphInc", ("Peripheral increment", "外设地址递增"), group, "list",
          "FALSE", [V("TRUE", ("Enable", "使能")), V("FALSE", ("Disable", "禁止"))],
          desc="Increment the peripheral address after each transfer."),
        P("MemInc", ("Memory increment", "存储器地址递增"), group, "list", "TRUE",
          [V("TRUE", ("Enable", "使能")), V("FALSE", ("Disable", "禁止"))],
          desc="Increment the memory address after each transfer."),
        P("PeriphDataAlignment", ("Peripheral data width", "外设数据宽度"), group,
          "list", pre + "_PERIPHERAL_DATA_WIDTH_BYTE",
          [V(pre + "_PERIPHERAL_DATA_WIDTH_" + w, (en, ch)) for w, en, ch in WIDTHS],
          desc="Width of one peripheral access."),
        P("MemDataAlignment", ("Memory data width", "存储器数据宽度"), group, "list",
          pre + "_MEMORY_DATA_WIDTH_BYTE",
          [V(pre + "_MEMORY_DATA_WIDTH_" + w, (en, ch)) for w, en, ch in WIDTHS],
          desc="Width of one memory access."),
    ]


def _request_mode(name, ip, handle, chans, direction, width, circ, pre="DMA",
                  select=None):
    pw = [pre + "_PERIPHERAL_DATA_WIDTH_" + w for w in (BYTE, HALF, WORD)]
    mw = [pre + "_MEMORY_DATA_WIDTH_" + w for w in (BYTE, HALF, WORD)]
    chs = ["DMA1_Channel%d" % c if isinstance(c, int) else c for c in chans]
    direction = direction.replace("DMA_", pre + "_", 1)
    dirs = [direction]
    if handle.startswith(("SDIO", "QSPI")):
        dirs = [direction.replace("PERIPHERAL_TO_MEMORY", "MEMORY_TO_PERIPHERAL"),
                direction][::-1]
    prio = [pre + "_PRIORITY_" + p for p in ("LOW", "MEDIUM", "HIGH", "VERY_HIGH")]
    params = [
        ("IpInstance", "Peripheral", ip, [ip]),
        ("DMA_Handle", "Register block", handle, [handle]),
        ("Instance", "Channel", chs[0], chs),
        ("Direction", "Direction", direction, dirs),
        ("Priority", "Priority", prio[0], prio),
        ("Mode", "Loop mode", "TRUE" if circ else "FALSE", ["FALSE", "TRUE"]),
        ("PeriphInc", "Peripheral increment", "FALSE",
         ["FALSE", "TRUE"] if ip == "MEMTOMEM" else ["FALSE"]),
        ("MemInc", "Memory increment", "TRUE", ["TRUE", "FALSE"]),
        ("PeriphDataAlignment", "Peripheral data width",
         pre + "_PERIPHERAL_DATA_WIDTH_" + width, pw),
        ("MemDataAlignment", "Memory data width",
         pre + "_MEMORY_DATA_WIDTH_" + width, mw),
    ]
    if select:
        params.append(("RequestSelect", "Request line", select, [select]))
    group = DM if pre == "DMA" else ("EDMA request settings", "EDMA 请求设置")
    return RefMode(name, "%s request" % name.replace("_", " "), params,
                   base="DMA_Request", group=group)


def request_id(fam, name, pre="DMA"):
    """The value of RequestSelect: the multiplexer's request ID, or the name that the
    flexible channels take with "FLEX_" in front."""
    style = fam.fact("dma_style", "fixed")
    if pre == "EDMA":
        return "EDMAMUX_DMAREQ_ID_" + name
    if style == "dmamux":
        return "DMAMUX_DMAREQ_ID_" + name
    if style == "flexible":
        return name
    return None


def _mux_params(fam, pre, requests):
    """Request line, synchronisation and generator settings of a multiplexed controller."""
    mux = "EDMAMUX" if pre == "EDMA" else "DMAMUX"
    style = fam.fact("dma_style", "fixed")
    if style == "fixed" and pre == "DMA":
        return []
    ids = [V(request_id(fam, r[0], pre), (r[0].replace("_", " "), r[0].replace("_", " ")))
           for r in requests]
    out = [P("RequestSelect", ("Request line", "请求线"), DM, "list", ids[0]["value"], ids,
             visible=False, desc="Request line that the channel listens to; fixed by the "
                                 "chosen request.")]
    if style == "flexible" and pre == "DMA":
        return out
    sync = ("Synchronization", "同步")
    gen = ("Request generator", "请求发生器")
    lines = [("%s_SYNC_ID_EXINT%d" % (mux, n), "EXINT line %d" % n, "EXINT 线 %d" % n)
             for n in range(16)]
    lines += [("%s_SYNC_ID_CH%d_EVT" % (mux, n), "Event of channel %d" % n,
               "通道 %d 事件" % n) for n in range(1, 5)]
    on = "SyncEnable=TRUE"
    gon = "RequestCount>0"
    out += [
        P("SyncEnable", ("Synchronization", "同步"), sync, "list", "FALSE",
          [V("FALSE", ("Disable", "禁止")), V("TRUE", ("Enable", "使能"))],
          desc="Hold the requests until the synchronisation input fires."),
        P("SyncSignalID", ("Synchronization input", "同步输入"), sync, "list",
          lines[0][0], [V(v, (en, ch)) for v, en, ch in lines], expr=on,
          desc="Signal that releases the requests."),
        P("SyncPolarity", ("Synchronization edge", "同步边沿"), sync, "list",
          "%s_SYNC_POLARITY_RISING" % mux,
          [V("%s_SYNC_POLARITY_%s" % (mux, k), (en, ch)) for k, en, ch in SYNC_POL],
          expr=on, desc="Edge of the synchronisation input."),
        P("SyncRequestCount", ("Requests per event", "每个事件的请求数"), sync, "integer",
          "1", mn="1", mx="32", expr=on, desc="Requests forwarded after each event."),
        P("EventEnable", ("Event output", "事件输出"), sync, "list", "FALSE",
          [V("FALSE", ("Disable", "禁止")), V("TRUE", ("Enable", "使能"))],
          desc="Give an event when the channel has forwarded its requests."),
        P("GeneratorID", ("Generator", "发生器"), gen, "list", "%s_GEN_ID1" % mux,
          [V("%s_GEN_ID%d" % (mux, n), ("Generator %d" % n, "发生器 %d" % n))
           for n in range(1, 5)], desc="Request generator of a GENERATOR request."),
        P("RequestSignalID", ("Generator input", "发生器输入"), gen, "list",
          "%s_GEN_ID_EXINT0" % mux,
          [V("%s_GEN_ID_EXINT%d" % (mux, n), ("EXINT line %d" % n, "EXINT 线 %d" % n))
           for n in range(16)], desc="Signal that triggers the generator."),
        P("GeneratorPolarity", ("Generator edge", "发生器边沿"), gen, "list",
          "%s_GEN_POLARITY_RISING" % mux,
          [V("%s_GEN_POLARITY_%s" % (mux, k), (en, ch)) for k, en, ch in SYNC_POL],
          desc="Edge of the generator input."),
        P("RequestCount", ("Generated requests", "生成请求数"), gen, "integer", "1",
          mn="1", mx="32", desc="Requests generated per trigger."),
    ]
    del gon
    return out


def _edma_params():
    g = ("EDMA stream modes", "EDMA 数据流模式")
    fifo = "FIFOMode=EDMA_FIFOMODE_ENABLE"
    two_d, dbl = "2DMode=TRUE", "DoubleMemoryMode=TRUE"
    bursts = [("SINGLE", "Single", "单次"), ("BURST_4", "Burst of 4", "4 拍突发"),
              ("BURST_8", "Burst of 8", "8 拍突发"), ("BURST_16", "Burst of 16", "16 拍突发")]
    return [
        P("FIFOMode", ("FIFO mode", "FIFO 模式"), g, "list", "EDMA_FIFOMODE_DISABLE",
          [V("EDMA_FIFOMODE_DISABLE", ("Direct", "直接")),
           V("EDMA_FIFOMODE_ENABLE", ("FIFO", "FIFO"))],
          desc="Pass data through the stream's FIFO."),
        P("FIFOThreshold", ("FIFO threshold", "FIFO 阈值"), g, "list",
          "EDMA_FIFO_THRESHOLD_1QUARTER",
          [V("EDMA_FIFO_THRESHOLD_" + k, (en, ch)) for k, en, ch in
           (("1QUARTER", "1/4 full", "1/4 满"), ("HALF", "1/2 full", "1/2 满"),
            ("3QUARTERS", "3/4 full", "3/4 满"), ("FULL", "Full", "满"))], expr=fifo,
          desc="FIFO level that starts a transfer; the burst sizes limit the choice."),
        P("PeriphBurst", ("Peripheral burst", "外设突发"), g, "list",
          "EDMA_PERIPHERAL_SINGLE",
          [V("EDMA_PERIPHERAL_" + k, (en, ch)) for k, en, ch in bursts], expr=fifo,
          desc="Beats of one peripheral burst."),
        P("MemBurst", ("Memory burst", "存储器突发"), g, "list", "EDMA_MEMORY_SINGLE",
          [V("EDMA_MEMORY_" + k, (en, ch)) for k, en, ch in bursts], expr=fifo,
          desc="Beats of one memory burst."),
        P("2DMode", ("2D Mode", "二维模式"), g, "list", "FALSE",
          [V("FALSE", ("Disable", "禁止")), V("TRUE", ("Enable", "使能"))],
          desc="Transfer a rectangle: X count items per row, Y count rows."),
        P("SourceStride", ("Source stride", "源跨距"), g, "integer", "0", mn="-32768",
          mx="32767", expr=two_d, desc="Step between rows at the source, in bytes."),
        P("DestinationStride", ("Destination stride", "目标跨距"), g, "integer", "0",
          mn="-32768", mx="32767", expr=two_d,
          desc="Step between rows at the destination, in bytes."),
        P("XAxisCount", ("X count", "X 计数"), g, "integer", "1", mn="1", mx="65535",
          expr=two_d, desc="Items per row."),
        P("YAxisCount", ("Y count", "Y 计数"), g, "integer", "1", mn="1", mx="65535",
          expr=two_d, desc="Rows."),
        P("DoubleMemoryMode", ("Double memory mode", "双缓冲模式"), g, "list", "FALSE",
          [V("FALSE", ("Disable", "禁止")), V("TRUE", ("Enable", "使能"))],
          desc="Switch between two memory buffers at each block."),
        P("CurrentMemory", ("First memory", "起始存储器"), g, "list", "EDMA_MEMORY_0",
          [V("EDMA_MEMORY_0", ("Memory 0", "存储器 0")),
           V("EDMA_MEMORY_1", ("Memory 1", "存储器 1"))], expr=dbl,
          desc="Buffer used first."),
        P("LinkedTableTransferMode", ("Linked table transfer mode", "链表传输模式"), g,
          "list", "FALSE",
          [V("FALSE", ("Disable", "禁止")), V("TRUE", ("Enable", "使能"))],
          desc="Load the next block's settings from a table in memory."),
    ]


def dma_file(fam, edma=False):
    pre = "EDMA" if edma else "DMA"
    requests = fam.EDMA_REQUESTS if edma else fam.DMA_REQUESTS
    channels = fam.EDMA_CHANNELS if edma else fam.DMA_CHANNELS
    items = [_request_mode(*r, pre=pre, select=request_id(fam, r[0], pre))
             for r in requests]
    items.append(_request_mode("MEMTOMEM", "MEMTOMEM", "MEMTOMEM", channels, M2M, BYTE,
                               False, pre=pre))
    if fam.fact("dma_style") == "dmamux" or edma:
        ctrls = ["EDMA"] if edma else ["DMA%d" % (i + 1) for i in range(len(fam.dma))]
        for ctrl in ctrls:
            gen = ctrl + "_GENERATOR"
            chans = [c for c in channels if c.startswith(ctrl)]
            items.append(_request_mode(gen, "GENERATOR", "GENERATOR", chans, M2P, WORD,
                                       False, pre=pre,
                                       select="%sMUX_DMAREQ_ID_REQ_G1" % pre))
    items.extend(dma_params(channels, pre))
    items.extend(_mux_params(fam, pre, requests))
    if edma:
        items.extend(_edma_params())
    return build_ip(items)


# ----------------------------------------------------------------- CRM --

def crm_file(fam):
    osc = lambda n: [
        G("BYPASS", ("BYPASS Clock Source", "旁路时钟源"),
          [S(n + "_IN", "Oscillator")], sems=["$IpInstance_%s_BYPASS" % n]),
        G("CRYSTAL", ("Crystal/Ceramic Resonator", "晶体/陶瓷谐振器"),
          [S(n + "_IN", "Oscillator"), S(n + "_OUT", "Oscillator")],
          sems=["$IpInstance_%s_CRYSTAL" % n])]
    items = [
        Mode("HEXT", ("HEXT", "HEXT"), osc("HEXT"),
             note=("High speed external clock, 4 to 25 MHz",
                   "高速外部时钟，4 至 25 MHz")),
        Mode("LEXT", ("LEXT", "LEXT"), osc("LEXT"),
             note=("Low speed external clock, 32.768 kHz",
                   "低速外部时钟，32.768 kHz")),
    ]
    for sig in sorted(fam.fact("clkout", {"CRM_CLKOUT": None})):
        short = sig[len("CRM_"):]
        items.append(Check(short, (short, short), [S(short, "MuxOutputPushPull")],
                           sems=["$IpInstance_" + short]))
    return build_ip(items)


# --------------------------------------------------------------- DEBUG --

DEBUG_SIGNALS = [
    ("SWD", ("Serial Wire", "串行线"), ["JTMS_SWDIO", "JTCK_SWCLK"]),
    ("SWO", ("Serial Wire with SWO", "串行线加 SWO"),
     ["JTMS_SWDIO", "JTCK_SWCLK", "JTDO_SWO"]),
    ("JTAG_4PIN", ("JTAG (4 pins)", "JTAG（4 线）"),
     ["JTMS_SWDIO", "JTCK_SWCLK", "JTDI", "JTDO_SWO"]),
    ("JTAG_5PIN", ("JTAG (5 pins)", "JTAG（5 线）"),
     ["JTMS_SWDIO", "JTCK_SWCLK", "JTDI", "JTDO_SWO", "JTRST"]),
]


def debug_file(fam):
    if fam.fact("debug", "check") == "check":
        items = [Check("SWD", ("SWD", "SWD"),
                       [S("JTMS_SWDIO", "Debug"), S("JTCK_SWCLK", "Debug")],
                       sems=["$IpInstance_SWD"])]
    else:
        items = [Mode("Debug interface", ("Debug interface", "调试接口"), [
            G(name, text, [S(s, "Debug") for s in sigs], sems=["$IpInstance_" + name])
            for name, text, sigs in DEBUG_SIGNALS])]
    return build_ip(items)


# ---------------------------------------------------------------- SCFG --

LOCKS = [("CPU lock enable", "CPU 锁定使能", "CPU_LOCK"),
         ("PVM lock enable", "PVM 锁定使能", "PVM_LOCK"),
         ("SRAM parity lock enable", "SRAM 校验锁定使能", "SRAM_LOCK")]


def scfg_file(fam):
    rows = (fam.fact("scfg") or "remap").split()
    items = []
    for row in rows:
        if row == "remap":
            items += [
                RefSignal("VS_PA11PA12_REMAP", "", virtual=True),
                Check("PA11 PA12 remap", ("PA11 PA12 remap", "PA11 PA12 重映射"),
                      [S("VS_PA11PA12_REMAP", "")],
                      sems=["$IpInstance_PA11PA12_REMAP"]),
            ]
        elif row.startswith("ultra:"):
            # A pin that no package of the series has would leave a row nobody can use.
            io_pins = set(fam.pins.all_io_pins())
            for pin in row[len("ultra:"):].split(","):
                if pin not in io_pins:
                    continue
                vs = "VS_%sUltra" % pin
                text = "%s Ultra Strength" % pin
                items += [RefSignal(vs, "", virtual=True),
                          Check(text, (text, "%s 超强驱动" % pin), [S(vs, "")],
                                sems=["$IpInstance_%s_ULTRA" % pin])]
        elif row == "i2sfd":
            pairs = [("12", "I2S1 and I2S2", "I2S1 和 I2S2"),
                     ("23", "I2S2 and I2S3", "I2S2 和 I2S3"),
                     ("13", "I2S1 and I2S3", "I2S1 和 I2S3")]
            items += [RefSignal("VS_I2S" + k, "", virtual=True) for k, _, _ in pairs]
            items.append(Mode("I2SFullDuplex", ("I2S Full Duplex", "I2S 全双工"), [
                G("I2S" + k, (en, ch), [S("VS_I2S" + k, "")],
                  sems=["$IpInstance_I2S_FULLDUPLEX", "$IpInstance_I2S_FD" + k])
                for k, en, ch in pairs]))
        elif row == "locks":
            items += [Check(en, (en, ch), [], sems=["$IpInstance_" + sem])
                      for en, ch, sem in LOCKS]
    return build_ip(items, mark_virtual=fam.fact("mark_virtual"))


# --------------------------------------------------------------- EXINT --

def exint_file(fam):
    items = []
    for n in range(16):
        line = "EXINT%d" % n
        items.append(Check(line, (line, line), [S(line, "ExternalInterrupt")],
                           sems=["$IpInstance_LINE%d" % n]))
    for n in range(16):
        line = "EXINT%d" % n
        grp = (line, line)
        on = "$IpInstance_LINE%d" % n
        items.append(P(
            "InterruptEvent_" + line, ("Mode", "模式"), grp, "list",
            "EXINT_LINE_INTERRUPUT",
            [V("EXINT_LINE_INTERRUPUT", ("Interrupt", "中断")),
             V("EXINT_LINE_EVENT", ("Event", "事件"))],
            expr=on, desc="Line %d raises an interrupt or only an event." % n))
        items.append(P(
            "TriggerPolarity_" + line, ("Trigger polarity", "触发边沿"), grp,
            "list", "EXINT_TRIGGER_RISING_EDGE",
            [V("EXINT_TRIGGER_RISING_EDGE", ("Rising edge", "上升沿")),
             V("EXINT_TRIGGER_FALLING_EDGE", ("Falling edge", "下降沿")),
             V("EXINT_TRIGGER_BOTH_EDGE", ("Both edges", "双边沿"))],
            expr=on, desc="Edge of the pin that triggers line %d." % n))
    return build_ip(items)
