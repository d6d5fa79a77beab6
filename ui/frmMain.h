#pragma once

#include "CalcContext.h"
#include "GlobalData.h"
#include "MainMenus.h"
#include "SwaleProject.h"
#include "UserTexts.h"

#include <QMainWindow>

#include <array>
#include <memory>

class ChannelPane;
class ChannelPaneDock;
class ChecksPanel;
class DesignExplorer;
class HelpImagePanel;
class InputPage;
class KeyboardNavigator;
class PrintPrompts;
class PrintRoutine;
class QPushButton;
class QTabWidget;
class RecentFilesMenu;
class RecoveryStore;
struct ReportSource;
class ResultsPage;
class ScrollingPage;
class ctrlPictureViewer;
struct CalculationOutcome;
struct ValidationFault;
class tvrEditBox;

// Open modes of GetFileOpenName, OpenProjectCommand and OpenDataFile.
enum OpenMode { OpenNormal = 1, OpenExample = 2 };

// The main window: it owns the one open project (the document), held in the controls of the
// Input Data and Results pages, with its file path, its data folder and the data changed and
// results valid flags. It carries the file commands, the Calculate command and the unsaved-data
// question; every message and dialog, the print commands' included, goes through the prompts it
// is given.
class frmMain : public QMainWindow
{
    Q_OBJECT

public:
    frmMain(PrintPrompts &prompts, const GlobalData &folders, QWidget *parent = nullptr);
    ~frmMain() override;

    // --- Controls, for the pages' owner and the tests ------------------------------------
    InputPage *inputPage() const { return m_inputPage; }
    ResultsPage *resultsPage() const { return m_resultsPage; }
    tvrEditBox *txtInput(int index) const;
    tvrEditBox *txtOutput(int index) const;
    QTabWidget *tabs() const { return SSTab1; }
    ScrollingPage *page(int index) const { return picStaionaryWindow[static_cast<size_t>(index)]; }
    HelpImagePanel *helpImage() const { return m_helpImage; }
    QPushButton *calculateButton() const { return cmdCalculate; }
    const MainMenus &menus() const { return m_menus; }
    ChannelPane *channelPane() const;
    ChecksPanel *checksPanel() const { return m_checks; }
    DesignExplorer *designExplorer() const { return m_designExplorer; }
    QString versionText() const { return m_versionText; }
    // Whether tab `tab`'s panel may be shown: set once the panels were sized to the tab.
    bool isPanelShown(int tab) const { return m_panelShown[static_cast<size_t>(tab)]; }

    // --- Document state -----------------------------------------------------------------
    QString currentFilePath() const { return m_currentFilePath; }
    QString currentDataFolder() const { return m_currentDataFolder; }
    bool isDataChanged() const { return m_dataChanged; }
    bool resultsShown() const { return m_resultsShown; }
    // The document as the controls hold it.
    SwaleProject currentProject() const;
    // The name the caption gives the document: its file name, "<untitled>" or an example's.
    QString documentName() const { return m_documentName; }
    // The autosaves and recovery copies of the document.
    RecoveryStore &recovery() const { return *m_recovery; }
    // Opens the recovery file `path` of the document `name` untitled and changed, so that
    // Save asks for a name; the caption says it was recovered.
    bool openRecoveredProject(const QString &path, const QString &name);

    // --- Procedures of the window ---------------------------------------------------------
    void ClearProject();
    int AskToSaveChanges();
    bool SaveProject();
    bool SaveProjectAs();
    QString GetFileSaveName();
    QString GetFileOpenName(int mode);
    void OpenProjectCommand(int mode);
    bool OpenDataFile(const QString &path, int mode);
    bool WriteDataFile(const QString &path);
    QString GetDataFolder();
    void ClearResults();
    void CopyResultsToClipboard();

public slots:
    void newCommand();
    void recentFileCommand(int index);
    void calculateCommand();
    void printCommand();
    void pageSetupCommand();
    void exportPdfCommand();
    void printPreviewCommand();
    void showAbout();
    // View > Design Explorer...: opens (or brings forward) the explorer on this document.
    void showDesignExplorer();
    void showHelpTopic(int topic);
    // Opens help topic `file` ("1.html") of the help folder; nothing happens when it is missing.
    void showHelpFile(const QString &file);

    // Sizes the tab panels to the tab's display area `area`; an empty area keeps them hidden.
    void fitPanelsToTabArea(const QSize &area);

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildPages();
    void connectCommands();
    void followFocusOnPages();
    // Asks the unsaved-data question when the data changed and saves on Yes. False when the
    // user cancels the command.
    bool settleUnsavedChanges();
    void setDataChanged(bool changed);
    void setResultsShown(bool shown);
    void setCaption(const QString &documentName);
    void adoptFileName(const QString &path);
    void reportSaveFailure(const char *text, const QString &path);
    void onInputEdited(int index);
    void onRatingCurveEdited();
    void onSolutionMethodClicked(int index);
    void onChannelFlowClicked(int index);
    void relayoutPages();
    void showValidationFault(const ValidationFault &fault);
    void showResults(const CalculationOutcome &outcome);
    // The channel pane and its checks (frmMainChecks.cpp).
    void buildChannelPane();
    void showChannelOf(const CalculationOutcome &outcome);
    // The document the report is of: the current file, or the example opened untitled.
    ReportSource reportSource() const;
    void reportPdfWritten(const QString &path);
    void showInputPage();
    QWidget *tabPanel(int tab) const;
    void onTabChanged(int tab);

    PrintPrompts &m_prompts;
    const GlobalData &m_folders;
    CalcSettings m_calcSettings;
    std::unique_ptr<PrintRoutine> m_printRoutine;
    QString m_versionText;

    MainMenus m_menus;
    std::unique_ptr<RecentFilesMenu> m_recentFiles;
    std::unique_ptr<RecoveryStore> m_recovery;
    std::unique_ptr<ChannelPaneDock> m_channelPane;
    ChecksPanel *m_checks = nullptr; // in the channel pane, below the drawings
    QTabWidget *SSTab1 = nullptr;
    std::array<ScrollingPage *, 2> picStaionaryWindow {}; // page 0 Input Data, page 1 Results
    InputPage *m_inputPage = nullptr;
    ResultsPage *m_resultsPage = nullptr;
    ctrlPictureViewer *ctrlPictureViewer1 = nullptr;
    HelpImagePanel *m_helpImage = nullptr;
    KeyboardNavigator *m_keyboard = nullptr;
    QPushButton *cmdCalculate = nullptr;
    DesignExplorer *m_designExplorer = nullptr; // made on first use, kept while the window lives

    QString m_currentFilePath; // "" for an untitled project
    QString m_examplePath; // the example an untitled project was opened from, else ""
    QString m_currentDataFolder; // folder of the last project opened or saved
    QString m_documentName; // as the caption names it
    bool m_saveFailed = false; // the last save showed a file error
    bool m_dataChanged = false;
    bool m_resultsShown = false;
    std::array<bool, 3> m_panelShown {}; // per tab: Input Data, Results, Help
};
