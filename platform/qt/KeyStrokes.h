#pragma once
// The keys of a text in the notation of sendKeys: a character stands for its key, and a name
// in braces for a key that types none ("{F1}" to "{F12}", "{ENTER}", "{ESC}").
#include <QString>
#include <string>
#include <vector>

namespace petal {

struct KeyStroke {
    int key;       // a Qt::Key
    QString text;  // what the key types, empty for a function key
};

// Throws std::invalid_argument for a name it does not know, which is a fault of the caller.
std::vector<KeyStroke> keyStrokes(const std::string& keys);

}  // namespace petal
