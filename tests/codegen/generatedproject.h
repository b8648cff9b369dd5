#pragma once

#include "codegen/generatorinputs.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// One generation run of a T110 design into a temporary folder; the six files are read and
// edited back by name, the way a user edits them between two runs.
class GeneratedProject
{
public:
    // The six file names of a T110 project.
    static const QStringList &fileNames();

    // Generates (again) into the same folder; false with the reason in error().
    bool generate(const GeneratorInputs &inputs);
    QString error() const { return m_error; }

    QString root() const { return m_dir.path() + QStringLiteral("/project"); }
    // The path of a generated file, in "inc" or "src" by its extension.
    QString path(const QString &name) const;
    QString text(const QString &name) const;
    bool write(const QString &name, const QString &text) const;

    // Compiles the three C files (the caller checks ArmCompiler::available() first); false
    // with the compiler's messages in `output` on failure.
    bool compiles(const QString &device, QString *output) const;

private:
    QTemporaryDir m_dir;
    QString m_error;
};
