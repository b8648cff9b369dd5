#pragma once

#include "database/records.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

// The electrical settings of one pin that carries a lit signal: the row of the GPIO tables.
struct GpioSettingRow
{
    int pinNum = 0;
    QString pinName;         // PinName of the active pin, trimmed
    QString signal;          // Func of the pin's first lit signal; with pinName the row's key
    QStringList signalNames; // every lit Func of the pin, `signal` first
    QString inPin;           // InPin of the first lit signal
    QString ioMode;          // the word whose parameter list the row has
    QString userLabel;
    QString instanceName; // the peripheral whose mode lit the signal; empty otherwise
    int status = SIGNAL_FREE;
    bool modified = false;
    QList<RefParameter> parameters; // "Output level", "GPIO mode", ... as the mode allows

    // The value of a setting by its name ("GPIO mode"); empty when the row has none.
    QString value(const QString &settingName) const;
    // The parameter of a setting, or nullptr.
    const RefParameter *parameter(const QString &settingName) const;
    // The names shown in the "Signal on Pin" column: every lit Func joined by "/".
    QString displaySignal() const { return signalNames.join(QLatin1Char('/')); }
};

// The GPIO rows of the whole chip, kept in step with the pins: one row per active pin with a
// lit signal. Every GPIO table (the chip-wide panel and each peripheral's own tab) shows this
// one model, so an edit in one shows in all. Widget-free; the design file and the code
// generator read and write the rows here.
class GpioSettingsModel : public QObject
{
    Q_OBJECT
public:
    explicit GpioSettingsModel(const IPNode &gpioTree, QObject *parent = nullptr);

    // The five settings in the order of the settings box.
    static QStringList settingNames();
    // A label as the table accepts it: empty, or a letter or "_" followed by letters, digits
    // and "_". Characters are cut from the end until the text passes; `cut` tells whether
    // anything was cut.
    static QString acceptLabel(const QString &text, bool *cut = nullptr);

    // Which instance lit a signal by its mode: Func -> instance name.
    void setSignalOwners(const QHash<QString, QString> &owners);
    // Brings the rows in step with the pins. Rows of signals still lit keep their settings
    // (a signal that moved to another pin takes its row along); a row whose IOMode changed
    // gets the defaults of the new mode; rows of signals no longer lit go.
    void update(const DevicePinInfo *info);
    // Drops every row.
    void clear();

    const QList<GpioSettingRow> &rows() const { return m_rows; }
    // The rows of one peripheral's signals, in pin order.
    QList<GpioSettingRow> rowsOfInstance(const QString &instanceName) const;
    // The rows that no peripheral table shows: GPIO words and signals not lit by a mode.
    QList<GpioSettingRow> rowsWithoutInstance() const;
    // The instances that own at least one row, in order of their first row.
    QStringList instancesWithRows() const;
    // Index of the row of a signal on a pin (the pin by name, compared as InPin texts are),
    // or -1. An empty pin name finds the signal's first row.
    int findRow(const QString &signal, const QString &pinName) const;
    const GpioSettingRow *row(const QString &signal, const QString &pinName) const;

    // Sets one setting of a row to a value its list allows; the row is marked modified.
    // False when there is no such row, setting or value.
    bool setParameter(const QString &signal, const QString &pinName, const QString &settingName,
                      const QString &value);
    // Sets a row's user label; false when there is no such row or the label is not valid.
    // The change goes out by labelChanged so that the drawing shows it.
    bool setLabel(const QString &signal, const QString &pinName, const QString &label);
    // Every setting back to its default and unmarked, of one instance's rows or, with an
    // empty name, of all rows; labels stay.
    void resetParameters(const QString &instanceName = QString());

    // 0 "Show All", 1 "Groups By Peripherals".
    int showType() const { return m_showType; }
    void setShowType(int type);

    // The settings list of an IOMode word (or a GPIO word) as the GPIO file gives it; empty
    // when the file has no such mode.
    QList<RefParameter> parametersFor(const QString &modeWord) const;

signals:
    // Rows were added, removed or changed.
    void changed();
    void showTypeChanged(int type);
    void labelChanged(int pinNum, QString signal, QString label);

private:
    struct PinEntry;
    QList<PinEntry> litEntries(const DevicePinInfo *info) const;
    GpioSettingRow makeRow(const PinEntry &entry) const;
    static bool sameRow(const GpioSettingRow &a, const GpioSettingRow &b);

    IPNode m_tree;
    QHash<QString, QString> m_owners;
    QList<GpioSettingRow> m_rows;
    int m_showType = 0;
    mutable QHash<QString, QList<RefParameter>> m_parameterCache;
};
