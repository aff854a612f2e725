#pragma once
// The settings file GARDENIA.ini as a fuzz target. An input is the file's bytes, laid in a
// fresh program folder before the program starts; a plan drawn from the bytes then has the
// player deal and move, open Setup and press OK or Cancel (and answer its question), and play
// the deal out.
//
// A failure is any of: a box that a player would never see or an exception out of the
// program; a start that changes the file; an end that is not one box naming the file and the
// reason, or that comes from a file as the program writes it; after a start, a value of the
// game out of its range (game type 0 or 1, rounds from 0, from 1 in a tournament, to 32767,
// single play), a value other than the file's without a box that says so, or the caption and
// the menus not as the values have them; Setup showing other values than the game's, or a
// file after OK that is not the values as the program writes them; a broken rule of the table.
#include <filesystem>
#include <string>

#include "FuzzTarget.h"

namespace petal::fuzz {

class FileRig;

class SettingsTarget : public FuzzTarget {
public:
    explicit SettingsTarget(std::filesystem::path scratch);

    const char* name() const override { return "settings"; }
    std::string run(const std::uint8_t* data, std::size_t size) override;
    std::vector<std::uint8_t> sample(SplitMix& random) override;
    std::string stats() const override;

    // Inputs whose program started, ended at once, and took a default for a value.
    long started() const { return started_; }
    long refused() const { return refused_; }
    long replaced() const { return replaced_; }
    long saved() const { return saved_; }

private:
    std::string afterStart(FileRig& rig, const std::string& bytes);
    std::string setup(FileRig& rig, SplitMix& plan);
    std::string playOut(FileRig& rig, SplitMix& plan, int moves);

    std::filesystem::path scratch_;
    std::string emptyRecords_;  // a Hall of Fame file as the program makes it, laid beside
    long inputs_ = 0, started_ = 0, refused_ = 0, replaced_ = 0, saved_ = 0, dealt_ = 0;
};

}  // namespace petal::fuzz
