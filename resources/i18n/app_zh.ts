<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>DeviceSelection</name>
    <message>
        <location filename="../../app/deviceselection.cpp" line="11"/>
        <source>Default: </source>
        <translation>默认：</translation>
    </message>
    <message>
        <location filename="../../app/deviceselection.cpp" line="12"/>
        <source>Max: </source>
        <translation>最大：</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../../app/mainwindow.cpp" line="89"/>
        <source>Devie Serials:</source>
        <translation>器件系列：</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="278"/>
        <source>        MQ48 Pin Forge</source>
        <translation>        MQ48 Pin Forge</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="279"/>
        <source>Language:</source>
        <translation>语言：</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="280"/>
        <source>English</source>
        <translation>英文</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="281"/>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="282"/>
        <source>Welcome! To get started with MQ48 Pin Forge, please use one of the below options to start or continue your design.</source>
        <translation>欢迎！请使用以下任一选项，开始新的设计或继续已有的设计。</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="284"/>
        <source>Start a new Design</source>
        <translation>开始新设计</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="285"/>
        <source>Open an Existing Design</source>
        <translation>打开已有设计</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="286"/>
        <source>Recent Designs</source>
        <translation>最近的设计</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="288"/>
        <source>Device Serials:</source>
        <translation>器件系列：</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="289"/>
        <source>Device:</source>
        <translation>器件：</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="290"/>
        <source>Package:</source>
        <translation>封装：</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="291"/>
        <source>Flash:</source>
        <translation>Flash：</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="292"/>
        <source>SRAM:</source>
        <translation>SRAM：</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="293"/>
        <source>New Design</source>
        <translation>新建设计</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="294"/>
        <source>To TXT</source>
        <translation>导出为 TXT</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="295"/>
        <source>From TXT</source>
        <translation>从 TXT 导入</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="296"/>
        <location filename="../../app/mainwindow.cpp" line="404"/>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="297"/>
        <source>a saved .MQPF file to continue your design.</source>
        <translation>已保存的 .MQPF 文件，继续您的设计。</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="404"/>
        <source>Design file (*.MQPF)</source>
        <translation>设计文件 (*.MQPF)</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="417"/>
        <source>File is not exists!</source>
        <translation>文件不存在！</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="420"/>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="421"/>
        <source>Are you sure to open this design file?</source>
        <translation>确定要打开这个设计文件吗？</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="423"/>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="424"/>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="437"/>
        <source>Open file error, can not get MCU information!</source>
        <translation>打开文件出错，无法获取 MCU 信息！</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="440"/>
        <source>Open file error, MCU in file not supported.</source>
        <translation>打开文件出错，不支持文件中的 MCU。</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="443"/>
        <source>Open file error, MCU package in file not supported.</source>
        <translation>打开文件出错，不支持文件中的 MCU 封装。</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="458"/>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="459"/>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <location filename="../../app/mainwindow.cpp" line="493"/>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>New_Design_Select</name>
    <message>
        <location filename="../../app/new_design_select.cpp" line="27"/>
        <location filename="../../app/new_design_select.cpp" line="53"/>
        <source>New Design</source>
        <translation>新建设计</translation>
    </message>
    <message>
        <location filename="../../app/new_design_select.cpp" line="43"/>
        <source>Device Serials:</source>
        <translation>器件系列：</translation>
    </message>
    <message>
        <location filename="../../app/new_design_select.cpp" line="44"/>
        <source>Device:</source>
        <translation>器件：</translation>
    </message>
    <message>
        <location filename="../../app/new_design_select.cpp" line="45"/>
        <source>Package:</source>
        <translation>封装：</translation>
    </message>
    <message>
        <location filename="../../app/new_design_select.cpp" line="46"/>
        <source>Flash:</source>
        <translation>Flash：</translation>
    </message>
    <message>
        <location filename="../../app/new_design_select.cpp" line="47"/>
        <source>SRAM:</source>
        <translation>SRAM：</translation>
    </message>
    <message>
        <location filename="../../app/new_design_select.cpp" line="55"/>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
</TS>
