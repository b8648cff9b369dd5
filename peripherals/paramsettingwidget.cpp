#include "peripherals/paramsettingwidget.h"

#include "clock/mq48pllconfig.h"
#include "peripherals/calculators/listsettle.h"
#include "peripherals/calculators/paramcalculators.h"
#include "peripherals/calculators/paramlist.h"
#include "peripherals/oneparamwidget.h"
#include "peripherals/paramvalue.h"
#include "widgets/messagebox.h"

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
// The CAN parameters whose edit starts a new bit timing search.
const QStringList kCanSearchInputs = {"BaudRate", "Sample_Point", "BaudRate_Deviation_Tolerance",
                                      "BaudRate_Deviation"};

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
    m_original = parameters;
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
    // The calculators write their notes and choices in the language now in force.
    if (runCalculators(QString(), false) && !rebuilding)
        Rebuild();
}

QStringList ParamSettingWidget::evaluationList() const
{
    return ParamListSettle::evaluationList(parameters, enabledSemaphores);
}

bool ParamSettingWidget::isParameterVisible(const RefParameter &p) const
{
    return ParamListSettle::isVisible(p, evaluationList());
}

void ParamSettingWidget::setClockPage(MQ48PLLConfig *page)
{
    clockPage = page;
    ReciveClockChangedSignal();
}

double ParamSettingWidget::instanceClock() const
{
    return clockPage ? clockPage->clockOfPeripheral(instanceName) : 0.0;
}

OneParamWidget *ParamSettingWidget::rowOf(const QString &paramName)
{
    ensureRows();
    for (OneParamWidget *row : rows) {
        if (row->parameter().Name == paramName)
            return row;
    }
    return nullptr;
}

QListWidgetItem *ParamSettingWidget::groupItem(const QString &group)
{
    ensureRows();
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
    // Lists that follow the modes take their new value before the rows show it.
    ParamListSettle::settle(parameters, enabledSemaphores, m_userChosen);
    paramStatus = statusOfValues();
    if (m_rowsBuilt)
        buildRows();
    rebuilding = false;
    ++rebuildCount;
}

IPPARAMSTATUS ParamSettingWidget::statusOfValues() const
{
    const QStringList list = evaluationList();
    for (const RefParameter &p : parameters) {
        if (ParamListSettle::isVisible(p, list) && !ParamValue::rowValueValid(p, list))
            return IPPARAMSTATUS_INVALID;
    }
    return IPPARAMSTATUS_VALID;
}

void ParamSettingWidget::ensureRows()
{
    if (m_rowsBuilt)
        return;
    m_rowsBuilt = true;
    const bool wasRebuilding = rebuilding;
    rebuilding = true;
    buildRows();
    rebuilding = wasRebuilding;
}

void ParamSettingWidget::showEvent(QShowEvent *event)
{
    ensureRows();
    QListWidget::showEvent(event);
}

void ParamSettingWidget::buildRows()
{
    const int scroll = verticalScrollBar()->value();
    clear();
    rows.clear();
    groupRows.clear();
    const QStringList list = evaluationList();
    QStringList seenGroups;
    for (const RefParameter &p : parameters) {
        if (!ParamListSettle::isVisible(p, list))
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
        row->setNote(m_notes.value(p.Name));
        auto *item = new QListWidgetItem(this);
        item->setData(kGroupRole, p.Group);
        item->setFlags(Qt::ItemIsEnabled);
        item->setSizeHint(QSize(0, qMax(30, row->sizeHint().height())));
        setItemWidget(item, row);
        item->setHidden(folded);
        rows << row;
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
}

void ParamSettingWidget::updateParamStatus(bool emitAlways)
{
    const IPPARAMSTATUS status = statusOfValues();
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

void ParamSettingWidget::markChosen(const QString &paramName)
{
    if (ParamList::find(parameters, paramName))
        m_userChosen.insert(paramName);
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
    markChosen(paramName);
    if (instanceName.contains(QLatin1String("CAN"))) {
        if (paramName == QLatin1String("BaudRate")) {
            bool ok = false;
            const double baud = ParamList::leadingNumber(paramValue, &ok);
            if (ok)
                ParamList::setValue(parameters, QStringLiteral("Sample_Point"),
                                    CanBitTiming::samplePointForBaud(baud));
        }
        if (kCanSearchInputs.contains(paramName))
            canSearchPending = true;
    }
    if (updateFlag)
        scrollPosition = verticalScrollBar()->value();
    modifiedName = paramName;
    modifiedValue = paramValue;
    m_editPending = true;
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
    // A value that followed the new mode can change what the calculators give.
    if (runCalculators(QString(), false))
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

bool ParamSettingWidget::runCalculators(const QString &lastEdit, bool canSearch)
{
    CalculatorInput in;
    in.family = mcuName;
    in.instance = instanceName;
    in.clockMHz = instanceClock();
    in.apb2MHz = clockPage ? clockPage->apb2Value() : 0.0;
    in.lastEdit = lastEdit;
    in.canSearch = canSearch || !m_canSearched;
    if (in.canSearch)
        m_canSearched = true;
    const CalculatorOutput out = ParamCalculators::run(parameters, m_original, in, &canResults);
    // A default the calculators greyed moves on to an allowed value at once.
    const bool settled =
        !ParamListSettle::settle(parameters, enabledSemaphores, m_userChosen).isEmpty();
    const bool notesChanged = out.notes != m_notes;
    m_notes = out.notes;
    if (out.hasCan)
        emit SendCanParamValue(out.can.bs1, out.can.bs2, out.can.sync, out.can.sample);
    if (out.hasI2c)
        emit SendI2CParamValue(out.i2c.tr, out.i2c.tf, out.i2c.tSu, out.i2c.fScl);
    if (out.hasTmr)
        emit SendTMRParamValue(out.tmr.clockMHz, out.tmr.divider, out.tmr.period,
                               out.tmr.direction);
    return !out.changed.isEmpty() || notesChanged || settled;
}

void ParamSettingWidget::refreshValues()
{
    runCalculators(QString(), false);
}

void ParamSettingWidget::refreshNow()
{
    refreshPending = false;
    fullRefresh(QString());
    updateParamStatus(true);
    const QStringList lines = exintInterruptLines();
    if (lines != m_exintLines) {
        m_exintLines = lines;
        emit SendEXINTRefreshNVICList();
    }
}

void ParamSettingWidget::fullRefresh(const QString &lastEdit)
{
    if (!rebuilding)
        Rebuild();
    bool changed = runCalculators(lastEdit, canSearchPending);
    for (RefParameter &p : parameters) {
        if (p.Value.isEmpty() && !p.DefaultValue.isEmpty()) {
            p.Value = p.DefaultValue;
            changed = true;
        }
    }
    // The rows show what the calculators wrote: the refresh runs once more.
    if (changed && !rebuilding)
        Rebuild();
}

void ParamSettingWidget::HandleTimeout()
{
    if (!refreshPending || m_inTimeout)
        return;
    m_inTimeout = true;
    refreshPending = false;
    // Keeps the rows' own editing signals apart from the refresh.
    QThread::msleep(30);
    const QString lastEdit = m_editPending ? modifiedName : QString();
    m_editPending = false;
    fullRefresh(lastEdit);
    canSearchPending = false;
    updateParamStatus(true);
    const QStringList lines = exintInterruptLines();
    if (lines != m_exintLines) {
        m_exintLines = lines;
        emit SendEXINTRefreshNVICList();
    }
    CalculatorInput in;
    in.family = mcuName;
    in.instance = instanceName;
    in.lastEdit = lastEdit;
    const QString error = ParamCalculators::editError(parameters, in);
    if (!error.isEmpty())
        tellUser(this, UserMessage::Error, tr("Error"), error);
    m_inTimeout = false;
}

void ParamSettingWidget::ReciveClockChangedSignal()
{
    // A new clock reaches the baud rate limits, the timer filters, the CAN search and the
    // timing diagrams; the rows are rebuilt only when a value moved.
    if (runCalculators(QString(), true) && !rebuilding)
        Rebuild();
    updateParamStatus(false);
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
        m_userChosen.insert(paramName);
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
    m_userChosen.clear();
    canResults.clear();
    m_canSearched = false;
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
    if (runCalculators(QString(), true))
        Rebuild();
    updateParamStatus(true);
}
