#pragma once

#include "database/records.h"

#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

// Kinds of defect that the database checker reports.
enum class DefectKind {
    Parse,              // a file is missing, does not parse, has the wrong root or section
    MissingFile,        // a PeripheralsList row names a file that doesn't exist
    SignalNotOnPin,     // a mode's signal is on no pin of any package that has the instance
    GroupPinUnknown,    // a signal group names a pin that no package of the series has
    IRQnPattern,        // an IRQn value doesn't match the interrupt pattern
    UnknownType,        // a RefParameter Type is not one the panels know
    MissingTranslation, // a bilingual text is empty in one language only
    UndefinedName,      // a Condition or Expression names something nothing defines
    BadDefault,         // a default value outside its range or not among its values
    DeviceFile,         // a device file's pins, counts or rows are unusable or contradictory
    Duplicate,          // a series or a device is listed twice
    BadNumber,          // a number of a peripheral file (bound, priority) doesn't parse
    UnsafeName,         // a name would make a file path leave the database folder
    DmaRequest,         // a DMA or EDMA request names no channel, vector or instance
    CanTiming,          // a CAN bit timing parameter has another range than the controller
    Unrouted,           // a condition reads a semaphore that no route brings to its instance
    MacroPrefix,        // a firmware macro value belongs to another module
    RemapGroup,         // a remap group lacks its GMUX or repeats another's
    MultiFunction,      // a Multi function has no Multi partner on its pin
};

// One defect, located by the file (relative to the database folder) and the element.
struct DatabaseDefect
{
    DefectKind kind = DefectKind::Parse;
    QString file;
    QString element;
    QString message;

    // "file: element: message", or "file: message" without an element.
    QString text() const;
};

// A short name of a defect kind, as "signal-not-on-pin".
QString defectKindName(DefectKind kind);

// Checks a whole MQ48DB folder with the program's own readers and lists its defects.
class DatabaseChecker
{
public:
    explicit DatabaseChecker(const QString &databaseFolder);

    // Names raised by the program itself rather than by the database; these count as
    // defined in every Condition and Expression.
    void addKnownNames(const QStringList &names);

    // Runs every check; the result is in a stable order (catalogue, then series by name).
    QList<DatabaseDefect> run();

    // The parameter types that the panels know.
    static const QStringList &knownTypes();

private:
    struct Device
    {
        QString series;
        QString name;
        QString path;
        QString package;
        QSet<QString> signalNames; // Func of every pin record, and every pin name
        QList<QString> pinNames;
        QList<PeripheralListItem> rows;
    };

    struct PeripheralFile
    {
        QString path;
        QString stem; // the file name before "-<Version>.xml"
        QString version;
        IPNode root;
        bool readable = false;
        QMap<QString, QList<int>> instanceDevices; // instance -> indexes into m_devices
    };

    void checkCatalogue();
    void checkSeries(const QString &series, const QList<MCUListItem> &items);
    bool readDevice(const QString &series, const MCUListItem &item, Device *device);
    void checkDeviceTexts(const Device &device);
    void checkGroups(const QString &series, const QList<int> &deviceIndexes);
    void checkPeripheralFolder(const QString &folder);
    void collectDefinedNames(const PeripheralFile &file, QSet<QString> *names) const;
    void checkPeripheralFile(const PeripheralFile &file, const QSet<QString> &defined);
    void checkModes(const PeripheralFile &file, const QSet<QString> &defined);
    void checkModeSignals(const PeripheralFile &file, const IPNode &mode, const IPNode &group,
                          const QString &element);
    void checkParameters(const PeripheralFile &file, const QSet<QString> &defined);
    void checkNames(const PeripheralFile &file, const QString &element, const QString &what,
                    const QString &text, bool valueSyntax, const QSet<QString> &defined);
    void checkPair(const QString &file, const QString &element, const IPNode &node,
                   const QString &en, const QString &ch);
    void checkPair(const QString &file, const QString &element, const QString &enName,
                   const QString &enText, const QString &chName, const QString &chText);

    // Checks of the data that the larger families bring (databaseseriescheck.cpp).
    void checkDeviceRows(const Device &device);
    void checkRemapGroups(const Device &device, const QList<PinsSignalsGroup> &groups);
    void checkMultiFunctions(const Device &device, const DevicePinInfo &info);
    void checkSeriesFiles(const QString &series, const QMap<QString, PeripheralFile> &files);
    void checkVirtualPins(const QString &series, const QMap<QString, PeripheralFile> &files);
    void checkInterruptTable(const PeripheralFile &file);
    void checkDmaRequests(const QString &series, const QMap<QString, PeripheralFile> &files);
    void checkAdcChannels(const PeripheralFile &file);
    void checkCanTiming(const QString &series, const PeripheralFile &file);
    void checkSemaphoreRoutes(const QString &series, const QMap<QString, PeripheralFile> &files);
    void checkMacroPrefixes(const PeripheralFile &file);
    // The signal names of the devices that list `instance`, and those devices' names.
    QSet<QString> signalsOfInstance(const QMap<QString, QList<int>> &instanceDevices,
                                    const QString &instance, QStringList *deviceNames) const;

    void report(DefectKind kind, const QString &path, const QString &element,
                const QString &message);
    QString relative(const QString &path) const;

    QString m_folder;
    QStringList m_knownNames;
    QList<Device> m_devices;
    QList<DatabaseDefect> m_defects;
    QSet<QString> m_reported;
    QSet<QString> m_instances;    // every instance that a device of the series under check lists
    QList<int> m_seriesDevices;   // indexes into m_devices of that series
    QStringList m_seriesPinNames; // every pin name of the series' packages
};
