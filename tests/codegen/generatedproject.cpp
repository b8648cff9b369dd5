#include "generatedproject.h"

#include "armcompiler.h"
#include "codegen/familygenerator.h"
#include "common/testsupport.h"

const QStringList &GeneratedProject::fileNames()
{
    static const QStringList names = {
        QStringLiteral("main.c"),         QStringLiteral("mq48t110_pf_config.c"),
        QStringLiteral("mq48t110_int.c"), QStringLiteral("mq48t110_pf_config.h"),
        QStringLiteral("mq48t110_int.h"), QStringLiteral("mq48t110_conf.h")};
    return names;
}

bool GeneratedProject::generate(const GeneratorInputs &inputs)
{
    GenerateCode_All_T110 generator;
    generator.setInputs(inputs);
    const bool ok = generator.generate(root());
    m_error = ok ? QString() : generator.errorMessage() + " " + generator.failedFile();
    return ok;
}

QString GeneratedProject::path(const QString &name) const
{
    const QString sub = name.endsWith(QLatin1String(".h")) ? QStringLiteral("/inc/")
                                                            : QStringLiteral("/src/");
    return root() + sub + name;
}

QString GeneratedProject::text(const QString &name) const
{
    return QString::fromUtf8(testsupport::readFile(path(name)));
}

bool GeneratedProject::write(const QString &name, const QString &text) const
{
    return testsupport::writeFile(path(name), text.toUtf8());
}

bool GeneratedProject::compiles(const QString &device, QString *output) const
{
    ArmCompiler gcc;
    return gcc.available() && gcc.compile({path("main.c"), path("mq48t110_pf_config.c"), path("mq48t110_int.c")},
                       {root() + "/inc"}, device, output);
}
