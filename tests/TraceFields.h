#pragma once
// The fields of one line of the headless player's trace, by name, each value as it stands: a
// quoted text (quotes kept), a list in brackets (brackets kept) or a number. The trace is flat
// JSON of just these, so a scan does; <regex> here drew false warnings from the compiler.
#include <map>
#include <string>

namespace petal::test {

inline std::map<std::string, std::string> traceFields(const std::string& line) {
    std::map<std::string, std::string> out;
    std::size_t at = 0;
    while ((at = line.find('"', at)) != std::string::npos) {
        const std::size_t nameEnd = line.find('"', at + 1);
        if (nameEnd == std::string::npos || nameEnd + 1 >= line.size() || line[nameEnd + 1] != ':') {
            at = nameEnd == std::string::npos ? line.size() : nameEnd + 1;
            continue;
        }
        const std::string name = line.substr(at + 1, nameEnd - at - 1);
        const std::size_t start = nameEnd + 2;
        std::size_t end = start;
        if (start < line.size() && (line[start] == '"' || line[start] == '[')) {
            end = line.find(line[start] == '"' ? '"' : ']', start + 1);
            end = end == std::string::npos ? line.size() : end + 1;
        } else {
            while (end < line.size() && line[end] != ',' && line[end] != '}') ++end;
        }
        out[name] = line.substr(start, end - start);
        at = end;
    }
    return out;
}

}  // namespace petal::test
