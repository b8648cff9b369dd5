#include "peripherals/diagrams/timingdiagrams.h"

#include "peripherals/diagrams/timingpictures.h"
#include "peripherals/paramsettingwidget.h"
#include "pinout/pingraphicsview.h"

#include <QEvent>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QLabel>
#include <QVBoxLayout>

namespace {

const char *const kViewStyle =
    "QGraphicsView { background-color: rgb(255, 255, 255); border: none; }"
    "QScrollBar:vertical { width: 12px; background: rgb(217, 233, 246); }"
    "QScrollBar:horizontal { height: 12px; background: rgb(217, 233, 246); }"
    "QScrollBar::handle { background: rgb(139, 207, 215); border-radius: 4px; }"
    "QScrollBar::add-line, QScrollBar::sub-line { width: 0px; height: 0px; }";

// The view shrinks the picture to its room down to this scale, then scrolls.
constexpr qreal kSmallestScale = 0.6;
// The height the diagram asks for, as a part of the picture's.
constexpr qreal kHintScale = 0.85;

} // namespace

// ---------------------------------------------------------------------------- TimingDiagram --

TimingDiagram::TimingDiagram(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_scene = new QGraphicsScene(this);
    m_scene->setBackgroundBrush(Qt::white);
    m_view = new PinGraphicsView(this);
    m_view->setScene(m_scene);
    m_view->setStyleSheet(QLatin1String(kViewStyle));
    m_view->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_view->setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    layout->addWidget(m_view);
    m_item = new TimingDiagramItem;
    m_scene->addItem(m_item);
    m_view->setFitItem(m_item);
}

QLabel *TimingDiagram::addValueLabel(const QString &key, const QString &text)
{
    auto *label = new QLabel(text);
    label->setFont(QFont(QStringLiteral("Arial"), 9));
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(QStringLiteral("background-color: rgb(255, 255, 255); color: blue"));
    label->setObjectName(key);
    QGraphicsProxyWidget *proxy = m_scene->addWidget(label);
    proxy->setZValue(1.0);
    m_labels.insert(key, label);
    m_proxies.insert(key, proxy);
    return label;
}

QString TimingDiagram::labelText(const QString &key) const
{
    const QLabel *label = m_labels.value(key);
    return label ? label->text() : QString();
}

void TimingDiagram::setLabelText(const QString &key, const QString &text)
{
    if (QLabel *label = m_labels.value(key))
        label->setText(text);
}

void TimingDiagram::relayout()
{
    QMap<QString, QSizeF> sizes;
    for (auto it = m_labels.constBegin(); it != m_labels.constEnd(); ++it) {
        it.value()->adjustSize();
        sizes.insert(it.key(), QSizeF(it.value()->sizeHint()) + QSizeF(6, 2));
    }
    const TimingLayout layout = layoutTiming(picture(sizes), sizes);
    m_item->setLayout(layout);
    for (auto it = layout.labels.constBegin(); it != layout.labels.constEnd(); ++it) {
        QLabel *label = m_labels.value(it.key());
        QGraphicsProxyWidget *proxy = m_proxies.value(it.key());
        if (!label || !proxy)
            continue;
        label->setFixedSize(it.value().size().toSize());
        proxy->setPos(it.value().topLeft());
    }
    m_scene->setSceneRect(layout.bounds);
    setMinimumHeight(int(layout.bounds.height() * kSmallestScale) + 4);
    setMaximumHeight(int(layout.bounds.height()) + 4);
    updateGeometry();
    fitView();
}

QSize TimingDiagram::sizeHint() const
{
    const QRectF bounds = m_scene->sceneRect();
    return QSize(int(bounds.width() * kHintScale), int(bounds.height() * kHintScale) + 4);
}

void TimingDiagram::fitView()
{
    const QRectF bounds = m_scene->sceneRect();
    if (bounds.isEmpty())
        return;
    // The whole picture in sight, never larger than drawn, never smaller than readable.
    const QSize room = m_view->maximumViewportSize();
    const qreal scale = qBound(
        kSmallestScale, qMin(room.width() / bounds.width(), room.height() / bounds.height()), 1.0);
    m_view->setTransform(QTransform::fromScale(scale, scale));
    m_view->centerOn(bounds.center());
}

void TimingDiagram::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitView();
}

void TimingDiagram::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        relayout();
}

// ------------------------------------------------------------------------------------ CAN --

CAN_Configuration_Diagram::CAN_Configuration_Diagram(QWidget *parent) : TimingDiagram(parent)
{
    addValueLabel(QLatin1String(TimingPictures::kCanSync), QString::number(m_sync));
    addValueLabel(QLatin1String(TimingPictures::kCanBs1), QString::number(m_bs1));
    addValueLabel(QLatin1String(TimingPictures::kCanBs2), QString::number(m_bs2));
    addValueLabel(QLatin1String(TimingPictures::kCanSample), QStringLiteral("87.5"));
    relayout();
}

void CAN_Configuration_Diagram::ReciveCanParamValue(uint BS1, uint BS2, uint Sync, double Sample)
{
    m_bs1 = BS1;
    m_bs2 = BS2;
    m_sync = Sync;
    setLabelText(QLatin1String(TimingPictures::kCanBs1), QString::number(BS1));
    setLabelText(QLatin1String(TimingPictures::kCanBs2), QString::number(BS2));
    setLabelText(QLatin1String(TimingPictures::kCanSync), QString::number(Sync));
    setLabelText(QLatin1String(TimingPictures::kCanSample), QString::number(Sample, 'f', 1));
    relayout();
}

TimingDrawing CAN_Configuration_Diagram::picture(const QMap<QString, QSizeF> &labelSizes) const
{
    return TimingPictures::can(m_bs1, m_bs2, m_sync, labelSizes);
}

// ------------------------------------------------------------------------------------ I2C --

I2C_Configuration_Diagram::I2C_Configuration_Diagram(QWidget *parent) : TimingDiagram(parent)
{
    addValueLabel(QLatin1String(TimingPictures::kI2cRise), QStringLiteral("10 ns"));
    addValueLabel(QLatin1String(TimingPictures::kI2cFall), QStringLiteral("1000 ns"));
    addValueLabel(QLatin1String(TimingPictures::kI2cSetup), QStringLiteral("250 ns"));
    addValueLabel(QLatin1String(TimingPictures::kI2cHold), QStringLiteral("0 ns"));
    addValueLabel(QLatin1String(TimingPictures::kI2cPeriod), QStringLiteral("1 / (100 KHz)"));
    relayout();
}

void I2C_Configuration_Diagram::ReciveI2CParamValue(uint tr, uint tf, uint tSu, uint fSCL)
{
    setLabelText(QLatin1String(TimingPictures::kI2cRise), QStringLiteral("%1 ns").arg(tr));
    setLabelText(QLatin1String(TimingPictures::kI2cFall), QStringLiteral("%1 ns").arg(tf));
    setLabelText(QLatin1String(TimingPictures::kI2cSetup), QStringLiteral("%1 ns").arg(tSu));
    setLabelText(QLatin1String(TimingPictures::kI2cPeriod),
                 QStringLiteral("1 / (%1 KHz)").arg(fSCL));
    relayout();
}

TimingDrawing I2C_Configuration_Diagram::picture(const QMap<QString, QSizeF> &labelSizes) const
{
    return TimingPictures::i2c(labelSizes);
}

// ------------------------------------------------------------------------------------ TMR --

TMR_Configuration_Diagram::TMR_Configuration_Diagram(QWidget *parent) : TimingDiagram(parent)
{
    addValueLabel(QLatin1String(TimingPictures::kTmrClock), QString());
    addValueLabel(QLatin1String(TimingPictures::kTmrDivider), QStringLiteral("0"));
    addValueLabel(QLatin1String(TimingPictures::kTmrPeriod), QStringLiteral("0"));
    addValueLabel(QLatin1String(TimingPictures::kTmrOutput), QString());
    relayout();
}

void TMR_Configuration_Diagram::ReciveTMRParamValue(double tmr_clk, uint tmr_div, uint tmr_pr,
                                                    uint tmr_direction)
{
    setLabelText(QLatin1String(TimingPictures::kTmrDivider), QString::number(tmr_div));
    setLabelText(QLatin1String(TimingPictures::kTmrPeriod), QString::number(tmr_pr));
    m_external = tmr_clk == 0.0;
    if (m_external) {
        setLabelText(QLatin1String(TimingPictures::kTmrClock), tr("External clock"));
        setLabelText(QLatin1String(TimingPictures::kTmrOutput), QString());
    } else {
        setLabelText(QLatin1String(TimingPictures::kTmrClock),
                     QString::number(quint64(tmr_clk * 1000000.0)) + QStringLiteral(" Hz"));
        const double output = tmr_clk * 1000.0 * 1000.0 / (tmr_div + 1.0) / (tmr_pr + 1.0);
        setLabelText(QLatin1String(TimingPictures::kTmrOutput),
                     QString::number(output, 'f', 3) + QStringLiteral(" Hz"));
    }
    if (tmr_direction != m_direction && tmr_direction >= 1 && tmr_direction <= 3)
        m_direction = tmr_direction;
    relayout();
}

void TMR_Configuration_Diagram::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && m_external)
        setLabelText(QLatin1String(TimingPictures::kTmrClock), tr("External clock"));
    TimingDiagram::changeEvent(event);
}

TimingDrawing TMR_Configuration_Diagram::picture(const QMap<QString, QSizeF> &labelSizes) const
{
    return TimingPictures::tmr(m_direction, labelSizes);
}

// -------------------------------------------------------------------------------- factory --

TimingDiagram *createTimingDiagram(const QString &ipName, ParamSettingWidget *params,
                                   QWidget *parent)
{
    if (!params)
        return nullptr;
    if (ipName == QLatin1String("CAN")) {
        auto *d = new CAN_Configuration_Diagram(parent);
        QObject::connect(params, &ParamSettingWidget::SendCanParamValue, d,
                         &CAN_Configuration_Diagram::ReciveCanParamValue);
        return d;
    }
    if (ipName == QLatin1String("I2C")) {
        auto *d = new I2C_Configuration_Diagram(parent);
        QObject::connect(params, &ParamSettingWidget::SendI2CParamValue, d,
                         &I2C_Configuration_Diagram::ReciveI2CParamValue);
        return d;
    }
    if (ipName.startsWith(QLatin1String("TMR"))) {
        auto *d = new TMR_Configuration_Diagram(parent);
        QObject::connect(params, &ParamSettingWidget::SendTMRParamValue, d,
                         &TMR_Configuration_Diagram::ReciveTMRParamValue);
        return d;
    }
    return nullptr;
}
