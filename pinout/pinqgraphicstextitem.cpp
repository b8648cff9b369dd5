#include "pinout/pinqgraphicstextitem.h"

PinQGraphicsTextItem::PinQGraphicsTextItem(const MCUPinsBaseInfo &pinInfo, int side,
                                           QGraphicsItem *parent)
    : QGraphicsTextItem(parent), m_pinInfo(pinInfo), m_side(side)
{
    // Clicks go through to the pin below.
    setAcceptedMouseButtons(Qt::NoButton);
    setAcceptHoverEvents(false);
}
