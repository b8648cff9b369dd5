#pragma once

#include <QString>

// The device named by a design file (its MCUInfo block) and the check of that device against
// the catalogue, done before a design is opened.

struct DesignHeader
{
    QString series;
    QString device;
    QString package;
};

// Outcome of the check, one message each.
enum class DesignHeaderCheck {
    Ok,
    NoDeviceInfo,       // unreadable file or any of the three texts empty
    DeviceNotSupported, // series or device not in the catalogue
    PackageNotSupported // package not in the catalogue's package list
};

// Reads MCUSerials, MCUName and MCUPackage of the first MCUInfo child of the root; missing
// parts stay empty.
DesignHeader ReadDesignHeader(const QString &designPath);

// Checks the header against the catalogue, in the order of the enum.
DesignHeaderCheck CheckDesignHeader(const DesignHeader &header);
