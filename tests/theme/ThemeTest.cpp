#include "theme/Fonts.h"
#include "theme/Symbols.h"

#include <QColor>
#include <QGuiApplication>
#include <QJSValue>
#include <QPainterPath>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QRawFont>
#include <QTest>

#include <memory>

Q_IMPORT_QML_PLUGIN(Velm_ThemePlugin)

namespace velm
{

class ThemeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void every_symbol_has_a_glyph();
    void an_unknown_symbol_still_draws_something();
    void every_tint_has_its_colour_data();
    void every_tint_has_its_colour();
    void motion_ends_at_once_for_pictures();
    void reduced_motion_is_one_short_fade();
    void words_grow_with_the_desktop_font_data();
    void words_grow_with_the_desktop_font();
};

namespace
{
QVariant evaluated(const QString &expression)
{
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(":/qml"));
    QQmlComponent component(&engine);
    component.setData(
        "import QtQml\nimport Velm.Theme\nQtObject { property var value: " + expression.toUtf8() + " }", {});
    const std::unique_ptr<QObject> object(component.create());
    if (!object)
        return component.errorString();
    const QVariant value = object->property("value");
    return value.canConvert<QJSValue>() ? value.value<QJSValue>().toVariant()
                                        : value; // while the engine lives
}
}

void ThemeTest::every_symbol_has_a_glyph()
{
    const QRawFont font(QStringLiteral(":/fonts/MaterialIcons-Regular.ttf"), 18);
    QVERIFY(font.isValid());

    const Symbols symbols;
    const QStringList names = symbols.names();

    QVERIFY(names.size() > 100);
    for (const QString &name : names) {
        const QString glyph = symbols.glyph(name);
        QVERIFY2(font.supportsCharacter(glyph.front()), qPrintable(name));
        QVERIFY2(!font.pathForGlyph(font.glyphIndexesForString(glyph).first()).isEmpty(), qPrintable(name));
    }
}

void ThemeTest::an_unknown_symbol_still_draws_something()
{
    QCOMPARE(Symbols().glyph(QStringLiteral("no.such.symbol")).size(), 1);
}

void ThemeTest::every_tint_has_its_colour_data()
{
    QTest::addColumn<int>("tint");
    QTest::addColumn<QString>("token");

    const QStringList tokens{"text", "success", "warning", "danger"};
    const QStringList sections{"files",  "clipboard", "shelf",   "notes", "timer",  "todo",
                               "system", "media",     "devices", "shots", "network"};
    int tint = 0;
    for (const QString &token : tokens)
        QTest::newRow(qPrintable(token)) << tint++ << QStringLiteral("Ink.") + token;
    for (const QString &section : sections)
        QTest::newRow(qPrintable(section)) << tint++ << QStringLiteral("Ink.accents.") + section;
}

void ThemeTest::every_tint_has_its_colour()
{
    QFETCH(int, tint);
    QFETCH(QString, token);

    const QColor colour = evaluated(QStringLiteral("Ink.tint(%1)").arg(tint)).value<QColor>();

    QVERIFY(colour.isValid());
    QCOMPARE(colour.name(), evaluated(QStringLiteral("String(%1)").arg(token)).toString().toLower());
}

void ThemeTest::motion_ends_at_once_for_pictures()
{
    const QVariant sum = evaluated(QStringLiteral(
        "{ Motion.still = true; return Motion.open + Motion.close + Motion.peek + Motion.tab + Motion.row + "
        "Motion.contentIn + Motion.contentDelay + Motion.words + Motion.rise + Motion.noticed }"));

    QCOMPARE(sum.toInt(), 0);
}

void ThemeTest::reduced_motion_is_one_short_fade()
{
    const QVariant durations =
        evaluated(QStringLiteral("{ Motion.reduced = true; return [Motion.open, Motion.tab, "
                                 "Motion.contentIn, Motion.words].join() }"));

    QCOMPARE(durations.toString(), QStringLiteral("0,0,120,120"));
}

void ThemeTest::words_grow_with_the_desktop_font_data()
{
    QTest::addColumn<double>("points");
    QTest::addColumn<int>("body");

    QTest::newRow("small") << 8.0 << 13;
    QTest::newRow("usual") << 11.0 << 13;
    QTest::newRow("large") << 13.2 << 16;
    QTest::newRow("larger than fits") << 30.0 << 18;
}

void ThemeTest::words_grow_with_the_desktop_font()
{
    QFETCH(double, points);
    QFETCH(int, body);
    const QFont before = QGuiApplication::font();
    QFont font = before;
    font.setPointSizeF(points);
    QGuiApplication::setFont(font);

    const QVariant size = evaluated(QStringLiteral("Type.body"));

    QGuiApplication::setFont(before);
    QCOMPARE(size.toInt(), body);
}

}

QTEST_MAIN(velm::ThemeTest)
#include "ThemeTest.moc"
