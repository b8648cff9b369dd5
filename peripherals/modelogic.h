#pragma once

#include "database/records.h"
#include "peripherals/modefamilytables.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

// One choice of a mode control: a combo box item after "Disable", or the single option of a
// check box.
struct ModeItem
{
    QString text;
    int groupIndex = -1; // into the option's signalGroups, -1 for none
    QList<ModeSignal> signalList;
    QStringList semaphores;
    QString expression;
    bool andFlag = true;
    // The pin test: every real signal can be placed now.
    bool pinEnabled = true;
    // When the pin test fails: the first signal that finds no pin, and each of its pins with
    // what holds it now, as "PF0: I2C1_SDA".
    QString blockedSignal;
    QStringList blockingPins;
};

// A mode control of a peripheral as the mode logic sees it: a check box or a combo box built
// from one ModeOption, with the semaphores raised so far.
struct ModeControl
{
    enum Kind { CheckBox, ComboBox };

    Kind kind = CheckBox;
    ModeOption option;
    QString label;
    // Combo box: the items behind "Disable"; check box: exactly one item.
    QList<ModeItem> items;
    // Combo box: the index shown (0 is "Disable"); check box: 1 ticked, 0 not.
    int current = 0;
    QStringList blocked;

    bool isCombo() const { return kind == ComboBox; }
    bool isSelected() const { return current > 0; }
    // The item of a combo index or of the ticked box, nullptr for "Disable" and out of range.
    const ModeItem *itemAt(int index) const;
    const ModeItem *currentItem() const { return itemAt(current); }
    // The text of a combo index; "Disable" for index 0.
    QString textAt(int index) const;
    // Enable flag of a combo index: index 0 and indexes outside the list pass.
    bool itemEnabled(int index) const;
    // The semaphore test of a combo index, or of the check box for any index.
    bool semaphoresAllow(int index) const;
    // The real (not Virtual) signals of a combo index or of the box.
    QList<ModeSignal> realSignalsAt(int index) const;
    // The union of the real signals of every item.
    QList<ModeSignal> allRealSignals() const;
    // Semaphores that the selection at `index` raises.
    QStringList semaphoresAt(int index) const;

    // Semaphore bookkeeping; true when the control's enabled state may have changed.
    void raise(const QStringList &names);
    void withdraw(const QStringList &names);
};

// What one change of a mode control asks the panel to do.
struct ModeChange
{
    bool accepted = false;
    QString oldText;
    QString newText;
    QStringList raised;
    QStringList withdrawn;
    bool clear = false;
    QList<ModeSignal> clearList;
    bool send = false;
    QList<ModeSignal> sendAll;
    QList<ModeSignal> sendValid;
};

// The advice line of the mode area.
struct ModeHint
{
    enum Kind { None, SelectControl, NoParameters, FullDuplex, AdcCommon };
    Kind kind = None;
    QString controlLabel; // for SelectControl
    bool unfinished = false;
};

// The mode logic of one peripheral instance: which controls exist, which items are enabled,
// what a change sends to the pin engine, and the status, hint and tab rules.
class ModeLogic
{
public:
    ModeLogic(const QString &instanceName, const QString &ipName, const QString &mcuModel,
              const QString &packageWord);

    // Builds the controls from the modes; `info` decides availability (none: all available).
    void build(const QList<ModeOption> &modes, const QList<ModeSignal> &refSignals,
               const DevicePinInfo *info);

    // Is a signal list available on the device: every real name present, virtual names as
    // the family table says?
    static bool modeAvailable(const QList<ModeSignal> &signalList, const DevicePinInfo *info,
                              const QString &mcuModel);
    static QStringList missingSignals(const QList<ModeSignal> &signalList,
                                      const DevicePinInfo *info, const QString &mcuModel);

    // Changes of the user; a combo change to a disabled item is refused.
    ModeChange selectCombo(int control, int index);
    ModeChange setChecked(int control, bool checked);

    // Semaphores raised or withdrawn on every control (check boxes first).
    void raiseSemaphores(const QStringList &names);
    void withdrawSemaphores(const QStringList &names);

    // Recomputes `enabled` of all signals from the pins, then the enable tests.
    void updateSignalStates(const DevicePinInfo *info);
    // The enable tests of combo items and check boxes against the pins.
    void runEnableTests(const DevicePinInfo *info);

    // Status and hint; the status word of the peripheral after both rules.
    bool statusRule() const;
    ModeHint hintRule() const;
    IPSTATUS status() const;
    // The tab titles for the current state.
    QStringList tabTitles(const QStringList &dmaTables) const;
    // The SCFG pin remap check box: -1 when there is none, else 1 ticked, 0 not.
    int pinRemapState() const;

    // Index of the control whose option is named `name`, or -1.
    int controlByName(const QString &name) const;
    // The signals that the current selections of all controls but `except` use.
    QList<ModeSignal> signalsOfOtherSelections(int except) const;
    // The free form of a list: without the signals of the other controls' selections.
    QList<ModeSignal> freeForm(const QList<ModeSignal> &list, int control) const;

    QString instanceName;
    QString ipName;
    QString mcuModel;
    QString packageWord;
    int pinNums = 0;
    QVector<ModeControl> controls;
    QList<ModeSignal> allSignals;
    QList<ModeSignal> currentSignals;
    bool modesFound = false;

private:
    bool itemPinTest(const ModeControl &control, const ModeItem &item, const DevicePinInfo *info,
                     QString *failing = nullptr) const;
    bool findsPinReleased(const QString &name, const QList<ModeSignal> &released,
                          const DevicePinInfo *info) const;
    int firstOfKind(ModeControl::Kind kind) const;
    bool xmcChainComplete(int *unfinished) const;
};
