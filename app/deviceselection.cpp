#include "app/deviceselection.h"

#include "database/paths.h"

#include <QCoreApplication>

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
