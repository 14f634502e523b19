#include "island/VelmTab.h"

#include "island/RawValue.h"
#include "island/VelmTabs.h"

#include <QTest>

namespace velm
{

class VelmTabTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sections_stand_in_the_rails_order();
    void a_raw_value_names_its_section_to_the_letter();
    void every_section_has_words_and_a_symbol();
    void a_section_wears_its_own_accent();
    void a_blurb_belongs_to_its_title_data();
    void a_blurb_belongs_to_its_title();
};

void VelmTabTest::sections_stand_in_the_rails_order()
{
    QStringList raw;
    for (const VelmTab tab : allTabs())
        raw.append(rawValue(tab));

    QCOMPARE(raw.join(u' '), u"files clipboard shelf notes timer todo system media devices shots network"_qs);
    QCOMPARE(VelmTabs().all().size(), raw.size());
}

void VelmTabTest::a_raw_value_names_its_section_to_the_letter()
{
    for (const VelmTab tab : allTabs())
        QCOMPARE(tabNamed(rawValue(tab)), tab);

    QVERIFY(!tabNamed(u"Files"_qs));
    QVERIFY(!tabNamed(u"Focus"_qs));
    QVERIFY(!tabNamed(QString()));
}

void VelmTabTest::every_section_has_words_and_a_symbol()
{
    for (const VelmTab tab : allTabs()) {
        QVERIFY(!title(tab).isEmpty());
        QVERIFY(!blurb(tab).isEmpty());
        QVERIFY(!icon(tab).isEmpty());
    }
}

void VelmTabTest::a_section_wears_its_own_accent()
{
    for (const VelmTab tab : allTabs())
        QCOMPARE(rawValue(accent(tab)), rawValue(tab));
}

void VelmTabTest::a_blurb_belongs_to_its_title_data()
{
    QTest::addColumn<QString>("raw");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("blurb");

    const auto row = [](const char *raw, const char *title, const char *icon, const char *blurb) {
        QTest::newRow(raw) << QString::fromLatin1(raw) << QString::fromLatin1(title)
                           << QString::fromLatin1(icon) << QString::fromLatin1(blurb);
    };
    row("files", "Files", "folder.fill", "Sort any folder by kind or month, with undo");
    row("timer", "Focus", "timer", "Pomodoro sessions with streaks and history");
    row("media", "Playing", "waveform", "What's playing, with controls in the notch");
    row("network", "Network", "wifi", "Wi-Fi, addresses and live throughput");
}

void VelmTabTest::a_blurb_belongs_to_its_title()
{
    QFETCH(QString, raw);
    const auto tab = tabNamed(raw);
    QVERIFY(tab);

    QTEST(title(*tab), "title");
    QTEST(icon(*tab), "icon");
    QTEST(blurb(*tab), "blurb");
}

}

QTEST_GUILESS_MAIN(velm::VelmTabTest)
#include "VelmTabTest.moc"
