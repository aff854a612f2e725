#include "platform/qt/SoundPlayer.h"

#include <QAudioDevice>
#include <QDir>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>
#include <filesystem>

namespace petal {

namespace {

void dropMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

// Without a sound server the audio backend prints its failure to connect while it looks for
// outputs. No sound is no fault of the game's, so the look says nothing.
bool hasAudioOutput() {
    const QtMessageHandler previous = qInstallMessageHandler(dropMessage);
    const bool found = !QMediaDevices::audioOutputs().isEmpty();
    qInstallMessageHandler(previous);
    return found;
}

}  // namespace

SoundPlayer::SoundPlayer(QObject* parent) : QObject(parent) {
    if (!hasAudioOutput()) return;
    for (const QString& name : QDir(QString::fromLatin1(kFolder)).entryList(QDir::Files)) {
        auto* effect = new QSoundEffect(this);
        effect->setSource(QUrl(QStringLiteral("qrc") + QString::fromLatin1(kFolder) + QLatin1Char('/') + name));
        loaded_[name] = effect;
    }
}

// Qt's sound effect falls silent for good when it is played again while it plays, as quick
// moves do. So each sound plays on an effect of its own, which finds the sample that the
// loaded one keeps decoded, and goes once it has played (or after the longest sound, whatever
// became of it). Past a few at once a sound is left out rather than piling up.
void SoundPlayer::play(const std::string& path) {
    constexpr int kMostVoices = 8;
    constexpr int kLongestMs = 4000;
    if (loaded_.empty()) return;
    const auto found = loaded_.find(QString::fromStdString(std::filesystem::path(path).filename().string()));
    if (found == loaded_.end()) return;
    std::erase_if(voices_, [](const QPointer<QSoundEffect>& voice) { return voice.isNull(); });
    if (voices_.size() >= kMostVoices) return;
    auto* voice = new QSoundEffect(this);
    voice->setSource(found->second->source());
    connect(voice, &QSoundEffect::playingChanged, voice, [voice] {
        if (!voice->isPlaying()) voice->deleteLater();
    });
    QTimer::singleShot(kLongestMs, voice, &QObject::deleteLater);
    voices_.emplace_back(voice);
    voice->play();
}

}  // namespace petal
