#include "platform/DisplayChoice.h"

#include <xcb/xcb.h>

namespace velm
{

namespace
{

bool xServerAnswers()
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

}

Result<QString> chooseDisplay()
{
    const QString wanted = qEnvironmentVariable("VELM_PLATFORM");
    const QString standing = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (wanted.isEmpty() && !standing.isEmpty() && standing != QStringLiteral("xcb"))
        return standing;
    if (wanted == QStringLiteral("offscreen")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return wanted;
    }
    if (!wanted.isEmpty() && wanted != QStringLiteral("x11"))
        return Refusal{QStringLiteral("VELM_PLATFORM must be x11 or offscreen, not \"%1\"").arg(wanted)};
    if (!xServerAnswers())
        return Refusal{QStringLiteral("no display: DISPLAY names no X server that answers")};
    qputenv("QT_QPA_PLATFORM", "xcb");
    return QStringLiteral("xcb");
}

}
