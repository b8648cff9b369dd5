<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>GenerateCodeAction</name>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="193"/>
        <source> Open Project  </source>
        <translation> 打开工程  </translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="194"/>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="200"/>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="201"/>
        <source>Open the project error! 

Please install toolchain to open the project.
</source>
        <translation>打开工程出错！

请安装工具链后再打开工程。
</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="280"/>
        <source>No design is open.</source>
        <translation>没有打开的设计。</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="296"/>
        <source>The clock configuration is not valid.</source>
        <translation>时钟配置无效。</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="302"/>
        <source>The manually configured pin signal does not take effect: %1</source>
        <translation>手动配置的引脚信号未生效：%1</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="306"/>
        <source>The peripheral %1 still has some not configured or wrong parameter value.</source>
        <translation>外设 %1 仍有未配置或错误的参数值。</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="338"/>
        <source>The design names no project folder; give one with --output.</source>
        <translation>设计中没有指定工程文件夹，请用 --output 指定。</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="352"/>
        <source>Unknown toolchain/IDE "%1".</source>
        <translation>未知的工具链/IDE“%1”。</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="363"/>
        <source>No firmware package of %1 is installed; only the code is written.</source>
        <translation>未安装 %1 的固件包，只生成代码。</translation>
    </message>
</context>
</TS>
