#pragma once

#include <memory>
#include <string>
#include <vector>

#include <sys/types.h>

// Faults of the file system made real for the running test process, so that saves and reads
// meet the same errors a user's machine gives them. Each is undone when its object goes out of
// scope. Plain POSIX, no Qt: the GoogleTest and the QTest suites share it.

// While in scope, a process running as root acts as the ordinary user "nobody" (uid and gid
// 65534) for every file access, so that file modes bind it as they bind a user; root ignores
// them. Does nothing for a process that is not root. The saved root identity comes back at the
// end of the scope. Folders the test made must be reachable by that user: see
// openToOrdinaryUser.
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
    ReadOnlyFolder, // the folder of the file takes no new file
    DiskFull, // no byte can be written
    FailsPartWay, // the first half of the new content is written, then the write fails
};
const char *saveFaultName(SaveFault fault);

class FileSizeLimit;

// A folder that makes saves into it fail with `fault` while armed.
//
// ReadOnlyFolder: mode 0555 on the folder, and OrdinaryUser when running as root.
// DiskFull: a small tmpfs mounted on the folder in the process's own mount namespace and filled
// to its last byte, so writes fail with "No space left on device". Mounting needs the right to
// mount (root, or a container that allows it); without it the fault falls back to a file-size
// limit of 0 bytes (RLIMIT_FSIZE), which refuses the first byte as a full disk does.
// FailsPartWay: a file-size limit of half the new content, with SIGXFSZ ignored: the write
// stores the first half, then fails with "File too large".
class FaultyFolder
{
public:
    // Prepares the folder (empty, existing); for DiskFull this mounts the tmpfs, so the old
    // file must be written after construction.
    FaultyFolder(SaveFault fault, std::string folder);
    ~FaultyFolder();
    FaultyFolder(const FaultyFolder &) = delete;
    FaultyFolder &operator=(const FaultyFolder &) = delete;

    // Puts the fault in force for a save of `newContentSize` bytes. Returns "" when a probe
    // write into the folder now fails as the fault says, else why the fault is not in force
    // (the test then skips, saying so).
    std::string arm(size_t newContentSize);
    // Lifts the fault; the files in the folder stay readable until destruction.
    void disarm();
    // The system's text for the error the fault gives: "Permission denied", "No space left on
    // device" or "File too large".
    std::string systemReason() const;
    // How the fault was made, for the test log: "tmpfs filled to its last byte", ...
    const std::string &mechanism() const { return m_mechanism; }

private:
    std::string probe() const;
    bool mountTmpfs();
    void fillTmpfs();

    SaveFault m_fault;
    std::string m_folder;
    std::string m_mechanism;
    bool m_mounted = false;
    bool m_armed = false;
    size_t m_limit = 0; // FailsPartWay and the DiskFull fallback: bytes a file may hold
    mode_t m_oldMode = 0755;
    std::unique_ptr<OrdinaryUser> m_user;
    std::unique_ptr<FileSizeLimit> m_sizeLimit;
};
