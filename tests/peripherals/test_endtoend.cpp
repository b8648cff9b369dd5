#include "database/devicereader.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/paramsettingwidget.h"
#include "widgets/messagebox.h"
#include "peripherals/peripheralsconfig.h"
#include "peripherals/procheckbox.h"
#include "peripherals/procombobox.h"
#include "pinout/chipview.h"

#include <QLabel>
#include <QSet>
#include <QSignalSpy>
#include <QTreeWidgetItem>

#include <gtest/gtest.h>

#include <memory>

namespace {

const QString kSeries = QStringLiteral("MQ48T110");

// A T110 design wired as the work form wires it: panels to the drawing, the drawing back to
// every other panel, statuses to the tree.
class T110Design
{
public:
    explicit T110Design(const QString &device = QStringLiteral("MQ48T110C8T"))
    {
        g_language = 0;
        setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
        setUserMessageHandler([this](QWidget *, const UserMessage &m) {
            messages << m.text;
            return 0;
        });
        const QString path = deviceFilePath(kSeries, device);
        info.reset(NewDevicePinInfo(path));
        rows = GetPeripheralsList(path);
        chip = std::make_unique<ChipView>(info.get());
        tree = std::make_unique<PeripheralsConfig>(rows);
        for (const PeripheralListItem &row : rows) {
            static const QStringList blocks = {"GPIO", "NVIC", "DMA", "EDMA"};
            if (blocks.contains(row.InstanceName))
                continue;
            auto *panel = new IP_ModeAndConfiguration(row, IPNode(), device, kSeries, info.get());
            QObject::connect(panel, &IP_ModeAndConfiguration::SendIPPinSignals, chip.get(),
                             &ChipView::ReciveIPPinSignals);
            QObject::connect(panel, &IP_ModeAndConfiguration::ClearIPPinSignals, chip.get(),
                             &ChipView::ReciveClearIPPinSignals);
            QObject::connect(panel, &IP_ModeAndConfiguration::SendPinRemapFlag, chip.get(),
                             &ChipView::ReceivePinRemapFlag);
            QObject::connect(panel, &IP_ModeAndConfiguration::SendIPStatusFlag, tree.get(),
                             &PeripheralsConfig::ReceiveIPStatusFlag);
            panels.emplace_back(panel);
        }
        QObject::connect(chip.get(), &ChipView::SendAllConfigedSignals,
                         [this](DevicePinInfo *pins, bool flag, QString sender) {
                             for (auto &panel : panels) {
                                 if (panel->instanceName() != sender)
                                     panel->ReciveAllConfigedSignals(pins, flag, sender);
                             }
                         });
    }
    ~T110Design()
    {
        panels.clear();
        setUserMessageHandler({});
        setAppFolderOverride(QString());
        g_language = 1;
    }

    IP_ModeAndConfiguration *panel(const QString &instance) const
    {
        for (const auto &p : panels) {
            if (p->instanceName() == instance)
                return p.get();
        }
        return nullptr;
    }

    // The state of a signal on the active pin of that name.
    int state(const QString &pinName, const QString &func) const
    {
        for (const MCUPinsBaseInfo *pin : info->pins) {
            if (!pin->remapOff || pin->PinName.trimmed() != pinName)
                continue;
            for (const MCUPinSignal *s : pin->signalList) {
                if (s->Func == func)
                    return s->status;
            }
        }
        return -1;
    }

    // The names of the active pins on which `func` is lit.
    QStringList litPins(const QString &func) const
    {
        QStringList out;
        for (const MCUPinsBaseInfo *pin : info->pins) {
            if (!pin->remapOff)
                continue;
            for (const MCUPinSignal *s : pin->signalList) {
                if (s->Func == func && s->status > SIGNAL_FREE)
                    out << pin->PinName.trimmed();
            }
        }
        return out;
    }

    QString treeIcon(const QString &instance) const
    {
        const auto items = tree->itemsOf(instance);
        return items.isEmpty() ? QString() : PeripheralsConfig::iconPath(items.first());
    }

    std::unique_ptr<DevicePinInfo> info;
    QList<PeripheralListItem> rows;
    std::unique_ptr<ChipView> chip;
    std::unique_ptr<PeripheralsConfig> tree;
    std::vector<std::unique_ptr<IP_ModeAndConfiguration>> panels;
    QStringList messages;
};

int itemIndex(const ProComboBox *box, const QString &text)
{
    return box->findText(text);
}

} // namespace

TEST(T110EndToEnd, UsartAsynchronousLightsItsPinsAndTheTree)
{
    T110Design d;
    IP_ModeAndConfiguration *usart = d.panel("USART1");
    ASSERT_NE(usart, nullptr);
    // SCFG's one mode needs a TSSOP20 package: it has modes, none usable here, and no error.
    EXPECT_TRUE(d.messages.isEmpty());
    EXPECT_TRUE(d.panel("SCFG")->hasModes());
    EXPECT_FALSE(d.panel("SCFG")->hasUsableMode());
    ProComboBox *mode = usart->comboBox("Mode");
    ASSERT_NE(mode, nullptr);
    EXPECT_EQ(d.treeIcon("USART1"), ":/image/background-light.png");

    mode->setCurrentIndex(itemIndex(mode, "Asynchronous"));
    EXPECT_EQ(d.litPins("USART1_TX"), QStringList{"PA9"});
    EXPECT_EQ(d.litPins("USART1_RX"), QStringList{"PA10"});
    EXPECT_EQ(d.state("PA9", "USART1_TX"), SIGNAL_MODE_ONLY);
    EXPECT_EQ(usart->status(), IPSTATUS_ACTIVE);
    EXPECT_EQ(d.treeIcon("USART1"), ":/image/greenStone.png");
    EXPECT_TRUE(usart->tabTitles().contains("Parameters Settings"));
    ASSERT_NE(usart->paramSettingWidget(), nullptr);
    EXPECT_GT(usart->paramSettingWidget()->parameters.size(), 0);
    // Other panels only learn that the pins changed.
    EXPECT_TRUE(d.panel("I2C1")->isStale());

    // Off again: the pins return.
    mode->setCurrentIndex(0);
    EXPECT_TRUE(d.litPins("USART1_TX").isEmpty());
    EXPECT_EQ(d.state("PA10", "USART1_RX"), SIGNAL_FREE);
    EXPECT_EQ(d.treeIcon("USART1"), ":/image/background-light.png");
}

TEST(T110EndToEnd, CompetingPeripheralsShareThePins)
{
    T110Design d;
    IP_ModeAndConfiguration *tmr1 = d.panel("TMR1");
    IP_ModeAndConfiguration *usart = d.panel("USART1");
    ASSERT_TRUE(tmr1 && usart);
    tmr1->checkBox("Activated")->setChecked(true);
    ProComboBox *ch2 = tmr1->comboBox("Channel2");
    ASSERT_NE(ch2, nullptr);
    ch2->setCurrentIndex(itemIndex(ch2, "PWM Generation CH2"));
    ASSERT_EQ(d.litPins("TMR1_CH2"), QStringList{"PA9"});

    // PA9 is taken, so the USART's transmitter moves to its other pin.
    ProComboBox *mode = usart->comboBox("Mode");
    mode->setCurrentIndex(itemIndex(mode, "Asynchronous"));
    EXPECT_EQ(d.litPins("USART1_TX"), QStringList{"PB6"});
    EXPECT_EQ(d.litPins("USART1_RX"), QStringList{"PA10"});
    EXPECT_EQ(d.litPins("TMR1_CH2"), QStringList{"PA9"});

    // The timer lets its channel go; its pin is free, the USART keeps its pins.
    ch2->setCurrentIndex(0);
    EXPECT_TRUE(d.litPins("TMR1_CH2").isEmpty());
    EXPECT_EQ(d.state("PA9", "USART1_TX"), SIGNAL_FREE);
    EXPECT_EQ(d.litPins("USART1_TX"), QStringList{"PB6"});
    mode->setCurrentIndex(0);
    EXPECT_TRUE(d.litPins("USART1_TX").isEmpty());
    EXPECT_TRUE(d.litPins("USART1_RX").isEmpty());
}

TEST(T110EndToEnd, SubordinateModeWithoutInputIsUnfinished)
{
    T110Design d;
    IP_ModeAndConfiguration *tmr1 = d.panel("TMR1");
    ASSERT_NE(tmr1, nullptr);
    ProComboBox *sub = tmr1->comboBox("Subordinate mode");
    ProComboBox *input = tmr1->comboBox("Sub-mode input selection");
    ASSERT_TRUE(sub && input);
    // The subordinate mode needs the timer activated first.
    EXPECT_FALSE(sub->itemEnabled(1));
    sub->setCurrentIndex(1);
    EXPECT_EQ(sub->currentIndex(), 0);

    tmr1->checkBox("Activated")->setChecked(true);
    EXPECT_EQ(d.treeIcon("TMR1"), ":/image/greenStone.png");
    sub->setCurrentIndex(1);
    EXPECT_EQ(tmr1->status() & IPSTATUS_UNFINISHED, IPSTATUS_UNFINISHED);
    EXPECT_EQ(d.treeIcon("TMR1"), ":/image/danger32.png");
    EXPECT_TRUE(tmr1->hintLabel()->text().startsWith("Please select a "));
    input->setCurrentIndex(1);
    EXPECT_EQ(tmr1->status(), IPSTATUS_ACTIVE);
    EXPECT_EQ(d.treeIcon("TMR1"), ":/image/greenStone.png");
    EXPECT_TRUE(tmr1->hintLabel()->text().isEmpty());

    // Deactivating the timer lets the dependent selections go.
    tmr1->checkBox("Activated")->setChecked(false);
    EXPECT_EQ(sub->currentIndex(), 0);
    EXPECT_EQ(input->currentIndex(), 0);
    EXPECT_EQ(tmr1->status(), IPSTATUS_INACTIVE);
}

// Switches every mode of every panel on and off; returns the names of the items that lit all
// their signals, and adds those that the semaphores allowed to `allowed`.
QSet<QString> switchEverything(T110Design &d, QSet<QString> *allowed, int *exercised)
{
    QSet<QString> done;
    for (auto &panel : d.panels) {
        const QString prefix = panel->instanceName() + QLatin1Char('/');
        // Boxes without signals (as "Activated") open the items that depend on them.
        for (ProCheckBox *box : panel->checkBoxes()) {
            if (box->isEnabled() && box->control()->realSignalsAt(1).isEmpty() &&
                box->control()->option.Name != QLatin1String("PA11 PA12 remap"))
                box->setChecked(true);
        }
        for (ProCheckBox *box : panel->checkBoxes()) {
            if (box->control()->option.Name == QLatin1String("PA11 PA12 remap") ||
                box->isChecked() || !box->control()->semaphoresAllow(1))
                continue;
            allowed->insert(prefix + box->text());
            if (!box->isEnabled())
                continue;
            box->setChecked(true);
            bool lit = box->isChecked();
            for (const ModeSignal &s : box->control()->realSignalsAt(1))
                lit = lit && !d.litPins(s.signalName).isEmpty();
            if (lit)
                done.insert(prefix + box->text());
            box->setChecked(false);
            ++*exercised;
        }
        for (ProComboBox *box : panel->comboBoxes()) {
            for (int i = 1; i < box->count(); ++i) {
                if (!box->control()->semaphoresAllow(i))
                    continue;
                const QString key = prefix + box->control()->option.Name + "/" + box->itemText(i);
                allowed->insert(key);
                if (!box->itemEnabled(i))
                    continue;
                box->setCurrentIndex(i);
                bool lit = box->currentIndex() == i;
                for (const ModeSignal &s : box->control()->realSignalsAt(i))
                    lit = lit && !d.litPins(s.signalName).isEmpty();
                if (box == panel->comboBoxes().first() && panel->checkBoxes().isEmpty())
                    lit = lit && panel->modeActive();
                if (lit)
                    done.insert(key);
                box->setCurrentIndex(0);
                ++*exercised;
            }
        }
    }
    return done;
}

TEST(T110EndToEnd, EveryModeOfEveryPackageCanBeSwitchedOn)
{
    const QStringList devices = {"MQ48T110C8T", "MQ48T110K8T", "MQ48T110F6P"};
    int exercised = 0;
    for (const QString &device : devices) {
        QSet<QString> allowed;
        QSet<QString> done;
        {
            T110Design d(device);
            // A panel without controls has no mode that the package allows.
            for (auto &panel : d.panels) {
                if (panel->logic().controls.isEmpty()) {
                    EXPECT_TRUE(panel->instanceName() == "SCFG" || !device.endsWith("C8T"))
                        << panel->instanceName().toStdString();
                }
            }
            done = switchEverything(d, &allowed, &exercised);
        }
        {
            // The remapped pins of the small package carry the rest.
            T110Design d(device);
            if (ProCheckBox *remap = d.panel("SCFG")->checkBox("PA11 PA12 remap")) {
                remap->setChecked(true);
                done += switchEverything(d, &allowed, &exercised);
            }
        }
        for (const QString &key : allowed)
            EXPECT_TRUE(done.contains(key)) << device.toStdString() << " " << key.toStdString();
    }
    EXPECT_GT(exercised, 100);
}

TEST(PeripheralsConfig, GroupsClicksAndStatusIcons)
{
    QList<PeripheralListItem> rows;
    auto add = [&rows](const QString &instance, const QString &group) {
        PeripheralListItem r;
        r.InstanceName = instance;
        r.Name = instance;
        r.GroupName = group;
        rows << r;
    };
    add("CRM", "System Core");
    add("TMR1", "Timers");
    add("WDT", "System Core");
    add("TMR1", "Analog"); // one row under two groups
    PeripheralsConfig tree(rows);
    ASSERT_EQ(tree.groups().size(), 3);
    EXPECT_EQ(tree.groups().at(0).name, "System Core");
    EXPECT_EQ(tree.groups().at(0).items.size(), 2);
    EXPECT_EQ(tree.groups().at(0).items.at(1)->text(0), "    WDT");

    QSignalSpy spy(&tree, &PeripheralsConfig::SendIPName);
    QTreeWidgetItem *header = tree.groups().at(1).header;
    EXPECT_TRUE(header->isExpanded());
    tree.ListItem_Clicked(header, 0);
    EXPECT_FALSE(header->isExpanded());
    EXPECT_EQ(spy.count(), 0);
    tree.ListItem_Clicked(tree.groups().at(1).items.first(), 0);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).toString(), "TMR1");

    tree.ReceiveIPStatusFlag("TMR1", IPSTATUS_ACTIVE, false);
    for (QTreeWidgetItem *item : tree.itemsOf("TMR1"))
        EXPECT_EQ(PeripheralsConfig::iconPath(item), ":/image/greenStone.png");
    tree.ReceiveIPStatusFlag("TMR1", IPSTATUS_INACTIVE | IPSTATUS_UNFINISHED, false);
    EXPECT_EQ(PeripheralsConfig::iconPath(tree.itemsOf("TMR1").last()), ":/image/danger32.png");
    tree.ReceiveIPStatusFlag("TMR1", 3, false); // not a known state: unchanged
    EXPECT_EQ(PeripheralsConfig::iconPath(tree.itemsOf("TMR1").first()), ":/image/danger32.png");
    tree.ReceiveIPStatusFlag("NOPE", IPSTATUS_ACTIVE, false);
    EXPECT_EQ(PeripheralsConfig::iconPath(tree.itemsOf("CRM").first()),
              ":/image/background-light.png");
    tree.FoldAllTreeItem();
    EXPECT_EQ(tree.lastItem(), tree.groups().at(1).items.first());
    EXPECT_FALSE(tree.groups().at(0).header->isExpanded());
}
