#include "NetRig.h"

#include "TableInvariants.h"
#include "cards/Val.h"
#include "net/FrmConnectionStatus.h"
#include "net/MessageFramer.h"
#include "net/WireProtocol.h"
#include "platform/sim/SimNetwork.h"
#include "records/FrmHOFWinner.h"
#include "scoring/FrmScoreCard.h"
#include "shell/FrmSetup.h"

namespace petal::fuzz {

namespace {

// A correct peer's message is taken in once it has arrived and, if it ends in a number, the
// framer has waited for more.
constexpr std::int64_t kTakenInMs = WireProtocol::kSettleMs + 2 * SimNetwork::kLatency + 1;
constexpr std::int64_t kSetUpLimitMs = 10'000;

bool matches(const FrmMain& f, int position, int slot) {
    const Image& card = f.ctl.imgTCard[slot];
    if (!card.hasPicture()) return false;
    const CardRecord& played = f.m.mCards.at(position);
    return played.isWild() || f.m.mCards.at(card.Tag.value()).Flower == played.Flower;
}

int firstMatch(const FrmMain& f, int position) {
    for (std::size_t slot = 0; slot < f.ctl.imgTCard.size(); ++slot)
        if (matches(f, position, static_cast<int>(slot))) return static_cast<int>(slot);
    return -1;
}

}  // namespace

NetRig::NetRig(const Options& options, const std::filesystem::path& scratch)
    : options_(options),
      programFolder_(scratch),
      peerFolder_(scratch),
      host_(programFolder_.path()),
      peer_(world_, peerFolder_.path()) {
    world_.join(host_);
    program_ = std::make_unique<Program>(host_);
    f().events = this;
    host_.onMsgBox = [this](const MsgBox& box) { return answer(box); };
    host_.onForm = [this](Form& form) { onForm(form); };
    f().net.chatReceived = [this](const std::string& line) {
        // The framer cuts lines out of the stream; it never makes one up.
        if (typedLine(peer_.sent()).find("CHAT," + line) == std::string::npos)
            fail("a chat line that the peer never sent: \"" + line.substr(0, 40) + "\"");
    };
    act([this] { program_->Main(); });
}

NetRig::~NetRig() { world_.endAll(); }

MsgResult NetRig::answer(const MsgBox& box) {
    const std::string& title = box.title;
    if (title == "Play Again?") {
        questionOpen_ = true;
        host_.waitUntil([this] { return !holding_; });
        questionOpen_ = false;
        return MsgResult::Yes;
    }
    if (title == "Connection Successful" || title == "Out of Step" || title == "Remote Connection Closed" ||
        title == "Session Restarted" ||
        title == "Client Connection Closed" || title == "Rematch Declined" || title.rfind("Winsock Error ", 0) == 0 ||
        title.rfind("Connection Error ", 0) == 0)
        return MsgResult::OK;
    if (title == "Reconnect") return MsgResult::No;
    if (title == "Game In Progress" || title == "Cancel Connection" || title == "Close Connection" ||
        title == "Reset Game" || title == "Opponent Connected")
        return MsgResult::Yes;
    fail("the program showed \"" + box.text + "\" (" + title + ")");
    return box.buttons == MsgButtons::YesNo ? MsgResult::No : MsgResult::OK;
}

void NetRig::onForm(Form& form) {
    if (auto* setup = dynamic_cast<FrmSetup*>(&form)) {
        if (options_.hostSide) {
            setup->selectGameType(options_.tournament ? 1 : 0);
            if (options_.tournament) setup->setText(setup->txtRounds, std::to_string(kRounds));
            setup->chkUseYaku = options_.yaku ? 1 : 0;
            setup->selectGame(1);
        } else {
            // A host's options may have left rounds that the dialog refuses; the host's come anew.
            setup->setText(setup->txtRounds, std::to_string(kRounds));
            setup->selectGame(2);
            setup->setText(setup->txtHostIP, "127.0.0.1");
        }
        setup->cmdOK_Click();
    } else if (auto* status = dynamic_cast<FrmConnectionStatus*>(&form)) {
        host_.waitUntil([&] { return !status->loaded() || cancelWaits_ || f().g.gPlayMode == 0; });
        if (status->loaded()) status->cmdCancel_Click();
    } else if (auto* card = dynamic_cast<FrmScoreCard*>(&form)) {
        cardOpen_ = true;
        host_.waitUntil([&] { return !holding_ || !card->loaded() || cancelWaits_; });
        cardOpen_ = false;
        if (card->loaded()) card->cmdOK_Click();
    } else if (auto* winner = dynamic_cast<FrmHOFWinner*>(&form)) {
        winner->cmdCancel_Click();
    }
    if (form.loaded()) form.Unload();
}

bool NetRig::linkUp() {
    if (spent() || !peer_.connected() || f().socketState() != Socket::sckConnected) return false;
    const Globals& g = f().g;
    if (options_.hostSide) return g.gPlayMode == 1 && g.gConnectState == Socket::sckConnected;
    return g.gPlayMode == 2 && f().m.mConnected;
}

bool NetRig::sessionUp() {
    // A client may have taken other options from the bytes of an input: its session is not
    // the rig's any more.
    const Globals& g = f().g;
    return linkUp() &&
           (options_.hostSide || (g.gGameType == (options_.tournament ? 1 : 0) && g.gUseYaku == options_.yaku));
}

bool NetRig::startSession() {
    if (sessionUp()) return true;
    if (!settle()) return false;
    peer_.close();
    lastKey_.clear();
    scopSerial_ = ~0u;
    if (!options_.hostSide) peer_.listen(kPort);
    if (!act([this] { f().mnuSetup_Click(); })) return false;
    if (options_.hostSide) peer_.connect("127.0.0.1", kPort);
    ++sessions_;
    if (options_.hostSide) return runUntil([this] { return sessionUp() && !host_.waiting(); }, kSetUpLimitMs);
    // The client waits for its host's first deal in a modal form, its options taken from SEUP.
    if (!runUntil([this] { return linkUp() && f().connectionStatus; }, kSetUpLimitMs)) return false;
    peer_.send("SEUP," + std::to_string(options_.tournament ? 1 : 0) + "," + std::to_string(kRounds) + "," +
               (options_.yaku ? "-1" : "0"));
    return runFor(kTakenInMs) && sessionUp();
}

bool NetRig::settle() {
    holding_ = false;
    for (int round = 0; round < 40 && !spent(); ++round) {
        if (!host_.waiting()) {
            cancelWaits_ = false;
            return true;
        }
        // A wait that no correct peer ends is the player's to cancel.
        if (round >= 20) cancelWaits_ = true;
        // A wait looks at what it waits for only when its program runs: a program with nothing
        // due is given an empty turn.
        if (!act([] {})) break;
        if (!host_.waiting()) continue;
        if (!sendLegal() && !runFor(600)) break;
    }
    cancelWaits_ = false;
    return !spent() && !host_.waiting();
}

std::string NetRig::stateKey() {
    const FrmMain& f = this->f();
    const MainVars& m = f.m;
    std::string key;
    for (long v : {long(f.dealer.serial()), long(m.mCompPlays), long(m.mPlayerPlays), long(m.mCompPhase), long(m.mTurn),
                   long(f.g.gGameInProgress), long(f.scoreCard != nullptr), long(f.connectionStatus != nullptr),
                   long(m.mAutoDeal), long(m.mPeerReady), long(m.mPeerScoreOpen),
                   long(sim::TableInvariants::dealStands(f)), long(f.net.nextMove() != nullptr), long(sessions_)})
        key += std::to_string(v) + ",";
    return key;
}

std::string NetRig::legalPeerMessage() {
    const std::string message = peerMessage();
    if (message.empty()) return message;
    const std::string key = stateKey() + message;
    if (key == lastKey_) return "";
    lastKey_ = key;
    return message;
}

bool NetRig::sendLegal() {
    const std::string message = legalPeerMessage();
    if (message.empty()) return false;
    peer_.send(message);
    return runFor(kTakenInMs);
}

// The other copy of the game, as far as this program's state shows what it would do.
std::string NetRig::peerMessage() {
    FrmMain& f = this->f();
    const MainVars& m = f.m;
    const TableModel& c = f.ctl;
    if (spent() || f.g.gPlayMode <= 0 || !peer_.connected()) return "";
    if (f.connectionStatus && f.connectionStatus->StatusCaption == "Please Wait...") return "NEWG,0";
    if (f.g.gGameInProgress == 1 && m.mTurn == 1 && f.tmrComputer.Enabled() && !f.net.nextMove()) {
        if (m.mCompPhase == 0) {
            for (int s = 0; s < 8; ++s) {
                const Image& card = c.imgCCard[s];
                if (!card.hasPicture() || card.Tag == "-1") continue;
                const int position = static_cast<int>(card.Tag.value());
                if (options_.hostSide && position != s + 8) continue;
                return "CARD," + std::to_string(s) + "," + std::to_string(firstMatch(f, position));
            }
        }
        if (m.mCompPhase == 3 && c.imgFlipCard.hasPicture() && c.imgFlipCard.Tag.value() == m.mCompDeckPos)
            return "CARD," + c.imgFlipCard.Tag + "," + std::to_string(firstMatch(f, m.mCompDeckPos));
    }
    const bool dealOver = m.mPlayerPlays == 8 && m.mCompPlays == 8;
    if (f.g.gGameType == 1 && dealOver && !f.scoreCard && scopSerial_ != f.dealer.serial()) {
        scopSerial_ = f.dealer.serial();
        return "SCOP";
    }
    if (options_.hostSide) return m.mAutoDeal && !m.mPeerReady && !f.scoreCard ? "SCCL" : "";
    // The host deals whenever the client's table is bare and nothing stands before it.
    if (!sim::TableInvariants::dealStands(f) && !f.scoreCard && !questionOpen_ &&
        (f.g.gGameInProgress == 0 || m.mAutoDeal))
        return "DEAL," + host_.timeText() + (f.dealer.serial() % 2 ? ",1" : ",0");
    return "";
}

bool NetRig::act(const std::function<void()>& fn) {
    try {
        world_.act(host_, fn);
    } catch (const std::exception& e) {
        fail(std::string("the program failed: ") + e.what());
    }
    return failure_.empty();
}

bool NetRig::runUntil(const std::function<bool()>& done, std::int64_t ms, int maxSteps) {
    const std::int64_t end = world_.now() + ms;
    int steps = 0;
    bool spun = false;
    bool reached = false;
    try {
        reached = world_.runUntil(
            [&] {
                if (done()) return true;
                spun = ++steps > maxSteps;
                return spun;
            },
            ms);
    } catch (const std::exception& e) {
        fail(std::string("the program failed: ") + e.what());
        return false;
    }
    if (spun)
        fail("the program spins: " + std::to_string(maxSteps) + " events with " + std::to_string(end - world_.now()) +
             " ms of virtual time left");
    return reached && !spun && failure_.empty();
}

bool NetRig::runFor(std::int64_t ms, int maxSteps) {
    const std::int64_t end = world_.now() + ms;
    runUntil([] { return false; }, ms, maxSteps);
    if (!failure_.empty()) return false;
    try {
        world_.advance(end - world_.now());
    } catch (const std::exception& e) {
        fail(std::string("the program failed: ") + e.what());
    }
    return failure_.empty();
}

}  // namespace petal::fuzz
