#pragma once

#include <QString>
#include <QStringList>

// The two boolean evaluators of the database's condition texts: the semaphore evaluator of
// the mode controls and the value evaluator of parameters, possible values and DMA rows.
class ExpressionEvaluator
{
public:
    // Mode items: `blocked` holds the raised semaphores. With andFlag the text is split at "&"
    // into terms of "|" alternatives, else at "|" into parts of "&" factors. An empty text
    // holds.
    static bool semaphoreHolds(const QString &expression, const QStringList &blocked,
                               bool andFlag);

    // Parameters: always "&" over "|". Entries of `enabled` may read "name=value"; the
    // alternatives "a!=b", "a=b", "a>n" (n decimal or 0x hexadecimal), "!a" and "a" are
    // understood. An empty text holds.
    static bool valueHolds(const QString &expression, const QStringList &enabled);

    // One word of the semaphore evaluator: "!name" holds when name is absent from the list,
    // any other word when it is present.
    static bool wordHolds(const QString &word, const QStringList &list);

private:
    static bool alternativeHolds(const QString &alternative, const QStringList &enabled);
    static bool compareHolds(const QString &alternative, const QString &op,
                             const QStringList &enabled);
    static bool greaterHolds(const QString &alternative, const QStringList &enabled);
};
