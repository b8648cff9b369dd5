#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// Per-family facts that the panels and the database checker read alike: the virtual signal
// names the mode logic knows, the routes of semaphores between instances, and the range of
// the CAN prescaler.
class FamilyFacts
{
public:
    // A virtual signal name of a family; `pinName` is the pin it stands for, or empty when
    // the name stands as it is.
    struct VirtualName
    {
        QString name;
        QString pinName;
    };

    // The virtual names of a family's row, in table order; empty for a family without one.
    static QList<VirtualName> virtualNames(const QString &family);

    // The instances a semaphore raised by `sender` reaches on a family.
    static QStringList semaphoreTargets(const QString &family, const QString &sender);

    // The largest CAN prescaler (`BaudRate_Division`) of a family: 4096 or 1024.
    static int canPrescalerMax(const QString &family);
};
