#include "platform/front/x11/DesktopEntries.h"

#include <QDirIterator>
#include <QFile>
#include <QLocale>
#include <QStandardPaths>

namespace velm
{

namespace
{

constexpr qint64 mostLines = 2000; // an entry has some hundred, most of them translations

using Keys = QHash<QString, QString>;

// The keys of the group [Desktop Entry].
Keys readKeys(const QString &path)
{
    Keys keys;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return keys;
    bool isInGroup = false;
    for (qint64 line = 0; line < mostLines && !file.atEnd(); ++line) {
        const QString text = QString::fromUtf8(file.readLine()).trimmed();
        if (text.startsWith(QLatin1Char('['))) {
            if (isInGroup)
                break;
            isInGroup = text == QLatin1String("[Desktop Entry]");
            continue;
        }
        const qsizetype equals = text.indexOf(QLatin1Char('='));
        if (isInGroup && equals > 0 && !text.startsWith(QLatin1Char('#')))
            keys.insert(text.left(equals).trimmed(), text.mid(equals + 1).trimmed());
    }
    return keys;
}

QString localised(const Keys &keys, const QString &key)
{
    const QString locale = QLocale().name();
    for (const QString &name : {locale, locale.section(QLatin1Char('_'), 0, 0)}) {
        const auto found = keys.constFind(key + QLatin1Char('[') + name + QLatin1Char(']'));
        if (found != keys.constEnd())
            return *found;
    }
    return keys.value(key);
}

}

std::optional<ProgramInfo> DesktopEntries::find(const QString &windowClass)
{
    if (!m_isRead)
        readAll();
    const QString key = windowClass.toLower();
    for (const auto *programs : {&m_byClass, &m_byId}) {
        const auto found = programs->constFind(key);
        if (found != programs->constEnd())
            return *found;
    }
    return {};
}

void DesktopEntries::readAll()
{
    m_isRead = true;
    for (const QString &folder : QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation))
        readFolder(folder);
}

// Earlier folders win: the person's own entries come before the system's.
void DesktopEntries::readFolder(const QString &folder)
{
    QDirIterator files(folder, {QStringLiteral("*.desktop")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        // A folder below is part of the id.
        QString id = path.mid(folder.size() + 1).chopped(8);
        id.replace(QLatin1Char('/'), QLatin1Char('-'));
        const auto entry = readFile(path, id);
        if (!entry)
            continue;
        if (!m_byId.contains(id.toLower()))
            m_byId.insert(id.toLower(), entry->program);
        if (!entry->windowClass.isEmpty() && !m_byClass.contains(entry->windowClass.toLower()))
            m_byClass.insert(entry->windowClass.toLower(), entry->program);
    }
}

std::optional<DesktopEntries::Entry> DesktopEntries::readFile(const QString &path, const QString &id)
{
    const Keys keys = readKeys(path);
    const QString name = localised(keys, QStringLiteral("Name"));
    if (keys.value(QStringLiteral("Type")) != QLatin1String("Application") || name.isEmpty())
        return {};
    const QStringList categories = keys.value(QStringLiteral("Categories")).split(QLatin1Char(';'));
    return Entry{.program = {.name = name,
                             .identifier = id,
                             .isTerminal = categories.contains(QStringLiteral("TerminalEmulator"))},
                 .windowClass = keys.value(QStringLiteral("StartupWMClass"))};
}

}
