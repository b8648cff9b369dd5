#include "codegen/generatorinputs.h"

#include <QRegularExpression>

QString GeneratorPin::setting(const QString &name) const
{
    for (const GpioSetting &s : gpioSettings) {
        if (s.first == name)
            return s.second;
    }
    return QString();
}

QString GeneratorInterrupt::sectionName() const
{
    return irqName.endsWith(QLatin1Char('n')) ? irqName.left(irqName.size() - 1) : irqName;
}

QString PinMacroRecord::muxOf(const QString &signal) const
{
    for (const auto &m : muxes) {
        if (m.first == signal)
            return m.second;
    }
    return QString();
}

QString GeneratorDmaRequest::parameter(const QString &name) const
{
    for (const RefParameter &p : parameters) {
        if (p.Name == name)
            return p.Value;
    }
    return QString();
}

QString pinKey(const QString &pinName)
{
    QString key = pinName.trimmed();
    const int cut = key.indexOf(QRegularExpression(QStringLiteral("[ /]")));
    if (cut >= 0)
        key = key.left(cut);
    return key.trimmed();
}

bool signalBelongsTo(const QString &signal, const QString &instance)
{
    if (instance.isEmpty())
        return false;
    if (instance == QLatin1String("EXINT")) {
        static const QRegularExpression line(QStringLiteral("^EXINT\\d+$"));
        return line.match(signal).hasMatch();
    }
    if (instance == QLatin1String("IRTMR") && signal == QLatin1String("IR_OUT"))
        return true;
    return signal.startsWith(instance + QLatin1Char('_'));
}

const GeneratorPeripheral *GeneratorInputs::peripheral(const QString &instance) const
{
    for (const GeneratorPeripheral &p : peripherals) {
        if (p.instanceName == instance)
            return &p;
    }
    return nullptr;
}

bool GeneratorInputs::isConfigured(const QString &instance) const
{
    const GeneratorPeripheral *p = peripheral(instance);
    return p && p->configured;
}

const PinMacroRecord *GeneratorInputs::pinMacro(const QString &pinName) const
{
    const QString key = pinKey(pinName);
    for (const PinMacroRecord &r : pinMacros) {
        if (pinKey(r.pinKey) == key)
            return &r;
    }
    return nullptr;
}

const GeneratorInterrupt *GeneratorInputs::interrupt(const QString &sectionName) const
{
    for (const GeneratorInterrupt &i : interrupts) {
        if (i.sectionName() == sectionName)
            return &i;
    }
    return nullptr;
}

QList<const GeneratorPin *> GeneratorInputs::signalsOf(const QString &instance) const
{
    QList<const GeneratorPin *> out;
    for (const GeneratorPin &p : pins) {
        if (signalBelongsTo(p.signal, instance))
            out << &p;
    }
    return out;
}

const GeneratorPin *GeneratorInputs::pinOfSignal(const QString &signal) const
{
    for (const GeneratorPin &p : pins) {
        if (p.signal == signal)
            return &p;
    }
    return nullptr;
}

const GeneratorDmaRequest *GeneratorInputs::dmaRequestOn(const QString &channel) const
{
    for (const GeneratorDmaRequest &r : dmaRequests) {
        if (r.channel == channel)
            return &r;
    }
    return nullptr;
}

void GeneratorInputs::deduplicateLabels()
{
    for (GeneratorPin &pin : pins) {
        pin.labelDefine.clear();
        if (pin.signal.isEmpty() || pin.userLabel.isEmpty())
            continue;
        bool shared = false;
        for (const GeneratorPin &other : pins) {
            if (&other != &pin && !other.signal.isEmpty() && other.userLabel == pin.userLabel &&
                pinKey(other.pinName) != pinKey(pin.pinName)) {
                shared = true;
                break;
            }
        }
        pin.labelDefine = pin.userLabel;
        if (!shared)
            continue;
        const PinMacroRecord *macro = pinMacro(pin.pinName);
        if (!macro)
            continue;
        const QString port = macro->portMacro.right(1);
        const QString number = macro->pinsMacro.mid(macro->pinsMacro.lastIndexOf('_') + 1);
        pin.labelDefine = pin.userLabel + QLatin1Char('_') + port + number;
    }
}
