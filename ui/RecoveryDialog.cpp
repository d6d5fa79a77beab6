#include "RecoveryDialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QTreeWidget *offerList(const QList<RecoveryOffer> &offers, QWidget *parent)
{
    auto *list = new QTreeWidget(parent);
    list->setRootIsDecorated(false);
    list->setHeaderLabels(
            { QStringLiteral("Name"), QStringLiteral("Saved"), QStringLiteral("Original file") });
    for (const RecoveryOffer &offer : offers) {
        const QString original = offer.originalPath.isEmpty() ? QStringLiteral("(never saved)")
                                                              : offer.originalPath;
        list->addTopLevelItem(new QTreeWidgetItem({ offer.name, offer.savedAt, original }));
    }
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->setCurrentItem(list->topLevelItem(0));
    return list;
}

} // namespace

RecoveryAnswer askRecoveryInDialog(const QList<RecoveryOffer> &offers, QWidget *parent)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(QStringLiteral("Recover Unsaved Data"));
    auto *layout = new QVBoxLayout(&dialog);
    auto *text = new QLabel(
            QStringLiteral("The program did not end cleanly. The unsaved changes of these "
                           "documents were kept.\nOpen one to go on with it (save it under a "
                           "name of your choice), or discard them all."),
            &dialog);
    text->setWordWrap(true);
    layout->addWidget(text);
    QTreeWidget *list = offerList(offers, &dialog);
    layout->addWidget(list);
    auto *buttons = new QDialogButtonBox(&dialog);
    QPushButton *open = buttons->addButton(QStringLiteral("&Open"), QDialogButtonBox::AcceptRole);
    QPushButton *discard
            = buttons->addButton(QStringLiteral("&Discard All"), QDialogButtonBox::DestructiveRole);
    buttons->addButton(QStringLiteral("&Later"), QDialogButtonBox::RejectRole);
    open->setDefault(true);
    layout->addWidget(buttons);
    dialog.resize(720, 260);

    RecoveryAnswer answer;
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, [&] {
        answer = { RecoveryAnswer::Open, list->indexOfTopLevelItem(list->currentItem()) };
        dialog.accept();
    });
    QObject::connect(discard, &QPushButton::clicked, &dialog, [&] {
        answer = { RecoveryAnswer::Discard, -1 };
        dialog.accept();
    });
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    QObject::connect(list, &QTreeWidget::itemDoubleClicked, open, &QPushButton::click);
    dialog.exec();
    return answer;
}
