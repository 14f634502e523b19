#pragma once

#include <QObject>
#include <QStringList>

namespace velm
{

// Drags in progress anywhere on the desktop, where the display system tells of them before they reach
// the overlay.
class DragPasteboard : public QObject
{
    Q_OBJECT

public:
    virtual void watch() = 0;

    // False where a drag is seen only once it enters the overlay's own input region.
    virtual bool seesOtherPrograms() const = 0;

Q_SIGNALS:
    // A drag has begun and offers these MIME types.
    void began(const QStringList &types);
    void ended();
};

}
