// Golden designs: a few T110 designs made through the work form are generated and compared
// byte for byte with reviewed copies under tests/fixtures/codegen/<design>/. After a
// deliberate change of the templates or generators, MQ48_UPDATE_GOLDEN=1 rewrites the
// copies; review their diff before committing it.

#include "app/formconfiguration.h"
#include "app/generatorinputsbuilder.h"
#include "armcompiler.h"
#include "codegentestsupport.h"
#include "common/testsupport.h"
#include "generatedproject.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/paramsettingwidget.h"
#include "t110design.h"
#include "widgets/messagebox.h"

#include <QDir>
#include <gtest/gtest.h>

#include <functional>

namespace {

using Selections = QList<QPair<QString, QPair<QString, QString>>>; // instance, (mode, item)

// Builds a design on the form: modes chosen as the user would, then parameters, then the
// pins, interrupts, DMA requests and clock that the other pages would add.
GeneratorInputs formDesign(const Selections &modes,
                           const QList<QPair<QString, QPair<QString, QString>>> &parameters,
                           const std::function<void(T110Design &)> &extra = {})
{
    SourceDatabase db;
    setUserMessageHandler([](QWidget *, const UserMessage &) { return 0; });
    FormConfiguration form;
    EXPECT_TRUE(form.buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48"));
    for (const auto &m : modes) {
        IP_ModeAndConfiguration *panel = form.modePanel(m.first);
        EXPECT_TRUE(panel) << qPrintable(m.first);
        if (panel) {
            panel->setModeSelection(m.second.first, m.second.second);
            EXPECT_TRUE(panel->modeSelections().contains(m.second))
                << qPrintable(m.first + " " + m.second.first + "=" + m.second.second);
        }
    }
    for (const auto &p : parameters) {
        IP_ModeAndConfiguration *panel = form.modePanel(p.first);
        if (panel && panel->paramSettingWidget())
            panel->paramSettingWidget()->setParameterValue(p.second.first, p.second.second);
    }
    T110Design design;
    design.inputs = GeneratorInputsBuilder::fromForm(form);
    setUserMessageHandler({});
    if (extra)
        extra(design);
    return design.inputs;
}

// 96 MHz from the 8 MHz crystal: PLL in integer mode, times 12, on the system clock.
void pll96FromHext(ClockTreeState &c)
{
    c.hextEnabled = true;
    c.hext = 8.0;
    c.pllrcs = 0;
    c.pllhextdiv = 0;
    c.pllmode = 0;
    c.pllmult = 12;
    c.sclkselect = 1;
    c.recalculate();
}

struct GoldenDesign
{
    QString name;
    GeneratorInputs inputs;
};

QList<GoldenDesign> goldenDesigns()
{
    QList<GoldenDesign> designs;
    designs << GoldenDesign{QStringLiteral("empty"), formDesign({}, {})};

    designs << GoldenDesign{
        QStringLiteral("usart115200_pll96"),
        formDesign({{"USART1", {"Mode", "Asynchronous"}}}, {{"USART1", {"BaudRate", "115200"}}},
                   [](T110Design &d) { pll96FromHext(d.inputs.clock); })};

    designs << GoldenDesign{
        QStringLiteral("mixed"),
        formDesign({{"USART1", {"Mode", "Asynchronous"}},
                    {"TMR3", {"Activated", "TRUE"}},
                    {"TMR3", {"Clock Source", "Internal Clock"}},
                    {"TMR3", {"Channel1", "PWM Generation CH1"}},
                    {"I2C1", {"I2C", "I2C"}},
                    {"SPI1", {"Mode", "Full-Duplex Master"}},
                    {"ADC1", {"IN0", "TRUE"}},
                    {"ADC1", {"IN1", "TRUE"}}},
                   {},
                   [](T110Design &d) {
                       pll96FromHext(d.inputs.clock);
                       d.place("GPIO_Output", "PC13", "LED");
                       d.place("GPIO_Output", "PB0", "LED");
                       d.place("GPIO_Input", "PB1", "KEY");
                       d.configure("EXINT").place("EXINT8", "PA8", "BUTTON");
                       d.dma("USART1_TX", "DMA1_Channel2");
                       d.irq("USART1_IRQ", 1, 0).irq("DMA1_Channel3_2_IRQ", 2, 0);
                       d.irq("EXINT15_4_IRQ", 3, 0);
                   })};
    return designs;
}

QString goldenFolder(const QString &design)
{
    return QStringLiteral(MQ48_SOURCE_DIR) + "/tests/fixtures/codegen/" + design;
}

// The first line that differs, for a readable failure.
QString firstDifference(const QString &expected, const QString &actual)
{
    const QStringList a = expected.split('\n'), b = actual.split('\n');
    for (int i = 0; i < qMax(a.size(), b.size()); ++i) {
        if (a.value(i) != b.value(i))
            return QStringLiteral("line %1: expected \"%2\", got \"%3\"")
                .arg(i + 1)
                .arg(a.value(i), b.value(i));
    }
    return QString();
}

} // namespace

TEST(GoldenDesigns, GenerateTheReviewedFilesAndCompile)
{
    const bool update = !qEnvironmentVariableIsEmpty("MQ48_UPDATE_GOLDEN");
    for (const GoldenDesign &design : goldenDesigns()) {
        SCOPED_TRACE(design.name.toStdString());
        if (design.name != QLatin1String("empty")) {
            EXPECT_DOUBLE_EQ(design.inputs.clock.sclk, 96.0);
        }
        GeneratedProject project;
        ASSERT_TRUE(project.generate(design.inputs)) << qPrintable(project.error());
        for (const QString &name : GeneratedProject::fileNames()) {
            const QString golden = goldenFolder(design.name) + "/" + name;
            const QString actual = project.text(name);
            if (update) {
                ASSERT_TRUE(testsupport::writeFile(golden, actual.toUtf8()));
                continue;
            }
            const QString expected = QString::fromUtf8(testsupport::readFile(golden));
            ASSERT_FALSE(expected.isEmpty()) << "no golden copy " << qPrintable(golden);
            EXPECT_EQ(expected, actual) << qPrintable(name) << ", "
                                        << qPrintable(firstDifference(expected, actual));
        }
        if (ArmCompiler().available()) {
            QString output;
            EXPECT_TRUE(project.compiles(design.inputs.deviceName, &output))
                << qPrintable(output);
        }
    }
}
