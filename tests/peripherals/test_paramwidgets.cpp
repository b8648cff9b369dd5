#include "peripherals/customcombobox.h"
#include "peripherals/customlineedit.h"
#include "peripherals/oneparamwidget.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/procombobox.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

RefParameter param(const QString &name, const QString &type, const QString &value,
                   const QString &group = "Basic")
{
    RefParameter p;
    p.Name = name;
    p.Comment = name;
    p.Group = group;
    p.Type = type;
    p.Value = value;
    p.DefaultValue = value;
    return p;
}

RefParamValue value(const QString &v, const QString &semaphore = QString(),
                    const QString &condition = QString())
{
    RefParamValue pv;
    pv.Value = v;
    pv.Comment = v;
    pv.Semaphore = semaphore;
    pv.Condition = condition;
    return pv;
}

// Lets the mode thread and the queued rebuild run.
void settle(ParamSettingWidget &w)
{
    w.modeThread.wait();
    QCoreApplication::processEvents();
    w.modeThread.wait();
    QCoreApplication::processEvents();
}

} // namespace

TEST(OneParamWidget, NumericFieldsPadClipAndReport)
{
    RefParameter hex = param("Mask", "hexadecimal", "1F");
    hex.Max = "FFFF";
    OneParamWidget hexRow(hex, {});
    EXPECT_EQ(hexRow.lineEdit()->text(), "0x001F");

    RefParameter p = param("Div", "integer", "4");
    p.Min = "1";
    p.Max = "64";
    p.Unit = "x";
    OneParamWidget row(p, {});
    QSignalSpy spy(&row,
                   QOverload<QString, QString, bool>::of(&OneParamWidget::SendParamModefySignal));
    row.lineEdit()->setText("1000");
    row.Value_LineEdit_editingFinished();
    EXPECT_EQ(row.lineEdit()->text(), "64 x");
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).toString(), "Div");
    EXPECT_EQ(spy.at(0).at(1).toString(), "64");
    EXPECT_TRUE(spy.at(0).at(2).toBool());
    // The same number again sends nothing; garbage restores the last value.
    row.lineEdit()->setText("64");
    row.Value_LineEdit_editingFinished();
    row.lineEdit()->setText("many");
    row.Value_LineEdit_editingFinished();
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(row.lineEdit()->text(), "64 x");
    // An invalid stored value shows as such.
    p.Value = "99";
    OneParamWidget bad(p, {});
    EXPECT_FALSE(bad.isValueValid());
    EXPECT_FALSE(bad.lineEdit()->isValid());
}

TEST(OneParamWidget, MacAddressNeedsAFullAddress)
{
    OneParamWidget row(param("MAC", "mac address", "00:11:22:33:44:55"), {});
    QLineEdit *edit = row.lineEdit();
    EXPECT_TRUE(edit->hasAcceptableInput());
    edit->setText("AB:CD");
    EXPECT_FALSE(edit->hasAcceptableInput()); // editingFinished can't fire like this
    edit->setText("AB:CD:EF:01:23:45");
    EXPECT_TRUE(edit->hasAcceptableInput());
    QSignalSpy spy(&row,
                   QOverload<QString, QString, bool>::of(&OneParamWidget::SendParamModefySignal));
    row.Value_LineEdit_editingFinished();
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(1).toString(), "AB:CD:EF:01:23:45");
}

TEST(OneParamWidget, ListRowsSwapSemaphores)
{
    RefParameter p = param("Mode", "list", "M1");
    p.PossibleValues = {value("M1", "SEM_M1"), value("M2", "SEM_M2"),
                        value("M3", QString(), "SEM_X")};
    OneParamWidget row(p, {});
    ASSERT_EQ(row.comboBox()->count(), 2); // M3's condition fails
    QSignalSpy cancel(&row, &OneParamWidget::SendCancelSemaphoreSignal);
    QSignalSpy enable(&row, &OneParamWidget::SendEnableSemaphoreSignal);
    QSignalSpy modify(&row,
                      QOverload<QString, QString>::of(&OneParamWidget::SendParamModefySignal));
    row.comboBox()->setCurrentIndex(1);
    ASSERT_EQ(cancel.count(), 1);
    EXPECT_EQ(cancel.at(0).at(0).toString(), "SEM_M1");
    EXPECT_EQ(enable.at(0).at(0).toString(), "SEM_M2");
    EXPECT_EQ(modify.at(0).at(1).toString(), "M2");
    EXPECT_EQ(row.currentValue(), "M2");
}

TEST(ParamSettingWidget, SemaphoresShowRowsAndListsFallBack)
{
    RefParameter mode = param("Mode", "list", "BASIC");
    mode.PossibleValues = {value("BASIC"), value("ADVANCED", "ADV_ON")};
    RefParameter extra = param("Extra", "integer", "3", "Advanced");
    extra.Expression = "ADV_ON";
    RefParameter byValue = param("ByValue", "integer", "1", "Advanced");
    byValue.Expression = "Mode=ADVANCED";
    RefParameter choice = param("Choice", "list", "X");
    choice.PossibleValues = {value("X"), value("Y", QString(), "!LOCK")};
    ParamSettingWidget w("MQ48T110", "USART1", {mode, extra, byValue, choice});
    w.show();
    EXPECT_EQ(w.rows.size(), 2);
    EXPECT_EQ(w.rowOf("Extra"), nullptr);
    EXPECT_EQ(w.paramStatus, IPPARAMSTATUS_VALID);

    // The row's list change raises ADV_ON and writes the value: both hidden rows appear.
    w.rowOf("Mode")->comboBox()->setCurrentIndex(1);
    settle(w);
    EXPECT_TRUE(w.enabledSemaphores.contains("ADV_ON"));
    EXPECT_NE(w.rowOf("Extra"), nullptr);
    EXPECT_NE(w.rowOf("ByValue"), nullptr);
    EXPECT_NE(w.groupItem("Advanced"), nullptr);

    // A semaphore from elsewhere removes the item the user chose in "Choice".
    w.rowOf("Choice")->comboBox()->setCurrentIndex(1);
    settle(w);
    QSignalSpy status(&w, &ParamSettingWidget::SendIPParamStatus);
    w.EnableSemaphore(QStringLiteral("LOCK"));
    settle(w);
    ASSERT_NE(w.rowOf("Choice"), nullptr);
    EXPECT_EQ(w.rowOf("Choice")->currentValue(), "X");
    EXPECT_FALSE(w.rowOf("Choice")->isValueValid());
    EXPECT_EQ(w.paramStatus, IPPARAMSTATUS_INVALID);
    ASSERT_GE(status.count(), 1);
    EXPECT_EQ(status.last().at(1).toInt(), IPPARAMSTATUS_INVALID);
    w.CancelSemaphore(QStringLiteral("LOCK"));
    settle(w);
    EXPECT_EQ(w.paramStatus, IPPARAMSTATUS_VALID);
}

TEST(ParamSettingWidget, ValuesAndStatusAreCompleteBeforeTheRowsAreMade)
{
    // Lists that follow a mode, numbers in and out of range, a greyed choice, plain text.
    RefParameter mode = param("Mode", "list", "SLOW");
    mode.PossibleValues = {value("SLOW", QString(), "!FAST_ON"),
                           value("FAST", QString(), "FAST_ON")};
    RefParameter div = param("Div", "integer", "70");
    div.Min = "1";
    div.Max = "64";
    RefParameter mask = param("Mask", "hexadecimal", "1F");
    mask.Max = "FFFF";
    RefParameter greyed = param("Greyed", "list", "B");
    greyed.PossibleValues = {value("A"), value("B")};
    greyed.PossibleValues[1].Action = "Grey";
    RefParameter hidden = param("Hidden", "integer", "999");
    hidden.Max = "9";
    hidden.Expression = "SHOW_HIDDEN";
    RefParameter text = param("Text", "string", "anything");
    ParamSettingWidget w("MQ48T110", "USART1", {mode, div, mask, greyed, hidden, text});
    QSignalSpy status(&w, &ParamSettingWidget::SendIPParamStatus);

    // Nothing shown yet: no rows, and the status already counts the two bad values.
    EXPECT_FALSE(w.rowsBuilt());
    EXPECT_TRUE(w.rows.isEmpty());
    EXPECT_EQ(w.paramStatus, IPPARAMSTATUS_INVALID);
    w.ParamModefySlot("Div", "8");
    w.ParamModefySlot("Greyed", "A");
    EXPECT_EQ(w.paramStatus, IPPARAMSTATUS_VALID);
    ASSERT_GE(status.count(), 1);
    EXPECT_EQ(status.last().at(1).toInt(), IPPARAMSTATUS_VALID);

    // A semaphore moves the list that follows the mode and shows a bad row, still without rows.
    w.EnableSemaphore(QStringList{"FAST_ON", "SHOW_HIDDEN"});
    settle(w);
    EXPECT_EQ(w.parameterValue("Mode"), "FAST");
    EXPECT_EQ(w.paramStatus, IPPARAMSTATUS_INVALID);
    EXPECT_FALSE(w.rowsBuilt());

    // Shown, every row agrees with the status that was worked out without it.
    w.show();
    ASSERT_TRUE(w.rowsBuilt());
    ASSERT_EQ(w.rows.size(), 6);
    for (const OneParamWidget *row : w.rows) {
        EXPECT_EQ(row->isValueValid(), row->parameter().Name != "Hidden")
            << qPrintable(row->parameter().Name);
    }
    EXPECT_EQ(w.rowOf("Mask")->lineEdit()->text(), "0x001F");
    EXPECT_EQ(w.rowOf("Mode")->currentValue(), "FAST");
}

TEST(ParamSettingWidget, FoldingSurvivesEditsAndEditsCoalesce)
{
    RefParameter a = param("A", "integer", "1", "First");
    RefParameter b = param("B", "integer", "1", "Second");
    ParamSettingWidget w("MQ48T110", "TMR1", {a, b});
    emit w.itemClicked(w.groupItem("First"));
    EXPECT_TRUE(w.isGroupFolded("First"));
    EXPECT_TRUE(w.item(w.row(w.groupItem("First")) + 1)->isHidden());

    const int before = w.rebuildCount;
    w.ParamModefySlot("B", "5", true);
    w.ParamModefySlot("B", "6", true);
    QTest::qWait(350);
    EXPECT_EQ(w.rebuildCount, before + 1); // two quick edits, one refresh
    EXPECT_EQ(w.parameterValue("B"), "6");
    EXPECT_TRUE(w.isGroupFolded("First"));
    EXPECT_TRUE(w.item(w.row(w.groupItem("First")) + 1)->isHidden());
    w.ExpandAllTreeItem();
    EXPECT_FALSE(w.isGroupFolded("First"));
}

TEST(ParamSettingWidget, DesignValuesAndReset)
{
    RefParameter a = param("A", "integer", "1");
    ParamSettingWidget w("MQ48T110", "CRC", {a});
    w.setParameterValue("A", "7");
    w.setParameterValue("Gone", "x"); // unknown names survive a database change
    EXPECT_EQ(w.parameterValue("A"), "7");
    EXPECT_EQ(w.parameterValue("Gone"), "x");
    EXPECT_EQ(w.parameters.first().InstanceName, "CRC");
    w.Reset();
    EXPECT_EQ(w.parameterValue("A"), "1");
    EXPECT_EQ(w.parameters.size(), 1);
}
