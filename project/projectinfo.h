#pragma once

#include <QList>
#include <QPair>
#include <QString>

class QDomElement;
class QXmlStreamWriter;

// The project manager's answers: what the design file keeps in its ProjectInfomation block
// and what the project writer and the code generator are given.
struct ProjectInfo
{
    QString projectName;
    QString projectLocation;
    QString toolchainIDE; // a dialog name; empty: the last one used
    bool keepUserCode = true;
    QString minHeapSize = QStringLiteral("0x200");
    QString minStackSize = QStringLiteral("0x400");
    bool useFirmware = true;
    QString firmwarePath; // read from older designs; not written
    QString packageVersion;

    // The project folder: location + "/" + name (empty while either is empty).
    QString projectFolder() const;

    // The keys and values of the ProjectInfomation block in the order they are written.
    QList<QPair<QString, QString>> designValues() const;
    // Applies one key of the block; unknown keys are ignored.
    void setDesignValue(const QString &key, const QString &value);

    bool operator==(const ProjectInfo &other) const;
    bool operator!=(const ProjectInfo &other) const { return !(*this == other); }
};

// Name of the design file's block.
QString projectInfoSectionName();

// Writes the ProjectInfomation block at the writer's position.
void writeProjectInfomation(QXmlStreamWriter &writer, const ProjectInfo &info);

// Reads the first ProjectInfomation child of a design's root element; keys that are missing
// keep their defaults.
ProjectInfo readProjectInfomation(const QDomElement &designRoot);
