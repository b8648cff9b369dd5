#include "clock/mq48clocktree.h"

#include "clock/clockcombobox.h"
#include "clock/clockconfigxml.h"
#include "clock/clockgraphicsview.h"
#include "widgets/messagebox.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QtMath>

namespace {

const QColor kGreenField(152, 251, 152);
const QColor kPendingField(255, 255, 225);
const QColor kDisabledField(240, 243, 246);
const QColor kWhite(255, 255, 255);
const QColor kRed(220, 0, 0);
const QColor kDarkGreen(0, 110, 40);
const QColor kBlack(0, 0, 0);
const QColor kBlue(0, 90, 200);

QString mhz(double v)
{
    return QString::number(v, 'f', 3);
}

// Number of a PLL field without its leading "/" or "*"; -1 when it is not a number.
int fieldInteger(const QString &text, QChar prefix)
{
    QString t = text.trimmed();
    if (t.startsWith(prefix))
        t.remove(0, 1);
    bool ok = false;
    const int v = t.toInt(&ok, 10);
    return ok ? v : -1;
}

double fieldNumber(const QString &text, bool *ok)
{
    return text.trimmed().toDouble(ok);
}

int indexOfValue(std::initializer_list<int> values, int value)
{
    int i = 0;
    for (int v : values) {
        if (v == value)
            return i;
        ++i;
    }
    return 0;
}

const char *const kListButtons[] = {"list_apb1", "list_apb1tmr", "list_apb2", "list_apb2tmr"};

} // namespace

MQ48ClockTree::MQ48ClockTree(int mcuModel, QWidget *parent) : MQ48MCUPLL(mcuModel, parent)
{
    m_family = clockFamily(mcuModel);
    Q_ASSERT(m_family && m_family->hasTree());
    setMcuName(QString::fromLatin1(m_family->series));
    m_layout = clockTreeLayout(*m_family);
    setDrawing(m_layout.drawing);
    buildControls();
    syncFromState();
    connectControls();
    refreshEnable();
    updateRtcField();
    if (validatePll()) {
        clockState().recalculate();
        showClocks();
    }
    view()->viewport()->installEventFilter(this);
    connect(&m_timer, &QTimer::timeout, this, &MQ48ClockTree::HandleTimeout);
    m_timer.start(500);
}

MQ48ClockTree::~MQ48ClockTree() = default;

QString MQ48ClockTree::translated(const char *source) const
{
    return source ? QCoreApplication::translate("ClockTree", source) : QString();
}

void MQ48ClockTree::buildControls()
{
    for (const ClockControlSpec &c : m_layout.controls) {
        QWidget *w = nullptr;
        QGraphicsProxyWidget *proxy = nullptr;
        const int x = c.pos.x(), y = c.pos.y();
        switch (c.kind) {
        case ClockControlKind::Caption: {
            QLabel *label = addLabel(translated(c.text) + c.suffix, x, y, c.pointSize,
                                     c.bold ? QFont::Bold : QFont::Normal, &proxy);
            setLabelColor(label, QColor(40, 60, 80));
            w = label;
            break;
        }
        case ClockControlKind::Label: {
            QLabel *label = addLabel(translated(c.text), x, y, 9,
                                     c.bold ? QFont::Bold : QFont::Normal, &proxy);
            if (c.width > 0)
                label->setFixedWidth(c.width);
            w = label;
            break;
        }
        case ClockControlKind::Edit:
        case ClockControlKind::ReadOnly: {
            QLineEdit *edit = c.kind == ClockControlKind::Edit ? addLineEdit(x, y, c.width, &proxy)
                                                               : addValueField(x, y, c.width);
            if (!proxy)
                proxy = edit->parentWidget()->graphicsProxyWidget();
            w = edit;
            break;
        }
        case ClockControlKind::Combo: {
            ClockComboBox *box = addComboBox(x, y, c.width, 1.0, &proxy);
            for (const QString &item : c.items)
                box->addItem(c.translateItems ? translated(item.toUtf8().constData()) : item);
            box->setMaxVisibleItems(16);
            w = box;
            break;
        }
        case ClockControlKind::Radio: {
            QRadioButton *radio = addRadioButton(translated(c.text), x, y, &proxy);
            if (c.width > 0)
                radio->setMinimumWidth(c.width);
            radio->setProperty("clockValue", c.value);
            if (c.group != QLatin1String("pllhextdiv")) {
                QButtonGroup *group = m_groups.value(c.group);
                if (!group) {
                    group = new QButtonGroup(this);
                    group->setExclusive(true);
                    m_groups.insert(c.group, group);
                }
                group->addButton(radio, c.value);
            }
            w = radio;
            break;
        }
        case ClockControlKind::ListButton: {
            w = addListButton(x, y, &proxy);
            break;
        }
        }
        if (c.tip)
            w->setToolTip(translated(c.tip));
        refit(w);
        w->setObjectName(c.name);
        w->setStyleSheet(w->styleSheet() +
                         QStringLiteral("QToolTip { background-color: rgba(153, 217, 234, 255);"
                                        " color: rgb(60, 60, 60); font-size: 12px; }"));
        m_controls.insert(c.name, w);
        if (proxy)
            m_proxies.insert(c.name, proxy);
    }
    fitTexts();

    const QRegularExpression number(QStringLiteral("[0-9\\.]+$"));
    if (auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("hext"))))
        e->setValidator(new QRegularExpressionValidator(number, e));
    if (auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("sclk"))))
        e->setValidator(new QRegularExpressionValidator(number, e));
    if (auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("i2sf5"))))
        e->setValidator(new QRegularExpressionValidator(number, e));
    if (auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("pllms"))))
        e->setValidator(new QRegularExpressionValidator(
            QRegularExpression(QStringLiteral("[\\/]?[0-9]+$")), e));
    if (auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("pllns"))))
        e->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[*]?[0-9]+$")), e));

    for (const char *n : {"lext_in", "lext_out", "hext_in", "hext_out"}) {
        if (QWidget *w = control(QLatin1String(n)))
            setLabelColor(w, kBlue);
    }
    setText(QStringLiteral("lick"), QStringLiteral("40"));
    setText(QStringLiteral("lext"), QStringLiteral("32.768"));
    setText(QStringLiteral("hick"), QStringLiteral("48"));
    setText(QStringLiteral("towdt"), QStringLiteral("40"));

    // Peripheral lists behind the four buttons, hidden until asked for.
    const struct
    {
        const char *button;
        PeripheralClockBus bus;
        const char *title;
    } lists[] = {
        {"list_apb1", PeripheralClockBus::Apb1,
         QT_TRANSLATE_NOOP("ClockTree", "APB1 peripherals")},
        {"list_apb1tmr", PeripheralClockBus::Apb1Tmr,
         QT_TRANSLATE_NOOP("ClockTree", "APB1 timers")},
        {"list_apb2", PeripheralClockBus::Apb2,
         QT_TRANSLATE_NOOP("ClockTree", "APB2 peripherals")},
        {"list_apb2tmr", PeripheralClockBus::Apb2Tmr,
         QT_TRANSLATE_NOOP("ClockTree", "APB2 timers")},
    };
    for (const auto &l : lists) {
        QGraphicsProxyWidget *buttonProxy = m_proxies.value(QLatin1String(l.button));
        if (!buttonProxy)
            continue;
        QStringList names = peripheralsOnBus(m_family->model, l.bus);
        if (names.isEmpty())
            names << tr("none");
        QGraphicsProxyWidget *proxy = nullptr;
        QGroupBox *group = addPeripheralList(translated(l.title), names, 0, 0, &proxy);
        group->setProperty("titleSource", QByteArray(l.title));
        group->setObjectName(QLatin1String(l.button) + QStringLiteral("_group"));
        const QSizeF size = proxy->size();
        proxy->setPos(listPlace(buttonProxy, size));
        proxy->setVisible(false);
        m_lists.insert(QLatin1String(l.button), proxy);
    }
}

void MQ48ClockTree::fitTexts()
{
    // Each text first takes its frame's room at its own size, so that all are measured alike.
    QList<const ClockControlSpec *> texts;
    for (const ClockControlSpec &c : m_layout.controls) {
        QWidget *w = control(c.name);
        if (!w || c.room <= 0 || !m_proxies.contains(c.name))
            continue;
        setTextRoom(w, c.room);
        refit(w);
        texts << &c;
    }
    for (const ClockControlSpec *c : qAsConst(texts)) {
        QWidget *w = control(c->name);
        const QRectF r = m_proxies.value(c->name)->sceneBoundingRect();
        double right = r.left() + c->room;
        for (auto it = m_proxies.constBegin(); it != m_proxies.constEnd(); ++it) {
            if (it.key() == c->name)
                continue;
            const QRectF o = it.value()->sceneBoundingRect();
            if (o.left() > r.left() && o.top() < r.bottom() - 1 && r.top() < o.bottom() - 1)
                right = qMin(right, o.left() - 4);
        }
        const int room = qMax(1, int(right - r.left()));
        if (room < c->room) {
            setTextRoom(w, room);
            refit(w);
        }
    }
}

QPoint MQ48ClockTree::listPlace(const QGraphicsProxyWidget *button, const QSizeF &size) const
{
    // Below the button, or above it, at the nearest place that covers no value field.
    const QRectF sheet(QPointF(0, 0), m_layout.drawing.size);
    const double x = button->pos().x() + 80 - size.width();
    const auto coversValue = [this, &size, x](double y) {
        const QRectF r(x, y, size.width(), size.height());
        for (auto it = m_proxies.constBegin(); it != m_proxies.constEnd(); ++it) {
            if (qobject_cast<QLineEdit *>(control(it.key())) &&
                it.value()->sceneBoundingRect().intersects(r))
                return true;
        }
        return false;
    };
    const double below = button->pos().y() + 30;
    for (double y = below; y + size.height() <= sheet.bottom() - 4; y += 4) {
        if (!coversValue(y))
            return QPoint(qRound(x), qRound(y));
    }
    for (double y = button->pos().y() - size.height() - 4; y >= 4; y -= 4) {
        if (!coversValue(y))
            return QPoint(qRound(x), qRound(y));
    }
    return QPoint(qRound(x), qRound(qMax(4.0, qMin(below, sheet.bottom() - 4 - size.height()))));
}

void MQ48ClockTree::connectControls()
{
    auto edit = [this](const char *n) {
        return qobject_cast<QLineEdit *>(control(QLatin1String(n)));
    };
    auto combo = [this](const char *n) {
        return qobject_cast<QComboBox *>(control(QLatin1String(n)));
    };
    using T = MQ48ClockTree;
    if (QLineEdit *e = edit("hext")) {
        connect(e, &QLineEdit::returnPressed, this, &T::hext_LineEdit_returnPressed);
        connect(e, &QLineEdit::textChanged, this, &T::hext_LineEdit_textChanged);
    }
    if (QLineEdit *e = edit("pllms")) {
        connect(e, &QLineEdit::returnPressed, this, &T::pllms_LineEdit_returnPressed);
        connect(e, &QLineEdit::textChanged, this, &T::pllms_LineEdit_textChanged);
    }
    if (QLineEdit *e = edit("pllns")) {
        connect(e, &QLineEdit::returnPressed, this, &T::pllns_LineEdit_returnPressed);
        connect(e, &QLineEdit::textChanged, this, &T::pllns_LineEdit_textChanged);
    }
    if (QLineEdit *e = edit("sclk")) {
        connect(e, &QLineEdit::returnPressed, this, &T::sclk_LineEdit_returnPressed);
        connect(e, &QLineEdit::textChanged, this, &T::sclk_LineEdit_textChanged);
    }
    if (QLineEdit *e = edit("i2sf5"))
        connect(e, &QLineEdit::textChanged, this, &T::i2sf5_LineEdit_textChanged);

    const struct
    {
        const char *name;
        void (T::*slot)(int);
    } combos[] = {
        {"rtcdiv", &T::rtcdiv_ComboBox_currentIndexChanged},
        {"pllfr", &T::pllfr_ComboBox_currentIndexChanged},
        {"ahbdiv", &T::ahbdiv_ComboBox_currentIndexChanged},
        {"apb1div", &T::apb1div_ComboBox_currentIndexChanged},
        {"apb2div", &T::apb2div_ComboBox_currentIndexChanged},
        {"systicdiv", &T::systicdiv_ComboBox_currentIndexChanged},
        {"usbdiv", &T::usbdiv_ComboBox_currentIndexChanged},
        {"clockout1div1", &T::clockout1div1_ComboBox_currentIndexChanged},
        {"clockout1div2", &T::clockout1div2_ComboBox_currentIndexChanged},
        {"clockout2div1", &T::clockout2div1_ComboBox_currentIndexChanged},
        {"clockout2div2", &T::clockout2div2_ComboBox_currentIndexChanged},
        {"hextdiv", &T::hextdiv_ComboBox_currentIndexChanged},
        {"sclkhextdiv", &T::sclkhextdiv_ComboBox_currentIndexChanged},
        {"sclkhickdiv", &T::sclkhickdiv_ComboBox_currentIndexChanged},
        {"pllmode", &T::pllmode_ComboBox_currentIndexChanged},
        {"pllmult", &T::pllmult_ComboBox_currentIndexChanged},
        {"pllfp", &T::pllfp_ComboBox_currentIndexChanged},
        {"pllfu", &T::pllfu_ComboBox_currentIndexChanged},
        {"adcdiv", &T::toadcdiv_ComboBox_currentIndexChanged},
        {"clockoutdiv", &T::clockoutdiv_ComboBox_currentIndexChanged},
        {"clockoutdiv1", &T::clockoutdiv1_ComboBox_currentIndexChanged},
        {"clockoutdiv2", &T::clockoutdiv2_ComboBox_currentIndexChanged},
    };
    for (const auto &c : combos) {
        if (QComboBox *box = combo(c.name))
            connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, c.slot);
    }

    const struct
    {
        const char *group;
        void (T::*slot)(bool);
    } radios[] = {
        {"rtcsel", &T::rtcsel_RadioButton_checkSlot},
        {"pllrcs", &T::pllrcs_RadioButton_checkSlot},
        {"hicktousb", &T::hicktousb_RadioButton_checkSlot},
        {"hicktosclk", &T::hicktosclk_RadioButton_checkSlot},
        {"clkout1", &T::clkout1_RadioButton_checkSlot},
        {"clkout2", &T::clkout2_RadioButton_checkSlot},
        {"clkout", &T::clkout_RadioButton_checkSlot},
        {"usart1clocksel", &T::usart1clocksel_RadioButton_checkSlot},
        {"usart2clocksel", &T::usart2clocksel_RadioButton_checkSlot},
        {"usart3clocksel", &T::usart3clocksel_RadioButton_checkSlot},
        {"i2c1clocksel", &T::i2c1clocksel_RadioButton_checkSlot},
        {"adcclocksel", &T::adcclocksel_RadioButton_checkSlot},
        {"i2sf5clocksel", &T::i2sf5clocksel_RadioButton_checkSlot},
    };
    for (const auto &r : radios) {
        QButtonGroup *group = m_groups.value(QLatin1String(r.group));
        if (!group)
            continue;
        for (QAbstractButton *b : group->buttons())
            connect(b, &QAbstractButton::toggled, this, r.slot);
    }
    if (QButtonGroup *group = m_groups.value(QStringLiteral("sclkselect"))) {
        const QList<QAbstractButton *> b = group->buttons();
        for (QAbstractButton *button : b) {
            const int v = button->property("clockValue").toInt();
            connect(button, &QAbstractButton::toggled, this,
                    v == 0   ? &T::sclkselecthext_RadioButton_checkSlot
                    : v == 1 ? &T::sclkselectpll_RadioButton_checkSlot
                             : &T::sclkselecthick_RadioButton_checkSlot);
        }
    }
    if (auto *r = qobject_cast<QAbstractButton *>(control(QStringLiteral("pllhextdiv_1"))))
        connect(r, &QAbstractButton::toggled, this, &T::pllhextdiv_RadioButton_checkSlot);

    const struct
    {
        const char *name;
        void (T::*slot)();
    } buttons[] = {
        {"list_apb1", &T::toapb1peripheral_List_Button_checkSlot},
        {"list_apb1tmr", &T::toapb1tmr_List_Button_checkSlot},
        {"list_apb2", &T::toapb2peripheral_List_Button_checkSlot},
        {"list_apb2tmr", &T::toapb2tmr_List_Button_checkSlot},
    };
    for (const auto &b : buttons) {
        if (auto *button = qobject_cast<QPushButton *>(control(QLatin1String(b.name))))
            connect(button, &QPushButton::clicked, this, b.slot);
    }
}

// ---- small widget helpers ----

bool MQ48ClockTree::error(const QString &text)
{
    tellUser(this, UserMessage::Error, tr("Error"), text);
    return false;
}

bool MQ48ClockTree::ask(const QString &text)
{
    return confirmUser(this, UserMessage::Warning, tr("Warning"), text, yesButtonText());
}

int MQ48ClockTree::senderValue() const
{
    const QObject *s = sender();
    return s ? s->property("clockValue").toInt() : 0;
}

void MQ48ClockTree::setChecked(const QString &group, int value)
{
    QButtonGroup *g = m_groups.value(group);
    if (!g)
        return;
    for (QAbstractButton *b : g->buttons()) {
        const bool blocked = b->blockSignals(true);
        b->setChecked(b->property("clockValue").toInt() == value);
        b->blockSignals(blocked);
    }
}

void MQ48ClockTree::setComboIndex(const QString &name, int index)
{
    if (auto *box = qobject_cast<QComboBox *>(control(name))) {
        const bool blocked = box->blockSignals(true);
        box->setCurrentIndex(qBound(0, index, box->count() - 1));
        box->blockSignals(blocked);
    }
}

void MQ48ClockTree::setEnabled(const QString &name, bool enabled)
{
    if (QWidget *w = control(name))
        w->setEnabled(enabled);
}

void MQ48ClockTree::setText(const QString &name, const QString &text)
{
    QWidget *w = control(name);
    if (auto *e = qobject_cast<QLineEdit *>(w)) {
        if (e->text() != text) {
            const bool blocked = e->blockSignals(true);
            e->setText(text);
            e->blockSignals(blocked);
        }
    } else if (auto *l = qobject_cast<QLabel *>(w)) {
        if (l->text() != text) {
            l->setText(text);
            refit(l);
        }
    }
}

void MQ48ClockTree::setLook(const QString &name, Look look, const QColor &text)
{
    QWidget *w = control(name);
    if (!w)
        return;
    QColor bg = kWhite;
    QString border = QStringLiteral("1px solid rgb(120, 150, 170)");
    switch (look) {
    case Look::Green:
        bg = kGreenField;
        break;
    case Look::Pending:
        bg = kPendingField;
        break;
    case Look::Inactive:
        border = QStringLiteral("1px solid rgb(190, 190, 190)");
        break;
    case Look::Plain:
        break;
    }
    m_backgrounds.insert(w, bg);
    m_textColors.insert(w, text);
    w->setStyleSheet(QStringLiteral("QLineEdit { background-color: rgb(%1, %2, %3); color: "
                                    "rgb(%4, %5, %6); border: %7; border-radius: 3px; padding: "
                                    "0 3px; }"
                                    "QLineEdit:disabled { color: rgb(150, 150, 150);"
                                    " background-color: rgb(240, 243, 246); }")
                         .arg(bg.red())
                         .arg(bg.green())
                         .arg(bg.blue())
                         .arg(text.red())
                         .arg(text.green())
                         .arg(text.blue())
                         .arg(border));
}

void MQ48ClockTree::setValueColor(const QString &name, bool bad, const QColor &good)
{
    QWidget *w = control(name);
    if (!w)
        return;
    const QColor c = bad ? kRed : good;
    if (qobject_cast<QLineEdit *>(w)) {
        const QColor bg = m_backgrounds.value(w, kWhite);
        Look look = Look::Plain;
        if (bg == kGreenField)
            look = Look::Green;
        else if (bg == kPendingField)
            look = Look::Pending;
        setLook(name, look, c);
    } else {
        m_textColors.insert(w, c);
        setLabelColor(w, c);
    }
}

void MQ48ClockTree::setVisible(const QString &name, bool visible)
{
    if (QGraphicsProxyWidget *p = m_proxies.value(name))
        p->setVisible(visible);
}

QColor MQ48ClockTree::fieldBackground(const QString &name) const
{
    // A disabled field shows no state colour, whatever it had.
    QWidget *w = control(name);
    if (w && !w->isEnabled())
        return kDisabledField;
    return m_backgrounds.value(w, kWhite);
}

QColor MQ48ClockTree::fieldTextColor(const QString &name) const
{
    return m_textColors.value(control(name), kBlack);
}

bool MQ48ClockTree::listOpen(const QString &button) const
{
    QGraphicsProxyWidget *p = m_lists.value(button);
    return p && p->isVisible();
}

// ---- state to widgets ----

void MQ48ClockTree::syncFromState()
{
    const ClockTreeState &s = clockState();
    setText(QStringLiteral("hext"), QString::number(s.hext));
    setChecked(QStringLiteral("rtcsel"), s.rtcsel);
    setComboIndex(QStringLiteral("rtcdiv"), s.rtcdiv - 2);
    setChecked(QStringLiteral("pllrcs"), s.pllrcs == 0 ? 0 : 1);
    if (auto *r = qobject_cast<QAbstractButton *>(control(QStringLiteral("pllhextdiv_1")))) {
        const bool blocked = r->blockSignals(true);
        r->setChecked(s.pllhextdiv != 0);
        r->blockSignals(blocked);
    }
    setComboIndex(QStringLiteral("hextdiv"), s.hextdiv - 2);
    setComboIndex(QStringLiteral("pllmode"), s.pllmode == 1 ? 0 : 1);
    setChecked(QStringLiteral("sclkselect"), s.sclkselect);
    setChecked(QStringLiteral("hicktosclk"), s.hicktosclk);
    setComboIndex(QStringLiteral("sclkhextdiv"),
                  indexOfValue({1, 2, 4, 8, 16, 32}, s.sclkhextdiv));
    setComboIndex(QStringLiteral("sclkhickdiv"), indexOfValue({1, 2, 4, 8, 16}, s.sclkhickdiv));
    setComboIndex(QStringLiteral("ahbdiv"),
                  indexOfValue({1, 2, 4, 8, 16, 64, 128, 256, 512}, s.ahbdiv));
    setComboIndex(QStringLiteral("apb1div"), indexOfValue({1, 2, 4, 8, 16}, s.apb1div));
    setComboIndex(QStringLiteral("apb2div"), indexOfValue({1, 2, 4, 8, 16}, s.apb2div));
    setComboIndex(QStringLiteral("systicdiv"), s.systicdiv == 1 ? 0 : 1);
    setComboIndex(QStringLiteral("adcdiv"), indexOfValue({2, 3, 4, 5, 6, 8, 12, 16}, s.adcdiv));
    setChecked(QStringLiteral("hicktousb"), s.hicktousb);
    setChecked(QStringLiteral("clkout1"), s.clkout1);
    setChecked(QStringLiteral("clkout2"), s.clkout2);
    setChecked(QStringLiteral("clkout"), s.clkout);
    setComboIndex(QStringLiteral("clockout1div1"), s.clkout1div1 - 1);
    setComboIndex(QStringLiteral("clockout2div1"), s.clkout2div1 - 1);
    const std::initializer_list<int> div2 = {1, 2, 4, 8, 16, 64, 128, 256, 512};
    setComboIndex(QStringLiteral("clockout1div2"), indexOfValue(div2, s.clkout1div2));
    setComboIndex(QStringLiteral("clockout2div2"), indexOfValue(div2, s.clkout2div2));
    setComboIndex(QStringLiteral("clockoutdiv"), indexOfValue(div2, s.clkoutdiv));
    setComboIndex(QStringLiteral("clockoutdiv1"), s.clkoutdiv1 - 1);
    setComboIndex(QStringLiteral("clockoutdiv2"), indexOfValue(div2, s.clkoutdiv2));
    setChecked(QStringLiteral("usart1clocksel"), s.usart1clocksel);
    setChecked(QStringLiteral("usart2clocksel"), s.usart2clocksel);
    setChecked(QStringLiteral("usart3clocksel"), s.usart3clocksel);
    setChecked(QStringLiteral("i2c1clocksel"), s.i2c1clocksel);
    setChecked(QStringLiteral("adcclocksel"), s.adcclocksel);
    setChecked(QStringLiteral("i2sf5clocksel"), s.i2sf5clocksel);
    setText(QStringLiteral("i2sf5"), QString::number(s.i2sf5ext));
    writePllFields();
    setText(QStringLiteral("sclk"), mhz(s.sclk));
    setLook(QStringLiteral("hext"), Look::Green, kBlack);
    setLook(QStringLiteral("pllms"), Look::Plain, kBlack);
    setLook(QStringLiteral("pllns"), Look::Plain, kBlack);
    setLook(QStringLiteral("i2sf5"), Look::Plain, kBlack);
    setLook(QStringLiteral("sclk"), s.sclkselect == 1 ? Look::Green : Look::Inactive, kDarkGreen);
    applyPllModeVisibility();
}

void MQ48ClockTree::writePllFields()
{
    const ClockTreeState &s = clockState();
    setText(QStringLiteral("pllms"), QStringLiteral("/") + QString::number(s.pllms));
    setText(QStringLiteral("pllns"), QStringLiteral("*") + QString::number(s.pllns));
    setComboIndex(QStringLiteral("pllfr"), indexOfValue({1, 2, 4, 8, 16, 32}, s.pllfr));
    setComboIndex(QStringLiteral("pllmult"), s.pllmult - 2);
    setComboIndex(QStringLiteral("pllfp"), s.pllfp <= 1 ? 0 : s.pllfp / 2);
    setComboIndex(QStringLiteral("pllfu"), indexOfValue({11, 13, 12, 14, 16, 18, 20}, s.pllfu));
    const int usbIndex = int(qRound((s.usbdiv - 1.0) * 2.0));
    const bool exact = qFuzzyCompare(1.0 + usbIndex * 0.5, s.usbdiv);
    setComboIndex(QStringLiteral("usbdiv"),
                  exact && usbIndex >= 0 && usbIndex <= 12 ? usbIndex : 0);
}

void MQ48ClockTree::updateRtcField()
{
    const ClockTreeState &s = clockState();
    QString text;
    if (s.rtcsel == 0) {
        text = QStringLiteral("40");
    } else if (s.rtcsel == 1) {
        text = QStringLiteral("32.768");
    } else {
        bool ok = false;
        const auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("hext")));
        const double v = e ? fieldNumber(e->text(), &ok) : 0.0;
        text = ok && v >= 4.0 && v <= 25.0 && s.rtcdiv > 0 ? mhz(s.hext * 1000.0 / s.rtcdiv)
                                                           : QStringLiteral("0");
    }
    setText(QStringLiteral("tortc"), text);
}

void MQ48ClockTree::applyPllModeVisibility()
{
    if (m_family->pllForm != PllForm::Selectable)
        return;
    const bool flexible = clockState().pllmode == 1;
    for (const char *n : {"pllms", "pllns", "pllfr", "cap_pllms", "cap_pllns", "cap_pllfr",
                          "pllreg", "pllreg_caption"})
        setVisible(QLatin1String(n), flexible);
    for (const char *n : {"pllmult", "cap_pllmult"})
        setVisible(QLatin1String(n), !flexible);
}

// ---- the three recurring steps ----

bool MQ48ClockTree::flexibleActive() const
{
    switch (m_family->pllForm) {
    case PllForm::Multiplier:
        return false;
    case PllForm::Selectable:
        return clockState().pllmode == 1;
    default:
        return true;
    }
}

bool MQ48ClockTree::hextCheck()
{
    const auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("hext")));
    bool ok = false;
    const double v = e ? fieldNumber(e->text(), &ok) : 0.0;
    if (!ok || v < 4.0 || v > 25.0)
        return error(tr("hext input error!"));
    clockState().hext = v;
    return true;
}

bool MQ48ClockTree::validatePll()
{
    ClockTreeState &s = clockState();
    if (s.hextNeeded() && !hextCheck())
        return false;
    if (!s.pllInUse() || !flexibleActive())
        return true;

    const auto *ms = qobject_cast<QLineEdit *>(control(QStringLiteral("pllms")));
    const auto *ns = qobject_cast<QLineEdit *>(control(QStringLiteral("pllns")));
    const int msValue = fieldInteger(ms ? ms->text() : QString(), QLatin1Char('/'));
    if (msValue < 1 || msValue > 15)
        return error(tr("pll_ms input error!"));
    int adjusted = 1;
    if (!s.checkPllMs(msValue, adjusted)) {
        const QString text =
            m_family->msSentenceBlankLine
                ? tr("pll_ms input error, is it adjusted automatically?\n\nThe following "
                     "condition must be met: \n2MHz <= pll_input / pll_ms <= 16MHz")
                : tr("pll_ms input error, is it adjusted automatically?\nThe following "
                     "condition must be met: \n2MHz <= pll_input / pll_ms <= 16MHz");
        if (!ask(text))
            return false;
        s.pllms = adjusted;
        setText(QStringLiteral("pllms"), QStringLiteral("/") + QString::number(adjusted));
    } else {
        s.pllms = msValue;
    }

    const int nsValue = fieldInteger(ns ? ns->text() : QString(), QLatin1Char('*'));
    if (nsValue < 31 || nsValue > 500)
        return error(tr("pll_ns input error!"));
    if (!s.checkPllNs(nsValue, s.pllms, adjusted)) {
        const QString text =
            m_family->vcoMax > 1000.0
                ? tr("pll_ns input error, is it adjusted automatically?\n\nThe following "
                     "condition must be met: \n500MHz <= pll_input * pll_ns / pll_ms <= "
                     "1200MHz")
                : tr("pll_ns input error, is it adjusted automatically?\n\nThe following "
                     "condition must be met: \n500MHz <= pll_input * pll_ns / pll_ms <= "
                     "1000MHz");
        if (!ask(text))
            return false;
        s.pllns = adjusted;
        setText(QStringLiteral("pllns"), QStringLiteral("*") + QString::number(adjusted));
    } else {
        s.pllns = nsValue;
    }
    pllms_LineEdit_textChanged(ms->text());
    pllns_LineEdit_textChanged(ns->text());
    return true;
}

void MQ48ClockTree::refreshEnable()
{
    const ClockTreeState &s = clockState();
    const bool lext = s.lextEnabled, hext = s.hextEnabled;
    for (const char *n : {"lext", "lext_in", "lext_out", "cap_lext", "rtcsel_1"})
        setEnabled(QLatin1String(n), lext);
    setEnabled(QStringLiteral("rtcdiv"), hext && s.rtcsel == 2);
    for (const char *n : {"hext", "hext_in", "hext_out", "cap_hext", "rtcsel_2", "pllrcs_0",
                          "sclkselect_0", "sclkhextdiv", "pllhextdiv_1", "hextdiv"})
        setEnabled(QLatin1String(n), hext);
    setEnabled(QStringLiteral("hick"), true);

    const bool pll = s.pllInUse();
    for (const char *n : {"pllms", "pllns", "pllfr", "pllfp", "pllfu", "pllmult", "pllmode",
                          "pllreg", "pllreg_caption", "pllout", "pllrcs_1", "cap_pllms",
                          "cap_pllns", "cap_pllfr", "cap_pllmult", "cap_pllfp", "cap_pllfu"})
        setEnabled(QLatin1String(n), pll);
    setEnabled(QStringLiteral("pllrcs_0"), pll && hext);
    setEnabled(QStringLiteral("pllhextdiv_1"), pll && hext && s.pllrcs == 0);
    setEnabled(QStringLiteral("hextdiv"), pll && hext && s.pllrcs == 0);
    setLook(QStringLiteral("pllms"), pll ? Look::Plain : Look::Inactive,
            m_textColors.value(control(QStringLiteral("pllms")), kBlack));
    setLook(QStringLiteral("pllns"), pll ? Look::Plain : Look::Inactive,
            m_textColors.value(control(QStringLiteral("pllns")), kBlack));

    for (int v = 0; v < 2; ++v)
        setEnabled(QStringLiteral("hicktosclk_%1").arg(v), s.sclkselect == 2);
    setEnabled(QStringLiteral("sclkhickdiv"), s.sclkselect == 2);
    setEnabled(QStringLiteral("sclkhextdiv"), hext && s.sclkselect == 0);
    setEnabled(QStringLiteral("sclk"), s.sclkselect == 1);

    auto groupEnabled = [this](const QString &g, bool on) {
        if (QButtonGroup *group = m_groups.value(g)) {
            for (QAbstractButton *b : group->buttons())
                b->setEnabled(on);
        }
    };
    const bool out1 = s.clkout1pin != 0, out2 = s.clkout2pin != 0, out = s.clkoutpin != 0;
    groupEnabled(QStringLiteral("clkout1"), out1);
    groupEnabled(QStringLiteral("clkout2"), out2);
    groupEnabled(QStringLiteral("clkout"), out);
    for (const char *n : {"clockout1div1", "clockout1div2"})
        setEnabled(QLatin1String(n), out1);
    for (const char *n : {"clockout2div1", "clockout2div2"})
        setEnabled(QLatin1String(n), out2);
    for (const char *n : {"clockoutdiv", "clockoutdiv1", "clockoutdiv2"})
        setEnabled(QLatin1String(n), out);
    if (out1) {
        setEnabled(QStringLiteral("clkout1_1"), lext);
        setEnabled(QStringLiteral("clkout1_2"), hext);
    }
    if (out2) {
        setEnabled(QStringLiteral("clkout2_1"), hext);
        setEnabled(QStringLiteral("clkout2_7"), lext);
    }
    if (out) {
        setEnabled(QStringLiteral("clkout_2"), lext);
        setEnabled(QStringLiteral("clkout_4"), hext);
    }

    groupEnabled(QStringLiteral("hicktousb"), s.usbEnabled);
    setEnabled(QStringLiteral("usbdiv"), s.usbEnabled && s.hicktousb == 0);
    setEnabled(QStringLiteral("usbout"), s.usbEnabled);
    setEnabled(QStringLiteral("adcdiv"), s.adcEnabled);

    const struct
    {
        const char *group;
        bool on;
        const char *peripheral;
    } selects[] = {{"usart1clocksel", s.usart1Enabled, "USART1"},
                   {"usart2clocksel", s.usart2Enabled, "USART2"},
                   {"usart3clocksel", s.usart3Enabled, "USART3"},
                   {"i2c1clocksel", s.i2c1Enabled, "I2C1"},
                   {"adcclocksel", s.adcEnabled, "ADC"},
                   {"i2sf5clocksel", s.i2sf5Enabled, "I2SF5"}};
    for (const auto &sel : selects) {
        QButtonGroup *group = m_groups.value(QLatin1String(sel.group));
        if (!group)
            continue;
        const QString tip = sel.on ? QString()
                                   : tr("Need to enable \"%1\" in \"Pin out Configuration\".")
                                         .arg(QLatin1String(sel.peripheral));
        for (QAbstractButton *b : group->buttons()) {
            b->setEnabled(sel.on);
            b->setToolTip(tip);
        }
    }
    setEnabled(QStringLiteral("i2sf5"), s.i2sf5Enabled && s.i2sf5clocksel == 3);
}

bool MQ48ClockTree::showClocks()
{
    const ClockTreeState &s = clockState();
    const ClockFamily &f = *m_family;
    const bool t5 = f.model == ClockModel::T510 || f.model == ClockModel::T520;
    bool err = false;

    const bool sclkBad = s.sclk > f.sclkMax;
    err |= sclkBad;
    setText(QStringLiteral("sclk"), mhz(s.sclk));
    setValueColor(QStringLiteral("sclk"), sclkBad, kDarkGreen);
    setText(QStringLiteral("out_i2s"), mhz(s.sclk));
    setValueColor(QStringLiteral("out_i2s"), sclkBad, kDarkGreen);
    const bool usage = s.sclk > 240.0;
    for (const char *n : {"usage1", "usage2", "usage3"})
        setVisible(QLatin1String(n), usage);

    const bool ahbBad = s.ahbclk > f.sclkMax;
    err |= ahbBad;
    const double systick = t5 ? s.ahbclk * 0.125 : s.ahbclk / qMax(1, s.systicdiv);
    setText(QStringLiteral("out_systick"), mhz(systick));
    setValueColor(QStringLiteral("out_systick"), ahbBad, kDarkGreen);
    for (const char *n :
         {"out_sdio", "out_dma", "out_xmc", "out_gpio", "out_emac", "out_dvp", "out_qspi"}) {
        setText(QLatin1String(n), mhz(s.ahbclk));
        setValueColor(QLatin1String(n), ahbBad, kDarkGreen);
    }
    if (control(QStringLiteral("out_adc"))) {
        double adc = s.adcclk;
        bool adcBad = false;
        if (t5) {
            adc = s.ahbclk;
            adcBad = ahbBad;
        } else if (f.hasPeripheralClockSelects) {
            adc = s.adcclocksel == 1 ? s.pllclk : s.ahbclk;
        } else {
            adcBad = f.adcMax > 0 && s.adcEnabled && adc > f.adcMax;
        }
        err |= adcBad;
        setText(QStringLiteral("out_adc"), mhz(adc));
        setValueColor(QStringLiteral("out_adc"), adcBad, kDarkGreen);
    }

    auto bus = [&](const QString &name, double value, double limit) {
        const bool bad = limit > 0 && value > limit;
        err |= bad;
        setText(name, mhz(value));
        setValueColor(name, bad, kDarkGreen);
    };
    bus(QStringLiteral("apb1p"), s.apb1clk, f.apb1Max);
    bus(QStringLiteral("apb1tmr"), s.apb1tmrclk, f.sclkMax);
    bus(QStringLiteral("apb2p"), s.apb2clk, f.apb2Max);
    bus(QStringLiteral("apb2tmr"), s.apb2tmrclk, f.sclkMax);
    setComboIndex(QStringLiteral("apb1div"), indexOfValue({1, 2, 4, 8, 16}, s.apb1div));
    setComboIndex(QStringLiteral("apb2div"), indexOfValue({1, 2, 4, 8, 16}, s.apb2div));
    setText(QStringLiteral("apb1mult"), QStringLiteral("* ") + QString::number(s.apb1tmrmult));
    setText(QStringLiteral("apb2mult"), QStringLiteral("* ") + QString::number(s.apb2tmrmult));

    if (f.hasUsb) {
        const bool usbBad = s.usbEnabled && s.usbclk != 48.0;
        err |= usbBad;
        setText(QStringLiteral("usbout"), mhz(s.usbclk) + QStringLiteral(" MHz"));
        setValueColor(QStringLiteral("usbout"), usbBad, kDarkGreen);
        writePllFields();
        if (f.hasUsbHsPhy) {
            const bool hs = s.usbGate2;
            setText(QStringLiteral("usbhsphy"), hs ? mhz(s.hext) : QString());
            const bool phyBad = hs && s.hext != 12.0;
            err |= phyBad;
            setValueColor(QStringLiteral("usbhsphy"), phyBad, kDarkGreen);
        }
    }

    QWidget *pllOut = control(QStringLiteral("pllout"));
    if (pllOut && pllOut->isEnabled()) {
        const bool bad =
            (f.pllMax > 0 && s.pllclk > f.pllMax) || (f.pllMin > 0 && s.pllclk < f.pllMin);
        err |= bad;
        setText(QStringLiteral("pllout"), mhz(s.pllclk) + QStringLiteral(" MHz"));
        setValueColor(QStringLiteral("pllout"), bad, kDarkGreen);
    } else {
        setText(QStringLiteral("pllout"), QString());
    }
    QWidget *reg = control(QStringLiteral("pllreg"));
    if (reg && reg->isEnabled() && flexibleActive()) {
        setText(QStringLiteral("pllreg_caption"), tr("CRM_PLLCFG: "));
        setText(QStringLiteral("pllreg"),
                QStringLiteral("0x%1").arg(s.pllcfgRegister(), 8, 16, QLatin1Char('0')));
    } else {
        setText(QStringLiteral("pllreg_caption"), QString());
        setText(QStringLiteral("pllreg"), QString());
    }
    showClockOutputs();

    emit SendClockHaveErrorSignal(err);
    clockChangedPending = true;
    return err;
}

void MQ48ClockTree::showClockOutputs()
{
    const ClockTreeState &s = clockState();
    const bool hick48 = (s.usbEnabled && s.hicktousb == 1) ||
                        (s.sclkselect == 2 && s.hicktosclk == 1) ||
                        (s.sclkselect == 1 && s.pllrcs != 0);
    const double hick = hick48 ? 48.0 : 8.0;
    // Source value in MHz and its bracket text.
    auto source = [&](const QString &kind) -> QPair<double, QString> {
        if (kind == QLatin1String("lick"))
            return {s.lick / 1000.0, QStringLiteral("(40.000 kHz)")};
        if (kind == QLatin1String("lext"))
            return {s.lext / 1000.0, QStringLiteral("(32.768 kHz)")};
        if (kind == QLatin1String("hick"))
            return {hick, QStringLiteral("(%1 MHz)").arg(mhz(hick))};
        if (kind == QLatin1String("hext"))
            return {s.hext, QStringLiteral("(%1 MHz)").arg(mhz(s.hext))};
        if (kind == QLatin1String("pll"))
            return {s.pllclk, QStringLiteral("(%1 MHz)").arg(mhz(s.pllclk))};
        if (kind == QLatin1String("sclk"))
            return {s.sclk, QStringLiteral("(%1 MHz)").arg(mhz(s.sclk))};
        if (kind == QLatin1String("usb"))
            return {s.usbclk, QStringLiteral("(%1 MHz)").arg(mhz(s.usbclk))};
        return {0.0, QString()};
    };
    auto result = [](double mhzValue) {
        return mhzValue < 1.0 ? QString::number(mhzValue * 1000.0, 'f', 3) + QStringLiteral(" kHz")
                              : mhz(mhzValue) + QStringLiteral(" MHz");
    };
    auto dual = [&](const QString &n, const QStringList &kinds, int chosen, int pin, int d1,
                    int d2) {
        if (!control(n + QStringLiteral("_0")))
            return;
        for (int i = 0; i < kinds.size(); ++i) {
            const QString label = n + QStringLiteral("_src_") + QString::number(i);
            setText(label, pin && i == chosen ? source(kinds[i]).second : QString());
            setLabelColor(control(label), kDarkGreen);
        }
        if (!pin || chosen < 0 || chosen >= kinds.size()) {
            setText(n + QStringLiteral("_val"), QString());
            return;
        }
        const QPair<double, QString> src = source(kinds[chosen]);
        setText(n + QStringLiteral("_val"),
                src.second.isEmpty() ? QString() : result(src.first / qMax(1, d1) / qMax(1, d2)));
        setLabelColor(control(n + QStringLiteral("_val")), kDarkGreen);
    };
    dual(QStringLiteral("clkout1"), {"hick", "lext", "hext", "pll"}, s.clkout1, s.clkout1pin,
         s.clkout1div1, s.clkout1div2);
    dual(QStringLiteral("clkout2"), {"sclk", "hext", "pll", "usb", "hick", "adc", "lick", "lext"},
         s.clkout2, s.clkout2pin, s.clkout2div1, s.clkout2div2);

    if (control(QStringLiteral("clkout_val"))) {
        double v = 0.0;
        bool known = true;
        switch (s.clkout) {
        case 1:
            v = s.lick / 1000.0;
            break;
        case 2:
            v = s.lext / 1000.0;
            break;
        case 3:
            v = hick;
            break;
        case 4:
            v = s.hext;
            break;
        case 5:
            v = s.sclk;
            break;
        case 6:
            v = s.usbclk;
            break;
        case 8:
            v = s.pllclk / 2.0;
            break;
        case 9:
            v = s.pllclk / 4.0;
            break;
        case 10:
            v = s.pllclk;
            break;
        default:
            known = false;
            break;
        }
        const int div = control(QStringLiteral("clockoutdiv"))
                            ? s.clkoutdiv
                            : qMax(1, s.clkoutdiv1) * qMax(1, s.clkoutdiv2);
        setText(QStringLiteral("clkout_val"),
                s.clkoutpin && known ? tr("clkout: ") + result(v / qMax(1, div)) : QString());
        setLabelColor(control(QStringLiteral("clkout_val")), kDarkGreen);
    }
}

void MQ48ClockTree::commonTail()
{
    if (validatePll()) {
        clockState().recalculate();
        showClocks();
    }
}

void MQ48ClockTree::chooser()
{
    clockState().solveForSource();
    writePllFields();
    showClocks();
}

bool MQ48ClockTree::readSclkField(bool showError)
{
    ClockTreeState &s = clockState();
    if (s.sclkselect != 1)
        return true;
    const auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("sclk")));
    bool ok = false;
    const double v = e ? fieldNumber(e->text(), &ok) : 0.0;
    if (!ok || v < 4.0 || v > m_family->sclkMax) {
        if (showError)
            error(tr("sclk input error!"));
        return false;
    }
    s.sclk = v;
    return true;
}

// ---- slots ----

void MQ48ClockTree::HandleTimeout()
{
    if (clockChangedPending) {
        clockChangedPending = false;
        emit SendClockChangedSignal();
    }
    if (usbSourceChangedPending) {
        usbSourceChangedPending = false;
        emit SendUSBClockSourceChangeSignal();
    }
    if (i2sf5SourceChangedPending) {
        i2sf5SourceChangedPending = false;
        emit SendI2SF5ClockSourceChangeSignal();
    }
}

void MQ48ClockTree::hext_LineEdit_textChanged(const QString &text)
{
    bool ok = false;
    const double v = fieldNumber(text, &ok);
    const bool same =
        ok && QString::number(v, 'f', 5) == QString::number(clockState().hext, 'f', 5);
    const bool inRange = ok && v >= 4.0 && v <= 25.0;
    setLook(QStringLiteral("hext"), same ? Look::Green : Look::Pending, inRange ? kBlack : kRed);
}

void MQ48ClockTree::hext_LineEdit_returnPressed()
{
    if (!hextCheck())
        return;
    ClockTreeState &s = clockState();
    if (s.sclkselect != 1 && s.usbOnPll()) {
        s.solveForUsb();
        writePllFields();
    }
    commonTail();
    updateRtcField();
    hext_LineEdit_textChanged(qobject_cast<QLineEdit *>(control(QStringLiteral("hext")))->text());
}

void MQ48ClockTree::pllms_LineEdit_textChanged(const QString &text)
{
    auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("pllms")));
    if (!e || !e->isEnabled())
        return;
    if (!text.startsWith(QLatin1Char('/'))) {
        const int caret = e->cursorPosition();
        const bool blocked = e->blockSignals(true);
        e->setText(QStringLiteral("/") + text);
        e->setCursorPosition(caret + 1);
        e->blockSignals(blocked);
    }
    const int v = fieldInteger(e->text(), QLatin1Char('/'));
    setLook(QStringLiteral("pllms"), v == clockState().pllms ? Look::Plain : Look::Pending,
            v >= 1 && v <= 15 ? kBlack : kRed);
}

void MQ48ClockTree::pllns_LineEdit_textChanged(const QString &text)
{
    auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("pllns")));
    if (!e || !e->isEnabled())
        return;
    if (!text.startsWith(QLatin1Char('*'))) {
        const int caret = e->cursorPosition();
        const bool blocked = e->blockSignals(true);
        e->setText(QStringLiteral("*") + text);
        e->setCursorPosition(caret + 1);
        e->blockSignals(blocked);
    }
    const int v = fieldInteger(e->text(), QLatin1Char('*'));
    setLook(QStringLiteral("pllns"), v == clockState().pllns ? Look::Plain : Look::Pending,
            v >= 31 && v <= 500 ? kBlack : kRed);
}

void MQ48ClockTree::pllms_LineEdit_returnPressed()
{
    auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("pllms")));
    const int v = fieldInteger(e->text(), QLatin1Char('/'));
    if (v < 1 || v > 15) {
        error(tr("pll_ms input error!"));
        return;
    }
    if (clockState().pllrcs == 0 && !hextCheck())
        return;
    commonTail();
    pllms_LineEdit_textChanged(e->text());
}

void MQ48ClockTree::pllns_LineEdit_returnPressed()
{
    auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("pllns")));
    const int v = fieldInteger(e->text(), QLatin1Char('*'));
    if (v < 31 || v > 500) {
        error(tr("pll_ns input error!"));
        return;
    }
    if (clockState().pllrcs == 0 && !hextCheck())
        return;
    commonTail();
    pllns_LineEdit_textChanged(e->text());
}

void MQ48ClockTree::pllfr_ComboBox_currentIndexChanged(int index)
{
    if (clockState().pllrcs == 0 && !hextCheck())
        return;
    clockState().pllfr = ClockItems::frValue(index);
    commonTail();
}

void MQ48ClockTree::pllrcs_RadioButton_checkSlot(bool checked)
{
    if (!checked)
        return;
    ClockTreeState &s = clockState();
    s.pllrcs = senderValue() == 0 ? 0 : 1;
    refreshEnable();
    if (s.pllrcs == 0 && !hextCheck())
        return;
    if (!readSclkField(true))
        return;
    chooser();
}

void MQ48ClockTree::sclkselecthext_RadioButton_checkSlot(bool checked)
{
    refreshEnable();
    if (!checked)
        return;
    clockState().sclkselect = 0;
    refreshEnable();
    setLook(QStringLiteral("sclk"), Look::Inactive, kDarkGreen);
    if (!hextCheck())
        return;
    commonTail();
    chooser();
}

void MQ48ClockTree::sclkselecthick_RadioButton_checkSlot(bool checked)
{
    refreshEnable();
    if (!checked)
        return;
    clockState().sclkselect = 2;
    refreshEnable();
    setLook(QStringLiteral("sclk"), Look::Inactive, kDarkGreen);
    commonTail();
    chooser();
}

void MQ48ClockTree::sclkselectpll_RadioButton_checkSlot(bool checked)
{
    refreshEnable();
    if (!checked)
        return;
    ClockTreeState &s = clockState();
    s.sclkselect = 1;
    refreshEnable();
    setLook(QStringLiteral("sclk"), Look::Green, kDarkGreen);
    if (s.pllrcs == 0 && !hextCheck())
        return;
    commonTail();
    readSclkField(false);
    chooser();
}

void MQ48ClockTree::sclk_LineEdit_textChanged(const QString &text)
{
    const ClockTreeState &s = clockState();
    bool ok = false;
    const double v = fieldNumber(text, &ok);
    const bool same = ok && mhz(v) == mhz(s.sclk);
    const Look look = !same ? Look::Pending : s.sclkselect == 1 ? Look::Green : Look::Inactive;
    const bool inRange = ok && v >= 4.0 && v <= m_family->sclkMax;
    setLook(QStringLiteral("sclk"), look, inRange ? kDarkGreen : kRed);
}

void MQ48ClockTree::sclk_LineEdit_returnPressed()
{
    ClockTreeState &s = clockState();
    if (s.sclkselect != 1)
        return;
    if (!readSclkField(true))
        return;
    if (s.pllrcs == 0 && !hextCheck())
        return;
    s.solveForSclk();
    writePllFields();
    setLook(QStringLiteral("sclk"), Look::Green, kDarkGreen);
    showClocks();
    sclk_LineEdit_textChanged(mhz(s.sclk));
}

void MQ48ClockTree::ahbdiv_ComboBox_currentIndexChanged(int index)
{
    clockState().ahbdiv = ClockItems::ahbValue(index);
    commonTail();
}

void MQ48ClockTree::apb1div_ComboBox_currentIndexChanged(int index)
{
    clockState().apb1div = ClockItems::apbValue(index);
    commonTail();
}

void MQ48ClockTree::apb2div_ComboBox_currentIndexChanged(int index)
{
    clockState().apb2div = ClockItems::apbValue(index);
    commonTail();
}

void MQ48ClockTree::systicdiv_ComboBox_currentIndexChanged(int index)
{
    clockState().systicdiv = index == 0 ? 1 : 8;
    commonTail();
}

void MQ48ClockTree::usbdiv_ComboBox_currentIndexChanged(int index)
{
    ClockTreeState &s = clockState();
    s.usbdiv = 1.0 + index * 0.5;
    if (s.sclkselect != 1 && s.usbOnPll()) {
        if (s.pllrcs == 0 && !hextCheck())
            return;
        s.solveForUsb();
        writePllFields();
        showClocks();
    } else {
        commonTail();
    }
}

void MQ48ClockTree::hicktousb_RadioButton_checkSlot(bool checked)
{
    if (!checked)
        return;
    ClockTreeState &s = clockState();
    usbSourceChangedPending = true;
    if (senderValue() == 1) {
        s.hicktousb = 1;
        s.usbclk = 48.0;
        refreshEnable();
        showClocks();
        return;
    }
    s.hicktousb = 0;
    refreshEnable();
    auto *box = qobject_cast<QComboBox *>(control(QStringLiteral("usbdiv")));
    if (box) {
        usbdiv_ComboBox_currentIndexChanged(box->currentIndex());
    } else if (s.sclkselect != 1 && s.usbOnPll()) {
        if (s.pllrcs == 0 && !hextCheck())
            return;
        s.solveForUsb();
        writePllFields();
        showClocks();
    } else {
        commonTail();
    }
}

void MQ48ClockTree::hicktosclk_RadioButton_checkSlot(bool checked)
{
    if (!checked)
        return;
    clockState().hicktosclk = senderValue() == 0 ? 0 : 1;
    commonTail();
}

void MQ48ClockTree::rtcsel_RadioButton_checkSlot(bool checked)
{
    if (!checked)
        return;
    clockState().rtcsel = senderValue();
    refreshEnable();
    if (clockState().rtcsel == 2)
        hext_LineEdit_returnPressed();
    updateRtcField();
    showClocks();
}

void MQ48ClockTree::rtcdiv_ComboBox_currentIndexChanged(int index)
{
    clockState().rtcdiv = index + 2;
    updateRtcField();
    clockChangedPending = true;
}

void MQ48ClockTree::clkout1_RadioButton_checkSlot(bool checked)
{
    if (!checked)
        return;
    clockState().clkout1 = senderValue();
    refreshEnable();
    commonTail();
}

void MQ48ClockTree::clkout2_RadioButton_checkSlot(bool checked)
{
    if (!checked)
        return;
    clockState().clkout2 = senderValue();
    refreshEnable();
    commonTail();
}

void MQ48ClockTree::clkout_RadioButton_checkSlot(bool checked)
{
    if (!checked)
        return;
    clockState().clkout = senderValue();
    refreshEnable();
    commonTail();
}

void MQ48ClockTree::clockout1div1_ComboBox_currentIndexChanged(int index)
{
    clockState().clkout1div1 = index + 1;
    commonTail();
}

void MQ48ClockTree::clockout1div2_ComboBox_currentIndexChanged(int index)
{
    clockState().clkout1div2 = ClockItems::ahbValue(index);
    commonTail();
}

void MQ48ClockTree::clockout2div1_ComboBox_currentIndexChanged(int index)
{
    clockState().clkout2div1 = index + 1;
    commonTail();
}

void MQ48ClockTree::clockout2div2_ComboBox_currentIndexChanged(int index)
{
    clockState().clkout2div2 = ClockItems::ahbValue(index);
    commonTail();
}

void MQ48ClockTree::clockoutdiv_ComboBox_currentIndexChanged(int index)
{
    clockState().clkoutdiv = ClockItems::ahbValue(index);
    commonTail();
}

void MQ48ClockTree::clockoutdiv1_ComboBox_currentIndexChanged(int index)
{
    clockState().clkoutdiv1 = index + 1;
    commonTail();
}

void MQ48ClockTree::clockoutdiv2_ComboBox_currentIndexChanged(int index)
{
    clockState().clkoutdiv2 = ClockItems::ahbValue(index);
    commonTail();
}

void MQ48ClockTree::hextdiv_ComboBox_currentIndexChanged(int index)
{
    clockState().hextdiv = index + 2;
    if (clockState().pllrcs == 0 && !hextCheck())
        return;
    commonTail();
}

void MQ48ClockTree::hickdiv_ComboBox_currentIndexChanged(int index)
{
    sclkhickdiv_ComboBox_currentIndexChanged(index);
}

void MQ48ClockTree::sclkhextdiv_ComboBox_currentIndexChanged(int index)
{
    clockState().sclkhextdiv = ClockItems::hextSclkValue(index);
    commonTail();
}

void MQ48ClockTree::sclkhickdiv_ComboBox_currentIndexChanged(int index)
{
    clockState().sclkhickdiv = ClockItems::hickSclkValue(index);
    commonTail();
}

void MQ48ClockTree::pllhextdiv_RadioButton_checkSlot(bool checked)
{
    clockState().pllhextdiv = checked ? 1 : 0;
    if (clockState().pllrcs == 0 && !hextCheck())
        return;
    commonTail();
    readSclkField(false);
    chooser();
}

void MQ48ClockTree::pllmode_ComboBox_currentIndexChanged(int index)
{
    clockState().pllmode = index == 0 ? 1 : 0;
    applyPllModeVisibility();
    // The system clock stays: the new mode's settings are solved for it, so that fields the
    // user never touched can't be reported as errors.
    if (clockState().hextNeeded() && !hextCheck())
        return;
    readSclkField(false);
    chooser();
}

void MQ48ClockTree::pllmult_ComboBox_currentIndexChanged(int index)
{
    ClockTreeState &s = clockState();
    if (s.pllNeedsHext() && !hextCheck())
        return;
    s.pllmult = index + 2;
    if (validatePll()) {
        s.recalculate();
        showClocks();
    } else {
        emit SendClockHaveErrorSignal(true);
    }
}

void MQ48ClockTree::pllfp_ComboBox_currentIndexChanged(int index)
{
    if (clockState().pllrcs == 0 && !hextCheck())
        return;
    clockState().pllfp = ClockItems::fpValue(index);
    commonTail();
}

void MQ48ClockTree::pllfu_ComboBox_currentIndexChanged(int index)
{
    clockState().pllfu = ClockItems::fuValue(index);
    commonTail();
}

void MQ48ClockTree::toadcdiv_ComboBox_currentIndexChanged(int index)
{
    clockState().adcdiv = ClockItems::adcValue(index);
    commonTail();
}

void MQ48ClockTree::usart1clocksel_RadioButton_checkSlot(bool checked)
{
    if (checked) {
        clockState().usart1clocksel = senderValue();
        clockChangedPending = true;
    }
}

void MQ48ClockTree::usart2clocksel_RadioButton_checkSlot(bool checked)
{
    if (checked) {
        clockState().usart2clocksel = senderValue();
        clockChangedPending = true;
    }
}

void MQ48ClockTree::usart3clocksel_RadioButton_checkSlot(bool checked)
{
    if (checked) {
        clockState().usart3clocksel = senderValue();
        clockChangedPending = true;
    }
}

void MQ48ClockTree::i2c1clocksel_RadioButton_checkSlot(bool checked)
{
    if (checked) {
        clockState().i2c1clocksel = senderValue();
        clockChangedPending = true;
    }
}

void MQ48ClockTree::adcclocksel_RadioButton_checkSlot(bool checked)
{
    if (!checked)
        return;
    clockState().adcclocksel = senderValue();
    refreshEnable();
    commonTail();
    readSclkField(false);
    chooser();
}

void MQ48ClockTree::i2sf5clocksel_RadioButton_checkSlot(bool checked)
{
    if (!checked)
        return;
    clockState().i2sf5clocksel = senderValue();
    i2sf5SourceChangedPending = true;
    refreshEnable();
    commonTail();
    readSclkField(false);
    chooser();
}

void MQ48ClockTree::i2sf5_LineEdit_textChanged(const QString &text)
{
    bool ok = false;
    const double v = fieldNumber(text, &ok);
    const bool inRange = ok && v >= 1.0 && v <= 72.0;
    if (inRange) {
        clockState().i2sf5ext = v;
        clockChangedPending = true;
    }
    setLook(QStringLiteral("i2sf5"), Look::Plain, inRange ? kBlack : kRed);
}

// ---- peripheral lists ----

void MQ48ClockTree::toggleList(const QString &button)
{
    QGraphicsProxyWidget *p = m_lists.value(button);
    if (!p)
        return;
    const bool open = !p->isVisible();
    closeLists();
    p->setVisible(open);
    if (auto *b = qobject_cast<QPushButton *>(control(button))) {
        b->setIcon(QIcon(open ? QStringLiteral(":/image/btn_down_slider_hover.png")
                              : QStringLiteral(":/image/btn_right_slider_hover.png")));
    }
}

void MQ48ClockTree::closeLists()
{
    for (const char *n : kListButtons) {
        if (QGraphicsProxyWidget *p = m_lists.value(QLatin1String(n)))
            p->setVisible(false);
        if (auto *b = qobject_cast<QPushButton *>(control(QLatin1String(n))))
            b->setIcon(QIcon(QStringLiteral(":/image/btn_right_slider_hover.png")));
    }
}

void MQ48ClockTree::toapb1peripheral_List_Button_checkSlot()
{
    toggleList(QStringLiteral("list_apb1"));
}

void MQ48ClockTree::toapb1tmr_List_Button_checkSlot()
{
    toggleList(QStringLiteral("list_apb1tmr"));
}

void MQ48ClockTree::toapb2peripheral_List_Button_checkSlot()
{
    toggleList(QStringLiteral("list_apb2"));
}

void MQ48ClockTree::toapb2tmr_List_Button_checkSlot()
{
    toggleList(QStringLiteral("list_apb2tmr"));
}

bool MQ48ClockTree::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == view()->viewport() && event->type() == QEvent::MouseButtonPress) {
        auto *me = static_cast<QMouseEvent *>(event);
        const QPointF scenePos = view()->mapToScene(me->pos());
        bool onButton = false;
        for (const char *n : kListButtons) {
            QGraphicsProxyWidget *p = m_proxies.value(QLatin1String(n));
            if (p && p->sceneBoundingRect().contains(scenePos))
                onButton = true;
        }
        if (!onButton)
            closeLists();
    }
    return MQ48MCUPLL::eventFilter(watched, event);
}

// ---- operations of the page ----

bool MQ48ClockTree::checkClockConfig()
{
    ClockTreeState &s = clockState();
    const ClockFamily &f = *m_family;
    bool ok = false;
    if (s.hextEnabled) {
        const auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("hext")));
        const double v = fieldNumber(e->text(), &ok);
        if (!ok || v < 4.0 || v > 25.0)
            return error(tr("hext input error!"));
    }
    {
        const auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("sclk")));
        const double v = fieldNumber(e->text(), &ok);
        if (!ok || v < 4.0 || v > f.sclkMax)
            return error(tr("sclk input error!"));
    }
    if (s.pllInUse() && flexibleActive()) {
        const auto *ms = qobject_cast<QLineEdit *>(control(QStringLiteral("pllms")));
        const auto *ns = qobject_cast<QLineEdit *>(control(QStringLiteral("pllns")));
        const int msValue = fieldInteger(ms->text(), QLatin1Char('/'));
        if (msValue < 1 || msValue > 15)
            return error(tr("pll_ms input error!"));
        const int nsValue = fieldInteger(ns->text(), QLatin1Char('*'));
        if (nsValue < 31 || nsValue > 500)
            return error(tr("pll_ns input error!"));
    }
    if (f.hasI2sf5 && s.i2sf5Enabled && s.i2sf5clocksel == 3) {
        const auto *e = qobject_cast<QLineEdit *>(control(QStringLiteral("i2sf5")));
        const double v = fieldNumber(e->text(), &ok);
        if (!ok || v < 1.0 || v > 72.0)
            return error(tr("I2SF5 external clock input error! "));
    }
    readSclkField(false);
    chooser();
    updateRtcField();
    showClocks();

    auto limitText = [](const QString &sentence, double limit) {
        return sentence + QLatin1Char(' ') + QString::number(limit) + QStringLiteral("MHz");
    };
    if (s.sclk > f.sclkMax)
        return error(limitText(tr("Can not support sclk greater than"), f.sclkMax));
    if (f.apb1Max > 0 && s.apb1clk > f.apb1Max)
        return error(limitText(tr("Can not support apb1clk greater than"), f.apb1Max));
    if (f.apb2Max > 0 && s.apb2clk > f.apb2Max)
        return error(limitText(tr("Can not support apb2clk greater than"), f.apb2Max));
    QWidget *pllOut = control(QStringLiteral("pllout"));
    if (pllOut && pllOut->isEnabled()) {
        if (f.pllMax > 0 && s.pllclk > f.pllMax)
            return error(limitText(tr("Can not support pll clock greater than"), f.pllMax));
        if (f.pllMin > 0 && s.pllclk < f.pllMin)
            return error(limitText(tr("Can not support pll clock less than"), f.pllMin));
    }
    if (f.hasI2sf5 && s.i2sf5Enabled && s.clockOfPeripheral(QStringLiteral("I2SF5")) > 216.0)
        return error(limitText(tr("Can not support I2SF5 clock greater than"), 216));
    if (f.adcMax > 0 && s.adcEnabled && s.adcclk > f.adcMax) {
        const QString text =
            f.adcWarningComma
                ? tr("The maximum ADC clock is 28 MHz. The currently configured ADC clock is "
                     "wrong, please confirm whether to continue?")
                : tr("The maximum ADC clock is 28 MHz. The currently configured ADC clock is "
                     "wrong.  please confirm whether to continue?");
        if (!ask(text))
            return false;
    }
    if (f.hasUsb && s.usbEnabled && s.usbclk != 48.0) {
        if (!ask(tr("USB clock must be 48MHz. But the USB clock of current config is wrong.  "
                    "please confirm whether to continue?")))
            return false;
    }
    if (f.hasUsbHsPhy && s.usbGate2 && s.hext != 12.0) {
        if (!ask(tr("USBHS PHY clock must be 12MHz. But the PHY clock of current config is "
                    "wrong.  please confirm whether to continue?")))
            return false;
    }
    return true;
}

void MQ48ClockTree::resetConfig()
{
    ClockTreeState &s = clockState();
    // The user's reset keeps what the other panels told the tree (gates and pins).
    const ClockTreeState kept = s;
    s.resetToDefaults();
    s.hextEnabled = kept.hextEnabled;
    s.hextBypass = kept.hextBypass;
    s.lextEnabled = kept.lextEnabled;
    s.lextBypass = kept.lextBypass;
    s.usbGate1 = kept.usbGate1;
    s.usbGate2 = kept.usbGate2;
    s.usbEnabled = kept.usbEnabled;
    s.adcGate1 = kept.adcGate1;
    s.adcGate2 = kept.adcGate2;
    s.adcGate3 = kept.adcGate3;
    s.adcEnabled = kept.adcEnabled;
    s.usart1Enabled = kept.usart1Enabled;
    s.usart2Enabled = kept.usart2Enabled;
    s.usart3Enabled = kept.usart3Enabled;
    s.i2c1Enabled = kept.i2c1Enabled;
    s.i2sf5Enabled = kept.i2sf5Enabled;
    s.clkoutpin = kept.clkoutpin;
    s.clkout1pin = kept.clkout1pin;
    s.clkout2pin = kept.clkout2pin;
    syncFromState();
    refreshEnable();
    updateRtcField();
    if (validatePll()) {
        s.recalculate();
        showClocks();
    }
}

void MQ48ClockTree::loadConfig(const QDomElement &element)
{
    ClockConfigTexts texts;
    ::loadClockConfig(clockState(), element, &texts);
    syncFromState();
    if (!texts.hext.isEmpty())
        setText(QStringLiteral("hext"), texts.hext);
    if (!texts.i2sf5ext.isEmpty())
        setText(QStringLiteral("i2sf5"), texts.i2sf5ext);
    refreshEnable();
    updateRtcField();
    if (validatePll()) {
        clockState().recalculate();
        showClocks();
    }
}

bool MQ48ClockTree::saveConfig(QXmlStreamWriter &writer) const
{
    return ::saveClockConfig(clockState(), writer);
}

void MQ48ClockTree::setHextEnable(bool enable)
{
    ClockTreeState &s = clockState();
    s.setHextEnabled(enable);
    syncFromState();
    refreshEnable();
    chooser();
    updateRtcField();
    showClocks();
}

void MQ48ClockTree::setHextBypass(bool bypass)
{
    clockState().setHextBypass(bypass);
    refreshEnable();
}

void MQ48ClockTree::setLextEnable(bool enable)
{
    clockState().setLextEnabled(enable);
    syncFromState();
    refreshEnable();
    updateRtcField();
    showClocks();
}

void MQ48ClockTree::setLextBypass(bool bypass)
{
    clockState().setLextBypass(bypass);
    refreshEnable();
}

void MQ48ClockTree::setClockOutPin(int pin)
{
    clockState().clkoutpin = pin;
    refreshEnable();
    commonTail();
}

void MQ48ClockTree::setClockOut1Pin(int pin)
{
    clockState().clkout1pin = pin;
    refreshEnable();
    commonTail();
}

void MQ48ClockTree::setClockOut2Pin(int pin)
{
    clockState().clkout2pin = pin;
    refreshEnable();
    commonTail();
}

void MQ48ClockTree::setPeripheralClockGate(const QString &instance, bool enabled)
{
    const ClockGateChange change = clockState().setPeripheralGate(instance, enabled);
    if (!change.changed)
        return;
    refreshEnable();
    afterGateChange(change.usbEnabledChanged);
}

void MQ48ClockTree::afterGateChange(bool usbChanged)
{
    ClockTreeState &s = clockState();
    if (usbChanged) {
        usbSourceChangedPending = true;
        if (s.usbEnabled && s.sclkselect != 1 && s.usbOnPll()) {
            if (s.pllrcs == 0 && !hextCheck())
                return;
            s.solveForUsb();
            writePllFields();
            showClocks();
            return;
        }
    }
    if (s.i2sf5Enabled)
        i2sf5SourceChangedPending = true;
    commonTail();
}

void MQ48ClockTree::retranslate()
{
    for (const ClockControlSpec &c : m_layout.controls) {
        QWidget *w = control(c.name);
        if (!w)
            continue;
        if (c.tip)
            w->setToolTip(translated(c.tip));
        if (c.kind == ClockControlKind::Caption) {
            static_cast<QLabel *>(w)->setText(translated(c.text) + c.suffix);
        } else if (c.kind == ClockControlKind::Label && c.text) {
            static_cast<QLabel *>(w)->setText(translated(c.text));
        } else if (c.kind == ClockControlKind::Radio) {
            static_cast<QRadioButton *>(w)->setText(translated(c.text));
        } else if (c.kind == ClockControlKind::ListButton) {
            static_cast<QPushButton *>(w)->setText(tr("List"));
        } else if (c.kind == ClockControlKind::Combo && c.translateItems) {
            auto *box = static_cast<QComboBox *>(w);
            for (int i = 0; i < c.items.size() && i < box->count(); ++i)
                box->setItemText(i, translated(c.items.at(i).toUtf8().constData()));
        }
    }
    for (QWidget *w : qAsConst(m_controls))
        refit(w);
    fitTexts();
    for (QGraphicsProxyWidget *p : qAsConst(m_lists)) {
        if (auto *g = p->widget()->findChild<QGroupBox *>()) {
            g->setTitle(translated(g->property("titleSource").toByteArray().constData()));
        }
    }
    refreshEnable();
    showClocks();
    if (diagram())
        diagram()->update();
}
