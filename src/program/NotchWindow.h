#pragma once

#include <QQuickView>

namespace velm
{

class Overlay;

// The transparent window at the top edge in which the island is drawn; 800 × 500 points and never moved
// within its screen.
class NotchWindow : public QQuickView
{
    Q_OBJECT

public:
    // Loads nothing yet: the QML asks for shared objects that the root makes first.
    explicit NotchWindow(Overlay &overlay);
    ~NotchWindow() override;

    void load();

private:
    Overlay &m_overlay;
};

}
