#pragma once

#include "RdcGridA.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

// A selection as a rectangle of (column, row) corners, which QCOMPARE prints.
inline QRect range(int top, int left, int bottom, int right)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

inline QRect selectionOf(const RdcGridA *grid)
{
    const RdcGridA::SelectionRange r = grid->GetSelectionRange();
    return range(r.topRow, r.leftCol, r.bottomRow, r.rightCol);
}

// A window holding one grid and a line edit that can take the focus away from it.
// The grid is laid out with known sizes: no title, header row 20, data rows 20, row-header
// column 30 and data columns 65 pixels wide (the defaults).
struct GridWindow
{
    QWidget window;
    RdcGridA *grid = nullptr;
    QLineEdit *other = nullptr;
    bool active = false; // the window has the keyboard focus (needed for focus changes)

    GridWindow(int rows, int cols, QSize gridSize)
    {
        grid = new RdcGridA(&window);
        other = new QLineEdit(&window);
        grid->setTitleVisible(false);
        grid->setRows(rows);
        grid->setCols(cols);
        grid->setReadOnly(false);
        grid->setGeometry(QRect(QPoint(0, 0), gridSize));
        other->setGeometry(0, gridSize.height() + 4, 100, 24);
        window.resize(gridSize.width() + 10, gridSize.height() + 40);
        window.show();
        window.activateWindow();
        active = QTest::qWaitForWindowActive(&window);
        grid->Refresh();
    }

    QWidget *pic() const { return grid->findChild<QWidget *>(QStringLiteral("pic")); }
    QLineEdit *txt() const { return grid->findChild<QLineEdit *>(QStringLiteral("txt")); }
    QScrollBar *vsc() const { return grid->findChild<QScrollBar *>(QStringLiteral("vsc")); }
    QScrollBar *hsc() const { return grid->findChild<QScrollBar *>(QStringLiteral("hsc")); }
    QTimer *timer1() const { return grid->findChild<QTimer *>(QStringLiteral("Timer1")); }

    QPoint cellCentre(int row, int col) const { return grid->cellRectangle(row, col).center(); }
    void click(int row, int col, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::mouseClick(pic(), Qt::LeftButton, modifiers, cellCentre(row, col));
    }
    QImage surfaceImage() const { return pic()->grab().toImage(); }
};
