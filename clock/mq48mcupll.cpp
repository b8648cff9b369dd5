#include "clock/mq48mcupll.h"

#include "clock/clockcombobox.h"
#include "clock/clockgraphicsview.h"

#include <QDialog>
#include <QFontMetrics>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

// Frameless holder of one control in the scene; Escape must not hide it.
class ControlHost : public QDialog
{
public:
    ControlHost() : QDialog(nullptr, Qt::FramelessWindowHint)
    {
        setAttribute(Qt::WA_TranslucentBackground);
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
    }
    void reject() override {}
};

} // namespace

MQ48MCUPLL::MQ48MCUPLL(int mcuModel, QWidget *parent) : QWidget(parent), m_state(mcuModel)
{
    m_scene = new QGraphicsScene(this);
    m_scene->setBackgroundBrush(QColor(238, 245, 247));
    m_view = new ClockGraphicsView(this);
    m_view->setScene(m_scene);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_view);
}

MQ48MCUPLL::~MQ48MCUPLL() = default;

void MQ48MCUPLL::zoomIn()
{
    m_view->zoomIn();
}

void MQ48MCUPLL::zoomOut()
{
    m_view->zoomOut();
}

void MQ48MCUPLL::zoomReset()
{
    m_view->zoomReset();
}

void MQ48MCUPLL::setDrawing(const ClockDrawing &drawing)
{
    if (m_diagram) {
        m_scene->removeItem(m_diagram);
        delete m_diagram;
    }
    m_diagram = new ClockDiagramItem(drawing);
    m_scene->addItem(m_diagram);
    m_view->setFitItem(m_diagram);
}

QGraphicsProxyWidget *MQ48MCUPLL::embed(QWidget *widget, int x, int y)
{
    auto *host = new ControlHost;
    host->layout()->addWidget(widget);
    host->resize(host->sizeHint());
    QGraphicsProxyWidget *proxy = m_scene->addWidget(host);
    proxy->setPos(x, y);
    proxy->setZValue(1.0);
    return proxy;
}

ClockComboBox *MQ48MCUPLL::addComboBox(int x, int y, int width, double z,
                                       QGraphicsProxyWidget **proxy)
{
    auto *box = new ClockComboBox;
    box->setFont(QFont(QStringLiteral("Arial"), 10));
    box->setFixedWidth(width);
    connect(box, &ClockComboBox::focusInThis, m_view, &ClockGraphicsView::Focus_InControl_Slot);
    QGraphicsProxyWidget *p = embed(box, x, y);
    p->setZValue(z);
    if (proxy)
        *proxy = p;
    return box;
}

QLineEdit *MQ48MCUPLL::addLineEdit(int x, int y, int maxWidth, QGraphicsProxyWidget **proxy)
{
    auto *edit = new QLineEdit;
    edit->setFont(QFont(QStringLiteral("Arial"), 10));
    edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    edit->setFixedWidth(maxWidth);
    edit->setFixedHeight(25);
    QGraphicsProxyWidget *p = embed(edit, x, y);
    if (proxy)
        *proxy = p;
    return edit;
}

QLabel *MQ48MCUPLL::addLabel(const QString &text, int x, int y, int pointSize, int weight,
                             QGraphicsProxyWidget **proxy)
{
    auto *label = new QLabel(text);
    QFont f(QStringLiteral("Arial"), pointSize);
    f.setWeight(weight);
    label->setFont(f);
    label->setStyleSheet(QStringLiteral("background: transparent;"));
    QGraphicsProxyWidget *p = embed(label, x, y);
    if (proxy)
        *proxy = p;
    return label;
}

QRadioButton *MQ48MCUPLL::addRadioButton(const QString &text, int x, int y,
                                         QGraphicsProxyWidget **proxy)
{
    auto *radio = new QRadioButton(text);
    radio->setFont(QFont(QStringLiteral("Arial"), 9));
    radio->setStyleSheet(QStringLiteral(
        "QRadioButton { background-color: rgb(222, 235, 246); padding: 1px 4px;"
        " border-radius: 3px; color: rgb(30, 50, 70); }"
        "QRadioButton:disabled { color: rgb(150, 160, 170); background-color: rgb(240, 244,"
        " 247); }"
        "QRadioButton::indicator:checked { width: 12px; height: 12px; border-radius: 6px;"
        " background-color: rgb(0, 176, 240); border: none; }"
        "QRadioButton::indicator:unchecked { width: 10px; height: 10px; border-radius: 6px;"
        " border: 1px solid rgb(90, 110, 130); background: white; }"));
    // Radios of one tree are grouped by the tree itself, not by their parent.
    radio->setAutoExclusive(false);
    QGraphicsProxyWidget *p = embed(radio, x, y);
    if (proxy)
        *proxy = p;
    return radio;
}

QLineEdit *MQ48MCUPLL::addValueField(int x, int y, int width)
{
    QLineEdit *edit = addLineEdit(x, y, width);
    edit->setReadOnly(true);
    edit->setFixedHeight(25);
    return edit;
}

QPushButton *MQ48MCUPLL::addListButton(int x, int y, QGraphicsProxyWidget **proxy)
{
    auto *button = new QPushButton(tr("List"));
    button->setIcon(QIcon(QStringLiteral(":/image/btn_right_slider_hover.png")));
    QFont f(QStringLiteral("Arial"), 10);
    f.setBold(true);
    button->setFont(f);
    button->setStyleSheet(QStringLiteral(
        "QPushButton { border-style: none; color: rgb(0, 120, 190); background: transparent;"
        " padding: 2px 6px; }"
        "QPushButton:hover { color: rgb(0, 176, 240); }"));
    button->setCursor(Qt::PointingHandCursor);
    QGraphicsProxyWidget *p = embed(button, x, y);
    p->setZValue(0);
    if (proxy)
        *proxy = p;
    return button;
}

QGroupBox *MQ48MCUPLL::addPeripheralList(const QString &title, const QStringList &names, int x,
                                         int y, QGraphicsProxyWidget **proxy)
{
    auto *group = new QGroupBox(title);
    QFont tf(QStringLiteral("Arial"), 9);
    tf.setBold(true);
    group->setFont(tf);
    group->setStyleSheet(QStringLiteral(
        "QGroupBox { background-color: rgb(153, 217, 234); border: 1px solid rgb(90, 160, 190);"
        " border-radius: 4px; margin-top: 16px; padding: 6px; }"
        "QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 3px; }"));
    auto *layout = new QVBoxLayout(group);
    layout->setSpacing(4);
    for (const QString &name : names) {
        auto *label = new QLabel(name);
        label->setFont(QFont(QStringLiteral("Arial"), 9));
        label->setStyleSheet(QStringLiteral("background: transparent;"));
        layout->addWidget(label);
    }
    QGraphicsProxyWidget *p = embed(group, x, y);
    p->setZValue(2.0);
    if (proxy)
        *proxy = p;
    return group;
}

void MQ48MCUPLL::setTextRoom(QWidget *control, int room)
{
    if (!control)
        return;
    if (!control->property("textPointSize").isValid())
        control->setProperty("textPointSize", control->font().pointSizeF());
    control->setProperty("textRoom", room);
}

namespace {

void fitIntoRoom(QWidget *control, int room)
{
    constexpr double kSmallest = 6.0;
    QFont f = control->font();
    f.setPointSizeF(control->property("textPointSize").toDouble());
    control->setFont(f);
    while (control->sizeHint().width() > room && f.pointSizeF() > kSmallest) {
        f.setPointSizeF(qMax(kSmallest, f.pointSizeF() - 0.5));
        control->setFont(f);
    }
    auto *label = qobject_cast<QLabel *>(control);
    if (!label || label->sizeHint().width() <= room || label->text().isEmpty())
        return;
    const QString full = label->text();
    const int frame = label->sizeHint().width() - label->fontMetrics().horizontalAdvance(full);
    label->setText(label->fontMetrics().elidedText(full, Qt::ElideRight, room - frame));
    label->setToolTip(full);
}

} // namespace

void MQ48MCUPLL::refit(QWidget *control)
{
    if (!control)
        return;
    const int room = control->property("textRoom").toInt();
    if (room > 0)
        fitIntoRoom(control, room);
    if (QWidget *host = control->parentWidget()) {
        if (QLayout *layout = host->layout()) {
            layout->invalidate();
            layout->activate();
        }
        host->resize(host->sizeHint());
    }
}

void MQ48MCUPLL::setLabelColor(QWidget *label, const QColor &color)
{
    QPalette pal = label->palette();
    pal.setColor(QPalette::All, QPalette::WindowText, color);
    label->setPalette(pal);
}

void MQ48MCUPLL::setEditColor(QWidget *edit, const QColor &color)
{
    QPalette pal = edit->palette();
    pal.setColor(QPalette::All, QPalette::Text, color);
    edit->setPalette(pal);
}
