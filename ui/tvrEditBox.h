#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

// The labelled edit box of every input and output: a caption on the left (leftcaption), the
// value in the middle (Text) and a unit label on the right (rightcaption). Output boxes carry a
// write protection: while it is on, the user cannot edit the text and setText is refused, so the
// program switches it off for the moment it writes a result.
class tvrEditBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QString leftcaption READ leftcaption WRITE setLeftCaption)
    Q_PROPERTY(QString rightcaption READ rightcaption WRITE setRightCaption)
    Q_PROPERTY(bool writeProtected READ isWriteProtected WRITE setWriteProtected)

public:
    explicit tvrEditBox(QWidget *parent = nullptr);

    QString text() const;
    // Replaces the text; does nothing while the write protection is on.
    void setText(const QString &text);

    QString leftcaption() const;
    void setLeftCaption(const QString &caption);
    QString rightcaption() const;
    void setRightCaption(const QString &unit);

    bool isWriteProtected() const { return m_writeProtected; }
    void setWriteProtected(bool on);

    // Width in pixels the caption text needs in the box's font.
    int captionTextWidth() const;
    int unitTextWidth() const;
    // Fixed widths of the caption column, the value field and the unit column, so that the
    // boxes of a page line up.
    void setColumnWidths(int captionWidth, int valueWidth, int unitWidth);
    // The value field itself.
    QLineEdit *editor() const { return m_edit; }

signals:
    // Every change of the text, typed by the user or set by the program.
    void textChanged(const QString &text);

private:
    QLabel *m_caption;
    QLineEdit *m_edit;
    QLabel *m_unit;
    bool m_writeProtected = false;
};
