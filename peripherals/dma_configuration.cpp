#include "peripherals/dma_configuration.h"

#include "peripherals/dmarequestmodel.h"
#include "peripherals/dmasettingwidget.h"
#include "peripherals/systempanelsupport.h"

#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

DMA_Configuration::DMA_Configuration(DmaRequestModel *model, QWidget *parent)
    : QWidget(parent), m_model(model)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    m_header = SystemPanelSupport::makeHeader(this);
    layout->addWidget(m_header);
    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->setStyleSheet(QStringLiteral("QSplitter::handle{background:rgb(228, 228, 228);}"));
    splitter->setHandleWidth(3);
    auto *top = new QWidget(splitter);
    auto *topLayout = new QVBoxLayout(top);
    topLayout->setContentsMargins(0, 0, 0, 0);
    m_section = SystemPanelSupport::makeSectionLabel(top);
    topLayout->addWidget(m_section);
    m_tabs = new QTabWidget(splitter);
    m_tabs->setFont(QFont(QStringLiteral("Arial"), 9));
    splitter->addWidget(top);
    splitter->addWidget(m_tabs);
    splitter->setStretchFactor(1, 1);
    layout->addWidget(splitter, 1);

    for (const QString &tab : m_model->tabNames()) {
        auto *widget = new DMASettingWidget(model, DMASettingWidget::Scope::Tab, tab, this);
        connect(widget, &DMASettingWidget::SendDMARequestChangeSignals, this,
                &DMA_Configuration::ReciveDMASettingChangeSignals);
        connect(widget, &DMASettingWidget::SendIPStatusFlag, this,
                &DMA_Configuration::ReceiveIPStatusFlag);
        connect(widget, &DMASettingWidget::SendDMACondition, this,
                &DMA_Configuration::SendDMACondition);
        m_widgets << widget;
        m_tabs->addTab(widget, QString());
    }
    connect(m_tabs, &QTabWidget::tabBarClicked, this, &DMA_Configuration::TabWidgetTabBarClicked);
    retranslateUi();
}

DMASettingWidget *DMA_Configuration::settingWidget(const QString &tabName) const
{
    for (DMASettingWidget *w : m_widgets) {
        if (w->key() == tabName)
            return w;
    }
    return nullptr;
}

void DMA_Configuration::retranslateUi()
{
    m_header->setText(tr("Mode and Configuration"));
    m_section->setText(tr("Configuration"));
    for (int i = 0; i < m_widgets.size(); ++i) {
        const QString key = m_widgets.at(i)->key();
        m_tabs->setTabText(i, key == QLatin1String("MemToMem") ? tr("MemToMem") : key);
        m_widgets.at(i)->retranslateUi();
    }
}

void DMA_Configuration::ReciveDMASettingChangeSignals()
{
    emit SendDMARequestChangeSignals();
}

void DMA_Configuration::ReceiveIPStatusFlag(QString ipName, IPSTATUS statusFlag)
{
    emit SendIPStatusFlag(ipName, statusFlag);
    emit SendIPStatusFlag(ipName, statusFlag, false);
}

void DMA_Configuration::TabWidgetTabBarClicked(int index)
{
    if (index >= 0)
        m_currentTab = index;
}

void DMA_Configuration::EnableSemaphore(QString SemaphoreName, bool validFlag)
{
    for (DMASettingWidget *w : qAsConst(m_widgets)) {
        if (validFlag)
            w->EnableSemaphore({SemaphoreName});
        else
            w->CancelSemaphore({SemaphoreName});
    }
}
