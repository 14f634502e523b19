#include "program/PreviewView.h"

#include "platform/runloop/QtRunLoop.h"
#include "platform/runloop/VirtualRunLoop.h"
#include "program/QmlModules.h"

#include <QEventLoop>
#include <QQmlEngine>

namespace velm
{

namespace
{

// Long enough for a thumbnail's thread and the frame after it.
constexpr std::chrono::milliseconds pictureTime{60};

void waitForPictures()
{
    QtRunLoop loop;
    QEventLoop wait;
    loop.schedule(loop.now() + pictureTime, [&wait] { wait.quit(); });
    wait.exec();
}

}

PreviewView::PreviewView(Application &application)
{
    prepareEngine(*engine(), application);
    setColor(Qt::black);
    setSource(QUrl(QStringLiteral("qrc:/qml/Velm/Panels/Preview.qml")));
    if (!errors().isEmpty())
        qFatal("[Velm] the preview's QML does not load: %s", qPrintable(errors().constFirst().toString()));
    show();
}

QImage PreviewView::grabSettled(VirtualRunLoop &loop)
{
    waitForPictures();
    loop.settle();
    waitForPictures();
    return grabWindow();
}

}
