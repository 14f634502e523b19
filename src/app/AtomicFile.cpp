#include "app/AtomicFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>

namespace velm
{

namespace
{

constexpr auto temporaryStem = ".velm-"; // then six characters of mkostemp's
constexpr std::chrono::hours writeTimeLimit{1};

Refusal systemRefusal(const QString &path)
{
    return {QStringLiteral("%1 could not be written: %2")
                .arg(path, QString::fromLocal8Bit(std::strerror(errno)))};
}

bool writeContent(int descriptor, const std::function<bool(QIODevice &)> &write)
{
    QFile file;
    return file.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered) && write(file) &&
           ::fsync(descriptor) == 0;
}

void synchroniseFolder(const QByteArray &folder)
{
    const int descriptor = ::open(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

}

Outcome replaceFile(const QString &path, const std::function<bool(QIODevice &)> &write)
{
    const QString linked = QFileInfo(path).canonicalFilePath(); // empty when nothing stands there yet
    const QFileInfo target(linked.isEmpty() ? path : linked);
    const QByteArray folder = QFile::encodeName(target.absolutePath());
    QByteArray temporary = folder + '/' + temporaryStem + "XXXXXX";
    errno = 0;
    const int descriptor = ::mkostemp(temporary.data(), O_CLOEXEC); // made with mode 0600
    if (descriptor < 0)
        return systemRefusal(path);
    bool isReplaced = writeContent(descriptor, write);
    isReplaced = ::close(descriptor) == 0 && isReplaced;
    isReplaced = isReplaced && ::rename(temporary, QFile::encodeName(target.absoluteFilePath())) == 0;
    if (!isReplaced) {
        const Refusal refusal = systemRefusal(path);
        ::unlink(temporary);
        return refusal;
    }
    synchroniseFolder(folder);
    return done();
}

void removeAbandonedFiles(const QString &folder, const QDateTime &now)
{
    const QFileInfoList files =
        QDir(folder).entryInfoList({QLatin1String(temporaryStem) + QStringLiteral("??????")},
                                   QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo &file : files) {
        if (file.lastModified() < now.addDuration(-writeTimeLimit))
            QFile::remove(file.filePath());
    }
}

void makePrivateFolder(const QString &path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    const QByteArray folder = QFile::encodeName(path);
    struct stat status;
    if (::mkdir(folder, S_IRWXU) != 0 && ::stat(folder, &status) == 0 &&
        (status.st_mode & (S_IRWXG | S_IRWXO)))
        ::chmod(folder, status.st_mode & S_IRWXU);
}

}
