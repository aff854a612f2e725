#pragma once
// The main window's menu bar as state: captions with their access keys, shortcut keys, and
// the Enabled flags that the game changes.
#include <string>
#include <vector>

#include "platform/Words.h"

namespace petal {

struct MenuItem {
    std::string name;
    std::string Caption;  // "&" marks the access key; empty for a separator
    std::string shortcut;
    bool Enabled = true;
    bool checkable = false;  // a check item, whose mark is Checked
    bool Checked = false;
    bool separator() const { return Caption.empty(); }
};

struct MenuModel {
    MenuItem mnuSetup{"mnuSetup", PETAL_TR("core", "&Setup"), ""};
    // Ours: the strong computer's choice for the player, in single play on the player's turn.
    MenuItem mnuHint{"mnuHint", PETAL_TR("core", "&Hint"), "H", false};
    MenuItem mnuStatistics{"mnuStatistics", PETAL_TR("core", "S&tatistics"), "F8"};
    MenuItem mnuSep0{"mnuSep0", "", ""};
    // Our own options, check items that are on until the options file says otherwise.
    MenuItem mnuSound{"mnuSound", PETAL_TR("core", "S&ound"), "", true, true, true};
    MenuItem mnuAnimations{"mnuAnimations", PETAL_TR("core", "&Animations"), "", true, true, true};
    MenuItem mnuSep1{"mnuSep1", "", ""};
    MenuItem mnuExit{"mnuExit", PETAL_TR("core", "E&xit"), ""};
    MenuItem mnuVChat{"mnuVChat", PETAL_TR("core", "&Chat"), "F5"};
    MenuItem mnuVScore{"mnuVScore", PETAL_TR("core", "&Score"), "F6"};
    MenuItem mnuVHallofFame{"mnuVHallofFame", PETAL_TR("core", "&Hall of Fame"), "F7"};
    MenuItem mnuHAbout{"mnuHAbout", PETAL_TR("core", "&About"), ""};
    MenuItem mnuHsep0{"mnuHsep0", "", ""};
    MenuItem mnuHHelp{"mnuHHelp", PETAL_TR("core", "&Help"), ""};

    struct Menu {
        std::string name;
        std::string Caption;
        std::vector<MenuItem*> items;
    };
    std::vector<Menu> menus() {
        return {{"mnuGame", PETAL_TR("core", "Game"),
                 {&mnuSetup, &mnuHint, &mnuStatistics, &mnuSep0, &mnuSound, &mnuAnimations, &mnuSep1, &mnuExit}},
                {"mnuView", PETAL_TR("core", "&View"), {&mnuVChat, &mnuVScore, &mnuVHallofFame}},
                {"mnuHelp", PETAL_TR("core", "&Help"), {&mnuHAbout, &mnuHsep0, &mnuHHelp}}};
    }
};

}  // namespace petal
