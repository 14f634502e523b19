#include "platform/files/dbus/DBusFileManager.h"

#include "platform/dbus/SessionBus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace velm
{

namespace
{

void openFolderOf(const QString &path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

}

void DBusFileManager::reveal(const QString &path)
{
    const auto bus = sessionBus();
    if (!bus) {
        openFolderOf(path);
        return;
    }
    const QString service = QStringLiteral("org.freedesktop.FileManager1");
    QDBusMessage call = QDBusMessage::createMethodCall(
        service, QStringLiteral("/org/freedesktop/FileManager1"), service, QStringLiteral("ShowItems"));
    const QString noStartupId;
    call.setArguments({QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)}, noStartupId});
    auto *answer = new QDBusPendingCallWatcher(bus->asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [answer, path] {
        if (answer->isError())
            openFolderOf(path);
        answer->deleteLater();
    });
}

}
