#pragma once

#include <functional>

class QDialog;

// The modal dialogs the work form opens in its flows (the project manager, the package
// manager) are run through here, so that a headless run or a test can answer them instead of
// a person: the runner gets the dialog, ready to show, and returns its result.
using ModalDialogRunner = std::function<int(QDialog *dialog)>;

// Installs a runner; an empty one restores QDialog::exec().
void setModalDialogRunner(ModalDialogRunner runner);

// Runs the dialog modally (or through the installed runner) and returns its result.
int runModalDialog(QDialog *dialog);
