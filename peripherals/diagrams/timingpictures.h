#pragma once

#include "peripherals/diagrams/timingdrawing.h"

#include <QMap>
#include <QSizeF>
#include <QString>

// The pictures of the three timing diagrams. Each is built for the numbers it shows and for
// the measured sizes of its value labels, so that wide numbers or long translations widen
// the picture instead of covering it.
namespace TimingPictures {

// Keys of the value labels.
extern const char *const kCanSync;
extern const char *const kCanBs1;
extern const char *const kCanBs2;
extern const char *const kCanSample;
extern const char *const kI2cRise;
extern const char *const kI2cFall;
extern const char *const kI2cSetup;
extern const char *const kI2cHold;
extern const char *const kI2cPeriod;
extern const char *const kTmrClock;
extern const char *const kTmrDivider;
extern const char *const kTmrPeriod;
extern const char *const kTmrOutput;

// One CAN bit: SYNC, BS1 and BS2 as wide as their time quanta, and the sample point.
TimingDrawing can(uint bs1, uint bs2, uint sync, const QMap<QString, QSizeF> &labelSizes);
// SCL and SDA with rise, fall, setup and hold times and the SCL period.
TimingDrawing i2c(const QMap<QString, QSizeF> &labelSizes);
// Clock, prescaler, period and output, above the counter's course: 1 up, 2 down, 3 both.
TimingDrawing tmr(uint direction, const QMap<QString, QSizeF> &labelSizes);

} // namespace TimingPictures
