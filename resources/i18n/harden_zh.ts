<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>DeviceScan</name>
    <message>
        <source>%1 %2 is not a number</source>
        <translation>%1 %2 不是数字</translation>
    </message>
    <message>
        <source>%1 %2 lies outside %3 to %4</source>
        <translation>%1 %2 超出 %3 到 %4 的范围</translation>
    </message>
    <message>
        <source>PID %1 is not a hexadecimal number</source>
        <translation>PID %1 不是十六进制数</translation>
    </message>
    <message>
        <source>PinNum %1 is used by the pin of line %2 as well</source>
        <translation>PinNum %1 也被第 %2 行的引脚使用</translation>
    </message>
    <message>
        <source>PinNum %1 lies outside 1 to %2</source>
        <translation>PinNum %1 超出 1 到 %2 的范围</translation>
    </message>
    <message>
        <source>a function of the pin has no Func</source>
        <translation>该引脚的一个功能没有 Func</translation>
    </message>
    <message>
        <source>a signal of the group lacks SignalName or PinName</source>
        <translation>该组的一个信号缺少 SignalName 或 PinName</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>the file can not be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
    <message>
        <source>the file does not parse: line %1: %2</source>
        <translation>文件无法解析：第 %1 行：%2</translation>
    </message>
    <message>
        <source>the file has no section %1</source>
        <translation>文件缺少段 %1</translation>
    </message>
    <message>
        <source>the pin count %1 is missing</source>
        <translation>缺少引脚数 %1</translation>
    </message>
    <message>
        <source>the pin has no PinName</source>
        <translation>该引脚没有 PinName</translation>
    </message>
    <message>
        <source>the pin has no PinNum</source>
        <translation>该引脚没有 PinNum</translation>
    </message>
    <message>
        <source>the row lacks InstanceName or Name</source>
        <translation>该行缺少 InstanceName 或 Name</translation>
    </message>
</context>
<context>
    <name>FormConfiguration</name>
    <message>
        <source>The device file %1 can not be opened.
%2</source>
        <translation>无法打开器件文件 %1。
%2</translation>
    </message>
</context>
<context>
    <name>MQ48PLLConfig</name>
    <message>
        <source>The clock tree of the %1 series can not be configured in this version of MQ48 Pin Forge.</source>
        <translation>此版本的 MQ48 Pin Forge 无法配置 %1 系列的时钟树。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The file %1 could not be read. It has been kept as %2, and a new one is started.</source>
        <translation>无法读取文件 %1。该文件已另存为 %2，并已新建一个文件。</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>PeripheralsConfig</name>
    <message>
        <source>Analog</source>
        <translation>模拟</translation>
    </message>
    <message>
        <source>Computing</source>
        <translation>计算</translation>
    </message>
    <message>
        <source>Connectivity</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Middleware</source>
        <translation>中间件</translation>
    </message>
    <message>
        <source>Multimedia</source>
        <translation>多媒体</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>安全</translation>
    </message>
    <message>
        <source>System Core</source>
        <translation>系统核心</translation>
    </message>
    <message>
        <source>Timers</source>
        <translation>定时器</translation>
    </message>
</context>
<context>
    <name>ProComboBox</name>
    <message>
        <source>%1 finds no free pin.</source>
        <translation>%1 找不到空闲的引脚。</translation>
    </message>
    <message>
        <source>%1 needs a pin that is in use: %2</source>
        <translation>%1 需要的引脚已被占用：%2</translation>
    </message>
</context>
<context>
    <name>SafeXml</name>
    <message>
        <source>can not be opened: </source>
        <translation>无法打开：</translation>
    </message>
    <message>
        <source>can not be read: </source>
        <translation>无法读取：</translation>
    </message>
    <message>
        <source>elements nested deeper than %1</source>
        <translation>元素嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>larger than %1 MB</source>
        <translation>大于 %1 MB</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>line %1: bytes that are no UTF-8</source>
        <translation>第 %1 行：含有不是 UTF-8 的字节</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>不是文件</translation>
    </message>
    <message>
        <source>nothing to read into</source>
        <translation>没有可读入的位置</translation>
    </message>
    <message>
        <source>the document declares entities</source>
        <translation>文档声明了实体</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>the file holds no element</source>
        <translation>文件中没有任何元素</translation>
    </message>
    <message>
        <source>undeclared entity reference</source>
        <translation>引用了未声明的实体</translation>
    </message>
</context>
</TS>
