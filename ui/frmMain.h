#pragma once

#include "CalcContext.h"
#include "GlobalData.h"
#include "MainMenus.h"
#include "SwaleProject.h"

#include <QMainWindow>

#include <array>
#include <memory>

class ChannelPane;
class ChannelPaneDock;
class HelpImagePanel;
class InputPage;
class KeyboardNavigator;
class PrintPrompts;
class PrintRoutine;
class Prompts;
class QPushButton;
class QTabWidget;
class RecentFilesMenu;
class ResultsPage;
class ScrollingPage;
class ctrlPictureViewer;
struct CalculationOutcome;
struct ValidationFault;
class tvrEditBox;

// Texts the window shows in more than one place.
extern const char *const kProgramTitle; // "TAVRO Channel and Overland Flow Analysis"
extern const char *const kErrorTitle; // "Error"

// Open modes of GetFileOpenName, OpenProjectCommand and OpenDataFile.
enum OpenMode { OpenNormal = 1, OpenExample = 2 };

// The main window: it owns the one open project (the document), held in the controls of the
// Input Data and Results pages, with its file path, its data folder and the data changed and
// results valid flags. It carries the file commands, the Calculate command and the unsaved-data
// question; every message and file dialog goes through the Prompts it is given.
class frmMain : public QMainWindow
{
    Q_OBJECT

public:
    // `printPrompts` serves the print commands' dialogs; without one the window uses the system
    // print and page-setup dialogs with its own messages.
    frmMain(Prompts &prompts, const GlobalData &folders, PrintPrompts *printPrompts = nullptr,
            QWidget *parent = nullptr);
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
    void showAbout();
    void showHelpTopic(int topic);

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
    void onInputEdited(int index);
    void onRatingCurveEdited();
    void onSolutionMethodClicked(int index);
    void onChannelFlowClicked(int index);
    void relayoutPages();
    void showValidationFault(const ValidationFault &fault);
    void showResults(const CalculationOutcome &outcome);
    void showInputPage();
    QWidget *tabPanel(int tab) const;
    void onTabChanged(int tab);

    Prompts &m_prompts;
    const GlobalData &m_folders;
    CalcSettings m_calcSettings;
    std::unique_ptr<PrintPrompts> m_ownPrintPrompts;
    std::unique_ptr<PrintRoutine> m_printRoutine;
    QString m_versionText;

    MainMenus m_menus;
    std::unique_ptr<RecentFilesMenu> m_recentFiles;
    std::unique_ptr<ChannelPaneDock> m_channelPane;
    QTabWidget *SSTab1 = nullptr;
    std::array<ScrollingPage *, 2> picStaionaryWindow {}; // page 0 Input Data, page 1 Results
    InputPage *m_inputPage = nullptr;
    ResultsPage *m_resultsPage = nullptr;
    ctrlPictureViewer *ctrlPictureViewer1 = nullptr;
    HelpImagePanel *m_helpImage = nullptr;
    KeyboardNavigator *m_keyboard = nullptr;
    QPushButton *cmdCalculate = nullptr;

    QString m_currentFilePath; // "" for an untitled project
    QString m_currentDataFolder; // folder of the last project opened or saved
    bool m_dataChanged = false;
    bool m_resultsShown = false;
    std::array<bool, 3> m_panelShown {}; // per tab: Input Data, Results, Help
};
