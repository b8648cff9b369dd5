#pragma once

#include <QCheckBox>
#include <QStringList>

class ModeLogic;
struct ModeControl;

// A mode check box whose option can be blocked by semaphores or by pins: disabled while its
// enable test fails.
class ProCheckBox : public QCheckBox
{
    Q_OBJECT
public:
    // The box shows the control at `controlIndex` of `logic`, which outlives it. The control
    // is looked up at each use, so that a copy of the logic's controls leaves it unharmed.
    ProCheckBox(const ModeLogic *logic, int controlIndex, QWidget *parent = nullptr);

    // The control as it stands now; valid until the logic's controls change.
    const ModeControl *control() const;
    int controlIndex() const { return m_index; }
    QStringList blocked() const;
    // Judges the box again; true when it is ticked but its expression no longer holds, so
    // that the caller must untick it.
    bool judge();

private:
    const ModeLogic *m_logic;
    int m_index;
};
