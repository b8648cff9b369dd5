#pragma once

#include "database/records.h"

#include <QList>
#include <QString>
#include <QStringList>

// Snapshot of one lit group member while a group is moved or re-placed.
struct ActiveSignal
{
    QString name;
    int pinNum = -1;
    QString IOMode;
    int status = SIGNAL_FREE;
};

// Places, moves and releases the signals of the design on the pins of its DevicePinInfo.
class PinAssignEngine
{
public:
    explicit PinAssignEngine(DevicePinInfo *info);

    DevicePinInfo *devicePinInfo() const { return m_info; }

    // --- Pins ---------------------------------------------------------------------------
    // The record in force for a pin number, or nullptr.
    MCUPinsBaseInfo *activePin(int pinNum) const;
    // All active records, ordered by pin number.
    QList<MCUPinsBaseInfo *> activePins() const;
    // The first signal of the pin with that Func, or nullptr.
    static MCUPinSignal *findSignal(const MCUPinsBaseInfo *pin, const QString &func);
    // The greatest status among the pin's signals.
    static int pinState(const MCUPinsBaseInfo &pin);
    // True when the name contains one of the GPIO words.
    static bool isGpioWord(const QString &func);
    // True when the IOMode is an alternate-function output.
    static bool isMuxOutput(const QString &ioMode);
    // True for the models on which EVENTOUT may stand on one pin only.
    static bool isEventoutSingleFamily(const QString &model);
    // True when the pin can carry a crystal of the high or low speed oscillator; such pins
    // are taken for other signals only when no equivalent placement exists.
    static bool isOscillatorPin(const MCUPinsBaseInfo *pin);

    // --- Building blocks ----------------------------------------------------------------
    bool pinAccepts(const MCUPinsBaseInfo *pin, const QString &name) const;
    bool pinAcceptsWithMode(const MCUPinsBaseInfo *pin, const QString &name,
                            const QString &ioMode) const;

    bool isGroupedSignal(const QString &name) const;
    QList<const PinsSignalsGroup *> groupsOfInstance(const QString &instance) const;
    QList<const PinsSignalsGroup *> groupsOfSignal(const QString &name) const;
    QList<ActiveSignal> activeRecordsOf(const PinsSignalsGroup *group) const;
    bool groupCovers(const PinsSignalsGroup *candidate, const QString &name) const;
    bool groupIsLit(const PinsSignalsGroup *group) const;
    bool groupIsOccupied(const PinsSignalsGroup *group) const;
    const PinsSignalsGroup *bestGroupFor(const QString &name, int pinNum) const;
    const PinsSignalsGroup *litGroupFor(const QString &name, int pinNum) const;
    bool groupAllPlaceable(const PinsSignalsGroup *group) const;
    // True when a member of the group stands on an oscillator pin.
    bool groupOnOscillatorPins(const PinsSignalsGroup *group) const;
    bool groupFits(const PinsSignalsGroup *group, const QList<ModeSignal> &wanted) const;

    void dropTmrClaim(const PinsSignalsGroup *group);
    void takeTmrClaim(const PinsSignalsGroup *group);
    void applyGroup(const QList<ActiveSignal> &lit, const PinsSignalsGroup *group,
                    const QList<ModeSignal> &wanted);
    void placeOnPin(MCUPinsBaseInfo *pin, const QString &name, int state, const QString &ioMode);
    void moveGroupSignals(const PinsSignalsGroup *newGroup, const PinsSignalsGroup *oldGroup);

    // --- Requests -----------------------------------------------------------------------
    // A mode wants `valid` out of `all`; an empty valid list is the clear.
    void receiveIPPinSignals(const QList<ModeSignal> &all, const QList<ModeSignal> &valid,
                             const QString &sendIPName);
    // A mode lets every signal of `all` go.
    void receiveClearIPPinSignals(const QList<ModeSignal> &all);
    // Lets the named signals go on every active pin: 3 -> 1, 1 stays, else 0.
    void releaseSignals(const QList<ModeSignal> &signalsToRelease);
    // Lights the valid signals of one instance: singles in two passes, then the groups.
    void placeSignals(const QList<ModeSignal> &valid, const QString &sendIPName);
    // The user ticked or unticked on a pin; the record carries the new states.
    void updatePinConfig(const MCUPinsBaseInfo &record);
    // May the user light `name` on the pin `pinNum` without losing its group?
    bool groupPreCheck(const QString &name, int pinNum) const;
    // Copies a record carrying new user labels over the active record.
    void updateUserLabel(const MCUPinsBaseInfo &record);
    // Gives the first lit signal of the pin the label.
    void setFirstLitUserLabel(int pinNum, const QString &userLabel);
    // Switches the pin variants; returns the pin numbers of the remap records.
    QList<int> setPinRemap(bool flag);
    bool pinRemap() const { return m_pinRemap; }
    // Back to the state of a fresh design.
    void reset();
    // Empties the labels of every free signal of the active pins.
    void clearIdleLabels();
    // Words of the search box: sorted case-insensitively, without repeats.
    QStringList searchList() const;

    // --- Texts of the drawing -----------------------------------------------------------
    // The pin name, cut to four characters and ".." when longer than five.
    static QString pinNameText(const MCUPinsBaseInfo &pin);
    // The first user label of a lit signal, else all lit functions joined by two blanks.
    static QString pinLabelText(const MCUPinsBaseInfo &pin);

private:
    // Sets a signal free; the IOMode is kept for GPIO words when keepGpioMode is set.
    static void freeSignal(MCUPinSignal *sig, bool keepGpioMode);
    const PinsSignalsGroup *longestGroup(const QList<const PinsSignalsGroup *> &groups) const;
    int groupPinOf(const PinsSignalsGroup *group, const QString &name) const;

    DevicePinInfo *m_info;
    bool m_pinRemap = false;
};
