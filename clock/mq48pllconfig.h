#pragma once

#include <QString>
#include <QWidget>

class MQ48ClockTree;
class ClockTreeState;
class QAction;
class QLabel;
class QDomElement;
class QToolBar;
class QVBoxLayout;
class QXmlStreamWriter;

// The "Clock Configuration" page: a tool bar and the one clock tree of the design's model.
class MQ48PLLConfig : public QWidget
{
    Q_OBJECT
public:
    explicit MQ48PLLConfig(QWidget *parent = nullptr);
    ~MQ48PLLConfig() override;

    void setMcuModel(int model);
    int mcuModel() const { return m_mcuModel; }
    QString mcuSeries() const { return m_series; }

    bool checkClockConfig();
    double clockOfPeripheral(const QString &name) const;
    double hextValue() const;
    double apb2Value() const;
    int systickDivider() const;
    QString adcDivMacro() const;
    QString adcClockSourceMacro() const;
    QString rtcClockMacro() const;
    QString ertcHextDivMacro() const;
    QString i2sf5ClockSourceMacro() const;
    QString usbClockSourceMacro() const;
    QString usbDivMacro() const;

    void loadClockConfig(const QDomElement &element, const QString &series);
    bool saveClockConfig(QXmlStreamWriter &writer) const;

    void setHext(bool enable, bool bypass);
    void setLext(bool enable, bool bypass);
    void setClockOutPin(int pin);
    void setClockOut1Pin(int pin);
    void setClockOut2Pin(int pin);
    // Peripheral clock gate of an instance ("ADC1", "USB_OTGFS1", "USART1", "I2SF5", ...);
    // names the family does not gate are ignored.
    void setPeripheralClockGate(const QString &ipName, bool enabled);

    void retranslate();
    // The tree widget (for the report's picture); nullptr when the model has none.
    QWidget *treeWidget() const;
    MQ48ClockTree *tree() const { return m_tree; }
    // The clock record of the tree, read by the generators; nullptr without a tree.
    const ClockTreeState *clockState() const;

signals:
    void SendClockChangedSignal();
    void SendClockHaveErrorSignal(bool Flag);
    void SendUSBClockSourceChangeSignal();
    void SendI2SF5ClockSourceChangeSignal();

public slots:
    void ZoomIn();
    void ZoomOut();
    void ZoomReset();
    void ConfigReset();
    void ReciveClockChangedSignal();
    void ReciveClockHaveErrorSignal(bool Flag);
    void ReciveUSBClockSourceChangeSignal();
    void ReciveI2SF5ClockSourceChangeSignal();

    // The note shown instead of a tree for a model that has none; nullptr otherwise.
    QLabel *note() const { return m_note; }

private:
    void createTree(int model);
    void destroyTree();
    // The tool bar's texts in the language now installed; `changed` after a change of
    // language, when the reset action reads "Reset Configuration".
    void labelActions(bool changed);

    QVBoxLayout *m_layout = nullptr;
    int m_mcuModel = 0;
    QString m_series;
    QToolBar *m_toolBar = nullptr;
    QAction *m_zoomInAction = nullptr;
    QAction *m_zoomResetAction = nullptr;
    QAction *m_zoomOutAction = nullptr;
    QAction *m_resetAction = nullptr;
    MQ48ClockTree *m_tree = nullptr;
    QLabel *m_note = nullptr;
};
