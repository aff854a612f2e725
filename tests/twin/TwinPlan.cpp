#include "TwinPlan.h"

#include <sstream>

namespace petal::twin {

namespace {

std::vector<std::string> listOf(const std::string& text) {
    std::vector<std::string> items;
    std::istringstream in(text);
    for (std::string item; std::getline(in, item, ',');) items.push_back(item);
    return items;
}

}  // namespace

TwinPlan readTwinPlan(std::vector<std::string>& args) {
    TwinPlan plan;
    std::vector<std::string> rest;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        const bool valued = i + 1 < args.size();
        const std::string value = valued ? args[i + 1] : "";
        if (arg == "--chat") plan.chat = true;
        else if (!valued) rest.push_back(arg);
        else if (arg == "--folder") plan.folder = value, ++i;
        else if (arg == "--peer") plan.peer = value, ++i;
        else if (arg == "--seed") plan.seed = std::stoull(value), ++i;
        else if (arg == "--speed") plan.speed = std::stod(value), ++i;
        else if (arg == "--again") plan.again = listOf(value), ++i;
        else if (arg == "--reconnect") plan.reconnect = listOf(value), ++i;
        else if (arg == "--restart") plan.restart = listOf(value), ++i;
        else if (arg == "--cards") plan.cards = listOf(value), ++i;
        else if (arg == "--restart-after") plan.restartAfter = std::stoi(value), ++i;
        else if (arg == "--quit-after") plan.quitAfter = std::stoi(value), ++i;
        else if (arg == "--patience") plan.patienceMs = std::stoi(value), ++i;
        else rest.push_back(arg);
    }
    args = rest;
    return plan;
}

}  // namespace petal::twin
