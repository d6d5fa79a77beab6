#include "frmAbout.h"

#include "UserTexts.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmAbout::frmAbout(const QString &versionText, QWidget *parent)
    : QDialog(parent)
    , Command1(new QPushButton(QStringLiteral("OK"), this))
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About ") + QLatin1String(kProgramTitle));
    const QStringList texts = {
        QLatin1String(kProgramTitle),
        versionText,
        QStringLiteral("Checks the design of a grassed or lined stormwater channel (a swale): "
                       "runoff from the contributing area, normal depth by Manning's equation, "
                       "velocity and safety against erosion, infiltration below the channel, "
                       "and the channel length for a desired treatment efficiency or the "
                       "efficiency of a given length."),
        QStringLiteral("US customary units. Help topics on permissible velocities and "
                       "Manning's roughness are on the Input Data page."),
    };
    auto *textColumn = new QVBoxLayout;
    for (int i = 0; i < 4; ++i) {
        auto *label = new QLabel(texts.at(i), this);
        label->setObjectName(QStringLiteral("lbl_%1").arg(i));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setFixedWidth(360);
        textColumn->addWidget(label);
        lbl[static_cast<size_t>(i)] = label;
    }
    QFont title = lbl[0]->font();
    title.setBold(true);
    title.setPointSizeF(title.pointSizeF() * 1.3);
    lbl[0]->setFont(title);
    textColumn->addStretch(1);

    auto *icon = new QLabel(this);
    icon->setPixmap(QIcon(QStringLiteral(":/icons/swale.svg")).pixmap(64, 64));
    icon->setAlignment(Qt::AlignTop);
    auto *body = new QHBoxLayout;
    body->addWidget(icon);
    body->addLayout(textColumn, 1);

    Command1->setObjectName(QStringLiteral("Command1"));
    Command1->setDefault(true);
    connect(Command1, &QPushButton::clicked, this, &QDialog::accept);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(Command1);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(body);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}
