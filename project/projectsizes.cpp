#include "project/projectsizes.h"

#include <QCoreApplication>

bool parseHexSize(const QString &text, quint32 *value)
{
    QString digits = text.trimmed();
    if (digits.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        digits = digits.mid(2);
    if (digits.isEmpty())
        return false;
    bool ok = false;
    const uint parsed = digits.toUInt(&ok, 16);
    if (ok && value)
        *value = parsed;
    return ok;
}

bool parseProjectSizes(const QString &heapText, const QString &stackText, quint32 sramBytes,
                       quint32 *heap, quint32 *stack, QString *problem)
{
    quint32 heapValue = 0;
    quint32 stackValue = 0;
    QString message;
    const QString sram = QString::number(sramBytes, 16).toUpper();
    if (!parseHexSize(heapText, &heapValue))
        message =
            QCoreApplication::translate("ProjectSetting", "\"Minimum Heap Size\" input error!");
    else if (!parseHexSize(stackText, &stackValue))
        message =
            QCoreApplication::translate("ProjectSetting", "\"Minimum Stack Size\" input error!");
    else if (heapValue > sramBytes)
        message = QCoreApplication::translate(
                      "ProjectSetting",
                      "\"Minimum Heap Size\" input error, cannot be greater than SRAM size(0x%1)")
                      .arg(sram);
    else if (stackValue > sramBytes)
        message = QCoreApplication::translate(
                      "ProjectSetting",
                      "\"Minimum Stack Size\" input error, cannot be greater than SRAM size(0x%1)")
                      .arg(sram);
    if (!message.isEmpty()) {
        if (problem)
            *problem = message;
        return false;
    }
    if (heap)
        *heap = heapValue;
    if (stack)
        *stack = stackValue;
    return true;
}
