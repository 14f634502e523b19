#include "clipboard/ClipFolder.h"

#include "clipboard/ClipPicture.h"

#include <QFile>
#include <QFileInfo>

namespace velm
{

namespace
{

const QString asideName = QStringLiteral(".undo");
constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

// A name out of a file that anybody may have edited must not lead out of the folder.
bool isPlainName(const QString &name)
{
    return !name.isEmpty() && !name.contains(u'/') && !name.contains(QChar(0)) && !name.startsWith(u'.');
}

}

ClipFolder::ClipFolder(const QDir &dir) : m_dir(dir), m_aside(m_dir.filePath(asideName)) {}

bool ClipFolder::write(const QString &name, const QByteArray &png) const
{
    QFile file(path(name));
    if (!file.open(QFile::WriteOnly | QFile::NewOnly, ownerOnly))
        return false;
    if (file.write(png) == png.size() && file.flush())
        return true;
    file.remove();
    return false;
}

QByteArray ClipFolder::read(const QString &name) const
{
    const QFileInfo info(path(name));
    if (!isPlainName(name) || !info.isFile()) // a pipe would wait for ever
        return {};
    QFile file(info.filePath());
    if (!file.open(QFile::ReadOnly))
        return {};
    const QByteArray png = file.readAll();
    return looksLikePicture(png) ? png : QByteArray();
}

void ClipFolder::remove(const QString &name) const
{
    if (isPlainName(name))
        QFile::remove(path(name));
}

void ClipFolder::putAside(const QString &name) const
{
    if (!isPlainName(name))
        return;
    m_aside.mkpath(QStringLiteral("."));
    removeAside(name);
    if (!QFile::rename(path(name), asidePath(name)))
        remove(name);
}

void ClipFolder::bringBack(const QString &name) const
{
    if (isPlainName(name))
        QFile::rename(asidePath(name), path(name));
}

void ClipFolder::removeAside(const QString &name) const
{
    if (isPlainName(name))
        QFile::remove(asidePath(name));
}

void ClipFolder::tidy(const QSet<QString> &needed) const
{
    const QStringList names = m_aside.entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &name : names) {
        if (needed.contains(name))
            bringBack(name);
        removeAside(name);
    }
    m_dir.rmdir(asideName);
}

QString ClipFolder::path(const QString &name) const { return m_dir.filePath(name); }

QString ClipFolder::asidePath(const QString &name) const { return m_aside.filePath(name); }

}
