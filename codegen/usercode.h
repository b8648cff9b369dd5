#pragma once

#include <QString>
#include <QStringList>

// The user's code between "/* add user code begin NAME */" and "/* add user code end NAME */"
// lines survives regeneration: before the template is edited, each of its slots takes the
// text of the slot of the same name in the previous generated file.
namespace UserCode {

// The names of the template's slots in order of place.
QStringList slotNames(const QString &templateText);

// Copies, for every slot of the template, the region of the same name of `oldText` (from its
// first begin line to its last end line) over the template's region. Slots that the old text
// lacks stay as the template has them; text outside slots is never copied.
void mergeUserCode(QString oldText, QString &templateText);

} // namespace UserCode
