#pragma once
// Options of our own, beyond the four lines of GARDENIA.ini, which stay as they are: one
// "key=value" a line in petalgarden-options.ini beside it. The file comes from outside the
// program: a line it cannot use is ignored, its key keeping the default, and keys this build
// does not know are written back as they stand, so an older build keeps a newer one's options.
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace petal {

class OwnOptions {
public:
    static constexpr const char* kFileName = "petalgarden-options.ini";

    // Reads the file in folder; a missing file holds no options. A file that cannot be read
    // gives its reason in problem() and holds no options; the game goes on with defaults.
    void load(const std::filesystem::path& folder);

    // The value of key, or fallback when the file has none.
    std::string text(const std::string& key, const std::string& fallback) const;
    // "on" and "off"; anything else is fallback.
    bool flag(const std::string& key, bool fallback) const;

    // Sets key and writes the file at once. A failure leaves the option set for this run and
    // is returned as a sentence that names the file, the operation and the reason.
    std::string set(const std::string& key, const std::string& value);
    std::string setFlag(const std::string& key, bool on) { return set(key, on ? "on" : "off"); }

    const std::string& problem() const { return problem_; }
    std::filesystem::path path() const { return file_; }

private:
    std::filesystem::path file_;
    std::vector<std::pair<std::string, std::string>> entries_;
    std::string problem_;
};

}  // namespace petal
