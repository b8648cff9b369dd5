#include "app/new_design_select.h"

#include "app/deviceselection.h"
#include "database/catalogue.h"
#include "database/language.h"

#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace {
constexpr int kMaxVisibleItems = 50;
} // namespace

New_Design_Select::New_Design_Select(QWidget *parent) : QDialog(parent)
{
    serials = GetMCUSerialList();
    packages = GetMCUPackageList();

    setWindowTitle(tr("New Design"));
    setStyleSheet(QStringLiteral("QDialog {background-color: rgb(238, 245, 247);}"));
    resize(760, 420);

    m_serialBox = new QComboBox(this);
    m_serialBox->setMaxVisibleItems(kMaxVisibleItems);
    m_deviceBox = new QComboBox(this);
    m_deviceBox->setMaxVisibleItems(kMaxVisibleItems);
    m_packageEdit = new QLineEdit(this);
    m_flashEdit = new QLineEdit(this);
    m_sramEdit = new QLineEdit(this);
    for (QLineEdit *edit : {m_packageEdit, m_flashEdit, m_sramEdit})
        edit->setReadOnly(true);
    m_infoBrowser = new QTextBrowser(this);

    auto *form = new QFormLayout;
    form->addRow(tr("Device Serials:"), m_serialBox);
    form->addRow(tr("Device:"), m_deviceBox);
    form->addRow(tr("Package:"), m_packageEdit);
    form->addRow(tr("Flash:"), m_flashEdit);
    form->addRow(tr("SRAM:"), m_sramEdit);

    auto *fields = new QHBoxLayout;
    fields->addLayout(form, 2);
    fields->addWidget(m_infoBrowser, 3);

    m_newDesignButton = new QPushButton(tr("New Design"), this);
    m_newDesignButton->setDefault(true);
    m_cancelButton = new QPushButton(tr("Cancel"), this);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_newDesignButton);
    buttons->addWidget(m_cancelButton);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addLayout(buttons);

    for (const MCUSerialInfo &info : serials) {
        m_serialBox->addItem(info.Serial);
        m_serialBox->setItemData(m_serialBox->count() - 1, info.Info, Qt::ToolTipRole);
    }
    MCUSerial_ComboBox_IndexChanged(m_serialBox->currentIndex());

    connect(m_serialBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &New_Design_Select::MCUSerial_ComboBox_IndexChanged);
    connect(m_deviceBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &New_Design_Select::Device_ComboBox_IndexChanged);
    connect(m_newDesignButton, &QPushButton::clicked, this,
            &New_Design_Select::NewDesign_PushButton_Clicked);
    connect(m_cancelButton, &QPushButton::clicked, this,
            &New_Design_Select::Cancel_PushButton_Clicked);
}

void New_Design_Select::MCUSerial_ComboBox_IndexChanged(int)
{
    const QString series = m_serialBox->currentText();
    devices = GetMCUList(series);

    const QString page = SeriesInfoPagePath(series, g_language);
    if (!series.isEmpty() && QFileInfo::exists(page))
        m_infoBrowser->setSource(QUrl::fromLocalFile(page));
    else
        m_infoBrowser->clear();

    {
        const QSignalBlocker blocker(m_deviceBox);
        m_deviceBox->clear();
        for (const MCUListItem &item : devices)
            m_deviceBox->addItem(item.Name);
        m_deviceBox->setCurrentIndex(devices.isEmpty() ? -1 : 0);
    }
    Device_ComboBox_IndexChanged(m_deviceBox->currentIndex());
}

void New_Design_Select::Device_ComboBox_IndexChanged(int index)
{
    ShowDeviceFields(devices, index, m_packageEdit, m_flashEdit, m_sramEdit);
}

void New_Design_Select::NewDesign_PushButton_Clicked()
{
    serial = m_serialBox->currentText();
    device = m_deviceBox->currentText();
    package = m_packageEdit->text();
    accept();
}

void New_Design_Select::Cancel_PushButton_Clicked()
{
    reject();
}
