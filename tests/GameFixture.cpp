#include "GameFixture.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "cards/FrmCards.h"
#include "cards/Val.h"

namespace petal::test {

std::string fileText(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

GameFixture::GameFixture() : host(std::make_unique<SimHost>(dir.path())) {}

void GameFixture::start() {
    program = std::make_unique<Program>(*host);
    f = &program->frmMain;
    // The greeting is closed at once; the splash's own tests drive it themselves.
    auto script = std::move(host->onForm);
    host->onForm = [](Form& splash) { splash.Unload(true); };
    program->Main();
    host->onForm = std::move(script);
}

void GameFixture::restart(std::function<MsgResult(const MsgBox&)> answer) {
    program.reset();
    host = std::make_unique<SimHost>(dir.path());
    host->onMsgBox = std::move(answer);
    start();
}

void dealWith(FrmMain& f, const std::vector<int>& hand, const std::vector<int>& opposite,
              const std::vector<int>& table, const std::vector<int>& deck) {
    const std::vector<int> zones[4] = {hand, opposite, table, deck};
    const std::size_t sizes[4] = {8, 8, 8, 24};
    std::vector<bool> used(48, false);
    for (const auto& zone : zones)
        for (int c : zone) used.at(c) = true;
    // Places that the lists leave open take the unused cards in catalogue order.
    int next = 0;
    std::vector<int> order;
    for (int z = 0; z < 4; ++z)
        for (std::size_t i = 0; i < sizes[z]; ++i) {
            while (i >= zones[z].size() && used.at(next)) ++next;
            order.push_back(i < zones[z].size() ? zones[z][i] : next++);
        }
    f.dealer.DealCards();
    MainVars& m = f.m;
    for (int p = 0; p < 48; ++p) {
        m.mCards[p] = FrmCards::card(order[p] + 1);
        m.mDeck[p] = order[p] + 1;
    }
    const int h = f.g.gPlayMode == 2 ? 8 : 0;
    for (int i = 0; i < 8; ++i) {
        f.ctl.imgPCard[i].Picture = m.mCards[h + i].Picture;
        f.ctl.imgPCard[i].ToolTipText = cardToolTip(m.mCards[h + i]);
        f.ctl.imgTCard[i].Picture = m.mCards[16 + i].Picture;
        f.ctl.imgTCard[i].ToolTipText = cardToolTip(m.mCards[16 + i]);
    }
}

bool GameFixture::runOpponent(std::int64_t limitMs) {
    return host->runUntil([this] { return !f->tmrComputer.Enabled() || f->g.gGameInProgress == 0; }, limitMs);
}

int GameFixture::tagOf(const Image& image) const { return static_cast<int>(image.Tag.value()); }

std::vector<int> GameFixture::framedSlots() const {
    std::vector<int> slots;
    for (std::size_t i = 0; i < f->ctl.shpTHilite.size(); ++i)
        if (f->ctl.shpTHilite[i].Visible) slots.push_back(static_cast<int>(i));
    return slots;
}

std::vector<int> GameFixture::pileIndices(int side, int row) const {
    std::vector<int> indices;
    for (const Image& card : f->ctl.panel[side].piles[row])
        if (card.hasPicture()) indices.push_back(card.Picture);
    return indices;
}

}  // namespace petal::test
