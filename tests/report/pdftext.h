#pragma once

#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

// Reads a written PDF back with the command line tools of poppler-utils, as a reader of the
// report would see it.
namespace pdftext {

// Whether pdftotext, pdffonts and pdfinfo can be run.
bool available();

// The text of a page (1-based), or of every page when `page` is 0, in reading order with the
// layout kept. Compatibility forms of CJK characters are folded to the usual ones.
QString text(const QString &pdf, int page = 0);
// The text of each page.
QStringList pages(const QString &pdf);
int pageCount(const QString &pdf);
// The lines of pdffonts' table: name, type, encoding, "emb" ... per font.
QStringList fonts(const QString &pdf);
// A value of the document's information ("Title", "Creator", "Page size").
QString info(const QString &pdf, const QString &key);

// One word with its box in points, as pdftotext -bbox gives it.
struct Word
{
    int page = 0;
    QString text;
    QRectF box;
};
QList<Word> words(const QString &pdf);
// Width and height of the pages in points.
QSizeF pageSize(const QString &pdf);

} // namespace pdftext
