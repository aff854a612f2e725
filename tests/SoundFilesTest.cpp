// The sounds built into the program: one for every name the game asks for, each 16-bit mono
// PCM as Qt's sound effects play it, as long as its kind of sound, neither silent nor clipped.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QtEndian>

#include "platform/qt/SoundPlayer.h"

namespace petal::test {
namespace {

TEST(SoundFiles, EveryNameTheGameAsksForIsAPlayableSoundOfItsLength) {
    // Each name with the shortest and longest it may last, in seconds.
    std::map<QString, std::pair<double, double>> expected{
        {"lay.wav", {0.08, 0.3}}, {"capture.wav", {0.08, 0.3}}, {"flip.wav", {0.1, 0.35}}, {"chat.wav", {0.3, 1}}, {"Tie.wav", {0.8, 2.5}}};
    for (int n = 1; n <= 4; ++n) expected[QString("pyaku%1.wav").arg(n)] = expected[QString("cyaku%1.wav").arg(n)] = {0.5, 1.5};
    for (int n = 1; n <= 3; ++n) expected[QString("pwin%1.wav").arg(n)] = expected[QString("cwin%1.wav").arg(n)] = {0.8, 2.5};
    const QDir folder(QString::fromLatin1(SoundPlayer::kFolder));
    EXPECT_EQ(folder.entryList(QDir::Files).size(), qsizetype(expected.size()));
    for (const auto& [name, span] : expected) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        // The plain header of 44 bytes that the script writes.
        const QByteArray wav = file.readAll();
        const char* head = wav.constData();
        ASSERT_TRUE(wav.startsWith("RIFF") && wav.mid(8, 8) == "WAVEfmt " && wav.mid(36, 4) == "data") << name.toStdString();
        EXPECT_EQ(qFromLittleEndian<quint16>(head + 20), 1) << name.toStdString() << " is not PCM";
        EXPECT_EQ(qFromLittleEndian<quint16>(head + 22), 1) << name.toStdString() << " is not mono";
        EXPECT_EQ(qFromLittleEndian<quint16>(head + 34), 16) << name.toStdString();
        const qsizetype bytes = qFromLittleEndian<quint32>(head + 40);
        ASSERT_EQ(bytes, wav.size() - 44) << name.toStdString();
        const double seconds = bytes / 2.0 / qFromLittleEndian<quint32>(head + 24);
        EXPECT_TRUE(seconds >= span.first && seconds <= span.second) << name.toStdString() << " lasts " << seconds << " s";
        int peak = 0;
        for (qsizetype i = 44; i + 1 < wav.size(); i += 2) peak = std::max(peak, std::abs(int(qFromLittleEndian<qint16>(head + i))));
        EXPECT_TRUE(peak > 32767 / 5 && peak < 32767) << name.toStdString() << " peaks at " << peak;
    }
}

}  // namespace
}  // namespace petal::test
