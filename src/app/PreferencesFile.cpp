#include "app/PreferencesFile.h"

#include "app/AtomicFile.h"
#include "app/StateFile.h"

#include <QDebug>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>

#include <sys/stat.h>

namespace velm
{

namespace
{

constexpr qint64 fileSizeLimit = 16 * 1024 * 1024;  // hundreds of times what all keys together can need
constexpr std::chrono::milliseconds editDelay{100}; // an editor may still be writing

}

// What tells one content of the file from the next without reading it.
struct PreferencesFile::Stamp {
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = -1;
    qint64 seconds = 0;
    qint64 nanoseconds = 0;

    static Stamp of(const QString &path)
    {
        struct stat status;
        if (::stat(QFile::encodeName(path), &status) != 0)
            return {};
        return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
    }

    bool operator==(const Stamp &) const = default;
};

struct PreferencesFile::WriteEnd {
    Outcome outcome;
    Stamp stamp;
    bool hadToKeep;
};

QString PreferencesFile::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/velm/settings.json");
}

PreferencesFile::PreferencesFile(RunLoop &loop, const QString &path)
    : m_loop(loop)
    , m_path(path)
    , m_stamp(std::make_unique<Stamp>())
    , m_queue(loop.makeQueue("app.velm.preferences"))
    , m_editSettled(loop)
{
    makePrivateFolder(QFileInfo(path).absolutePath());
    takeUp();
    watch();
    const auto noticed = [this] {
        m_editSettled.startOnce(editDelay, [this] {
            watch();
            takeUpIfChanged();
        });
    };
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, noticed);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, noticed);
}

PreferencesFile::~PreferencesFile() { flushNow(); }

void PreferencesFile::registerDefaults(const QJsonObject &defaults)
{
    for (auto entry = defaults.begin(); entry != defaults.end(); ++entry)
        m_defaults.insert(entry.key(), entry.value());
}

bool PreferencesFile::boolean(const QString &key) const { return value(key).toBool(false); }

double PreferencesFile::real(const QString &key) const { return value(key).toDouble(0); }

qint64 PreferencesFile::integer(const QString &key) const { return value(key).toInteger(0); }

QString PreferencesFile::string(const QString &key) const { return value(key).toString(); }

QStringList PreferencesFile::stringList(const QString &key) const
{
    QStringList list;
    const QJsonArray array = value(key).toArray();
    for (const QJsonValue element : array) {
        if (!element.isString())
            return {};
        list.append(element.toString());
    }
    return list;
}

QJsonValue PreferencesFile::value(const QString &key) const
{
    const auto found = m_stored.constFind(key);
    return found != m_stored.constEnd() ? QJsonValue(*found) : m_defaults.value(key);
}

QJsonObject PreferencesFile::values() const
{
    QJsonObject all = m_defaults;
    for (auto entry = m_stored.begin(); entry != m_stored.end(); ++entry)
        all.insert(entry.key(), entry.value());
    return all;
}

void PreferencesFile::set(const QString &key, const QJsonValue &value)
{
    takeUpIfChanged(); // what was edited by hand a moment ago is not to be overwritten
    QJsonObject stored = m_stored;
    stored.insert(key, value);
    change(stored);
}

void PreferencesFile::reset(const QString &key)
{
    takeUpIfChanged();
    QJsonObject stored = m_stored;
    stored.remove(key);
    change(stored);
}

void PreferencesFile::whenStored(std::function<void(Outcome)> task)
{
    const auto reached = [] { return true; };
    m_loop.runOn(*m_queue, this, reached,
                 [this, task = std::move(task)](bool) { task(m_failure ? Outcome(*m_failure) : done()); });
}

void PreferencesFile::flushNow() { m_queue->drain(); }

void PreferencesFile::watch()
{
    m_watcher.addPath(QFileInfo(m_path).absolutePath());
    if (QFileInfo(m_path).isFile() && !m_watcher.files().contains(m_path))
        m_watcher.addPath(m_path);
}

void PreferencesFile::takeUp()
{
    *m_stamp = Stamp::of(m_path);
    const StateFile file = readStateFile(m_path, fileSizeLimit);
    const QJsonDocument document = QJsonDocument::fromJson(file.bytes);
    const bool isMissing = file.state == StateFile::State::Missing;
    m_isDiskUnreadable = !isMissing && !document.isObject();
    if (m_isDiskUnreadable)
        return logFault(QStringLiteral("%1 could not be read, the preferences stay as they are").arg(m_path));
    m_isFaultLogged = false;
    replaceStored(document.object());
}

void PreferencesFile::takeUpIfChanged()
{
    if (m_writesUnderWay == 0 && Stamp::of(m_path) != *m_stamp)
        takeUp();
}

void PreferencesFile::change(const QJsonObject &stored)
{
    if (stored == m_stored && !m_failure)
        return;
    const QJsonObject before = values();
    m_stored = stored;
    write();
    announceDifference(before);
}

void PreferencesFile::replaceStored(const QJsonObject &stored)
{
    const QJsonObject before = values();
    m_stored = stored;
    announceDifference(before);
}

void PreferencesFile::announceDifference(const QJsonObject &before)
{
    const QJsonObject after = values();
    QStringList keys = before.keys() + after.keys();
    keys.removeDuplicates();
    for (const QString &key : std::as_const(keys)) {
        if (before.value(key) != after.value(key))
            Q_EMIT changed(key);
    }
}

void PreferencesFile::write()
{
    ++m_writesUnderWay;
    const bool hasToKeep = std::exchange(m_isDiskUnreadable, false);
    auto work = [path = m_path, stored = m_stored, hasToKeep, now = m_loop.wallTime()]() -> WriteEnd {
        const auto content = [&](QIODevice &device) {
            const QByteArray json = QJsonDocument(stored).toJson();
            return device.write(json) == json.size();
        };
        if (hasToKeep) {
            if (const Result<QString> kept = keepAside(path, now); !kept)
                return {Refusal{kept.sentence()}, Stamp::of(path), hasToKeep};
        }
        makePrivateFolder(QFileInfo(path).absolutePath());
        const Outcome outcome = replaceFile(path, content);
        return {outcome, Stamp::of(path), hasToKeep};
    };
    m_loop.runOn(*m_queue, this, std::move(work), [this](const WriteEnd &end) { written(end); });
}

void PreferencesFile::written(const WriteEnd &end)
{
    --m_writesUnderWay;
    *m_stamp = end.stamp;
    m_failure.reset();
    if (end.outcome) {
        m_isFaultLogged = false;
        return;
    }
    m_failure = Refusal{end.outcome.sentence()};
    m_isDiskUnreadable = m_isDiskUnreadable || end.hadToKeep;
    logFault(end.outcome.sentence());
}

void PreferencesFile::logFault(const QString &sentence)
{
    if (!std::exchange(m_isFaultLogged, true))
        qWarning().noquote() << QLatin1String("[Velm]") << sentence;
}

}
