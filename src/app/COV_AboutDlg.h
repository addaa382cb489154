#pragma once

#include <QDialog>

// "About Orvane": the program's icon and version.
class COV_AboutDlg : public QDialog
{
    Q_OBJECT

public:
    static QString versionText() { return QStringLiteral("Orvane Version 1.0.1.0000"); }

    explicit COV_AboutDlg(QWidget* parent = nullptr);
};
