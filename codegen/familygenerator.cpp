#include "codegen/familygenerator.h"

#include "codegen/clocksections.h"
#include "codegen/peripheralsectiongenerator.h"
#include "codegen/templateengine.h"
#include "codegen/usercode.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <QTextStream>

using namespace TemplateEngine;

namespace {

const QString kMemToMem = QStringLiteral("MEMTOMEM");

// The core exceptions whose prototypes stay whatever the interrupt table says.
const QStringList kCoreHandlers = {
    "NMI_Handler",        "HardFault_Handler", "MemManage_Handler",
    "BusFault_Handler",   "UsageFault_Handler", "SVC_Handler",
    "DebugMon_Handler",   "PendSV_Handler"};

QString readText(const QString &path, bool *ok)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text)) {
        *ok = false;
        return QString();
    }
    QTextStream in(&f);
    in.setCodec("UTF-8");
    *ok = true;
    return in.readAll();
}

} // namespace

FamilyGenerator::FamilyGenerator(const QString &generatorName)
    : m_name(generatorName), m_family(generatorFamilyNamed(generatorName))
{
}

FamilyGenerator::~FamilyGenerator() = default;

void FamilyGenerator::setInputs(const GeneratorInputs &inputs)
{
    m_inputs = inputs;
    m_inputs.deduplicateLabels();
}

QString FamilyGenerator::templateFolder() const
{
    return QStringLiteral(":/srcode/") + familyFolder(m_inputs.familyCode);
}

QString FamilyGenerator::readTemplate(const QString &fileName) const
{
    bool ok = false;
    return readText(templateFolder() + QLatin1Char('/') + fileName, &ok);
}

QStringList FamilyGenerator::missingTemplates() const
{
    QStringList missing;
    for (const GeneratedFile &file : generatedFiles(m_inputs.familyCode)) {
        const QString path = templateFolder() + QLatin1Char('/') + file.name;
        if (!QFile::exists(path))
            missing << path;
    }
    return missing;
}

bool FamilyGenerator::generate(const QString &outputFolder)
{
    m_error.clear();
    m_failedFile.clear();
    const int code = m_inputs.familyCode;
    if (!m_family || !m_family->codes.contains(code)) {
        m_error = tr("No code generator exists for the series \"%1\".").arg(m_inputs.series);
        return false;
    }
    const QStringList missing = missingTemplates();
    if (!m_family->hasTemplates || !missing.isEmpty()) {
        m_error = tr("The code templates of the %1 family are missing: %2")
                      .arg(familyFolder(code), missing.join(QStringLiteral(", ")));
        return false;
    }
    for (const QString &sub : {QStringLiteral("inc"), QStringLiteral("src")}) {
        const QString path = outputFolder + QLatin1Char('/') + sub;
        if (!QDir(path).exists() && !QDir().mkpath(path)) {
            m_error = tr("Creating \"%1\" folder error!").arg(sub);
            return false;
        }
    }
    for (const GeneratedFile &file : generatedFiles(code)) {
        bool ok = false;
        QString text = readText(templateFolder() + QLatin1Char('/') + file.name, &ok);
        if (!ok) {
            m_failedFile = file.name;
            return false;
        }
        const QString target = outputFolder + QLatin1Char('/') + file.folder + QLatin1Char('/') +
                               file.name;
        if (m_inputs.keepUserCode) {
            bool oldOk = false;
            const QString old = readText(target, &oldOk);
            if (oldOk)
                UserCode::mergeUserCode(old, text);
        }
        if (!generateFile(file.name, text))
            return false;
        QSaveFile out(target);
        if (!out.open(QIODevice::WriteOnly | QIODevice::Text)) {
            m_failedFile = file.name;
            m_error = tr("The file \"%1\" can't be written.").arg(target);
            return false;
        }
        const QByteArray bytes = text.toUtf8();
        if (out.write(bytes) != bytes.size() || !out.flush() ||
            out.error() != QFileDevice::NoError || !out.commit()) {
            out.cancelWriting();
            m_failedFile = file.name;
            m_error = tr("The file \"%1\" can't be written.").arg(target);
            return false;
        }
    }
    return true;
}

bool FamilyGenerator::generateFile(const QString &fileName, QString &text) const
{
    m_failedFile = fileName;
    if (!m_family)
        return false;
    const QString stem = familyStem(m_inputs.familyCode);
    bool ok = false;
    if (fileName == stem + QLatin1String("_pf_config.c"))
        ok = configFile(text);
    else if (fileName == stem + QLatin1String("_pf_config.h"))
        ok = headerFile(text);
    else if (fileName == QLatin1String("main.c"))
        ok = mainFile(text);
    else if (fileName == stem + QLatin1String("_int.h"))
        ok = interruptHeader(text);
    else if (fileName == stem + QLatin1String("_int.c"))
        ok = interruptSource(text);
    else if (fileName == stem + QLatin1String("_conf.h"))
        ok = confFile(text);
    if (ok)
        m_failedFile.clear();
    return ok;
}

// ------------------------------------------------------------------------ the six files --

bool FamilyGenerator::configFile(QString &text) const
{
    const ClockSectionWriter clock(m_inputs.clock, m_inputs.familyCode);
    return peripheralSections(text, true) && periphClock(text, true) &&
           nvicSection(text, true) && dmaConfig(text) && clock.clockConfigToCode(text) &&
           clock.clockOutToCode(text) && gpioFunction(text, true) &&
           systick(text, QStringLiteral("config systick"));
}

bool FamilyGenerator::headerFile(QString &text) const
{
    const ClockSectionWriter clock(m_inputs.clock, m_inputs.familyCode);
    return peripheralSections(text, false) && periphClock(text, false) &&
           nvicSection(text, false) && dmaHeader(text) && clock.gateClockOut(text) &&
           gpioFunction(text, false) && userLabels(text) &&
           systick(text, QStringLiteral("config systick"));
}

bool FamilyGenerator::mainFile(QString &text) const
{
    const ClockSectionWriter clock(m_inputs.clock, m_inputs.familyCode);
    if (!(peripheralSections(text, false) && periphClock(text, false) &&
          nvicSection(text, false) && dmaMain(text) && clock.gateClockOut(text) &&
          gpioFunction(text, false) && systick(text, QStringLiteral("SysTick"))))
        return false;
    closeBlanks(text);
    return true;
}

bool FamilyGenerator::interruptHeader(QString &text) const
{
    for (const GeneratorInterrupt &irq : m_inputs.interrupts) {
        if (irq.enabled || kCoreHandlers.contains(irq.handler) || irq.handler.isEmpty())
            continue;
        replacePattern(text,
                       QStringLiteral(" *void ") + irq.handler +
                           QStringLiteral("\\(((\\s*\\w+))\\); *\n"),
                       QString());
    }
    return true;
}

bool FamilyGenerator::interruptSource(QString &text) const
{
    for (const GeneratorInterrupt &irq : m_inputs.interrupts) {
        if (irq.listed && !gateBlock(text, irq.handler, irq.enabled))
            return false;
    }
    return true;
}

bool FamilyGenerator::confFile(QString &text) const
{
    ClockSectionWriter(m_inputs.clock, m_inputs.familyCode).writeCrystalValue(text);
    for (const ModuleSwitch &module : m_family->moduleSwitches) {
        if (moduleEnabled(module))
            continue;
        const QString define = QLatin1String("#define ") + module.name;
        const QString padding(qMax(0, 48 - define.size()), QLatin1Char(' '));
        text.replace(define, QLatin1String("/*") + define + padding + QLatin1String("*/"));
    }
    return true;
}

// ------------------------------------------------------------------------- peripherals --

bool FamilyGenerator::peripheralSections(QString &text, bool fullSection) const
{
    QSet<QString> seen;
    for (const GeneratorPeripheral &p : m_inputs.peripherals) {
        if (!m_family->sectionTypes.contains(p.typeName))
            continue;
        std::unique_ptr<PeripheralSectionGenerator> section = createSectionGenerator(p.typeName);
        if (!section)
            continue;
        section->setup(*m_family, m_inputs, p);
        if (!(fullSection ? section->generateSection(text) : section->gateSection(text)))
            return false;
        seen.insert(section->blockStem);
    }
    // Instances the device lacks leave their blocks behind: they go.
    for (const QString &stem : m_family->mainBlocks) {
        if (!seen.contains(stem))
            dropBlock(text, stem + QLatin1String(" function"));
    }
    return true;
}

bool FamilyGenerator::portUsed(const QString &portLetter) const
{
    const QString port = QLatin1String("GPIO") + portLetter;
    for (const GeneratorPin &pin : m_inputs.pins) {
        const PinMacroRecord *macro = m_inputs.pinMacro(pin.pinName);
        if (macro && macro->portMacro == port)
            return true;
    }
    return false;
}

bool FamilyGenerator::anyPortUsed() const
{
    for (const GeneratorPin &pin : m_inputs.pins) {
        if (m_inputs.pinMacro(pin.pinName))
            return true;
    }
    return false;
}

bool FamilyGenerator::dmaRemapNeeded() const
{
    for (const DmaRemapBlock &remap : m_family->dmaRemaps) {
        const GeneratorDmaRequest *r = m_inputs.dmaRequestOn(dmaChannelName(1, remap.channel));
        if (r && r->name == remap.request)
            return true;
    }
    return false;
}

bool FamilyGenerator::periphClockItemOn(const PeriphClockItem &item) const
{
    for (const QString &instance : item.instances) {
        if (m_inputs.isConfigured(instance))
            return true;
    }
    if (!item.port.isEmpty() && portUsed(item.port))
        return true;
    if (!item.dmaController.isEmpty()) {
        for (const GeneratorDmaRequest &r : m_inputs.dmaRequests) {
            if (r.channel.startsWith(item.dmaController + QLatin1Char('_')))
                return true;
        }
    }
    return item.dmaRemaps && dmaRemapNeeded();
}

bool FamilyGenerator::periphClock(QString &text, bool fill) const
{
    bool needed = false;
    for (const PeriphClockItem &item : m_family->periphClocks)
        needed = needed || periphClockItemOn(item);
    const QString tag = QStringLiteral("config periph clock");
    if (!fill)
        return gateBlock(text, tag, needed);
    return editBlock(text, tag, needed, [&](QString &body) {
        for (const PeriphClockItem &item : m_family->periphClocks) {
            if (!gateBlock(body, item.name + QLatin1String(" periph clock"),
                           periphClockItemOn(item)))
                return false;
        }
        return true;
    });
}

// -------------------------------------------------------------------------------- NVIC --

bool FamilyGenerator::nvicNeeded() const
{
    for (const GeneratorInterrupt &irq : m_inputs.interrupts) {
        if (irq.enabled && (irq.listed || !irq.atDefaultPriority()))
            return true;
    }
    return false;
}

bool FamilyGenerator::nvicSection(QString &text, bool fill) const
{
    const QString tag = QStringLiteral("config nvic");
    if (!fill)
        return gateBlock(text, tag, nvicNeeded());
    return editBlock(text, tag, nvicNeeded(), [&](QString &body) {
        if (!replacePattern(body, QStringLiteral("nvic_priority_group_config\\(((\\s*\\w+))\\);"),
                            QStringLiteral("nvic_priority_group_config(") +
                                m_inputs.nvic.priorityGroup + QStringLiteral(");")))
            return false;
        for (const GeneratorInterrupt &irq : m_inputs.interrupts) {
            const QString pattern = QStringLiteral("( *)nvic_irq_enable\\((") + irq.irqName +
                                    QStringLiteral(",\\s*\\w+,\\s*\\w+)\\); *\n");
            const bool write = irq.enabled && (irq.listed || !irq.atDefaultPriority());
            const QString line = write ? QStringLiteral("\\1nvic_irq_enable(%1, %2, %3);\n")
                                             .arg(irq.irqName)
                                             .arg(irq.preemption)
                                             .arg(irq.sub)
                                       : QString();
            if (!replacePattern(body, pattern, line))
                return false;
        }
        return true;
    });
}

// --------------------------------------------------------------------------------- DMA --

QString FamilyGenerator::dmaChannelName(int controller, int channel) const
{
    return QStringLiteral("DMA%1_Channel%2").arg(controller).arg(channel);
}

QStringList FamilyGenerator::dmaChannelHandlers(int controller, int channel) const
{
    // "DMA1_Channel3_2_IRQ" serves channels 2 and 3 of DMA1.
    static const QRegularExpression name(
        QStringLiteral("^DMA(\\d+)_Channel(\\d+)(?:_(\\d+))?_IRQ$"));
    QStringList handlers;
    for (const GeneratorInterrupt &irq : m_inputs.interrupts) {
        const QRegularExpressionMatch m = name.match(irq.sectionName());
        if (!irq.enabled || !m.hasMatch() || m.captured(1).toInt() != controller)
            continue;
        const int a = m.captured(2).toInt();
        const int b = m.captured(3).isEmpty() ? a : m.captured(3).toInt();
        if (channel >= qMin(a, b) && channel <= qMax(a, b))
            handlers << irq.handler;
    }
    return handlers;
}

bool FamilyGenerator::dmaMain(QString &text) const
{
    for (int c = 1; c <= m_family->dmaControllers; ++c) {
        for (int n = 1; n <= m_family->dmaChannels; ++n) {
            const GeneratorDmaRequest *req = m_inputs.dmaRequestOn(dmaChannelName(c, n));
            const QString tag = QStringLiteral("dma%1_channel%2_init").arg(c).arg(n);
            const bool ok = editBlock(text, tag, req != nullptr, [&](QString &body) {
                QString address;
                if (req->name == kMemToMem) {
                    address = QStringLiteral("DMA%1_CHANNEL%2_PERIPHERAL_BASE_ADDR").arg(c).arg(n);
                } else {
                    QString periph = req->handle.isEmpty() ? req->ipInstance : req->handle;
                    if (periph.contains(QLatin1String("I2S")) &&
                        !periph.contains(QLatin1String("I2SF")))
                        periph.replace(QLatin1String("I2S"), QLatin1String("SPI"));
                    address = QLatin1String("(uint32_t)&") + periph + QLatin1String("->dt");
                }
                if (!replacePattern(body, QStringLiteral("\\(uint32_t\\)&([^\\n,]*)->dt"), address))
                    return false;
                for (const DmaRemapBlock &remap : m_family->dmaRemaps) {
                    if (c == 1 && remap.channel == n &&
                        !gateBlock(body, remap.tag, req->name == remap.request))
                        return false;
                }
                return true;
            });
            if (!ok)
                return false;
        }
    }
    return true;
}

bool FamilyGenerator::dmaConfig(QString &text) const
{
    bool anyUsed = false;
    for (int c = 1; c <= m_family->dmaControllers; ++c) {
        for (int n = 1; n <= m_family->dmaChannels; ++n) {
            const GeneratorDmaRequest *req = m_inputs.dmaRequestOn(dmaChannelName(c, n));
            anyUsed = anyUsed || req;
            const QString tag = QStringLiteral("dma%1_channel%2_init").arg(c).arg(n);
            const bool ok = editBlock(text, tag, req != nullptr, [&](QString &body) {
                replacePattern(body, QStringLiteral("@brief([^\\n\"]*)\"([^\\n\"]*)\""),
                               QStringLiteral("@brief\\1\"") + req->name.toLower() +
                                   QStringLiteral("\""));
                const QList<QPair<QString, QString>> members = {
                    {"direction", "Direction"},
                    {"memory_data_width", "MemDataAlignment"},
                    {"memory_inc_enable", "MemInc"},
                    {"peripheral_data_width", "PeriphDataAlignment"},
                    {"peripheral_inc_enable", "PeriphInc"},
                    {"priority", "Priority"},
                    {"loop_mode_enable", "Mode"}};
                for (const auto &m : members)
                    rewriteAssignment(body, QLatin1String("dma_init_struct.") + m.first,
                                      req->parameter(m.second));
                if (findBlock(body, QStringLiteral("interrupt remarks")).isValid())
                    return rebuildInterruptRemarks(body, dmaChannelHandlers(c, n));
                return true;
            });
            if (!ok)
                return false;
        }
    }
    return gateBlock(text, QStringLiteral("dma_channel_config"), anyUsed, Tail::Optional);
}

bool FamilyGenerator::dmaHeader(QString &text) const
{
    bool anyUsed = false;
    const QStringList tails = {"_BUFFER_SIZE", "_MEMORY_BASE_ADDR", "_PERIPHERAL_BASE_ADDR"};
    for (int c = 1; c <= m_family->dmaControllers; ++c) {
        for (int n = 1; n <= m_family->dmaChannels; ++n) {
            const bool used = m_inputs.dmaRequestOn(dmaChannelName(c, n)) != nullptr;
            anyUsed = anyUsed || used;
            if (!gateBlock(text, QStringLiteral("dma%1_channel%2_init").arg(c).arg(n), used))
                return false;
            const QString prefix = QStringLiteral("DMA%1_CHANNEL%2").arg(c).arg(n);
            for (const QString &tail : tails) {
                // A define the user kept is switched with its channel, never duplicated.
                if (used)
                    replacePattern(text, QStringLiteral("// *#define *") + prefix + tail,
                                   QStringLiteral("#define ") + prefix + tail);
                else
                    replacePattern(text, QStringLiteral("(?<!/)#define *") + prefix + tail,
                                   QStringLiteral("//#define ") + prefix + tail);
            }
        }
    }
    return gateBlock(text, QStringLiteral("dma_channel_config"), anyUsed, Tail::Optional);
}

// -------------------------------------------------------------------------------- GPIO --

bool FamilyGenerator::gpioFunction(QString &text, bool fill) const
{
    QList<const GeneratorPin *> outputs, eventouts, ins, analogs;
    for (const GeneratorPin &pin : m_inputs.pins) {
        if (pin.signal == QLatin1String("GPIO_Output"))
            outputs << &pin;
        else if (pin.signal == QLatin1String("GPIO_Input"))
            ins << &pin;
        else if (pin.signal == QLatin1String("GPIO_Analog"))
            analogs << &pin;
        else if (pin.signal == QLatin1String("EVENTOUT"))
            eventouts << &pin;
    }
    const bool keep = !(outputs.isEmpty() && eventouts.isEmpty() && ins.isEmpty() &&
                        analogs.isEmpty());
    const QString tag = QStringLiteral("gpio function");
    if (!fill)
        return gateBlock(text, tag, keep);

    using S = PeripheralSectionGenerator;
    const int outputSteps = S::Drive | S::OutType | S::Pins | S::Pull | S::Init;
    const int inputSteps = S::Pins | S::Pull | S::Init;

    auto initCopies = [&](QString &b, const QList<const GeneratorPin *> &list, int steps) {
        return repeatBlock(b, QStringLiteral("init"), list.size(), [&](QString &copy, int i) {
            return writePinLines(*m_family, m_inputs, copy, *list.at(i), steps);
        });
    };
    return editBlock(text, tag, keep, [&](QString &body) {
        const bool outOk = editBlock(body, QStringLiteral("output"), !outputs.isEmpty(),
                                     [&](QString &b) {
            const bool levels = repeatBlock(
                b, QStringLiteral("output_level"), outputs.size(), [&](QString &copy, int i) {
                    const GeneratorPin &pin = *outputs.at(i);
                    const PinMacroRecord *macro = m_inputs.pinMacro(pin.pinName);
                    if (!macro)
                        return false;
                    const bool low = pin.setting(QStringLiteral("Output level")) ==
                                     QLatin1String("GPIO_OUTPUTLEVEL_LOW");
                    return replacePattern(
                        copy, QStringLiteral("gpio_bits_write\\((\\w+,\\s*\\w+,\\s*\\w+)\\);?"),
                        (low ? QStringLiteral("gpio_bits_reset(") : QStringLiteral("gpio_bits_set(")) +
                            portOf(pin, *macro) + QStringLiteral(", ") + pinsOf(pin, *macro) +
                            QStringLiteral(");"));
                });
            return levels && initCopies(b, outputs, outputSteps);
        });
        if (!outOk)
            return false;
        const bool eventOk = editBlock(body, QStringLiteral("eventout"), !eventouts.isEmpty(),
                                       [&](QString &b) {
            if (!initCopies(b, eventouts, outputSteps))
                return false;
            return repeatBlock(b, QStringLiteral("mux_config"), eventouts.size(),
                               [&](QString &copy, int i) {
                const GeneratorPin &pin = *eventouts.at(i);
                const PinMacroRecord *macro = m_inputs.pinMacro(pin.pinName);
                if (!macro)
                    return false;
                if (!m_family->perPinMux)
                    return replacePattern(
                        copy, QStringLiteral("gpio_event_output_config\\((\\w+,\\s*\\w+)\\);?"),
                        QStringLiteral("gpio_event_output_config(") +
                            macro->scfgPortSourceMacro + QStringLiteral(", ") +
                            macro->scfgPinsSourceMacro + QStringLiteral(");"));
                return replacePattern(
                    copy, QStringLiteral("gpio_pin_mux_config\\((\\w+,\\s*\\w+,\\s*\\w+)\\);?"),
                    QStringLiteral("gpio_pin_mux_config(") + portOf(pin, *macro) +
                        QStringLiteral(", ") + macro->pinsSourceMacro + QStringLiteral(", ") +
                        macro->muxOf(pin.signal) + QStringLiteral(");"));
            });
        });
        if (!eventOk)
            return false;
        return editBlock(body, QStringLiteral("input"), !ins.isEmpty(),
                         [&](QString &b) { return initCopies(b, ins, inputSteps); }) &&
               editBlock(body, QStringLiteral("analog"), !analogs.isEmpty(),
                         [&](QString &b) { return initCopies(b, analogs, inputSteps); });
    });
}

bool FamilyGenerator::userLabels(QString &text) const
{
    const Block b = findBlock(text, QStringLiteral("user_label"));
    if (!b.isValid())
        return false;
    QStringList defines;
    QSet<QString> seen;
    for (const GeneratorPin &pin : m_inputs.pins) {
        if (pin.signal.isEmpty() || pin.labelDefine.isEmpty() || seen.contains(pin.labelDefine))
            continue;
        const PinMacroRecord *macro = m_inputs.pinMacro(pin.pinName);
        if (!macro)
            continue;
        seen.insert(pin.labelDefine);
        defines << QStringLiteral("#define ") + pin.labelDefine + QStringLiteral("_PIN    ") +
                       macro->pinsMacro + QLatin1Char('\n') + QStringLiteral("#define ") +
                       pin.labelDefine + QStringLiteral("_GPIO_PORT    ") + macro->portMacro +
                       QLatin1Char('\n');
    }
    if (defines.isEmpty()) {
        text.remove(b.start, b.end - b.start);
        return true;
    }
    const QString body = blockBody(text, b) + defines.join(QLatin1Char('\n')) + QLatin1Char('\n');
    text.replace(b.start, b.end - b.start, body);
    return true;
}

bool FamilyGenerator::systick(QString &text, const QString &tag) const
{
    const GeneratorInterrupt *irq = m_inputs.interrupt(QStringLiteral("SysTick_IRQ"));
    const bool on = irq && irq->enabled;
    if (!gateBlock(text, tag, on))
        return false;
    if (on)
        ClockSectionWriter(m_inputs.clock, m_inputs.familyCode).applySystickDivider(text);
    return true;
}

// ------------------------------------------------------------------------ driver lists --

bool FamilyGenerator::moduleEnabled(const ModuleSwitch &module) const
{
    for (const QString &instance : module.instances) {
        if (m_inputs.isConfigured(instance))
            return true;
    }
    if (module.gpioPorts && anyPortUsed())
        return true;
    if (module.dmaRequests && !m_inputs.dmaRequests.isEmpty())
        return true;
    return module.dmaRemaps && dmaRemapNeeded();
}

QStringList FamilyGenerator::driverFileStems() const
{
    const QString stem = familyStem(m_inputs.familyCode);
    QStringList out{stem + QLatin1String("_crm")};
    if (!m_family)
        return out;
    const QStringList order = {"cmp", "tmr",   "ertc", "gpio", "i2c", "usart", "pwc",
                               "adc", "spi",   "dma",  "debug", "flash", "crc", "wwdt",
                               "wdt", "exint", "misc", "scfg", "acc", "can", "dac",
                               "qspi", "usb", "edma", "rtc",  "sdio", "emac", "xmc", "dvp"};
    for (const QString &driver : order) {
        bool on = m_family->alwaysOnDrivers.contains(driver);
        for (const ModuleSwitch &module : m_family->moduleSwitches) {
            if (module.driverStem == driver && moduleEnabled(module))
                on = true;
        }
        if (on)
            out << stem + QLatin1Char('_') + driver;
    }
    return out;
}

std::unique_ptr<FamilyGenerator> createFamilyGenerator(int familyCode)
{
    const GeneratorFamily *family = generatorFamilyOf(familyCode);
    if (!family)
        return nullptr;
    const QString &n = family->generatorName;
    if (n == QLatin1String("GenerateCode_All_T110"))
        return std::make_unique<GenerateCode_All_T110>();
    if (n == QLatin1String("GenerateCode_All_T130_V130"))
        return std::make_unique<GenerateCode_All_T130_V130>();
    if (n == QLatin1String("GenerateCode_All_T250_T260_V250"))
        return std::make_unique<GenerateCode_All_T250_T260_V250>();
    if (n == QLatin1String("GenerateCode_All_T310"))
        return std::make_unique<GenerateCode_All_T310>();
    if (n == QLatin1String("GenerateCode_All_T320_W320"))
        return std::make_unique<GenerateCode_All_T320_W320>();
    if (n == QLatin1String("GenerateCode_All_T210_T220"))
        return std::make_unique<GenerateCode_All_T210_T220>();
    if (n == QLatin1String("GenerateCode_All_T120"))
        return std::make_unique<GenerateCode_All_T120>();
    if (n == QLatin1String("GenerateCode_All_T510_T520"))
        return std::make_unique<GenerateCode_All_T510_T520>();
    return nullptr;
}
