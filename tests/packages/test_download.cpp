#include "database/configstore.h"
#include "database/language.h"
#include "packages/httpsdownload.h"
#include "packages/packagesettings.h"
#include "packages/versioncheck.h"
#include "tests/common/testsupport.h"
#include "tests/packages/httpsserver.h"
#include "tests/packages/packagefixtures.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <climits>

namespace {

QByteArray payload(int size)
{
    QByteArray data(size, '\0');
    for (int i = 0; i < size; ++i)
        data[i] = char((i * 7 + i / 251) & 0xff);
    return data;
}

// A loopback site, a program folder whose settings point the downloads at it, a download
// folder, and a recorder that answers the certificate question with `sslAnswer`.
class Downloads : public ::testing::Test
{
protected:
    PackageAppFolder app;
    TestHttpsServer server;
    QTemporaryDir target;
    QString sslAnswer = "Ignore";
    QString overwriteAnswer = "Ok";
    MessageRecorder recorder{[this](const UserMessage &message) {
        if (message.title == "SSL Errors")
            return MessageRecorder::button(message, sslAnswer);
        if (message.title == "Overwrite Existing File")
            return MessageRecorder::button(message, overwriteAnswer);
        if (message.buttons.contains("OK")) // not " Open Folder  ": no desktop here
            return MessageRecorder::button(message, "OK");
        return 0;
    }};

    void SetUp() override
    {
        ASSERT_TRUE(server.start());
        const QString config = packageConfigPath();
        ASSERT_TRUE(CreateConfigFile(config));
        ASSERT_TRUE(SetConfigValue(config, downloadSiteKey(), server.baseUrl()));
    }

    QString url(const QString &path) const { return server.baseUrl() + path; }

    // The messages other than the certificate question.
    QList<UserMessage> shown() const
    {
        QList<UserMessage> list;
        for (const UserMessage &message : recorder.messages) {
            if (message.title != "SSL Errors")
                list << message;
        }
        return list;
    }
};

TEST_F(Downloads, FileArrivesWithProgressAfterTheCertificateQuestionIsIgnored)
{
    const QByteArray data = payload(300000);
    server.route("/files/package.bin", data);
    HttpsDownload download;
    QList<QPair<qint64, qint64>> progress;
    QObject::connect(download.downloader(), &FileDownloader::progressChanged,
                     [&](qint64 received, qint64 total) {
                         progress.append({received, total});
                         EXPECT_NE(download.progressDialog(), nullptr);
                     });

    ASSERT_TRUE(download.Download(url("files/package.bin"), target.path()));
    EXPECT_EQ(download.targetPath(), target.path() + "/package.bin");
    EXPECT_EQ(testsupport::readFile(download.targetPath()), data);
    EXPECT_EQ(entriesOf(target.path()), QStringList{"package.bin"});
    EXPECT_EQ(download.progressDialog(), nullptr);

    ASSERT_FALSE(progress.isEmpty());
    for (int i = 1; i < progress.size(); ++i)
        EXPECT_GE(progress.at(i).first, progress.at(i - 1).first);
    EXPECT_EQ(progress.last(), qMakePair(qint64(data.size()), qint64(data.size())));

    ASSERT_FALSE(recorder.messages.isEmpty());
    const UserMessage question = recorder.messages.first();
    EXPECT_EQ(question.title, "SSL Errors");
    EXPECT_TRUE(question.text.startsWith("One or more SSL errors has occurred: \n"));
    EXPECT_EQ(question.buttons, QStringList({"Ignore", "Abort"}));
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(Downloads, AbortingTheCertificateQuestionStopsBeforeAnyRequest)
{
    sslAnswer = "Abort";
    server.route("/files/package.bin", payload(1000));
    HttpsDownload download;
    EXPECT_FALSE(download.Download(url("files/package.bin"), target.path()));
    EXPECT_TRUE(server.requests.isEmpty());
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown().first().title, "Error");
    EXPECT_TRUE(shown().first().text.startsWith("Download failed: "));
    EXPECT_TRUE(entriesOf(target.path()).isEmpty());
}

TEST_F(Downloads, RedirectIsFollowedIntoTheSameTargetFile)
{
    const QByteArray data = payload(5000);
    server.route("/old/package.zip", {302, {}, "/new/renamed.zip"});
    server.route("/new/renamed.zip", data);
    HttpsDownload download;
    ASSERT_TRUE(download.Download(url("old/package.zip"), target.path()));
    EXPECT_EQ(server.requests, QStringList({"/old/package.zip", "/new/renamed.zip"}));
    EXPECT_EQ(entriesOf(target.path()), QStringList{"package.zip"});
    EXPECT_EQ(testsupport::readFile(target.path() + "/package.zip"), data);
}

TEST_F(Downloads, FailedTransfersTellWhyAndLeaveNoFile)
{
    struct Case
    {
        const char *what;
        TestHttpsServer::Route route;
        const char *error;
    };
    const QList<Case> cases = {
        {"not found", {404, "Not Found"}, "Not Found"},
        {"connection cut halfway", {200, payload(400000), {}, TestHttpsServer::CutHalfway}, ""},
        {"endless redirection", {302, {}, "/files/thing.bin"}, "Too many redirections"},
        {"redirection to plain http", {302, {}, "http://127.0.0.1:1/x.bin"}, "insecure"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        recorder.messages.clear();
        server.route("/files/thing.bin", c.route);
        HttpsDownload download;
        EXPECT_FALSE(download.Download(url("files/thing.bin"), target.path()));
        EXPECT_FALSE(download.wasCanceled());
        ASSERT_EQ(shown().size(), 1);
        EXPECT_EQ(shown().first().title, "Error");
        EXPECT_TRUE(shown().first().text.startsWith("Download failed: "));
        EXPECT_TRUE(shown().first().text.contains(c.error)) << shown().first().text.toStdString();
        EXPECT_TRUE(entriesOf(target.path()).isEmpty());
    }
}

TEST_F(Downloads, CancellingTheProgressWindowRemovesThePartialFile)
{
    server.route("/files/big.bin", {200, payload(2000000), {}, TestHttpsServer::Slow});
    HttpsDownload download;
    qint64 seen = 0;
    QObject::connect(download.downloader(), &FileDownloader::progressChanged,
                     [&](qint64 received, qint64) {
                         seen = received;
                         // The user presses the window's "Cancel" button.
                         if (received > 0 && download.progressDialog())
                             download.progressDialog()->findChild<QPushButton *>()->click();
                     });
    EXPECT_FALSE(download.Download(url("files/big.bin"), target.path()));
    EXPECT_TRUE(download.wasCanceled());
    EXPECT_GT(seen, 0);
    EXPECT_LT(seen, 2000000);
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_TRUE(entriesOf(target.path()).isEmpty());
}

TEST_F(Downloads, AnExistingFileIsAskedAboutAndKeptUntilTheNewOneIsComplete)
{
    const QString existing = target.path() + "/thing.bin";
    testsupport::writeFile(existing, "older");
    server.route("/files/thing.bin", payload(1000));

    overwriteAnswer = "Cancel";
    HttpsDownload download;
    EXPECT_FALSE(download.Download(url("files/thing.bin"), target.path()));
    EXPECT_TRUE(server.requests.isEmpty());
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown().first().text,
              "thing.bin already exists in the current directory. Overwrite?");
    EXPECT_EQ(shown().first().buttons, QStringList({"Ok", "Cancel"}));

    overwriteAnswer = "Ok";
    server.route("/files/thing.bin", {404, "Not Found"});
    EXPECT_FALSE(download.Download(url("files/thing.bin"), target.path()));
    EXPECT_EQ(testsupport::readFile(existing), "older");

    server.route("/files/thing.bin", payload(1000));
    EXPECT_TRUE(download.Download(url("files/thing.bin"), target.path()));
    EXPECT_EQ(testsupport::readFile(existing), payload(1000));
    EXPECT_EQ(entriesOf(target.path()), QStringList{"thing.bin"});
}

TEST_F(Downloads, UnusableUrlsAndFoldersAreReportedBeforeAnyTransfer)
{
    HttpsDownload download;
    EXPECT_FALSE(download.Download(QString(), target.path()));
    EXPECT_FALSE(download.Download(url("files/"), target.path()));
    EXPECT_FALSE(download.Download(url("files/x.bin"), target.path() + "/missing/folder"));
    EXPECT_EQ(recorder.texts(),
              QStringList({"Invalid URL : ", "Invalid URL : " + url("files/"),
                           "Unable to save the file " + target.path() + "/missing/folder/x.bin"}));
    EXPECT_TRUE(server.requests.isEmpty());
}

TEST(DownloadProgress, LargeFilesAreShownInCoarserSteps)
{
    ProgressDialog dialog("big.bin");
    EXPECT_EQ(dialog.windowTitle(), "Download Progress");
    EXPECT_EQ(dialog.labelText(), "Downloading big.bin.");
    EXPECT_EQ(dialog.maximum(), 0);
    dialog.networkReplyProgress(300, 1000);
    EXPECT_EQ(dialog.maximum(), 1000);
    EXPECT_EQ(dialog.value(), 300);
    dialog.networkReplyProgress(qint64(3) << 30, qint64(6) << 30);
    EXPECT_LE(dialog.maximum(), INT_MAX);
    EXPECT_EQ(qint64(dialog.value()) * 2, qint64(dialog.maximum()));
    dialog.networkReplyProgress(10, -1);
    EXPECT_EQ(dialog.maximum(), 0); // unknown size: a busy bar
}

TEST(DownloadSite, TheSettingOverridesTheMakersSiteOfTheLanguage)
{
    PackageAppFolder app;
    g_language = 0;
    EXPECT_EQ(downloadSite(), defaultDownloadSite(0));
    g_language = 1;
    EXPECT_EQ(downloadSite(), defaultDownloadSite(1));
    EXPECT_NE(defaultDownloadSite(0), defaultDownloadSite(1));
    ASSERT_TRUE(CreateConfigFile(packageConfigPath()));
    ASSERT_TRUE(SetConfigValue(packageConfigPath(), downloadSiteKey(), "https://mirror/pf"));
    EXPECT_EQ(versionListUrl(), "https://mirror/pf/VelmoraDownloadResource.xml");
    EXPECT_EQ(packageIndexUrl(), "https://mirror/pf/download/BSP/bsp_index.json");
}

// The version check against the loopback site.
class VersionCheck : public Downloads
{
protected:
    QTemporaryDir chosen;
    int chooserCalls = 0;
    DirectoryChooser chooser = [this](QWidget *) {
        ++chooserCalls;
        return chosen.path();
    };

    void publish(const QString &version, const QString &urlEn = "dl/PinForge_Setup.exe")
    {
        QByteArray tool = "<Tool><Name>MQ48 Pin Forge</Name><Version>" + version.toUtf8() +
                          "</Version><URL>" + url("dl/cn/PinForge_Setup_V1.0.10.exe").toUtf8() +
                          "</URL>";
        if (!urlEn.isEmpty())
            tool += "<URLEN>" + url(urlEn).toUtf8() + "</URLEN>";
        server.route("/VelmoraDownloadResource.xml",
                     "<?xml version=\"1.0\"?><Resources><VelmoraTool>" + tool +
                         "</Tool></VelmoraTool></Resources>");
        server.route("/dl/PinForge_Setup.exe", "english setup");
        server.route("/dl/cn/PinForge_Setup_V1.0.10.exe", "chinese setup");
    }
    bool listRemains() const { return QFile::exists(app.path() + "/VelmoraDownloadResource.xml"); }
};

TEST_F(VersionCheck, NewerVersionIsDownloadedWithTheVersionInItsName)
{
    g_language = 0;
    publish("V1.0.10"); // 0x10010 in the base-16 reading, newer than V1.0.08
    runNewVersionDownload(nullptr, "V1.0.08", chooser);
    EXPECT_EQ(chooserCalls, 1);
    EXPECT_EQ(entriesOf(chosen.path()), QStringList{"PinForge_Setup_V1.0.10.exe"});
    EXPECT_EQ(testsupport::readFile(chosen.path() + "/PinForge_Setup_V1.0.10.exe"),
              "english setup");
    ASSERT_EQ(shown().size(), 2);
    EXPECT_EQ(shown().at(0).text, "A new version of \"MQ48 Pin Forge\" has been detected, do you "
                                  "want to download it?");
    EXPECT_EQ(shown().at(1).text, "Download succeeded, storage location: \n" + chosen.path());
    EXPECT_EQ(shown().at(1).buttons, QStringList({" Open Folder  ", "OK"}));
    EXPECT_FALSE(listRemains());
}

TEST_F(VersionCheck, ChineseRunTakesTheUrlThatCarriesItsVersion)
{
    g_language = 1;
    publish("V1.0.10");
    runNewVersionDownload(nullptr, "V1.0.08", chooser);
    EXPECT_EQ(entriesOf(chosen.path()), QStringList{"PinForge_Setup_V1.0.10.exe"});
    EXPECT_EQ(testsupport::readFile(chosen.path() + "/PinForge_Setup_V1.0.10.exe"),
              "chinese setup");
}

TEST_F(VersionCheck, SameOrOlderVersionIsTheLatest)
{
    for (const char *published : {"V1.0.08", "V1.0.07", "garbage"}) {
        SCOPED_TRACE(published);
        recorder.messages.clear();
        publish(published);
        runNewVersionDownload(nullptr, "V1.0.08", chooser);
        ASSERT_EQ(shown().size(), 1);
        EXPECT_EQ(shown().first().text, "The current tool is the latest version.");
        EXPECT_EQ(chooserCalls, 0);
        EXPECT_FALSE(listRemains());
    }
}

TEST_F(VersionCheck, DecliningOrAMissingAddressDownloadsNothing)
{
    g_language = 0;
    publish("V1.0.10");
    recorder.messages.clear();
    MessageRecorder decline([](const UserMessage &message) {
        return message.title == "SSL Errors" ? 0 : 1; // "Ignore", then "Cancel"
    });
    runNewVersionDownload(nullptr, "V1.0.08", chooser);
    EXPECT_EQ(chooserCalls, 0);
    EXPECT_FALSE(listRemains());

    publish("V1.0.10", QString()); // no URLEN
    MessageRecorder accept([](const UserMessage &) { return 0; });
    runNewVersionDownload(nullptr, "V1.0.08", chooser);
    EXPECT_TRUE(accept.texts().contains("Invalid URL : "));
    EXPECT_TRUE(entriesOf(chosen.path()).isEmpty());
}

TEST_F(VersionCheck, UnreachableListEndsWithTheDownloadError)
{
    runNewVersionDownload(nullptr, "V1.0.08", chooser);
    ASSERT_EQ(shown().size(), 1);
    EXPECT_TRUE(shown().first().text.startsWith("Download failed: "));
    EXPECT_EQ(chooserCalls, 0);
    EXPECT_FALSE(listRemains());
}

} // namespace
