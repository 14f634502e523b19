#include "controls/SoftPictures.h"

#include <QTest>

namespace velm
{

class SoftPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_shadow_fades_outwards_to_nothing();
    void a_shadow_is_the_same_on_both_sides();
    void a_shadow_does_not_change_where_it_is_stretched();
    void a_shadow_has_the_pixels_of_its_scale();
    void a_light_fades_from_its_middle();
};

namespace
{
constexpr double radius = 28;

int alphaAt(const QImage &picture, int x, int y) { return qAlpha(picture.pixel(x, y)); }
}

void SoftPicturesTest::a_shadow_fades_outwards_to_nothing()
{
    const SoftShadow shadow = softShadow(radius, 1);
    const int middle = shadow.picture.height() / 2;

    for (int x = 1; x <= middle; ++x)
        QVERIFY(alphaAt(shadow.picture, x, middle) >= alphaAt(shadow.picture, x - 1, middle));
    QCOMPARE(alphaAt(shadow.picture, 0, middle), 0);
    QVERIFY(alphaAt(shadow.picture, middle, middle) > 250);
}

void SoftPicturesTest::a_shadow_is_the_same_on_both_sides()
{
    const QImage picture = softShadow(radius, 2).picture;
    const QImage mirrored = picture.mirrored(true, false);

    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            QVERIFY(qAbs(alphaAt(picture, x, y) - alphaAt(mirrored, x, y)) <= 2); // rounding
}

void SoftPicturesTest::a_shadow_does_not_change_where_it_is_stretched()
{
    const SoftShadow shadow = softShadow(radius, 1);

    for (int x = 0; x < shadow.picture.width(); ++x)
        QVERIFY(qAbs(alphaAt(shadow.picture, x, shadow.core - 1) - alphaAt(shadow.picture, x, shadow.core)) <=
                1);
}

void SoftPicturesTest::a_shadow_has_the_pixels_of_its_scale()
{
    QCOMPARE(softShadow(radius, 2).reach, softShadow(radius, 1).reach * 2);
    QCOMPARE(softShadow(radius, 2).core, softShadow(radius, 1).core * 2);
}

void SoftPicturesTest::a_light_fades_from_its_middle()
{
    const QImage light = softLight(Qt::red, {191, 73});

    QVERIFY(alphaAt(light, 95, 36) > 240);
    QVERIFY(alphaAt(light, 140, 36) < alphaAt(light, 110, 36));
    QCOMPARE(alphaAt(light, 0, 0), 0);
}

}

QTEST_GUILESS_MAIN(velm::SoftPicturesTest)
#include "SoftPicturesTest.moc"
