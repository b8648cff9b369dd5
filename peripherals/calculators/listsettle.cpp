#include "peripherals/calculators/listsettle.h"

#include "peripherals/expressionevaluator.h"
#include "peripherals/paramvalue.h"

namespace {

QString semaphoreOf(const RefParameter &p, const QString &value)
{
    for (const RefParamValue &v : p.PossibleValues) {
        if (v.Value == value)
            return v.Semaphore;
    }
    return QString();
}

} // namespace

QStringList ParamListSettle::evaluationList(const QList<RefParameter> &params,
                                            const QStringList &semaphores)
{
    QStringList list = semaphores;
    for (const RefParameter &p : params)
        list << p.Name + QLatin1Char('=') + p.Value;
    return list;
}

bool ParamListSettle::isVisible(const RefParameter &p, const QStringList &evaluation)
{
    return p.Visible &&
           (p.Expression.isEmpty() || ExpressionEvaluator::valueHolds(p.Expression, evaluation));
}

QStringList ParamListSettle::settle(QList<RefParameter> &params, QStringList &semaphores,
                                    const QSet<QString> &userChosen)
{
    QStringList moved;
    // A move can raise a semaphore that moves another list; a few passes reach the end.
    for (int pass = 0; pass < 8; ++pass) {
        bool changed = false;
        QStringList evaluation = evaluationList(params, semaphores);
        for (RefParameter &p : params) {
            if (p.Type != QLatin1String("list") || userChosen.contains(p.Name))
                continue;
            if (!isVisible(p, evaluation))
                continue;
            const ParamListChoice choice = ParamValue::listChoice(p, evaluation);
            if (choice.current < 0 || choice.value == p.Value ||
                choice.entries.at(choice.current).greyed)
                continue;
            const QString oldSemaphore = semaphoreOf(p, p.Value);
            const QString newSemaphore = semaphoreOf(p, choice.value);
            if (!oldSemaphore.isEmpty())
                semaphores.removeAll(oldSemaphore);
            if (!newSemaphore.isEmpty() && !semaphores.contains(newSemaphore))
                semaphores << newSemaphore;
            p.Value = choice.value;
            if (!moved.contains(p.Name))
                moved << p.Name;
            changed = true;
            evaluation = evaluationList(params, semaphores);
        }
        if (!changed)
            break;
    }
    return moved;
}
