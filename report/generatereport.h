#pragma once

#include "report/reportinputs.h"
#include "report/reporttablelayout.h"

#include <QFont>
#include <QImage>
#include <QPixmap>
#include <QString>
#include <QTextOption>
#include <QWidget>

class QPainter;
class QPdfWriter;

// The configuration report: paints the design's facts, pictures and tables section by
// section on the pages of a PDF, each page with its header, footer and number.
class GenerateReport : public QWidget
{
    Q_OBJECT
public:
    explicit GenerateReport(QWidget *parent = nullptr);

    void setInputs(const ReportInputs &inputs) { m_inputs = inputs; }
    const ReportInputs &inputs() const { return m_inputs; }

    // Writes the report to a PDF file. The file is written beside its place and put there
    // only when complete: on failure nothing is left at `path`, an earlier file there stays
    // as it was, and `error` holds the message for the user.
    bool writePdf(const QString &path, QString *error = nullptr);

    // Pages of the last report written.
    int pageCount() const { return pageNumber; }

    // The message for a file that cannot be opened for writing.
    static QString openFailedMessage(const QString &path);
    // The fonts of the report; every one is of the family "Arial,SimSun".
    static QFont titleFont();
    static QFont footerFont();
    static QFont headingFont();
    static QFont bodyFont();
    static QFont tableFont();
    static QFont tableHeaderFont();

private:
    void paint();
    void beginPage();
    void drawHeader();
    void drawFooter();
    qreal contentTop() const;
    qreal contentBottom() const;
    qreal contentWidth() const { return pageWidth - 2 * margin; }
    // Starts a new page unless `height` fits below the current position.
    void ensureRoom(qreal height);

    void heading(const QString &text);
    void paragraph(const QString &text, const QFont &font, Qt::Alignment alignment = Qt::AlignLeft);
    void table(const ReportTable &table);
    void drawRow(const ReportPlacedRow &row, const QList<qreal> &widths, const ReportTable &t);
    void picture(const QImage &image, bool rotateWhenWide);
    void gap(qreal height);

    void drawOverview();
    void drawPinout();
    void drawPinsTable();
    void drawClockTree();
    void drawSoftwareProject();
    void drawPeripherals();
    void drawSystem();
    void drawNotice();
    void drawDma(const ReportDmaController &controller, const QString &number);

    // The report's own state, as the report has always kept it.
    int pageNumber = 0;
    qreal currentY = 0;
    const int margin = 30;
    int pageWidth = 0;
    int pageHeight = 0;

    ReportInputs m_inputs;
    QPdfWriter *m_writer = nullptr;
    QPainter *m_painter = nullptr;
    QTextOption m_textOption;
    // Drawn on every page; one pixmap each, so that the file holds them once.
    QPixmap m_logo;
    QPixmap m_footerBand;
};
