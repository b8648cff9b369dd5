// The report's rows made from the design's records: values as the panels show them, changed
// parameters, the DMA settings listed per request, the order of the GPIO rows, the interrupts
// nobody can use, the pin table and the family's notes.

#include "database/language.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/nvicmodel.h"
#include "report/reportrows.h"

#include <gtest/gtest.h>

namespace {

// Keeps the language of database texts at English for a test.
class English
{
public:
    English() : m_saved(g_language) { g_language = 0; }
    ~English() { g_language = m_saved; }

private:
    int m_saved;
};

RefParamValue entry(const QString &value, const QString &comment, const QString &condition = {})
{
    RefParamValue v;
    v.Value = value;
    v.Comment = v.CommentEN = comment;
    v.Condition = condition;
    return v;
}

RefParameter listParameter()
{
    RefParameter p;
    p.Name = QStringLiteral("Parityselection");
    p.Comment = p.CommentEN = QStringLiteral("Parity");
    p.CommentCH = QStringLiteral("校验");
    p.Group = p.GroupEN = QStringLiteral("Basic Parameters");
    p.Type = QStringLiteral("list");
    p.DefaultValue = p.Value = QStringLiteral("USART_PARITY_NONE");
    p.PossibleValues = {entry("USART_PARITY_NONE", "None"), entry("USART_PARITY_EVEN", "Even"),
                        entry("USART_PARITY_ODD", "Odd")};
    return p;
}

RefParameter numberParameter(const QString &type, const QString &value)
{
    RefParameter p;
    p.Name = QStringLiteral("Number");
    p.Comment = p.CommentEN = QStringLiteral("A number");
    p.Type = type;
    p.DefaultValue = QStringLiteral("10");
    p.Value = value;
    p.Min = QStringLiteral("0");
    p.Max = type == QLatin1String("hexadecimal") ? QStringLiteral("0xFFFF") : QStringLiteral("1000");
    p.Unit = type == QLatin1String("hexadecimal") ? QString() : QStringLiteral("ms");
    return p;
}

RefParameter dmaParameter(const QString &name, const QString &value)
{
    RefParameter p;
    p.Name = name;
    p.Comment = p.CommentEN = name + QStringLiteral(" text");
    p.Value = value;
    return p;
}

QStringList settingNames(const ReportDmaRequest &r)
{
    QStringList names;
    for (const ReportNameValue &s : r.settings)
        names << s.name;
    return names;
}

GpioSettingRow gpioRow(int pin, const QString &signal, const QString &instance)
{
    GpioSettingRow row;
    row.pinNum = pin;
    row.pinName = QStringLiteral("PA%1").arg(pin);
    row.signal = signal;
    row.signalNames = QStringList{signal};
    row.instanceName = instance;
    RefParameter mode;
    mode.Name = QStringLiteral("GPIO mode");
    mode.Value = QStringLiteral("GPIO_MODE_MUX");
    mode.PossibleValues = {entry("GPIO_MODE_MUX", "Alternate function")};
    row.parameters << mode;
    return row;
}

} // namespace

TEST(ReportRows, ParametersShowTheirPanelTextsAndWhetherTheyChanged)
{
    English english;
    const RefParameter original = listParameter();
    RefParameter parity = original;
    ReportParameterRow row = ReportRows::parameterRow(parity, &original, {});
    EXPECT_EQ(row.name, QStringLiteral("Parity"));
    EXPECT_EQ(row.group, QStringLiteral("Basic Parameters"));
    EXPECT_EQ(row.value, QStringLiteral("None"));
    EXPECT_FALSE(row.changed);

    parity.Value = QStringLiteral("USART_PARITY_EVEN");
    row = ReportRows::parameterRow(parity, &original, {});
    EXPECT_EQ(row.value, QStringLiteral("Even"));
    EXPECT_TRUE(row.changed);

    // A stored value the list no longer allows shows the entry the panel falls back to.
    parity.PossibleValues[0].Condition = QStringLiteral("NEVER_RAISED");
    parity.Value = QStringLiteral("USART_PARITY_NONE");
    row = ReportRows::parameterRow(parity, &original, {});
    EXPECT_EQ(row.value, QStringLiteral("Even"));

    // Numbers carry their unit, hexadecimal values their prefix and padding.
    const RefParameter number = numberParameter(QStringLiteral("integer"), QStringLiteral("250"));
    row = ReportRows::parameterRow(number, &number, {});
    EXPECT_EQ(row.value, QStringLiteral("250 ms"));
    EXPECT_TRUE(row.changed);
    RefParameter hex = numberParameter(QStringLiteral("hexadecimal"), QStringLiteral("0xA"));
    hex.DefaultValue = QStringLiteral("0x0a");
    row = ReportRows::parameterRow(hex, &hex, {});
    EXPECT_EQ(row.value, QStringLiteral("0x000A"));
    EXPECT_FALSE(row.changed); // the same number as the default, written otherwise

    // A parameter the database doesn't know was set by a design.
    row = ReportRows::parameterRow(number, nullptr, {});
    EXPECT_TRUE(row.changed);

    // In Chinese the panel's Chinese texts are shown.
    g_language = 1;
    EXPECT_EQ(ReportRows::parameterRow(original, &original, {}).name, QStringLiteral("校验"));
}

TEST(ReportRows, DmaRequestsListTheirSettingsAndTheSynchronisationOnlyWhenItIsOn)
{
    DMARequest request;
    request.name = QStringLiteral("USART1_TX");
    request.channel = QStringLiteral("DMA1_Channel2");
    for (const char *name : {"Mode", "PeriphInc", "MemInc", "PeriphDataAlignment",
                             "MemDataAlignment", "SyncSignalID", "SyncPolarity", "EventEnable",
                             "SyncRequestCount", "RequestSignalID", "IpInstance"})
        request.parameters << dmaParameter(QLatin1String(name), QStringLiteral("X"));
    RefParameter direction = dmaParameter(QStringLiteral("Direction"), QStringLiteral("M2P"));
    direction.PossibleValues = {entry("M2P", "Memory to peripheral")};
    request.parameters << direction << dmaParameter(QStringLiteral("Priority"),
                                                    QStringLiteral("DMA_PRIORITY_HIGH"))
                       << dmaParameter(QStringLiteral("SyncEnable"), QStringLiteral("DISABLE"));

    ReportDmaRequest r = ReportRows::dmaRequest(request, false);
    EXPECT_EQ(r.request, QStringLiteral("USART1_TX"));
    EXPECT_EQ(r.channel, QStringLiteral("DMA1_Channel2"));
    EXPECT_EQ(r.direction, QStringLiteral("Memory to peripheral"));
    EXPECT_EQ(r.priority, QStringLiteral("DMA_PRIORITY_HIGH"));
    EXPECT_EQ(settingNames(r),
              (QStringList{"Mode text", "PeriphInc text", "MemInc text",
                           "PeriphDataAlignment text", "MemDataAlignment text",
                           "RequestSignalID text"}));

    request.parameters.last().Value = QStringLiteral("ENABLE");
    r = ReportRows::dmaRequest(request, false);
    EXPECT_TRUE(settingNames(r).contains(QStringLiteral("SyncSignalID text")));
    EXPECT_TRUE(settingNames(r).contains(QStringLiteral("SyncRequestCount text")));
    EXPECT_FALSE(settingNames(r).contains(QStringLiteral("IpInstance text")));
}

TEST(ReportRows, EdmaRequestsAddTheirFifoBurstAndTransferModes)
{
    DMARequest request;
    request.name = QStringLiteral("SPI1_RX");
    for (const char *name : {"FIFOThreshold", "PeriphBurst", "MemBurst", "SourceStride",
                             "CurrentMemory", "LinkedTableTransferMode"})
        request.parameters << dmaParameter(QLatin1String(name), QStringLiteral("X"));
    request.parameters << dmaParameter(QStringLiteral("FIFOMode"),
                                       QStringLiteral("EDMA_FIFOMODE_DISABLE"))
                       << dmaParameter(QStringLiteral("2DMode"), QStringLiteral("FALSE"))
                       << dmaParameter(QStringLiteral("DoubleMemoryMode"), QStringLiteral("TRUE"));

    QStringList names = settingNames(ReportRows::dmaRequest(request, true));
    EXPECT_EQ(names, (QStringList{"FIFOMode text", "PeriphBurst text", "MemBurst text",
                                  "2DMode text", "DoubleMemoryMode text", "CurrentMemory text",
                                  "LinkedTableTransferMode text"}));
    request.parameters[6].Value = QStringLiteral("EDMA_FIFOMODE_ENABLE");
    request.parameters[7].Value = QStringLiteral("TRUE");
    names = settingNames(ReportRows::dmaRequest(request, true));
    EXPECT_TRUE(names.contains(QStringLiteral("FIFOThreshold text")));
    EXPECT_TRUE(names.contains(QStringLiteral("SourceStride text")));
    // The same request on a DMA controller has none of these.
    EXPECT_TRUE(settingNames(ReportRows::dmaRequest(request, false)).isEmpty());
}

TEST(ReportRows, GpioRowsListThePeripheralsPinsBeforeThePlainGpios)
{
    English english;
    const QList<GpioSettingRow> rows = {gpioRow(1, "GPIO_Output", ""),
                                        gpioRow(2, "USART1_TX", "USART1"),
                                        gpioRow(3, "GPIO_Input", ""),
                                        gpioRow(4, "SPI1_SCK", "SPI1")};
    const QList<ReportGpioRow> out = ReportRows::gpioRows(rows);
    ASSERT_EQ(out.size(), 4);
    QStringList order;
    for (const ReportGpioRow &r : out)
        order << r.signal + QLatin1Char('@') + r.owner;
    EXPECT_EQ(order, (QStringList{"USART1_TX@USART1", "SPI1_SCK@SPI1", "GPIO_Output@GPIO",
                                  "GPIO_Input@GPIO"}));
    EXPECT_EQ(out.first().pinName, QStringLiteral("PA2"));
    EXPECT_EQ(out.first().mode, QStringLiteral("Alternate function"));
    EXPECT_TRUE(out.first().pull.isEmpty()); // a setting the mode doesn't have
}

TEST(ReportRows, InterruptsNobodyCanUseAreUnused)
{
    English english;
    NvicRow unused;
    unused.irq.CommentEN = QStringLiteral("SPI1 global interrupt");
    unused.available = false;
    NvicRow on;
    on.irq.CommentEN = QStringLiteral("USART1 global interrupt");
    on.irq.flag4 = true;
    on.irq.preemption = 2;
    on.irq.sub = 1;
    NvicRow off;
    off.irq.IRQName = QStringLiteral("TMR1_IRQn"); // no text: the name stands in
    const QList<ReportNvicRow> rows = ReportRows::nvicRows({unused, on, off});
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows.at(0).enabled, QStringLiteral("Unused"));
    EXPECT_EQ(rows.at(1).interrupt, QStringLiteral("USART1 global interrupt"));
    EXPECT_EQ(rows.at(1).enabled, QStringLiteral("true"));
    EXPECT_EQ(rows.at(1).preemption, QStringLiteral("2"));
    EXPECT_EQ(rows.at(1).sub, QStringLiteral("1"));
    EXPECT_EQ(rows.at(2).interrupt, QStringLiteral("TMR1_IRQn"));
    EXPECT_EQ(rows.at(2).enabled, QStringLiteral("false"));
}

TEST(ReportRows, ThePinTableHasEveryPackagePinInOrderWithItsLitSignals)
{
    DevicePinInfo info;
    const auto addPin = [&info](int number, const QString &name, bool active) {
        auto *pin = new MCUPinsBaseInfo;
        pin->PinNum = number;
        pin->PinName = name + QStringLiteral("  ");
        pin->PinType = QStringLiteral("I/O");
        pin->GPIOStructure = QStringLiteral("FT");
        pin->remapOff = active;
        info.pins << pin;
        return pin;
    };
    const auto addSignal = [](MCUPinsBaseInfo *pin, const QString &func, int status,
                              const QString &label = {}) {
        auto *s = new MCUPinSignal;
        s->Func = func;
        s->status = status;
        s->userLabel = label;
        pin->signalList << s;
    };
    MCUPinsBaseInfo *pa9 = addPin(30, QStringLiteral("PA9"), true);
    addSignal(pa9, QStringLiteral("USART1_TX"), SIGNAL_PIN_AND_MODE, QStringLiteral("DEBUG_TX"));
    addSignal(pa9, QStringLiteral("TMR1_CH2"), SIGNAL_FREE);
    MCUPinsBaseInfo *variant = addPin(2, QStringLiteral("PF0"), false); // left out
    addSignal(variant, QStringLiteral("GPIO_Output"), SIGNAL_PIN_ONLY);
    MCUPinsBaseInfo *pc13 = addPin(2, QStringLiteral("PC13"), true);
    addSignal(pc13, QStringLiteral("GPIO_Output"), SIGNAL_PIN_ONLY, QStringLiteral("LED"));
    addSignal(pc13, QStringLiteral("EXINT13"), SIGNAL_MODE_ONLY, QStringLiteral("LED"));
    addPin(1, QStringLiteral("VBAT"), true);

    const QList<ReportPinRow> rows = ReportRows::pinRows(&info);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows.at(0).name, QStringLiteral("VBAT"));
    EXPECT_TRUE(rows.at(0).signal.isEmpty());
    EXPECT_EQ(rows.at(1).number, 2);
    EXPECT_EQ(rows.at(1).name, QStringLiteral("PC13"));
    EXPECT_EQ(rows.at(1).signal, QStringLiteral("GPIO_Output/EXINT13"));
    EXPECT_EQ(rows.at(1).label, QStringLiteral("LED"));
    EXPECT_EQ(rows.at(2).signal, QStringLiteral("USART1_TX"));
    EXPECT_EQ(rows.at(2).label, QStringLiteral("DEBUG_TX"));
    EXPECT_EQ(rows.at(2).type, QStringLiteral("I/O"));
    EXPECT_EQ(rows.at(2).structure, QStringLiteral("FT"));
    EXPECT_TRUE(ReportRows::pinRows(nullptr).isEmpty());
}

TEST(ReportRows, EachFamilyHasItsNumberOfPinNotesAndPairsShareTheirs)
{
    const QStringList t110 = ReportRows::pinNotes(QStringLiteral("MQ48T110"));
    ASSERT_EQ(t110.size(), 5);
    for (int i = 0; i < t110.size(); ++i)
        EXPECT_TRUE(t110.at(i).startsWith(QStringLiteral("(%1) ").arg(i + 1)));
    EXPECT_EQ(ReportRows::pinNotes(QStringLiteral("MQ48T260")).size(), 10);
    EXPECT_EQ(ReportRows::noteCount(QStringLiteral("MQ48W320")), 8);
    EXPECT_EQ(ReportRows::noteCount(QStringLiteral("MQ48T050")), 4);
    EXPECT_EQ(ReportRows::noteFamily(QStringLiteral("MQ48T210")),
              QStringLiteral("MQ48T210_220"));
    EXPECT_EQ(ReportRows::noteFamily(QStringLiteral("MQ48T220")),
              QStringLiteral("MQ48T210_220"));
    EXPECT_EQ(ReportRows::pinNotes(QStringLiteral("MQ48T210")),
              ReportRows::pinNotes(QStringLiteral("MQ48T220")));
    EXPECT_GT(ReportRows::noteCount(QStringLiteral("MQ48T220")), 0);
    EXPECT_TRUE(ReportRows::pinNotes(QStringLiteral("MQ48X999")).isEmpty());
}
