// grid-demo: shows the rating-curve grid alone. With --shots FOLDER it scripts the grid through
// its looks (empty, filled, selected, editing, disabled, scrolled, resizing a column) and saves a
// screenshot of each into FOLDER.
#include "DemoWindow.h"
#include "RdcGridA.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

namespace {
void sendKey(QWidget *target, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
             const QString &text = QString())
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(target, &release);
    QApplication::processEvents();
}

void sendMouse(QWidget *target, QEvent::Type type, QPoint point, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, point, target->mapToGlobal(point),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(target, &event);
    QApplication::processEvents();
}

bool saveShot(DemoWindow &window, const QString &folder, const QString &name)
{
    QApplication::processEvents();
    const QString path = QDir(folder).filePath(QStringLiteral("grid-%1.png").arg(name));
    if (!window.grab().save(path)) {
        qCritical("grid-demo: cannot write %s", qPrintable(path));
        return false;
    }
    return true;
}

// A grid with the default design: title bar, numbered bold headers, left-aligned row labels.
bool saveTitledGridShot(const QString &folder)
{
    RdcGridA grid;
    grid.setTitle(QStringLiteral("Inlet rating curve"));
    grid.setCols(4);
    grid.setBoldColumnHeaders(true);
    grid.setText(2, 2, QStringLiteral("A text far too long for its cell"));
    grid.setText(3, 1, QStringLiteral("12.5"));
    grid.resize(grid.sizeHint());
    grid.show();
    QApplication::processEvents();
    const QString path = QDir(folder).filePath(QStringLiteral("grid-9-titled.png"));
    return grid.grab().save(path);
}

int takeShots(DemoWindow &window, const QString &folder)
{
    if (!QDir().mkpath(folder)) {
        qCritical("grid-demo: cannot create %s", qPrintable(folder));
        return 1;
    }
    RdcGridA *grid = window.grid();
    QWidget *pic = grid->findChild<QWidget *>(QStringLiteral("pic"));
    window.activateWindow();
    pic->setFocus();
    QApplication::processEvents();
    bool ok = saveShot(window, folder, QStringLiteral("1-empty"));
    window.fillSampleCurve();
    grid->SetCurrentCell(3, 2);
    ok = saveShot(window, folder, QStringLiteral("2-filled")) && ok;
    grid->SetCurrentCell(4, 1);
    for (int i = 0; i < 3; ++i)
        sendKey(pic, Qt::Key_Down, Qt::ShiftModifier);
    sendKey(pic, Qt::Key_Right, Qt::ShiftModifier);
    ok = saveShot(window, folder, QStringLiteral("3-selection")) && ok;
    grid->SetCurrentCell(16, 1);
    sendKey(pic, Qt::Key_7, Qt::NoModifier, QStringLiteral("7"));
    sendKey(grid->findChild<QWidget *>(QStringLiteral("txt")), Qt::Key_Period, Qt::NoModifier,
            QStringLiteral("."));
    ok = saveShot(window, folder, QStringLiteral("4-editing")) && ok;
    sendKey(grid->findChild<QWidget *>(QStringLiteral("txt")), Qt::Key_Escape);
    window.setGridEnabled(false);
    ok = saveShot(window, folder, QStringLiteral("5-disabled")) && ok;
    window.setGridEnabled(true);
    grid->findChild<QScrollBar *>(QStringLiteral("vsc"))->setValue(30);
    ok = saveShot(window, folder, QStringLiteral("6-scrolled")) && ok;
    grid->Home();
    const QRect header = grid->GetColumnHeaderRectangle(1);
    const QPoint border(header.right(), header.center().y());
    sendMouse(pic, QEvent::MouseButtonPress, border, Qt::LeftButton);
    sendMouse(pic, QEvent::MouseMove, border + QPoint(30, 40), Qt::LeftButton);
    ok = saveShot(window, folder, QStringLiteral("7-resizing")) && ok;
    sendMouse(pic, QEvent::MouseButtonRelease, border + QPoint(30, 40), Qt::NoButton);
    ok = saveShot(window, folder, QStringLiteral("8-resized")) && ok;
    return saveTitledGridShot(folder) && ok ? 0 : 1;
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("grid-demo"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("The rating-curve grid alone."));
    parser.addHelpOption();
    const QCommandLineOption shots(QStringLiteral("shots"),
                                   QStringLiteral("Save screenshots of the grid into <folder>."),
                                   QStringLiteral("folder"));
    parser.addOption(shots);
    parser.process(app);

    DemoWindow window;
    window.show();
    if (parser.isSet(shots))
        return takeShots(window, parser.value(shots));
    return app.exec();
}
