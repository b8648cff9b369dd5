#include "report/reportpicture.h"

#include <QGraphicsScene>
#include <QPainter>

namespace ReportPicture {

namespace {

// Longer side of the quick first drawing that finds the used part of a scene.
constexpr int kProbeLongSide = 500;

QSize sizeFor(const QSizeF &source, int longSide)
{
    if (source.width() <= 0 || source.height() <= 0)
        return QSize();
    const qreal scale = longSide / qMax(source.width(), source.height());
    return QSize(qMax(1, qRound(source.width() * scale)),
                 qMax(1, qRound(source.height() * scale)));
}

QImage draw(QGraphicsScene *scene, const QRectF &source, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    scene->render(&painter, QRectF(QPointF(0, 0), QSizeF(size)), source,
                  Qt::IgnoreAspectRatio);
    painter.end();
    return image;
}

} // namespace

QRect usedArea(const QImage &picture)
{
    if (picture.isNull())
        return QRect();
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    const QRgb background = image.pixel(0, 0);
    int left = image.width(), right = -1, top = image.height(), bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] == background)
                continue;
            left = qMin(left, x);
            right = qMax(right, x);
            top = qMin(top, y);
            bottom = qMax(bottom, y);
        }
    }
    if (right < 0)
        return QRect();
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

QImage renderScene(QGraphicsScene *scene, int longSide)
{
    if (!scene)
        return QImage();
    const QRectF whole = scene->itemsBoundingRect().united(scene->sceneRect());
    const QSize probeSize = sizeFor(whole.size(), kProbeLongSide);
    if (probeSize.isEmpty())
        return QImage();
    const QRect used = usedArea(draw(scene, whole, probeSize));
    if (used.isNull())
        return QImage();
    // Back to scene units, a probe dot wider on every side so that nothing is cut.
    const qreal unit = whole.width() / probeSize.width();
    QRectF source(whole.left() + used.left() * unit, whole.top() + used.top() * unit,
                  used.width() * unit, used.height() * unit);
    source.adjust(-2 * unit, -2 * unit, 2 * unit, 2 * unit);
    source = source.intersected(whole);
    return draw(scene, source, sizeFor(source.size(), longSide));
}

Placement place(const QSize &picture, const QRectF &area, bool rotateWhenWide)
{
    Placement out;
    if (picture.isEmpty() || area.isEmpty())
        return out;
    QSizeF size(picture);
    if (rotateWhenWide && size.width() > area.width()) {
        out.rotated = true;
        size.transpose();
    }
    size.scale(area.size(), Qt::KeepAspectRatio);
    out.target = QRectF(area.left() + (area.width() - size.width()) / 2,
                        area.top() + (area.height() - size.height()) / 2, size.width(),
                        size.height());
    return out;
}

} // namespace ReportPicture
