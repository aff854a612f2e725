#pragma once
// A fresh folder under the system's temporary folder (or another), removed with its contents
// at the end.
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace petal::sim {

class TempFolder {
public:
    explicit TempFolder(const std::filesystem::path& base = std::filesystem::temp_directory_path()) {
        std::string pattern = (base / "petalgarden-XXXXXX").string();
        if (!::mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary folder");
        path_ = pattern;
    }
    ~TempFolder() {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

}  // namespace petal::sim
