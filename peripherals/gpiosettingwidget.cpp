#include "peripherals/gpiosettingwidget.h"

#include "peripherals/customcombobox.h"
#include "peripherals/systempanelsupport.h"
#include "widgets/messagebox.h"

#include <QAction>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

enum Column {
    ColPin,
    ColSignal,
    ColOutputLevel,
    ColType,
    ColPull,
    ColMode,
    ColDrive,
    ColLabel,
    ColModified,
    ColumnCount
};

// The setting shown in each settings column.
const QMap<int, QString> &settingOfColumn()
{
    static const QMap<int, QString> map = {
        {ColOutputLevel, QStringLiteral("Output level")}, {ColType, QStringLiteral("GPIO type")},
        {ColPull, QStringLiteral("Pull type")},           {ColMode, QStringLiteral("GPIO mode")},
        {ColDrive, QStringLiteral("Driver capability")},
    };
    return map;
}

} // namespace

GPIOSettingWidget::GPIOSettingWidget(GpioSettingsModel *model, Scope scope,
                                     const QString &instanceName, QWidget *parent)
    : QWidget(parent), m_model(model), m_scope(scope), m_instance(instanceName)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(6);

    m_table = new QTableWidget(0, ColumnCount, this);
    SystemPanelSupport::styleTable(m_table);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    layout->addWidget(m_table, 1);

    m_box = new QGroupBox(this);
    m_box->setFont(QFont(QStringLiteral("Arial"), 9, QFont::Bold));
    m_box->setStyleSheet(SystemPanelSupport::groupBoxStyle() +
                         QStringLiteral("QGroupBox{margin-top:14px;padding-top:6px;}"
                                        "QGroupBox::title{subcontrol-origin:margin;left:8px;}"));
    m_grid = new QGridLayout(m_box);
    m_grid->setHorizontalSpacing(12);
    for (const QString &name : GpioSettingsModel::settingNames()) {
        auto *label = new QLabel(m_box);
        label->setFont(QFont(QStringLiteral("Arial"), 9));
        auto *box = new CustomComboBox(m_box);
        box->setFixedHeight(25);
        box->setMinimumWidth(160);
        box->setFont(QFont(QStringLiteral("Arial"), 9));
        m_boxes.insert(name, box);
        m_boxLabels.insert(name, label);
    }
    m_labelTitle = new QLabel(m_box);
    m_labelTitle->setFont(QFont(QStringLiteral("Arial"), 9));
    m_labelEdit = new QLineEdit(m_box);
    m_labelEdit->setFixedHeight(25);
    m_labelEdit->setMinimumWidth(160);
    m_labelEdit->setFont(QFont(QStringLiteral("Arial"), 9));
    m_grid->setColumnStretch(4, 1);
    layout->addWidget(m_box);

    m_menu = new QMenu(this);
    m_menu->setStyleSheet(QStringLiteral("QMenu{background-color:rgb(238, 245, 247);}"));
    m_searchAction = m_menu->addAction(QString());

    using W = GPIOSettingWidget;
    const auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_boxes.value(QStringLiteral("Output level")), indexChanged, this,
            &W::GPIOOutputLevel_ComboBox_IndexChanged);
    connect(m_boxes.value(QStringLiteral("GPIO type")), indexChanged, this,
            &W::GPIOOutputType_ComboBox_IndexChanged);
    connect(m_boxes.value(QStringLiteral("GPIO mode")), indexChanged, this,
            &W::GPIOMode_ComboBox_IndexChanged);
    connect(m_boxes.value(QStringLiteral("Pull type")), indexChanged, this,
            &W::GPIOPULL_ComboBox_IndexChanged);
    connect(m_boxes.value(QStringLiteral("Driver capability")), indexChanged, this,
            &W::GPIOSpeed_ComboBox_IndexChanged);
    connect(m_table, &QTableWidget::cellClicked, this, &W::TableLineClickedSlot);
    connect(m_table, &QTableWidget::customContextMenuRequested, this,
            &W::tableContexMenuRequestSlot);
    connect(m_menu, &QMenu::triggered, this, &W::MenuClickedSlot);
    connect(m_labelEdit, &QLineEdit::textEdited, this, &W::UserLabel_LineEdit_textEdit);
    connect(m_model, &GpioSettingsModel::changed, this, &W::modelChanged);

    retranslateUi();
    rebuild();
}

QStringList GPIOSettingWidget::columnTitles()
{
    return {QStringLiteral("Pin Name"),          QStringLiteral("Signal on Pin"),
            QStringLiteral("Output level"),      QStringLiteral("GPIO type"),
            QStringLiteral("Pull type"),         QStringLiteral("GPIO mode"),
            QStringLiteral("Driver capability"), QStringLiteral("Label"),
            QStringLiteral("Modified")};
}

void GPIOSettingWidget::retranslateUi()
{
    m_table->setHorizontalHeaderLabels({tr("Pin Name"), tr("Signal on Pin"), tr("Output level"),
                                        tr("GPIO type"), tr("Pull type"), tr("GPIO mode"),
                                        tr("Driver capability"), tr("Label"), tr("Modified")});
    m_box->setTitle(tr("GPIO Parameters"));
    m_boxLabels.value(QStringLiteral("Output level"))->setText(tr("Output level"));
    m_boxLabels.value(QStringLiteral("GPIO type"))->setText(tr("GPIO type"));
    m_boxLabels.value(QStringLiteral("GPIO mode"))->setText(tr("GPIO mode"));
    m_boxLabels.value(QStringLiteral("Pull type"))->setText(tr("Pull type"));
    m_boxLabels.value(QStringLiteral("Driver capability"))->setText(tr("Driver capability"));
    m_labelTitle->setText(tr("Label"));
    // The value texts of the database follow the language too.
    m_lazy.changedNow();
}

QList<GpioSettingRow> GPIOSettingWidget::shownRows() const
{
    switch (m_scope) {
    case Scope::All:
        return m_model->rows();
    case Scope::WithoutInstance:
        return m_model->rowsWithoutInstance();
    case Scope::Instance:
        break;
    }
    return m_model->rowsOfInstance(m_instance);
}

void GPIOSettingWidget::modelChanged()
{
    m_lazy.changed();
}

void GPIOSettingWidget::ensureCurrent()
{
    m_lazy.ensureCurrent();
}

void GPIOSettingWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    ensureCurrent();
}

void GPIOSettingWidget::rebuild()
{
    m_lazy.rebuilt();
    const int scroll = m_table->verticalScrollBar()->value();
    const QList<GpioSettingRow> rows = shownRows();
    const QSignalBlocker blocker(m_table);
    m_table->clearContents();
    m_menuItem = nullptr;
    m_table->setRowCount(rows.size());
    int selected = -1;
    for (int r = 0; r < rows.size(); ++r) {
        const GpioSettingRow &row = rows.at(r);
        auto *pin = new QTableWidgetItem(row.pinName);
        pin->setData(Qt::UserRole, row.signal);
        m_table->setItem(r, ColPin, pin);
        m_table->setItem(r, ColSignal, new QTableWidgetItem(row.displaySignal()));
        for (auto it = settingOfColumn().cbegin(); it != settingOfColumn().cend(); ++it) {
            const RefParameter *p = row.parameter(it.value());
            const QString text = p ? SystemPanelSupport::valueText(*p, p->Value) : QString();
            auto *item = new QTableWidgetItem(text);
            item->setToolTip(text);
            m_table->setItem(r, it.key(), item);
        }
        m_table->setItem(r, ColLabel, new QTableWidgetItem(row.userLabel));
        auto *mark = new QTableWidgetItem;
        if (row.modified) {
            mark->setIcon(QIcon(QStringLiteral(":/image/checked.png")));
            mark->setToolTip(tr("Modified"));
        }
        m_table->setItem(r, ColModified, mark);
        if (row.signal == m_signal && row.pinName == m_pin)
            selected = r;
    }
    // Columns fit their texts up to a width at which the long value texts are cut; the
    // whole text stands in the tool tip.
    m_table->resizeColumnsToContents();
    const int widest = m_table->fontMetrics().horizontalAdvance(QStringLiteral("M")) * 14;
    for (int c = ColOutputLevel; c <= ColDrive; ++c) {
        if (m_table->columnWidth(c) > widest)
            m_table->setColumnWidth(c, widest);
    }
    m_table->verticalScrollBar()->setValue(scroll);
    if (selected >= 0) {
        m_table->selectRow(selected);
    } else {
        m_signal.clear();
        m_pin.clear();
    }
    fillBox();
}

void GPIOSettingWidget::fillBox()
{
    const GpioSettingRow *row = m_signal.isEmpty() ? nullptr : m_model->row(m_signal, m_pin);
    for (auto it = m_boxes.cbegin(); it != m_boxes.cend(); ++it) {
        QComboBox *box = it.value();
        const QSignalBlocker blocker(box);
        box->clear();
        const RefParameter *p = row ? row->parameter(it.key()) : nullptr;
        if (p) {
            for (const RefParamValue &v : p->PossibleValues)
                box->addItem(SystemPanelSupport::valueText(*p, v.Value), v.Value);
            box->setCurrentIndex(box->findData(p->Value));
        }
        box->setEnabled(p != nullptr);
    }
    layoutBox(row);
    const QSignalBlocker blocker(m_labelEdit);
    m_labelEdit->setText(row ? row->userLabel : QString());
    m_labelEdit->setEnabled(row != nullptr);
}

void GPIOSettingWidget::layoutBox(const GpioSettingRow *row)
{
    // The settings the row has stand side by side in the box's order, two to a line, the
    // label edit last; without a row every control shows, empty.
    for (const QString &name : GpioSettingsModel::settingNames()) {
        m_grid->removeWidget(m_boxLabels.value(name));
        m_grid->removeWidget(m_boxes.value(name));
    }
    m_grid->removeWidget(m_labelTitle);
    m_grid->removeWidget(m_labelEdit);
    int k = 0;
    const auto place = [this, &k](QWidget *label, QWidget *field) {
        m_grid->addWidget(label, k / 2, (k % 2) * 2);
        m_grid->addWidget(field, k / 2, (k % 2) * 2 + 1);
        label->show();
        field->show();
        ++k;
    };
    for (const QString &name : GpioSettingsModel::settingNames()) {
        if (!row || row->parameter(name)) {
            place(m_boxLabels.value(name), m_boxes.value(name));
        } else {
            m_boxLabels.value(name)->hide();
            m_boxes.value(name)->hide();
        }
    }
    place(m_labelTitle, m_labelEdit);
}

void GPIOSettingWidget::TableLineClickedSlot(int nRow, int nCol)
{
    Q_UNUSED(nCol)
    QTableWidgetItem *pin = m_table->item(nRow, ColPin);
    m_signal = pin ? pin->data(Qt::UserRole).toString() : QString();
    m_pin = pin ? pin->text() : QString();
    if (pin)
        m_table->selectRow(nRow);
    m_labelWarned = false;
    fillBox();
    if (!m_signal.isEmpty() && !m_pin.isEmpty())
        emit SendGPIOQuerySignals(m_pin, m_signal);
}

void GPIOSettingWidget::settingChanged(const QString &settingName, int n)
{
    QComboBox *box = m_boxes.value(settingName);
    if (!box || n < 0 || n > box->count())
        return;
    const GpioSettingRow *row = m_model->row(m_signal, m_pin);
    if (!row)
        return;
    const QString instance = row->instanceName;
    const QString signal = row->signal;
    if (m_model->setParameter(m_signal, m_pin, settingName, box->itemData(n).toString()))
        emit SendGPIOSettingChangeSignals(instance, signal);
}

void GPIOSettingWidget::GPIOOutputLevel_ComboBox_IndexChanged(int n)
{
    settingChanged(QStringLiteral("Output level"), n);
}

void GPIOSettingWidget::GPIOOutputType_ComboBox_IndexChanged(int n)
{
    settingChanged(QStringLiteral("GPIO type"), n);
}

void GPIOSettingWidget::GPIOMode_ComboBox_IndexChanged(int n)
{
    settingChanged(QStringLiteral("GPIO mode"), n);
}

void GPIOSettingWidget::GPIOPULL_ComboBox_IndexChanged(int n)
{
    settingChanged(QStringLiteral("Pull type"), n);
}

void GPIOSettingWidget::GPIOSpeed_ComboBox_IndexChanged(int n)
{
    settingChanged(QStringLiteral("Driver capability"), n);
}

void GPIOSettingWidget::UserLabel_LineEdit_textEdit(QString editText)
{
    const GpioSettingRow *row = m_model->row(m_signal, m_pin);
    if (!row)
        return;
    bool cut = false;
    const QString label = GpioSettingsModel::acceptLabel(editText, &cut);
    if (cut) {
        const QSignalBlocker blocker(m_labelEdit);
        m_labelEdit->setText(label);
        if (!m_labelWarned) {
            m_labelWarned = true;
            tellUser(this, UserMessage::Error, tr("Error"),
                     tr("Label must be letters/numbers/underscores, and start with a letter "
                        "or an underscore."));
        }
    }
    const int pinNum = row->pinNum;
    const QString signal = row->signal;
    if (m_model->setLabel(m_signal, m_pin, label))
        emit SendGPIOSignalsUserLabelChange(pinNum, signal, label);
}

void GPIOSettingWidget::tableContexMenuRequestSlot(QPoint pos)
{
    m_menuItem = m_table->itemAt(pos);
    if (!m_menuItem || m_menuItem->column() != ColSignal)
        return;
    m_searchAction->setText(tr("Search: ") + m_menuItem->text().trimmed());
    m_searchAction->setData(m_menuItem->text().trimmed());
    m_menu->popup(m_table->viewport()->mapToGlobal(pos));
}

void GPIOSettingWidget::MenuClickedSlot(QAction *action)
{
    if (action != m_searchAction || !m_menuItem || m_menuItem->column() != ColSignal)
        return;
    emit SendGPIOQuerySignals(QString(), action->data().toString());
}
