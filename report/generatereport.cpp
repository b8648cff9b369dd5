#include "report/generatereport.h"

#include "report/reportpicture.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace {

const QString kFamily = QStringLiteral("Arial,SimSun");
const QColor kHeaderFill(214, 240, 243);
const QColor kShadedFill(255, 244, 214);
const QColor kGrid(90, 90, 90);
const QColor kGroupFill(238, 242, 247);
const QColor kGroupText(47, 74, 109);

// Space between the blocks of a section, in dots.
constexpr qreal kBlockGap = 40;
// How far a heading moves the running position.
constexpr qreal kHeadingStep = 90;
// Space between a table cell's border and its text.
constexpr qreal kCellPadding = 12;

QFont reportFont(int pointSize, int weight)
{
    QFont font(kFamily);
    font.setPointSize(pointSize);
    font.setWeight(weight);
    return font;
}

// Lets `family` stand for the first of `candidates` the machine has, unless it has the
// family itself or something stands for it already.
void substitute(const QStringList &families, const QString &family,
                std::initializer_list<const char *> candidates)
{
    if (families.contains(family, Qt::CaseInsensitive) || !QFont::substitutes(family).isEmpty())
        return;
    for (const char *candidate : candidates) {
        const QString name = QLatin1String(candidate);
        if (families.contains(name, Qt::CaseInsensitive)) {
            QFont::insertSubstitution(family, name);
            return;
        }
    }
}

// The family's Latin part falls to a sans serif the machine has (the program lets its own
// interface font stand for Arial), and its Chinese part to a CJK font that is there, so that
// Chinese texts are drawn and embedded rather than shown as empty boxes. Latin text is never
// left to the CJK font: its digits would be lost to a reader copying text from the file.
void installFallbacks()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    const QStringList families = QFontDatabase().families();
    substitute(families, QStringLiteral("Arial"),
               {"DejaVu Sans", "Liberation Sans", "FreeSans", "Noto Sans"});
    substitute(families, QStringLiteral("SimSun"),
               {"Noto Sans CJK SC", "Noto Serif CJK SC", "Source Han Sans SC",
                "WenQuanYi Zen Hei", "AR PL UMing CN"});
}

ReportTable nameValueTable(const QList<ReportNameValue> &rows)
{
    ReportTable t;
    t.header = QStringList{GenerateReport::tr("Name"), GenerateReport::tr("Value")};
    t.columnWeights = {2, 3};
    for (const ReportNameValue &row : rows)
        t.rows << QStringList{row.name, row.value};
    return t;
}

} // namespace

GenerateReport::GenerateReport(QWidget *parent)
    : QWidget(parent), m_logo(QStringLiteral(":/image/velmora.png")),
      m_footerBand(QStringLiteral(":/image/pagefooter.png"))
{
    installFallbacks();
    m_textOption.setAlignment(Qt::AlignCenter);
    m_textOption.setWrapMode(QTextOption::WordWrap);
}

QString GenerateReport::openFailedMessage(const QString &path)
{
    return tr("Failed to open the file. It may be in use or the path is wrong.") +
           QLatin1Char('\n') + path;
}

QFont GenerateReport::titleFont()
{
    return reportFont(16, 75);
}

QFont GenerateReport::footerFont()
{
    return reportFont(9, 75);
}

QFont GenerateReport::headingFont()
{
    return reportFont(13, 75);
}

QFont GenerateReport::bodyFont()
{
    return reportFont(10, 50);
}

QFont GenerateReport::tableFont()
{
    return reportFont(9, 50);
}

QFont GenerateReport::tableHeaderFont()
{
    return reportFont(9, 75);
}

bool GenerateReport::writePdf(const QString &path, QString *error)
{
    const auto fail = [error](const QString &message) {
        if (error)
            *error = message;
        return false;
    };
    QSaveFile file(path);
    if (path.trimmed().isEmpty() || !file.open(QIODevice::WriteOnly))
        return fail(openFailedMessage(path));

    bool painted = false;
    {
        QPdfWriter writer(&file);
        writer.setResolution(300);
        writer.setTitle(QStringLiteral("MQ48 PinForeg Configuration Report"));
        writer.setCreator(QStringLiteral("Velmora Technology"));
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Point);
        QPainter painter;
        if (painter.begin(&writer)) {
            m_writer = &writer;
            m_painter = &painter;
            pageWidth = painter.viewport().width();
            pageHeight = painter.viewport().height();
            pageNumber = 0;
            currentY = 0;
            paint();
            painted = painter.end();
            m_painter = nullptr;
            m_writer = nullptr;
        }
    }
    // A full disk shows only in the file's state: each write is checked before the file
    // takes the place of the old one.
    if (!painted || file.error() != QFileDevice::NoError || !file.flush()) {
        const QString reason = file.errorString();
        file.cancelWriting();
        file.commit();
        return fail(tr("Failed to write the file.") + QLatin1Char('\n') + path +
                    (reason.isEmpty() ? QString() : QLatin1Char('\n') + reason));
    }
    if (!file.commit())
        return fail(openFailedMessage(path));
    return true;
}

void GenerateReport::paint()
{
    drawOverview();
    drawPinout();
    drawPinsTable();
    drawClockTree();
    drawSoftwareProject();
    drawPeripherals();
    drawSystem();
    drawNotice();
}

// ----------------------------------------------------------------------------------------
// Pages

void GenerateReport::beginPage()
{
    if (pageNumber > 0)
        m_writer->newPage();
    ++pageNumber;
    drawHeader();
    drawFooter();
    currentY = contentTop();
}

qreal GenerateReport::contentTop() const
{
    return 160;
}

qreal GenerateReport::contentBottom() const
{
    return pageHeight - 150;
}

void GenerateReport::drawHeader()
{
    QPainter &p = *m_painter;
    qreal logoRight = margin;
    if (!m_logo.isNull()) {
        p.drawPixmap(QRect(margin, 0, m_logo.width() * 2, m_logo.height() * 2), m_logo);
        logoRight += m_logo.width() * 2;
    }
    // The title is centred on the page unless it would then run into the logo; it is then
    // centred in the room beside the logo.
    const QString title = tr("MQ48 PinForge Configuration Report");
    p.setFont(titleFont());
    p.setPen(Qt::black);
    QRectF room(margin, 0, pageWidth - 2 * margin, 100);
    const qreal width = QFontMetricsF(titleFont(), m_writer).horizontalAdvance(title);
    if (room.center().x() - width / 2 < logoRight + 20)
        room.setLeft(logoRight + 20);
    p.drawText(room, title, m_textOption);
    p.setPen(QPen(Qt::black, 5));
    p.drawLine(QPointF(margin, 120), QPointF(pageWidth - margin, 120));
}

void GenerateReport::drawFooter()
{
    QPainter &p = *m_painter;
    const qreal line = pageHeight - 120;
    p.setPen(QPen(Qt::black, 5));
    p.drawLine(QPointF(margin, line), QPointF(pageWidth - margin, line));
    if (!m_footerBand.isNull())
        p.drawPixmap(QRectF(margin, line + 15, pageWidth - 2 * margin, 36), m_footerBand,
                     QRectF(m_footerBand.rect()));
    p.setFont(footerFont());
    p.setPen(Qt::black);
    const QRectF text(margin, pageHeight - 60, pageWidth - 2 * margin, 50);
    p.drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
               m_inputs.project.date.toString(QStringLiteral("yyyy-MM-dd")));
    p.drawText(text, Qt::AlignRight | Qt::AlignVCenter, QString::number(pageNumber));
}

void GenerateReport::ensureRoom(qreal height)
{
    if (currentY + height > contentBottom() && currentY > contentTop())
        beginPage();
}

void GenerateReport::gap(qreal height)
{
    currentY += height;
}

// ----------------------------------------------------------------------------------------
// Blocks

void GenerateReport::heading(const QString &text)
{
    // A heading keeps a few lines of what follows it on its page.
    ensureRoom(kHeadingStep + ReportTableLayout::linesHeight(4, tableFont(), m_writer));
    QPainter &p = *m_painter;
    p.setFont(headingFont());
    p.setPen(QColor(47, 74, 109));
    p.drawText(QRectF(margin, currentY, contentWidth(), kHeadingStep),
               Qt::AlignLeft | Qt::AlignVCenter, text);
    currentY += kHeadingStep;
}

void GenerateReport::paragraph(const QString &text, const QFont &font, Qt::Alignment alignment)
{
    const QStringList lines =
        ReportTableLayout::wrapText(text, font, m_writer, contentWidth());
    const qreal step = ReportTableLayout::linesHeight(1, font, m_writer);
    QPainter &p = *m_painter;
    for (const QString &line : lines) {
        ensureRoom(step);
        p.setFont(font);
        p.setPen(Qt::black);
        p.drawText(QRectF(margin, currentY, contentWidth(), step),
                   alignment | Qt::AlignVCenter, line);
        currentY += step;
    }
}

void GenerateReport::table(const ReportTable &t)
{
    ReportTableLayout layout(tableFont(), tableHeaderFont(), m_writer);
    layout.setPadding(kCellPadding);
    const ReportTableRun run =
        layout.layout(t, contentWidth(), currentY, ReportPageBand{contentTop(), contentBottom()});
    int page = 0;
    for (const ReportPlacedRow &row : run.rows) {
        for (; page < row.page; ++page)
            beginPage();
        drawRow(row, run.columnWidths, t);
    }
    for (; page < run.pages; ++page)
        beginPage();
    currentY = run.end + kBlockGap;
}

void GenerateReport::drawRow(const ReportPlacedRow &row, const QList<qreal> &widths,
                             const ReportTable &t)
{
    QPainter &p = *m_painter;
    const bool header = row.row < 0;
    const QFont font = header ? tableHeaderFont() : tableFont();
    const qreal step = ReportTableLayout::linesHeight(1, font, m_writer);
    const qreal padding = kCellPadding;
    p.setFont(font);
    if (row.spanning) {
        qreal width = 0;
        for (qreal w : widths)
            width += w;
        const QRectF cell(margin, row.top, width, row.height);
        p.fillRect(cell, kGroupFill);
        p.setPen(QPen(kGrid, 2));
        p.drawRect(cell);
        p.setPen(kGroupText);
        p.setFont(tableHeaderFont());
        const QStringList lines = row.cells.value(0);
        for (int i = 0; i < lines.size(); ++i) {
            p.drawText(QRectF(margin + padding, row.top + padding + i * step,
                              width - 2 * padding, step),
                       Qt::AlignLeft | Qt::AlignVCenter, lines.at(i));
        }
        return;
    }
    qreal x = margin;
    for (int c = 0; c < widths.size(); ++c) {
        const QRectF cell(x, row.top, widths.at(c), row.height);
        if (header)
            p.fillRect(cell, kHeaderFill);
        else if (t.shadedRows.contains(row.row))
            p.fillRect(cell, kShadedFill);
        p.setPen(QPen(kGrid, 2));
        p.drawRect(cell);
        p.setPen(Qt::black);
        const QStringList lines = row.cells.value(c);
        for (int i = 0; i < lines.size(); ++i) {
            p.drawText(QRectF(x + padding, row.top + padding + i * step,
                              widths.at(c) - 2 * padding, step),
                       Qt::AlignHCenter | Qt::AlignVCenter, lines.at(i));
        }
        x += widths.at(c);
    }
}

void GenerateReport::picture(const QImage &image, bool rotateWhenWide)
{
    if (image.isNull())
        return;
    // A picture shares a page only when at least half of the page is left for it.
    if (contentBottom() - currentY < (contentBottom() - contentTop()) / 2)
        beginPage();
    const QRectF area(margin, currentY, contentWidth(), contentBottom() - currentY);
    const ReportPicture::Placement where =
        ReportPicture::place(image.size(), area, rotateWhenWide);
    QPainter &p = *m_painter;
    p.save();
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    if (where.rotated) {
        p.translate(where.target.center());
        p.rotate(90);
        const QSizeF size = where.target.size().transposed();
        p.drawImage(QRectF(QPointF(-size.width() / 2, -size.height() / 2), size), image);
    } else {
        p.drawImage(where.target, image);
    }
    p.restore();
    currentY = where.target.bottom() + kBlockGap;
}

// ----------------------------------------------------------------------------------------
// Sections

void GenerateReport::drawOverview()
{
    beginPage();
    heading(tr("1 Overview"));
    const ReportProjectFacts &project = m_inputs.project;
    QString version = project.version;
    if (version.startsWith(QLatin1Char('V')))
        version.remove(0, 1);
    heading(tr("1.1 Project"));
    table(nameValueTable({
        {tr("Project Name"), project.projectName},
        {tr("Date"), project.date.toString(QStringLiteral("yyyy-MM-dd"))},
        {tr("Generated with"), QStringLiteral("MQ48 PinForge V") + version},
    }));

    const ReportMcuFacts &mcu = m_inputs.mcu;
    QString sram = mcu.sram;
    if (!mcu.maxSram.isEmpty())
        sram = tr("Default: ") + mcu.sram + QLatin1Char('\n') + tr("Max: ") + mcu.maxSram;
    heading(tr("1.2 MCU Information"));
    table(nameValueTable({
        {tr("MCU Series"), mcu.series},
        {tr("MCU Name"), mcu.name},
        {tr("MCU Package"), mcu.package},
        {tr("MCU Pin number"), mcu.pinCount > 0 ? QString::number(mcu.pinCount) : QString()},
        {tr("Flash"), mcu.flash},
        {tr("SRAM"), sram},
    }));

    heading(tr("1.3 Cores Information"));
    table(nameValueTable({{tr("Cores"), mcu.cores}}));
}

void GenerateReport::drawPinout()
{
    beginPage();
    heading(tr("2 Pinout Configuration"));
    picture(m_inputs.chipPicture, false);
}

void GenerateReport::drawPinsTable()
{
    beginPage();
    heading(tr("3 Pins Configuration"));
    ReportTable t;
    t.header = QStringList{tr("Pin Number"),     tr("Pin Name"),    tr("Pin Type"),
                           tr("GPIO Structure"), tr("Signal Name"), tr("Label")};
    t.columnWeights = {1.3, 1.2, 1.1, 1.7, 2.3, 1.8};
    for (const ReportPinRow &pin : m_inputs.pins) {
        if (!pin.signal.isEmpty())
            t.shadedRows.insert(t.rows.size());
        t.rows << QStringList{QString::number(pin.number), pin.name, pin.type, pin.structure,
                              pin.signal, pin.label};
    }
    table(t);
    for (const QString &note : m_inputs.pinNotes)
        paragraph(note, bodyFont());
}

void GenerateReport::drawClockTree()
{
    beginPage();
    heading(tr("4 Clock Tree Configuration"));
    if (!m_inputs.clockPicture.isNull())
        picture(m_inputs.clockPicture, true);
    else if (!m_inputs.clockNote.isEmpty())
        paragraph(m_inputs.clockNote, bodyFont());
}

void GenerateReport::drawSoftwareProject()
{
    beginPage();
    heading(tr("5 Software Project"));
    heading(tr("5.1 Project Settings"));
    const ReportProjectFacts &project = m_inputs.project;
    table(nameValueTable({
        {tr("Project Name"), project.projectName},
        {tr("Project Folder"), project.projectFolder},
        {tr("Toolchain/IDE"), project.toolchain},
        {tr("Firmware Package Name and Version"), project.firmwarePackage},
        {tr("Minimum Heap Size"), project.minHeapSize},
        {tr("Minimum Stack Size"), project.minStackSize},
    }));
}

void GenerateReport::drawPeripherals()
{
    beginPage();
    heading(tr("6 Peripherals and Middlewares Configuration"));
    int number = 0;
    for (const ReportPeripheral &peripheral : m_inputs.peripherals) {
        heading(QStringLiteral("6.%1 ").arg(++number) + peripheral.instance);
        QList<ReportNameValue> modes;
        modes << ReportNameValue{tr("State"), peripheral.enabled ? tr("Enable") : tr("Disable")};
        modes << peripheral.modes;
        table(nameValueTable(modes));
        if (peripheral.parameters.isEmpty())
            continue;
        ensureRoom(ReportTableLayout::linesHeight(5, tableFont(), m_writer));
        paragraph(tr("Parameter Setting"), tableHeaderFont());
        gap(10);
        ReportTable t;
        t.header = QStringList{tr("Parameter"), tr("Value"), tr("Modified")};
        t.columnWeights = {5, 4, 1.4};
        QString group;
        for (const ReportParameterRow &row : peripheral.parameters) {
            if (!row.group.isEmpty() && row.group != group) {
                group = row.group;
                t.spanningRows.insert(t.rows.size());
                t.rows << QStringList{group};
            }
            if (row.changed)
                t.shadedRows.insert(t.rows.size());
            t.rows << QStringList{row.name, row.value, row.changed ? tr("Yes") : QString()};
        }
        table(t);
    }
}

void GenerateReport::drawDma(const ReportDmaController &controller, const QString &number)
{
    const bool edma = controller.edma;
    heading(number + (edma ? tr(" EDMA Configuration") : tr(" DMA Configuration")));
    if (controller.requests.isEmpty()) {
        paragraph(edma ? tr("Nothing configuration in EDMA Service.")
                       : tr("Nothing configuration in DMA Service."),
                  bodyFont());
        gap(kBlockGap);
        return;
    }
    ReportTable requests;
    requests.header = QStringList{edma ? tr("EDMA Request") : tr("DMA Request"), tr("Channel"),
                                  tr("Direction"), tr("Priority")};
    requests.columnWeights = {2, 2, 3, 2};
    for (const ReportDmaRequest &r : controller.requests)
        requests.rows << QStringList{r.request, r.channel, r.direction, r.priority};
    table(requests);

    ensureRoom(ReportTableLayout::linesHeight(6, tableFont(), m_writer));
    paragraph(edma ? tr("EDMA request Settings:") : tr("DMA request Settings:"), bodyFont());
    gap(20);
    for (const ReportDmaRequest &r : controller.requests) {
        ensureRoom(ReportTableLayout::linesHeight(5, tableFont(), m_writer));
        paragraph(r.request, tableHeaderFont());
        gap(10);
        table(nameValueTable(r.settings));
    }
}

void GenerateReport::drawSystem()
{
    beginPage();
    heading(tr("7 System Configuration"));
    int number = 0;
    const auto next = [&number]() { return QStringLiteral("7.%1").arg(++number); };
    // DMA always has its part, EDMA only where the device has it.
    QList<ReportDmaController> controllers;
    for (const ReportDmaController &controller : m_inputs.dma) {
        if (!controller.edma)
            controllers << controller;
    }
    if (controllers.isEmpty())
        controllers << ReportDmaController();
    for (const ReportDmaController &controller : m_inputs.dma) {
        if (controller.edma)
            controllers << controller;
    }
    for (const ReportDmaController &controller : controllers)
        drawDma(controller, next());

    heading(next() + tr(" GPIO Configuration"));
    ReportTable gpio;
    gpio.header = QStringList{tr("Pin Name"),          tr("Signal"),       tr("GPIO mode"),
                              tr("GPIO type"),         tr("Pull type"),    tr("Driver capability"),
                              tr("Output level"),      tr("Label"),        tr("GPIO")};
    gpio.columnWeights = {0.9, 2.0, 1.4, 1.2, 1.2, 1.3, 1.1, 1.3, 1.0};
    for (const ReportGpioRow &r : m_inputs.gpio)
        gpio.rows << QStringList{r.pinName, r.signal,      r.mode,  r.type, r.pull,
                                 r.drive,   r.outputLevel, r.label, r.owner};
    table(gpio);

    heading(next() + tr(" NVIC Configuration"));
    if (!m_inputs.priorityGroup.isEmpty()) {
        paragraph(tr("Priority Group: ") + m_inputs.priorityGroup, bodyFont());
        gap(20);
    }
    ReportTable nvic;
    nvic.header = QStringList{tr("NVIC Interrupt Table"), tr("Enabled"),
                              tr("Preemption Priority"), tr("Sub Priority")};
    nvic.columnWeights = {4, 1.3, 1.5, 1.3};
    for (const ReportNvicRow &r : m_inputs.nvic) {
        if (r.enabled == QLatin1String("true"))
            nvic.shadedRows.insert(nvic.rows.size());
        nvic.rows << QStringList{r.interrupt, r.enabled, r.preemption, r.sub};
    }
    table(nvic);
}

void GenerateReport::drawNotice()
{
    beginPage();
    gap(40);
    QFont header = headingFont();
    paragraph(tr("IMPORTANT NOTICE - PLEASE READ CAREFULLY", "IMPORTANT_NOTICE_HEADER"), header,
              Qt::AlignHCenter);
    gap(60);
    const QString notices[] = {
        tr("Velmora Technology may change, correct or improve its products, this program and "
           "this document at any time and without notice. Check the latest device documents "
           "before a design is finished.",
           "IMPORTANT_NOTICE_1"),
        tr("This report documents the configuration the user made with MQ48 Pin Forge. It "
           "does not replace the datasheet, the reference manual or the errata of the device.",
           "IMPORTANT_NOTICE_2"),
        tr("The user alone chooses the products and their configuration, and is responsible "
           "for checking that the design meets the requirements of the application.",
           "IMPORTANT_NOTICE_3"),
        tr("No license to any intellectual property right, express or implied, is granted "
           "by this document.",
           "IMPORTANT_NOTICE_4"),
        tr("Velmora products are not meant for life support, weapons or aircraft control "
           "unless Velmora Technology has agreed to such use in writing.",
           "IMPORTANT_NOTICE_5"),
    };
    for (const QString &notice : notices) {
        paragraph(notice, bodyFont());
        gap(30);
    }
    gap(30);
    paragraph(tr("Copyright Velmora Technology. All rights reserved.", "IMPORTANT_NOTICE_FOOTER"),
              footerFont(), Qt::AlignHCenter);
}
