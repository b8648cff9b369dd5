#pragma once

#include <QDialog>
#include <QString>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QStatusBar;
class QsciScintilla;

// The search box of the code view: finds a text forward or backward in the current editor,
// counts its hits, keeps a history of searched texts and reports on its status line.
class FindDialog : public QDialog
{
    Q_OBJECT
public:
    // How long a message stays on the status line, in milliseconds.
    static constexpr int kMessageTime = 8000;
    // The mode of an ordinary text search.
    static constexpr int kNormalMode = 1;

    explicit FindDialog(QWidget *parent = nullptr);

    // The editor that the next search works on.
    void setEditor(QsciScintilla *value);
    QsciScintilla *currentEditor() const { return editor; }

    // Lets search texts hold escapes such as \t or \x41.
    void setUseEscapes(bool value) { useEscapes = value; }

    // Makes the next search a first one, from the cursor; after the text of the editor
    // changed, the editor's own search state no longer fits it.
    void restartSearch();

    // The text of the status line (empty when its time has passed).
    QString statusMessage() const;
    // The searched texts, most recent first.
    QStringList history() const;

    void retranslateUi();

public slots:
    void slot_findNext();
    void slot_findPrev();
    void slot_findCount();
    void slot_close();
    void slot_tabIndexChanged(QsciScintilla *pageEditor);

signals:
    void emitClose();

private:
    void find(bool reverse);
    // Compares the controls with the last search and forgets it when anything differs.
    void takeControls(bool forwardSearch);
    void addToHistory(const QString &text);
    QString searchText() const;
    void showStatus(const QString &text);

    QsciScintilla *editor = nullptr;
    bool findFirstDone = false;
    qint32 findMode = kNormalMode;
    QString lastText;
    bool backward = false;
    bool wholeWord = false;
    bool matchCase = false;
    bool wrapAround = true;
    bool useEscapes = false;
    // The direction of the last search, which a repeat must share.
    bool lastForward = true;
    QsciScintilla *lastEditor = nullptr;

    QLabel *m_findLabel = nullptr;
    QComboBox *m_findBox = nullptr;
    QCheckBox *m_backwardBox = nullptr;
    QCheckBox *m_wholeWordBox = nullptr;
    QCheckBox *m_matchCaseBox = nullptr;
    QCheckBox *m_wrapBox = nullptr;
    QPushButton *m_nextButton = nullptr;
    QPushButton *m_prevButton = nullptr;
    QPushButton *m_countButton = nullptr;
    QPushButton *m_closeButton = nullptr;
    QStatusBar *m_statusBar = nullptr;
};
