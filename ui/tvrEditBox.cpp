#include "tvrEditBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

tvrEditBox::tvrEditBox(QWidget *parent)
    : QWidget(parent)
    , m_caption(new QLabel(this))
    , m_edit(new QLineEdit(this))
    , m_unit(new QLabel(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    m_caption->setObjectName(QStringLiteral("leftcaption"));
    m_edit->setObjectName(QStringLiteral("value"));
    m_unit->setObjectName(QStringLiteral("rightcaption"));
    m_caption->setBuddy(m_edit);
    layout->addWidget(m_caption);
    layout->addWidget(m_edit);
    layout->addWidget(m_unit);
    m_caption->setTextFormat(Qt::PlainText);
    m_unit->setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusProxy(m_edit);
    connect(m_edit, &QLineEdit::textChanged, this, &tvrEditBox::textChanged);
}

QString tvrEditBox::text() const
{
    return m_edit->text();
}

void tvrEditBox::setText(const QString &text)
{
    if (m_writeProtected)
        return;
    m_edit->setText(text);
    m_edit->setCursorPosition(0); // a long text shows its beginning
}

QString tvrEditBox::leftcaption() const
{
    return m_caption->text();
}

void tvrEditBox::setLeftCaption(const QString &caption)
{
    m_caption->setText(caption);
}

QString tvrEditBox::rightcaption() const
{
    return m_unit->text();
}

void tvrEditBox::setRightCaption(const QString &unit)
{
    m_unit->setText(unit);
}

void tvrEditBox::setWriteProtected(bool on)
{
    m_writeProtected = on;
    m_edit->setReadOnly(on);
    // A protected box is tinted so that it does not invite typing.
    m_edit->setStyleSheet(on ? QStringLiteral("QLineEdit { background: #eef2f6; }") : QString());
}

int tvrEditBox::captionTextWidth() const
{
    return m_caption->fontMetrics().horizontalAdvance(m_caption->text());
}

int tvrEditBox::unitTextWidth() const
{
    return m_unit->fontMetrics().horizontalAdvance(m_unit->text());
}

void tvrEditBox::setColumnWidths(int captionWidth, int valueWidth, int unitWidth)
{
    m_caption->setFixedWidth(captionWidth);
    m_edit->setFixedWidth(valueWidth);
    m_unit->setFixedWidth(unitWidth);
}
