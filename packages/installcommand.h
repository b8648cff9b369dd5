#pragma once

#include <QString>

class QTextStream;

// Exit codes of the command "install-package".
enum InstallCommandResult {
    InstallCommandInstalled = 0,
    InstallCommandRefused = 2,     // the archive is not an acceptable package
    InstallCommandWriteFailed = 4, // the repository could not be written
};

// The command "install-package ZIP [--repository DIR]": installs the package zip into
// `repository`, or, when that is empty, into the repository of the settings (else the
// default folder). An installed package of the same name is replaced. Returns an
// InstallCommandResult; on failure the reason goes to `err` and the repository is unchanged.
int installPackageCommand(const QString &zip, const QString &repository, QTextStream &err);
