#pragma once
// What a score must beat to enter each table, as last read from HOF.mdb, kept for as long as the
// file is the same file, of the same size, with the same change counter in its header (every
// committed write steps it). Every won deal asks; most find the tables as they were, and a stat
// and a read of four bytes cost far less than a query under the file's locks.
#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace petal {

class HighScoreBar {
public:
    struct Stamp {
        std::uint64_t device = 0, inode = 0;
        std::int64_t size = 0;
        std::uint32_t changes = 0;
        bool operator==(const Stamp&) const = default;
    };
    struct Bar {
        int rows = 0;    // rows in the table
        int lowest = 0;  // the score of its last row, when the table is full
    };

    HighScoreBar() = default;
    ~HighScoreBar();
    HighScoreBar(const HighScoreBar&) = delete;
    HighScoreBar& operator=(const HighScoreBar&) = delete;

    // The file as it stands now; nothing when it cannot be seen or read.
    std::optional<Stamp> stampOf(const std::filesystem::path& file);

    // The bar of a table read while the file had this stamp, if it still has it.
    std::optional<Bar> known(bool tournament, const std::optional<Stamp>& now) const;
    // The stamp must be taken before the read, so that a change during the read shows later.
    void remember(bool tournament, const std::optional<Stamp>& before, Bar bar);
    void forget();

private:
    struct Kept {
        Stamp stamp;
        Bar bar;
    };
    void closeFile();

    std::array<std::optional<Kept>, 2> kept_;
    int fd_ = -1;  // the file as last stamped, open for its header
    std::uint64_t fdDevice_ = 0, fdInode_ = 0;
};

}  // namespace petal
