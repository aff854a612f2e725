#include "platform/qt/SoundPlayer.h"

#include <QAudioDevice>
#include <QDir>
#include <QMediaDevices>
#include <QSoundEffect>
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
        effects_[name] = effect;
    }
}

void SoundPlayer::play(const std::string& path) {
    if (effects_.empty()) return;
    const auto found = effects_.find(QString::fromStdString(std::filesystem::path(path).filename().string()));
    if (found != effects_.end()) found->second->play();
}

}  // namespace petal
