#include "platform/sound/canberra/CanberraSound.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

#include <canberra.h>

#include <condition_variable>
#include <mutex>

using namespace std::chrono_literals;

namespace velm
{

namespace
{

constexpr auto idleDelay = 5s;
constexpr auto farewell = 300ms; // for work at hand when the program ends
constexpr int mostWaiting = 4;   // sounds that come late are worse than none

QString fileName(Sound sound)
{
    switch (sound) {
    case Sound::Pop:
        return QStringLiteral("pop.wav");
    case Sound::Glass:
        return QStringLiteral("glass.wav");
    case Sound::Tink:
        return QStringLiteral("tink.wav");
    case Sound::Bottle:
        return QStringLiteral("bottle.wav");
    }
    Q_UNREACHABLE();
}

// Beside the program as built or installed, else where the system keeps data.
QString findFile(Sound sound)
{
    const QString name = fileName(sound);
    const QString beside =
        QCoreApplication::applicationDirPath() + QStringLiteral("/../share/velm/sounds/") + name;
    if (QFile::exists(beside))
        return beside;
    return QStandardPaths::locate(QStandardPaths::GenericDataLocation, QStringLiteral("velm/sounds/") + name);
}

}

// The context, made with the first sound; used on the queue only, but for the count of what is under way.
class CanberraSound::Line
{
public:
    ~Line() { close(); }

    void play(const QByteArray &path)
    {
        if (!m_context && ca_context_create(&m_context) == CA_SUCCESS)
            ca_context_change_props(m_context, CA_PROP_APPLICATION_NAME, "Velm", CA_PROP_APPLICATION_ID,
                                    "app.velm.Velm", nullptr);
        if (!m_context)
            return;
        // No device, no server: an error here, and silence.
        ca_context_play(m_context, 0, CA_PROP_MEDIA_FILENAME, path.constData(), CA_PROP_MEDIA_ROLE, "event",
                        CA_PROP_EVENT_DESCRIPTION, "Velm", CA_PROP_CANBERRA_CACHE_CONTROL, "never", nullptr);
    }

    void close()
    {
        if (m_context)
            ca_context_destroy(m_context);
        m_context = nullptr;
    }

    bool isBusy()
    {
        const std::lock_guard lock(m_mutex);
        return m_underWay >= mostWaiting;
    }

    void begin()
    {
        const std::lock_guard lock(m_mutex);
        ++m_underWay;
    }

    void finish()
    {
        const std::lock_guard lock(m_mutex);
        --m_underWay;
        m_finished.notify_all();
    }

    bool isFinishedWithin(std::chrono::milliseconds patience)
    {
        std::unique_lock lock(m_mutex);
        return m_finished.wait_for(lock, patience, [this] { return m_underWay == 0; });
    }

private:
    ca_context *m_context = nullptr;
    std::mutex m_mutex;
    std::condition_variable m_finished;
    int m_underWay = 0;
};

CanberraSound::CanberraSound(RunLoop &loop)
    : m_idle(loop), m_line(std::make_shared<Line>()), m_queue(loop.makeQueue("velm.sound"))
{}

CanberraSound::~CanberraSound()
{
    closeLine();
    // The thread of a queue that hangs ends with the process.
    if (!m_line->isFinishedWithin(farewell))
        static_cast<void>(m_queue.release());
}

void CanberraSound::play(Sound sound)
{
    const QString path = findFile(sound);
    if (path.isEmpty() || m_line->isBusy())
        return;
    m_line->begin();
    m_queue->enqueue([line = m_line, path = QFile::encodeName(path)] {
        line->play(path);
        line->finish();
    });
    m_isOpen = true;
    m_idle.startOnce(idleDelay, [this] { closeLine(); });
}

void CanberraSound::closeLine()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    m_line->begin();
    m_queue->enqueue([line = m_line] {
        line->close();
        line->finish();
    });
}

}
