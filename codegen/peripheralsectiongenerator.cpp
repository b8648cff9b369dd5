#include "codegen/peripheralsectiongenerator.h"

#include "codegen/familytable.h"

#include <QRegularExpression>

#include <algorithm>

using namespace TemplateEngine;

namespace {

const QString kTrue = QStringLiteral("TRUE");
const QString kEnable = QStringLiteral("ENABLE");
const QString kMux = QStringLiteral("GPIO_MODE_MUX");
const QString kRemarksMarker = QStringLiteral("2. Add the user's interrupt handler code");

// Runs `edit` on a block that is kept, or drops it; the block must exist.
bool editIf(QString &body, const QString &tag, bool on,
            const std::function<bool(QString &)> &edit)
{
    return editBlock(body, tag, on, edit);
}

} // namespace

QString portOf(const GeneratorPin &pin, const PinMacroRecord &macro)
{
    return pin.labelDefine.isEmpty() ? macro.portMacro
                                     : pin.labelDefine + QLatin1String("_GPIO_PORT");
}

QString pinsOf(const GeneratorPin &pin, const PinMacroRecord &macro)
{
    return pin.labelDefine.isEmpty() ? macro.pinsMacro : pin.labelDefine + QLatin1String("_PIN");
}

bool rebuildInterruptRemarks(QString &text, const QStringList &handlers)
{
    const QString tag = QStringLiteral("interrupt remarks");
    const Block b = findBlock(text, tag);
    if (!b.isValid())
        return false;
    if (handlers.isEmpty()) {
        text.remove(b.start, b.end - b.start);
        return true;
    }
    const QString body = blockBody(text, b);
    const int marker = body.indexOf(kRemarksMarker);
    if (marker < 0)
        return false;
    const int lineEnd = body.indexOf(QLatin1Char('\n'), marker);
    QString out = lineEnd < 0 ? body + QLatin1Char('\n') : body.left(lineEnd + 1);
    for (const QString &h : handlers)
        out += QLatin1String("   *     --void ") + h + QLatin1String("(void)\n");
    out += QLatin1String("   */\n\n");
    text.replace(b.start, b.end - b.start, out);
    return true;
}

// ------------------------------------------------------------------------------ frame --

void PeripheralSectionGenerator::setup(const GeneratorFamily &fam, const GeneratorInputs &in,
                                       const GeneratorPeripheral &peripheral)
{
    family = &fam;
    inputs = &in;
    familyCode = in.familyCode;
    instanceName = peripheral.instanceName;
    blockStem = blockStemOf(fam, peripheral.instanceName);
    keep = peripheral.configured;
    parameters = peripheral.parameters;
    semaphores = peripheral.semaphores;
    modeSelections = peripheral.modeSelections;
}

bool PeripheralSectionGenerator::gateSection(QString &text) const
{
    return gateBlock(text, blockTag(), keep);
}

bool PeripheralSectionGenerator::generateSection(QString &text)
{
    return editBlock(text, blockTag(), keep, [&](QString &body) {
        if (!declarationGates(body))
            return false;
        for (const QString &tail : signalTails()) {
            if (!configureSignalPin(body, instanceName + QLatin1Char('_') + tail, pinTag(tail)))
                return false;
        }
        if (!fillBody(body))
            return false;
        if (findBlock(body, QStringLiteral("interrupt remarks")).isValid() &&
            !interruptRemarks(body))
            return false;
        openBlanks(body);
        return true;
    });
}

QList<QPair<QString, bool>> PeripheralSectionGenerator::declarations() const
{
    return {{QStringLiteral("gpio_init_struct"), anySignalAssigned()}};
}

bool PeripheralSectionGenerator::declarationGates(QString &body) const
{
    // Kept declarations stand on adjacent lines; one blank line separates the group from
    // the slot or comment behind it, none from a declaration of the template.
    struct Present
    {
        int start;
        QString tag;
        bool keep;
    };
    QList<Present> present;
    for (const auto &d : declarations()) {
        const Block b = findBlock(body, d.first);
        if (b.isValid())
            present << Present{b.start, d.first, d.second};
    }
    std::sort(present.begin(), present.end(),
              [](const Present &a, const Present &b) { return a.start < b.start; });
    int groupEnd = -1;
    bool anyKept = false;
    for (const Present &p : present) {
        const Block b = findBlock(body, p.tag);
        if (p.keep) {
            const QString inner = blockBody(body, b);
            body.replace(b.start, b.end - b.start, inner);
            groupEnd = b.start + inner.size();
            anyKept = true;
        } else {
            body.remove(b.start, b.end - b.start);
            groupEnd = b.start;
        }
    }
    if (anyKept && groupEnd >= 0) {
        const QStringRef next = body.midRef(groupEnd, 4);
        if (next.startsWith(QLatin1Char('\n')) || next == QLatin1String("  /*"))
            body.insert(groupEnd, QLatin1Char('\n'));
    }
    const Block init = findBlock(body, QStringLiteral("gpio_default_para_init"));
    if (init.isValid())
        gateBlock(body, QStringLiteral("gpio_default_para_init"), anySignalAssigned());
    return true;
}

QList<const GeneratorInterrupt *> PeripheralSectionGenerator::ownInterrupts() const
{
    QList<const GeneratorInterrupt *> out;
    for (const GeneratorInterrupt &irq : inputs->interrupts) {
        if (irq.instances.contains(instanceName))
            out << &irq;
    }
    return out;
}

bool PeripheralSectionGenerator::interruptRemarks(QString &body) const
{
    QStringList handlers;
    for (const GeneratorInterrupt *irq : ownInterrupts()) {
        if (irq->enabled)
            handlers << irq->handler;
    }
    return rebuildInterruptRemarks(body, handlers);
}

// ---------------------------------------------------------------------------- lookups --

bool PeripheralSectionGenerator::hasParam(const QString &name) const
{
    for (const RefParameter &p : parameters) {
        if (p.Name == name)
            return true;
    }
    return false;
}

QString PeripheralSectionGenerator::param(const QString &name) const
{
    for (const RefParameter &p : parameters) {
        if (p.Name != name)
            continue;
        if (p.Type == QLatin1String("hexadecimal") && !p.Value.isEmpty() &&
            !p.Value.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
            return QLatin1String("0x") + p.Value;
        return p.Value;
    }
    return QString();
}

bool PeripheralSectionGenerator::paramIs(const QString &name, const QString &value) const
{
    return param(name) == value;
}

bool PeripheralSectionGenerator::paramTrue(const QString &name) const
{
    return paramIs(name, kTrue);
}

bool PeripheralSectionGenerator::paramEnabled(const QString &name) const
{
    return paramIs(name, kEnable);
}

bool PeripheralSectionGenerator::hasSemaphore(const QString &shortName) const
{
    return semaphores.contains(instanceName + QLatin1Char('_') + shortName);
}

QString PeripheralSectionGenerator::modeSelection(const QString &modeName) const
{
    for (const auto &m : modeSelections) {
        if (m.first == modeName)
            return m.second;
    }
    return QString();
}

bool PeripheralSectionGenerator::signalAssigned(const QString &signal) const
{
    return inputs->pinOfSignal(signal) != nullptr;
}

bool PeripheralSectionGenerator::anySignalAssigned() const
{
    return !inputs->signalsOf(instanceName).isEmpty();
}

QList<const GeneratorDmaRequest *> PeripheralSectionGenerator::dmaRequests() const
{
    QList<const GeneratorDmaRequest *> out;
    for (const GeneratorDmaRequest &r : inputs->dmaRequests) {
        if (r.ipInstance == instanceName)
            out << &r;
    }
    return out;
}

bool PeripheralSectionGenerator::hasDmaRequest(const QString &requestName) const
{
    for (const GeneratorDmaRequest *r : dmaRequests()) {
        if (r->name == requestName)
            return true;
    }
    return false;
}

// ------------------------------------------------------------------------ operations --

bool PeripheralSectionGenerator::gate(QString &body, const QString &tag, bool on)
{
    return gateBlock(body, tag, on);
}

bool PeripheralSectionGenerator::gateIfWanted(QString &body, const QString &tag, bool on)
{
    if (on)
        return keepBlock(body, tag);
    dropBlock(body, tag);
    return true;
}

bool PeripheralSectionGenerator::setCall(QString &body, const QString &fn, const QString &value)
{
    return rewriteCall(body, fn, {value});
}

bool PeripheralSectionGenerator::configureSignalPin(QString &body, const QString &signal,
                                                    const QString &tag) const
{
    const QString pinTag = tag + QLatin1String(" pin");
    const GeneratorPin *pin = inputs->pinOfSignal(signal);
    if (!pin) {
        dropBlock(body, pinTag);
        return true;
    }
    const Block b = findBlock(body, pinTag);
    if (!b.isValid())
        return false;
    QString child = blockBody(body, b) + QLatin1Char('\n');
    if (!fillPinLines(child, *pin, AllSteps))
        return false;
    body.replace(b.start, b.end - b.start, child);
    return true;
}

bool PeripheralSectionGenerator::fillPinLines(QString &text, const GeneratorPin &pin,
                                              int steps) const
{
    const PinMacroRecord *macro = inputs->pinMacro(pin.pinName);
    if (!macro)
        return false;
    if (steps & Drive)
        rewriteAssignment(text, QStringLiteral("gpio_init_struct.gpio_drive_strength"),
                          pin.setting(QStringLiteral("Driver capability")));
    if (steps & OutType)
        rewriteAssignment(text, QStringLiteral("gpio_init_struct.gpio_out_type"),
                          pin.setting(QStringLiteral("GPIO type")));
    if (steps & Mode)
        rewriteAssignment(text, QStringLiteral("gpio_init_struct.gpio_mode"),
                          pin.setting(QStringLiteral("GPIO mode")));
    if (steps & Pins)
        rewriteAssignment(text, QStringLiteral("gpio_init_struct.gpio_pins"), pinsOf(pin, *macro));
    if (steps & Pull)
        rewriteAssignment(text, QStringLiteral("gpio_init_struct.gpio_pull"),
                          pin.setting(QStringLiteral("Pull type")));
    if ((steps & Init) &&
        !replacePattern(text, QStringLiteral("gpio_init\\((\\w+,\\s*\\&\\w+)\\);?"),
                        QStringLiteral("gpio_init(") + portOf(pin, *macro) +
                            QStringLiteral(", &gpio_init_struct);")))
        return false;
    if (!(steps & Mux) || !family->perPinMux)
        return true;
    // The mux line belongs to pins in the multiplexer mode that have a mux for the signal;
    // any other pin block loses a line the template may hold.
    QString mode = pin.setting(QStringLiteral("GPIO mode"));
    if (mode.isEmpty() && text.contains(QLatin1String("gpio_mode = GPIO_MODE_MUX")))
        mode = kMux;
    const QString mux = macro->muxOf(pin.signal);
    const QString linePattern =
        QStringLiteral("gpio_pin_mux_config\\((\\w+,\\s*\\w+,\\s*\\w+)\\);?");
    if (mode == kMux && !mux.isEmpty())
        return replacePattern(text, linePattern,
                              QStringLiteral("gpio_pin_mux_config(") + portOf(pin, *macro) +
                                  QStringLiteral(", ") + macro->pinsSourceMacro +
                                  QStringLiteral(", ") + mux + QStringLiteral(");"));
    replacePattern(text, QStringLiteral(" *") + linePattern + QStringLiteral(" *\n"), QString());
    return true;
}

// ------------------------------------------------------------------------ USART, UART --

namespace {

class UsartSection : public PeripheralSectionGenerator
{
protected:
    QStringList signalTails() const override { return {"TX", "RX", "CTS", "RTS", "CK"}; }

    bool fillBody(QString &body) override
    {
        if (!rewriteCall(body, QStringLiteral("usart_init"),
                         {param("BaudRate"), param("Databitnum"), param("STOPbitnum")}))
            return false;
        setCall(body, QStringLiteral("usart_parity_selection_config"), param("Parityselection"));
        const QString mode = param("Mode");
        const bool tx = mode == QLatin1String("MODE_TX") || mode == QLatin1String("MODE_TX_RX");
        const bool rx = mode == QLatin1String("MODE_RX") || mode == QLatin1String("MODE_TX_RX");
        if (!gate(body, QStringLiteral("data direction trans"), tx) ||
            !gate(body, QStringLiteral("data direction receive"), rx))
            return false;
        if (hasParam(QStringLiteral("HwFlowCtl"))) {
            const QString flow = param("HwFlowCtl");
            replacePattern(body,
                           QStringLiteral(" *usart_hardware_flow_control_set\\(((\\s*\\w+),\\s*\\w+)"
                                          "\\);?\n+"),
                           flow.isEmpty() ? QString()
                                          : QStringLiteral("  usart_hardware_flow_control_set(\\2, ") +
                                                flow + QStringLiteral(");\n\n"));
        }
        const bool clock = paramTrue(QStringLiteral("Clockenable")) &&
                           signalAssigned(instanceName + QLatin1String("_CK"));
        if (!editIf(body, QStringLiteral("usart clock config"), clock, [&](QString &b) {
                rewriteCall(b, QStringLiteral("usart_clock_config"),
                            {param("CLKPolarity"), param("CLKPhase"), param("Lastbitclockpulse")});
                return true;
            }))
            return false;
        const QString vm = param("VirtualMode");
        bool ok = editIf(body, QStringLiteral("irda"), vm == QLatin1String("VM_IRDA"),
                         [&](QString &b) {
                             setCall(b, QStringLiteral("usart_irda_low_power_enable"),
                                     param("IrDAlowpowermode"));
                             setCall(b, QStringLiteral("usart_irda_smartcard_division_set"),
                                     param("IrDAdivision"));
                             return true;
                         }) &&
                  editIf(body, QStringLiteral("smartcard"),
                         vm == QLatin1String("VM_SMARTCARD") ||
                             vm == QLatin1String("VM_SMARTCARD_CLOCK"),
                         [&](QString &b) {
                             setCall(b, QStringLiteral("usart_smartcard_guard_time_set"),
                                     param("Smartcardguardtime"));
                             setCall(b, QStringLiteral("usart_irda_smartcard_division_set"),
                                     param("Smartcarddivision"));
                             setCall(b, QStringLiteral("usart_smartcard_nack_set"),
                                     param("SmartcardNACKenable"));
                             return true;
                         }) &&
                  editIf(body, QStringLiteral("lin"), vm == QLatin1String("VM_LIN"),
                         [&](QString &b) {
                             setCall(b, QStringLiteral("usart_break_bit_num_set"),
                                     param("Breakframebitnum"));
                             return true;
                         }) &&
                  editIf(body, QStringLiteral("receiver mute"),
                         vm == QLatin1String("VM_RECEIVERMUTE"),
                         [&](QString &b) {
                             setCall(b, QStringLiteral("usart_wakeup_mode_set"),
                                     param("Wakeupmode"));
                             setCall(b, QStringLiteral("usart_id_bit_num_set"),
                                     param("USARTIDBit"));
                             setCall(b, QStringLiteral("usart_wakeup_id_set"), param("USARTID"));
                             return true;
                         }) &&
                  gate(body, QStringLiteral("half duplex"), vm == QLatin1String("VM_HALFDUPLEX")) &&
                  editIf(body, QStringLiteral("modbus"), vm == QLatin1String("VM_MODBUS"),
                         [&](QString &b) {
                             setCall(b, QStringLiteral("usart_id_bit_num_set"),
                                     param("USARTIDBit"));
                             setCall(b, QStringLiteral("usart_wakeup_id_set"), param("USARTID"));
                             return true;
                         });
        if (!ok)
            return false;
        if (hasParam(QStringLiteral("RS485")) &&
            !editIf(body, QStringLiteral("rs485"), paramEnabled(QStringLiteral("RS485")),
                    [&](QString &b) {
                        setCall(b, QStringLiteral("usart_de_polarity_set"),
                                param("DEPolaritySelection"));
                        rewriteCall(b, QStringLiteral("usart_rs485_delay_time_config"),
                                    {param("TransmitStartDelayTime"),
                                     param("TransmitCompleteDelayTime")});
                        return true;
                    }))
            return false;
        setCall(body, QStringLiteral("usart_dt_polarity_reverse"), param("DTPolarityReverse"));
        setCall(body, QStringLiteral("usart_msb_transmit_first_enable"),
                param("MSBTransmitFirst"));
        setCall(body, QStringLiteral("usart_rx_polarity_reverse"), param("RXPolarityReverse"));
        setCall(body, QStringLiteral("usart_tx_polarity_reverse"), param("TXPolarityReverse"));
        setCall(body, QStringLiteral("usart_transmit_receive_pin_swap"), param("PinsSwapping"));
        return gateIfWanted(body, QStringLiteral("dma transmitter"),
                            hasDmaRequest(instanceName + QLatin1String("_TX"))) &&
               gateIfWanted(body, QStringLiteral("dma receiver"),
                            hasDmaRequest(instanceName + QLatin1String("_RX")));
    }
};

// ---------------------------------------------------------------------------------- SPI --

class SpiSection : public PeripheralSectionGenerator
{
protected:
    QStringList signalTails() const override { return {"SCK", "MISO", "MOSI", "CS"}; }

    bool fillBody(QString &body) override
    {
        const QString mode = param("Mode");
        const bool master = mode == QLatin1String("SPI_MODE_MASTER");
        const bool softCs = !hasParam(QStringLiteral("CSSOFT")) || paramTrue("CSSOFT");
        const QString s = QStringLiteral("spi_init_struct.");
        rewriteAssignment(body, s + QLatin1String("transmission_mode"), param("TransmissionMode"));
        rewriteAssignment(body, s + QLatin1String("master_slave_mode"), mode);
        if (master)
            rewriteAssignment(body, s + QLatin1String("mclk_freq_division"), param("ClkDivision"));
        rewriteAssignment(body, s + QLatin1String("first_bit_transmission"), param("FirstBit"));
        rewriteAssignment(body, s + QLatin1String("frame_bit_num"), param("DataSize"));
        rewriteAssignment(body, s + QLatin1String("clock_polarity"), param("CLKPolarity"));
        rewriteAssignment(body, s + QLatin1String("clock_phase"), param("CLKPhase"));
        rewriteAssignment(body, s + QLatin1String("cs_mode_selection"),
                          softCs ? QStringLiteral("SPI_CS_SOFTWARE_MODE")
                                 : QStringLiteral("SPI_CS_HARDWARE_MODE"));
        return gate(body, QStringLiteral("software cs slave"), !master && softCs) &&
               gate(body, QStringLiteral("hardware cs master"),
                    master && !softCs && paramTrue(QStringLiteral("CSHARD_Output"))) &&
               editIf(body, QStringLiteral("crc enable"),
                      paramIs(QStringLiteral("CRCCalculation"), QStringLiteral("SPI_CRC_ENABLE")),
                      [&](QString &b) {
                          setCall(b, QStringLiteral("spi_crc_polynomial_set"),
                                  param("CRCPolynomial"));
                          return true;
                      }) &&
               gate(body, QStringLiteral("interface protocol"),
                    paramIs(QStringLiteral("TIMode"), QStringLiteral("SPI_TIMODE_ENABLE"))) &&
               gateIfWanted(body, QStringLiteral("dma transmitter"),
                            hasDmaRequest(instanceName + QLatin1String("_TX"))) &&
               gateIfWanted(body, QStringLiteral("dma receiver"),
                            hasDmaRequest(instanceName + QLatin1String("_RX")));
    }
};

// ---------------------------------------------------------------------------------- I2S --

class I2sSection : public PeripheralSectionGenerator
{
protected:
    QStringList signalTails() const override { return {"CK", "SD", "WS", "MCK", "SDEXT", "CKIN"}; }

    bool fillBody(QString &body) override
    {
        const QString s = QStringLiteral("i2s_init_struct.");
        rewriteAssignment(body, s + QLatin1String("operation_mode"), param("Mode"));
        rewriteAssignment(body, s + QLatin1String("audio_protocol"), param("Standard"));
        rewriteAssignment(body, s + QLatin1String("data_channel_format"), param("DataFormat"));
        rewriteAssignment(body, s + QLatin1String("audio_sampling_freq"), param("AudioFreq"));
        rewriteAssignment(body, s + QLatin1String("clock_polarity"), param("CPOL"));
        rewriteAssignment(body, s + QLatin1String("mclk_output_enable"), param("MCLKOutput"));
        return gateIfWanted(body, QStringLiteral("dma transmitter"),
                            hasDmaRequest(instanceName + QLatin1String("_TX"))) &&
               gateIfWanted(body, QStringLiteral("dma receiver"),
                            hasDmaRequest(instanceName + QLatin1String("_RX")));
    }
};

// ---------------------------------------------------------------------------------- I2C --

class I2cSection : public PeripheralSectionGenerator
{
protected:
    QStringList signalTails() const override { return {"SCL", "SDA", "SMBA"}; }

    bool fillBody(QString &body) override
    {
        const bool fast = paramIs(QStringLiteral("I2C_Mode"), QStringLiteral("I2C_Fast"));
        const QString speed = fast ? param("ClockSpeed1") : param("ClockSpeed");
        const QString duty = fast ? param("DutyCycle") : QStringLiteral("I2C_FSMODE_DUTY_2_1");
        if (!rewriteCall(body, QStringLiteral("i2c_init"), {duty, speed}))
            return false;
        rewriteCall(body, QStringLiteral("i2c_own_address1_set"),
                    {param("AddressingMode"), param("OwnAddress")});
        setCall(body, QStringLiteral("i2c_clock_stretch_enable"), param("StretchMode"));
        const QString smbus = param("SMBusPeripheralMode");
        const bool smbusOn = !smbus.isEmpty() && smbus != QLatin1String("DISABLE");
        bool dmaUsed = !dmaRequests().isEmpty();
        return editIf(body, QStringLiteral("dual address enable"),
                      paramTrue(QStringLiteral("DualAddressMode")),
                      [&](QString &b) {
                          setCall(b, QStringLiteral("i2c_own_address2_set"),
                                  param("OwnAddress2"));
                          return true;
                      }) &&
               editIf(body, QStringLiteral("smbus enable"), smbusOn,
                      [&](QString &b) {
                          setCall(b, QStringLiteral("i2c_smbus_mode_set"), smbus);
                          return gate(b, QStringLiteral("smbus arp enable"),
                                      smbus == QLatin1String("I2C_SMBUS_MODE_HOST"));
                      }) &&
               gateIfWanted(body, QStringLiteral("i2c dma enable"), dmaUsed);
    }
};

// ---------------------------------------------------------------------------------- CRC --

class CrcSection : public PeripheralSectionGenerator
{
protected:
    bool fillBody(QString &body) override
    {
        const QString size = param("CRCPolynomialLength");
        QString poly = param("CRCPolynomialValue_32");
        if (size.endsWith(QLatin1String("_16B")))
            poly = param("CRCPolynomialValue_16");
        else if (size.endsWith(QLatin1String("_8B")))
            poly = param("CRCPolynomialValue_8");
        else if (size.endsWith(QLatin1String("_7B")))
            poly = param("CRCPolynomialValue_7");
        rewriteCall(body, QStringLiteral("crc_poly_size_set"), {size}, false);
        rewriteCall(body, QStringLiteral("crc_poly_value_set"), {poly}, false);
        rewriteCall(body, QStringLiteral("crc_init_data_set"), {param("InitValue")}, false);
        rewriteCall(body, QStringLiteral("crc_reverse_input_data_set"),
                    {param("InputDataReverseMode")}, false);
        rewriteCall(body, QStringLiteral("crc_reverse_output_data_set"),
                    {param("OutputDataReverseMode")}, false);
        return true;
    }
};

// ---------------------------------------------------------------------------- WDT, WWDT --

class WdtSection : public PeripheralSectionGenerator
{
protected:
    bool fillBody(QString &body) override
    {
        rewriteCall(body, QStringLiteral("wdt_divider_set"), {param("Prescaler")}, false);
        rewriteCall(body, QStringLiteral("wdt_reload_value_set"), {param("Reload")}, false);
        return editIf(body, QStringLiteral("window"), paramTrue(QStringLiteral("Window")),
                      [&](QString &b) {
                          rewriteCall(b, QStringLiteral("wdt_window_counter_set"),
                                      {param("WindowValue")}, false);
                          return true;
                      });
    }
};

class WwdtSection : public PeripheralSectionGenerator
{
protected:
    bool fillBody(QString &body) override
    {
        rewriteCall(body, QStringLiteral("wwdt_divider_set"), {param("Prescaler")}, false);
        rewriteCall(body, QStringLiteral("wwdt_window_counter_set"), {param("Window")}, false);
        rewriteCall(body, QStringLiteral("wwdt_counter_set"), {param("Counter")}, false);
        rewriteCall(body, QStringLiteral("wwdt_enable"), {param("Counter")}, false);
        return true;
    }
};

// --------------------------------------------------------------------------------- ERTC --

class ErtcSection : public PeripheralSectionGenerator
{
protected:
    QList<QPair<QString, bool>> declarations() const override
    {
        const Features f = features();
        return {{QStringLiteral("exint_init_struct"),
                 f.intA || f.intB || f.intW || f.intT || f.intS}};
    }

    bool fillBody(QString &body) override
    {
        const Features f = features();
        const bool alarmA = f.alarmA, alarmB = f.alarmB, wakeup = f.wakeup, tamper = f.tamper;
        const bool stamp = f.stamp, calendar = f.calendar;
        const bool intA = f.intA, intB = f.intB, intW = f.intW, intT = f.intT, intS = f.intS;
        rewriteCall(body, QStringLiteral("crm_ertc_clock_select"),
                    {inputs->clock.rtcClockMacro()}, false);
        rewriteCall(body, QStringLiteral("ertc_hour_mode_set"), {param("HourFormat")}, false);
        rewriteCall(body, QStringLiteral("ertc_divider_set"),
                    {param("AsynchPrediv"), param("SynchPrediv")}, false);
        const bool twelve = paramIs(QStringLiteral("HourFormat"), QStringLiteral("ERTC_HOUR_MODE_12"));
        const QString dst = param("DayLightSaving");
        bool ok =
            editIf(body, QStringLiteral("calender date"), calendar,
                   [&](QString &b) {
                       rewriteCall(b, QStringLiteral("ertc_date_set"),
                                   {param("Year"), param("Month"), param("Date"),
                                    param("WeekDay")},
                                   false);
                       return true;
                   }) &&
            editIf(body, QStringLiteral("calender time"), calendar,
                   [&](QString &b) {
                       rewriteCall(b, QStringLiteral("ertc_time_set"),
                                   {twelve ? param("Hours_12") : param("Hours_24"),
                                    param("Minutes"), param("Seconds"), param("TimeFormat")},
                                   false);
                       return true;
                   }) &&
            editIf(body, QStringLiteral("ertc_daylight_set"),
                   calendar && !dst.isEmpty() && dst != QLatin1String("ERTC_DST_NONE"),
                   [&](QString &b) {
                       rewriteCall(b, QStringLiteral("ertc_daylight_set"),
                                   {dst, param("StoreOperation")}, false);
                       return true;
                   }) &&
            alarm(body, QStringLiteral("a"), QStringLiteral("A"), alarmA, intA) &&
            alarm(body, QStringLiteral("b"), QStringLiteral("B"), alarmB, intB) &&
            editIf(body, QStringLiteral("wakeup timer"), wakeup,
                   [&](QString &b) {
                       rewriteCall(b, QStringLiteral("ertc_wakeup_clock_set"),
                                   {param("ClockSourceSelect")}, false);
                       rewriteCall(b, QStringLiteral("ertc_wakeup_counter_set"), {param("Counter")},
                                   false);
                       return gate(b, QStringLiteral("wakeup interrupt"), intW);
                   }) &&
            editIf(body, QStringLiteral("output"), hasSemaphore(QStringLiteral("OUTPUT")),
                   [&](QString &b) {
                       rewriteCall(b, QStringLiteral("ertc_output_set"),
                                   {outputSource(), param("OutPutPolarity"),
                                    param("OutPutType")},
                                   false);
                       return true;
                   });
        if (!ok)
            return false;
        const QString calib = param("CalibOutput");
        return editIf(body, QStringLiteral("calibration"),
                      !calib.isEmpty() && calib != QLatin1String("DISABLE"),
                      [&](QString &b) {
                          rewriteCall(b, QStringLiteral("ertc_calibration_output_set"), {calib},
                                      false);
                          return true;
                      }) &&
               editIf(body, QStringLiteral("tamper"), tamper,
                      [&](QString &b) {
                          setCall(b, QStringLiteral("ertc_tamper_valid_edge_set"),
                                  param("TamperTrigger"));
                          return keepBlock(b, QStringLiteral("tamper 1")) &&
                                 gate(b, QStringLiteral("tamper interrupt"), intT);
                      }) &&
               editIf(body, QStringLiteral("timestamp"), stamp,
                      [&](QString &b) {
                          rewriteCall(b, QStringLiteral("ertc_timestamp_valid_edge_set"),
                                      {param("TimeStampEdge")}, false);
                          return gate(b, QStringLiteral("timestamp interrupt"), intS);
                      }) &&
               gate(body, QStringLiteral("reference clock"), hasSemaphore(QStringLiteral("REFIN")));
    }

private:
    struct Features
    {
        bool alarmA, alarmB, wakeup, tamper, stamp, calendar;
        bool intA, intB, intW, intT, intS;
    };

    Features features() const
    {
        Features f;
        f.alarmA = hasSemaphore(QStringLiteral("ALARM_A"));
        f.alarmB = hasSemaphore(QStringLiteral("ALARM_B"));
        f.wakeup = hasSemaphore(QStringLiteral("WAKEUP"));
        f.tamper = hasSemaphore(QStringLiteral("TAMPER"));
        f.stamp = hasSemaphore(QStringLiteral("TIMESTAMP"));
        f.calendar = hasSemaphore(QStringLiteral("CALENDAR"));
        f.intA = f.alarmA && paramTrue(QStringLiteral("InterruptAlarmA"));
        f.intB = f.alarmB && paramTrue(QStringLiteral("InterruptAlarmB"));
        f.intW = f.wakeup && paramTrue(QStringLiteral("InterruptWakeupTimer"));
        f.intT = f.tamper && paramTrue(QStringLiteral("InterruptTamper"));
        f.intS = f.stamp && paramTrue(QStringLiteral("InterruptTimestamp"));
        return f;
    }

    bool alarm(QString &body, const QString &tag, const QString &suffix, bool on, bool irq)
    {
        const QString s = QLatin1Char('_') + suffix;
        return editIf(body, QLatin1String("alarm ") + tag, on, [&](QString &b) {
            setCall(b, QStringLiteral("ertc_alarm_mask_set"), param(QLatin1String("AlarmMask") + s));
            setCall(b, QStringLiteral("ertc_alarm_week_date_select"),
                    param(QLatin1String("AlarmDateWeekSel") + s));
            rewriteCall(b, QStringLiteral("ertc_alarm_set"),
                        {param(QLatin1String("Date") + s), param(QLatin1String("Hours") + s),
                         param(QLatin1String("Minutes") + s), param(QLatin1String("Seconds") + s),
                         param(QStringLiteral("TimeFormat"))});
            return gate(b, QLatin1String("alarm ") + tag + QLatin1String(" interrupt"), irq);
        });
    }

    QString outputSource() const
    {
        if (modeSelection(QStringLiteral("Alarm A")) == QLatin1String("Alarm A Output"))
            return QStringLiteral("ERTC_OUTPUT_ALARM_A");
        if (modeSelection(QStringLiteral("Alarm B")) == QLatin1String("Alarm B Output"))
            return QStringLiteral("ERTC_OUTPUT_ALARM_B");
        if (modeSelection(QStringLiteral("Wake Up")) == QLatin1String("Wake Up Output"))
            return QStringLiteral("ERTC_OUTPUT_WAKEUP");
        return QString();
    }
};

// ---------------------------------------------------------------------------------- CMP --

class CmpSection : public PeripheralSectionGenerator
{
protected:
    QStringList signalTails() const override
    {
        return {"OUT", "INP0", "INP1", "INP2", "INM4", "INM5", "INM6", "INM7"};
    }

    bool fillBody(QString &body) override
    {
        const QString s = QStringLiteral("cmp_init_struct.");
        rewriteAssignment(body, s + QLatin1String("cmp_non_inverting"), param("NonInvertingInput"));
        rewriteAssignment(body, s + QLatin1String("cmp_inverting"), param("InvertingInput"));
        rewriteAssignment(body, s + QLatin1String("cmp_output"), param("Output"));
        rewriteAssignment(body, s + QLatin1String("cmp_polarity"), param("OutputPol"));
        rewriteAssignment(body, s + QLatin1String("cmp_speed"), param("Mode"));
        rewriteAssignment(body, s + QLatin1String("cmp_hysteresis"), param("Hysteresis"));
        if (hasParam(QStringLiteral("WriteProtect")))
            return gate(body, QStringLiteral("write protect"),
                        paramTrue(QStringLiteral("WriteProtect")));
        return true;
    }
};

// ---------------------------------------------------------------------------------- ADC --

class AdcSection : public PeripheralSectionGenerator
{
protected:
    QStringList signalTails() const override
    {
        QStringList tails;
        for (int i = 0; i <= 15; ++i)
            tails << QStringLiteral("IN%1").arg(i);
        return tails;
    }
    QString pinTag(const QString &tail) const override { return tail; }

    bool fillBody(QString &body) override
    {
        const QString adcDiv = inputs->clock.adcDivMacro();
        if (!adcDiv.isEmpty())
            rewriteCall(body, QStringLiteral("crm_adc_clock_div_set"), {adcDiv}, false);
        if (!gate(body, QStringLiteral("temperature sensor VINTRV channel"),
                  paramTrue(QStringLiteral("TemperatureVINTRV"))))
            return false;
        const QString s = QStringLiteral("adc_base_struct.");
        rewriteAssignment(body, s + QLatin1String("sequence_mode"), param("SequenceMode"));
        rewriteAssignment(body, s + QLatin1String("repeat_mode"), param("RepeatMode"));
        rewriteAssignment(body, s + QLatin1String("data_align"), param("DataAlign"));
        rewriteAssignment(body, s + QLatin1String("ordinary_channel_length"),
                          param("NbrOfOrdinarySequence"));
        const bool ordinary = paramEnabled(QStringLiteral("EnableOrdinaryConversion"));
        if (!editIf(body, QStringLiteral("ordinary_conversions"), ordinary,
                    [&](QString &b) { return ordinaryChannels(b); }))
            return false;
        if (!gate(body, QStringLiteral("dma_mode"), hasDmaRequest(instanceName)))
            return false;
        const bool preempt = paramEnabled(QStringLiteral("EnablePreemptedConversion"));
        if (!editIf(body, QStringLiteral("preempt_conversions"), preempt,
                    [&](QString &b) { return preemptedChannels(b); }))
            return false;
        const QString vmMode = param("VoltageMonitoringMode");
        if (!editIf(body, QStringLiteral("voltage_monitoring"),
                    paramEnabled(QStringLiteral("EnableVoltageMonitoring")), [&](QString &b) {
                        setCall(b, QStringLiteral("adc_voltage_monitor_enable"), vmMode);
                        rewriteCall(b, QStringLiteral("adc_voltage_monitor_threshold_value_set"),
                                    {param("AWD1HighBoundary"), param("AWD1LowBoundary")});
                        const bool single =
                            vmMode == QLatin1String("ADC_VMONITOR_SINGLE_ORDINARY") ||
                            vmMode == QLatin1String("ADC_VMONITOR_SINGLE_PREEMPT") ||
                            vmMode == QLatin1String("ADC_VMONITOR_SINGLE_ORDINARY_PREEMPT");
                        return editIf(b, QStringLiteral("voltage_monitor_single_channel"), single,
                                      [&](QString &c) {
                                          setCall(c,
                                                  QStringLiteral(
                                                      "adc_voltage_monitor_single_channel_select"),
                                                  param("VoltageMonitoringChannel"));
                                          return true;
                                      }) &&
                               gate(b, QStringLiteral("voltage_monitoring_interrupt"),
                                    paramEnabled(QStringLiteral("VoltageMonitoringInterrupt")));
                    }))
            return false;
        if (hasParam(QStringLiteral("AD_Calibration")))
            return gate(body, QStringLiteral("adc_calibration"),
                        paramEnabled(QStringLiteral("AD_Calibration")));
        return true;
    }

private:
    bool ordinaryChannels(QString &b) const
    {
        const int n = param("NbrOfOrdinarySequence").toInt();
        for (int k = 1; k <= 16; ++k) {
            const QString pattern =
                QStringLiteral(" *adc_ordinary_channel_set\\(((\\s*\\w+),\\s*\\w+,\\s*%1,\\s*\\w+)"
                               "\\); *\n")
                    .arg(k);
            const QString line =
                k <= n ? QStringLiteral("  adc_ordinary_channel_set(%1, %2, %3, %4);\n")
                             .arg(instanceName, param(QStringLiteral("Channel_OrdinarySequence_%1").arg(k)))
                             .arg(k)
                             .arg(param(QStringLiteral("SamplingTime_OrdinarySequence_%1").arg(k)))
                       : QString();
            replacePattern(b, pattern, line);
        }
        rewriteCall(b, QStringLiteral("adc_ordinary_conversion_trigger_set"),
                    {param("OrdinaryTriggerSource"), QStringLiteral("TRUE")});
        setCall(b, QStringLiteral("adc_ordinary_part_mode_enable"), param("OrdinaryPartitionedMode"));
        return editIf(b, QStringLiteral("number_of_partitioned_conversation"),
                      paramTrue(QStringLiteral("OrdinaryPartitionedMode")), [&](QString &c) {
                          setCall(c, QStringLiteral("adc_ordinary_part_count_set"),
                                  param("NbrOfOrdinaryPartitioned"));
                          return true;
                      });
    }

    bool preemptedChannels(QString &b) const
    {
        const int m = param("NbrOfPreemptedSequence").toInt();
        setCall(b, QStringLiteral("adc_preempt_channel_length_set"), param("NbrOfPreemptedSequence"));
        for (int k = 1; k <= 4; ++k) {
            if (!editIf(b, QStringLiteral("sequence_%1").arg(k), k <= m, [&](QString &c) {
                    rewriteCall(c, QStringLiteral("adc_preempt_channel_set"),
                                {param(QStringLiteral("Channel_PreemptedSequence_%1").arg(k)),
                                 QString::number(k),
                                 param(QStringLiteral("SamplingTime_PreemptedSequence_%1").arg(k))});
                    rewriteCall(c, QStringLiteral("adc_preempt_offset_value_set"),
                                {QString(),
                                 param(QStringLiteral("PreemptedOffset_PreemptedSequence_%1")
                                           .arg(k))});
                    return true;
                }))
                return false;
        }
        const QString mode = param("PreemptedConvMode");
        const QString trigger = param("PreemptedTriggerSource");
        return gate(b, QStringLiteral("preempt_partitioned_mode"),
                    mode == QLatin1String("Partitioned")) &&
               gate(b, QStringLiteral("preempt_auto_mode"), mode == QLatin1String("AutoPreempted")) &&
               editIf(b, QStringLiteral("preempt_conversion_trigger"),
                      trigger != QLatin1String("DISABLE"),
                      [&](QString &c) {
                          rewriteCall(c, QStringLiteral("adc_preempt_conversion_trigger_set"),
                                      {trigger, QStringLiteral("TRUE")});
                          return true;
                      }) &&
               gate(b, QStringLiteral("preempt_interrupt"),
                    paramEnabled(QStringLiteral("PreemptedInterrupt")));
    }
};

// -------------------------------------------------------------------------------- EXINT --

class ExintSection : public PeripheralSectionGenerator
{
protected:
    bool fillBody(QString &body) override
    {
        const QList<const GeneratorPin *> lines = inputs->signalsOf(instanceName);
        return repeatBlock(body, QStringLiteral("exint_x"), lines.size(), [&](QString &copy, int i) {
            const GeneratorPin &pin = *lines.at(i);
            const QString line = pin.signal;
            const int number = line.mid(5).toInt();
            const PinMacroRecord *macro = inputs->pinMacro(pin.pinName);
            if (!macro)
                return false;
            copy.replace(QStringLiteral("configure the EXINTx"),
                         QStringLiteral("configure the ") + line);
            if (!fillPinLines(copy, pin, Pins | Pull | Init))
                return false;
            const QString lineFn = family->perPinMux ? QStringLiteral("scfg_exint_line_config")
                                                     : QStringLiteral("gpio_exint_line_config");
            if (!rewriteCall(copy, lineFn, {macro->scfgPortSourceMacro, macro->scfgPinsSourceMacro},
                             false))
                return false;
            const QString select = macro->exintLineMacro.isEmpty()
                                       ? QStringLiteral("EXINT_LINE_%1").arg(number)
                                       : macro->exintLineMacro;
            rewriteAssignment(copy, QStringLiteral("exint_init_struct.line_select"), select);
            rewriteAssignment(copy, QStringLiteral("exint_init_struct.line_mode"),
                              param(QLatin1String("InterruptEvent_") + line));
            rewriteAssignment(copy, QStringLiteral("exint_init_struct.line_polarity"),
                              param(QLatin1String("TriggerPolarity_") + line));
            QStringList handlers;
            for (const GeneratorInterrupt &irq : inputs->interrupts) {
                if (irq.enabled && exintCovers(irq.sectionName(), number))
                    handlers << irq.handler;
            }
            if (findBlock(copy, QStringLiteral("interrupt remarks")).isValid())
                return rebuildInterruptRemarks(copy, handlers);
            return true;
        });
    }

    QList<const GeneratorInterrupt *> ownInterrupts() const override { return {}; }

private:
    // Whether an interrupt named "EXINT15_4_IRQ" or "EXINT0_IRQ" serves a line.
    static bool exintCovers(const QString &name, int line)
    {
        static const QRegularExpression range(QStringLiteral("^EXINT(\\d+)_(\\d+)_IRQ$"));
        static const QRegularExpression single(QStringLiteral("^EXINT(\\d+)_IRQ$"));
        QRegularExpressionMatch m = range.match(name);
        if (m.hasMatch()) {
            const int a = m.captured(1).toInt(), b = m.captured(2).toInt();
            return line >= qMin(a, b) && line <= qMax(a, b);
        }
        m = single.match(name);
        return m.hasMatch() && m.captured(1).toInt() == line;
    }
};

// ---------------------------------------------------------------------------------- PWC --

class PwcSection : public PeripheralSectionGenerator
{
protected:
    QStringList signalTails() const override
    {
        QStringList tails;
        for (int i = 1; i <= 8; ++i)
            tails << QStringLiteral("WKUP%1").arg(i);
        return tails;
    }

    QList<QPair<QString, bool>> declarations() const override
    {
        return PeripheralSectionGenerator::declarations()
               << qMakePair(QStringLiteral("exint_init_struct"), pvmInterrupt());
    }

    bool pvmInterrupt() const
    {
        const GeneratorInterrupt *pvm = inputs->interrupt(QStringLiteral("PVM_IRQ"));
        return paramTrue(QStringLiteral("VoltageMonitoring")) && pvm && pvm->enabled;
    }

    bool fillBody(QString &body) override
    {
        const bool monitor = paramTrue(QStringLiteral("VoltageMonitoring"));
        const bool pvmInterrupt = this->pvmInterrupt();
        if (!editIf(body, QStringLiteral("voltage_monitor_enable"), monitor, [&](QString &b) {
                return editIf(b, QStringLiteral("pvm_level"), true,
                              [&](QString &c) {
                                  setCall(c, QStringLiteral("pwc_pvm_level_select"),
                                          param("BoundarySelect"));
                                  return true;
                              }) &&
                       gate(b, QStringLiteral("pvm_special"), pvmInterrupt);
            }))
            return false;
        QStringList pins;
        for (int i = 1; i <= 8; ++i) {
            if (paramTrue(QStringLiteral("WakeupPin%1").arg(i)))
                pins << QString::number(i);
        }
        return repeatBlock(body, QStringLiteral("wakeup_pin"), pins.size(),
                           [&](QString &copy, int i) {
                               return rewriteCall(copy, QStringLiteral("pwc_wakeup_pin_enable"),
                                                  {QLatin1String("PWC_WAKEUP_PIN_") + pins.at(i),
                                                   QStringLiteral("TRUE")},
                                                  false);
                           });
    }
};

// ---------------------------------------------------------------------------------- TMR --

class TmrSection : public PeripheralSectionGenerator
{
protected:
    QList<QPair<QString, bool>> declarations() const override
    {
        QStringList modes;
        for (int n = 1; n <= 4; ++n)
            modes << param(QStringLiteral("Channel%1Mode").arg(n));
        const QString sub = param("SubModeInput_Selection");
        const QString multi = param("Multi_Channels");
        const bool hall = multi.contains(QLatin1String("XOR_HALL_Mode"));
        const bool subInput = sub == QLatin1String("TMR_SUB_INPUT_SEL_C1INC") ||
                              sub == QLatin1String("TMR_SUB_INPUT_SEL_C1DF1") ||
                              sub == QLatin1String("TMR_SUB_INPUT_SEL_C2DF2");
        return PeripheralSectionGenerator::declarations()
               << qMakePair(QStringLiteral("tmr_input_struct"),
                            modes.contains(QStringLiteral("INPUT")) || subInput ||
                                multi == QLatin1String("ENCODER") || hall)
               << qMakePair(QStringLiteral("tmr_output_struct"),
                            modes.contains(QStringLiteral("OUTPUT")) || hall)
               << qMakePair(QStringLiteral("tmr_brkdt_struct"),
                            paramTrue(QStringLiteral("BreakState")));
    }

    QStringList signalTails() const override
    {
        return {"CH1", "CH1C", "CH2", "CH2C", "CH3", "CH3C", "CH4", "EXT", "BRK"};
    }

    bool fillBody(QString &body) override
    {
        QStringList modes;
        for (int n = 1; n <= 4; ++n)
            modes << param(QStringLiteral("Channel%1Mode").arg(n));
        const bool anyOut = modes.contains(QStringLiteral("OUTPUT"));
        const QString sub = param("SubModeInput_Selection");
        const QString multi = param("Multi_Channels");
        const bool hall = multi.contains(QLatin1String("XOR_HALL_Mode"));
        const bool advanced = hasParam(QStringLiteral("BreakState"));
        if (!rewriteCall(body, QStringLiteral("tmr_base_init"),
                         {param("Period"), param("DividerValue")}))
            return false;
        setCall(body, QStringLiteral("tmr_cnt_dir_set"), param("CounterDirection"));
        setCall(body, QStringLiteral("tmr_clock_source_div_set"), param("ClockDivision"));
        setCall(body, QStringLiteral("tmr_repetition_counter_set"), param("RepetitionCounter"));
        setCall(body, QStringLiteral("tmr_period_buffer_enable"), param("PeriodBufferEnable"));

        if (hasParam(QStringLiteral("ClockSource")) &&
            !editIf(body, QStringLiteral("external clock mode b settings"),
                    paramIs(QStringLiteral("ClockSource"),
                            QStringLiteral("TMR_CLOCKSOURCE_EXTMODEB")),
                    [&](QString &b) {
                        rewriteCall(b, QStringLiteral("tmr_external_clock_mode2_config"),
                                    {param("ExternalClockDivider"), param("ExternalClockPolarity"),
                                     param("ExternalClockFilter")});
                        return true;
                    }))
            return false;
        const QString subMode = param("TMR_SubMode_Control");
        if (hasParam(QStringLiteral("TMR_SubMode_Control")) &&
            !editIf(body, QStringLiteral("sub-mode"),
                    !subMode.isEmpty() && subMode != QLatin1String("TMR_SUB_MODE_DIABLE"),
                    [&](QString &b) {
                        return setCall(b, QStringLiteral("tmr_sub_mode_select"), subMode);
                    }))
            return false;
        if (hasParam(QStringLiteral("SubModeInput_Selection")) &&
            !editIf(body, QStringLiteral("sub-mode input"),
                    !sub.isEmpty() && sub != QLatin1String("FALSE"),
                    [&](QString &b) { return subModeInput(b, sub, modes); }))
            return false;

        const QList<QPair<QString, QString>> switches = {
            {"enable xor", "Enable_XOR"},
            {"enable one cycle mode", "One_Cycle_Mode"},
            {"enable channel control bit refresh", "Enable_CCBR"},
            {"enable channel buffer", "Enable_CBuffer"},
            {"enable plus mode", "Plus_Mode"}};
        for (const auto &s : switches) {
            if (hasParam(s.second) && !gate(body, s.first, paramTrue(s.second)))
                return false;
        }
        if (hasParam(QStringLiteral("Overflow_Event"))) {
            const QString ov = param("Overflow_Event");
            if (!gate(body, QStringLiteral("overflow event disable"), ov == QLatin1String("FALSE")) ||
                !gate(body, QStringLiteral("overflow request source"),
                      ov == QLatin1String("Overflow_From_C")))
                return false;
        }
        for (int n = 1; n <= 4; ++n) {
            if (hasParam(QStringLiteral("Channel%1Mode").arg(n)) &&
                !channel(body, n, modes.at(n - 1)))
                return false;
        }
        if (advanced && !breakDeadTime(body))
            return false;
        if (hasParam(QStringLiteral("EncoderMode")) &&
            !editIf(body, QStringLiteral("encoder mode"), multi == QLatin1String("ENCODER"),
                    [&](QString &b) {
                        rewriteCall(b, QStringLiteral("tmr_encoder_mode_config"),
                                    {param("EncoderMode"), param("IC1Polarity"),
                                     param("IC2Polarity")});
                        return editIf(b, QStringLiteral("ch1"), true,
                                      [&](QString &c) { return icChannel(c, 1, false); }) &&
                               editIf(b, QStringLiteral("ch2"), true,
                                      [&](QString &c) { return icChannel(c, 2, false); });
                    }))
            return false;
        const bool pwmIn1 = multi == QLatin1String("PWM_Input_1");
        const bool pwmIn2 = multi == QLatin1String("PWM_Input_2");
        if (hasParam(QStringLiteral("Multi_Channels")) &&
            !editIf(body, QStringLiteral("pwm input with ch1 ch2"), pwmIn1 || pwmIn2,
                    [&](QString &b) {
                        setCall(b, QStringLiteral("tmr_trigger_input_select"),
                                param("SubModeInput_Selection_ForMultiChannels"));
                        return setCall(b, QStringLiteral("tmr_sub_mode_select"),
                                       param("SubordinateMode_ForMultiChannels")) &&
                               editIf(b, QStringLiteral("ch1"), pwmIn1,
                                      [&](QString &c) { return icChannel(c, 1, true); }) &&
                               editIf(b, QStringLiteral("ch2"), pwmIn2,
                                      [&](QString &c) { return icChannel(c, 2, true); });
                    }))
            return false;
        if (hasParam(QStringLiteral("HallDelay")) &&
            !editIf(body, QStringLiteral("hall mode"), hall, [&](QString &b) {
                const QString s = QStringLiteral("tmr_input_struct.");
                rewriteAssignment(b, s + QLatin1String("input_polarity_select"),
                                  param("IC1Polarity"));
                rewriteAssignment(b, s + QLatin1String("input_filter_value"), param("IC1Filter"));
                inputDivider(b, param("IC1InputDivider"));
                rewriteCall(b, QStringLiteral("tmr_channel_value_set"),
                            {QString(), param("HallDelay")});
                return true;
            }))
            return false;
        const QList<QPair<QString, QString>> dma = {
            {"dma_overflow", "OVERFLOW"}, {"dma_c1", "CH1"}, {"dma_c2", "CH2"}, {"dma_c3", "CH3"},
            {"dma_c4", "CH4"},           {"dma_hall", "HALL"}, {"dma_trigger", "TRIG"}};
        for (const auto &d : dma) {
            if (!gateIfWanted(body, d.first,
                              hasDmaRequest(instanceName + QLatin1Char('_') + d.second)))
                return false;
        }
        if (advanced && !gate(body, QStringLiteral("tmr_output_enable"), anyOut))
            return false;
        if (!gate(body, QStringLiteral("tmr_counter_enable"),
                  subMode != QLatin1String("TMR_SUB_TRIGGER_MODE")))
            return false;
        setCall(body, QStringLiteral("tmr_sub_sync_mode_set"), param("Synchronize_With_Subtimer"));
        setCall(body, QStringLiteral("tmr_primary_mode_select"), param("Primary_TMR_output"));
        return true;
    }

private:
    // "tmr_input_channel_init(TMRx, &struct, divider);" keeps its first two arguments.
    static void inputDivider(QString &text, const QString &divider)
    {
        if (divider.isEmpty())
            return;
        replacePattern(text,
                       QStringLiteral("tmr_input_channel_init\\((\\w+,\\s*&\\w+),\\s*\\w+\\);?"),
                       QStringLiteral("tmr_input_channel_init(\\1, ") + divider +
                           QStringLiteral(");"));
    }

    bool subModeInput(QString &b, const QString &sub, const QStringList &modes) const
    {
        if (!setCall(b, QStringLiteral("tmr_trigger_input_select"), sub))
            return false;
        if (hasParam(QStringLiteral("SubModeInput_EXT_divider")) &&
            !editIf(b, QStringLiteral("sub-mode input ext"),
                    sub == QLatin1String("TMR_SUB_INPUT_SEL_EXTIN"), [&](QString &c) {
                        rewriteCall(c, QStringLiteral("tmr_external_clock_config"),
                                    {param("SubModeInput_EXT_divider"),
                                     param("SubModeInput_EXT_polarity"),
                                     param("SubModeInput_EXT_filter")});
                        return true;
                    }))
            return false;
        const QString s = QStringLiteral("tmr_input_struct.");
        const bool ch1Input = modes.value(0) == QLatin1String("INPUT");
        const bool ch2Input = modes.value(1) == QLatin1String("INPUT");
        return editIf(b, QStringLiteral("sub-mode input c1inc"),
                      sub == QLatin1String("TMR_SUB_INPUT_SEL_C1INC") && !ch1Input,
                      [&](QString &c) {
                          rewriteAssignment(c, s + QLatin1String("input_filter_value"),
                                            param("SubModeInput_C1INC_filter"));
                          return true;
                      }) &&
               editIf(b, QStringLiteral("sub-mode input c1df1"),
                      sub == QLatin1String("TMR_SUB_INPUT_SEL_C1DF1") && !ch1Input,
                      [&](QString &c) {
                          rewriteAssignment(c, s + QLatin1String("input_polarity_select"),
                                            param("SubModeInput_C1DF1_polarity"));
                          rewriteAssignment(c, s + QLatin1String("input_filter_value"),
                                            param("SubModeInput_C1DF1_filter"));
                          return true;
                      }) &&
               editIf(b, QStringLiteral("sub-mode input c2df2"),
                      sub == QLatin1String("TMR_SUB_INPUT_SEL_C2DF2") && !ch2Input,
                      [&](QString &c) {
                          rewriteAssignment(c, s + QLatin1String("input_polarity_select"),
                                            param("SubModeInput_C2DF2_polarity"));
                          rewriteAssignment(c, s + QLatin1String("input_filter_value"),
                                            param("SubModeInput_C2DF2_filter"));
                          return true;
                      });
    }

    bool channel(QString &body, int n, const QString &mode) const
    {
        const QString num = QString::number(n);
        const bool input = mode == QLatin1String("INPUT");
        const bool output = mode == QLatin1String("OUTPUT");
        const QString in = QStringLiteral("tmr_input_struct.");
        const QString out = QStringLiteral("tmr_output_struct.");
        return editIf(body, QStringLiteral("channel %1 input settings").arg(n), input,
                      [&](QString &b) {
                          const QString mapped = param(QLatin1String("InputSelection_Channel") + num);
                          rewriteAssignment(b, in + QLatin1String("input_mapped_select"), mapped);
                          rewriteAssignment(b, in + QLatin1String("input_polarity_select"),
                                            param(QLatin1String("InputPolarity_CH") + num));
                          const QString sti = QLatin1String("InputFilter_STI_") + num;
                          const QString filter =
                              mapped == QLatin1String("TMR_CC_CHANNEL_MAPPED_STI") && hasParam(sti)
                                  ? param(sti)
                                  : param(QLatin1String("InputFilter_CH") + num);
                          rewriteAssignment(b, in + QLatin1String("input_filter_value"), filter);
                          inputDivider(b, param(QLatin1String("InputDivider_Channel") + num));
                          const QString remap = QLatin1String("InputRemap_CH") + num;
                          if (!hasParam(remap))
                              return true;
                          return editIf(b, QStringLiteral("channel %1 input remap").arg(n), true,
                                        [&](QString &c) {
                                            rewriteCall(c, QStringLiteral("tmr_iremap_config"),
                                                        {param(remap)});
                                            return true;
                                        });
                      }) &&
               editIf(body, QStringLiteral("channel %1 output settings").arg(n), output,
                      [&](QString &b) {
                          const QString ocMode = param(QLatin1String("OCMode_") + num);
                          rewriteAssignment(b, out + QLatin1String("oc_mode"), ocMode);
                          rewriteAssignment(b, out + QLatin1String("oc_output_state"),
                                            param(QLatin1String("OCState_") + num));
                          rewriteAssignment(b, out + QLatin1String("oc_polarity"),
                                            param(QLatin1String("OCPolarity_") + num));
                          rewriteAssignment(b, out + QLatin1String("oc_idle_state"),
                                            param(QLatin1String("OCIdleState_") + num));
                          if (hasParam(QLatin1String("OCCState_") + num)) {
                              rewriteAssignment(b, out + QLatin1String("occ_output_state"),
                                                param(QLatin1String("OCCState_") + num));
                              rewriteAssignment(b, out + QLatin1String("occ_polarity"),
                                                param(QLatin1String("OCCPolarity_") + num));
                              rewriteAssignment(b, out + QLatin1String("occ_idle_state"),
                                                param(QLatin1String("OCCIdleState_") + num));
                          }
                          rewriteCall(b, QStringLiteral("tmr_channel_value_set"),
                                      {QString(), param(QLatin1String("ChannelData_") + num)});
                          rewriteCall(b, QStringLiteral("tmr_output_channel_buffer_enable"),
                                      {QString(), param(QLatin1String("OC") + num +
                                                        QLatin1String("Buffer"))});
                          const bool pwm = ocMode.contains(QLatin1String("PWM_MODE"));
                          return editIf(b, QStringLiteral("pwm mode"), pwm, [&](QString &c) {
                              rewriteCall(c, QStringLiteral("tmr_output_channel_immediately_set"),
                                          {QString(), param(QLatin1String("OC") + num +
                                                            QLatin1String("ImmediatelyMode_PWM"))});
                              return true;
                          });
                      });
    }

    bool icChannel(QString &c, int n, bool pwmInput) const
    {
        const QString num = QString::number(n);
        const QString s = pwmInput ? QStringLiteral("tmr_ic_init_struct.")
                                   : QStringLiteral("tmr_input_struct.");
        rewriteAssignment(c, s + QLatin1String("input_mapped_select"),
                          param(QLatin1String("IC") + num + QLatin1String("Selection")));
        rewriteAssignment(c, s + QLatin1String("input_polarity_select"),
                          param(QLatin1String("IC") + num + QLatin1String("Polarity")));
        rewriteAssignment(c, s + QLatin1String("input_filter_value"),
                          param(QLatin1String("IC") + num + QLatin1String("Filter")));
        const QString divider = param(QLatin1String("IC") + num + QLatin1String("InputDivider"));
        if (pwmInput) {
            if (!divider.isEmpty())
                replacePattern(c,
                               QStringLiteral("tmr_pwm_input_config\\((\\w+,\\s*&\\w+),\\s*\\w+\\);?"),
                               QStringLiteral("tmr_pwm_input_config(\\1, ") + divider +
                                   QStringLiteral(");"));
        } else {
            inputDivider(c, divider);
        }
        return true;
    }

    bool breakDeadTime(QString &body) const
    {
        return editIf(body, QStringLiteral("break and dead-time settings"),
                      paramTrue(QStringLiteral("BreakState")), [&](QString &b) {
                          const QString s = QStringLiteral("tmr_brkdt_struct.");
                          rewriteAssignment(b, s + QLatin1String("brk_enable"), param("BreakState"));
                          rewriteAssignment(b, s + QLatin1String("auto_output_enable"),
                                            param("AutomaticOutput"));
                          rewriteAssignment(b, s + QLatin1String("brk_polarity"),
                                            param("BrakeInputValidity"));
                          rewriteAssignment(b, s + QLatin1String("fcsoen_state"),
                                            param("FrozenChannelStatus1"));
                          rewriteAssignment(b, s + QLatin1String("fcsodis_state"),
                                            param("FrozenChannelStatus2"));
                          rewriteAssignment(b, s + QLatin1String("wp_level"), param("WriteProtected"));
                          rewriteAssignment(b, s + QLatin1String("deadtime"), param("DeadTime"));
                          return true;
                      });
    }
};

// -------------------------------------------------------------------------------- IRTMR --

class IrtmrSection : public PeripheralSectionGenerator
{
protected:
    bool fillBody(QString &body) override
    {
        if (!configureSignalPin(body, QStringLiteral("IR_OUT"), QStringLiteral("ir_out")))
            return false;
        QString source = QStringLiteral("SCFG_IR_SOURCE_TMR17");
        if (hasSemaphore(QStringLiteral("ENV_USART1")))
            source = QStringLiteral("SCFG_IR_SOURCE_USART1");
        else if (hasSemaphore(QStringLiteral("ENV_USART2")))
            source = QStringLiteral("SCFG_IR_SOURCE_USART2");
        const bool inverted = modeSelection(QStringLiteral("Output Polarity")) ==
                              QLatin1String("Inverted");
        rewriteCall(body, QStringLiteral("scfg_infrared_config"),
                    {source, inverted ? QStringLiteral("SCFG_IR_POLARITY_REVERSE")
                                      : QStringLiteral("SCFG_IR_POLARITY_NO_AFFECTED")},
                    false);
        return true;
    }
};

// --------------------------------------------------------------------------------- SCFG --

class ScfgSection : public PeripheralSectionGenerator
{
protected:
    bool fillBody(QString &body) override
    {
        const bool remap = hasSemaphore(QStringLiteral("PA11PA12_REMAP")) ||
                           modeSelection(QStringLiteral("PA11 PA12 remap")) == kTrue;
        return gateIfWanted(body, QStringLiteral("pa11pa12_remap"), remap);
    }
};

} // namespace

namespace {

// A generator of no type: only its pin lines are used.
class PinLineWriter : public PeripheralSectionGenerator
{
public:
    bool write(QString &text, const GeneratorPin &pin, int steps) const
    {
        return fillPinLines(text, pin, steps);
    }

protected:
    bool fillBody(QString &) override { return true; }
};

} // namespace

bool writePinLines(const GeneratorFamily &family, const GeneratorInputs &inputs, QString &text,
                   const GeneratorPin &pin, int steps)
{
    PinLineWriter writer;
    writer.setup(family, inputs, GeneratorPeripheral());
    return writer.write(text, pin, steps);
}

std::unique_ptr<PeripheralSectionGenerator> createSectionGenerator(const QString &typeName)
{
    if (typeName == QLatin1String("USART") || typeName == QLatin1String("UART"))
        return std::make_unique<UsartSection>();
    if (typeName == QLatin1String("SPI"))
        return std::make_unique<SpiSection>();
    if (typeName == QLatin1String("I2S") || typeName == QLatin1String("I2SF"))
        return std::make_unique<I2sSection>();
    if (typeName == QLatin1String("I2C"))
        return std::make_unique<I2cSection>();
    if (typeName == QLatin1String("CRC"))
        return std::make_unique<CrcSection>();
    if (typeName == QLatin1String("WDT"))
        return std::make_unique<WdtSection>();
    if (typeName == QLatin1String("WWDT"))
        return std::make_unique<WwdtSection>();
    if (typeName == QLatin1String("ERTC"))
        return std::make_unique<ErtcSection>();
    if (typeName == QLatin1String("CMP"))
        return std::make_unique<CmpSection>();
    if (typeName.startsWith(QLatin1String("ADC")) && typeName != QLatin1String("ADC-Common"))
        return std::make_unique<AdcSection>();
    if (typeName == QLatin1String("EXINT"))
        return std::make_unique<ExintSection>();
    if (typeName == QLatin1String("PWC"))
        return std::make_unique<PwcSection>();
    if (typeName.startsWith(QLatin1String("TMR")))
        return std::make_unique<TmrSection>();
    if (typeName == QLatin1String("IRTMR"))
        return std::make_unique<IrtmrSection>();
    if (typeName == QLatin1String("SCFG"))
        return std::make_unique<ScfgSection>();
    return nullptr;
}
