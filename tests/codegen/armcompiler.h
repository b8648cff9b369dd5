#pragma once

#include <QString>
#include <QStringList>

// Compiles generated C files for the Cortex-M4 against the firmware package of the source
// tree, the way the IDE projects do (device define, USE_STDPERIPH_DRIVER, strict warnings).
class ArmCompiler
{
public:
    ArmCompiler();

    // Whether arm-none-eabi-gcc is installed.
    bool available() const { return !m_gcc.isEmpty(); }
    // The package folder in the source tree.
    static QString packageFolder();

    // Compiles the C files in one run; `incFolders` come first on the include path.
    // False with the compiler's messages in `output` when one of them fails.
    bool compile(const QStringList &cFiles, const QStringList &incFolders, const QString &device,
                 QString *output) const;

    // Compiles the C files with the package's drivers, system file and start-up file, and
    // links them with the linker script of the device's flash size into `elf`.
    bool link(const QStringList &cFiles, const QStringList &incFolders, const QString &device,
              const QString &elf, QString *output) const;
    // The link options after the linker script: the C library with empty system calls (a bare
    // board has no operating system) and unused sections dropped, then "-o elf".
    static QStringList bareMetalLinkArgs(const QString &elf);
    // The linker script of a device: "MQ48T110x8_FLASH.ld" for MQ48T110C8T.
    static QString linkerScript(const QString &device);
    // The output of arm-none-eabi-nm for a linked program.
    QString symbols(const QString &elf) const;

private:
    bool run(const QString &program, const QStringList &args, const QString &folder,
             QString *output) const;
    QStringList commonArgs(const QStringList &incFolders, const QString &device) const;

    QString m_gcc;
};
