#pragma once

#include <QString>
#include <QStringList>

// The headless commands of the program, for scripts and continuous integration:
//   MQ48PinForge generate DESIGN.MQPF [--output DIR] [--no-keep-user-code] [--ide NAME]
//   MQ48PinForge check DESIGN.MQPF
//   MQ48PinForge resave DESIGN.MQPF --output FILE
//   MQ48PinForge report DESIGN.MQPF --output FILE.pdf
//   MQ48PinForge install-package ZIP [--repository DIR]
//   MQ48PinForge --help | --version

// Exit codes of the commands.
enum CommandExit {
    ExitOk = 0,
    ExitUsage = 1,
    ExitUnreadable = 2, // the design (or archive) cannot be read
    ExitProblems = 3,   // the design has problems: check, or generate refused
    ExitWriteFailed = 4,
};

// One parsed command line.
struct CommandLineRequest
{
    enum Command { None, Help, Version, Generate, Check, Resave, Report, InstallPackage };
    Command command = None;
    QString input; // the design file or the package archive
    QString output;
    QString ide;
    QString repository;
    bool keepUserCode = true;
    QString error; // set when the line is not a valid command line
};

// True when the arguments (without the program name) ask for a command rather than the
// window: anything at all is given.
bool isCommandLine(const QStringList &arguments);

// Parses the arguments without the program name.
CommandLineRequest parseCommandLine(const QStringList &arguments);

// The usage text printed by --help and after a usage error.
QString commandLineUsage();

class QTextStream;

// Runs a parsed command without a window (a QApplication must exist): results go to `out`,
// messages to `err`. Returns a CommandExit.
int runCommandLine(const CommandLineRequest &request, QTextStream &out, QTextStream &err);
