#pragma once

#include "app/formconfiguration.h"
#include "database/records.h"

#include <QList>
#include <QString>
#include <QWidget>

class CustomCommandLinkButton;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTextBrowser;
class QTranslator;
class QVBoxLayout;

// The start page: language choice, device selection for a new design, opening a design file
// or a recent design. Holds the work form for the whole run and hides while it is shown.
class MainWindow : public QWidget
{
    Q_OBJECT
public:
    explicit MainWindow(QWidget *parent = nullptr);

    // Sets the language combo box without reacting to it, stores g_language and re-labels the
    // page and the work form's menu.
    void setLanguage(int language);
    // Keeps the process's translator for later language changes.
    void setTranslator(QTranslator *translator);

    // Re-labels every text of the page in the current language.
    void retranslatePage();

public slots:
    void NewDisplay_PushButton_Clicked();
    void OpenDisplay_PushButton_Clicked();
    void ListDisplay_PushButton_Clicked();
    void NewDesign_PushButton_Clicked();
    void OpenDesign_PushButton_Clicked();
    void Language_ComboBox_IndexChanged(int index);
    void MCUSerial_ComboBox_IndexChanged(int index);
    void Device_ComboBox_IndexChanged(int index);
    void OpenDesign_List_Clicked();
    void LinkRightButtonClicked_Slot();
    void DeleteSelectedDesignItem();
    // Maintenance: the bilingual texts of a folder of peripheral files to text files and back.
    void Get_ENCH_ToTXT_PushButton_Clicked();
    void Set_ENCH_FromTXT_PushButton_Clicked();

private:
    void buildTitleRow(QVBoxLayout *page);
    void buildSections(QVBoxLayout *page);
    QWidget *buildNewDesignGroup();
    QWidget *buildOpenDesignGroup();
    // Unfolds the section of `header` and folds the others; a second click folds it.
    void toggleSection(QPushButton *header);
    void showSection(QPushButton *header, bool open);
    void fillSerialBox();
    // Rebuilds the rows of the recent designs from the list file.
    void refreshRecentDesigns();
    // Checks a design file against the catalogue and hands it to the work form.
    void openDesignFile(const QString &path);
    void onFormClosed();
    // A modal box with one "Ok" button.
    void showError(const QString &text);

    // Tells the user about a settings or list file that could not be read and was kept
    // aside; it comes before the form, which reads the recent designs too.
    struct SetAsideNotice
    {
        SetAsideNotice();
        ~SetAsideNotice();
    } m_setAsideNotice;
    // Constructed first of the page: the page's widgets may refer to it.
    FormConfiguration m_form;
    QTranslator *translator = nullptr;
    QList<MCUSerialInfo> serials;
    QList<MCUPackageInfo> packages;
    QList<MCUListItem> devices;
    QList<CustomCommandLinkButton *> m_recentButtons;
    CustomCommandLinkButton *m_selectedRecentButton = nullptr;

    QLabel *m_titleLabel = nullptr;
    QLabel *m_logoLabel = nullptr;
    QLabel *m_languageLabel = nullptr;
    QComboBox *m_languageBox = nullptr;
    QLabel *m_welcomeLabel = nullptr;

    QPushButton *m_newHeader = nullptr;
    QPushButton *m_openHeader = nullptr;
    QPushButton *m_listHeader = nullptr;
    QGroupBox *m_newGroup = nullptr;
    QGroupBox *m_openGroup = nullptr;
    QGroupBox *m_listGroup = nullptr;

    QLabel *m_serialLabel = nullptr;
    QLabel *m_deviceLabel = nullptr;
    QLabel *m_packageLabel = nullptr;
    QLabel *m_flashLabel = nullptr;
    QLabel *m_sramLabel = nullptr;
    QComboBox *m_serialBox = nullptr;
    QComboBox *m_deviceBox = nullptr;
    QLineEdit *m_packageEdit = nullptr;
    QLineEdit *m_flashEdit = nullptr;
    QLineEdit *m_sramEdit = nullptr;
    QTextBrowser *m_infoBrowser = nullptr;
    QPushButton *m_newDesignButton = nullptr;
    QPushButton *m_toTxtButton = nullptr;
    QPushButton *m_fromTxtButton = nullptr;

    QPushButton *m_openButton = nullptr;
    QLabel *m_openHint = nullptr;
    QVBoxLayout *m_recentLayout = nullptr;
};
