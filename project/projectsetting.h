#pragma once

#include "project/projectinfo.h"

#include <QDialog>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

// The design a project is generated for: its device, its design file and what the code
// generator will write.
struct ProjectTarget
{
    QString series;               // "MQ48T110"
    QString device;               // "MQ48T110C8T"
    QString designPath;           // the design file, empty while the design is unsaved
    bool generatedBefore = false; // code was generated for this design in this session
    QStringList driverStems;      // the code generator's driver file stems
    QStringList userSources;      // generated sources; empty: the series' default
};

// The "Project Manager" dialog: collects the project's name, folder, toolchain, linker sizes
// and firmware package, checks them, and runs the project writer before it closes.
class ProjectSetting : public QDialog
{
    Q_OBJECT

public:
    explicit ProjectSetting(QWidget *parent = nullptr);

    // The device and design; call before setProjectInfo().
    void setTarget(const ProjectTarget &target);
    const ProjectTarget &target() const { return m_target; }
    // Fills the fields from a design's project settings; empty values keep the defaults.
    void setProjectInfo(const ProjectInfo &info);
    ProjectInfo toProjectInfo() const;
    // Re-labels the dialog in the language now installed.
    void retranslateUi();

    QString projectFolder() const;
    QString projectName() const;
    int ideIndex() const { return m_ideIndex; }
    bool keepUserCode() const { return m_keepUserCode; }
    bool useFirmware() const { return m_useFirmware; }
    QString firmwarePath() const { return m_firmwarePath; }
    // The package repository the versions are looked up in.
    QString repositoryPath() const { return m_repoPath; }
    // The design file that belongs to the project: project folder + "/" + name + ".MQPF".
    QString designFilePath() const { return m_designFilePath; }
    // Whether OK wrote an IDE project (false without "Copy libraries into the project folder"
    // or after a failed writer).
    bool projectWritten() const { return m_projectWritten; }
    // The project writer's last result (-1 when it did not finish) and its reason.
    int projectResult() const { return m_result; }
    QString projectError() const { return m_resultError; }

signals:
    // "Package Manager" was pressed; the package manager is opened by the receiver, which
    // passes a changed repository to updateRepoPath().
    void SendOpenPackageManager();

public slots:
    void OpenProjLocation_btnSlot();
    void OpenPackageManager_btnSlot();
    void OK_btnSlot();
    void Cancel_btnSlot();
    void gererateProject_Slot(int nResult);
    void FirmwareConfigEnable(int state);
    void KeepUserCode_CheckSlot(int state);
    void IDETypeChanged_comboBoxSlot(int index);
    void PackageVersionChanged_comboBoxSlot(const QString &text);
    void updateRepoPath(const QString &path);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    // Gives a label, button or check box its text now and after each change of language.
    template <typename Widget> Widget *translated(Widget *widget, const char *sourceText)
    {
        m_sourceTexts.append({widget, sourceText});
        widget->setText(tr(sourceText));
        return widget;
    }
    void buildWidgets();
    void fillPackageVersions(const QString &wanted);
    void updatePackagePath();
    bool startProjectWriter();
    bool handleWriterResult();
    void storeSettings();
    QString configPath() const;

    // Widgets
    QLineEdit *m_nameEdit = nullptr;
    QLineEdit *m_locationEdit = nullptr;
    QPushButton *m_browseButton = nullptr;
    QComboBox *m_ideCombo = nullptr;
    QCheckBox *m_keepCheck = nullptr;
    QLineEdit *m_heapEdit = nullptr;
    QLineEdit *m_stackEdit = nullptr;
    QCheckBox *m_firmwareCheck = nullptr;
    QComboBox *m_versionCombo = nullptr;
    QPushButton *m_packageButton = nullptr;
    QLineEdit *m_pathEdit = nullptr;
    QLabel *m_pathLabel = nullptr;
    QLabel *m_messageLabel = nullptr;
    QList<QPair<QWidget *, const char *>> m_sourceTexts;

    // State
    ProjectTarget m_target;
    int m_flashKiB = 0;
    int m_sramKiB = 0;
    QString m_repoPath;
    int m_ideIndex = -1;
    bool m_keepUserCode = true;
    bool m_useFirmware = true;
    QString m_firmwarePath;
    QString m_designFilePath;
    bool m_projectWritten = false;
    int m_result = -1;
    QString m_resultError;
};

// Shows the project manager for a design, modally. On OK it has written the IDE project (when
// asked) and `inOut` holds the answers; the code goes to inOut.projectFolder() + "/project".
// False when the user cancelled.
bool runProjectSetting(QWidget *parent, const ProjectTarget &target, ProjectInfo &inOut);
