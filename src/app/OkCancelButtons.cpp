#include "OkCancelButtons.h"

#include <QDialog>
#include <QDialogButtonBox>

QDialogButtonBox* createOkCancelButtons(QDialog& dialog)
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    // accept() is virtual: a dialog that writes its values on OK overrides it.
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}
