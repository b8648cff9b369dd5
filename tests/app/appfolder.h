#pragma once

#include "projectflow.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>

// A throw-away program folder holding a copy of the app test database; the database paths
// point into it while the object lives, and g_language is restored afterwards.
class TempAppFolder
{
public:
    TempAppFolder();
    ~TempAppFolder();
    TempAppFolder(const TempAppFolder &) = delete;
    TempAppFolder &operator=(const TempAppFolder &) = delete;

    QString path() const { return m_dir.path(); }
    QString file(const QString &name) const { return m_dir.path() + QStringLiteral("/") + name; }

private:
    QTemporaryDir m_dir;
    int m_savedLanguage;
};

// Answers the next modal message boxes in turn: records each box's title and text and closes
// it by clicking the button with the next text of the list (rejecting it if none matches).
struct ModalCatcher
{
    QStringList titles;
    QStringList texts;
    void arm(const QStringList &buttons);

private:
    std::unique_ptr<QTimer> m_timer;
    QStringList m_buttons;
};

// The shipped database in a program folder of its own (nothing is written beside the
// sources), English, headless: the panels' messages are collected and answered with their
// first button.
class ShippedDatabase
{
public:
    ShippedDatabase();
    ~ShippedDatabase();
    ShippedDatabase(const ShippedDatabase &) = delete;
    ShippedDatabase &operator=(const ShippedDatabase &) = delete;

    QStringList messages;

private:
    ProgramFolder m_program;
};
