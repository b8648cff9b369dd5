<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
    <context>
        <name>DMASettingWidget</name>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="96" />
            <source>EDMA Request</source>
            <translation>EDMA 请求</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="97" />
            <source>DMA Request</source>
            <translation>DMA 请求</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="98" />
            <source>Channel</source>
            <translation>通道</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="98" />
            <source>Direction</source>
            <translation>方向</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="98" />
            <source>Priority</source>
            <translation>优先级</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="99" />
            <source>Add</source>
            <translation>添加</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="100" />
            <source>Delete</source>
            <translation>删除</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="101" />
            <source>EDMA Request Parameters</source>
            <translation>EDMA 请求参数</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="102" />
            <source>DMA Request Parameters</source>
            <translation>DMA 请求参数</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="103" />
            <source>EDMA Request Settings</source>
            <translation>EDMA 请求设置</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="104" />
            <source>DMA Request Settings</source>
            <translation>DMA 请求设置</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="232" />
            <location filename="../../peripherals/dmasettingwidget.cpp" line="337" />
            <source>Select</source>
            <translation>选择</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="322" />
            <location filename="../../peripherals/dmasettingwidget.cpp" line="327" />
            <location filename="../../peripherals/dmasettingwidget.cpp" line="343" />
            <location filename="../../peripherals/dmasettingwidget.cpp" line="347" />
            <source>Error</source>
            <translation>错误</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="323" />
            <source>No available DMA requests for configurated peripherals!</source>
            <translation>已配置的外设没有可用的 DMA 请求！</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="328" />
            <source>No available DMA channels for configurated peripherals!</source>
            <translation>已配置的外设没有可用的 DMA 通道！</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="344" />
            <source>No available channel for configurated DMA Request! </source>
            <translation>所配置的 DMA 请求没有可用通道！</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="345" />
            <source> has been used</source>
            <translation> 已被使用</translation>
        </message>
        <message>
            <location filename="../../peripherals/dmasettingwidget.cpp" line="347" />
            <source>No available DMA request!</source>
            <translation>没有可用的 DMA 请求！</translation>
        </message>
    </context>
    <context>
        <name>DMA_Configuration</name>
        <message>
            <location filename="../../peripherals/dma_configuration.cpp" line="62" />
            <source>Mode and Configuration</source>
            <translation>模式与配置</translation>
        </message>
        <message>
            <location filename="../../peripherals/dma_configuration.cpp" line="63" />
            <source>Configuration</source>
            <translation>配置</translation>
        </message>
        <message>
            <location filename="../../peripherals/dma_configuration.cpp" line="66" />
            <source>MemToMem</source>
            <translation>存储器到存储器</translation>
        </message>
    </context>
    <context>
        <name>GPIOSettingWidget</name>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="128" />
            <source>Pin Name</source>
            <translation>引脚名</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="128" />
            <source>Signal on Pin</source>
            <translation>引脚信号</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="128" />
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="132" />
            <source>Output level</source>
            <translation>输出电平</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="129" />
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="133" />
            <source>GPIO type</source>
            <translation>GPIO 输出类型</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="129" />
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="135" />
            <source>Pull type</source>
            <translation>上下拉</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="129" />
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="134" />
            <source>GPIO mode</source>
            <translation>GPIO 模式</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="130" />
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="136" />
            <source>Driver capability</source>
            <translation>驱动能力</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="130" />
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="137" />
            <source>Label</source>
            <translation>标签</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="130" />
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="210" />
            <source>Modified</source>
            <translation>已修改</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="131" />
            <source>GPIO Parameters</source>
            <translation>GPIO 参数</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="348" />
            <source>Error</source>
            <translation>错误</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="349" />
            <source>Label must be letters/numbers/underscores, and start with a letter or an underscore.</source>
            <translation>标签只能由字母、数字和下划线组成，并以字母或下划线开头。</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpiosettingwidget.cpp" line="364" />
            <source>Search: </source>
            <translation>搜索：</translation>
        </message>
    </context>
    <context>
        <name>GPIO_Configuration</name>
        <message>
            <location filename="../../peripherals/gpio_configuration.cpp" line="90" />
            <source>Mode and Configuration</source>
            <translation>模式与配置</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpio_configuration.cpp" line="91" />
            <source>Configuration</source>
            <translation>配置</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpio_configuration.cpp" line="92" />
            <source>Show</source>
            <translation>显示</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpio_configuration.cpp" line="93" />
            <source>Show All</source>
            <translation>全部显示</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpio_configuration.cpp" line="94" />
            <source>Groups By Peripherals</source>
            <translation>按外设分组</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpio_configuration.cpp" line="95" />
            <source>Reset Configuration</source>
            <translation>重置配置</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpio_configuration.cpp" line="160" />
            <location filename="../../peripherals/gpio_configuration.cpp" line="168" />
            <source>GPIO</source>
            <translation>GPIO</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpio_configuration.cpp" line="212" />
            <source>Warning</source>
            <translation>警告</translation>
        </message>
        <message>
            <location filename="../../peripherals/gpio_configuration.cpp" line="213" />
            <source>The current configuration will be reset. Please confirm whether to continue?</source>
            <translation>当前配置将被重置，是否继续？</translation>
        </message>
    </context>
    <context>
        <name>IP_ModeAndConfiguration</name>
        <message>
            <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="449" />
            <source>GPIO Settings</source>
            <translation>GPIO 设置</translation>
        </message>
        <message>
            <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="455" />
            <source>NVIC Settings</source>
            <translation>NVIC 设置</translation>
        </message>
        <message>
            <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="474" />
            <source>%1 Settings</source>
            <translation>%1 设置</translation>
        </message>
    </context>
    <context>
        <name>NVIC_Configuration</name>
        <message>
            <location filename="../../peripherals/nvic_configuration.cpp" line="65" />
            <source>Mode and Configuration</source>
            <translation>模式与配置</translation>
        </message>
        <message>
            <location filename="../../peripherals/nvic_configuration.cpp" line="66" />
            <source>Configuration</source>
            <translation>配置</translation>
        </message>
        <message>
            <location filename="../../peripherals/nvic_configuration.cpp" line="67" />
            <source>Priority Group</source>
            <translation>优先级分组</translation>
        </message>
        <message>
            <location filename="../../peripherals/nvic_configuration.cpp" line="68" />
            <source>Show</source>
            <translation>显示</translation>
        </message>
        <message>
            <location filename="../../peripherals/nvic_configuration.cpp" line="69" />
            <source>Available interrupts</source>
            <translation>可用中断</translation>
        </message>
        <message>
            <location filename="../../peripherals/nvic_configuration.cpp" line="70" />
            <source>Enabled interrupts</source>
            <translation>已使能中断</translation>
        </message>
        <message>
            <location filename="../../peripherals/nvic_configuration.cpp" line="71" />
            <source>All interrupts</source>
            <translation>全部中断</translation>
        </message>
    </context>
    <context>
        <name>NVIC_Settings</name>
        <message>
            <location filename="../../peripherals/nvic_settings.cpp" line="46" />
            <source>NVIC Interrupt Table</source>
            <translation>NVIC 中断表</translation>
        </message>
        <message>
            <location filename="../../peripherals/nvic_settings.cpp" line="46" />
            <source>Enabled</source>
            <translation>使能</translation>
        </message>
        <message>
            <location filename="../../peripherals/nvic_settings.cpp" line="47" />
            <source>Preemption Priority</source>
            <translation>抢占优先级</translation>
        </message>
        <message>
            <location filename="../../peripherals/nvic_settings.cpp" line="47" />
            <source>Sub Priority</source>
            <translation>响应优先级</translation>
        </message>
    </context>
</TS>
