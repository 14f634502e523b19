#include "clipboard/ClipPicture.h"
#include "clipboard/ClipFolder.h"
#include "clipboard/ClipMaking.h"

#include <QColorSpace>
#include <QTemporaryDir>
#include <QtTest>

using namespace velm;

class ClipPictureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equal_pixels_make_equal_bytes();
    void transparency_is_kept();
    void what_is_no_whole_picture_is_refused();
    void a_stored_picture_is_only_for_the_user();
    void names_that_lead_out_of_the_folder_are_refused();

private:
    const QImage m_image = plainImage({40, 30});
    const QByteArray m_png = encoded(m_image);
};

void ClipPictureTest::equal_pixels_make_equal_bytes()
{
    QImage described = m_image;
    described.setText("Software", "some program");
    described.setDotsPerMeterX(11811);
    described.setColorSpace(QColorSpace::SRgb);

    for (const QByteArray &bytes : {encoded(described), encoded(m_image, "BMP"),
                                    encoded(m_image.convertToFormat(QImage::Format_ARGB32)),
                                    encoded(m_image.convertToFormat(QImage::Format_Indexed8)),
                                    encoded(m_image.convertToFormat(QImage::Format_RGBA64))})
        QCOMPARE(makePicture(bytes), makePicture(m_png));
    QCOMPARE(makePicture(m_png)->size, QSize(40, 30));
}

void ClipPictureTest::transparency_is_kept()
{
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(QColor(255, 0, 0, 128));

    QCOMPARE(QImage::fromData(makePicture(encoded(image))->png).pixelColor(0, 0), QColor(255, 0, 0, 128));
}

void ClipPictureTest::what_is_no_whole_picture_is_refused()
{
    QByteArray bomb = m_png; // its header says 60000 × 60000, with the right checksum
    qToBigEndian<quint32>(60'000, bomb.data() + 16);
    qToBigEndian<quint32>(60'000, bomb.data() + 20);
    qToBigEndian<quint32>(0x0fb0e215, bomb.data() + 29);
    QByteArray damaged = m_png;
    damaged[m_png.size() - 20] = static_cast<char>(~damaged[m_png.size() - 20]);

    for (const QByteArray &bytes : {QByteArray(), QByteArray("<html>"), m_png.chopped(12), bomb})
        QVERIFY(!looksLikePicture(bytes) && !makePicture(bytes));
    QVERIFY(!makePicture(damaged));
}

void ClipPictureTest::a_stored_picture_is_only_for_the_user()
{
    const QTemporaryDir data;
    const ClipFolder folder(QDir(data.path()));

    QVERIFY(folder.write("A.png", m_png));
    QVERIFY(!folder.write("A.png", "x"));

    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(folder.path("A.png")) & others));
    QCOMPARE(folder.read("A.png"), m_png);
}

void ClipPictureTest::names_that_lead_out_of_the_folder_are_refused()
{
    const QTemporaryDir data;
    const ClipFolder folder(QDir(data.filePath("Clips")));
    QVERIFY(QDir(data.path()).mkpath("Clips/a"));
    const QStringList files{"precious.png", "Clips/.hidden.png", "Clips/a/b.png"};
    for (const QString &file : files)
        QVERIFY(m_image.save(data.filePath(file)));

    for (const QString name : {"", "..", "../precious.png", ".hidden.png", "a/b.png"}) {
        QVERIFY(folder.read(name).isEmpty());
        folder.remove(name);
        folder.putAside(name);
    }

    for (const QString &file : files)
        QVERIFY(QFile::exists(data.filePath(file)));
}

QTEST_MAIN(ClipPictureTest)
#include "ClipPictureTest.moc"
