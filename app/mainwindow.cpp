#include "app/mainwindow.h"

#include "app/customcommandlinkbutton.h"
#include "app/designheader.h"
#include "app/deviceselection.h"
#include "app/languagesetting.h"
#include "app/recentdesigns.h"
#include "database/catalogue.h"
#include "database/dbtextexchange.h"
#include "database/language.h"
#include "database/safexml.h"
#include "widgets/messagebox.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPixmap>
#include <QPushButton>
#include <QTextBrowser>
#include <QTranslator>
#include <QUrl>
#include <QVBoxLayout>

namespace {

const char kHeaderStyle[] =
    "QPushButton {background-color: rgb(35, 184, 198); color: white; text-align: left;"
    " padding: 7px 12px; border: none; border-top-left-radius: 5px;"
    " border-top-right-radius: 5px; font: bold 11pt \"Arial\";}"
    "QPushButton:hover {background-color: rgb(29, 164, 177);}";
const char kGroupStyle[] =
    "QGroupBox {background-color: white; border: 1px solid rgb(200, 222, 228);"
    " border-top: none; margin: 0px;}";
const char kActionStyle[] =
    "QPushButton {background-color: rgb(85, 126, 191); color: white; border: none;"
    " border-radius: 4px; padding: 6px 22px; font: bold 10pt \"Arial\";}"
    "QPushButton:hover {background-color: rgb(70, 110, 175);}"
    "QPushButton:pressed {background-color: rgb(60, 96, 156);}";
const char kRecentStyle[] = "QCommandLinkButton {color: rgb(85, 126, 191); font: 10pt \"Arial\";"
                            " border: none; text-align: left;}"
                            "QCommandLinkButton:hover {background-color: rgb(238, 245, 247);}";

// Header buttons remember whether their group is open.
const char kOpenProperty[] = "sectionOpen";

// Tells the user, once, that a settings or list file could not be read and was kept aside.
void tellSetAside(const QString &path, const QString &asidePath)
{
    tellUser(QApplication::activeWindow(), UserMessage::Warning, MainWindow::tr("Warning"),
             MainWindow::tr("The file %1 could not be read. It has been kept as %2, and a new "
                            "one is started.")
                 .arg(QDir::toNativeSeparators(path), QDir::toNativeSeparators(asidePath)));
}

} // namespace

MainWindow::SetAsideNotice::SetAsideNotice()
{
    setSetAsideHandler(&tellSetAside);
}

MainWindow::SetAsideNotice::~SetAsideNotice()
{
    setSetAsideHandler(nullptr);
}

MainWindow::MainWindow(QWidget *parent) : QWidget(parent)
{
    serials = GetMCUSerialList();
    packages = GetMCUPackageList();

    setObjectName(QStringLiteral("Widget"));
    setStyleSheet(QStringLiteral("QWidget::Widget {background-color: rgb(238, 245, 247);}"
                                 "QWidget#Widget {background-color: rgb(238, 245, 247);}"));
    setMinimumSize(900, 640);
    resize(1100, 780);

    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(24, 16, 24, 16);
    page->setSpacing(10);
    buildTitleRow(page);

    m_welcomeLabel = new QLabel(this);
    m_welcomeLabel->setWordWrap(true);
    m_welcomeLabel->setStyleSheet(
        QStringLiteral("color: rgb(47, 74, 109); font: 11pt \"Arial\"; padding: 6px 0px;"));
    page->addWidget(m_welcomeLabel);

    buildSections(page);
    page->addStretch();

    fillSerialBox();
    MCUSerial_ComboBox_IndexChanged(m_serialBox->currentIndex());
    refreshRecentDesigns();
    showSection(m_newHeader, true);
    showSection(m_openHeader, false);
    showSection(m_listHeader, false);
    retranslatePage();
    // The label as built differs from its re-labelled text.
    m_serialLabel->setText(tr("Devie Serials:"));

    connect(m_newHeader, &QPushButton::clicked, this, &MainWindow::NewDisplay_PushButton_Clicked);
    connect(m_openHeader, &QPushButton::clicked, this,
            &MainWindow::OpenDisplay_PushButton_Clicked);
    connect(m_listHeader, &QPushButton::clicked, this,
            &MainWindow::ListDisplay_PushButton_Clicked);
    connect(m_newDesignButton, &QPushButton::clicked, this,
            &MainWindow::NewDesign_PushButton_Clicked);
    connect(m_openButton, &QPushButton::clicked, this, &MainWindow::OpenDesign_PushButton_Clicked);
    connect(m_languageBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &MainWindow::Language_ComboBox_IndexChanged);
    connect(m_serialBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &MainWindow::MCUSerial_ComboBox_IndexChanged);
    connect(m_deviceBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &MainWindow::Device_ComboBox_IndexChanged);
    connect(m_toTxtButton, &QPushButton::clicked, this,
            &MainWindow::Get_ENCH_ToTXT_PushButton_Clicked);
    connect(m_fromTxtButton, &QPushButton::clicked, this,
            &MainWindow::Set_ENCH_FromTXT_PushButton_Clicked);
    connect(&m_form, &FormConfiguration::formClosed, this, &MainWindow::onFormClosed);
}

void MainWindow::buildTitleRow(QVBoxLayout *page)
{
    auto *row = new QHBoxLayout;
    m_logoLabel = new QLabel(this);
    m_logoLabel->setPixmap(QPixmap(QStringLiteral(":/image/Logo_1.png")));
    m_titleLabel = new QLabel(this);
    m_titleLabel->setStyleSheet(
        QStringLiteral("color: rgb(85, 126, 191); font: bold 22pt \"Arial\";"));
    m_languageLabel = new QLabel(this);
    m_languageLabel->setStyleSheet(QStringLiteral("font: 10pt \"Arial\";"));
    m_languageBox = new QComboBox(this);
    m_languageBox->setObjectName(QStringLiteral("languageComboBox"));
    m_languageBox->addItem(QString());
    m_languageBox->addItem(QString());
    m_languageBox->setMinimumWidth(110);

    row->addWidget(m_logoLabel);
    row->addWidget(m_titleLabel);
    row->addStretch();
    row->addWidget(m_languageLabel);
    row->addSpacing(8);
    row->addWidget(m_languageBox);
    page->addLayout(row);
}

void MainWindow::buildSections(QVBoxLayout *page)
{
    const auto makeHeader = [this]() {
        auto *header = new QPushButton(this);
        header->setStyleSheet(QLatin1String(kHeaderStyle));
        header->setIconSize(QSize(16, 16));
        header->setCursor(Qt::PointingHandCursor);
        return header;
    };
    const auto makeGroup = [this]() {
        auto *group = new QGroupBox(this);
        group->setStyleSheet(QLatin1String(kGroupStyle));
        return group;
    };

    m_newHeader = makeHeader();
    m_newHeader->setObjectName(QStringLiteral("newSectionHeader"));
    m_newGroup = makeGroup();
    auto *newLayout = new QVBoxLayout(m_newGroup);
    newLayout->addWidget(buildNewDesignGroup());

    m_openHeader = makeHeader();
    m_openHeader->setObjectName(QStringLiteral("openSectionHeader"));
    m_openGroup = makeGroup();
    auto *openLayout = new QVBoxLayout(m_openGroup);
    openLayout->addWidget(buildOpenDesignGroup());

    m_listHeader = makeHeader();
    m_listHeader->setObjectName(QStringLiteral("recentSectionHeader"));
    m_listGroup = makeGroup();
    m_recentLayout = new QVBoxLayout(m_listGroup);
    m_recentLayout->setSpacing(2);

    for (QWidget *w :
         {static_cast<QWidget *>(m_newHeader), static_cast<QWidget *>(m_newGroup),
          static_cast<QWidget *>(m_openHeader), static_cast<QWidget *>(m_openGroup),
          static_cast<QWidget *>(m_listHeader), static_cast<QWidget *>(m_listGroup)}) {
        page->addWidget(w);
        // A header sits directly on its group.
        if (qobject_cast<QGroupBox *>(w))
            page->addSpacing(6);
    }
    page->setSpacing(0);
}

QWidget *MainWindow::buildNewDesignGroup()
{
    auto *box = new QWidget(this);
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(12, 10, 12, 10);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(10);

    m_serialLabel = new QLabel(box);
    m_serialLabel->setObjectName(QStringLiteral("serialLabel"));
    m_deviceLabel = new QLabel(box);
    m_packageLabel = new QLabel(box);
    m_flashLabel = new QLabel(box);
    m_sramLabel = new QLabel(box);
    m_serialBox = new QComboBox(box);
    m_serialBox->setObjectName(QStringLiteral("serialComboBox"));
    m_serialBox->setMaxVisibleItems(50);
    m_deviceBox = new QComboBox(box);
    m_deviceBox->setObjectName(QStringLiteral("deviceComboBox"));
    m_deviceBox->setMaxVisibleItems(50);
    m_packageEdit = new QLineEdit(box);
    m_flashEdit = new QLineEdit(box);
    m_sramEdit = new QLineEdit(box);
    m_packageEdit->setObjectName(QStringLiteral("packageLineEdit"));
    m_flashEdit->setObjectName(QStringLiteral("flashLineEdit"));
    m_sramEdit->setObjectName(QStringLiteral("sramLineEdit"));
    for (QLineEdit *edit : {m_packageEdit, m_flashEdit, m_sramEdit})
        edit->setReadOnly(true);
    m_infoBrowser = new QTextBrowser(box);
    m_infoBrowser->setObjectName(QStringLiteral("infoBrowser"));
    m_infoBrowser->setMinimumHeight(320);
    m_infoBrowser->setStyleSheet(QStringLiteral("border: 1px solid rgb(200, 222, 228);"));

    m_newDesignButton = new QPushButton(box);
    m_newDesignButton->setObjectName(QStringLiteral("newDesignButton"));
    m_newDesignButton->setStyleSheet(QLatin1String(kActionStyle));
    m_newDesignButton->setCursor(Qt::PointingHandCursor);
    m_toTxtButton = new QPushButton(box);
    m_fromTxtButton = new QPushButton(box);
    m_toTxtButton->hide();
    m_fromTxtButton->hide();

    const QList<QPair<QLabel *, QWidget *>> rows = {{m_serialLabel, m_serialBox},
                                                    {m_deviceLabel, m_deviceBox},
                                                    {m_packageLabel, m_packageEdit},
                                                    {m_flashLabel, m_flashEdit},
                                                    {m_sramLabel, m_sramEdit}};
    for (int i = 0; i < rows.size(); ++i) {
        grid->addWidget(rows[i].first, i, 0);
        grid->addWidget(rows[i].second, i, 1);
        rows[i].second->setMinimumWidth(240);
    }
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_toTxtButton);
    buttons->addWidget(m_fromTxtButton);
    buttons->addStretch();
    buttons->addWidget(m_newDesignButton);
    grid->addLayout(buttons, rows.size(), 0, 1, 2);
    // The fields stay together at the top while the description takes the height.
    grid->setRowStretch(rows.size() + 1, 1);
    grid->addWidget(m_infoBrowser, 0, 2, rows.size() + 2, 1);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(2, 3);
    return box;
}

QWidget *MainWindow::buildOpenDesignGroup()
{
    auto *box = new QWidget(this);
    auto *row = new QHBoxLayout(box);
    row->setContentsMargins(12, 10, 12, 10);
    m_openButton = new QPushButton(box);
    m_openButton->setObjectName(QStringLiteral("openButton"));
    m_openButton->setStyleSheet(QLatin1String(kActionStyle));
    m_openButton->setCursor(Qt::PointingHandCursor);
    m_openHint = new QLabel(box);
    m_openHint->setStyleSheet(QStringLiteral("font: 10pt \"Arial\";"));
    row->addWidget(m_openButton);
    row->addWidget(m_openHint);
    row->addStretch();
    return box;
}

void MainWindow::setLanguage(int language)
{
    {
        const QSignalBlocker blocker(m_languageBox);
        m_languageBox->setCurrentIndex(language == 1 ? 1 : 0);
    }
    g_language = language == 1 ? 1 : 0;
    retranslatePage();
    m_form.retranslateMenu();
}

void MainWindow::setTranslator(QTranslator *value)
{
    translator = value;
}

void MainWindow::retranslatePage()
{
    m_titleLabel->setText(tr("        MQ48 Pin Forge"));
    m_languageLabel->setText(tr("Language:"));
    m_languageBox->setItemText(0, tr("English"));
    m_languageBox->setItemText(1, tr("Chinese"));
    m_welcomeLabel->setText(tr("Welcome! To get started with MQ48 Pin Forge, please use one of "
                               "the below options to start or continue your design."));
    m_newHeader->setText(tr("Start a new Design"));
    m_openHeader->setText(tr("Open an Existing Design"));
    m_listHeader->setText(tr("Recent Designs"));

    m_serialLabel->setText(tr("Device Serials:"));
    m_deviceLabel->setText(tr("Device:"));
    m_packageLabel->setText(tr("Package:"));
    m_flashLabel->setText(tr("Flash:"));
    m_sramLabel->setText(tr("SRAM:"));
    m_newDesignButton->setText(tr("New Design"));
    m_toTxtButton->setText(tr("To TXT"));
    m_fromTxtButton->setText(tr("From TXT"));
    m_openButton->setText(tr("Open"));
    m_openHint->setText(tr("a saved .MQPF file to continue your design."));

    // The series' infos and page, and the size texts, follow the language.
    serials = GetMCUSerialList();
    for (int i = 0; i < serials.size() && i < m_serialBox->count(); ++i)
        m_serialBox->setItemData(i, serials.at(i).Info, Qt::ToolTipRole);
    const QString series = m_serialBox->currentText();
    const QString infoPage = SeriesInfoPagePath(series, g_language);
    if (!series.isEmpty() && QFileInfo::exists(infoPage))
        m_infoBrowser->setSource(QUrl::fromLocalFile(infoPage));
    Device_ComboBox_IndexChanged(m_deviceBox->currentIndex());
}

void MainWindow::fillSerialBox()
{
    const QSignalBlocker blocker(m_serialBox);
    m_serialBox->clear();
    for (const MCUSerialInfo &info : serials) {
        m_serialBox->addItem(info.Serial);
        m_serialBox->setItemData(m_serialBox->count() - 1, info.Info, Qt::ToolTipRole);
    }
}

void MainWindow::showSection(QPushButton *header, bool open)
{
    QGroupBox *group = header == m_newHeader    ? m_newGroup
                       : header == m_openHeader ? m_openGroup
                                                : m_listGroup;
    header->setProperty(kOpenProperty, open);
    header->setIcon(QIcon(open ? QStringLiteral(":/image/icon_down_white.png")
                               : QStringLiteral(":/image/icon_right_white.png")));
    group->setVisible(open);
}

void MainWindow::toggleSection(QPushButton *header)
{
    const bool open = !header->property(kOpenProperty).toBool();
    for (QPushButton *h : {m_newHeader, m_openHeader, m_listHeader})
        showSection(h, h == header && open);
}

void MainWindow::NewDisplay_PushButton_Clicked()
{
    toggleSection(m_newHeader);
}

void MainWindow::OpenDisplay_PushButton_Clicked()
{
    toggleSection(m_openHeader);
}

void MainWindow::ListDisplay_PushButton_Clicked()
{
    toggleSection(m_listHeader);
}

void MainWindow::MCUSerial_ComboBox_IndexChanged(int)
{
    const QString series = m_serialBox->currentText();
    devices = GetMCUList(series);

    const QString infoPage = SeriesInfoPagePath(series, g_language);
    if (!series.isEmpty() && QFileInfo::exists(infoPage))
        m_infoBrowser->setSource(QUrl::fromLocalFile(infoPage));
    else
        m_infoBrowser->clear();

    disconnect(m_deviceBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
               &MainWindow::Device_ComboBox_IndexChanged);
    m_deviceBox->clear();
    for (const MCUListItem &item : devices)
        m_deviceBox->addItem(item.Name);
    m_deviceBox->setCurrentIndex(devices.isEmpty() ? -1 : 0);
    Device_ComboBox_IndexChanged(0);
    connect(m_deviceBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &MainWindow::Device_ComboBox_IndexChanged);
}

void MainWindow::Device_ComboBox_IndexChanged(int index)
{
    ShowDeviceFields(devices, index, m_packageEdit, m_flashEdit, m_sramEdit);
}

void MainWindow::NewDesign_PushButton_Clicked()
{
    const QString series = m_serialBox->currentText();
    const QString device = m_deviceBox->currentText();
    const QString package = m_packageEdit->text();
    m_form.setTranslator(translator);
    if (!m_form.buildDesign(series, device, package))
        return;
    m_form.show();
    hide();
}

void MainWindow::OpenDesign_PushButton_Clicked()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open"), QString(), tr("Design file (*.MQPF)"));
    if (path.isEmpty())
        return;
    openDesignFile(path);
}

void MainWindow::OpenDesign_List_Clicked()
{
    auto *button = qobject_cast<CustomCommandLinkButton *>(sender());
    const QString path = button ? button->text() : QString();
    if (path.isEmpty())
        return;
    if (!QFile::exists(path)) {
        showError(tr("File is not exists!"));
        return;
    }
    if (showUserMessage(this, {UserMessage::Information, tr("Information"),
                               tr("Are you sure to open this design file?"),
                               {tr("Yes"), tr("Cancel")}}) != 0)
        return;
    openDesignFile(path);
}

void MainWindow::openDesignFile(const QString &path)
{
    m_form.setTranslator(translator);
    // The form checks the device, builds it, replays the file and says what went wrong.
    if (!m_form.openDesign(path))
        return;
    refreshRecentDesigns();
    m_form.show();
    hide();
}

void MainWindow::showError(const QString &text)
{
    showUserMessage(this, {UserMessage::Error, tr("Error"), text, {tr("Ok")}});
}

void MainWindow::refreshRecentDesigns()
{
    for (CustomCommandLinkButton *button : qAsConst(m_recentButtons))
        delete button;
    m_recentButtons.clear();
    m_selectedRecentButton = nullptr;

    for (const QString &path : GetRecentDesigns()) {
        auto *button = new CustomCommandLinkButton(path, m_listGroup);
        button->setStyleSheet(QLatin1String(kRecentStyle));
        button->setToolTip(path);
        button->setCursor(Qt::PointingHandCursor);
        m_recentLayout->addWidget(button);
        m_recentButtons.append(button);
        connect(button, &CustomCommandLinkButton::leftButtonClicked, this,
                &MainWindow::OpenDesign_List_Clicked);
        connect(button, &CustomCommandLinkButton::rightButtonClicked, this,
                &MainWindow::LinkRightButtonClicked_Slot);
    }
}

void MainWindow::LinkRightButtonClicked_Slot()
{
    m_selectedRecentButton = qobject_cast<CustomCommandLinkButton *>(sender());
    if (!m_selectedRecentButton)
        return;
    QMenu menu(this);
    menu.setStyleSheet(QStringLiteral("QMenu {background-color: rgb(238, 245, 247);}"
                                      "QMenu::item:selected {background-color: "
                                      "rgb(35, 184, 198); color: white;}"));
    QAction *remove = menu.addAction(tr("Delete"));
    connect(remove, &QAction::triggered, this, &MainWindow::DeleteSelectedDesignItem);
    menu.exec(QCursor::pos());
}

void MainWindow::DeleteSelectedDesignItem()
{
    CustomCommandLinkButton *button = m_selectedRecentButton;
    m_selectedRecentButton = nullptr;
    if (!button || !m_recentButtons.removeOne(button))
        return;
    const QString path = button->text();
    button->hide();
    button->deleteLater();
    DeleteRecentDesign(path);
}

void MainWindow::Get_ENCH_ToTXT_PushButton_Clicked()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Select directory"));
    if (!folder.isEmpty())
        DbTextExchange::exportFolder(folder);
}

void MainWindow::Set_ENCH_FromTXT_PushButton_Clicked()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Select directory"));
    if (!folder.isEmpty())
        DbTextExchange::importFolder(folder);
}

void MainWindow::Language_ComboBox_IndexChanged(int index)
{
    if (index == g_language)
        return;
    if (!QCoreApplication::removeTranslator(translator))
        return;
    if (index != 0 && m_languageBox->currentIndex() == 1) {
        translator->load(LanguageCatalogue(1));
        QCoreApplication::installTranslator(translator);
        g_language = 1;
    } else if (index == 0) {
        translator->load(LanguageCatalogue(0));
        QCoreApplication::installTranslator(translator);
        g_language = 0;
    }
    retranslatePage();
    m_form.retranslateMenu();
    StoreLanguageSetting(ConfigFilePath(), g_language);
}

void MainWindow::onFormClosed()
{
    // The form may have changed the language or the recent list while it was open.
    setLanguage(g_language);
    refreshRecentDesigns();
    show();
}
