#include "app/deviceselection.h"

#include "database/paths.h"

#include <QCoreApplication>
#include <QLineEdit>

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
    package->setText(item.Package);
    flash->setText(item.Flash);
    sram->setText(SramSizeText(item));
}
