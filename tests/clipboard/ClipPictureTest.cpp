#include "clipboard/ClipPicture.h"
#include "clipboard/ClipMaking.h"

#include <QColorSpace>
#include <QtTest>

using namespace velm;

class ClipPictureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equal_pixels_make_equal_bytes_data();
    void equal_pixels_make_equal_bytes();
    void transparency_is_kept();
    void other_formats_are_read_data();
    void other_formats_are_read();
    void what_is_no_whole_picture_is_refused_data();
    void what_is_no_whole_picture_is_refused();
};

namespace
{

QImage redPicture() { return plainImage({40, 30}, Qt::red); }

// A PNG whose header says another size than its content has.
QByteArray lyingPng(quint32 width, quint32 height)
{
    QByteArray png = encoded(redPicture());
    qToBigEndian(width, png.data() + 16);
    qToBigEndian(height, png.data() + 20);
    static const auto crcTable = [] {
        std::array<quint32, 256> table{};
        for (quint32 n = 0; n < 256; ++n) {
            table[n] = n;
            for (int k = 0; k < 8; ++k)
                table[n] = table[n] & 1 ? 0xedb88320u ^ (table[n] >> 1) : table[n] >> 1;
        }
        return table;
    }();
    quint32 crc = 0xffffffffu;
    for (int i = 12; i < 29; ++i)
        crc = crcTable[(crc ^ static_cast<uchar>(png.at(i))) & 0xff] ^ (crc >> 8);
    qToBigEndian(crc ^ 0xffffffffu, png.data() + 29);
    return png;
}

}

void ClipPictureTest::equal_pixels_make_equal_bytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QImage image = redPicture();
    QImage described = image;
    described.setText("Software", "some program");
    described.setDotsPerMeterX(11811);
    described.setDotsPerMeterY(11811);
    QImage profiled = image;
    profiled.setColorSpace(QColorSpace::SRgb);
    QTest::newRow("the same") << encoded(image);
    QTest::newRow("with alpha") << encoded(image.convertToFormat(QImage::Format_ARGB32));
    QTest::newRow("palette") << encoded(image.convertToFormat(QImage::Format_Indexed8));
    QTest::newRow("sixteen bits") << encoded(image.convertToFormat(QImage::Format_RGBA64));
    QTest::newRow("texts and resolution") << encoded(described);
    QTest::newRow("colour profile") << encoded(profiled);
    QTest::newRow("bitmap") << encoded(image, "BMP");
}

void ClipPictureTest::equal_pixels_make_equal_bytes()
{
    QFETCH(QByteArray, bytes);

    const auto picture = makePicture(bytes);

    QVERIFY(picture);
    QCOMPARE(picture->size, QSize(40, 30));
    QCOMPARE(*picture, *makePicture(encoded(redPicture())));
}

void ClipPictureTest::transparency_is_kept()
{
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(QColor(255, 0, 0, 128));

    const auto picture = makePicture(encoded(image));

    QCOMPARE(QImage::fromData(picture->png).pixelColor(0, 0), QColor(255, 0, 0, 128));
}

void ClipPictureTest::other_formats_are_read_data()
{
    QTest::addColumn<QByteArray>("format");
    for (const char *format : {"PNG", "BMP", "JPG", "PPM"})
        QTest::newRow(format) << QByteArray(format);
}

void ClipPictureTest::other_formats_are_read()
{
    QFETCH(QByteArray, format);
    const QByteArray bytes = encoded(redPicture(), format.constData());

    QVERIFY(looksLikePicture(bytes));
    QCOMPARE(QImage::fromData(makePicture(bytes)->png).size(), QSize(40, 30));
}

void ClipPictureTest::what_is_no_whole_picture_is_refused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isSeenAtOnce");
    const QByteArray png = encoded(redPicture());
    QByteArray damaged = png;
    damaged[png.size() - 20] = static_cast<char>(~damaged[png.size() - 20]);
    QTest::newRow("nothing") << QByteArray() << true;
    QTest::newRow("text") << QByteArray("<html>") << true;
    QTest::newRow("only the signature") << png.first(8) << true;
    QTest::newRow("cut short") << png.chopped(12) << true;
    QTest::newRow("a bomb") << lyingPng(60'000, 60'000) << true;
    QTest::newRow("sides that overflow") << lyingPng(0x7fffffff, 0x7fffffff) << true;
    QTest::newRow("no height") << lyingPng(40, 0) << true;
    QTest::newRow("more than there is") << lyingPng(4000, 3000) << false;
    QTest::newRow("damaged inside") << damaged << false;
}

void ClipPictureTest::what_is_no_whole_picture_is_refused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isSeenAtOnce);

    QCOMPARE(!looksLikePicture(bytes), isSeenAtOnce);
    QVERIFY(!makePicture(bytes));
}

QTEST_MAIN(ClipPictureTest)
#include "ClipPictureTest.moc"
