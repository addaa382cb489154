#pragma once

class QDialog;
class QDialogButtonBox;

// The OK and Cancel buttons of the settings dialogs, wired to the dialog's accept and reject.
QDialogButtonBox* createOkCancelButtons(QDialog& dialog);
