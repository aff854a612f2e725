#pragma once
// The settings file GARDENIA.ini beside the executable: four bare numbers, one a line, CR LF.
#include <array>
#include <filesystem>
#include <string>

namespace petal {

class Host;
struct Globals;

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
    void replaceUnplayable();

    Host& host_;
    Globals& g_;
    std::string& mainCaption_;
};

// The numbers of a settings text; throws FatalError on an empty text, a fifth number or one
// beyond 16 bits.
std::array<int, 4> parseSettings(const std::string& text, const std::filesystem::path& file);

}  // namespace petal
