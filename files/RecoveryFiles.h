#pragma once

#include "SwaleProject.h"

#include <memory>
#include <string>
#include <vector>

class QLockFile;

// Recovery copies of documents with unsaved changes, kept in the program's own data folder so
// that no edit is lost to a failed save or to a program that ends without a clean exit. Every
// copy is an ordinary project file of the current version: Open reads it like any other.
//
// <settings folder>/Recovery/                 copies kept after a save failed on the way out
// <settings folder>/Recovery/Autosave/ID.swl  the autosave of the running instance ID
//                                     ID.ini  its name, original file and time
//                                     ID.lock held while instance ID runs

extern const char *const kRecoveryFolderName; // "Recovery"
extern const char *const kAutosaveFolderName; // "Autosave"

// "<settings folder>Recovery/" and "<settings folder>Recovery/Autosave/".
std::string recoveryFolderOf(const std::string &settingsFolder);
std::string autosaveFolderOf(const std::string &settingsFolder);

struct RecoveryWriteResult
{
    bool ok = false;
    std::string path; // the copy; on failure the path that could not be written
    std::string error; // why it failed, for a person
};

// Writes `project` atomically to a new file of `folder` (created when missing) named after the
// document and the time: "Route 9 2026-11-23 111502.swl"; `name` "" or "<untitled>" gives
// "untitled". Never replaces an existing file.
RecoveryWriteResult writeRecoveryCopy(const std::string &folder, const std::string &name,
                                      const SwaleProject &project);

// What the file beside an autosave says about it.
struct AutosaveInfo
{
    std::string name; // the document's name as the caption showed it
    std::string originalPath; // the user's file; "" for an untitled document
    std::string savedAt; // local time of the write, "yyyy-MM-dd HH:mm:ss"
};

// The autosave of one running instance of the program. The instance's lock is taken at the
// first write and held until release, so that no other instance takes the file while this one
// runs; a lock whose process has died is stale, and its file is an orphan (see
// claimOrphanedAutosaves).
class AutosaveSlot
{
public:
    explicit AutosaveSlot(std::string autosaveFolder);
    ~AutosaveSlot(); // gives the lock back and leaves the files
    AutosaveSlot(const AutosaveSlot &) = delete;
    AutosaveSlot &operator=(const AutosaveSlot &) = delete;

    // Writes `project` and `info` atomically over the instance's previous autosave.
    RecoveryWriteResult write(const SwaleProject &project, const AutosaveInfo &info);
    // Removes the autosave and its info; keeps the lock.
    void remove();
    // Removes the autosave and gives the lock back: the instance ends cleanly.
    void release();
    std::string projectPath() const;
    const std::string &folder() const { return m_folder; }

private:
    std::string m_folder;
    std::string m_id;
    std::unique_ptr<QLockFile> m_lock;
};

// An autosave left by an instance that did not end cleanly, claimed by this instance: its lock
// is held until the object is destroyed (the autosave then stays for a later start) or
// discarded.
struct OrphanedAutosave
{
    std::string projectPath;
    AutosaveInfo info;
    std::shared_ptr<QLockFile> lock;
};

// The orphaned autosaves of `autosaveFolder`, oldest first. Autosaves of instances that still
// run are locked and left alone.
std::vector<OrphanedAutosave> claimOrphanedAutosaves(const std::string &autosaveFolder);
// Removes the autosave, its info and its lock.
void discardOrphan(OrphanedAutosave &orphan);
