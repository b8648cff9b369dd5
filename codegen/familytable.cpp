#include "codegen/familytable.h"

namespace {

struct SeriesRow
{
    const char *series;
    int code;
    const char *folder;
};

// Device series, family code and template folder.
const SeriesRow kSeries[] = {
    {"MQ48T230", 2, "MQ48T230"},      {"MQ48T310", 4, "MQ48T310"},
    {"MQ48T320", 5, "MQ48T320"},      {"MQ48T250", 7, "MQ48T250_260"},
    {"MQ48T260", 8, "MQ48T250_260"},  {"MQ48T110", 9, "MQ48T110"},
    {"MQ48T510", 13, "MQ48T510_520"}, {"MQ48T520", 14, "MQ48T510_520"},
    {"MQ48T120", 15, "MQ48T120"},     {"MQ48T050", 16, "MQ48T050"},
    {"MQ48W320", 17, "MQ48W320"},     {"MQ48T130", 18, "MQ48T130"},
    {"MQ48T220", 19, "MQ48T210_220"}, {"MQ48T210", 20, "MQ48T210_220"},
    {"MQ48V250", 24, "MQ48V250"},     {"MQ48V130", 29, "MQ48V130"},
};

QStringList numbered(const QString &stem, int first, int last)
{
    QStringList out;
    for (int i = first; i <= last; ++i)
        out << stem + QString::number(i);
    return out;
}

GeneratorFamily t110()
{
    GeneratorFamily f;
    f.generatorName = QStringLiteral("GenerateCode_All_T110");
    f.codes = {9};
    f.series = QStringList{"MQ48T110"};
    f.folders = QStringList{"MQ48T110"};
    f.mainBlocks = QStringList{"pwc",  "scfg", "usart1", "usart2", "spi1",  "spi2",  "i2s1",
                               "i2s2", "i2c1", "i2c2",   "crc",    "wdt",   "wwdt",  "ertc",
                               "cmp",  "adc1", "exint",  "tmr1",   "tmr3",  "tmr6",  "tmr14",
                               "tmr15", "tmr16", "tmr17", "irtmr"};
    f.sectionTypes = QStringList{"USART", "SPI",   "I2S",   "I2C",   "CRC",  "WDT",
                                 "WWDT",  "ERTC",  "CMP",   "ADC1",  "EXINT", "PWC",
                                 "TMR1",  "TMR3",  "TMR6_7", "TMR14", "TMR15", "TMR16",
                                 "TMR17", "IRTMR", "SCFG"};
    f.blockNameMap = QStringList{"CMP1=cmp"};
    f.hasTemplates = true;
    f.perPinMux = true;
    f.dmaControllers = 1;
    f.dmaChannels = 5;
    f.dmaRemaps = {
        {"adc_dma_remap", 2, "ADC1"},
        {"tmr17_ch1_dma_remap", 2, "TMR17_CH1"},
        {"tmr17_overflow_dma_remap", 2, "TMR17_OVERFLOW"},
        {"usart1_tx_dma_remap", 4, "USART1_TX"},
        {"tmr16_ch1_dma_remap", 4, "TMR16_CH1"},
        {"tmr16_overflow_dma_remap", 4, "TMR16_OVERFLOW"},
        {"usart1_rx_dma_remap", 5, "USART1_RX"},
    };
    auto item = [](const QString &name, const QStringList &instances) {
        PeriphClockItem i;
        i.name = name;
        i.instances = instances;
        return i;
    };
    PeriphClockItem dma1;
    dma1.name = QStringLiteral("dma1");
    dma1.dmaController = QStringLiteral("DMA1");
    f.periphClocks << dma1 << item("crc", {"CRC"});
    for (const char *port : {"A", "B", "C", "F"}) {
        PeriphClockItem gpio;
        gpio.name = QStringLiteral("gpio") + QString::fromLatin1(port).toLower();
        gpio.port = QString::fromLatin1(port);
        f.periphClocks << gpio;
    }
    PeriphClockItem scfg = item("scfg", {"SCFG", "EXINT", "IRTMR"});
    scfg.dmaRemaps = true;
    f.periphClocks << scfg << item("cmp", {"CMP1"}) << item("adc1", {"ADC1"});
    for (const char *tmr : {"TMR1", "TMR3", "TMR6", "TMR14", "TMR15", "TMR16", "TMR17"})
        f.periphClocks << item(QString::fromLatin1(tmr).toLower(), {tmr});
    f.periphClocks << item("usart1", {"USART1"}) << item("usart2", {"USART2"})
                   << item("spi1", {"SPI1", "I2S1"}) << item("spi2", {"SPI2", "I2S2"})
                   << item("i2c1", {"I2C1"}) << item("i2c2", {"I2C2"})
                   << item("wwdt", {"WWDT"}) << item("pwc", {"PWC", "ERTC"});

    auto sw = [](const QString &name, const QString &stem, const QStringList &instances) {
        ModuleSwitch s;
        s.name = name;
        s.driverStem = stem;
        s.instances = instances;
        return s;
    };
    ModuleSwitch gpio = sw("GPIO_MODULE_ENABLED", "gpio", {});
    gpio.gpioPorts = true;
    ModuleSwitch dma = sw("DMA_MODULE_ENABLED", "dma", {});
    dma.dmaRequests = true;
    // The EXINT and SCFG drivers also serve the sections that route an interrupt through an
    // EXINT line (ERTC alarms, the voltage monitor) and the DMA channel remaps.
    ModuleSwitch scfgSwitch = sw("SCFG_MODULE_ENABLED", "scfg", {"SCFG", "IRTMR", "EXINT"});
    scfgSwitch.dmaRemaps = true;
    f.moduleSwitches = {
        sw("CMP_MODULE_ENABLED", "cmp", {"CMP1"}),
        sw("TMR_MODULE_ENABLED", "tmr", {"TMR1", "TMR3", "TMR6", "TMR14", "TMR15", "TMR16",
                                          "TMR17"}),
        sw("ERTC_MODULE_ENABLED", "ertc", {"ERTC"}),
        gpio,
        sw("I2C_MODULE_ENABLED", "i2c", {"I2C1", "I2C2"}),
        sw("USART_MODULE_ENABLED", "usart", {"USART1", "USART2"}),
        sw("ADC_MODULE_ENABLED", "adc", {"ADC1"}),
        sw("SPI_MODULE_ENABLED", "spi", {"SPI1", "SPI2", "I2S1", "I2S2"}),
        dma,
        sw("DEBUG_MODULE_ENABLED", "debug", {"DEBUG"}),
        sw("CRC_MODULE_ENABLED", "crc", {"CRC"}),
        sw("WWDT_MODULE_ENABLED", "wwdt", {"WWDT"}),
        sw("WDT_MODULE_ENABLED", "wdt", {"WDT"}),
        sw("EXINT_MODULE_ENABLED", "exint", {"EXINT", "CMP1", "ERTC", "PWC"}),
        scfgSwitch,
    };
    f.alwaysOnDrivers = QStringList{"crm", "pwc", "flash", "misc"};
    return f;
}

// A family without templates yet: its name, codes and what the section loop dispatches.
GeneratorFamily plainFamily(const QString &name, const QList<int> &codes,
                            const QStringList &mainBlocks, int dmaControllers, int dmaChannels,
                            bool perPinMux)
{
    GeneratorFamily f;
    f.generatorName = name;
    f.codes = codes;
    for (int code : codes) {
        for (const SeriesRow &row : kSeries) {
            if (row.code == code) {
                f.series << QString::fromLatin1(row.series);
                f.folders << QString::fromLatin1(row.folder);
            }
        }
    }
    f.mainBlocks = mainBlocks;
    f.sectionTypes = QStringList{
        "USART", "UART", "SPI",   "I2S",   "I2SF",  "I2C",    "CRC",         "WDT",
        "WWDT",  "ERTC", "RTC",   "CMP",   "ADC1",  "ADC2",   "ADC3",        "ADC-Common",
        "EXINT", "PWC",  "QSPI",  "SDIO",  "SPIM",  "USBFS",  "USB_OTGFS",   "USB_OTGFS1",
        "USB_OTGHS1", "DEBUG", "SCFG", "TMR1", "TMR2", "TMR3", "TMR4", "TMR5", "TMR6_7",
        "TMR8",  "TMR9", "TMR10_11_13", "TMR10_11_13_14", "TMR12", "TMR14", "TMR20", "IRTMR",
        "CAN",   "DAC",  "ACC",   "EMAC",  "DVP"};
    f.dmaControllers = dmaControllers;
    f.dmaChannels = dmaChannels;
    f.perPinMux = perPinMux;
    f.alwaysOnDrivers = QStringList{"crm", "pwc", "flash", "misc"};
    return f;
}

QList<GeneratorFamily> buildFamilies()
{
    QList<GeneratorFamily> list;
    list << t110();
    list << plainFamily("GenerateCode_All_T130_V130", {18, 29},
                        QStringList{"xmc_gpio", "xmc_bank1_nor_sram1", "xmc_bank1_nor_sram2",
                                    "xmc_bank1_nor_sram4"}
                            + numbered("usart", 1, 8)
                            + QStringList{"acc", "usb_otgfs1", "can1", "can2", "dac"}
                            + numbered("spi", 1, 3)
                            + QStringList{"i2s3", "i2s2", "i2s1"} + numbered("i2c", 1, 3)
                            + QStringList{"crc", "wdt", "wwdt", "ertc", "adc1", "exint"}
                            + numbered("tmr", 1, 4)
                            + QStringList{"tmr6", "tmr7"} + numbered("tmr", 9, 14)
                            + QStringList{"irtmr"},
                        2, 7, true);
    list << plainFamily("GenerateCode_All_T250_T260_V250", {7, 8, 24},
                        QStringList{"spim", "xmc_gpio", "xmc_bank1_nor_sram1",
                                    "xmc_bank1_nor_sram4", "xmc_bank2_nand"}
                            + numbered("usart", 1, 3)
                            + QStringList{"uart4", "uart5", "usart6", "uart7", "uart8"}
                            + numbered("spi", 1, 4) + numbered("i2s", 1, 4)
                            + numbered("i2c", 1, 3)
                            + QStringList{"adc2", "adc1", "adc3", "rtc", "exint", "emac",
                                          "sdio1", "sdio2"}
                            + numbered("tmr", 1, 14)
                            + QStringList{"acc", "usbfs", "can1", "can2", "crc", "wdt", "wwdt"},
                        2, 7, false);
    list << plainFamily("GenerateCode_All_T310", {4},
                        QStringList{"spim"} + numbered("usart", 1, 3)
                            + QStringList{"uart4", "uart5", "spi1", "spi2", "i2s1", "i2s2",
                                          "i2c1", "i2c2", "adc1", "adc2", "rtc", "exint",
                                          "sdio1"}
                            + numbered("tmr", 1, 5) + numbered("tmr", 8, 11)
                            + QStringList{"acc", "usbfs", "can1", "can2", "crc", "wdt", "wwdt"},
                        2, 7, false);
    list << plainFamily("GenerateCode_All_T320_W320", {5, 17},
                        numbered("usart", 1, 3)
                            + QStringList{"uart4", "uart5", "spi1", "spi2", "i2s1", "i2s2",
                                          "i2c1", "i2c2", "adc1", "cmp1", "cmp2", "ertc",
                                          "exint", "sdio1"}
                            + numbered("tmr", 1, 5) + numbered("tmr", 9, 11)
                            + QStringList{"usb_otgfs1", "can1", "crc", "wdt", "wwdt"},
                        2, 7, false);
    list << plainFamily("GenerateCode_All_T210_T220", {19, 20},
                        numbered("usart", 1, 6)
                            + QStringList{"uart7", "uart8", "acc", "usb_otgfs1", "usb_otghs1",
                                          "can1"}
                            + numbered("spi", 1, 3)
                            + QStringList{"qspi1", "i2s3", "i2s2", "i2s1", "i2sf5"}
                            + numbered("i2c", 1, 3)
                            + QStringList{"crc", "wdt", "wwdt", "ertc", "adc1", "exint"}
                            + numbered("tmr", 1, 4)
                            + QStringList{"tmr6", "tmr7", "tmr9", "tmr10", "tmr11", "tmr13",
                                          "tmr14", "irtmr"},
                        2, 7, true);
    list << plainFamily("GenerateCode_All_T120", {15},
                        numbered("usart", 1, 4)
                            + QStringList{"acc", "usb_otgfs1", "can1"} + numbered("spi", 1, 3)
                            + QStringList{"i2s3", "i2s2", "i2s1", "i2c1", "i2c2", "crc", "wdt",
                                          "wwdt", "ertc", "adc1", "exint", "tmr1", "tmr2",
                                          "tmr3", "tmr6", "tmr7", "tmr13", "tmr14", "tmr15",
                                          "tmr16", "tmr17", "irtmr"},
                        1, 7, true);
    list << plainFamily("GenerateCode_All_T510_T520", {13, 14},
                        QStringList{"xmc_gpio"} + numbered("xmc_bank1_nor_sram", 1, 4)
                            + QStringList{"xmc_bank2_nand", "xmc_bank3_nand",
                                          "xmc_bank4_pccard", "xmc_sdram_bank1",
                                          "xmc_sdram_bank2"}
                            + numbered("usart", 1, 3)
                            + QStringList{"uart4", "uart5", "usart6", "uart7", "uart8", "acc",
                                          "usb_otgfs1", "usb_otgfs2", "can1", "can2", "dac",
                                          "dvp"}
                            + numbered("spi", 1, 4) + QStringList{"qspi1", "qspi2"}
                            + numbered("i2s", 1, 4) + numbered("i2c", 1, 3)
                            + QStringList{"crc", "wdt", "wwdt", "ertc", "adc_common"}
                            + numbered("adc", 1, 3)
                            + QStringList{"exint", "emac", "sdio1", "sdio2"}
                            + numbered("tmr", 1, 14) + QStringList{"tmr20", "irtmr"},
                        2, 7, true);
    return list;
}

} // namespace

int familyCodeOfSeries(const QString &series)
{
    for (const SeriesRow &row : kSeries) {
        if (series == QLatin1String(row.series))
            return row.code;
    }
    return 0;
}

QString seriesOfDevice(const QString &deviceName)
{
    for (const SeriesRow &row : kSeries) {
        if (deviceName.startsWith(QLatin1String(row.series)))
            return QString::fromLatin1(row.series);
    }
    return QString();
}

QString familyFolder(int code)
{
    for (const SeriesRow &row : kSeries) {
        if (row.code == code)
            return QString::fromLatin1(row.folder);
    }
    return QString();
}

QString familyStem(int code)
{
    return familyFolder(code).toLower();
}

const QList<GeneratorFamily> &generatorFamilies()
{
    static const QList<GeneratorFamily> families = buildFamilies();
    return families;
}

const GeneratorFamily *generatorFamilyOf(int code)
{
    for (const GeneratorFamily &f : generatorFamilies()) {
        if (f.codes.contains(code))
            return &f;
    }
    return nullptr;
}

const GeneratorFamily *generatorFamilyNamed(const QString &generatorName)
{
    for (const GeneratorFamily &f : generatorFamilies()) {
        if (f.generatorName == generatorName)
            return &f;
    }
    return nullptr;
}

QString blockStemOf(const GeneratorFamily &family, const QString &instance)
{
    const QString prefix = instance + QLatin1Char('=');
    for (const QString &entry : family.blockNameMap) {
        if (entry.startsWith(prefix))
            return entry.mid(prefix.size());
    }
    return instance.toLower();
}

QList<GeneratedFile> generatedFiles(int code)
{
    const QString stem = familyStem(code);
    return {
        {stem + QLatin1String("_pf_config.c"), QStringLiteral("src")},
        {stem + QLatin1String("_pf_config.h"), QStringLiteral("inc")},
        {QStringLiteral("main.c"), QStringLiteral("src")},
        {stem + QLatin1String("_int.h"), QStringLiteral("inc")},
        {stem + QLatin1String("_int.c"), QStringLiteral("src")},
        {stem + QLatin1String("_conf.h"), QStringLiteral("inc")},
    };
}
