#include "codeview/finddialog.h"

#include "codeview/findtext.h"

#include <Qsci/qsciscintilla.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QVBoxLayout>

FindDialog::FindDialog(QWidget *parent) : QDialog(parent)
{
    setModal(false);
    m_findLabel = new QLabel(this);
    m_findBox = new QComboBox(this);
    m_findBox->setObjectName(QStringLiteral("findWhatComboBox"));
    m_findBox->setEditable(true);
    // The history is kept by the searches themselves, not by the Enter key.
    m_findBox->setInsertPolicy(QComboBox::NoInsert);
    m_findBox->setMinimumContentsLength(28);
    m_findLabel->setBuddy(m_findBox);

    m_backwardBox = new QCheckBox(this);
    m_backwardBox->setObjectName(QStringLiteral("backwardCheckBox"));
    m_wholeWordBox = new QCheckBox(this);
    m_wholeWordBox->setObjectName(QStringLiteral("wholeWordCheckBox"));
    m_matchCaseBox = new QCheckBox(this);
    m_matchCaseBox->setObjectName(QStringLiteral("matchCaseCheckBox"));
    m_wrapBox = new QCheckBox(this);
    m_wrapBox->setObjectName(QStringLiteral("wrapAroundCheckBox"));
    m_wrapBox->setChecked(wrapAround);

    m_nextButton = new QPushButton(this);
    m_nextButton->setObjectName(QStringLiteral("findNextButton"));
    m_nextButton->setDefault(true);
    m_prevButton = new QPushButton(this);
    m_prevButton->setObjectName(QStringLiteral("findPrevButton"));
    m_countButton = new QPushButton(this);
    m_countButton->setObjectName(QStringLiteral("countButton"));
    m_closeButton = new QPushButton(this);
    m_closeButton->setObjectName(QStringLiteral("closeButton"));

    m_statusBar = new QStatusBar(this);
    m_statusBar->setSizeGripEnabled(false);

    auto *grid = new QGridLayout;
    grid->addWidget(m_findLabel, 0, 0);
    grid->addWidget(m_findBox, 0, 1);
    auto *options = new QVBoxLayout;
    for (QCheckBox *box : {m_backwardBox, m_wholeWordBox, m_matchCaseBox, m_wrapBox})
        options->addWidget(box);
    options->addStretch();
    grid->addLayout(options, 1, 0, 1, 2);
    auto *buttons = new QVBoxLayout;
    for (QPushButton *button : {m_nextButton, m_prevButton, m_countButton, m_closeButton})
        buttons->addWidget(button);
    buttons->addStretch();
    grid->addLayout(buttons, 0, 2, 2, 1);
    auto *page = new QVBoxLayout(this);
    page->addLayout(grid);
    page->addWidget(m_statusBar);

    retranslateUi();

    connect(m_nextButton, &QPushButton::clicked, this, &FindDialog::slot_findNext);
    connect(m_prevButton, &QPushButton::clicked, this, &FindDialog::slot_findPrev);
    connect(m_countButton, &QPushButton::clicked, this, &FindDialog::slot_findCount);
    connect(m_closeButton, &QPushButton::clicked, this, &FindDialog::slot_close);
    // The keys of the page work in the box as well.
    connect(new QShortcut(QKeySequence(Qt::Key_F3), this), &QShortcut::activated, this,
            &FindDialog::slot_findNext);
    connect(new QShortcut(QKeySequence(Qt::Key_F4), this), &QShortcut::activated, this,
            &FindDialog::slot_findPrev);
    connect(new QShortcut(QKeySequence(Qt::ALT + Qt::Key_C), this), &QShortcut::activated, this,
            &FindDialog::slot_findCount);
}

void FindDialog::retranslateUi()
{
    setWindowTitle(tr("Find"));
    m_findLabel->setText(tr("Find what"));
    m_backwardBox->setText(tr("Backward direction"));
    m_wholeWordBox->setText(tr("Match whole word only"));
    m_matchCaseBox->setText(tr("Match case"));
    m_wrapBox->setText(tr("Wrap around"));
    m_nextButton->setText(tr("Find Next(F3)"));
    m_prevButton->setText(tr("Find Prev(F4)"));
    m_countButton->setText(tr("Counter(ALT+C)"));
    m_closeButton->setText(tr("Close"));
}

void FindDialog::setEditor(QsciScintilla *value)
{
    editor = value;
}

void FindDialog::slot_tabIndexChanged(QsciScintilla *pageEditor)
{
    setEditor(pageEditor);
}

QString FindDialog::statusMessage() const
{
    return m_statusBar->currentMessage();
}

QStringList FindDialog::history() const
{
    QStringList items;
    for (int i = 0; i < m_findBox->count(); ++i)
        items.append(m_findBox->itemText(i));
    return items;
}

void FindDialog::restartSearch()
{
    findFirstDone = false;
}

QString FindDialog::searchText() const
{
    return m_findBox->currentText();
}

void FindDialog::showStatus(const QString &text)
{
    m_statusBar->showMessage(text, kMessageTime);
    // The status line is the only place where a search answers: make sure it is seen.
    if (!isVisible())
        show();
}

void FindDialog::takeControls(bool forwardSearch)
{
    const QString text = searchText();
    const bool controlsBackward = m_backwardBox->isChecked();
    const bool controlsWholeWord = m_wholeWordBox->isChecked();
    const bool controlsMatchCase = m_matchCaseBox->isChecked();
    const bool controlsWrap = m_wrapBox->isChecked();
    if (findMode != kNormalMode || text != lastText || controlsBackward != backward ||
        controlsWholeWord != wholeWord || controlsMatchCase != matchCase ||
        controlsWrap != wrapAround || forwardSearch != lastForward || editor != lastEditor) {
        findFirstDone = false;
    }
    findMode = kNormalMode;
    lastText = text;
    backward = controlsBackward;
    wholeWord = controlsWholeWord;
    matchCase = controlsMatchCase;
    wrapAround = controlsWrap;
    lastForward = forwardSearch;
    lastEditor = editor;
}

void FindDialog::addToHistory(const QString &text)
{
    const QStringList updated = findtext::pushHistory(history(), text);
    if (updated == history())
        return;
    const QSignalBlocker blocker(m_findBox);
    m_findBox->clear();
    m_findBox->addItems(updated);
    m_findBox->setEditText(text);
}

void FindDialog::slot_findNext()
{
    find(false);
}

void FindDialog::slot_findPrev()
{
    find(true);
}

void FindDialog::find(bool reverse)
{
    const QString text = searchText();
    if (text.isEmpty()) {
        showStatus(tr("what find is null !"));
        return;
    }
    if (!editor)
        return;
    // Find Prev goes against the direction of the check box.
    const bool forward = reverse ? m_backwardBox->isChecked() : !m_backwardBox->isChecked();
    takeControls(forward);

    if (findFirstDone) {
        if (!editor->findNext()) {
            showStatus(tr("no more find text '%1'").arg(text));
            findFirstDone = false;
        }
        return;
    }

    addToHistory(text);
    const QString expr = useEscapes ? findtext::applyEscapes(text) : text;
    int line = -1;
    int index = -1;
    if (!forward) {
        // Backwards from the start of the selection, so that the hit in view is passed.
        int lineTo = 0;
        int indexTo = 0;
        editor->getSelection(&line, &index, &lineTo, &indexTo);
        if (line < 0)
            editor->getCursorPosition(&line, &index);
    }
    if (!editor->findFirst(expr, false, matchCase, wholeWord, wrapAround, forward, line, index)) {
        showStatus(tr("cant't find text '%1'").arg(text));
        return;
    }
    findFirstDone = true;
}

void FindDialog::slot_findCount()
{
    const QString text = searchText();
    if (text.isEmpty()) {
        showStatus(tr("what find is null !"));
        return;
    }
    if (findMode != kNormalMode) {
        showStatus(tr("The mode of the current document does not allow this operation."));
        return;
    }
    if (!editor)
        return;
    takeControls(lastForward);
    const QString expr = useEscapes ? findtext::applyEscapes(text) : text;

    const long anchor = editor->SendScintilla(QsciScintilla::SCI_GETANCHOR);
    const long caret = editor->SendScintilla(QsciScintilla::SCI_GETCURRENTPOS);
    const int firstLine = editor->firstVisibleLine();

    int count = 0;
    const long limit = editor->length() + 1;
    if (editor->findFirst(expr, false, matchCase, wholeWord, false, true, 0, 0, false)) {
        ++count;
        while (count < limit && editor->findNext())
            ++count;
    }

    editor->SendScintilla(QsciScintilla::SCI_SETSEL, anchor, caret);
    editor->setFirstVisibleLine(firstLine);
    // The editor's own search is used up; the next search starts at the cursor again.
    findFirstDone = false;
    showStatus(tr("count %1 times with '%2'").arg(count).arg(text));
}

void FindDialog::slot_close()
{
    emit emitClose();
}
