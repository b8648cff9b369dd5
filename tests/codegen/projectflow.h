#pragma once

#include "widgets/messagebox.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

#include <functional>

class FormConfiguration;
class ProjectSetting;
class QDialog;

// A program folder of its own for the generate flows: its config.xml is the test's, its
// MQ48DB folder is real (so the code view's scratch folder lands in it) and shows the
// shipped database's files.
class ProgramFolder
{
public:
    ProgramFolder();
    ~ProgramFolder();
    QString path() const { return m_dir.path(); }
    // Sets a key of config.xml.
    void setConfig(const QString &key, const QString &value) const;

private:
    QTemporaryDir m_dir;
    int m_language;
};

// What the user enters in the project manager before pressing OK.
struct ProjectAnswer
{
    QString name;
    QString location;
    QString ide = QStringLiteral("Eclipse_gcc");
    bool copyLibraries = true;
    bool keepUserCode = true;
};

// Receives the URLs the program asks the desktop to open.
class UrlRecorder : public QObject
{
    Q_OBJECT
public:
    UrlRecorder();
    ~UrlRecorder() override;
    QList<QUrl> urls;

public slots:
    void open(const QUrl &url) { urls << url; }
};

// Stands in for the user of the generate flow: records every message box and answers it,
// answers the project manager with `answer` (or cancels it when there is none), and records
// what the desktop is asked to open.
class FlowHarness
{
public:
    FlowHarness();
    ~FlowHarness();

    // The texts of the recorded messages.
    QStringList texts() const;
    // The recorded message whose text starts with `start`, or nullptr.
    const UserMessage *message(const QString &start) const;

    QList<UserMessage> messages;
    // The button to press on a message; the default presses "OK" on the finished box and the
    // first button on any other.
    std::function<int(const UserMessage &)> press;
    // The project manager's answers; unset: the dialog is cancelled.
    std::function<bool(ProjectAnswer &)> answer;
    int projectManagerRuns = 0;
    // Other dialogs the flows opened, by class name, and how they are answered (rejected
    // when unset).
    QStringList otherDialogs;
    std::function<int(QDialog *)> other;
    UrlRecorder desktop;
};

// Fills the project manager's fields as a user would and presses OK; returns the dialog's
// result (OK leaves it open, and so rejected, when a check fails).
int answerProjectManager(ProjectSetting &dialog, const ProjectAnswer &answer);

// Lights a signal on a pin as a click on the chip would, without any mode.
void placeByHand(FormConfiguration &form, const QString &pinName, const QString &signal);
