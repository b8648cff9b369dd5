#pragma once

#include "database/records.h"

#include <QList>
#include <QString>

class QLineEdit;

// Texts shown for a device of the catalogue, shared by the start page and the new-design
// dialog.

// The SRAM field: SRAM as it stands, or "Default: <SRAM>    Max: <MaxSRAM>" when the size
// can be changed. The two words are translated.
QString SramSizeText(const MCUListItem &device);

// The description page of a series in the current language:
// <series folder>/<series>_Info_EN.htm, or _Info_CH.htm when `language` is 1.
QString SeriesInfoPagePath(const QString &series, int language);

// Fills the Package, Flash and SRAM fields from row `index` of `devices`; clears them when the
// index is outside the list (a series without devices).
void ShowDeviceFields(const QList<MCUListItem> &devices, int index, QLineEdit *package,
                      QLineEdit *flash, QLineEdit *sram);
