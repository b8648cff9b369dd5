#include "armcompiler.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

ArmCompiler::ArmCompiler()
    : m_gcc(QStandardPaths::findExecutable(QStringLiteral("arm-none-eabi-gcc")))
{
}

QString ArmCompiler::packageFolder()
{
    return QStringLiteral(MQ48_SOURCE_DIR) +
           QStringLiteral("/firmware/MQ48T110_Firmware_Library_V2.0.0");
}

QStringList ArmCompiler::commonArgs(const QStringList &incFolders, const QString &device) const
{
    const QString lib = packageFolder() + QStringLiteral("/libraries");
    QStringList args = {"-mcpu=cortex-m4", "-mthumb", "-std=c99",    "-Wall",
                        "-Wextra",         "-Werror", "-D" + device, "-DUSE_STDPERIPH_DRIVER"};
    for (const QString &inc : incFolders)
        args << "-I" + inc;
    args << "-I" + lib + "/cmsis/cm4/core_support"
         << "-I" + lib + "/cmsis/cm4/device_support"
         << "-I" + lib + "/drivers/inc";
    return args;
}

bool ArmCompiler::run(const QString &program, const QStringList &args, const QString &folder,
                      QString *output) const
{
    if (program.isEmpty()) {
        *output = QStringLiteral("the cross compiler is not installed");
        return false;
    }
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, args);
    if (!process.waitForFinished(600000)) {
        *output = program + QStringLiteral(" did not finish");
        return false;
    }
    *output = QString::fromLocal8Bit(process.readAll());
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool ArmCompiler::compile(const QStringList &cFiles, const QStringList &incFolders,
                          const QString &device, QString *output) const
{
    QTemporaryDir objects;
    return run(m_gcc, commonArgs(incFolders, device) << "-c" << cFiles, objects.path(), output);
}

QStringList ArmCompiler::bareMetalLinkArgs(const QString &elf)
{
    return {QStringLiteral("-Wl,--start-group"),
            QStringLiteral("-lc"),
            QStringLiteral("-lnosys"),
            QStringLiteral("-Wl,--end-group"),
            QStringLiteral("-Wl,--gc-sections"),
            QStringLiteral("-o"),
            elf};
}

QString ArmCompiler::linkerScript(const QString &device)
{
    // The series, "x", and the flash character of the part number.
    return device.left(8) + QLatin1Char('x') + device.mid(9, 1) + QStringLiteral("_FLASH.ld");
}

bool ArmCompiler::link(const QStringList &cFiles, const QStringList &incFolders,
                       const QString &device, const QString &elf, QString *output) const
{
    const QString support =
        packageFolder() + QStringLiteral("/libraries/cmsis/cm4/device_support");
    QStringList args = commonArgs(incFolders, device);
    args << "-Os"
         << "-ffunction-sections"
         << "-fdata-sections" << cFiles;
    const QDir drivers(packageFolder() + QStringLiteral("/libraries/drivers/src"));
    for (const QString &c : drivers.entryList({QStringLiteral("*.c")}, QDir::Files, QDir::Name))
        args << drivers.filePath(c);
    args << support + "/system_mq48t110.c" << support + "/startup/gcc/startup_mq48t110.s"
         << "-T" << support + "/startup/gcc/linker/" + linkerScript(device)
         << bareMetalLinkArgs(elf);
    QTemporaryDir objects;
    return run(m_gcc, args, objects.path(), output);
}

QString ArmCompiler::symbols(const QString &elf) const
{
    QString output;
    const QString nm = QStandardPaths::findExecutable(QStringLiteral("arm-none-eabi-nm"));
    return run(nm, {elf}, QDir::tempPath(), &output) ? output : QString();
}
