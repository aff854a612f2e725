#pragma once
// The settings file GARDENIA.ini beside the executable: four bare numbers, one a line, CR LF.
#include <array>
#include <filesystem>
#include <string>

namespace petal {

class FatalError;
class Host;
struct Globals;

// What a settings file holds: its four numbers, and the lines that hold no number at all (read
// as 0). A byte-order mark of UTF-8 or UTF-16 is read as such.
struct SettingsText {
    std::array<int, 4> values{};
    std::array<bool, 4> noNumber{};
};

class Gardenia {
public:
    static constexpr const char* kFileName = "GARDENIA.ini";

    // mainCaption is the main window's title, which the play mode sets.
    Gardenia(Host& host, Globals& g, std::string& mainCaption);

    void LoadSettings();
    std::array<int, 4> ReadSettings() const;
    void WriteSettings(int GameType, int Rounds, int UseYaku, int PlayMode);

    std::filesystem::path path() const;

private:
    SettingsText read() const;
    void restoreDefaultsOrClose(const FatalError& failure);
    void replaceUnplayable(const std::array<bool, 4>& noNumber);

    Host& host_;
    Globals& g_;
    std::string& mainCaption_;
};

// Throws FatalError on a text with no number in it, a fifth number or one beyond 16 bits.
SettingsText parseSettings(const std::string& bytes, const std::filesystem::path& file);

}  // namespace petal
