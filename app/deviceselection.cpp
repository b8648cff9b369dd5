#include "app/deviceselection.h"

#include "database/paths.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPair>
#include <QStyle>

QString SramSizeText(const MCUListItem &device)
{
    if (device.MaxSRAM.isEmpty())
        return device.SRAM;
    return QCoreApplication::translate("DeviceSelection", "Default: ") + device.SRAM +
           QStringLiteral("    ") + QCoreApplication::translate("DeviceSelection", "Max: ") +
           device.MaxSRAM;
}

QString SeriesInfoPagePath(const QString &series, int language)
{
    const QString suffix =
        language == 1 ? QStringLiteral("_Info_CH.htm") : QStringLiteral("_Info_EN.htm");
    return seriesFolder(series) + QStringLiteral("/") + series + suffix;
}

void ShowDeviceFields(const QList<MCUListItem> &devices, int index, QLineEdit *package,
                      QLineEdit *flash, QLineEdit *sram)
{
    if (index < 0 || index >= devices.size()) {
        package->clear();
        flash->clear();
        sram->clear();
        return;
    }
    const MCUListItem &item = devices.at(index);
    const QList<QPair<QLineEdit *, QString>> fields = {
        {package, item.Package}, {flash, item.Flash}, {sram, SramSizeText(item)}};
    for (const auto &field : fields) {
        QLineEdit *edit = field.first;
        edit->setText(field.second);
        // The whole text shows from its start, measured in the font the field has.
        edit->setCursorPosition(0);
        edit->setToolTip(field.second);
        const QMargins m = edit->textMargins();
        const int needed = edit->fontMetrics().horizontalAdvance(field.second) + m.left() +
                           m.right() +
                           2 * edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth) + 8;
        if (edit->minimumWidth() < needed)
            edit->setMinimumWidth(needed);
    }
}
