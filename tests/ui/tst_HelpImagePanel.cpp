#include "Files.h"
#include "HelpImagePanel.h"
#include "SettingsFiles.h"
#include "ctrlPictureViewer.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

// Widths of the test images of sizes 1 to 3; size 4 names a file that does not exist.
constexpr int kWidths[] = { 0, 40, 60, 80 };

void writeImage(const QString &path, int width)
{
    QImage image(width, width / 2, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QVERIFY(image.save(path, "PNG"));
}

QString menuTicks(const HelpImagePanel::SizeEntries &entries)
{
    QString ticks;
    for (int i = 1; i <= 4; ++i)
        ticks += entries[static_cast<size_t>(i)]->isChecked() ? QLatin1Char('x') : QLatin1Char('.');
    return ticks;
}

} // namespace

class tst_HelpImagePanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void startsWithTheStoredSizeElseTheDefault_data();
    void startsWithTheStoredSizeElseTheDefault();
    void bothMenusChooseTheSizeTickItAndStoreIt_data();
    void bothMenusChooseTheSizeTickItAndStoreIt();
    void sizesWithoutAnImageAreNotOffered();
    void aMissingImageShowsNothingAndSaysNothing();
    void rightClickAsksForThePopUpAndCopyTakesThePicture();
    void smallPicturesAreCentred();

private:
    HelpImagePanel &makePanel();

    std::unique_ptr<QTemporaryDir> m_program;
    std::unique_ptr<QTemporaryDir> m_settings;
    GlobalData m_folders;
    std::unique_ptr<QWidget> m_window;
    ctrlPictureViewer *m_viewer = nullptr;
    HelpImagePanel::SizeEntries m_menuSizes {};
    HelpImagePanel::SizeEntries m_popupSizes {};
    QMenu *m_popup = nullptr;
    QAction *m_copy = nullptr;
    HelpImagePanel *m_panel = nullptr;
};

void tst_HelpImagePanel::init()
{
    m_program = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<QTemporaryDir>();
    m_folders.programFolder = m_program->path().toStdString() + "/";
    m_folders.settingsFolder = m_settings->path().toStdString() + "/";
    QVERIFY(QDir(m_program->path()).mkdir(QStringLiteral("help")));
    for (int size = 1; size <= 3; ++size)
        writeImage(m_program->filePath(QStringLiteral("help/%1.png").arg(size)), kWidths[size]);
    writeBytes(m_program->filePath(QStringLiteral("HelpImages.ini")).toStdString(),
               "SMALL=help/1.png\r\nmedium=help/2.png\r\n Large =help/3.png\r\n"
               "LARGEST=help/missing.png\r\n");

    m_window = std::make_unique<QWidget>();
    m_viewer = new ctrlPictureViewer(m_window.get());
    m_viewer->resize(200, 150);
    auto *menu = new QMenu(m_window.get());
    m_popup = new QMenu(m_window.get());
    for (int size = 1; size <= 4; ++size) {
        m_menuSizes[static_cast<size_t>(size)] = menu->addAction(QString::number(size));
        m_popupSizes[static_cast<size_t>(size)] = m_popup->addAction(QString::number(size));
        m_menuSizes[static_cast<size_t>(size)]->setCheckable(true);
        m_popupSizes[static_cast<size_t>(size)]->setCheckable(true);
    }
    m_copy = m_popup->addAction(QStringLiteral("Copy"));
    m_panel = nullptr;
}

void tst_HelpImagePanel::cleanup()
{
    m_window.reset();
}

HelpImagePanel &tst_HelpImagePanel::makePanel()
{
    m_panel = new HelpImagePanel(*m_viewer, m_folders, m_menuSizes, m_popupSizes, *m_popup, *m_copy,
                                 m_window.get());
    m_panel->load();
    return *m_panel;
}

void tst_HelpImagePanel::startsWithTheStoredSizeElseTheDefault_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("ticks");
    QTest::newRow("none stored: the default") << 0 << QStringLiteral(".x..");
    QTest::newRow("Large stored") << 3 << QStringLiteral("..x.");
}

void tst_HelpImagePanel::startsWithTheStoredSizeElseTheDefault()
{
    QFETCH(int, stored);
    if (stored)
        QVERIFY(WriteDefHelpImage(m_folders.settingsFolder, stored));
    makePanel();
    QCOMPARE(m_viewer->picture().width(), kWidths[stored ? stored : HelpImagePanel::kDefaultSize]);
    QTEST(menuTicks(m_menuSizes), "ticks");
    QTEST(menuTicks(m_popupSizes), "ticks");
    // Start-up reads the stored size but does not write it.
    QCOMPARE(QFile::exists(m_settings->filePath(QLatin1String(kDefHelpImageFile))), stored != 0);
}

void tst_HelpImagePanel::bothMenusChooseTheSizeTickItAndStoreIt_data()
{
    QTest::addColumn<bool>("popup");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("ticks");
    QTest::newRow("Help menu, Small") << false << 1 << QStringLiteral("x...");
    QTest::newRow("pop-up, Large") << true << 3 << QStringLiteral("..x.");
}

void tst_HelpImagePanel::bothMenusChooseTheSizeTickItAndStoreIt()
{
    QFETCH(bool, popup);
    QFETCH(int, size);
    makePanel();
    (popup ? m_popupSizes : m_menuSizes)[static_cast<size_t>(size)]->trigger();
    QCOMPARE(m_viewer->picture().width(), kWidths[size]);
    QTEST(menuTicks(m_menuSizes), "ticks");
    QTEST(menuTicks(m_popupSizes), "ticks");
    QFile stored(m_settings->filePath(QLatin1String(kDefHelpImageFile)));
    QVERIFY(stored.open(QIODevice::ReadOnly));
    QCOMPARE(stored.readAll().trimmed(), QByteArray::number(size));
}

void tst_HelpImagePanel::sizesWithoutAnImageAreNotOffered()
{
    makePanel();
    QVERIFY(m_menuSizes[1]->isEnabled());
    QVERIFY(m_popupSizes[3]->isEnabled());
    QVERIFY(!m_menuSizes[4]->isEnabled());
    QVERIFY(!m_popupSizes[4]->isEnabled());
}

void tst_HelpImagePanel::aMissingImageShowsNothingAndSaysNothing()
{
    QFile::remove(m_program->filePath(QStringLiteral("help/2.png")));
    HelpImagePanel &panel = makePanel();
    QVERIFY(!m_viewer->hasPicture());
    panel.ShowHelpImage("");
    panel.ShowHelpImage("help/nothing-here.png");
    QVERIFY(!m_viewer->hasPicture());
    panel.cmd_HelpImageSize(1);
    QCOMPARE(m_viewer->picture().width(), kWidths[1]);
}

void tst_HelpImagePanel::rightClickAsksForThePopUpAndCopyTakesThePicture()
{
    makePanel();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QSignalSpy asked(m_viewer, &ctrlPictureViewer::popupMenuRequested);
    QTest::mouseClick(m_viewer->viewport(), Qt::LeftButton);
    QCOMPARE(asked.count(), 0);
    QTest::mouseClick(m_viewer->viewport(), Qt::RightButton, {}, QPoint(30, 20));
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.at(0).at(0).toPoint(), m_viewer->viewport()->mapToGlobal(QPoint(30, 20)));
    m_popup->hide();

    QApplication::clipboard()->clear();
    m_copy->trigger();
    const QImage copied = QApplication::clipboard()->image();
    QCOMPARE(copied.size(), m_viewer->picture().size());
    QCOMPARE(copied.pixelColor(5, 5), QColor(Qt::darkCyan));
}

void tst_HelpImagePanel::smallPicturesAreCentred()
{
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QPixmap small(40, 20);
    small.fill(Qt::blue);
    m_viewer->setPicture(small);
    QCOMPARE(m_viewer->horizontalScrollBar()->maximum(), 0);
    const QRect shown = m_viewer->widget()->geometry();
    const QRect view = m_viewer->viewport()->rect();
    QVERIFY(qAbs(shown.center().x() - view.center().x()) <= 1);
    QVERIFY(qAbs(shown.center().y() - view.center().y()) <= 1);
}

QTEST_MAIN(tst_HelpImagePanel)
#include "tst_HelpImagePanel.moc"
