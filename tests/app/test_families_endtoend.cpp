// Every series of the catalogue through the work form: the largest device opens with its
// peripheral tree, and every mode that its package allows lights its pins and leaves no
// parameter in error that the defaults should satisfy.

#include "app/formconfiguration.h"
#include "common/testsupport.h"
#include "database/catalogue.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/paramvalue.h"
#include "peripherals/peripheralsconfig.h"
#include "peripherals/procheckbox.h"
#include "peripherals/procombobox.h"
#include "widgets/messagebox.h"

#include "tests/app/appfolder.h"
#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

int pinCount(const QString &package)
{
    return QString(package).remove(QRegularExpression(QStringLiteral("\\D"))).toInt();
}

int kilobytes(const QString &size)
{
    return size.section(QLatin1Char(' '), 0, 0).toInt();
}

// The catalogue row with the most pins, and of those the most flash.
MCUListItem largestDevice(const QString &series)
{
    MCUListItem best;
    for (const MCUListItem &item : GetMCUList(cataloguePath(), series)) {
        const int pins = pinCount(item.Package);
        const int bestPins = pinCount(best.Package);
        if (best.Name.isEmpty() || pins > bestPins ||
            (pins == bestPins && kilobytes(item.Flash) > kilobytes(best.Flash)))
            best = item;
    }
    return best;
}

bool isLit(const DevicePinInfo *info, const QString &func)
{
    for (const MCUPinsBaseInfo *pin : info->pins) {
        if (!pin->remapOff)
            continue;
        for (const MCUPinSignal *s : pin->signalList) {
            if (s->Func == func && s->status > SIGNAL_FREE)
                return true;
        }
    }
    return false;
}

// A list whose every value holds only under a condition follows the mode: after a change
// its value may have to move, which no default can foresee.
bool followsTheMode(const RefParameter &p)
{
    if (p.PossibleValues.isEmpty())
        return false;
    for (const RefParamValue &v : p.PossibleValues) {
        if (v.Condition.trimmed().isEmpty())
            return false;
    }
    return true;
}

// Visible rows in error that the defaults should have satisfied, judged as the rows judge
// themselves (a list by its choice over the panel's semaphores, a number by its range).
QStringList badRows(IP_ModeAndConfiguration *panel)
{
    QStringList out;
    ParamSettingWidget *params = panel->paramSettingWidget();
    if (!params)
        return out;
    const QStringList enabled = params->evaluationList();
    for (const RefParameter &p : params->parameters) {
        if (!params->isParameterVisible(p) || followsTheMode(p))
            continue;
        const bool valid = p.Type == QLatin1String("list")
                               ? ParamValue::listChoice(p, enabled).valid
                               : ParamValue::isValid(p);
        if (!valid)
            out << p.Name + QLatin1Char('=') + p.Value;
    }
    return out;
}

struct Selection
{
    int control;
    int item;
};

// Drives one panel through every mode it offers; failures name the instance and the mode.
class PanelWalk
{
public:
    PanelWalk(IP_ModeAndConfiguration *panel, const DevicePinInfo *info)
        : m_panel(panel), m_info(info)
    {
    }

    // Tries every item of every control in order; each control keeps its first item that
    // took, so that later controls find the modes they depend on. Returns how many items
    // were set.
    int run()
    {
        int tried = 0;
        for (int c = 0; c < m_panel->logic().controls.size(); ++c) {
            const ModeControl control = m_panel->logic().controls.at(c);
            int keep = 0;
            const int count = control.isCombo() ? control.items.size() : 1;
            for (int i = 1; i <= count; ++i) {
                if (!m_panel->logic().controls.at(c).itemEnabled(i))
                    continue;
                if (!select(c, i)) {
                    ADD_FAILURE() << qPrintable(where(c, i)) << ": offered but not taken";
                    continue;
                }
                ++tried;
                checkLit(c, i);
                checkParameters(c, i);
                if (!keep)
                    keep = i;
                else if (control.isCombo())
                    select(c, keep);
            }
            if (keep && !m_panel->logic().controls.at(c).isSelected())
                select(c, keep);
        }
        return tried;
    }

    // Sets every control back, the last one first, and checks that the pins are free.
    void reset()
    {
        for (int c = m_panel->logic().controls.size() - 1; c >= 0; --c)
            select(c, 0);
        for (const ModeSignal &s : m_panel->logic().allSignals) {
            if (!s.Virtual) {
                EXPECT_FALSE(isLit(m_info, s.signalName)) << qPrintable(m_panel->instanceName())
                                                          << " keeps " << qPrintable(s.signalName);
            }
        }
    }

private:
    bool select(int c, int i)
    {
        const ModeControl &control = m_panel->logic().controls.at(c);
        if (control.isCombo()) {
            ProComboBox *box = m_panel->comboBox(control.option.Name);
            if (!box)
                return false;
            box->setCurrentIndex(i);
        } else {
            ProCheckBox *box = m_panel->checkBox(control.option.Name);
            if (!box)
                return false;
            box->setChecked(i > 0);
        }
        // The parameter rows are judged from the data below; their widget rebuilds, queued
        // after each change, are not needed here, only the values they would show.
        if (ParamSettingWidget *params = m_panel->paramSettingWidget()) {
            params->modeThread.wait();
            QCoreApplication::removePostedEvents(params, QEvent::MetaCall);
            params->refreshValues();
        }
        return m_panel->logic().controls.at(c).current == i;
    }

    QString where(int c, int i) const
    {
        const ModeControl &control = m_panel->logic().controls.at(c);
        return m_panel->instanceName() + QStringLiteral(" / ") + control.label +
               QStringLiteral(" / ") + control.textAt(i);
    }

    void checkLit(int c, int i)
    {
        for (const ModeSignal &s : m_panel->logic().controls.at(c).realSignalsAt(i)) {
            EXPECT_TRUE(isLit(m_info, s.signalName))
                << qPrintable(where(c, i)) << ": " << qPrintable(s.signalName) << " is unlit";
        }
    }

    void checkParameters(int c, int i)
    {
        const QStringList bad = badRows(m_panel);
        EXPECT_TRUE(bad.isEmpty())
            << qPrintable(where(c, i)) << ": " << qPrintable(bad.join(QStringLiteral(", ")));
    }

    IP_ModeAndConfiguration *m_panel;
    const DevicePinInfo *m_info;
};

class FamilyEndToEnd : public ::testing::TestWithParam<const char *>
{
};

TEST_P(FamilyEndToEnd, LargestDeviceOpensAndEveryModeLightsItsPins)
{
    ShippedDatabase db;
    const QString series = QString::fromLatin1(GetParam());
    const MCUListItem device = largestDevice(series);
    ASSERT_FALSE(device.Name.isEmpty()) << qPrintable(series);

    FormConfiguration form;
    ASSERT_TRUE(form.buildDesign(series, device.Name, device.Package));
    const DesignData &design = form.design();
    EXPECT_TRUE(db.messages.isEmpty()) << qPrintable(db.messages.join(QStringLiteral("; ")));

    // The tree has a row for every instance of the device, and each ordinary one a panel.
    QStringList expected;
    for (const PeripheralListItem &row : design.peripheralList) {
        EXPECT_FALSE(form.peripheralsTree()->itemsOf(row.InstanceName).isEmpty())
            << qPrintable(row.InstanceName);
        if (!DesignLoader::isSystemBlock(row.InstanceName))
            expected << row.InstanceName;
    }
    QStringList built;
    for (IP_ModeAndConfiguration *panel : form.modePanels())
        built << panel->instanceName();
    EXPECT_EQ(built, expected);
    EXPECT_GT(design.nvicInterrupts.size(), 10);
    EXPECT_FALSE(design.dmaTrees.isEmpty());

    int modes = 0;
    for (IP_ModeAndConfiguration *panel : form.modePanels()) {
        EXPECT_FALSE(panel->logic().controls.isEmpty())
            << qPrintable(panel->instanceName()) << " has no mode on " << qPrintable(device.Name);
        PanelWalk walk(panel, design.devicePinInfo);
        const int tried = walk.run();
        modes += tried;
        if (tried) {
            EXPECT_TRUE(panel->status() & IPSTATUS_ACTIVE)
                << qPrintable(panel->instanceName()) << " stays inactive";
            EXPECT_FALSE(panel->status() & IPSTATUS_UNFINISHED)
                << qPrintable(panel->instanceName()) << " stays unfinished";
        }
        walk.reset();
        EXPECT_EQ(panel->status(), IPSTATUS_INACTIVE) << qPrintable(panel->instanceName());
    }
    EXPECT_GT(modes, form.modePanels().size());
    RecordProperty("modes", modes);
    EXPECT_TRUE(db.messages.isEmpty()) << qPrintable(db.messages.join(QStringLiteral("; ")));
}

INSTANTIATE_TEST_SUITE_P(Catalogue, FamilyEndToEnd,
                         ::testing::Values("MQ48T510", "MQ48T520", "MQ48T250", "MQ48T260",
                                           "MQ48V250", "MQ48T310", "MQ48T320", "MQ48W320",
                                           "MQ48T120", "MQ48T130", "MQ48V130", "MQ48T220",
                                           "MQ48T210", "MQ48T230", "MQ48T050"));

} // namespace
