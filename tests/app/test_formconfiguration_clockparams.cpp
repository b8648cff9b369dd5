#include "app/formconfiguration.h"
#include "clock/mq48clocktree.h"
#include "clock/mq48pllconfig.h"
#include "common/testsupport.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/calculators/paramlist.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/oneparamwidget.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/peripheralsconfig.h"
#include "widgets/messagebox.h"

#include "tests/app/appfolder.h"
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

// The clock page of the work form reaches every parameter panel, shown or hidden.

namespace {

QString baudLabel(ParamSettingWidget *params)
{
    OneParamWidget *row = params->rowOf("BaudRate");
    return row ? row->label()->text() : QString();
}

} // namespace

TEST(FormConfigurationClock, ClockChangesReachOpenAndClosedParameterPanels)
{
    ShippedDatabase db;
    FormConfiguration form;
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48"));
    IP_ModeAndConfiguration *usart = form.modePanel("USART1");
    IP_ModeAndConfiguration *spi = form.modePanel("SPI1");
    IP_ModeAndConfiguration *tmr = form.modePanel("TMR1");
    ASSERT_TRUE(usart && spi && tmr);
    ParamSettingWidget *usartParams = usart->paramSettingWidget();
    ParamSettingWidget *spiParams = spi->paramSettingWidget();
    ASSERT_TRUE(usartParams && spiParams && tmr->paramSettingWidget());

    // The panels read the clock page from the start.
    MQ48PLLConfig *page = form.clockPage();
    const double start = page->clockOfPeripheral("USART1");
    ASSERT_GT(start, 0.0);
    EXPECT_EQ(baudLabel(usartParams), QStringLiteral("Baud Rate (%1-%2)")
                                          .arg(qint64(start * 1e6 / 65535))
                                          .arg(qint64(start * 1e6 / 16)));

    // USART1 is on show, SPI1 is not.
    const auto items = form.peripheralsTree()->itemsOf("USART1");
    ASSERT_FALSE(items.isEmpty());
    form.peripheralsTree()->ListItem_Clicked(items.first(), 0);
    EXPECT_EQ(form.shownPanel(), usart);
    EXPECT_FALSE(spi->isVisible());

    QSignalSpy tmrDiagram(tmr->paramSettingWidget(), &ParamSettingWidget::SendTMRParamValue);
    QSignalSpy changed(page, &MQ48PLLConfig::SendClockChangedSignal);
    auto *pll = qobject_cast<QRadioButton *>(page->tree()->control("sclkselect_1"));
    auto *sclk = qobject_cast<QLineEdit *>(page->tree()->control("sclk"));
    ASSERT_TRUE(pll && sclk);
    pll->click();
    sclk->selectAll();
    sclk->del();
    QTest::keyClicks(sclk, "120");
    QTest::keyClick(sclk, Qt::Key_Return);
    ASSERT_TRUE(changed.wait(2000));
    QCoreApplication::processEvents();

    EXPECT_EQ(baudLabel(usartParams), "Baud Rate (1831-7500000)");
    const RefParameter division = ParamList::get(spiParams->parameters, "ClkDivision");
    ASSERT_FALSE(division.PossibleValues.isEmpty());
    for (const RefParamValue &v : division.PossibleValues) {
        const int d = ParamList::trailingNumber(v.Value);
        EXPECT_EQ(!v.Action.isEmpty(), 120e6 / d > 36e6) << qPrintable(v.Value);
    }
    // The timer diagram heard of the new clock too.
    ASSERT_FALSE(tmrDiagram.isEmpty());
    EXPECT_DOUBLE_EQ(tmrDiagram.last().at(0).toDouble(), page->clockOfPeripheral("TMR1"));
}
