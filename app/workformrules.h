#pragma once

#include "database/records.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QUrl>

// Decisions of the work form that depend only on names, the language and plain values, kept
// apart from the widgets so that they can be checked on their own.
namespace WorkFormRules {

// Ordinal of the chip model whose clock page a series uses; 0 when the series has none.
int clockModelOfSeries(const QString &series);

// True when a status change of this instance makes the clock page recalculate.
bool changeUpdatesClock(const QString &instanceName);

// True when a status word carries the mark of an unfinished selection.
bool isUnfinished(IPSTATUS status);

// The instances a semaphore of `sender` reaches on a family; empty when none.
QStringList semaphoreTargets(const QString &series, const QString &sender);

// Whether the "Pin out & Configuration" button warns, given the status of the panel that just
// reported and the last status of every mode panel by instance name.
bool pinPageWarns(IPSTATUS reported, const QMap<QString, IPSTATUS> &modePanelStatus);

// The user manual below the program folder, by language (1 Chinese, otherwise English).
QString manualPath(const QString &appFolder, int language);

// The maker's home page in the given language.
QUrl homePageUrl(int language);

// Style sheet of a page button, active or not.
QString pageButtonStyle(bool active);

// Splitter widths for the tree, the drawing and the panels: 4, 13 and 13 thirtieths of the
// available screen width.
QList<int> splitterSizes(int screenWidth);

} // namespace WorkFormRules
