#include "platform/Words.h"

#include <vector>

#include "platform/Host.h"

namespace petal {

std::string fillIn(std::string_view pattern, std::initializer_list<std::string_view> args) {
    const std::vector<std::string_view> parts(args);
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char next = i + 1 < pattern.size() ? pattern[i + 1] : '\0';
        const std::size_t n = static_cast<std::size_t>(next - '1');
        if (pattern[i] == '%' && next >= '1' && next <= '9' && n < parts.size()) {
            text += parts[n];
            ++i;
        } else {
            text += pattern[i];
        }
    }
    return text;
}

std::string said(Host& host, const char* pattern, std::initializer_list<std::string_view> args) {
    return fillIn(host.translate("core", pattern), args);
}

}  // namespace petal
