// Chat between two programs over the simulated network, driven as the two players would: the
// line that opens the other side's form by itself, the keys, the scrolling, and chat in the
// middle of a turn.
#include <algorithm>

#include "NetFixture.h"
#include "net/FrmPetalChat.h"

namespace petal::test {
namespace {

using Lines = std::vector<std::string>;
constexpr int kEnter = FrmPetalChat::kKeyEnter;
constexpr int kEscape = FrmPetalChat::kKeyEscape;

class NetChat : public NetFixture {
protected:
    NetChat() {
        // A chat form stays on screen until the test closes it, as a player would leave it.
        for (Side* side : {&host, &client}) {
            side->onForm = [side, others = side->onForm](Form& form) {
                if (auto* chat = dynamic_cast<FrmPetalChat*>(&form))
                    side->host.waitUntil([chat] { return !chat->loaded(); });
                else
                    others(form);
            };
        }
    }
    // The form on this side's screen, or nullptr.
    static FrmPetalChat* chat(Side& side) {
        FrmPetalChat* form = side.f().chat.form();
        return form && form->loaded() ? form : nullptr;
    }
    // F5, which the menu offers only while it is enabled.
    void openChat(Side& side) {
        ASSERT_TRUE(side.f().menu.mnuVChat.Enabled);
        act(side, [&] { side.f().mnuVChat_Click(); });
        ASSERT_NE(chat(side), nullptr);
    }
    // Types a line and presses Enter; true once the other side has it.
    bool say(Side& from, Side& to, const std::string& text) {
        const int before = chat(to) ? chat(to)->lstChat.ListCount() : 0;
        act(from, [&] {
            chat(from)->setTxtMsg(text);
            chat(from)->txtMsg_KeyPress(kEnter);
        });
        return runUntil([&] { return chat(to) && chat(to)->lstChat.ListCount() > before; });
    }
    void key(Side& side, int ascii) {
        act(side, [&] {
            FrmPetalChat& form = *chat(side);
            form.Form_KeyPress(ascii);
            if (form.loaded() && form.ActiveControl == FrmPetalChat::Focus::txtMsg) form.txtMsg_KeyPress(ascii);
        });
    }
};

// The other side's form opens by itself with the line whole behind the marker; its player
// answers with that line double-clicked, marker and all; once closed, the next line starts an
// empty conversation.
TEST_F(NetChat, ALineOpensTheOtherSidesFormWholeBehindTheMarker) {
    ASSERT_TRUE(connect());
    openChat(client);
    EXPECT_EQ(chat(client)->Caption, "Petalgarden Chat");
    ASSERT_TRUE(say(client, host, "one, CARD,1,-1 two,,three"));
    EXPECT_EQ(chat(client)->lstChat.List, Lines{"one, CARD,1,-1 two,,three"}) << "a sent line stands bare";
    EXPECT_EQ(chat(host)->lstChat.List, Lines{">>>one, CARD,1,-1 two,,three"});
    FrmPetalChat& answer = *chat(host);
    act(host, [&] {
        answer.lstChat.ListIndex = 0;
        answer.lstChat_DblClick();
    });
    EXPECT_TRUE(answer.cmdSend.Enabled);
    ASSERT_TRUE(say(host, client, answer.txtMsg.Text));
    EXPECT_EQ(chat(client)->lstChat.List, (Lines{"one, CARD,1,-1 two,,three", ">>>>>>one, CARD,1,-1 two,,three"}));

    act(host, [&] { chat(host)->cmdClose_Click(); });
    ASSERT_EQ(host.f().chat.form(), nullptr);
    ASSERT_TRUE(say(client, host, "again"));
    EXPECT_EQ(chat(host)->lstChat.List, Lines{">>>again"});
    EXPECT_EQ(std::count(host.formsShown.begin(), host.formsShown.end(), "frmPetalChat"), 2);
}

// The first two lines are whole in the read that brings them and are dispatched before the
// form can open; the last runs to the end of the bytes and comes once the stream has settled.
TEST_F(NetChat, LinesThatComeWhileTheFormOpensAreAllInIt) {
    ASSERT_TRUE(connect());
    act(client, [&] { client.f().sendToPeer("CHAT,first, lineCHAT,secondCHAT,third"); });
    ASSERT_TRUE(runUntil([&] { return chat(host) != nullptr; }));
    EXPECT_EQ(chat(host)->lstChat.List, (Lines{">>>first, line", ">>>second"}));
    ASSERT_TRUE(runUntil([&] { return chat(host)->lstChat.ListCount() == 3; }));
    EXPECT_EQ(std::count(host.formsShown.begin(), host.formsShown.end(), "frmPetalChat"), 1);
}

TEST_F(NetChat, EnterSendsOnlyTextAndEscapeClears) {
    ASSERT_TRUE(connect());
    openChat(client);
    FrmPetalChat& form = *chat(client);
    act(client, [&] { EXPECT_EQ(form.txtMsg_KeyPress(kEnter), kEnter) << "an empty box leaves Enter alone"; });
    world.advance(1000);
    EXPECT_TRUE(form.lstChat.List.empty());
    EXPECT_EQ(chat(host), nullptr) << "nothing was sent";
    act(client, [&] { form.setTxtMsg(std::string(250, 'x')); });
    EXPECT_EQ(form.txtMsg.Text.size(), FrmPetalChat::kMaxLine);
    EXPECT_TRUE(form.cmdSend.Enabled);
    key(client, kEscape);
    EXPECT_EQ(form.txtMsg.Text, "");
    EXPECT_FALSE(form.cmdSend.Enabled);
}

// Sent lines from the client, the last one received from the host.
TEST_F(NetChat, TheFifteenthLineSentOrReceivedStartsTheScrolling) {
    ASSERT_TRUE(connect());
    openChat(client);
    for (int line = 1; line <= 16; ++line) {
        ASSERT_TRUE(line < 16 ? say(client, host, "line") : say(host, client, "line"));
        const int top = line < 15 ? 0 : line - 12;
        EXPECT_EQ(chat(client)->lstChat.TopIndex, top) << "after line " << line;
        EXPECT_EQ(chat(host)->lstChat.TopIndex, top) << "after line " << line;
    }
}

// The player on turn chats while a flipped card waits for the click; the other side, polling
// for that move, shows the line and replays the move with its chat still open.
TEST_F(NetChat, ChatWhileAFlippedCardWaitsDoesNotStopTheGame) {
    ASSERT_TRUE(connect());
    ASSERT_TRUE(deal());
    Side* mover = nullptr;
    ASSERT_TRUE(playUntil([&] {
        for (Side* side : {&host, &client})
            if (side->f().m.mTurn == 0 && side->f().ctl.shpFlipCard.Visible) mover = side;
        return mover != nullptr;
    }));
    Side& other = mover == &host ? client : host;
    ASSERT_TRUE(runUntil([&] { return other.f().m.mCompPhase == 3 && other.f().ctl.imgFlipCard.hasPicture(); }));

    openChat(*mover);
    ASSERT_TRUE(say(*mover, other, "let me think, a moment"));
    EXPECT_EQ(chat(other)->lstChat.List, Lines{">>>let me think, a moment"});
    key(*mover, kEscape);  // the box is empty after the send: Escape closes
    ASSERT_EQ(chat(*mover), nullptr);

    ASSERT_TRUE(playUntil([&] { return other.f().m.mTurn == 0 && !other.f().tmrComputer.Enabled(); }));
    EXPECT_NE(chat(other), nullptr) << "the move was replayed behind the open chat";

    // The other player closes the chat and plays on; the two tables still mirror each other.
    act(other, [&] { chat(other)->cmdClose_Click(); });
    const int played = other.f().m.mPlayerPlays;
    ASSERT_TRUE(playUntil([&] { return mover->f().m.mCompPlays > played && mover->f().m.mTurn == 0; }));
    EXPECT_GT(other.f().g.gPlayMode, 0) << "the session goes on";
    for (std::size_t i = 0; i < host.f().ctl.imgTCard.size(); ++i)
        EXPECT_EQ(host.f().ctl.imgTCard[i].Tag, client.f().ctl.imgTCard[i].Tag) << "table slot " << i;
}

}  // namespace
}  // namespace petal::test
