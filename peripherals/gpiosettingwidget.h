#pragma once

#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/lazyrebuild.h"

#include <QMap>
#include <QWidget>

class QAction;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenu;
class QTableWidget;
class QTableWidgetItem;

// A table of GPIO settings rows with the box of controls below it. It shows the rows of the
// shared GpioSettingsModel that its scope selects: all of them, those of no peripheral, or
// those of one peripheral instance.
class GPIOSettingWidget : public QWidget
{
    Q_OBJECT
public:
    enum class Scope { All, WithoutInstance, Instance };

    GPIOSettingWidget(GpioSettingsModel *model, Scope scope,
                      const QString &instanceName = QString(), QWidget *parent = nullptr);

    // The table columns, untranslated, in order.
    static QStringList columnTitles();

    GpioSettingsModel *model() const { return m_model; }
    QString instanceName() const { return m_instance; }
    QTableWidget *table() const { return m_table; }
    // The combo box of a setting ("Pull type"), and the label edit.
    QComboBox *settingBox(const QString &settingName) const { return m_boxes.value(settingName); }
    QLineEdit *labelEdit() const { return m_labelEdit; }
    // The rows of the model this table shows, in table order.
    QList<GpioSettingRow> shownRows() const;
    // The row whose settings the box shows: (signal, pin name); empty when none.
    QString selectedSignal() const { return m_signal; }
    QString selectedPin() const { return m_pin; }
    // Rebuilds the table now if the model changed since it was last built.
    void ensureCurrent();
    void retranslateUi();

signals:
    void SendGPIOSettingChangeSignals(QString instanceName, QString signalName);
    void SendGPIOQuerySignals(QString pinName, QString pinSignal);
    void SendGPIOSignalsUserLabelChange(int pinNum, QString pinSignal, QString userLabel);

public slots:
    void GPIOOutputLevel_ComboBox_IndexChanged(int n);
    void GPIOOutputType_ComboBox_IndexChanged(int n);
    void GPIOMode_ComboBox_IndexChanged(int n);
    void GPIOPULL_ComboBox_IndexChanged(int n);
    void GPIOSpeed_ComboBox_IndexChanged(int n);
    void TableLineClickedSlot(int nRow, int nCol);
    void MenuClickedSlot(QAction *action);
    void tableContexMenuRequestSlot(QPoint pos);
    void UserLabel_LineEdit_textEdit(QString editText);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void modelChanged();
    void rebuild();
    void fillBox();
    void layoutBox(const GpioSettingRow *row);
    void settingChanged(const QString &settingName, int n);

    GpioSettingsModel *m_model;
    Scope m_scope;
    QString m_instance;
    QTableWidget *m_table = nullptr;
    QGroupBox *m_box = nullptr;
    QGridLayout *m_grid = nullptr;
    QMap<QString, QComboBox *> m_boxes;
    QMap<QString, QLabel *> m_boxLabels;
    QLabel *m_labelTitle = nullptr;
    QLineEdit *m_labelEdit = nullptr;
    QMenu *m_menu = nullptr;
    QAction *m_searchAction = nullptr;
    QTableWidgetItem *m_menuItem = nullptr;
    QString m_signal;
    QString m_pin;
    LazyRebuild m_lazy{this, [this] { rebuild(); }};
    bool m_labelWarned = false;
};
