#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickView>
#include <QSignalSpy>
#include <QTest>

#include <memory>

Q_IMPORT_QML_PLUGIN(Velm_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Velm_ControlsPlugin)

namespace velm
{

class ControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }
    void a_button_answers_to_keys_and_clicks_data();
    void a_button_answers_to_keys_and_clicks();
    void a_click_leaves_the_keyboard_where_it_is();
    void a_disabled_button_does_nothing();
    void arrows_move_the_choice_of_segments_data();
    void arrows_move_the_choice_of_segments();
    void digits_do_not_move_while_they_change();
    void a_chosen_chip_is_as_wide_as_before();
    void revealed_content_is_hidden_until_its_delay_is_over();
};

namespace
{
// One control in a window.
struct Stage {
    QQuickView view;
    std::unique_ptr<QQuickItem> item;

    explicit Stage(const QByteArray &qml)
    {
        view.engine()->addImportPath(QStringLiteral(":/qml"));
        QQmlComponent component(view.engine());
        component.setData("import QtQuick\nimport Velm.Controls\nimport Velm.Theme\n" + qml, {});
        item.reset(qobject_cast<QQuickItem *>(component.create()));
        if (!item)
            qFatal("%s", qPrintable(component.errorString()));
        item->setParentItem(view.contentItem());
        view.resize(400, 200);
        view.show();
        view.requestActivate();
    }

    void click() { QTest::mouseClick(&view, Qt::LeftButton, {}, item->boundingRect().center().toPoint()); }
};
}

void ControlsTest::a_button_answers_to_keys_and_clicks_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("times");

    QTest::newRow("space") << int(Qt::Key_Space) << 1;
    QTest::newRow("return") << int(Qt::Key_Return) << 1;
    QTest::newRow("enter") << int(Qt::Key_Enter) << 1;
    QTest::newRow("another key") << int(Qt::Key_A) << 0;
}

void ControlsTest::a_button_answers_to_keys_and_clicks()
{
    QFETCH(int, key);
    QFETCH(int, times);
    Stage stage("Button { text: 'Undo' }");
    QSignalSpy activated(stage.item.get(), SIGNAL(activated()));
    QVERIFY(QTest::qWaitForWindowActive(&stage.view));

    QTest::keyClick(&stage.view, Qt::Key_Tab);
    QTest::keyClick(&stage.view, Qt::Key(key));
    QCOMPARE(activated.count(), times);

    stage.click();
    QCOMPARE(activated.count(), times + 1);
}

void ControlsTest::a_click_leaves_the_keyboard_where_it_is()
{
    Stage stage("Button { text: 'Undo' }");
    QVERIFY(QTest::qWaitForWindowActive(&stage.view));

    stage.click();

    QVERIFY(!stage.item->hasActiveFocus());
}

void ControlsTest::a_disabled_button_does_nothing()
{
    Stage stage("Button { text: 'Undo'; enabled: false }");
    QSignalSpy activated(stage.item.get(), SIGNAL(activated()));

    stage.click();

    QCOMPARE(activated.count(), 0);
}

void ControlsTest::arrows_move_the_choice_of_segments_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isMirrored");
    QTest::addColumn<int>("chosen");

    QTest::newRow("right") << int(Qt::Key_Right) << false << 2;
    QTest::newRow("left") << int(Qt::Key_Left) << false << 0;
    QTest::newRow("right, from right to left") << int(Qt::Key_Right) << true << 0;
    QTest::newRow("left, from right to left") << int(Qt::Key_Left) << true << 2;
}

void ControlsTest::arrows_move_the_choice_of_segments()
{
    QFETCH(int, key);
    QFETCH(bool, isMirrored);
    QFETCH(int, chosen);
    Stage stage("Segments { items: ['One', 'Two', 'Three']; current: 1; onChosen: index => current = index\n"
                "LayoutMirroring.childrenInherit: true; LayoutMirroring.enabled: " +
                QByteArray(isMirrored ? "true }" : "false }"));
    QVERIFY(QTest::qWaitForWindowActive(&stage.view));
    QTest::keyClick(&stage.view, Qt::Key_Tab);

    QTest::keyClick(&stage.view, Qt::Key(key));

    QCOMPARE(stage.item->property("current").toInt(), chosen);
}

void ControlsTest::digits_do_not_move_while_they_change()
{
    Stage stage("Digits { text: '11:11' }");
    const double before = stage.item->width();

    stage.item->setProperty("text", QStringLiteral("48:06"));

    QVERIFY(before > 0);
    QCOMPARE(stage.item->width(), before);
}

void ControlsTest::a_chosen_chip_is_as_wide_as_before()
{
    Stage stage("Chip { text: 'Images'; count: '12' }");
    const double before = stage.item->implicitWidth();

    stage.item->setProperty("isChecked", true);

    QCOMPARE(stage.item->implicitWidth(), before);
}

void ControlsTest::revealed_content_is_hidden_until_its_delay_is_over()
{
    Stage stage("Reveal { delay: 40; enter: 20; leave: 20 }");
    QVERIFY(!stage.item->isVisible());

    stage.item->setProperty("isShown", true);
    QVERIFY(!stage.item->isVisible());
    QTRY_COMPARE(stage.item->opacity(), 1.0);

    stage.item->setProperty("isShown", false);
    QTRY_VERIFY(!stage.item->isVisible());
}

}

QTEST_MAIN(velm::ControlsTest)
#include "ControlsTest.moc"
