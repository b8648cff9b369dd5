#include "app/recentdesigns.h"

#include "database/paths.h"
#include "database/safexml.h"

#include <QBuffer>
#include <QFile>
#include <QSaveFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {
const QString kRoot = QStringLiteral("Root");
const QString kList = QStringLiteral("ResentlyProject");
const QString kEntry = QStringLiteral("FilePath");
} // namespace

QString RecentDesignsPath()
{
    return appFolder() + QStringLiteral("/resentlyProject.xml");
}

QStringList GetRecentDesigns()
{
    return GetRecentDesigns(RecentDesignsPath());
}

QStringList GetRecentDesigns(const QString &listFile)
{
    QStringList designs;
    QFile file(listFile);
    if (!file.exists() || !file.open(QIODevice::ReadOnly))
        return designs;
    // Only the first entries are read: a huge list costs no more than a short one.
    QXmlStreamReader reader(&file);
    bool unreadable = false;
    if (!reader.readNextStartElement()) {
        unreadable = true;
    } else {
        while (designs.size() < kMaxRecentDesigns && reader.readNextStartElement()) {
            if (reader.name() != kList) {
                reader.skipCurrentElement();
                continue;
            }
            while (designs.size() < kMaxRecentDesigns && reader.readNextStartElement()) {
                if (reader.name() == kEntry)
                    designs.append(reader.readElementText(QXmlStreamReader::IncludeChildElements));
                else
                    reader.skipCurrentElement();
            }
            break;
        }
        unreadable = reader.hasError();
    }
    file.close();
    if (unreadable) {
        // Kept aside for the user; the list starts anew.
        setAsideUnreadableFile(listFile);
        designs.clear();
    }
    return designs;
}

bool AddRecentDesign(const QString &designPath)
{
    return AddRecentDesign(RecentDesignsPath(), designPath);
}

bool AddRecentDesign(const QString &listFile, const QString &designPath)
{
    if (designPath.isEmpty())
        return false;
    QStringList designs = GetRecentDesigns(listFile);
    designs.removeAll(designPath);
    while (designs.size() > kMaxRecentDesigns - 1)
        designs.removeLast();
    designs.prepend(designPath);
    return WriteRecentDesigns(listFile, designs);
}

bool DeleteRecentDesign(const QString &designPath)
{
    return DeleteRecentDesign(RecentDesignsPath(), designPath);
}

bool DeleteRecentDesign(const QString &listFile, const QString &designPath)
{
    QStringList designs = GetRecentDesigns(listFile);
    designs.removeAll(designPath);
    return WriteRecentDesigns(listFile, designs);
}

bool WriteRecentDesigns(const QString &listFile, const QStringList &designs)
{
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    QXmlStreamWriter writer(&buffer);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(kRoot);
    writer.writeStartElement(kList);
    for (const QString &design : designs)
        writer.writeTextElement(kEntry, design);
    writer.writeEndElement();
    writer.writeEndElement();
    writer.writeEndDocument();
    buffer.close();

    // The new list replaces the old one as a whole, or not at all.
    QSaveFile file(listFile);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    if (file.write(data) != data.size() || !file.flush() || file.error() != QFileDevice::NoError) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}
