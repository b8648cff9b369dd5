#pragma once

#include "database/records.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

// One solution of the CAN bit timing search.
struct CANBaudResult
{
    int division = 0;         // baud rate prescaler
    int bts1 = 0;             // time segment 1
    int bts2 = 0;             // time segment 2
    int rsawMin = 0;          // lowest legal resynchronisation jump
    int rsawMax = 0;          // highest legal resynchronisation jump
    int quanta = 0;           // bts1 + bts2 + 1
    double samplePoint = 0.0; // percent
    double realBaud = 0.0;    // kbit/s
};

// What the search starts from.
struct CanSearchInput
{
    double clockMHz = 0.0;
    double baudRate = 0.0;    // kbit/s
    double samplePoint = 0.0; // percent
    bool tolerance = false;   // the deviation below applies
    double deviation = 0.0;   // percent
    bool jumpFromBelow = false;
};

// The numbers the CAN timing diagram shows.
struct CanDiagramValues
{
    uint bs1 = 1;
    uint bs2 = 1;
    uint sync = 1;
    double sample = 87.5;
};

// The CAN bit timing: the search over the sample point offsets and its application to the
// parameters of the panel.
class CanBitTiming
{
    Q_DECLARE_TR_FUNCTIONS(CanBitTiming)
public:
    // Sample point offsets in percent, in the order they are tried.
    static const QList<double> &offsets();
    // The sample point that suits a baud rate in kbit/s ("75", "80", "87.5").
    static QString samplePointForBaud(double baudRate);
    // The search input from the panel's parameters and the instance's clock.
    static CanSearchInput inputFrom(const QList<RefParameter> &params, double clockMHz,
                                    const QString &family);
    // Every solution of the first offset that has any, in the order found.
    static QList<CANBaudResult> search(const CanSearchInput &input);
    // Writes the results into the parameters: the list of solutions, the chosen one's
    // numbers, the jump's legal values, the real baud rate. `original` holds the parameters
    // as the database gives them. Returns the numbers for the diagram.
    static CanDiagramValues apply(QList<RefParameter> &params, const QList<RefParameter> &original,
                                  const QList<CANBaudResult> &results, double clockMHz,
                                  const QString &family);
    // The possible value of the result list that names a solution.
    static QString resultValue(const CANBaudResult &r);
};
