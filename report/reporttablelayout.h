#pragma once

#include <QFont>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

class QPaintDevice;

// A table as the report prints it: a header row and rows of plain texts.
struct ReportTable
{
    QStringList header;
    QList<QStringList> rows;
    // Relative widths of the columns; equal widths when empty or when the count differs.
    QList<qreal> columnWeights;
    // Rows drawn with a shaded background.
    QSet<int> shadedRows;
    // Rows whose first text spans the whole width (group titles), set in the header's
    // font; their other cells are ignored.
    QSet<int> spanningRows;
};

// The writable band of a page between the header and the footer.
struct ReportPageBand
{
    qreal top = 0;
    qreal bottom = 0;
    qreal height() const { return bottom - top; }
};

// One row of a laid-out table on its page.
struct ReportPlacedRow
{
    int row = -1;   // index into ReportTable::rows; -1 for the header row
    int page = 0;   // pages after the one the table starts on
    qreal top = 0;
    qreal height = 0;
    QList<QStringList> cells; // the lines of each cell as they are drawn
    bool spanning = false;    // one cell over the whole width, its lines in `cells[0]`
    bool continued = false;   // the rest of a row too tall for one page
};

// The outcome of laying out a table.
struct ReportTableRun
{
    QList<qreal> columnWidths;
    QList<ReportPlacedRow> rows; // in drawing order, the repeated headers included
    int pages = 0;                 // page breaks the table needed
    qreal end = 0;                 // y below the last row on the last page
};

// Lays out the report's tables and paragraphs: wraps each cell's text to its column as the
// given fonts measure on the given device (a word too long for the column is broken inside),
// makes each row as high as its tallest cell, and breaks pages where the next row would pass
// the bottom of the band, with the header row repeated on every new page. Painting is left
// to the caller, which draws exactly the lines laid out here.
class ReportTableLayout
{
public:
    ReportTableLayout(const QFont &bodyFont, const QFont &headerFont, QPaintDevice *device);

    // Space between a cell's border and its text.
    void setPadding(qreal padding) { m_padding = padding; }
    qreal padding() const { return m_padding; }

    // The lines of a text wrapped to a width: at spaces and other break opportunities, or
    // anywhere in a word that is wider than the width. A line end in the text starts a new
    // line; an empty text gives one empty line.
    static QStringList wrapText(const QString &text, const QFont &font, QPaintDevice *device,
                                qreal width);
    // The height of a number of lines of a font on the device.
    static qreal linesHeight(int lines, const QFont &font, QPaintDevice *device);

    // Column widths of a table over a total width, by its weights.
    static QList<qreal> columnWidths(const ReportTable &table, qreal width);

    // Lays out a table of the given width starting at `y` on a page whose band is `band`;
    // every later page offers the whole band.
    ReportTableRun layout(const ReportTable &table, qreal width, qreal y,
                          const ReportPageBand &band) const;

private:
    ReportPlacedRow wrapRow(const ReportTable &table, int row, const QList<qreal> &widths) const;
    qreal heightOf(const ReportPlacedRow &row, const QFont &font) const;
    // The first `lines` lines of every cell of a row, and the rest.
    static ReportPlacedRow takeLines(ReportPlacedRow *row, int lines);
    static int lineCount(const ReportPlacedRow &row);

    QFont m_body;
    QFont m_header;
    QPaintDevice *m_device;
    qreal m_padding = 12;
};
