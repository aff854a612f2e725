#include "platform/qt/KeyStrokes.h"

#include <cstdlib>
#include <stdexcept>

namespace petal {

namespace {

KeyStroke named(const std::string& name) {
    if (name == "ENTER") return {Qt::Key_Return, QStringLiteral("\r")};
    if (name == "ESC") return {Qt::Key_Escape, QStringLiteral("\x1b")};
    if (name.size() >= 2 && name[0] == 'F') {
        const int n = std::atoi(name.c_str() + 1);
        if (n >= 1 && n <= 12 && name == "F" + std::to_string(n)) return {Qt::Key_F1 + n - 1, QString()};
    }
    throw std::invalid_argument("no key is named {" + name + "}");
}

}  // namespace

std::vector<KeyStroke> keyStrokes(const std::string& keys) {
    std::vector<KeyStroke> strokes;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (keys[i] == '{') {
            const std::size_t end = keys.find('}', i);
            if (end == std::string::npos) throw std::invalid_argument("unclosed key name in \"" + keys + "\"");
            strokes.push_back(named(keys.substr(i + 1, end - i - 1)));
            i = end;
            continue;
        }
        const QChar c = QChar::fromLatin1(keys[i]);
        strokes.push_back({c.toUpper().unicode(), QString(c)});
    }
    return strokes;
}

}  // namespace petal
