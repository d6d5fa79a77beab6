// The file commands of the main window: New, Open, Example, the recent files, Save and Save As,
// with the unsaved-data question and the file-error messages.
#include "frmMain.h"

#include "ChannelPane.h"
#include "ChecksPanel.h"
#include "InputPage.h"
#include "OptionGroup.h"
#include "ProjectFile.h"
#include "Prompts.h"
#include "RecentFilesMenu.h"
#include "RecoveryStore.h"
#include "ResultsPage.h"
#include "RdcGridA.h"
#include "ScrollingPage.h"

#include <QDir>
#include <QFileInfo>
#include <QTabWidget>

namespace {

const QStringList kProjectFilters = {
    QStringLiteral("All Files (*.*)"),
    QLatin1String(kProgramTitle) + QStringLiteral(" (*.swl)"),
};
constexpr int kProjectFilter = 1; // the *.swl entry is chosen at first
// The dialogs' default extension has always been "udr", although projects end in ".swl".
const char *const kDefaultExtension = "udr";

QString folderOf(const QString &path)
{
    return QFileInfo(path).absolutePath() + QLatin1Char('/');
}

// A file error: the fixed text, a carriage return and the path.
QString fileErrorText(const char *text, const QString &path)
{
    return QLatin1String(text) + QLatin1Char('\r') + path;
}

} // namespace

void frmMain::newCommand()
{
    if (!settleUnsavedChanges())
        return;
    ClearProject();
}

int frmMain::AskToSaveChanges()
{
    return m_prompts.ShowErrorMessage(
            QStringLiteral("The data has changed.  Do you want to save the current data?"),
            MessageStyle::YesNoCancel, QLatin1String(kProgramTitle) + QLatin1Char(' '));
}

// Yes saves and goes on whatever the save's outcome: a failed or cancelled save does not stop
// the command that asked. A save that failed leaves a recovery copy first, so the edits the
// command is about to drop are not lost.
bool frmMain::settleUnsavedChanges()
{
    if (!m_dataChanged)
        return true;
    const int answer = AskToSaveChanges();
    if (answer == MessageAnswer::Cancel)
        return false;
    m_saveFailed = false;
    if (answer == MessageAnswer::Yes && !SaveProject() && m_saveFailed)
        m_recovery->keepAfterFailedSave();
    return true;
}

void frmMain::ClearProject()
{
    if (SSTab1->currentIndex() != 0)
        SSTab1->setCurrentIndex(0);
    SwaleProject empty;
    empty.solutionMethod = 1;
    empty.channelFlowMethod = 1;
    m_inputPage->showProject(empty);
    m_resultsPage->clearBoxes();
    channelPane()->clear();
    m_checks->clear();
    relayoutPages();
    setDataChanged(false);
    setResultsShown(false);
    m_currentFilePath.clear();
    m_examplePath.clear();
    setCaption(QStringLiteral("<untitled>"));
    for (ScrollingPage *page : picStaionaryWindow)
        page->scrollToOrigin();
}

QString frmMain::GetDataFolder()
{
    if (m_currentDataFolder.isEmpty() || !QFileInfo(m_currentDataFolder).isDir())
        m_currentDataFolder = QString::fromStdString(m_folders.documentsFolder);
    return m_currentDataFolder;
}

QString frmMain::GetFileOpenName(int mode)
{
    FileDialogRequest request;
    request.initialFolder = mode == OpenExample
            ? QString::fromStdString(m_folders.programFolder) + QStringLiteral("Examples/")
            : GetDataFolder();
    request.filters = kProjectFilters;
    request.selectedFilter = kProjectFilter;
    request.defaultSuffix = QLatin1String(kDefaultExtension);
    request.flags = FileDialogRequest::HideReadOnly | FileDialogRequest::FileMustExist;
    return m_prompts.askOpenFileName(request);
}

QString frmMain::GetFileSaveName()
{
    FileDialogRequest request;
    if (!m_currentFilePath.isEmpty() && QFileInfo(folderOf(m_currentFilePath)).isDir()) {
        request.initialFolder = folderOf(m_currentFilePath);
        request.fileName = QFileInfo(m_currentFilePath).fileName();
    } else {
        request.initialFolder = GetDataFolder();
    }
    request.filters = kProjectFilters;
    request.selectedFilter = kProjectFilter;
    request.defaultSuffix = QLatin1String(kDefaultExtension);
    request.flags = FileDialogRequest::OverwritePrompt | FileDialogRequest::HideReadOnly
            | FileDialogRequest::PathMustExist;
    return m_prompts.askSaveFileName(request);
}

void frmMain::OpenProjectCommand(int mode)
{
    if (!settleUnsavedChanges())
        return;
    const QString path = GetFileOpenName(mode);
    if (path.isEmpty())
        return;
    OpenDataFile(path, mode);
}

void frmMain::recentFileCommand(int index)
{
    if (!settleUnsavedChanges())
        return;
    const QString path = m_recentFiles->entry(index);
    if (path.isEmpty())
        return;
    if (!QFileInfo(path).isFile()) {
        m_prompts.ShowErrorMessage(fileErrorText("File not found:", path),
                                   MessageStyle::Exclamation, QLatin1String(kErrorTitle));
        return;
    }
    OpenDataFile(path, OpenNormal);
}

// The file is read into a project of its own first, so that a file that cannot be read leaves
// the open document exactly as it was. Only a plain file can be a project: opening a named pipe
// would wait for a program to write to it, and the window with it.
bool frmMain::OpenDataFile(const QString &path, int mode)
{
    SwaleProject project;
    if (!QFileInfo(path).isFile() || !loadProject(path.toStdString(), project).ok) {
        m_prompts.ShowErrorMessage(fileErrorText(kUnableToOpenFileMessage, path),
                                   MessageStyle::Exclamation, QLatin1String(kErrorTitle));
        return false;
    }
    ClearProject();
    m_inputPage->showProject(project);
    relayoutPages();
    if (project.resultsShown) {
        m_resultsPage->WriteResults(project.outputText);
        channelPane()->showProject(project);
    }
    setResultsShown(project.resultsShown);
    if (mode == OpenNormal) {
        m_recentFiles->add(path);
        adoptFileName(path);
    } else {
        // An example opens untitled, so that a later Save asks for a new name; the caption
        // still names it.
        m_currentFilePath.clear();
        m_examplePath = path;
        setCaption(QFileInfo(path).fileName());
    }
    setDataChanged(false);
    if (m_inputPage->ratingCurveGrid()->isVisible())
        m_inputPage->ratingCurveGrid()->Refresh();
    return true;
}

bool frmMain::SaveProject()
{
    if (m_currentFilePath.isEmpty())
        return SaveProjectAs();
    return WriteDataFile(m_currentFilePath);
}

bool frmMain::SaveProjectAs()
{
    const QString path = GetFileSaveName();
    if (path.isEmpty())
        return false;
    const ProjectFileResult result = saveProject(path.toStdString(), currentProject());
    if (!result.ok) {
        reportSaveFailure(result.failedStep == ProjectFileStep::Open ? "Error opening file:"
                                                                     : kErrorWritingToFileMessage,
                          path);
        return false;
    }
    m_recentFiles->add(path);
    adoptFileName(path);
    setDataChanged(false);
    return true;
}

// Save words its two failures differently from Save As, as the program always has.
bool frmMain::WriteDataFile(const QString &path)
{
    const ProjectFileResult result = saveProject(path.toStdString(), currentProject());
    if (!result.ok) {
        reportSaveFailure(result.failedStep == ProjectFileStep::Open ? kUnableToOpenFileMessage
                                                                     : "Error writing data file:",
                          path);
        return false;
    }
    setDataChanged(false);
    return true;
}

void frmMain::adoptFileName(const QString &path)
{
    m_currentFilePath = path;
    m_currentDataFolder = folderOf(path);
    setCaption(QFileInfo(path).fileName());
}

void frmMain::reportSaveFailure(const char *text, const QString &path)
{
    m_saveFailed = true;
    m_prompts.ShowErrorMessage(fileErrorText(text, path), MessageStyle::Exclamation,
                               QLatin1String(kErrorTitle));
}

bool frmMain::openRecoveredProject(const QString &path, const QString &name)
{
    if (!OpenDataFile(path, OpenExample))
        return false;
    setCaption(name);
    setWindowTitle(windowTitle() + QStringLiteral(" (recovered)"));
    setDataChanged(true);
    return true;
}
