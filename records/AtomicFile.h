#pragma once
// Writing a whole file so that a crash or a full disk never leaves half of it: the bytes go to
// a file beside the target, which is then renamed over it.
#include <filesystem>
#include <string>

namespace petal {

struct FileFailure {
    std::string operation;  // "created", "written", "replaced"
    std::string reason;     // empty when the write succeeded
    explicit operator bool() const { return !reason.empty(); }
};

// A symbolic link is written through to the file it names; an existing file keeps its mode,
// and one that is not a plain file, or that its user made read-only, is refused.
FileFailure writeFileAtomically(const std::filesystem::path& file, const std::string& bytes);

// Reads at most limit bytes and one more, so a caller can tell a file that is far too long.
// On failure returns false with the operation and the reason.
bool readFileBounded(const std::filesystem::path& file, std::size_t limit, std::string& bytes, FileFailure& failure);

}  // namespace petal
