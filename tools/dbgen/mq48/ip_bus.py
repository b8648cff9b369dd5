"""CAN, USB, SDIO, QSPI, SPIM, the external memory controller (XMC), EMAC and DVP."""
from common import ADV, BASIC, B, H, I, L, T, follow
from model import Check, G, Mode, P, S, V, build_ip

OUT, IN = "MuxOutputPushPull", "MuxInput"
X = "$IpInstance_"
ACTIVE = X + "ACTIVE"
NEED_ACTIVE = (ACTIVE, ("Activate the peripheral first", "请先激活外设"))
# Series whose CAN prescaler has twelve bits; the others have ten.
CAN_WIDE_PRESCALER = {"MQ48T130", "MQ48V130", "MQ48T210", "MQ48T220", "MQ48T510", "MQ48T520"}


def _set(p, **kw):
    p.update(kw)
    return p


# ------------------------------------------------------------------ CAN --

def can_file(fam):
    """CAN 2.0B: bit timing searched from the baud rate and sample point, 14 filters."""
    div_max = 4096 if fam.name in CAN_WIDE_PRESCALER else 1024
    # Defaults the bit timing search meets exactly at the family's default bus clock.
    baud, sample, tolerant, deviation = fam.fact("can", (500, "87.5", "FALSE", "1"))
    modes = [Check("Activated", ("Activated", "激活"), [S("TX", OUT), S("RX", IN)],
                   sems=[ACTIVE])]
    bt = ("Bit Timing", "位时序")
    tol = X + "TOLERANCE"
    p = [
        I("BaudRate", ("Baud Rate", "波特率"), bt, baud, 1, 1000, unit="kbit/s",
          desc="Wanted bit rate; the search may move it to the nearest reachable one."),
        P("Sample_Point", ("Sample Point", "采样点"), bt, "double", sample, mn="50",
          mx="90", unit="%", desc="Position of the sample point in the bit, in percent; "
                                  "set from the baud rate and moved by the search."),
        L("BaudRate_Deviation_Tolerance", ("Allow Deviation", "允许偏差"), bt, tolerant,
          [("FALSE", "Exact rate only", "仅精确速率"),
           ("TRUE", "Within the deviation", "偏差范围内", tol)],
          desc="Accept rates that miss the wanted one by the deviation below."),
        P("BaudRate_Deviation", ("Deviation", "偏差"), bt, "double", deviation, mn="0", mx="5",
          unit="%", expr=tol, desc="Largest accepted deviation of the rate, in percent."),
        P("BaudRate_Result_Select", ("Timing Solution", "时序方案"), bt, "list", "0",
          [V("0", ("Not searched yet", "尚未搜索"))],
          desc="Solutions of the search; each sets the prescaler and the segments."),
        _set(I("BaudRate_Division", ("Prescaler", "分频系数"), bt, 6, 1, div_max,
               desc="Clock prescaler of the chosen solution."), enable=False),
        _set(I("BTS1", ("Time Segment 1", "时间段 1"), bt, 13, 1, 16,
               desc="Quanta before the sample point (after the sync quantum)."),
             enable=False),
        _set(I("BTS2", ("Time Segment 2", "时间段 2"), bt, 2, 1, 8,
               desc="Quanta after the sample point."), enable=False),
        L("RSAW", ("Resynchronization Jump Width", "重同步跳跃宽度"), bt, "1",
          [(str(k), "%d quanta" % k, "%d 个时间份额" % k) for k in range(1, 5)],
          desc="Quanta a resynchronisation may move the sample point; limited by the "
               "solution."),
        L("CAN_Mode", ("Operating Mode", "工作模式"), BASIC, "CAN_MODE_COMMUNICATE",
          [("CAN_MODE_COMMUNICATE", "Normal", "正常"),
           ("CAN_MODE_LOOPBACK", "Loopback", "回环"),
           ("CAN_MODE_LISTENONLY", "Listen only", "仅监听"),
           ("CAN_MODE_LISTENONLY_LOOPBACK", "Listen only with loopback", "监听回环")],
          desc="Normal bus operation or one of the test modes."),
        B("TTC_mode", ("Time Triggered Mode", "时间触发模式"), BASIC,
          desc="Stamp messages with the time of their start of frame."),
        B("Auto_Exit_Bus-off", ("Automatic Bus-off Recovery", "自动离线恢复"), BASIC,
          desc="Leave the bus-off state by itself after 128 idle sequences."),
        B("Auto_Exit_Doze", ("Automatic Wake-up", "自动唤醒"), BASIC,
          desc="Leave the sleep mode when bus activity is seen."),
        B("Prohibit_Retrans", ("No Automatic Retransmission", "禁止自动重发"), BASIC,
          desc="Send each message once, whatever the outcome."),
        L("Message_Discarding_Rule", ("Receive FIFO Full", "接收 FIFO 满"), BASIC, "FALSE",
          [("FALSE", "Overwrite the last message", "覆盖最后一条消息"),
           ("TRUE", "Discard the new message", "丢弃新消息")],
          desc="What a full receive FIFO does with a new message."),
        L("Transmit_Sequence_Rule", ("Transmit Order", "发送顺序"), BASIC, "FALSE",
          [("FALSE", "By identifier", "按标识符"), ("TRUE", "By request order", "按请求顺序")],
          desc="Which pending mailbox is sent first."),
    ]
    fg = ("Filters", "过滤器")
    p.append(L("Filter_Num", ("Number of Filters", "过滤器数量"), fg, "0",
               [(str(k), str(k), str(k), X + "FILTER_NUM=%d" % k) for k in range(15)],
               desc="Filters in use; without any, every message is received."))
    for k in range(14):
        g = ("Filter %d" % k, "过滤器 %d" % k)
        e = X + "FILTER_NUM>%d" % k
        f = "Filter_%d_" % k
        p += [
            B(f + "Enable", ("Enable", "使能"), g, "TRUE", expr=e,
              desc="Filter %d takes part in the acceptance." % k),
            L(f + "FIFO_select", ("FIFO", "FIFO"), g, "CAN_FILTER_FIFO0",
              [("CAN_FILTER_FIFO0", "FIFO 0", "FIFO 0"), ("CAN_FILTER_FIFO1", "FIFO 1",
                                                           "FIFO 1")], expr=e,
              desc="Receive FIFO of the accepted messages."),
            L(f + "Mode", ("Mode", "模式"), g, "CAN_FILTER_MODE_ID_MASK",
              [("CAN_FILTER_MODE_ID_MASK", "Identifier and mask", "标识符掩码"),
               ("CAN_FILTER_MODE_ID_LIST", "Identifier list", "标识符列表")], expr=e,
              desc="Compare through a mask or against a list."),
            L(f + "Frame_Type", ("Frame Type", "帧类型"), g, "Data_frame",
              [("Data_frame", "Data frames", "数据帧"),
               ("Remote_frame", "Remote frames", "远程帧"),
               ("Data_Remote_frame", "Data and remote frames", "数据帧和远程帧")], expr=e,
              desc="Frames that pass."),
            L(f + "Identifier_Type", ("Identifier Type", "标识符类型"), g,
              "Standard_Identifier",
              [("Standard_Identifier", "Standard (11 bit)", "标准（11 位）"),
               ("Extended_Identifier", "Extended (29 bit)", "扩展（29 位）")], expr=e,
              desc="Length of the identifiers compared."),
            H(f + "ID1", ("Identifier", "标识符"), g, "00000000", "1FFFFFFF", expr=e,
              desc="Identifier compared."),
            H(f + "Mask1", ("Mask or Second Identifier", "掩码或第二标识符"), g, "00000000",
              "1FFFFFFF", expr=e,
              desc="Mask bits that must match, or a second identifier in list mode."),
        ]
    return build_ip(modes + p)


# ------------------------------------------------------------------ USB --

def usb_file(fam, stem):
    """USB device (USBFS) or OTG: data lines with the block, VBUS, ID and SOF optional."""
    modes = [Check("Activated", ("Activated", "激活"), [S("DM", OUT), S("DP", OUT)],
                   sems=[ACTIVE])]
    if stem != "USBFS":
        modes += [
            Check("VBUS Sensing", ("VBUS Sensing", "VBUS 检测"), [S("VBUS", IN)],
                  sems=[X + "VBUS"], cond=NEED_ACTIVE),
            Check("ID Pin (OTG)", ("ID Pin (OTG)", "ID 引脚（OTG）"), [S("ID", IN)],
                  sems=[X + "ID"], cond=NEED_ACTIVE),
            Check("SOF Output", ("SOF Output", "SOF 输出"), [S("SOF", OUT)],
                  sems=[X + "SOF"], cond=NEED_ACTIVE),
        ]
    return build_ip(modes)


def acc_file(fam):
    """Automatic calibration of the HICK from the USB start-of-frame pulses."""
    routes = fam.fact("routes", {})
    usbs = [i for i in fam.instances() if i.startswith("USB") and "ACC" in routes.get(i, ())]
    cond = "|".join(u + "_ACTIVE" for u in usbs) + "&CRM_USB_CLOCK_SOURCE_HICK"
    modes = [Check("Activated", ("Activated", "激活"), [], sems=[ACTIVE],
                   cond=(cond, ("Needs an active USB clocked from the HICK",
                                "需要 USB 激活且由 HICK 提供时钟")))]
    g = ("Calibration", "校准")
    p = [
        L("Enable_Trim", ("Calibration Step", "校准方式"), g, "ACC_CAL_HICKTRIM",
          [("ACC_CAL_HICKCAL", "Coarse (calibration value)", "粗调（校准值）"),
           ("ACC_CAL_HICKTRIM", "Fine (trim value)", "细调（微调值）")],
          desc="Which HICK register the calibration adjusts."),
    ]
    otg = [u for u in usbs if u.startswith("USB_OTGFS")]
    if len(otg) > 1:
        p.append(L("SOF_Select", ("SOF Source", "SOF 来源"), g, "ACC_SOF_OTGFS1",
                   [("ACC_SOF_" + u[4:], u, u) for u in otg],
                   desc="USB block whose frames time the calibration."))
    p += [
        I("Compare_1", ("Lower Limit", "下限"), g, 7980, 0, 65535,
          desc="HICK cycles per frame below which the clock is raised."),
        I("Compare_2", ("Centre", "中心值"), g, 8000, 0, 65535,
          desc="HICK cycles per frame that the calibration aims at."),
        I("Compare_3", ("Upper Limit", "上限"), g, 8020, 0, 65535,
          desc="HICK cycles per frame above which the clock is lowered."),
    ]
    return build_ip(modes + p)


# ----------------------------------------------------------------- SDIO --

def sdio_file(fam):
    modes = [Mode("Mode", ("Mode", "模式"), [
        G("SD 1 bit", ("SD 1 bit", "SD 1 位"), [S("CK", OUT), S("CMD", OUT), S("D0", OUT)],
          sems=[X + "BUS1"]),
        G("SD 4 bits Wide bus", ("SD 4 bits Wide bus", "SD 4 位宽总线"),
          [S("CK", OUT), S("CMD", OUT), S("D0--D3", OUT)], sems=[X + "BUS4"]),
        G("MMC 8 bits Wide bus", ("MMC 8 bits Wide bus", "MMC 8 位宽总线"),
          [S("CK", OUT), S("CMD", OUT), S("D0--D7", OUT)], sems=[X + "BUS8"]),
    ])]
    byp = X + "BYPASS"
    p = [
        follow("BusWide", ("Bus Width", "总线宽度"), BASIC, [
            ("SDIO_BUS_WIDTH_D1", "1 bit", "1 位", X + "BUS1"),
            ("SDIO_BUS_WIDTH_D4", "4 bits", "4 位", X + "BUS4"),
            ("SDIO_BUS_WIDTH_D8", "8 bits", "8 位", X + "BUS8")],
            desc="Follows the mode."),
        L("Clock_divider_bypass", ("Clock Divider Bypass", "时钟分频旁路"), BASIC, "FALSE",
          [("FALSE", "Divide", "分频"), ("TRUE", "Bypass", "旁路", byp)],
          desc="Give the card the SDIO clock undivided."),
        I("Clock_division", ("Clock Divider", "时钟分频系数"), BASIC, 118, 0, 1021,
          expr="!" + byp, desc="Card clock = SDIO clock / (divider + 2)."),
        T("ClockFrequency", ("Card Clock", "卡时钟"), BASIC,
          desc="Clock of the card in Hz."),
        L("SDIO_CK_edge", ("Clock Edge", "时钟边沿"), BASIC, "SDIO_CLOCK_EDGE_RISING",
          [("SDIO_CLOCK_EDGE_RISING", "Rising", "上升沿"),
           ("SDIO_CLOCK_EDGE_FALLING", "Falling", "下降沿")],
          desc="Edge of the SDIO clock on which the card clock changes."),
        B("Hardware_flow_control", ("Hardware Flow Control", "硬件流控"), ADV,
          desc="Stop the card clock while the FIFO is full or empty."),
        B("Power_saving_mode", ("Power Saving", "省电模式"), ADV,
          desc="Run the card clock only while the bus is busy."),
    ]
    return build_ip(modes + p)


# ----------------------------------------------------------------- QSPI --

def qspi_file(fam):
    modes = [Mode("Mode", ("Mode", "模式"), [
        G("Single line", ("Single line", "单线"),
          [S("SCK", OUT), S("CS", OUT), S("IO0", OUT), S("IO1", IN)], sems=[X + "LINE1"]),
        G("Dual line", ("Dual line", "双线"),
          [S("SCK", OUT), S("CS", OUT), S("IO0", OUT), S("IO1", OUT)], sems=[X + "LINE2"]),
        G("Quad line", ("Quad line", "四线"),
          [S("SCK", OUT), S("CS", OUT), S("IO0--IO3", OUT)], sems=[X + "LINE4"]),
    ])]
    p = [
        L("ClkDivision", ("Clock Division", "时钟分频"), BASIC, "QSPI_CLK_DIV_4",
          [("QSPI_CLK_DIV_%d" % d, str(d), str(d)) for d in (2, 3, 4, 6, 8, 10, 12, 14, 16)],
          desc="Divider of the AHB clock to SCK."),
        L("SckMode", ("Clock Mode", "时钟模式"), BASIC, "QSPI_SCK_MODE_0",
          [("QSPI_SCK_MODE_0", "Mode 0 (idle low)", "模式 0（空闲低）"),
           ("QSPI_SCK_MODE_3", "Mode 3 (idle high)", "模式 3（空闲高）")],
          desc="Idle level and sampling edge of SCK."),
        L("CSHighCycles", ("CS High Time", "片选高电平时间"), BASIC,
          "QSPI_CS_HIGH_CYCLES_2",
          [("QSPI_CS_HIGH_CYCLES_%d" % c, "%d cycles" % c, "%d 个周期" % c)
           for c in range(1, 9)], desc="Shortest time between two commands."),
        L("CommandPort", ("Access", "访问方式"), BASIC, "QSPI_CMD_PORT",
          [("QSPI_CMD_PORT", "Commands by program", "程序发送命令"),
           ("QSPI_XIP_PORT", "Memory mapped (XIP)", "存储器映射（XIP）")],
          desc="Send commands by program, or read the flash as memory."),
        B("XIPPrefetch", ("Prefetch", "预取"), ADV,
          expr=X + "LINE4|" + X + "LINE2|" + X + "LINE1",
          desc="Fetch the next words ahead in memory-mapped mode."),
    ]
    return build_ip(modes + p)


def spim_file(fam):
    modes = [Check("Activated", ("Activated", "激活"),
                   [S("SCK", OUT), S("CS", OUT), S("IO0--IO3", OUT)], sems=[ACTIVE])]
    g = ("External Program Flash", "外部程序闪存")
    p = [
        L("Type", ("Flash Type", "闪存类型"), g, "FLASH_SPIM_MODEL1",
          [("FLASH_SPIM_MODEL1", "Type 1 (4 KB sectors)", "类型 1（4 KB 扇区）"),
           ("FLASH_SPIM_MODEL2", "Type 2 (64 KB sectors)", "类型 2（64 KB 扇区）")],
          desc="Command set of the external flash."),
        H("FLASH_DA", ("Encrypted Range End", "加密范围结束地址"), g, "00000000",
          "FFFFFFFF", desc="Offset up to which the external flash is encrypted; 0 for none."),
        T("ClockSpeed", ("Clock", "时钟"), g, desc="SCK frequency in Hz."),
    ]
    return build_ip(modes + p)


# ------------------------------------------------------------------ XMC --

def _times(group, expr, names):
    return [I(n, (en, ch), group, d, lo, hi, unit="HCLK", expr=expr, desc=desc)
            for n, en, ch, d, lo, hi, desc in names]


def _width(mode_sems, lines=16):
    items = [G("8 bits", ("8 bits", "8 位"), [S("D0--D7", OUT)], sems=[mode_sems[0]])]
    if lines == 16:
        items.append(G("16 bits", ("16 bits", "16 位"), [S("D0--D15", OUT)],
                       sems=[mode_sems[1]]))
    return items


def _address_lines(fam, most=26):
    """Address lines A0 upwards that stand on some pin of the family."""
    have = fam.pins.all_signals()
    n = 0
    while n < most and "XMC_A%d" % n in have:
        n += 1
    return n


def xmc_nor_file(fam, stem, insts):
    """One NOR/PSRAM/SRAM/ROM/LCD subbank: its chip select, the type, the data width and
    the address lines."""
    n = int(stem[3:])
    sram = "SRAM" in insts[0]
    kinds = [("NOR", "NOR Flash", "NOR 闪存"), ("PSRAM", "PSRAM", "PSRAM")]
    if sram:
        kinds += [("SRAM", "SRAM", "SRAM"), ("ROM", "ROM", "ROM")]
    kinds.append(("LCD", "LCD Interface", "LCD 接口"))
    d8, d16 = X + "D8", X + "D16"
    modes = [
        Check("Chip Select", ("Chip Select NE%d" % n, "片选 NE%d" % n),
              [S("NE%d" % n, OUT), S("NOE", OUT), S("NWE", OUT)], sems=[ACTIVE]),
        Mode("Memory Type", ("Memory Type", "存储器类型"),
             [G(k, (en, ch), [], sems=[X + k]) for k, en, ch in kinds], cond=NEED_ACTIVE),
        Mode("Data", ("Data", "数据"), _width((d8, d16)), cond=NEED_ACTIVE),
        Mode("Address", ("Address", "地址"),
             [G("%d bits" % b, ("%d bits" % b, "%d 位" % b),
                [S("A0" if b == 1 else "A0--A%d" % (b - 1), OUT)], sems=[X + "ADDR"])
              for b in range(1, _address_lines(fam) + 1)], cond=NEED_ACTIVE),
        Check("Wait", ("NWAIT Signal", "NWAIT 信号"), [S("NWAIT", IN)], sems=[X + "WAIT"],
              cond=NEED_ACTIVE),
        Check("Byte Enable", ("Byte Enable NBL0 NBL1", "字节使能 NBL0 NBL1"),
              [S("NBL0", OUT), S("NBL1", OUT)], sems=[X + "NBL"], cond=NEED_ACTIVE),
        Check("Address Valid", ("Address Valid NADV", "地址有效 NADV"), [S("NADV", OUT)],
              sems=[X + "NADV"], cond=NEED_ACTIVE),
    ]
    g = ("NOR/SRAM Control", "NOR/SRAM 控制")
    tg = ("Read Timing", "读时序")
    wg = ("Write Timing", "写时序")
    ext = X + "EXTENDED"
    lcd = X + "LCD"
    dev = {"NOR": "XMC_DEVICE_NOR", "PSRAM": "XMC_DEVICE_PSRAM", "SRAM": "XMC_DEVICE_SRAM",
           "ROM": "XMC_DEVICE_ROM", "LCD": "XMC_DEVICE_SRAM"}
    p = [
        L("Bank", ("Bank", "存储块"), g, "XMC_BANK1_NOR_SRAM%d" % n,
          [("XMC_BANK1_NOR_SRAM%d" % n, "Bank 1, subbank %d" % n, "块 1 子块 %d" % n)],
          desc="Address range 0x6%X000000 of the subbank." % (4 * (n - 1))),
        follow("Memory_type", ("Memory Type", "存储器类型"), g,
               [(dev[k], en, ch, X + k) for k, en, ch in kinds],
               desc="Follows the memory type mode; an LCD is driven as SRAM."),
        follow("Data_size", ("Data Width", "数据宽度"), g, [
            ("XMC_BUSTYPE_8_BITS", "8 bits", "8 位", d8),
            ("XMC_BUSTYPE_16_BITS", "16 bits", "16 位", d16)],
            desc="Follows the data mode."),
        L("LCD_RS_line", ("LCD Register Select", "LCD 寄存器选择"), g, "A0",
          [("A%d" % a, "A%d" % a, "A%d" % a) for a in range(26)], expr=lcd,
          desc="Address line wired to the RS input of the LCD; it sets the data address."),
        follow("Wait_signal", ("Wait Signal", "等待信号"), g, [
            ("FALSE", "Disable", "禁止", "!" + X + "WAIT"),
            ("TRUE", "Enable", "使能", X + "WAIT")], desc="Follows the NWAIT mode."),
        L("Wait_polarity", ("Wait Polarity", "等待极性"), g, "XMC_WAIT_SIGNAL_LEVEL_LOW",
          [("XMC_WAIT_SIGNAL_LEVEL_LOW", "Low", "低"),
           ("XMC_WAIT_SIGNAL_LEVEL_HIGH", "High", "高")], expr=X + "WAIT",
          desc="Level of NWAIT that holds the access."),
        B("Write_operation", ("Write Operation", "写操作"), g, "TRUE",
          desc="Allow writes to the memory."),
        B("Extended_mode", ("Extended Mode", "扩展模式"), g, sems=(ext, None),
          desc="Use separate timings for reads and writes."),
    ]
    p += _times(tg, None, [
        ("Address_setup_time", "Address Setup Time", "地址建立时间", 15, 0, 15,
         "HCLK cycles from address to NOE or NWE."),
        ("Address_hold_time", "Address Hold Time", "地址保持时间", 15, 1, 15,
         "HCLK cycles the address stays after NADV (multiplexed mode)."),
        ("Data_setup_time", "Data Setup Time", "数据建立时间", 255, 1, 255,
         "HCLK cycles of the data phase."),
        ("Bus_turnaround", "Bus Turnaround", "总线恢复时间", 15, 0, 15,
         "HCLK cycles between two accesses."),
    ])
    p += _times(wg, ext, [
        ("Address_setup_time_W", "Address Setup Time", "地址建立时间", 15, 0, 15,
         "Write: HCLK cycles from address to NWE."),
        ("Address_hold_time_W", "Address Hold Time", "地址保持时间", 15, 1, 15,
         "Write: HCLK cycles the address stays after NADV."),
        ("Data_setup_time_W", "Data Setup Time", "数据建立时间", 255, 1, 255,
         "Write: HCLK cycles of the data phase."),
        ("Bus_turnaround_W", "Bus Turnaround", "总线恢复时间", 15, 0, 15,
         "Write: HCLK cycles between two accesses."),
    ])
    return build_ip(modes + p)


def xmc_nand_file(fam, stem, insts):
    """A NAND flash bank: chip select, command and address latches, data width, ready."""
    bank = 3 if stem.endswith("2") else 2
    ready = "INT2" if bank == 2 else "NWAIT"
    d8, d16 = X + "D8", X + "D16"
    modes = [
        Check("NAND Flash", ("NAND Flash NCE%d" % bank, "NAND 闪存 NCE%d" % bank),
              [S("NCE%d" % bank, OUT), S("NOE", OUT), S("NWE", OUT), S("A16", OUT),
               S("A17", OUT)], sems=[ACTIVE]),
        Mode("Data", ("Data", "数据"), _width((d8, d16)), cond=NEED_ACTIVE),
        Check("Ready or Busy", ("Ready or Busy %s" % ready, "就绪或忙 %s" % ready),
              [S(ready, IN)], sems=[X + "READY"], cond=NEED_ACTIVE),
    ]
    g = ("NAND Control", "NAND 控制")
    ecc = X + "ECC"
    tg = ("NAND Timing", "NAND 时序")
    p = [
        L("Bank", ("Bank", "存储块"), g, "XMC_BANK%d_NAND" % bank,
          [("XMC_BANK%d_NAND" % bank, "Bank %d" % bank, "块 %d" % bank)],
          desc="NAND bank of the instance."),
        follow("Data_size", ("Data Width", "数据宽度"), g, [
            ("XMC_BUSTYPE_8_BITS", "8 bits", "8 位", d8),
            ("XMC_BUSTYPE_16_BITS", "16 bits", "16 位", d16)],
            desc="Follows the data mode."),
        follow("Wait_feature", ("Wait Feature", "等待功能"), g, [
            ("FALSE", "Disable", "禁止", "!" + X + "READY"),
            ("TRUE", "Enable", "使能", X + "READY")], desc="Follows the ready mode."),
        B("ECC", ("ECC", "ECC"), g, sems=(ecc, None), desc="Compute the page ECC."),
        L("ECC_page_size", ("ECC Page Size", "ECC 页大小"), g, "XMC_ECC_PAGESIZE_512_BYTES",
          [("XMC_ECC_PAGESIZE_%d_BYTES" % b, "%d bytes" % b, "%d 字节" % b)
           for b in (256, 512, 1024, 2048, 4096, 8192)], expr=ecc,
          desc="Bytes over which one ECC is computed."),
        I("CLE_to_RE_delay", ("CLE to RE Delay", "CLE 到 RE 延时"), g, 0, 0, 15,
          unit="HCLK", desc="HCLK cycles from CLE low to RE low."),
        I("ALE_to_RE_delay", ("ALE to RE Delay", "ALE 到 RE 延时"), g, 0, 0, 15,
          unit="HCLK", desc="HCLK cycles from ALE low to RE low."),
    ]
    p += _times(tg, None, [
        ("Setup_time", "Setup Time", "建立时间", 252, 0, 255, "HCLK cycles before NOE/NWE."),
        ("Wait_setup_time", "Wait Time", "等待时间", 252, 1, 255, "HCLK cycles of NOE/NWE."),
        ("Hold_setup_time", "Hold Time", "保持时间", 252, 0, 255,
         "HCLK cycles the address stays after NOE/NWE."),
        ("HiZ_setup_time", "High-Z Time", "高阻时间", 252, 0, 255,
         "HCLK cycles the data bus stays driven after a write."),
    ])
    return build_ip(modes + p)


def xmc_pccard_file(fam, stem, insts):
    modes = [
        Check("PC Card", ("PC Card NCE4_1", "PC 卡 NCE4_1"),
              [S("NCE4_1", OUT), S("NOE", OUT), S("NWE", OUT), S("NIORD", OUT),
               S("NIOWR", OUT), S("NREG", OUT), S("A0--A10", OUT)], sems=[ACTIVE]),
        Mode("Data", ("Data", "数据"), _width((X + "D8", X + "D16")), cond=NEED_ACTIVE),
        Check("Card Detect", ("Card Detect CD", "卡检测 CD"), [S("CD", IN)],
              sems=[X + "CD"], cond=NEED_ACTIVE),
        Check("Interrupt", ("Interrupt INTR", "中断 INTR"), [S("INTR", IN)],
              sems=[X + "INTR"], cond=NEED_ACTIVE),
    ]
    p = [L("Bank", ("Bank", "存储块"), ("PC Card Control", "PC 卡控制"), "XMC_BANK4_PCCARD",
           [("XMC_BANK4_PCCARD", "Bank 4", "块 4")], desc="PC card bank.")]
    for space, en, ch in (("Common", "Common Space", "通用空间"),
                          ("Attribute", "Attribute Space", "属性空间"),
                          ("IO", "I/O Space", "I/O 空间")):
        p += _times((en + " Timing", ch + "时序"), None, [
            (space + "_setup_time", "Setup Time", "建立时间", 252, 0, 255,
             "HCLK cycles before the strobe."),
            (space + "_wait_time", "Wait Time", "等待时间", 252, 1, 255,
             "HCLK cycles of the strobe."),
            (space + "_hold_time", "Hold Time", "保持时间", 252, 0, 255,
             "HCLK cycles after the strobe."),
            (space + "_hiz_time", "High-Z Time", "高阻时间", 252, 0, 255,
             "HCLK cycles the data bus stays driven after a write."),
        ])
    return build_ip(modes + p)


def xmc_sdram_file(fam, stem, insts):
    """An SDRAM bank: its chip select and clock enable, data width, row address lines,
    internal banks (A14, A15) and byte lanes."""
    n = int(stem[-1])
    cs = "SDNE%d" % (n - 1)
    cke = "SDCKE%d" % (n - 1)
    d8, d16 = X + "D8", X + "D16"
    modes = [
        Check("SDRAM", ("SDRAM %s %s" % (cs, cke), "SDRAM %s %s" % (cs, cke)),
              [S(cs, OUT), S(cke, OUT), S("SDCLK", OUT), S("SDNWE", OUT), S("NRAS", OUT),
               S("NCAS", OUT)], sems=[ACTIVE]),
        Mode("Data", ("Data", "数据"), _width((d8, d16)), cond=NEED_ACTIVE),
        Mode("Row Address", ("Row Address", "行地址"),
             [G("%d bits" % b, ("%d bits" % b, "%d 位" % b), [S("A0--A%d" % (b - 1), OUT)],
                sems=[X + "ROW%d" % b]) for b in (11, 12, 13)], cond=NEED_ACTIVE),
        Mode("Internal Banks", ("Internal Banks", "内部块"), [
            G("2 banks", ("2 banks (A14)", "2 块（A14）"), [S("A14", OUT)],
              sems=[X + "BANKS2"]),
            G("4 banks", ("4 banks (A14 A15)", "4 块（A14 A15）"),
              [S("A14", OUT), S("A15", OUT)], sems=[X + "BANKS4"])], cond=NEED_ACTIVE),
        Check("Byte Enable", ("Byte Enable NBL0 NBL1", "字节使能 NBL0 NBL1"),
              [S("NBL0", OUT), S("NBL1", OUT)], sems=[X + "NBL"], cond=NEED_ACTIVE),
    ]
    g = ("SDRAM Control", "SDRAM 控制")
    tg = ("SDRAM Timing", "SDRAM 时序")
    p = [
        L("Bank", ("Bank", "存储块"), g, "XMC_SDRAM_BANK%d" % n,
          [("XMC_SDRAM_BANK%d" % n, "SDRAM bank %d" % n, "SDRAM 块 %d" % n)],
          desc="SDRAM bank of the instance."),
        L("Column_address", ("Column Address", "列地址"), g, "XMC_COLUMN_8",
          [("XMC_COLUMN_%d" % b, "%d bits" % b, "%d 位" % b) for b in (8, 9, 10, 11)],
          desc="Column address bits of the memory."),
        follow("Row_address", ("Row Address", "行地址"), g,
               [("XMC_ROW_%d" % b, "%d bits" % b, "%d 位" % b, X + "ROW%d" % b)
                for b in (11, 12, 13)], desc="Follows the row address mode."),
        follow("Data_size", ("Data Width", "数据宽度"), g, [
            ("XMC_MEM_WIDTH_8", "8 bits", "8 位", d8),
            ("XMC_MEM_WIDTH_16", "16 bits", "16 位", d16)], desc="Follows the data mode."),
        follow("Internal_banks", ("Internal Banks", "内部块"), g, [
            ("XMC_INBK_2", "2", "2", X + "BANKS2"), ("XMC_INBK_4", "4", "4", X + "BANKS4")],
            desc="Follows the internal banks mode."),
        L("CAS_latency", ("CAS Latency", "CAS 延迟"), g, "XMC_CAS_2",
          [("XMC_CAS_%d" % c, "%d cycles" % c, "%d 个周期" % c) for c in (1, 2, 3)],
          desc="Clock cycles from a read command to the data."),
        L("Clock_divider", ("SDRAM Clock", "SDRAM 时钟"), g, "XMC_CLKDIV_2",
          [("XMC_CLKDIV_2", "HCLK / 2", "HCLK / 2"), ("XMC_CLKDIV_3", "HCLK / 3",
                                                      "HCLK / 3")],
          desc="Divider of the AHB clock to SDCLK."),
        B("Read_burst", ("Read Burst", "读突发"), g, desc="Read whole bursts."),
        L("Read_delay", ("Read Delay", "读延迟"), g, "XMC_READ_DELAY_0",
          [("XMC_READ_DELAY_%d" % d, "%d cycles" % d, "%d 个周期" % d) for d in (0, 1, 2)],
          desc="Extra HCLK cycles before the read data are taken."),
        B("Write_protection", ("Write Protection", "写保护"), g,
          desc="Refuse writes to the bank."),
    ]
    p += [I(nm, (en, ch), tg, d, 1, 16, unit="SDCLK", desc=desc) for nm, en, ch, d, desc in (
        ("TMRD", "Load Mode Register to Active", "加载模式寄存器到激活", 2,
         "Cycles after a mode register write."),
        ("TXSR", "Exit Self-refresh Delay", "退出自刷新延迟", 7, "Cycles after self-refresh."),
        ("TRAS", "Self-refresh Time", "自刷新时间", 4, "Shortest self-refresh."),
        ("TRC", "Row Cycle Delay", "行周期延迟", 7, "Cycles between two activations."),
        ("TWR", "Write Recovery Time", "写恢复时间", 2, "Cycles after a write."),
        ("TRP", "Row Precharge Delay", "行预充电延迟", 2, "Cycles of a precharge."),
        ("TRCD", "Row to Column Delay", "行到列延迟", 2, "Cycles from activation to access."),
    )]
    return build_ip(modes + p)


# ----------------------------------------------------------------- EMAC --

# Written out: a range keeps only the letters next to the number ("TXD"), not "MII_".
MII = ["MII_TX_CLK", "MII_TXD0", "MII_TXD1", "MII_TXD2", "MII_TXD3", "MII_TX_EN",
       "MII_RX_CLK", "MII_RXD0", "MII_RXD1", "MII_RXD2", "MII_RXD3", "MII_RX_DV", "MII_RX_ER",
       "MII_CRS", "MII_COL", "MDC", "MDIO"]
RMII = ["RMII_REF_CLK", "RMII_TXD0", "RMII_TXD1", "RMII_TX_EN", "RMII_RXD0", "RMII_RXD1",
        "RMII_CRS_DV", "MDC", "MDIO"]


def _emac_signal(short):
    io = IN if any(k in short for k in ("RX", "CRS", "COL", "CLK")) else OUT
    return S(short, io)


def emac_file(fam):
    modes = [
        Mode("Mode", ("Mode", "模式"), [
            G("MII", ("MII", "MII"), [_emac_signal(s) for s in MII], sems=[X + "MII"]),
            G("RMII", ("RMII", "RMII"), [_emac_signal(s) for s in RMII], sems=[X + "RMII"]),
        ]),
        Check("PPS Output", ("PPS Output", "PPS 输出"), [S("PPS_OUT", OUT)],
              sems=[X + "PPS"]),
    ]
    g = ("Ethernet", "以太网")
    auto = X + "AUTONEG"
    p = [
        follow("Interface", ("PHY Interface", "PHY 接口"), g, [
            ("EMAC_MEDIA_INTERFACE_MII", "MII", "MII", X + "MII"),
            ("EMAC_MEDIA_INTERFACE_RMII", "RMII", "RMII", X + "RMII")],
            desc="Follows the mode."),
        I("PhyAddress", ("PHY Address", "PHY 地址"), g, 0, 0, 31,
          desc="Address of the PHY on the management bus."),
        P("MACAddress", ("MAC Address", "MAC 地址"), g, "mac address", "00:00:44:45:56:01",
          desc="Station address of the interface, six bytes in hexadecimal."),
        L("AutoNegotiation", ("Auto-negotiation", "自动协商"), g, "TRUE",
          [("TRUE", "Enable", "使能"), ("FALSE", "Disable", "禁止", auto)],
          desc="Let the PHY agree on speed and duplex with its partner."),
        L("Speed", ("Speed", "速率"), g, "EMAC_SPEED_100MBPS",
          [("EMAC_SPEED_100MBPS", "100 Mbit/s", "100 Mbit/s"),
           ("EMAC_SPEED_10MBPS", "10 Mbit/s", "10 Mbit/s")], expr=auto,
          desc="Speed without auto-negotiation."),
        L("Duplex", ("Duplex", "双工"), g, "EMAC_FULL_DUPLEX",
          [("EMAC_FULL_DUPLEX", "Full duplex", "全双工"),
           ("EMAC_HALF_DUPLEX", "Half duplex", "半双工")], expr=auto,
          desc="Duplex without auto-negotiation."),
        B("ChecksumOffload", ("Checksum Offload", "校验和卸载"), ADV, "TRUE",
          desc="Compute and check IP, TCP and UDP checksums in hardware."),
        L("ReceiveMode", ("Receive Mode", "接收方式"), ADV, "EMAC_RX_INTERRUPT",
          [("EMAC_RX_INTERRUPT", "Interrupt", "中断"), ("EMAC_RX_POLLING", "Polling", "轮询")],
          desc="How received frames are noticed."),
        B("PTP", ("Precision Time Protocol", "精确时间协议"), ADV,
          desc="Keep the IEEE 1588 system time and stamp frames."),
    ]
    return build_ip(modes + p)


# ------------------------------------------------------------------ DVP --

def dvp_file(fam):
    sync = [S("HSYNC", IN), S("VSYNC", IN), S("PCLK", IN)]
    widths = [(8, "D0--D7"), (10, "D0--D9"), (12, "D0--D11"), (14, "D0--D13")]
    groups = [G("Slave %d bits External Synchro" % w,
                ("Slave %d bits External Synchro" % w, "从机 %d 位外部同步" % w),
                [S(d, IN)] + sync, sems=[X + "W%d" % w]) for w, d in widths]
    groups.append(G("Slave 8 bits Embedded Synchro", ("Slave 8 bits Embedded Synchro",
                                                      "从机 8 位嵌入同步"),
                    [S("D0--D7", IN), S("PCLK", IN)], sems=[X + "W8", X + "EMBEDDED"]))
    modes = [Mode("Mode", ("Mode", "模式"), groups)]
    g = ("Capture", "采集")
    emb = X + "EMBEDDED"
    crop = X + "CROP"
    p = [
        follow("DataWidth", ("Data Width", "数据宽度"), g,
               [("DVP_PDL_%d" % w, "%d bits" % w, "%d 位" % w, X + "W%d" % w)
                for w, _ in widths], desc="Follows the mode."),
        L("CaptureMode", ("Capture Mode", "采集模式"), g, "DVP_CAP_FUNC_MODE_CONTINUOUS",
          [("DVP_CAP_FUNC_MODE_CONTINUOUS", "Continuous", "连续"),
           ("DVP_CAP_FUNC_MODE_SINGLE", "Single frame", "单帧")],
          desc="Capture frames until stopped, or one frame."),
        L("PclkPolarity", ("Pixel Clock Edge", "像素时钟边沿"), g, "DVP_CLK_POLARITY_RISING",
          [("DVP_CLK_POLARITY_RISING", "Rising", "上升沿"),
           ("DVP_CLK_POLARITY_FALLING", "Falling", "下降沿")],
          desc="Edge of PCLK on which data are taken."),
        L("HsyncPolarity", ("HSYNC Active Level", "HSYNC 有效电平"), g,
          "DVP_HSYNC_POLARITY_HIGH",
          [("DVP_HSYNC_POLARITY_HIGH", "High", "高"), ("DVP_HSYNC_POLARITY_LOW", "Low", "低")],
          expr="!" + emb, desc="Level of HSYNC during the blanking."),
        L("VsyncPolarity", ("VSYNC Active Level", "VSYNC 有效电平"), g,
          "DVP_VSYNC_POLARITY_LOW",
          [("DVP_VSYNC_POLARITY_HIGH", "High", "高"), ("DVP_VSYNC_POLARITY_LOW", "Low", "低")],
          expr="!" + emb, desc="Level of VSYNC during the blanking."),
        L("CaptureRate", ("Frame Capture Rate", "帧采集率"), g, "DVP_BFRC_ALL",
          [("DVP_BFRC_ALL", "Every frame", "每帧"), ("DVP_BFRC_HALF", "Every second frame",
                                                     "隔帧"),
           ("DVP_BFRC_QUARTER", "Every fourth frame", "每四帧")],
          desc="Frames captured."),
        B("JPEG", ("JPEG Mode", "JPEG 模式"), g, desc="Capture a compressed data stream."),
        B("Crop", ("Crop", "裁剪"), g, sems=(crop, None),
          desc="Keep only a rectangle of the picture."),
        I("CropX", ("Crop Start X", "裁剪起点 X"), g, 0, 0, 16383, expr=crop,
          desc="First pixel clock of a line that is kept."),
        I("CropY", ("Crop Start Y", "裁剪起点 Y"), g, 0, 0, 8191, expr=crop,
          desc="First line that is kept."),
        I("CropWidth", ("Crop Width", "裁剪宽度"), g, 640, 1, 16384, expr=crop,
          desc="Pixel clocks kept per line."),
        I("CropHeight", ("Crop Height", "裁剪高度"), g, 480, 1, 8192, expr=crop,
          desc="Lines kept."),
    ]
    e = ("Enhanced Functions", "增强功能")
    for name, en, ch in (("Horizontal_Scaling_Resize", "Horizontal Scaling", "水平缩放"),
                         ("Vertical_Scaling_Resize", "Vertical Scaling", "垂直缩放"),
                         ("Frame_Rate_Contorl", "Frame Rate Control", "帧率控制")):
        p += [I(name + "_Source_Factor", (en + " Source", ch + "源"), e, 1, 1, 8191,
                desc="Source count of the %s ratio." % en.lower()),
              _set(I(name + "_Target_Factor", (en + " Target", ch + "目标"), e, 1, 1, 8191,
                     desc="Target count; follows the source count."), enable=False)]
    return build_ip(modes + p)


def builders(fam):
    b = {
        "CAN": lambda inst: can_file(fam),
        "ACC": lambda inst: acc_file(fam),
        "SDIO": lambda inst: sdio_file(fam),
        "QSPI": lambda inst: qspi_file(fam),
        "SPIM": lambda inst: spim_file(fam),
        "EMAC": lambda inst: emac_file(fam),
        "DVP": lambda inst: dvp_file(fam),
    }
    for stem, insts in fam.file_stems().items():
        if stem.startswith("USB"):
            b[stem] = (lambda s: lambda inst: usb_file(fam, s))(stem)
        elif stem.startswith("XMC_NAND"):
            b[stem] = (lambda s: lambda inst: xmc_nand_file(fam, s, inst))(stem)
        elif stem == "XMC_PCCard":
            b[stem] = (lambda s: lambda inst: xmc_pccard_file(fam, s, inst))(stem)
        elif stem.startswith("XMC_SDRAM"):
            b[stem] = (lambda s: lambda inst: xmc_sdram_file(fam, s, inst))(stem)
        elif stem.startswith("XMC"):
            b[stem] = (lambda s: lambda inst: xmc_nor_file(fam, s, inst))(stem)
    return b
