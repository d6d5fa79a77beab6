#pragma once

#include <QPixmap>
#include <QScrollArea>

class QLabel;

// A picture viewer: shows one picture at its own size, centred when it is smaller than the
// view and scrollable when it is larger. A click with the right mouse button (or the menu key)
// asks the owner for a pop-up menu; Copy puts the picture on the clipboard.
class ctrlPictureViewer : public QScrollArea
{
    Q_OBJECT

public:
    explicit ctrlPictureViewer(QWidget *parent = nullptr);

    // Shows `picture`; a null picture empties the viewer.
    void setPicture(const QPixmap &picture);
    QPixmap picture() const { return m_picture; }
    bool hasPicture() const { return !m_picture.isNull(); }

    // Fits the view to the picture again: back to the top-left corner, the scroll ranges redone.
    void Refresh();
    // Puts the shown picture on the clipboard; does nothing when no picture is shown.
    void Copy() const;

signals:
    // The user asked for the pop-up menu at `globalPosition`.
    void popupMenuRequested(const QPoint &globalPosition);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    QLabel *m_canvas;
    QPixmap m_picture;
};
