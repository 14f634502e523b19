#include "panels/WallClock.h"

#include "app/SharedForQml.h"

#include <QLocale>

namespace velm
{

WallClock::WallClock(RunLoop &loop) : m_loop(loop), m_minute(loop) {}

WallClock *WallClock::create(QQmlEngine *, QJSEngine *) { return sharedForQml<WallClock>(); }

void WallClock::setTicking(bool ticking)
{
    if (ticking == isTicking())
        return;
    if (ticking)
        tick();
    else
        m_minute.stop();
    Q_EMIT isTickingChanged();
}

QString WallClock::time() const
{
    QString format = QLocale().timeFormat(QLocale::ShortFormat);
    format.remove(QStringLiteral(":ss")); // some locales have no form without seconds
    return QLocale().toString(m_loop.wallTime().time(), format);
}

QString WallClock::date() const
{
    //: The day beside the clock, in the format of QDate::toString
    return QLocale().toString(m_loop.wallTime().date(), tr("ddd d MMM"));
}

void WallClock::tick()
{
    using namespace std::chrono;
    const QTime time = m_loop.wallTime().time();
    const milliseconds sinceMinute = seconds(time.second()) + milliseconds(time.msec());
    m_minute.startOnce(minutes(1) - sinceMinute, [this] { tick(); });
    Q_EMIT ticked();
}

}
