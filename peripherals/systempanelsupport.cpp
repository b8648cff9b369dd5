#include "peripherals/systempanelsupport.h"

#include "database/language.h"

#include <QFont>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

namespace SystemPanelSupport {

QString databaseText(const QString &en, const QString &ch)
{
    if (g_language == 1 && !ch.isEmpty())
        return ch;
    return en;
}

QString valueText(const RefParameter &parameter, const QString &value)
{
    for (const RefParamValue &v : parameter.PossibleValues) {
        if (v.Value != value)
            continue;
        const QString en = v.CommentEN.isEmpty() ? v.Comment : v.CommentEN;
        const QString text = databaseText(en, v.CommentCH);
        return text.isEmpty() ? value : text;
    }
    return value;
}

QString parameterText(const RefParameter &parameter)
{
    const QString en = parameter.CommentEN.isEmpty() ? parameter.Comment : parameter.CommentEN;
    const QString text = databaseText(en, parameter.CommentCH);
    return text.isEmpty() ? parameter.Name : text;
}

QPushButton *makeHeader(QWidget *parent)
{
    auto *header = new QPushButton(parent);
    header->setFixedHeight(25);
    header->setFont(QFont(QStringLiteral("Arial"), 11, 60));
    header->setStyleSheet(QStringLiteral(
        "QPushButton{background-color:rgb(35, 184, 198);color:white;border:none;"
        "border-top-left-radius:6px;border-top-right-radius:6px;text-align:left;"
        "padding-left:10px;}"));
    return header;
}

QLabel *makeSectionLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setFont(QFont(QStringLiteral("Arial"), 10, QFont::Bold));
    label->setStyleSheet(QStringLiteral("color:rgb(85, 126, 191);padding:4px 2px;"));
    return label;
}

void styleTable(QTableWidget *table)
{
    table->setFont(QFont(QStringLiteral("Arial"), 9));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setAlternatingRowColors(true);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(26);
    table->horizontalHeader()->setFont(QFont(QStringLiteral("Arial"), 9, QFont::Bold));
    table->horizontalHeader()->setHighlightSections(false);
    table->setStyleSheet(QStringLiteral(
        "QTableWidget{border:1px solid rgb(228, 228, 228);gridline-color:rgb(228, 228, 228);"
        "alternate-background-color:rgb(246, 250, 251);"
        "selection-background-color:rgb(204, 232, 240);selection-color:black;}"
        "QHeaderView::section{background-color:rgb(238, 245, 247);border:none;"
        "border-right:1px solid rgb(228, 228, 228);padding:4px;}"));
}

QString groupBoxStyle()
{
    return QStringLiteral("QGroupBox {background-color: rgb(255, 255, 255); border:1px solid "
                          "rgb(228, 228, 228);border-radius:5px;}");
}

} // namespace SystemPanelSupport
