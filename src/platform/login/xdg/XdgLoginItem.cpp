#include "platform/login/xdg/XdgLoginItem.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>

namespace velm
{

namespace
{

QString autostartFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart");
}

QString entryPath() { return autostartFolder() + QStringLiteral("/app.velm.Velm.desktop"); }

// An argument of Exec stands in quotes; some characters are escaped in them, once for the quotes and once
// more for the file's strings, and % would begin a field code.
QString quoted(const QString &path)
{
    QString text;
    for (const QChar character : path) {
        if (QStringLiteral("\"`$\\").contains(character))
            text += QStringLiteral("\\\\");
        if (character == QLatin1Char('\\'))
            text += character;
        if (character == QLatin1Char('%'))
            text += character;
        text += character;
    }
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QByteArray entry()
{
    const QString text = QStringLiteral("[Desktop Entry]\n"
                                        "Type=Application\n"
                                        "Name=Velm\n"
                                        "Comment=The island at the top of the screen\n"
                                        "Exec=%1\n"
                                        "Icon=app.velm.Velm\n"
                                        "Terminal=false\n"
                                        "X-GNOME-Autostart-enabled=true\n");
    return text.arg(quoted(QCoreApplication::applicationFilePath())).toUtf8();
}

}

Outcome XdgLoginItem::add()
{
    QSaveFile file(entryPath());
    const QByteArray content = entry();
    const bool isWritten = QDir().mkpath(autostartFolder()) && file.open(QIODevice::WriteOnly) &&
                           file.write(content) == content.size() && file.commit();
    if (!isWritten)
        return Refusal{QStringLiteral("Velm could not be added to the programs that start at login (%1)")
                           .arg(QDir::toNativeSeparators(entryPath()))};
    return done();
}

Outcome XdgLoginItem::remove()
{
    QFile file(entryPath());
    if (file.exists() && !file.remove())
        return Refusal{QStringLiteral("Velm could not be taken off the programs that start at login (%1)")
                           .arg(QDir::toNativeSeparators(entryPath()))};
    return done();
}

}
