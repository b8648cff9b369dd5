<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>IP_ModeAndConfiguration</name>
    <message>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="84"/>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="84"/>
        <source>No Mode Settings!</source>
        <translation>没有模式设置！</translation>
    </message>
    <message>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="100"/>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="620"/>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="163"/>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="621"/>
        <source>Configuration</source>
        <translation>配置</translation>
    </message>
    <message>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="361"/>
        <source>Please select a </source>
        <translation>请选择</translation>
    </message>
    <message>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="364"/>
        <source>This peripheral has no parameters to be configured.</source>
        <translation>该外设没有需要配置的参数。</translation>
    </message>
    <message>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="367"/>
        <source>Please note: Full duplex affiliated parameters must be same as the leader</source>
        <translation>请注意：全双工从属参数必须与主设备相同</translation>
    </message>
    <message>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="370"/>
        <source>Please note: When configuring ADC, it is also necessary to configure ADC-Common</source>
        <translation>请注意：配置 ADC 时，还需要配置 ADC-Common</translation>
    </message>
    <message>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="391"/>
        <source>Parameters Settings</source>
        <translation>参数设置</translation>
    </message>
    <message>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="507"/>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <location filename="../../peripherals/ip_modeandconfiguration.cpp" line="508"/>
        <source>The current configuration will be reset. Please confirm whether to continue?</source>
        <translation>当前配置将被重置，请确认是否继续？</translation>
    </message>
</context>
<context>
    <name>ParamSettingWidget</name>
    <message>
        <location filename="../../peripherals/paramsettingwidget.cpp" line="50"/>
        <location filename="../../peripherals/paramsettingwidget.cpp" line="72"/>
        <source>Expand All</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <location filename="../../peripherals/paramsettingwidget.cpp" line="51"/>
        <location filename="../../peripherals/paramsettingwidget.cpp" line="73"/>
        <source>Fold All</source>
        <translation>全部折叠</translation>
    </message>
</context>
<context>
    <name>PeripheralMessage</name>
    <message>
        <location filename="../../peripherals/peripheralmessage.cpp" line="45"/>
        <location filename="../../peripherals/peripheralmessage.cpp" line="54"/>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <location filename="../../peripherals/peripheralmessage.cpp" line="56"/>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>PeripheralsConfig</name>
    <message>
        <location filename="../../peripherals/peripheralsconfig.cpp" line="42"/>
        <location filename="../../peripherals/peripheralsconfig.cpp" line="105"/>
        <source>Peripherals</source>
        <translation>外设</translation>
    </message>
    <message>
        <location filename="../../peripherals/peripheralsconfig.cpp" line="94"/>
        <location filename="../../peripherals/peripheralsconfig.cpp" line="106"/>
        <source>Expand All</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <location filename="../../peripherals/peripheralsconfig.cpp" line="95"/>
        <location filename="../../peripherals/peripheralsconfig.cpp" line="107"/>
        <source>Fold All</source>
        <translation>全部折叠</translation>
    </message>
</context>
<context>
    <name>ProComboBox</name>
    <message>
        <location filename="../../peripherals/procombobox.cpp" line="11"/>
        <location filename="../../peripherals/procombobox.cpp" line="56"/>
        <source>Disable</source>
        <translation>禁用</translation>
    </message>
</context>
</TS>
