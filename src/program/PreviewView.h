#pragma once

#include <QImage>
#include <QQuickView>

namespace velm
{

class Application;
class VirtualRunLoop;

// The island over a sample desktop, in memory, with every motion at its end.
class PreviewView : public QQuickView
{
    Q_OBJECT

public:
    explicit PreviewView(Application &application);

    // The picture once pictures that load in the background have come.
    QImage grabSettled(VirtualRunLoop &loop);
};

}
