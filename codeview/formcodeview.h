#pragma once

#include "codeview/codetabwidget.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

class FindDialog;
class MyQsciScintilla;
class QTabWidget;

// The "Code View" page: the six generated source files of a design in read-only editors on
// side tabs, with the search box.
class FormCodeView : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kFileCount = 6;

    explicit FormCodeView(QWidget *parent = nullptr);

    // Shows the files generated into `folder`: main.c, <stem>_pf_config.c and <stem>_int.c
    // from `folder`/src, <stem>_pf_config.h, <stem>_int.h and <stem>_conf.h from
    // `folder`/inc. A file that can't be read leaves its tab as it was. Each editor stays on
    // the lines it showed, the first tab is brought to the front, and the search box keeps
    // its text, history and options, its next search starting from the cursor.
    void showGeneratedFiles(const QString &folder, const QString &stem);

    // The file names of the six tabs, in tab order, for a file-name stem.
    static QStringList fileNames(const QString &stem);
    // The folder below the generated folder ("src" or "inc") of each tab, in tab order.
    static QStringList fileFolders();

    MyQsciScintilla *editor(int index) const;
    QTabWidget *tabWidget() const { return m_tabs; }
    // The search box; null until the first "Find".
    FindDialog *findDialog() const { return m_findDialog; }

    // Re-labels the page and the search box in the current language.
    void retranslateUi();

public slots:
    void TabWidgetTabBarClicked(int k);
    // Opens the search box on the current editor.
    void openFindDialog();
    void closeFindDialog();
    void slot_findNext();
    void slot_findPrev();
    void slot_findCount();

private:
    FindDialog *ensureFindDialog();

    CodeTabWidget *m_tabs = nullptr;
    QList<MyQsciScintilla *> m_editors;
    FindDialog *m_findDialog = nullptr;
};
