#include "records/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace petal {

namespace {

FileFailure failed(const char* operation, int error) { return {operation, std::strerror(error)}; }

std::filesystem::path linkTarget(const std::filesystem::path& file) {
    std::filesystem::path at = file;
    for (int hop = 0; hop < 40; ++hop) {
        std::error_code ec;
        if (!std::filesystem::is_symlink(at, ec)) break;
        const std::filesystem::path next = std::filesystem::read_symlink(at, ec);
        if (ec) break;
        at = next.is_absolute() ? next : at.parent_path() / next;
    }
    return at;
}

// The mode a new file takes, or a refusal for a target that must not be replaced.
FileFailure modeForWriting(const std::filesystem::path& target, mode_t& mode) {
    mode = 0644;
    struct stat st {};
    if (::stat(target.c_str(), &st) != 0) return {};
    if (S_ISDIR(st.st_mode)) return failed("written", EISDIR);
    if (!S_ISREG(st.st_mode)) return {"written", "it is not a plain file"};
    if ((st.st_mode & 0222) == 0) return failed("written", EACCES);
    if (::access(target.c_str(), W_OK) != 0) return failed("written", errno);
    mode = st.st_mode & 07777;
    return {};
}

}  // namespace

FileFailure writeFileAtomically(const std::filesystem::path& file, const std::string& bytes) {
    const std::filesystem::path target = linkTarget(file);
    mode_t mode = 0644;
    if (FileFailure refused = modeForWriting(target, mode)) return refused;
    const std::filesystem::path temp = target.string() + ".tmp";
    const int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (fd < 0) return failed("created", errno);
    int error = 0;
    if (::fchmod(fd, mode) != 0) error = errno;
    errno = 0;
    if (!error && ::write(fd, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
        error = errno ? errno : EIO;
    if (!error && ::fsync(fd) != 0) error = errno;
    if (::close(fd) != 0 && !error) error = errno;
    const char* operation = "written";
    if (!error && ::rename(temp.c_str(), target.c_str()) != 0) {
        error = errno;
        operation = "replaced";
    }
    if (!error) return {};
    ::unlink(temp.c_str());
    return failed(operation, error);
}

bool readFileBounded(const std::filesystem::path& file, std::size_t limit, std::string& bytes, FileFailure& failure) {
    bytes.clear();
    const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        failure = failed("opened", errno);
        return false;
    }
    char buffer[4096];
    ssize_t got = 0;
    while (bytes.size() <= limit && (got = ::read(fd, buffer, sizeof buffer)) > 0) bytes.append(buffer, got);
    const int error = errno;
    ::close(fd);
    if (got < 0) {
        failure = failed("read", error);
        return false;
    }
    return true;
}

}  // namespace petal
