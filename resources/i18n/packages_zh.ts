<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>FileDownloader</name>
    <message>
        <source>Another download is running.</source>
        <translation>另一个下载正在进行。</translation>
    </message>
    <message>
        <source>Too many redirections from %1</source>
        <translation>来自 %1 的重定向次数过多</translation>
    </message>
    <message>
        <source>Refused a redirection to the insecure address %1</source>
        <translation>已拒绝重定向到不安全的地址 %1</translation>
    </message>
    <message>
        <source>The server replied with status %1</source>
        <translation>服务器返回状态 %1</translation>
    </message>
    <message>
        <source>The transfer ended after %1 of %2 bytes</source>
        <translation>传输在 %2 字节中的 %1 字节处中断</translation>
    </message>
</context>
<context>
    <name>HttpsDownload</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Invalid URL : %1</source>
        <translation>无效的网址：%1</translation>
    </message>
    <message>
        <source>Overwrite Existing File</source>
        <translation>覆盖已有文件</translation>
    </message>
    <message>
        <source>%1 already exists in the current directory. Overwrite?</source>
        <translation>当前目录中已存在 %1，是否覆盖？</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Unable to save the file %1</source>
        <translation>无法保存文件 %1</translation>
    </message>
    <message>
        <source>Download failed: %1</source>
        <translation>下载失败：%1</translation>
    </message>
    <message>
        <source>SSL Errors</source>
        <translation>SSL 错误</translation>
    </message>
    <message>
        <source>One or more SSL errors has occurred: %1</source>
        <translation>发生了一个或多个 SSL 错误：%1</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
</context>
<context>
    <name>PackageInstaller</name>
    <message>
        <source>The file name &quot;%1&quot; is not the name of a firmware package of this program&apos;s families.</source>
        <translation>文件名“%1”不是本程序所支持系列的固件包名称。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; has a name that is not allowed.</source>
        <translation>条目“%1”的名称不合法。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; has an absolute path.</source>
        <translation>条目“%1”使用了绝对路径。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; has a drive letter.</source>
        <translation>条目“%1”带有盘符。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; points outside the package folder.</source>
        <translation>条目“%1”指向固件包文件夹之外。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a readable zip archive.</source>
        <translation>“%1”不是可读取的 zip 压缩包。</translation>
    </message>
    <message>
        <source>The archive has %1 entries, more than the limit of %2.</source>
        <translation>压缩包含有 %1 个条目，超过了 %2 个的上限。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; is a symbolic link.</source>
        <translation>条目“%1”是符号链接。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; is not a plain file or folder.</source>
        <translation>条目“%1”不是普通文件或文件夹。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; is encrypted.</source>
        <translation>条目“%1”已加密。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; uses an unsupported compression method.</source>
        <translation>条目“%1”使用了不支持的压缩方式。</translation>
    </message>
    <message>
        <source>The archive unpacks to more than %1 MB, the limit for a package.</source>
        <translation>压缩包解压后超过 %1 MB，超出了固件包的大小上限。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; appears twice or clashes with a folder.</source>
        <translation>条目“%1”重复出现或与文件夹同名冲突。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; is damaged: its size or checksum (CRC) does not match.</source>
        <translation>条目“%1”已损坏：其大小或校验和（CRC）不符。</translation>
    </message>
    <message>
        <source>The installation was cancelled.</source>
        <translation>安装已取消。</translation>
    </message>
    <message>
        <source>Can&apos;t write &quot;%1&quot;: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>Can&apos;t create the folder &quot;%1&quot;.</source>
        <translation>无法创建文件夹“%1”。</translation>
    </message>
    <message>
        <source>Can&apos;t replace the installed package &quot;%1&quot;.</source>
        <translation>无法替换已安装的固件包“%1”。</translation>
    </message>
    <message>
        <source>Can&apos;t move the package into &quot;%1&quot;.</source>
        <translation>无法将固件包移动到“%1”。</translation>
    </message>
    <message>
        <source>The file name &quot;%1&quot; is not the name of a firmware package.</source>
        <translation>文件名“%1”不是固件包的名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a firmware package: it has no &quot;libraries&quot; folder.</source>
        <translation>“%1”不是固件包：其中没有“libraries”文件夹。</translation>
    </message>
    <message>
        <source>Can&apos;t create a working folder beside &quot;%1&quot;.</source>
        <translation>无法在“%1”旁创建工作文件夹。</translation>
    </message>
    <message>
        <source>Not enough free disk space: %1 MB needed, %2 MB free.</source>
        <translation>磁盘空间不足：需要 %1 MB，可用 %2 MB。</translation>
    </message>
</context>
<context>
    <name>PackageManager</name>
    <message>
        <source>MQ48 Pin Forge</source>
        <translation>MQ48 Pin Forge</translation>
    </message>
    <message>
        <source>Package Manager</source>
        <translation>固件包管理</translation>
    </message>
    <message>
        <source>Package Installation Location</source>
        <translation>固件包安装位置</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Firmware Package</source>
        <translation>固件包</translation>
    </message>
    <message>
        <source>Creation Date</source>
        <translation>创建日期</translation>
    </message>
    <message>
        <source>Install From Local</source>
        <translation>从本地安装</translation>
    </message>
    <message>
        <source>Install From Network</source>
        <translation>从网络安装</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>You must set the installation directory of the firmware package.</source>
        <translation>必须先设置固件包的安装目录。</translation>
    </message>
    <message>
        <source>Select directory</source>
        <translation>选择目录</translation>
    </message>
    <message>
        <source>Select the zip file of the Firmware package</source>
        <translation>选择固件包的 zip 文件</translation>
    </message>
    <message>
        <source>Creating default package path &quot;%1&quot; error!</source>
        <translation>创建默认固件包路径“%1”出错！</translation>
    </message>
    <message>
        <source>The selected firmware package file is invalid.</source>
        <translation>所选的固件包文件无效。</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>The firmware package not found for this MCU</source>
        <translation>未找到该 MCU 的固件包</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>下载失败。</translation>
    </message>
    <message>
        <source>The Firmware Library &quot;%1&quot; for %2 already exists. Please confirm whether to continue?</source>
        <translation>%2 的固件库“%1”已存在。请确认是否继续？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Extract the Firmware Library, Please Waiting...</source>
        <translation>正在解压固件库，请稍候...</translation>
    </message>
    <message>
        <source>Failed to extract firmware library &quot;%1&quot;!</source>
        <translation>解压固件库“%1”失败！</translation>
    </message>
    <message>
        <source>Delete the Firmware Library, Please Waiting...</source>
        <translation>正在删除固件库，请稍候...</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Remove the Firmware Library Succeeded!</source>
        <translation>删除固件库成功！</translation>
    </message>
    <message>
        <source>Remove Firmware Library &quot;%1&quot; failed.</source>
        <translation>删除固件库“%1”失败。</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>全部折叠</translation>
    </message>
    <message>
        <source>Unknown version</source>
        <translation>未知版本</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Download Progress</source>
        <translation>下载进度</translation>
    </message>
    <message>
        <source>Downloading %1.</source>
        <translation>正在下载 %1。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>The current tool is the latest version.</source>
        <translation>当前工具已是最新版本。</translation>
    </message>
    <message>
        <source>A new version of &quot;MQ48 Pin Forge&quot; has been detected, do you want to download it?</source>
        <translation>检测到“MQ48 Pin Forge”的新版本，是否下载？</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Select directory</source>
        <translation>选择目录</translation>
    </message>
    <message>
        <source>Download succeeded, storage location: </source>
        <translation>下载成功，存放位置：</translation>
    </message>
    <message>
        <source> Open Folder  </source>
        <translation> 打开文件夹  </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
</TS>
