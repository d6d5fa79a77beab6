#pragma once

#include <memory>
#include <string>
#include <vector>

#include <sys/types.h>

// Faults of the file system made real for the running test process, so that saves and reads
// meet the errors a user's machine gives them. Each is undone when its object goes out of scope.

// While in scope, a process running as root acts as the ordinary user "nobody" (uid and gid
// 65534) for every file access, so that file modes bind it as they bind a user. Does nothing for
// a process that is not root. Folders the test made must be open to that user (mode 0755).
class OrdinaryUser
{
public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

    // "" when the process acts as an ordinary user now; else why it could not.
    const std::string &error() const { return m_error; }

private:
    bool m_switched = false;
    gid_t m_group = 0; // root's group and supplementary groups, given back at the end
    std::vector<gid_t> m_groups;
    std::string m_error;
};

// Lets everyone enter and read `folder` (mode 0755), so that OrdinaryUser can reach the files
// of a temporary folder that was created private to root.
void openToOrdinaryUser(const std::string &folder);

// Which fault a save meets.
enum class SaveFault {
    ReadOnlyFolder, // mode 0555 on the folder (as an OrdinaryUser when root): no new file
    FailsPartWay, // RLIMIT_FSIZE at half the new content: the write stops with "File too large"
};

class FileSizeLimit;

// A folder that makes saves into it fail with `fault` while armed.
class FaultyFolder
{
public:
    FaultyFolder(SaveFault fault, std::string folder);
    ~FaultyFolder();
    FaultyFolder(const FaultyFolder &) = delete;
    FaultyFolder &operator=(const FaultyFolder &) = delete;

    // Puts the fault in force for a save of `newContentSize` bytes. Returns "" when a probe
    // write into the folder now fails as the fault says, else why not (the test then skips).
    std::string arm(size_t newContentSize);
    void disarm();
    // The system's text for the error the fault gives: "Permission denied" or "File too large".
    std::string systemReason() const;

private:
    SaveFault m_fault;
    std::string m_folder;
    bool m_armed = false;
    size_t m_limit = 0;
    mode_t m_oldMode = 0755;
    std::unique_ptr<OrdinaryUser> m_user;
    std::unique_ptr<FileSizeLimit> m_sizeLimit;
};
