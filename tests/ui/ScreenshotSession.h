#pragma once

#include "GlobalData.h"
#include "RecordingPrompts.h"

#include <QString>
#include <QTemporaryDir>

class QWidget;

// What the screenshot programs share: the output folder from the command line, a temporary
// settings folder, the build's program folder (for the help images and examples) and lenient
// recording prompts, so that no dialog ever waits for a person.
class ScreenshotSession
{
public:
    // False (after a usage line on stderr) when no output folder was given.
    bool start(int argc, char *argv[], const char *programName);
    // Lets pending events run, then saves `widget` as NAME.png in the output folder.
    void save(QWidget *widget, const QString &name) const;

    GlobalData folders;
    RecordingPrompts prompts;

private:
    QString m_output;
    QTemporaryDir m_settings;
};
