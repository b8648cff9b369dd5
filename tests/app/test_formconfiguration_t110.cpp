#include "app/formconfiguration.h"
#include "common/testsupport.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/peripheralsconfig.h"
#include "peripherals/procombobox.h"
#include "pinout/chipview.h"
#include "widgets/messagebox.h"

#include "tests/app/appfolder.h"
#include <QFileInfo>
#include <QPointer>
#include <QTreeWidget>
#include <QTreeWidgetItem>

#include <gtest/gtest.h>

namespace {

// The active pins on which `func` is lit.
QStringList litPins(const DevicePinInfo *info, const QString &func)
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

QString treeIcon(const FormConfiguration &form, const QString &instance)
{
    const auto items = form.peripheralsTree()->itemsOf(instance);
    return items.isEmpty() ? QString() : PeripheralsConfig::iconPath(items.first());
}

// Clicks the tree row of an instance as the user would.
void clickTreeRow(FormConfiguration &form, const QString &instance)
{
    const auto items = form.peripheralsTree()->itemsOf(instance);
    ASSERT_FALSE(items.isEmpty()) << qPrintable(instance);
    form.peripheralsTree()->ListItem_Clicked(items.first(), 0);
}

TEST(FormConfigurationT110, EveryOrdinaryPeripheralGetsAHiddenPanelTheTreeCanShow)
{
    ShippedDatabase db;
    FormConfiguration form;
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48"));
    ASSERT_NE(form.peripheralsTree(), nullptr);

    // SCFG's only mode needs the TSSOP20 package: it is left out here.
    QStringList expected;
    for (const PeripheralListItem &row : form.design().peripheralList) {
        if (!DesignLoader::isSystemBlock(row.InstanceName) && row.InstanceName != "SCFG")
            expected << row.InstanceName;
    }
    QStringList built;
    for (IP_ModeAndConfiguration *panel : form.modePanels()) {
        built << panel->instanceName();
        EXPECT_TRUE(panel->isHidden()) << qPrintable(panel->instanceName());
    }
    EXPECT_EQ(built, expected);
    EXPECT_TRUE(built.contains("USART1"));
    EXPECT_EQ(form.shownPanel(), nullptr);
    EXPECT_TRUE(db.messages.isEmpty());
    EXPECT_TRUE(form.peripheralsTree()->itemsOf("SCFG").isEmpty());
    EXPECT_EQ(form.modePanel("SCFG"), nullptr);

    clickTreeRow(form, "USART1");
    EXPECT_EQ(form.shownPanel(), form.modePanel("USART1"));
    clickTreeRow(form, "TMR1");
    EXPECT_EQ(form.shownPanel(), form.modePanel("TMR1"));
    EXPECT_TRUE(form.modePanel("USART1")->isHidden());

    // A new design deletes the old panels and the old tree.
    QPointer<IP_ModeAndConfiguration> oldPanel = form.modePanel("USART1");
    QPointer<PeripheralsConfig> oldTree = form.peripheralsTree();
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110K8T", "LQFP32"));
    EXPECT_TRUE(oldPanel.isNull());
    EXPECT_TRUE(oldTree.isNull());
    EXPECT_NE(form.modePanel("USART1"), nullptr);
}

TEST(FormConfigurationT110, UsartModeThroughItsPanelLightsPinsAndTheTreeThenReturnsThem)
{
    ShippedDatabase db;
    FormConfiguration form;
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48"));
    IP_ModeAndConfiguration *usart = form.modePanel("USART1");
    ASSERT_NE(usart, nullptr);
    ProComboBox *mode = usart->comboBox("Mode");
    ASSERT_NE(mode, nullptr);
    const DevicePinInfo *pins = form.design().devicePinInfo;
    EXPECT_EQ(treeIcon(form, "USART1"), ":/image/background-light.png");

    mode->setCurrentIndex(mode->findText("Asynchronous"));
    EXPECT_EQ(litPins(pins, "USART1_TX"), QStringList{"PA9"});
    EXPECT_EQ(litPins(pins, "USART1_RX"), QStringList{"PA10"});
    EXPECT_EQ(treeIcon(form, "USART1"), ":/image/greenStone.png");
    EXPECT_EQ(form.panelStatus().value("USART1"), IPSTATUS_ACTIVE);
    EXPECT_FALSE(form.pinPageWarning());
    // The other panels only learn that the pins changed and catch up when shown.
    IP_ModeAndConfiguration *i2c = form.modePanel("I2C1");
    ASSERT_NE(i2c, nullptr);
    EXPECT_TRUE(i2c->isStale());
    EXPECT_FALSE(usart->isStale());

    mode->setCurrentIndex(0);
    EXPECT_TRUE(litPins(pins, "USART1_TX").isEmpty());
    EXPECT_TRUE(litPins(pins, "USART1_RX").isEmpty());
    EXPECT_EQ(treeIcon(form, "USART1"), ":/image/background-light.png");
    EXPECT_EQ(form.panelStatus().value("USART1"), IPSTATUS_INACTIVE);
}

TEST(FormConfigurationT110, UnfinishedPanelMarksThePinPageAndTheTreeUntilItIsDone)
{
    ShippedDatabase db;
    FormConfiguration form;
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48"));
    const IPSTATUS unfinished = IPSTATUS_ACTIVE | IPSTATUS_UNFINISHED;
    form.ReceiveIPStatusFlag("TMR1", unfinished, false);
    EXPECT_TRUE(form.pinPageWarning());
    EXPECT_EQ(treeIcon(form, "TMR1"), ":/image/danger32.png");
    // Another panel turning active keeps the mark while TMR1 stays unfinished.
    form.ReceiveIPStatusFlag("USART1", IPSTATUS_ACTIVE, false);
    EXPECT_TRUE(form.pinPageWarning());
    form.ReceiveIPStatusFlag("TMR1", IPSTATUS_ACTIVE, false);
    EXPECT_FALSE(form.pinPageWarning());
    EXPECT_EQ(treeIcon(form, "TMR1"), ":/image/greenStone.png");
}

} // namespace
