"""CRC, WDT, WWDT, ERTC and PWC of the MQ48T110."""
from common import ADV, BASIC, B, H, I, L, follow, none_of
from model import Check, G, Mode, S, build_ip, prune

X = "$IpInstance_"
ACT = [X + "ACTIVE"]


def crc_file(fam=None):
    """CRC; the older generation has the fixed 32-bit polynomial only."""
    sizes = [("32B", "32", "FFFFFFFF", "04C11DB7"), ("16B", "16", "FFFF", "8005"),
             ("8B", "8", "FF", "07"), ("7B", "7", "7F", "09")]
    p = [L("CRCPolynomialLength", ("Polynomial Length", "多项式长度"), BASIC,
           "CRC_POLY_SIZE_32B",
           [("CRC_POLY_SIZE_" + s, n + " bits", n + " 位", X + "POLY_" + s)
            for s, n, _, _ in sizes], desc="Width of the polynomial.")]
    for s, n, mx, d in sizes:
        p.append(H("CRCPolynomialValue_" + n, ("Polynomial", "多项式"), BASIC,
                   d, mx, expr=X + "POLY_" + s,
                   desc="Generator polynomial of %s bits." % n))
    p += [
        H("InitValue", ("Initial Value", "初始值"), BASIC, "FFFFFFFF",
          "FFFFFFFF", desc="Value the calculation starts from."),
        L("InputDataReverseMode", ("Input Data Reverse", "输入数据反转"), ADV,
          "CRC_REVERSE_INPUT_NONE",
          [("CRC_REVERSE_INPUT_NONE", "None", "不反转"),
           ("CRC_REVERSE_INPUT_BY_BYTE", "By byte", "按字节"),
           ("CRC_REVERSE_INPUT_BY_HALFWORD", "By half word", "按半字"),
           ("CRC_REVERSE_INPUT_BY_WORD", "By word", "按字")],
          desc="Bit order reversal of the input."),
        L("OutputDataReverseMode", ("Output Data Reverse", "输出数据反转"),
          ADV, "CRC_REVERSE_OUTPUT_NONE",
          [("CRC_REVERSE_OUTPUT_NONE", "None", "不反转"),
           ("CRC_REVERSE_OUTPUT_DATA", "Reversed", "反转")],
          desc="Bit order reversal of the result."),
    ]
    items = [Check("Activated", ("Activated", "激活"), [], sems=ACT)] + p
    if fam is not None and fam.fact("gen") == "old":
        items = prune(items, params=["CRCPolynomialLength", "CRCPolynomialValue_32",
                                     "CRCPolynomialValue_16", "CRCPolynomialValue_8",
                                     "CRCPolynomialValue_7"])
    return build_ip(items)


def wdt_file():
    p = [
        L("Prescaler", ("Prescaler", "分频系数"), BASIC, "WDT_CLK_DIV_4",
          [("WDT_CLK_DIV_%d" % d, "%d" % d, "%d" % d)
           for d in (4, 8, 16, 32, 64, 128, 256)],
          desc="Divider of the 40 kHz LICK clock."),
        I("Reload", ("Reload Value", "重装载值"), BASIC, 4095, 0, 4095,
          desc="Counter start value; timeout = (Reload + 1) * Prescaler / "
               "LICK."),
        B("Window", ("Window Mode", "窗口模式"), BASIC,
          sems=(X + "WINDOW", None), desc="Refuse reloads above the window."),
        I("WindowValue", ("Window Value", "窗口值"), BASIC, 4095, 0, 4095,
          expr=X + "WINDOW", desc="Reloads are accepted below this count."),
    ]
    return build_ip([Check("Activated", ("Activated", "激活"), [], sems=ACT)]
                    + p)


def wwdt_file():
    p = [
        L("Prescaler", ("Prescaler", "分频系数"), BASIC, "WWDT_PCLK1_DIV_4096",
          [("WWDT_PCLK1_DIV_%d" % d, "PCLK1 / %d" % d, "PCLK1 / %d" % d)
           for d in (4096, 8192, 16384, 32768)],
          desc="Divider of the APB1 clock."),
        I("Window", ("Window Value", "窗口值"), BASIC, 127, 64, 127,
          desc="Refreshes are accepted below this count."),
        I("Counter", ("Counter Value", "计数值"), BASIC, 127, 64, 127,
          desc="Counter start value; a reset comes at 63."),
    ]
    return build_ip([Check("Activated", ("Activated", "激活"), [], sems=ACT)]
                    + p)


def ertc_file(fam):
    NO_VBAT_PINS = fam.NO_VBAT_PINS
    OUT = "MuxOutputPushPull"
    need_clk = (X + "CLOCK", ("Activate the clock source first",
                              "请先激活时钟源"))
    modes = [
        Check("Activate Clock Source", ("Activate Clock Source",
                                        "激活时钟源"), [], sems=[X + "CLOCK"]),
        Check("Activate Calendar", ("Activate Calendar", "激活日历"), [],
              sems=[X + "CALENDAR"], cond=need_clk),
        Mode("Alarm A", ("Alarm A", "闹钟 A"), [
            G("Internal Alarm A", ("Internal Alarm A", "内部闹钟 A"), [],
              sems=[X + "ALARM_A"]),
            G("Alarm A Output", ("Alarm A Output", "闹钟 A 输出"),
              [S("OUT", OUT)], sems=[X + "ALARM_A", X + "OUTPUT"],
              remove=NO_VBAT_PINS)], cond=need_clk),
        Mode("Alarm B", ("Alarm B", "闹钟 B"), [
            G("Internal Alarm B", ("Internal Alarm B", "内部闹钟 B"), [],
              sems=[X + "ALARM_B"]),
            G("Alarm B Output", ("Alarm B Output", "闹钟 B 输出"),
              [S("OUT", OUT)], sems=[X + "ALARM_B", X + "OUTPUT"],
              remove=NO_VBAT_PINS)], cond=need_clk),
        Mode("Wake Up", ("Wake Up", "唤醒"), [
            G("Internal Wake Up", ("Internal Wake Up", "内部唤醒"), [],
              sems=[X + "WAKEUP"]),
            G("Wake Up Output", ("Wake Up Output", "唤醒输出"),
              [S("OUT", OUT)], sems=[X + "WAKEUP", X + "OUTPUT"],
              remove=NO_VBAT_PINS)], cond=need_clk),
        Mode("Calibration Output", ("Calibration Output", "校准输出"), [
            G("512Hz", ("512Hz", "512Hz"), [S("OUT", OUT)],
              sems=[X + "CALIB_512"]),
            G("1Hz", ("1Hz", "1Hz"), [S("OUT", OUT)], sems=[X + "CALIB_1"])],
            cond=need_clk, remove=NO_VBAT_PINS),
        Check("Tamper 1", ("Tamper 1", "入侵检测 1"), [S("TAMP1", "MuxInput")],
              sems=[X + "TAMPER"], cond=need_clk, remove=NO_VBAT_PINS),
        Check("Time Stamp", ("Time Stamp", "时间戳"), [S("TAMP1", "MuxInput")],
              sems=[X + "TIMESTAMP"], cond=need_clk, remove=NO_VBAT_PINS),
        Check("Reference Clock Detection", ("Reference Clock Detection",
                                            "参考时钟检测"),
              [S("REFIN", "MuxInput")], sems=[X + "REFIN"], cond=need_clk),
    ]
    cal, a, b = X + "CALENDAR", X + "ALARM_A", X + "ALARM_B"
    h24, h12 = X + "H24", X + "H12"
    CAL = ("Calendar Time and Date", "日历时间和日期")
    GA, GB = ("Alarm A", "闹钟 A"), ("Alarm B", "闹钟 B")
    OG = ("Output", "输出")
    p = [
        L("HourFormat", ("Hour Format", "小时格式"), BASIC, "ERTC_HOUR_MODE_24",
          [("ERTC_HOUR_MODE_24", "24 hours", "24 小时制", h24),
           ("ERTC_HOUR_MODE_12", "12 hours", "12 小时制", h12)],
          desc="24 hour clock or AM/PM."),
        I("AsynchPrediv", ("Asynchronous Predivider", "异步预分频"), BASIC,
          127, 0, 127, desc="First divider of the ERTC clock."),
        I("SynchPrediv", ("Synchronous Predivider", "同步预分频"), BASIC, 255,
          0, 32767, desc="Second divider; the two give 1 Hz."),
        I("Year", ("Year", "年"), CAL, 0, 0, 99, expr=cal,
          desc="Year in the century."),
        I("Month", ("Month", "月"), CAL, 1, 1, 12, expr=cal, desc="Month."),
        I("Date", ("Date", "日"), CAL, 1, 1, 31, expr=cal,
          desc="Day of the month."),
        I("WeekDay", ("Week Day", "星期"), CAL, 1, 1, 7, expr=cal,
          desc="Day of the week, 1 is Monday."),
        I("Hours_24", ("Hours", "时"), CAL, 0, 0, 23, expr=cal + "&" + h24,
          desc="Hour of the day."),
        I("Hours_12", ("Hours", "时"), CAL, 12, 1, 12, expr=cal + "&" + h12,
          desc="Hour in AM/PM form."),
        I("Minutes", ("Minutes", "分"), CAL, 0, 0, 59, expr=cal,
          desc="Minutes."),
        I("Seconds", ("Seconds", "秒"), CAL, 0, 0, 59, expr=cal,
          desc="Seconds."),
        L("TimeFormat", ("AM/PM", "上午/下午"), CAL, "ERTC_AM",
          [("ERTC_AM", "AM", "上午"), ("ERTC_PM", "PM", "下午")],
          expr=cal + "&" + h12, desc="Half of the day."),
        L("DayLightSaving", ("Daylight Saving Time", "夏令时"), CAL,
          "ERTC_DST_NONE",
          [("ERTC_DST_NONE", "No change", "不调整"),
           ("ERTC_DST_ADD_1H", "Add one hour", "加一小时"),
           ("ERTC_DST_DEC_1H", "Subtract one hour", "减一小时")], expr=cal,
          desc="Summer time step applied at start."),
        B("StoreOperation", ("Store Operation", "存储操作"), CAL, expr=cal,
          desc="Remember that the summer time step was made."),
    ]
    for g, s, k in ((GA, a, "A"), (GB, b, "B")):
        p += [
            I("Hours_" + k, ("Hours", "时"), g, 0, 0, 23, expr=s,
              desc="Alarm hour."),
            I("Minutes_" + k, ("Minutes", "分"), g, 0, 0, 59, expr=s,
              desc="Alarm minute."),
            I("Seconds_" + k, ("Seconds", "秒"), g, 0, 0, 59, expr=s,
              desc="Alarm second."),
            I("Date_" + k, ("Day", "日"), g, 1, 1, 31, expr=s,
              desc="Alarm day of month or week day."),
            L("AlarmDateWeekSel_" + k, ("Alarm Day Selection", "闹钟日期选择"),
              g, "ERTC_SLECT_DATE",
              [("ERTC_SLECT_DATE", "Date", "日期"),
               ("ERTC_SLECT_WEEK", "Week day", "星期")], expr=s,
              desc="Whether the day is a date or a week day."),
            L("AlarmMask_" + k, ("Alarm Mask", "闹钟屏蔽"), g,
              "ERTC_ALARM_NO_MASK",
              [("ERTC_ALARM_NO_MASK", "None", "无"),
               ("ERTC_ALARM_MASK_DATE_WEEK", "Day", "日期"),
               ("ERTC_ALARM_MASK_HOUR", "Hours", "小时"),
               ("ERTC_ALARM_MASK_MIN", "Minutes", "分钟"),
               ("ERTC_ALARM_MASK_SEC", "Seconds", "秒"),
               ("ERTC_ALARM_MASK_ALL", "All", "全部")], expr=s,
              desc="Fields ignored by the comparison."),
            B("InterruptAlarm" + k, ("Alarm %s Interrupt" % k,
                                     "闹钟 %s 中断" % k), g, expr=s,
              desc="Interrupt on the alarm."),
        ]
    w = X + "WAKEUP"
    p += [
        L("ClockSourceSelect", ("Wake Up Clock", "唤醒时钟"),
          ("Wake Up", "唤醒"), "ERTC_WAT_CLK_ERTCCLK_DIV16",
          [("ERTC_WAT_CLK_ERTCCLK_DIV16", "ERTC clock / 16", "ERTC 时钟 / 16"),
           ("ERTC_WAT_CLK_ERTCCLK_DIV8", "ERTC clock / 8", "ERTC 时钟 / 8"),
           ("ERTC_WAT_CLK_ERTCCLK_DIV4", "ERTC clock / 4", "ERTC 时钟 / 4"),
           ("ERTC_WAT_CLK_ERTCCLK_DIV2", "ERTC clock / 2", "ERTC 时钟 / 2"),
           ("ERTC_WAT_CLK_CK_B_16BITS", "1 Hz", "1 Hz"),
           ("ERTC_WAT_CLK_CK_B_17BITS", "1 Hz, 17 bit counter",
            "1 Hz，17 位计数")], expr=w, desc="Clock of the wake-up timer."),
        I("Counter", ("Wake Up Counter", "唤醒计数"), ("Wake Up", "唤醒"), 0, 0,
          65535, expr=w, desc="Wake-up period in ticks."),
        B("InterruptWakeupTimer", ("Wake Up Interrupt", "唤醒中断"),
          ("Wake Up", "唤醒"), expr=w, desc="Interrupt on wake-up."),
        L("OutPutPolarity", ("Output Polarity", "输出极性"), OG,
          "ERTC_OUTPUT_POLARITY_HIGH",
          [("ERTC_OUTPUT_POLARITY_HIGH", "High", "高"),
           ("ERTC_OUTPUT_POLARITY_LOW", "Low", "低")], expr=X + "OUTPUT",
          desc="Active level of ERTC_OUT."),
        L("OutPutType", ("Output Type", "输出类型"), OG,
          "ERTC_OUTPUT_TYPE_OPEN_DRAIN",
          [("ERTC_OUTPUT_TYPE_OPEN_DRAIN", "Open drain", "开漏"),
           ("ERTC_OUTPUT_TYPE_PUSH_PULL", "Push-pull", "推挽")],
          expr=X + "OUTPUT", desc="Output stage of ERTC_OUT."),
        follow("CalibOutput", ("Calibration Output", "校准输出"), OG, [
            ("DISABLE", "Disable", "禁止",
             none_of(X + "CALIB_512", X + "CALIB_1")),
            ("ERTC_CALIBRATION_OUTPUT_512HZ", "512 Hz", "512 Hz",
             X + "CALIB_512"),
            ("ERTC_CALIBRATION_OUTPUT_1HZ", "1 Hz", "1 Hz", X + "CALIB_1")],
            desc="Follows the calibration output mode."),
        L("TamperTrigger", ("Tamper Trigger", "入侵触发"),
          ("Tamper", "入侵检测"), "ERTC_TAMPER_EDGE_RISING",
          [("ERTC_TAMPER_EDGE_RISING", "Rising edge", "上升沿"),
           ("ERTC_TAMPER_EDGE_FALLING", "Falling edge", "下降沿")],
          expr=X + "TAMPER", desc="Edge of TAMP1 that is detected."),
        B("InterruptTamper", ("Tamper Interrupt", "入侵中断"),
          ("Tamper", "入侵检测"), expr=X + "TAMPER",
          desc="Interrupt on a tamper event."),
        L("TimeStampEdge", ("Time Stamp Edge", "时间戳边沿"),
          ("Time Stamp", "时间戳"), "ERTC_TIMESTAMP_EDGE_RISING",
          [("ERTC_TIMESTAMP_EDGE_RISING", "Rising edge", "上升沿"),
           ("ERTC_TIMESTAMP_EDGE_FALLING", "Falling edge", "下降沿")],
          expr=X + "TIMESTAMP", desc="Edge that takes the time stamp."),
        B("InterruptTimestamp", ("Time Stamp Interrupt", "时间戳中断"),
          ("Time Stamp", "时间戳"), expr=X + "TIMESTAMP",
          desc="Interrupt on a time stamp."),
    ]
    if fam.fact("tamper2"):
        t2 = X + "TAMPER2"
        at = [m["name"] for m in modes].index("Tamper 1") + 1
        modes.insert(at, Check("Tamper 2", ("Tamper 2", "入侵检测 2"),
                               [S("TAMP2", "MuxInput")], sems=[t2], cond=need_clk))
        for q in p:
            if q["name"] == "InterruptTamper":
                q["expr"] = X + "TAMPER|" + t2
        p.append(L("Tamper2Trigger", ("Tamper 2 Trigger", "入侵 2 触发"),
                   ("Tamper", "入侵检测"), "ERTC_TAMPER_EDGE_RISING",
                   [("ERTC_TAMPER_EDGE_RISING", "Rising edge", "上升沿"),
                    ("ERTC_TAMPER_EDGE_FALLING", "Falling edge", "下降沿")],
                   expr=t2, desc="Edge of TAMP2 that is detected."))
    return build_ip(modes + p)


def rtc_file(fam):
    """The older real-time clock: a 32-bit second counter with one alarm, the tamper pin
    and the output of the backup domain pin."""
    need_clk = (X + "CLOCK", ("Activate the clock source first", "请先激活时钟源"))
    cal, alarm, tamp = X + "CALENDAR", X + "ALARM", X + "TAMPER"
    remove = fam.NO_VBAT_PINS
    modes = [
        Check("Activate Clock Source", ("Activate Clock Source", "激活时钟源"), [],
              sems=[X + "CLOCK"]),
        Check("Activate Calendar", ("Activate Calendar", "激活日历"), [], sems=[cal],
              cond=need_clk),
        Check("Alarm", ("Alarm", "闹钟"), [], sems=[alarm], cond=need_clk),
        Check("Tamper", ("Tamper", "侵入检测"), [S("TAMPER", "MuxInput")], sems=[tamp],
              cond=need_clk, remove=remove),
        Mode("RTC Output", ("RTC Output", "RTC 输出"), [
            G("Calibration clock", ("Calibration clock", "校准时钟"),
              [S("OUT", "MuxOutputPushPull")], sems=[X + "OUT_CALIB"]),
            G("Alarm pulse", ("Alarm pulse", "闹钟脉冲"), [S("OUT", "MuxOutputPushPull")],
              sems=[X + "OUT_ALARM"]),
            G("Second pulse", ("Second pulse", "秒脉冲"), [S("OUT", "MuxOutputPushPull")],
              sems=[X + "OUT_SECOND"])], cond=need_clk, remove=remove),
    ]
    CAL = ("Calendar Time and Date", "日历时间和日期")
    GA = ("Alarm", "闹钟")
    p = [I("AsynchPrediv", ("Prescaler", "预分频"), BASIC, 32767, 0, 1048575,
           desc="Divider of the RTC clock to the one-second tick, minus one.")]
    for k, (g, e) in enumerate(((CAL, cal), (GA, alarm))):
        sfx = "" if k == 0 else "_A"
        p += [I("Year" + sfx, ("Year", "年"), g, 2024, 1970, 2099, expr=e, desc="Year."),
              I("Month" + sfx, ("Month", "月"), g, 1, 1, 12, expr=e, desc="Month."),
              I("Date" + sfx, ("Date", "日"), g, 1, 1, 31, expr=e, desc="Day of the month."),
              I("Hours" + sfx, ("Hours", "时"), g, 0, 0, 23, expr=e, desc="Hour."),
              I("Minutes" + sfx, ("Minutes", "分"), g, 0, 0, 59, expr=e, desc="Minute."),
              I("Seconds" + sfx, ("Seconds", "秒"), g, 0, 0, 59, expr=e, desc="Second.")]
    p += [
        B("InterruptAlarm", ("Alarm Interrupt", "闹钟中断"), GA, expr=alarm,
          desc="Interrupt on the alarm."),
        B("InterruptSecond", ("Second Interrupt", "秒中断"), CAL, expr=cal,
          desc="Interrupt every second."),
        L("TamperLevel", ("Tamper Level", "侵入电平"), ("Tamper", "侵入检测"),
          "RTC_TAMPER_LEVEL_HIGH",
          [("RTC_TAMPER_LEVEL_HIGH", "High", "高"), ("RTC_TAMPER_LEVEL_LOW", "Low", "低")],
          expr=tamp, desc="Level of the tamper pin that clears the backup registers."),
        B("InterruptTamper", ("Tamper Interrupt", "侵入中断"), ("Tamper", "侵入检测"),
          expr=tamp, desc="Interrupt on a tamper event."),
        follow("RTCOutput", ("RTC Output", "RTC 输出"), ("Output", "输出"), [
            ("RTC_OUTPUT_NONE", "None", "无",
             none_of(X + "OUT_CALIB", X + "OUT_ALARM", X + "OUT_SECOND")),
            ("RTC_OUTPUT_CALIBRATION_CLOCK", "Calibration clock", "校准时钟",
             X + "OUT_CALIB"),
            ("RTC_OUTPUT_ALARM_PULSE", "Alarm pulse", "闹钟脉冲", X + "OUT_ALARM"),
            ("RTC_OUTPUT_SECOND_PULSE", "Second pulse", "秒脉冲", X + "OUT_SECOND")],
            desc="Follows the output mode."),
    ]
    return build_ip(modes + p)


def pwc_file(fam):
    WKUP = fam.WKUP
    modes = [Check("WKUP%d" % n, ("WKUP%d" % n, "WKUP%d" % n),
                   [S("PWC_WKUP%d" % n, "WakeupInput")],
                   sems=[X + "WKUP%d" % n]) for n in WKUP]
    modes.append(Check("Power Voltage Monitor", ("Power Voltage Monitor",
                                                 "电源电压监测"), [],
                       sems=[X + "PVM"]))
    g = ("Power Voltage Monitor", "电源电压监测")
    p = [follow("VoltageMonitoring", ("Voltage Monitoring", "电压监测"), g, [
            ("FALSE", "Disable", "禁止", "!" + X + "PVM"),
            ("TRUE", "Enable", "使能", X + "PVM")],
            desc="Follows the voltage monitor mode."),
         L("BoundarySelect", ("Voltage Threshold", "电压阈值"), g,
           "PWC_PVM_VOLTAGE_2V9",
           [("PWC_PVM_VOLTAGE_2V%d" % k, "2.%d V" % k, "2.%d V" % k)
            for k in range(3, 10)], expr=X + "PVM",
           desc="Supply voltage that raises the PVM event.")]
    for n in WKUP:
        p.append(follow("WakeupPin%d" % n, ("Wake Up Pin %d" % n,
                                           "唤醒引脚 %d" % n),
                        ("Wake Up Pins", "唤醒引脚"), [
            ("FALSE", "Disable", "禁止", "!" + X + "WKUP%d" % n),
            ("TRUE", "Enable", "使能", X + "WKUP%d" % n)],
            desc="Follows the WKUP%d mode." % n))
    return build_ip(modes + p)


def builders(fam):
  return {
    "CRC": lambda inst: crc_file(fam),
    "RTC": lambda inst: rtc_file(fam),
    "WDT": lambda inst: wdt_file(),
    "WWDT": lambda inst: wwdt_file(),
    "ERTC": lambda inst: ertc_file(fam),
    "PWC": lambda inst: pwc_file(fam),
}
