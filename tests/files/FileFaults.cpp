#include "FileFaults.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uid_t kNobody = 65534;
constexpr gid_t kNoGroup = 65534;
const char *const kProbeName = ".fault-probe";
const char *const kFillerName = ".filler";

std::string systemError(const char *what)
{
    return std::string(what) + ": " + std::strerror(errno);
}

// The process's own mount namespace, entered once, with every mount private to it so that a
// test mount never shows outside the test.
bool ownMountNamespace(std::string &why)
{
    static int state = 0; // 0 not tried, 1 entered, -1 impossible
    static std::string reason;
    if (state == 0) {
        if (unshare(CLONE_NEWNS) != 0)
            reason = systemError("unshare(CLONE_NEWNS)");
        else if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
            reason = systemError("making the mounts private");
        state = reason.empty() ? 1 : -1;
    }
    why = reason;
    return state == 1;
}

// Writes `size` bytes of 'x' at offset 0 of a new file `path`; returns the bytes written.
size_t writeProbe(const std::string &path, size_t size, int &error)
{
    error = 0;
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0) {
        error = errno;
        return 0;
    }
    const std::vector<char> bytes(size, 'x');
    size_t written = 0;
    while (written < size) {
        const ssize_t n = write(fd, bytes.data() + written, size - written);
        if (n <= 0) {
            error = errno;
            break;
        }
        written += static_cast<size_t>(n);
    }
    close(fd);
    unlink(path.c_str());
    return written;
}

} // namespace

// RLIMIT_FSIZE for the scope, with SIGXFSZ ignored so that a write past it fails with EFBIG
// instead of ending the process.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(size_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_oldLimit);
        struct sigaction ignore = {};
        ignore.sa_handler = SIG_IGN;
        sigaction(SIGXFSZ, &ignore, &m_oldAction);
        const rlimit limit = { static_cast<rlim_t>(bytes), m_oldLimit.rlim_max };
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_oldLimit);
        sigaction(SIGXFSZ, &m_oldAction, nullptr);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_oldLimit = {};
    struct sigaction m_oldAction = {};
};

OrdinaryUser::OrdinaryUser()
{
    if (geteuid() != 0)
        return;
    m_group = getegid();
    const int count = getgroups(0, nullptr);
    m_groups.resize(static_cast<size_t>(count > 0 ? count : 0));
    if (count > 0 && getgroups(count, m_groups.data()) != count)
        m_groups.clear();
    // Groups first: once the user is not root it may not change them.
    if (setgroups(0, nullptr) != 0 || setegid(kNoGroup) != 0) {
        m_error = systemError("dropping the groups of root");
        setegid(m_group);
        setgroups(m_groups.size(), m_groups.data());
        return;
    }
    if (seteuid(kNobody) != 0) {
        m_error = systemError("acting as user 65534");
        setegid(m_group);
        setgroups(m_groups.size(), m_groups.data());
        return;
    }
    m_switched = true;
}

OrdinaryUser::~OrdinaryUser()
{
    if (!m_switched)
        return;
    // The saved user id is still root, so the way back is open.
    if (seteuid(0) != 0 || setegid(m_group) != 0)
        std::abort(); // a test program that cannot return to root would test nothing further
    setgroups(m_groups.size(), m_groups.data());
}

void openToOrdinaryUser(const std::string &folder)
{
    chmod(folder.c_str(), 0755);
}

const char *saveFaultName(SaveFault fault)
{
    switch (fault) {
    case SaveFault::ReadOnlyFolder:
        return "read-only folder";
    case SaveFault::DiskFull:
        return "disk full";
    case SaveFault::FailsPartWay:
        return "write fails part way";
    }
    return "";
}

FaultyFolder::FaultyFolder(SaveFault fault, std::string folder)
    : m_fault(fault)
    , m_folder(std::move(folder))
{
    if (m_fault == SaveFault::DiskFull)
        m_mounted = mountTmpfs();
}

FaultyFolder::~FaultyFolder()
{
    disarm();
    if (m_mounted)
        umount2(m_folder.c_str(), MNT_DETACH);
}

bool FaultyFolder::mountTmpfs()
{
    std::string why;
    if (ownMountNamespace(why)
        && mount("tmpfs", m_folder.c_str(), "tmpfs", MS_NOSUID | MS_NODEV, "size=256k,mode=0755")
                == 0)
        return true;
    if (why.empty())
        why = systemError("mounting a tmpfs");
    m_mechanism = "file-size limit of 0 bytes (no tmpfs: " + why + ")";
    return false;
}

void FaultyFolder::fillTmpfs()
{
    const std::string path = m_folder + "/" + kFillerName;
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0)
        return;
    // Large pieces first, then smaller ones for the last partial page.
    const std::vector<char> bytes(64 * 1024, 'f');
    for (size_t piece : { bytes.size(), size_t(4096), size_t(1) }) {
        while (write(fd, bytes.data(), piece) > 0) { }
    }
    close(fd);
}

std::string FaultyFolder::arm(size_t newContentSize)
{
    disarm();
    m_armed = true;
    switch (m_fault) {
    case SaveFault::ReadOnlyFolder: {
        struct stat info = {};
        if (stat(m_folder.c_str(), &info) == 0)
            m_oldMode = info.st_mode & 07777;
        chmod(m_folder.c_str(), 0555);
        m_mechanism = geteuid() == 0 ? "mode 0555, saving as user 65534 (root ignores modes)"
                                     : "mode 0555";
        m_user = std::make_unique<OrdinaryUser>();
        if (!m_user->error().empty())
            return m_user->error();
        break;
    }
    case SaveFault::DiskFull:
        if (m_mounted) {
            fillTmpfs();
            m_mechanism = "tmpfs filled to its last byte";
        } else {
            m_limit = 0;
            m_sizeLimit = std::make_unique<FileSizeLimit>(m_limit);
        }
        break;
    case SaveFault::FailsPartWay:
        m_limit = newContentSize / 2;
        m_sizeLimit = std::make_unique<FileSizeLimit>(m_limit);
        m_mechanism = "file-size limit of " + std::to_string(m_limit) + " of "
                + std::to_string(newContentSize) + " bytes";
        break;
    }
    return probe();
}

std::string FaultyFolder::probe() const
{
    const std::string path = m_folder + "/" + kProbeName;
    int error = 0;
    switch (m_fault) {
    case SaveFault::ReadOnlyFolder:
        writeProbe(path, 1, error);
        return error == EACCES || error == EROFS ? "" : "the folder still takes new files";
    case SaveFault::DiskFull:
        writeProbe(path, 1, error);
        return error == ENOSPC || error == EFBIG ? "" : "a byte can still be written";
    case SaveFault::FailsPartWay: {
        const size_t written = writeProbe(path, m_limit + 1, error);
        return written == m_limit && error == EFBIG ? "" : "a file can still grow past the limit";
    }
    }
    return "unknown fault";
}

std::string FaultyFolder::systemReason() const
{
    if (m_fault == SaveFault::ReadOnlyFolder)
        return std::strerror(EACCES);
    return std::strerror(m_fault == SaveFault::DiskFull && m_mounted ? ENOSPC : EFBIG);
}

void FaultyFolder::disarm()
{
    if (!m_armed)
        return;
    m_armed = false;
    m_user.reset();
    m_sizeLimit.reset();
    if (m_fault == SaveFault::ReadOnlyFolder)
        chmod(m_folder.c_str(), m_oldMode);
    if (m_mounted)
        unlink((m_folder + "/" + kFillerName).c_str());
}
