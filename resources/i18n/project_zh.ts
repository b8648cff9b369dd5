<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>ProjectFormat</name>
    <message>
        <location filename="../../project/projectformats.cpp" line="433" />
        <source>The template "%1" is not well-formed XML.</source>
        <translation>模板“%1”不是格式正确的 XML。</translation>
    </message>
    <message>
        <location filename="../../project/projectformats.cpp" line="441" />
        <source>The template "%1" lacks the element %2.</source>
        <translation>模板“%1”缺少元素 %2。</translation>
    </message>
    <message>
        <location filename="../../project/projectformats.cpp" line="448" />
        <source>The element %2 of the template "%1" can't be rewritten.</source>
        <translation>无法改写模板“%1”中的元素 %2。</translation>
    </message>
    <message>
        <location filename="../../project/projectformats.cpp" line="460" />
        <source>The template "%1" can't be rewritten.</source>
        <translation>无法改写模板“%1”。</translation>
    </message>
</context>
<context>
    <name>ProjectSetting</name>
    <message>
        <location filename="../../project/projectsetting.cpp" line="53" />
        <source>Project Manager</source>
        <translation>工程管理</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="82" />
        <source>Project Settings</source>
        <translation>工程设置</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="87" />
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="92" />
        <source>Keep User Code when re-generating</source>
        <translation>重新生成时保留用户代码</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="95" />
        <source>Project Name</source>
        <translation>工程名称</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="97" />
        <source>Project Location</source>
        <translation>工程位置</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="100" />
        <source>Toolchain/IDE</source>
        <translation>工具链/IDE</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="106" />
        <source>Linker Settings</source>
        <translation>链接设置</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="114" />
        <source>Minimum Heap Size (0x)</source>
        <translation>最小堆大小 (0x)</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="116" />
        <source>Minimum Stack Size (0x)</source>
        <translation>最小栈大小 (0x)</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="121" />
        <source>MCU and Firmware Package</source>
        <translation>MCU 与固件包</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="122" />
        <source>Copy libraries into the project folder</source>
        <translation>将固件库复制到工程文件夹</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="127" />
        <source>Package Manager</source>
        <translation>固件包管理</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="129" />
        <source>Firmware Relative Path</source>
        <translation>固件相对路径</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="141" />
        <source>Package Version</source>
        <translation>固件包版本</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="151" />
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="154" />
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="286" />
        <source>The firmware package of %1 does not exist, please click "Package Manager" to install the firmware package.</source>
        <translation>%1 的固件包不存在，请点击“固件包管理”安装固件包。</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="294" />
        <source>Select directory</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="345" />
        <location filename="../../project/projectsetting.cpp" line="350" />
        <location filename="../../project/projectsetting.cpp" line="372" />
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="346" />
        <source>Project name or project location is empty!</source>
        <translation>工程名称或工程位置为空！</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="351" />
        <source>The project name "%1" can't be used as a folder name.</source>
        <translation>工程名称“%1”不能用作文件夹名。</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="360" />
        <location filename="../../project/projectsetting.cpp" line="387" />
        <location filename="../../project/projectsetting.cpp" line="451" />
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="361" />
        <source>%1 already exists, do you want to overwrite it?</source>
        <translation>%1 已存在，是否覆盖？</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="388" />
        <source>The Firmware Package(%1) by the Project is not available, Please confirm whether to continue?</source>
        <translation>工程所用的固件包(%1)不可用，请确认是否继续？</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="418" />
        <source>Generate code, Please Waiting...</source>
        <translation>正在生成代码，请稍候……</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="444" />
        <source>Failed to copy firmware package file, Please confirm whether to continue?</source>
        <translation>复制固件包文件失败，请确认是否继续？</translation>
    </message>
    <message>
        <location filename="../../project/projectsetting.cpp" line="447" />
        <source>Failure to Config Project file! Please confirm whether to continue?</source>
        <translation>配置工程文件失败！请确认是否继续？</translation>
    </message>
    <message>
        <location filename="../../project/projectsizes.cpp" line="28" />
        <source>"Minimum Heap Size" input error!</source>
        <translation>“最小堆大小”输入错误！</translation>
    </message>
    <message>
        <location filename="../../project/projectsizes.cpp" line="31" />
        <source>"Minimum Stack Size" input error!</source>
        <translation>“最小栈大小”输入错误！</translation>
    </message>
    <message>
        <location filename="../../project/projectsizes.cpp" line="33" />
        <source>"Minimum Heap Size" input error, cannot be greater than SRAM size(0x%1)</source>
        <translation>“最小堆大小”输入错误，不能大于 SRAM 大小(0x%1)</translation>
    </message>
    <message>
        <location filename="../../project/projectsizes.cpp" line="38" />
        <source>"Minimum Stack Size" input error, cannot be greater than SRAM size(0x%1)</source>
        <translation>“最小栈大小”输入错误，不能大于 SRAM 大小(0x%1)</translation>
    </message>
</context>
<context>
    <name>ProjectWriter</name>
    <message>
        <location filename="../../project/projectwriter.cpp" line="96" />
        <source>Unknown toolchain "%1".</source>
        <translation>未知的工具链“%1”。</translation>
    </message>
    <message>
        <location filename="../../project/projectwriter.cpp" line="103" />
        <source>The device "%1" has no firmware package.</source>
        <translation>器件“%1”没有固件包。</translation>
    </message>
    <message>
        <location filename="../../project/projectwriter.cpp" line="108" />
        <source>The memory sizes of "%1" are unknown.</source>
        <translation>“%1”的存储器大小未知。</translation>
    </message>
    <message>
        <location filename="../../project/projectwriter.cpp" line="113" />
        <source>Project name or project location is empty!</source>
        <translation>工程名称或工程位置为空！</translation>
    </message>
    <message>
        <location filename="../../project/projectwriter.cpp" line="119" />
        <source>The project name "%1" can't be used as a folder name.</source>
        <translation>工程名称“%1”不能用作文件夹名。</translation>
    </message>
    <message>
        <location filename="../../project/projectwriter.cpp" line="129" />
        <source>The project template "%1" does not exist.</source>
        <translation>工程模板“%1”不存在。</translation>
    </message>
    <message>
        <location filename="../../project/projectwriter.cpp" line="148" />
        <source>The firmware package lacks "%1".</source>
        <translation>固件包缺少“%1”。</translation>
    </message>
    <message>
        <location filename="../../project/projectwriter.cpp" line="167" />
        <source>The firmware package "%1" does not exist.</source>
        <translation>固件包“%1”不存在。</translation>
    </message>
    <message>
        <location filename="../../project/projectwriter.cpp" line="215" />
        <source>Can't create the folder "%1".</source>
        <translation>无法创建文件夹“%1”。</translation>
    </message>
    <message>
        <location filename="../../project/projectwriter.cpp" line="278" />
        <source>The stack and heap sizes can't be set in "%1".</source>
        <translation>无法在“%1”中设置栈和堆的大小。</translation>
    </message>
    <message>
        <location filename="../../project/projectwriter.cpp" line="369" />
        <source>The device "%1" is not in the catalogue.</source>
        <translation>器件“%1”不在器件目录中。</translation>
    </message>
    <message>
        <location filename="../../project/projectwriter.cpp" line="379" />
        <source>"%1" is not a firmware package of %2.</source>
        <translation>“%1”不是 %2 的固件包。</translation>
    </message>
    <message>
        <location filename="../../project/projectwriter.cpp" line="384" />
        <source>Failure to Config Project file!</source>
        <translation>配置工程文件失败！</translation>
    </message>
</context>
<context>
    <name>StagedFiles</name>
    <message>
        <location filename="../../project/stagedfiles.cpp" line="18" />
        <location filename="../../project/stagedfiles.cpp" line="27" />
        <location filename="../../project/stagedfiles.cpp" line="58" />
        <location filename="../../project/stagedfiles.cpp" line="63" />
        <location filename="../../project/stagedfiles.cpp" line="87" />
        <location filename="../../project/stagedfiles.cpp" line="102" />
        <source>Can't write "%1": %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <location filename="../../project/stagedfiles.cpp" line="52" />
        <location filename="../../project/stagedfiles.cpp" line="81" />
        <source>Can't create the folder of "%1".</source>
        <translation>无法创建“%1”所在的文件夹。</translation>
    </message>
    <message>
        <location filename="../../project/stagedfiles.cpp" line="76" />
        <location filename="../../project/stagedfiles.cpp" line="95" />
        <location filename="../../project/stagedfiles.cpp" line="111" />
        <location filename="../../project/stagedfiles.cpp" line="157" />
        <location filename="../../project/stagedfiles.cpp" line="163" />
        <source>Can't read "%1": %2</source>
        <translation>无法读取“%1”：%2</translation>
    </message>
    <message>
        <location filename="../../project/stagedfiles.cpp" line="125" />
        <source>The folder "%1" does not exist.</source>
        <translation>文件夹“%1”不存在。</translation>
    </message>
    <message>
        <location filename="../../project/stagedfiles.cpp" line="130" />
        <location filename="../../project/stagedfiles.cpp" line="203" />
        <location filename="../../project/stagedfiles.cpp" line="227" />
        <location filename="../../project/stagedfiles.cpp" line="248" />
        <source>Can't create the folder "%1".</source>
        <translation>无法创建文件夹“%1”。</translation>
    </message>
    <message>
        <location filename="../../project/stagedfiles.cpp" line="210" />
        <source>"%1" is not a folder.</source>
        <translation>“%1”不是文件夹。</translation>
    </message>
    <message>
        <location filename="../../project/stagedfiles.cpp" line="222" />
        <source>Can't remove the folder "%1".</source>
        <translation>无法删除文件夹“%1”。</translation>
    </message>
    <message>
        <location filename="../../project/stagedfiles.cpp" line="263" />
        <location filename="../../project/stagedfiles.cpp" line="270" />
        <source>Can't replace "%1".</source>
        <translation>无法替换“%1”。</translation>
    </message>
</context>
</TS>
