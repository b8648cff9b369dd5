#include "packages/installcommand.h"

#include "packages/packageinstaller.h"
#include "packages/packagenames.h"
#include "packages/packagesettings.h"

#include <QFileInfo>
#include <QTextStream>

int installPackageCommand(const QString &zip, const QString &repository, QTextStream &err)
{
    const QString repo = repository.isEmpty() ? repositoryPathOrDefault() : repository;

    if (!IsValidPackageName(zip)) {
        err << PackageInstaller::tr("The file name \"%1\" is not the name of a firmware "
                                    "package of this program's families.")
                   .arg(QFileInfo(zip).fileName())
            << '\n';
        err.flush();
        return InstallCommandRefused;
    }
    PackageInstaller installer(zip, repo);
    const PackageInstaller::Outcome outcome = installer.install();
    if (outcome.status == PackageInstaller::Installed)
        return InstallCommandInstalled;
    err << outcome.reason << '\n';
    err.flush();
    return outcome.status == PackageInstaller::Refused ? InstallCommandRefused
                                                       : InstallCommandWriteFailed;
}
