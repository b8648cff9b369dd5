<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>GenerateReport</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Failed to open the file. It may be in use or the path is wrong.</source>
        <translation>无法打开文件，文件可能正被使用或路径有误。</translation>
    </message>
    <message>
        <source>Failed to write the file.</source>
        <translation>写入文件失败。</translation>
    </message>
    <message>
        <source>MQ48 PinForge Configuration Report</source>
        <translation>MQ48 PinForge 配置报告</translation>
    </message>
    <message>
        <source>1 Overview</source>
        <translation>1 概述</translation>
    </message>
    <message>
        <source>1.1 Project</source>
        <translation>1.1 工程</translation>
    </message>
    <message>
        <source>Project Name</source>
        <translation>工程名称</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Generated with</source>
        <translation>生成工具</translation>
    </message>
    <message>
        <source>Default: </source>
        <translation>默认：</translation>
    </message>
    <message>
        <source>Max: </source>
        <translation>最大：</translation>
    </message>
    <message>
        <source>1.2 MCU Information</source>
        <translation>1.2 MCU 信息</translation>
    </message>
    <message>
        <source>MCU Series</source>
        <translation>MCU 系列</translation>
    </message>
    <message>
        <source>MCU Name</source>
        <translation>MCU 型号</translation>
    </message>
    <message>
        <source>MCU Package</source>
        <translation>MCU 封装</translation>
    </message>
    <message>
        <source>MCU Pin number</source>
        <translation>MCU 引脚数</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>闪存</translation>
    </message>
    <message>
        <source>SRAM</source>
        <translation>SRAM</translation>
    </message>
    <message>
        <source>1.3 Cores Information</source>
        <translation>1.3 内核信息</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>内核</translation>
    </message>
    <message>
        <source>2 Pinout Configuration</source>
        <translation>2 引脚分布配置</translation>
    </message>
    <message>
        <source>3 Pins Configuration</source>
        <translation>3 引脚配置</translation>
    </message>
    <message>
        <source>Pin Number</source>
        <translation>引脚编号</translation>
    </message>
    <message>
        <source>Pin Name</source>
        <translation>引脚名称</translation>
    </message>
    <message>
        <source>Pin Type</source>
        <translation>引脚类型</translation>
    </message>
    <message>
        <source>GPIO Structure</source>
        <translation>GPIO 结构</translation>
    </message>
    <message>
        <source>Signal Name</source>
        <translation>信号名称</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>4 Clock Tree Configuration</source>
        <translation>4 时钟树配置</translation>
    </message>
    <message>
        <source>5 Software Project</source>
        <translation>5 软件工程</translation>
    </message>
    <message>
        <source>5.1 Project Settings</source>
        <translation>5.1 工程设置</translation>
    </message>
    <message>
        <source>Project Folder</source>
        <translation>工程目录</translation>
    </message>
    <message>
        <source>Toolchain/IDE</source>
        <translation>工具链/IDE</translation>
    </message>
    <message>
        <source>Firmware Package Name and Version</source>
        <translation>固件包名称及版本</translation>
    </message>
    <message>
        <source>Minimum Heap Size</source>
        <translation>最小堆大小</translation>
    </message>
    <message>
        <source>Minimum Stack Size</source>
        <translation>最小栈大小</translation>
    </message>
    <message>
        <source>6 Peripherals and Middlewares Configuration</source>
        <translation>6 外设及中间件配置</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>使能</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Parameter Setting</source>
        <translation>参数设置</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>已修改</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source> EDMA Configuration</source>
        <translation> EDMA 配置</translation>
    </message>
    <message>
        <source> DMA Configuration</source>
        <translation> DMA 配置</translation>
    </message>
    <message>
        <source>Nothing configuration in EDMA Service.</source>
        <translation>EDMA 服务中没有任何配置。</translation>
    </message>
    <message>
        <source>Nothing configuration in DMA Service.</source>
        <translation>DMA 服务中没有任何配置。</translation>
    </message>
    <message>
        <source>EDMA Request</source>
        <translation>EDMA 请求</translation>
    </message>
    <message>
        <source>DMA Request</source>
        <translation>DMA 请求</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>EDMA request Settings:</source>
        <translation>EDMA 请求设置：</translation>
    </message>
    <message>
        <source>DMA request Settings:</source>
        <translation>DMA 请求设置：</translation>
    </message>
    <message>
        <source>7 System Configuration</source>
        <translation>7 系统配置</translation>
    </message>
    <message>
        <source> GPIO Configuration</source>
        <translation> GPIO 配置</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>GPIO mode</source>
        <translation>GPIO 模式</translation>
    </message>
    <message>
        <source>GPIO type</source>
        <translation>GPIO 类型</translation>
    </message>
    <message>
        <source>Pull type</source>
        <translation>上下拉</translation>
    </message>
    <message>
        <source>Driver capability</source>
        <translation>驱动能力</translation>
    </message>
    <message>
        <source>Output level</source>
        <translation>输出电平</translation>
    </message>
    <message>
        <source>GPIO</source>
        <translation>GPIO</translation>
    </message>
    <message>
        <source> NVIC Configuration</source>
        <translation> NVIC 配置</translation>
    </message>
    <message>
        <source>Priority Group: </source>
        <translation>优先级分组：</translation>
    </message>
    <message>
        <source>NVIC Interrupt Table</source>
        <translation>NVIC 中断表</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>使能</translation>
    </message>
    <message>
        <source>Preemption Priority</source>
        <translation>抢占优先级</translation>
    </message>
    <message>
        <source>Sub Priority</source>
        <translation>子优先级</translation>
    </message>
    <message>
        <source>IMPORTANT NOTICE - PLEASE READ CAREFULLY</source>
        <comment>IMPORTANT_NOTICE_HEADER</comment>
        <translation>重要通知 - 请仔细阅读</translation>
    </message>
    <message>
        <source>Velmora Technology may change, correct or improve its products, this program and this document at any time and without notice. Check the latest device documents before a design is finished.</source>
        <comment>IMPORTANT_NOTICE_1</comment>
        <translation>Velmora Technology 可随时修改、更正或改进其产品、本程序及本文档，恕不另行通知。设计定稿前请查阅最新的器件文档。</translation>
    </message>
    <message>
        <source>This report documents the configuration the user made with MQ48 Pin Forge. It does not replace the datasheet, the reference manual or the errata of the device.</source>
        <comment>IMPORTANT_NOTICE_2</comment>
        <translation>本报告记录用户使用 MQ48 Pin Forge 所做的配置，不能代替器件的数据手册、参考手册或勘误表。</translation>
    </message>
    <message>
        <source>The user alone chooses the products and their configuration, and is responsible for checking that the design meets the requirements of the application.</source>
        <comment>IMPORTANT_NOTICE_3</comment>
        <translation>产品及其配置由用户自行选择，用户负责核实设计是否满足应用的要求。</translation>
    </message>
    <message>
        <source>No license to any intellectual property right, express or implied, is granted by this document.</source>
        <comment>IMPORTANT_NOTICE_4</comment>
        <translation>本文档不以明示或暗示的方式授予任何知识产权许可。</translation>
    </message>
    <message>
        <source>Velmora products are not meant for life support, weapons or aircraft control unless Velmora Technology has agreed to such use in writing.</source>
        <comment>IMPORTANT_NOTICE_5</comment>
        <translation>除非 Velmora Technology 书面同意，Velmora 产品不得用于生命维持、武器或飞行器控制。</translation>
    </message>
    <message>
        <source>Copyright Velmora Technology. All rights reserved.</source>
        <comment>IMPORTANT_NOTICE_FOOTER</comment>
        <translation>Velmora Technology 版权所有，保留所有权利。</translation>
    </message>
    <message>
        <source>(1) Pin Type: I/O = input and output, Power = supply or ground, Boot = boot selection, Reset = reset input, Clock = oscillator pin.</source>
        <translation>(1) 引脚类型：I/O = 输入输出，Power = 电源或地，Boot = 启动选择，Reset = 复位输入，Clock = 振荡器引脚。</translation>
    </message>
    <message>
        <source>(2) GPIO Structure: FT = 5 V tolerant input, TC = 3.3 V input, TCa = 3.3 V input with an analog function; empty for pins without GPIO.</source>
        <translation>(2) GPIO 结构：FT = 耐 5 V 输入，TC = 3.3 V 输入，TCa = 带模拟功能的 3.3 V 输入；无 GPIO 的引脚为空。</translation>
    </message>
    <message>
        <source>(3) Signal Name: the functions the design assigns to the pin; an empty cell means the pin is unused and keeps its state after reset.</source>
        <translation>(3) 信号名称：设计分配给该引脚的功能；为空表示引脚未使用，保持复位后的状态。</translation>
    </message>
    <message>
        <source>(4) Label: the name the user gave the signal; the generated code uses it for the pin&apos;s macros.</source>
        <translation>(4) 标签：用户为信号起的名称，生成的代码用它命名引脚的宏。</translation>
    </message>
    <message>
        <source>(5) Supply, reset and boot pins have a fixed function and carry no other signal.</source>
        <translation>(5) 电源、复位和启动引脚功能固定，不能承载其他信号。</translation>
    </message>
    <message>
        <source>(6) An analog input must stay within the analog supply, also on a 5 V tolerant pin.</source>
        <translation>(6) 模拟输入不得超出模拟电源电压，耐 5 V 的引脚也是如此。</translation>
    </message>
    <message>
        <source>(7) The oscillator pins serve as GPIOs only while their crystal is not used.</source>
        <translation>(7) 振荡器引脚只有在其晶振未使用时才能用作 GPIO。</translation>
    </message>
    <message>
        <source>(8) The debug pins keep their debug function after reset until the design gives them another one.</source>
        <translation>(8) 调试引脚复位后保持调试功能，直到设计为其分配其他功能。</translation>
    </message>
    <message>
        <source>(9) The pins of the battery powered domain drive small currents only and switch slowly.</source>
        <translation>(9) 电池供电域的引脚只能驱动小电流，且翻转较慢。</translation>
    </message>
    <message>
        <source>(10) The signals of a remap group move together: placing one of them on another pin moves the whole group.</source>
        <translation>(10) 同一重映射组的信号一起移动：将其中一个放到其他引脚上，整组都会随之移动。</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>No design is open.</source>
        <translation>没有打开的设计。</translation>
    </message>
    <message>
        <source>Save PDF file</source>
        <translation>保存 PDF 文件</translation>
    </message>
    <message>
        <source>PDF file(*.pdf)</source>
        <translation>PDF 文件(*.pdf)</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Generate report finished!</source>
        <translation>报告生成完成！</translation>
    </message>
    <message>
        <source> Open Folder  </source>
        <translation> 打开文件夹  </translation>
    </message>
    <message>
        <source> Preview Report  </source>
        <translation> 预览报告  </translation>
    </message>
</context>
</TS>
