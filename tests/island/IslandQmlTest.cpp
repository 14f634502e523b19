#include "island/IslandRig.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QTest>

Q_IMPORT_QML_PLUGIN(Velm_AppPlugin)
Q_IMPORT_QML_PLUGIN(Velm_IslandPlugin)

namespace velm
{

class IslandQmlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void qml_reads_and_drives_the_island_data();
    void qml_reads_and_drives_the_island();
};

void IslandQmlTest::qml_reads_and_drives_the_island_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QVariant>("value");

    const auto row = [](const char *expression, const QVariant &value) {
        QTest::newRow(expression) << QString::fromLatin1(expression) << value;
    };
    row("IslandController.mode === IslandMode.Idle", true);
    row("{ IslandController.open(VelmTab.Todo); IslandController.mode === IslandMode.Expanded }", true);
    row("{ IslandController.open(VelmTab.Todo); IslandController.tab === VelmTab.Todo }", true);
    row("{ IslandController.open(); IslandController.islandWidth }", 660);
    row("{ IslandController.open(); IslandController.escape() }", true);
    row("{ IslandController.openSettings(SettingsPage.About); IslandController.settingsPage === "
        "SettingsPage.About }",
        true);
    row("{ IslandController.settingsPage = 1; IslandController.settingsPage === SettingsPage.General }",
        true);
    row("IslandController.visibleTabs.length", 11);
    row("IslandController.visibleTabs.indexOf(VelmTab.Notes)", 3);
    row("VelmTabs.all.map(tab => VelmTabs.rawValue(tab)).slice(0, 2).join()", u"files,clipboard"_qs);
    row("VelmTabs.title(VelmTab.Timer)", u"Focus"_qs);
    row("VelmTabs.accent(VelmTab.Files) === Tint.Files", true);
    row("IslandController.hasActivity", true);
    row("IslandController.activity.leading", u"Copied"_qs);
    row("IslandController.activity.trailing", QString(u""_qs));
    row("IslandController.activity.progress", 0.5);
    row("IslandController.activity.tint === Tint.Clipboard", true);
    row("{ IslandController.dismissActivity('other'); IslandController.hasActivity }", true);
    row("{ IslandController.dismissActivity(); IslandController.activity.progress }", -1);
    row("IslandController.hitRect.y", 418.0);
}

void IslandQmlTest::qml_reads_and_drives_the_island()
{
    QFETCH(QString, expression);
    QFETCH(QVariant, value);
    IslandRig rig;
    rig.island.present({.id = u"clip"_qs,
                        .tint = Tint::Clipboard,
                        .leading = u"Copied"_qs,
                        .progress = 0.5,
                        .duration = 1s});
    QQmlEngine engine;
    engine.addImportPath(u"qrc:/qml"_qs);
    QQmlComponent component(&engine);

    component.setData("import QtQml; import Velm.App; import Velm.Island\n"
                      "QtObject { property var value; Component.onCompleted: value = eval(source)\n"
                      "property string source: " +
                          ("`" + expression.toUtf8() + "`") + " }",
                      QUrl(u"inline.qml"_qs));
    const std::unique_ptr<QObject> object(component.create());

    QVERIFY2(object, qPrintable(component.errorString()));
    QCOMPARE(object->property("value").toString(), value.toString());
}

}

QTEST_GUILESS_MAIN(velm::IslandQmlTest)
#include "IslandQmlTest.moc"
