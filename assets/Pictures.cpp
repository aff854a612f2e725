#include "assets/Pictures.h"

#include <array>
#include <stdexcept>
#include <string>

namespace petal {

namespace {

constexpr std::array<int, 24> kSlotCard = {25, 13, 17, 24, 12, 16, 24, 36, 29, 21, 33, 37,
                                           20, 32, 36, 28, 32, 8,  5,  1,  9,  4,  0,  8};

struct Registry {
    std::array<PictureInfo, pic::Count> entries{};
    std::array<std::string, pic::Count> names{};

    void set(PictureId id, std::string name, int w, int h, PictureId from = NoPicture,
             bool grey = false) {
        names[id] = std::move(name);
        entries[id] = {names[id], w, h, from, grey};
    }

    Registry() {
        for (int i = 0; i < 48; ++i) set(pic::card(i), "card" + two(i), 50, 80);
        for (int i = 0; i < 24; ++i) {
            set(pic::card(48 + i), "yaku" + std::to_string(48 + i), 50, 80, kSlotCard[i], true);
            set(pic::thumbGrey(i), "thumbGrey" + two(i), 25, 40, kSlotCard[i], true);
            set(pic::thumbColour(i), "thumbColour" + two(i), 25, 40, kSlotCard[i]);
        }
        set(pic::ThumbBack, "thumbBack", 25, 40, pic::CardBack);
        set(pic::CardBack, "back", 50, 80);
        set(pic::banner(0), "bannerWin", 431, 83);
        set(pic::banner(1), "bannerLose", 431, 83);
        set(pic::banner(2), "bannerTie", 431, 83);
        set(pic::Background, "background", 800, 600);
        set(pic::TableTop, "tableTop", 370, 209);
        set(pic::ScorePanel, "scorePanel", 333, 263);
        set(pic::turnMarker(0), "turnLocal", 120, 34);
        set(pic::turnMarker(1), "turnOpposite", 120, 34);
        set(pic::wildMarker(0), "wildLocal", 15, 24);
        set(pic::wildMarker(1), "wildOpposite", 15, 24);
        // The pointing hand: its hot spot, the fingertip, is at (9, 1).
        set(pic::HandCursor, "handCursor", 32, 32);
        set(pic::AppIcon, "appIcon", 256, 256);
        set(pic::SplashLeft, "splashLeft", 160, 240);
        set(pic::SplashRight, "splashRight", 160, 240);
        set(pic::HofSingleTitle, "hofSingleTitle", 400, 60);
        set(pic::HofTournamentTitle, "hofTournamentTitle", 400, 60);
        set(pic::SetupDecoration, "setupDecoration", 64, 96);
        set(pic::HofWinnerDecoration, "hofWinnerDecoration", 64, 96);
        for (int i = 0; i < 3; ++i)
            set(pic::connectionCard(i), "connectionCard" + std::to_string(i), 50, 80);
    }

    static std::string two(int i) { return (i < 10 ? "0" : "") + std::to_string(i); }
};

const Registry& registry() {
    static const Registry r;
    return r;
}

}  // namespace

int yakuSlotCard(int slot) { return kSlotCard.at(slot); }

const PictureInfo& pictureInfo(PictureId id) {
    if (id < 0 || id >= pic::Count) throw std::out_of_range("picture " + std::to_string(id));
    return registry().entries[id];
}

}  // namespace petal
