// One panel of the shipped MQ48T110 database: its mode controls after the logic's controls
// were copied, selections set back from a design file, and parameter rows made on showing.

#include "database/devicereader.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/oneparamwidget.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/procheckbox.h"
#include "peripherals/procombobox.h"
#include "widgets/messagebox.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

const QString kSeries = QStringLiteral("MQ48T110");
const QString kDevice = QStringLiteral("MQ48T110C8T");

// The panel of one instance on the LQFP48 device, without the rest of the work form.
class ModePanel : public ::testing::Test
{
protected:
    void open(const QString &instance)
    {
        const QString path = deviceFilePath(kSeries, kDevice);
        info.reset(NewDevicePinInfo(path));
        for (const PeripheralListItem &row : GetPeripheralsList(path)) {
            if (row.InstanceName == instance)
                panel = std::make_unique<IP_ModeAndConfiguration>(row, IPNode(), kDevice, kSeries,
                                                                  info.get());
        }
        ASSERT_NE(panel, nullptr) << qPrintable(instance);
    }

    void SetUp() override
    {
        g_language = 0;
        setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
        setUserMessageHandler([](QWidget *, const UserMessage &) { return 0; });
    }

    void TearDown() override
    {
        panel.reset();
        setUserMessageHandler({});
        setAppFolderOverride(QString());
        g_language = 1;
    }

    int indexOf(const ModeControl *control) const
    {
        const QVector<ModeControl> &controls = panel->logic().controls;
        for (int i = 0; i < controls.size(); ++i) {
            if (&controls.at(i) == control)
                return i;
        }
        return -1;
    }

    std::unique_ptr<DevicePinInfo> info;
    std::unique_ptr<IP_ModeAndConfiguration> panel;
};

} // namespace

TEST_F(ModePanel, ControlsFollowTheLogicAfterItsControlsWereCopied)
{
    open(QStringLiteral("CRM"));
    ProComboBox *hext = panel->comboBox(QStringLiteral("HEXT"));
    ProCheckBox *clkout = panel->checkBox(QStringLiteral("CLKOUT"));
    ASSERT_TRUE(hext && clkout);
    const int hextIndex = indexOf(hext->control());
    const int clkoutIndex = indexOf(clkout->control());
    ASSERT_TRUE(hextIndex >= 0 && clkoutIndex >= 0);
    {
        // A reader keeps a copy of the controls while the user changes modes: the logic's
        // controls detach from the copy, and the boxes must go with the logic.
        const QVector<ModeControl> copy = panel->logic().controls;
        ASSERT_TRUE(panel->setModeSelection(QStringLiteral("HEXT"), QStringLiteral("CRYSTAL")));
        ASSERT_TRUE(panel->setModeSelection(QStringLiteral("CLKOUT"), QStringLiteral("TRUE")));
        EXPECT_EQ(copy.at(hextIndex).current, 0) << "the copy stays as it was";
        EXPECT_EQ(hext->control(), &panel->logic().controls.at(hextIndex));
        EXPECT_EQ(clkout->control(), &panel->logic().controls.at(clkoutIndex));
        EXPECT_EQ(hext->control()->current, 2);
        EXPECT_EQ(clkout->control()->current, 1);
    }
    // The copy is gone; the boxes still judge their items and take changes.
    ASSERT_TRUE(panel->setModeSelection(QStringLiteral("HEXT"), QStringLiteral("BYPASS")));
    hext->judge();
    clkout->judge();
    EXPECT_TRUE(hext->itemEnabled(2));
    EXPECT_EQ(hext->control()->current, 1);
    EXPECT_EQ(panel->modeSelections(),
              (QList<QPair<QString, QString>>{{"HEXT", "BYPASS"}, {"CLKOUT", "TRUE"}}));
}

TEST_F(ModePanel, CheckBoxesTakeTrueOrFalseOnly)
{
    open(QStringLiteral("CRM"));
    ProCheckBox *clkout = panel->checkBox(QStringLiteral("CLKOUT"));
    ASSERT_NE(clkout, nullptr);
    EXPECT_TRUE(panel->setModeSelection(QStringLiteral("CLKOUT"), QStringLiteral("true")));
    EXPECT_TRUE(clkout->isChecked());
    // Anything else is refused and changes nothing.
    for (const QString &value :
         {QStringLiteral("yes"), QStringLiteral("0"), QString(), QStringLiteral("FALSE ")}) {
        EXPECT_FALSE(panel->setModeSelection(QStringLiteral("CLKOUT"), value))
            << qPrintable(value);
        EXPECT_TRUE(clkout->isChecked()) << qPrintable(value);
    }
    EXPECT_TRUE(panel->setModeSelection(QStringLiteral("CLKOUT"), QStringLiteral("False")));
    EXPECT_FALSE(clkout->isChecked());
    EXPECT_FALSE(panel->setModeSelection(QStringLiteral("CLKOUT2"), QStringLiteral("TRUE")));
}

TEST_F(ModePanel, ComboBoxesTakeTheKeyOrEitherText)
{
    open(QStringLiteral("CRM"));
    ProComboBox *hext = panel->comboBox(QStringLiteral("HEXT"));
    ASSERT_NE(hext, nullptr);
    EXPECT_TRUE(panel->setModeSelection(QStringLiteral("HEXT"), QStringLiteral("CRYSTAL")));
    EXPECT_EQ(hext->currentIndex(), 2);
    EXPECT_TRUE(
        panel->setModeSelection(QStringLiteral("HEXT"), QStringLiteral("BYPASS Clock Source")));
    EXPECT_EQ(hext->currentIndex(), 1);
    EXPECT_TRUE(
        panel->setModeSelection(QStringLiteral("HEXT"), QStringLiteral("晶体/陶瓷谐振器")));
    EXPECT_EQ(hext->currentIndex(), 2);
    // The design file keeps the key, whichever text set it.
    EXPECT_EQ(panel->modeSelections().value(0),
              qMakePair(QStringLiteral("HEXT"), QStringLiteral("CRYSTAL")));
    for (const QString &value :
         {QStringLiteral("crystal"), QStringLiteral("Disable"), QStringLiteral("Quartz")}) {
        EXPECT_FALSE(panel->setModeSelection(QStringLiteral("HEXT"), value)) << qPrintable(value);
        EXPECT_EQ(hext->currentIndex(), 2) << qPrintable(value);
    }
}

TEST_F(ModePanel, ParameterRowsAreMadeWhenTheTabIsFirstShown)
{
    open(QStringLiteral("USART1"));
    ParamSettingWidget *params = panel->paramSettingWidget();
    ASSERT_NE(params, nullptr);
    ASSERT_TRUE(panel->setModeSelection(QStringLiteral("Mode"), QStringLiteral("Asynchronous")));
    params->modeThread.wait();
    QCoreApplication::processEvents();
    // The data is there for the design file and the generator; the rows are not.
    EXPECT_FALSE(params->rowsBuilt());
    EXPECT_EQ(params->parameterValue(QStringLiteral("BaudRate")), "115200");
    EXPECT_EQ(params->paramStatus, IPPARAMSTATUS_VALID);
    EXPECT_EQ(panel->tabTitles().value(0), "Parameters Settings");

    panel->show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(params->isVisible());
    EXPECT_TRUE(params->rowsBuilt());
    ASSERT_NE(params->rowOf(QStringLiteral("BaudRate")), nullptr);
    EXPECT_TRUE(params->rowOf(QStringLiteral("BaudRate"))->isValueValid());
}
