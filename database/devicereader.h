#pragma once

#include "database/records.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

// Readers of a device file: base attributes, pins, signal groups and the peripheral list.
// A missing or malformed file gives empty results and zero integers, never a message.

// The value of the first attribute `attributeName` on any child element of the section
// whose `term` is `term`; empty when not found.
QString GetSectionAttribute(const QString &filePath, const QString &term,
                            const QString &attributeName);

// True when two pin names denote the same pin: equal after trimming, or, failing that, the
// first words (up to the first blank) share a "/" separated part, as "PA9 " and "PA9", or
// "PA11/PA9" and "PA9 (remap)".
bool PinNamesMatch(const QString &first, const QString &second);

// Finds, for a pin name of a group, the first pin in list order whose name matches it by
// PinNamesMatch(), in time proportional to the names' parts rather than to the pin count.
class PinNameIndex
{
public:
    explicit PinNameIndex(const QStringList &pinNames);
    // The position in the list given to the constructor, -1 when no name matches.
    int find(const QString &name) const;

private:
    QHash<QString, int> m_whole; // trimmed name -> first position
    QHash<QString, int> m_parts; // "/" part of the first word -> first position
};

// Fills `info` from the device file at `devicePath`: base attributes, pins, groups resolved
// against the pins with unresolved signals and emptied groups dropped. Any previous content
// of `info` is discarded. A pin count beyond kMaxDevicePins or kMaxSidePins reads as 0, like
// one that is not a number. Returns false when the file could not be read (info then holds
// only the path and zeros).
bool ReadDevicePinInfo(const QString &devicePath, DevicePinInfo *info);

// The same into a new heap object that the caller owns; never null.
DevicePinInfo *NewDevicePinInfo(const QString &devicePath);

// The product identifier of the device, read as hexadecimal; 0 when missing or not a number.
quint32 GetDevicePID(const QString &devicePath);

// The rows of PeripheralsList in file order.
QList<PeripheralListItem> GetPeripheralsList(const QString &devicePath);

// The groups of PinsSignalsGroup as written, unresolved (every pinIndex -1) and unfiltered.
QList<PinsSignalsGroup> GetPinsSignalsGroups(const QString &devicePath);
