#include "HelpViewer.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace {
const char *const kHelpWindowTitle = "Swale Help";
}

HelpViewer::HelpViewer(QWidget *parent)
    : QDialog(parent)
    , m_browser(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("HelpViewer"));
    setWindowTitle(QLatin1String(kHelpWindowTitle));
    m_browser->setObjectName(QStringLiteral("helpBrowser"));
    m_browser->setOpenExternalLinks(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_browser);
    layout->addWidget(buttons);
    resize(820, 680);
}

void HelpViewer::showTopic(const QString &topicPath)
{
    m_browser->setSource(QUrl::fromLocalFile(topicPath));
    setWindowTitle(m_browser->documentTitle().isEmpty() ? QLatin1String(kHelpWindowTitle)
                                                        : m_browser->documentTitle()
                                   + QStringLiteral(" - ") + QLatin1String(kHelpWindowTitle));
}

QString helpTopicPath(const QString &programFolder, const QString &topic)
{
    const QString path = programFolder + QStringLiteral("help/") + topic;
    return QFileInfo(path).isFile() ? path : QString();
}
