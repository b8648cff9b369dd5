#include "projectflow.h"

#include "app/formconfiguration.h"
#include "app/languagesetting.h"
#include "app/modaldialogs.h"
#include "common/testsupport.h"
#include "database/configstore.h"
#include "database/language.h"
#include "database/paths.h"
#include "pinout/chipview.h"
#include "project/projectsetting.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>

#include <gtest/gtest.h>

ProgramFolder::ProgramFolder() : m_language(g_language)
{
    const QString shipped = testsupport::sourceDatabase();
    const QString db = m_dir.path() + QStringLiteral("/MQ48DB");
    QDir().mkpath(db);
    for (const QString &entry :
         QDir(shipped).entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
        QFile::link(shipped + QLatin1Char('/') + entry, db + QLatin1Char('/') + entry);
    setAppFolderOverride(m_dir.path());
    CreateConfigFile(ConfigFilePath());
    g_language = 0;
}

ProgramFolder::~ProgramFolder()
{
    setAppFolderOverride(QString());
    g_language = m_language;
}

void ProgramFolder::setConfig(const QString &key, const QString &value) const
{
    SetConfigValue(ConfigFilePath(), key, value);
}

UrlRecorder::UrlRecorder()
{
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
}

UrlRecorder::~UrlRecorder()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

FlowHarness::FlowHarness()
{
    setUserMessageHandler([this](QWidget *, const UserMessage &m) {
        messages << m;
        if (press)
            return press(m);
        if (m.text == QLatin1String("Generate code finished!"))
            return int(m.buttons.size()) - 1;
        return 0;
    });
    setModalDialogRunner([this](QDialog *dialog) {
        auto *setting = qobject_cast<ProjectSetting *>(dialog);
        if (!setting) {
            otherDialogs << QString::fromLatin1(dialog->metaObject()->className());
            return other ? other(dialog) : int(QDialog::Rejected);
        }
        ++projectManagerRuns;
        ProjectAnswer given;
        if (!answer || !answer(given))
            return int(QDialog::Rejected);
        return answerProjectManager(*setting, given);
    });
}

FlowHarness::~FlowHarness()
{
    setModalDialogRunner({});
    setUserMessageHandler({});
}

QStringList FlowHarness::texts() const
{
    QStringList out;
    for (const UserMessage &m : messages)
        out << m.text;
    return out;
}

const UserMessage *FlowHarness::message(const QString &start) const
{
    for (const UserMessage &m : messages) {
        if (m.text.startsWith(start))
            return &m;
    }
    return nullptr;
}

int answerProjectManager(ProjectSetting &dialog, const ProjectAnswer &answer)
{
    auto *name = dialog.findChild<QLineEdit *>(QStringLiteral("projectNameEdit"));
    auto *location = dialog.findChild<QLineEdit *>(QStringLiteral("projectLocationEdit"));
    auto *ide = dialog.findChild<QComboBox *>(QStringLiteral("ideCombo"));
    auto *copy = dialog.findChild<QCheckBox *>(QStringLiteral("copyLibrariesCheck"));
    auto *keep = dialog.findChild<QCheckBox *>(QStringLiteral("keepUserCodeCheck"));
    if (!name || !location || !ide || !copy || !keep) {
        ADD_FAILURE() << "the project manager lacks a field";
        return QDialog::Rejected;
    }
    if (!answer.name.isNull())
        name->setText(answer.name);
    if (!answer.location.isNull())
        location->setText(answer.location);
    const int index = ide->findText(answer.ide);
    EXPECT_GE(index, 0) << qPrintable(answer.ide);
    ide->setCurrentIndex(index);
    copy->setChecked(answer.copyLibraries);
    keep->setChecked(answer.keepUserCode);
    dialog.setResult(QDialog::Rejected);
    dialog.OK_btnSlot();
    return dialog.result();
}

void placeByHand(FormConfiguration &form, const QString &pinName, const QString &signal)
{
    PinAssignEngine *engine = form.chipDrawing()->engine();
    for (MCUPinsBaseInfo *pin : engine->activePins()) {
        if (pin->PinName.trimmed() == pinName) {
            engine->placeOnPin(pin, signal, SIGNAL_PIN_ONLY, signal);
            // The drawing tells every panel, as a click on the pin does.
            form.ReciveAllConfigedSignals(form.design().devicePinInfo, false, QString());
            return;
        }
    }
    ADD_FAILURE() << "no pin " << qPrintable(pinName);
}
