#pragma once

#include <QCheckBox>
#include <QStringList>

struct ModeControl;

// A mode check box whose option can be blocked by semaphores or by pins: disabled while its
// enable test fails.
class ProCheckBox : public QCheckBox
{
    Q_OBJECT
public:
    explicit ProCheckBox(ModeControl *control, QWidget *parent = nullptr);

    ModeControl *control() const { return m_control; }
    QStringList blocked() const;
    // Judges the box again; true when it is ticked but its expression no longer holds, so
    // that the caller must untick it.
    bool judge();

private:
    ModeControl *m_control;
};
