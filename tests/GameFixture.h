#pragma once
// A program on the simulated host in a temporary folder, with helpers to lay out hand-built
// deals and to drive the game through its handlers as a user's clicks would.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

#include "cards/FrmCards.h"
#include "engine/table_view/TableFocus.h"
#include "platform/FatalError.h"
#include "platform/Form.h"
#include "shell/Program.h"
#include "platform/sim/SimHost.h"
#include "TempFolder.h"

namespace petal {
// A place of the keys in a failure's message: "Hand 3".
inline void PrintTo(const TableFocus::Place& place, std::ostream* out) {
    static const char* const kinds[] = {"TableTop", "Table", "Deck", "Hand", "Yaku"};
    *out << kinds[static_cast<int>(place.kind)] << ' ' << place.index;
}
}  // namespace petal

namespace petal::test {

using ::testing::HasSubstr;
using ::testing::Not;

using TempDir = sim::TempFolder;

// The bytes of a file, or none if it cannot be read.
std::string fileText(const std::filesystem::path& file);

// Deals with the given catalogue indices at positions 0.. (the rest follow in catalogue order):
// the local hand, the opposite hand, the table, then the deck.
void dealWith(FrmMain& f, const std::vector<int>& hand, const std::vector<int>& opposite,
              const std::vector<int>& table, const std::vector<int>& deck = {});

class GameFixture : public ::testing::Test {
protected:
    GameFixture();
    // The program started; a fixture that starts it otherwise overrides this.
    void SetUp() override { start(); }

    // Starts the program: the Hall of Fame, then the main form's load.
    void start();
    // A fresh host and program in the same folder, started again; `answer` answers its boxes.
    void restart(std::function<MsgResult(const MsgBox&)> answer = {});
    void dealWith(const std::vector<int>& hand, const std::vector<int>& opposite, const std::vector<int>& table,
                  const std::vector<int>& deck = {}) {
        test::dealWith(*f, hand, opposite, table, deck);
    }
    // Runs the simulated clock until the local player may act again or the deal has ended.
    bool runOpponent(std::int64_t limitMs = 60'000);

    int tagOf(const Image& image) const;
    std::vector<int> framedSlots() const;
    // Catalogue indices of the cards in one pile row of a side.
    std::vector<int> pileIndices(int side, int row) const;

    TempDir dir;
    std::unique_ptr<SimHost> host;
    std::unique_ptr<Program> program;
    FrmMain* f = nullptr;
};

}  // namespace petal::test
