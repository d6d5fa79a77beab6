#include "FileFaults.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uid_t kNobody = 65534;
constexpr gid_t kNoGroup = 65534;

// Writes `size` bytes to a new file `path`, removes it, and returns the bytes written.
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
    if (setgroups(0, nullptr) != 0 || setegid(kNoGroup) != 0 || seteuid(kNobody) != 0) {
        m_error = std::string("acting as user 65534: ") + std::strerror(errno);
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

FaultyFolder::FaultyFolder(SaveFault fault, std::string folder)
    : m_fault(fault)
    , m_folder(std::move(folder))
{ }

FaultyFolder::~FaultyFolder()
{
    disarm();
}

std::string FaultyFolder::arm(size_t newContentSize)
{
    disarm();
    m_armed = true;
    const std::string probe = m_folder + "/.fault-probe";
    int error = 0;
    if (m_fault == SaveFault::ReadOnlyFolder) {
        struct stat info = {};
        if (stat(m_folder.c_str(), &info) == 0)
            m_oldMode = info.st_mode & 07777;
        chmod(m_folder.c_str(), 0555);
        m_user = std::make_unique<OrdinaryUser>();
        if (!m_user->error().empty())
            return m_user->error();
        writeProbe(probe, 1, error);
        return error == EACCES || error == EROFS ? "" : "the folder still takes new files";
    }
    m_limit = newContentSize / 2;
    m_sizeLimit = std::make_unique<FileSizeLimit>(m_limit);
    const size_t written = writeProbe(probe, m_limit + 1, error);
    return written == m_limit && error == EFBIG ? "" : "a file can still grow past the limit";
}

std::string FaultyFolder::systemReason() const
{
    return std::strerror(m_fault == SaveFault::ReadOnlyFolder ? EACCES : EFBIG);
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
}
