#include "peripherals/procheckbox.h"

#include "peripherals/modelogic.h"

ProCheckBox::ProCheckBox(const ModeLogic *logic, int controlIndex, QWidget *parent)
    : QCheckBox(logic->controls.at(controlIndex).label, parent), m_logic(logic),
      m_index(controlIndex)
{
    setToolTip(control()->option.diagnosticText);
    judge();
}

const ModeControl *ProCheckBox::control() const
{
    return &m_logic->controls.at(m_index);
}

QStringList ProCheckBox::blocked() const
{
    return control()->blocked;
}

bool ProCheckBox::judge()
{
    const ModeControl *c = control();
    const bool semaphoresOk = c->semaphoresAllow(1);
    if (isChecked()) {
        setEnabled(semaphoresOk);
        return !semaphoresOk;
    }
    setEnabled(c->itemEnabled(1));
    return false;
}
