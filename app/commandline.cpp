#include "app/commandline.h"

#include "app/designsession.h"
#include "app/formconfiguration.h"
#include "app/generatecodeaction.h"
#include "app/generatereportaction.h"
#include "app/version.h"
#include "packages/installcommand.h"
#include "project/idetable.h"
#include "widgets/messagebox.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMap>
#include <QTextStream>

namespace {

struct CommandSyntax
{
    CommandLineRequest::Command command;
    QStringList options;  // options that take a value
    QStringList flags;    // options without a value
    QStringList required; // options that must be given
};

const QMap<QString, CommandSyntax> &commands()
{
    static const QMap<QString, CommandSyntax> table = {
        {QStringLiteral("generate"),
         {CommandLineRequest::Generate,
          {QStringLiteral("--output"), QStringLiteral("--ide")},
          {QStringLiteral("--no-keep-user-code")},
          {}}},
        {QStringLiteral("check"), {CommandLineRequest::Check, {}, {}, {}}},
        {QStringLiteral("resave"),
         {CommandLineRequest::Resave,
          {QStringLiteral("--output")},
          {},
          {QStringLiteral("--output")}}},
        {QStringLiteral("report"),
         {CommandLineRequest::Report,
          {QStringLiteral("--output")},
          {},
          {QStringLiteral("--output")}}},
        {QStringLiteral("install-package"),
         {CommandLineRequest::InstallPackage, {QStringLiteral("--repository")}, {}, {}}},
    };
    return table;
}

CommandLineRequest fail(const QString &error)
{
    CommandLineRequest request;
    request.error = error;
    return request;
}

} // namespace

bool isCommandLine(const QStringList &arguments)
{
    return !arguments.isEmpty();
}

CommandLineRequest parseCommandLine(const QStringList &arguments)
{
    CommandLineRequest request;
    if (arguments.isEmpty())
        return request;
    const QString first = arguments.first();
    if (first == QLatin1String("--help") || first == QLatin1String("-h")) {
        request.command = CommandLineRequest::Help;
        return request;
    }
    if (first == QLatin1String("--version")) {
        request.command = CommandLineRequest::Version;
        return request;
    }
    if (!commands().contains(first))
        return fail(
            QCoreApplication::translate("CommandLine", "unknown command \"%1\"").arg(first));

    const CommandSyntax &syntax = commands().value(first);
    request.command = syntax.command;
    QStringList given;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString arg = arguments.at(i);
        if (syntax.flags.contains(arg)) {
            request.keepUserCode = false; // the one flag there is
            continue;
        }
        if (syntax.options.contains(arg)) {
            if (i + 1 >= arguments.size() || arguments.at(i + 1).isEmpty())
                return fail(
                    QCoreApplication::translate("CommandLine", "%1 needs a value").arg(arg));
            const QString value = arguments.at(++i);
            if (arg == QLatin1String("--output"))
                request.output = value;
            else if (arg == QLatin1String("--ide"))
                request.ide = value;
            else
                request.repository = value;
            given << arg;
            continue;
        }
        if (arg.startsWith(QLatin1String("--")))
            return fail(
                QCoreApplication::translate("CommandLine", "unknown option \"%1\"").arg(arg));
        if (!request.input.isEmpty())
            return fail(
                QCoreApplication::translate("CommandLine", "unexpected argument \"%1\"").arg(arg));
        request.input = arg;
    }
    if (request.input.isEmpty())
        return fail(QCoreApplication::translate("CommandLine", "%1 needs a file").arg(first));
    for (const QString &option : syntax.required) {
        if (!given.contains(option))
            return fail(
                QCoreApplication::translate("CommandLine", "%1 needs %2").arg(first, option));
    }
    return request;
}

QString commandLineUsage()
{
    return QCoreApplication::translate(
        "CommandLine",
        "Usage:\n"
        "  MQ48PinForge                       open the program's window\n"
        "  MQ48PinForge generate DESIGN.MQPF [--output DIR] [--no-keep-user-code]"
        " [--ide NAME]\n"
        "  MQ48PinForge check DESIGN.MQPF\n"
        "  MQ48PinForge resave DESIGN.MQPF --output FILE\n"
        "  MQ48PinForge report DESIGN.MQPF --output FILE.pdf\n"
        "  MQ48PinForge install-package ZIP [--repository DIR]\n"
        "  MQ48PinForge --help | --version\n"
        "\n"
        "Exit codes: 0 success, 1 usage error, 2 the design cannot be read, 3 the design"
        " has problems, 4 writing failed.\n");
}

namespace {

// Opens the design of the request into `form`; false (with the reason on `err`) when it
// can't be read. Settings that could not be applied are reported but do not stop the command.
bool openForCommand(FormConfiguration &form, const QString &path, QTextStream &err)
{
    const DesignOpenResult result = openDesignFile(form, path);
    if (result.status != DesignOpenStatus::Opened) {
        err << QFileInfo(path).fileName() << ": " << designOpenMessage(result.status) << '\n';
        return false;
    }
    if (result.newerFormat)
        err << QCoreApplication::translate(
                   "CommandLine",
                   "The design was written by a newer version of the program; settings it "
                   "added may be missing.")
            << '\n';
    if (!result.problems.isEmpty()) {
        err << QCoreApplication::translate("CommandLine", "These settings could not be applied:")
            << '\n';
        for (const QString &problem : result.problems)
            err << "  " << problem << '\n';
    }
    return true;
}

int runDesignCommand(const CommandLineRequest &request, QTextStream &out, QTextStream &err)
{
    // No one is there to answer: a message the panels would show is printed, and its
    // question gets no answer.
    const UserMessageHandler saved = userMessageHandler();
    setUserMessageHandler([&err](QWidget *, const UserMessage &message) {
        err << message.text << '\n';
        return -1;
    });
    struct Restore
    {
        UserMessageHandler handler;
        ~Restore() { setUserMessageHandler(handler); }
    } restore{saved};
    FormConfiguration form;
    if (!openForCommand(form, request.input, err))
        return ExitUnreadable;
    switch (request.command) {
    case CommandLineRequest::Check: {
        const QStringList problems = generationProblems(&form);
        for (const QString &problem : problems)
            out << problem << '\n';
        return problems.isEmpty() ? ExitOk : ExitProblems;
    }
    case CommandLineRequest::Generate: {
        ProjectInfo info = form.projectInfo();
        info.keepUserCode = request.keepUserCode;
        if (!request.ide.isEmpty())
            info.toolchainIDE = ideTypeByName(request.ide).name;
        QString outputDir = request.output;
        if (outputDir.isEmpty() && info.projectFolder().isEmpty())
            outputDir = QFileInfo(request.input).absolutePath();
        const int result = generateHeadless(&form, info, outputDir, request.keepUserCode, err);
        if (result == HeadlessGenerated)
            return ExitOk;
        return result == HeadlessWriteFailed ? ExitWriteFailed : ExitProblems;
    }
    case CommandLineRequest::Resave: {
        QString error;
        if (!form.writeDesign(request.output, &error)) {
            err << error << '\n';
            return ExitWriteFailed;
        }
        return ExitOk;
    }
    case CommandLineRequest::Report: {
        QString error;
        if (!writeDesignReport(&form, request.output, &error, form.projectInfo())) {
            err << error << '\n';
            return ExitWriteFailed;
        }
        return ExitOk;
    }
    default:
        return ExitUsage;
    }
}

} // namespace

int runCommandLine(const CommandLineRequest &request, QTextStream &out, QTextStream &err)
{
    if (!request.error.isEmpty()) {
        err << request.error << "\n\n" << commandLineUsage();
        return ExitUsage;
    }
    switch (request.command) {
    case CommandLineRequest::None:
    case CommandLineRequest::Help:
        out << commandLineUsage();
        return ExitOk;
    case CommandLineRequest::Version:
        out << QStringLiteral(MQ48_VERSION_TITLE) << '\n';
        return ExitOk;
    case CommandLineRequest::InstallPackage:
        return installPackageCommand(request.input, request.repository, err);
    default:
        break;
    }
    if (!request.ide.isEmpty()) {
        const IdeType ide = ideTypeByName(request.ide);
        if (!ide.isValid() || ide.name.isEmpty()) {
            err << QCoreApplication::translate("CommandLine", "unknown IDE \"%1\"; one of: %2")
                       .arg(request.ide, dialogIdeNames().join(QStringLiteral(", ")))
                << '\n';
            return ExitUsage;
        }
    }
    return runDesignCommand(request, out, err);
}
