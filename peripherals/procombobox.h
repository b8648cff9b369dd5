#pragma once

#include "peripherals/customcombobox.h"

#include <QStringList>

class ModeLogic;
struct ModeControl;

// A mode combo box whose items can be blocked by semaphores or by pins: it shows the items
// of its ModeControl behind "Disable" and greys those whose enable test fails.
class ProComboBox : public CustomComboBox
{
    Q_OBJECT
public:
    // The box shows the control at `controlIndex` of `logic`, which outlives it. The control
    // is looked up at each use, so that a copy of the logic's controls leaves it unharmed.
    ProComboBox(const ModeLogic *logic, int controlIndex, QWidget *parent = nullptr);

    // The control as it stands now; valid until the logic's controls change.
    const ModeControl *control() const;
    int controlIndex() const { return m_index; }
    // The semaphores raised so far.
    QStringList blocked() const;
    // Is the item at `index` enabled? Index 0 and indexes outside the list pass.
    bool itemEnabled(int index) const;
    // Judges every item again and redraws the list.
    void judge();
    // Re-reads the texts after a language change; "Disable" is translated.
    void retranslate();

private:
    const ModeLogic *m_logic;
    int m_index;
};
