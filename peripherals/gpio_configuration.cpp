#include "peripherals/gpio_configuration.h"

#include "peripherals/customcombobox.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/gpiosettingwidget.h"
#include "peripherals/systempanelsupport.h"
#include "widgets/messagebox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

GPIO_Configuration::GPIO_Configuration(GpioSettingsModel *model, QWidget *parent)
    : QWidget(parent), m_model(model)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    m_header = SystemPanelSupport::makeHeader(this);
    layout->addWidget(m_header);
    m_section = SystemPanelSupport::makeSectionLabel(this);
    layout->addWidget(m_section);

    auto *row = new QHBoxLayout;
    row->setContentsMargins(6, 0, 6, 0);
    m_showLabel = new QLabel(this);
    m_showLabel->setFont(QFont(QStringLiteral("Arial"), 9));
    m_showType = new CustomComboBox(this);
    m_showType->setFixedHeight(25);
    m_showType->setMinimumWidth(200);
    m_showType->addItems({QString(), QString()});
    m_resetButton = new QPushButton(this);
    m_resetButton->setFont(QFont(QStringLiteral("Arial"), 9));
    row->addWidget(m_showLabel);
    row->addWidget(m_showType);
    row->addStretch(1);
    row->addWidget(m_resetButton);
    layout->addLayout(row);

    m_tabs = new QTabWidget(this);
    m_tabs->setFont(QFont(QStringLiteral("Arial"), 9));
    layout->addWidget(m_tabs, 1);

    m_all = new GPIOSettingWidget(model, GPIOSettingWidget::Scope::All, QString(), this);
    m_rest = new GPIOSettingWidget(model, GPIOSettingWidget::Scope::WithoutInstance, QString(),
                                   this);
    m_rest->hide();
    connectTable(m_all);
    connectTable(m_rest);

    connect(m_showType, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &GPIO_Configuration::GPIOShowType_ComboBox_IndexChanged);
    connect(m_tabs, &QTabWidget::tabBarClicked, this, &GPIO_Configuration::TabWidgetTabBarClicked);
    connect(m_resetButton, &QPushButton::clicked, this,
            &GPIO_Configuration::ResetConfigurationClickedSlot);
    connect(m_model, &GpioSettingsModel::showTypeChanged, this, [this](int type) {
        if (m_showType->currentIndex() != type)
            m_showType->setCurrentIndex(type);
        rebuildTabs();
    });
    connect(m_model, &GpioSettingsModel::changed, this, [this] {
        if (m_model->showType() == 1)
            rebuildTabs();
    });

    retranslateUi();
    {
        const QSignalBlocker blocker(m_showType);
        m_showType->setCurrentIndex(m_model->showType());
    }
    rebuildTabs();
}

void GPIO_Configuration::connectTable(GPIOSettingWidget *table)
{
    connect(table, &GPIOSettingWidget::SendGPIOSettingChangeSignals, this,
            [this](const QString &instance, const QString &) {
                emit SendGPIOSettingChangeSignals1(instance);
            });
    connect(table, &GPIOSettingWidget::SendGPIOQuerySignals, this,
            &GPIO_Configuration::SendGPIOQuerySignals);
    connect(table, &GPIOSettingWidget::SendGPIOSignalsUserLabelChange, this,
            &GPIO_Configuration::SendGPIOSignalsUserLabelChange);
}

void GPIO_Configuration::retranslateUi()
{
    m_header->setText(tr("Mode and Configuration"));
    m_section->setText(tr("Configuration"));
    m_showLabel->setText(tr("Show"));
    m_showType->setItemText(0, tr("Show All"));
    m_showType->setItemText(1, tr("Groups By Peripherals"));
    m_resetButton->setText(tr("Reset Configuration"));
    m_all->retranslateUi();
    m_rest->retranslateUi();
    for (GPIOSettingWidget *table : qAsConst(m_peripheralTables))
        table->retranslateUi();
    rebuildTabs();
}

QList<GPIOSettingWidget *> GPIO_Configuration::tables() const
{
    QList<GPIOSettingWidget *> out;
    for (int i = 0; i < m_tabs->count(); ++i) {
        if (auto *table = qobject_cast<GPIOSettingWidget *>(m_tabs->widget(i)))
            out << table;
    }
    return out;
}

QStringList GPIO_Configuration::tabNames() const
{
    QStringList out;
    for (GPIOSettingWidget *table : tables())
        out << (table->instanceName().isEmpty() ? QStringLiteral("GPIO") : table->instanceName());
    return out;
}

void GPIO_Configuration::rebuildTabs()
{
    const QSignalBlocker blocker(m_tabs);
    QList<GPIOSettingWidget *> wanted;
    if (m_model->showType() == 0) {
        wanted << m_all;
    } else {
        wanted << m_rest;
        // Tables of peripherals are kept while the peripheral has rows, so that their
        // selection stays.
        const QStringList instances = m_model->instancesWithRows();
        QList<GPIOSettingWidget *> kept;
        for (const QString &instance : instances) {
            GPIOSettingWidget *table = nullptr;
            for (GPIOSettingWidget *t : qAsConst(m_peripheralTables)) {
                if (t->instanceName() == instance)
                    table = t;
            }
            if (!table) {
                table = new GPIOSettingWidget(m_model, GPIOSettingWidget::Scope::Instance,
                                              instance, this);
                connectTable(table);
            }
            kept << table;
        }
        for (GPIOSettingWidget *t : qAsConst(m_peripheralTables)) {
            if (!kept.contains(t))
                t->deleteLater();
        }
        m_peripheralTables = kept;
        wanted << kept;
    }
    bool same = m_tabs->count() == wanted.size();
    for (int i = 0; same && i < wanted.size(); ++i)
        same = m_tabs->widget(i) == wanted.at(i);
    if (!same) {
        while (m_tabs->count() > 0)
            m_tabs->removeTab(0);
        for (GPIOSettingWidget *table : wanted) {
            m_tabs->addTab(table, table->instanceName().isEmpty() ? tr("GPIO")
                                                                   : table->instanceName());
        }
        if (!wanted.contains(m_rest))
            m_rest->hide();
        if (!wanted.contains(m_all))
            m_all->hide();
    } else if (!wanted.isEmpty()) {
        m_tabs->setTabText(0, tr("GPIO"));
    }
    if (m_currentTab >= 0 && m_currentTab < m_tabs->count())
        m_tabs->setCurrentIndex(m_currentTab);
}

void GPIO_Configuration::ReciveAllConfigedSignals(DevicePinInfo *info, bool, QString)
{
    m_devicePinInfo = info;
    m_model->update(info);
    m_status = m_model->rows().isEmpty() ? IPSTATUS_INACTIVE : IPSTATUS_ACTIVE;
    emit SendIPStatusFlag(QStringLiteral("GPIO"), m_status, false);
}

void GPIO_Configuration::ReciveGPIOSettingChangeSignals(QString, QString)
{
    // The tables share the model and follow it; the one on show catches up at once.
    for (GPIOSettingWidget *table : tables()) {
        if (table->isVisible())
            table->ensureCurrent();
    }
}

void GPIO_Configuration::ReceiveGPIOQuerySignals(QString pinName, QString pinSignal)
{
    emit SendGPIOQuerySignals(pinName, pinSignal);
}

void GPIO_Configuration::ReceiveGPIOSignalsUserLabelChange(int pinNum, QString pinSignal,
                                                           QString userLabel)
{
    emit SendGPIOSignalsUserLabelChange(pinNum, pinSignal, userLabel);
}

void GPIO_Configuration::GPIOShowType_ComboBox_IndexChanged(int k)
{
    if (k < 0)
        return;
    m_model->setShowType(k);
    rebuildTabs();
}

void GPIO_Configuration::ResetConfigurationClickedSlot()
{
    if (!confirmUser(this, UserMessage::Warning, tr("Warning"),
                     tr("The current configuration will be reset. Please confirm whether to "
                        "continue?"),
                     okButtonText()))
        return;
    m_model->resetParameters();
}

void GPIO_Configuration::TabWidgetTabBarClicked(int k)
{
    if (k >= 0)
        m_currentTab = k;
}
