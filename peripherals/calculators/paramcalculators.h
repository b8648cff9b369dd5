#pragma once

#include "database/records.h"
#include "peripherals/calculators/cancalculator.h"
#include "peripherals/calculators/i2ccalculator.h"
#include "peripherals/calculators/tmrcalculator.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

// What one run of the calculators of an instance starts from.
struct CalculatorInput
{
    QString family;        // "MQ48T110"
    QString instance;      // "USART1"
    double clockMHz = 0.0; // the instance's clock; 0.0 when the clock tree gives none
    double apb2MHz = 0.0;
    QString lastEdit;       // the parameter the user edited last; empty after a clock change
    bool canSearch = false; // run the CAN search (else the last results are applied again)
};

// What one run produced besides the parameter values.
struct CalculatorOutput
{
    QStringList changed; // names of the parameters whose record changed
    bool hasCan = false;
    CanDiagramValues can;
    bool hasI2c = false;
    I2cDiagramValues i2c;
    bool hasTmr = false;
    TmrDiagramValues tmr;
    QMap<QString, QString> notes; // parameter name -> a line shown under its row
};

// Runs the calculators that an instance needs, by family and instance name, over the
// parameter list of its panel.
class ParamCalculators
{
public:
    // `original` is the list as the database gives it (ranges in "/n" form, possible values
    // before any marking); `canResults` keeps the CAN solutions between runs.
    static CalculatorOutput run(QList<RefParameter> &params, const QList<RefParameter> &original,
                                const CalculatorInput &input, QList<CANBaudResult> *canResults);
    // The message of the error box for the last edit: the reason a marked value can't be
    // used, or empty.
    static QString editError(const QList<RefParameter> &params, const CalculatorInput &input);
};
