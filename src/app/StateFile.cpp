#include "app/StateFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace velm
{

namespace
{

constexpr qsizetype chunkSize = 64 * 1024;

bool isSameFile(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool hasSameContent(const QString &one, const QString &other)
{
    QFile a(one);
    QFile b(other);
    if (!a.open(QIODevice::ReadOnly) || !b.open(QIODevice::ReadOnly) || a.size() != b.size())
        return false;
    while (!a.atEnd()) {
        const QByteArray chunk = a.read(chunkSize);
        if (chunk.isEmpty() || chunk != b.read(chunkSize))
            return false;
    }
    return true;
}

// The name under which the file's content is kept already, else empty.
QString keptName(const QFileInfo &file, const struct stat &status)
{
    const QStringList kept = file.dir().entryList({file.fileName() + QStringLiteral(".unreadable-*")},
                                                  QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &name : kept) {
        const QString path = file.dir().filePath(name);
        struct stat other;
        if (::stat(QFile::encodeName(path), &other) == 0 &&
            (isSameFile(status, other) || hasSameContent(file.filePath(), path)))
            return name;
    }
    return {};
}

// A second name for the file costs nothing, and stays when the first one is given to another file.
bool linkOrCopy(const QString &from, const QString &to)
{
    return ::linkat(AT_FDCWD, QFile::encodeName(from), AT_FDCWD, QFile::encodeName(to), AT_SYMLINK_FOLLOW) ==
               0 ||
           (errno != EEXIST && QFile::copy(from, to));
}

}

StateFile readStateFile(const QString &path, qint64 sizeLimit)
{
    // Without O_NONBLOCK the opening of a pipe would wait for its writer.
    const int descriptor = ::open(QFile::encodeName(path), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return {errno == ENOENT || errno == ENOTDIR ? StateFile::State::Missing
                                                    : StateFile::State::Unreadable,
                {}};
    struct stat status;
    QFile file;
    const bool isReadable = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
                            status.st_size <= sizeLimit &&
                            file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered);
    if (!isReadable) {
        ::close(descriptor);
        return {StateFile::State::Unreadable, {}};
    }
    StateFile result{StateFile::State::Read, file.readAll()};
    if (file.error() != QFileDevice::NoError)
        result = {StateFile::State::Unreadable, {}};
    file.close();
    ::close(descriptor);
    return result;
}

Result<QString> keepAside(const QString &path, const QDateTime &now)
{
    const QFileInfo file(path);
    struct stat status;
    if (::stat(QFile::encodeName(path), &status) != 0 || !S_ISREG(status.st_mode))
        return QString();
    if (const QString kept = keptName(file, status); !kept.isEmpty())
        return kept;
    const QString stem = file.fileName() + u".unreadable-" + now.toString(u"yyyyMMdd-HHmmss");
    QString name = stem;
    constexpr int mostInOneSecond = 100; // another content in the same second is rare, so many are a fault
    for (int number = 2; number < mostInOneSecond && QFileInfo::exists(file.dir().filePath(name)); ++number)
        name = stem + u'-' + QString::number(number);
    if (!linkOrCopy(path, file.dir().filePath(name)))
        return Refusal{QStringLiteral("%1 could not be kept aside").arg(path)};
    return name;
}

}
