#include "codeview/myqsciscintilla.h"

#include <Qsci/qscilexercpp.h>

#include <QContextMenuEvent>
#include <QFont>
#include <QFontMetrics>
#include <QMenu>

namespace {

QFont codeFont()
{
    QFont font(QStringLiteral("Consolas"));
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPointSize(10);
    return font;
}

} // namespace

MyQsciScintilla::MyQsciScintilla(QWidget *parent) : QsciScintilla(parent)
{
    auto *lexer = new QsciLexerCPP(this);
    // Every style of the lexer in the code font; the colours stay the lexer's own.
    lexer->setFont(codeFont());
    setLexer(lexer);
    setUtf8(true);

    setMarginType(0, QsciScintilla::NumberMargin);
    setMarginLineNumbers(0, true);
    setMarginWidth(0, QStringLiteral("000000"));
    setMarginsFont(codeFont());

    setFolding(QsciScintilla::BoxedTreeFoldStyle);
    setFoldMarginColors(QColor(QStringLiteral("000000")), QColor(QStringLiteral("#E8E8FF")));
    setBraceMatching(QsciScintilla::SloppyBraceMatch);
    setReadOnly(true);
    setContextMenuPolicy(Qt::DefaultContextMenu);
}

void MyQsciScintilla::replaceText(const QString &text)
{
    const int firstLine = firstVisibleLine();
    const int xOffset = static_cast<int>(SendScintilla(SCI_GETXOFFSET));
    const long anchor = SendScintilla(SCI_GETANCHOR);
    const long caret = SendScintilla(SCI_GETCURRENTPOS);

    setReadOnly(false);
    setText(text);
    setReadOnly(true);

    const long length = SendScintilla(SCI_GETLENGTH);
    // Neither call scrolls, so the view comes back where it was.
    SendScintilla(SCI_SETCURRENTPOS, qMin(caret, length));
    SendScintilla(SCI_SETANCHOR, qMin(anchor, length));
    setFirstVisibleLine(qMin(firstLine, qMax(0, lines() - 1)));
    SendScintilla(SCI_SETXOFFSET, xOffset);
}

QMenu *MyQsciScintilla::createContextMenu(QWidget *parent)
{
    auto *menu = new QMenu(parent);
    QAction *copyAction = menu->addAction(tr("Copy"), this, &QsciScintilla::copy);
    copyAction->setEnabled(hasSelectedText());
    menu->addAction(tr("Select All"), this, [this]() { selectAll(true); });
    menu->addSeparator();
    menu->addAction(tr("Find"), this, &MyQsciScintilla::FindText);
    menu->addSeparator();
    menu->addAction(tr("Fold All"), this, &MyQsciScintilla::FoldAll);
    menu->addAction(tr("Expand All"), this, &MyQsciScintilla::ExpandAll);
    return menu;
}

bool MyQsciScintilla::isLineShown(int line) const
{
    return SendScintilla(SCI_GETLINEVISIBLE, static_cast<unsigned long>(line)) != 0;
}

void MyQsciScintilla::ExpandAll()
{
    foldEveryLine(SC_FOLDACTION_EXPAND);
}

void MyQsciScintilla::FoldAll()
{
    foldEveryLine(SC_FOLDACTION_CONTRACT);
}

void MyQsciScintilla::foldEveryLine(int action)
{
    // Folding needs the fold levels of the whole text, not only of the part painted so far.
    SendScintilla(SCI_COLOURISE, 0L, -1L);
    SendScintilla(SCI_FOLDALL, static_cast<unsigned long>(action));
}

void MyQsciScintilla::FindText()
{
    emit SendFindTextRequest();
}

void MyQsciScintilla::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createContextMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
    event->accept();
}
