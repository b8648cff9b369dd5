#include "codeview/finddialog.h"
#include "codeview/formcodeview.h"
#include "codeview/myqsciscintilla.h"
#include "tests/common/testsupport.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFontMetrics>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>

namespace {

const QString kStem = QStringLiteral("mq48t110");

// A copy of the hand-written generated folder, open in a code view page.
class CodeView : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(scratch.isValid());
        const QStringList names = FormCodeView::fileNames(kStem);
        const QStringList folders = FormCodeView::fileFolders();
        for (int i = 0; i < names.size(); ++i) {
            const QString rel = folders.at(i) + QLatin1Char('/') + names.at(i);
            const QByteArray content = testsupport::readFile(
                testsupport::fixture(QStringLiteral("codeview/project/") + rel));
            ASSERT_FALSE(content.isEmpty()) << rel.toStdString();
            ASSERT_TRUE(testsupport::writeFile(path(rel), content));
        }
        page = std::make_unique<FormCodeView>();
        page->resize(1100, 500);
        page->show();
        page->showGeneratedFiles(scratch.path(), kStem);
    }

    QString path(const QString &rel) const { return scratch.path() + QLatin1Char('/') + rel; }
    QString configText() const
    {
        return QString::fromUtf8(testsupport::readFile(path("src/mq48t110_pf_config.c")));
    }

    // Opens the search box from the editor's own "Find" entry, as a user would.
    FindDialog *openFind(int tab)
    {
        page->tabWidget()->setCurrentIndex(tab);
        std::unique_ptr<QMenu> menu(page->editor(tab)->createContextMenu(nullptr));
        for (QAction *action : menu->actions()) {
            if (action->text() == QLatin1String("Find"))
                action->trigger();
        }
        return page->findDialog();
    }

    void setSearch(FindDialog *dialog, const QString &text, bool matchCase, bool wholeWord,
                   bool wrap = false, bool backward = false)
    {
        dialog->findChild<QComboBox *>("findWhatComboBox")->setEditText(text);
        dialog->findChild<QCheckBox *>("matchCaseCheckBox")->setChecked(matchCase);
        dialog->findChild<QCheckBox *>("wholeWordCheckBox")->setChecked(wholeWord);
        dialog->findChild<QCheckBox *>("wrapAroundCheckBox")->setChecked(wrap);
        dialog->findChild<QCheckBox *>("backwardCheckBox")->setChecked(backward);
    }

    // The line of the current selection, -1 without one.
    int selectedLine(int tab) const
    {
        int lineFrom = -1, indexFrom = -1, lineTo = -1, indexTo = -1;
        page->editor(tab)->getSelection(&lineFrom, &indexFrom, &lineTo, &indexTo);
        return lineFrom;
    }

    // Lines of the config file that hold `text`, by the given rule.
    QList<int> linesWith(const QString &text, Qt::CaseSensitivity cs) const
    {
        QList<int> result;
        const QStringList lines = configText().split(QLatin1Char('\n'));
        for (int i = 0; i < lines.size(); ++i) {
            if (lines.at(i).contains(text, cs))
                result.append(i);
        }
        return result;
    }

    QTemporaryDir scratch;
    std::unique_ptr<FormCodeView> page;
};

TEST_F(CodeView, ShowsTheSixGeneratedFilesOnSideTabs)
{
    QTabWidget *tabs = page->tabWidget();
    EXPECT_EQ(tabs->tabPosition(), QTabWidget::West);
    ASSERT_EQ(tabs->count(), FormCodeView::kFileCount);
    const QStringList expected = {"main.c",         "mq48t110_pf_config.c", "mq48t110_pf_config.h",
                                  "mq48t110_int.c", "mq48t110_int.h",       "mq48t110_conf.h"};
    for (int i = 0; i < tabs->count(); ++i) {
        EXPECT_EQ(tabs->tabText(i), expected.at(i));
        const QString rel = FormCodeView::fileFolders().at(i) + QLatin1Char('/') + expected.at(i);
        EXPECT_EQ(page->editor(i)->text(), QString::fromUtf8(testsupport::readFile(path(rel))))
            << rel.toStdString();
        EXPECT_TRUE(page->editor(i)->isReadOnly());
    }
    // Each file name fits on its side tab, whatever font the machine has.
    const QFontMetrics metrics(tabs->tabBar()->font());
    for (int i = 0; i < tabs->count(); ++i) {
        const QRect rect = tabs->tabBar()->tabRect(i);
        EXPECT_GE(rect.width(), metrics.horizontalAdvance(expected.at(i)) + 20);
        EXPECT_GE(rect.height(), metrics.height());
        if (i > 0) {
            EXPECT_GE(rect.top(), tabs->tabBar()->tabRect(i - 1).bottom());
        }
    }
    EXPECT_TRUE(page->editor(0)->text().contains(QStringLiteral("pf_usart1_init();")));
    // Chinese comments come through as UTF-8.
    EXPECT_TRUE(page->editor(1)->text().contains(QStringLiteral("时钟源：外部高速晶振")));
    EXPECT_EQ(tabs->currentIndex(), 0);
}

TEST_F(CodeView, RefreshUpdatesChangedFilesAndKeepsTheViewAndFindText)
{
    MyQsciScintilla *config = page->editor(1);
    FindDialog *dialog = openFind(1);
    setSearch(dialog, QStringLiteral("usart_enable"), true, false);
    dialog->slot_findNext();
    const int hitLine = selectedLine(1);
    ASSERT_GE(hitLine, 0);
    // The user scrolls away from the hit.
    config->setFirstVisibleLine(90);
    ASSERT_EQ(config->firstVisibleLine(), 90);

    // The generator rewrites the config file with another baud rate and drops conf.h.
    QString text = configText();
    text.replace(QStringLiteral("115200"), QStringLiteral("9600"));
    ASSERT_TRUE(testsupport::writeFile(path("src/mq48t110_pf_config.c"), text.toUtf8()));
    const QString oldConf = page->editor(5)->text();
    ASSERT_TRUE(QFile::remove(path("inc/mq48t110_conf.h")));
    page->showGeneratedFiles(scratch.path(), kStem);

    EXPECT_TRUE(config->text().contains(QStringLiteral("USART1, 9600,")));
    EXPECT_FALSE(config->text().contains(QStringLiteral("115200")));
    EXPECT_EQ(config->firstVisibleLine(), 90);
    EXPECT_EQ(page->editor(5)->text(), oldConf);
    EXPECT_EQ(page->tabWidget()->currentIndex(), 0);

    // The search box keeps its text and continues from where the cursor stood.
    page->tabWidget()->setCurrentIndex(1);
    EXPECT_EQ(dialog->findChild<QComboBox *>("findWhatComboBox")->currentText(),
              QStringLiteral("usart_enable"));
    setSearch(dialog, QStringLiteral("usart_enable"), true, false, true);
    dialog->slot_findNext();
    EXPECT_EQ(selectedLine(1), hitLine);
    EXPECT_EQ(config->selectedText(), QStringLiteral("usart_enable"));

    // A shorter file brings the view to its end instead of beyond it.
    ASSERT_TRUE(testsupport::writeFile(path("src/mq48t110_pf_config.c"),
                                       QByteArrayLiteral("void pf_usart1_init(void);\n")));
    page->showGeneratedFiles(scratch.path(), kStem);
    EXPECT_EQ(config->text(), QStringLiteral("void pf_usart1_init(void);\n"));
    EXPECT_LE(config->firstVisibleLine(), 1);
}

TEST_F(CodeView, FindsForwardThenSaysWhenNoMoreHitsFollow)
{
    FindDialog *dialog = openFind(1);
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->currentEditor(), page->editor(1));

    const QList<int> expected = linesWith(QStringLiteral("gpio_init("), Qt::CaseSensitive);
    ASSERT_EQ(expected.size(), 5);
    setSearch(dialog, QStringLiteral("gpio_init("), true, false);
    for (int line : expected) {
        dialog->slot_findNext();
        EXPECT_EQ(selectedLine(1), line);
        EXPECT_EQ(page->editor(1)->selectedText(), QStringLiteral("gpio_init("));
    }
    dialog->slot_findNext();
    EXPECT_EQ(dialog->statusMessage(), QStringLiteral("no more find text 'gpio_init('"));
    // The next one starts anew from the cursor, behind the last hit, without wrapping.
    dialog->slot_findNext();
    EXPECT_EQ(dialog->statusMessage(), QStringLiteral("cant't find text 'gpio_init('"));

    // With wrapping the search comes round to the first hit.
    setSearch(dialog, QStringLiteral("gpio_init("), true, false, true);
    dialog->slot_findNext();
    EXPECT_EQ(selectedLine(1), expected.first());
}

TEST_F(CodeView, FindsBackwardAndTurnsBackWithFindPrev)
{
    FindDialog *dialog = openFind(1);
    const QList<int> expected = linesWith(QStringLiteral("gpio_init("), Qt::CaseSensitive);
    MyQsciScintilla *editor = page->editor(1);
    editor->setCursorPosition(editor->lines() - 1, 0);

    setSearch(dialog, QStringLiteral("gpio_init("), true, false, false, true);
    for (int i = expected.size() - 1; i >= 0; --i) {
        dialog->slot_findNext();
        EXPECT_EQ(selectedLine(1), expected.at(i));
    }
    dialog->slot_findNext();
    EXPECT_EQ(dialog->statusMessage(), QStringLiteral("no more find text 'gpio_init('"));

    // Forward again: F3 to the second hit, F4 back to the first.
    editor->setCursorPosition(0, 0);
    setSearch(dialog, QStringLiteral("gpio_init("), true, false);
    dialog->slot_findNext();
    dialog->slot_findNext();
    EXPECT_EQ(selectedLine(1), expected.at(1));
    dialog->slot_findPrev();
    EXPECT_EQ(selectedLine(1), expected.at(0));
    dialog->slot_findNext();
    EXPECT_EQ(selectedLine(1), expected.at(1));
}

TEST_F(CodeView, CaseAndWholeWordDecideWhatCounts)
{
    FindDialog *dialog = openFind(1);
    const QString text = configText();
    MyQsciScintilla *editor = page->editor(1);
    const int reset = configText().split('\n').indexOf(QStringLiteral("  crm_reset();"));
    ASSERT_GT(reset, 0);
    editor->setFirstVisibleLine(reset - 2);
    editor->setSelection(reset, 2, reset, 11);

    const auto count = [&](const QString &what, bool matchCase, bool wholeWord) {
        setSearch(dialog, what, matchCase, wholeWord);
        dialog->slot_findCount();
        return dialog->statusMessage();
    };
    EXPECT_EQ(count(QStringLiteral("gpio_init("), true, false),
              QStringLiteral("count 5 times with 'gpio_init('"));
    EXPECT_EQ(count(QStringLiteral("gpio_init("), false, false),
              QStringLiteral("count 6 times with 'gpio_init('"));
    // Whole words leave out gpio_init_struct and gpio_init_type.
    EXPECT_EQ(count(QStringLiteral("gpio_init"), true, true),
              QStringLiteral("count 5 times with 'gpio_init'"));
    EXPECT_EQ(count(QStringLiteral("gpio_init"), true, false),
              QStringLiteral("count %1 times with 'gpio_init'")
                  .arg(text.count(QStringLiteral("gpio_init"))));
    EXPECT_EQ(count(QStringLiteral("no_such_call"), false, false),
              QStringLiteral("count 0 times with 'no_such_call'"));

    // Counting leaves the selection and the view as they were.
    int lineFrom, indexFrom, lineTo, indexTo;
    editor->getSelection(&lineFrom, &indexFrom, &lineTo, &indexTo);
    EXPECT_EQ(QList<int>({lineFrom, indexFrom, lineTo, indexTo}),
              QList<int>({reset, 2, reset, 11}));
    EXPECT_EQ(editor->firstVisibleLine(), reset - 2);

    // A case-sensitive whole-word search skips the upper-case call.
    setSearch(dialog, QStringLiteral("GPIO_INIT"), true, true);
    editor->setCursorPosition(0, 0);
    dialog->slot_findNext();
    EXPECT_EQ(selectedLine(1), linesWith(QStringLiteral("GPIO_INIT("), Qt::CaseSensitive)[0]);
}

TEST_F(CodeView, MissingOrEmptyTextsAreReportedOnTheStatusLine)
{
    FindDialog *dialog = openFind(0);
    setSearch(dialog, QString(), false, false);
    dialog->slot_findNext();
    EXPECT_EQ(dialog->statusMessage(), QStringLiteral("what find is null !"));
    dialog->slot_findCount();
    EXPECT_EQ(dialog->statusMessage(), QStringLiteral("what find is null !"));

    setSearch(dialog, QStringLiteral("usart_init"), false, false, true);
    dialog->slot_findNext();
    EXPECT_EQ(dialog->statusMessage(), QStringLiteral("cant't find text 'usart_init'"));
    EXPECT_FALSE(page->editor(0)->hasSelectedText());

    // Another tab is another editor: the same text is found there.
    page->tabWidget()->setCurrentIndex(1);
    EXPECT_EQ(dialog->currentEditor(), page->editor(1));
    dialog->slot_findNext();
    EXPECT_EQ(page->editor(1)->selectedText(), QStringLiteral("usart_init"));

    // The page's keys open the box again when a message must be seen.
    dialog->slot_close();
    EXPECT_FALSE(dialog->isVisible());
    setSearch(dialog, QStringLiteral("no_such_call"), false, false, true);
    page->slot_findNext();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->statusMessage(), QStringLiteral("cant't find text 'no_such_call'"));
}

TEST_F(CodeView, SearchHistoryKeepsRecentShortTexts)
{
    FindDialog *dialog = openFind(1);
    const QString longText = QStringLiteral("_init_struct.gpio_drive_strength = "
                                            "GPIO_DRIVE_STRENGTH_STRONGER;");
    ASSERT_EQ(longText.size(), 64);
    setSearch(dialog, longText, true, false, true);
    dialog->slot_findNext();
    EXPECT_EQ(page->editor(1)->selectedText(), longText);
    EXPECT_TRUE(dialog->history().isEmpty());
    setSearch(dialog, longText.mid(1), true, false, true);
    dialog->slot_findNext();
    EXPECT_EQ(dialog->history(), QStringList{longText.mid(1)});

    for (int i = 0; i < 16; ++i) {
        setSearch(dialog, QStringLiteral("GPIO_PINS_%1").arg(i), true, false, true);
        dialog->slot_findNext();
    }
    EXPECT_EQ(dialog->history().size(), 14);
    EXPECT_EQ(dialog->history().first(), QStringLiteral("GPIO_PINS_15"));
    setSearch(dialog, QStringLiteral("GPIO_PINS_9"), true, false, true);
    dialog->slot_findNext();
    EXPECT_EQ(dialog->history().first(), QStringLiteral("GPIO_PINS_9"));
    EXPECT_EQ(dialog->history().count(QStringLiteral("GPIO_PINS_9")), 1);
}

TEST_F(CodeView, EscapedSearchTextsFindControlCharacters)
{
    FindDialog *dialog = openFind(1);
    dialog->setUseEscapes(true);
    setSearch(dialog, QStringLiteral("{\\n  /* reset crm"), true, false, true);
    dialog->slot_findNext();
    EXPECT_EQ(page->editor(1)->selectedText(), QStringLiteral("{\n  /* reset crm"));
    setSearch(dialog, QStringLiteral("\\x7b\\n"), true, false);
    dialog->slot_findCount();
    EXPECT_EQ(dialog->statusMessage(), QStringLiteral("count %1 times with '\\x7b\\n'")
                                           .arg(configText().count(QStringLiteral("{\n"))));
}

TEST_F(CodeView, ContextMenuFoldsAndExpandsEveryBlock)
{
    MyQsciScintilla *editor = page->editor(1);
    std::unique_ptr<QMenu> menu(editor->createContextMenu(nullptr));
    QStringList texts;
    for (QAction *action : menu->actions()) {
        if (!action->isSeparator())
            texts << action->text();
    }
    EXPECT_EQ(texts, (QStringList{"Copy", "Select All", "Find", "Fold All", "Expand All"}));

    // A line inside the body of the first function.
    const int inside = configText().split('\n').indexOf(QStringLiteral("  crm_reset();"));
    ASSERT_GT(inside, 0);
    ASSERT_TRUE(editor->isLineShown(inside));
    menu->actions().at(texts.indexOf("Fold All") + 2)->trigger();
    EXPECT_FALSE(editor->isLineShown(inside));
    menu->actions().at(texts.indexOf("Expand All") + 2)->trigger();
    EXPECT_TRUE(editor->isLineShown(inside));

    menu->actions().at(texts.indexOf("Select All") + 0)->trigger();
    EXPECT_EQ(editor->selectedText(), editor->text());
}

} // namespace
