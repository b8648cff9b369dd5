#include "codeview/codetabwidget.h"

#include <QFontMetrics>
#include <QPainter>

namespace {

// Blank space left and right of a file name.
constexpr int kTextMargin = 14;

} // namespace

CodeTabBar::CodeTabBar(QWidget *parent) : QTabBar(parent)
{
    setDrawBase(false);
    setExpanding(false);
    setElideMode(Qt::ElideRight);
}

QColor CodeTabBar::tabColor(bool selected)
{
    return selected ? QColor(56, 176, 54) : QColor(35, 184, 198);
}

QSize CodeTabBar::tabSizeHint(int index) const
{
    // Long file names widen every tab rather than being cut.
    int width = kTabWidth;
    const QFontMetrics metrics(font());
    for (int i = 0; i < count(); ++i)
        width = qMax(width, metrics.horizontalAdvance(tabText(i)) + 2 * kTextMargin);
    Q_UNUSED(index);
    return QSize(width, qMax(kTabHeight, metrics.height() + 8));
}

QSize CodeTabBar::minimumTabSizeHint(int index) const
{
    return tabSizeHint(index);
}

void CodeTabBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(font());
    const QFontMetrics metrics(font());
    for (int i = 0; i < count(); ++i) {
        const QRect rect = tabRect(i);
        painter.fillRect(rect, tabColor(i == currentIndex()));
        // A white line parts the tabs.
        painter.setPen(Qt::white);
        painter.drawLine(rect.bottomLeft(), rect.bottomRight());
        const QRect textRect = rect.adjusted(kTextMargin, 0, -kTextMargin, 0);
        painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(tabText(i), Qt::ElideRight, textRect.width()));
    }
}

CodeTabWidget::CodeTabWidget(QWidget *parent) : QTabWidget(parent)
{
    setTabBar(new CodeTabBar(this));
    setTabPosition(QTabWidget::West);
}

CodeTabBar *CodeTabWidget::codeTabBar() const
{
    return static_cast<CodeTabBar *>(tabBar());
}
