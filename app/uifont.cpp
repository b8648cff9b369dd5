#include "app/uifont.h"

#include <QFont>
#include <QFontDatabase>
#include <QStringList>

QString UiFontFamily()
{
    return QStringLiteral("DejaVu Sans");
}

bool InstallUiFont()
{
    bool all = true;
    for (const char *file : {":/fonts/DejaVuSans.ttf", ":/fonts/DejaVuSans-Bold.ttf",
                             ":/fonts/DejaVuSans-Oblique.ttf"}) {
        const int id = QFontDatabase::addApplicationFont(QString::fromLatin1(file));
        all = all && id >= 0 &&
              QFontDatabase::applicationFontFamilies(id).contains(UiFontFamily());
    }
    // Qt keeps substitutes in lower case.
    if (all && !QFont::substitutes(QStringLiteral("Arial"))
                    .contains(UiFontFamily(), Qt::CaseInsensitive))
        QFont::insertSubstitution(QStringLiteral("Arial"), UiFontFamily());
    return all;
}
