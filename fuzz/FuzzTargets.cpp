#include "FuzzTargets.h"

#include <unistd.h>

#include "HallOfFameTarget.h"
#include "NetTarget.h"
#include "SettingsTarget.h"

namespace petal::fuzz {

std::vector<std::string> fuzzTargetNames() { return {"net", "settings", "halloffame"}; }

std::unique_ptr<FuzzTarget> makeFuzzTarget(std::string_view name, const std::filesystem::path& scratch) {
    if (name == "net") return std::make_unique<NetTarget>(scratch);
    if (name == "settings") return std::make_unique<SettingsTarget>(scratch);
    if (name == "halloffame") return std::make_unique<HallOfFameTarget>(scratch);
    return nullptr;
}

std::filesystem::path fuzzScratch() {
    const std::filesystem::path shm = "/dev/shm";
    std::error_code ec;
    if (std::filesystem::is_directory(shm, ec) && ::access(shm.c_str(), W_OK) == 0) return shm;
    return std::filesystem::temp_directory_path();
}

}  // namespace petal::fuzz
