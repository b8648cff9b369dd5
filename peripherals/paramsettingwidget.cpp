#include "peripherals/paramsettingwidget.h"

#include "peripherals/expressionevaluator.h"
#include "peripherals/oneparamwidget.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>

namespace {

constexpr int kGroupRole = Qt::UserRole;
constexpr int kHeaderRole = Qt::UserRole + 1;
const QString kExintInterrupt = QStringLiteral("EXINT_LINE_INTERRUPUT");

const QStringList kAdcListFamilies = {"MQ48T250", "MQ48T260", "MQ48V250",
                                      "MQ48T310", "MQ48T510", "MQ48T520"};

const RefParamValue *chosenValue(const RefParameter &p)
{
    for (const RefParamValue &v : p.PossibleValues) {
        if (v.Value == p.Value)
            return &v;
    }
    return nullptr;
}

} // namespace

ParamSettingWidget::ParamSettingWidget(const QString &mcuName, const QString &instanceName,
                                       const QList<RefParameter> &parameterList, QWidget *parent)
    : QListWidget(parent), mcuName(mcuName), instanceName(instanceName), parameters(parameterList)
{
    registerRecordMetaTypes();
    setSelectionMode(QAbstractItemView::NoSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setStyleSheet(QStringLiteral("QListWidget{border:none;background:white;}"));
    for (RefParameter &p : parameters) {
        p.InstanceName = instanceName;
        if (const RefParamValue *v = chosenValue(p)) {
            if (!v->Semaphore.isEmpty() && !enabledSemaphores.contains(v->Semaphore))
                enabledSemaphores << v->Semaphore;
        }
    }
    m_exintLines = exintInterruptLines();

    contextMenu = new QMenu(this);
    contextMenu->setStyleSheet(QStringLiteral("QMenu{background-color:rgb(238, 245, 247);}"));
    expandAction = contextMenu->addAction(tr("Expand All"));
    foldAction = contextMenu->addAction(tr("Fold All"));
    connect(expandAction, &QAction::triggered, this, &ParamSettingWidget::ExpandAllTreeItem);
    connect(foldAction, &QAction::triggered, this, &ParamSettingWidget::FoldAllTreeItem);
    connect(this, &QListWidget::itemClicked, this, &ParamSettingWidget::groupClicked);

    connect(&modeThread, &ModeChangeThread::UpdateModeParam, this,
            &ParamSettingWidget::UpdateModeChange, Qt::QueuedConnection);
    refreshTimer.setInterval(100);
    connect(&refreshTimer, &QTimer::timeout, this, &ParamSettingWidget::HandleTimeout);
    refreshTimer.start();
    Rebuild();
}

ParamSettingWidget::~ParamSettingWidget()
{
    refreshTimer.stop();
    modeThread.wait();
}

void ParamSettingWidget::retranslateUi()
{
    expandAction->setText(tr("Expand All"));
    foldAction->setText(tr("Fold All"));
}

QStringList ParamSettingWidget::evaluationList() const
{
    QStringList list = enabledSemaphores;
    for (const RefParameter &p : parameters)
        list << p.Name + QLatin1Char('=') + p.Value;
    return list;
}

bool ParamSettingWidget::isParameterVisible(const RefParameter &p) const
{
    if (!p.Visible)
        return false;
    return p.Expression.isEmpty() ||
           ExpressionEvaluator::valueHolds(p.Expression, evaluationList());
}

OneParamWidget *ParamSettingWidget::rowOf(const QString &paramName) const
{
    for (OneParamWidget *row : rows) {
        if (row->parameter().Name == paramName)
            return row;
    }
    return nullptr;
}

QListWidgetItem *ParamSettingWidget::groupItem(const QString &group) const
{
    for (QListWidgetItem *item : groupRows) {
        if (item->data(kGroupRole).toString() == group)
            return item;
    }
    return nullptr;
}

QString ParamSettingWidget::parameterValue(const QString &paramName) const
{
    for (const RefParameter &p : parameters) {
        if (p.Name == paramName)
            return p.Value;
    }
    return QString();
}

void ParamSettingWidget::Rebuild()
{
    rebuilding = true;
    const int scroll = verticalScrollBar()->value();
    clear();
    rows.clear();
    groupRows.clear();
    paramStatus = IPPARAMSTATUS_VALID;
    const QStringList list = evaluationList();
    QStringList seenGroups;
    for (const RefParameter &p : parameters) {
        if (!p.Visible ||
            (!p.Expression.isEmpty() && !ExpressionEvaluator::valueHolds(p.Expression, list)))
            continue;
        const bool folded = groupFolded.value(p.Group);
        if (!seenGroups.contains(p.Group)) {
            seenGroups << p.Group;
            auto *header = new QListWidgetItem(QStringLiteral("  ") + p.Group, this);
            header->setData(kGroupRole, p.Group);
            header->setData(kHeaderRole, true);
            header->setIcon(QIcon(folded ? QStringLiteral(":/image/right-arrow.png")
                                         : QStringLiteral(":/image/down-arrow.png")));
            header->setForeground(QColor(35, 120, 160));
            header->setBackground(QColor(238, 245, 247));
            QFont font(QStringLiteral("Arial"), 9);
            font.setBold(true);
            header->setFont(font);
            header->setSizeHint(QSize(0, 26));
            header->setFlags(Qt::ItemIsEnabled);
            groupRows << header;
        }
        auto *row = new OneParamWidget(p, list);
        auto *item = new QListWidgetItem(this);
        item->setData(kGroupRole, p.Group);
        item->setFlags(Qt::ItemIsEnabled);
        item->setSizeHint(QSize(0, qMax(30, row->sizeHint().height())));
        setItemWidget(item, row);
        item->setHidden(folded);
        rows << row;
        if (!row->isValueValid())
            paramStatus = IPPARAMSTATUS_INVALID;
        connect(row, QOverload<QString, QString, bool>::of(&OneParamWidget::SendParamModefySignal),
                this, QOverload<QString, QString, bool>::of(&ParamSettingWidget::ParamModefySlot));
        connect(row, QOverload<QString, QString>::of(&OneParamWidget::SendParamModefySignal), this,
                QOverload<QString, QString>::of(&ParamSettingWidget::ParamModefySlot));
        connect(row, &OneParamWidget::SendEnableSemaphoreSignal, this,
                QOverload<QString>::of(&ParamSettingWidget::EnableSemaphore));
        connect(row, &OneParamWidget::SendCancelSemaphoreSignal, this,
                QOverload<QString>::of(&ParamSettingWidget::CancelSemaphore));
        connect(row, &OneParamWidget::SendParamClicked, this, &ParamSettingWidget::rowClicked);
    }
    verticalScrollBar()->setValue(scrollPosition > 0 ? scrollPosition : scroll);
    scrollPosition = 0;
    rebuilding = false;
    ++rebuildCount;
}

void ParamSettingWidget::updateParamStatus(bool emitAlways)
{
    IPPARAMSTATUS status = IPPARAMSTATUS_VALID;
    for (const OneParamWidget *row : rows) {
        if (!row->isValueValid())
            status = IPPARAMSTATUS_INVALID;
    }
    const bool changed = status != paramStatus;
    paramStatus = status;
    if (changed || emitAlways)
        emit SendIPParamStatus(instanceName, paramStatus);
}

void ParamSettingWidget::groupClicked(QListWidgetItem *item)
{
    if (!item || !item->data(kHeaderRole).toBool())
        return;
    const QString group = item->data(kGroupRole).toString();
    groupFolded[group] = !groupFolded.value(group);
    Rebuild();
}

void ParamSettingWidget::rowClicked(const QString &paramName)
{
    for (const RefParameter &p : parameters) {
        if (p.Name == paramName) {
            emit SendParamDescription(paramName,
                                      p.Description.isEmpty() ? p.Diagnostic : p.Description);
            return;
        }
    }
}

void ParamSettingWidget::ExpandAllTreeItem()
{
    for (const RefParameter &p : parameters)
        groupFolded[p.Group] = false;
    Rebuild();
}

void ParamSettingWidget::FoldAllTreeItem()
{
    for (const RefParameter &p : parameters)
        groupFolded[p.Group] = true;
    Rebuild();
}

void ParamSettingWidget::contextMenuEvent(QContextMenuEvent *event)
{
    contextMenu->exec(event->globalPos());
}

void ParamSettingWidget::ParamModefySlot(QString paramName, QString paramValue, bool updateFlag)
{
    bool reload = true;
    for (RefParameter &p : parameters) {
        if (p.Name == paramName) {
            p.Value = paramValue;
            reload = p.Reload;
            break;
        }
    }
    if (updateFlag)
        scrollPosition = verticalScrollBar()->value();
    modifiedName = paramName;
    modifiedValue = paramValue;
    if (reload)
        refreshPending = true;
    updateParamStatus(false);
}

void ParamSettingWidget::ParamModefySlot(QString paramName, QString paramValue)
{
    ParamModefySlot(paramName, paramValue, false);
}

void ParamSettingWidget::EnableSemaphore(QStringList SemaphoreList)
{
    bool changed = false;
    for (const QString &s : SemaphoreList) {
        if (!s.isEmpty() && !enabledSemaphores.contains(s)) {
            enabledSemaphores << s;
            changed = true;
        }
    }
    if (changed)
        startModeThread();
}

void ParamSettingWidget::EnableSemaphore(QString Semaphore)
{
    EnableSemaphore(QStringList{Semaphore});
}

void ParamSettingWidget::CancelSemaphore(QStringList SemaphoreList)
{
    bool changed = false;
    for (const QString &s : SemaphoreList)
        changed = enabledSemaphores.removeAll(s) > 0 || changed;
    if (changed)
        startModeThread();
}

void ParamSettingWidget::CancelSemaphore(QString Semaphore)
{
    CancelSemaphore(QStringList{Semaphore});
}

void ParamSettingWidget::ModeChanged(const QString &oldText, const QString &newText)
{
    if (oldText != newText)
        startModeThread();
}

void ParamSettingWidget::startModeThread()
{
    if (modeThread.isRunning())
        QMetaObject::invokeMethod(this, &ParamSettingWidget::UpdateModeChange,
                                  Qt::QueuedConnection);
    else
        modeThread.start();
}

void ParamSettingWidget::UpdateModeChange()
{
    if (rebuilding)
        return;
    Rebuild();
    updateParamStatus(true);
    if (instanceName == QLatin1String("ADC1") && kAdcListFamilies.contains(mcuName))
        emit SendIPParamList(parameters, instanceName);
}

QStringList ParamSettingWidget::exintInterruptLines() const
{
    QStringList lines;
    if (instanceName != QLatin1String("EXINT"))
        return lines;
    for (const RefParameter &p : parameters) {
        if (p.Name.startsWith(QLatin1String("InterruptEvent_")) && p.Value == kExintInterrupt)
            lines << p.Name;
    }
    return lines;
}

void ParamSettingWidget::HandleTimeout()
{
    if (!refreshPending)
        return;
    // Keeps the rows' own editing signals apart from the refresh.
    QThread::msleep(30);
    if (!rebuilding)
        Rebuild();
    for (RefParameter &p : parameters) {
        if (p.Value.isEmpty() && !p.DefaultValue.isEmpty())
            p.Value = p.DefaultValue;
    }
    updateParamStatus(true);
    const QStringList lines = exintInterruptLines();
    if (lines != m_exintLines) {
        m_exintLines = lines;
        emit SendEXINTRefreshNVICList();
    }
    canSearchPending = false;
    refreshPending = false;
}

void ParamSettingWidget::ReciveClockChangedSignal()
{
    // The calculators that follow the clocks hang on this slot; without them nothing here
    // depends on a clock.
}

void ParamSettingWidget::setParameterValue(const QString &paramName, const QString &value)
{
    for (RefParameter &p : parameters) {
        if (p.Name != paramName)
            continue;
        if (const RefParamValue *old = chosenValue(p))
            enabledSemaphores.removeAll(old->Semaphore);
        p.Value = value;
        if (const RefParamValue *now = chosenValue(p)) {
            if (!now->Semaphore.isEmpty() && !enabledSemaphores.contains(now->Semaphore))
                enabledSemaphores << now->Semaphore;
        }
        refreshPending = true;
        return;
    }
    RefParameter added;
    added.InstanceName = instanceName;
    added.Name = paramName;
    added.Value = value;
    added.Visible = false;
    parameters << added;
    m_addedNames << paramName;
}

void ParamSettingWidget::Reset()
{
    for (int i = parameters.size() - 1; i >= 0; --i) {
        if (m_addedNames.contains(parameters.at(i).Name))
            parameters.removeAt(i);
    }
    m_addedNames.clear();
    for (RefParameter &p : parameters) {
        if (const RefParamValue *old = chosenValue(p))
            enabledSemaphores.removeAll(old->Semaphore);
        p.Value = p.DefaultValue;
        if (const RefParamValue *now = chosenValue(p)) {
            if (!now->Semaphore.isEmpty() && !enabledSemaphores.contains(now->Semaphore))
                enabledSemaphores << now->Semaphore;
        }
    }
    Rebuild();
    updateParamStatus(true);
}
