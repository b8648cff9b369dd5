#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

// The "Package Manager" dialog: shows the firmware packages installed in the repository
// folder by family, installs packages from a local zip or from the download site, and
// removes the checked ones. The repository folder is the setting "PackagePath", shared with
// the project manager, which hears of changes through emitRepoPathChanged.
class PackageManager : public QDialog
{
    Q_OBJECT
public:
    explicit PackageManager(QWidget *parent = nullptr);

    QString repositoryPath() const { return repoPath; }

    // Installs a package zip into the repository, asking first when a package of that name
    // is installed already, with a progress window; true when it was installed.
    bool InstallPackage(const QString &zipPath);
    // Rebuilds the tree from the repository folder.
    void RefreshPackageTree();

signals:
    void emitRepoPathChanged(QString path);

public slots:
    void OpenBSPSavePath_btnSLot();
    void ImportPackageFromLocal_btnSlot();
    void ImportPackageFromNetwork_btnSlot();
    void RemoveInstalledBSPVersion_btnSlot();
    void CloseForm_btnSlot();
    void TreeItemClicked_Slot(QTreeWidgetItem *item, int column);
    void TreeItemChanged_Slot(QTreeWidgetItem *item, int column);
    void showMouseRightButton(const QPoint &pos);
    void TreeExpandItem();
    void TreeCollapseItem();
    void extractResult_Slot(bool result);
    void unzippingProgress_Slot(int entriesDone, int entriesTotal);
    void DeleteBSP_Slot(const QStringList &errors);
    void copyDirResult_Slot(int result);

protected:
    // The folder chooser of "Browse", starting at `proposed`; empty when declined.
    virtual QString chooseDirectory(const QString &proposed);
    // The zip chooser of "Install From Local", starting in `folder`; empty when declined.
    virtual QString chooseZipFile(const QString &folder);

private:
    void buildWidgets();
    bool testRepoPath();
    void setButtonActive(QPushButton *button, bool active);
    QTreeWidgetItem *familyRow(const QString &family) const;

    QString configPath;
    QString repoPath;
    QStringList installed;
    QStringList m_familyRows;

    QLineEdit *m_pathEdit = nullptr;
    QTreeWidget *m_tree = nullptr;
    QPushButton *m_browseButton = nullptr;
    QPushButton *m_localButton = nullptr;
    QPushButton *m_networkButton = nullptr;
    QPushButton *m_removeButton = nullptr;
    QPushButton *m_closeButton = nullptr;

    bool m_workerDone = false;
    int m_entriesDone = 0;
    QStringList m_deleteErrors;
};
