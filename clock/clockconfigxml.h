#pragma once

#include "clock/clocktreestate.h"

#include <QString>
#include <QStringList>

class QDomElement;
class QXmlStreamWriter;

// Texts of a loaded clock block that the tree puts into its line edits as they stand.
struct ClockConfigTexts
{
    QString hext;     // the "hext" attribute, not checked
    QString i2sf5ext; // the external I2SF5 field (T210, T220), empty when absent
};

// Name of the design file element that holds the clock configuration.
inline const QString kClockConfigurationElement = QStringLiteral("ClockConfiguration");

// The attribute names a family writes, in writing order.
QStringList clockConfigAttributes(int model);

// Writes the `ClockConfiguration` element of the record's family, with the series attribute
// given by the family table; false when the model has no tree or the writer fails.
bool saveClockConfig(const ClockTreeState &state, QXmlStreamWriter &writer);

// Reads the family's attributes from `element` into the record, each out-of-range value
// falling back to its smallest legal one, then recalculates the clocks. Values written as
// text children of the same names are read as well. False when the model has no tree.
bool loadClockConfig(ClockTreeState &state, const QDomElement &element,
                     ClockConfigTexts *texts = nullptr);
