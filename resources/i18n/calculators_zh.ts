<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
    <context>
        <name>BusClockCalculators</name>
        <message>
            <source>Real baud rate %1 %2, error %3 %</source>
            <translation>实际波特率 %1 %2，误差 %3 %</translation>
        </message>
        <message>
            <source>"%1" "%2" parameter setting is incorrect.  Clock Frequency is %3 MHz, above the limit of %4 MHz. Please set %2 more than %5</source>
            <translation>“%1” “%2” 参数设置错误。时钟频率为 %3 MHz，超过 %4 MHz 的上限。请将 %2 设置为大于 %5</translation>
        </message>
        <message>
            <source>"%1" "%2" parameter setting is incorrect.  Clock Frequency must be less than 80MHz and less than APB2 clock %3 MHz. Please set %2 more than %4</source>
            <translation>“%1” “%2” 参数设置错误。时钟频率必须小于 80MHz 且小于 APB2 时钟 %3 MHz。请将 %2 设置为大于 %4</translation>
        </message>
        <message>
            <source>"%1" "%2" parameter setting is incorrect. Due to the low I2S clock, the maximum value that can be set is %3KHz</source>
            <translation>“%1” “%2” 参数设置错误。由于 I2S 时钟较低，可设置的最大值为 %3KHz</translation>
        </message>
    </context>
    <context>
        <name>CanBitTiming</name>
        <message>
            <source>No bit timing</source>
            <translation>无位时序</translation>
        </message>
        <message>
            <source>No bit timing gives %1 kbit/s from the %2 MHz clock. Change the baud rate, the sample point or the allowed deviation.</source>
            <translation>%2 MHz 时钟下没有位时序能得到 %1 kbit/s。请修改波特率、采样点或允许偏差。</translation>
        </message>
        <message>
            <source>%1 kbit/s: prescaler %2, BS1 %3, BS2 %4, sample point %5 %</source>
            <translation>%1 kbit/s：分频系数 %2，BS1 %3，BS2 %4，采样点 %5 %</translation>
        </message>
    </context>
    <context>
        <name>OneParamWidget</name>
        <message>
            <source>"%1" can't be used with the current settings.</source>
            <translation>“%1” 在当前设置下无法使用。</translation>
        </message>
        <message>
            <source>"%1" is not available with the current settings. Choose a value.</source>
            <translation>“%1” 在当前设置下不可用。请选择一个值。</translation>
        </message>
        <message>
            <source>No value is available with the current settings.</source>
            <translation>当前设置下没有可用的值。</translation>
        </message>
        <message>
            <source>"%1" is not a number.</source>
            <translation>“%1” 不是数字。</translation>
        </message>
        <message>
            <source>The value must lie between %1 and %2.</source>
            <translation>数值必须在 %1 到 %2 之间。</translation>
        </message>
        <message>
            <source>The value must be at least %1.</source>
            <translation>数值不能小于 %1。</translation>
        </message>
        <message>
            <source>The value must be at most %1.</source>
            <translation>数值不能大于 %1。</translation>
        </message>
    </context>
    <context>
        <name>ParamSettingWidget</name>
        <message>
            <source>Error</source>
            <translation>错误</translation>
        </message>
    </context>
    <context>
        <name>TMR_Configuration_Diagram</name>
        <message>
            <source>External clock</source>
            <translation>外部时钟</translation>
        </message>
    </context>
    <context>
        <name>TimingDiagram</name>
        <message>
            <source>CAN bit time</source>
            <translation>CAN 位时间</translation>
        </message>
        <message>
            <source>Sample point (%)</source>
            <translation>采样点 (%)</translation>
        </message>
        <message>
            <source>1 bit = SYNC + BS1 + BS2 time quanta</source>
            <translation>1 位 = SYNC + BS1 + BS2 个时间量子</translation>
        </message>
        <message>
            <source>I2C bus timing</source>
            <translation>I2C 总线时序</translation>
        </message>
        <message>
            <source>SCL period</source>
            <translation>SCL 周期</translation>
        </message>
        <message>
            <source>Timer clock</source>
            <translation>定时器时钟</translation>
        </message>
        <message>
            <source>Prescaler</source>
            <translation>预分频</translation>
        </message>
        <message>
            <source>Period</source>
            <translation>周期</translation>
        </message>
        <message>
            <source>Output</source>
            <translation>输出</translation>
        </message>
        <message>
            <source>Counting up</source>
            <translation>向上计数</translation>
        </message>
        <message>
            <source>Counting down</source>
            <translation>向下计数</translation>
        </message>
        <message>
            <source>Counting up and down</source>
            <translation>中央对齐计数</translation>
        </message>
        <message>
            <source>1 / output frequency</source>
            <translation>1 / 输出频率</translation>
        </message>
    </context>
</TS>