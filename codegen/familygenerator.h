#pragma once

#include "codegen/familytable.h"
#include "codegen/generatorinputs.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <memory>

// The one generator core: turns GeneratorInputs into the six C files of a family by editing
// that family's templates. What differs between families is the row of the family table.
class FamilyGenerator
{
    Q_DECLARE_TR_FUNCTIONS(FamilyGenerator)

public:
    explicit FamilyGenerator(const QString &generatorName);
    virtual ~FamilyGenerator();
    FamilyGenerator(const FamilyGenerator &) = delete;
    FamilyGenerator &operator=(const FamilyGenerator &) = delete;

    // Copies the design's lists and makes the label defines unique.
    void setInputs(const GeneratorInputs &inputs);
    const GeneratorInputs &inputs() const { return m_inputs; }
    // The row of the generator class (nullptr for an unknown name).
    const GeneratorFamily *family() const { return m_family; }
    QString generatorName() const { return m_name; }

    // Writes the six files into outputFolder/inc and outputFolder/src. False on the first
    // failure; files written before it stay.
    bool generate(const QString &outputFolder);
    // A text for the user when the run failed for a reason worth naming (no generator or
    // templates, a folder that can't be made, a file that can't be written); may be empty.
    QString errorMessage() const { return m_error; }
    // The file whose generation failed last, for diagnosis.
    QString failedFile() const { return m_failedFile; }

    // The resource folder of the templates of the inputs' family code, ":/srcode/MQ48T110".
    QString templateFolder() const;
    // The template files that folder lacks (empty when all six exist).
    QStringList missingTemplates() const;
    // Runs the section steps of one generated file on a template text (user code already
    // merged). False when a block or a required line is missing.
    bool generateFile(const QString &fileName, QString &text) const;
    // Reads a template from the resources; empty when it can't be read.
    QString readTemplate(const QString &fileName) const;

    // The firmware driver files the design needs, "<stem>_crm" first (for the IDE project).
    QStringList driverFileStems() const;
    // Whether a module switch of _conf.h stays on for the design.
    bool moduleEnabled(const ModuleSwitch &module) const;

private:
    bool configFile(QString &text) const;
    bool headerFile(QString &text) const;
    bool mainFile(QString &text) const;
    bool interruptHeader(QString &text) const;
    bool interruptSource(QString &text) const;
    bool confFile(QString &text) const;

    bool peripheralSections(QString &text, bool fullSection) const;
    bool periphClock(QString &text, bool fill) const;
    bool periphClockItemOn(const PeriphClockItem &item) const;
    bool nvicNeeded() const;
    bool nvicSection(QString &text, bool fill) const;
    bool dmaMain(QString &text) const;
    bool dmaConfig(QString &text) const;
    bool dmaHeader(QString &text) const;
    bool gpioFunction(QString &text, bool fill) const;
    bool userLabels(QString &text) const;
    bool systick(QString &text, const QString &tag) const;
    bool portUsed(const QString &portLetter) const;
    bool anyPortUsed() const;
    bool dmaRemapNeeded() const;
    QStringList dmaChannelHandlers(int controller, int channel) const;
    QString dmaChannelName(int controller, int channel) const;

    QString m_name;
    const GeneratorFamily *m_family = nullptr;
    GeneratorInputs m_inputs;
    QString m_error;
    mutable QString m_failedFile;
};

// The eight generator classes: each is the core with its family's row.
class GenerateCode_All_T110 : public FamilyGenerator
{
public:
    GenerateCode_All_T110() : FamilyGenerator(QStringLiteral("GenerateCode_All_T110")) {}
};
class GenerateCode_All_T130_V130 : public FamilyGenerator
{
public:
    GenerateCode_All_T130_V130() : FamilyGenerator(QStringLiteral("GenerateCode_All_T130_V130")) {}
};
class GenerateCode_All_T250_T260_V250 : public FamilyGenerator
{
public:
    GenerateCode_All_T250_T260_V250()
        : FamilyGenerator(QStringLiteral("GenerateCode_All_T250_T260_V250"))
    {
    }
};
class GenerateCode_All_T310 : public FamilyGenerator
{
public:
    GenerateCode_All_T310() : FamilyGenerator(QStringLiteral("GenerateCode_All_T310")) {}
};
class GenerateCode_All_T320_W320 : public FamilyGenerator
{
public:
    GenerateCode_All_T320_W320() : FamilyGenerator(QStringLiteral("GenerateCode_All_T320_W320")) {}
};
class GenerateCode_All_T210_T220 : public FamilyGenerator
{
public:
    GenerateCode_All_T210_T220() : FamilyGenerator(QStringLiteral("GenerateCode_All_T210_T220")) {}
};
class GenerateCode_All_T120 : public FamilyGenerator
{
public:
    GenerateCode_All_T120() : FamilyGenerator(QStringLiteral("GenerateCode_All_T120")) {}
};
class GenerateCode_All_T510_T520 : public FamilyGenerator
{
public:
    GenerateCode_All_T510_T520() : FamilyGenerator(QStringLiteral("GenerateCode_All_T510_T520")) {}
};

// The generator class serving a family code; nullptr for a code without one.
std::unique_ptr<FamilyGenerator> createFamilyGenerator(int familyCode);
