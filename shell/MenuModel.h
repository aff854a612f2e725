#pragma once
// The main window's menu bar as state: captions with their access keys, shortcut keys, and
// the Enabled flags that the game changes.
#include <string>
#include <vector>

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
    MenuItem mnuSetup{"mnuSetup", "&Setup", ""};
    // Ours: the strong computer's choice for the player, in single play on the player's turn.
    MenuItem mnuHint{"mnuHint", "&Hint", "H", false};
    MenuItem mnuStatistics{"mnuStatistics", "S&tatistics", "F8"};
    MenuItem mnuSep0{"mnuSep0", "", ""};
    // Our own options, check items that are on until the options file says otherwise.
    MenuItem mnuSound{"mnuSound", "S&ound", "", true, true, true};
    MenuItem mnuAnimations{"mnuAnimations", "&Animations", "", true, true, true};
    MenuItem mnuSep1{"mnuSep1", "", ""};
    MenuItem mnuExit{"mnuExit", "E&xit", ""};
    MenuItem mnuVChat{"mnuVChat", "&Chat", "F5"};
    MenuItem mnuVScore{"mnuVScore", "&Score", "F6"};
    MenuItem mnuVHallofFame{"mnuVHallofFame", "&Hall of Fame", "F7"};
    MenuItem mnuHAbout{"mnuHAbout", "&About", ""};
    MenuItem mnuHsep0{"mnuHsep0", "", ""};
    MenuItem mnuHHelp{"mnuHHelp", "&Help", ""};

    struct Menu {
        std::string name;
        std::string Caption;
        std::vector<MenuItem*> items;
    };
    std::vector<Menu> menus() {
        return {{"mnuGame", "Game",
                 {&mnuSetup, &mnuHint, &mnuStatistics, &mnuSep0, &mnuSound, &mnuAnimations, &mnuSep1, &mnuExit}},
                {"mnuView", "&View", {&mnuVChat, &mnuVScore, &mnuVHallofFame}},
                {"mnuHelp", "&Help", {&mnuHAbout, &mnuHsep0, &mnuHHelp}}};
    }
};

}  // namespace petal
