#pragma once

#include "database/records.h"

#include <QList>
#include <QString>

// The numbers the timer diagram shows.
struct TmrDiagramValues
{
    double clockMHz = 0.0; // 0.0: the timer counts an external clock
    uint divider = 0;      // prescaler register
    uint period = 0;       // period register
    uint direction = 3;    // 1 up, 2 down, 3 up and down
};

// Timer calculators: the digital filter frequencies, the dead time, the PWM input pair and the
// values of the counter diagram.
class TimerCalculator
{
public:
    // The frequency in Hz that a digital filter code 0 to 15 lets through, for the timer
    // clock in Hz and the clock division 1, 2 or 4.
    static quint32 filterFrequency(int code, quint32 clockHz, int clockDivision);
    // The dead time in ns of a register byte, for the timer clock in MHz and the division.
    static qint64 deadTimeNs(int deadTime, double clockMHz, int clockDivision);
    // The output frequency of the counter in Hz, as the diagram computes it.
    static double outputFrequency(double clockMHz, uint divider, uint period);
    // The divider of a ClockDivision value (TMR_CLOCK_DIV1 1, _DIV2 2, _DIV4 4).
    static int clockDivision(const QList<RefParameter> &params);

    // Filter frequencies and dead time written into the parameters.
    static void apply(QList<RefParameter> &params, double clockMHz);
    // In PWM input mode the two channel filters stay equal: the edited one wins, else the one
    // of the chosen channel.
    static void applyPwmInput(QList<RefParameter> &params, const QString &lastEdit);
    // The diagram's numbers from the parameters.
    static TmrDiagramValues diagramValues(const QList<RefParameter> &params, double clockMHz);
};
