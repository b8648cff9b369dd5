#pragma once

#include <Qsci/qsciscintilla.h>

class QMenu;

// Read-only C source editor of the code view, with colouring, line numbers, folding and a
// context menu for copying, searching and folding.
class MyQsciScintilla : public QsciScintilla
{
    Q_OBJECT
public:
    explicit MyQsciScintilla(QWidget *parent = nullptr);

    // Replaces the text while keeping the editor read-only; the view stays on the same
    // lines, and the cursor and selection stay where they were as far as the new text
    // reaches.
    void replaceText(const QString &text);

    // The context menu with its entries in the current language; the caller owns it.
    QMenu *createContextMenu(QWidget *parent);

    // True when the line is shown, false when it lies inside a folded block.
    bool isLineShown(int line) const;

public slots:
    void ExpandAll();
    void FoldAll();
    // Asks the page for the search box.
    void FindText();

signals:
    void SendFindTextRequest();

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void foldEveryLine(int action);
};
