#pragma once

#include "database/records.h"

#include <QDialog>
#include <QList>
#include <QString>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTextBrowser;

// The dialog form of the device selection, used from inside the work form to start another
// design: the caller reads the chosen series, device and package after accept().
class New_Design_Select : public QDialog
{
    Q_OBJECT
public:
    explicit New_Design_Select(QWidget *parent = nullptr);

    QString getSerial() const { return serial; }
    QString getDevice() const { return device; }
    QString getPackage() const { return package; }

public slots:
    void MCUSerial_ComboBox_IndexChanged(int index);
    void Device_ComboBox_IndexChanged(int index);
    void NewDesign_PushButton_Clicked();
    void Cancel_PushButton_Clicked();

private:
    QList<MCUSerialInfo> serials;
    QList<MCUPackageInfo> packages;
    QList<MCUListItem> devices;
    QString serial;
    QString device;
    QString package;

    QComboBox *m_serialBox = nullptr;
    QComboBox *m_deviceBox = nullptr;
    QLineEdit *m_packageEdit = nullptr;
    QLineEdit *m_flashEdit = nullptr;
    QLineEdit *m_sramEdit = nullptr;
    QTextBrowser *m_infoBrowser = nullptr;
    QPushButton *m_newDesignButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
};
