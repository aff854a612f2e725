#pragma once
// The Hall of Fame form: two pages of ten rows, single games first, spread from the text
// that the store gives.
#include <array>
#include <string>
#include <vector>

#include "platform/Form.h"
#include "platform/Words.h"

namespace petal {

class HallOfFame;
struct Globals;

class FrmHOF : public Form {
public:
    static constexpr int kColumns = 7;

    FrmHOF(Globals& g, HallOfFame& hof) : g_(g), hof_(hof) { Caption = PETAL_TR("core", "Hall Of Fame"); }
    const char* formName() const override { return "frmHOF"; }

    // cells[column][row]: the label arrays lblName, lblDate, lblScore, lblYakus, lblRnd,
    // lblScoreAvg, lblYakuAvg; row 0 holds the heading.
    std::array<std::array<std::string, 11>, kColumns> cells{
        {{PETAL_TR("core", " PLAYER NAME")}, {PETAL_TR("core", "DATE")}, {PETAL_TR("core", "SCORE")}, {PETAL_TR("core", "YAKU")},
         {PETAL_TR("core", "RND")}, {PETAL_TR("core", "SCORE AVG")}, {PETAL_TR("core", "YAKU AVG")}}};
    bool imgSingCaptionVisible = false;
    bool imgTourCaptionVisible = false;
    bool cmdPrevEnabled = true;
    bool cmdNextEnabled = true;

    void Form_Load() override { showSinglePage(); }
    void cmdPrev_Click() { showSinglePage(); }
    void cmdNext_Click();
    void cmdClose_Click() { Unload(); }

private:
    void showSinglePage();
    // Splits the store's text into its ten rows of fields.
    static std::array<std::vector<std::string>, 10> rowsOf(const std::string& text);

    Globals& g_;
    HallOfFame& hof_;
};

// A date text in the form "mm/dd/yyyy"; a text that is no date stands as it is.
std::string formatDate(const std::string& text);

}  // namespace petal
