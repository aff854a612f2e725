#pragma once
// The tournament's score card: a row per round, a column per side, the sums in the last row.
#include <cstdint>
#include <string>
#include <vector>

#include "platform/Form.h"
#include "platform/Words.h"

namespace petal {

class FrmMain;

struct GridCell {
    std::string text;
    bool bold = false;
    int fontSize = 8;
    int alignment = 0;              // 4 centred, 7 right-centred, 0 the default
    std::uint32_t backColor = 0xFFFFFF;  // blue-green-red
};

class FrmScoreCard : public Form {
public:
    explicit FrmScoreCard(FrmMain& f) : f_(f) {}
    ~FrmScoreCard() override;
    const char* formName() const override { return "frmScoreCard"; }

    bool mFromMenu = false;  // set by the View menu before showing

    // Twips, as the formulas size the form to the rounds.
    std::string lblFormCaption = PETAL_TR("core", "Tournament Score Card");
    static constexpr int kLabelHeight = 345;
    static constexpr int kGridTop = 360;
    static constexpr int kGridWidth = 3600;
    static constexpr int kButtonStripHeight = 525;
    std::vector<int> colWidths;
    int rowHeightMin = 0;
    int gridHeight = 0;
    int buttonStripTop = 0;
    int formHeight = 0;
    std::vector<std::vector<GridCell>> grid;  // grid[row][col]

    void LoadGridHeader();
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void cmdOK_Click() { Unload(); }

private:
    GridCell& cell(int row, int col) { return grid.at(row).at(col); }
    void fillScores();
    void judge();

    FrmMain& f_;
    FrmScoreCard* covered_ = nullptr;  // the card this one stands over, if any
};

}  // namespace petal
