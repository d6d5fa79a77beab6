#include "ChannelPane.h"

#include "Calculate.h"
#include "ChannelViewFiles.h"
#include "Prompts.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QMenu>
#include <QPainter>
#include <QTabWidget>
#include <QVBoxLayout>

const char *const kChannelPaneEmptyText = "Calculate to draw the channel.";
const char *const kChannelPaneStaleText
        = "The inputs changed: calculate again to update the drawing.";

namespace {
// Size of an exported drawing: a figure for a report, in pixels (PNG) or points (SVG).
constexpr QSize kExportSize(800, 500);

QString fileBaseName(ChannelView view)
{
    return channelViewTitle(view).replace(QLatin1Char(' '), QLatin1Char('-')).toLower();
}
} // namespace

ChannelViewWidget::ChannelViewWidget(ChannelPane &pane, ChannelView view, QWidget *parent)
    : QWidget(parent)
    , m_pane(pane)
    , m_view(view)
{
    setObjectName(QStringLiteral("channelView_") + fileBaseName(view));
    setMinimumSize(240, 200);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ChannelViewWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const ChannelViews *views = m_pane.views();
    // Text sized in points, as on paper.
    if (views)
        paintChannelView(painter, QRectF(rect()), *views, m_view, logicalDpiY() / 72.0);
    if (m_pane.state() == ChannelPane::State::Current)
        return;
    if (views)
        painter.fillRect(rect(), QColor(235, 235, 235, 190)); // greyed: no longer the inputs'
    QRectF note = QRectF(rect()).adjusted(16, 16, -16, -16);
    painter.setPen(m_pane.state() == ChannelPane::State::Failed ? QColor(0xa0, 0x20, 0x20)
                                                                : QColor(0x30, 0x30, 0x30));
    QFont font = painter.font();
    font.setBold(views != nullptr);
    painter.setFont(font);
    painter.drawText(note, Qt::AlignCenter | Qt::TextWordWrap, m_pane.message());
}

void ChannelViewWidget::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu(this);
    const bool drawn = m_pane.views() != nullptr;
    QAction *copy
            = menu.addAction(QStringLiteral("&Copy"), this, &ChannelViewWidget::copyToClipboard);
    QAction *png = menu.addAction(QStringLiteral("Save as &PNG..."), this,
                                  [this] { saveAs(QStringLiteral("png")); });
    QAction *svg = menu.addAction(QStringLiteral("Save as &SVG..."), this,
                                  [this] { saveAs(QStringLiteral("svg")); });
    for (QAction *action : { copy, png, svg })
        action->setEnabled(drawn);
    menu.exec(event->globalPos());
}

void ChannelViewWidget::copyToClipboard()
{
    if (const ChannelViews *views = m_pane.views())
        QApplication::clipboard()->setImage(channelViewImage(*views, m_view, size()));
}

bool ChannelViewWidget::saveAs(const QString &format)
{
    const ChannelViews *views = m_pane.views();
    if (!views)
        return false;
    const bool svg = format == QLatin1String("svg");
    FileDialogRequest request;
    request.initialFolder = QDir(m_pane.dataFolder()).absolutePath() + QLatin1Char('/');
    request.fileName = fileBaseName(m_view) + QLatin1Char('.') + format;
    request.filters
            = { svg ? QStringLiteral("SVG Images (*.svg)") : QStringLiteral("PNG Images (*.png)") };
    request.defaultSuffix = format;
    request.flags = FileDialogRequest::HideReadOnly | FileDialogRequest::PathMustExist
            | FileDialogRequest::OverwritePrompt;
    const QString path = m_pane.prompts().askSaveFileName(request);
    if (path.isEmpty())
        return false;
    const bool written = svg ? writeChannelViewSvg(path, *views, m_view, kExportSize)
                             : writeChannelViewPng(path, *views, m_view, kExportSize);
    if (!written) {
        m_pane.prompts().ShowErrorMessage(QStringLiteral("Error writing to file:\r") + path,
                                          MessageStyle::Exclamation, QStringLiteral("Error"));
    }
    return written;
}

ChannelPane::ChannelPane(Prompts &prompts, std::function<QString()> dataFolder, QWidget *parent)
    : QWidget(parent)
    , m_prompts(prompts)
    , m_dataFolder(std::move(dataFolder))
{
    setObjectName(QStringLiteral("channelPane"));
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(2, 2, 2, 2);
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("channelViewTabs"));
    m_tabs->setDocumentMode(true);
    for (size_t i = 0; i < kChannelViews.size(); ++i) {
        m_views[i] = new ChannelViewWidget(*this, kChannelViews[i], m_tabs);
        m_tabs->addTab(m_views[i], channelViewTitle(kChannelViews[i]));
    }
    m_layout->addWidget(m_tabs, 1);
    clear();
}

void ChannelPane::setState(State state, const QString &message)
{
    m_state = state;
    m_message = message;
    if (state == State::Empty || state == State::Failed)
        m_drawings.reset();
    for (ChannelViewWidget *view : m_views)
        view->update();
}

void ChannelPane::showCalculation(const SwaleInputData &record, std::optional<double> criticalDepth)
{
    ChannelViews views;
    QString reason;
    if (!buildChannelViews(record, criticalDepth, views, reason)) {
        showFailure(reason);
        return;
    }
    m_drawings = std::move(views);
    setState(State::Current, QString());
}

void ChannelPane::showProject(const SwaleProject &project)
{
    const CalculationOutcome outcome = Calculate(project);
    if (outcome.status == CalculationOutcome::Status::Ok)
        showCalculation(outcome.record);
    else
        clear();
}

void ChannelPane::showFailure(const QString &reason)
{
    setState(State::Failed, QStringLiteral("No drawing: the calculation failed.\n\n") + reason);
}

void ChannelPane::markInputsChanged()
{
    if (m_state == State::Current)
        setState(State::Stale, QString::fromUtf8(kChannelPaneStaleText));
}

void ChannelPane::clear()
{
    setState(State::Empty, QString::fromUtf8(kChannelPaneEmptyText));
}

void ChannelPane::addPanel(QWidget *panel)
{
    m_layout->addWidget(panel);
}

const ChannelViews *ChannelPane::views() const
{
    return m_drawings ? &*m_drawings : nullptr;
}

ChannelViewWidget *ChannelPane::viewWidget(ChannelView view) const
{
    return m_views[static_cast<size_t>(view)];
}
