"""ADCs, the settings they share (ADC-Common), the DAC and the comparators."""
import re

from common import ADV, BASIC, B, E, H, I, L, T, follow, none_of
from model import Check, G, Mode, RefSignal, S, build_ip, prune

A = "Analog"
X = "$IpInstance_"
SAMPLE = ["1_5", "7_5", "13_5", "28_5", "41_5", "55_5", "71_5", "239_5"]
SAMPLE_NEW = ["2_5", "6_5", "12_5", "24_5", "47_5", "92_5", "247_5", "640_5"]


class AdcFacts:
    """What one ADC instance of a family has."""

    def __init__(self, fam, inst):
        self.inst = inst
        self.internal = inst == "ADC1"
        self.channels = fam.fact("ADC_CHANNELS") or _pin_channels(fam, inst)
        self.new = fam.fact("gen") == "new"
        self.sample = SAMPLE_NEW if self.new else SAMPLE
        self.common = fam.has("ADC-Common")
        self.exint = inst in fam.fact("adc_exint", ("ADC1",))
        self.dual = fam.fact("adc_dual") and inst == "ADC1"
        self.prescaler = self.common and inst == "ADC1"
        self.ord_trig = fam.fact("ADC_ORD_TRIGGERS") or _triggers(fam, inst, "ORDINARY",
                                                                  self.exint)
        self.pre_trig = fam.fact("ADC_PRE_TRIGGERS") or _triggers(fam, inst, "PREEMPT",
                                                                  self.exint)


def _pin_channels(fam, inst):
    found = set()
    for pin in fam.pins.all_io_pins():
        for func, _ in fam.pins.functions_of(pin):
            m = re.fullmatch(inst + r"_IN(\d+)", func)
            if m:
                found.add(int(m.group(1)))
    return sorted(found)


# Timer events that may start a conversion: (group, timer, event).
TRIGGERS = [
    ("ORDINARY", "TMR1", "CH1"), ("ORDINARY", "TMR1", "CH2"), ("ORDINARY", "TMR1", "CH3"),
    ("ORDINARY", "TMR2", "CH2"), ("ORDINARY", "TMR3", "TRGOUT"), ("ORDINARY", "TMR4", "CH4"),
    ("ORDINARY", "TMR8", "TRGOUT"), ("ORDINARY", "TMR15", "TRGOUT"),
    ("ORDINARY", "TMR20", "TRGOUT"),
    ("PREEMPT", "TMR1", "TRGOUT"), ("PREEMPT", "TMR1", "CH4"), ("PREEMPT", "TMR2", "TRGOUT"),
    ("PREEMPT", "TMR2", "CH1"), ("PREEMPT", "TMR3", "CH4"), ("PREEMPT", "TMR4", "TRGOUT"),
    ("PREEMPT", "TMR5", "CH4"), ("PREEMPT", "TMR15", "CH1"), ("PREEMPT", "TMR20", "CH4"),
]
TRIGGERS3 = [
    ("ORDINARY", "TMR3", "CH1"), ("ORDINARY", "TMR2", "CH3"), ("ORDINARY", "TMR1", "CH3"),
    ("ORDINARY", "TMR8", "CH1"), ("ORDINARY", "TMR8", "TRGOUT"), ("ORDINARY", "TMR5", "CH1"),
    ("PREEMPT", "TMR1", "TRGOUT"), ("PREEMPT", "TMR1", "CH4"), ("PREEMPT", "TMR4", "CH3"),
    ("PREEMPT", "TMR8", "CH2"), ("PREEMPT", "TMR8", "CH4"), ("PREEMPT", "TMR5", "TRGOUT"),
]


def _triggers(fam, inst, group, exint):
    pre = "ADC3" if inst == "ADC3" else "ADC12"
    table = TRIGGERS3 if inst == "ADC3" else TRIGGERS
    out = [("%s_%s_TRIG_SOFTWARE" % (pre, group), "Software trigger", "软件触发")]
    for g, tmr, ev in table:
        if g != group or not fam.has(tmr):
            continue
        if ev == "TRGOUT":
            en, ch = "%s trigger out" % tmr, "%s 触发输出" % tmr
        else:
            en = "%s channel %s" % (tmr, ev[2:])
            ch = "%s 通道 %s" % (tmr, ev[2:])
        out.append(("%s_%s_TRIG_%s%s" % (pre, group, tmr, ev), en, ch))
    if exint:
        line = 11 if group == "ORDINARY" else 15
        out.append(("%s_%s_TRIG_EXINT%d" % (pre, group, line), "EXINT line %d" % line,
                    "EXINT 线 %d" % line, None, X + "EXINT%d" % line))
    return out


def _channel_values(adc):
    vals = [("ADC_CHANNEL_%d" % n, "Channel %d" % n, "通道 %d" % n, None,
             X + "IN%d" % n) for n in adc.channels]
    if adc.internal:
        vals += [("ADC_CHANNEL_16", "Temperature sensor", "温度传感器", None,
                  X + "TEMP"),
                 ("ADC_CHANNEL_17", "Vintrv", "内部参考电压", None, X + "VINTRV")]
    return vals


def adc_file(fam, inst):
    adc = AdcFacts(fam, inst)
    modes = []
    if adc.exint:
        modes = [RefSignal("EXINT11", "", virtual=True),
                 RefSignal("EXINT15", "", virtual=True)]
    for n in adc.channels:
        modes.append(Check("IN%d" % n, ("IN%d" % n, "IN%d" % n),
                           [S("IN%d" % n, A)], sems=[X + "IN%d" % n]))
    if adc.internal:
        modes += [
            Check("Temperature Sensor Channel", ("Temperature Sensor Channel",
                                                 "温度传感器通道"),
                  [], sems=[X + "TEMP"]),
            Check("Vintrv Channel", ("Vintrv Channel", "内部参考电压通道"), [],
                  sems=[X + "VINTRV"])]
    modes += [
        Check("External-Trigger-for-Ordinary-Conversion",
              ("External-Trigger-for-Ordinary-Conversion", "普通组外部触发"),
              [S("EXINT11", "ExternalInterrupt")], sems=[X + "EXINT11"],
              cond=("EXINT_LINE11", ("Configure EXINT11 in EXINT first",
                                     "请先在 EXINT 中配置 EXINT11"))),
        Check("External-Trigger-for-Preempted-Conversion",
              ("External-Trigger-for-Preempted-Conversion", "抢占组外部触发"),
              [S("EXINT15", "ExternalInterrupt")], sems=[X + "EXINT15"],
              cond=("EXINT_LINE15", ("Configure EXINT15 in EXINT first",
                                     "请先在 EXINT 中配置 EXINT15"))),
    ]
    ORD = ("ADC Ordinary Conversion Mode", "ADC 普通转换模式")
    PRE = ("ADC Preempted Conversion Mode", "ADC 抢占转换模式")
    VM = ("Voltage Monitoring", "电压监测")
    ord_on, pre_on, vm_on = X + "ORD_ON", X + "PRE_ON", X + "VM_ON"
    samp = [("ADC_SAMPLETIME_" + s, s.replace("_", ".") + " Cycles",
             s.replace("_", ".") + " 周期") for s in adc.sample]
    first = samp[0][0]
    p = [
        B("SequenceMode", ("Sequence Mode", "序列模式"), BASIC,
          desc="Convert all channels of the group one after another."),
        B("RepeatMode", ("Repeat Mode", "重复模式"), BASIC,
          desc="Start again after the last conversion."),
        L("DataAlign", ("Data Alignment", "数据对齐"), BASIC,
          "ADC_RIGHT_ALIGNMENT",
          [("ADC_RIGHT_ALIGNMENT", "Right alignment", "右对齐"),
           ("ADC_LEFT_ALIGNMENT", "Left alignment", "左对齐")],
          desc="Alignment of the 12-bit result in the data register."),
        follow("TemperatureVINTRV", ("Temperature Sensor and Vintrv",
                                     "温度传感器和内部参考电压"), BASIC, [
            ("FALSE", "Disable", "禁止", none_of(X + "TEMP", X + "VINTRV")),
            ("TRUE", "Enable", "使能", X + "TEMP|" + X + "VINTRV")],
            desc="Follows the internal channel modes."),
        E("AD_Calibration", ("Calibration", "校准"), BASIC, "ENABLE",
          desc="Calibrate the ADC before use."),
        E("EnableOrdinaryConversion", ("Enable Ordinary Conversion",
                                       "使能普通转换"), ORD, "ENABLE",
          sems=(ord_on, None), desc="Use the ordinary group."),
        L("NbrOfOrdinarySequence", ("Number Of Conversion", "转换数量"), ORD,
          "1", [(str(k), str(k), str(k), X + "ORD_NUM=%d" % k)
                for k in range(1, 17)], expr=ord_on,
          desc="Channels in the ordinary sequence."),
        L("OrdinaryTriggerSource", ("Trigger Source", "触发源"), ORD,
          adc.ord_trig[0][0],
          adc.ord_trig, expr=ord_on,
          desc="Event that starts the ordinary group."),
        B("OrdinaryPartitionedMode", ("Partitioned Mode", "分割模式"), ORD,
          sems=(X + "ORD_PART", None), expr=ord_on,
          desc="Convert the sequence in parts."),
        L("NbrOfOrdinaryPartitioned", ("Partitioned Conversions",
                                       "分割转换数"), ORD, "1",
          [(str(k), str(k), str(k)) for k in range(1, 9)],
          expr=ord_on + "&" + X + "ORD_PART",
          desc="Channels per part."),
    ]
    for k in range(1, 17):
        e = ord_on + ("&" + X + "ORD_NUM>%d" % (k - 1) if k > 1 else "")
        p += [L("Channel_OrdinarySequence_%d" % k, ("Rank %d Channel" % k,
                                                    "序列 %d 通道" % k),
                ORD, "ADC_CHANNEL_%d" % adc.channels[0], _channel_values(adc), expr=e,
                desc="Channel converted at rank %d." % k),
              L("SamplingTime_OrdinarySequence_%d" % k,
                ("Rank %d Sampling Time" % k, "序列 %d 采样时间" % k), ORD,
                first, samp, expr=e,
                desc="Sampling time of rank %d." % k)]
    p += [
        E("EnablePreemptedConversion", ("Enable Preempted Conversion",
                                        "使能抢占转换"), PRE,
          sems=(pre_on, None), desc="Use the preempted group."),
        L("NbrOfPreemptedSequence", ("Number Of Conversion", "转换数量"), PRE,
          "1", [(str(k), str(k), str(k), X + "PRE_NUM=%d" % k)
                for k in range(1, 5)], expr=pre_on,
          desc="Channels in the preempted sequence."),
        L("PreemptedTriggerSource", ("Trigger Source", "触发源"), PRE,
          adc.pre_trig[0][0],
          adc.pre_trig, expr=pre_on,
          desc="Event that starts the preempted group."),
        L("PreemptedConvMode", ("Conversion Mode", "转换模式"), PRE, "Normal",
          [("Normal", "Triggered", "触发转换"),
           ("Partitioned", "Partitioned", "分割模式"),
           ("AutoPreempted", "Automatic after the ordinary group",
            "普通组后自动转换")], expr=pre_on,
          desc="How the preempted group starts."),
    ]
    for k in range(1, 5):
        e = pre_on + ("&" + X + "PRE_NUM>%d" % (k - 1) if k > 1 else "")
        p += [L("Channel_PreemptedSequence_%d" % k, ("Rank %d Channel" % k,
                                                     "序列 %d 通道" % k),
                PRE, "ADC_CHANNEL_%d" % adc.channels[0], _channel_values(adc), expr=e,
                desc="Channel converted at preempted rank %d." % k),
              L("SamplingTime_PreemptedSequence_%d" % k,
                ("Rank %d Sampling Time" % k, "序列 %d 采样时间" % k), PRE,
                first, samp, expr=e,
                desc="Sampling time of preempted rank %d." % k),
              H("PreemptedOffset_PreemptedSequence_%d" % k,
                ("Rank %d Offset" % k, "序列 %d 偏移" % k), PRE, "000", "FFF",
                expr=e, desc="Value subtracted from the result.")]
    vmodes = [("ADC_VMONITOR_SINGLE_ORDINARY", "Single ordinary channel",
               "单个普通通道", X + "VM_SINGLE"),
              ("ADC_VMONITOR_SINGLE_PREEMPT", "Single preempted channel",
               "单个抢占通道", X + "VM_SINGLE"),
              ("ADC_VMONITOR_SINGLE_ORDINARY_PREEMPT",
               "Single ordinary or preempted channel", "单个普通或抢占通道",
               X + "VM_SINGLE"),
              ("ADC_VMONITOR_ALL_ORDINARY", "All ordinary channels",
               "所有普通通道"),
              ("ADC_VMONITOR_ALL_PREEMPT", "All preempted channels",
               "所有抢占通道"),
              ("ADC_VMONITOR_ALL_ORDINARY_PREEMPT",
               "All ordinary and preempted channels", "所有普通和抢占通道")]
    p += [
        E("EnableVoltageMonitoring", ("Enable Voltage Monitoring",
                                      "使能电压监测"), VM, sems=(vm_on, None),
          desc="Watch the results against two thresholds."),
        L("VoltageMonitoringMode", ("Monitoring Mode", "监测模式"), VM,
          vmodes[0][0], vmodes, expr=vm_on, desc="Channels watched."),
        L("VoltageMonitoringChannel", ("Monitored Channel", "监测通道"), VM,
          "ADC_CHANNEL_%d" % adc.channels[0], _channel_values(adc),
          expr=vm_on + "&" + X + "VM_SINGLE", desc="Channel watched."),
        H("AWD1HighBoundary", ("High Threshold", "高阈值"), VM, "FFF", "FFF",
          expr=vm_on, desc="Upper threshold, 12 bit."),
        H("AWD1LowBoundary", ("Low Threshold", "低阈值"), VM, "000", "FFF",
          expr=vm_on, desc="Lower threshold, 12 bit."),
        E("PreemptedInterrupt", ("Preempted Conversion Interrupt",
                                 "抢占转换中断"), ADV, expr=pre_on,
          desc="Interrupt at the end of the preempted group."),
        E("VoltageMonitoringInterrupt", ("Voltage Monitoring Interrupt",
                                         "电压监测中断"), ADV, expr=vm_on,
          desc="Interrupt when a result leaves the window."),
    ]
    items = modes + p
    if not adc.exint:
        items = prune(items, modes=["External-Trigger-for-Ordinary-Conversion",
                                    "External-Trigger-for-Preempted-Conversion"])
    if not adc.internal or adc.common:
        items = prune(items, params=["TemperatureVINTRV"])
    return build_ip(_newer_adc(adc, items), mark_virtual=fam.fact("mark_virtual"))


COMBINED = [
    ("ADC_INDEPENDENT_MODE", "Independent", "独立模式"),
    ("ADC_ORDINARY_SMLT_PREEMPT_SMLT_MODE", "Ordinary and preempted simultaneous",
     "普通和抢占同时模式"),
    ("ADC_ORDINARY_SMLT_PREEMPT_INTERLTRIG_MODE",
     "Ordinary simultaneous, preempted alternate trigger", "普通同时、抢占交替触发模式"),
    ("ADC_ORDINARY_SHORTSHIFT_PREEMPT_SMLT_MODE",
     "Ordinary fast interleaved, preempted simultaneous", "普通快速交错、抢占同时模式"),
    ("ADC_ORDINARY_LONGSHIFT_PREEMPT_SMLT_MODE",
     "Ordinary slow interleaved, preempted simultaneous", "普通慢速交错、抢占同时模式"),
    ("ADC_PREEMPT_SMLT_ONLY_MODE", "Preempted simultaneous only", "仅抢占同时模式"),
    ("ADC_ORDINARY_SMLT_ONLY_MODE", "Ordinary simultaneous only", "仅普通同时模式"),
    ("ADC_ORDINARY_SHORTSHIFT_ONLY_MODE", "Ordinary fast interleaved only",
     "仅普通快速交错模式"),
    ("ADC_ORDINARY_LONGSHIFT_ONLY_MODE", "Ordinary slow interleaved only",
     "仅普通慢速交错模式"),
    ("ADC_PREEMPT_INTERLTRIG_ONLY_MODE", "Preempted alternate trigger only",
     "仅抢占交替触发模式"),
]


def _newer_adc(adc, items):
    """Adds what the ADC of a family has beyond the first kind: the combined mode of a dual
    ADC, the clock prescaler of the ADCs on the AHB, resolution, trigger edges and
    oversampling."""
    pre = []
    if adc.dual:
        pre.append(L("Mode", ("Combined Mode", "组合模式"), ("ADC Combined Mode",
                                                         "ADC 组合模式"),
                     COMBINED[0][0], COMBINED,
                     desc="How ADC1 and ADC2 convert together; ADC2 follows ADC1."))
    if adc.prescaler:
        g = ("ADC Clock", "ADC 时钟")
        pre += [L("ClockPrescaler", ("Clock Prescaler", "时钟分频"), g, "ADC_HCLK_DIV_4",
                  [("ADC_HCLK_DIV_%d" % d, "HCLK / %d" % d, "HCLK / %d" % d)
                   for d in range(2, 18)],
                  desc="Divider of the AHB clock for the ADCs; greyed values exceed "
                       "80 MHz or the APB2 clock."),
                T("Clock", ("ADC Clock", "ADC 时钟"), g,
                  desc="Clock of the ADCs in Hz.")]
    if not adc.new:
        return pre + items
    edges = [("NONE", "Off", "关闭"), ("RISING", "Rising edge", "上升沿"),
             ("FALLING", "Falling edge", "下降沿"), ("RISING_FALLING", "Both edges", "双边沿")]
    over = ("Oversampling", "过采样")
    o_on, p_on = X + "ORD_OVERSAMPLE", X + "PRE_OVERSAMPLE"
    ratios = [("ADC_OVERSAMPLE_RATIO_%d" % r, "%d samples" % r, "%d 次采样" % r)
              for r in (2, 4, 8, 16, 32, 64, 128, 256)]
    shifts = [("ADC_OVERSAMPLE_SHIFT_%d" % r, "%d bits" % r, "%d 位" % r)
              for r in range(9)]
    out = []
    for it in items:
        out.append(it)
        name = it.get("name")
        if name == "DataAlign":
            out.append(L("ResolutionSelect", ("Resolution", "分辨率"), BASIC,
                         "ADC_RESOLUTION_12B",
                         [("ADC_RESOLUTION_%dB" % b, "%d bits" % b, "%d 位" % b)
                          for b in (12, 10, 8, 6)], desc="Bits of one conversion."))
        if name in ("OrdinaryTriggerSource", "PreemptedTriggerSource"):
            grp = "ORDINARY" if name.startswith("Ord") else "PREEMPT"
            key = "Ordinary" if grp == "ORDINARY" else "Preempted"
            out.append(L(key + "ExternalTriggerEdge", ("Trigger Edge", "触发边沿"),
                         it["group"], "ADC_%s_TRIG_EDGE_NONE" % grp,
                         [("ADC_%s_TRIG_EDGE_%s" % (grp, e), en, ch) for e, en, ch in edges],
                         expr=it["expr"],
                         desc="Edge of the trigger that starts a conversion."))
    out += [
        B("OrdinaryOversamplingEnable", ("Ordinary Oversampling", "普通组过采样"), over,
          sems=(o_on, None), desc="Add several conversions of each ordinary channel."),
        L("OrdinaryOversamplingRatio", ("Ratio", "过采样倍数"), over,
          "ADC_OVERSAMPLE_RATIO_2", ratios, expr=o_on, desc="Conversions added up."),
        L("OrdinaryOversamplingShift", ("Right Shift", "右移位数"), over,
          "ADC_OVERSAMPLE_SHIFT_1", shifts, expr=o_on, desc="Shift of the sum."),
        B("PreemptedOversamplingEnable", ("Preempted Oversampling", "抢占组过采样"), over,
          sems=(p_on, None), desc="Add several conversions of each preempted channel."),
        B("OrdinaryConversionOverflowInterrupt", ("Ordinary Overflow Interrupt",
                                                 "普通组溢出中断"), ADV,
          desc="Interrupt when a result is overwritten before it was read."),
        B("OrdinaryDMARequestContinuation", ("DMA Request Continuation", "DMA 请求连续"),
          ADV, desc="Keep asking for DMA after the last conversion of the sequence."),
        B("EachOrdinaryChannelConversionOCCE", ("End Flag per Channel", "每通道转换结束标志"),
          ADV, desc="Set the end-of-conversion flag after each channel, not each sequence."),
    ]
    return pre + out


def adc_common_file(fam):
    """Settings the ADCs share on the families with a common block."""
    g = ("ADC Common Settings", "ADC 共用设置")
    modes = [Check("Activated", ("Activated", "激活"), [], sems=[X + "ACTIVE"])]
    combined = [("ADC_INDEPENDENT_MODE", "Independent", "独立模式")]
    for n, en, ch in (("DUAL", "Dual ADC1 and ADC2", "ADC1 和 ADC2 双重"),
                      ("TRIPLE", "Triple ADC1, ADC2 and ADC3", "ADC1、ADC2 和 ADC3 三重")):
        for v, ven, vch in COMBINED[1:]:
            combined.append((v.replace("ADC_", "ADC_%s_" % n, 1), "%s: %s" % (en, ven),
                             "%s：%s" % (ch, vch)))
    dma_modes = [("ADC_COMMON_DMAMODE_DISABLE", "Off", "关闭")] + [
        ("ADC_COMMON_DMAMODE_%d" % k, "Mode %d" % k, "模式 %d" % k) for k in range(1, 6)]
    p = [
        L("Mode", ("Combined Mode", "组合模式"), g, combined[0][0], combined,
          desc="How the ADCs convert together."),
        L("DMATransferMode", ("DMA Access Mode", "DMA 访问模式"), g, dma_modes[0][0],
          dma_modes, desc="How the results of the combined ADCs are given to the DMA."),
        B("DMARequestContinuation", ("DMA Request Continuation", "DMA 请求连续"), g,
          desc="Keep asking for DMA after the last conversion."),
        L("SamplingInterval", ("Sampling Interval", "采样间隔"), g,
          "ADC_SAMPLING_INTERVAL_5CYCLES",
          [("ADC_SAMPLING_INTERVAL_%dCYCLES" % c, "%d cycles" % c, "%d 个周期" % c)
           for c in range(5, 21)], desc="Delay between the ADCs in interleaved modes."),
        follow("TemperatureVINTRV", ("Temperature Sensor and Vintrv",
                                     "温度传感器和内部参考电压"), g, [
            ("FALSE", "Disable", "禁止", none_of("ADC1_TEMP", "ADC1_VINTRV")),
            ("TRUE", "Enable", "使能", "ADC1_TEMP|ADC1_VINTRV")],
            desc="Follows the internal channels of ADC1."),
    ]
    return build_ip(modes + p)


def dac_file(fam):
    """Two-channel DAC with triggers, noise and triangle waves."""
    modes = [RefSignal("EXINT9", "", virtual=True)]
    trig = [("DAC_SOFTWARE_TRIGGER", "Software trigger", "软件触发")]
    for tmr in ("TMR2", "TMR4", "TMR5", "TMR6", "TMR7", "TMR8"):
        if fam.has(tmr):
            trig.append(("DAC_%s_TRGOUT_EVENT" % tmr, "%s trigger out" % tmr,
                         "%s 触发输出" % tmr))
    trig.append(("DAC_EXINT9_EVENT", "EXINT line 9", "EXINT 线 9", None, X + "EXINT9"))
    p = []
    for n in (1, 2):
        on = X + "OUT%d" % n
        modes.append(Check("OUT%d" % n, ("OUT%d" % n, "OUT%d" % n),
                           [S("OUT%d" % n, A)], sems=[on]))
        g = ("Output %d" % n, "输出 %d" % n)
        noise, tri = X + "NOISE%d" % n, X + "TRIANGLE%d" % n
        p += [
            follow("Enable_OUT%d" % n, ("Output %d" % n, "输出 %d" % n), g, [
                ("FALSE", "Disable", "禁止", "!" + on), ("TRUE", "Enable", "使能", on)],
                desc="Follows the OUT%d mode." % n),
            B("Output_Buffer_%d" % n, ("Output Buffer", "输出缓冲"), g, "TRUE", expr=on,
              desc="Drive the pin through the output buffer."),
            L("Trigger_Source_%d" % n, ("Trigger", "触发"), g, "NONE",
              [("NONE", "None, convert at once", "无，立即转换")] + trig, expr=on,
              desc="Event that loads the next value."),
            L("Waveform_Select_%d" % n, ("Wave Generation", "波形生成"), g,
              "DAC_WAVE_GENERATE_NONE",
              [("DAC_WAVE_GENERATE_NONE", "None", "无"),
               ("DAC_WAVE_GENERATE_NOISE", "Noise", "噪声", noise),
               ("DAC_WAVE_GENERATE_TRIANGLE", "Triangle", "三角波", tri)], expr=on,
              desc="Wave added to the value at each trigger."),
            L("Noise_Mask_%d" % n, ("Noise Bits", "噪声位数"), g, "DAC_LSFR_BIT0_AMPLITUDE_1",
              [("DAC_LSFR_BIT%d_AMPLITUDE_%d" % (b, 2 ** (b + 1) - 1), "%d bits" % (b + 1),
                "%d 位" % (b + 1)) for b in range(12)], expr=on + "&" + noise,
              desc="Bits of the noise generator that are used."),
            L("Triangle_Amplitude_%d" % n, ("Triangle Amplitude", "三角波幅度"), g,
              "DAC_TRIANGLE_AMPLITUDE_1",
              [("DAC_TRIANGLE_AMPLITUDE_%d" % (2 ** (b + 1) - 1), str(2 ** (b + 1) - 1),
                str(2 ** (b + 1) - 1)) for b in range(12)], expr=on + "&" + tri,
              desc="Peak value of the triangle."),
        ]
    if "DAC" in fam.fact("routes", {}).get("EXINT", ()):
        modes.append(Check("External-Trigger-EXINT9", ("External Trigger on EXINT9",
                                                       "EXINT9 外部触发"),
                           [S("EXINT9", "ExternalInterrupt")], sems=[X + "EXINT9"],
                           cond=("EXINT_LINE9", ("Configure EXINT9 in EXINT first",
                                                 "请先在 EXINT 中配置 EXINT9"))))
    else:
        modes = prune(modes + p, sems=[X + "EXINT9"])
        p = []
    return build_ip(modes + p, mark_virtual=True)


# Comparator inputs by pin on the families with one comparator.
CMP_PINS = {"INP0": "PA1", "INP1": "PA3", "INM4": "PA4", "INM5": "PA5", "INM6": "PA0",
            "INM7": "PA2"}


def cmp_file(fam=None, insts=("CMP1",)):
    """Comparator; a file shared by two comparators names the inputs without pins and adds
    the window (double comparator), glitch filter and blanking settings."""
    shared = len(insts) > 1

    def pin(role):
        return role if shared else CMP_PINS[role]

    def text(role):
        return role if shared else "%s (%s)" % (CMP_PINS[role], role)
    inp = [G("INP0", ("INP0", "INP0"), [S("INP0", A)], sems=[X + "INP0"]),
           G("INP1", ("INP1", "INP1"), [S("INP1", A)], sems=[X + "INP1"])]
    inm = [G(n, (en, ch), [], sems=[X + n]) for n, en, ch in (
        ("VREF_1_4", "1/4 Vrefint", "1/4 内部参考电压"),
        ("VREF_1_2", "1/2 Vrefint", "1/2 内部参考电压"),
        ("VREF_3_4", "3/4 Vrefint", "3/4 内部参考电压"),
        ("VREF", "Vrefint", "内部参考电压"))]
    inm += [G("INM%d" % k, ("INM%d" % k, "INM%d" % k), [S("INM%d" % k, A)],
              sems=[X + "INM%d" % k]) for k in (4, 5, 6, 7)]
    modes = [
        Mode("Non-Inverting Input", ("Non-Inverting Input", "同相输入"), inp),
        Mode("Inverting Input", ("Inverting Input", "反相输入"), inm),
        Check("Output", ("Output", "输出"), [S("OUT", "MuxOutputPushPull")],
              sems=[X + "OUT"]),
    ]
    g = ("Comparator Settings", "比较器设置")
    inv = [("CMP_INVERTING_1_4VREFINT", "1/4 Vrefint", "1/4 内部参考电压",
            X + "VREF_1_4"),
           ("CMP_INVERTING_1_2VREFINT", "1/2 Vrefint", "1/2 内部参考电压",
            X + "VREF_1_2"),
           ("CMP_INVERTING_3_4VREFINT", "3/4 Vrefint", "3/4 内部参考电压",
            X + "VREF_3_4"),
           ("CMP_INVERTING_VREFINT", "Vrefint", "内部参考电压", X + "VREF"),
           ] + [("CMP_INVERTING_" + pin(r), text(r), text(r), X + r)
                for r in ("INM4", "INM5", "INM6", "INM7")]
    p = [
        follow("NonInvertingInput", ("Non-Inverting Input", "同相输入"), g, [
            ("CMP_NON_INVERTING_" + pin(r), text(r), text(r), X + r)
            for r in ("INP0", "INP1")],
            desc="Follows the non-inverting input mode."),
        follow("InvertingInput", ("Inverting Input", "反相输入"), g, inv,
               desc="Follows the inverting input mode."),
        L("Output", ("Output Internal Selection", "输出内部连接"), g,
          "CMP_OUTPUT_NONE",
          [("CMP_OUTPUT_NONE", "None", "无")] +
          [v for v in (
              ("CMP_OUTPUT_TMR1BRK", "TMR1 break input", "TMR1 刹车输入"),
              ("CMP_OUTPUT_TMR1CH1", "TMR1 channel 1 input", "TMR1 通道 1 输入"),
              ("CMP_OUTPUT_TMR1CHCLR", "TMR1 channel clear", "TMR1 通道清除"),
              ("CMP_OUTPUT_TMR2CH4", "TMR2 channel 4 input", "TMR2 通道 4 输入"),
              ("CMP_OUTPUT_TMR2CHCLR", "TMR2 channel clear", "TMR2 通道清除"),
              ("CMP_OUTPUT_TMR3CH1", "TMR3 channel 1 input", "TMR3 通道 1 输入"),
              ("CMP_OUTPUT_TMR3CHCLR", "TMR3 channel clear", "TMR3 通道清除"))
           if fam is None or fam.has(v[0][11:15])],
          desc="Timer input that the comparator output drives."),
        L("OutputPol", ("Output Polarity", "输出极性"), g,
          "CMP_POL_NON_INVERTING",
          [("CMP_POL_NON_INVERTING", "Not inverted", "不反相"),
           ("CMP_POL_INVERTING", "Inverted", "反相")],
          desc="Polarity of the output."),
        L("Mode", ("Speed and Power", "速度和功耗"), g, "CMP_SPEED_FAST",
          [("CMP_SPEED_FAST", "High speed", "高速"),
           ("CMP_SPEED_MEDIUM", "Medium speed", "中速"),
           ("CMP_SPEED_SLOW", "Low speed", "低速"),
           ("CMP_SPEED_ULTRALOW", "Ultra low power", "超低功耗")],
          desc="Trade-off between response time and supply current."),
        L("Hysteresis", ("Hysteresis", "迟滞"), g, "CMP_HYSTERESIS_NONE",
          [("CMP_HYSTERESIS_NONE", "None", "无"),
           ("CMP_HYSTERESIS_LOW", "Low", "低"),
           ("CMP_HYSTERESIS_MEDIUM", "Medium", "中"),
           ("CMP_HYSTERESIS_HIGH", "High", "高")],
          desc="Hysteresis of the input stage."),
        B("WriteProtect", ("Write Protection", "写保护"), g,
          desc="Lock the comparator settings until reset."),
    ]
    if shared:
        f = X + "GLITCH"
        p += [
            B("DoubleComparatorMode", ("Window Mode", "窗口模式"), g,
              desc="Join the non-inverting inputs of both comparators to watch a window."),
            B("GlitchFilter", ("Glitch Filter", "毛刺滤波"), g, sems=(f, None),
              desc="Ignore output pulses shorter than the counts below."),
            I("HighPulseCount", ("High Pulse Count", "高脉冲计数"), g, 0, 0, 63, expr=f,
              desc="Shortest high pulse that passes, in APB clocks."),
            I("LowPulseCount", ("Low Pulse Count", "低脉冲计数"), g, 0, 0, 63, expr=f,
              desc="Shortest low pulse that passes, in APB clocks."),
            L("BlankSource", ("Blanking Source", "消隐源"), g, "CMP_BLANKING_NONE",
              [("CMP_BLANKING_NONE", "None", "无"),
               ("CMP_BLANKING_TMR1_CH4", "TMR1 channel 4", "TMR1 通道 4"),
               ("CMP_BLANKING_TMR2_CH3", "TMR2 channel 3", "TMR2 通道 3"),
               ("CMP_BLANKING_TMR3_CH3", "TMR3 channel 3", "TMR3 通道 3")],
              desc="Timer output that masks the comparator output."),
        ]
    return build_ip(modes + p)


def builders(fam):
    b = {"CMP": lambda inst: cmp_file(fam, inst), "ADC-Common": lambda inst: adc_common_file(fam),
         "DAC": lambda inst: dac_file(fam)}
    for adc in ("ADC1", "ADC2", "ADC3"):
        b[adc] = (lambda a: lambda inst: adc_file(fam, a))(adc)
    return b
