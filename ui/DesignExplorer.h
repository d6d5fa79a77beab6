#pragma once

#include "ReportContent.h"
#include "Sweep.h"

#include <QWidget>

#include <array>
#include <atomic>
#include <functional>
#include <memory>

class HeatMapView;
class Prompts;
class QChartView;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QTabWidget;
class QTableView;
class QThread;
class QTimer;
class SweepTableModel;

// What the explorer needs of the main window.
struct ExplorerHooks
{
    std::function<SwaleProject()> project; // the document as the controls hold it now
    // Types `text` into input box `box`, as the user would: the document changes and its
    // results are cleared the usual way.
    std::function<void(int box, const QString &text)> putValue;
    std::function<QString()> dataFolder; // where the export dialogs start
    // The explorer's page for the printed report (Print, Export PDF); empty for none.
    std::function<void(std::vector<ReportSection>)> reportSections;
};

// The Design Explorer window: sweeps one or two inputs of the current project through the
// Calculate command, off the window's thread, and shows the outcome as a chart, a table and (for
// two inputs) a heat map; solves for a target and can put the value found into its input box;
// exports the table as CSV and the chart as PNG or SVG.
class DesignExplorer : public QWidget
{
    Q_OBJECT

public:
    DesignExplorer(Prompts &prompts, ExplorerHooks hooks, QWidget *parent = nullptr);
    ~DesignExplorer() override;

    // Offers the inputs and results of the project's current options.
    void refreshChoices();
    // Starts a sweep of the ranges on the form; false (with a message) when they are refused.
    bool startSweep();
    void cancelSweep();
    bool isRunning() const { return m_worker != nullptr; }
    bool canPutSolvedValue() const { return m_solved.reached; }
    // The last finished (or cancelled) sweep; null before the first.
    const SweepResult *sweep() const { return m_sweep.get(); }
    // Solves for the target on the form; the outcome stays for putSolvedValue.
    void solve();
    void putSolvedValue();
    bool exportCsv();
    bool exportChart();

signals:
    void sweepFinished();

protected:
    // Coming forward again offers the inputs of the options chosen meanwhile in the window.
    void changeEvent(QEvent *event) override;
    // Closing the window stops a sweep that is still running.
    void closeEvent(QCloseEvent *event) override;

private:
    struct AxisControls
    {
        QComboBox *input = nullptr;
        QLineEdit *from = nullptr;
        QLineEdit *to = nullptr;
        QSpinBox *points = nullptr;
        QComboBox *spacing = nullptr;
    };

    QWidget *buildAxisRow(AxisControls &controls, int number, int maxPoints);
    QWidget *buildSolveRow();
    QWidget *buildViews();
    bool readAxis(const AxisControls &controls, SweepAxis &axis);
    void refuse(const QString &reason);
    void onSweepDone(std::shared_ptr<SweepResult> result);
    void showSweep();
    void redrawChart();
    void redrawHeatMap();
    // Hands the report its page: the sweep with the result on the chart (or the heat map) when
    // "Add the sweep to the printed report" is ticked, else none.
    void updateReportPage();
    int reportColumn() const;
    // The Save dialog of the exports, starting in the data folder; "" when cancelled. A name
    // typed without an extension gets `suffix`.
    QString askExportPath(const QStringList &filters, const QString &suffix);

    Prompts &m_prompts;
    ExplorerHooks m_hooks;
    std::array<AxisControls, 2> m_axes;
    QCheckBox *m_twoWay = nullptr;
    QPushButton *m_run = nullptr;
    QPushButton *m_cancel = nullptr;
    QProgressBar *m_progress = nullptr;
    QListWidget *m_chartResults = nullptr;
    QComboBox *m_mapResult = nullptr;
    QTabWidget *m_views = nullptr;
    QChartView *m_chart = nullptr;
    SweepTableModel *m_table = nullptr;
    QTableView *m_tableView = nullptr;
    HeatMapView *m_heatMap = nullptr;
    QComboBox *m_solveResult = nullptr;
    QLineEdit *m_target = nullptr;
    QLabel *m_solveMessage = nullptr;
    QPushButton *m_put = nullptr;
    QPushButton *m_exportCsv = nullptr;
    QPushButton *m_exportChart = nullptr;
    QCheckBox *m_onReport = nullptr;

    std::unique_ptr<SweepResult> m_sweep;
    QThread *m_worker = nullptr;
    QTimer *m_progressTimer = nullptr;
    std::atomic<bool> m_cancelFlag { false };
    std::atomic<size_t> m_done { 0 };
    size_t m_total = 0;
    int m_solvedBox = 0;
    SolveOutcome m_solved;
};
