#pragma once

#include "codegen/generatorinputs.h"

#include <QString>
#include <QStringList>

// Builds T110 designs for the tests from the shipped database without the work form: the
// device's peripherals at their defaults, then instances switched on and signals placed
// with the GPIO defaults of their I/O mode.
class T110Design
{
public:
    explicit T110Design(const QString &device = QStringLiteral("MQ48T110C8T"));

    GeneratorInputs inputs;

    // Marks an instance configured (with raised semaphores given as short names).
    T110Design &configure(const QString &instance, const QStringList &semaphores = {});
    // Sets a parameter of an instance (added when the file lacks it).
    T110Design &set(const QString &instance, const QString &parameter, const QString &value);
    // Places a signal on its first pin of the device (or on `pin`), with GPIO defaults.
    T110Design &place(const QString &signal, const QString &pin = QString(),
                      const QString &label = QString());
    // Places a DMA request on a channel ("DMA1_Channel2") with the DMA file's defaults.
    T110Design &dma(const QString &request, const QString &channel);
    // Enables an interrupt by its section name ("USART1_IRQ").
    T110Design &irq(const QString &sectionName, int preemption = 0, int sub = 0);

    // The first pin of the device that carries a signal, and the signal's I/O mode there.
    QString pinOf(const QString &signal) const;
    QString ioModeOf(const QString &signal) const;
    // Every signal the device's pins carry.
    QStringList deviceSignals() const;

private:
    QString m_device;
};

// Points the program's folder at the database of the source tree while alive.
class SourceDatabase
{
public:
    SourceDatabase();
    ~SourceDatabase();
};
