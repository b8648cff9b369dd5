#include "app/modaldialogs.h"

#include <QDialog>

namespace {

ModalDialogRunner &installedRunner()
{
    static ModalDialogRunner runner;
    return runner;
}

} // namespace

void setModalDialogRunner(ModalDialogRunner runner)
{
    installedRunner() = std::move(runner);
}

int runModalDialog(QDialog *dialog)
{
    if (!dialog)
        return QDialog::Rejected;
    if (installedRunner())
        return installedRunner()(dialog);
    return dialog->exec();
}
