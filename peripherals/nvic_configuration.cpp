#include "peripherals/nvic_configuration.h"

#include "peripherals/customcombobox.h"
#include "peripherals/nvic_settings.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/systempanelsupport.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

NVIC_Configuration::NVIC_Configuration(NvicModel *model, QWidget *parent)
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
    m_groupLabel = new QLabel(this);
    m_group = new CustomComboBox(this);
    m_showLabel = new QLabel(this);
    m_show = new CustomComboBox(this);
    for (QLabel *label : {m_groupLabel, m_showLabel})
        label->setFont(QFont(QStringLiteral("Arial"), 9));
    for (QComboBox *box : {m_group, m_show}) {
        box->setFixedHeight(25);
        box->setFont(QFont(QStringLiteral("Arial"), 9));
    }
    m_group->setMinimumWidth(300);
    m_show->setMinimumWidth(160);
    for (const RefParamValue &v : m_model->priorityGroups())
        m_group->addItem(QString(), v.Value);
    m_show->addItems({QString(), QString(), QString()});
    row->addWidget(m_groupLabel);
    row->addWidget(m_group);
    row->addSpacing(20);
    row->addWidget(m_showLabel);
    row->addWidget(m_show);
    row->addStretch(1);
    layout->addLayout(row);

    m_table = new NVIC_Settings(model, QString(), this);
    layout->addWidget(m_table, 1);

    connect(m_group, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &NVIC_Configuration::NVICPriorityGroup_ComboBox_IndexChanged);
    connect(m_show, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &NVIC_Configuration::NVICShowType_ComboBox_IndexChanged);
    connect(m_model, &NvicModel::changed, this, &NVIC_Configuration::syncControls);
    connect(m_model, &NvicModel::showTypeChanged, this, &NVIC_Configuration::syncControls);

    retranslateUi();
    syncControls();
}

void NVIC_Configuration::retranslateUi()
{
    m_header->setText(tr("Mode and Configuration"));
    m_section->setText(tr("Configuration"));
    m_groupLabel->setText(tr("Priority Group"));
    m_showLabel->setText(tr("Show"));
    m_show->setItemText(0, tr("Available interrupts"));
    m_show->setItemText(1, tr("Enabled interrupts"));
    m_show->setItemText(2, tr("All interrupts"));
    for (int i = 0; i < m_model->priorityGroups().size() && i < m_group->count(); ++i) {
        const RefParamValue &v = m_model->priorityGroups().at(i);
        const QString en = v.CommentEN.isEmpty() ? v.Comment : v.CommentEN;
        m_group->setItemText(i, SystemPanelSupport::databaseText(en, v.CommentCH));
    }
    m_table->retranslateUi();
}

void NVIC_Configuration::syncControls()
{
    const QSignalBlocker groupBlocker(m_group);
    const QSignalBlocker showBlocker(m_show);
    m_group->setCurrentIndex(m_group->findData(m_model->priorityGroup()));
    m_show->setCurrentIndex(m_model->showType());
}

void NVIC_Configuration::NVICShowType_ComboBox_IndexChanged(int index)
{
    if (index >= 0)
        m_model->setShowType(index);
}

void NVIC_Configuration::NVICPriorityGroup_ComboBox_IndexChanged(int index)
{
    if (index >= 0)
        m_model->setPriorityGroup(m_group->itemData(index).toString());
}
