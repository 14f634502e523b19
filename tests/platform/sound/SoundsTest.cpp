#include <QCoreApplication>
#include <QFile>
#include <QTest>
#include <QtEndian>

#include <cmath>

namespace velm
{

// The sounds as they lie beside the program once it is built.
class SoundsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void each_sound_is_short_soft_and_ends_in_silence_data();
    void each_sound_is_short_soft_and_ends_in_silence();
};

void SoundsTest::each_sound_is_short_soft_and_ends_in_silence_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"pop", "glass", "tink", "bottle"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void SoundsTest::each_sound_is_short_soft_and_ends_in_silence()
{
    QFETCH(QString, name);
    QFile file(QCoreApplication::applicationDirPath() +
               QStringLiteral("/../share/velm/sounds/%1.wav").arg(name));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    const QByteArray wav = file.readAll();

    // RIFF WAVE, PCM, one channel, 44,100 samples of 16 bits a second.
    QCOMPARE(wav.left(4), QByteArray("RIFF"));
    QCOMPARE(qFromLittleEndian<quint32>(wav.constData() + 4), quint32(wav.size() - 8));
    QCOMPARE(wav.mid(8, 8), QByteArray("WAVEfmt "));
    QCOMPARE(qFromLittleEndian<quint16>(wav.constData() + 20), quint16(1));
    QCOMPARE(qFromLittleEndian<quint16>(wav.constData() + 22), quint16(1));
    QCOMPARE(qFromLittleEndian<quint32>(wav.constData() + 24), quint32(44100));
    QCOMPARE(qFromLittleEndian<quint16>(wav.constData() + 34), quint16(16));
    QCOMPARE(qFromLittleEndian<quint32>(wav.constData() + 40), quint32(wav.size() - 44));

    const qsizetype count = (wav.size() - 44) / 2;
    const auto sample = [&wav](qsizetype i) {
        return std::abs(int(qFromLittleEndian<qint16>(wav.constData() + 44 + 2 * i)));
    };
    const double milliseconds = 1000.0 * double(count) / 44100;
    QVERIFY2(milliseconds >= 80 - 1 && milliseconds <= 250, qPrintable(QString::number(milliseconds)));
    int peak = 0;
    for (qsizetype i = 0; i < count; ++i)
        peak = std::max(peak, sample(i));
    const double decibels = 20 * std::log10(peak / 32768.0);
    QVERIFY2(decibels <= -9 && decibels > -20, qPrintable(QString::number(decibels)));
    QVERIFY(sample(0) < 100);
    QVERIFY(sample(count - 1) < 100);
}

}

QTEST_GUILESS_MAIN(velm::SoundsTest)
#include "SoundsTest.moc"
