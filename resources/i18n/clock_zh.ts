<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="zh_CN">
<context>
    <name>ClockMessage</name>
    <message>
        <location filename="../../clock/clockmessage.cpp" line="30" />
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <location filename="../../clock/clockmessage.cpp" line="32" />
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <location filename="../../clock/clockmessage.cpp" line="37" />
        <source>Ok</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>ClockTree</name>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="198" />
        <source>APB1 peripherals</source>
        <translation>APB1 外设</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="200" />
        <source>APB1 timers</source>
        <translation>APB1 定时器</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="202" />
        <source>APB2 peripherals</source>
        <translation>APB2 外设</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="204" />
        <source>APB2 timers</source>
        <translation>APB2 定时器</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="205" />
        <location filename="../../clock/clocktreelayout.cpp" line="640" />
        <source>LICK</source>
        <translation>LICK</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="207" />
        <source>lick(kHz)</source>
        <translation>lick(kHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="209" />
        <location filename="../../clock/clocktreelayout.cpp" line="641" />
        <source>Low speed internal clock</source>
        <translation>低速内部时钟</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="211" />
        <location filename="../../clock/clocktreelayout.cpp" line="625" />
        <location filename="../../clock/clocktreelayout.cpp" line="642" />
        <source>LEXT</source>
        <translation>LEXT</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="213" />
        <source>lext(kHz)</source>
        <translation>lext(kHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="215" />
        <location filename="../../clock/clocktreelayout.cpp" line="626" />
        <location filename="../../clock/clocktreelayout.cpp" line="643" />
        <source>Low speed external crystal</source>
        <translation>低速外部晶振</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="217" />
        <location filename="../../clock/clocktreelayout.cpp" line="230" />
        <source>IN</source>
        <translation>输入</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="219" />
        <location filename="../../clock/clocktreelayout.cpp" line="232" />
        <source>OUT</source>
        <translation>输出</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="224" />
        <location filename="../../clock/clocktreelayout.cpp" line="293" />
        <location filename="../../clock/clocktreelayout.cpp" line="414" />
        <location filename="../../clock/clocktreelayout.cpp" line="627" />
        <location filename="../../clock/clocktreelayout.cpp" line="633" />
        <source>HEXT</source>
        <translation>HEXT</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="226" />
        <source>hext(4-25MHz)</source>
        <translation>hext(4-25MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="228" />
        <location filename="../../clock/clocktreelayout.cpp" line="628" />
        <location filename="../../clock/clocktreelayout.cpp" line="634" />
        <source>High speed external crystal</source>
        <translation>高速外部晶振</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="237" />
        <location filename="../../clock/clocktreelayout.cpp" line="295" />
        <location filename="../../clock/clocktreelayout.cpp" line="418" />
        <location filename="../../clock/clocktreelayout.cpp" line="623" />
        <location filename="../../clock/clocktreelayout.cpp" line="637" />
        <source>HICK</source>
        <translation>HICK</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="239" />
        <source>hick(MHz)</source>
        <translation>hick(MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="241" />
        <location filename="../../clock/clocktreelayout.cpp" line="624" />
        <location filename="../../clock/clocktreelayout.cpp" line="638" />
        <source>High speed internal clock</source>
        <translation>高速内部时钟</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="244" />
        <source>to wdt(kHz)</source>
        <translation>至看门狗(kHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="251" />
        <source>ERTC</source>
        <translation>ERTC</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="251" />
        <source>RTC</source>
        <translation>RTC</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="253" />
        <source>ertcsel</source>
        <translation>ertcsel</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="254" />
        <source>rtcsel</source>
        <translation>rtcsel</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="255" />
        <location filename="../../clock/clocktreelayout.cpp" line="692" />
        <source>lick</source>
        <translation>lick</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="257" />
        <location filename="../../clock/clocktreelayout.cpp" line="693" />
        <location filename="../../clock/clocktreelayout.cpp" line="765" />
        <source>lext</source>
        <translation>lext</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="259" />
        <location filename="../../clock/clocktreelayout.cpp" line="695" />
        <source>hext</source>
        <translation>hext</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="267" />
        <source>ertcdiv</source>
        <translation>ertcdiv</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="268" />
        <source>rtcdiv</source>
        <translation>rtcdiv</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="280" />
        <source>to ertc(kHz)</source>
        <translation>至 ERTC(kHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="281" />
        <source>to rtc(kHz)</source>
        <translation>至 RTC(kHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="292" />
        <source>pllrcs</source>
        <translation>pllrcs</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="305" />
        <source>pllhextdiv</source>
        <translation>pllhextdiv</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="330" />
        <location filename="../../clock/clocktreelayout.cpp" line="416" />
        <location filename="../../clock/clocktreelayout.cpp" line="629" />
        <location filename="../../clock/clocktreelayout.cpp" line="635" />
        <source>PLL</source>
        <translation>PLL</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="336" />
        <source>pll_mode</source>
        <translation>pll_mode</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="338" />
        <source>flexible</source>
        <translation>灵活</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="339" />
        <source>normal</source>
        <translation>普通</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="343" />
        <source>pll_mult</source>
        <translation>pll_mult</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="347" />
        <source>pll_ms</source>
        <translation>pll_ms</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="350" />
        <source>pll_ns</source>
        <translation>pll_ns</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="356" />
        <source>pll_fp</source>
        <translation>pll_fp</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="359" />
        <source>pll_fu</source>
        <translation>pll_fu</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="364" />
        <source>pll_fr</source>
        <translation>pll_fr</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="369" />
        <source>CRM_PLLCFG : </source>
        <translation>CRM_PLLCFG : </translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="374" />
        <location filename="../../clock/clocktreelayout.cpp" line="629" />
        <location filename="../../clock/clocktreelayout.cpp" line="635" />
        <source>PLL clock</source>
        <translation>PLL 时钟</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="385" />
        <source>hextdiv</source>
        <translation>hextdiv</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="396" />
        <source>hick to sclk</source>
        <translation>hick 至 sclk</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="397" />
        <source>/6</source>
        <translation>/6</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="399" />
        <source>48MHz</source>
        <translation>48MHz</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="403" />
        <source>hickdiv</source>
        <translation>hickdiv</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="412" />
        <source>sclk select</source>
        <translation>系统时钟选择</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="419" />
        <location filename="../../clock/clocktreelayout.cpp" line="631" />
        <source>SCLK</source>
        <translation>SCLK</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="423" />
        <source>sclk(4 - </source>
        <translation>sclk(4 - </translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="426" />
        <location filename="../../clock/clocktreelayout.cpp" line="632" />
        <source>System clock</source>
        <translation>系统时钟</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="430" />
        <source>Useage limited:</source>
        <translation>使用限制：</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="432" />
        <source>Temperature range - 40~85 degree. </source>
        <translation>温度范围 -40~85 度。</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="434" />
        <source>VDD must over 3.0V. </source>
        <translation>VDD 必须高于 3.0V。</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="439" />
        <source>ahbdiv</source>
        <translation>ahbdiv</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="459" />
        <source>i2s (MHz)</source>
        <translation>i2s (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="460" />
        <source>systick(MHz)</source>
        <translation>systick(MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="462" />
        <source>sdio (MHz)</source>
        <translation>sdio (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="463" />
        <source>dma (MHz)</source>
        <translation>dma (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="465" />
        <source>xmc (MHz)</source>
        <translation>xmc (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="466" />
        <source>gpio (MHz)</source>
        <translation>gpio (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="468" />
        <source>emac (MHz)</source>
        <translation>emac (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="470" />
        <source>dvp (MHz)</source>
        <translation>dvp (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="472" />
        <source>qspi (MHz)</source>
        <translation>qspi (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="474" />
        <location filename="../../clock/clocktreelayout.cpp" line="558" />
        <source>adc (MHz)</source>
        <translation>adc (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="503" />
        <source>apb1div</source>
        <translation>apb1div</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="504" />
        <source>apb2div</source>
        <translation>apb2div</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="515" />
        <source>apb1 peripheral (MHz)</source>
        <translation>APB1 外设 (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="516" />
        <source>apb2 peripheral (MHz)</source>
        <translation>APB2 外设 (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="521" />
        <source>apb1 tmr (MHz)</source>
        <translation>APB1 定时器 (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="522" />
        <source>apb2 tmr (MHz)</source>
        <translation>APB2 定时器 (MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="529" />
        <source>75MHz max</source>
        <translation>最大 75MHz</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="531" />
        <source>96MHz max</source>
        <translation>最大 96MHz</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="533" />
        <source>100MHz max</source>
        <translation>最大 100MHz</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="535" />
        <source>120MHz max</source>
        <translation>最大 120MHz</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="537" />
        <source>144MHz max</source>
        <translation>最大 144MHz</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="539" />
        <source>150MHz max</source>
        <translation>最大 150MHz</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="541" />
        <source>216MHz max</source>
        <translation>最大 216MHz</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="555" />
        <source>adcdiv</source>
        <translation>adcdiv</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="560" />
        <location filename="../../clock/clocktreelayout.cpp" line="639" />
        <source>ADC clock</source>
        <translation>ADC 时钟</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="572" />
        <location filename="../../clock/clocktreelayout.cpp" line="636" />
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="581" />
        <source>usbdiv</source>
        <translation>usbdiv</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="588" />
        <source>hick to usb</source>
        <translation>hick 至 usb</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="589" />
        <location filename="../../clock/clocktreelayout.cpp" line="702" />
        <source>pll</source>
        <translation>pll</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="592" />
        <location filename="../../clock/clocktreelayout.cpp" line="694" />
        <location filename="../../clock/clocktreelayout.cpp" line="765" />
        <location filename="../../clock/clocktreelayout.cpp" line="786" />
        <source>hick</source>
        <translation>hick</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="605" />
        <location filename="../../clock/clocktreelayout.cpp" line="636" />
        <source>USB clock</source>
        <translation>USB 时钟</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="608" />
        <source>usbhs phy
(must be 12 MHz)</source>
        <translation>usbhs phy
(必须为 12 MHz)</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="639" />
        <source>ADC</source>
        <translation>ADC</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="659" />
        <source>clockout1div1</source>
        <translation>clockout1div1</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="660" />
        <source>clockout2div1</source>
        <translation>clockout2div1</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="665" />
        <source>clockout1div2</source>
        <translation>clockout1div2</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="666" />
        <source>clockout2div2</source>
        <translation>clockout2div2</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="675" />
        <source>clkout1</source>
        <translation>clkout1</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="677" />
        <source>clkout2</source>
        <translation>clkout2</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="691" />
        <source>no clk</source>
        <translation>无时钟</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="696" />
        <location filename="../../clock/clocktreelayout.cpp" line="764" />
        <location filename="../../clock/clocktreelayout.cpp" line="785" />
        <source>sclk</source>
        <translation>sclk</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="698" />
        <source>usbfs</source>
        <translation>usbfs</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="699" />
        <source>usb</source>
        <translation>usb</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="700" />
        <source>adcclk</source>
        <translation>adcclk</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="704" />
        <source>pll/2</source>
        <translation>pll/2</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="705" />
        <source>pll/4</source>
        <translation>pll/4</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="707" />
        <source>PLL clock / 2</source>
        <translation>PLL 时钟 / 2</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="708" />
        <source>PLL clock / 4</source>
        <translation>PLL 时钟 / 4</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="711" />
        <source>clkout</source>
        <translation>clkout</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="716" />
        <source>USBFS clock</source>
        <translation>USBFS 时钟</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="726" />
        <source>clkoutdiv</source>
        <translation>clkoutdiv</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="732" />
        <source>clockoutdiv1</source>
        <translation>clockoutdiv1</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="736" />
        <source>clockoutdiv2</source>
        <translation>clockoutdiv2</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="750" />
        <source>peripheral clock select</source>
        <translation>外设时钟选择</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="758" />
        <source>usart1 clock sel</source>
        <translation>usart1 时钟选择</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="759" />
        <source>usart2 clock sel</source>
        <translation>usart2 时钟选择</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="760" />
        <source>usart3 clock sel</source>
        <translation>usart3 时钟选择</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="761" />
        <source>i2c1 clock sel</source>
        <translation>i2c1 时钟选择</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="762" />
        <source>pllclk to ADC</source>
        <translation>pllclk 至 ADC</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="764" />
        <source>pclk</source>
        <translation>pclk</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="766" />
        <source>hclk</source>
        <translation>hclk</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="767" />
        <source>pllclk</source>
        <translation>pllclk</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="781" />
        <source>I2SF5</source>
        <translation>I2SF5</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="783" />
        <source>i2sf5 clock sel</source>
        <translation>i2sf5 时钟选择</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="785" />
        <source>pllp</source>
        <translation>pllp</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="786" />
        <source>external</source>
        <translation>外部</translation>
    </message>
    <message>
        <location filename="../../clock/clocktreelayout.cpp" line="791" />
        <source>(1-72 MHz)</source>
        <translation>(1-72 MHz)</translation>
    </message>
</context>
<context>
    <name>MQ48ClockTree</name>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="212" />
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="351" />
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="361" />
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="612" />
        <location filename="../../clock/mq48clocktree.cpp" line="1567" />
        <source>hext input error!</source>
        <translation>hext 输入错误！</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="629" />
        <location filename="../../clock/mq48clocktree.cpp" line="1069" />
        <location filename="../../clock/mq48clocktree.cpp" line="1580" />
        <source>pll_ms input error!</source>
        <translation>pll_ms 输入错误！</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="634" />
        <source>pll_ms input error, is it adjusted automatically?

The following condition must be met: 
2MHz &lt;= pll_input / pll_ms &lt;= 16MHz</source>
        <translation>pll_ms 输入错误，是否自动调整？

必须满足以下条件：
2MHz &lt;= pll_input / pll_ms &lt;= 16MHz</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="636" />
        <source>pll_ms input error, is it adjusted automatically?
The following condition must be met: 
2MHz &lt;= pll_input / pll_ms &lt;= 16MHz</source>
        <translation>pll_ms 输入错误，是否自动调整？
必须满足以下条件：
2MHz &lt;= pll_input / pll_ms &lt;= 16MHz</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="648" />
        <location filename="../../clock/mq48clocktree.cpp" line="1083" />
        <location filename="../../clock/mq48clocktree.cpp" line="1583" />
        <source>pll_ns input error!</source>
        <translation>pll_ns 输入错误！</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="652" />
        <source>pll_ns input error, is it adjusted automatically?

The following condition must be met: 
500MHz &lt;= pll_input * pll_ns / pll_ms &lt;= 1200MHz</source>
        <translation>pll_ns 输入错误，是否自动调整？

必须满足以下条件：
500MHz &lt;= pll_input * pll_ns / pll_ms &lt;= 1200MHz</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="655" />
        <source>pll_ns input error, is it adjusted automatically?

The following condition must be met: 
500MHz &lt;= pll_input * pll_ns / pll_ms &lt;= 1000MHz</source>
        <translation>pll_ns 输入错误，是否自动调整？

必须满足以下条件：
500MHz &lt;= pll_input * pll_ns / pll_ms &lt;= 1000MHz</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="751" />
        <source>Need to enable "%1" in "Pin out Configuration".</source>
        <translation>需要在“引脚配置”中使能“%1”。</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="846" />
        <source>CRM_PLLCFG: </source>
        <translation>CRM_PLLCFG: </translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="951" />
        <source>clkout: </source>
        <translation>时钟输出：</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="981" />
        <location filename="../../clock/mq48clocktree.cpp" line="1573" />
        <source>sclk input error!</source>
        <translation>sclk 输入错误！</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="1589" />
        <source>I2SF5 external clock input error! </source>
        <translation>I2SF5 外部时钟输入错误！</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="1600" />
        <source>Can not support sclk greater than</source>
        <translation>不支持 sclk 大于</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="1602" />
        <source>Can not support apb1clk greater than</source>
        <translation>不支持 apb1clk 大于</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="1604" />
        <source>Can not support apb2clk greater than</source>
        <translation>不支持 apb2clk 大于</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="1608" />
        <source>Can not support pll clock greater than</source>
        <translation>不支持 PLL 时钟大于</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="1610" />
        <source>Can not support pll clock less than</source>
        <translation>不支持 PLL 时钟小于</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="1613" />
        <source>Can not support I2SF5 clock greater than</source>
        <translation>不支持 I2SF5 时钟大于</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="1617" />
        <source>The maximum ADC clock is 28 MHz. The currently configured ADC clock is wrong, please confirm whether to continue?</source>
        <translation>ADC 时钟最大为 28 MHz，当前配置的 ADC 时钟错误，请确认是否继续？</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="1619" />
        <source>The maximum ADC clock is 28 MHz. The currently configured ADC clock is wrong.  please confirm whether to continue?</source>
        <translation>ADC 时钟最大为 28 MHz。当前配置的 ADC 时钟错误，请确认是否继续？</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="1625" />
        <source>USB clock must be 48MHz. But the USB clock of current config is wrong.  please confirm whether to continue?</source>
        <translation>USB 时钟必须为 48MHz，但当前配置的 USB 时钟错误，请确认是否继续？</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="1630" />
        <source>USBHS PHY clock must be 12MHz. But the PHY clock of current config is wrong.  please confirm whether to continue?</source>
        <translation>USBHS PHY 时钟必须为 12MHz，但当前配置的 PHY 时钟错误，请确认是否继续？</translation>
    </message>
    <message>
        <location filename="../../clock/mq48clocktree.cpp" line="1789" />
        <source>List</source>
        <translation>列表</translation>
    </message>
</context>
<context>
    <name>MQ48MCUPLL</name>
    <message>
        <location filename="../../clock/mq48mcupll.cpp" line="158" />
        <source>List</source>
        <translation>列表</translation>
    </message>
</context>
<context>
    <name>MQ48PLLConfig</name>
    <message>
        <location filename="../../clock/mq48pllconfig.cpp" line="30" />
        <location filename="../../clock/mq48pllconfig.cpp" line="236" />
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <location filename="../../clock/mq48pllconfig.cpp" line="32" />
        <location filename="../../clock/mq48pllconfig.cpp" line="237" />
        <source>Zoom Reset</source>
        <translation>复位缩放</translation>
    </message>
    <message>
        <location filename="../../clock/mq48pllconfig.cpp" line="34" />
        <location filename="../../clock/mq48pllconfig.cpp" line="238" />
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <location filename="../../clock/mq48pllconfig.cpp" line="39" />
        <source>Config Reset</source>
        <translation>配置复位</translation>
    </message>
    <message>
        <location filename="../../clock/mq48pllconfig.cpp" line="178" />
        <location filename="../../clock/mq48pllconfig.cpp" line="271" />
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <location filename="../../clock/mq48pllconfig.cpp" line="179" />
        <source>MCU in file not supported.</source>
        <translation>不支持文件中的 MCU。</translation>
    </message>
    <message>
        <location filename="../../clock/mq48pllconfig.cpp" line="239" />
        <source>Reset Configuration</source>
        <translation>复位配置</translation>
    </message>
    <message>
        <location filename="../../clock/mq48pllconfig.cpp" line="272" />
        <source>The current configuration will be reset. Please confirm whether to continue?</source>
        <translation>当前配置将被复位，请确认是否继续？</translation>
    </message>
</context>
</TS>