#pragma once

#include "database/records.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

// The baud rate a USART reaches for a wished one.
struct UsartBaud
{
    int divider = 0;    // the clock divider the firmware computes, clock / baud rounded
    double real = 0.0;  // Bits/s
    double error = 0.0; // percent, (real - wished) / wished * 100
};

// Calculators of peripherals whose rates follow from their bus clock: USART baud rate range
// and real rate, SPI and ADC prescaler limits, the I2S divider, SDIO and SPIM clocks.
class BusClockCalculators
{
    Q_DECLARE_TR_FUNCTIONS(BusClockCalculators)
public:
    // USART: the real rate of a wished one; a divider of 0 when nothing can be computed.
    static UsartBaud usartBaud(double clockHz, double wished);
    // USART: the baud rate range from the "/n" forms of the database and the real rate.
    // `note` receives the real rate and its error, or nothing.
    static void applyUsart(QList<RefParameter> &params, const QList<RefParameter> &original,
                           double clockMHz, QString *note);
    // USART: the settings a virtual mode needs, after its choice.
    static void applyUsartVirtualMode(QList<RefParameter> &params);

    // SPI: greys the dividers whose SCK exceeds the limit, and shows each one's rate.
    static void applySpi(QList<RefParameter> &params, const QList<RefParameter> &original,
                         double clockMHz, const QString &instance);
    // ADC: greys the prescalers above the ADC clock limit, and writes the ADC clock.
    static void applyAdcLimit(QList<RefParameter> &params, const QList<RefParameter> &original,
                              double ahbMHz, double apb2MHz, const QString &instance);

    // I2S: the clock after the scaling of the standard, format and master clock, in Hz.
    static double i2sBase(const QList<RefParameter> &params, double clockMHz);
    // I2S: the dividers of the chosen audio frequency, its real value and error, and the
    // frequencies out of reach greyed.
    static void applyI2s(QList<RefParameter> &params, const QList<RefParameter> &original,
                         double clockMHz, const QString &instance);

    static void applySdio(QList<RefParameter> &params, double clockMHz);
    static void applySpim(QList<RefParameter> &params, double clockMHz);
};
