// The report's pictures: a scene drawn anew at print resolution, cut to what it holds, and
// placed on the page, turned when it is wider than the page.

#include "report/reportpicture.h"

#include <QBrush>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <gtest/gtest.h>

TEST(ReportPicture, ASceneIsDrawnAtPrintSizeAndCutToWhatItHolds)
{
    QGraphicsScene scene(0, 0, 1000, 1000);
    auto *body = scene.addRect(400, 300, 200, 100, QPen(Qt::black), QBrush(Qt::darkGreen));
    auto *text = scene.addSimpleText(QStringLiteral("PA9"));
    text->setPos(420, 330);

    const QImage picture = ReportPicture::renderScene(&scene, 2000);
    ASSERT_FALSE(picture.isNull());
    // The used part is twice as wide as high; the longer side is the print size.
    EXPECT_EQ(picture.width(), 2000);
    const double ratio = double(picture.width()) / picture.height();
    EXPECT_GT(ratio, 1.8);
    EXPECT_LE(ratio, 2.0);
    // Only a thin margin stays around the drawing, and nothing of it is cut.
    const QRect used = ReportPicture::usedArea(picture);
    EXPECT_LE(used.left(), picture.width() * 0.03);
    EXPECT_GE(used.right(), picture.width() * 0.97);
    EXPECT_LE(used.top(), picture.height() * 0.06);
    EXPECT_GE(used.bottom(), picture.height() * 0.94);
    // The items are drawn: the body's colour fills the middle.
    EXPECT_EQ(QColor(picture.pixel(picture.width() / 2, picture.height() * 3 / 4)),
              QColor(Qt::darkGreen));

    // Moving the item moves the cut, the size stays.
    body->setPos(-300, 500);
    text->setPos(120, 830);
    const QImage moved = ReportPicture::renderScene(&scene, 2000);
    EXPECT_EQ(moved.size(), picture.size());
}

TEST(ReportPicture, AnEmptySceneHasNoPicture)
{
    QGraphicsScene scene(0, 0, 500, 500);
    EXPECT_TRUE(ReportPicture::renderScene(&scene).isNull());
    EXPECT_TRUE(ReportPicture::renderScene(nullptr).isNull());
    QImage blank(50, 50, QImage::Format_RGB32);
    blank.fill(Qt::white);
    EXPECT_TRUE(ReportPicture::usedArea(blank).isNull());
    blank.setPixel(10, 20, qRgb(0, 0, 0));
    EXPECT_EQ(ReportPicture::usedArea(blank), QRect(10, 20, 1, 1));
}

TEST(ReportPicture, APictureWiderThanThePageIsTurnedThenScaledIntoTheMiddle)
{
    const QRectF area(30, 200, 2200, 3000);

    const ReportPicture::Placement wide = ReportPicture::place(QSize(3300, 1900), area, true);
    EXPECT_TRUE(wide.rotated);
    // Turned, it is 1900 wide and 3300 high: scaled to the area's height, centred across.
    EXPECT_NEAR(wide.target.height(), 3000, 0.5);
    EXPECT_NEAR(wide.target.width(), 1900.0 * 3000 / 3300, 0.5);
    EXPECT_NEAR(wide.target.center().x(), area.center().x(), 0.5);
    EXPECT_TRUE(area.adjusted(-0.5, -0.5, 0.5, 0.5).contains(wide.target));

    // The chip drawing is never turned: it takes the width, its height following.
    const ReportPicture::Placement chip = ReportPicture::place(QSize(3300, 3100), area, false);
    EXPECT_FALSE(chip.rotated);
    EXPECT_NEAR(chip.target.width(), 2200, 0.5);
    EXPECT_NEAR(chip.target.height(), 2200.0 * 3100 / 3300, 0.5);
    EXPECT_NEAR(chip.target.center().y(), area.center().y(), 0.5);

    // A picture narrower than the area keeps its way round.
    const ReportPicture::Placement narrow = ReportPicture::place(QSize(1000, 2000), area, true);
    EXPECT_FALSE(narrow.rotated);
    EXPECT_NEAR(narrow.target.height(), 3000, 0.5);

    EXPECT_TRUE(ReportPicture::place(QSize(), area, true).target.isNull());
}
