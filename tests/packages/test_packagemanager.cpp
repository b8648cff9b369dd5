#include "database/configstore.h"
#include "packages/packagemanager.h"
#include "packages/packagenames.h"
#include "packages/packagesettings.h"
#include "tests/common/testsupport.h"
#include "tests/packages/httpsserver.h"
#include "tests/packages/packagefixtures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace {

const QString kPackage = "MQ48T110_Firmware_Library_V2.0.0";

// The dialog with its two file choosers answered by the test.
class TestPackageManager : public PackageManager
{
public:
    QString directoryAnswer;
    QString zipAnswer;
    QStringList proposed; // what each chooser was offered

protected:
    QString chooseDirectory(const QString &start) override
    {
        proposed << start;
        return directoryAnswer;
    }
    QString chooseZipFile(const QString &folder) override
    {
        proposed << folder;
        return zipAnswer;
    }
};

bool sameImage(const QIcon &icon, const char *resource)
{
    return icon.pixmap(16).toImage() == QIcon(resource).pixmap(16).toImage();
}

// A program folder with the catalogue, a scratch folder for the repository and zips, and a
// recorder answering the dialog's questions with `answers` in turn.
class PackageManagerDialog : public ::testing::Test
{
protected:
    PackageAppFolder app;
    QTemporaryDir work;
    QStringList answers; // button texts for the next questions, in turn; else the first
    MessageRecorder recorder{[this](const UserMessage &message) {
        if (message.title == "SSL Errors")
            return 0;
        return answers.isEmpty() ? 0 : MessageRecorder::button(message, answers.takeFirst());
    }};

    QString repo() const { return work.path() + "/repo"; }
    void useRepository() { ASSERT_TRUE(storeRepositoryPath(repo())); }

    static QTreeWidget *tree(PackageManager &dialog)
    {
        return dialog.findChild<QTreeWidget *>("packageTree");
    }
    static QPushButton *button(PackageManager &dialog, const char *name)
    {
        return dialog.findChild<QPushButton *>(name);
    }
    static QTreeWidgetItem *row(PackageManager &dialog, const QString &family)
    {
        const QList<QTreeWidgetItem *> found = tree(dialog)->findItems(family, Qt::MatchExactly);
        return found.isEmpty() ? nullptr : found.first();
    }
    static QStringList versions(PackageManager &dialog, const QString &family)
    {
        QStringList list;
        if (QTreeWidgetItem *item = row(dialog, family)) {
            for (int i = 0; i < item->childCount(); ++i)
                list << item->child(i)->text(0);
        }
        return list;
    }
    QString fixtureZip(const QString &name = kPackage)
    {
        return makeFixturePackageZip(work.path() + "/zips-" + name, name);
    }
};

TEST_F(PackageManagerDialog, RowsAreFamiliesWithTheirInstalledVersions)
{
    useRepository();
    QDir().mkpath(repo() + "/PF_MQ48T110/" + kPackage);
    QDir().mkpath(repo() + "/PF_MQ48T110/MQ48T110_Firmware_Library_beta");
    QDir().mkpath(repo() + "/PF_MQ48T510_520/MQ48T510_520_Firmware_Library_V1.0.0");
    QDir().mkpath(repo() + "/Other_MQ48T120/MQ48T120_Firmware_Library_V1.0.0");

    TestPackageManager dialog;
    EXPECT_EQ(dialog.windowTitle(), "Package Manager");
    EXPECT_FALSE(dialog.windowFlags() & Qt::WindowContextHelpButtonHint);
    EXPECT_EQ(dialog.findChild<QLineEdit *>("repoPathEdit")->text(), repo());
    EXPECT_EQ(tree(dialog)->headerItem()->text(0), "Firmware Package");
    EXPECT_EQ(tree(dialog)->headerItem()->text(1), "Creation Date");

    QStringList rows;
    for (int i = 0; i < tree(dialog)->topLevelItemCount(); ++i)
        rows << tree(dialog)->topLevelItem(i)->text(0);
    EXPECT_EQ(rows, PackageFamilyRows());
    EXPECT_TRUE(rows.contains("MQ48T510_520"));
    EXPECT_FALSE(rows.contains("MQ48T520"));

    EXPECT_EQ(versions(dialog, "MQ48T110"), QStringList({"V2.0.0", "Unknown version"}));
    EXPECT_EQ(versions(dialog, "MQ48T510_520"), QStringList{"V1.0.0"});
    EXPECT_TRUE(versions(dialog, "MQ48T120").isEmpty());
    const QString date = row(dialog, "MQ48T110")->child(0)->text(1);
    EXPECT_TRUE(QDateTime::fromString(date, "yyyy-MM-dd hh:mm:ss").isValid())
        << date.toStdString();
    EXPECT_TRUE(sameImage(row(dialog, "MQ48T110")->icon(0), ":/image/greenStone.png"));
    EXPECT_TRUE(sameImage(row(dialog, "MQ48T120")->icon(0), ":/image/background-light.png"));

    // Nothing checked, no row chosen: both buttons wait, grey.
    for (const char *name : {"removeButton", "installNetworkButton"}) {
        EXPECT_FALSE(button(dialog, name)->isEnabled()) << name;
        EXPECT_TRUE(button(dialog, name)->styleSheet().contains("gray")) << name;
    }
}

TEST_F(PackageManagerDialog, WithoutARepositoryEveryActionAsksForOne)
{
    TestPackageManager dialog;
    EXPECT_TRUE(dialog.repositoryPath().isEmpty());
    dialog.ImportPackageFromLocal_btnSlot();
    dialog.ImportPackageFromNetwork_btnSlot();
    dialog.RemoveInstalledBSPVersion_btnSlot();
    const QString text = "You must set the installation directory of the firmware package.";
    EXPECT_EQ(recorder.texts(), QStringList({text, text, text}));
    EXPECT_TRUE(dialog.proposed.isEmpty()); // no chooser was opened
    EXPECT_FALSE(QFile::exists(packageConfigPath()));
}

TEST_F(PackageManagerDialog, BrowsingStoresTheFolderAndTellsTheProjectManager)
{
    const QByteArray savedHome = qgetenv("HOME");
    qputenv("HOME", work.path().toUtf8());
    TestPackageManager dialog;
    QSignalSpy changed(&dialog, &PackageManager::emitRepoPathChanged);
    QDir().mkpath(repo() + "/PF_MQ48T110/" + kPackage);
    dialog.directoryAnswer = repo();
    QTest::mouseClick(button(dialog, "browseButton"), Qt::LeftButton);

    // The proposal for a fresh installation is created under the home folder.
    const QString proposal = work.path() + "/PinForge/Repository/Package";
    EXPECT_EQ(dialog.proposed, QStringList{proposal});
    EXPECT_TRUE(QFileInfo(proposal).isDir());
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed.first().first().toString(), repo());
    EXPECT_EQ(configuredRepositoryPath(), repo());
    EXPECT_EQ(dialog.findChild<QLineEdit *>("repoPathEdit")->text(), repo());
    EXPECT_EQ(versions(dialog, "MQ48T110"), QStringList{"V2.0.0"});

    // The same folder again, or no choice, changes nothing.
    dialog.OpenBSPSavePath_btnSLot();
    dialog.directoryAnswer.clear();
    dialog.OpenBSPSavePath_btnSLot();
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(dialog.proposed.last(), repo());

    // A home where the proposal can't be made.
    QFile::remove(packageConfigPath());
    TestPackageManager unset;
    testsupport::writeFile(work.path() + "/file-home", "x");
    qputenv("HOME", (work.path() + "/file-home").toUtf8());
    unset.OpenBSPSavePath_btnSLot();
    qputenv("HOME", savedHome);
    EXPECT_EQ(recorder.texts().last(), "Creating default package path \"" + work.path() +
                                           "/file-home/PinForge/Repository/Package\" error!");
    EXPECT_TRUE(unset.proposed.isEmpty());
}

TEST_F(PackageManagerDialog, InstallFromLocalPutsThePackageIntoTheTree)
{
    useRepository();
    TestPackageManager dialog;
    dialog.zipAnswer = work.path() + "/Holiday_Firmware_Library_V1.zip";
    testsupport::writeFile(dialog.zipAnswer, "zip");
    QTest::mouseClick(button(dialog, "installLocalButton"), Qt::LeftButton);
    EXPECT_EQ(dialog.proposed, QStringList{app.path() + "/Package"});
    EXPECT_EQ(recorder.texts(), QStringList{"The selected firmware package file is invalid."});

    recorder.messages.clear();
    dialog.zipAnswer = fixtureZip();
    QTest::mouseClick(button(dialog, "installLocalButton"), Qt::LeftButton);
    EXPECT_TRUE(recorder.messages.isEmpty()) << recorder.texts().join('|').toStdString();
    EXPECT_EQ(versions(dialog, "MQ48T110"), QStringList{"V2.0.0"});
    EXPECT_TRUE(row(dialog, "MQ48T110")->isExpanded());
    EXPECT_TRUE(sameImage(row(dialog, "MQ48T110")->icon(0), ":/image/greenStone.png"));
    EXPECT_TRUE(QFileInfo(repo() + "/PF_MQ48T110/" + kPackage + "/libraries/drivers/src").isDir());
}

TEST_F(PackageManagerDialog, SameVersionAgainIsReplacedOnlyWhenTheUserAgrees)
{
    useRepository();
    TestPackageManager dialog;
    const QString zip = fixtureZip();
    ASSERT_TRUE(dialog.InstallPackage(zip));
    const QString marker = repo() + "/PF_MQ48T110/" + kPackage + "/libraries/mine.txt";
    testsupport::writeFile(marker, "mine");

    answers = QStringList{"Cancel"};
    EXPECT_FALSE(dialog.InstallPackage(zip));
    ASSERT_EQ(recorder.messages.size(), 1);
    EXPECT_EQ(recorder.messages.first().title, "Warning");
    EXPECT_EQ(recorder.messages.first().text,
              "The Firmware Library \"" + kPackage +
                  "\" for MQ48T110 already exists. Please confirm whether to continue?");
    EXPECT_EQ(recorder.messages.first().buttons, QStringList({"Yes", "Cancel"}));
    EXPECT_TRUE(QFile::exists(marker));

    answers = QStringList{"Yes"};
    EXPECT_TRUE(dialog.InstallPackage(zip));
    EXPECT_FALSE(QFile::exists(marker));
    EXPECT_EQ(versions(dialog, "MQ48T110"), QStringList{"V2.0.0"});
}

TEST_F(PackageManagerDialog, RefusedArchiveNamesItsReasonAndChangesNothing)
{
    useRepository();
    TestPackageManager dialog;
    ASSERT_TRUE(dialog.InstallPackage(fixtureZip("MQ48T110_Firmware_Library_V1.0.0")));
    const Tree before = snapshotTree(work.path() + "/repo");
    const QString hostile = work.path() + "/" + kPackage + ".zip";
    {
        ZipWriter zip(hostile);
        zip.addFile("libraries/a.h", "a");
        zip.addSymlink("libraries/up", "/etc");
        ASSERT_TRUE(zip.close());
    }
    EXPECT_FALSE(dialog.InstallPackage(hostile));
    ASSERT_EQ(recorder.messages.size(), 1);
    EXPECT_EQ(recorder.messages.first().title, "Warning");
    EXPECT_EQ(recorder.messages.first().text,
              "Failed to extract firmware library \"" + kPackage +
                  "\"!\nThe entry \"libraries/up\" is a symbolic link.");
    EXPECT_EQ(snapshotTree(work.path() + "/repo"), before);
    EXPECT_EQ(versions(dialog, "MQ48T110"), QStringList{"V1.0.0"});
}

TEST_F(PackageManagerDialog, RemoveDeletesOnlyTheCheckedPackages)
{
    useRepository();
    TestPackageManager dialog;
    ASSERT_TRUE(dialog.InstallPackage(fixtureZip()));
    ASSERT_TRUE(dialog.InstallPackage(fixtureZip("MQ48T110_Firmware_Library_V2.1.0")));
    ASSERT_TRUE(dialog.InstallPackage(fixtureZip("MQ48T120_Firmware_Library_V1.0.0")));
    ASSERT_EQ(versions(dialog, "MQ48T110"), QStringList({"V2.0.0", "V2.1.0"}));

    QPushButton *remove = button(dialog, "removeButton");
    row(dialog, "MQ48T110")->child(0)->setCheckState(0, Qt::Checked);
    EXPECT_TRUE(remove->isEnabled());
    EXPECT_FALSE(remove->styleSheet().contains("gray"));
    row(dialog, "MQ48T110")->child(0)->setCheckState(0, Qt::Unchecked);
    EXPECT_FALSE(remove->isEnabled());
    row(dialog, "MQ48T110")->child(0)->setCheckState(0, Qt::Checked);
    row(dialog, "MQ48T120")->child(0)->setCheckState(0, Qt::Checked);

    QTest::mouseClick(remove, Qt::LeftButton);
    EXPECT_EQ(recorder.texts(), QStringList{"Remove the Firmware Library Succeeded!"});
    EXPECT_EQ(entriesOf(repo()), QStringList{"PF_MQ48T110"}); // the emptied family went too
    EXPECT_EQ(entriesOf(repo() + "/PF_MQ48T110"), QStringList{"MQ48T110_Firmware_Library_V2.1.0"});
    EXPECT_EQ(versions(dialog, "MQ48T110"), QStringList{"V2.1.0"});
    EXPECT_TRUE(versions(dialog, "MQ48T120").isEmpty());
    EXPECT_FALSE(remove->isEnabled());
}

TEST_F(PackageManagerDialog, InstallFromNetworkFetchesTheIndexThenThePackage)
{
    TestHttpsServer server;
    ASSERT_TRUE(server.start());
    ASSERT_TRUE(CreateConfigFile(packageConfigPath()));
    ASSERT_TRUE(SetConfigValue(packageConfigPath(), downloadSiteKey(), server.baseUrl()));
    useRepository();
    // The published name has no version: the download gets it from the index.
    const QString zipUrl = server.baseUrl() + "files/MQ48T110_Firmware_Library.zip";
    server.route("/download/BSP/bsp_index.json",
                 "{\"children\": [{\"name\": \"Board_Support_Packages\", \"releases\": ["
                 "{\"name\": \"MQ48T110\", \"version\": \"2.0.0\", \"url\": \"" +
                     zipUrl.toUtf8() + "\"}]}]}");
    server.route("/files/MQ48T110_Firmware_Library.zip", testsupport::readFile(fixtureZip()));

    TestPackageManager dialog;
    dialog.show();
    QTreeWidgetItem *t110 = row(dialog, "MQ48T110");
    tree(dialog)->scrollToItem(t110);
    QTest::mouseClick(tree(dialog)->viewport(), Qt::LeftButton, {},
                      tree(dialog)->visualItemRect(t110).center());
    ASSERT_TRUE(button(dialog, "installNetworkButton")->isEnabled());
    QTest::mouseClick(button(dialog, "installNetworkButton"), Qt::LeftButton);

    EXPECT_EQ(server.requests, QStringList({"/download/BSP/bsp_index.json",
                                            "/files/MQ48T110_Firmware_Library.zip"}));
    EXPECT_EQ(versions(dialog, "MQ48T110"), QStringList{"V2.0.0"});
    EXPECT_FALSE(QFile::exists(app.path() + "/bsp_index.json"));
    QStringList shown;
    for (const UserMessage &message : recorder.messages) {
        if (message.title != "SSL Errors")
            shown << message.text;
    }
    EXPECT_TRUE(shown.isEmpty()) << shown.join('|').toStdString();

    // A family the index does not know: a warning, and no package is fetched.
    recorder.messages.clear();
    tree(dialog)->setCurrentItem(row(dialog, "MQ48T120"));
    dialog.ImportPackageFromNetwork_btnSlot();
    EXPECT_EQ(server.requests.size(), 3);
    EXPECT_EQ(recorder.messages.last().text, "The firmware package not found for this MCU");
    EXPECT_TRUE(versions(dialog, "MQ48T120").isEmpty());
}

} // namespace
