// The report's table layout: wrapped cells, row heights, page breaks with the header row
// repeated, words too long for their column, rows taller than a page, group titles.

#include "report/reporttablelayout.h"

#include <QFontMetricsF>
#include <QImage>
#include <gtest/gtest.h>

namespace {

// Measures as the PDF writer does: 300 dots per inch.
class TableLayoutTest : public ::testing::Test
{
protected:
    TableLayoutTest() : device(8, 8, QImage::Format_RGB32)
    {
        device.setDotsPerMeterX(11811);
        device.setDotsPerMeterY(11811);
        body = QFont(QStringLiteral("DejaVu Sans"));
        body.setPointSize(9);
        header = body;
        header.setBold(true);
    }

    qreal lineSpacing() const { return QFontMetricsF(body, &device).lineSpacing(); }
    qreal textWidth(const QString &text, const QFont &font) const
    {
        return QFontMetricsF(font, const_cast<QImage *>(&device)).horizontalAdvance(text);
    }
    ReportTableLayout layout() { return ReportTableLayout(body, header, &device); }

    // Every body row's lines, in drawing order, with continued pieces joined.
    static QList<QList<QStringList>> bodyRows(const ReportTableRun &run)
    {
        QList<QList<QStringList>> rows;
        int last = -1;
        for (const ReportPlacedRow &r : run.rows) {
            if (r.row < 0)
                continue;
            if (r.row == last && r.continued) {
                for (int c = 0; c < r.cells.size(); ++c)
                    rows.last()[c] << r.cells.at(c);
            } else {
                rows << r.cells;
            }
            last = r.row;
        }
        return rows;
    }

    QImage device;
    QFont body;
    QFont header;
    const ReportPageBand band{160, 3300};
};

ReportTable table(int rows, int columns = 3)
{
    ReportTable t;
    for (int c = 0; c < columns; ++c)
        t.header << QStringLiteral("Column %1").arg(c);
    for (int r = 0; r < rows; ++r) {
        QStringList cells;
        for (int c = 0; c < columns; ++c)
            cells << QStringLiteral("R%1C%2").arg(r).arg(c);
        t.rows << cells;
    }
    return t;
}

} // namespace

TEST_F(TableLayoutTest, RowsAreAsHighAsTheirTallestCellAndNoLineLeavesItsColumn)
{
    ReportTable t = table(2);
    const QString sentence = QStringLiteral(
        "The peripheral clock of the serial port follows the APB2 divider, and the baud rate "
        "is derived from it with a fractional divider of sixteen steps");
    t.rows[1][2] = sentence;
    const ReportTableLayout l = layout();
    const ReportTableRun run = l.layout(t, 1200, band.top, band);

    ASSERT_EQ(run.rows.size(), 3); // header and two rows
    const ReportPlacedRow &oneLine = run.rows.at(1);
    const ReportPlacedRow &wrapped = run.rows.at(2);
    const QStringList lines = wrapped.cells.at(2);
    EXPECT_GT(lines.size(), 2);
    EXPECT_NEAR(oneLine.height, lineSpacing() + 2 * l.padding(), 0.01);
    EXPECT_NEAR(wrapped.height, lines.size() * lineSpacing() + 2 * l.padding(), 0.01);
    EXPECT_NEAR(wrapped.top, oneLine.top + oneLine.height, 0.01);
    // Broken at blanks only, nothing lost, and each line within its column.
    EXPECT_EQ(lines.join(QLatin1Char(' ')), sentence);
    for (const QString &line : lines)
        EXPECT_LE(textWidth(line, body), run.columnWidths.at(2) - 2 * l.padding() + 0.5)
            << line.toStdString();
    // Line ends in a text are kept.
    t.rows[0][0] = QStringLiteral("Default: 384 KB\nMax: 512 KB");
    const ReportTableRun again = l.layout(t, 1200, band.top, band);
    EXPECT_EQ(again.rows.at(1).cells.at(0),
              (QStringList{QStringLiteral("Default: 384 KB"), QStringLiteral("Max: 512 KB")}));
}

TEST_F(TableLayoutTest, AWordWiderThanItsColumnIsBrokenInsideIt)
{
    ReportTable t = table(1, 2);
    const QString word = QStringLiteral("EDMA_PERIPHERAL_DATA_WIDTH_HALFWORD_").repeated(8);
    t.rows[0][1] = word;
    t.columnWeights = {3, 1};
    const ReportTableLayout l = layout();
    const ReportTableRun run = l.layout(t, 1600, band.top, band);

    const QStringList lines = run.rows.at(1).cells.at(1);
    EXPECT_GT(lines.size(), 3);
    EXPECT_EQ(lines.join(QString()), word);
    for (const QString &line : lines)
        EXPECT_LE(textWidth(line, body), run.columnWidths.at(1) - 2 * l.padding() + 0.5);
}

TEST_F(TableLayoutTest, ThreeHundredRowsBreakPagesWithTheHeaderRepeated)
{
    const ReportTable t = table(300);
    const ReportTableRun run = layout().layout(t, 2000, 900, band);

    ASSERT_GE(run.pages, 3);
    int page = -1;
    int expectedRow = 0;
    int headers = 0;
    for (const ReportPlacedRow &r : run.rows) {
        EXPECT_LE(r.top + r.height, band.bottom + 0.01);
        if (r.page != page) {
            // Each page of the table opens with the header row, at the top of the band on
            // every page after the first.
            EXPECT_EQ(r.page, page + 1);
            EXPECT_EQ(r.row, -1) << "page " << r.page;
            EXPECT_DOUBLE_EQ(r.top, r.page == 0 ? 900.0 : band.top);
            page = r.page;
        }
        if (r.row < 0) {
            ++headers;
            continue;
        }
        EXPECT_EQ(r.row, expectedRow++);
        EXPECT_EQ(r.cells.at(0), QStringList{t.rows.at(r.row).at(0)});
    }
    EXPECT_EQ(expectedRow, 300);
    EXPECT_EQ(headers, run.pages + 1);
    EXPECT_EQ(page, run.pages);
    const ReportPlacedRow &lastRow = run.rows.last();
    EXPECT_DOUBLE_EQ(run.end, lastRow.top + lastRow.height);
}

TEST_F(TableLayoutTest, TheHeaderNeverStandsAloneAtTheFootOfAPage)
{
    const ReportTable t = table(5);
    const ReportTableLayout l = layout();
    const qreal rowHeight = lineSpacing() + 2 * l.padding();
    // Room for the header only.
    const ReportTableRun run = l.layout(t, 2000, band.bottom - rowHeight * 1.5, band);
    ASSERT_GE(run.rows.size(), 2);
    EXPECT_EQ(run.rows.at(0).row, -1);
    EXPECT_EQ(run.rows.at(0).page, 1);
    EXPECT_DOUBLE_EQ(run.rows.at(0).top, band.top);
    EXPECT_EQ(run.rows.at(1).page, 1);

    // A table starting at the top of a page stays there even when nothing fits.
    const ReportTableRun top = l.layout(table(0), 2000, band.top, band);
    ASSERT_EQ(top.rows.size(), 1);
    EXPECT_EQ(top.pages, 0);
}

TEST_F(TableLayoutTest, ARowTallerThanAPageGoesOnInPiecesWithNothingLost)
{
    ReportTable t = table(2);
    QStringList many;
    for (int i = 0; i < 400; ++i)
        many << QStringLiteral("line %1").arg(i);
    t.rows[1][1] = many.join(QLatin1Char('\n'));
    const ReportPageBand small{100, 2000};
    const ReportTableRun run = layout().layout(t, 1500, 300, small);

    EXPECT_GE(run.pages, 3);
    QList<ReportPlacedRow> pieces;
    for (const ReportPlacedRow &r : run.rows) {
        EXPECT_LE(r.top + r.height, small.bottom + 0.01);
        if (r.row == 1)
            pieces << r;
    }
    ASSERT_GE(pieces.size(), 3);
    EXPECT_FALSE(pieces.first().continued);
    for (int i = 1; i < pieces.size(); ++i) {
        EXPECT_TRUE(pieces.at(i).continued);
        EXPECT_EQ(pieces.at(i).page, pieces.at(i - 1).page + 1);
    }
    EXPECT_EQ(bodyRows(run).at(1).at(1), many);
    EXPECT_EQ(bodyRows(run).at(1).at(0), QStringList{QStringLiteral("R1C0")});
}

TEST_F(TableLayoutTest, AGroupTitleSpansTheTableAndKeepsItsFirstRow)
{
    ReportTable t = table(60);
    const QString title = QStringLiteral("Group of the parameters that follow ").repeated(6);
    t.rows[40] = QStringList{title};
    t.spanningRows.insert(40);
    const ReportTableLayout l = layout();
    // Measured on an endless page, then started so that all up to the title fits the first
    // page but not the row after it.
    const ReportTableRun endless = l.layout(t, 1800, 0, ReportPageBand{0, 1e9});
    ASSERT_EQ(endless.pages, 0);
    const ReportPlacedRow &measured = endless.rows.at(41); // the header comes first
    ASSERT_EQ(measured.row, 40);
    const qreal start = band.bottom - (measured.top + measured.height) - 1;
    const ReportTableRun run = l.layout(t, 1800, start, band);
    const ReportPlacedRow *group = nullptr;
    const ReportPlacedRow *next = nullptr;
    for (const ReportPlacedRow &r : run.rows) {
        if (r.row == 40)
            group = &r;
        if (r.row == 41)
            next = &r;
    }
    ASSERT_TRUE(group && next);
    EXPECT_TRUE(group->spanning);
    EXPECT_EQ(group->cells.size(), 1);
    EXPECT_EQ(group->page, next->page);
    // Wrapped to the whole width, not to its first column.
    const qreal widest = textWidth(group->cells.at(0).first(), header);
    EXPECT_GT(widest, run.columnWidths.at(0));
    EXPECT_LE(widest, 1800 - 2 * l.padding() + 0.5);
}

TEST(TableColumns, WidthsFollowTheWeightsOrAreEqual)
{
    ReportTable t;
    t.header = QStringList{QStringLiteral("a"), QStringLiteral("b")};
    t.columnWeights = {1, 3};
    EXPECT_EQ(ReportTableLayout::columnWidths(t, 400), (QList<qreal>{100, 300}));
    t.columnWeights = {1, 2, 3}; // not one per column
    EXPECT_EQ(ReportTableLayout::columnWidths(t, 400), (QList<qreal>{200, 200}));
    t.rows << QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")};
    EXPECT_EQ(ReportTableLayout::columnWidths(t, 600), (QList<qreal>{100, 200, 300}));
    t.columnWeights.clear();
    EXPECT_EQ(ReportTableLayout::columnWidths(t, 300), (QList<qreal>{100, 100, 100}));
}
