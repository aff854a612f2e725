#pragma once
// The game's sounds, built into the program, played by Qt's sound effects: each is loaded and
// decoded once and plays without waiting. A machine without an audio output loads and plays
// nothing, and says nothing of it.
#include <QObject>
#include <QPointer>
#include <QString>
#include <map>
#include <string>
#include <vector>

class QSoundEffect;

namespace petal {

class SoundPlayer : public QObject {
    Q_OBJECT
public:
    // Where the sounds lie among the program's resources.
    static constexpr const char* kFolder = ":/assets/sounds";

    explicit SoundPlayer(QObject* parent = nullptr);

    // Plays the sound of the file name that ends path, "pyaku1.wav" for ".../pyaku1.wav"; a name
    // the program has no sound for plays nothing.
    void play(const std::string& path);
    // Whether an audio output was found and the sounds are loaded.
    bool available() const { return !loaded_.empty(); }

private:
    std::map<QString, QSoundEffect*> loaded_;
    std::vector<QPointer<QSoundEffect>> voices_;  // the sounds playing now
};

}  // namespace petal
