#include "GridCellEditor.h"

#include "RdcGridA.h"

#include <QFocusEvent>
#include <QKeyEvent>

GridCellEditor::GridCellEditor(RdcGridA *grid, QWidget *surface)
    : QLineEdit(surface)
    , m_grid(grid)
{
    setFrame(false);
}

void GridCellEditor::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Up:
    case Qt::Key_Down:
        m_grid->editorKeyPress(event);
        return;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

bool GridCellEditor::event(QEvent *event)
{
    // Escape and Enter belong to the editor while it is open, not to a dialog's default buttons.
    if (event->type() == QEvent::ShortcutOverride) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter) {
            event->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void GridCellEditor::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    m_grid->editorFocusLost(event->reason());
}
