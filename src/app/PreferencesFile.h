#pragma once

#include "platform/Result.h"
#include "platform/runloop/LoopTimer.h"

#include <QFileSystemWatcher>
#include <QJsonObject>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace velm
{

// The user's preferences: one flat JSON object in a file that people may edit while the program runs. Values
// are written through on a queue of their own; keys that the program does not know are kept. Main thread
// only.
class PreferencesFile : public QObject
{
    Q_OBJECT

public:
    // `velm/settings.json` in the user's configuration folder (XDG_CONFIG_HOME).
    static QString defaultPath();

    explicit PreferencesFile(RunLoop &loop, const QString &path = defaultPath());
    ~PreferencesFile() override;

    // What keys that are not stored read as. Never written, and never over a stored value.
    void registerDefaults(const QJsonObject &defaults);

    // A value of another type reads as false, 0, 0.0, an empty string or an empty list. An integer reads as a
    // real too, and a real without a fraction as an integer.
    bool boolean(const QString &key) const;
    double real(const QString &key) const;
    qint64 integer(const QString &key) const;
    QString string(const QString &key) const;
    QStringList stringList(const QString &key) const;

    // Stored, else registered, else Undefined.
    QJsonValue value(const QString &key) const;

    // Every key that is stored or registered, with its value.
    QJsonObject values() const;

    void set(const QString &key, const QJsonValue &value);
    void reset(const QString &key);

    // Runs the task once all that was set before is on the disk, or could not be put there.
    void whenStored(std::function<void(Outcome)> task);

    // Returns when all is on the disk.
    void flushNow();

Q_SIGNALS:
    // The key reads otherwise than before, whoever changed it.
    void changed(const QString &key);

private:
    struct Stamp;
    struct WriteEnd;

    void watch();
    void takeUp();
    void takeUpIfChanged();
    void change(const QJsonObject &stored);
    void replaceStored(const QJsonObject &stored);
    void announceDifference(const QJsonObject &before);
    void write();
    void written(const WriteEnd &end);
    void logFault(const QString &sentence);

    RunLoop &m_loop;
    QString m_path;
    QJsonObject m_defaults;
    QJsonObject m_stored;
    std::unique_ptr<Stamp> m_stamp; // the file as it was last read or written
    std::unique_ptr<SerialQueue> m_queue;
    int m_writesUnderWay = 0;
    bool m_isDiskUnreadable = false;  // what stands there must be kept aside before it is replaced
    bool m_isFaultLogged = false;     // one line for a fault, until the file can be read or written again
    std::optional<Refusal> m_failure; // of the last write
    QFileSystemWatcher m_watcher;
    LoopTimer m_editSettled;
};

}
