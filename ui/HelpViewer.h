#pragma once

#include <QDialog>

class QTextBrowser;

// The program's help viewer: one window that shows the help topics (HTML files of the "help"
// folder in the program folder) and follows the links between them.
class HelpViewer : public QDialog
{
    Q_OBJECT

public:
    explicit HelpViewer(QWidget *parent = nullptr);

    // Shows `topicPath`, an existing HTML file.
    void showTopic(const QString &topicPath);
    QTextBrowser *browser() const { return m_browser; }

private:
    QTextBrowser *m_browser;
};

// Path of help topic `topic` ("1.html") under `programFolder`; "" when the file is missing.
QString helpTopicPath(const QString &programFolder, const QString &topic);
