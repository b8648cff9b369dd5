#include "projecttestsupport.h"

#include "common/testsupport.h"
#include "database/safexml.h"
#include "project/devicefacts.h"
#include "project/projectwriter.h"
#include "project/stagedfiles.h"

#include <QDir>
#include <QDomDocument>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace projecttest;

namespace {

const QStringList kAllIdes{QStringLiteral("MDK_V5"),   QStringLiteral("MDK_V4"),
                           QStringLiteral("IAR_V9.3"), QStringLiteral("IAR_V8.2"),
                           QStringLiteral("IAR_V7.4"), QStringLiteral("Eclipse_gcc"),
                           QStringLiteral("MQ48_IDE")};

// What the code generator leaves in project/src, written after the project.
void writeGeneratedSources(const ProjectJob &job)
{
    for (const QString &file : devicefacts::generatedSources(job.series))
        ASSERT_TRUE(testsupport::writeFile(
            job.projectFolder + QStringLiteral("/project/src/") + file, "/* generated */\n"));
}

// The file in which the stack and heap sizes of the IDE are set.
QString sizeFile(const ProjectJob &job, const QString &linkerStem)
{
    const QString folder = ideFolder(job);
    if (job.ideName.startsWith(QLatin1String("MDK")))
        return folder + QStringLiteral("/startup_mq48t110.s");
    if (job.ideName.startsWith(QLatin1String("IAR")))
        return folder + QLatin1Char('/') + linkerStem + QStringLiteral(".icf");
    if (job.ideName == QLatin1String("Eclipse_gcc"))
        return folder + QStringLiteral("/ldscripts/") + linkerStem + QStringLiteral("_FLASH.ld");
    return folder + QLatin1Char('/') + linkerStem + QStringLiteral("_FLASH.ld");
}

// The include folders the project gives the compiler, resolved against the IDE folder.
QStringList includeFolders(const ProjectJob &job)
{
    const QString text = projectText(job);
    QStringList raw;
    if (job.ideName.startsWith(QLatin1String("MDK"))) {
        const QRegularExpression re(QStringLiteral("<Cads>.*?<IncludePath>([^<]*)</IncludePath>"),
                                    QRegularExpression::DotMatchesEverythingOption);
        raw = re.match(text).captured(1).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    } else if (job.ideName.startsWith(QLatin1String("IAR"))) {
        const QRegularExpression re(QStringLiteral("<name>CCIncludePath2</name>(.*?)</option>"),
                                    QRegularExpression::DotMatchesEverythingOption);
        const QString states = re.match(text).captured(1);
        QRegularExpressionMatchIterator it =
            QRegularExpression(QStringLiteral("<state>\\$PROJ_DIR\\$\\\\([^<]*)</state>"))
                .globalMatch(states);
        while (it.hasNext())
            raw << it.next().captured(1);
    } else {
        QRegularExpressionMatchIterator it =
            QRegularExpression(QStringLiteral("&quot;\\$\\{ProjDirPath\\}/([^&]*)&quot;"))
                .globalMatch(text);
        while (it.hasNext()) {
            const QString path = it.next().captured(1);
            if (!path.endsWith(QLatin1String(".ld")))
                raw << path;
        }
    }
    QStringList folders;
    for (QString path : raw)
        folders << QDir::cleanPath(ideFolder(job) + QLatin1Char('/') +
                                   path.replace(QLatin1Char('\\'), QLatin1Char('/')));
    return folders;
}

// One toolchain's project written into a fresh temporary folder.
class ProjectWriterIdeTest : public ::testing::TestWithParam<QString>
{
protected:
    QTemporaryDir dir;
};

// The larger chip differs from the template's one in every size, so every rewrite shows.
TEST_P(ProjectWriterIdeTest, WritesTheChipItsSizesItsIncludesAndExactlyTheSourcesThatExist)
{
    ProjectJob job =
        t110Job(GetParam(), dir.path() + QStringLiteral("/Board"), QStringLiteral("MQ48T110CBT"));
    job.stackSize = 0x1A00;
    job.heapSize = 0x300;
    QString error;
    ASSERT_EQ(ProjectWriter::write(job, &error), ProjectWriter::Written) << qPrintable(error);
    writeGeneratedSources(job);

    const QString folder = ideFolder(job);
    for (const QString &name : projectFiles(job)) {
        const QString path = folder + QLatin1Char('/') + name;
        ASSERT_TRUE(QFileInfo(path).isFile()) << qPrintable(path);
        if (!name.endsWith(QLatin1String(".ini"))) {
            QDomDocument doc;
            EXPECT_TRUE(loadXmlDocument(path, &doc)) << qPrintable(path);
        }
    }
    const QString text = projectText(job);
    EXPECT_TRUE(text.contains(QLatin1String("MQ48T110CBT")));
    EXPECT_FALSE(text.contains(QLatin1String("MQ48T110C8T"))) << "template chip left over";
    EXPECT_FALSE(text.contains(QLatin1String("template"), Qt::CaseInsensitive));

    const QString kind = GetParam().left(3);
    if (kind == QLatin1String("MDK")) {
        EXPECT_TRUE(text.contains(QLatin1String("IRAM(0x20000000,0x4000)")));
        EXPECT_TRUE(text.contains(QLatin1String("IROM(0x08000000,0x20000)")));
        EXPECT_EQ(text.count(QStringLiteral("<Size>0x4000</Size>")), 2);
        EXPECT_EQ(text.count(QStringLiteral("<Size>0x20000</Size>")), 2);
        EXPECT_TRUE(text.contains(QLatin1String("-FF0MQ48T110_128 ")));
        EXPECT_TRUE(text.contains(QLatin1String("-FL00020000")));
        EXPECT_TRUE(text.contains(QLatin1String("<Define>MQ48T110CBT,USE_STDPERIPH_DRIVER<")));
    } else if (kind == QLatin1String("IAR")) {
        EXPECT_TRUE(text.contains(QLatin1String("<state>$PROJ_DIR$\\MQ48T110xB.icf</state>")));
        EXPECT_TRUE(text.contains(QLatin1String("\\Velmorix\\MQ48T110CBT.ddf")));
        EXPECT_TRUE(text.contains(QLatin1String("\\MQ48T110\\FlashMQ48T110_128.board")));
        EXPECT_TRUE(text.contains(QLatin1String("MQ48T110CBT_v2\tVelmorix -MQ48T110CBT")));
        EXPECT_TRUE(text.contains(QRegularExpression(
            QStringLiteral("<name>CCDefines</name>\\s*<state>MQ48T110CBT</state>\\s*"
                           "<state>USE_STDPERIPH_DRIVER</state>\\s*</option>"))));
    } else {
        EXPECT_TRUE(text.contains(QLatin1String("MQ48T110xB_FLASH.ld&quot;")));
        EXPECT_TRUE(text.contains(QLatin1String("value=\"MQ48T110CBT\"")));
        if (GetParam() == QLatin1String("MQ48_IDE")) {
            EXPECT_TRUE(text.contains(QLatin1String("chipTarget=MQ48T110CBT\n")));
            EXPECT_TRUE(text.contains(QLatin1String("chipSizeType=B\n")));
        }
    }

    // Stack and heap in the startup or linker file of the chip's flash size.
    const QString sizes =
        QString::fromUtf8(testsupport::readFile(sizeFile(job, QStringLiteral("MQ48T110xB"))));
    if (kind == QLatin1String("MDK")) {
        EXPECT_TRUE(sizes.contains(QLatin1String("Stack_Size      EQU     0x00001A00\n")));
        EXPECT_TRUE(sizes.contains(QLatin1String("Heap_Size       EQU     0x00000300\n")));
    } else if (kind == QLatin1String("IAR")) {
        EXPECT_TRUE(
            sizes.contains(QLatin1String("define symbol __ICFEDIT_size_cstack__\t= 0x1A00;")));
        EXPECT_TRUE(
            sizes.contains(QLatin1String("define symbol __ICFEDIT_size_heap__\t\t= 0x300;")));
        EXPECT_TRUE(sizes.contains(QLatin1String("of the 128 KiB part")));
    } else {
        EXPECT_TRUE(sizes.contains(QLatin1String("_Min_Stack_Size = 0x1A00;")));
        EXPECT_TRUE(sizes.contains(QLatin1String("_Min_Heap_Size = 0x300;")));
        EXPECT_TRUE(sizes.contains(QLatin1String("LENGTH = 128K")));
    }

    // Includes: the generated headers and the three library folders.
    const QString root = QDir::cleanPath(job.projectFolder);
    EXPECT_EQ(includeFolders(job),
              (QStringList{root + QStringLiteral("/project/inc"),
                           root + QStringLiteral("/libraries/cmsis/cm4/core_support"),
                           root + QStringLiteral("/libraries/cmsis/cm4/device_support"),
                           root + QStringLiteral("/libraries/drivers/inc")}));
    for (const QString &include : includeFolders(job).mid(1))
        EXPECT_TRUE(QFileInfo(include).isDir()) << qPrintable(include);

    // Sources: the generated ones, the drivers of the package that were asked for (not the
    // missing ADC driver), the system file and the startup file; each exists.
    bool parsed = false;
    const QStringList listed = listedSources(job, &parsed);
    ASSERT_TRUE(parsed);
    QStringList expected;
    for (const QString &file : devicefacts::generatedSources(job.series))
        expected << root + QStringLiteral("/project/src/") + file;
    for (const char *driver : {"crm", "tmr", "gpio", "usart", "pwc", "flash", "misc"})
        expected << root + QStringLiteral("/libraries/drivers/src/mq48t110_") +
                        QLatin1String(driver) + QStringLiteral(".c");
    expected << root + QStringLiteral("/libraries/cmsis/cm4/device_support/system_mq48t110.c")
             << QDir::cleanPath(folder + QStringLiteral("/startup_mq48t110.s"));
    EXPECT_EQ(QSet<QString>(listed.begin(), listed.end()),
              QSet<QString>(expected.begin(), expected.end()));
    EXPECT_EQ(listed.size(), expected.size()) << "a source is listed twice";
    for (const QString &path : listed)
        EXPECT_TRUE(QFileInfo(path).isFile()) << qPrintable(path);

    EXPECT_FALSE(
        QFileInfo::exists(job.projectFolder + QLatin1Char('/') + StagedFiles::stageFolderName()));
    EXPECT_TRUE(QDir(folder).entryList({QStringLiteral("template*")}, QDir::Files).isEmpty());
}

// The written project of the template's own chip, compared with the reviewed copy under
// tests/fixtures/project/golden/<IDE>; MQ48_UPDATE_GOLDEN=1 writes the copies instead.
TEST_P(ProjectWriterIdeTest, MatchesTheReviewedGoldenProject)
{
    const ProjectJob job = t110Job(GetParam(), dir.path() + QStringLiteral("/Board"));
    QString error;
    ASSERT_EQ(ProjectWriter::write(job, &error), ProjectWriter::Written) << qPrintable(error);
    writeGeneratedSources(job);

    QStringList tree = snapshot(job.projectFolder).keys();
    const QByteArray treeText = tree.join(QLatin1Char('\n')).toUtf8() + '\n';
    const QString golden = testsupport::fixture(QStringLiteral("project/golden/")) + GetParam();
    const bool update = qEnvironmentVariableIntValue("MQ48_UPDATE_GOLDEN") == 1;
    if (update) {
        ASSERT_TRUE(testsupport::writeFile(golden + QStringLiteral("/tree.txt"), treeText));
    }
    EXPECT_EQ(QString::fromUtf8(treeText),
              QString::fromUtf8(testsupport::readFile(golden + QStringLiteral("/tree.txt"))));
    for (const QString &name : projectFiles(job)) {
        const QByteArray written = testsupport::readFile(ideFolder(job) + QLatin1Char('/') + name);
        if (update) {
            ASSERT_TRUE(testsupport::writeFile(golden + QLatin1Char('/') + name, written));
        }
        EXPECT_EQ(QString::fromUtf8(written),
                  QString::fromUtf8(testsupport::readFile(golden + QLatin1Char('/') + name)))
            << qPrintable(name);
    }
}

// A second generation keeps the user's files and, with keep user code, an edited startup
// or linker file (with the new sizes); without it the package's file comes back.
TEST_P(ProjectWriterIdeTest, RegeneratingKeepsTheUsersFiles)
{
    ProjectJob job = t110Job(GetParam(), dir.path() + QStringLiteral("/Board"));
    ASSERT_EQ(ProjectWriter::write(job), ProjectWriter::Written);
    writeGeneratedSources(job);
    const QString notes = ideFolder(job) + QStringLiteral("/notes.txt");
    const QString userSource = job.projectFolder + QStringLiteral("/project/src/main.c");
    ASSERT_TRUE(testsupport::writeFile(notes, "my notes\n"));
    ASSERT_TRUE(testsupport::writeFile(userSource, "int main(void) { return 1; }\n"));
    const QString sizes = sizeFile(job, QStringLiteral("MQ48T110x8"));
    ASSERT_TRUE(testsupport::writeFile(sizes, testsupport::readFile(sizes) + "/* mine */\n"));

    job.stackSize = 0x800;
    ASSERT_EQ(ProjectWriter::write(job), ProjectWriter::Written);
    EXPECT_EQ(testsupport::readFile(notes), QByteArray("my notes\n"));
    EXPECT_EQ(testsupport::readFile(userSource), QByteArray("int main(void) { return 1; }\n"));
    QString text = QString::fromUtf8(testsupport::readFile(sizes));
    EXPECT_TRUE(text.contains(QLatin1String("/* mine */")));
    EXPECT_TRUE(text.contains(QLatin1String("0x800;")) ||
                text.contains(QLatin1String("0x00000800")));
    for (const QString &name : projectFiles(job))
        EXPECT_TRUE(QFileInfo(ideFolder(job) + QLatin1Char('/') + name).isFile());

    job.keepUserCode = false;
    ASSERT_EQ(ProjectWriter::write(job), ProjectWriter::Written);
    text = QString::fromUtf8(testsupport::readFile(sizes));
    EXPECT_FALSE(text.contains(QLatin1String("/* mine */")));
    EXPECT_EQ(testsupport::readFile(notes), QByteArray("my notes\n"));
}

INSTANTIATE_TEST_SUITE_P(AllToolchains, ProjectWriterIdeTest, ::testing::ValuesIn(kAllIdes),
                         [](const ::testing::TestParamInfo<QString> &info) {
                             QString name = info.param;
                             return name.remove(QLatin1Char('.')).toStdString();
                         });

// --- failures leave nothing half-written ----------------------------------------------------

QString copyOf(const QString &from, const QString &to)
{
    QString error;
    EXPECT_TRUE(checkedio::copyTree(from, to, {}, &error)) << qPrintable(error);
    return to;
}

TEST(ProjectWriterFailure, AStartupFileWithoutStackLinesLeavesNoProject)
{
    QTemporaryDir dir;
    const QString package =
        copyOf(fixturePackage(), dir.path() + QStringLiteral("/MQ48T110_Firmware_Library_V2.0.0"));
    ASSERT_TRUE(testsupport::writeFile(
        package + QStringLiteral("/libraries/cmsis/cm4/device_support/startup/mdk/"
                                 "startup_mq48t110.s"),
        "; no sizes here\n"));
    ProjectJob job = t110Job(QStringLiteral("MDK_V5"), dir.path() + QStringLiteral("/Fresh"));
    job.firmwarePath = package;
    QString error;
    EXPECT_EQ(ProjectWriter::write(job, &error), ProjectWriter::LinkerFailed);
    EXPECT_TRUE(error.contains(QLatin1String("startup_mq48t110.s")));
    EXPECT_FALSE(QFileInfo::exists(job.projectFolder)) << "created folders are removed";
    EXPECT_FALSE(QFileInfo::exists(dir.path() + QStringLiteral("/Fresh")));
}

TEST(ProjectWriterFailure, ABrokenTemplateLeavesTheExistingProjectAsItWas)
{
    QTemporaryDir dir;
    ProjectJob job = t110Job(QStringLiteral("IAR_V8.2"), dir.path() + QStringLiteral("/Board"));
    ASSERT_EQ(ProjectWriter::write(job), ProjectWriter::Written);
    const auto before = snapshot(job.projectFolder);

    job.templateRoot = copyOf(templateRoot(), dir.path() + QStringLiteral("/templates"));
    const QString ewp = job.templateRoot + QStringLiteral("/iar_v8.2/template.ewp");
    QString text = QString::fromUtf8(testsupport::readFile(ewp));
    text.replace(QLatin1String("<name>user</name>"), QLatin1String("<name>mine</name>"));
    ASSERT_TRUE(testsupport::writeFile(ewp, text.toUtf8()));
    job.stackSize = 0x600;
    job.driverStems.removeOne(QStringLiteral("mq48t110_gpio"));
    QString error;
    EXPECT_EQ(ProjectWriter::write(job, &error), ProjectWriter::ProjectFailed);
    EXPECT_TRUE(error.contains(QLatin1String("group[name=user]"))) << qPrintable(error);
    EXPECT_EQ(snapshot(job.projectFolder), before);
}

TEST(ProjectWriterFailure, AFailedMoveIntoPlacePutsBackTheLibraryAlreadyReplaced)
{
    QTemporaryDir dir;
    ProjectJob job = t110Job(QStringLiteral("MDK_V5"), dir.path() + QStringLiteral("/Board"));
    ASSERT_EQ(ProjectWriter::write(job), ProjectWriter::Written);
    ASSERT_TRUE(testsupport::writeFile(
        job.projectFolder + QStringLiteral("/libraries/drivers/src/old.c"), "old\n"));
    // A file where the project folder belongs: the library moves first, the IDE folder can't.
    ASSERT_TRUE(QDir(job.projectFolder + QStringLiteral("/project")).removeRecursively());
    ASSERT_TRUE(testsupport::writeFile(job.projectFolder + QStringLiteral("/project"), "x"));
    const auto before = snapshot(job.projectFolder);

    QString error;
    EXPECT_EQ(ProjectWriter::write(job, &error), ProjectWriter::FirmwareFailed);
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(snapshot(job.projectFolder), before);
    EXPECT_TRUE(
        QFileInfo::exists(job.projectFolder + QStringLiteral("/libraries/drivers/src/old.c")));
}

TEST(ProjectWriterFailure, AMissingPackageThatPassedTheCheckIsACopyFailure)
{
    QTemporaryDir dir;
    ProjectJob job = t110Job(QStringLiteral("Eclipse_gcc"), dir.path() + QStringLiteral("/Board"));
    job.firmwarePath = dir.path() + QStringLiteral("/gone");
    QString error;
    EXPECT_EQ(ProjectWriter::write(job, &error), ProjectWriter::FirmwareFailed);
    EXPECT_FALSE(QFileInfo::exists(job.projectFolder));
}

// --- the firmware package ---------------------------------------------------------------------

TEST(ProjectWriterPackage, CopiesLibraryAndMiddlewaresWithoutDocumentationFolders)
{
    QTemporaryDir dir;
    const ProjectJob job = t110Job(QStringLiteral("MDK_V5"), dir.path() + QStringLiteral("/B"));
    ASSERT_EQ(ProjectWriter::write(job), ProjectWriter::Written);
    const auto files = snapshot(job.projectFolder);
    EXPECT_TRUE(files.contains(QStringLiteral("libraries/drivers/inc/mq48t110_def.h")));
    EXPECT_TRUE(files.contains(QStringLiteral("libraries/cmsis/cm4/core_support/cm4_core.h")));
    EXPECT_TRUE(files.contains(QStringLiteral("middlewares/readme.txt")));
    for (const QString &path : files.keys()) {
        EXPECT_FALSE(path.contains(QLatin1String("/html/"))) << qPrintable(path);
        EXPECT_FALSE(path.contains(QLatin1String("/documents/"))) << qPrintable(path);
        EXPECT_FALSE(path.startsWith(QLatin1String("project/mq_board"))) << qPrintable(path);
    }
    // The library is the package's: anything else in it goes on the next generation.
    ASSERT_TRUE(
        testsupport::writeFile(job.projectFolder + QStringLiteral("/libraries/stale.c"), "x"));
    ASSERT_EQ(ProjectWriter::write(job), ProjectWriter::Written);
    EXPECT_FALSE(QFileInfo::exists(job.projectFolder + QStringLiteral("/libraries/stale.c")));
}

TEST(ProjectWriterPackage, WithoutAnyPackageTheProjectNamesOnlyTheGeneratedCode)
{
    QTemporaryDir dir;
    ProjectJob job = t110Job(QStringLiteral("MDK_V5"), dir.path() + QStringLiteral("/B"));
    job.firmwarePath = dir.path() + QStringLiteral("/not-installed");
    job.packageAvailable = false;
    QString error;
    ASSERT_EQ(ProjectWriter::write(job, &error), ProjectWriter::Written) << qPrintable(error);
    EXPECT_FALSE(QFileInfo::exists(job.projectFolder + QStringLiteral("/libraries")));
    EXPECT_FALSE(QFileInfo::exists(ideFolder(job) + QStringLiteral("/startup_mq48t110.s")));
    bool parsed = false;
    const QStringList listed = listedSources(job, &parsed);
    ASSERT_TRUE(parsed);
    QStringList expected;
    for (const QString &file : devicefacts::generatedSources(job.series))
        expected << QDir::cleanPath(job.projectFolder + QStringLiteral("/project/src/") + file);
    EXPECT_EQ(listed, expected);
}

TEST(ProjectWriterPackage, AnUncheckedPackageOnlyBringsItsCmsisAndDrivers)
{
    QTemporaryDir dir;
    ProjectJob job = t110Job(QStringLiteral("IAR_V9.3"), dir.path() + QStringLiteral("/B"));
    ASSERT_TRUE(testsupport::writeFile(job.projectFolder + QStringLiteral("/libraries/extra.txt"),
                                       "mine"));
    ASSERT_TRUE(testsupport::writeFile(job.projectFolder + QStringLiteral("/middlewares/mine.txt"),
                                       "mine"));
    job.packageAvailable = false;
    ASSERT_EQ(ProjectWriter::write(job), ProjectWriter::Written);
    const auto files = snapshot(job.projectFolder);
    EXPECT_TRUE(files.contains(QStringLiteral("libraries/extra.txt")));
    EXPECT_TRUE(files.contains(QStringLiteral("middlewares/mine.txt")));
    EXPECT_FALSE(files.contains(QStringLiteral("middlewares/readme.txt")));
    EXPECT_TRUE(files.contains(QStringLiteral("libraries/drivers/src/mq48t110_usart.c")));
    EXPECT_TRUE(files.contains(QStringLiteral("project/IAR_V9.3/MQ48T110x8.icf")));
}

// --- names -------------------------------------------------------------------------------------

TEST(ProjectWriterNames, AProjectNameWithBlanksNamesFilesAndElements)
{
    QTemporaryDir dir;
    for (const QString &ide : {QStringLiteral("IAR_V7.4"), QStringLiteral("MDK_V4")}) {
        ProjectJob job = t110Job(ide, dir.path() + QStringLiteral("/My Board ") + ide.left(3));
        job.projectName = QStringLiteral("My Board & Co");
        ASSERT_EQ(ProjectWriter::write(job), ProjectWriter::Written);
        const QString text = projectText(job);
        if (ide.startsWith(QLatin1String("IAR"))) {
            EXPECT_TRUE(QFileInfo::exists(ideFolder(job) + QStringLiteral("/My Board & Co.eww")));
            EXPECT_TRUE(text.contains(QLatin1String("$WS_DIR$\\My Board &amp; Co.ewp")));
            EXPECT_TRUE(text.contains(QLatin1String("<state>My Board &amp; Co.out</state>")));
        } else {
            EXPECT_TRUE(
                QFileInfo::exists(ideFolder(job) + QStringLiteral("/My Board & Co.uvproj")));
            EXPECT_TRUE(
                text.contains(QLatin1String("<TargetName>My Board &amp; Co</TargetName>")));
        }
        bool parsed = false;
        listedSources(job, &parsed);
        EXPECT_TRUE(parsed);
    }
}

TEST(ProjectWriterNames, UnknownToolchainsAndDevicesAreRefusedBeforeAnythingIsWritten)
{
    QTemporaryDir dir;
    ProjectJob job = t110Job(QStringLiteral("IAR_V6.10"), dir.path() + QStringLiteral("/B"));
    QString error;
    EXPECT_EQ(ProjectWriter::write(job, &error), ProjectWriter::ProjectFailed);
    job.ideName = QStringLiteral("MDK_V5");
    job.projectName = QStringLiteral("../escape");
    EXPECT_EQ(ProjectWriter::write(job, &error), ProjectWriter::ProjectFailed);
    job.projectName = QStringLiteral("Board");
    job.flashKiB = 100; // no part-number character
    EXPECT_EQ(ProjectWriter::write(job, &error), ProjectWriter::ProjectFailed);
    EXPECT_FALSE(QFileInfo::exists(job.projectFolder));
}

} // namespace
