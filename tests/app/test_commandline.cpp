#include "app/commandline.h"

#include <gtest/gtest.h>

namespace {

CommandLineRequest parse(const QString &line)
{
    return parseCommandLine(line.split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

TEST(CommandLine, ReadsEveryCommandWithItsOptions)
{
    const CommandLineRequest generate =
        parse("generate d.MQPF --output out --no-keep-user-code --ide MDK_V5");
    EXPECT_TRUE(generate.error.isEmpty()) << generate.error.toStdString();
    EXPECT_EQ(generate.command, CommandLineRequest::Generate);
    EXPECT_EQ(generate.input, "d.MQPF");
    EXPECT_EQ(generate.output, "out");
    EXPECT_EQ(generate.ide, "MDK_V5");
    EXPECT_FALSE(generate.keepUserCode);

    const CommandLineRequest plain = parse("generate d.MQPF");
    EXPECT_TRUE(plain.keepUserCode);
    EXPECT_TRUE(plain.output.isEmpty());

    EXPECT_EQ(parse("check d.MQPF").command, CommandLineRequest::Check);
    EXPECT_EQ(parse("resave d.MQPF --output e.MQPF").output, "e.MQPF");
    EXPECT_EQ(parse("report d.MQPF --output r.pdf").command, CommandLineRequest::Report);
    const CommandLineRequest install = parse("install-package p.zip --repository /r");
    EXPECT_EQ(install.command, CommandLineRequest::InstallPackage);
    EXPECT_EQ(install.repository, "/r");
    EXPECT_EQ(parse("--help").command, CommandLineRequest::Help);
    EXPECT_EQ(parse("-h").command, CommandLineRequest::Help);
    EXPECT_EQ(parse("--version").command, CommandLineRequest::Version);
    // Options may come before the file.
    EXPECT_EQ(parse("resave --output e.MQPF d.MQPF").input, "d.MQPF");
}

TEST(CommandLine, RefusesWhatIsNotAValidLine)
{
    const QStringList bad = {
        "frobnicate d.MQPF",                // unknown command
        "generate",                         // no design
        "generate a.MQPF b.MQPF",           // two designs
        "generate d.MQPF --output",         // option without value
        "generate d.MQPF --colour red",     // unknown option
        "check d.MQPF --no-keep-user-code", // flag of another command
        "resave d.MQPF",                    // required output missing
        "report d.MQPF",
    };
    for (const QString &line : bad) {
        const CommandLineRequest request = parse(line);
        EXPECT_FALSE(request.error.isEmpty()) << line.toStdString();
    }
    EXPECT_TRUE(isCommandLine({"--help"}));
    EXPECT_FALSE(isCommandLine({}));
    EXPECT_TRUE(commandLineUsage().contains("install-package"));
}

} // namespace
