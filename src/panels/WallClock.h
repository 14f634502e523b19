#pragma once

#include "platform/SharedInstance.h"
#include "platform/runloop/LoopTimer.h"

#include <QObject>
#include <QQmlEngine>

namespace velm
{

// The time of day in the person's own form, right to the minute while it is looked at. Nothing wakes up for
// it otherwise.
class WallClock : public QObject, public SharedInstance<WallClock>
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isTicking READ isTicking WRITE setTicking NOTIFY isTickingChanged)
    Q_PROPERTY(QString time READ time NOTIFY ticked) // "14:32"
    Q_PROPERTY(QString date READ date NOTIFY ticked) // "Sat 21 Nov"

public:
    explicit WallClock(RunLoop &loop);
    static WallClock *create(QQmlEngine *, QJSEngine *);

    bool isTicking() const { return m_minute.isActive(); }
    void setTicking(bool ticking);

    QString time() const;
    QString date() const;

Q_SIGNALS:
    void isTickingChanged();
    void ticked();

private:
    void tick();

    RunLoop &m_loop;
    LoopTimer m_minute;
};

}
