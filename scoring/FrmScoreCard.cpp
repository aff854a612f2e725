#include "scoring/FrmScoreCard.h"

#include "cards/Val.h"
#include "shell/FrmMain.h"
#include "platform/Words.h"

namespace petal {

void FrmScoreCard::LoadGridHeader() {
    colWidths = {780, 1365, 1365};
    const int rows = f_.g.gRounds + 2;
    grid.assign(rows < 1 ? 1 : rows, std::vector<GridCell>(3));
    cell(0, 0).text = PETAL_TR("core", "Round");
    cell(0, 1).text = PETAL_TR("core", "Player");
    cell(0, 2).text = f_.g.gPlayMode == 0 ? PETAL_TR("core", "Computer") : PETAL_TR("core", "Opponent");
    for (int col = 0; col < 3; ++col) {
        cell(0, col).fontSize = 10;
        cell(0, col).bold = true;
        cell(0, col).alignment = 4;
    }
    rowHeightMin = 300;
    gridHeight = rows * 300 + 105;
    buttonStripTop = gridHeight + kGridTop + 30;
    formHeight = gridHeight + kButtonStripHeight + kLabelHeight + 150;
}

FrmScoreCard::~FrmScoreCard() {
    if (f_.scoreCard == this) f_.scoreCard = covered_;
}

void FrmScoreCard::Form_Load() {
    covered_ = f_.scoreCard;
    f_.scoreCard = this;
    const int rounds = f_.g.gRounds;
    LoadGridHeader();
    for (int i = 1; i <= rounds; ++i) {
        cell(i, 0).text = std::to_string(i);
        cell(i, 0).bold = true;
        cell(i, 0).fontSize = 10;
    }
    if (f_.g.gGameInProgress == 1) fillScores();
    GridCell& last = cell(rounds + 1, 0);
    last.bold = true;
    last.fontSize = 10;
    last.alignment = 7;
    judge();
    cell(rounds + 1, 1).backColor = cell(rounds + 1, 2).backColor = 0xC0C0C0;
}

void FrmScoreCard::fillScores() {
    const auto& scores = f_.g.gRoundScores;
    const int rounds = f_.g.gRounds;
    for (int i = 1; i <= rounds; ++i) {
        const int mine = scores[0].at(i), theirs = scores[1].at(i);
        cell(i, 1) = {std::to_string(mine), mine > theirs};
        cell(i, 2) = {std::to_string(theirs), theirs > mine};
    }
    cell(rounds + 1, 1) = {std::to_string(scores[0].at(0)), true};
    cell(rounds + 1, 2) = {std::to_string(scores[1].at(0)), true};
}

// The verdict reads the grid: a last round with no points for the player counts as unplayed.
void FrmScoreCard::judge() {
    const int rounds = f_.g.gRounds;
    GridCell& last = cell(rounds + 1, 0);
    if (Val(cell(rounds, 1).text) == 0) {
        last.text = PETAL_TR("core", "Total");
        return;
    }
    last.text = PETAL_TR("core", "Final");
    const long mine = Val(cell(rounds + 1, 1).text), theirs = Val(cell(rounds + 1, 2).text);
    lblFormCaption = theirs < mine    ? PETAL_TR("core", "You Win!")
                     : theirs == mine ? PETAL_TR("core", "Tie Game!")
                                      : PETAL_TR("core", "You Lose!");
}

void FrmScoreCard::Form_Activate() {
    if (mFromMenu || f_.g.gPlayMode <= 0) return;
    if (f_.g.gPlayMode == 1)
        f_.m.mLocalReady = false;
    else
        f_.m.mPeerReady = false;
    f_.sendToPeer("SCOP");
}

void FrmScoreCard::Form_Unload() {
    if (f_.scoreCard == this) f_.scoreCard = covered_;
    if (f_.g.gPlayMode == 1) {
        f_.m.mLocalReady = true;
    } else if (f_.g.gPlayMode == 2) {
        f_.m.mPeerReady = true;
        if (f_.socketState() == 7) f_.sendToPeer("SCCL");
    }
}

}  // namespace petal
