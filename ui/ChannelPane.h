#pragma once

#include "ChannelViews.h"

#include <QString>
#include <QWidget>

#include <array>
#include <functional>
#include <optional>

class Prompts;
class QTabWidget;
class QVBoxLayout;
struct SwaleInputData;
struct SwaleProject;

class ChannelPane;

// One channel drawing of the pane. It paints what the pane holds: the drawing, the drawing
// greyed with a note when the inputs changed since, or a message instead of a drawing. Its
// context menu copies the drawing to the clipboard or saves it as PNG or SVG.
class ChannelViewWidget : public QWidget
{
    Q_OBJECT

public:
    ChannelViewWidget(ChannelPane &pane, ChannelView view, QWidget *parent = nullptr);
    ChannelView view() const { return m_view; }

    void copyToClipboard();
    // Asks for a file name through the window's prompts and writes the drawing; false when
    // cancelled or the file could not be written (the user was told).
    bool saveAs(const QString &format);

protected:
    void paintEvent(QPaintEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    ChannelPane &m_pane;
    ChannelView m_view;
};

// The channel pane beside the tabs: the cross-section, the inflow hydrograph and the rating
// curves of the last calculation, one tab each, with room below them for more panels.
class ChannelPane : public QWidget
{
    Q_OBJECT

public:
    enum class State {
        Empty, // nothing calculated yet (or New)
        Current, // the drawings of the inputs as they are
        Stale, // the inputs changed since: the drawings are shown greyed
        Failed, // the last Calculate failed: its reason instead of a drawing
    };

    // `dataFolder` gives the folder that Save as offers first.
    ChannelPane(Prompts &prompts, std::function<QString()> dataFolder, QWidget *parent = nullptr);

    // After a successful Calculate: the drawings of its record; `criticalDepth` (ft) is drawn
    // dashed in the section when known.
    void showCalculation(const SwaleInputData &record,
                         std::optional<double> criticalDepth = std::nullopt);
    // Calculates `project` again and draws it (a project opened with its results); clears the
    // pane when it does not calculate.
    void showProject(const SwaleProject &project);
    // A failed Calculate: `reason` instead of the drawings.
    void showFailure(const QString &reason);
    // An input was edited: the drawings stay, greyed, with a note.
    void markInputsChanged();
    // New: no drawings.
    void clear();
    // Adds a panel below the drawings (the hydraulic checks, for example).
    void addPanel(QWidget *panel);

    State state() const { return m_state; }
    QString message() const { return m_message; }
    // The drawings, while the state is Current or Stale.
    const ChannelViews *views() const;
    ChannelViewWidget *viewWidget(ChannelView view) const;
    QTabWidget *tabs() const { return m_tabs; }
    Prompts &prompts() const { return m_prompts; }
    QString dataFolder() const { return m_dataFolder(); }

private:
    void setState(State state, const QString &message);

    Prompts &m_prompts;
    std::function<QString()> m_dataFolder;
    QVBoxLayout *m_layout = nullptr;
    QTabWidget *m_tabs = nullptr;
    std::array<ChannelViewWidget *, 3> m_views {};
    std::optional<ChannelViews> m_drawings;
    State m_state = State::Empty;
    QString m_message;
};

// The texts the pane shows in place of, or over, a drawing.
extern const char *const kChannelPaneEmptyText;
extern const char *const kChannelPaneStaleText;
