#pragma once

#include "GlobalData.h"
#include "RecordingPrompts.h"
#include "frmMain.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>

// The main window on temporary folders (program with Examples and help, settings, documents)
// with recording prompts: call setUp() in a suite's init() and tearDown() in its cleanup(),
// which fails the test when a scripted answer was never asked for.
class WindowFixture
{
public:
    void setUp();
    void tearDown();
    // A new window on the same folders (a restart).
    void makeWindow();
    // Path of `name` in the program, settings and documents folders.
    QString programFile(const QString &name) const;
    QString settingsFile(const QString &name) const;
    QString documentsFile(const QString &name) const;

    std::unique_ptr<QTemporaryDir> folder;
    GlobalData folders;
    RecordingPrompts prompts;
    std::unique_ptr<frmMain> window;
};
