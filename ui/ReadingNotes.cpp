#include "ReadingNotes.h"

#include "InputTable.h"
#include "NumberText.h"
#include "tvrEditBox.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

// "read as 1" for a text read in part, else "".
QString noteText(const QString &text)
{
    const std::string typed = text.toStdString();
    if (!isReadInPart(typed))
        return {};
    return QStringLiteral("read as ")
            + QString::fromStdString(NumberToDisplayText(leadingNumber(typed)));
}

} // namespace

ReadingNotes::ReadingNotes(const InputPageControls &page, QObject *parent)
    : QObject(parent)
    , m_page(page)
{
    for (int i = 1; i <= kInputCount; ++i) {
        if (inputBox(i).kind != InputKind::Number)
            continue;
        auto *note = new QLabel(page.panel);
        note->setObjectName(QStringLiteral("readingNote_%1").arg(i));
        note->setTextFormat(Qt::PlainText);
        note->setStyleSheet(QStringLiteral("QLabel { color: #a04000; }"));
        note->setToolTip(QStringLiteral(
                "Only the leading number of the text is read: a thousands separator or a "
                "currency sign ends it. Type the number without them to have it read whole."));
        note->hide();
        m_notes[static_cast<size_t>(i)] = note;
        // The editor's own signal also reports texts that the page loads with the box's
        // signals blocked.
        connect(page.txtInput[static_cast<size_t>(i)]->editor(), &QLineEdit::textChanged, this,
                [this, i] { update(i); });
    }
}

QWidget *ReadingNotes::besideWhat(int index) const
{
    if (index == 18)
        return m_page.cmdHelp[1];
    if (index == 19)
        return m_page.cmdHelp[2];
    return m_page.txtInput[static_cast<size_t>(index)];
}

void ReadingNotes::place()
{
    for (int i = 1; i <= kInputCount; ++i) {
        QLabel *note = m_notes[static_cast<size_t>(i)];
        if (!note)
            continue;
        const QRect box = m_page.txtInput[static_cast<size_t>(i)]->geometry();
        const QRect neighbour = besideWhat(i)->geometry();
        const int gap = note->fontMetrics().horizontalAdvance(QLatin1Char('X'));
        note->setGeometry(neighbour.right() + 1 + gap, box.top(),
                          note->fontMetrics().horizontalAdvance(
                                  QStringLiteral("read as -8.88888888888888E-888")),
                          box.height());
        update(i);
    }
}

void ReadingNotes::update(int index)
{
    QLabel *note = m_notes[static_cast<size_t>(index)];
    const tvrEditBox *box = m_page.txtInput[static_cast<size_t>(index)];
    note->setText(noteText(box->text()));
    note->setVisible(!box->isHidden() && !note->text().isEmpty());
}
