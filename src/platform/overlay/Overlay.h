#pragma once

#include "platform/screens/Screens.h"

#include <QPainterPath>
#include <QRegion>

class QWindow;

namespace velm
{

// What the display system does for the overlay; the settings' page says the missing ones in words.
struct OverlayAbilities {
    bool clickThrough = false; // the input region is honoured
    bool keyboardOnDemand = false;
    bool allWorkspaces = false;
};

// The one always-on-top, mostly click-through window at the top edge, as the display system sees it.
// Coordinates are the window's own points, origin at the top left.
class Overlay : public QObject
{
    Q_OBJECT

public:
    // Before the window is first shown. It must outlive this object or be taken off with nullptr.
    virtual void attach(QWindow *window) = 0;

    // Puts the window (its size stays) at the middle of the screen's top edge and shows it there, above
    // all others, without the keyboard. Called again to bring it back to the front.
    virtual void present(const ScreenInfo &screen) = 0;

    // Where the pointer is the overlay's; elsewhere clicks, scrolls and hovers pass to what lies below.
    // Empty: nowhere.
    virtual void setInputRegion(const QRegion &region) = 0;

    // The part of the window that is painted at all. Needed only where the display system does not blend
    // (isBlending false); ignored elsewhere.
    virtual void setPaintedShape(const QRegion &region) = 0;

    virtual void takeKeyboard() = 0;

    // To the window that had it when it was taken. Nothing happens when another has taken it meanwhile.
    virtual void returnKeyboard() = 0;

    virtual bool isBlending() const = 0;
    virtual OverlayAbilities abilities() const = 0;

Q_SIGNALS:
    void blendingChanged();

    // Another window has taken the keyboard by itself.
    void keyboardLost();
};

}
