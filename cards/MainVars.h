#pragma once
// The form-level variables of the main form, in their order of declaration. Positions (0..47)
// name cards everywhere; slots index the control arrays.
#include <array>
#include <cstdint>
#include <string>

#include "assets/Pictures.h"
#include "cards/CardRecord.h"

namespace petal {

struct MainVars {
    bool mPeerReady = false;
    bool mLocalReady = false;
    bool mPeerScoreOpen = false;
    PictureId mCardBack = NoPicture;
    std::array<int, 48> mDeck{};          // card numbers (Index + 1) in shuffled order
    std::array<CardRecord, 48> mCards{};  // the cards by position
    int mDeckPos = 0;                     // last position dealt or flipped
    // mYakuCards(player, group): cards taken of each yaku group this deal.
    std::array<std::array<int, 8>, 2> mYakuCards{};
    std::array<int, 2> mYakuCount{};
    int mTournamentYakus = 0;
    // mPoints(player, kind, row): kind 0 count, 1 points; rows 20, 10, 5.
    std::array<std::array<std::array<int, 3>, 2>, 2> mPoints{};
    int mPlayerFlipped = 0;
    int mTurn = 0;  // 0 the local player, 1 the opposite side
    int mCompPhase = 0;
    int mCompCard = 0;
    int mCompDeckPos = 0;
    int mPlayerPlays = 0;
    int mCompPlays = 0;
    int mRoundNo = 0;
    bool mFlipDone = false;
    std::array<std::uint32_t, 2> mHiliteColor{};  // blue-green-red, by mTurn
    std::string mHostDealText, mClientDealText;
    std::string mHostRecv, mClientRecv;
    std::string mDealSeed;
    int mRemoteTableCard = -1;
    bool mAutoDeal = false;
    bool mReceiving = false;
    bool mConnected = false;
    // Our own: raised by every NewGame, so that a wait can tell that its deal has gone.
    int dealSerial = 0;
};

}  // namespace petal
