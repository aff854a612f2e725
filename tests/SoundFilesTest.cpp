// The sounds built into the program: one for every name the game asks for, each plain 16-bit
// PCM as Qt's sound effects play it, as long as its kind of sound, neither silent nor clipped.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QtEndian>
#include <algorithm>

#include "platform/qt/SoundPlayer.h"

namespace petal::test {
namespace {

struct Wave {
    int format = 0, channels = 0, rate = 0, bits = 0;
    QByteArray data;
};

// The chunks of a RIFF file; fields it does not have stay 0.
Wave readWave(const QByteArray& file) {
    Wave wave;
    if (!file.startsWith("RIFF") || file.mid(8, 4) != "WAVE") return wave;
    for (qsizetype at = 12; at + 8 <= file.size();) {
        const QByteArray id = file.mid(at, 4);
        const auto size = qFromLittleEndian<quint32>(file.constData() + at + 4);
        const char* body = file.constData() + at + 8;
        if (id == "fmt " && size >= 16) {
            wave.format = qFromLittleEndian<quint16>(body);
            wave.channels = qFromLittleEndian<quint16>(body + 2);
            wave.rate = static_cast<int>(qFromLittleEndian<quint32>(body + 4));
            wave.bits = qFromLittleEndian<quint16>(body + 14);
        } else if (id == "data") {
            wave.data = file.mid(at + 8, size);
        }
        at += 8 + size + (size & 1);
    }
    return wave;
}

TEST(SoundFiles, EveryNameTheGameAsksForIsAPlayableSoundOfItsLength) {
    struct Kind {
        const char* names;  // a wildcard
        double least, most;  // seconds
    };
    const Kind kinds[] = {{"lay.wav", 0.08, 0.3}, {"capture.wav", 0.08, 0.3}, {"flip.wav", 0.1, 0.35},
                          {"chat.wav", 0.3, 1.0}, {"?yaku?.wav", 0.5, 1.5},   {"?win?.wav", 0.8, 2.5},
                          {"Tie.wav", 0.8, 2.5}};
    QStringList expected{"lay.wav", "capture.wav", "flip.wav", "chat.wav", "Tie.wav"};
    for (int n = 1; n <= 4; ++n) expected << QString("pyaku%1.wav").arg(n) << QString("cyaku%1.wav").arg(n);
    for (int n = 1; n <= 3; ++n) expected << QString("pwin%1.wav").arg(n) << QString("cwin%1.wav").arg(n);
    const QDir folder(QString::fromLatin1(SoundPlayer::kFolder));
    QStringList found = folder.entryList(QDir::Files);
    found.sort();
    expected.sort();
    EXPECT_EQ(found, expected);

    for (const QString& name : found) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        const Wave wave = readWave(file.readAll());
        EXPECT_EQ(wave.format, 1) << name.toStdString();
        EXPECT_EQ(wave.channels, 1) << name.toStdString();
        EXPECT_EQ(wave.bits, 16) << name.toStdString();
        ASSERT_GT(wave.rate, 0) << name.toStdString();
        const auto* kind = std::find_if(std::begin(kinds), std::end(kinds),
                                        [&](const Kind& k) { return QDir::match(QString::fromLatin1(k.names), name); });
        ASSERT_NE(kind, std::end(kinds)) << name.toStdString();
        const double seconds = wave.data.size() / 2.0 / wave.rate;
        EXPECT_GE(seconds, kind->least) << name.toStdString();
        EXPECT_LE(seconds, kind->most) << name.toStdString();
        int peak = 0;
        for (qsizetype i = 0; i + 1 < wave.data.size(); i += 2)
            peak = std::max(peak, std::abs(int(qFromLittleEndian<qint16>(wave.data.constData() + i))));
        EXPECT_GT(peak, 32767 / 5) << name.toStdString() << " is all but silent";
        EXPECT_LT(peak, 32767) << name.toStdString() << " clips";
    }
}

}  // namespace
}  // namespace petal::test
