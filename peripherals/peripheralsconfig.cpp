#include "peripherals/peripheralsconfig.h"

#include <QAction>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QStyle>
#include <QStyleFactory>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int kIconRole = Qt::UserRole + 10;
const QString kLight = QStringLiteral(":/image/background-light.png");
const QString kGreen = QStringLiteral(":/image/greenStone.png");
const QString kDanger = QStringLiteral(":/image/danger32.png");

// The group names of the device files, translated on screen.
const char *const kGroupNames[] = {
    QT_TRANSLATE_NOOP("PeripheralsConfig", "Analog"),
    QT_TRANSLATE_NOOP("PeripheralsConfig", "Computing"),
    QT_TRANSLATE_NOOP("PeripheralsConfig", "Connectivity"),
    QT_TRANSLATE_NOOP("PeripheralsConfig", "Middleware"),
    QT_TRANSLATE_NOOP("PeripheralsConfig", "Multimedia"),
    QT_TRANSLATE_NOOP("PeripheralsConfig", "Security"),
    QT_TRANSLATE_NOOP("PeripheralsConfig", "System Core"),
    QT_TRANSLATE_NOOP("PeripheralsConfig", "Timers"),
};

// A group name as shown: known names in the language of the program, others as written.
QString groupTitle(const QString &name)
{
    for (const char *known : kGroupNames) {
        if (name == QLatin1String(known))
            return QStringLiteral("    ") +
                   QCoreApplication::translate("PeripheralsConfig", known);
    }
    return QStringLiteral("    ") + name;
}

const char *const kScrollStyle =
    "QScrollBar:vertical{background:rgb(238, 245, 247);width:8px;margin:0;}"
    "QScrollBar::handle:vertical{background:rgb(85, 126, 191);border-radius:4px;"
    "min-height:20px;}"
    "QScrollBar::add-line:vertical,QScrollBar::sub-line:vertical{height:0;}";

} // namespace

PeripheralsConfig::PeripheralsConfig(const QList<PeripheralListItem> &peripheralList,
                                     QWidget *parent)
    : QWidget(parent)
{
    auto *outer = new QHBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    auto *leftStrip = new QWidget(this);
    leftStrip->setFixedWidth(10);
    leftStrip->setStyleSheet(QStringLiteral("background:white;"));
    outer->addWidget(leftStrip);
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    outer->addLayout(column, 1);

    m_title = new QLabel(tr("Peripherals"), this);
    m_title->setFont(QFont(QStringLiteral("Arial"), 11, 60));
    m_title->setFixedHeight(25);
    m_title->setAlignment(Qt::AlignCenter);
    m_title->setStyleSheet(QStringLiteral("background-color:rgb(35, 184, 198);color:white;"
                                          "border-top-left-radius:6px;"
                                          "border-top-right-radius:6px;"));
    column->addWidget(m_title);
    auto *strip = new QWidget(this);
    strip->setFixedHeight(10);
    strip->setStyleSheet(QStringLiteral("background:white;"));
    column->addWidget(strip);

    m_tree = new QTreeWidget(this);
    m_tree->setHeaderHidden(true);
    m_tree->setIndentation(10);
    // setStyle() does not take the style: the page owns it, and deletes it after the tree.
    if (QStyle *style = QStyleFactory::create(QStringLiteral("windows"))) {
        style->setParent(this);
        m_tree->setStyle(style);
    }
    m_tree->setStyleSheet(QStringLiteral("QTreeWidget::item{height:25px;}") +
                          QLatin1String(kScrollStyle));
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    column->addWidget(m_tree, 1);

    QFont groupFont(QStringLiteral("Arial"), 10, 75);
    QFont rowFont(QStringLiteral("Arial"), 9);
    for (const PeripheralListItem &row : peripheralList) {
        int g = -1;
        for (int i = 0; i < m_groups.size(); ++i) {
            if (m_groups.at(i).name == row.GroupName) {
                g = i;
                break;
            }
        }
        if (g < 0) {
            Group group;
            group.name = row.GroupName;
            group.header = new QTreeWidgetItem(m_tree);
            group.header->setText(0, groupTitle(row.GroupName));
            group.header->setFont(0, groupFont);
            m_groups << group;
            g = m_groups.size() - 1;
        }
        auto *item = new QTreeWidgetItem(m_groups[g].header);
        item->setText(0, QStringLiteral("    ") + row.InstanceName);
        item->setFont(0, rowFont);
        item->setToolTip(0, row.AboutText);
        setIcon(item, kLight);
        m_groups[g].items << item;
    }
    m_tree->expandAll();

    m_menu = new QMenu(this);
    m_menu->setStyleSheet(QStringLiteral("QMenu{background-color:rgb(238, 245, 247);}"));
    m_expandAction = m_menu->addAction(tr("Expand All"));
    m_foldAction = m_menu->addAction(tr("Fold All"));
    connect(m_expandAction, &QAction::triggered, this, &PeripheralsConfig::ExpandAllTreeItem);
    connect(m_foldAction, &QAction::triggered, this, &PeripheralsConfig::FoldAllTreeItem);
    connect(m_tree, &QWidget::customContextMenuRequested, this,
            [this](const QPoint &pos) { m_menu->exec(m_tree->viewport()->mapToGlobal(pos)); });
    connect(m_tree, &QTreeWidget::itemClicked, this, &PeripheralsConfig::ListItem_Clicked);
}

void PeripheralsConfig::retranslateUi()
{
    m_title->setText(tr("Peripherals"));
    for (const Group &g : qAsConst(m_groups))
        g.header->setText(0, groupTitle(g.name));
    m_expandAction->setText(tr("Expand All"));
    m_foldAction->setText(tr("Fold All"));
}

void PeripheralsConfig::setIcon(QTreeWidgetItem *item, const QString &path)
{
    item->setData(0, kIconRole, path);
    item->setIcon(0, QIcon(path));
}

QString PeripheralsConfig::iconPath(const QTreeWidgetItem *item)
{
    return item ? item->data(0, kIconRole).toString() : QString();
}

QList<QTreeWidgetItem *> PeripheralsConfig::itemsOf(const QString &ipName) const
{
    QList<QTreeWidgetItem *> out;
    for (const Group &g : m_groups) {
        for (QTreeWidgetItem *item : g.items) {
            if (item->text(0).trimmed() == ipName)
                out << item;
        }
    }
    return out;
}

void PeripheralsConfig::ExpandAllTreeItem()
{
    for (const Group &g : m_groups)
        g.header->setExpanded(true);
}

void PeripheralsConfig::FoldAllTreeItem()
{
    for (const Group &g : m_groups)
        g.header->setExpanded(false);
}

void PeripheralsConfig::ListItem_Clicked(QTreeWidgetItem *item, int)
{
    if (!item)
        return;
    if (item->parent()) {
        m_lastItem = item;
        emit SendIPName(item->text(0).trimmed());
        return;
    }
    item->setExpanded(!item->isExpanded());
    m_tree->setCurrentItem(item);
}

void PeripheralsConfig::ReceiveIPStatusFlag(QString ipName, IPSTATUS statusFlag, bool)
{
    QString path;
    if (statusFlag & IPSTATUS_UNFINISHED)
        path = kDanger;
    else if (statusFlag == IPSTATUS_INACTIVE)
        path = kLight;
    else if (statusFlag == IPSTATUS_ACTIVE)
        path = kGreen;
    else
        return;
    for (QTreeWidgetItem *item : itemsOf(ipName))
        setIcon(item, path);
}
