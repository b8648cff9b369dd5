#include "app/designheader.h"
#include "tests/app/appfolder.h"
#include "tests/common/testsupport.h"

#include <gtest/gtest.h>

namespace {

QByteArray design(const char *series, const char *device, const char *package)
{
    return QByteArray("<?xml version=\"1.0\"?><Root><MCUInfo><MCUSerials>") + series +
           "</MCUSerials><MCUName>" + device + "</MCUName><MCUPackage>" + package +
           "</MCUPackage></MCUInfo><GPIO/></Root>";
}

// A design file names its device; opening accepts only what the catalogue knows.
TEST(DesignHeader, ChecksTheDeviceAgainstTheCatalogue)
{
    TempAppFolder folder;
    const QString path = folder.file("d.MQPF");
    const auto check = [&](const QByteArray &content) {
        EXPECT_TRUE(testsupport::writeFile(path, content));
        return CheckDesignHeader(ReadDesignHeader(path));
    };

    EXPECT_EQ(check(design("MQ48T510", "MQ48T510RCT7", "LQFP64")), DesignHeaderCheck::Ok);
    const DesignHeader header = ReadDesignHeader(path);
    EXPECT_EQ(header.series, QStringLiteral("MQ48T510"));
    EXPECT_EQ(header.device, QStringLiteral("MQ48T510RCT7"));
    EXPECT_EQ(header.package, QStringLiteral("LQFP64"));

    EXPECT_EQ(check(design("MQ48T510", "", "LQFP64")), DesignHeaderCheck::NoDeviceInfo);
    EXPECT_EQ(check("<Root><GPIO/></Root>"), DesignHeaderCheck::NoDeviceInfo);
    EXPECT_EQ(check("not xml"), DesignHeaderCheck::NoDeviceInfo);
    EXPECT_EQ(check(design("MQ48T777", "MQ48T510RCT7", "LQFP64")),
              DesignHeaderCheck::DeviceNotSupported);
    // The device must belong to the named series.
    EXPECT_EQ(check(design("MQ48T110", "MQ48T510RCT7", "LQFP64")),
              DesignHeaderCheck::DeviceNotSupported);
    EXPECT_EQ(check(design("MQ48T510", "MQ48T510RCT7", "BGA12")),
              DesignHeaderCheck::PackageNotSupported);
}

} // namespace
