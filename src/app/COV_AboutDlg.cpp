#include "COV_AboutDlg.h"

#include "DialogFlags.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

COV_AboutDlg::COV_AboutDlg(QWidget* parent) : QDialog(parent, kDialogFlags)
{
    setWindowTitle(tr("About Orvane"));
    auto* layout = new QVBoxLayout(this);
    auto* row = new QHBoxLayout;
    auto* icon = new QLabel(this);
    icon->setPixmap(style()->standardIcon(QStyle::SP_ComputerIcon).pixmap(32, 32));
    row->addWidget(icon);
    row->addWidget(new QLabel(versionText(), this), 1);
    layout->addLayout(row);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    layout->addWidget(buttons);
}
