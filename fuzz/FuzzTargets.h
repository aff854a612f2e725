#pragma once
// The fuzz targets by name, for the libFuzzer entry, the seeded fuzzer and the corpus replay.
// A new target (a file the program reads, say) is one entry in FuzzTargets.cpp and one line in
// fuzz/CMakeLists.txt.
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "FuzzTarget.h"

namespace petal::fuzz {

std::vector<std::string> fuzzTargetNames();
// nullptr for a name that is no target.
std::unique_ptr<FuzzTarget> makeFuzzTarget(std::string_view name, const std::filesystem::path& scratch);
// Where the targets keep their programs' folders: memory-backed if the machine has such a
// folder, for the many small writes of settings and records.
std::filesystem::path fuzzScratch();

}  // namespace petal::fuzz
