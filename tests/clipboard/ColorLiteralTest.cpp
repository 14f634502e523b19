#include "clipboard/ColorLiteral.h"

#include <QtTest>

using namespace velm;

class ColorLiteralTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_literal_is_read_as_written_data();
    void a_literal_is_read_as_written();
    void other_texts_are_no_colors_data();
    void other_texts_are_no_colors();
    void what_is_painted_is_bounded();
};

void ColorLiteralTest::a_literal_is_read_as_written_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("red");
    QTest::addColumn<double>("green");
    QTest::addColumn<double>("blue");
    QTest::addColumn<double>("alpha");
    QTest::newRow("six digits") << "#FF8800" << 1.0 << 0x88 / 255.0 << 0.0 << 1.0;
    QTest::newRow("three digits") << "#ABC" << 0xaa / 255.0 << 0xbb / 255.0 << 0xcc / 255.0 << 1.0;
    QTest::newRow("three digits, white") << "#fff" << 1.0 << 1.0 << 1.0 << 1.0;
    QTest::newRow("eight digits are opaque") << "#ff880080" << 1.0 << 0x88 / 255.0 << 0.0 << 1.0;
    QTest::newRow("space around") << " \n#0000fF\t" << 0.0 << 0.0 << 1.0 << 1.0;
    QTest::newRow("no-break space around") << "\u00a0#000\u00a0" << 0.0 << 0.0 << 0.0 << 1.0;
    QTest::newRow("rgb") << "rgb(255, 136, 0)" << 1.0 << 136 / 255.0 << 0.0 << 1.0;
    QTest::newRow("rgba") << "rgba(255,136,0,0.5)" << 1.0 << 136 / 255.0 << 0.0 << 0.5;
    QTest::newRow("upper case") << "RGB(0,0,255)" << 0.0 << 0.0 << 1.0 << 1.0;
    QTest::newRow("alpha is not divided") << "rgba(0,0,0,255)" << 0.0 << 0.0 << 0.0 << 255.0;
    QTest::newRow("not bounded") << "rgb(510,0,0)" << 2.0 << 0.0 << 0.0 << 1.0;
    QTest::newRow("what is no number is passed over") << "rgb 1.2.3 255 0 51" << 1.0 << 0.0 << 0.2 << 1.0;
    QTest::newRow("lone dots are passed over") << "rgb . 255 0 51" << 1.0 << 0.0 << 0.2 << 1.0;
    QTest::newRow("fractions") << "rgb(127.5,.0,51.)" << 0.5 << 0.0 << 0.2 << 1.0;
    QTest::newRow("five numbers") << "rgb(0,0,0,1,9)" << 0.0 << 0.0 << 0.0 << 1.0;
    QTest::newRow("only the beginning counts") << "rgbfoo 0 0 255" << 0.0 << 0.0 << 1.0 << 1.0;
    QTest::newRow("minus is a separator") << "rgb(-255,0,0)" << 1.0 << 0.0 << 0.0 << 1.0;
}

void ColorLiteralTest::a_literal_is_read_as_written()
{
    QFETCH(QString, text);
    QFETCH(double, red);
    QFETCH(double, green);
    QFETCH(double, blue);
    QFETCH(double, alpha);

    const auto color = parseColorLiteral(text);

    QVERIFY(color);
    QCOMPARE(color->red, red);
    QCOMPARE(color->green, green);
    QCOMPARE(color->blue, blue);
    QCOMPARE(color->alpha, alpha);
}

void ColorLiteralTest::other_texts_are_no_colors_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"",         "#",           "ff8800",    "#ff88",   "#abcde",     "#abcdef1",  "#abcdef123",
          "#12345g",  "#+12345",     "#0x123",    "# 12345", "#-1-1-1",    "#ff8800zz", "rgb",
          "rgb(1,2)", "argb(1,2,3)", "rg(1,2,3)", "red",     "hsl(1,2,3)", "rgb(1.2.3)"})
        QTest::newRow(text) << text;
    QTest::newRow("digits of another script") << u"#१२३१२३"_qs;
    QTest::newRow("full-width digits") << u"#１２３"_qs;
}

void ColorLiteralTest::other_texts_are_no_colors()
{
    QFETCH(QString, text);

    QVERIFY(!parseColorLiteral(text));
}

void ColorLiteralTest::what_is_painted_is_bounded()
{
    QCOMPARE(paintable({2, 0, 0.5, 255}), QColor::fromRgbF(1, 0, 0.5, 1));
}

QTEST_APPLESS_MAIN(ColorLiteralTest)
#include "ColorLiteralTest.moc"
