#include "records/OwnOptions.h"

#include <algorithm>
#include <cctype>

#include "records/AtomicFile.h"

namespace petal {

namespace {

constexpr std::size_t kLongestFile = 64 * 1024;

bool usableKey(const std::string& key) {
    return !key.empty() && key.size() <= 64 &&
           std::all_of(key.begin(), key.end(), [](unsigned char c) { return std::isalnum(c) || c == '-' || c == '_'; });
}

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

}  // namespace

void OwnOptions::load(const std::filesystem::path& folder) {
    file_ = folder / kFileName;
    entries_.clear();
    problem_.clear();
    std::error_code ec;
    if (!std::filesystem::exists(file_, ec)) return;
    std::string bytes;
    FileFailure failure;
    if (!readFileBounded(file_, kLongestFile, bytes, failure)) {
        problem_ = "The options file \"" + file_.string() + "\" cannot be " + failure.operation + ": " + failure.reason + ".";
        return;
    }
    if (bytes.size() > kLongestFile) {
        problem_ = "The options file \"" + file_.string() + "\" cannot be read: it is far too long.";
        return;
    }
    std::size_t at = 0;
    while (at < bytes.size()) {
        std::size_t end = bytes.find('\n', at);
        if (end == std::string::npos) end = bytes.size();
        const std::string line = bytes.substr(at, end - at);
        at = end + 1;
        const auto equals = line.find('=');
        if (equals == std::string::npos) continue;
        const std::string key = trimmed(line.substr(0, equals));
        const std::string value = trimmed(line.substr(equals + 1));
        if (!usableKey(key) || value.find('\0') != std::string::npos) continue;
        auto same = std::find_if(entries_.begin(), entries_.end(), [&](const auto& e) { return e.first == key; });
        if (same != entries_.end()) same->second = value;
        else entries_.emplace_back(key, value);
    }
}

std::string OwnOptions::text(const std::string& key, const std::string& fallback) const {
    for (const auto& [k, v] : entries_)
        if (k == key) return v;
    return fallback;
}

bool OwnOptions::flag(const std::string& key, bool fallback) const {
    const std::string value = text(key, "");
    if (value == "on") return true;
    if (value == "off") return false;
    return fallback;
}

std::string OwnOptions::set(const std::string& key, const std::string& given) {
    std::string value = given;
    std::replace_if(value.begin(), value.end(), [](char c) { return c == '\n' || c == '\r' || c == '\0'; }, ' ');
    auto same = std::find_if(entries_.begin(), entries_.end(), [&](const auto& e) { return e.first == key; });
    if (same != entries_.end()) {
        if (same->second == value) return {};
        same->second = value;
    } else {
        entries_.emplace_back(key, value);
    }
    if (file_.empty()) return {};
    std::string bytes;
    for (const auto& [k, v] : entries_) bytes += k + "=" + v + "\n";
    const FileFailure failure = writeFileAtomically(file_, bytes);
    if (!failure) return {};
    return "The options file \"" + file_.string() + "\" cannot be " + failure.operation + ": " + failure.reason + ".";
}

}  // namespace petal
