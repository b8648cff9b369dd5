#pragma once

#include "widgets/messagebox.h"

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
        setUserMessageHandler([this](QWidget *, const UserMessage &m) {
            messages.append(m);
            texts.append(m.text);
            return answers.isEmpty() || answers.takeFirst() ? 0 : 1;
        });
    }
    ~MessageRecorder() { setUserMessageHandler(nullptr); }
    MessageRecorder(const MessageRecorder &) = delete;
    MessageRecorder &operator=(const MessageRecorder &) = delete;

    QList<UserMessage> messages;
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
