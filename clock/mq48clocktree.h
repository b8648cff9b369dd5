#pragma once

#include "clock/clocktreelayout.h"
#include "clock/mq48mcupll.h"

#include <QColor>
#include <QHash>
#include <QTimer>

class QButtonGroup;
class QDomElement;
class QXmlStreamWriter;
class QAbstractButton;

// The clock tree of one chip family, built from the family's table row and layout.
class MQ48ClockTree : public MQ48MCUPLL
{
    Q_OBJECT
public:
    explicit MQ48ClockTree(int mcuModel, QWidget *parent = nullptr);
    ~MQ48ClockTree() override;

    const ClockFamily &family() const { return *m_family; }

    // A control of the drawing by its key ("hext", "sclkselect_1", "ahbdiv"); nullptr if the
    // family lacks it.
    QWidget *control(const QString &name) const { return m_controls.value(name); }
    QColor fieldBackground(const QString &name) const;
    QColor fieldTextColor(const QString &name) const;
    bool listOpen(const QString &button) const;

    // Operations of the page.
    bool checkClockConfig();
    void resetConfig();
    void loadConfig(const QDomElement &element);
    bool saveConfig(QXmlStreamWriter &writer) const;
    void setHextEnable(bool enable);
    void setHextBypass(bool bypass);
    void setLextEnable(bool enable);
    void setLextBypass(bool bypass);
    void setClockOutPin(int pin);
    void setClockOut1Pin(int pin);
    void setClockOut2Pin(int pin);
    void setPeripheralClockGate(const QString &instance, bool enabled);
    void retranslate();

signals:
    void SendClockChangedSignal();
    void SendClockHaveErrorSignal(bool Flag);
    void SendUSBClockSourceChangeSignal();
    void SendI2SF5ClockSourceChangeSignal();

public slots:
    void HandleTimeout();
    void rtcsel_RadioButton_checkSlot(bool checked);
    void rtcdiv_ComboBox_currentIndexChanged(int index);
    void hext_LineEdit_returnPressed();
    void hext_LineEdit_textChanged(const QString &text);
    void pllms_LineEdit_returnPressed();
    void pllms_LineEdit_textChanged(const QString &text);
    void pllns_LineEdit_returnPressed();
    void pllns_LineEdit_textChanged(const QString &text);
    void pllfr_ComboBox_currentIndexChanged(int index);
    void pllrcs_RadioButton_checkSlot(bool checked);
    void sclkselecthext_RadioButton_checkSlot(bool checked);
    void sclkselectpll_RadioButton_checkSlot(bool checked);
    void sclkselecthick_RadioButton_checkSlot(bool checked);
    void ahbdiv_ComboBox_currentIndexChanged(int index);
    void apb1div_ComboBox_currentIndexChanged(int index);
    void apb2div_ComboBox_currentIndexChanged(int index);
    void systicdiv_ComboBox_currentIndexChanged(int index);
    void usbdiv_ComboBox_currentIndexChanged(int index);
    void hicktousb_RadioButton_checkSlot(bool checked);
    void hicktosclk_RadioButton_checkSlot(bool checked);
    void clkout1_RadioButton_checkSlot(bool checked);
    void clkout2_RadioButton_checkSlot(bool checked);
    void clockout1div1_ComboBox_currentIndexChanged(int index);
    void clockout1div2_ComboBox_currentIndexChanged(int index);
    void clockout2div1_ComboBox_currentIndexChanged(int index);
    void clockout2div2_ComboBox_currentIndexChanged(int index);
    void sclk_LineEdit_returnPressed();
    void sclk_LineEdit_textChanged(const QString &text);
    void toapb1peripheral_List_Button_checkSlot();
    void toapb1tmr_List_Button_checkSlot();
    void toapb2peripheral_List_Button_checkSlot();
    void toapb2tmr_List_Button_checkSlot();
    void hextdiv_ComboBox_currentIndexChanged(int index);
    void hickdiv_ComboBox_currentIndexChanged(int index);
    void sclkhextdiv_ComboBox_currentIndexChanged(int index);
    void sclkhickdiv_ComboBox_currentIndexChanged(int index);
    void pllhextdiv_RadioButton_checkSlot(bool checked);
    void pllmode_ComboBox_currentIndexChanged(int index);
    void pllmult_ComboBox_currentIndexChanged(int index);
    void pllfp_ComboBox_currentIndexChanged(int index);
    void pllfu_ComboBox_currentIndexChanged(int index);
    void toadcdiv_ComboBox_currentIndexChanged(int index);
    void clkout_RadioButton_checkSlot(bool checked);
    void clockoutdiv_ComboBox_currentIndexChanged(int index);
    void clockoutdiv1_ComboBox_currentIndexChanged(int index);
    void clockoutdiv2_ComboBox_currentIndexChanged(int index);
    void usart1clocksel_RadioButton_checkSlot(bool checked);
    void usart2clocksel_RadioButton_checkSlot(bool checked);
    void usart3clocksel_RadioButton_checkSlot(bool checked);
    void i2c1clocksel_RadioButton_checkSlot(bool checked);
    void adcclocksel_RadioButton_checkSlot(bool checked);
    void i2sf5clocksel_RadioButton_checkSlot(bool checked);
    void i2sf5_LineEdit_textChanged(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Look { Green, Pending, Inactive, Plain };

    void buildControls();
    // Fits each caption, text label and radio button into its frame and up to the next
    // control on its right, as the controls stand now in the current font and language.
    void fitTexts();
    void connectControls();
    // Where the peripheral list of a "List" button opens: next to the button, covering no
    // value field of the drawing.
    QPoint listPlace(const QGraphicsProxyWidget *button, const QSizeF &size) const;
    void syncFromState();
    void writePllFields();
    void updateRtcField();

    bool validatePll();
    void refreshEnable();
    bool showClocks();
    void commonTail();
    void chooser();
    bool hextCheck();
    bool flexibleActive() const;
    bool readSclkField(bool showError);
    void applyPllModeVisibility();
    void showClockOutputs();
    void toggleList(const QString &button);
    void closeLists();
    void afterGateChange(bool usbChanged);

    bool error(const QString &text);
    bool ask(const QString &text);
    int senderValue() const;
    void setChecked(const QString &group, int value);
    void setComboIndex(const QString &name, int index);
    void setEnabled(const QString &name, bool enabled);
    void setText(const QString &name, const QString &text);
    void setLook(const QString &name, Look look, const QColor &text);
    void setValueColor(const QString &name, bool bad, const QColor &good);
    void setVisible(const QString &name, bool visible);
    QString translated(const char *source) const;

    const ClockFamily *m_family = nullptr;
    ClockTreeLayout m_layout;
    QHash<QString, QWidget *> m_controls;
    QHash<QString, QGraphicsProxyWidget *> m_proxies;
    QHash<QString, QButtonGroup *> m_groups;
    QHash<QString, QGraphicsProxyWidget *> m_lists;
    QHash<QWidget *, QColor> m_backgrounds;
    QHash<QWidget *, QColor> m_textColors;
    QTimer m_timer;
    bool clockChangedPending = false;
    bool usbSourceChangedPending = false;
    bool i2sf5SourceChangedPending = false;
};
