<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>FormConfiguration</name>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="64"/>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="324"/>
        <source>New Design</source>
        <translation>新建设计</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="325"/>
        <source>Open Design</source>
        <translation>打开设计</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="326"/>
        <source>Save Design</source>
        <translation>保存设计</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="327"/>
        <source>Design Save As</source>
        <translation>设计另存为</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="328"/>
        <source>Package Manager</source>
        <translation>固件包管理</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="329"/>
        <source>Generate Report</source>
        <translation>生成报告</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="330"/>
        <location filename="../../app/formconfiguration.cpp" line="331"/>
        <source>English</source>
        <translation>英文</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="332"/>
        <location filename="../../app/formconfiguration.cpp" line="333"/>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="334"/>
        <location filename="../../app/formconfiguration.cpp" line="335"/>
        <location filename="../../app/formconfiguration.cpp" line="351"/>
        <source>Generate code</source>
        <translation>生成代码</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="336"/>
        <source>Open Manual</source>
        <translation>打开手册</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="337"/>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="338"/>
        <source>New version download</source>
        <translation>新版本下载</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="339"/>
        <location filename="../../app/formconfiguration.cpp" line="340"/>
        <source>Go to Velmora home page</source>
        <translation>访问 Velmora 官网</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="341"/>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="342"/>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="343"/>
        <source>Zoom Reset</source>
        <translation>缩放复位</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="344"/>
        <source>Reset All Configurations</source>
        <translation>复位所有配置</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="345"/>
        <source>Clockwise rotate</source>
        <translation>顺时针旋转</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="346"/>
        <source>Anti-clockwise rotate</source>
        <translation>逆时针旋转</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="348"/>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="349"/>
        <source>Resent Design</source>
        <translation>最近的设计</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="350"/>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="352"/>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="354"/>
        <source>Pin out &amp; Configuration</source>
        <translation>引脚与配置</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="355"/>
        <source>Clock Configuration</source>
        <translation>时钟配置</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="356"/>
        <source>Code View</source>
        <translation>代码预览</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="421"/>
        <location filename="../../app/formconfiguration.cpp" line="716"/>
        <source>Loading......</source>
        <translation>加载中......</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="423"/>
        <location filename="../../app/formconfiguration.cpp" line="717"/>
        <source>MQ48 Pin Forge</source>
        <translation>MQ48 Pin Forge</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="545"/>
        <location filename="../../app/formconfiguration.cpp" line="614"/>
        <location filename="../../app/formconfiguration.cpp" line="735"/>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="546"/>
        <source>Saving a design is not available in this version. The design stays open.</source>
        <translation>此版本尚不能保存设计，设计保持打开。</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="552"/>
        <source>Yes1</source>
        <translation>是</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="554"/>
        <location filename="../../app/formconfiguration.cpp" line="615"/>
        <location filename="../../app/formconfiguration.cpp" line="654"/>
        <location filename="../../app/formconfiguration.cpp" line="668"/>
        <location filename="../../app/formconfiguration.cpp" line="713"/>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="555"/>
        <location filename="../../app/formconfiguration.cpp" line="653"/>
        <location filename="../../app/formconfiguration.cpp" line="667"/>
        <source>Question</source>
        <translation>问题</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="556"/>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="556"/>
        <location filename="../../app/formconfiguration.cpp" line="615"/>
        <location filename="../../app/formconfiguration.cpp" line="654"/>
        <location filename="../../app/formconfiguration.cpp" line="668"/>
        <location filename="../../app/formconfiguration.cpp" line="713"/>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="565"/>
        <source>The current design will be closed before creating a new design. Would you like to save the design?</source>
        <translation>新建设计前将关闭当前设计。是否保存当前设计？</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="612"/>
        <location filename="../../app/formconfiguration.cpp" line="864"/>
        <source>The current design will be closed. Would you like to save the design?</source>
        <translation>当前设计将被关闭。是否保存当前设计？</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="615"/>
        <source>Are you sure to open this design file?</source>
        <translation>确定打开此设计文件吗？</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="618"/>
        <location filename="../../app/formconfiguration.cpp" line="630"/>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="618"/>
        <source>File is not exists!</source>
        <translation>文件不存在！</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="630"/>
        <source>Can&apos;t open manual!</source>
        <translation>无法打开手册！</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="654"/>
        <location filename="../../app/formconfiguration.cpp" line="668"/>
        <source>Are you sure to switch language?</source>
        <translation>确定切换语言吗？</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="710"/>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="711"/>
        <source>The current all configurations will be reset. Please confirm whether to continue?</source>
        <translation>当前所有配置将被复位。请确认是否继续？</translation>
    </message>
    <message>
        <location filename="../../app/formconfiguration.cpp" line="735"/>
        <source>Reset succeed!</source>
        <translation>复位成功！</translation>
    </message>
</context>
<context>
    <name>VersionAbout</name>
    <message>
        <location filename="../../app/versionabout.cpp" line="53"/>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <location filename="../../app/versionabout.cpp" line="55"/>
        <source>Version: %1</source>
        <translation>版本：%1</translation>
    </message>
    <message>
        <location filename="../../app/versionabout.cpp" line="56"/>
        <source>Velmora Technology</source>
        <translation>Velmora 科技</translation>
    </message>
</context>
</TS>
