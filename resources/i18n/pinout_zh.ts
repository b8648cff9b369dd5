<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>ChipView</name>
    <message>
        <location filename="../../pinout/chipview.cpp" line="127"/>
        <source>Pin layout</source>
        <translation>引脚布局</translation>
    </message>
    <message>
        <location filename="../../pinout/chipview.cpp" line="128"/>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <location filename="../../pinout/chipview.cpp" line="129"/>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <location filename="../../pinout/chipview.cpp" line="130"/>
        <source>Zoom Reset</source>
        <translation>复位缩放</translation>
    </message>
    <message>
        <location filename="../../pinout/chipview.cpp" line="131"/>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <location filename="../../pinout/chipview.cpp" line="132"/>
        <source>Clockwise rotate</source>
        <translation>顺时针旋转</translation>
    </message>
    <message>
        <location filename="../../pinout/chipview.cpp" line="133"/>
        <source>Anti-clockwise rotate</source>
        <translation>逆时针旋转</translation>
    </message>
    <message>
        <location filename="../../pinout/pinmessage.cpp" line="26"/>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location filename="../../pinout/pinmessage.cpp" line="28"/>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>Enter_UserLabel_Dialog</name>
    <message>
        <location filename="../../pinout/enter_userlabel_dialog.cpp" line="38"/>
        <source>Enter Label</source>
        <translation>输入标签</translation>
    </message>
    <message>
        <location filename="../../pinout/enter_userlabel_dialog.cpp" line="74"/>
        <source>Label must be letters/numbers/underscores, and start with a letter or an underscore.</source>
        <translation>标签只能由字母、数字和下划线组成，并且必须以字母或下划线开头。</translation>
    </message>
</context>
<context>
    <name>PinQGraphicsRectItem</name>
    <message>
        <location filename="../../pinout/pinqgraphicsrectitem.cpp" line="99"/>
        <location filename="../../pinout/pinqgraphicsrectitem.cpp" line="362"/>
        <source>Enter Label</source>
        <translation>输入标签</translation>
    </message>
    <message>
        <location filename="../../pinout/pinqgraphicsrectitem.cpp" line="217"/>
        <source>Unable to find signal group, switching failed!</source>
        <translation>无法找到信号组，切换失败！</translation>
    </message>
</context>
</TS>
