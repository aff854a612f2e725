// The Hall of Fame form: two pages spread from the store's text, the blank rows, the columns
// that follow the current game's type, and the name box.
#include "GameFixture.h"
#include "records/FrmHOF.h"
#include "records/FrmHOFWinner.h"

namespace petal::test {
namespace {

class HofView : public GameFixture {
protected:
    FrmHOF open() {
        FrmHOF form(program->g, program->hof);
        form.markLoaded();
        form.Form_Load();
        return form;
    }
};

TEST_F(HofView, TheTournamentPageFollowsTheCurrentGameType) {
    program->hof.AddHallOfFameEntry("Tomo", 120, 3, 5, 8);
    struct Case {
        int gameType;
        std::array<std::string, 3> last;
        std::string blankRnd;
    };
    for (const Case& c : {Case{1, {"5/8", "15", "0"}, ""}, Case{0, {"5", "8", "15"}, " "}}) {
        program->g.gGameType = c.gameType;
        FrmHOF form = open();
        form.cmdNext_Click();
        EXPECT_EQ(form.cells[0][1], "Tomo");
        EXPECT_EQ((std::array<std::string, 3>{form.cells[4][1], form.cells[5][1], form.cells[6][1]}), c.last);
        EXPECT_EQ(form.cells[4][2], c.blankRnd);
        EXPECT_TRUE(form.imgTourCaptionVisible);
        EXPECT_FALSE(form.cmdNextEnabled);
        form.cmdPrev_Click();
        EXPECT_EQ(form.cells[0][1], " ") << "back on the single page, which is empty";
        EXPECT_TRUE(form.imgSingCaptionVisible);
    }
}

// The name was cut at 20 code points: an emoji with a skin tone lost its tone or half of
// itself. It is cut at 20 characters as they are seen, and only well-formed UTF-8 is kept.
TEST_F(HofView, TheNameBoxCountsCharactersAsTheyAreSeenAndKeepsWellFormedText) {
    const std::string thumb = "\U0001F44D\U0001F3FD", accented = "e\u0301", emoji = "\U0001F600";
    const auto times = [](const std::string& text, int n) {
        std::string out;
        for (int i = 0; i < n; ++i) out += text;
        return out;
    };
    const std::pair<std::string, std::string> cases[] = {
        {"a" + times(emoji, 10), "a" + times(emoji, 10)},
        {"a" + times(thumb, 19), "a" + times(thumb, 19)},
        {"a" + times(thumb, 20), "a" + times(thumb, 19)},
        {times(accented, 21), times(accented, 20)},
        {"ab\xF0\x9F", "ab\uFFFD"},
        {"\xC0\xAFz", "\uFFFD\uFFFDz"},
    };
    for (const auto& [typed, kept] : cases) {
        FrmHOFWinner winner(program->g, program->hof);
        winner.setTxtHOFName(typed);
        EXPECT_EQ(winner.txtHOFName(), kept) << typed;
    }
}

TEST(HofDates, DateTextsAreWrittenMonthFirstAndOtherTextStands) {
    EXPECT_EQ(formatDate("1/2/2026"), "01/02/2026");
    EXPECT_EQ(formatDate("12/31/1999"), "12/31/1999");
    EXPECT_EQ(formatDate(" "), " ");
    EXPECT_EQ(formatDate("soon"), "soon");
}

}  // namespace
}  // namespace petal::test
