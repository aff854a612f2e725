#pragma once
// A file the program cannot use is moved out of the way beside itself, never deleted: the
// player may want it, and the next start finds the place free.
#include <filesystem>
#include <string>

namespace petal {

// Renames file to "<name>.bad", or "<name>.bad2" and on if that is taken. Returns the new path,
// or an empty one with the reason in failure.
std::filesystem::path setAside(const std::filesystem::path& file, std::string& failure);
// The name that setAside would give the file now, so that the player can be told it first;
// empty when 99 are taken.
std::filesystem::path asideName(const std::filesystem::path& file);

}  // namespace petal
