#pragma once
// The words a person reads. The core keeps them in English where it writes them, each marked
// PETAL_TR(context, text) so that the translation tools find it (they read the marker as
// QT_TRANSLATE_NOOP); the Qt side looks a text up where it shows it. A text made of parts is
// translated as a whole pattern, its parts %1 to %9, through the host, and then filled in.
#include <initializer_list>
#include <string>
#include <string_view>

#define PETAL_TR(context, text) text

namespace petal {

class Host;

// pattern with %1 to %9 replaced by args in order; any other % stays as it is.
std::string fillIn(std::string_view pattern, std::initializer_list<std::string_view> args);

// The host's translation of a pattern of the context "core", filled in with args.
std::string said(Host& host, const char* pattern, std::initializer_list<std::string_view> args = {});

}  // namespace petal
