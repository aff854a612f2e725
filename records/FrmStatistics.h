#pragma once
// The player's record (Game → Statistics): one kind of game against one opponent at a time,
// its figures, the yaku made, and the margins of its last games for the chart.
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "platform/Form.h"
#include "records/GameResult.h"
#include "platform/Words.h"

namespace petal {

class Host;
class Statistics;

class FrmStatistics : public Form {
public:
    FrmStatistics(Host& host, Statistics& stats) : host_(host), stats_(stats) { Caption = PETAL_TR("core", "Statistics"); }
    const char* formName() const override { return "frmStatistics"; }

    struct Record {
        int kind;
        std::string opponent;
        std::string caption;
    };
    std::vector<Record> records;  // cboRecord's entries
    int cboRecordIndex = 0;
    // The chosen record's figures and yaku, a caption and a value each.
    std::vector<std::pair<std::string, std::string>> figures;
    std::array<std::pair<std::string, std::string>, 8> yakuMade;
    std::string chartCaption;
    std::vector<int> chartMargins;  // the oldest first
    bool cmdResetEnabled = false;

    void Form_Load() override;
    void cboRecord_Click(int index);
    void cmdReset_Click();
    void cmdClose_Click() { Unload(); }

private:
    void listRecords();
    void showRecord();

    Host& host_;
    Statistics& stats_;
    std::vector<GameResult> games_;
};

}  // namespace petal
