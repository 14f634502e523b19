#include "app/Settings.h"
#include "app/SettingsPage.h"
#include "platform/fakes/RecordedLoginItem.h"
#include "platform/runloop/VirtualRunLoop.h"

#include <QJsonArray>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace velm
{

using namespace Qt::StringLiterals;

namespace
{

struct SettingsRig {
    QTemporaryDir folder;
    VirtualRunLoop loop;
    PreferencesFile preferences{loop, folder.filePath(u"settings.json"_s)};
    RecordedLoginItem loginItem;
    Settings settings{preferences, loginItem};
};

}

class SettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_fresh_user_has_the_defaults_data();
    void a_fresh_user_has_the_defaults();
    void a_property_is_stored_under_its_name_data();
    void a_property_is_stored_under_its_name();
    void values_are_taken_as_they_are_data();
    void values_are_taken_as_they_are();
    void a_number_past_an_int_is_the_nearest();
    void a_wrong_type_reads_as_nothing();
    void a_section_is_disabled_once();
    void enabling_what_is_enabled_changes_nothing();
    void unknown_sections_are_kept();
    void a_key_changed_elsewhere_is_announced();
    void keys_that_are_no_property_are_nobodys();
    void starting_at_login_follows_the_setting();
    void a_refused_login_item_keeps_the_choice();
    void pages_have_their_raw_values();
};

void SettingsTest::a_fresh_user_has_the_defaults_data()
{
    QTest::addColumn<QVariant>("value");

    for (const char *on :
         {"openOnHover", "showPeek", "playSounds", "hapticFeedback", "clipboardEnabled", "ignoreConcealed",
          "ambientIdle", "ambientOnlyWhenFree", "dropCatcher", "keepAfterQuit"})
        QTest::newRow(on) << QVariant(true);
    QTest::newRow("launchAtLogin") << QVariant(false);
    QTest::newRow("hoverDelay") << QVariant(0.25);
    QTest::newRow("ambientAfterSeconds") << QVariant(60.0);
    QTest::newRow("clipboardLimit") << QVariant(200);
    QTest::newRow("clipSizeLimitMegabytes") << QVariant(64);
    QTest::newRow("lastTab") << QVariant(u"files"_s);
    QTest::newRow("disabledTabs") << QVariant(QStringList());
}

void SettingsTest::a_fresh_user_has_the_defaults()
{
    QFETCH(QVariant, value);
    const SettingsRig rig;

    QCOMPARE(rig.settings.property(QTest::currentDataTag()), value);
    QVERIFY(rig.preferences.value(QString::fromLatin1(QTest::currentDataTag())) != QJsonValue::Undefined);
}

void SettingsTest::a_property_is_stored_under_its_name_data()
{
    QTest::addColumn<int>("index");

    const QMetaObject &type = Settings::staticMetaObject;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        QTest::newRow(type.property(i).name()) << i;
}

void SettingsTest::a_property_is_stored_under_its_name()
{
    QFETCH(int, index);
    SettingsRig rig;
    const QMetaProperty property = Settings::staticMetaObject.property(index);
    const QSignalSpy announced(&rig.settings, property.notifySignal());
    const QVariant before = property.read(&rig.settings);
    QVariant value = before.typeId() == QMetaType::Bool ? QVariant(!before.toBool()) : QVariant(u"7"_s);
    QVERIFY(value.convert(before.metaType()));

    QVERIFY(property.write(&rig.settings, value));

    QCOMPARE(property.read(&rig.settings), value);
    QCOMPARE(announced.size(), 1);
    const QJsonValue stored = rig.preferences.value(QString::fromLatin1(property.name()));
    QCOMPARE(stored, QJsonValue::fromVariant(value));
}

void SettingsTest::values_are_taken_as_they_are_data()
{
    QTest::addColumn<double>("seconds");

    QTest::newRow("none") << 0.0;
    QTest::newRow("negative") << -1.0;
    QTest::newRow("a day") << 86400.0;
}

void SettingsTest::values_are_taken_as_they_are()
{
    QFETCH(double, seconds);
    SettingsRig rig;

    rig.settings.setHoverDelay(seconds);
    rig.settings.setClipboardLimit(static_cast<int>(seconds));

    QCOMPARE(rig.settings.hoverDelay(), seconds);
    QCOMPARE(rig.settings.clipboardLimit(), static_cast<int>(seconds));
}

void SettingsTest::a_number_past_an_int_is_the_nearest()
{
    SettingsRig rig;

    rig.preferences.set(u"clipboardLimit"_s, qint64(1) << 40);

    QCOMPARE(rig.settings.clipboardLimit(), std::numeric_limits<int>::max());
}

void SettingsTest::a_wrong_type_reads_as_nothing()
{
    SettingsRig rig;

    rig.preferences.set(u"lastTab"_s, 5);
    rig.preferences.set(u"openOnHover"_s, 1);
    rig.preferences.set(u"hoverDelay"_s, u"0.5"_s);
    rig.preferences.set(u"clipboardLimit"_s, 20.5);
    rig.preferences.set(u"disabledTabs"_s, u"files"_s);

    QCOMPARE(rig.settings.lastTab(), QString());
    QCOMPARE(rig.settings.openOnHover(), false);
    QCOMPARE(rig.settings.hoverDelay(), 0.0);
    QCOMPARE(rig.settings.clipboardLimit(), 0);
    QCOMPARE(rig.settings.disabledTabs(), QStringList());
}

void SettingsTest::a_section_is_disabled_once()
{
    SettingsRig rig;

    rig.settings.setEnabled(u"notes"_s, false);
    rig.settings.setEnabled(u"notes"_s, false);
    QCOMPARE(rig.settings.disabledTabs(), QStringList{u"notes"_s});
    rig.settings.setEnabled(u"notes"_s, true);

    QCOMPARE(rig.settings.disabledTabs(), QStringList());
}

void SettingsTest::enabling_what_is_enabled_changes_nothing()
{
    SettingsRig rig;
    rig.settings.setEnabled(u"notes"_s, false);
    const QSignalSpy announced(&rig.settings, &Settings::disabledTabsChanged);

    rig.settings.setEnabled(u"files"_s, true);

    QCOMPARE(rig.settings.disabledTabs(), QStringList{u"notes"_s});
    QCOMPARE(announced.size(), 0);
}

void SettingsTest::unknown_sections_are_kept()
{
    SettingsRig rig;
    rig.preferences.set(u"disabledTabs"_s, QJsonArray{u"cellar"_s, u"cellar"_s});

    rig.settings.setEnabled(u"notes"_s, false);

    QCOMPARE(rig.settings.disabledTabs(), (QStringList{u"cellar"_s, u"notes"_s}));
}

void SettingsTest::a_key_changed_elsewhere_is_announced()
{
    SettingsRig rig;
    const QSignalSpy announced(&rig.settings, &Settings::showPeekChanged);

    rig.preferences.set(u"showPeek"_s, false);
    rig.preferences.reset(u"showPeek"_s);

    QCOMPARE(announced.size(), 2);
    QVERIFY(rig.settings.showPeek());
}

void SettingsTest::keys_that_are_no_property_are_nobodys()
{
    SettingsRig rig;

    rig.preferences.set(u"objectName"_s, u"x"_s);
    rig.preferences.set(u"sortStrategy"_s, u"kind"_s);

    QCOMPARE(rig.settings.objectName(), QString());
}

void SettingsTest::starting_at_login_follows_the_setting()
{
    SettingsRig rig;

    rig.settings.setLaunchAtLogin(true);
    QVERIFY(rig.loginItem.isAdded);
    rig.loginItem.isAdded = false; // removed behind our back
    rig.settings.setLaunchAtLogin(true);
    QVERIFY(rig.loginItem.isAdded);
    rig.preferences.set(u"launchAtLogin"_s, false);

    QVERIFY(!rig.loginItem.isAdded);
}

void SettingsTest::a_refused_login_item_keeps_the_choice()
{
    SettingsRig rig;
    rig.loginItem.refusal = Refusal{u"there is no folder for it"_s};

    QTest::ignoreMessage(QtWarningMsg, "[Velm] login item: there is no folder for it");
    rig.settings.setLaunchAtLogin(true);

    QVERIFY(rig.settings.launchAtLogin());
}

void SettingsTest::pages_have_their_raw_values()
{
    const QStringList rawValues{u"sections"_s, u"general"_s, u"clipboard"_s, u"about"_s};

    for (int i = 0; i < rawValues.size(); ++i) {
        QCOMPARE(rawValue(SettingsPage(i)), rawValues[i]);
        QVERIFY(settingsPage(rawValues[i]) == SettingsPage(i));
    }
    QVERIFY(!settingsPage(u"cellar"_s));
}

}

QTEST_GUILESS_MAIN(velm::SettingsTest)
#include "SettingsTest.moc"
