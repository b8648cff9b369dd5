#include "pinout/chiplayout.h"

#include "database/devicecheck.h"

namespace {

void setConstants(ChipLayout &layout, int gap, int pitch, int length, int bodyText, int pinText,
                  int left, int bottom, int right, int top)
{
    layout.cornerGap = gap;
    layout.pinPitch = pitch;
    layout.pinLength = length;
    layout.bodyTextHeight = bodyText;
    layout.pinTextHeight = pinText;
    layout.sideOffsets[0] = left;
    layout.sideOffsets[1] = bottom;
    layout.sideOffsets[2] = right;
    layout.sideOffsets[3] = top;
}

} // namespace

ChipLayout::Kind ChipLayout::kindOf(const QString &package)
{
    const QString word = package.trimmed().toUpper();
    if (word.startsWith(QLatin1String("TSSOP")))
        return TSSOP;
    if (word.startsWith(QLatin1String("QFN")))
        return QFN;
    return LQFP;
}

ChipLayout ChipLayout::forPackage(const QString &package, int xPinNum, int yPinNum, int pinNums)
{
    // Counts beyond what a package can have draw nothing rather than exhaust memory.
    const auto bounded = [](int value, int max) { return value >= 0 && value <= max ? value : 0; };
    xPinNum = bounded(xPinNum, kMaxSidePins);
    yPinNum = bounded(yPinNum, kMaxSidePins);
    pinNums = bounded(pinNums, kMaxDevicePins);
    ChipLayout layout;
    layout.kind = kindOf(package);
    switch (layout.kind) {
    case LQFP:
        if (pinNums == 32)
            setConstants(layout, 36, 36, 52, 23, 15, 5, 7, 5, 5);
        else if (pinNums == 48)
            setConstants(layout, 22, 25, 45, 23, 12, 1, 2, 1, 0);
        else if (pinNums == 100)
            setConstants(layout, 18, 18, 36, 40, 10, 0, 0, 0, 0);
        else if (pinNums == 144)
            setConstants(layout, 15, 15, 30, 28, 9, -1, -1, -1, -1);
        else
            setConstants(layout, 22, 22, 42, 30, 12, 2, 2, 2, 2);
        if (pinNums == 64) {
            layout.logoDx = -120;
            layout.logoDy = -240;
            layout.logoHeight = 240;
        } else if (pinNums == 100) {
            layout.logoDx = -165;
            layout.logoDy = -350;
            layout.logoHeight = 330;
        }
        break;
    case QFN:
        if (pinNums == 20 || pinNums == 28)
            setConstants(layout, 56, 40, 56, 23, 15, 5, 7, 5, 7);
        else if (pinNums == 32 || pinNums == 36)
            setConstants(layout, 52, 36, 52, 23, 15, 4, 6, 4, 5);
        else if (pinNums == 60)
            setConstants(layout, 42, 28, 42, 23, 12, 4, 6, 2, 4);
        else
            setConstants(layout, 45, 25, 45, 23, 12, 1, 3, 1, 1);
        break;
    case TSSOP:
        setConstants(layout, 10, 40, 56, 23, 16, 6, 7, 6, 7);
        if (pinNums != 20)
            layout.logoDx = -100;
        break;
    }

    const int gap = layout.cornerGap;
    const int pitch = layout.pinPitch;
    const int length = layout.pinLength;
    int number = 1;
    auto addPin = [&](int side, int i, const QRectF &rect) {
        layout.pins.append({number++, side, i, rect});
    };

    if (layout.kind == TSSOP) {
        const int left = yPinNum > 0 ? yPinNum : pinNums / 2;
        const int right = std::max(0, pinNums - left);
        layout.bodyHeight = std::max(left, right) * pitch + 2 * gap;
        layout.bodyWidth = int(layout.bodyHeight / 6.5 * 4.4);
        for (int i = 0; i < left; ++i)
            addPin(0, i, QRectF(-length, pitch * i + gap, length, pitch));
        for (int i = 0; i < right; ++i)
            addPin(2, i,
                   QRectF(layout.bodyWidth, layout.bodyHeight - pitch * (i + 1) - gap, length,
                          pitch));
        return layout;
    }

    layout.bodyWidth = xPinNum * pitch + 2 * gap;
    layout.bodyHeight = yPinNum * pitch + 2 * gap;
    for (int i = 0; i < yPinNum; ++i)
        addPin(0, i, QRectF(-length, pitch * i + gap, length, pitch));
    for (int i = 0; i < xPinNum; ++i)
        addPin(1, i, QRectF(pitch * i + gap, layout.bodyHeight, pitch, length));
    for (int i = 0; i < yPinNum; ++i)
        addPin(2, i,
               QRectF(layout.bodyWidth, layout.bodyHeight - pitch * (i + 1) - gap, length, pitch));
    for (int i = 0; i < xPinNum; ++i)
        addPin(3, i, QRectF(layout.bodyWidth - pitch * (i + 1) - gap, -length, pitch, length));
    return layout;
}
