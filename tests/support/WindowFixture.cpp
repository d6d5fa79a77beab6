#include "WindowFixture.h"

#include <QDir>
#include <QTest>

void WindowFixture::setUp()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    const QDir root(folder->path());
    for (const char *name : { "program/Examples", "program/help", "settings", "documents" })
        QVERIFY(root.mkpath(QLatin1String(name)));
    const std::string base = folder->path().toStdString();
    folders = { base + "/program/", base + "/settings/", base + "/documents/" };
    prompts.clear();
    makeWindow();
}

void WindowFixture::tearDown()
{
    const int pending = prompts.pendingAnswers();
    window.reset();
    folder.reset();
    QCOMPARE(pending, 0);
}

void WindowFixture::makeWindow()
{
    window.reset();
    window = std::make_unique<frmMain>(prompts, folders);
}

QString WindowFixture::programFile(const QString &name) const
{
    return QString::fromStdString(folders.programFolder) + name;
}

QString WindowFixture::settingsFile(const QString &name) const
{
    return QString::fromStdString(folders.settingsFolder) + name;
}

QString WindowFixture::documentsFile(const QString &name) const
{
    return QString::fromStdString(folders.documentsFolder) + name;
}
