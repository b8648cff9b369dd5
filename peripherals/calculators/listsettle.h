#pragma once

#include "database/records.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

// Lists whose value follows the modes. When the conditions take a list's value away, a value
// the user never chose moves to the first entry that is left, with its semaphore, so that only
// a choice of the user's own is reported as lost.
class ParamListSettle
{
public:
    // The list the conditions are evaluated over: the raised semaphores and a "name=value"
    // entry per parameter.
    static QStringList evaluationList(const QList<RefParameter> &params,
                                      const QStringList &semaphores);
    // Is a parameter shown (Visible and its Expression holds)?
    static bool isVisible(const RefParameter &p, const QStringList &evaluation);
    // Moves the values of the visible lists not in `userChosen` whose value the conditions
    // removed; `semaphores` follows the moves. Returns the names that moved.
    static QStringList settle(QList<RefParameter> &params, QStringList &semaphores,
                              const QSet<QString> &userChosen);
};
