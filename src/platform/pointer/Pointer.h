#pragma once

#include <QObject>
#include <QPoint>

namespace velm
{

// The pointer wherever it is on the desktop. A resting pointer costs nothing: notices come by events.
class Pointer : public QObject
{
    Q_OBJECT

public:
    // In the desktop's points; the last known where the display system does not tell.
    virtual QPoint position() const = 0;

    // While followed, moved() comes at most 30 times a second, and once more where the pointer came to
    // rest; off at first.
    virtual void setFollowed(bool followed) = 0;

    // False where only the overlay's own surface tells of the pointer: then it is moved() by entering it,
    // and presses elsewhere are never told.
    virtual bool isGlobal() const = 0;

Q_SIGNALS:
    void moved(QPoint position);

    // Left and right buttons, in any program's window, this one's included.
    void pressed(QPoint position);
    void released(QPoint position);
};

}
