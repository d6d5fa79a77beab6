#include "PageStyle.h"

#include <QLabel>

namespace PageStyle {

QLabel *makeHeading(const QString &name, const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setIndent(0);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.1);
    label->setFont(font);
    label->setStyleSheet(QStringLiteral(
            "QLabel { color: #1f4e79; border: none; border-bottom: 1px solid #b8c4d0;"
            " padding: 0px 0px 2px 0px; margin: 0px; }"));
    return label;
}

QString indexedName(const char *arrayName, int index)
{
    return QLatin1String(arrayName) + QLatin1Char('_') + QString::number(index);
}

} // namespace PageStyle
