#pragma once

#include <QDialog>

#include <array>

class QLabel;
class QPushButton;

// The About box: the program's name, its version text and what it is for; Command1 closes it.
class frmAbout : public QDialog
{
    Q_OBJECT

public:
    frmAbout(const QString &versionText, QWidget *parent = nullptr);

    QLabel *label(int index) const { return lbl[static_cast<size_t>(index)]; }

private:
    std::array<QLabel *, 4> lbl {}; // name, version, description, credits
    QPushButton *Command1;
};
