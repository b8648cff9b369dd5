#include "peripherals/procheckbox.h"

#include "peripherals/modelogic.h"

ProCheckBox::ProCheckBox(ModeControl *control, QWidget *parent)
    : QCheckBox(control->label, parent), m_control(control)
{
    setToolTip(m_control->option.diagnosticText);
    judge();
}

QStringList ProCheckBox::blocked() const
{
    return m_control->blocked;
}

bool ProCheckBox::judge()
{
    const bool semaphoresOk = m_control->semaphoresAllow(1);
    if (isChecked()) {
        setEnabled(semaphoresOk);
        return !semaphoresOk;
    }
    setEnabled(m_control->itemEnabled(1));
    return false;
}
