#include "app/Store.h"

#include "app/AtomicFile.h"

#include <QDebug>
#include <QStandardPaths>
#include <QThread>

namespace velm
{

namespace
{

// Nothing that is kept comes near it; more than this could not be parsed in the memory of a laptop.
constexpr qint64 fileSizeLimit = qint64(1) << 30;

QDir dataFolder(const QString &name)
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)).filePath(name);
}

}

Store::Store(RunLoop &loop, const QString &folderName)
    : m_loop(loop), m_dir(dataFolder(folderName)), m_queue(loop.makeQueue("app.velm.store")), m_settled(loop)
{
    makePrivateFolder(m_dir.path());
    makePrivateFolder(clipsDir().path());
    removeAbandonedFiles(m_dir.path(), loop.wallTime());
}

Store::~Store() { flushNow(); }

void Store::put(const QString &name, Write write)
{
    {
        const std::lock_guard lock(m_pendingMutex);
        m_pending[name] = std::move(write);
    }
    const auto settle = [this] { m_settled.startOnce(settleDelay, [this] { writeInBackground(); }); };
    if (QThread::currentThread() == thread())
        return settle();
    m_loop.post([alive = QPointer<Store>(this), settle] {
        if (alive)
            settle();
    });
}

void Store::flushNow()
{
    m_settled.stop();
    writeInBackground();
    m_queue->drain();
}

void Store::writeInBackground()
{
    std::map<QString, Write> pending;
    {
        const std::lock_guard lock(m_pendingMutex);
        pending.swap(m_pending);
    }
    if (pending.empty())
        return;
    // The snapshots go to the queue, so that a big one is let go of there.
    m_queue->enqueue([dir = m_dir, files = std::move(pending)] {
        for (const auto &[name, write] : files)
            replaceFile(dir.filePath(name), write);
    });
}

StateFile Store::read(const QString &name) const
{
    return readStateFile(m_dir.filePath(name), fileSizeLimit);
}

void Store::report(const QString &name, Decoding decoding) const
{
    if (decoding == Decoding::Missing || decoding == Decoding::Complete)
        return;
    const QString what = decoding == Decoding::Failed
                             ? QStringLiteral("%1 could not be read")
                             : QStringLiteral("%1 has keys that this version does not know");
    const Result<QString> kept = keepAside(m_dir.filePath(name), m_loop.wallTime());
    QString where;
    if (!kept)
        where = u", " + kept.sentence();
    else if (!kept->isEmpty())
        where = QStringLiteral(", it is kept as %1").arg(*kept);
    qWarning().noquote() << QLatin1String("[Velm]") << what.arg(name) + where;
}

}
