#pragma once

#include "peripherals/customcombobox.h"

#include <QStringList>

struct ModeControl;

// A mode combo box whose items can be blocked by semaphores or by pins: it shows the items
// of its ModeControl behind "Disable" and greys those whose enable test fails.
class ProComboBox : public CustomComboBox
{
    Q_OBJECT
public:
    explicit ProComboBox(ModeControl *control, QWidget *parent = nullptr);

    ModeControl *control() const { return m_control; }
    // The semaphores raised so far.
    QStringList blocked() const;
    // Is the item at `index` enabled? Index 0 and indexes outside the list pass.
    bool itemEnabled(int index) const;
    // Judges every item again and redraws the list.
    void judge();
    // Re-reads the texts after a language change; "Disable" is translated.
    void retranslate();

private:
    ModeControl *m_control;
};
