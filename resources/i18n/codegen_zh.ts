<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>FamilyGenerator</name>
    <message>
        <location filename="../../codegen/familygenerator.cpp" line="83"/>
        <source>No code generator exists for the series &quot;%1&quot;.</source>
        <translation>系列“%1”没有代码生成器。</translation>
    </message>
    <message>
        <location filename="../../codegen/familygenerator.cpp" line="88"/>
        <source>The code templates of the %1 family are missing: %2</source>
        <translation>%1 系列的代码模板缺失：%2</translation>
    </message>
    <message>
        <location filename="../../codegen/familygenerator.cpp" line="95"/>
        <source>Creating &quot;%1&quot; folder error!</source>
        <translation>创建“%1”文件夹出错！</translation>
    </message>
    <message>
        <location filename="../../codegen/familygenerator.cpp" line="119"/>
        <location filename="../../codegen/familygenerator.cpp" line="127"/>
        <source>The file &quot;%1&quot; can&apos;t be written.</source>
        <translation>无法写入文件“%1”。</translation>
    </message>
</context>
<context>
    <name>GenerateCodeAction</name>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="76"/>
        <source>The manually configured pin signal does not take effect.</source>
        <translation>手动配置的引脚信号未生效。</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="92"/>
        <source>These peripherals still have some not configured or wrong parameter value.
Peripherals:   </source>
        <translation>这些外设仍有未配置或错误的参数值。
外设：   </translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="105"/>
        <source>Select the project folder</source>
        <translation>选择工程文件夹</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="133"/>
        <location filename="../../app/generatecodeaction.cpp" line="139"/>
        <location filename="../../app/generatecodeaction.cpp" line="150"/>
        <location filename="../../app/generatecodeaction.cpp" line="185"/>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="151"/>
        <location filename="../../app/generatecodeaction.cpp" line="182"/>
        <source>Generate code failed!</source>
        <translation>生成代码失败！</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="152"/>
        <source>No code generator exists for the series &quot;%1&quot;.</source>
        <translation>系列“%1”没有代码生成器。</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="161"/>
        <source>Generate code, Please Waiting...</source>
        <translation>正在生成代码，请稍候...</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="190"/>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="191"/>
        <source>Generate code finished!</source>
        <translation>生成代码完成！</translation>
    </message>
    <message>
        <location filename="../../app/generatecodeaction.cpp" line="192"/>
        <source> Open Folder  </source>
        <translation> 打开文件夹  </translation>
    </message>
</context>
</TS>
