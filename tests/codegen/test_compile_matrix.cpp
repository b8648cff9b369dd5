// The compile matrix: T110 designs made through the work form (every mode item of every
// peripheral, parameter sweeps, DMA requests on every channel they may use, interrupts, every
// package, everything on and nothing on) are generated and compiled for the Cortex-M4 with
// warnings as errors against the firmware package. It takes minutes and runs as its own CTest
// entry (MQ48_COMPILE_MATRIX=1); the ordinary run of the suite skips it.

#include "app/formconfiguration.h"
#include "app/generatorinputsbuilder.h"
#include "armcompiler.h"
#include "common/testsupport.h"
#include "codegen/familygenerator.h"
#include "database/peripheralreader.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/paramvalue.h"
#include "peripherals/procheckbox.h"
#include "peripherals/procombobox.h"
#include "t110design.h"
#include "widgets/messagebox.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

struct MatrixDesign
{
    QString name;
    GeneratorInputs inputs;
};

// A mode control by name with its item names. The panel's control list is never copied: its
// combo and check boxes point into it, and a shared copy would detach it under them.
struct Control
{
    QString name;
    QStringList items;
};

QList<Control> controlsOf(const IP_ModeAndConfiguration *panel)
{
    QList<Control> out;
    const ModeLogic &logic = panel->logic();
    for (int i = 0; i < logic.controls.size(); ++i) {
        const ModeControl &c = logic.controls.at(i);
        Control control{c.option.Name, {}};
        if (!c.isCombo()) {
            control.items << QStringLiteral("TRUE");
        } else {
            for (const ModeItem &item : c.items)
                control.items << c.option.signalGroups.value(item.groupIndex).Name;
        }
        out << control;
    }
    return out;
}

// Sets one mode item as the user would; false when the panel refuses it.
bool select(IP_ModeAndConfiguration *panel, const Control &control, const QString &item)
{
    if (!panel->setModeSelection(control.name, item))
        return false;
    for (const auto &s : panel->modeSelections()) {
        if (s.first == control.name)
            return s.second == item;
    }
    return false;
}

// Back to "Disable" on every control of a panel.
void clear(IP_ModeAndConfiguration *panel)
{
    for (ProComboBox *box : panel->comboBoxes())
        box->setCurrentIndex(0);
    for (ProCheckBox *box : panel->checkBoxes())
        box->setChecked(false);
}

// Every control of the panel to its first item that sticks.
void selectFirstItems(IP_ModeAndConfiguration *panel)
{
    for (const Control &control : controlsOf(panel)) {
        for (const QString &item : control.items) {
            if (select(panel, control, item))
                break;
        }
    }
}

// Enables every interrupt a configured instance may use, with a few priorities.
void enableInterrupts(GeneratorInputs &in)
{
    int n = 0;
    for (GeneratorInterrupt &irq : in.interrupts) {
        bool used = irq.instances.isEmpty() && irq.listed;
        for (const QString &i : irq.instances)
            used = used || in.isConfigured(i);
        if (irq.listed && used) {
            irq.enabled = true;
            irq.preemption = n % 4;
            irq.sub = 0;
            ++n;
        }
    }
}

class MatrixBuilder
{
public:
    explicit MatrixBuilder(QList<MatrixDesign> *out) : m_out(out) {}

    void add(const QString &name, FormConfiguration &form,
             const std::function<void(GeneratorInputs &)> &extra = {})
    {
        MatrixDesign d;
        d.name = name;
        d.inputs = GeneratorInputsBuilder::fromForm(form);
        if (extra)
            extra(d.inputs);
        *m_out << d;
    }

private:
    QList<MatrixDesign> *m_out;
};

// Every item of every control of every panel, each on a design of its own.
void modeDesigns(FormConfiguration &form, MatrixBuilder &builder)
{
    for (IP_ModeAndConfiguration *panel : form.modePanels()) {
        for (const Control &control : controlsOf(panel)) {
            for (const QString &item : control.items) {
                clear(panel);
                if (!select(panel, control, item)) {
                    // Modes that need another one first: the first items of the others.
                    clear(panel);
                    selectFirstItems(panel);
                    if (!select(panel, control, item))
                        continue;
                }
                builder.add(panel->instanceName() + "/" + control.name + "=" + item, form,
                            enableInterrupts);
            }
        }
        clear(panel);
    }
}

// The most allowed values any list parameter of a panel offers now.
int mostEntries(IP_ModeAndConfiguration *panel)
{
    int most = 1;
    if (ParamSettingWidget *params = panel->paramSettingWidget()) {
        for (const RefParameter &p : params->parameters) {
            if (p.Type == QLatin1String("list"))
                most = qMax(most, static_cast<int>(
                                      ParamValue::listChoice(p, params->evaluationList())
                                          .entries.size()));
        }
    }
    return most;
}

// Sets the k-th allowed value on every list parameter of a panel.
void sweepParameters(IP_ModeAndConfiguration *panel, int k)
{
    ParamSettingWidget *params = panel->paramSettingWidget();
    if (!params)
        return;
    const QList<RefParameter> list = params->parameters;
    for (const RefParameter &p : list) {
        if (p.Type != QLatin1String("list") || p.PossibleValues.isEmpty())
            continue;
        const ParamListChoice choice = ParamValue::listChoice(p, params->evaluationList());
        if (choice.entries.isEmpty())
            continue;
        const int index = choice.entries.at(k % choice.entries.size()).valueIndex;
        params->setParameterValue(p.Name, p.PossibleValues.at(index).Value);
    }
}

// Every DMA request on every channel it may use, on top of a design with its peripheral on.
void dmaDesigns(const GeneratorInputs &everything, QList<MatrixDesign> *out)
{
    SourceDatabase db;
    const IPNode tree = ReadIPFile(QStringLiteral(MQ48_SOURCE_DIR) +
                                   "/MQ48DB/device/MQ48T110/Peripherals/DMA-V1.0.xml");
    for (const DMARequestInfo &info : GetDMARequests(tree)) {
        QStringList channels;
        for (const DMARequestParameter &p : info.Parameters) {
            if (p.Name == QLatin1String("Instance"))
                channels = p.PossibleValues;
        }
        for (const QString &channel : channels) {
            T110Design d;
            d.inputs = everything;
            d.inputs.dmaRequests.clear();
            d.dma(info.Name, channel);
            // Some settings in the other direction and width.
            for (GeneratorDmaRequest &r : d.inputs.dmaRequests) {
                for (RefParameter &p : r.parameters) {
                    if (p.Name == QLatin1String("Priority"))
                        p.Value = QStringLiteral("DMA_PRIORITY_HIGH");
                }
            }
            d.irq(QStringLiteral("DMA1_Channel1_IRQ")).irq(QStringLiteral("DMA1_Channel3_2_IRQ"))
                .irq(QStringLiteral("DMA1_Channel5_4_IRQ"));
            out->append({QStringLiteral("dma/") + info.Name + "@" + channel, d.inputs});
        }
    }
}

QString keyOf(const QStringList &texts)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QString &t : texts)
        hash.addData(t.toUtf8());
    return QString::fromLatin1(hash.result().toHex());
}

struct CompileJob
{
    QString name;
    QString device;
    QString incFolder;
    QStringList files;
};

} // namespace

TEST(CompileMatrix, EveryModePackageAndRequestCompiles)
{
    if (qEnvironmentVariableIsEmpty("MQ48_COMPILE_MATRIX"))
        GTEST_SKIP() << "the compile matrix runs as the CTest entry codegen_compile_matrix";
    ArmCompiler gcc;
    if (!gcc.available())
        GTEST_SKIP() << "arm-none-eabi-gcc is not installed";
    QElapsedTimer timer;
    timer.start();
    SourceDatabase db;
    setUserMessageHandler([](QWidget *, const UserMessage &) { return 0; });

    QList<MatrixDesign> designs;
    MatrixBuilder builder(&designs);
    const QList<QPair<QString, QString>> devices = {{"MQ48T110C8T", "LQFP48"},
                                                    {"MQ48T110CBT", "LQFP48"},
                                                    {"MQ48T110K8T", "LQFP32"},
                                                    {"MQ48T110K6U", "QFN32"},
                                                    {"MQ48T110F6P", "TSSOP20"}};
    GeneratorInputs everythingC8T;
    for (const auto &device : devices) {
        FormConfiguration form;
        ASSERT_TRUE(form.buildDesign("MQ48T110", device.first, device.second));
        builder.add(device.first + "/nothing", form);
        if (device.first == QLatin1String("MQ48T110C8T"))
            modeDesigns(form, builder);
        for (IP_ModeAndConfiguration *panel : form.modePanels())
            selectFirstItems(panel);
        builder.add(device.first + "/everything", form, enableInterrupts);
        if (device.first != QLatin1String("MQ48T110C8T"))
            continue;
        everythingC8T = designs.last().inputs;
        for (IP_ModeAndConfiguration *panel : form.modePanels()) {
            const int most = mostEntries(panel);
            for (int k = 1; k < most; ++k) {
                sweepParameters(panel, k);
                builder.add(panel->instanceName() + QStringLiteral("/sweep%1").arg(k), form,
                            enableInterrupts);
            }
            if (ParamSettingWidget *params = panel->paramSettingWidget())
                params->Reset();
        }
    }
    dmaDesigns(everythingC8T, &designs);
    setUserMessageHandler({});
    const qint64 collectMs = timer.elapsed();

    // Generate every design; identical files (with the headers they see) compile once.
    QTemporaryDir root;
    QList<CompileJob> jobs;
    QSet<QString> seen;
    int generated = 0;
    for (int i = 0; i < designs.size(); ++i) {
        const MatrixDesign &d = designs.at(i);
        const QString folder = root.path() + QStringLiteral("/d%1/project").arg(i);
        GenerateCode_All_T110 generator;
        generator.setInputs(d.inputs);
        ASSERT_TRUE(generator.generate(folder))
            << qPrintable(d.name) << ": " << qPrintable(generator.failedFile());
        ++generated;
        QStringList headers;
        for (const QString &h : {QStringLiteral("mq48t110_pf_config.h"),
                                 QStringLiteral("mq48t110_int.h"), QStringLiteral("mq48t110_conf.h")})
            headers << QString::fromUtf8(testsupport::readFile(folder + "/inc/" + h));
        CompileJob job{d.name, d.inputs.deviceName, folder + "/inc", {}};
        for (const QString &c : {QStringLiteral("main.c"), QStringLiteral("mq48t110_pf_config.c"),
                                 QStringLiteral("mq48t110_int.c")}) {
            const QString text = QString::fromUtf8(testsupport::readFile(folder + "/src/" + c));
            QStringList texts = headers;
            texts << text;
            for (const QString &t : texts) {
                ASSERT_FALSE(t.contains(QLatin1String("[#")) || t.contains(QLatin1String("[/#")))
                    << qPrintable(d.name) << " " << qPrintable(c);
            }
            texts << d.inputs.deviceName;
            const QString key = keyOf(texts);
            if (!seen.contains(key)) {
                seen.insert(key);
                job.files << folder + "/src/" + c;
            }
        }
        if (!job.files.isEmpty())
            jobs << job;
    }

    // Two compilers at a time; each job is one run over the files of one design.
    std::vector<QString> failures(static_cast<size_t>(jobs.size()));
    std::atomic<int> next(0);
    auto worker = [&]() {
        for (int i = next++; i < jobs.size(); i = next++) {
            QString output;
            if (!gcc.compile(jobs.at(i).files, {jobs.at(i).incFolder}, jobs.at(i).device,
                             &output))
                failures[static_cast<size_t>(i)] = jobs.at(i).name + ":\n" + output.left(3000);
        }
    };
    std::thread first(worker);
    std::thread second(worker);
    first.join();
    second.join();
    int failed = 0;
    for (const QString &f : failures) {
        if (!f.isEmpty() && failed++ < 5)
            ADD_FAILURE() << qPrintable(f);
    }
    int files = 0;
    for (const CompileJob &j : jobs)
        files += j.files.size();
    std::printf("compile matrix: %d designs, %d distinct files in %d compiler runs, "
                "%d failed; %.1f s (designs %.1f s)\n",
                generated, files, static_cast<int>(jobs.size()), failed,
                timer.elapsed() / 1000.0, collectMs / 1000.0);
    EXPECT_EQ(failed, 0);
    EXPECT_GT(generated, 300);
}
