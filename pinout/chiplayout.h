#pragma once

#include <QList>
#include <QRectF>
#include <QString>

// Constants and pin geometry of a package drawing, computed without any widget.
struct ChipLayout
{
    enum Kind { LQFP, QFN, TSSOP };

    Kind kind = LQFP;
    int cornerGap = 22;
    int pinPitch = 22;
    int pinLength = 42;
    int bodyTextHeight = 30;
    int pinTextHeight = 12;
    int sideOffsets[4] = {2, 2, 2, 2};
    int bodyWidth = 0;
    int bodyHeight = 0;
    int logoDx = -90;
    int logoDy = -190;
    int logoHeight = 180;

    // One pin of the drawing: its package number, its side and its rectangle.
    struct Pin
    {
        int pinNum = 0;
        int side = 0;
        int indexOnSide = 0;
        QRectF rect;
    };
    QList<Pin> pins;

    // The kind of a package word such as "LQFP", "QFN" or "TSSOP".
    static Kind kindOf(const QString &package);
    // The layout of a package with its pin counts; a count that is negative or beyond the
    // limits of a device file counts as 0.
    static ChipLayout forPackage(const QString &package, int xPinNum, int yPinNum, int pinNums);
};
