<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown command "%1"</source>
        <translation>未知命令“%1”</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 需要一个值</translation>
    </message>
    <message>
        <source>unknown option "%1"</source>
        <translation>未知选项“%1”</translation>
    </message>
    <message>
        <source>unexpected argument "%1"</source>
        <translation>多余的参数“%1”</translation>
    </message>
    <message>
        <source>%1 needs a file</source>
        <translation>%1 需要一个文件</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 需要 %2</translation>
    </message>
    <message>
        <source>Usage:
  MQ48PinForge                       open the program's window
  MQ48PinForge generate DESIGN.MQPF [--output DIR] [--no-keep-user-code] [--ide NAME]
  MQ48PinForge check DESIGN.MQPF
  MQ48PinForge resave DESIGN.MQPF --output FILE
  MQ48PinForge report DESIGN.MQPF --output FILE.pdf
  MQ48PinForge install-package ZIP [--repository DIR]
  MQ48PinForge --help | --version

Exit codes: 0 success, 1 usage error, 2 the design cannot be read, 3 the design has problems, 4 writing failed.
</source>
        <translation>用法：
  MQ48PinForge                       打开程序窗口
  MQ48PinForge generate DESIGN.MQPF [--output DIR] [--no-keep-user-code] [--ide NAME]
  MQ48PinForge check DESIGN.MQPF
  MQ48PinForge resave DESIGN.MQPF --output FILE
  MQ48PinForge report DESIGN.MQPF --output FILE.pdf
  MQ48PinForge install-package ZIP [--repository DIR]
  MQ48PinForge --help | --version

退出码：0 成功，1 用法错误，2 无法读取设计文件，3 设计存在问题，4 写入失败。
</translation>
    </message>
    <message>
        <source>The design was written by a newer version of the program; settings it added may be missing.</source>
        <translation>该设计文件由更新版本的程序保存，其新增的设置可能缺失。</translation>
    </message>
    <message>
        <source>These settings could not be applied:</source>
        <translation>以下设置无法应用：</translation>
    </message>
    <message>
        <source>unknown IDE "%1"; one of: %2</source>
        <translation>未知的 IDE "%1"；可选：%2</translation>
    </message>
</context>
</TS>