#include "peripherals/calculators/paramcalculators.h"

#include "peripherals/calculators/busclockcalculators.h"
#include "peripherals/calculators/calculatorfamilies.h"
#include "peripherals/calculators/paramlist.h"

namespace {

bool sameValues(const QList<RefParamValue> &a, const QList<RefParamValue> &b)
{
    if (a.size() != b.size())
        return false;
    for (int i = 0; i < a.size(); ++i) {
        const RefParamValue &x = a.at(i);
        const RefParamValue &y = b.at(i);
        if (x.Value != y.Value || x.Comment != y.Comment || x.Action != y.Action ||
            x.Diagnostic != y.Diagnostic)
            return false;
    }
    return true;
}

bool sameRecord(const RefParameter &a, const RefParameter &b)
{
    return a.Value == b.Value && a.Min == b.Min && a.Max == b.Max &&
           sameValues(a.PossibleValues, b.PossibleValues);
}

// XMC: each source factor that has a text is copied to its target.
void applyXmcScaling(QList<RefParameter> &params)
{
    for (const char *name :
         {"Horizontal_Scaling_Resize_Source_Factor", "Vertical_Scaling_Resize_Source_Factor",
          "Frame_Rate_Contorl_Source_Factor"}) {
        const QString source = QLatin1String(name);
        const QString text = ParamList::value(params, source);
        if (text.isEmpty())
            continue;
        QString target = source;
        target.replace(QLatin1String("Source"), QLatin1String("Target"));
        ParamList::setValue(params, target, text);
    }
}

} // namespace

CalculatorOutput ParamCalculators::run(QList<RefParameter> &params,
                                       const QList<RefParameter> &original,
                                       const CalculatorInput &in, QList<CANBaudResult> *canResults)
{
    CalculatorOutput out;
    const QList<RefParameter> before = params;
    const QList<ParamCalculator> calculators =
        CalculatorFamilies::calculatorsFor(in.family, in.instance);
    for (ParamCalculator c : calculators) {
        switch (c) {
        case ParamCalculator::UsartBaud: {
            if (in.lastEdit == QLatin1String("VirtualMode"))
                BusClockCalculators::applyUsartVirtualMode(params);
            QString note;
            BusClockCalculators::applyUsart(params, original, in.clockMHz, &note);
            if (!note.isEmpty())
                out.notes.insert(QStringLiteral("BaudRate"), note);
            break;
        }
        case ParamCalculator::SpiDivider:
            BusClockCalculators::applySpi(params, original, in.clockMHz, in.instance);
            break;
        case ParamCalculator::I2sDivider:
            BusClockCalculators::applyI2s(params, original, in.clockMHz, in.instance);
            break;
        case ParamCalculator::I2cTiming:
            if (ParamList::find(params, QStringLiteral("I2C_Mode"))) {
                out.hasI2c = true;
                out.i2c = I2cTiming::apply(params, in.clockMHz, in.family);
            }
            break;
        case ParamCalculator::CanBitTiming:
            if (ParamList::find(params, QStringLiteral("BaudRate")) && canResults) {
                if (in.canSearch)
                    *canResults = CanBitTiming::search(
                        CanBitTiming::inputFrom(params, in.clockMHz, in.family));
                out.hasCan = true;
                out.can =
                    CanBitTiming::apply(params, original, *canResults, in.clockMHz, in.family);
            }
            break;
        case ParamCalculator::Timer:
            if (CalculatorFamilies::hasPwmInput(in.family, in.instance))
                TimerCalculator::applyPwmInput(params, in.lastEdit);
            TimerCalculator::apply(params, in.clockMHz);
            if (ParamList::find(params, QStringLiteral("Period"))) {
                out.hasTmr = true;
                out.tmr = TimerCalculator::diagramValues(params, in.clockMHz);
            }
            break;
        case ParamCalculator::Spim:
            BusClockCalculators::applySpim(params, in.clockMHz);
            break;
        case ParamCalculator::Sdio:
            BusClockCalculators::applySdio(params, in.clockMHz);
            break;
        case ParamCalculator::AdcClockLimit:
            BusClockCalculators::applyAdcLimit(params, original, in.clockMHz, in.apb2MHz,
                                               in.instance);
            break;
        case ParamCalculator::XmcScaling:
            applyXmcScaling(params);
            break;
        }
    }
    for (int i = 0; i < params.size() && i < before.size(); ++i) {
        if (!sameRecord(params.at(i), before.at(i)))
            out.changed << params.at(i).Name;
    }
    return out;
}

QString ParamCalculators::editError(const QList<RefParameter> &params, const CalculatorInput &in)
{
    if (in.lastEdit.isEmpty())
        return QString();
    static const QStringList canInputs = {"BaudRate", "Sample_Point",
                                          "BaudRate_Deviation_Tolerance", "BaudRate_Deviation"};
    if (in.instance.contains(QLatin1String("CAN")) && canInputs.contains(in.lastEdit))
        return editError(params, {in.family, in.instance, in.clockMHz, in.apb2MHz,
                                  QStringLiteral("BaudRate_Result_Select"), false});
    const RefParameter *p = ParamList::find(params, in.lastEdit);
    if (!p || p->Type != QLatin1String("list"))
        return QString();
    for (const RefParamValue &v : p->PossibleValues) {
        if (v.Value == p->Value && !v.Action.isEmpty() &&
            !v.Action.contains(QLatin1String("Remove")))
            return v.Diagnostic;
    }
    return QString();
}
