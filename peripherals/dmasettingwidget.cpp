#include "peripherals/dmasettingwidget.h"

#include "peripherals/customcombobox2.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/oneparamwidget.h"
#include "peripherals/systempanelsupport.h"
#include "widgets/messagebox.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

enum Column { ColRequest, ColChannel, ColDirection, ColPriority, ColumnCount };

// Parameters shown in the settings box; the other visible ones go to the parameters box.
const QStringList kSettings = {QStringLiteral("Instance"), QStringLiteral("Direction"),
                               QStringLiteral("Priority")};

QGroupBox *makeBox(QWidget *parent, QVBoxLayout **layout)
{
    auto *box = new QGroupBox(parent);
    box->setFont(QFont(QStringLiteral("Arial"), 9, QFont::Bold));
    box->setStyleSheet(SystemPanelSupport::groupBoxStyle() +
                       QStringLiteral("QGroupBox{margin-top:14px;padding-top:6px;}"
                                      "QGroupBox::title{subcontrol-origin:margin;left:8px;}"));
    *layout = new QVBoxLayout(box);
    (*layout)->setContentsMargins(6, 4, 6, 4);
    (*layout)->setSpacing(2);
    return box;
}

} // namespace

DMASettingWidget::DMASettingWidget(DmaRequestModel *model, Scope scope, const QString &key,
                                   QWidget *parent)
    : QWidget(parent), m_model(model), m_scope(scope), m_key(key)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(6);

    m_table = new QTableWidget(0, ColumnCount, this);
    SystemPanelSupport::styleTable(m_table);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    layout->addWidget(m_table, 2);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    m_add = new QPushButton(this);
    m_delete = new QPushButton(this);
    for (QPushButton *b : {m_add, m_delete}) {
        b->setFont(QFont(QStringLiteral("Arial"), 9));
        b->setMinimumWidth(80);
        buttons->addWidget(b);
    }
    layout->addLayout(buttons);

    auto *area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    auto *host = new QWidget(area);
    auto *hostLayout = new QHBoxLayout(host);
    hostLayout->setContentsMargins(0, 0, 0, 0);
    m_settingBox = makeBox(host, &m_settingLayout);
    m_paramBox = makeBox(host, &m_paramLayout);
    hostLayout->addWidget(m_settingBox, 1, Qt::AlignTop);
    hostLayout->addWidget(m_paramBox, 1, Qt::AlignTop);
    area->setWidget(host);
    layout->addWidget(area, 3);

    m_timer.setInterval(100);
    m_scrollTimer.setSingleShot(true);
    m_scrollTimer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &DMASettingWidget::HandleTimeout);
    connect(&m_scrollTimer, &QTimer::timeout, this, &DMASettingWidget::ScrollTimeout);
    connect(m_add, &QPushButton::clicked, this, &DMASettingWidget::AddButtonClickedSlot);
    connect(m_delete, &QPushButton::clicked, this, &DMASettingWidget::DelButtonClickedSlot);
    connect(m_table, &QTableWidget::cellClicked, this, &DMASettingWidget::TableLineClickedSlot);
    connect(m_table, &QTableWidget::cellChanged, this, &DMASettingWidget::TableCellChangedSlot);
    connect(m_model, &DmaRequestModel::changed, this, &DMASettingWidget::modelChanged);

    retranslateUi();
    rebuild();
}

void DMASettingWidget::retranslateUi()
{
    m_table->setHorizontalHeaderLabels({m_model->isEdma() ? tr("EDMA Request") : tr("DMA Request"),
                                        tr("Channel"), tr("Direction"), tr("Priority")});
    m_add->setText(tr("Add"));
    m_delete->setText(tr("Delete"));
    m_paramBox->setTitle(m_model->isEdma() ? tr("EDMA Request Parameters")
                                           : tr("DMA Request Parameters"));
    m_settingBox->setTitle(m_model->isEdma() ? tr("EDMA Request Settings")
                                             : tr("DMA Request Settings"));
    m_lazy.changedNow();
}

QStringList DMASettingWidget::freeRequests() const
{
    return m_scope == Scope::Tab ? m_model->freeRequests(QString(), m_key)
                                 : m_model->freeRequests(m_key, QString());
}

int DMASettingWidget::indexOfKey() const
{
    for (int i = 0; i < m_model->requests().size(); ++i) {
        const DMARequest &r = m_model->requests().at(i);
        if (r.name == m_selectedName && r.channel == m_selectedChannel)
            return i;
    }
    return -1;
}

int DMASettingWidget::selectedRequest() const
{
    const int index = indexOfKey();
    return m_rows.contains(index) ? index : -1;
}

void DMASettingWidget::selectRequest(int modelIndex)
{
    if (modelIndex < 0 || modelIndex >= m_model->requests().size()) {
        m_selectedName.clear();
        m_selectedChannel.clear();
    } else {
        m_selectedName = m_model->requests().at(modelIndex).name;
        m_selectedChannel = m_model->requests().at(modelIndex).channel;
    }
    const int row = m_rows.indexOf(modelIndex);
    if (row >= 0)
        m_table->selectRow(row);
    rebuildParameters();
}

QComboBox *DMASettingWidget::pendingRequestBox() const
{
    if (!m_pending || m_table->rowCount() == 0)
        return nullptr;
    return qobject_cast<QComboBox *>(m_table->cellWidget(m_table->rowCount() - 1, ColRequest));
}

QComboBox *DMASettingWidget::channelBox(int tableRow) const
{
    return qobject_cast<QComboBox *>(m_table->cellWidget(tableRow, ColChannel));
}

void DMASettingWidget::modelChanged()
{
    m_lazy.changed();
}

void DMASettingWidget::ensureCurrent()
{
    m_lazy.ensureCurrent();
}

void DMASettingWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    ensureCurrent();
}

void DMASettingWidget::refreshDAMSettingWidgetTable()
{
    m_lazy.changedNow();
}

void DMASettingWidget::rebuild()
{
    m_lazy.rebuilt();
    m_scroll = m_table->verticalScrollBar()->value();
    m_rows =
        m_scope == Scope::Tab ? m_model->requestsOfTab(m_key) : m_model->requestsOfInstance(m_key);
    const QSignalBlocker blocker(m_table);
    m_table->clearContents();
    m_table->setRowCount(m_rows.size() + (m_pending ? 1 : 0));
    int selectedRow = -1;
    for (int r = 0; r < m_rows.size(); ++r) {
        const int index = m_rows.at(r);
        const DMARequest &request = m_model->requests().at(index);
        auto *name = new QTableWidgetItem(request.name);
        name->setData(Qt::UserRole, index);
        m_table->setItem(r, ColRequest, name);
        auto *channels = new CustomComboBox2;
        const RefParameter *instance = request.parameter(QStringLiteral("Instance"));
        for (const QString &channel : m_model->freeChannels(index)) {
            channels->addItem(
                instance ? SystemPanelSupport::valueText(*instance, channel) : channel, channel);
        }
        channels->setCurrentIndex(channels->findData(request.channel));
        channels->setProperty("request", index);
        connect(channels, QOverload<int>::of(&QComboBox::activated), this,
                &DMASettingWidget::channelChosen);
        m_table->setCellWidget(r, ColChannel, channels);
        for (const auto &column : {qMakePair(int(ColDirection), QStringLiteral("Direction")),
                                   qMakePair(int(ColPriority), QStringLiteral("Priority"))}) {
            const RefParameter *p = request.parameter(column.second);
            m_table->setItem(
                r, column.first,
                new QTableWidgetItem(p ? SystemPanelSupport::valueText(*p, p->Value) : QString()));
        }
        if (request.name == m_selectedName && request.channel == m_selectedChannel)
            selectedRow = r;
    }
    if (m_pending) {
        auto *requests = new CustomComboBox2;
        requests->addItem(tr("Select"));
        requests->addItems(freeRequests());
        connect(requests, &QComboBox::currentTextChanged, this,
                &DMASettingWidget::TableRequestNameComboBoxChanged);
        m_table->setCellWidget(m_rows.size(), ColRequest, requests);
    }
    if (selectedRow >= 0) {
        m_table->selectRow(selectedRow);
    } else {
        m_selectedName.clear();
        m_selectedChannel.clear();
    }
    m_scrollTimer.start();
    rebuildParameters();
    reportStatus();
}

void DMASettingWidget::ScrollTimeout()
{
    m_table->verticalScrollBar()->setValue(m_scroll);
}

void DMASettingWidget::rebuildParameters()
{
    for (OneParamWidget *row : qAsConst(m_paramRows)) {
        row->hide();
        row->deleteLater();
    }
    m_paramRows.clear();
    const int index = selectedRequest();
    m_paramBox->setEnabled(index >= 0);
    m_settingBox->setEnabled(index >= 0);
    if (index < 0)
        return;
    const DMARequest &request = m_model->requests().at(index);
    const QStringList channels = m_model->freeChannels(index);
    for (RefParameter p : request.parameters) {
        if (!p.Visible)
            continue;
        if (p.Name == QLatin1String("Instance")) {
            QList<RefParamValue> free;
            for (const RefParamValue &v : p.PossibleValues) {
                if (channels.contains(v.Value))
                    free << v;
            }
            p.PossibleValues = free;
        }
        p.Comment = SystemPanelSupport::parameterText(p);
        for (RefParamValue &v : p.PossibleValues)
            v.Comment = SystemPanelSupport::valueText(p, v.Value);
        auto *row = new OneParamWidget(p, m_semaphores);
        using Modify2 = void (OneParamWidget::*)(QString, QString);
        using Modify3 = void (OneParamWidget::*)(QString, QString, bool);
        using Slot2 = void (DMASettingWidget::*)(QString, QString);
        using Slot3 = void (DMASettingWidget::*)(QString, QString, bool);
        connect(row, static_cast<Modify2>(&OneParamWidget::SendParamModefySignal), this,
                static_cast<Slot2>(&DMASettingWidget::ParamModefySlot));
        connect(row, static_cast<Modify3>(&OneParamWidget::SendParamModefySignal), this,
                static_cast<Slot3>(&DMASettingWidget::ParamModefySlot));
        (kSettings.contains(p.Name) ? m_settingLayout : m_paramLayout)->addWidget(row);
        m_paramRows << row;
    }
}

void DMASettingWidget::reportStatus()
{
    emit SendIPStatusFlag(m_model->name(),
                          m_model->requests().isEmpty() ? IPSTATUS_INACTIVE : IPSTATUS_ACTIVE);
}

void DMASettingWidget::TableLineClickedSlot(int nRow, int nCol)
{
    Q_UNUSED(nCol)
    if (nRow < 0 || nRow >= m_rows.size())
        return;
    selectRequest(m_rows.at(nRow));
}

void DMASettingWidget::TableCellChangedSlot(int nRow, int nCol)
{
    // Cells hold no free text; a change can only come from a rebuild.
    Q_UNUSED(nRow)
    Q_UNUSED(nCol)
}

void DMASettingWidget::AddButtonClickedSlot()
{
    const bool any = m_scope == Scope::Tab ? m_model->hasRequests(QString(), m_key)
                                           : m_model->hasRequests(m_key, QString());
    if (!any) {
        tellUser(this, UserMessage::Error, tr("Error"),
                 tr("No available DMA requests for configurated peripherals!"));
        return;
    }
    if (freeRequests().isEmpty()) {
        tellUser(this, UserMessage::Error, tr("Error"),
                 tr("No available DMA channels for configurated peripherals!"));
        return;
    }
    m_pending = true;
    rebuild();
}

void DMASettingWidget::TableRequestNameComboBoxChanged(QString text)
{
    if (text.isEmpty() || text == tr("Select"))
        return;
    m_pending = false;
    const DmaRequestModel::AddResult result = m_model->addRequest(text);
    if (!result.ok()) {
        if (result.error == DmaRequestModel::AddError::PartnerUsed)
            tellUser(this, UserMessage::Error, tr("Error"),
                     tr("No available channel for configurated DMA Request! ") + result.partner +
                         tr(" has been used"));
        else
            tellUser(this, UserMessage::Error, tr("Error"), tr("No available DMA request!"));
        m_lazy.changed();
        return;
    }
    m_selectedName = m_model->requests().at(result.index).name;
    m_selectedChannel = m_model->requests().at(result.index).channel;
    emit SendDMARequestChangeSignals();
}

void DMASettingWidget::DelButtonClickedSlot()
{
    const int index = selectedRequest();
    if (index < 0) {
        if (m_pending) {
            m_pending = false;
            rebuild();
        }
        return;
    }
    m_selectedName.clear();
    m_selectedChannel.clear();
    m_model->removeRequest(index);
    emit SendDMARequestChangeSignals();
}

void DMASettingWidget::channelChosen(int comboIndex)
{
    auto *box = qobject_cast<QComboBox *>(sender());
    if (!box || comboIndex < 0)
        return;
    const int index = box->property("request").toInt();
    const QString channel = box->itemData(comboIndex).toString();
    const bool selected = index == selectedRequest();
    if (!m_model->setChannel(index, channel))
        return;
    if (selected)
        m_selectedChannel = channel;
    emit SendDMARequestChangeSignals();
}

void DMASettingWidget::ParamModefySlot(QString paramName, QString paramValue, bool updateFlag)
{
    Q_UNUSED(updateFlag)
    ParamModefySlot(paramName, paramValue);
}

void DMASettingWidget::ParamModefySlot(QString paramName, QString paramValue)
{
    const int index = selectedRequest();
    if (index < 0)
        return;
    if (paramName == QLatin1String("Instance")) {
        if (m_model->setChannel(index, paramValue))
            m_selectedChannel = paramValue;
    } else {
        m_model->setParameter(index, paramName, paramValue);
    }
    m_changePending = true;
    m_timer.start();
}

void DMASettingWidget::HandleTimeout()
{
    m_timer.stop();
    if (!m_changePending)
        return;
    m_changePending = false;
    emit SendDMARequestChangeSignals();
}

void DMASettingWidget::EnableSemaphore(QStringList SemaphoreList)
{
    for (const QString &s : SemaphoreList) {
        if (!m_semaphores.contains(s))
            m_semaphores << s;
    }
    rebuildParameters();
}

void DMASettingWidget::CancelSemaphore(QStringList SemaphoreList)
{
    for (const QString &s : SemaphoreList)
        m_semaphores.removeAll(s);
    rebuildParameters();
}
