"""Timers TMR1, TMR3, TMR6, TMR14, TMR15, TMR16, TMR17 and IRTMR."""
from common import ADV, B, I, L, T, follow, none_of
from model import Check, G, Mode, S, build_ip

OUT, IN = "MuxOutputPushPull", "MuxInput"
X = "$IpInstance_"
ACTIVE = X + "ACTIVE"
NEED_ACTIVE = (ACTIVE, ("Activate the timer first", "请先激活定时器"))

CNT = ("Counter Settings", "计数器设置")
TRG = ("Trigger Output (TRGO) Parameters", "触发输出参数")
SUBG = ("Subordinate Mode Parameters", "从模式参数")
BRKG = ("Break and Dead Time", "刹车和死区")
MUL = ("Combined Channels", "组合通道")
FILTER_DESC = ("Digital filter code 0 to 15; the frequency beside it is "
               "worked out from the timer clock.")


def _channel_modes(n, f):
    c = "CH%d" % n
    base = [X + c + "_USED"]
    pin = X + c + "_PIN"
    groups = [
        G("Input Capture direct mode", ("Input Capture direct mode",
                                        "输入捕获直接模式"),
          [S(c, IN)], sems=base + [X + c + "_IC"]),
        G("Output Compare No Output", ("Output Compare No Output",
                                       "输出比较无输出"),
          [], sems=base + [X + c + "_OC"]),
        G("Output Compare " + c, ("Output Compare " + c, "输出比较 " + c),
          [S(c, OUT)], sems=base + [X + c + "_OC", pin]),
        G("PWM Generation No Output", ("PWM Generation No Output",
                                       "PWM 生成无输出"),
          [], sems=base + [X + c + "_PWM"]),
        G("PWM Generation " + c, ("PWM Generation " + c, "PWM 生成 " + c),
          [S(c, OUT)], sems=base + [X + c + "_PWM", pin]),
    ]
    if n in f.get("comp", ()):
        cc = c + "C"
        groups += [
            G("PWM Generation %s %s" % (c, cc), ("PWM Generation %s %s"
                                                 % (c, cc),
                                                 "PWM 生成 %s %s" % (c, cc)),
              [S(c, OUT), S(cc, OUT)],
              sems=base + [X + c + "_PWM", pin, X + cc + "_PIN"]),
            G("PWM Generation " + cc, ("PWM Generation " + cc,
                                       "PWM 生成 " + cc),
              [S(cc, OUT)], sems=base + [X + c + "_PWM", X + cc + "_PIN"]),
        ]
    if f.get("ir") == "carrier":
        groups.append(G("IRTMR carrier", ("IRTMR carrier",
                                          "红外载波"),
                        [], sems=base + [X + c + "_OC", X + "IR_CARRIER"],
                        remove=f.get("ir_remove") or None))
    if f.get("ir") == "envelope":
        groups.append(G("IRTMR envelope", ("IRTMR envelope", "红外包络"),
                        [], sems=base + [X + c + "_OC", X + "IR_ENVELOPE"],
                        cond=("TMR16_IR_CARRIER", (
                            "Set TMR16 channel 1 to IRTMR carrier first",
                            "请先将 TMR16 通道 1 设为红外载波"))))
    if f.get("ir_env") == "envelope":
        car = f["ir_env_cond"]
        groups.append(G("IRTMR envelope", ("IRTMR envelope", "红外包络"),
                        [], sems=base + [X + c + "_OC", X + "IR_ENVELOPE"],
                        cond=(car, (
                            "Set %s channel 1 to IRTMR carrier first" % car[:-11],
                            "请先将 %s 通道 1 设为红外载波" % car[:-11])) if car else None,
                        remove=f.get("ir_env_remove") or None))
    covered = n <= 2 and (f.get("enc") or f.get("pwmin")) or \
        n == 3 and f.get("enc")
    cond = ACTIVE + ("&!" + X + "MULTI_" + c if covered else "")
    return Mode("Channel%d" % n, ("Channel%d" % n, "通道%d" % n), groups,
                cond=(cond, ("The channel is taken by the timer's other "
                             "settings", "该通道已被定时器其他设置占用")))


def _modes(f):
    modes = [Check("Activated", ("Activated", "激活"), [], sems=[ACTIVE])]
    if f.get("sub"):
        sub = [("Reset Mode", "复位模式", "SUB_RESET"),
               ("Suspend Mode", "挂起模式", "SUB_HANG"),
               ("Trigger Mode", "触发模式", "SUB_TRIGGER"),
               ("External Clock Mode A", "外部时钟模式 A", "SUB_EXTCLKA")]
        modes.append(Mode("Subordinate mode", ("Subordinate mode", "从模式"),
                          [G(en, (en, ch), [], sems=[X + s])
                           for en, ch, s in sub], cond=NEED_ACTIVE))
        inp = [G("IS%d" % k, ("Internal trigger %d (IS%d)" % (k, k),
                              "内部触发 %d (IS%d)" % (k, k)), [],
                 sems=[X + "SI_IS%d" % k]) for k in range(4)]
        inp += [G("C1INC", ("CH1 edge detector (C1INC)", "CH1 边沿检测 (C1INC)"),
                  [S("CH1", IN)], sems=[X + "SI_C1INC"]),
                G("C1DF1", ("Filtered CH1 input (C1DF1)", "CH1 滤波输入 (C1DF1)"),
                  [S("CH1", IN)], sems=[X + "SI_C1DF1"]),
                G("C2DF2", ("Filtered CH2 input (C2DF2)", "CH2 滤波输入 (C2DF2)"),
                  [S("CH2", IN)], sems=[X + "SI_C2DF2"])]
        if f.get("ext"):
            inp.append(G("EXTIN", ("External trigger input (EXTIN)",
                                   "外部触发输入 (EXTIN)"),
                         [S("EXT", IN)], sems=[X + "SI_EXTIN"]))
        modes.append(Mode("Sub-mode input selection",
                          ("Sub-mode input selection", "从模式输入选择"), inp,
                          cond=NEED_ACTIVE))
    if f.get("ext"):
        modes.append(Mode("Clock Source", ("Clock Source", "时钟源"), [
            G("Internal Clock", ("Internal Clock", "内部时钟"), [],
              sems=[X + "CLK_INT"]),
            G("External Clock Mode B", ("External Clock Mode B",
                                        "外部时钟模式 B"),
              [S("EXT", IN)], sems=[X + "CLK_EXTB"])], cond=NEED_ACTIVE))
    for n in range(1, f["ch"] + 1):
        modes.append(_channel_modes(n, f))
    if f.get("enc") or f.get("pwmin"):
        used = lambda *cs: none_of(*[X + "CH%d_USED" % c for c in cs])
        taken = ("The channels are in use", "通道已被使用")
        grps = []
        if f.get("enc"):
            grps.append(G("Encoder Mode", ("Encoder Mode", "编码器模式"),
                          [S("CH1", IN), S("CH2", IN)],
                          sems=[X + "ENCODER", X + "MULTI_CH1", X + "MULTI_CH2"],
                          cond=(used(1, 2), taken)))
        grps += [G("PWM Input on CH1", ("PWM Input on CH1", "CH1 上的 PWM 输入"),
                   [S("CH1", IN)], sems=[X + "PWM_IN1", X + "MULTI_CH1",
                                         X + "MULTI_CH2"],
                   cond=(used(1, 2), taken)),
                 G("PWM Input on CH2", ("PWM Input on CH2", "CH2 上的 PWM 输入"),
                   [S("CH2", IN)], sems=[X + "PWM_IN2", X + "MULTI_CH1",
                                         X + "MULTI_CH2"],
                   cond=(used(1, 2), taken))]
        if f.get("enc"):
            grps.append(G("XOR ON / Hall Sensor Mode",
                          ("XOR ON / Hall Sensor Mode", "异或/霍尔传感器模式"),
                          [S("CH1", IN), S("CH2", IN), S("CH3", IN)],
                          sems=[X + "HALL", X + "MULTI_CH1", X + "MULTI_CH2",
                                X + "MULTI_CH3"],
                          cond=(used(1, 2, 3), taken)))
        modes.append(Mode("Combined Channels", ("Combined Channels",
                                                "组合通道"), grps,
                          cond=NEED_ACTIVE))
    if f.get("brk"):
        modes.append(Check("Activate-Break-Input", ("Activate-Break-Input",
                                                    "激活刹车输入"),
                           [S("BRK", IN)], sems=[X + "BRK"],
                           cond=NEED_ACTIVE))
    return modes


def _filter(name, text, group, expr):
    return [I(name, text, group, 0, 0, 15, expr=expr, desc=FILTER_DESC),
            T(name + "_Frequency", (text[0] + " frequency", text[1] + "频率"),
              group, "0", expr=expr,
              desc="Filter sampling frequency in Hz.")]


def _params(f):
    p = [
        I("DividerValue", ("Prescaler", "预分频"), CNT, 0, 0, 65535,
          desc="Counter clock = timer clock / (Prescaler + 1)."),
    ]
    dirs = [("TMR_COUNT_UP", "Up", "向上计数"), ("TMR_COUNT_DOWN", "Down",
                                                 "向下计数")]
    if f.get("twoway"):
        dirs += [("TMR_COUNT_TWO_WAY_%d" % k, "Center aligned mode %d" % k,
                  "中央对齐模式 %d" % k) for k in (1, 2, 3)]
    if not f.get("basic") and len(dirs) > 1 and f["ch"] > 1:
        p.append(L("CounterDirection", ("Counter Mode", "计数模式"), CNT,
                   "TMR_COUNT_UP", dirs, desc="Counting direction."))
    p += [
        I("Period", ("Counter Period", "计数周期"), CNT, 2 ** f.get("bits", 16) - 1, 0,
          2 ** f.get("bits", 16) - 1, desc="Auto-reload value of the counter."),
        L("ClockDivision", ("Internal Clock Division", "内部时钟分频"), CNT,
          "TMR_CLOCK_DIV1",
          [("TMR_CLOCK_DIV1", "No Division", "不分频"),
           ("TMR_CLOCK_DIV2", "Division by 2", "2 分频"),
           ("TMR_CLOCK_DIV4", "Division by 4", "4 分频")],
          desc="Divider of the dead-time and filter clock."),
    ]
    if f.get("rep"):
        p.append(I("RepetitionCounter", ("Repetition Counter", "重复计数器"),
                   CNT, 0, 0, 255, desc="Overflows per update event minus one."))
    p += [
        B("PeriodBufferEnable", ("Auto-reload Preload", "自动重装载预装载"),
          CNT, desc="Buffer the period until the next update."),
        B("One_Cycle_Mode", ("One Pulse Mode", "单周期模式"), CNT,
          desc="Stop the counter at the next update event."),
        L("Overflow_Event", ("Overflow Event", "溢出事件"), CNT,
          "Overflow_From_COS",
          [("Overflow_From_COS", "Counter overflow, software or subordinate "
            "reset", "计数溢出、软件或从模式复位"),
           ("Overflow_From_C", "Counter overflow only", "仅计数溢出"),
           ("FALSE", "Disable", "禁止")],
          desc="Which events generate the overflow event."),
        B("Enable_CCBR", ("Channel Control Bit Refresh", "通道控制位刷新"),
          CNT, desc="Refresh the channel control bits on a trigger."),
        B("Enable_CBuffer", ("Channel Buffer Control", "通道缓冲控制"), CNT,
          desc="Buffer the channel control bits."),
        B("Enable_XOR", ("XOR of CH1 to CH3 inputs", "CH1 至 CH3 输入异或"),
          CNT, desc="Feed CH1 with the XOR of three inputs."),
    ]
    prim = [("TMR_PRIMARY_SEL_RESET", "Reset", "复位"),
            ("TMR_PRIMARY_SEL_ENABLE", "Enable", "使能"),
            ("TMR_PRIMARY_SEL_OVERFLOW", "Update Event", "溢出事件")]
    prim += [("TMR_PRIMARY_SEL_COMPARE", "Compare Pulse", "比较脉冲")] \
        if f["ch"] else []
    prim += [("TMR_PRIMARY_SEL_C%dORAW" % n, "Output Compare (C%dORAW)" % n,
              "输出比较 (C%dORAW)" % n) for n in range(1, f["ch"] + 1)]
    p += [L("Primary_TMR_output", ("Trigger Event Selection",
                                   "触发事件选择"), TRG,
            "TMR_PRIMARY_SEL_RESET", prim,
            desc="Event sent to other timers and the ADC."),
          B("Synchronize_With_Subtimer", ("Primary/Subordinate Mode",
                                          "主从模式同步"), TRG,
            desc="Delay the trigger so that subordinate timers start "
                 "together.")]
    if f.get("ext"):
        p += [follow("ClockSource", ("Clock Source", "时钟源"), CNT, [
                  ("TMR_CLOCKSOURCE_INTERNAL", "Internal", "内部",
                   "!" + X + "CLK_EXTB"),
                  ("TMR_CLOCKSOURCE_EXTMODEB", "External mode B", "外部模式 B",
                   X + "CLK_EXTB")], desc="Follows the clock source mode."),
              L("ExternalClockDivider", ("External Clock Prescaler",
                                         "外部时钟分频"), CNT,
                "TMR_ES_FREQUENCY_DIV_1",
                [("TMR_ES_FREQUENCY_DIV_%d" % d, "Division by %d" % d,
                  "%d 分频" % d) for d in (1, 2, 4, 8)], expr=X + "CLK_EXTB",
                desc="Divider of the EXT input."),
              L("ExternalClockPolarity", ("External Clock Polarity",
                                          "外部时钟极性"), CNT,
                "TMR_ET_NON_INVERTED",
                [("TMR_ET_NON_INVERTED", "Non inverted", "不反相"),
                 ("TMR_ET_INVERTED", "Inverted", "反相")], expr=X + "CLK_EXTB",
                desc="Edge of EXT that counts.")]
        p += _filter("ExternalClockFilter", ("External Clock Filter",
                                             "外部时钟滤波"), CNT,
                     X + "CLK_EXTB")
    if f.get("sub"):
        subs = ["SUB_RESET", "SUB_HANG", "SUB_TRIGGER", "SUB_EXTCLKA"]
        p.append(follow("TMR_SubMode_Control", ("Subordinate Mode", "从模式"),
                        SUBG, [
            ("TMR_SUB_MODE_DIABLE", "Disable", "禁止",
             none_of(*[X + s for s in subs])),
            ("TMR_SUB_RESET_MODE", "Reset", "复位", X + "SUB_RESET"),
            ("TMR_SUB_HANG_MODE", "Suspend", "挂起", X + "SUB_HANG"),
            ("TMR_SUB_TRIGGER_MODE", "Trigger", "触发", X + "SUB_TRIGGER"),
            ("TMR_SUB_EXTERNAL_CLOCK_MODE_A", "External clock A",
             "外部时钟 A", X + "SUB_EXTCLKA")], desc="Follows the mode."))
        sel = ["IS0", "IS1", "IS2", "IS3", "C1INC", "C1DF1", "C2DF2"]
        sel += ["EXTIN"] if f.get("ext") else []
        p.append(follow("SubModeInput_Selection", ("Trigger Source",
                                                   "触发源"), SUBG,
                        [("FALSE", "None", "无",
                          none_of(*[X + "SI_" + s for s in sel]))] +
                        [("TMR_SUB_INPUT_SEL_" + s, s, s, X + "SI_" + s)
                         for s in sel], desc="Follows the mode."))
        if f.get("ext"):
            e = X + "SI_EXTIN"
            p += [L("SubModeInput_EXT_divider", ("EXT Prescaler", "EXT 分频"),
                    SUBG, "TMR_ES_FREQUENCY_DIV_1",
                    [("TMR_ES_FREQUENCY_DIV_%d" % d, "Division by %d" % d,
                      "%d 分频" % d) for d in (1, 2, 4, 8)], expr=e,
                    desc="Divider of the EXT trigger."),
                  L("SubModeInput_EXT_polarity", ("EXT Polarity", "EXT 极性"),
                    SUBG, "TMR_ET_NON_INVERTED",
                    [("TMR_ET_NON_INVERTED", "Non inverted", "不反相"),
                     ("TMR_ET_INVERTED", "Inverted", "反相")], expr=e,
                    desc="Active edge of the EXT trigger.")]
            p += _filter("SubModeInput_EXT_filter", ("EXT Filter",
                                                     "EXT 滤波"), SUBG, e)
        for s, c in (("C1INC", "C1INC"), ("C1DF1", "C1DF1"), ("C2DF2", "C2DF2")):
            e = X + "SI_" + s
            if s != "C1INC":
                p.append(L("SubModeInput_%s_polarity" % s,
                           ("%s Polarity" % c, "%s 极性" % c), SUBG,
                           "TMR_INPUT_RISING_EDGE",
                           [("TMR_INPUT_RISING_EDGE", "Rising Edge", "上升沿"),
                            ("TMR_INPUT_FALLING_EDGE", "Falling Edge",
                             "下降沿")], expr=e,
                           desc="Active edge of the trigger input."))
            p += _filter("SubModeInput_%s_filter" % s,
                         ("%s Filter" % c, "%s 滤波" % c), SUBG, e)
    for n in range(1, f["ch"] + 1):
        p += _channel_params(n, f)
    if f.get("enc") or f.get("pwmin"):
        p += _multi_params(f)
    if f.get("brk"):
        p += _break_params(f)
    if f.get("remap"):
        g = ("Channel1", "通道1")
        p.append(L("InputRemap_CH1", ("Input Remap", "输入重映射"), g,
                   "TMR14_GPIO",
                   [("TMR14_GPIO", "CH1 pin", "CH1 引脚"),
                    ("TMR14_ERTCCLK", "ERTC clock", "ERTC 时钟"),
                    ("TMR14_HEXT_DIV32", "HEXT / 32", "HEXT / 32"),
                    ("TMR14_CLKOUT", "Clock output", "时钟输出")],
                   expr=X + "CH1_IC", desc="Source of the channel 1 input."))
    if f.get("ch4mux"):
        p.append(B("Channel4InputMux", ("Channel 4 Input from LICK/LEXT",
                                        "通道 4 输入取自 LICK/LEXT"),
                   ("Channel4", "通道4"), expr=X + "CH4_IC",
                   desc="Capture the low speed clocks on channel 4 to measure them."))
    return p


def _channel_params(n, f):
    c = "CH%d" % n
    g = ("Channel%d" % n, "通道%d" % n)
    ic, oc, pwm = X + c + "_IC", X + c + "_OC", X + c + "_PWM"
    out = oc + "|" + pwm
    p = [follow("Channel%dMode" % n, ("Channel %d Function" % n,
                                      "通道 %d 功能" % n), g, [
        ("NONE", "Unused", "未使用", none_of(ic, oc, pwm)),
        ("INPUT", "Input capture", "输入捕获", ic),
        ("OUTPUT", "Output compare or PWM", "输出比较或 PWM", out)],
        desc="Follows the channel mode.")]
    p += [
        L("InputSelection_Channel%d" % n, ("IC Selection", "输入选择"), g,
          "TMR_CC_CHANNEL_MAPPED_DIRECT",
          [("TMR_CC_CHANNEL_MAPPED_DIRECT", "Direct", "直接"),
           ("TMR_CC_CHANNEL_MAPPED_INDIRECT", "Indirect", "间接"),
           ("TMR_CC_CHANNEL_MAPPED_STI", "Trigger input (STI)",
            "触发输入 (STI)")], expr=ic, desc="Input routed to the channel."),
        L("InputPolarity_CH%d" % n, ("Polarity Selection", "极性选择"), g,
          "TMR_INPUT_RISING_EDGE",
          [("TMR_INPUT_RISING_EDGE", "Rising Edge", "上升沿"),
           ("TMR_INPUT_FALLING_EDGE", "Falling Edge", "下降沿"),
           ("TMR_INPUT_BOTH_EDGE", "Both Edges", "双边沿")], expr=ic,
          desc="Edge that captures."),
        L("InputDivider_Channel%d" % n, ("Prescaler Division Ratio",
                                         "预分频比"), g,
          "TMR_CHANNEL_INPUT_DIV_1",
          [("TMR_CHANNEL_INPUT_DIV_%d" % d, "Every %d events" % d,
            "每 %d 个事件" % d) for d in (1, 2, 4, 8)], expr=ic,
          desc="Capture every n-th event."),
    ]
    p += _filter("InputFilter_CH%d" % n, ("Input Filter", "输入滤波"), g, ic)
    modes = [("TMR_OUTPUT_CONTROL_OFF", "Frozen", "冻结", oc),
             ("TMR_OUTPUT_CONTROL_HIGH", "Active level on match",
              "匹配时输出有效电平", oc),
             ("TMR_OUTPUT_CONTROL_LOW", "Inactive level on match",
              "匹配时输出无效电平", oc),
             ("TMR_OUTPUT_CONTROL_SWITCH", "Toggle on match", "匹配时翻转", oc),
             ("TMR_OUTPUT_CONTROL_FORCE_LOW", "Forced inactive", "强制无效",
              oc),
             ("TMR_OUTPUT_CONTROL_FORCE_HIGH", "Forced active", "强制有效", oc),
             ("TMR_OUTPUT_CONTROL_PWM_MODE_A", "PWM mode A", "PWM 模式 A", pwm),
             ("TMR_OUTPUT_CONTROL_PWM_MODE_B", "PWM mode B", "PWM 模式 B", pwm)]
    p.append(L("OCMode_%d" % n, ("Mode", "模式"), g, modes[0][0],
               [(v, en, ch, None, cond) for v, en, ch, cond in modes],
               expr=out, desc="Output compare mode of the channel."))
    p += [
        I("ChannelData_%d" % n, ("Pulse", "脉冲值"), g, 0, 0, 65535,
          expr=out, desc="Compare value of the channel."),
        follow("OCState_%d" % n, ("Output State", "输出状态"), g, [
            ("FALSE", "Disable", "禁止", "!" + X + c + "_PIN"),
            ("TRUE", "Enable", "使能", X + c + "_PIN")],
            desc="Follows the mode: the channel drives its pin."),
        L("OCPolarity_%d" % n, ("CH Polarity", "CH 极性"), g,
          "TMR_OUTPUT_ACTIVE_HIGH",
          [("TMR_OUTPUT_ACTIVE_HIGH", "High", "高"),
           ("TMR_OUTPUT_ACTIVE_LOW", "Low", "低")], expr=out,
          desc="Active level of the output."),
        B("OCIdleState_%d" % n, ("CH Idle State", "CH 空闲状态"), g,
          expr=out, desc="Output level when the outputs are off."),
        B("OC%dBuffer" % n, ("Output Compare Preload", "输出比较预装载"), g,
          expr=out, desc="Buffer the compare value until the update."),
        B("OC%dImmediatelyMode_PWM" % n, ("Fast Mode", "快速模式"), g,
          expr=pwm, desc="Let a trigger act on the output at once."),
    ]
    if n in f.get("comp", ()):
        cc = X + c + "C_PIN"
        p += [
            follow("OCCState_%d" % n, ("Complementary Output State",
                                       "互补输出状态"), g, [
                ("FALSE", "Disable", "禁止", "!" + cc),
                ("TRUE", "Enable", "使能", cc)],
                desc="Follows the mode: the complementary pin is driven."),
            L("OCCPolarity_%d" % n, ("CHC Polarity", "CHC 极性"), g,
              "TMR_OUTPUT_ACTIVE_HIGH",
              [("TMR_OUTPUT_ACTIVE_HIGH", "High", "高"),
               ("TMR_OUTPUT_ACTIVE_LOW", "Low", "低")], expr=out,
              desc="Active level of the complementary output."),
            B("OCCIdleState_%d" % n, ("CHC Idle State", "CHC 空闲状态"), g,
              expr=out, desc="Complementary level when the outputs are off."),
        ]
    return p


def _multi_params(f):
    enc, p1, p2, hall = (X + "ENCODER", X + "PWM_IN1", X + "PWM_IN2",
                         X + "HALL")
    anym = "|".join(s for s in (enc, p1, p2, hall)
                    if f.get("enc") or s in (p1, p2))
    choices = [("NONE", "None", "无", none_of(*anym.split("|")))]
    if f.get("enc"):
        choices.append(("ENCODER", "Encoder", "编码器", enc))
    choices += [("PWM_Input_1", "PWM input on CH1", "CH1 PWM 输入", p1),
                ("PWM_Input_2", "PWM input on CH2", "CH2 PWM 输入", p2)]
    if f.get("enc"):
        choices.append(("XOR_HALL_Mode", "Hall sensor", "霍尔传感器", hall))
    p = [follow("Multi_Channels", ("Combined Channels", "组合通道"), MUL,
                choices, desc="Follows the combined channels mode.")]
    if f.get("enc"):
        p.append(L("EncoderMode", ("Encoder Mode", "编码器模式"), MUL,
                   "TMR_ENCODER_MODE_A",
                   [("TMR_ENCODER_MODE_A", "Count on C1IFP1", "在 C1IFP1 计数"),
                    ("TMR_ENCODER_MODE_B", "Count on C2IFP2", "在 C2IFP2 计数"),
                    ("TMR_ENCODER_MODE_C", "Count on both", "两者都计数")],
                   expr=enc, desc="Inputs that count."))
    for k in (1, 2):
        p += [
            L("IC%dPolarity" % k, ("IC%d Polarity" % k, "IC%d 极性" % k), MUL,
              "TMR_INPUT_RISING_EDGE",
              [("TMR_INPUT_RISING_EDGE", "Rising Edge", "上升沿"),
               ("TMR_INPUT_FALLING_EDGE", "Falling Edge", "下降沿")],
              expr=anym, desc="Active edge of input %d." % k),
            L("IC%dSelection" % k, ("IC%d Selection" % k, "IC%d 选择" % k),
              MUL, "TMR_CC_CHANNEL_MAPPED_DIRECT",
              [("TMR_CC_CHANNEL_MAPPED_DIRECT", "Direct", "直接"),
               ("TMR_CC_CHANNEL_MAPPED_INDIRECT", "Indirect", "间接")],
              expr=anym, desc="Input routed to channel %d." % k),
            L("IC%dInputDivider" % k, ("IC%d Prescaler" % k,
                                       "IC%d 预分频" % k), MUL,
              "TMR_CHANNEL_INPUT_DIV_1",
              [("TMR_CHANNEL_INPUT_DIV_%d" % d, "Every %d events" % d,
                "每 %d 个事件" % d) for d in (1, 2, 4, 8)], expr=anym,
              desc="Capture every n-th event."),
            I("IC%dFilter" % k, ("IC%d Filter" % k, "IC%d 滤波" % k), MUL, 0,
              0, 15, expr=anym, desc=FILTER_DESC),
        ]
    p += [
        L("SubModeInput_Selection_ForMultiChannels", ("PWM Input Trigger",
                                                      "PWM 输入触发"), MUL,
          "TMR_SUB_INPUT_SEL_C1DF1",
          [("TMR_SUB_INPUT_SEL_C1DF1", "C1DF1", "C1DF1", None, p1),
           ("TMR_SUB_INPUT_SEL_C2DF2", "C2DF2", "C2DF2", None, p2)],
          expr=p1 + "|" + p2, desc="Trigger that resets the counter."),
        L("SubordinateMode_ForMultiChannels", ("PWM Input Subordinate Mode",
                                               "PWM 输入从模式"), MUL,
          "TMR_SUB_RESET_MODE", [("TMR_SUB_RESET_MODE", "Reset", "复位")],
          expr=p1 + "|" + p2, desc="The counter restarts on each period."),
    ]
    if f.get("enc"):
        p.append(I("HallDelay", ("Commutation Delay", "换相延迟"), MUL, 0, 0,
                   65535, expr=hall, desc="Delay after a hall edge."))
    return p


def _break_params(f):
    brk = X + "BRK"
    return [
        follow("BreakState", ("Break State", "刹车状态"), BRKG, [
            ("FALSE", "Disable", "禁止", "!" + brk),
            ("TRUE", "Enable", "使能", brk)], desc="Follows the break mode."),
        L("BrakeInputValidity", ("Break Polarity", "刹车极性"), BRKG,
          "TMR_BRK_INPUT_ACTIVE_LOW",
          [("TMR_BRK_INPUT_ACTIVE_LOW", "Low", "低"),
           ("TMR_BRK_INPUT_ACTIVE_HIGH", "High", "高")], expr=brk,
          desc="Active level of BRK."),
        B("AutomaticOutput", ("Automatic Output State", "自动输出"), BRKG,
          expr=brk, desc="Outputs come back at the next update."),
        B("FrozenChannelStatus1", ("Off State Selection for Run Mode",
                                   "运行模式关闭状态"), BRKG, expr=brk,
          desc="Level of disabled outputs while running."),
        B("FrozenChannelStatus2", ("Off State Selection for Idle Mode",
                                   "空闲模式关闭状态"), BRKG, expr=brk,
          desc="Level of disabled outputs while idle."),
        L("WriteProtected", ("Lock Configuration", "锁定配置"), BRKG,
          "TMR_WP_OFF",
          [("TMR_WP_OFF", "Off", "关闭"),
           ("TMR_WP_LEVEL_3", "Level 3", "级别 3"),
           ("TMR_WP_LEVEL_2", "Level 2", "级别 2"),
           ("TMR_WP_LEVEL_1", "Level 1", "级别 1")], expr=brk,
          desc="Write protection of the break and dead-time settings."),
        I("DeadTime", ("Dead Time", "死区时间"), BRKG, 0, 0, 255, expr=brk,
          desc="Dead-time register byte; the time is shown beside it."),
        T("DeadTimeValue", ("Dead Time Value", "死区时间值"), BRKG, "0",
          expr=brk, desc="Dead time in ns."),
    ]


def timer_file(fam, stem):
    f = fam.TIMERS[stem]
    return build_ip(_modes(f) + _params(f))


def irtmr_file(fam=None):
    """Infrared output: carrier from one timer, envelope from another or a USART. Where the
    timers tell the infrared block directly (not each other), it waits for the carrier."""
    car, env, route = fam.fact("ir", ("TMR16", "TMR17", "pair")) if fam else (
        "TMR16", "TMR17", "pair")
    act = None
    env_cond = None
    if route == "irtmr":
        act = (car + "_IR_CARRIER", ("Set %s channel 1 to IRTMR carrier first" % car,
                                     "请先将 %s 通道 1 设为红外载波" % car))
        env_cond = (env + "_IR_ENVELOPE", ("Set %s channel 1 to IRTMR envelope first" % env,
                                           "请先将 %s 通道 1 设为红外包络" % env))
    items = [
        Check("Activated", ("Activated", "激活"), [S("IR_OUT", OUT)],
              sems=["$IpInstance_ACTIVE"], cond=act),
        Mode("Envelope Source", ("Envelope Source", "包络源"), [
            G(env, (env, env), [], sems=["$IpInstance_ENV_" + env], cond=env_cond),
            G("USART1", ("USART1", "USART1"), [],
              sems=["$IpInstance_ENV_USART1"]),
            G("USART2", ("USART2", "USART2"), [],
              sems=["$IpInstance_ENV_USART2"])],
            cond=("$IpInstance_ACTIVE", ("Activate IRTMR first",
                                         "请先激活 IRTMR"))),
        Mode("Output Polarity", ("Output Polarity", "输出极性"), [
            G("Not Inverted", ("Not Inverted", "不反相"), []),
            G("Inverted", ("Inverted", "反相"), [])],
            cond=("$IpInstance_ACTIVE", ("Activate IRTMR first",
                                         "请先激活 IRTMR"))),
    ]
    return build_ip(items)


def builders(fam):
    b = {stem: (lambda s: lambda inst: timer_file(fam, s))(stem)
         for stem in fam.TIMERS}
    b["IRTMR"] = lambda inst: irtmr_file(fam)
    return b
