#include "SettingsTarget.h"

#include <climits>
#include <optional>

#include "FileRig.h"
#include "Policy.h"
#include "SettingsSampler.h"
#include "SimPlay.h"
#include "TableInvariants.h"
#include "platform/FatalError.h"
#include "records/FrmHOFWinner.h"
#include "records/Gardenia.h"
#include "records/HallOfFame.h"
#include "scoring/FrmScoreCard.h"
#include "shell/FrmSetup.h"

namespace petal::fuzz {

namespace {

constexpr int kMaxSteps = 5'000;  // far beyond a deal's events

// The values of a file as the program writes it (four numbers of 16 bits, each on a line of
// its own that CR LF ends, nothing else); nothing for any other file.
std::optional<std::array<int, 4>> asWritten(const std::string& bytes) {
    std::array<int, 4> values{};
    std::size_t at = 0;
    for (int& value : values) {
        const std::size_t end = bytes.find("\r\n", at);
        if (end == std::string::npos || end == at || end - at > 6) return std::nullopt;
        const std::string number = bytes.substr(at, end - at);
        if (number.find_first_not_of("-0123456789") != std::string::npos) return std::nullopt;
        const long parsed = std::strtol(number.c_str(), nullptr, 10);
        if (parsed < SHRT_MIN || parsed > SHRT_MAX || std::to_string(parsed) != number) return std::nullopt;
        value = static_cast<int>(parsed);
        at = end + 2;
    }
    if (at != bytes.size()) return std::nullopt;
    return values;
}

// The values of the game as the settings may leave them, and what follows from them.
std::string outOfRange(const FrmMain& f) {
    const Globals& g = f.g;
    if (g.gGameType != 0 && g.gGameType != 1) return "the game type is " + std::to_string(g.gGameType);
    if (g.gRounds < (g.gGameType == 1 ? 1 : 0) || g.gRounds > SHRT_MAX)
        return "the rounds are " + std::to_string(g.gRounds) + " in game type " + std::to_string(g.gGameType);
    if (g.gPlayMode != 0 || f.socketState() != 0 || f.menu.mnuVChat.Enabled) return "the program does not play alone";
    if (f.Caption != "Petalgarden") return "the caption is \"" + f.Caption + "\"";
    if (f.menu.mnuVScore.Enabled != (g.gGameType != 0)) return "the score card's menu does not follow the game type";
    return "";
}

struct DealWatch : GameEvents {
    void dealEnded() override { ++ended; }
    int ended = 0;
};

}  // namespace

SettingsTarget::SettingsTarget(std::filesystem::path scratch) : scratch_(std::move(scratch)) {
    // The records are not this target's: a file made once spares every run the making of it.
    FileRig maker(scratch_);
    SimHost host(maker.folder());
    HallOfFame(host).OpenHallOfFame();
    maker.read(HallOfFame::kFileName, emptyRecords_);
}

std::string SettingsTarget::run(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    ++inputs_;
    FileRig rig(scratch_);
    rig.write(Gardenia::kFileName, bytes);
    rig.write(HallOfFame::kFileName, emptyRecords_);
    SplitMix plan(FileRig::planSeed(bytes));
    rig.restoreDefaults = plan.chance(50);
    if (!rig.start()) return "at start: " + rig.failure();
    if (std::string broken = afterStart(rig, bytes); !broken.empty()) return "at start: " + broken;
    if (rig.host().ending()) return "";
    ++started_;
    const int movesFirst = plan.chance(50) ? static_cast<int>(plan.below(17)) : -1;
    if (movesFirst >= 0)
        if (std::string broken = playOut(rig, plan, movesFirst); !broken.empty()) return "before Setup: " + broken;
    if (rig.host().ending()) return "";  // the player said no to another game
    if (std::string broken = setup(rig, plan); !broken.empty()) return "in Setup: " + broken;
    if (std::string broken = playOut(rig, plan, -1); !broken.empty()) return "in the deal: " + broken;
    return "";
}

std::string SettingsTarget::afterStart(FileRig& rig, const std::string& bytes) {
    const std::string file = "\"" + rig.file(Gardenia::kFileName).string() + "\"";
    const std::optional<std::array<int, 4>> written = asWritten(bytes);
    const std::vector<MsgBox>& boxes = rig.boxes();
    const bool unreadable = !boxes.empty() && boxes[0].buttons == MsgButtons::RestoreDefaultsClose;
    if (unreadable) {
        ++refused_;
        if (written) return "a file as the program writes it cannot be read";
        if (boxes.size() != 1) return "a file that cannot be read, and " + std::to_string(boxes.size()) + " boxes";
        const std::string& text = boxes[0].text;
        const std::size_t at = text.find(file + " cannot be read: ");
        if (at == std::string::npos || boxes[0].icon != MsgIcon::Exclamation || text.size() < at + file.size() + 20)
            return "the box of a file that cannot be read does not name it, what failed and why: " + text;
    }
    std::string now, aside;
    if (unreadable && rig.restoreDefaults) {
        // Kept aside whole, and the game goes on with the defaults.
        if (rig.host().ending()) return "the program ended after Restore Defaults";
        if (!rig.read(std::string(Gardenia::kFileName) + ".bad", aside) || aside != bytes)
            return "the file put aside is not the one that could not be read";
        if (!rig.read(Gardenia::kFileName, now) || now != SettingsSampler::written(0, 10, -1, 0))
            return "after Restore Defaults the file does not hold the defaults";
        const Globals& g = rig.f().g;
        if (g.gGameType != 0 || g.gRounds != 10 || !g.gUseYaku) return "after Restore Defaults other values than these";
        return outOfRange(rig.f());
    }
    if (!rig.read(Gardenia::kFileName, now) || now != bytes) return "the start changed the settings file";
    if (rig.host().ending()) {
        if (!unreadable) return "the program ended at start without a file that cannot be read";
        if (rig.host().exitStatus() == 0) return "the program closed for its file with status 0";
        return "";
    }
    if (unreadable) return "the program goes on after Close";
    FrmMain& f = rig.f();
    if (std::string broken = outOfRange(f); !broken.empty()) return broken;
    SettingsText read;
    try {
        if (f.settings.ReadSettings() != (read = parseSettings(bytes, rig.file(Gardenia::kFileName))).values)
            return "the file reads as other values than its text";
    } catch (const FatalError& e) {
        return std::string("the file that the start read cannot be read again: ") + e.what();
    }
    const std::array<int, 4>& values = read.values;
    if (written && values != *written) return "a file as the program writes it reads as other values";
    const Globals& g = f.g;
    const bool told = !boxes.empty() &&
                      boxes[0].text.find(file + " holds values that the game cannot play with") != std::string::npos;
    if (boxes.size() > (told ? 1u : 0u)) return "a box at start: " + boxes.back().text;
    // A line that holds no number takes its default, as a value the game cannot play with does.
    const bool yakuKept = !read.noNumber[2] && g.gUseYaku == (values[2] != 0);
    if (read.noNumber[2] && !g.gUseYaku) return "a yaku flag of no number is not its default";
    if (!read.noNumber[2] && !yakuKept) return "the yaku flag is not the file's";
    const bool numbers = !read.noNumber[0] && !read.noNumber[1] && !read.noNumber[2];
    const bool kept = numbers && g.gGameType == values[0] && g.gRounds == values[1] && yakuKept;
    const bool playable = numbers && (values[0] == 0 || values[0] == 1) && values[1] >= (values[0] == 1 ? 1 : 0);
    if (playable && !kept) return "a value that the game plays with was replaced";
    if (kept == told)
        return kept ? "a box about values that stand as read" : "a value other than the file's without a word";
    if (told) ++replaced_;
    return "";
}

std::string SettingsTarget::setup(FileRig& rig, SplitMix& plan) {
    FrmMain& f = rig.f();
    const bool ok = plan.chance(70);
    rig.questionAnswer = plan.chance(50) ? MsgResult::Yes : MsgResult::No;
    std::string shown;
    rig.onForm = [&](Form& form) {
        auto* setup = dynamic_cast<FrmSetup*>(&form);
        if (!setup) return;
        const Globals& g = f.g;
        if (!setup->optGameType[g.gGameType] || setup->txtRounds.Text != std::to_string(g.gRounds) ||
            setup->chkUseYaku != (g.gUseYaku ? 1 : 0) || !setup->optGame[0])
            shown = "it shows other values than the game's";
        if (ok) setup->cmdOK_Click();
        if (setup->loaded()) setup->cmdCancel_Click();  // its box refused the rounds
    };
    std::string before, after;
    rig.read(Gardenia::kFileName, before);
    const Globals was = f.g;
    if (!rig.act([&] { f.mnuSetup_Click(); })) return rig.failure();
    rig.onForm = nullptr;
    rig.questionAnswer = MsgResult::No;
    if (!shown.empty()) return shown;
    if (rig.host().ending())
        return "Setup ended the program" + (rig.boxes().empty() ? std::string() : ": " + rig.boxes().back().text);
    if (std::string broken = outOfRange(f); !broken.empty()) return broken;
    if (!rig.read(Gardenia::kFileName, after)) return "the settings file is gone";
    const Globals& g = f.g;
    if (after == before) {
        if (g.gGameType != was.gGameType || g.gRounds != was.gRounds || g.gUseYaku != was.gUseYaku)
            return "the game's values changed, the file's did not";
        return "";
    }
    ++saved_;
    if (after != SettingsSampler::written(g.gGameType, g.gRounds, g.gUseYaku ? -1 : 0, 0))
        return "after OK the file is not the game's values as the program writes them";
    return "";
}

// Deals if no deal stands, then the local player moves as a policy has it: `moves` times, or
// (at -1) until the deal has ended. Winners give no name; score cards are closed; the
// question of another game is answered No, which ends the program.
std::string SettingsTarget::playOut(FileRig& rig, SplitMix& plan, int moves) {
    FrmMain& f = rig.f();
    if (rig.host().ending()) return "";
    DealWatch watch;
    f.events = &watch;
    rig.onForm = [](Form& form) {
        if (auto* winner = dynamic_cast<FrmHOFWinner*>(&form)) {
            winner->cmdCancel_Click();
        } else if (auto* card = dynamic_cast<FrmScoreCard*>(&form)) {
            card->cmdOK_Click();
        }
    };
    sim::Policy policy(true, plan.next());
    if (f.g.gGameInProgress == 0) {
        ++dealt_;
        rig.act([&] { f.dealer.imgDeck_Click(); });
    }
    int steps = 0, made = 0;
    while (rig.failure().empty() && !rig.host().ending() && watch.ended == 0 && (moves < 0 || made < moves)) {
        if (++steps > kMaxSteps) return "the deal does not end";
        bool acted = false;
        rig.act([&] { acted = sim::localMove(f, policy); });
        if (acted)
            ++made;
        else if (!rig.host().step())
            return "the deal stopped with nothing left to run (game " + std::to_string(f.g.gGameInProgress) + " turn " +
                   std::to_string(f.m.mTurn) + " plays " + std::to_string(f.m.mPlayerPlays) + "/" +
                   std::to_string(f.m.mCompPlays) + " pointer " + std::to_string(f.MousePointer()) + " flipped " +
                   std::to_string(f.m.mPlayerFlipped) + " made " + std::to_string(made) + " moves " +
                   std::to_string(moves) + ")";
    }
    f.events = nullptr;
    rig.onForm = nullptr;
    if (!rig.failure().empty()) return rig.failure();
    if (std::string broken = sim::TableInvariants::check(f); !broken.empty()) return broken;
    if (rig.host().ending()) return rig.host().exitStatus() == 0 ? "" : "the program ended after a failure";
    return outOfRange(f);
}

std::vector<std::uint8_t> SettingsTarget::sample(SplitMix& random) { return SettingsSampler(random).input(); }

std::string SettingsTarget::stats() const {
    return std::to_string(inputs_) + " inputs: " + std::to_string(started_) + " started (" + std::to_string(replaced_) +
           " with a value replaced), " + std::to_string(refused_) + " could not be read (about half put aside); " +
           std::to_string(dealt_) + " deals, " + std::to_string(saved_) + " saved from Setup";
}

}  // namespace petal::fuzz
