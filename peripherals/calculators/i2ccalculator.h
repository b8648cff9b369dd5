#pragma once

#include "database/records.h"

#include <QList>
#include <QString>

// What the I2C timing register is computed from.
struct I2cTimingInput
{
    double clockMHz = 0.0;
    QString mode;          // "I2C_Standard", "I2C_Fast", "I2C_Fast_Plus"
    double speedKHz = 0.0; // SCL frequency
    double riseNs = 0.0;
    double fallNs = 0.0;
    bool analogFilter = false;
    int digitalFilter = 0;
};

// One setting of the timing register.
struct I2cTimingResult
{
    bool found = false;
    int prescaler = 0; // 1 to 256
    int scldel = 0;
    int sclh = 0;
    int scll = 0;
    quint32 value = 0;
    QString text; // "0x" and eight hexadecimal digits; empty when nothing fits
};

// The numbers the I2C timing diagram shows.
struct I2cDiagramValues
{
    uint tr = 0;   // ns
    uint tf = 0;   // ns
    uint tSu = 0;  // ns
    uint fScl = 0; // kHz
};

// The I2C timing register, the two timeouts and the values of the bus diagram.
class I2cTiming
{
public:
    // The first prescaler whose SCL low, high and data delay counts all fit.
    static I2cTimingResult compute(const I2cTimingInput &input);
    // The input from the panel's parameters; the speed is read in kHz whatever its unit.
    static I2cTimingInput inputFrom(const QList<RefParameter> &params, double clockMHz,
                                    const QString &family);
    // Timing register and timeouts written into the parameters; the diagram's numbers.
    static I2cDiagramValues apply(QList<RefParameter> &params, double clockMHz,
                                  const QString &family);
};
