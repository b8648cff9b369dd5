#include <QDir>
#include <QFile>
#include <QImage>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

// Every catalogue of resources/i18n: an entry still marked unfinished, or a Chinese entry
// without text, is a failure naming the file and the source text.
TEST(Translations, EveryCatalogueEntryIsFinished)
{
    const QDir i18n(QStringLiteral(MQ48_SOURCE_DIR "/resources/i18n"));
    const QStringList files = i18n.entryList({QStringLiteral("*.ts")}, QDir::Files);
    ASSERT_FALSE(files.isEmpty());
    for (const QString &name : files) {
        QFile file(i18n.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        QXmlStreamReader xml(&file);
        QString source;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == QLatin1String("source")) {
                source = xml.readElementText();
            } else if (xml.name() == QLatin1String("translation")) {
                const QString type = xml.attributes().value(QStringLiteral("type")).toString();
                if (type == QLatin1String("obsolete") || type == QLatin1String("vanished"))
                    continue;
                const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
                EXPECT_NE(type, QStringLiteral("unfinished"))
                    << name.toStdString() << ": unfinished \"" << source.toStdString() << "\"";
                if (name.endsWith(QLatin1String("_zh.ts"))) {
                    EXPECT_FALSE(text.trimmed().isEmpty())
                        << name.toStdString() << ": no text for \"" << source.toStdString()
                        << "\"";
                }
            }
        }
        EXPECT_FALSE(xml.hasError())
            << name.toStdString() << ": " << xml.errorString().toStdString();
    }
}

// Every picture the program names is compiled in and decodes.
TEST(Resources, EveryImageLoads)
{
    const char *names[] = {"VelmoraIcon",
                           "VelmoraIcon.ico",
                           "Logo_1.png",
                           "Velmora_log.png",
                           "PPT cover.png",
                           "icon_down_white.png",
                           "icon_right_white.png",
                           "down-arrow.png",
                           "right-arrow.png",
                           "btn_down_slider_hover.png",
                           "btn_right_slider_hover.png",
                           "icon_EN01.png",
                           "icon_EN02.png",
                           "icon_ZH01.png",
                           "icon_ZH02.png",
                           "generate_code.png",
                           "download.png",
                           "icon_home.png",
                           "icon_zoomin.png",
                           "icon_zoomout.png",
                           "icon_zoomreset.png",
                           "icon-search.png",
                           "icon_return.png",
                           "rotate1.png",
                           "rotate2.png",
                           "add_P.png",
                           "danger32.png",
                           "checked.png",
                           "greenStone.png",
                           "background-light.png",
                           "CAN.png",
                           "i2c.png",
                           "TMR1.png",
                           "TMR2.png",
                           "TMR3.png"};
    for (const char *name : names) {
        const QImage image(QStringLiteral(":/image/") + QLatin1String(name));
        EXPECT_FALSE(image.isNull()) << name;
        EXPECT_GE(image.width(), 16) << name;
    }
    EXPECT_TRUE(QFile::exists(QStringLiteral(":/image/tr_zh.qm")));
    EXPECT_TRUE(QFile::exists(QStringLiteral(":/image/tr_en.qm")));
}

} // namespace
