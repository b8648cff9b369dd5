#pragma once

#include <QList>
#include <QString>

// The most pins a device file may declare; the readers and the chip drawing keep to these
// limits, so that a broken count can neither exhaust memory nor overflow the geometry.
constexpr int kMaxDevicePins = 1024; // PinNums
constexpr int kMaxSidePins = 256;    // xPinNum and yPinNum

// One thing wrong with a device file, located by line and element.
struct DeviceFileIssue
{
    int line = 0;       // line of the element; 0 for the file as a whole
    QString element;    // as "Pin \"PA1\"" or "MCUBaseInfo"; empty for the file as a whole
    QString message;    // in the language of the program
    bool fatal = false; // a design can't be opened on the file

    // "line 14, Pin \"PA1\": ..." or the message alone for the file as a whole.
    QString text() const;
};

// Every issue of the device file at `path`, in file order: a file that is missing or doesn't
// parse (with the reason and line), a missing section, pin counts that are not numbers or lie
// beyond the limits, pins without a usable number or name, functions and peripheral rows
// without a name (all fatal), and duplicate pin numbers, group signals without a name and
// numbers that don't parse (not fatal: the program copes, but the database is wrong).
QList<DeviceFileIssue> DeviceFileIssues(const QString &path);

// The first fatal issue of the device file as one sentence naming the place; empty when a
// design can be opened on the file.
QString DeviceFileProblem(const QString &path);
