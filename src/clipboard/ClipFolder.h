#pragma once

#include <QDir>
#include <QSet>

namespace velm
{

// The folder with the pictures of the history, one PNG each. A picture whose clip was deleted is put aside in
// a hidden folder below until that cannot be taken back any more. Failures are silent: a clip without its
// picture is still a clip.
class ClipFolder
{
public:
    explicit ClipFolder(const QDir &dir);

    // Only for the user. From any thread.
    bool write(const QString &name, const QByteArray &png) const;

    // Empty when there is no such picture, or one that is broken.
    QByteArray read(const QString &name) const;

    void remove(const QString &name) const;
    void putAside(const QString &name) const;
    void bringBack(const QString &name) const;
    void removeAside(const QString &name) const;

    // What was aside when the program last ended: brought back where a clip still needs it, else removed.
    void tidy(const QSet<QString> &needed) const;

    QString path(const QString &name) const;

private:
    QString asidePath(const QString &name) const;

    QDir m_dir;
    QDir m_aside;
};

}
