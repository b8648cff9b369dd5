#include "packages/packagemanager.h"

#include "database/paths.h"
#include "packages/httpsdownload.h"
#include "packages/packageindex.h"
#include "packages/packagenames.h"
#include "packages/packagesettings.h"
#include "packages/packageworkers.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLineEdit>
#include <QMenu>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QThread>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const char kGreyStyle[] = "QPushButton {background-color: gray; color: white; border-radius:5px;}";
const char kBlueStyle[] =
    "QPushButton {background-color: rgb(0, 122, 204); color: white; border-radius:5px;}";
const char kDateFormat[] = "yyyy-MM-dd hh:mm:ss";
const int kFolderRole = Qt::UserRole;

// The progress window shown while a worker runs.
void setUpWaitDialog(QProgressDialog *dialog, const QString &label)
{
    dialog->setWindowTitle(PackageManager::tr("MQ48 Pin Forge"));
    dialog->setLabelText(label);
    dialog->setFont(QFont(QStringLiteral("Arial")));
    dialog->setStyleSheet(QStringLiteral("QProgressBar{text-align:center;}"));
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setAutoClose(false);
    dialog->setAutoReset(false);
    dialog->setMinimumDuration(0);
    dialog->show();
}

} // namespace

PackageManager::PackageManager(QWidget *parent)
    : QDialog(parent), configPath(packageConfigPath()), repoPath(configuredRepositoryPath()),
      m_familyRows(PackageFamilyRows())
{
    QSize size(300, 400);
    if (const QScreen *screen = QApplication::primaryScreen())
        size = size.boundedTo(screen->availableSize());
    resize(size);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    buildWidgets();
    RefreshPackageTree();
    setWindowTitle(tr("Package Manager"));
}

void PackageManager::buildWidgets()
{
    auto *group = new QGroupBox(tr("Package Installation Location"), this);
    m_pathEdit = new QLineEdit(repoPath, group);
    m_pathEdit->setObjectName(QStringLiteral("repoPathEdit"));
    m_pathEdit->setReadOnly(true);
    m_browseButton = new QPushButton(tr("Browse"), group);
    m_browseButton->setObjectName(QStringLiteral("browseButton"));
    auto *pathLayout = new QHBoxLayout(group);
    pathLayout->addWidget(m_pathEdit, 1);
    pathLayout->addWidget(m_browseButton);

    m_tree = new QTreeWidget(this);
    m_tree->setObjectName(QStringLiteral("packageTree"));
    m_tree->setColumnCount(2);
    m_tree->setHeaderLabels({tr("Firmware Package"), tr("Creation Date")});
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    const QFontMetrics metrics(m_tree->font());
    m_tree->setColumnWidth(0, metrics.horizontalAdvance(QStringLiteral("MQ48T610_620_630")) +
                                  metrics.height() * 4);
    m_tree->header()->setStretchLastSection(true);
    for (const QString &family : m_familyRows) {
        auto *row = new QTreeWidgetItem(m_tree, {family});
        row->setIcon(0, QIcon(QStringLiteral(":/image/background-light.png")));
    }

    m_localButton = new QPushButton(tr("Install From Local"), this);
    m_localButton->setObjectName(QStringLiteral("installLocalButton"));
    m_networkButton = new QPushButton(tr("Install From Network"), this);
    m_networkButton->setObjectName(QStringLiteral("installNetworkButton"));
    m_removeButton = new QPushButton(tr("Remove"), this);
    m_removeButton->setObjectName(QStringLiteral("removeButton"));
    m_closeButton = new QPushButton(tr("Close"), this);
    m_closeButton->setObjectName(QStringLiteral("closeButton"));
    setButtonActive(m_networkButton, false);
    setButtonActive(m_removeButton, false);
    auto *buttons = new QHBoxLayout;
    for (QPushButton *button : {m_localButton, m_networkButton, m_removeButton, m_closeButton}) {
        button->setMinimumHeight(metrics.height() * 2);
        button->setMinimumWidth(metrics.horizontalAdvance(button->text()) + metrics.height());
        buttons->addWidget(button);
    }

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(group);
    layout->addWidget(m_tree, 1);
    layout->addLayout(buttons);

    connect(m_browseButton, &QPushButton::clicked, this, &PackageManager::OpenBSPSavePath_btnSLot);
    connect(m_localButton, &QPushButton::clicked, this,
            &PackageManager::ImportPackageFromLocal_btnSlot);
    connect(m_networkButton, &QPushButton::clicked, this,
            &PackageManager::ImportPackageFromNetwork_btnSlot);
    connect(m_removeButton, &QPushButton::clicked, this,
            &PackageManager::RemoveInstalledBSPVersion_btnSlot);
    connect(m_closeButton, &QPushButton::clicked, this, &PackageManager::CloseForm_btnSlot);
    connect(m_tree, &QTreeWidget::itemClicked, this, &PackageManager::TreeItemClicked_Slot);
    connect(m_tree, &QTreeWidget::itemChanged, this, &PackageManager::TreeItemChanged_Slot);
    connect(m_tree, &QTreeWidget::customContextMenuRequested, this,
            &PackageManager::showMouseRightButton);
}

void PackageManager::setButtonActive(QPushButton *button, bool active)
{
    button->setEnabled(active);
    button->setStyleSheet(QLatin1String(active ? kBlueStyle : kGreyStyle));
}

QTreeWidgetItem *PackageManager::familyRow(const QString &family) const
{
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        if (m_tree->topLevelItem(i)->text(0) == family)
            return m_tree->topLevelItem(i);
    }
    return nullptr;
}

void PackageManager::RefreshPackageTree()
{
    const QSignalBlocker blocker(m_tree);
    const QIcon empty(QStringLiteral(":/image/background-light.png"));
    const QIcon filled(QStringLiteral(":/image/greenStone.png"));
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = m_tree->topLevelItem(i);
        qDeleteAll(row->takeChildren());
        row->setIcon(0, empty);
    }
    installed.clear();
    for (const InstalledPackage &package : ListInstalledPackages(repoPath, m_familyRows)) {
        QTreeWidgetItem *row = familyRow(package.family);
        if (!row)
            continue;
        auto *child = new QTreeWidgetItem(
            row, {package.version, package.created.toString(QLatin1String(kDateFormat))});
        child->setFlags(child->flags() | Qt::ItemIsUserCheckable);
        child->setCheckState(0, Qt::Unchecked);
        child->setData(0, kFolderRole, package.folderName);
        child->setToolTip(0, package.folderName);
        row->setIcon(0, filled);
    }
    setButtonActive(m_removeButton, false);
}

bool PackageManager::testRepoPath()
{
    if (!repoPath.isEmpty())
        return true;
    tellUser(this, UserMessage::Error, tr("Error"),
             tr("You must set the installation directory of the firmware package."));
    return false;
}

QString PackageManager::chooseDirectory(const QString &proposed)
{
    return QFileDialog::getExistingDirectory(this, tr("Select directory"), proposed);
}

QString PackageManager::chooseZipFile(const QString &folder)
{
    QFileDialog dialog(this, tr("Select the zip file of the Firmware package"), folder,
                       QStringLiteral("*.zip"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setViewMode(QFileDialog::List);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return QString();
    return dialog.selectedFiles().first();
}

void PackageManager::OpenBSPSavePath_btnSLot()
{
    QString proposed = repoPath;
    if (proposed.isEmpty()) {
        proposed = defaultRepositoryPath();
        if (!QDir(proposed).exists() && !QDir().mkpath(proposed)) {
            tellUser(this, UserMessage::Error, tr("Error"),
                     tr("Creating default package path \"%1\" error!").arg(proposed));
            return;
        }
    }
    const QString chosen = chooseDirectory(proposed);
    if (chosen.isEmpty() || chosen == repoPath)
        return;
    repoPath = chosen;
    m_pathEdit->setText(repoPath);
    RefreshPackageTree();
    storeRepositoryPath(repoPath);
    emit emitRepoPathChanged(repoPath);
}

void PackageManager::ImportPackageFromLocal_btnSlot()
{
    if (!testRepoPath())
        return;
    const QString zip = chooseZipFile(appFolder() + QStringLiteral("/Package"));
    if (zip.isEmpty())
        return;
    if (!IsValidPackageName(zip, m_familyRows)) {
        tellUser(this, UserMessage::Error, tr("Error"),
                 tr("The selected firmware package file is invalid."));
        return;
    }
    InstallPackage(zip);
}

void PackageManager::ImportPackageFromNetwork_btnSlot()
{
    if (!testRepoPath())
        return;
    QTreeWidgetItem *row = m_tree->currentItem();
    if (row && row->parent())
        row = row->parent();
    if (!row)
        return;
    const QString family = row->text(0);

    const QString indexPath = appFolder() + QStringLiteral("/bsp_index.json");
    QFile::remove(indexPath);
    {
        HttpsDownload download(this);
        if (!download.Download(packageIndexUrl(), appFolder()))
            return;
    }
    QString version;
    QString url;
    const bool found = ReadPackageIndex(indexPath, QStringLiteral("Board_Support_Packages"),
                                        family, &version, &url);
    QFile::remove(indexPath);
    if (!found) {
        tellUser(this, UserMessage::Warning, tr("Warning"),
                 tr("The firmware package not found for this MCU"));
        return;
    }

    QTemporaryDir temp(QDir::tempPath() + QStringLiteral("/Package_Repo_Temp-XXXXXX"));
    HttpsDownload download(this);
    if (!temp.isValid() ||
        !download.Download(url, temp.path(), VersionForDownloadName(url, version))) {
        if (!download.wasCanceled())
            tellUser(this, UserMessage::Error, tr("Error"), tr("Download failed."));
        return;
    }
    if (!IsValidPackageName(download.targetPath(), m_familyRows)) {
        tellUser(this, UserMessage::Error, tr("Error"),
                 tr("The selected firmware package file is invalid."));
        return;
    }
    InstallPackage(download.targetPath());
}

bool PackageManager::InstallPackage(const QString &zipPath)
{
    ExtractThread worker(zipPath, repoPath);
    const QString packageName = QFileInfo(zipPath).completeBaseName();
    const QString family = PackageFamilyOf(packageName);
    const QFileInfo target(worker.targetPath());
    if (target.exists() || target.isSymLink()) {
        const int answer = showUserMessage(
            this, {UserMessage::Warning,
                   tr("Warning"),
                   tr("The Firmware Library \"%1\" for %2 already exists. Please confirm "
                      "whether to continue?")
                       .arg(packageName, family),
                   {tr("Yes"), tr("Cancel")}});
        if (answer != 0)
            return false;
    }

    connect(&worker, &ExtractThread::emitResult, this, &PackageManager::extractResult_Slot);
    connect(&worker, &ExtractThread::emitUnzipping, this, &PackageManager::unzippingProgress_Slot);
    m_workerDone = false;
    m_entriesDone = 0;
    QProgressDialog progress(this);
    progress.setCancelButtonText(tr("Cancel"));
    progress.setRange(0, PackageInstaller::entryCount(zipPath));
    setUpWaitDialog(&progress, tr("Extract the Firmware Library, Please Waiting..."));
    worker.start(QThread::InheritPriority);
    while (!m_workerDone) {
        progress.setValue(qMin(m_entriesDone, progress.maximum()));
        QCoreApplication::processEvents();
        if (progress.wasCanceled())
            worker.requestCancel();
        if (worker.isFinished()) {
            QCoreApplication::processEvents();
            break;
        }
        QThread::msleep(10);
    }
    worker.wait();
    progress.hide();

    const PackageInstaller::Outcome outcome = worker.outcome();
    if (outcome.status != PackageInstaller::Installed &&
        outcome.status != PackageInstaller::Canceled) {
        tellUser(this, UserMessage::Warning, tr("Warning"),
                 tr("Failed to extract firmware library \"%1\"!").arg(packageName) +
                     QLatin1Char('\n') + outcome.reason);
    }
    RefreshPackageTree();
    if (QTreeWidgetItem *row = familyRow(family))
        row->setExpanded(true);
    return outcome.status == PackageInstaller::Installed;
}

void PackageManager::RemoveInstalledBSPVersion_btnSlot()
{
    if (!testRepoPath())
        return;
    QStringList folders;
    QStringList families;
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = m_tree->topLevelItem(i);
        const QString familyFolder =
            repoPath + QLatin1Char('/') + PackageFamilyFolderName(row->text(0));
        for (int j = 0; j < row->childCount(); ++j) {
            QTreeWidgetItem *child = row->child(j);
            if (child->checkState(0) != Qt::Checked)
                continue;
            folders << familyFolder + QLatin1Char('/') + child->data(0, kFolderRole).toString();
            if (!families.contains(familyFolder))
                families << familyFolder;
        }
    }
    installed = folders;
    if (installed.isEmpty())
        return;

    DelDirThread worker(installed, families);
    connect(&worker, &DelDirThread::emitResult, this, &PackageManager::DeleteBSP_Slot);
    m_workerDone = false;
    m_deleteErrors.clear();
    QProgressDialog progress(this);
    progress.setRange(0, 0);
    progress.setCancelButton(nullptr);
    setUpWaitDialog(&progress, tr("Delete the Firmware Library, Please Waiting..."));
    worker.start();
    while (!m_workerDone) {
        QCoreApplication::processEvents();
        if (worker.isFinished()) {
            QCoreApplication::processEvents();
            break;
        }
        QThread::msleep(10);
    }
    worker.wait();
    progress.hide();

    RefreshPackageTree();
    setButtonActive(m_removeButton, false);
    if (m_deleteErrors.isEmpty()) {
        tellUser(this, UserMessage::Information, tr("Information"),
                 tr("Remove the Firmware Library Succeeded!"));
        return;
    }
    for (const QString &error : qAsConst(m_deleteErrors)) {
        tellUser(this, UserMessage::Error, tr("Error"),
                 tr("Remove Firmware Library \"%1\" failed.").arg(error));
    }
}

void PackageManager::CloseForm_btnSlot()
{
    close();
}

void PackageManager::TreeItemClicked_Slot(QTreeWidgetItem *item, int)
{
    if (!item)
        return;
    setButtonActive(m_networkButton, true);
    if (!item->parent())
        item->setExpanded(!item->isExpanded());
}

void PackageManager::TreeItemChanged_Slot(QTreeWidgetItem *, int)
{
    bool anyChecked = false;
    for (int i = 0; i < m_tree->topLevelItemCount() && !anyChecked; ++i) {
        const QTreeWidgetItem *row = m_tree->topLevelItem(i);
        for (int j = 0; j < row->childCount() && !anyChecked; ++j)
            anyChecked = row->child(j)->checkState(0) == Qt::Checked;
    }
    setButtonActive(m_removeButton, anyChecked);
}

void PackageManager::showMouseRightButton(const QPoint &pos)
{
    QMenu menu(this);
    connect(menu.addAction(tr("Expand All")), &QAction::triggered, this,
            &PackageManager::TreeExpandItem);
    connect(menu.addAction(tr("Collapse All")), &QAction::triggered, this,
            &PackageManager::TreeCollapseItem);
    menu.exec(m_tree->viewport()->mapToGlobal(pos));
}

void PackageManager::TreeExpandItem()
{
    m_tree->expandAll();
}

void PackageManager::TreeCollapseItem()
{
    m_tree->collapseAll();
}

void PackageManager::extractResult_Slot(bool)
{
    // The outcome with its reason is read from the worker once it has finished.
    m_workerDone = true;
}

void PackageManager::unzippingProgress_Slot(int entriesDone, int)
{
    m_entriesDone = entriesDone;
}

void PackageManager::DeleteBSP_Slot(const QStringList &errors)
{
    m_deleteErrors = errors;
    m_workerDone = true;
}

void PackageManager::copyDirResult_Slot(int)
{
    // Ends a wait for a CopyDirThread the same way as the other workers' results.
    m_workerDone = true;
}
