#include "ctrlPictureViewer.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>

ctrlPictureViewer::ctrlPictureViewer(QWidget *parent)
    : QScrollArea(parent)
    , m_canvas(new QLabel)
{
    m_canvas->setObjectName(QStringLiteral("picture"));
    m_canvas->setAlignment(Qt::AlignCenter);
    // The canvas keeps the picture's size: the scroll area centres it or scrolls it.
    setWidgetResizable(false);
    setAlignment(Qt::AlignCenter);
    setWidget(m_canvas);
    setBackgroundRole(QPalette::Base);
}

void ctrlPictureViewer::setPicture(const QPixmap &picture)
{
    m_picture = picture;
    m_canvas->setPixmap(picture);
    m_canvas->resize(picture.isNull() ? QSize(0, 0) : picture.deviceIndependentSize().toSize());
    Refresh();
}

void ctrlPictureViewer::Refresh()
{
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    m_canvas->update();
}

void ctrlPictureViewer::Copy() const
{
    if (hasPicture())
        QApplication::clipboard()->setPixmap(m_picture);
}

void ctrlPictureViewer::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        emit popupMenuRequested(event->globalPosition().toPoint());
        event->accept();
        return;
    }
    QScrollArea::mousePressEvent(event);
}

void ctrlPictureViewer::contextMenuEvent(QContextMenuEvent *event)
{
    // The right button already asked on its press; the menu key asks here.
    if (event->reason() != QContextMenuEvent::Mouse)
        emit popupMenuRequested(event->globalPos());
    event->accept();
}
