#include "records/HighScoreBar.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace petal {

namespace {
// Where SQLite keeps its file change counter, big-endian.
constexpr off_t kChangeCounterAt = 24;
}  // namespace

HighScoreBar::~HighScoreBar() { closeFile(); }

// Closing any descriptor of a file drops all of this process's POSIX locks on it, SQLite's
// among them: this is only called between the store's statements, when SQLite holds none.
void HighScoreBar::closeFile() {
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
}

void HighScoreBar::forget() {
    kept_ = {};
    closeFile();
}

std::optional<HighScoreBar::Stamp> HighScoreBar::stampOf(const std::filesystem::path& file) {
    struct stat st {};
    if (::stat(file.c_str(), &st) != 0) return std::nullopt;
    Stamp stamp{static_cast<std::uint64_t>(st.st_dev), static_cast<std::uint64_t>(st.st_ino),
                static_cast<std::int64_t>(st.st_size), 0};
    // A file put in the place of the old one is opened afresh.
    if (fd_ < 0 || fdDevice_ != stamp.device || fdInode_ != stamp.inode) {
        closeFile();
        fd_ = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
        if (fd_ < 0) return std::nullopt;
        fdDevice_ = stamp.device;
        fdInode_ = stamp.inode;
    }
    unsigned char counter[4];
    if (::pread(fd_, counter, sizeof counter, kChangeCounterAt) != static_cast<ssize_t>(sizeof counter))
        return std::nullopt;
    stamp.changes = static_cast<std::uint32_t>(counter[0]) << 24 | static_cast<std::uint32_t>(counter[1]) << 16 |
                    static_cast<std::uint32_t>(counter[2]) << 8 | counter[3];
    return stamp;
}

std::optional<HighScoreBar::Bar> HighScoreBar::known(bool tournament, const std::optional<Stamp>& now) const {
    const auto& kept = kept_[tournament ? 1 : 0];
    if (!now || !kept || !(kept->stamp == *now)) return std::nullopt;
    return kept->bar;
}

void HighScoreBar::remember(bool tournament, const std::optional<Stamp>& before, Bar bar) {
    auto& kept = kept_[tournament ? 1 : 0];
    if (before)
        kept = Kept{*before, bar};
    else
        kept.reset();
}

}  // namespace petal
