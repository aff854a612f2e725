#pragma once
// The fields of one line of the headless player's trace, by name, each value as it stands.
#include <map>
#include <regex>
#include <string>

namespace petal::test {

inline std::map<std::string, std::string> traceFields(const std::string& line) {
    static const std::regex field(R"re("(\w+)":("[^"]*"|\[[^\]]*\]|-?[0-9.]+))re");
    std::map<std::string, std::string> out;
    for (auto it = std::sregex_iterator(line.begin(), line.end(), field); it != std::sregex_iterator(); ++it)
        out[(*it)[1]] = (*it)[2];
    return out;
}

}  // namespace petal::test
