#pragma once

#include "database/databasechecker.h"
#include "tests/common/testsupport.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// A copy of a small valid fixture database in a temporary folder, to plant defects in and
// run the checker over.
class PlantedDatabase : public ::testing::Test
{
protected:
    // The fixture below tests/fixtures that the copy starts from.
    virtual QString source() const { return testsupport::fixture("database/db/MQ48DB"); }

    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        const QString from = source();
        QDirIterator it(from, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            const QString target = folder() + "/" + QDir(from).relativeFilePath(path);
            ASSERT_TRUE(testsupport::writeFile(target, testsupport::readFile(path)));
        }
    }

    QString folder() const { return m_dir.path() + "/MQ48DB"; }

    // Replaces the first occurrence of `from` in a file of the copy.
    void plant(const QString &file, const QByteArray &from, const QByteArray &to)
    {
        const QString path = folder() + "/" + file;
        QByteArray content = testsupport::readFile(path);
        const int at = content.indexOf(from);
        ASSERT_GE(at, 0) << from.constData() << " not in " << qPrintable(file);
        content.replace(at, from.size(), to);
        ASSERT_TRUE(testsupport::writeFile(path, content));
    }

    // Removes the whole line that holds the first occurrence of `needle`.
    void removeLine(const QString &file, const QByteArray &needle)
    {
        const QString path = folder() + "/" + file;
        QByteArray content = testsupport::readFile(path);
        const int at = content.indexOf(needle);
        ASSERT_GE(at, 0) << needle.constData() << " not in " << qPrintable(file);
        const int start = content.lastIndexOf('\n', at) + 1;
        const int end = content.indexOf('\n', at);
        content.remove(start, (end < 0 ? content.size() : end + 1) - start);
        ASSERT_TRUE(testsupport::writeFile(path, content));
    }

    QStringList defects()
    {
        QStringList lines;
        for (const DatabaseDefect &defect : DatabaseChecker(folder()).run())
            lines << defect.text();
        return lines;
    }

    QList<DefectKind> kinds()
    {
        QList<DefectKind> list;
        for (const DatabaseDefect &defect : DatabaseChecker(folder()).run())
            list << defect.kind;
        return list;
    }

private:
    QTemporaryDir m_dir;
};
