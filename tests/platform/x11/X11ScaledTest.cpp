#include "platform/Platform.h"
#include "platform/rig/ForeignWindow.h"
#include "platform/rig/OtherProgram.h"
#include "platform/rig/PrivateDisplay.h"
#include "platform/runloop/QtRunLoop.h"
#include "platform/x11/NativePixels.h"

#include <QGuiApplication>
#include <QRasterWindow>
#include <QSignalSpy>

#include <xcb/shape.h>

namespace velm
{

// On a screen of 1280 × 800 pixels where every point is two pixels wide.
class X11ScaledTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_screen_is_measured_in_points();
    void the_pointer_is_placed_in_points();
    void shapes_reach_the_server_in_pixels();
    void a_region_covers_every_pixel_that_it_touches_data();
    void a_region_covers_every_pixel_that_it_touches();
};

void X11ScaledTest::a_screen_is_measured_in_points()
{
    QtRunLoop loop;
    const Platform platform = makePlatform(loop);

    QCOMPARE(platform.screens->all().size(), 1);
    QCOMPARE(platform.screens->all().first().geometry, QRect(0, 0, 640, 400));
}

void X11ScaledTest::the_pointer_is_placed_in_points()
{
    QtRunLoop loop;
    const Platform platform = makePlatform(loop);
    QSignalSpy presses(platform.pointer.get(), &Pointer::pressed);

    outputOf(QStringLiteral("xdotool"),
             {QStringLiteral("mousemove"), QStringLiteral("1279"), QStringLiteral("301"),
              QStringLiteral("click"), QStringLiteral("3")});

    QVERIFY(QTest::qWaitFor([&] { return presses.size() == 1; }));
    QCOMPARE(platform.pointer->position(), QPoint(639, 150));
    QCOMPARE(presses.first().first().toPoint(), QPoint(639, 150));
}

void X11ScaledTest::shapes_reach_the_server_in_pixels()
{
    QtRunLoop loop;
    const Platform platform = makePlatform(loop);
    QRasterWindow window;
    window.resize(400, 200);
    platform.overlay->attach(&window);
    platform.overlay->setInputRegion(QRect(100, 0, 200, 41));
    platform.overlay->present(platform.screens->all().first());
    ForeignWindow observer("Observer", {0, 600, 10, 10});

    QCOMPARE(window.position(), QPoint(120, 0));
    const auto id = static_cast<xcb_window_t>(window.winId());
    QVERIFY(
        QTest::qWaitFor([&] { return observer.shapeOf(id, XCB_SHAPE_SK_INPUT) == QRect(200, 0, 400, 82); }));
    QCOMPARE(observer.shapeOf(id, XCB_SHAPE_SK_BOUNDING), QRect(0, 0, 800, 400));
    platform.overlay->attach(nullptr);
}

void X11ScaledTest::a_region_covers_every_pixel_that_it_touches_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<QRect>("points");
    QTest::addColumn<QRect>("pixels");
    QTest::newRow("as it is") << 1.0 << QRect(3, 4, 5, 6) << QRect(3, 4, 5, 6);
    QTest::newRow("twice") << 2.0 << QRect(3, 4, 5, 6) << QRect(6, 8, 10, 12);
    QTest::newRow("half way") << 1.5 << QRect(1, 1, 1, 1) << QRect(1, 1, 2, 2);
    QTest::newRow("beyond what the server can say")
        << 1.0 << QRect(0, 0, 40000, 10) << QRect(0, 0, 32767, 10);
}

void X11ScaledTest::a_region_covers_every_pixel_that_it_touches()
{
    QFETCH(qreal, scale);
    QFETCH(QRect, points);
    QFETCH(QRect, pixels);

    const auto rectangles = toPixels(points, scale);

    QCOMPARE(rectangles.size(), 1);
    const xcb_rectangle_t &only = rectangles.first();
    QCOMPARE(QRect(only.x, only.y, only.width, only.height), pixels);
}

}

int main(int argc, char **argv)
{
    const velm::PrivateDisplay display(velm::PrivateDisplay::WindowManager::Openbox);
    qputenv("QT_SCALE_FACTOR", "2");
    const QGuiApplication app(argc, argv);
    velm::X11ScaledTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "X11ScaledTest.moc"
