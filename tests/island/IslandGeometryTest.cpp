#include "island/IslandGeometry.h"

#include "island/IslandOutline.h"
#include "platform/fakes/FakeScreens.h"

#include <QTest>

namespace velm
{

class IslandGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_notch_is_the_gap_between_the_areas_beside_it_data();
    void the_notch_is_the_gap_between_the_areas_beside_it();
    void the_island_lives_on_the_built_in_screen_data();
    void the_island_lives_on_the_built_in_screen();
    void each_mode_hangs_from_the_top_edge_in_its_size_data();
    void each_mode_hangs_from_the_top_edge_in_its_size();
    void an_activity_is_as_wide_as_its_characters_data();
    void an_activity_is_as_wide_as_its_characters();
    void clicks_beside_the_panel_pass_through_data();
    void clicks_beside_the_panel_pass_through();
    void areas_on_the_desktop_hang_from_the_middle_of_the_screen();
    void the_outline_is_the_body_that_is_drawn();
};

void IslandGeometryTest::the_notch_is_the_gap_between_the_areas_beside_it_data()
{
    QTest::addColumn<std::optional<HousingAreas>>("areas");
    QTest::addColumn<int>("inset");
    QTest::addColumn<QSizeF>("notch");
    QTest::addColumn<bool>("isHardware");

    const auto areas = [](const QSizeF &left, const QSizeF &right) {
        return std::optional(HousingAreas{left, right});
    };
    const std::optional<HousingAreas> none;
    QTest::newRow("a housing") << areas({700, 32}, {700, 33}) << 33 << QSizeF(112, 33) << true;
    QTest::newRow("gap of 50") << areas({731, 32}, {731, 32}) << 38 << QSizeF(190, 38) << false;
    QTest::newRow("gap of 60") << areas({726, 32}, {726, 32}) << 0 << QSizeF(190, 32) << false;
    QTest::newRow("gap of 61") << areas({726, 32}, {725, 32}) << 0 << QSizeF(61, 32) << true;
    QTest::newRow("areas 10 high") << areas({700, 10}, {700, 9}) << 0 << QSizeF(190, 32) << false;
    QTest::newRow("areas 11 high") << areas({700, 11}, {700, 9}) << 0 << QSizeF(112, 11) << true;
    QTest::newRow("none, inset 24") << none << 24 << QSizeF(190, 32) << false;
}

void IslandGeometryTest::the_notch_is_the_gap_between_the_areas_beside_it()
{
    QFETCH(std::optional<HousingAreas>, areas);
    QFETCH(int, inset);
    ScreenInfo screen = FakeScreens::laptop();
    screen.geometry.setWidth(1512);
    screen.topInset = inset;
    screen.housing = areas;

    const NotchMetrics metrics = NotchMetrics::measure(screen);

    QTEST(metrics.notchSize, "notch");
    QTEST(metrics.isHardware, "isHardware");
}

void IslandGeometryTest::the_island_lives_on_the_built_in_screen_data()
{
    QTest::addColumn<QString>("connectors");
    QTest::addColumn<int>("primary");
    QTest::addColumn<QString>("chosen");

    QTest::newRow("built-in before primary") << u"HDMI-1 eDP-1"_qs << 0 << u"eDP-1"_qs;
    QTest::newRow("LVDS") << u"VGA-1 LVDS1"_qs << 0 << u"LVDS1"_qs;
    QTest::newRow("the first of two") << u"DP-1 eDP-2 DSI-1"_qs << 2 << u"eDP-2"_qs;
    QTest::newRow("else the primary") << u"DP-1 HDMI-eDP"_qs << 1 << u"HDMI-eDP"_qs;
    QTest::newRow("else the first") << u"DP-1 DP-2"_qs << -1 << u"DP-1"_qs;
    QTest::newRow("no screen") << QString() << -1 << QString();
}

void IslandGeometryTest::the_island_lives_on_the_built_in_screen()
{
    QFETCH(QString, connectors);
    QFETCH(int, primary);
    QList<ScreenInfo> screens;
    for (const QString &connector : connectors.split(u' ', Qt::SkipEmptyParts)) {
        ScreenInfo screen = FakeScreens::external();
        screen.connector = connector;
        screen.isPrimary = screens.size() == primary;
        screens.append(screen);
    }

    QTEST(NotchMetrics::preferredScreen(screens).connector, "chosen");
}

void IslandGeometryTest::each_mode_hangs_from_the_top_edge_in_its_size_data()
{
    QTest::addColumn<IslandMode>("mode");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QRectF>("hitRect");

    QTest::newRow("idle") << IslandMode::Idle << QSizeF(112, 33) << QRectF(338, 455, 124, 45);
    QTest::newRow("peek") << IslandMode::Peek << QSizeF(242, 69) << QRectF(273, 419, 254, 81);
    QTest::newRow("catching") << IslandMode::Catching << QSizeF(360, 132) << QRectF(214, 356, 372, 144);
    QTest::newRow("expanded") << IslandMode::Expanded << QSizeF(660, 430) << QRectF(70, 70, 660, 430);
}

void IslandGeometryTest::each_mode_hangs_from_the_top_edge_in_its_size()
{
    QFETCH(IslandMode, mode);
    IslandGeometry island{.mode = mode, .metrics = {.notchSize = {112, 33}}};
    if (mode != IslandMode::Idle)
        island.activity = LiveActivity{.leading = u"only the resting island grows for it"_qs};

    QTEST(island.islandSize(), "size");
    QTEST(island.hitRect(), "hitRect");
}

void IslandGeometryTest::an_activity_is_as_wide_as_its_characters_data()
{
    QTest::addColumn<double>("notchWidth");
    QTest::addColumn<QString>("leading");
    QTest::addColumn<QString>("trailing");
    QTest::addColumn<QSizeF>("size");

    const auto letters = [](int count) { return QString(count, u'a'); };
    const QString none;
    QTest::newRow("10 on 200") << 200.0 << letters(10) << none << QSizeF(290, 70);
    QTest::newRow("both texts") << 100.0 << letters(10) << letters(6) << QSizeF(304, 70);
    QTest::newRow("35 fit") << 100.0 << letters(35) << none << QSizeF(427.5, 70);
    QTest::newRow("36 are cut") << 100.0 << letters(36) << none << QSizeF(430, 70);
    QTest::newRow("a wide notch") << 380.0 << letters(100) << none << QSizeF(470, 70);
    QTest::newRow("one flag is one character") << 100.0 << u"🇩🇪"_qs << none << QSizeF(206.5, 70);
    QTest::newRow("an accent is no character") << 100.0 << u"e\u0301"_qs << none << QSizeF(206.5, 70);
}

void IslandGeometryTest::an_activity_is_as_wide_as_its_characters()
{
    QFETCH(double, notchWidth);
    QFETCH(QString, leading);
    QFETCH(QString, trailing);

    const IslandGeometry island{.metrics = {.notchSize = {notchWidth, 32}},
                                .activity = LiveActivity{.leading = leading, .trailing = trailing}};

    QTEST(island.islandSize(), "size");
}

void IslandGeometryTest::clicks_beside_the_panel_pass_through_data()
{
    QTest::addColumn<IslandMode>("mode");
    QTest::addColumn<QPoint>("point"); // from the window's top left
    QTest::addColumn<bool>("isTaken");

    QTest::newRow("top row") << IslandMode::Expanded << QPoint(400, 0) << true;
    QTest::newRow("bottom row") << IslandMode::Expanded << QPoint(400, 429) << true;
    QTest::newRow("first row below") << IslandMode::Expanded << QPoint(400, 430) << false;
    QTest::newRow("left column") << IslandMode::Expanded << QPoint(70, 200) << true;
    QTest::newRow("beside it, left") << IslandMode::Expanded << QPoint(69, 200) << false;
    QTest::newRow("zone, padded bottom") << IslandMode::Catching << QPoint(400, 143) << true;
    QTest::newRow("below the zone") << IslandMode::Catching << QPoint(400, 144) << false;
    QTest::newRow("peek") << IslandMode::Peek << QPoint(400, 10) << false;
    QTest::newRow("at rest") << IslandMode::Idle << QPoint(400, 10) << false;
}

void IslandGeometryTest::clicks_beside_the_panel_pass_through()
{
    QFETCH(IslandMode, mode);
    QFETCH(QPoint, point);
    const IslandGeometry island{.mode = mode, .metrics = {.notchSize = {190, 32}}};

    QTEST(island.inputRegion().contains(point), "isTaken");
}

void IslandGeometryTest::areas_on_the_desktop_hang_from_the_middle_of_the_screen()
{
    const NotchMetrics metrics{.screen = FakeScreens::external(), .notchSize = {190, 32}};
    const IslandGeometry island{.mode = IslandMode::Expanded, .metrics = metrics};

    QCOMPARE(island.windowFrame(), QRectF(1840, 0, 800, 500));
    QCOMPARE(island.hoverTrigger(), QRectF(2131, 0, 218, 40));
    QCOMPARE(island.pressArea(), QRectF(1904, -6, 672, 442));
    QVERIFY(covers({0, 0, 10, 10}, {0, 9}));
    QVERIFY(!covers({0, 0, 10, 10}, {0, 10}));
}

void IslandGeometryTest::the_outline_is_the_body_that_is_drawn()
{
    const QRegion region = IslandOutline{.body = {660, 430}, .corner = 28, .shoulder = 12}.region();

    QVERIFY(region.contains(QPoint(66, 0)));    // shoulder at the edge
    QVERIFY(!region.contains(QPoint(62, 10)));  // hollow of the shoulder
    QVERIFY(region.contains(QPoint(90, 410)));  // inside the corner
    QVERIFY(!region.contains(QPoint(72, 428))); // cut corner
    QRegion mirrored;
    for (const QRect &rect : region)
        mirrored += QRect(799 - rect.right(), rect.y(), rect.width(), rect.height());
    QCOMPARE(mirrored, region);
}

}

QTEST_GUILESS_MAIN(velm::IslandGeometryTest)
#include "IslandGeometryTest.moc"
