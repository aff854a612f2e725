#pragma once
// The form that asks a winner for a Hall of Fame name and stores the row.
#include <string>

#include "platform/Form.h"
#include "records/HallOfFame.h"
#include "platform/Words.h"

namespace petal {

struct Globals;

class FrmHOFWinner : public Form {
public:
    static constexpr std::size_t kMaxName = HallOfFame::kNameLength;

    FrmHOFWinner(Globals& g, HallOfFame& hof) : g_(g), hof_(hof) {}
    const char* formName() const override { return "frmHOFWinner"; }

    // Set by the caller before the form is shown.
    int mScore = 0;
    int mYakuCount = 0;
    int mRoundsWon = 0;
    int mRounds = 0;
    std::string mFormCaption;

    const std::string Label1 = PETAL_TR("core", "Enter your Hall of Fame Name");
    const std::string Label2 = PETAL_TR("core", "(Max 20 Characters)");
    const std::string& txtHOFName() const { return name_; }
    bool cmdOKEnabled() const { return okEnabled_; }

    void Form_Load() override;
    // The user's edit of the box; the box holds at most 20 characters, as a person counts
    // them, in well-formed UTF-8.
    void setTxtHOFName(const std::string& text);
    void cmdOK_Click();
    void cmdCancel_Click() { Unload(); }

private:
    void txtHOFName_Change() { okEnabled_ = !name_.empty(); }

    Globals& g_;
    HallOfFame& hof_;
    std::string name_;
    bool okEnabled_ = true;  // as built: no change of the text has happened yet
};

}  // namespace petal
