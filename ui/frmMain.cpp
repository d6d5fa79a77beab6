#include "frmMain.h"

#include "DesignExplorer.h"

#include "Calculate.h"
#include "ChannelPane.h"
#include "ChannelPaneDock.h"
#include "ChecksPanel.h"
#include "HelpImagePanel.h"
#include "HelpViewer.h"
#include "InputPage.h"
#include "KeyboardNavigator.h"
#include "OptionGroup.h"
#include "PrintRoutine.h"
#include "Prompts.h"
#include "RdcGridA.h"
#include "RecentFilesMenu.h"
#include "RecoveryStore.h"
#include "Results.h"
#include "ResultsPage.h"
#include "ScrollingPage.h"
#include "Version.h"
#include "WindowPlacementFiles.h"
#include "ctrlPictureViewer.h"
#include "frmAbout.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QResizeEvent>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>

namespace {
constexpr int kInputTab = 0;
constexpr int kResultsTab = 1;
// The window's designed size, used when no settings file gives one.
constexpr QSize kDesignedSize(960, 760);
} // namespace

frmMain::frmMain(PrintPrompts &prompts, const GlobalData &folders, QWidget *parent)
    : QMainWindow(parent)
    , m_prompts(prompts)
    , m_folders(folders)
{
    setObjectName(QStringLiteral("frmMain"));
    // The normal-depth search starts with a tolerance of 1E-07 and at most 10000 iterations
    // (the defaults of CalcSettings); the folders were worked out before the window was made.
    m_calcSettings = CalcSettings {};
    m_versionText = ::versionText(programRevision());
    m_printRoutine = std::make_unique<PrintRoutine>(
            prompts, QString::fromStdString(m_folders.programFolder));
    m_menus = buildMainMenus(*this);
    m_recentFiles
            = std::make_unique<RecentFilesMenu>(m_menus.mnuFile_Recent, m_menus.mnuFile_Separator3);
    m_recovery = std::make_unique<RecoveryStore>(*this, prompts, m_folders);
    buildPages();
    buildChannelPane();
    connectCommands();
    setCaption(QStringLiteral("<untitled>"));
    m_helpImage->load();
    // The pages' scroll bars wait until both pages were laid out for the first time.
    for (ScrollingPage *page : picStaionaryWindow)
        page->setArrangeSuspended(true);
    m_inputPage->solutionMethodGroup()->setChosen(1);
    m_inputPage->channelFlowGroup()->setChosen(1);
    SSTab1->setCurrentIndex(kInputTab);
    resize(kDesignedSize);
    if (WindowPlacementFiles::restore(*this, m_folders))
        setWindowState(windowState() | Qt::WindowMaximized);
    m_recentFiles->load(QString::fromStdString(m_folders.settingsFolder));
    setResultsShown(false);
    m_dataChanged = false;
    picStaionaryWindow[0]->scrollToOrigin();
    for (ScrollingPage *page : picStaionaryWindow)
        page->setArrangeSuspended(false);
    relayoutPages();
    // Autosaves of runs that did not end cleanly are offered once the window is up.
    QTimer::singleShot(0, this, [this] { m_recovery->offerRecoveredFiles(); });
}

frmMain::~frmMain() = default;

void frmMain::buildPages()
{
    cmdCalculate = new QPushButton(QStringLiteral("Calculate"), this);
    cmdCalculate->setObjectName(QStringLiteral("cmdCalculate"));
    cmdCalculate->setMinimumHeight(32);
    cmdCalculate->setIcon(QIcon(QStringLiteral(":/icons/calculate.svg")));
    cmdCalculate->setToolTip(QStringLiteral("Calculate (F9)"));
    // F9 calculates wherever the focus is in the window, as in a spreadsheet. The key belongs to
    // the application rather than the window: without a window manager the window is not made
    // active again after a dialog closes, yet it still receives the keys. Modal dialogs block it.
    auto *calculateKey = new QAction(this);
    calculateKey->setObjectName(QStringLiteral("calculateShortcut"));
    calculateKey->setShortcut(Qt::Key_F9);
    calculateKey->setShortcutContext(Qt::ApplicationShortcut);
    addAction(calculateKey);
    connect(calculateKey, &QAction::triggered, cmdCalculate, &QPushButton::click);
    m_menus.Toolbar1->addSeparator();
    m_menus.Toolbar1->addWidget(cmdCalculate);

    m_inputPage = new InputPage;
    m_resultsPage = new ResultsPage;
    ctrlPictureViewer1 = new ctrlPictureViewer;
    ctrlPictureViewer1->setObjectName(QStringLiteral("ctrlPictureViewer1"));
    m_helpImage = new HelpImagePanel(*ctrlPictureViewer1, m_folders, m_menus.mnuHelp_Image_Size,
                                     m_menus.mnuHelpImage_Image_Size, *m_menus.mnuHelpImage,
                                     *m_menus.mnuHelpImage_Copy, this);
    picStaionaryWindow[0] = new ScrollingPage(m_inputPage, ScrollingPage::Behaviour::KeepsItsPlace);
    picStaionaryWindow[1] = new ScrollingPage(m_resultsPage, ScrollingPage::Behaviour::OpensAtTop);
    for (int page = 0; page < 2; ++page)
        picStaionaryWindow[static_cast<size_t>(page)]->nameControls(page);
    m_keyboard = new KeyboardNavigator(m_inputPage->controls(), m_resultsPage->controls(), this);
    followFocusOnPages();
    SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    SSTab1->setDocumentMode(true);
    SSTab1->addTab(picStaionaryWindow[0], QStringLiteral("Input Data"));
    SSTab1->addTab(picStaionaryWindow[1], QStringLiteral("Results"));
    SSTab1->addTab(ctrlPictureViewer1, QStringLiteral("Help"));
    setCentralWidget(SSTab1);
    connect(SSTab1, &QTabWidget::currentChanged, this, &frmMain::onTabChanged);
}

QWidget *frmMain::tabPanel(int tab) const
{
    return SSTab1->widget(tab);
}

// The tab widget hides the previous panel and shows the new one; a panel that was never sized
// to the tab stays hidden until the window has room for it.
void frmMain::onTabChanged(int tab)
{
    if (tab >= 0 && !m_panelShown[static_cast<size_t>(tab)])
        tabPanel(tab)->hide();
}

void frmMain::fitPanelsToTabArea(const QSize &area)
{
    const bool fits = area.width() >= 1 && area.height() >= 1;
    m_panelShown.fill(fits);
    for (int tab = 0; tab < SSTab1->count(); ++tab) {
        QWidget *panel = tabPanel(tab);
        if (!fits)
            panel->hide();
        else if (tab == SSTab1->currentIndex() && panel->isHidden())
            panel->show();
    }
}

// The layout has already given the tab control the client area below the toolbar; the panels
// get what the tab bar leaves of it. Each page's own resize then arranges its scroll bars.
void frmMain::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    if (isMinimized())
        return;
    const QSize tabArea = SSTab1->size();
    fitPanelsToTabArea(
            QSize(tabArea.width(), tabArea.height() - SSTab1->tabBar()->sizeHint().height()));
}

// Tabbing to a control below (or above) the viewport scrolls it into view.
void frmMain::followFocusOnPages()
{
    const InputPageControls input = m_inputPage->controls();
    for (int i = 1; i <= kInputCount; ++i)
        picStaionaryWindow[0]->followFocus(input.txtInput[static_cast<size_t>(i)]);
    for (QAbstractButton *option : input.optCalculate)
        if (option)
            picStaionaryWindow[0]->followFocus(option);
    for (QAbstractButton *option : input.optChannelFlow)
        if (option)
            picStaionaryWindow[0]->followFocus(option);
    picStaionaryWindow[0]->followFocus(input.grdRatingCurve);
    for (int i = 1; i <= kOutputCount; ++i)
        picStaionaryWindow[1]->followFocus(m_resultsPage->box(i));
}

void frmMain::connectCommands()
{
    const MainMenus &m = m_menus;
    connect(m.mnuFile_New, &QAction::triggered, this, &frmMain::newCommand);
    connect(m.mnuFile_Open, &QAction::triggered, this, [this] { OpenProjectCommand(OpenNormal); });
    connect(m.cmdFile_Example, &QAction::triggered, this,
            [this] { OpenProjectCommand(OpenExample); });
    connect(m.mnuFile_Save, &QAction::triggered, this, [this] { SaveProject(); });
    connect(m.mnuFile_SaveAs, &QAction::triggered, this, [this] { SaveProjectAs(); });
    connect(m.mnuFile_Print, &QAction::triggered, this, &frmMain::printCommand);
    connect(m.mnuFile_PrintSetup, &QAction::triggered, this, &frmMain::pageSetupCommand);
    connect(m.mnuFile_ExportPdf, &QAction::triggered, this, &frmMain::exportPdfCommand);
    connect(m.mnuFile_PrintPreview, &QAction::triggered, this, &frmMain::printPreviewCommand);
    connect(m.mnuFile_Exit, &QAction::triggered, this, &QWidget::close);
    for (int i = 1; i <= 5; ++i) {
        connect(m.mnuFile_Recent[static_cast<size_t>(i)], &QAction::triggered, this,
                [this, i] { recentFileCommand(i); });
    }
    // Opening the File menu offers Print exactly when the results are those of the inputs.
    connect(m.mnuFile, &QMenu::aboutToShow, this, [this] {
        m_menus.mnuFile_Print->setEnabled(m_resultsShown);
        m_menus.mnuFile_ExportPdf->setEnabled(m_resultsShown);
        m_menus.mnuFile_PrintPreview->setEnabled(m_resultsShown);
    });
    connect(m.toolbarButtons[1], &QAction::triggered, m.mnuFile_New, &QAction::trigger);
    connect(m.toolbarButtons[2], &QAction::triggered, m.mnuFile_Open, &QAction::trigger);
    connect(m.toolbarButtons[3], &QAction::triggered, m.mnuFile_Save, &QAction::trigger);
    connect(m.toolbarButtons[4], &QAction::triggered, this, &frmMain::printCommand);
    connect(m.mnuHelp_About, &QAction::triggered, this, &frmMain::showAbout);
    for (QAction *topic : m.helpTopics)
        connect(topic, &QAction::triggered, this,
                [this, topic] { showHelpFile(topic->data().toString()); });
    connect(m.mnuView_DesignExplorer, &QAction::triggered, this, &frmMain::showDesignExplorer);

    connect(cmdCalculate, &QPushButton::clicked, this, &frmMain::calculateCommand);
    connect(m_inputPage, &InputPage::inputEdited, this, &frmMain::onInputEdited);
    connect(m_inputPage, &InputPage::ratingCurveEdited, this, &frmMain::onRatingCurveEdited);
    connect(m_inputPage, &InputPage::solutionMethodClicked, this,
            &frmMain::onSolutionMethodClicked);
    connect(m_inputPage, &InputPage::channelFlowClicked, this, &frmMain::onChannelFlowClicked);
    connect(m_inputPage, &InputPage::helpRequested, this, &frmMain::showHelpTopic);
}

tvrEditBox *frmMain::txtInput(int index) const
{
    return m_inputPage->box(index);
}

tvrEditBox *frmMain::txtOutput(int index) const
{
    return m_resultsPage->box(index);
}

SwaleProject frmMain::currentProject() const
{
    SwaleProject project;
    m_inputPage->readInto(project);
    project.resultsShown = m_resultsShown;
    project.outputText = m_resultsPage->texts();
    return project;
}

void frmMain::setDataChanged(bool changed)
{
    m_dataChanged = changed;
    m_recovery->documentChanged(changed);
}

void frmMain::setResultsShown(bool shown)
{
    m_resultsShown = shown;
    m_menus.toolbarPrint()->setEnabled(shown);
}

void frmMain::setCaption(const QString &documentName)
{
    m_documentName = documentName;
    setWindowTitle(QLatin1String(kProgramTitle) + QStringLiteral(" - ") + documentName);
}

void frmMain::ClearResults()
{
    setResultsShown(false);
    m_resultsPage->clearBoxes();
    channelPane()->markInputsChanged();
    m_checks->markStale();
}

// An edit of the job name, engineer or date (boxes 1 to 3) keeps the results: they do not
// enter the calculation. Any other edit makes the results stale.
void frmMain::onInputEdited(int index)
{
    if (index >= 4 && m_resultsShown)
        ClearResults();
    setDataChanged(true);
}

void frmMain::onRatingCurveEdited()
{
    if (m_resultsShown)
        ClearResults();
    setDataChanged(true);
}

void frmMain::onSolutionMethodClicked(int)
{
    if (m_resultsShown)
        ClearResults();
    setDataChanged(true);
    relayoutPages();
}

void frmMain::onChannelFlowClicked(int)
{
    if (m_resultsShown)
        ClearResults();
    setDataChanged(true);
    relayoutPages();
}

void frmMain::relayoutPages()
{
    m_inputPage->LayoutInputPage();
    m_resultsPage->LayoutResultsPage(m_inputPage->GetSolutionMethod(),
                                     m_inputPage->GetChannelFlowOption());
    for (ScrollingPage *page : picStaionaryWindow)
        page->ArrangeScrollBars();
}

void frmMain::calculateCommand()
{
    SwaleProject project;
    m_inputPage->readInto(project);
    const CalculationOutcome outcome = Calculate(project, m_calcSettings);
    switch (outcome.status) {
    case CalculationOutcome::Status::Invalid:
        showValidationFault(outcome.fault);
        break;
    case CalculationOutcome::Status::Failed:
        for (const std::string &message : outcome.failureMessages)
            m_prompts.ShowErrorMessage(QString::fromStdString(message), MessageStyle::Critical,
                                       QLatin1String(kErrorTitle));
        break;
    case CalculationOutcome::Status::Ok:
        showResults(outcome);
        break;
    }
    showChannelOf(outcome);
}

void frmMain::showInputPage()
{
    if (SSTab1->currentIndex() != kInputTab)
        SSTab1->setCurrentIndex(kInputTab);
}

// The steps the user sees after a fault: the Input Data page, the offending cell made current,
// the message, then the caret on the offending box or in the grid.
void frmMain::showValidationFault(const ValidationFault &fault)
{
    showInputPage();
    if (fault.place == FaultPlace::GridCell)
        m_inputPage->selectRatingCurveCell(fault.row, fault.col);
    m_prompts.ShowErrorMessage(QString::fromStdString(fault.message), MessageStyle::Exclamation,
                               QLatin1String(kErrorTitle));
    // Under a desktop the window gets the focus back only after the message closed, and that
    // late focus leaves the page where it is: the page goes to the box itself.
    if (fault.place == FaultPlace::InputBox) {
        m_inputPage->focusInput(fault.input);
        picStaionaryWindow[0]->scrollIntoView(m_inputPage->box(fault.input));
    } else if (fault.place == FaultPlace::GridCell) {
        m_inputPage->focusRatingCurve();
        picStaionaryWindow[0]->scrollIntoView(m_inputPage->ratingCurveGrid());
    }
}

void frmMain::showResults(const CalculationOutcome &outcome)
{
    m_resultsPage->WriteResults(outcome.results);
    setResultsShown(true);
    if (SSTab1->currentIndex() != kResultsTab)
        SSTab1->setCurrentIndex(kResultsTab);
    picStaionaryWindow[1]->ArrangeScrollBars(); // the results open at their top
    setDataChanged(true);
    CopyResultsToClipboard();
}

void frmMain::CopyResultsToClipboard()
{
    const std::string text = ::CopyResultsToClipboard(m_resultsPage->texts());
    QClipboard *clipboard = QApplication::clipboard();
    clipboard->clear();
    clipboard->setText(QString::fromStdString(text));
}

// Print, Export PDF and Print Preview report the document as the window shows it; they are
// offered only while the results belong to the inputs.
void frmMain::printCommand()
{
    if (m_resultsShown)
        m_printRoutine->printReport(currentProject(), reportSource());
}

ReportSource frmMain::reportSource() const
{
    if (m_currentFilePath.isEmpty() && !m_examplePath.isEmpty())
        return ReportSource::example(m_examplePath);
    return ReportSource(m_currentFilePath);
}

void frmMain::reportPdfWritten(const QString &path)
{
    if (!path.isEmpty())
        statusBar()->showMessage(QStringLiteral("Report written to ")
                                 + QDir::toNativeSeparators(path));
}

void frmMain::pageSetupCommand()
{
    m_printRoutine->pageSetup();
}

void frmMain::exportPdfCommand()
{
    QString written;
    if (m_resultsShown
        && m_printRoutine->exportPdf(currentProject(), reportSource(), GetDataFolder(), &written))
        reportPdfWritten(written);
}

void frmMain::printPreviewCommand()
{
    if (m_resultsShown)
        reportPdfWritten(
                m_printRoutine->printPreview(currentProject(), reportSource(), GetDataFolder()));
}

void frmMain::showAbout()
{
    frmAbout about(m_versionText, this);
    about.exec();
}

void frmMain::showDesignExplorer()
{
    if (!m_designExplorer) {
        ExplorerHooks hooks;
        hooks.project = [this] { return currentProject(); };
        // Typing into the box runs the edit path of the window: results cleared, data changed.
        hooks.putValue = [this](int box, const QString &text) { txtInput(box)->setText(text); };
        hooks.dataFolder = [this] { return GetDataFolder(); };
        hooks.reportSections = [this](std::vector<ReportSection> sections) {
            m_printRoutine->setExtraSections(std::move(sections));
        };
        m_designExplorer = new DesignExplorer(m_prompts, std::move(hooks), this);
    }
    m_designExplorer->refreshChoices();
    m_designExplorer->show();
    m_designExplorer->raise();
    m_designExplorer->activateWindow();
}

void frmMain::showHelpTopic(int topic)
{
    showHelpFile(QStringLiteral("%1.html").arg(topic));
}

void frmMain::showHelpFile(const QString &file)
{
    const QString path = helpTopicPath(QString::fromStdString(m_folders.programFolder), file);
    if (path.isEmpty())
        return;
    auto *viewer = findChild<HelpViewer *>(QString(), Qt::FindDirectChildrenOnly);
    if (!viewer)
        viewer = new HelpViewer(this);
    viewer->showTopic(path);
    viewer->show();
    viewer->raise();
}

void frmMain::closeEvent(QCloseEvent *event)
{
    if (!settleUnsavedChanges()) {
        event->ignore();
        return;
    }
    WindowPlacementFiles::save(*this, m_folders);
    m_recentFiles->save(QString::fromStdString(m_folders.settingsFolder));
    m_recovery->endCleanly();
    event->accept();
}
