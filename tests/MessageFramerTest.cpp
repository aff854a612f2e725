// The receive path's framing: messages put back together across reads, taken apart when they
// come together, and the grammar's faults found, whatever the pieces.
#include <gtest/gtest.h>

#include "net/MessageFramer.h"

namespace petal::test {
namespace {

using Result = MessageFramer::Result;

// Feeds the stream in the given pieces, then lets it settle; the messages as texts.
std::vector<std::string> frame(const std::vector<std::string>& pieces, Result* last = nullptr) {
    MessageFramer framer;
    std::vector<WireMessage> out;
    Result result = Result::Ok;
    for (const std::string& piece : pieces) {
        result = framer.feed(piece, out);
        if (result != Result::Ok) break;
    }
    if (result == Result::Ok) result = framer.settle(out);
    if (last) *last = result;
    std::vector<std::string> texts;
    for (const WireMessage& m : out) texts.push_back(m.text);
    return texts;
}

struct Case {
    const char* name;
    std::vector<std::string> pieces;
    std::vector<std::string> messages;
};

TEST(MessageFramer, CutsTheStreamByTheGrammar) {
    const Case cases[] = {
        {"one of each", {"SEUP,1,10,-1"}, {"SEUP,1,10,-1"}},
        {"two moves in one read", {"CARD,3,-1CARD,17,5"}, {"CARD,3,-1", "CARD,17,5"}},
        {"bare words run together", {"SCOPSCCLQUIT"}, {"SCOP", "SCCL", "QUIT"}},
        {"a deal with a seed of any text", {"DEAL,1:02:03 PM,1NEWG,0"}, {"DEAL,1:02:03 PM,1", "NEWG,0"}},
        {"a chat line keeps its commas", {"CHAT,a,b,c"}, {"CHAT,a,b,c"}},
        {"a chat line ends where a move begins", {"CHAT,hello", "CARD,2,-1"}, {"CHAT,hello", "CARD,2,-1"}},
        {"a chat line ends where a bare word begins", {"CHAT,ggSCOP"}, {"CHAT,gg", "SCOP"}},
        {"an empty chat line", {"CHAT,"}, {"CHAT,"}},
    };
    for (const Case& c : cases) EXPECT_EQ(frame(c.pieces), c.messages) << c.name;
}

TEST(MessageFramer, EverySplitOfAStreamGivesTheSameMessages) {
    const std::string stream = "SEUP,1,5,0DEAL,12:00:00,1CARD,7,-1CHAT,x,ySCOPCARD,24,3SCCLNEWG,0QUIT";
    const std::vector<std::string> whole = frame({stream});
    ASSERT_EQ(whole.size(), 9u);
    for (std::size_t cut = 1; cut < stream.size(); ++cut)
        EXPECT_EQ(frame({stream.substr(0, cut), stream.substr(cut)}), whole) << "cut at " << cut;
}

TEST(MessageFramer, EveryChatLineArrivesAsOneLineAndReadsAsTyped) {
    const std::string lines[] = {"x CARD,1,-1 y", "I QUIT, SCOP it", "SCCLNEWG,0", "CARDEAL", "\x10" "CHAT,\x10\x10",
                                 "gg \xC3\xA9t\xC3\xA9", std::string(200, 'Q') + "UIT"};
    for (const std::string& line : lines) {
        const std::string sent = "CHAT," + chatText(line);
        for (const auto& pieces : {std::vector<std::string>{sent}, std::vector<std::string>{sent, "QUIT"}}) {
            const auto messages = frame(pieces);
            ASSERT_EQ(messages.size(), pieces.size()) << line;
            EXPECT_EQ(typedLine(std::string_view(messages[0]).substr(5)), line);
        }
    }
    EXPECT_EQ(chatText("plain, words \xC3\xA9"), "plain, words \xC3\xA9") << "a line without tag words goes as typed";
}

TEST(MessageFramer, FindsWhatIsNoMessage) {
    const std::vector<std::vector<std::string>> faults = {
        {"HELLO"}, {"CARD,x,1"}, {"CARD,3,,"}, {"NEWG,2"}, {"DEAL,12:00:00,7"}, {"CARD,123456,1"}, {"QUITX"},
        {"CARD,1,2", "garbage"}, {"CARD,1"}, {"SC"}, {"DEAL,12:00:00"},
    };
    for (const auto& pieces : faults) {
        Result result = Result::Ok;
        frame(pieces, &result);
        EXPECT_EQ(result, Result::Malformed) << pieces.front();
    }
    // What came whole before the fault is kept.
    Result result = Result::Ok;
    EXPECT_EQ(frame({"SCOPCARD,1,2?"}, &result), (std::vector<std::string>{"SCOP", "CARD,1,2"}));
    EXPECT_EQ(result, Result::Malformed);
}

TEST(MessageFramer, HoldsAnOpenEndUntilTheStreamSettlesAndBoundsWhatItHolds) {
    MessageFramer framer;
    std::vector<WireMessage> out;
    ASSERT_EQ(framer.feed("CARD,3,1", out), Result::Ok);
    EXPECT_TRUE(out.empty()) << "the number may go on";
    EXPECT_TRUE(framer.holding());
    ASSERT_EQ(framer.settle(out), Result::Ok);
    ASSERT_EQ(out.size(), 1u);
    EXPECT_EQ(out[0].field(0), "CARD");
    EXPECT_EQ(out[0].field(1), "3");
    EXPECT_EQ(out[0].field(2), "1");
    EXPECT_FALSE(out[0].findField(3));
    EXPECT_FALSE(framer.holding());

    // A closed message is taken at once.
    out.clear();
    framer.feed("NEWG,1", out);
    EXPECT_EQ(out.size(), 1u);

    // A flood without the end of a message is cut off, however small its pieces: one byte at a
    // time, it is still read in a moment.
    MessageFramer flooded;
    Result result = flooded.feed("CHAT,", out);
    for (int i = 0; i < 70'000 && result == Result::Ok; ++i) result = flooded.feed("z", out);
    EXPECT_EQ(result, Result::Overflow);
}

}  // namespace
}  // namespace petal::test
