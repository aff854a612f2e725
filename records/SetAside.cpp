#include "records/SetAside.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace petal {

std::filesystem::path asideName(const std::filesystem::path& file) {
    for (int n = 1; n <= 99; ++n) {
        const std::filesystem::path aside = file.string() + ".bad" + (n > 1 ? std::to_string(n) : "");
        std::error_code ec;
        if (!std::filesystem::exists(aside, ec) && !ec) return aside;
    }
    return {};
}

std::filesystem::path setAside(const std::filesystem::path& file, std::string& failure) {
    const std::filesystem::path aside = asideName(file);
    if (aside.empty()) {
        failure = "99 files set aside before it are in the way";
        return {};
    }
    if (std::rename(file.c_str(), aside.c_str()) == 0) return aside;
    failure = std::strerror(errno);
    return {};
}

}  // namespace petal
