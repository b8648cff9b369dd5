#pragma once

#include <QImage>
#include <QRectF>
#include <QSize>

class QGraphicsScene;

// The report's pictures: a graphics scene the user sees, drawn anew at print resolution, and
// where such a picture goes on a page.
namespace ReportPicture {

// The longer side of a rendered picture in dots: about the height of an A4 page at 300 dpi.
constexpr int kPrintLongSide = 3300;

// Draws the used part of a scene (what lies inside its background, with a thin margin) on a
// white picture whose longer side is `longSide` dots. A null image for an empty scene.
QImage renderScene(QGraphicsScene *scene, int longSide = kPrintLongSide);

// The part of a picture that differs from the colour of its top-left corner, or a null
// rectangle when all of it has that colour.
QRect usedArea(const QImage &picture);

// Where a picture goes in an area of the page.
struct Placement
{
    bool rotated = false; // turned a quarter clockwise before scaling
    QRectF target;        // where the (turned) picture is drawn
};

// Scales a picture to fit the area with its proportions kept and centres it; with
// `rotateWhenWide` a picture wider than the area is turned a quarter first.
Placement place(const QSize &picture, const QRectF &area, bool rotateWhenWide);

} // namespace ReportPicture
