// Times code generation:
//  1. the six files of an MQ48T110 design with every peripheral on (first item of every mode
//     control), its interrupts and a few DMA requests, regenerated into the same folder so that
//     the user code of the previous run is merged each time;
//  2. a synthetic template of about 13,000 lines with a hundred instance sections, each cut
//     out, gated, rewritten and put back as the generators do;
//  3. finding the hundred sections with the block scanner and with the greedy regular
//     expression it replaces.
// Prints the median and the fastest of each.

#include "app/formconfiguration.h"
#include "app/generatorinputsbuilder.h"
#include "codegen/familygenerator.h"
#include "codegen/templateengine.h"
#include "database/language.h"
#include "database/paths.h"
#include "database/peripheralreader.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/procheckbox.h"
#include "peripherals/procombobox.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

struct Timing
{
    double median = 0;
    double fastest = 0;
};

Timing timeRuns(int runs, const std::function<void()> &work)
{
    std::vector<double> ms;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer t;
        t.start();
        work();
        ms.push_back(t.nsecsElapsed() / 1e6);
    }
    std::sort(ms.begin(), ms.end());
    return {ms[ms.size() / 2], ms.front()};
}

// Every control of every panel on its first item that sticks.
void switchEverythingOn(FormConfiguration &form)
{
    for (IP_ModeAndConfiguration *panel : form.modePanels()) {
        for (ProComboBox *box : panel->comboBoxes()) {
            for (int i = 1; i < box->count(); ++i) {
                box->setCurrentIndex(i);
                if (box->currentIndex() == i)
                    break;
            }
        }
        for (ProCheckBox *box : panel->checkBoxes())
            box->setChecked(true);
    }
}

void addDmaRequest(GeneratorInputs &in, const IPNode &dmaTree, const QString &name,
                   const QString &channel)
{
    for (const DMARequestInfo &info : GetDMARequests(dmaTree)) {
        if (info.Name != name)
            continue;
        GeneratorDmaRequest r;
        r.name = name;
        r.ipInstance = info.IpInstance;
        r.channel = channel;
        for (const DMARequestParameter &p : info.Parameters) {
            if (p.Name == QLatin1String("DMA_Handle"))
                r.handle = p.DefaultValue;
            RefParameter ref;
            ref.Name = p.Name;
            ref.Value = p.DefaultValue;
            r.parameters << ref;
        }
        in.dmaRequests << r;
    }
}

GeneratorInputs everythingOn()
{
    FormConfiguration form;
    if (!form.buildDesign(QStringLiteral("MQ48T110"), QStringLiteral("MQ48T110C8T"),
                          QStringLiteral("LQFP48")))
        return GeneratorInputs();
    switchEverythingOn(form);
    GeneratorInputs in = GeneratorInputsBuilder::fromForm(form);
    for (GeneratorInterrupt &irq : in.interrupts) {
        bool used = irq.instances.isEmpty();
        for (const QString &i : irq.instances)
            used = used || in.isConfigured(i);
        irq.enabled = irq.enabled || (irq.listed && used);
    }
    const IPNode dmaTree = ReadIPFile(QStringLiteral(MQ48_SOURCE_DIR) +
                                      "/MQ48DB/device/MQ48T110/Peripherals/DMA-V1.0.xml");
    addDmaRequest(in, dmaTree, QStringLiteral("USART1_TX"), QStringLiteral("DMA1_Channel2"));
    addDmaRequest(in, dmaTree, QStringLiteral("USART1_RX"), QStringLiteral("DMA1_Channel3"));
    addDmaRequest(in, dmaTree, QStringLiteral("ADC1"), QStringLiteral("DMA1_Channel1"));
    return in;
}

// One instance section of the synthetic template: pins, 40 parameter lines, option blocks.
QString syntheticSection(int n)
{
    const QString inst = QStringLiteral("inst%1").arg(n);
    QString t;
    t += "[#" + inst + " function]\n";
    t += "/**\n  * @brief  init " + inst + " function\n  * @param  none\n  * @retval none\n  */\n";
    t += "void pf_" + inst + "_init(void)\n{\n  gpio_init_type gpio_init_struct;\n\n";
    t += "  /* add user code begin " + inst + "_init 0 */\n\n";
    t += "  /* add user code end " + inst + "_init 0 */\n\n";
    for (int p = 0; p < 4; ++p) {
        t += QStringLiteral("[#p%1 pin]\n  /* configure the P%1 pin */\n").arg(p);
        t += "  gpio_init_struct.gpio_drive_strength = GPIO_DRIVE_STRENGTH_STRONGER;\n"
             "  gpio_init_struct.gpio_out_type = GPIO_OUTPUT_PUSH_PULL;\n"
             "  gpio_init_struct.gpio_mode = GPIO_MODE_MUX;\n"
             "  gpio_init_struct.gpio_pins = GPIO_PINS_0;\n"
             "  gpio_init_struct.gpio_pull = GPIO_PULL_NONE;\n"
             "  gpio_init(GPIOA, &gpio_init_struct);\n"
             "  gpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE0, GPIO_MUX_0);\n";
        t += QStringLiteral("[/#p%1 pin]\n").arg(p);
    }
    t += "\n  /* configure param */\n";
    for (int k = 0; k < 40; ++k)
        t += QStringLiteral("  %1_struct.field_%2 = VALUE_%2;\n").arg(inst).arg(k);
    t += "  " + inst + "_init(INST, &" + inst + "_struct);\n\n";
    for (int k = 0; k < 5; ++k) {
        t += QStringLiteral("[#option%1]\n  /* option %1 */\n  %2_option%1_set(INST, 0, 0);\n"
                            "  %2_option%1_enable(INST, FALSE);\n[/#option%1]\n")
                 .arg(k)
                 .arg(inst);
    }
    t += "\n  /* add user code begin " + inst + "_init 1 */\n\n";
    t += "  /* add user code end " + inst + "_init 1 */\n}\n";
    t += "[/#" + inst + " function]\n\n";
    return t;
}

QString syntheticTemplate()
{
    QString t = QStringLiteral("/* synthetic template */\n#include \"device.h\"\n\n");
    for (int n = 0; n < 100; ++n)
        t += syntheticSection(n);
    return t;
}

// What a peripheral section does with its block.
bool fillSynthetic(QString &text)
{
    using namespace TemplateEngine;
    for (int n = 0; n < 100; ++n) {
        const QString inst = QStringLiteral("inst%1").arg(n);
        const bool ok = editBlock(text, inst + " function", n % 10 != 9, [&](QString &body) {
            for (int p = 0; p < 4; ++p) {
                const QString tag = QStringLiteral("p%1 pin").arg(p);
                if (!editBlock(body, tag, p <= n % 4, [&](QString &pin) {
                        rewriteAssignment(pin, "gpio_init_struct.gpio_pins",
                                          QStringLiteral("GPIO_PINS_%1").arg(p + 4));
                        rewriteAssignment(pin, "gpio_init_struct.gpio_pull", "GPIO_PULL_UP");
                        return replacePattern(pin, "gpio_init\\((\\w+),\\s*\\&(\\w+)\\);",
                                              "gpio_init(GPIOB, &\\2);") &&
                               rewriteCall(pin, "gpio_pin_mux_config",
                                           {"GPIOB", QStringLiteral("GPIO_PINS_SOURCE%1").arg(p + 4),
                                            "GPIO_MUX_1"},
                                           false);
                    }))
                    return false;
            }
            for (int k = 0; k < 40; k += 2) {
                rewriteAssignment(body, QStringLiteral("%1_struct.field_%2").arg(inst).arg(k),
                                  QStringLiteral("NEW_%1").arg(k));
            }
            for (int k = 0; k < 5; ++k) {
                if (!gateBlock(body, QStringLiteral("option%1").arg(k), (n + k) % 2 == 0))
                    return false;
            }
            rewriteCall(body, inst + "_option0_set", {"", "1", "2"});
            closeBlanks(body);
            return true;
        });
        if (!ok)
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    g_language = 0;
    setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
    setUserMessageHandler([](QWidget *, const UserMessage &) { return 0; });

    // 1. Everything on.
    const GeneratorInputs in = everythingOn();
    int configured = 0;
    for (const GeneratorPeripheral &p : in.peripherals)
        configured += p.configured ? 1 : 0;
    QTemporaryDir dir;
    bool ok = true;
    const Timing all = timeRuns(25, [&]() {
        GenerateCode_All_T110 generator;
        generator.setInputs(in);
        ok = generator.generate(dir.path() + "/project") && ok;
    });
    std::printf("everything-on T110 (%d peripherals, %d pins): six files in median %.1f ms, "
                "fastest %.1f ms%s\n",
                configured, static_cast<int>(in.pins.size()), all.median, all.fastest,
                ok ? "" : " (FAILED)");

    // 2. The synthetic template.
    const QString source = syntheticTemplate();
    const int lines = static_cast<int>(source.count(QLatin1Char('\n')));
    bool synthOk = true;
    const Timing synth = timeRuns(11, [&]() {
        QString text = source;
        synthOk = fillSynthetic(text) && !text.contains(QLatin1String("[#")) && synthOk;
    });
    std::printf("synthetic template (%d lines, 100 instances): median %.1f ms, fastest %.1f ms%s\n",
                lines, synth.median, synth.fastest, synthOk ? "" : " (FAILED)");

    // 3. Finding the hundred sections.
    int mismatches = 0;
    const Timing scanner = timeRuns(11, [&]() {
        for (int n = 0; n < 100; ++n)
            TemplateEngine::findBlock(source, QStringLiteral("inst%1 function").arg(n));
    });
    const Timing regex = timeRuns(11, [&]() {
        for (int n = 0; n < 100; ++n) {
            const QString tag = QStringLiteral("inst%1 function").arg(n);
            const QRegularExpression re("\\[#" + tag + "\\] *\\n(.+)\\[/#" + tag + "\\] *\\n+",
                                        QRegularExpression::DotMatchesEverythingOption);
            const QRegularExpressionMatch m = re.match(source);
            const TemplateEngine::Block b = TemplateEngine::findBlock(source, tag);
            if (!m.hasMatch() || m.capturedStart() != b.start || m.capturedEnd() != b.end)
                ++mismatches;
        }
    });
    std::printf("finding 100 sections in the synthetic template: scanner median %.2f ms, "
                "QRegularExpression median %.2f ms (%d different spans)\n",
                scanner.median, regex.median, mismatches);
    setUserMessageHandler({});
    return ok && synthOk && mismatches == 0 ? 0 : 1;
}
