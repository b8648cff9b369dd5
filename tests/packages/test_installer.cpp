#include "packages/installcommand.h"
#include "packages/packageinstaller.h"
#include "packages/packagesettings.h"
#include "packages/packageworkers.h"
#include "tests/common/testsupport.h"
#include "tests/packages/packagefixtures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextStream>
#include <gtest/gtest.h>

#include <functional>

namespace {

const QString kPackage = "MQ48T110_Firmware_Library_V2.0.0";

// A work folder with a repository at <work>/Repository/Package; the installer stages next
// to the repository, in <work>/Repository.
class Installer : public ::testing::Test
{
protected:
    QTemporaryDir work;
    QString repoParent() const { return work.path() + "/Repository"; }
    QString repo() const { return repoParent() + "/Package"; }
    QString target(const QString &name = kPackage) const
    {
        return repo() + "/PF_MQ48T110/" + name;
    }
    QString zipPath(const QString &name = kPackage) const
    {
        return work.path() + "/" + name + ".zip";
    }

    PackageInstaller::Outcome install(const QString &zip)
    {
        PackageInstaller installer(zip, repo());
        return installer.install();
    }

    // A package installed before, so that "unchanged" is checked against real content.
    void installSomethingFirst()
    {
        const QString zip =
            makeFixturePackageZip(work.path() + "/first", "MQ48T110_Firmware_Library_V1.0.0");
        ASSERT_FALSE(zip.isEmpty());
        ASSERT_EQ(install(zip).status, PackageInstaller::Installed);
        testsupport::writeFile(repo() + "/PF_MQ48T110/notes.txt", "kept");
    }
};

const Tree kFixtureFiles = treeOfFiles(fixturePackageFiles());

TEST_F(Installer, InstallsTheZipTheBuildMakesOfAPackageFolder)
{
    const QString zip = makeFixturePackageZip(work.path());
    ASSERT_FALSE(zip.isEmpty());
    int lastDone = 0;
    int total = 0;
    PackageInstaller installer(zip, repo());
    installer.setProgress([&](int done, int all) {
        EXPECT_GT(done, lastDone);
        lastDone = done;
        total = all;
    });
    EXPECT_EQ(installer.family(), "MQ48T110");
    const PackageInstaller::Outcome outcome = installer.install();
    ASSERT_EQ(outcome.status, PackageInstaller::Installed) << outcome.reason.toStdString();
    EXPECT_EQ(outcome.packagePath, target());
    EXPECT_EQ(lastDone, total);
    EXPECT_EQ(total, PackageInstaller::entryCount(zip));
    // The folder at the archive's top is dropped: the package's folders are at the target.
    EXPECT_EQ(filesOnly(snapshotTree(target())), kFixtureFiles);
    EXPECT_TRUE(QFileInfo(target() + "/project/mq_board_t110/templates").isDir());
    EXPECT_EQ(entriesOf(repoParent()), QStringList{"Package"}); // no staging left
    EXPECT_EQ(entriesOf(repo()), QStringList{"PF_MQ48T110"});
}

TEST_F(Installer, PackageContentAtTheArchiveTopInstallsTheSame)
{
    {
        ZipWriter zip(zipPath());
        const QMap<QString, QByteArray> files = fixturePackageFiles();
        for (auto it = files.cbegin(); it != files.cend(); ++it)
            zip.addFile(it.key(), it.value());
        ASSERT_TRUE(zip.close());
    }
    ASSERT_EQ(install(zipPath()).status, PackageInstaller::Installed);
    EXPECT_EQ(filesOnly(snapshotTree(target())), kFixtureFiles);
}

TEST_F(Installer, ReplacingAPackageSwapsItOnlyWhenTheNewOneIsComplete)
{
    const QString zip = makeFixturePackageZip(work.path());
    ASSERT_EQ(install(zip).status, PackageInstaller::Installed);
    testsupport::writeFile(target() + "/libraries/local-change.txt", "mine");

    // A damaged archive of the same name leaves the installed package as it was.
    const Tree before = snapshotTree(repoParent());
    const QString broken = work.path() + "/broken/" + kPackage + ".zip";
    QDir().mkpath(work.path() + "/broken");
    {
        ZipWriter writer(broken);
        writer.addFile("libraries/a.h", "int a;");
        writer.addRawStored("libraries/b.h", "int b;", 0x12345678, 6);
        ASSERT_TRUE(writer.close());
    }
    EXPECT_EQ(install(broken).status, PackageInstaller::Refused);
    EXPECT_EQ(snapshotTree(repoParent()), before);

    // A good one replaces it completely.
    ASSERT_EQ(install(zip).status, PackageInstaller::Installed);
    EXPECT_FALSE(QFile::exists(target() + "/libraries/local-change.txt"));
    EXPECT_EQ(filesOnly(snapshotTree(target())), kFixtureFiles);
    EXPECT_EQ(entriesOf(repo() + "/PF_MQ48T110"), QStringList{kPackage});
}

// One hostile or unusable archive, and the words its refusal must contain.
struct Hostile
{
    const char *what;
    std::function<void(ZipWriter &)> build;
    const char *reason;
};

TEST_F(Installer, HostileArchivesAreRefusedWithTheirReasonAndChangeNothing)
{
    installSomethingFirst();
    const Tree before = snapshotTree(repoParent());
    const QByteArray fine = "int fine;";
    const QList<Hostile> cases = {
        {"parent folder entry",
         [&](ZipWriter &z) {
             z.addFile("libraries/fine.h", fine);
             z.addFile("libraries/../../../escaped.txt", "x");
         },
         "points outside the package folder"},
        {"backslash parent entry",
         [&](ZipWriter &z) {
             z.addFile("libraries/fine.h", fine);
             z.addFile("..\\escaped.txt", "x");
         },
         "points outside the package folder"},
        {"absolute path",
         [&](ZipWriter &z) {
             z.addFile("libraries/fine.h", fine);
             z.addFile(work.path() + "/escaped.txt", "x");
         },
         "has an absolute path"},
        {"drive letter",
         [&](ZipWriter &z) {
             z.addFile("libraries/fine.h", fine);
             z.addFile("C:\\escaped.txt", "x");
         },
         "has a drive letter"},
        {"symlink pointing outside",
         [&](ZipWriter &z) {
             z.addFile("libraries/fine.h", fine);
             z.addSymlink("libraries/outside", "../../../../..");
             z.addFile("libraries/outside/escaped.txt", "x");
         },
         "is a symbolic link"},
        {"corrupt CRC",
         [&](ZipWriter &z) {
             z.addFile("libraries/fine.h", fine);
             z.addRawStored("libraries/bad.h", "int bad;", 0xdeadbeef, 8);
         },
         "is damaged"},
        {"size larger than declared",
         [&](ZipWriter &z) { z.addRawStored("libraries/big.h", QByteArray(100000, 'a'), 0, 10); },
         "is damaged"},
        {"zip bomb", [&](ZipWriter &z) { z.addZeros("libraries/zeros.bin", quint64(3) << 30); },
         "more than 1024 MB"},
        {"file and folder of one name",
         [&](ZipWriter &z) {
             z.addFile("libraries/drivers", fine);
             z.addFile("libraries/drivers/inc/x.h", fine);
         },
         "appears twice or clashes"},
        {"not a package",
         [&](ZipWriter &z) {
             z.addFile("readme.txt", "holiday photos");
             z.addFile("photos/beach.jpg", "jpg");
         },
         "is not a firmware package"},
    };
    for (const Hostile &hostile : cases) {
        SCOPED_TRACE(hostile.what);
        QFile::remove(zipPath());
        {
            ZipWriter writer(zipPath());
            hostile.build(writer);
            ASSERT_TRUE(writer.close());
        }
        if (QLatin1String(hostile.what) == QLatin1String("zip bomb")) { // a real one
            EXPECT_LT(QFileInfo(zipPath()).size(), 8 << 20);
        }
        const PackageInstaller::Outcome outcome = install(zipPath());
        EXPECT_EQ(outcome.status, PackageInstaller::Refused);
        EXPECT_TRUE(outcome.reason.contains(hostile.reason)) << outcome.reason.toStdString();
        EXPECT_EQ(snapshotTree(repoParent()), before);
        EXPECT_FALSE(QFile::exists(work.path() + "/escaped.txt"));
    }
}

TEST_F(Installer, FilesThatAreNoZipOrAreCutShortAreRefused)
{
    installSomethingFirst();
    const Tree before = snapshotTree(repoParent());

    testsupport::writeFile(zipPath(), "This is a text file, not an archive.\n");
    PackageInstaller::Outcome outcome = install(zipPath());
    EXPECT_EQ(outcome.status, PackageInstaller::Refused);
    EXPECT_TRUE(outcome.reason.contains("is not a readable zip archive"));

    const QByteArray whole = testsupport::readFile(makeFixturePackageZip(work.path() + "/cut"));
    testsupport::writeFile(zipPath(), whole.left(whole.size() / 2));
    outcome = install(zipPath());
    EXPECT_EQ(outcome.status, PackageInstaller::Refused);

    outcome = install(work.path() + "/" + kPackage + "-missing.zip");
    EXPECT_EQ(outcome.status, PackageInstaller::Refused);
    EXPECT_EQ(snapshotTree(repoParent()), before);
}

TEST_F(Installer, TooManyEntriesAreRefusedBeforeUnpacking)
{
    {
        ZipWriter writer(zipPath());
        for (int i = 0; i < 30; ++i)
            writer.addFile(QString("libraries/f%1.h").arg(i), "x");
        ASSERT_TRUE(writer.close());
    }
    PackageInstaller installer(zipPath(), repo());
    ArchiveLimits limits;
    limits.maxEntries = 20;
    installer.setLimits(limits);
    const PackageInstaller::Outcome outcome = installer.install();
    EXPECT_EQ(outcome.status, PackageInstaller::Refused);
    EXPECT_TRUE(outcome.reason.contains("30 entries")) << outcome.reason.toStdString();
    EXPECT_FALSE(QFileInfo::exists(repoParent()));
}

TEST_F(Installer, CancellingHalfwayLeavesTheRepositoryAsItWas)
{
    installSomethingFirst();
    const Tree before = snapshotTree(repoParent());
    const QString zip = makeFixturePackageZip(work.path());
    std::atomic_bool cancel{false};
    PackageInstaller installer(zip, repo());
    installer.setCancelFlag(&cancel);
    installer.setProgress([&](int done, int) { cancel = done >= 3; });
    const PackageInstaller::Outcome outcome = installer.install();
    EXPECT_EQ(outcome.status, PackageInstaller::Canceled);
    EXPECT_EQ(snapshotTree(repoParent()), before);
}

TEST_F(Installer, ARepositoryThatCannotBeCreatedIsAWriteFailure)
{
    const QString zip = makeFixturePackageZip(work.path());
    testsupport::writeFile(work.path() + "/plainfile", "not a folder");
    PackageInstaller installer(zip, work.path() + "/plainfile/repo");
    const PackageInstaller::Outcome outcome = installer.install();
    EXPECT_EQ(outcome.status, PackageInstaller::WriteFailed);
    EXPECT_FALSE(outcome.reason.isEmpty());
    EXPECT_EQ(testsupport::readFile(work.path() + "/plainfile"), "not a folder");
}

TEST_F(Installer, CommandLineExitCodesAndReasons)
{
    PackageAppFolder app;
    const QString zip = makeFixturePackageZip(work.path());
    QString errors;
    QTextStream err(&errors);

    EXPECT_EQ(installPackageCommand(zip, repo(), err), InstallCommandInstalled);
    EXPECT_EQ(installPackageCommand(zip, repo(), err), InstallCommandInstalled); // replaces
    EXPECT_TRUE(errors.isEmpty()) << errors.toStdString();
    EXPECT_EQ(filesOnly(snapshotTree(target())), kFixtureFiles);

    const Tree before = snapshotTree(repoParent());
    const QString hostile = work.path() + "/hostile/" + kPackage + ".zip";
    QDir().mkpath(work.path() + "/hostile");
    {
        ZipWriter writer(hostile);
        writer.addFile("libraries/ok.h", "ok");
        writer.addFile("../../escaped.txt", "x");
        ASSERT_TRUE(writer.close());
    }
    EXPECT_EQ(installPackageCommand(hostile, repo(), err), InstallCommandRefused);
    EXPECT_TRUE(errors.contains("points outside the package folder")) << errors.toStdString();
    EXPECT_EQ(snapshotTree(repoParent()), before);

    errors.clear();
    const QString renamed = work.path() + "/Holiday.zip";
    QFile::copy(zip, renamed);
    EXPECT_EQ(installPackageCommand(renamed, repo(), err), InstallCommandRefused);
    EXPECT_TRUE(errors.contains("Holiday.zip"));

    testsupport::writeFile(work.path() + "/plainfile", "x");
    EXPECT_EQ(installPackageCommand(zip, work.path() + "/plainfile/repo", err),
              InstallCommandWriteFailed);

    // Without --repository the settings' folder is used.
    ASSERT_TRUE(storeRepositoryPath(work.path() + "/configured"));
    EXPECT_EQ(installPackageCommand(zip, QString(), err), InstallCommandInstalled);
    EXPECT_TRUE(QFileInfo(work.path() + "/configured/PF_MQ48T110/" + kPackage).isDir());
}

TEST_F(Installer, ExtractThreadReportsProgressAndCanBeCancelled)
{
    const QString zip = makeFixturePackageZip(work.path());
    {
        ExtractThread worker(zip, repo());
        QSignalSpy progress(&worker, &ExtractThread::emitUnzipping);
        QSignalSpy result(&worker, &ExtractThread::emitResult);
        worker.start();
        ASSERT_TRUE(result.wait(30000));
        EXPECT_TRUE(result.first().first().toBool());
        ASSERT_FALSE(progress.isEmpty());
        EXPECT_EQ(progress.last().at(0).toInt(), PackageInstaller::entryCount(zip));
        worker.wait();
    }
    removePath(repo());
    {
        ExtractThread worker(zip, repo());
        // Runs on the worker's thread, so the cancel lands before the next entry.
        QObject::connect(
            &worker, &ExtractThread::emitUnzipping, &worker,
            [&worker](int done, int) {
                if (done == 2)
                    worker.requestCancel();
            },
            Qt::DirectConnection);
        QSignalSpy result(&worker, &ExtractThread::emitResult);
        worker.start();
        ASSERT_TRUE(result.wait(30000));
        worker.wait();
        EXPECT_FALSE(result.first().first().toBool());
        EXPECT_EQ(worker.outcome().status, PackageInstaller::Canceled);
        EXPECT_FALSE(QFileInfo::exists(repo()));
        EXPECT_EQ(entriesOf(repoParent()), QStringList());
    }
}

TEST_F(Installer, RemovingAPackageRemovesOnlyItAndThenItsEmptyFamilyFolder)
{
    const QString zip = makeFixturePackageZip(work.path());
    ASSERT_EQ(install(zip).status, PackageInstaller::Installed);
    const QString second =
        makeFixturePackageZip(work.path() + "/second", "MQ48T110_Firmware_Library_V2.1.0");
    ASSERT_EQ(install(second).status, PackageInstaller::Installed);
    // A package folder that is a link to a folder elsewhere: only the link goes.
    const QString elsewhere = work.path() + "/elsewhere";
    writeFixturePackage(elsewhere);
    QDir().mkpath(repo() + "/PF_MQ48T120");
    ASSERT_TRUE(QFile::link(elsewhere, repo() + "/PF_MQ48T120/MQ48T120_Firmware_Library_V1.0.0"));

    const QString family = repo() + "/PF_MQ48T110";
    auto runDelete = [](const QStringList &folders, const QStringList &families) {
        DelDirThread worker(folders, families);
        QSignalSpy result(&worker, &DelDirThread::emitResult);
        worker.start();
        EXPECT_TRUE(result.wait(30000));
        worker.wait();
        return result.isEmpty() ? QStringList{"no result"} : result.first().first().toStringList();
    };
    EXPECT_TRUE(runDelete({target()}, {family}).isEmpty());
    EXPECT_EQ(entriesOf(family), QStringList{"MQ48T110_Firmware_Library_V2.1.0"});
    EXPECT_EQ(filesOnly(snapshotTree(family + "/MQ48T110_Firmware_Library_V2.1.0")),
              kFixtureFiles);

    EXPECT_TRUE(runDelete({family + "/MQ48T110_Firmware_Library_V2.1.0"}, {family}).isEmpty());
    EXPECT_FALSE(QFileInfo::exists(family));

    EXPECT_TRUE(runDelete({repo() + "/PF_MQ48T120/MQ48T120_Firmware_Library_V1.0.0"},
                          {repo() + "/PF_MQ48T120"})
                    .isEmpty());
    EXPECT_EQ(filesOnly(snapshotTree(elsewhere)), kFixtureFiles);
    EXPECT_EQ(entriesOf(repo()), QStringList());
}

TEST_F(Installer, CopyDirThreadCopiesATreeButNeverOntoAnExistingFolder)
{
    writeFixturePackage(work.path() + "/from");
    auto runCopy = [](const QString &from, const QString &to) {
        CopyDirThread worker(from, to);
        QSignalSpy result(&worker, &CopyDirThread::emitResult);
        worker.start();
        EXPECT_TRUE(result.wait(30000));
        worker.wait();
        return result.isEmpty() ? -1 : result.first().first().toInt();
    };
    EXPECT_EQ(runCopy(work.path() + "/from", work.path() + "/to"), 0);
    EXPECT_EQ(filesOnly(snapshotTree(work.path() + "/to")), kFixtureFiles);
    testsupport::writeFile(work.path() + "/other/keep.txt", "keep");
    EXPECT_EQ(runCopy(work.path() + "/from", work.path() + "/other"), 1);
    EXPECT_EQ(entriesOf(work.path() + "/other"), QStringList{"keep.txt"});
}

} // namespace
