#pragma once

#include "RecoveryFiles.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

class Prompts;
class frmMain;
struct GlobalData;

// The window's safety net for unsaved edits. While the document has unsaved changes it is
// written to the instance's autosave at most once an interval, when the user has paused; the
// autosave goes when the document is saved, cleared or closed without changes, and at a clean
// exit. A save that fails on the way out of a command leaves a copy in the recovery folder.
// At start-up the autosaves of runs that did not end cleanly are offered to be opened again.
class RecoveryStore : public QObject
{
public:
    static constexpr int kDefaultIntervalMs = 2 * 60 * 1000;
    // An autosave waits until the user has not typed for this long (or the interval, if
    // shorter), so that the write never falls between two key strokes.
    static constexpr int kIdleMs = 2000;

    RecoveryStore(frmMain &window, Prompts &prompts, const GlobalData &folders);
    ~RecoveryStore() override;

    void setAutosaveInterval(int milliseconds);
    // The window's data changed flag was set (an edit) or cleared (saved, New, opened).
    void documentChanged(bool changed);
    // After a save that failed inside the unsaved-data question: writes the document to a new
    // copy in the recovery folder and says where, or that even that failed.
    void keepAfterFailedSave();
    // Offers the autosaves of runs that did not end cleanly, in one dialog; opens or discards
    // what the user chooses and keeps the rest for a later start.
    void offerRecoveredFiles();
    // The program ends cleanly: the autosave goes.
    void endCleanly();
    // The instance's autosave (it may not exist yet).
    QString autosavePath() const;

private:
    void autosaveWhenIdle();
    bool writeAutosave();

    frmMain &m_window;
    Prompts &m_prompts;
    std::string m_recoveryFolder;
    AutosaveSlot m_slot;
    QTimer m_timer;
    QElapsedTimer m_sinceEdit;
    int m_intervalMs = kDefaultIntervalMs;
};
