#pragma once

#include "database/records.h"

#include <QList>
#include <QString>
#include <QWidget>

class QLabel;
class QMenu;
class QAction;
class QTreeWidget;
class QTreeWidgetItem;

// The column of the work form that lists the device's peripherals by group, each with the
// icon of its status; a click asks the form for that peripheral's panel.
class PeripheralsConfig : public QWidget
{
    Q_OBJECT
public:
    explicit PeripheralsConfig(const QList<PeripheralListItem> &peripheralList,
                               QWidget *parent = nullptr);

    // One group of the tree: its name and its rows.
    struct Group
    {
        QString name;
        QTreeWidgetItem *header = nullptr;
        QList<QTreeWidgetItem *> items;
    };

    QTreeWidget *tree() const { return m_tree; }
    const QList<Group> &groups() const { return m_groups; }
    // Every peripheral row whose trimmed text is `ipName`.
    QList<QTreeWidgetItem *> itemsOf(const QString &ipName) const;
    // The resource path of the icon a row shows now.
    static QString iconPath(const QTreeWidgetItem *item);
    QTreeWidgetItem *lastItem() const { return m_lastItem; }
    // Re-labels the title and the menu after a change of language.
    void retranslateUi();

signals:
    void SendIPName(QString ipName);

public slots:
    void ExpandAllTreeItem();
    void FoldAllTreeItem();
    void ListItem_Clicked(QTreeWidgetItem *item, int column);
    void ReceiveIPStatusFlag(QString ipName, IPSTATUS statusFlag, bool UpdateClockConfigFlag);

private:
    void setIcon(QTreeWidgetItem *item, const QString &path);

    QLabel *m_title;
    QTreeWidget *m_tree;
    QList<Group> m_groups;
    QMenu *m_menu;
    QAction *m_expandAction;
    QAction *m_foldAction;
    QTreeWidgetItem *m_lastItem = nullptr;
};
