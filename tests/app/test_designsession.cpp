#include "app/designsession.h"
#include "app/formconfiguration.h"
#include "app/generatorinputsbuilder.h"
#include "clock/mq48clocktree.h"
#include "clock/mq48pllconfig.h"
#include "codegen/familygenerator.h"
#include "common/testsupport.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/procheckbox.h"
#include "peripherals/procombobox.h"
#include "pinout/chipview.h"
#include "projectflow.h"
#include "widgets/messagebox.h"

#include <QComboBox>
#include <QFileInfo>
#include <QTemporaryDir>

#include "tests/app/appfolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const QString kSeries = QStringLiteral("MQ48T110");

// The six generated files of a design, one after the other.
QString generatedCode(const FormConfiguration &form)
{
    const GeneratorInputs inputs = GeneratorInputsBuilder::fromForm(form);
    std::unique_ptr<FamilyGenerator> generator = createFamilyGenerator(inputs.familyCode);
    if (!generator)
        return QStringLiteral("no generator");
    generator->setInputs(inputs);
    QString all;
    for (const char *name : {"mq48t110_pf_config.c", "mq48t110_pf_config.h", "main.c",
                             "mq48t110_int.h", "mq48t110_int.c", "mq48t110_conf.h"}) {
        QString text = generator->readTemplate(QLatin1String(name));
        if (!generator->generateFile(QLatin1String(name), text))
            return QStringLiteral("generation failed in ") + QLatin1String(name);
        all += QStringLiteral("//// ") + QLatin1String(name) + QLatin1Char('\n') + text;
    }
    return all;
}

// Saves `form`, opens the file in a fresh form and checks that saving again gives the same
// bytes and the same generated code. Returns the reopened design's problems.
QStringList roundTrip(FormConfiguration &form, const QString &where)
{
    QTemporaryDir dir;
    const QString first = dir.filePath(QStringLiteral("first.MQPF"));
    QString error;
    EXPECT_TRUE(form.writeDesign(first, &error)) << qPrintable(error);
    FormConfiguration reopened;
    const DesignOpenResult result = openDesignFile(reopened, first);
    EXPECT_EQ(result.status, DesignOpenStatus::Opened) << qPrintable(where);
    EXPECT_TRUE(result.problems.isEmpty())
        << qPrintable(where) << ": " << qPrintable(result.problems.join(QLatin1Char('\n')));
    const QString second = dir.filePath(QStringLiteral("second.MQPF"));
    EXPECT_TRUE(reopened.writeDesign(second, &error)) << qPrintable(error);
    const QStringList a = QString::fromUtf8(testsupport::readFile(first)).split('\n');
    const QStringList b = QString::fromUtf8(testsupport::readFile(second)).split('\n');
    if (a != b) {
        QString diff;
        for (const QString &line : a) {
            if (!b.contains(line))
                diff += QStringLiteral("- ") + line + QLatin1Char('\n');
        }
        for (const QString &line : b) {
            if (!a.contains(line))
                diff += QStringLiteral("+ ") + line + QLatin1Char('\n');
        }
        ADD_FAILURE() << qPrintable(where) << ": the design saved again differs\n"
                      << qPrintable(diff);
    }
    const QStringList before = generatedCode(form).split(QLatin1Char('\n'));
    const QStringList after = generatedCode(reopened).split(QLatin1Char('\n'));
    for (int i = 0; i < qMax(before.size(), after.size()); ++i) {
        if (before.value(i) != after.value(i)) {
            ADD_FAILURE() << qPrintable(where) << ": generated line " << i + 1 << " was \""
                          << qPrintable(before.value(i)) << "\", is \""
                          << qPrintable(after.value(i)) << "\"";
            break;
        }
    }
    return result.problems;
}

bool selectItem(IP_ModeAndConfiguration *panel, const ModeControl &control, int index)
{
    if (control.isCombo()) {
        ProComboBox *box = panel->comboBox(control.option.Name);
        if (!box || index >= box->count())
            return false;
        box->setCurrentIndex(index);
        return box->currentIndex() == index && panel->logic().controls.size() > 0;
    }
    ProCheckBox *box = panel->checkBox(control.option.Name);
    if (!box || !box->isEnabled())
        return false;
    box->setChecked(index > 0);
    return box->isChecked() == (index > 0);
}

TEST(DesignSession, AnUntouchedDesignHoldsOnlyTheAlwaysPresentBlocks)
{
    ShippedDatabase env;
    FormConfiguration form;
    ASSERT_TRUE(
        form.buildDesign(kSeries, QStringLiteral("MQ48T110C8T"), QStringLiteral("LQFP48")));
    const DesignDocument doc = collectDesign(form);
    EXPECT_EQ(doc.device, "MQ48T110C8T");
    EXPECT_TRUE(doc.gpio.present);
    EXPECT_TRUE(doc.gpio.signalList.isEmpty());
    EXPECT_TRUE(doc.hasClock);
    EXPECT_TRUE(doc.pins.isEmpty());
    EXPECT_TRUE(doc.dmaBlocks.isEmpty());
    EXPECT_FALSE(doc.nvic.present);
    // The debug row is written at its default on this family, as a check box.
    ASSERT_EQ(doc.peripherals.size(), 1);
    EXPECT_EQ(doc.peripherals.first().instance, "DEBUG");
    EXPECT_EQ(doc.peripherals.first().modes.value(0).first, "SWD");
    EXPECT_FALSE(form.isDesignModified());
    roundTrip(form, QStringLiteral("untouched"));
}

// A way of setting a peripheral's mode rows: (control index, item index) in control order.
using ModeConfig = QList<QPair<int, int>>;

QString itemKey(IP_ModeAndConfiguration *panel, int control, int item)
{
    return panel->instanceName() + '/' + panel->logic().controls.at(control).option.Name + '/' +
           QString::number(item);
}

// Sets the rows of a configuration in order; returns the items that took.
QStringList applyConfig(IP_ModeAndConfiguration *panel, const ModeConfig &config)
{
    for (const auto &entry : config)
        selectItem(panel, panel->logic().controls.at(entry.first), entry.second);
    QStringList took;
    for (const auto &entry : config) {
        if (entry.second > 0 && panel->logic().controls.at(entry.first).current == entry.second)
            took << itemKey(panel, entry.first, entry.second);
    }
    return took;
}

void resetPanel(IP_ModeAndConfiguration *panel)
{
    for (int c = panel->logic().controls.size() - 1; c >= 0; --c)
        selectItem(panel, panel->logic().controls.at(c), 0);
}

int itemCount(const ModeControl &control)
{
    return control.isCombo() ? control.items.size() : 1;
}

// Every mode item of every peripheral of the largest T110 device survives a save and an
// open. A first pass on one form finds, per peripheral, a few ways of setting its rows that
// between them reach every item the package allows; the designs then take one way of every
// peripheral at a time, so that a handful of designs covers all of them.
TEST(DesignSession, EveryModeOfEveryPeripheralReopensExactly)
{
    ShippedDatabase env;
    const QString device = QStringLiteral("MQ48T110CBT");
    const QString package = QStringLiteral("LQFP48");
    QMap<QString, QList<ModeConfig>> configs;
    QSet<QString> reachable;
    int items = 0;
    {
        FormConfiguration probe;
        ASSERT_TRUE(probe.buildDesign(kSeries, device, package));
        for (IP_ModeAndConfiguration *panel : probe.modePanels()) {
            const auto &controls = panel->logic().controls;
            int ranks = 0;
            for (const ModeControl &control : controls)
                ranks = qMax(ranks, itemCount(control));
            QList<ModeConfig> ways;
            QSet<QString> found;
            // Every row at the same rank (rows with fewer items keep their last one).
            for (int rank = 1; rank <= ranks; ++rank) {
                ModeConfig config;
                for (int c = 0; c < controls.size(); ++c)
                    config << qMakePair(c, qMin(rank, itemCount(controls.at(c))));
                const QStringList took = applyConfig(panel, config);
                resetPanel(panel);
                if (!QSet<QString>(took.begin(), took.end()).subtract(found).isEmpty())
                    ways << config;
                for (const QString &key : took)
                    found << key;
            }
            // Then each item still missing, with the other rows at their first item.
            for (int c = 0; c < controls.size(); ++c) {
                for (int i = 1; i <= itemCount(controls.at(c)); ++i) {
                    ++items;
                    if (found.contains(itemKey(panel, c, i)))
                        continue;
                    ModeConfig config;
                    for (int o = 0; o < controls.size(); ++o)
                        config << qMakePair(o, o == c ? i : 1);
                    const QStringList took = applyConfig(panel, config);
                    resetPanel(panel);
                    if (took.contains(itemKey(panel, c, i))) {
                        ways << config;
                        for (const QString &key : took)
                            found << key;
                    }
                }
            }
            configs.insert(panel->instanceName(), ways);
            reachable += found;
        }
    }
    ASSERT_GT(items, 150);
    EXPECT_GT(reachable.size(), items * 3 / 4);

    // The designs: one way of each peripheral per design; a way that a neighbour's pins
    // block waits for a later design.
    QSet<QString> covered;
    QHash<QString, int> blocked; // by instance: how often a neighbour took what it needed
    for (int design = 0; design < 24 && !configs.isEmpty(); ++design) {
        FormConfiguration form;
        ASSERT_TRUE(form.buildDesign(kSeries, device, package));
        // The peripherals that were blocked before choose first.
        QList<IP_ModeAndConfiguration *> panels = form.modePanels();
        std::stable_sort(panels.begin(), panels.end(),
                         [&blocked](IP_ModeAndConfiguration *a, IP_ModeAndConfiguration *b) {
                             return blocked.value(a->instanceName()) >
                                    blocked.value(b->instanceName());
                         });
        for (IP_ModeAndConfiguration *panel : panels) {
            QList<ModeConfig> &ways = configs[panel->instanceName()];
            if (ways.isEmpty())
                continue;
            const ModeConfig config = ways.takeFirst();
            const QStringList took = applyConfig(panel, config);
            bool complete = true;
            for (const auto &entry : config)
                complete = complete && (entry.second == 0 ||
                                        took.contains(itemKey(panel, entry.first, entry.second)));
            for (const QString &key : took)
                covered << key;
            if (!complete) {
                blocked[panel->instanceName()] += 1;
                if (blocked.value(panel->instanceName()) < 4)
                    ways.prepend(config);
                resetPanel(panel);
            }
        }
        for (auto it = configs.begin(); it != configs.end();) {
            if (it.value().isEmpty())
                it = configs.erase(it);
            else
                ++it;
        }
        roundTrip(form, QStringLiteral("design %1").arg(design));
    }
    QStringList missed;
    for (const QString &key : reachable) {
        if (!covered.contains(key))
            missed << key;
    }
    EXPECT_TRUE(missed.isEmpty()) << qPrintable(missed.join(", "));
}

TEST(DesignSession, ADesignWithEverythingOnReopensExactly)
{
    ShippedDatabase env;
    FormConfiguration form;
    ASSERT_TRUE(
        form.buildDesign(kSeries, QStringLiteral("MQ48T110CBT"), QStringLiteral("LQFP48")));
    // Modes and a changed parameter.
    form.modePanel("USART1")->setModeSelection("Mode", "Asynchronous");
    form.modePanel("SPI1")->setModeSelection("Mode", "Full-Duplex Master");
    form.modePanel("CRM")->setModeSelection("HEXT", "Crystal/Ceramic Resonator");
    ParamSettingWidget *usart = form.modePanel("USART1")->paramSettingWidget();
    ASSERT_NE(usart, nullptr);
    usart->setParameterValue("BaudRate", "9600");
    usart->refreshNow();
    form.refreshSystemModels();

    // DMA on both directions and a memory-to-memory transfer.
    ASSERT_FALSE(form.dmaModels().isEmpty());
    DmaRequestModel *dma = form.dmaModels().first();
    ASSERT_TRUE(dma->addRequest("USART1_TX").ok());
    ASSERT_TRUE(dma->addRequest("USART1_RX").ok());
    const DmaRequestModel::AddResult mem = dma->addRequest("MEMTOMEM");
    ASSERT_TRUE(mem.ok());
    const QStringList priorities = [&] {
        QStringList out;
        for (const RefParamValue &v :
             dma->requests().at(mem.index).parameter("Priority")->PossibleValues)
            out << v.Value;
        return out;
    }();
    ASSERT_GT(priorities.size(), 1);
    ASSERT_TRUE(dma->setParameter(mem.index, "Priority", priorities.last()));
    form.refreshSystemModels();

    // Interrupts and their priorities.
    NvicModel *nvic = form.nvicModel();
    ASSERT_NE(nvic, nullptr);
    ASSERT_GT(nvic->priorityGroups().size(), 2);
    ASSERT_TRUE(nvic->setPriorityGroup(nvic->priorityGroups().at(2).Value));
    ASSERT_TRUE(nvic->setInterrupt("USART1_IRQHandler", true, 1, 1));

    // A hand-set output with a label and a changed setting, and a label on USART1_TX.
    ChipView *chip = form.chipDrawing();
    MCUPinsBaseInfo *pb0 = nullptr;
    for (MCUPinsBaseInfo *pin : chip->engine()->activePins()) {
        if (pin->PinName.trimmed() == QLatin1String("PB0"))
            pb0 = pin;
    }
    ASSERT_NE(pb0, nullptr);
    MCUPinSignal *output = PinAssignEngine::findSignal(pb0, "GPIO_Output");
    ASSERT_NE(output, nullptr);
    output->status = SIGNAL_PIN_ONLY;
    chip->UpdatePinConfigInfoSlot(*pb0);
    GpioSettingsModel *gpio = form.gpioModel();
    ASSERT_TRUE(gpio->setLabel("GPIO_Output", "PB0", "LED_RUN"));
    ASSERT_TRUE(gpio->setLabel("USART1_TX", "", "DEBUG_TX") ||
                gpio->setLabel("USART1_TX", "PA9", "DEBUG_TX"));
    const GpioSettingRow *led = gpio->row("GPIO_Output", "PB0");
    ASSERT_NE(led, nullptr);
    const RefParameter *pull = led->parameter("Pull type");
    ASSERT_NE(pull, nullptr);
    ASSERT_GT(pull->PossibleValues.size(), 1);
    ASSERT_TRUE(
        gpio->setParameter("GPIO_Output", "PB0", "Pull type", pull->PossibleValues.last().Value));
    gpio->setShowType(1);

    // The clock tree away from its defaults.
    ASSERT_NE(form.clockPage()->tree(), nullptr);
    auto *ahbdiv = qobject_cast<QComboBox *>(form.clockPage()->tree()->control("ahbdiv"));
    ASSERT_NE(ahbdiv, nullptr);
    ahbdiv->setCurrentIndex(1);

    ProjectInfo project = form.projectInfo();
    project.projectName = "blinky";
    project.toolchainIDE = "MDK_V5";
    project.minStackSize = "0x800";
    form.setProjectInfo(project);

    const DesignDocument doc = collectDesign(form);
    EXPECT_EQ(doc.dmaBlocks.value(0).requests.size(), 3);
    EXPECT_TRUE(doc.nvic.present);
    EXPECT_EQ(doc.gpio.showType, 1);
    EXPECT_EQ(doc.gpio.signalList.size(), 2);
    EXPECT_FALSE(doc.pins.isEmpty());
    EXPECT_TRUE(doc.hasProject);
    EXPECT_EQ(doc.project.minStackSize, "0x800");
    roundTrip(form, QStringLiteral("everything on"));
    EXPECT_TRUE(generatedCode(form).contains(QLatin1String("LED_RUN")));
}

TEST(DesignSession, DamagedDesignsOpenWhatCanBeReadAndListTheRest)
{
    ShippedDatabase env;
    QTemporaryDir dir;
    DesignDocument doc;
    doc.series = kSeries;
    doc.device = QStringLiteral("MQ48T110C8T");
    doc.package = QStringLiteral("LQFP48");
    doc.peripherals.append({"USART1", {{"Mode", "Asynchronous"}}, {{"BaudRate", "9600"}}});
    doc.peripherals.append({"USART9", {{"Mode", "Asynchronous"}}, {}});
    doc.peripherals.append({"SPI1", {{"Mode", "Quantum Entangled"}, {"Colour", "Blue"}}, {}});
    doc.peripherals.append({"TMR3", {}, {{"NoSuchParameter", "1"}, {"DividerValue", "99999999"}}});
    doc.pins.append({"PZ9", "GPIO_Output", 1});
    doc.pins.append({"PA0", "GPIO_Teleport", 1});
    doc.nvic.present = true;
    doc.nvic.interrupts.append(qMakePair(QString("Nope_IRQHandler"), QString("1;0;0")));
    doc.nvic.interrupts.append(qMakePair(QString("USART1_IRQHandler"), QString("one;two")));
    doc.gpio.present = true;
    doc.gpio.signalList.append({"GPIO_Output", "PB7", {{"Label", "NOT_LIT"}}});
    doc.dmaBlocks.append({"DMA1", {{"WARP_DRIVE", {{"Instance", "DMA1_Channel1"}}}}});
    const QString path = dir.filePath("damaged.MQPF");
    ASSERT_TRUE(writeDesignDocument(path, doc, nullptr));

    FormConfiguration form;
    const DesignOpenResult result = openDesignFile(form, path);
    ASSERT_EQ(result.status, DesignOpenStatus::Opened);
    const QString problems = result.problems.join('\n');
    for (const char *expected :
         {"USART9", "Quantum Entangled", "Colour", "NoSuchParameter", "99999999", "PZ9",
          "GPIO_Teleport", "Nope_IRQHandler", "one;two", "PB7", "WARP_DRIVE"})
        EXPECT_TRUE(problems.contains(QLatin1String(expected))) << expected << " missing from:\n"
                                                                << qPrintable(problems);
    // The valid part is applied.
    EXPECT_TRUE(form.modePanel("USART1")->modeActive());
    EXPECT_EQ(form.modePanel("USART1")->paramSettingWidget()->parameterValue("BaudRate"), "9600");
    EXPECT_FALSE(form.modePanel("SPI1")->modeActive());
}

TEST(DesignSession, FilesThatAreNoDesignOfAKnownDeviceOpenNothing)
{
    ShippedDatabase env;
    QTemporaryDir dir;
    FormConfiguration form;
    EXPECT_EQ(openDesignFile(form, dir.filePath("absent.MQPF")).status,
              DesignOpenStatus::NotFound);
    const QString empty = dir.filePath("empty.MQPF");
    testsupport::writeFile(empty, QByteArray());
    EXPECT_EQ(openDesignFile(form, empty).status, DesignOpenStatus::NoDeviceInfo);
    DesignDocument doc;
    doc.series = kSeries;
    doc.device = QStringLiteral("MQ48T110Z9Z");
    doc.package = QStringLiteral("LQFP48");
    const QString unknown = dir.filePath("unknown.MQPF");
    ASSERT_TRUE(writeDesignDocument(unknown, doc, nullptr));
    EXPECT_EQ(openDesignFile(form, unknown).status, DesignOpenStatus::DeviceNotSupported);
    doc.device = QStringLiteral("MQ48T110C8T");
    doc.package = QStringLiteral("BGA999");
    ASSERT_TRUE(writeDesignDocument(unknown, doc, nullptr));
    EXPECT_EQ(openDesignFile(form, unknown).status, DesignOpenStatus::PackageNotSupported);
    EXPECT_FALSE(form.isDesignOpen());
    EXPECT_FALSE(designOpenMessage(DesignOpenStatus::PackageNotSupported).isEmpty());
}

TEST(DesignSession, TheFormKnowsWhenTheDesignChanged)
{
    ShippedDatabase env;
    QTemporaryDir dir;
    FormConfiguration form;
    ASSERT_TRUE(
        form.buildDesign(kSeries, QStringLiteral("MQ48T110C8T"), QStringLiteral("LQFP48")));
    EXPECT_FALSE(form.isDesignModified());
    form.modePanel("USART1")->setModeSelection("Mode", "Asynchronous");
    EXPECT_TRUE(form.isDesignModified());
    const QString path = dir.filePath("design.MQPF");
    QString error;
    ASSERT_TRUE(form.writeDesign(path, &error));
    ASSERT_TRUE(form.openDesign(path));
    EXPECT_FALSE(form.isDesignModified());
    EXPECT_EQ(form.currentDesignPath(), path);
    EXPECT_TRUE(form.windowTitle().startsWith(QStringLiteral("design.MQPF")));
    EXPECT_TRUE(form.modePanel("USART1")->modeActive());
}

} // namespace
