<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>UserMessage</name>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
</context>
<context>
    <name>Enter_UserLabel_Dialog</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
</context>
<context>
    <name>PinQGraphicsRectItem</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
</context>
</TS>
