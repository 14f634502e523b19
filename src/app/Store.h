#pragma once

#include "app/RecordCodec.h"
#include "app/StateFile.h"
#include "platform/SharedInstance.h"
#include "platform/runloop/LoopTimer.h"

#include <QDir>
#include <QObject>

#include <functional>
#include <map>
#include <mutex>
#include <optional>

namespace velm
{

// The data folder and its one writer: every feature keeps its records here, one JSON file each.
// Writing waits until no file was saved for 0.35 s, happens on a queue of its own, and replaces a file in one
// step. A file that cannot be written is silently left as it was.
class Store : public QObject, public SharedInstance<Store>
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds settleDelay{350}; // one write for a burst of changes

    // The folder is made in the user's data folder (XDG_DATA_HOME), with "Clips" in it.
    Store(RunLoop &loop, const QString &folderName);
    ~Store() override;

    // Keeps a snapshot of the records and writes it later. From any thread.
    template <typename T>
    void save(const QList<T> &records, const QString &name)
    {
        put(name, [records](QIODevice &device) { return writeRecords(device, records); });
    }
    template <typename T>
    void save(const T &record, const QString &name)
    {
        put(name, [record](QIODevice &device) { return writeRecord(device, record); });
    }

    // Writes what waits and returns when it is on the disk. Main thread only.
    void flushNow();

    // Nothing when there is no such file or it cannot be read as this record. An unreadable file stays, and
    // is kept aside as well, so that the next save loses nothing.
    template <typename T>
    std::optional<QList<T>> loadList(const QString &name)
    {
        return checked(name, readRecords<T>(read(name)));
    }
    template <typename T>
    std::optional<T> load(const QString &name)
    {
        return checked(name, readRecord<T>(read(name)));
    }

    QDir dir() const { return m_dir; }
    QDir clipsDir() const { return QDir(m_dir.filePath(QStringLiteral("Clips"))); }

private:
    using Write = std::function<bool(QIODevice &)>;

    void put(const QString &name, Write write);
    void writeInBackground();
    StateFile read(const QString &name) const;
    void report(const QString &name, Decoding decoding) const;

    template <typename T>
    std::optional<T> checked(const QString &name, Decoded<T> decoded) const
    {
        report(name, decoded.decoding);
        return std::move(decoded.value);
    }

    RunLoop &m_loop;
    QDir m_dir;
    std::mutex m_pendingMutex;
    std::map<QString, Write> m_pending;
    std::unique_ptr<SerialQueue> m_queue;
    LoopTimer m_settled;
};

}
