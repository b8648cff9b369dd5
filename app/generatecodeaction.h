#pragma once

#include "database/records.h"

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

class FamilyGenerator;
class FormConfiguration;
class GenerateCodeThread;
class QTextStream;
struct GeneratorInputs;
struct ProjectInfo;

// The code generation flows of the work form. "Generate code" checks the clock tree, the pins
// chosen by hand and the peripherals, asks the project manager for the project (which writes
// the IDE project), runs the family generator in its thread under a progress dialog into
// <project>/project, saves the design and offers to open the result. The code view runs the
// same checks and generation without the dialog, into the project of a saved design or into
// the scratch folder of the database. One object lives with the form and keeps the thread.
class GenerateCodeAction : public QObject
{
    Q_OBJECT
public:
    // How a code view generation ended, and so which page the form shows.
    enum class CodeViewOutcome {
        Generated,     // the files are in codeViewFolder()
        ClockInvalid,  // the clock page showed its message; the clock page comes forward
        PinsInvalid,   // pins or peripherals are wrong; the pin page comes forward
        Failed,        // "Generate code failed!" was shown
    };

    explicit GenerateCodeAction(FormConfiguration *form);
    ~GenerateCodeAction() override;

    // The whole "Generate code" action; true when the code was written. `saveDesign` is run
    // after a successful generation, before the finished box.
    bool run(const std::function<bool()> &saveDesign = {});
    // The code view's generation; on Generated the files lie in outputFolder().
    CodeViewOutcome generateForCodeView();

    // The folder the last run wrote into ("<project>/project"), empty before a run.
    QString outputFolder() const { return m_outputFolder; }
    // Where the code view generates for the form's design: the project folder of a saved
    // design when it exists, else the database's scratch folder "CodeView"; both with
    // "/project" appended.
    static QString codeViewFolder(const FormConfiguration &form);

    // Entries "PA9 (USART1_TX)" of the signals ticked on a pin by hand that no mode uses.
    static QStringList manualPinsWithoutEffect(const DevicePinInfo *info);
    // The error text for such pins: at most four entries, then " / ......".
    static QString manualPinsMessage(const QStringList &entries);
    // The instances whose status carries the mark of an unfinished selection, sorted.
    static QStringList peripheralsInError(const QMap<QString, IPSTATUS> &status);
    static QString peripheralsInErrorMessage(const QStringList &instances);

public slots:
    void CodeView_Generate_Finished(bool flag);

private:
    enum class Check { Passed, ClockInvalid, PinsInvalid };
    Check runChecks();
    // Runs the generator in the thread while the GUI spins; false shows the failure box.
    bool generateInThread(FamilyGenerator *generator, const GeneratorInputs &inputs,
                          const QString &folder);
    void offerResult(const QString &projectFile);

    FormConfiguration *m_form;
    GenerateCodeThread *m_thread;
    bool m_finished = false;
    bool m_result = false;
    QString m_outputFolder;
};

// The problems that stop a generation of the form's design, one line each: the clock
// configuration's error, every signal set on a pin by hand that no mode uses, and every
// peripheral with an unfinished or wrong setting. Empty when the design can be generated.
// Questions of the clock page that a user may accept count as accepted.
QStringList generationProblems(FormConfiguration *form);

// Exit codes of generateHeadless().
enum HeadlessGenerateResult {
    HeadlessGenerated = 0,
    HeadlessProblems = 3,    // the checks failed or the design can't be generated
    HeadlessWriteFailed = 4, // the project or the code could not be written
};

// Generates the form's design without a window: runs the checks (printing each problem on a
// line of `err`), writes the IDE project of `info` when it names a toolchain (with the firmware
// when it uses it and a package is found in the repository, the settings' one or else the
// default folder; otherwise only the code), then the code into <folder>/project. The folder is
// `outputDir`, or the project folder of `info` when that is empty. Returns a
// HeadlessGenerateResult.
int generateHeadless(FormConfiguration *form, const ProjectInfo &info, const QString &outputDir,
                     bool keepUserCode, QTextStream &err);
