<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>FindDialog</name>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Find what</source>
        <translation>查找内容</translation>
    </message>
    <message>
        <source>Backward direction</source>
        <translation>反向查找</translation>
    </message>
    <message>
        <source>Match whole word only</source>
        <translation>全字匹配</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>区分大小写</translation>
    </message>
    <message>
        <source>Wrap around</source>
        <translation>循环查找</translation>
    </message>
    <message>
        <source>Find Next(F3)</source>
        <translation>查找下一个(F3)</translation>
    </message>
    <message>
        <source>Find Prev(F4)</source>
        <translation>查找上一个(F4)</translation>
    </message>
    <message>
        <source>Counter(ALT+C)</source>
        <translation>计数(ALT+C)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>what find is null !</source>
        <translation>查找内容为空！</translation>
    </message>
    <message>
        <source>no more find text &apos;%1&apos;</source>
        <translation>没有更多的查找文本“%1”</translation>
    </message>
    <message>
        <source>cant&apos;t find text &apos;%1&apos;</source>
        <translation>找不到文本“%1”</translation>
    </message>
    <message>
        <source>The mode of the current document does not allow this operation.</source>
        <translation>当前文档的模式不允许此操作。</translation>
    </message>
    <message>
        <source>count %1 times with &apos;%2&apos;</source>
        <translation>“%2”共出现 %1 次</translation>
    </message>
</context>
<context>
    <name>MyQsciScintilla</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Fold All</source>
        <translation>全部折叠</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>全部展开</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Select directory</source>
        <translation>选择文件夹</translation>
    </message>
</context>
</TS>
