"""USART, SPI, I2S and I2C of the MQ48T110."""
from common import ADV, BASIC, B, E, H, I, L, T, follow, none_of
from model import Check, G, Mode, S, build_ip, prune

OUT, IN, OD = "MuxOutputPushPull", "MuxInput", "MuxOutputOpenDrain"

# -------------------------------------------------------------- USART --

U = "$IpInstance_"
ASYNC, SYNC, HALF, IRDA, LIN, SMART = (U + "ASYNC", U + "SYNC", U + "HALFDUPLEX",
                                       U + "IRDA", U + "LIN", U + "SMARTCARD")
F_CTS, F_RTS, F_BOTH, RS485 = (U + "FLOW_CTS", U + "FLOW_RTS",
                               U + "FLOW_CTS_RTS", U + "RS485")
VM_MUTE, VM_MODBUS = U + "VM_RECEIVERMUTE", U + "VM_MODBUS"
NEED_ASYNC = (ASYNC, ("Hardware flow control needs the asynchronous mode",
                      "硬件流控需要异步模式"))


def usart_file(fam=None, uart=False):
    """USART, or UART (no clock and no flow control pins); the older generation has no
    RS485 driver enable, Modbus ID matching, inversions or pin swap."""
    new = fam is None or fam.fact("gen", "new") == "new"
    modes = [
        Mode("Mode", ("Mode", "模式"), [
            G("Asynchronous", ("Asynchronous", "异步"),
              [S("TX", OUT), S("RX", IN)], sems=[ASYNC]),
            G("Synchronous", ("Synchronous", "同步"),
              [S("TX", OUT), S("RX", IN), S("CK", OUT)], sems=[SYNC]),
            G("Single Wire (Half-Duplex)", ("Single Wire (Half-Duplex)",
                                            "单线（半双工）"),
              [S("TX", OD)], sems=[HALF]),
            G("IrDA", ("IrDA", "红外"), [S("TX", OUT), S("RX", IN)],
              sems=[IRDA]),
            G("LIN", ("LIN", "LIN"), [S("TX", OUT), S("RX", IN)], sems=[LIN]),
            G("SmartCard", ("SmartCard", "智能卡"),
              [S("TX", OD), S("CK", OUT)], sems=[SMART]),
        ]),
        Mode("Hardware Flow Control (RS232)",
             ("Hardware Flow Control (RS232)", "硬件流控（RS232）"), [
                 G("CTS Only", ("CTS Only", "仅 CTS"), [S("CTS", IN)],
                   sems=[F_CTS]),
                 G("RTS Only", ("RTS Only", "仅 RTS"), [S("RTS", OUT)],
                   sems=[F_RTS], cond=("!" + RS485, (
                       "RTS is taken by the RS485 driver enable",
                       "RTS 已被 RS485 驱动使能占用"))),
                 G("CTS/RTS", ("CTS/RTS", "CTS/RTS"),
                   [S("CTS", IN), S("RTS", OUT)], sems=[F_BOTH],
                   cond=("!" + RS485, (
                       "RTS is taken by the RS485 driver enable",
                       "RTS 已被 RS485 驱动使能占用"))),
             ], cond=NEED_ASYNC),
        Check("Hardware Flow Control (RS485)",
              ("Hardware Flow Control (RS485)", "硬件流控（RS485）"),
              [S("RTS", OUT)], sems=[RS485],
              cond=(ASYNC + "&!" + F_RTS + "&!" + F_BOTH,
                    ("RS485 needs the asynchronous mode and a free RTS pin",
                     "RS485 需要异步模式和空闲的 RTS 引脚"))),
    ]
    mgrp = ("Mode Parameters", "模式参数")
    params = [
        P_baud(),
        L("Databitnum", ("Word Length", "数据位"), BASIC, "USART_DATA_8BITS",
          [("USART_DATA_7BITS", "7 Bits (including parity)", "7 位（含校验）"),
           ("USART_DATA_8BITS", "8 Bits (including parity)", "8 位（含校验）"),
           ("USART_DATA_9BITS", "9 Bits (including parity)", "9 位（含校验）")],
          desc="Number of data bits of a frame, the parity bit included."),
        L("Parityselection", ("Parity", "校验"), BASIC, "USART_PARITY_NONE",
          [("USART_PARITY_NONE", "None", "无"),
           ("USART_PARITY_EVEN", "Even", "偶校验"),
           ("USART_PARITY_ODD", "Odd", "奇校验")],
          desc="Parity bit added to each frame."),
        L("STOPbitnum", ("Stop Bits", "停止位"), BASIC, "USART_STOP_1_BIT",
          [("USART_STOP_1_BIT", "1", "1"), ("USART_STOP_0_5_BIT", "0.5", "0.5"),
           ("USART_STOP_2_BIT", "2", "2"), ("USART_STOP_1_5_BIT", "1.5", "1.5")],
          desc="Length of the stop bit."),
        L("Mode", ("Data Direction", "数据方向"), BASIC, "MODE_TX_RX",
          [("MODE_TX_RX", "Receive and Transmit", "收发"),
           ("MODE_TX", "Transmit Only", "仅发送"),
           ("MODE_RX", "Receive Only", "仅接收")],
          desc="Which of transmitter and receiver are switched on."),
        follow("HwFlowCtl", ("Hardware Flow Control", "硬件流控"), BASIC, [
            ("", "None", "无", none_of(F_CTS, F_RTS, F_BOTH)),
            ("USART_HARDWARE_FLOW_CTS", "CTS", "CTS", F_CTS),
            ("USART_HARDWARE_FLOW_RTS", "RTS", "RTS", F_RTS),
            ("USART_HARDWARE_FLOW_RTS_CTS", "CTS and RTS", "CTS 和 RTS", F_BOTH)],
            desc="Follows the RS232 flow control mode."),
        L("VirtualMode", ("Function", "功能"), mgrp, "VM_ASYNCHRONOUS", [
            ("VM_ASYNCHRONOUS", "Plain asynchronous or synchronous transfer",
             "普通异步或同步传输", None, ASYNC + "|" + SYNC),
            ("VM_RECEIVERMUTE", "Receiver mute (multiprocessor)",
             "接收静默（多处理器）", VM_MUTE, ASYNC),
            ("VM_MODBUS", "Modbus with ID matching", "Modbus（ID 匹配）",
             VM_MODBUS, ASYNC),
            ("VM_HALFDUPLEX", "Single wire half duplex", "单线半双工", None,
             HALF),
            ("VM_IRDA", "IrDA SIR", "红外 SIR", None, IRDA),
            ("VM_LIN", "LIN bus", "LIN 总线", None, LIN),
            ("VM_SMARTCARD", "Smart card", "智能卡", None, SMART)],
            desc="Function of the USART; the list follows the mode."),
        L("Clockenable", ("Clock Output", "时钟输出"), mgrp, "TRUE",
          [("TRUE", "Enable", "使能"), ("FALSE", "Disable", "禁止")],
          expr=SYNC + "|" + SMART, desc="Drive the CK pin."),
        L("CLKPolarity", ("Clock Polarity", "时钟极性"), mgrp,
          "USART_CLOCK_POLARITY_LOW",
          [("USART_CLOCK_POLARITY_LOW", "Low", "低"),
           ("USART_CLOCK_POLARITY_HIGH", "High", "高")],
          expr=SYNC + "|" + SMART, desc="Idle level of CK."),
        L("CLKPhase", ("Clock Phase", "时钟相位"), mgrp,
          "USART_CLOCK_PHASE_1EDGE",
          [("USART_CLOCK_PHASE_1EDGE", "One Edge", "第一个边沿"),
           ("USART_CLOCK_PHASE_2EDGE", "Two Edge", "第二个边沿")],
          expr=SYNC + "|" + SMART, desc="Edge of CK that samples data."),
        L("Lastbitclockpulse", ("Clock Last Bit", "最后一位时钟"), mgrp,
          "USART_CLOCK_LAST_BIT_NONE",
          [("USART_CLOCK_LAST_BIT_NONE", "Disable", "禁止"),
           ("USART_CLOCK_LAST_BIT_OUTPUT", "Enable", "使能")],
          expr=SYNC + "|" + SMART,
          desc="Give a clock pulse for the last data bit."),
        B("IrDAlowpowermode", ("IrDA Low Power", "红外低功耗"), mgrp,
          expr=IRDA, desc="Low power IrDA pulses."),
        I("IrDAdivision", ("IrDA Prescaler", "红外分频"), mgrp, 1, 1, 255,
          expr=IRDA, desc="Divider of the IrDA low power clock."),
        I("Smartcardguardtime", ("Guard Time", "保护时间"), mgrp, 0, 0, 255,
          expr=SMART, desc="Guard time in baud clocks."),
        B("SmartcardNACKenable", ("NACK", "NACK"), mgrp, expr=SMART,
          desc="Send a NACK on a parity error."),
        I("Smartcarddivision", ("Smartcard Prescaler", "智能卡分频"), mgrp, 1,
          1, 31, expr=SMART, desc="Divider of the smart card clock."),
        L("Breakframebitnum", ("Break Detection Length", "断开帧检测长度"),
          mgrp, "USART_BREAK_10BITS",
          [("USART_BREAK_10BITS", "10 Bits", "10 位"),
           ("USART_BREAK_11BITS", "11 Bits", "11 位")], expr=LIN,
          desc="Length of a LIN break frame."),
        L("Wakeupmode", ("Wake-up Method", "唤醒方式"), mgrp,
          "USART_WAKEUP_BY_IDLE_FRAME",
          [("USART_WAKEUP_BY_IDLE_FRAME", "Idle line", "空闲帧"),
           ("USART_WAKEUP_BY_MATCHING_ID", "Address mark", "ID 匹配")],
          expr=VM_MUTE, desc="How the muted receiver wakes up."),
        L("USARTIDBit", ("ID Length", "ID 长度"), mgrp, "USART_ID_FIXED_4_BIT",
          [("USART_ID_FIXED_4_BIT", "4 Bits", "4 位"),
           ("USART_ID_RELATED_DATA_BIT", "Data bits minus one",
            "数据位减一")], expr=VM_MUTE + "|" + VM_MODBUS,
          desc="Length of the node ID."),
        I("USARTID", ("Node ID", "节点 ID"), mgrp, 0, 0, 15,
          expr=VM_MUTE + "|" + VM_MODBUS, desc="ID of this node."),
        follow("RS485", ("RS485 Driver Enable", "RS485 驱动使能"), mgrp, [
            ("DISABLE", "Disable", "禁止", "!" + RS485),
            ("ENABLE", "Enable", "使能", RS485)],
            desc="Follows the RS485 mode."),
        L("DEPolaritySelection", ("DE Polarity", "DE 极性"), mgrp,
          "USART_DE_POLARITY_HIGH",
          [("USART_DE_POLARITY_HIGH", "High", "高"),
           ("USART_DE_POLARITY_LOW", "Low", "低")], expr=RS485,
          desc="Active level of the driver enable."),
        I("TransmitStartDelayTime", ("DE Assertion Time", "DE 建立时间"),
          mgrp, 0, 0, 31, unit="1/16 bit", expr=RS485,
          desc="Time from DE to the start bit."),
        I("TransmitCompleteDelayTime", ("DE Deassertion Time",
                                         "DE 释放时间"), mgrp, 0, 0, 31,
          unit="1/16 bit", expr=RS485, desc="Time from the stop bit to DE off."),
        B("MSBTransmitFirst", ("MSB First", "高位在前"), ADV,
          desc="Send the most significant bit first."),
        B("TXPolarityReverse", ("TX Pin Active Level Inversion",
                                "TX 引脚电平反相"), ADV,
          desc="Invert the TX level."),
        B("RXPolarityReverse", ("RX Pin Active Level Inversion",
                                "RX 引脚电平反相"), ADV,
          desc="Invert the RX level."),
        B("DTPolarityReverse", ("Data Inversion", "数据反相"), ADV,
          desc="Send and receive inverted data bits."),
        B("PinsSwapping", ("TX and RX Pins Swapping", "TX 和 RX 引脚互换"),
          ADV, desc="Exchange the functions of the TX and RX pins."),
    ]
    items = modes + params
    if uart:
        items = prune(items, sems=[SYNC, SMART, F_CTS, F_RTS, F_BOTH, RS485],
                      modes=["Hardware Flow Control (RS232)"])
    if not new:
        items = prune(items, sems=[RS485, VM_MODBUS],
                      params=["MSBTransmitFirst", "TXPolarityReverse", "RXPolarityReverse",
                              "DTPolarityReverse", "PinsSwapping"])
    return build_ip(items)


def P_baud():
    p = I("BaudRate", ("Baud Rate", "波特率"), BASIC, 115200, 0, 0,
          unit="Bits/s",
          desc="Bits per second; the range follows the USART clock.")
    # limits are clock / 65535 and clock / 16, worked out by the panel
    p["min"], p["max"] = "/65535", "/16"
    return p


# ---------------------------------------------------------------- SPI --

MASTER, SLAVE = "$IpInstance_MASTER", "$IpInstance_SLAVE"
FDX = "$IpInstance_FULL_DUPLEX"
FULL, HALFD = "$IpInstance_FULL_DUPLEX", "$IpInstance_HALF_DUPLEX"
RXO, TXO = "$IpInstance_RX_ONLY", "$IpInstance_TX_ONLY"
CS_IN, CS_OUT = "$IpInstance_CS_HARD_IN", "$IpInstance_CS_HARD_OUT"
USED = "$IpInstance_USED"


def spi_file(fam=None):
    """SPI; where an I2S shares the block, each gives way to the other."""
    def grp(name, en, ch, sigs, role, kind):
        return G(name, (en, ch), sigs, sems=[role, kind, USED])
    shared = ("!I2S$Index_USED", ("The I2S of the same block is in use",
                                  "同一模块的 I2S 正在使用"))
    if fam is not None and not any(i.startswith("I2S") and i[3:].isdigit()
                                   for i in fam.instances()):
        shared = None
    if fam is not None and not any(k.startswith("I2S") for k in fam.fact("routes", {})):
        shared = None  # the work form of the series doesn't pass the I2S semaphores
    modes = [
        Mode("Mode", ("Mode", "模式"), [
            grp("Full-Duplex Master", "Full-Duplex Master", "全双工主机",
                [S("SCK", OUT), S("MISO", IN), S("MOSI", OUT)], MASTER, FULL),
            grp("Full-Duplex Slave", "Full-Duplex Slave", "全双工从机",
                [S("SCK", IN), S("MISO", OUT), S("MOSI", IN)], SLAVE, FULL),
            grp("Half-Duplex Master", "Half-Duplex Master", "半双工主机",
                [S("SCK", OUT), S("MOSI", OUT)], MASTER, HALFD),
            grp("Half-Duplex Slave", "Half-Duplex Slave", "半双工从机",
                [S("SCK", IN), S("MISO", OUT)], SLAVE, HALFD),
            grp("Receive Only Master", "Receive Only Master", "只接收主机",
                [S("SCK", OUT), S("MISO", IN)], MASTER, RXO),
            grp("Receive Only Slave", "Receive Only Slave", "只接收从机",
                [S("SCK", IN), S("MOSI", IN)], SLAVE, RXO),
            grp("Transmit Only Master", "Transmit Only Master", "只发送主机",
                [S("SCK", OUT), S("MOSI", OUT)], MASTER, TXO),
            grp("Transmit Only Slave", "Transmit Only Slave", "只发送从机",
                [S("SCK", IN), S("MISO", OUT)], SLAVE, TXO),
        ], cond=shared),
        Mode("Hardware NSS Signal", ("Hardware NSS Signal", "硬件 NSS 信号"), [
            G("Hardware NSS Input Signal", ("Hardware NSS Input Signal",
                                            "硬件 NSS 输入信号"),
              [S("CS", IN)], sems=[CS_IN],
              cond=(SLAVE, ("Only a slave takes NSS as input",
                            "仅从机使用 NSS 输入"))),
            G("Hardware NSS Output Signal", ("Hardware NSS Output Signal",
                                             "硬件 NSS 输出信号"),
              [S("CS", OUT)], sems=[CS_OUT],
              cond=(MASTER, ("Only a master drives NSS",
                             "仅主机输出 NSS"))),
        ], cond=shared),
    ]
    dividers = (2, 3, 4, 8, 16, 32, 64, 128, 256, 512, 1024)
    div = [("SPI_MCLK_DIV_%d" % d, str(d), str(d)) for d in dividers]
    # The default divider keeps SCK within its limit at the family's default bus clocks.
    default_div = 2
    if fam is not None and fam.fact("clock"):
        bus = max(fam.fact("clock")[1:])
        limit = fam.fact("spi_sck", 36)
        default_div = next(d for d in dividers if bus / d <= limit)
    params = [
        follow("Mode", ("Mode", "模式"), BASIC, [
            ("SPI_MODE_MASTER", "Master", "主机", MASTER),
            ("SPI_MODE_SLAVE", "Slave", "从机", SLAVE)],
            desc="Follows the mode: master or slave."),
        follow("TransmissionMode", ("Transmission Mode", "传输模式"), BASIC, [
            ("SPI_TRANSMIT_FULL_DUPLEX", "Full duplex", "全双工",
             FULL + "|" + TXO),
            ("SPI_TRANSMIT_SIMPLEX_RX", "Receive only", "只接收", RXO),
            ("SPI_TRANSMIT_HALF_DUPLEX_TX", "Half duplex, transmit",
             "半双工发送", HALFD),
            ("SPI_TRANSMIT_HALF_DUPLEX_RX", "Half duplex, receive",
             "半双工接收", HALFD)], desc="Follows the mode."),
        L("DataSize", ("Frame Bit Number", "帧位数"), BASIC, "SPI_FRAME_8BIT",
          [("SPI_FRAME_8BIT", "8 Bits", "8 位"),
           ("SPI_FRAME_16BIT", "16 Bits", "16 位")],
          desc="Bits of one frame."),
        L("FirstBit", ("First Bit", "首位"), BASIC, "SPI_FIRST_BIT_MSB",
          [("SPI_FIRST_BIT_MSB", "MSB First", "高位在前"),
           ("SPI_FIRST_BIT_LSB", "LSB First", "低位在前")],
          desc="Order of the bits on the line."),
        L("ClkDivision", ("Clock Division", "时钟分频"), BASIC,
          "SPI_MCLK_DIV_%d" % default_div, div, expr=MASTER,
          desc="Divider from the bus clock to SCK; greyed values exceed "
               "the SCK limit."),
        T("ClockFrequency", ("SCK Limit", "SCK 上限"), BASIC,
          "%d000000" % (fam.fact("spi_sck", 36) if fam else 36),
          expr=MASTER, desc="Highest SCK frequency in Hz."),
        L("CLKPolarity", ("Clock Polarity", "时钟极性"), BASIC,
          "SPI_CLOCK_POLARITY_LOW",
          [("SPI_CLOCK_POLARITY_LOW", "Low", "低"),
           ("SPI_CLOCK_POLARITY_HIGH", "High", "高")],
          desc="Idle level of SCK."),
        L("CLKPhase", ("Clock Phase", "时钟相位"), BASIC,
          "SPI_CLOCK_PHASE_1EDGE",
          [("SPI_CLOCK_PHASE_1EDGE", "1 Edge", "第一个边沿"),
           ("SPI_CLOCK_PHASE_2EDGE", "2 Edge", "第二个边沿")],
          desc="Edge of SCK that samples data."),
        follow("CSSOFT", ("Software CS", "软件 CS"), BASIC, [
            ("TRUE", "Enable", "使能", none_of(CS_IN, CS_OUT)),
            ("FALSE", "Disable", "禁止", CS_IN + "|" + CS_OUT)],
            desc="Follows the NSS mode: software CS without an NSS pin."),
        follow("CSHARD_Output", ("Hardware CS Output", "硬件 CS 输出"), BASIC, [
            ("FALSE", "Disable", "禁止", "!" + CS_OUT),
            ("TRUE", "Enable", "使能", CS_OUT)],
            desc="Follows the NSS mode: the master drives NSS."),
        L("CRCCalculation", ("CRC Calculation", "CRC 计算"), ADV,
          "SPI_CRC_DISABLE",
          [("SPI_CRC_DISABLE", "Disable", "禁止"),
           ("SPI_CRC_ENABLE", "Enable", "使能", "$IpInstance_CRC")],
          desc="Hardware CRC after the data."),
        I("CRCPolynomial", ("CRC Polynomial", "CRC 多项式"), ADV, 7, 1, 65535,
          expr="$IpInstance_CRC", desc="CRC polynomial, odd number."),
        L("TIMode", ("TI Mode", "TI 模式"), ADV, "SPI_TIMODE_DISABLE",
          [("SPI_TIMODE_DISABLE", "Disable", "禁止"),
           ("SPI_TIMODE_ENABLE", "Enable", "使能")],
          desc="TI synchronous serial frame format."),
    ]
    return build_ip(modes + params)


# ---------------------------------------------------------------- I2S --

def i2s_file(fam=None, insts=()):
    """I2S sharing an SPI block. Full duplex: with the extension block (a second data line,
    SDEXT) on I2S2 and I2S3, or, on the families that pair two I2S through SCFG, I2S2 and I2S3
    follow their leader with only their own data line."""
    shared = ("!SPI$Index_USED", ("The SPI of the same block is in use",
                                  "同一模块的 SPI 正在使用"))
    if fam is not None and not any(k.startswith("SPI") for k in fam.fact("routes", {})):
        shared = None  # the work form of the series doesn't pass the SPI semaphores
    groups = [
        G("Half-Duplex Master", ("Half-Duplex Master", "半双工主机"),
          [S("CK", OUT), S("WS", OUT), S("SD", OUT)],
          sems=[MASTER, USED]),
        G("Half-Duplex Slave", ("Half-Duplex Slave", "半双工从机"),
          [S("CK", IN), S("WS", IN), S("SD", OUT)], sems=[SLAVE, USED]),
    ]
    others = " ".join(i for i in insts if i not in ("I2S2", "I2S3"))
    if fam is not None and fam.fact("i2s_ext"):
        groups += [
            G("Full-Duplex Master", ("Full-Duplex Master", "全双工主机"),
              [S("CK", OUT), S("WS", OUT), S("SD", OUT), S("SDEXT", IN)],
              sems=[MASTER, USED, FDX], remove=others or None),
            G("Full-Duplex Slave", ("Full-Duplex Slave", "全双工从机"),
              [S("CK", IN), S("WS", IN), S("SD", OUT), S("SDEXT", IN)],
              sems=[SLAVE, USED, FDX], remove=others or None)]
    if fam is not None and "i2sfd" in (fam.fact("scfg") or ""):
        groups.append(
            G("Full-Duplex Follower", ("Full-Duplex Follower", "全双工从属"),
              [S("SD", IN)], sems=[SLAVE, USED, FDX],
              cond=("SCFG_I2S_FULLDUPLEX", ("Pair the I2S in SCFG first",
                                             "请先在 SCFG 中配对 I2S")),
              remove=others or None))
    modes = [
        Mode("Mode", ("Mode", "模式"), groups, cond=shared),
        Check("Master Clock Output", ("Master Clock Output", "主时钟输出"),
              [S("MCK", OUT)], sems=["$IpInstance_MCK"],
              cond=(MASTER, ("Only a master gives MCK", "仅主机输出 MCK"))),
    ]
    freqs = [8, 11, 16, 22, 32, 44, 48, 96, 192]
    params = [
        follow("Mode", ("Mode", "模式"), BASIC, [
            ("I2S_MODE_MASTER_TX", "Master Transmit", "主机发送", MASTER),
            ("I2S_MODE_MASTER_RX", "Master Receive", "主机接收", MASTER),
            ("I2S_MODE_SLAVE_TX", "Slave Transmit", "从机发送", SLAVE),
            ("I2S_MODE_SLAVE_RX", "Slave Receive", "从机接收", SLAVE)],
            desc="Direction; the role follows the mode."),
        L("Standard", ("Communication Standard", "通信标准"), BASIC,
          "I2S_AUDIO_PROTOCOL_PHILLIPS",
          [("I2S_AUDIO_PROTOCOL_PHILLIPS", "I2S Philips", "I2S 飞利浦"),
           ("I2S_AUDIO_PROTOCOL_MSB", "MSB First (Left Justified)",
            "MSB 对齐（左对齐）"),
           ("I2S_AUDIO_PROTOCOL_LSB", "LSB First (Right Justified)",
            "LSB 对齐（右对齐）"),
           ("I2S_AUDIO_PROTOCOL_PCM_SHORT", "PCM Short Frame", "PCM 短帧"),
           ("I2S_AUDIO_PROTOCOL_PCM_LONG", "PCM Long Frame", "PCM 长帧")],
          desc="Audio frame format."),
        L("DataFormat", ("Data and Frame Format", "数据和帧格式"), BASIC,
          "I2S_DATA_16BIT_CHANNEL_16BIT",
          [("I2S_DATA_16BIT_CHANNEL_16BIT", "16 Bits Data on 16 Bits Frame",
            "16 位数据 16 位帧"),
           ("I2S_DATA_16BIT_CHANNEL_32BIT", "16 Bits Data on 32 Bits Frame",
            "16 位数据 32 位帧"),
           ("I2S_DATA_24BIT_CHANNEL_32BIT", "24 Bits Data on 32 Bits Frame",
            "24 位数据 32 位帧"),
           ("I2S_DATA_32BIT_CHANNEL_32BIT", "32 Bits Data on 32 Bits Frame",
            "32 位数据 32 位帧")], desc="Sample and channel widths."),
        L("AudioFreq", ("Selected Audio Frequency", "音频频率"), BASIC,
          "I2S_AUDIO_FREQUENCY_48K",
          [("I2S_AUDIO_FREQUENCY_%dK" % f, "%d KHz" % f, "%d KHz" % f)
           for f in freqs], expr=MASTER,
          desc="Sampling rate; greyed values are out of reach of the clock."),
        T("RealAudioFreq", ("Real Audio Frequency", "实际音频频率"), BASIC,
          expr=MASTER, desc="Rate that the dividers give, in Hz."),
        T("ErrorAudioFreq", ("Error between Selected and Real",
                             "选择值与实际值误差"), BASIC, expr=MASTER,
          desc="Deviation from the selected rate, in percent."),
        I("I2S_DIV", ("Linear Divider", "线性分频"), BASIC, 2, 2, 255,
          expr=MASTER, desc="Worked out from the audio frequency."),
        I("I2S_ODD", ("Odd Factor", "奇数分频"), BASIC, 0, 0, 1, expr=MASTER,
          desc="Worked out from the audio frequency."),
        L("CPOL", ("Clock Polarity", "时钟极性"), BASIC,
          "I2S_CLOCK_POLARITY_LOW",
          [("I2S_CLOCK_POLARITY_LOW", "Low", "低"),
           ("I2S_CLOCK_POLARITY_HIGH", "High", "高")],
          desc="Idle level of CK."),
        follow("MCLKOutput", ("Master Clock Output", "主时钟输出"), BASIC, [
            ("FALSE", "Disable", "禁止", "!$IpInstance_MCK"),
            ("TRUE", "Enable", "使能", "$IpInstance_MCK")],
            desc="Follows the master clock output mode."),
    ]
    if fam is not None and fam.fact("i2s_ext"):
        params.append(follow("EXTMode", ("Extension Block Mode", "扩展模块模式"), BASIC, [
            ("DISABLE", "Off", "关闭", "!" + FDX),
            ("I2S_MODE_SLAVE_RX", "Slave receive on SDEXT", "SDEXT 从机接收", FDX),
            ("I2S_MODE_SLAVE_TX", "Slave transmit on SDEXT", "SDEXT 从机发送", FDX)],
            desc="The second data line of full duplex; off in half duplex."))
    return build_ip(modes + params)


def i2sf_file(fam):
    """The full duplex I2S with its own clock source and external clock input (I2SF5)."""
    items = i2s_items_for_i2sf()
    return build_ip(items)


# ---------------------------------------------------------------- I2C --

STD, FAST = "$IpInstance_STANDARD", "$IpInstance_FAST"
PLAIN, SMB = "$IpInstance_I2C", "$IpInstance_SMBUS"


def i2c_modes():
    return [
        Mode("I2C", ("I2C", "I2C"), [
            G("I2C", ("I2C", "I2C"), [S("SCL", OD), S("SDA", OD)],
              sems=[PLAIN]),
            G("SMBus-Alert-mode", ("SMBus-Alert-mode", "SMBus 警报模式"),
              [S("SCL", OD), S("SDA", OD), S("SMBA", OD)], sems=[SMB]),
            G("SMBus-Two-Wire-Interface", ("SMBus-Two-Wire-Interface",
                                           "SMBus 两线接口"),
              [S("SCL", OD), S("SDA", OD)], sems=[SMB]),
        ]),
    ]


def i2c_file():
    modes = i2c_modes()
    params = [
        L("I2C_Mode", ("I2C Speed Mode", "I2C 速度模式"), BASIC, "I2C_Standard",
          [("I2C_Standard", "Standard Mode", "标准模式", STD),
           ("I2C_Fast", "Fast Mode", "快速模式", FAST)],
          desc="Standard mode up to 100 kHz, fast mode up to 400 kHz."),
        I("ClockSpeed", ("I2C Clock Speed", "I2C 时钟速度"), BASIC, 100000,
          1000, 100000, unit="Hz", expr=STD, desc="SCL frequency."),
        I("ClockSpeed1", ("I2C Clock Speed", "I2C 时钟速度"), BASIC, 400000,
          100001, 400000, unit="Hz", expr=FAST, desc="SCL frequency."),
        L("DutyCycle", ("Fast Mode Duty Cycle", "快速模式占空比"), BASIC,
          "I2C_FSMODE_DUTY_2_1",
          [("I2C_FSMODE_DUTY_2_1", "Tlow/Thigh = 2", "Tlow/Thigh = 2"),
           ("I2C_FSMODE_DUTY_16_9", "Tlow/Thigh = 16/9", "Tlow/Thigh = 16/9")],
          expr=FAST, desc="Ratio of low to high time of SCL."),
        B("StretchMode", ("Clock No Stretch Mode", "时钟延展"), ADV, "TRUE",
          desc="Allow the slave to hold SCL low."),
        L("AddressingMode", ("Primary Address Length", "主地址长度"), ADV,
          "I2C_ADDRESS_MODE_7BIT",
          [("I2C_ADDRESS_MODE_7BIT", "7-bit", "7 位", "$IpInstance_ADDR7"),
           ("I2C_ADDRESS_MODE_10BIT", "10-bit", "10 位")],
          desc="Length of the own address."),
        H("OwnAddress", ("Primary Slave Address", "主从机地址"), ADV, "0",
          "3FF", desc="Own address of the interface."),
        B("DualAddressMode", ("Dual Address Acknowledged", "双地址应答"), ADV,
          sems=("$IpInstance_DUAL", None),
          desc="Answer a second 7-bit address too."),
        H("OwnAddress2", ("Secondary Slave Address", "从从机地址"), ADV, "0",
          "7F", expr="$IpInstance_DUAL", desc="Second own address."),
        follow("SMBusPeripheralMode", ("SMBus Peripheral Mode",
                                       "SMBus 外设模式"), ADV, [
            ("DISABLE", "Disable", "禁止", "!" + SMB),
            ("I2C_SMBUS_MODE_DEVICE", "SMBus device", "SMBus 设备", SMB),
            ("I2C_SMBUS_MODE_HOST", "SMBus host", "SMBus 主机", SMB)],
            desc="Role on the SMBus; off in plain I2C mode."),
    ]
    return build_ip(modes + params)


def builders(fam):
    new_i2c = fam.fact("gen") == "new"
    return {
        "USART": lambda inst: usart_file(fam),
        "UART": lambda inst: usart_file(fam, uart=True),
        "SPI": lambda inst: spi_file(fam),
        "I2S": lambda inst: i2s_file(fam, inst),
        "I2SF": lambda inst: i2sf_file(fam),
        "I2C": lambda inst: i2c2_file() if new_i2c else i2c_file(),
    }


def i2s_items_for_i2sf():
    X = "$IpInstance_"
    fd, ext = X + "FULL_DUPLEX", X + "EXT_CLOCK"
    modes = [
        Mode("Mode", ("Mode", "模式"), [
            G("Half-Duplex Master", ("Half-Duplex Master", "半双工主机"),
              [S("CK", OUT), S("WS", OUT), S("SD", OUT)], sems=[MASTER]),
            G("Half-Duplex Slave", ("Half-Duplex Slave", "半双工从机"),
              [S("CK", IN), S("WS", IN), S("SD", OUT)], sems=[SLAVE]),
            G("Full-Duplex Master", ("Full-Duplex Master", "全双工主机"),
              [S("CK", OUT), S("WS", OUT), S("SD", OUT), S("SDEXT", IN)],
              sems=[MASTER, fd]),
            G("Full-Duplex Slave", ("Full-Duplex Slave", "全双工从机"),
              [S("CK", IN), S("WS", IN), S("SD", OUT), S("SDEXT", IN)],
              sems=[SLAVE, fd]),
        ]),
        Check("Master Clock Output", ("Master Clock Output", "主时钟输出"),
              [S("MCK", OUT)], sems=[X + "MCK"],
              cond=(MASTER, ("Only a master gives MCK", "仅主机输出 MCK"))),
        Check("External_Clock_Input", ("External Clock Input", "外部时钟输入"),
              [S("CKIN", IN)], sems=[ext]),
    ]
    freqs = [8, 11, 16, 22, 32, 44, 48, 96, 192]
    params = [
        follow("Mode", ("Mode", "模式"), BASIC, [
            ("I2S_MODE_MASTER_TX", "Master Transmit", "主机发送", MASTER),
            ("I2S_MODE_MASTER_RX", "Master Receive", "主机接收", MASTER),
            ("I2S_MODE_SLAVE_TX", "Slave Transmit", "从机发送", SLAVE),
            ("I2S_MODE_SLAVE_RX", "Slave Receive", "从机接收", SLAVE)],
            desc="Direction; the role follows the mode."),
        follow("Full_Duplex_Enable", ("Full Duplex", "全双工"), BASIC, [
            ("FALSE", "Disable", "禁止", "!" + fd), ("TRUE", "Enable", "使能", fd)],
            desc="Follows the mode: the second data line SDEXT runs the other way."),
        L("Standard", ("Communication Standard", "通信标准"), BASIC,
          "I2S_AUDIO_PROTOCOL_PHILLIPS",
          [("I2S_AUDIO_PROTOCOL_PHILLIPS", "I2S Philips", "I2S 飞利浦"),
           ("I2S_AUDIO_PROTOCOL_MSB", "MSB First (Left Justified)", "MSB 对齐（左对齐）"),
           ("I2S_AUDIO_PROTOCOL_LSB", "LSB First (Right Justified)", "LSB 对齐（右对齐）"),
           ("I2S_AUDIO_PROTOCOL_PCM_SHORT", "PCM Short Frame", "PCM 短帧", X + "PCM"),
           ("I2S_AUDIO_PROTOCOL_PCM_LONG", "PCM Long Frame", "PCM 长帧", X + "PCM")],
          desc="Audio frame format."),
        L("PCM_Clock_Edge", ("PCM Sample Clock Edge", "PCM 采样时钟边沿"), BASIC,
          "I2SF_PCM_SAMPLE_CLOCK_FALLING",
          [("I2SF_PCM_SAMPLE_CLOCK_FALLING", "Falling edge", "下降沿"),
           ("I2SF_PCM_SAMPLE_CLOCK_RISING", "Rising edge", "上升沿")], expr=X + "PCM",
          desc="Edge of CK on which PCM samples are taken."),
        L("DataFormat", ("Data and Frame Format", "数据和帧格式"), BASIC,
          "I2S_DATA_16BIT_CHANNEL_16BIT",
          [("I2S_DATA_16BIT_CHANNEL_16BIT", "16 Bits Data on 16 Bits Frame",
            "16 位数据 16 位帧"),
           ("I2S_DATA_16BIT_CHANNEL_32BIT", "16 Bits Data on 32 Bits Frame",
            "16 位数据 32 位帧"),
           ("I2S_DATA_24BIT_CHANNEL_32BIT", "24 Bits Data on 32 Bits Frame",
            "24 位数据 32 位帧"),
           ("I2S_DATA_32BIT_CHANNEL_32BIT", "32 Bits Data on 32 Bits Frame",
            "32 位数据 32 位帧")], desc="Sample and channel widths."),
        L("AudioFreq", ("Selected Audio Frequency", "音频频率"), BASIC,
          "I2S_AUDIO_FREQUENCY_48K",
          [("I2S_AUDIO_FREQUENCY_%dK" % f, "%d KHz" % f, "%d KHz" % f) for f in freqs],
          expr=MASTER, desc="Sampling rate; greyed values are out of reach of the clock."),
        T("RealAudioFreq", ("Real Audio Frequency", "实际音频频率"), BASIC, expr=MASTER,
          desc="Rate that the dividers give, in Hz."),
        T("ErrorAudioFreq", ("Error between Selected and Real", "选择值与实际值误差"), BASIC,
          expr=MASTER, desc="Deviation from the selected rate, in percent."),
        I("I2S_DIV", ("Linear Divider", "线性分频"), BASIC, 2, 2, 1023, expr=MASTER,
          desc="Worked out from the audio frequency."),
        I("I2S_ODD", ("Odd Factor", "奇数分频"), BASIC, 0, 0, 1, expr=MASTER,
          desc="Worked out from the audio frequency."),
        L("CPOL", ("Clock Polarity", "时钟极性"), BASIC, "I2S_CLOCK_POLARITY_LOW",
          [("I2S_CLOCK_POLARITY_LOW", "Low", "低"),
           ("I2S_CLOCK_POLARITY_HIGH", "High", "高")], desc="Idle level of CK."),
        follow("MCLKOutput", ("Master Clock Output", "主时钟输出"), BASIC, [
            ("FALSE", "Disable", "禁止", "!" + X + "MCK"),
            ("TRUE", "Enable", "使能", X + "MCK")],
            desc="Follows the master clock output mode."),
    ]
    return modes + params


# ------------------------------------------------------- I2C, newer kind --

FASTP = "$IpInstance_FAST_PLUS"


def i2c2_file():
    """I2C with the timing register, digital filter and bus timeouts."""
    modes = i2c_modes()
    t_out = ("Timeouts", "超时")
    dclh, ccle = "$IpInstance_DCLH_TIMEOUT", "$IpInstance_CCLE_TIMEOUT"
    params = [
        L("I2C_Mode", ("I2C Speed Mode", "I2C 速度模式"), BASIC, "I2C_Standard",
          [("I2C_Standard", "Standard Mode", "标准模式", STD),
           ("I2C_Fast", "Fast Mode", "快速模式", FAST),
           ("I2C_Fast_Plus", "Fast Mode Plus", "增强快速模式", FASTP)],
          desc="Standard mode up to 100 kHz, fast mode up to 400 kHz, fast mode plus up "
               "to 1 MHz."),
        I("ClockSpeed", ("I2C Clock Speed", "I2C 时钟速度"), BASIC, 100, 1, 1000, unit="kHz",
          desc="SCL frequency; the timing register is worked out from it."),
        I("Rise_Time", ("Rise Time", "上升时间"), BASIC, 100, 0, 1000, unit="ns",
          desc="Rise time of SCL and SDA on the board."),
        I("Fall_Time", ("Fall Time", "下降时间"), BASIC, 10, 0, 300, unit="ns",
          desc="Fall time of SCL and SDA on the board."),
        L("Analog_Filter", ("Analog Filter", "模拟滤波"), BASIC, "TRUE",
          [("TRUE", "Enable", "使能"), ("FALSE", "Disable", "禁止")],
          desc="Suppress spikes shorter than 50 ns."),
        I("Digital_Filter", ("Digital Filter", "数字滤波"), BASIC, 0, 0, 15,
          desc="Suppress spikes shorter than this many I2C clocks."),
        T("Timing_Configuration_Value", ("Timing Register", "时序寄存器"), BASIC,
          desc="Value of the timing register for the clock speed, worked out from the "
               "I2C clock."),
        B("StretchMode", ("Clock Stretching", "时钟延展"), ADV, "TRUE",
          desc="Allow the slave to hold SCL low."),
        L("AddressingMode", ("Primary Address Length", "主地址长度"), ADV,
          "I2C_ADDRESS_MODE_7BIT",
          [("I2C_ADDRESS_MODE_7BIT", "7-bit", "7 位"),
           ("I2C_ADDRESS_MODE_10BIT", "10-bit", "10 位")],
          desc="Length of the own address."),
        H("OwnAddress", ("Primary Slave Address", "主从机地址"), ADV, "0", "3FF",
          desc="Own address of the interface."),
        B("DualAddressMode", ("Dual Address Acknowledged", "双地址应答"), ADV,
          sems=("$IpInstance_DUAL", None), desc="Answer a second 7-bit address too."),
        H("OwnAddress2", ("Secondary Slave Address", "从从机地址"), ADV, "0", "7F",
          expr="$IpInstance_DUAL", desc="Second own address."),
        L("OwnAddress2Mask", ("Secondary Address Mask", "从地址掩码"), ADV,
          "I2C_ADDR2_NOMASK",
          [("I2C_ADDR2_NOMASK", "No mask", "不屏蔽")] +
          [("I2C_ADDR2_MASK%02d" % k, "Ignore %d low bits" % k, "忽略低 %d 位" % k)
           for k in range(1, 8)], expr="$IpInstance_DUAL",
          desc="Low bits of the second address that are not compared."),
        B("GeneralCall", ("General Call", "广播呼叫"), ADV,
          desc="Answer the general call address 0."),
        follow("SMBusPeripheralMode", ("SMBus Peripheral Mode", "SMBus 外设模式"), ADV, [
            ("DISABLE", "Disable", "禁止", "!" + SMB),
            ("I2C_SMBUS_MODE_DEVICE", "SMBus device", "SMBus 设备", SMB),
            ("I2C_SMBUS_MODE_HOST", "SMBus host", "SMBus 主机", SMB)],
            desc="Role on the SMBus; off in plain I2C mode."),
        B("DCLH_timeout_enable", ("SCL Low Timeout", "SCL 低电平超时"), t_out,
          sems=(dclh, None), desc="Detect a bus held too long."),
        L("DCLH_timeout_mode", ("Timeout Detection", "超时检测"), t_out,
          "I2C_TIMEOUT_DETCET_LOW",
          [("I2C_TIMEOUT_DETCET_LOW", "SCL low", "SCL 低电平"),
           ("I2C_TIMEOUT_DETCET_HIGH", "SCL and SDA high (bus idle)",
            "SCL 和 SDA 高电平（总线空闲）")], expr=dclh,
          desc="Level whose length is measured."),
        I("DCLH_timeout_value", ("Timeout Value", "超时值"), t_out, 0, 0, 4095, expr=dclh,
          desc="Timeout in units of 2048 I2C clocks."),
        H("DCLH_timeout_value_register", ("Timeout Register", "超时寄存器"), t_out, "000",
          "FFF", expr=dclh, desc="Register value of the timeout."),
        B("CCLE_timeout_enable", ("Cumulative Low Timeout", "累计低电平超时"), t_out,
          sems=(ccle, None), desc="Detect a slave that stretches too long in one message."),
        I("CCLE_timeout_value", ("Cumulative Timeout Value", "累计超时值"), t_out, 0, 0,
          4095, expr=ccle, desc="Cumulative timeout in units of 2048 I2C clocks."),
        H("CCLE_timeout_value_register", ("Cumulative Timeout Register", "累计超时寄存器"),
          t_out, "000", "FFF", expr=ccle, desc="Register value of the cumulative timeout."),
    ]
    for p in params:
        if p["name"].endswith("_register"):
            p["enable"] = False
    return build_ip(modes + params)
