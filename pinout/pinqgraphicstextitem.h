#pragma once

#include "database/records.h"

#include <QGraphicsTextItem>

// One of the two texts of a pin (its name or its label), keeping the pin's record and side.
class PinQGraphicsTextItem : public QGraphicsTextItem
{
public:
    PinQGraphicsTextItem(const MCUPinsBaseInfo &pinInfo, int side,
                         QGraphicsItem *parent = nullptr);

    void setPinInfo(const MCUPinsBaseInfo &pinInfo) { m_pinInfo = pinInfo; }
    const MCUPinsBaseInfo &pinInfo() const { return m_pinInfo; }
    int side() const { return m_side; }

private:
    MCUPinsBaseInfo m_pinInfo;
    int m_side;
};
