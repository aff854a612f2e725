#pragma once
// The picture registry: every picture the game shows has one identifier here. Controls hold
// identifiers, never pixels; the Qt side renders each identifier once from the artwork.
#include <string_view>

namespace petal {

using PictureId = int;
constexpr PictureId NoPicture = -1;

namespace pic {
// frmCards.imgCard(0..71): 0..47 the deck's faces, 48..71 the grey full-size yaku pictures.
constexpr PictureId card(int index) { return index; }
// ilsYaku (grey) and ilsYakuColor thumbnails by yaku slot 0..23 (the order of gYakuCodes).
constexpr PictureId thumbGrey(int slot) { return 72 + slot; }
constexpr PictureId thumbColour(int slot) { return 96 + slot; }
constexpr PictureId ThumbBack = 120;
constexpr PictureId CardBack = 121;
// frmCards.imgWinLose(0..2): win, lose, tie.
constexpr PictureId banner(int index) { return 122 + index; }
constexpr PictureId Background = 125;
constexpr PictureId TableTop = 126;
constexpr PictureId ScorePanel = 127;
constexpr PictureId turnMarker(int side) { return 128 + side; }
constexpr PictureId wildMarker(int side) { return 130 + side; }
constexpr PictureId HandCursor = 132;
constexpr PictureId AppIcon = 133;
constexpr PictureId SplashLeft = 134;
constexpr PictureId SplashRight = 135;
constexpr PictureId HofSingleTitle = 136;
constexpr PictureId HofTournamentTitle = 137;
constexpr PictureId SetupDecoration = 138;
constexpr PictureId HofWinnerDecoration = 139;
constexpr PictureId connectionCard(int i) { return 140 + i; }
constexpr int Count = 143;
}  // namespace pic

struct PictureInfo {
    std::string_view name;  // artwork file "assets/<name>.svg" for pictures drawn on their own
    int width;              // nominal size in pixels at 1x
    int height;
    PictureId derivedFrom;  // NoPicture, or the picture this one is scaled from
    bool grey;              // derived in greyscale
};

// The catalogue index (imgCard) that yaku slot 0..23 shows: the Tag of its image-list entry.
int yakuSlotCard(int slot);

const PictureInfo& pictureInfo(PictureId id);

}  // namespace petal
