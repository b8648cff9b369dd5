#include "report/reporttablelayout.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <QTextOption>

#include <cmath>

ReportTableLayout::ReportTableLayout(const QFont &bodyFont, const QFont &headerFont,
                                     QPaintDevice *device)
    : m_body(bodyFont), m_header(headerFont), m_device(device)
{
}

QStringList ReportTableLayout::wrapText(const QString &text, const QFont &font,
                                        QPaintDevice *device, qreal width)
{
    QStringList lines;
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    const QStringList paragraphs = QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n"))
                                       .split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs) {
        if (paragraph.isEmpty()) {
            lines << QString();
            continue;
        }
        QTextLayout layout(paragraph, font, device);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(qMax<qreal>(width, 1));
            QString part = paragraph.mid(line.textStart(), line.textLength());
            // The blank at a break belongs to neither line.
            while (!part.isEmpty() && part.at(part.size() - 1).isSpace())
                part.chop(1);
            lines << part;
        }
        layout.endLayout();
    }
    return lines;
}

qreal ReportTableLayout::linesHeight(int lines, const QFont &font, QPaintDevice *device)
{
    return lines * QFontMetricsF(font, device).lineSpacing();
}

QList<qreal> ReportTableLayout::columnWidths(const ReportTable &table, qreal width)
{
    int columns = table.header.size();
    for (const QStringList &row : table.rows)
        columns = qMax(columns, row.size());
    QList<qreal> weights = table.columnWeights;
    if (weights.size() != columns)
        weights = QList<qreal>();
    qreal total = 0;
    for (qreal w : weights)
        total += qMax<qreal>(w, 0);
    QList<qreal> widths;
    for (int c = 0; c < columns; ++c) {
        if (total > 0)
            widths << width * qMax<qreal>(weights.at(c), 0) / total;
        else
            widths << width / columns;
    }
    return widths;
}

ReportPlacedRow ReportTableLayout::wrapRow(const ReportTable &table, int row,
                                           const QList<qreal> &widths) const
{
    const QStringList texts = row < 0 ? table.header : table.rows.at(row);
    ReportPlacedRow placed;
    placed.row = row;
    placed.spanning = row >= 0 && table.spanningRows.contains(row);
    // Header rows and group titles are set in the header's font.
    const QFont &font = row < 0 || placed.spanning ? m_header : m_body;
    if (placed.spanning) {
        qreal width = 0;
        for (qreal w : widths)
            width += w;
        placed.cells << wrapText(texts.value(0), font, m_device, width - 2 * m_padding);
    } else {
        for (int c = 0; c < widths.size(); ++c)
            placed.cells << wrapText(texts.value(c), font, m_device,
                                     widths.at(c) - 2 * m_padding);
    }
    placed.height = heightOf(placed, font);
    return placed;
}

int ReportTableLayout::lineCount(const ReportPlacedRow &row)
{
    int lines = 1;
    for (const QStringList &cell : row.cells)
        lines = qMax(lines, static_cast<int>(cell.size()));
    return lines;
}

qreal ReportTableLayout::heightOf(const ReportPlacedRow &row, const QFont &font) const
{
    return linesHeight(lineCount(row), font, m_device) + 2 * m_padding;
}

ReportPlacedRow ReportTableLayout::takeLines(ReportPlacedRow *row, int lines)
{
    ReportPlacedRow piece = *row;
    for (int c = 0; c < row->cells.size(); ++c) {
        piece.cells[c] = row->cells.at(c).mid(0, lines);
        row->cells[c] = row->cells.at(c).mid(lines);
    }
    return piece;
}

ReportTableRun ReportTableLayout::layout(const ReportTable &table, qreal width, qreal y,
                                         const ReportPageBand &band) const
{
    ReportTableRun run;
    run.columnWidths = columnWidths(table, width);
    const bool hasHeader = !table.header.isEmpty();
    const ReportPlacedRow header = hasHeader ? wrapRow(table, -1, run.columnWidths)
                                             : ReportPlacedRow();
    const qreal headerHeight = hasHeader ? header.height : 0;
    int page = 0;

    const auto place = [&](ReportPlacedRow row) {
        row.page = page;
        row.top = y;
        y += row.height;
        run.rows << row;
    };
    const auto newPage = [&]() {
        ++page;
        y = band.top;
        if (hasHeader)
            place(header);
    };

    // The header row never stands alone at the bottom of a page: it goes with the first row,
    // or with as much of it as a page can hold.
    qreal firstHeight = 0;
    if (!table.rows.isEmpty()) {
        firstHeight = qMin(wrapRow(table, 0, run.columnWidths).height,
                           band.height() - headerHeight);
    }
    if (y + headerHeight + firstHeight > band.bottom && y > band.top) {
        ++page;
        y = band.top;
    }
    if (hasHeader)
        place(header);

    for (int i = 0; i < table.rows.size(); ++i) {
        ReportPlacedRow row = wrapRow(table, i, run.columnWidths);
        // A group title keeps the row after it on its page.
        qreal keep = 0;
        if (row.spanning && i + 1 < table.rows.size())
            keep = qMin(wrapRow(table, i + 1, run.columnWidths).height,
                        band.height() - headerHeight - row.height);
        if (keep > 0 && y + row.height + keep > band.bottom && y > band.top + headerHeight) {
            newPage();
            place(row);
            continue;
        }
        if (y + row.height <= band.bottom) {
            place(row);
            continue;
        }
        if (row.height <= band.height() - headerHeight) {
            newPage();
            place(row);
            continue;
        }
        // Taller than any page: the row goes on in pieces, each page taking what fits.
        const QFont &font = row.spanning ? m_header : m_body;
        const qreal lineSpacing = linesHeight(1, font, m_device);
        bool freshPage = false;
        while (y + heightOf(row, font) > band.bottom) {
            int fit = static_cast<int>(std::floor((band.bottom - y - 2 * m_padding) / lineSpacing));
            if (fit < 1 && !freshPage) {
                newPage();
                freshPage = true;
                continue;
            }
            fit = qMax(fit, 1);
            if (fit >= lineCount(row))
                break;
            ReportPlacedRow piece = takeLines(&row, fit);
            piece.height = heightOf(piece, font);
            place(piece);
            row.continued = true;
            newPage();
            freshPage = true;
        }
        row.height = heightOf(row, font);
        place(row);
    }
    run.pages = page;
    run.end = y;
    return run;
}
