#pragma once

#include "clock/clockmessage.h"

#include <QLineEdit>
#include <QList>
#include <QStringList>
#include <QTest>

#include <ostream>

// Readable QString values in failure messages.
inline void PrintTo(const QString &s, std::ostream *os)
{
    *os << '"' << s.toStdString() << '"';
}

// Records every clock message box and answers them from a queue (default: Yes / Ok).
class MessageRecorder
{
public:
    MessageRecorder()
    {
        setClockMessageHandler([this](QWidget *, const ClockMessage &m) {
            messages.append(m);
            texts.append(m.text);
            return answers.isEmpty() ? true : answers.takeFirst();
        });
    }
    ~MessageRecorder() { setClockMessageHandler(nullptr); }
    MessageRecorder(const MessageRecorder &) = delete;
    MessageRecorder &operator=(const MessageRecorder &) = delete;

    QList<ClockMessage> messages;
    QStringList texts;
    QList<bool> answers;
};

// Types into a line edit as a user would, optionally ending with Enter.
inline void typeInto(QLineEdit *edit, const QString &text, bool enter = true)
{
    edit->selectAll();
    edit->del();
    QTest::keyClicks(edit, text);
    if (enter)
        QTest::keyClick(edit, Qt::Key_Return);
}
