#include "DesignExplorer.h"

#include "ExplorerCharts.h"
#include "Prompts.h"
#include "SweepTableModel.h"

#include "NumberText.h"
#include "SweepCsv.h"
#include "SweepReport.h"
#include "UserTexts.h"
#include "Validation.h"

#include <QChart>
#include <QChartView>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSaveFile>
#include <QSpinBox>
#include <QSplitter>
#include <QSvgGenerator>
#include <QTabWidget>
#include <QTableView>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>

namespace {
const char *const kTitle = "Design Explorer";
constexpr int kChartTab = 0;
constexpr int kHeatMapTab = 2;

QString qText(const std::string &text)
{
    return QString::fromStdString(text);
}

// A number typed into a range field, read by the rules of the input boxes.
bool readNumber(const QLineEdit *field, double &value)
{
    const std::string text = trimBlanks(field->text().toStdString());
    if (text.empty() || !isRecognisedNumber(text))
        return false;
    value = leadingNumber(text);
    return true;
}

QString withSuffix(QString path, const QString &suffix)
{
    if (QFileInfo(path).suffix().isEmpty())
        path += QLatin1Char('.') + suffix;
    return path;
}
} // namespace

DesignExplorer::DesignExplorer(Prompts &prompts, ExplorerHooks hooks, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_prompts(prompts)
    , m_hooks(std::move(hooks))
{
    setObjectName(QStringLiteral("frmDesignExplorer"));
    setWindowTitle(QLatin1String(kTitle));
    auto *layout = new QVBoxLayout(this);
    auto *ranges = new QGroupBox(QStringLiteral("Sweep"), this);
    auto *rangeLayout = new QVBoxLayout(ranges);
    rangeLayout->addWidget(buildAxisRow(m_axes[0], 1, kMaxSweepPoints));
    m_twoWay = new QCheckBox(QStringLiteral("&Second input (two-way table)"), ranges);
    m_twoWay->setObjectName(QStringLiteral("twoWay"));
    rangeLayout->addWidget(m_twoWay);
    QWidget *secondRow = buildAxisRow(m_axes[1], 2, kMaxSecondInputPoints);
    secondRow->setEnabled(false);
    rangeLayout->addWidget(secondRow);
    connect(m_twoWay, &QCheckBox::toggled, secondRow, &QWidget::setEnabled);

    auto *runRow = new QHBoxLayout;
    m_run = new QPushButton(QStringLiteral("&Run"), ranges);
    m_cancel = new QPushButton(QStringLiteral("Cancel"), ranges);
    m_cancel->setEnabled(false);
    m_progress = new QProgressBar(ranges);
    runRow->addWidget(m_run);
    runRow->addWidget(m_cancel);
    runRow->addWidget(m_progress, 1);
    rangeLayout->addLayout(runRow);
    layout->addWidget(ranges);
    layout->addWidget(buildSolveRow());
    layout->addWidget(buildViews(), 1);

    m_progressTimer = new QTimer(this);
    m_progressTimer->setInterval(100);
    connect(m_progressTimer, &QTimer::timeout, this,
            [this] { m_progress->setValue(static_cast<int>(m_done.load())); });
    connect(m_run, &QPushButton::clicked, this, &DesignExplorer::startSweep);
    connect(m_cancel, &QPushButton::clicked, this, &DesignExplorer::cancelSweep);
    resize(980, 760);
}

DesignExplorer::~DesignExplorer()
{
    if (m_worker) {
        m_cancelFlag = true;
        m_worker->wait();
    }
}

// The controls of axis `number` (1 or 2) are named "input1", "from1", "to1", "points1" and
// "spacing1" (or ...2), for the tests.
void DesignExplorer::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !m_worker)
        refreshChoices();
}

void DesignExplorer::closeEvent(QCloseEvent *event)
{
    cancelSweep();
    QWidget::closeEvent(event);
}

QWidget *DesignExplorer::buildAxisRow(AxisControls &controls, int number, int maxPoints)
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    controls.input = new QComboBox(row);
    controls.input->setMinimumContentsLength(36);
    controls.from = new QLineEdit(row);
    controls.to = new QLineEdit(row);
    controls.points = new QSpinBox(row);
    controls.points->setRange(2, maxPoints);
    controls.points->setValue(std::min(maxPoints, 101));
    controls.spacing = new QComboBox(row);
    controls.spacing->addItems({ QStringLiteral("Linear"), QStringLiteral("Logarithmic") });
    const QString suffix = QString::number(number);
    controls.input->setObjectName(QStringLiteral("input") + suffix);
    controls.from->setObjectName(QStringLiteral("from") + suffix);
    controls.to->setObjectName(QStringLiteral("to") + suffix);
    controls.points->setObjectName(QStringLiteral("points") + suffix);
    controls.spacing->setObjectName(QStringLiteral("spacing") + suffix);
    layout->addWidget(new QLabel(QStringLiteral("Input"), row));
    layout->addWidget(controls.input, 1);
    layout->addWidget(new QLabel(QStringLiteral("from"), row));
    layout->addWidget(controls.from);
    layout->addWidget(new QLabel(QStringLiteral("to"), row));
    layout->addWidget(controls.to);
    layout->addWidget(new QLabel(QStringLiteral("points"), row));
    layout->addWidget(controls.points);
    layout->addWidget(controls.spacing);
    return row;
}

QWidget *DesignExplorer::buildSolveRow()
{
    auto *box = new QGroupBox(
            QStringLiteral("Solve for a target (varies the first input over its range)"), this);
    auto *layout = new QGridLayout(box);
    m_solveResult = new QComboBox(box);
    m_target = new QLineEdit(box);
    m_solveResult->setObjectName(QStringLiteral("solveResult"));
    m_target->setObjectName(QStringLiteral("target"));
    auto *solveButton = new QPushButton(QStringLiteral("S&olve"), box);
    m_put = new QPushButton(QStringLiteral("&Put this value into the input box"), box);
    m_put->setEnabled(false);
    m_solveMessage = new QLabel(box);
    m_solveMessage->setWordWrap(true);
    m_solveMessage->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(new QLabel(QStringLiteral("Result"), box), 0, 0);
    layout->addWidget(m_solveResult, 0, 1);
    layout->addWidget(new QLabel(QStringLiteral("target"), box), 0, 2);
    layout->addWidget(m_target, 0, 3);
    layout->addWidget(solveButton, 0, 4);
    layout->addWidget(m_solveMessage, 1, 0, 1, 4);
    layout->addWidget(m_put, 1, 4);
    layout->setColumnStretch(1, 1);
    connect(solveButton, &QPushButton::clicked, this, &DesignExplorer::solve);
    connect(m_put, &QPushButton::clicked, this, &DesignExplorer::putSolvedValue);
    return box;
}

QWidget *DesignExplorer::buildViews()
{
    auto *splitter = new QSplitter(this);
    auto *side = new QWidget(splitter);
    auto *sideLayout = new QVBoxLayout(side);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->addWidget(new QLabel(QStringLiteral("Results on the chart:"), side));
    m_chartResults = new QListWidget(side);
    sideLayout->addWidget(m_chartResults, 1);
    sideLayout->addWidget(new QLabel(QStringLiteral("Result of the heat map:"), side));
    m_mapResult = new QComboBox(side);
    sideLayout->addWidget(m_mapResult);
    m_exportCsv = new QPushButton(QStringLiteral("Export &CSV..."), side);
    m_exportChart = new QPushButton(QStringLiteral("Export C&hart..."), side);
    m_exportCsv->setEnabled(false);
    m_exportChart->setEnabled(false);
    sideLayout->addWidget(m_exportCsv);
    sideLayout->addWidget(m_exportChart);
    m_onReport = new QCheckBox(QStringLiteral("Add the sweep to the printed &report"), side);
    m_onReport->setObjectName(QStringLiteral("onReport"));
    sideLayout->addWidget(m_onReport);
    connect(m_onReport, &QCheckBox::toggled, this, &DesignExplorer::updateReportPage);

    m_views = new QTabWidget(splitter);
    m_chart = new QChartView(new QChart, m_views);
    m_chart->setRenderHint(QPainter::Antialiasing);
    m_views->addTab(m_chart, QStringLiteral("Chart"));
    m_tableView = new QTableView(m_views);
    m_table = new SweepTableModel(m_tableView);
    m_tableView->setModel(m_table);
    m_tableView->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    m_tableView->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    m_views->addTab(m_tableView, QStringLiteral("Table"));
    m_heatMap = new HeatMapView(m_views);
    m_views->addTab(m_heatMap, QStringLiteral("Heat map"));
    splitter->setStretchFactor(1, 1);

    connect(m_chartResults, &QListWidget::itemChanged, this, &DesignExplorer::redrawChart);
    connect(m_mapResult, &QComboBox::currentIndexChanged, this, &DesignExplorer::redrawHeatMap);
    connect(m_exportCsv, &QPushButton::clicked, this, &DesignExplorer::exportCsv);
    connect(m_exportChart, &QPushButton::clicked, this, &DesignExplorer::exportChart);
    return splitter;
}

void DesignExplorer::refreshChoices()
{
    const SwaleProject project = m_hooks.project();
    const int method = GetSolutionMethod(project);
    const int flow = GetChannelFlowOption(project);
    for (AxisControls &controls : m_axes) {
        const int chosen = controls.input->currentData().toInt();
        controls.input->clear();
        for (int box = 1; box <= kInputCount; ++box) {
            if (isInputUsed(box, method, flow))
                controls.input->addItem(qText(inputCaptionWithSymbol(box)), box);
        }
        const int again = controls.input->findData(chosen);
        controls.input->setCurrentIndex(again >= 0 ? again : 0);
    }
    if (m_axes[1].input->currentIndex() == m_axes[0].input->currentIndex())
        m_axes[1].input->setCurrentIndex(m_axes[1].input->count() > 1 ? 1 : 0);
    const QString chosenResult = m_solveResult->currentData().toString();
    m_solveResult->clear();
    for (const ResultColumn &column : resultColumns(method, flow))
        m_solveResult->addItem(qText(column.caption), qText(column.key));
    const int again = m_solveResult->findData(chosenResult);
    m_solveResult->setCurrentIndex(again >= 0 ? again : 0);
}

bool DesignExplorer::readAxis(const AxisControls &controls, SweepAxis &axis)
{
    axis.box = controls.input->currentData().toInt();
    axis.points = controls.points->value();
    axis.spacing = controls.spacing->currentIndex() == 1 ? Spacing::Logarithmic : Spacing::Linear;
    if (!readNumber(controls.from, axis.from) || !readNumber(controls.to, axis.to)) {
        refuse(QStringLiteral("The range of %1 must be two numbers.")
                       .arg(controls.input->currentText()));
        return false;
    }
    return true;
}

void DesignExplorer::refuse(const QString &reason)
{
    QString sentence = reason;
    if (!sentence.isEmpty())
        sentence[0] = sentence[0].toUpper();
    if (!sentence.endsWith(QLatin1Char('.')))
        sentence += QLatin1Char('.');
    m_prompts.ShowErrorMessage(sentence, MessageStyle::Exclamation, QLatin1String(kErrorTitle));
}

bool DesignExplorer::startSweep()
{
    if (m_worker)
        return false;
    std::vector<SweepAxis> axes(m_twoWay->isChecked() ? 2 : 1);
    for (size_t a = 0; a < axes.size(); ++a) {
        if (!readAxis(m_axes[a], axes[a]))
            return false;
    }
    const SwaleProject project = m_hooks.project();
    const std::string reason = checkSweep(axes, project);
    if (!reason.empty()) {
        refuse(qText(reason));
        return false;
    }
    m_total = static_cast<size_t>(axes[0].points) * (axes.size() == 2 ? axes[1].points : 1);
    m_cancelFlag = false;
    m_done = 0;
    m_progress->setRange(0, static_cast<int>(m_total));
    m_progress->setValue(0);
    m_run->setEnabled(false);
    m_cancel->setEnabled(true);
    auto result = std::make_shared<SweepResult>();
    m_worker = QThread::create([this, project, axes, result] {
        *result = runSweep(project, axes, &m_cancelFlag,
                           [this](size_t done, size_t) { m_done = done; });
    });
    connect(m_worker, &QThread::finished, this, [this, result] { onSweepDone(result); });
    m_worker->start();
    m_progressTimer->start();
    return true;
}

void DesignExplorer::cancelSweep()
{
    m_cancelFlag = true;
}

void DesignExplorer::onSweepDone(std::shared_ptr<SweepResult> result)
{
    m_progressTimer->stop();
    m_worker->deleteLater();
    m_worker = nullptr;
    m_run->setEnabled(true);
    m_cancel->setEnabled(false);
    m_progress->setValue(static_cast<int>(m_done.load()));
    m_sweep = std::make_unique<SweepResult>(std::move(*result));
    showSweep();
    emit sweepFinished();
}

void DesignExplorer::showSweep()
{
    m_table->setSweep(m_sweep.get());
    // Columns as wide as their captions: measuring 100,000 rows would stall the window.
    const QFontMetrics metrics(m_tableView->horizontalHeader()->font());
    for (int c = 0; c < m_table->columnCount(); ++c) {
        const QString caption = m_table->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
        m_tableView->setColumnWidth(c, std::min(360, metrics.horizontalAdvance(caption) + 24));
    }
    const QSignalBlocker blockList(m_chartResults);
    const QSignalBlocker blockMap(m_mapResult);
    m_chartResults->clear();
    m_mapResult->clear();
    for (size_t c = 0; c < m_sweep->columns.size(); ++c) {
        const ResultColumn &column = m_sweep->columns[c];
        auto *item = new QListWidgetItem(qText(column.caption), m_chartResults);
        item->setData(Qt::UserRole, static_cast<int>(c));
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(column.key == "d" ? Qt::Checked : Qt::Unchecked);
        m_mapResult->addItem(qText(column.caption), static_cast<int>(c));
    }
    m_mapResult->setCurrentIndex(std::max(
            0, m_mapResult->findText(QStringLiteral("Normal depth"), Qt::MatchStartsWith)));
    const bool twoWay = m_sweep->axes.size() == 2;
    m_exportCsv->setEnabled(true);
    m_exportChart->setEnabled(!twoWay);
    m_views->setTabEnabled(kChartTab, !twoWay);
    m_views->setTabEnabled(kHeatMapTab, twoWay);
    m_views->setCurrentIndex(twoWay ? kHeatMapTab : kChartTab);
    redrawChart();
    redrawHeatMap();
}

void DesignExplorer::redrawChart()
{
    if (!m_sweep || m_sweep->axes.size() != 1)
        return;
    std::vector<int> columns;
    for (int i = 0; i < m_chartResults->count(); ++i) {
        const QListWidgetItem *item = m_chartResults->item(i);
        if (item->checkState() == Qt::Checked)
            columns.push_back(item->data(Qt::UserRole).toInt());
    }
    QChart *old = m_chart->chart();
    m_chart->setChart(buildSweepChart(*m_sweep, columns));
    delete old;
    updateReportPage();
}

void DesignExplorer::redrawHeatMap()
{
    m_heatMap->setSweep(m_sweep.get(), m_mapResult->currentData().toInt());
    updateReportPage();
}

int DesignExplorer::reportColumn() const
{
    if (!m_sweep || m_sweep->axes.size() == 2)
        return m_mapResult->currentData().toInt();
    for (int i = 0; i < m_chartResults->count(); ++i) {
        const QListWidgetItem *item = m_chartResults->item(i);
        if (item->checkState() == Qt::Checked)
            return item->data(Qt::UserRole).toInt();
    }
    return -1;
}

void DesignExplorer::updateReportPage()
{
    if (!m_hooks.reportSections)
        return;
    std::vector<ReportSection> sections;
    if (m_onReport->isChecked() && m_sweep)
        sections.push_back(sweepReportSection(*m_sweep, reportColumn(),
                                              m_solved.message.empty() ? nullptr : &m_solved));
    m_hooks.reportSections(std::move(sections));
}

void DesignExplorer::solve()
{
    m_put->setEnabled(false);
    SolveRequest request;
    request.resultKey = m_solveResult->currentData().toString().toStdString();
    if (!readAxis(m_axes[0], request.vary))
        return;
    request.vary.points = std::min(request.vary.points, kDefaultSolvePoints * 10);
    double target = 0;
    if (!readNumber(m_target, target)) {
        refuse(QStringLiteral("The target must be a number."));
        return;
    }
    request.target = target;
    const SwaleProject project = m_hooks.project();
    const std::string reason = checkSweep({ request.vary }, project);
    if (!reason.empty()) {
        refuse(qText(reason));
        return;
    }
    m_solved = solveForTarget(project, request);
    m_solvedBox = request.vary.box;
    QString message = qText(m_solved.message);
    message[0] = message[0].toUpper();
    m_solveMessage->setText(message + QLatin1Char('.'));
    m_put->setEnabled(m_solved.reached);
    updateReportPage();
}

void DesignExplorer::putSolvedValue()
{
    if (m_solved.reached && m_solvedBox > 0)
        m_hooks.putValue(m_solvedBox, qText(pointText(m_solved.input)));
}

QString DesignExplorer::askExportPath(const QStringList &filters, const QString &suffix)
{
    FileDialogRequest request;
    request.initialFolder = m_hooks.dataFolder();
    request.filters = filters;
    request.defaultSuffix = suffix;
    request.flags = FileDialogRequest::OverwritePrompt | FileDialogRequest::PathMustExist;
    const QString path = m_prompts.askSaveFileName(request);
    return path.isEmpty() ? path : withSuffix(path, suffix);
}

bool DesignExplorer::exportCsv()
{
    if (!m_sweep)
        return false;
    const QString path = askExportPath(
            { QStringLiteral("CSV files (*.csv)"), QStringLiteral("All Files (*.*)") },
            QStringLiteral("csv"));
    if (path.isEmpty())
        return false;
    QSaveFile file(path);
    const std::string csv = sweepCsv(*m_sweep, CsvHeader::Captions);
    if (!file.open(QIODevice::WriteOnly)
        || file.write(csv.data(), static_cast<qint64>(csv.size()))
                != static_cast<qint64>(csv.size())
        || !file.commit()) {
        m_prompts.ShowErrorMessage(QStringLiteral("Error writing to file:\r") + file.fileName(),
                                   MessageStyle::Exclamation, QLatin1String(kErrorTitle));
        return false;
    }
    return true;
}

bool DesignExplorer::exportChart()
{
    if (!m_sweep)
        return false;
    const QString path = askExportPath(
            { QStringLiteral("PNG image (*.png)"), QStringLiteral("SVG image (*.svg)") },
            QStringLiteral("png"));
    if (path.isEmpty())
        return false;
    bool written = false;
    if (QFileInfo(path).suffix().compare(QLatin1String("svg"), Qt::CaseInsensitive) == 0) {
        QSvgGenerator svg;
        svg.setFileName(path);
        svg.setSize(m_chart->size());
        svg.setViewBox(m_chart->rect());
        svg.setTitle(QLatin1String(kTitle));
        QPainter painter;
        written = painter.begin(&svg);
        if (written) {
            m_chart->render(&painter);
            written = painter.end();
        }
        written = written && QFileInfo(path).size() > 0;
    } else {
        written = m_chart->grab().save(path, "PNG");
    }
    if (!written)
        m_prompts.ShowErrorMessage(QStringLiteral("Error writing to file:\r") + path,
                                   MessageStyle::Exclamation, QLatin1String(kErrorTitle));
    return written;
}
