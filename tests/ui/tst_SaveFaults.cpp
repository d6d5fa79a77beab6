// Save and Save As over an existing project that meet a read-only folder, a full disk or a
// write failing part way: the window names the path in the message, the old file keeps every
// byte, and the document stays as it was: the edit, the file name, the caption, the changed
// flag and the recent-file list.
#include "FileFaults.h"
#include "GlobalData.h"
#include "MainMenus.h"
#include "ProjectFile.h"
#include "RecordingPrompts.h"
#include "frmMain.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                  QDir::Name);
}

} // namespace

class tst_SaveFaults : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void failedSaveLosesNothing_data();
    void failedSaveLosesNothing();

private:
    // The texts and visibility of the recent-file entries of the File menu.
    QStringList recentMenu() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    GlobalData m_folders;
    QString m_faultyFolder; // holds the file that the failing save replaces
    RecordingPrompts m_prompts;
    std::unique_ptr<frmMain> m_window;
};

void tst_SaveFaults::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    const QString root = m_folder->path();
    openToOrdinaryUser(root.toStdString());
    for (const char *name : { "program", "settings", "documents", "documents/projects" })
        QVERIFY(QDir(root).mkpath(QLatin1String(name)));
    m_folders = { root.toStdString() + "/program/", root.toStdString() + "/settings/",
                  root.toStdString() + "/documents/" };
    m_faultyFolder = root + QStringLiteral("/documents/projects");
    m_prompts.clear();
    m_window = std::make_unique<frmMain>(m_prompts, m_folders);
}

void tst_SaveFaults::cleanup()
{
    QCOMPARE(m_prompts.pendingAnswers(), 0);
    m_window.reset();
    m_folder.reset();
}

QStringList tst_SaveFaults::recentMenu() const
{
    QStringList entries;
    for (int i = 1; i <= 5; ++i) {
        const QAction *entry = m_window->menus().mnuFile_Recent[static_cast<size_t>(i)];
        entries << entry->text() + (entry->isVisible() ? QString() : QStringLiteral(" (hidden)"));
    }
    return entries;
}

void tst_SaveFaults::failedSaveLosesNothing_data()
{
    QTest::addColumn<int>("fault");
    QTest::addColumn<bool>("saveAs");
    QTest::addColumn<QString>("message");
    const struct
    {
        SaveFault fault;
        const char *save; // Save to the current file name
        const char *saveAs; // Save As
    } faults[] = {
        { SaveFault::ReadOnlyFolder, "Unable to open file:", "Error opening file:" },
        { SaveFault::DiskFull, "Error writing data file:", "Error writing to file:" },
        { SaveFault::FailsPartWay, "Error writing data file:", "Error writing to file:" },
    };
    for (const auto &row : faults) {
        const QByteArray name = saveFaultName(row.fault);
        QTest::newRow("Save, " + name) << int(row.fault) << false << QString(row.save);
        QTest::newRow("Save As, " + name) << int(row.fault) << true << QString(row.saveAs);
    }
}

void tst_SaveFaults::failedSaveLosesNothing()
{
    QFETCH(int, fault);
    QFETCH(bool, saveAs);
    QFETCH(QString, message);
    FaultyFolder folder(static_cast<SaveFault>(fault), m_faultyFolder.toStdString());
    const QString target = m_faultyFolder + QStringLiteral("/swale.swl");

    // The project last saved to the target; Save As starts from another project of the user's.
    SwaleProject old;
    old.inputText[1] = "Route 9 roadside swale";
    old.inputText[2] = "J. Marsh";
    old.solutionMethod = 1;
    old.channelFlowMethod = 1;
    QVERIFY(saveProject(target.toStdString(), old).ok);
    const QString opened
            = saveAs ? QString::fromStdString(m_folders.documentsFolder) + "other.swl" : target;
    if (saveAs)
        QVERIFY(saveProject(opened.toStdString(), old).ok);
    QVERIFY(m_window->OpenDataFile(opened, OpenNormal));
    const QByteArray oldBytes = fileBytes(target);
    const QStringList entries = entriesOf(m_faultyFolder);

    // An edit long enough that half the new file is still more than a few lines.
    const QString edit = QStringLiteral("Route 9 roadside swale, widened ").repeated(60);
    m_window->txtInput(1)->setText(edit);
    QVERIFY(m_window->isDataChanged());
    const QString caption = m_window->windowTitle();
    const QString dataFolder = m_window->currentDataFolder();
    const QStringList recent = recentMenu();
    const size_t newSize = static_cast<size_t>(fileBytes(target).size() + edit.size());

    const std::string notInForce = folder.arm(newSize);
    if (!notInForce.empty())
        QSKIP(qPrintable(QStringLiteral("%1 cannot be made here: %2")
                                 .arg(QLatin1String(saveFaultName(SaveFault(fault))),
                                      QString::fromStdString(notInForce))));
    if (saveAs)
        m_prompts.answerSave(target);
    m_prompts.answerMessage();
    const bool saved = saveAs ? m_window->SaveProjectAs() : m_window->SaveProject();
    folder.disarm();
    // Logged only now: a file-size limit would also stop output going to a file.
    qInfo("fault made by: %s", folder.mechanism().c_str());

    QVERIFY(!saved);
    QCOMPARE(m_prompts.messages(), QStringList { message + QLatin1Char('\r') + target });
    QCOMPARE(m_prompts.records().last().style, int(MessageStyle::Exclamation));
    QCOMPARE(m_prompts.records().last().title, QStringLiteral("Error"));
    QCOMPARE(fileBytes(target), oldBytes);
    QCOMPARE(entriesOf(m_faultyFolder), entries);
    QVERIFY(m_window->isDataChanged());
    QCOMPARE(m_window->windowTitle(), caption);
    QCOMPARE(m_window->currentFilePath(), opened);
    QCOMPARE(m_window->currentDataFolder(), dataFolder);
    QCOMPARE(recentMenu(), recent);
    QCOMPARE(m_window->txtInput(1)->text(), edit);

    // With the fault gone the same command saves the edit.
    if (saveAs)
        m_prompts.answerSave(target);
    QVERIFY(saveAs ? m_window->SaveProjectAs() : m_window->SaveProject());
    QVERIFY(!m_window->isDataChanged());
    QVERIFY(fileBytes(target).contains(edit.trimmed().toLatin1()));
}

QTEST_MAIN(tst_SaveFaults)
#include "tst_SaveFaults.moc"
