#include "island/NotchMetrics.h"
#include "platform/fakes/FakeScreens.h"

#include <QTest>

namespace velm
{

class NotchMetricsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_notch_is_the_gap_between_the_areas_beside_it_data();
    void the_notch_is_the_gap_between_the_areas_beside_it();
    void the_island_lives_on_the_built_in_screen_data();
    void the_island_lives_on_the_built_in_screen();
    void without_a_screen_there_is_an_empty_one();
};

void NotchMetricsTest::the_notch_is_the_gap_between_the_areas_beside_it_data()
{
    QTest::addColumn<QSizeF>("left");
    QTest::addColumn<QSizeF>("right");
    QTest::addColumn<int>("inset");
    QTest::addColumn<QSizeF>("notch");
    QTest::addColumn<bool>("isHardware");

    const QSizeF none;
    QTest::newRow("a housing") << QSizeF(700, 32) << QSizeF(700, 33) << 33 << QSizeF(112, 33) << true;
    QTest::newRow("gap of 50") << QSizeF(731, 32) << QSizeF(731, 32) << 38 << QSizeF(190, 38) << false;
    QTest::newRow("gap of 60") << QSizeF(726, 32) << QSizeF(726, 32) << 0 << QSizeF(190, 32) << false;
    QTest::newRow("gap of 61") << QSizeF(726, 32) << QSizeF(725, 32) << 0 << QSizeF(61, 32) << true;
    QTest::newRow("areas 10 high") << QSizeF(700, 10) << QSizeF(700, 9) << 0 << QSizeF(190, 32) << false;
    QTest::newRow("areas 11 high") << QSizeF(700, 11) << QSizeF(700, 9) << 0 << QSizeF(112, 11) << true;
    QTest::newRow("none, inset 0") << none << none << 0 << QSizeF(190, 32) << false;
    QTest::newRow("none, inset 24") << none << none << 24 << QSizeF(190, 32) << false;
    QTest::newRow("none, inset 40") << none << none << 40 << QSizeF(190, 40) << false;
}

void NotchMetricsTest::the_notch_is_the_gap_between_the_areas_beside_it()
{
    QFETCH(QSizeF, left);
    QFETCH(QSizeF, right);
    QFETCH(int, inset);
    ScreenInfo screen{.connector = QStringLiteral("eDP-1"),
                      .geometry = QRect(0, 0, 1512, 982),
                      .topInset = inset,
                      .isPrimary = true,
                      .housing = {}};
    if (left.isValid())
        screen.housing = HousingAreas{left, right};

    const NotchMetrics metrics = NotchMetrics::measure(screen);

    QTEST(metrics.notchSize, "notch");
    QTEST(metrics.isHardware, "isHardware");
    QVERIFY(metrics.screen == screen);
}

void NotchMetricsTest::the_island_lives_on_the_built_in_screen_data()
{
    QTest::addColumn<QStringList>("connectors");
    QTest::addColumn<int>("primary");
    QTest::addColumn<QString>("chosen");

    const auto row = [](const char *name, const QStringList &connectors, int primary, const char *chosen) {
        QTest::newRow(name) << connectors << primary << QString::fromLatin1(chosen);
    };
    row("built-in before primary", {QStringLiteral("HDMI-1"), QStringLiteral("eDP-1")}, 0, "eDP-1");
    row("LVDS", {QStringLiteral("VGA-1"), QStringLiteral("LVDS1")}, 0, "LVDS1");
    row("DSI", {QStringLiteral("DSI-1"), QStringLiteral("DP-1")}, 1, "DSI-1");
    row("the first of two", {QStringLiteral("DP-1"), QStringLiteral("eDP-2"), QStringLiteral("eDP-1")}, 2,
        "eDP-2");
    row("else the primary", {QStringLiteral("DP-1"), QStringLiteral("DP-2")}, 1, "DP-2");
    row("else the first", {QStringLiteral("DP-1"), QStringLiteral("DP-2")}, -1, "DP-1");
    row("DP is not eDP", {QStringLiteral("DVI-D-1"), QStringLiteral("HDMI-eDP")}, 1, "HDMI-eDP");
}

void NotchMetricsTest::the_island_lives_on_the_built_in_screen()
{
    QFETCH(QStringList, connectors);
    QFETCH(int, primary);
    QList<ScreenInfo> screens;
    for (const QString &connector : connectors) {
        ScreenInfo screen = FakeScreens::external();
        screen.connector = connector;
        screen.isPrimary = screens.size() == primary;
        screens.append(screen);
    }

    const ScreenInfo preferred = NotchMetrics::preferredScreen(screens);

    QTEST(preferred.connector, "chosen");
}

void NotchMetricsTest::without_a_screen_there_is_an_empty_one()
{
    const NotchMetrics metrics = NotchMetrics::measure(NotchMetrics::preferredScreen({}));

    QCOMPARE(metrics.screen, ScreenInfo{});
    QCOMPARE(metrics.notchSize, QSizeF(190, 32));
    QVERIFY(!metrics.isHardware);
}

}

QTEST_GUILESS_MAIN(velm::NotchMetricsTest)
#include "NotchMetricsTest.moc"
