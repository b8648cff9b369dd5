#include "t110design.h"

#include "common/testsupport.h"
#include "database/paths.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/paramvalue.h"
#include "peripherals/systempanelsupport.h"
#include "widgets/messagebox.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

ProgramFolder::ProgramFolder()
{
    const QString db = QFileInfo(testsupport::sourceDatabase()).path() + "/MQ48DB";
    QFile::link(db, m_dir.path() + "/MQ48DB");
    setAppFolderOverride(m_dir.path());
}

ProgramFolder::~ProgramFolder()
{
    setAppFolderOverride(QString());
}

namespace {

// Every control of a panel to its first item that sticks.
void selectFirstItems(IP_ModeAndConfiguration *panel)
{
    QList<QPair<QString, QStringList>> controls;
    const ModeLogic &logic = panel->logic();
    for (int i = 0; i < logic.controls.size(); ++i) {
        const ModeControl &c = logic.controls.at(i);
        QStringList items;
        if (!c.isCombo()) {
            items << QStringLiteral("TRUE");
        } else {
            for (const ModeItem &item : c.items)
                items << c.option.signalGroups.value(item.groupIndex).Name;
        }
        controls << qMakePair(c.option.Name, items);
    }
    for (const auto &control : controls) {
        for (const QString &item : control.second) {
            if (panel->setModeSelection(control.first, item))
                break;
        }
    }
}

// Sets a parameter as a design file would and notes how the panel shows it.
void change(IP_ModeAndConfiguration *panel, const QString &name, const QString &value,
            QList<ChangedParameter> *changed)
{
    ParamSettingWidget *params = panel->paramSettingWidget();
    if (!params)
        return;
    params->setParameterValue(name, value);
    params->refreshValues();
    for (const RefParameter &p : params->parameters) {
        if (p.Name != name || !params->isParameterVisible(p))
            continue;
        const QString shown = p.PossibleValues.isEmpty()
                                  ? ParamValue::displayText(p, p.Value)
                                  : SystemPanelSupport::valueText(p, p.Value);
        *changed << ChangedParameter{panel->instanceName(),
                                     SystemPanelSupport::parameterText(p), shown};
    }
}

} // namespace

EverythingOnT110::EverythingOnT110() : m_form(std::make_unique<FormConfiguration>())
{
    setUserMessageHandler([](QWidget *, const UserMessage &) { return 0; });
    m_built = m_form->buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48");
    if (!m_built) {
        setUserMessageHandler({});
        return;
    }
    for (IP_ModeAndConfiguration *panel : m_form->modePanels())
        selectFirstItems(panel);
    m_form->refreshSystemModels();
    QCoreApplication::processEvents();
    for (IP_ModeAndConfiguration *panel : m_form->modePanels()) {
        if (panel->modeActive())
            configured << panel->instanceName();
    }

    if (IP_ModeAndConfiguration *usart = m_form->modePanel("USART1")) {
        change(usart, "BaudRate", "9600", &changed);
        change(usart, "Parityselection", "USART_PARITY_EVEN", &changed);
    }
    if (IP_ModeAndConfiguration *spi = m_form->modePanel("SPI1"))
        change(spi, "CLKPolarity", "SPI_CLOCK_POLARITY_HIGH", &changed);

    for (DmaRequestModel *model : m_form->dmaModels()) {
        for (const QString &request : {QStringLiteral("USART1_TX"), QStringLiteral("USART1_RX"),
                                       QStringLiteral("ADC1")}) {
            if (model->addRequest(request).ok())
                dmaRequests << request;
        }
    }
    m_form->refreshSystemModels();

    if (NvicModel *nvic = m_form->nvicModel()) {
        for (const NvicRow &row : nvic->rows()) {
            if (row.available && row.hasEnableBox() && !row.enabled() &&
                nvic->setEnabled(row.irq.IRQName, true)) {
                enabledInterrupts << SystemPanelSupport::databaseText(row.irq.CommentEN,
                                                                      row.irq.CommentCH);
            }
        }
    }

    if (GpioSettingsModel *gpio = m_form->gpioModel()) {
        for (const GpioSettingRow &row : gpio->rows()) {
            if (row.instanceName.isEmpty())
                continue;
            if (gpio->setLabel(row.signal, row.pinName, QStringLiteral("REPORT_LABEL"))) {
                labelledPin = row.pinName;
                label = QStringLiteral("REPORT_LABEL");
                break;
            }
        }
    }
    QCoreApplication::processEvents();
    setUserMessageHandler({});
}
