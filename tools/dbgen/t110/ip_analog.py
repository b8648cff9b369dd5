"""ADC1 and the comparator CMP1 of the MQ48T110."""
from common import ADV, BASIC, B, E, H, L, follow, none_of
from model import Check, G, Mode, RefSignal, S, build_ip

A = "Analog"
X = "$IpInstance_"
CHANNELS = list(range(10))
SAMPLE = ["1_5", "7_5", "13_5", "28_5", "41_5", "55_5", "71_5", "239_5"]


def _channel_values():
    vals = [("ADC_CHANNEL_%d" % n, "Channel %d" % n, "通道 %d" % n, None,
             X + "IN%d" % n) for n in CHANNELS]
    vals += [("ADC_CHANNEL_16", "Temperature sensor", "温度传感器", None,
              X + "TEMP"),
             ("ADC_CHANNEL_17", "Vintrv", "内部参考电压", None, X + "VINTRV")]
    return vals


def adc_file():
    modes = [RefSignal("EXINT11", "", virtual=True),
             RefSignal("EXINT15", "", virtual=True)]
    for n in CHANNELS:
        modes.append(Check("IN%d" % n, ("IN%d" % n, "IN%d" % n),
                           [S("IN%d" % n, A)], sems=[X + "IN%d" % n]))
    modes += [
        Check("Temperature Sensor Channel", ("Temperature Sensor Channel",
                                             "温度传感器通道"),
              [], sems=[X + "TEMP"]),
        Check("Vintrv Channel", ("Vintrv Channel", "内部参考电压通道"), [],
              sems=[X + "VINTRV"]),
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
             s.replace("_", ".") + " 周期") for s in SAMPLE]
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
          "ADC12_ORDINARY_TRIG_SOFTWARE",
          [("ADC12_ORDINARY_TRIG_SOFTWARE", "Software trigger", "软件触发"),
           ("ADC12_ORDINARY_TRIG_TMR1CH1", "TMR1 channel 1", "TMR1 通道 1"),
           ("ADC12_ORDINARY_TRIG_TMR1CH2", "TMR1 channel 2", "TMR1 通道 2"),
           ("ADC12_ORDINARY_TRIG_TMR1CH3", "TMR1 channel 3", "TMR1 通道 3"),
           ("ADC12_ORDINARY_TRIG_TMR3TRGOUT", "TMR3 trigger out",
            "TMR3 触发输出"),
           ("ADC12_ORDINARY_TRIG_TMR15TRGOUT", "TMR15 trigger out",
            "TMR15 触发输出"),
           ("ADC12_ORDINARY_TRIG_EXINT11", "EXINT line 11", "EXINT 线 11",
            None, X + "EXINT11")], expr=ord_on,
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
                ORD, "ADC_CHANNEL_0", _channel_values(), expr=e,
                desc="Channel converted at rank %d." % k),
              L("SamplingTime_OrdinarySequence_%d" % k,
                ("Rank %d Sampling Time" % k, "序列 %d 采样时间" % k), ORD,
                "ADC_SAMPLETIME_1_5", samp, expr=e,
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
          "ADC12_PREEMPT_TRIG_SOFTWARE",
          [("ADC12_PREEMPT_TRIG_SOFTWARE", "Software trigger", "软件触发"),
           ("ADC12_PREEMPT_TRIG_TMR1TRGOUT", "TMR1 trigger out",
            "TMR1 触发输出"),
           ("ADC12_PREEMPT_TRIG_TMR1CH4", "TMR1 channel 4", "TMR1 通道 4"),
           ("ADC12_PREEMPT_TRIG_TMR3CH4", "TMR3 channel 4", "TMR3 通道 4"),
           ("ADC12_PREEMPT_TRIG_TMR15CH1", "TMR15 channel 1", "TMR15 通道 1"),
           ("ADC12_PREEMPT_TRIG_EXINT15", "EXINT line 15", "EXINT 线 15",
            None, X + "EXINT15")], expr=pre_on,
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
                PRE, "ADC_CHANNEL_0", _channel_values(), expr=e,
                desc="Channel converted at preempted rank %d." % k),
              L("SamplingTime_PreemptedSequence_%d" % k,
                ("Rank %d Sampling Time" % k, "序列 %d 采样时间" % k), PRE,
                "ADC_SAMPLETIME_1_5", samp, expr=e,
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
          "ADC_CHANNEL_0", _channel_values(),
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
    return build_ip(modes + p)


def cmp_file():
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
           ("CMP_INVERTING_PA4", "PA4 (INM4)", "PA4 (INM4)", X + "INM4"),
           ("CMP_INVERTING_PA5", "PA5 (INM5)", "PA5 (INM5)", X + "INM5"),
           ("CMP_INVERTING_PA0", "PA0 (INM6)", "PA0 (INM6)", X + "INM6"),
           ("CMP_INVERTING_PA2", "PA2 (INM7)", "PA2 (INM7)", X + "INM7")]
    p = [
        follow("NonInvertingInput", ("Non-Inverting Input", "同相输入"), g, [
            ("CMP_NON_INVERTING_PA1", "PA1 (INP0)", "PA1 (INP0)", X + "INP0"),
            ("CMP_NON_INVERTING_PA3", "PA3 (INP1)", "PA3 (INP1)", X + "INP1")],
            desc="Follows the non-inverting input mode."),
        follow("InvertingInput", ("Inverting Input", "反相输入"), g, inv,
               desc="Follows the inverting input mode."),
        L("Output", ("Output Internal Selection", "输出内部连接"), g,
          "CMP_OUTPUT_NONE",
          [("CMP_OUTPUT_NONE", "None", "无"),
           ("CMP_OUTPUT_TMR1BRK", "TMR1 break input", "TMR1 刹车输入"),
           ("CMP_OUTPUT_TMR1CH1", "TMR1 channel 1 input", "TMR1 通道 1 输入"),
           ("CMP_OUTPUT_TMR1CHCLR", "TMR1 channel clear", "TMR1 通道清除"),
           ("CMP_OUTPUT_TMR3CH1", "TMR3 channel 1 input", "TMR3 通道 1 输入"),
           ("CMP_OUTPUT_TMR3CHCLR", "TMR3 channel clear", "TMR3 通道清除")],
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
    return build_ip(modes + p)


BUILDERS = {"ADC1": lambda inst: adc_file(), "CMP": lambda inst: cmp_file()}
