<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="zh_CN">
    <context>
        <name>DesignDocument</name>
        <message>
            <source>%1: an entry without a name</source>
            <translation>%1：有一项没有名称</translation>
        </message>
        <message>
            <source>%1: "%2" is not a valid value</source>
            <translation>%1：“%2”不是有效的值</translation>
        </message>
        <message>
            <source>GPIO: a signal without a name or pin</source>
            <translation>GPIO：有一个信号没有名称或引脚</translation>
        </message>
        <message>
            <source>PINInfo: a pin without a name or signal</source>
            <translation>PINInfo：有一个引脚没有名称或信号</translation>
        </message>
        <message>
            <source>%1: the block stands twice, the second was skipped</source>
            <translation>%1：该配置块出现了两次，已跳过第二个</translation>
        </message>
    </context>
    <context>
        <name>DesignSession</name>
        <message>
            <source>%1: DMA request "%2" has no setting %3 = "%4"</source>
            <translation>%1：DMA 请求“%2”没有设置 %3 = “%4”</translation>
        </message>
        <message>
            <source>%1: DMA request "%2" on %3 cannot be configured</source>
            <translation>%1：无法在 %3 上配置 DMA 请求“%2”</translation>
        </message>
        <message>
            <source>%1: has no parameters</source>
            <translation>%1：没有参数</translation>
        </message>
        <message>
            <source>%1: mode "%2" cannot be set to "%3"</source>
            <translation>%1：模式“%2”不能设为“%3”</translation>
        </message>
        <message>
            <source>%1: no DMA request "%2"</source>
            <translation>%1：没有 DMA 请求“%2”</translation>
        </message>
        <message>
            <source>%1: no mode "%2"</source>
            <translation>%1：没有模式“%2”</translation>
        </message>
        <message>
            <source>%1: no parameter "%2"</source>
            <translation>%1：没有参数“%2”</translation>
        </message>
        <message>
            <source>%1: no such peripheral on this device</source>
            <translation>%1：该器件没有此外设</translation>
        </message>
        <message>
            <source>%1: parameter "%2" cannot be "%3"</source>
            <translation>%1：参数“%2”不能为“%3”</translation>
        </message>
        <message>
            <source>File is not exists!</source>
            <translation>文件不存在！</translation>
        </message>
        <message>
            <source>GPIO: %1 is not on pin %2</source>
            <translation>GPIO：%1 不在引脚 %2 上</translation>
        </message>
        <message>
            <source>GPIO: %1 on %2 cannot take %3 = "%4"</source>
            <translation>GPIO：%2 上的 %1 不能设置 %3 = “%4”</translation>
        </message>
        <message>
            <source>NVIC: "%1" is not valid for %2</source>
            <translation>NVIC：“%1”对 %2 无效</translation>
        </message>
        <message>
            <source>NVIC: %1 cannot take "%2"</source>
            <translation>NVIC：%1 不能设为“%2”</translation>
        </message>
        <message>
            <source>NVIC: no interrupt "%1"</source>
            <translation>NVIC：没有中断“%1”</translation>
        </message>
        <message>
            <source>NVIC: no priority group "%1"</source>
            <translation>NVIC：没有优先级分组“%1”</translation>
        </message>
        <message>
            <source>Open file error, MCU in file not supported.</source>
            <translation>打开文件错误，不支持文件中的 MCU。</translation>
        </message>
        <message>
            <source>Open file error, MCU package in file not supported.</source>
            <translation>打开文件错误，不支持文件中的 MCU 封装。</translation>
        </message>
        <message>
            <source>Open file error, can not get MCU information!</source>
            <translation>打开文件错误，无法获取 MCU 信息！</translation>
        </message>
        <message>
            <source>Open file error, the device's database files cannot be read.</source>
            <translation>打开文件错误，无法读取该器件的数据库文件。</translation>
        </message>
        <message>
            <source>pin %1 cannot carry %2</source>
            <translation>引脚 %1 不能承载 %2</translation>
        </message>
        <message>
            <source>pin %1 does not exist on this package</source>
            <translation>该封装上没有引脚 %1</translation>
        </message>
    </context>
    <context>
        <name>FormConfiguration</name>
        <message>
            <source> (not saved)</source>
            <translation>（未保存）</translation>
        </message>
        <message>
            <source>... and %1 more</source>
            <translation>……以及另外 %1 项</translation>
        </message>
        <message>
            <source>Design file (*.MQPF)</source>
            <translation>设计文件 (*.MQPF)</translation>
        </message>
        <message>
            <source>MQ48 Pin Forge Design File (*.MQPF)</source>
            <translation>MQ48 Pin Forge 设计文件 (*.MQPF)</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>打开</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Save file error!</source>
            <translation>保存文件错误！</translation>
        </message>
        <message>
            <source>Save file finished!</source>
            <translation>保存文件完成！</translation>
        </message>
        <message>
            <source>These settings could not be applied:</source>
            <translation>以下设置无法应用：</translation>
        </message>
        <message>
            <source>This design was saved by a newer version of MQ48 Pin Forge. What this version knows of it has been opened.</source>
            <translation>该设计由更新版本的 MQ48 Pin Forge 保存。已打开本版本能够识别的部分。</translation>
        </message>
    </context>
</TS>