// The command line run as a user's script runs it: the real program, as a separate process.
#include "app/commandline.h"
#include "app/formconfiguration.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "projectflow.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct ProgramRun
{
    int code = -1;
    QString out;
    QString err;
};

ProgramRun runProgram(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("QT_QPA_PLATFORM")); // the program must manage without
    env.remove(QStringLiteral("DISPLAY"));
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(MQ48_APP_BINARY), arguments);
    ProgramRun run;
    if (!process.waitForFinished(120000)) {
        process.kill();
        process.waitForFinished();
        ADD_FAILURE() << "the program did not finish: " << qPrintable(arguments.join(' '));
        return run;
    }
    run.code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2;
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool anyFileNamed(const QString &folder, const QString &name)
{
    QDirIterator it(folder, {name}, QDir::Files, QDirIterator::Subdirectories);
    return it.hasNext();
}

// Two designs saved by the window: one that generates, one with pins set by hand that no
// mode uses.
struct Designs
{
    Designs()
    {
        FormConfiguration form;
        if (!form.buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48"))
            return;
        form.modePanel("USART1")->setModeSelection("Mode", "Asynchronous");
        QString error;
        good = dir.path() + "/good.MQPF";
        saved = form.writeDesign(good, &error);
        placeByHand(form, "PB6", "I2C1_SCL");
        bad = dir.path() + "/bad.MQPF";
        saved = saved && form.writeDesign(bad, &error);
    }
    QString file(const QString &name) const { return dir.path() + "/" + name; }

    ProgramFolder program;
    QTemporaryDir dir;
    QString good;
    QString bad;
    bool saved = false;
};

TEST(CommandLineProcess, AnswersHelpVersionAndUsageErrors)
{
    const ProgramRun help = runProgram({"--help"});
    EXPECT_EQ(help.code, ExitOk);
    EXPECT_TRUE(help.out.contains("MQ48PinForge check DESIGN.MQPF")) << qPrintable(help.out);

    const ProgramRun version = runProgram({"--version"});
    EXPECT_EQ(version.code, ExitOk);
    EXPECT_EQ(version.out, "MQ48 Pin Forge V1.0.08\n");

    const ProgramRun unknown = runProgram({"frobnicate", "x.MQPF"});
    EXPECT_EQ(unknown.code, ExitUsage);
    EXPECT_TRUE(unknown.err.contains("unknown command \"frobnicate\"")) << qPrintable(unknown.err);
    EXPECT_TRUE(unknown.out.isEmpty());
    EXPECT_EQ(runProgram({"resave", "x.MQPF"}).code, ExitUsage); // no --output
    const ProgramRun ide = runProgram({"generate", "x.MQPF", "--ide", "Notepad"});
    EXPECT_EQ(ide.code, ExitUsage);
    EXPECT_TRUE(ide.err.contains("MDK_V5")) << qPrintable(ide.err);
}

TEST(CommandLineProcess, ChecksResavesGeneratesAndReportsADesign)
{
    Designs designs;
    ASSERT_TRUE(designs.saved);

    // Unreadable designs.
    const ProgramRun missing = runProgram({"check", designs.file("none.MQPF")});
    EXPECT_EQ(missing.code, ExitUnreadable);
    EXPECT_TRUE(missing.err.contains("File is not exists!")) << qPrintable(missing.err);
    QFile junk(designs.file("junk.MQPF"));
    ASSERT_TRUE(junk.open(QIODevice::WriteOnly));
    junk.write("<MQ48PinForge><Device");
    junk.close();
    EXPECT_EQ(runProgram({"check", junk.fileName()}).code, ExitUnreadable);

    // check: nothing to say on a good design, one line per problem on a bad one.
    const ProgramRun good = runProgram({"check", designs.good});
    EXPECT_EQ(good.code, ExitOk) << qPrintable(good.err);
    EXPECT_TRUE(good.out.isEmpty()) << qPrintable(good.out);
    EXPECT_TRUE(good.err.isEmpty()) << qPrintable(good.err); // nothing but its own messages
    const ProgramRun bad = runProgram({"check", designs.bad});
    EXPECT_EQ(bad.code, ExitProblems) << qPrintable(bad.err);
    EXPECT_EQ(bad.out,
              "The manually configured pin signal does not take effect: PB6 (I2C1_SCL)\n");

    // resave writes what the window wrote; an unwritable target is exit 4.
    const ProgramRun resave =
        runProgram({"resave", designs.good, "--output", designs.file("r.MQPF")});
    EXPECT_EQ(resave.code, ExitOk) << qPrintable(resave.err);
    EXPECT_EQ(readAll(designs.file("r.MQPF")), readAll(designs.good));
    const ProgramRun blocked =
        runProgram({"resave", designs.good, "--output", designs.file("no/such/dir/r.MQPF")});
    EXPECT_EQ(blocked.code, ExitWriteFailed);
    EXPECT_FALSE(blocked.err.isEmpty());

    // generate: the code of a good design; a bad one is refused and writes nothing.
    const QString out = designs.file("out");
    const ProgramRun generate = runProgram({"generate", designs.good, "--output", out});
    EXPECT_EQ(generate.code, ExitOk) << qPrintable(generate.err);
    EXPECT_TRUE(anyFileNamed(out, "mq48t110_pf_config.c"));
    const QString refusedOut = designs.file("refused");
    const ProgramRun refused = runProgram({"generate", designs.bad, "--output", refusedOut});
    EXPECT_EQ(refused.code, ExitProblems);
    EXPECT_TRUE(refused.err.contains("PB6 (I2C1_SCL)")) << qPrintable(refused.err);
    EXPECT_FALSE(QFileInfo::exists(refusedOut + "/src"));

    // report: a PDF.
    const ProgramRun report =
        runProgram({"report", designs.good, "--output", designs.file("r.pdf")});
    EXPECT_EQ(report.code, ExitOk) << qPrintable(report.err);
    EXPECT_TRUE(readAll(designs.file("r.pdf")).startsWith("%PDF"));
}

TEST(CommandLineProcess, RefusesAnArchiveThatIsNoPackage)
{
    QTemporaryDir dir;
    QFile zip(dir.path() + "/p.zip");
    ASSERT_TRUE(zip.open(QIODevice::WriteOnly));
    zip.write("not a zip at all");
    zip.close();
    const QString repository = dir.path() + "/repo";
    ASSERT_TRUE(QDir().mkpath(repository));
    const ProgramRun run =
        runProgram({"install-package", zip.fileName(), "--repository", repository});
    EXPECT_EQ(run.code, ExitUnreadable);
    EXPECT_FALSE(run.err.isEmpty());
    EXPECT_TRUE(QDir(repository).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).isEmpty());
}

} // namespace
