#include "codeview/formcodeview.h"

#include "codeview/codetabwidget.h"
#include "codeview/finddialog.h"
#include "codeview/myqsciscintilla.h"

#include <QDir>
#include <QFile>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QTextStream>
#include <QVBoxLayout>

namespace {

// Reads a whole text file as UTF-8; false when it can't be opened.
bool readText(const QString &path, QString *text)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    *text = stream.readAll();
    return true;
}

} // namespace

FormCodeView::FormCodeView(QWidget *parent) : QWidget(parent)
{
    m_tabs = new CodeTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("codeViewTabWidget"));
    QFont tabWidgetFont(QStringLiteral("Consolas"));
    tabWidgetFont.setPointSize(10);
    m_tabs->setFont(tabWidgetFont);
    QFont tabBarFont(QStringLiteral("Consolas"));
    tabBarFont.setPointSize(13);
    m_tabs->tabBar()->setFont(tabBarFont);

    const QStringList names = fileNames(QString());
    for (int i = 0; i < kFileCount; ++i) {
        auto *editor = new MyQsciScintilla(m_tabs);
        editor->setObjectName(QStringLiteral("codeEditor%1").arg(i));
        m_editors.append(editor);
        m_tabs->addTab(editor, names.at(i));
        connect(editor, &MyQsciScintilla::SendFindTextRequest, this,
                &FormCodeView::openFindDialog);
    }

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);

    connect(m_tabs, &QTabWidget::currentChanged, this, &FormCodeView::TabWidgetTabBarClicked);

    auto *next = new QShortcut(QKeySequence(Qt::Key_F3), this);
    auto *prev = new QShortcut(QKeySequence(Qt::Key_F4), this);
    auto *count = new QShortcut(QKeySequence(Qt::ALT + Qt::Key_C), this);
    connect(next, &QShortcut::activated, this, &FormCodeView::slot_findNext);
    connect(prev, &QShortcut::activated, this, &FormCodeView::slot_findPrev);
    connect(count, &QShortcut::activated, this, &FormCodeView::slot_findCount);
}

QStringList FormCodeView::fileNames(const QString &stem)
{
    return {QStringLiteral("main.c"),
            stem + QStringLiteral("_pf_config.c"),
            stem + QStringLiteral("_pf_config.h"),
            stem + QStringLiteral("_int.c"),
            stem + QStringLiteral("_int.h"),
            stem + QStringLiteral("_conf.h")};
}

QStringList FormCodeView::fileFolders()
{
    return {QStringLiteral("src"), QStringLiteral("src"), QStringLiteral("inc"),
            QStringLiteral("src"), QStringLiteral("inc"), QStringLiteral("inc")};
}

MyQsciScintilla *FormCodeView::editor(int index) const
{
    return m_editors.value(index);
}

void FormCodeView::showGeneratedFiles(const QString &folder, const QString &stem)
{
    const QStringList names = fileNames(stem);
    const QStringList folders = fileFolders();
    for (int i = 0; i < kFileCount; ++i) {
        m_tabs->setTabText(i, names.at(i));
        QString text;
        if (!readText(folder + QLatin1Char('/') + folders.at(i) + QLatin1Char('/') + names.at(i),
                      &text)) {
            continue;
        }
        if (m_editors.at(i)->text() != text)
            m_editors.at(i)->replaceText(text);
    }
    if (m_findDialog)
        m_findDialog->restartSearch();
    m_tabs->setCurrentIndex(0);
    TabWidgetTabBarClicked(0);
}

void FormCodeView::TabWidgetTabBarClicked(int k)
{
    if (k < 0 || k >= m_editors.size())
        return;
    // The tab bar paints the current tab in its own colour.
    m_tabs->tabBar()->update();
    if (m_findDialog)
        m_findDialog->slot_tabIndexChanged(m_editors.at(k));
}

FindDialog *FormCodeView::ensureFindDialog()
{
    if (!m_findDialog) {
        m_findDialog = new FindDialog(this);
        m_findDialog->setObjectName(QStringLiteral("findDialog"));
        connect(m_findDialog, &FindDialog::emitClose, this, &FormCodeView::closeFindDialog);
    }
    m_findDialog->setEditor(editor(m_tabs->currentIndex()));
    return m_findDialog;
}

void FormCodeView::openFindDialog()
{
    FindDialog *dialog = ensureFindDialog();
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void FormCodeView::closeFindDialog()
{
    if (m_findDialog)
        m_findDialog->hide();
}

void FormCodeView::slot_findNext()
{
    ensureFindDialog()->slot_findNext();
}

void FormCodeView::slot_findPrev()
{
    ensureFindDialog()->slot_findPrev();
}

void FormCodeView::slot_findCount()
{
    ensureFindDialog()->slot_findCount();
}

void FormCodeView::retranslateUi()
{
    if (m_findDialog)
        m_findDialog->retranslateUi();
}
