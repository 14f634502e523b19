#include "island/IslandGeometry.h"

#include "island/IslandRig.h"

#include <QTest>

namespace velm
{

class IslandGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void each_mode_has_its_size_data();
    void each_mode_has_its_size();
    void an_activity_is_as_wide_as_its_characters_data();
    void an_activity_is_as_wide_as_its_characters();
    void the_hit_rectangle_hangs_from_the_top_edge_data();
    void the_hit_rectangle_hangs_from_the_top_edge();
    void clicks_beside_the_panel_pass_through_data();
    void clicks_beside_the_panel_pass_through();
    void the_closed_island_lets_all_clicks_pass();
    void the_window_hangs_from_the_middle_of_its_screen_data();
    void the_window_hangs_from_the_middle_of_its_screen();
    void the_peek_shows_on_both_sides_of_the_camera();

private:
    static IslandGeometry geometry(IslandMode mode, const QSizeF &notch = QSizeF(190, 32))
    {
        return {.mode = mode, .metrics = {.screen = FakeScreens::laptop(), .notchSize = notch}};
    }
    static LiveActivity activity(const QString &leading, std::optional<QString> trailing = {})
    {
        return {.leading = leading, .trailing = std::move(trailing)};
    }
};

void IslandGeometryTest::each_mode_has_its_size_data()
{
    QTest::addColumn<IslandMode>("mode");
    QTest::addColumn<QSizeF>("notch");
    QTest::addColumn<QSizeF>("size");

    QTest::newRow("idle") << IslandMode::Idle << QSizeF(190, 32) << QSizeF(190, 32);
    QTest::newRow("idle, housing") << IslandMode::Idle << QSizeF(112, 33) << QSizeF(112, 33);
    QTest::newRow("peek") << IslandMode::Peek << QSizeF(190, 32) << QSizeF(320, 68);
    QTest::newRow("peek, housing") << IslandMode::Peek << QSizeF(112, 33) << QSizeF(242, 69);
    QTest::newRow("catching") << IslandMode::Catching << QSizeF(112, 33) << QSizeF(360, 132);
    QTest::newRow("expanded") << IslandMode::Expanded << QSizeF(112, 33) << QSizeF(660, 430);
}

void IslandGeometryTest::each_mode_has_its_size()
{
    QFETCH(IslandMode, mode);
    QFETCH(QSizeF, notch);

    IslandGeometry island = geometry(mode, notch);

    QTEST(island.islandSize(), "size");
    if (mode == IslandMode::Idle)
        return;
    island.activity = activity(QStringLiteral("only the resting island grows for it"));
    QTEST(island.islandSize(), "size");
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
    QTest::newRow("nothing") << 100.0 << QString(u""_qs) << none << QSizeF(200, 70);
    QTest::newRow("both texts") << 100.0 << letters(10) << letters(6) << QSizeF(304, 70);
    QTest::newRow("35 fit") << 100.0 << letters(35) << none << QSizeF(427.5, 70);
    QTest::newRow("36 are cut") << 100.0 << letters(36) << none << QSizeF(430, 70);
    QTest::newRow("a novel") << 100.0 << letters(100000) << none << QSizeF(430, 70);
    QTest::newRow("a wide notch") << 380.0 << letters(100) << none << QSizeF(470, 70);
    QTest::newRow("one flag is one character") << 100.0 << u"🇩🇪"_qs << none << QSizeF(206.5, 70);
    QTest::newRow("an accent is no character") << 100.0 << u"e\u0301"_qs << none << QSizeF(206.5, 70);
}

void IslandGeometryTest::an_activity_is_as_wide_as_its_characters()
{
    QFETCH(double, notchWidth);
    QFETCH(QString, leading);
    QFETCH(QString, trailing);
    IslandGeometry island = geometry(IslandMode::Idle, QSizeF(notchWidth, 32));
    island.activity = activity(leading, trailing.isNull() ? std::nullopt : std::optional(trailing));

    QTEST(island.islandSize(), "size");
}

void IslandGeometryTest::the_hit_rectangle_hangs_from_the_top_edge_data()
{
    QTest::addColumn<IslandMode>("mode");
    QTest::addColumn<QRectF>("hitRect");

    QTest::newRow("idle") << IslandMode::Idle << QRectF(299, 456, 202, 44);
    QTest::newRow("peek") << IslandMode::Peek << QRectF(234, 420, 332, 80);
    QTest::newRow("catching") << IslandMode::Catching << QRectF(214, 356, 372, 144);
    QTest::newRow("expanded") << IslandMode::Expanded << QRectF(70, 70, 660, 430);
}

void IslandGeometryTest::the_hit_rectangle_hangs_from_the_top_edge()
{
    QFETCH(IslandMode, mode);

    QTEST(geometry(mode).hitRect(), "hitRect");
}

void IslandGeometryTest::clicks_beside_the_panel_pass_through_data()
{
    QTest::addColumn<IslandMode>("mode");
    QTest::addColumn<QPoint>("point"); // from the window's top left
    QTest::addColumn<bool>("isTaken");

    const auto expanded = IslandMode::Expanded;
    QTest::newRow("top row") << expanded << QPoint(400, 0) << true;
    QTest::newRow("bottom row") << expanded << QPoint(400, 429) << true;
    QTest::newRow("first row below") << expanded << QPoint(400, 430) << false;
    QTest::newRow("20 below") << expanded << QPoint(400, 450) << false;
    QTest::newRow("bottom of the window") << expanded << QPoint(400, 499) << false;
    QTest::newRow("left column") << expanded << QPoint(70, 200) << true;
    QTest::newRow("beside it, left") << expanded << QPoint(69, 200) << false;
    QTest::newRow("right column") << expanded << QPoint(729, 200) << true;
    QTest::newRow("beside it, right") << expanded << QPoint(730, 200) << false;
    QTest::newRow("zone, top") << IslandMode::Catching << QPoint(400, 0) << true;
    QTest::newRow("zone, padded bottom") << IslandMode::Catching << QPoint(400, 143) << true;
    QTest::newRow("below the zone") << IslandMode::Catching << QPoint(400, 144) << false;
}

void IslandGeometryTest::clicks_beside_the_panel_pass_through()
{
    QFETCH(IslandMode, mode);
    QFETCH(QPoint, point);

    QTEST(geometry(mode).inputRegion().contains(point), "isTaken");
}

void IslandGeometryTest::the_closed_island_lets_all_clicks_pass()
{
    for (const IslandMode mode : {IslandMode::Idle, IslandMode::Peek}) {
        IslandGeometry island = geometry(mode);
        island.activity = activity(QStringLiteral("Copied"));

        QVERIFY(island.ignoresMouse());
        QVERIFY(island.inputRegion().isEmpty());
    }
}

void IslandGeometryTest::the_window_hangs_from_the_middle_of_its_screen_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QRectF>("frame");

    QTest::newRow("laptop") << QRect(0, 0, 1280, 800) << QRectF(240, 0, 800, 500);
    QTest::newRow("right of another") << QRect(1280, -200, 1920, 1080) << QRectF(1840, -200, 800, 500);
    QTest::newRow("narrower than the window") << QRect(0, 0, 600, 400) << QRectF(-100, 0, 800, 500);
    QTest::newRow("odd width") << QRect(0, 0, 1367, 768) << QRectF(283.5, 0, 800, 500);
}

void IslandGeometryTest::the_window_hangs_from_the_middle_of_its_screen()
{
    QFETCH(QRect, screen);
    IslandGeometry island = geometry(IslandMode::Idle);
    island.metrics.screen.geometry = screen;

    QTEST(island.windowFrame(), "frame");
}

void IslandGeometryTest::the_peek_shows_on_both_sides_of_the_camera()
{
    const QSizeF notch(112, 33);

    const double beyond = geometry(IslandMode::Peek, notch).islandSize().width() - notch.width();

    QCOMPARE(beyond / 2, 65.0);
}

}

QTEST_GUILESS_MAIN(velm::IslandGeometryTest)
#include "IslandGeometryTest.moc"
