#pragma once

#include "database/records.h"

#include <QString>

class QLabel;
class QPushButton;
class QTableWidget;
class QWidget;

// Small helpers shared by the GPIO, NVIC and DMA panels: texts of database values in the
// language of the moment, the house style of headers and tables.
namespace SystemPanelSupport {

// A bilingual database text in the current language; an empty Chinese text falls back to
// the English one.
QString databaseText(const QString &en, const QString &ch);
// The text shown for a parameter's value: its possible value's comment, else the value.
QString valueText(const RefParameter &parameter, const QString &value);
// The text shown for a parameter's name: its comment, else its name.
QString parameterText(const RefParameter &parameter);

// The blue header button of a panel ("Mode and Configuration").
QPushButton *makeHeader(QWidget *parent);
// The grey section title under a header ("Configuration").
QLabel *makeSectionLabel(QWidget *parent);
// Look of the GPIO, NVIC and DMA tables.
void styleTable(QTableWidget *table);
// Style of the group boxes of the panels.
QString groupBoxStyle();

} // namespace SystemPanelSupport
