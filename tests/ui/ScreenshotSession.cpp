#include "ScreenshotSession.h"

#include <QApplication>
#include <QDir>
#include <QTextStream>
#include <QWidget>

bool ScreenshotSession::start(int argc, char *argv[], const char *programName)
{
    if (argc < 2) {
        QTextStream(stderr) << "usage: " << programName << " OUTPUT_FOLDER\n";
        return false;
    }
    m_output = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(m_output);
    folders.programFolder = QApplication::applicationDirPath().toStdString() + "/";
    folders.settingsFolder = m_settings.path().toStdString() + "/";
    folders.documentsFolder = folders.settingsFolder;
    prompts.setLenient(true);
    return true;
}

void ScreenshotSession::save(QWidget *widget, const QString &name) const
{
    QApplication::processEvents();
    widget->grab().save(m_output + QLatin1Char('/') + name + QStringLiteral(".png"));
    QTextStream(stdout) << "saved " << name << ".png\n";
}
