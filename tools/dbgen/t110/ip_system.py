"""GPIO, NVIC, DMA, CRM, DEBUG, SCFG and EXINT of the MQ48T110."""
import xml.etree.ElementTree as ET

import pins
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


def gpio_defaults(iomode, setting):
    for name, vals in GPIO_MODES.get(iomode, []):
        if name == setting:
            return vals[0]
    return None


def _gpio_pins(root):
    for pin in pins.all_io_pins():
        port = pins.port_of(pin)
        n = pins.pin_number(pin)
        el = ET.SubElement(root, "GPIO_Pin", Name=pin, PortName=port)
        for field, val in (("GPIO_x", "GPIO" + port),
                           ("GPIO_Pin", "GPIO_PINS_%d" % n),
                           ("GPIO_PinSource", "GPIO_PINS_SOURCE%d" % n),
                           ("EXINT_LINE_x", "EXINT_LINE_%d" % n),
                           ("SCFG_GPIO_x", "SCFG_PORT_SOURCE_GPIO" + port),
                           ("SCFG_PINS_SOURCE_x", "SCFG_PINS_SOURCE%d" % n)):
            sp = ET.SubElement(el, "SpecificParameter", Name=field)
            ET.SubElement(sp, "PossibleValue", Value=val)
        for sig, mux in pins.mux_of(pin):
            ps = ET.SubElement(el, "PinSignal", Name=sig)
            sp = ET.SubElement(ps, "SpecificParameter", Name="GPIO_MUX")
            ET.SubElement(sp, "PossibleValue", Value="GPIO_MUX_%d" % mux)


def gpio_file():
    items = []
    for iomode, settings in GPIO_MODES.items():
        items.append(RefMode(iomode, GPIO_MODE_TEXT[iomode],
                             [(n, vals[0], vals) for n, vals in settings],
                             group=GP))
    for name, vals in GPIO_VALUES.items():
        items.append(P(name, GPIO_TEXT[name], GP, "list", vals[0][0],
                       [V(v, (en, ch)) for v, en, ch in vals],
                       desc=GPIO_DESC[name]))
    return build_ip(items, extra=_gpio_pins)


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

GROUP_BITS = range(5)  # NVIC_PRIORITY_GROUP_0 .. 4: preemption bits


def irq_lines():
    """All IRQn rows: (value line, en, ch, condition)."""
    rows = []
    for irq, handler, en, ch, flags, sub in SYSTEM_IRQS:
        rows.append(("%s,%s:0,%s:0,%s" % (irq, flags, sub, handler), en, ch,
                     ""))
    for stem, en, ch, cond in PERIPH_IRQS:
        rows.append(("%s_IRQn,Y,N:N,Y:0,Y:0,%s_IRQHandler" % (stem, stem),
                     en, ch, cond))
    return rows


def nvic_file():
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
    irqs = [V(line, (en, ch), cond=cond) for line, en, ch, cond in irq_lines()]
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
          irq_lines()[0][0], irqs, visible=False,
          desc="Interrupt vectors of the device in vector order: name, "
               "shown, user enable, enabled, preemption editable, default "
               "preemption, sub editable, default sub, handler."),
    ]
    return build_ip(items)


# ----------------------------------------------------------------- DMA --

DM = ("DMA request settings", "DMA 请求设置")
CH = ["DMA1_Channel%d" % n for n in range(1, 6)]
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

DMA_PARAMS = [
    P("Instance", ("Channel", "通道"), DM, "list", "DMA1_Channel1",
      [V(c, (c.replace("_", " "), c.replace("_Channel", " 通道 ")))
       for c in CH], desc="DMA channel that serves the request."),
    P("Direction", ("Direction", "方向"), DM, "list", P2M,
      [V(P2M, ("Peripheral to memory", "外设到存储器")),
       V(M2P, ("Memory to peripheral", "存储器到外设")),
       V(M2M, ("Memory to memory", "存储器到存储器"))],
      desc="Direction of the transfer."),
    P("Priority", ("Priority", "优先级"), DM, "list", "DMA_PRIORITY_LOW",
      [V("DMA_PRIORITY_LOW", ("Low", "低")),
       V("DMA_PRIORITY_MEDIUM", ("Medium", "中")),
       V("DMA_PRIORITY_HIGH", ("High", "高")),
       V("DMA_PRIORITY_VERY_HIGH", ("Very high", "最高"))],
      desc="Arbitration priority between the channels."),
    P("Mode", ("Loop mode", "循环模式"), DM, "list", "FALSE",
      [V("FALSE", ("Normal", "普通")), V("TRUE", ("Circular", "循环"))],
      desc="Circular mode reloads the counter at the end of a block."),
    P("PeriphInc", ("Peripheral increment", "外设地址递增"), DM, "list",
      "FALSE", [V("TRUE", ("Enable", "使能")), V("FALSE", ("Disable", "禁止"))],
      desc="Increment the peripheral address after each transfer."),
    P("MemInc", ("Memory increment", "存储器地址递增"), DM, "list", "TRUE",
      [V("TRUE", ("Enable", "使能")), V("FALSE", ("Disable", "禁止"))],
      desc="Increment the memory address after each transfer."),
    P("PeriphDataAlignment", ("Peripheral data width", "外设数据宽度"), DM,
      "list", "DMA_PERIPHERAL_DATA_WIDTH_BYTE",
      [V("DMA_PERIPHERAL_DATA_WIDTH_" + w, (en, ch)) for w, en, ch in
       ((BYTE, "Byte", "字节"), (HALF, "Half word", "半字"),
        (WORD, "Word", "字"))],
      desc="Width of one peripheral access."),
    P("MemDataAlignment", ("Memory data width", "存储器数据宽度"), DM, "list",
      "DMA_MEMORY_DATA_WIDTH_BYTE",
      [V("DMA_MEMORY_DATA_WIDTH_" + w, (en, ch)) for w, en, ch in
       ((BYTE, "Byte", "字节"), (HALF, "Half word", "半字"),
        (WORD, "Word", "字"))],
      desc="Width of one memory access."),
]


def _request_mode(name, ip, handle, chans, direction, width, circ):
    pw = ["DMA_PERIPHERAL_DATA_WIDTH_" + w for w in (BYTE, HALF, WORD)]
    mw = ["DMA_MEMORY_DATA_WIDTH_" + w for w in (BYTE, HALF, WORD)]
    chs = ["DMA1_Channel%d" % c for c in chans]
    dirs = [direction]
    params = [
        ("IpInstance", "Peripheral", ip, [ip]),
        ("DMA_Handle", "Register block", handle, [handle]),
        ("Instance", "Channel", chs[0], chs),
        ("Direction", "Direction", direction, dirs),
        ("Priority", "Priority", "DMA_PRIORITY_LOW",
         ["DMA_PRIORITY_LOW", "DMA_PRIORITY_MEDIUM", "DMA_PRIORITY_HIGH",
          "DMA_PRIORITY_VERY_HIGH"]),
        ("Mode", "Loop mode", "TRUE" if circ else "FALSE", ["FALSE", "TRUE"]),
        ("PeriphInc", "Peripheral increment", "FALSE",
         ["FALSE", "TRUE"] if ip == "MEMTOMEM" else ["FALSE"]),
        ("MemInc", "Memory increment", "TRUE", ["TRUE", "FALSE"]),
        ("PeriphDataAlignment", "Peripheral data width",
         "DMA_PERIPHERAL_DATA_WIDTH_" + width, pw),
        ("MemDataAlignment", "Memory data width",
         "DMA_MEMORY_DATA_WIDTH_" + width, mw),
    ]
    return RefMode(name, "%s request" % name.replace("_", " "), params,
                   base="DMA_Request", group=DM)


def dma_file():
    items = [_request_mode(*r) for r in DMA_REQUESTS]
    items.append(_request_mode("MEMTOMEM", "MEMTOMEM", "MEMTOMEM",
                               [1, 2, 3, 4, 5], M2M, BYTE, False))
    items.extend(DMA_PARAMS)
    return build_ip(items)


# ----------------------------------------------------------------- CRM --

def crm_file():
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
        Check("CLKOUT", ("CLKOUT", "CLKOUT"),
              [S("CLKOUT", "MuxOutputPushPull")],
              sems=["$IpInstance_CLKOUT"]),
    ]
    return build_ip(items)


# --------------------------------------------------------------- DEBUG --

def debug_file():
    items = [Check("SWD", ("SWD", "SWD"),
                   [S("JTMS_SWDIO", "Debug"), S("JTCK_SWCLK", "Debug")],
                   sems=["$IpInstance_SWD"])]
    return build_ip(items)


# ---------------------------------------------------------------- SCFG --

def scfg_file():
    items = [
        RefSignal("VS_PA11PA12_REMAP", "", virtual=True),
        Check("PA11 PA12 remap", ("PA11 PA12 remap", "PA11 PA12 重映射"),
              [S("VS_PA11PA12_REMAP", "")],
              sems=["$IpInstance_PA11PA12_REMAP"]),
    ]
    return build_ip(items)


# --------------------------------------------------------------- EXINT --

def exint_file():
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
