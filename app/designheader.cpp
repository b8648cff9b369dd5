#include "app/designheader.h"

#include "database/catalogue.h"
#include "database/safexml.h"

#include <QDomDocument>

DesignHeader ReadDesignHeader(const QString &designPath)
{
    DesignHeader header;
    QDomDocument doc;
    if (!loadXmlDocument(designPath, &doc))
        return header;
    const QDomElement info = doc.documentElement().firstChildElement(QStringLiteral("MCUInfo"));
    header.series = info.firstChildElement(QStringLiteral("MCUSerials")).text();
    header.device = info.firstChildElement(QStringLiteral("MCUName")).text();
    header.package = info.firstChildElement(QStringLiteral("MCUPackage")).text();
    return header;
}

DesignHeaderCheck CheckDesignHeader(const DesignHeader &header)
{
    if (header.series.isEmpty() || header.device.isEmpty() || header.package.isEmpty())
        return DesignHeaderCheck::NoDeviceInfo;

    bool seriesKnown = false;
    for (const MCUSerialInfo &info : GetMCUSerialList())
        seriesKnown = seriesKnown || info.Serial == header.series;
    bool deviceKnown = false;
    if (seriesKnown) {
        for (const MCUListItem &item : GetMCUList(header.series))
            deviceKnown = deviceKnown || item.Name == header.device;
    }
    if (!deviceKnown)
        return DesignHeaderCheck::DeviceNotSupported;
    if (!GetMCUPackageList().contains(header.package))
        return DesignHeaderCheck::PackageNotSupported;
    return DesignHeaderCheck::Ok;
}
