#pragma once

#include "app/formconfiguration.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

// A program folder of its own (its config.xml is the test's) that sees the shipped database,
// for as long as it lives.
class ProgramFolder
{
public:
    ProgramFolder();
    ~ProgramFolder();
    QString path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};

// A parameter the design changed, as the report should print it.
struct ChangedParameter
{
    QString instance;
    QString name;  // the parameter's text in the panel
    QString value; // the value's text in the panel
};

// An MQ48T110C8T design built through the work form with everything on: the first mode
// that sticks on every control of every peripheral, parameters changed on a few of them,
// DMA requests on their channels, every interrupt a configured peripheral may use enabled,
// and a label and a setting changed on a GPIO pin.
class EverythingOnT110
{
public:
    EverythingOnT110();

    FormConfiguration &form() { return *m_form; }
    bool built() const { return m_built; }

    QStringList configured;              // instances with a mode on
    QList<ChangedParameter> changed;     // parameters set away from their default
    QStringList dmaRequests;             // requests placed, as "USART1_TX"
    QStringList enabledInterrupts;       // their texts in the table
    QString labelledPin;                 // the pin that got a label
    QString label;

private:
    std::unique_ptr<FormConfiguration> m_form;
    bool m_built = false;
};
