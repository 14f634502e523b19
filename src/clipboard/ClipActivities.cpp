#include "clipboard/ClipActivities.h"

#include <QCoreApplication>

namespace velm
{

namespace
{

constexpr Seconds copiedDuration{1.5};
constexpr Seconds pauseDuration{1.6};
constexpr Seconds tooLargeDuration{3}; // news that is not expected takes longer to read
constexpr qsizetype detailCharacters = 18;

QString translated(const char *text) { return QCoreApplication::translate("ClipActivities", text); }

LiveActivity activity(const QString &icon, const char *title, Seconds duration)
{
    LiveActivity activity;
    activity.id = QStringLiteral("clipboard");
    activity.icon = icon;
    activity.tint = Tint::Clipboard;
    activity.leading = translated(title);
    activity.duration = duration;
    return activity;
}

}

LiveActivity copiedActivity(const ClipItem &item)
{
    LiveActivity copied =
        activity(icon(item.kind), QT_TRANSLATE_NOOP("ClipActivities", "Copied"), copiedDuration);
    copied.trailing = item.kind == ClipKind::Image ? item.text : item.preview(detailCharacters);
    return copied;
}

LiveActivity pausedActivity()
{
    return activity(QStringLiteral("pause.circle.fill"),
                    QT_TRANSLATE_NOOP("ClipActivities", "Clipboard paused"), pauseDuration);
}

LiveActivity resumedActivity()
{
    return activity(QStringLiteral("play.circle.fill"), QT_TRANSLATE_NOOP("ClipActivities", "Clipboard on"),
                    pauseDuration);
}

LiveActivity tooLargeActivity()
{
    LiveActivity tooLarge =
        activity(QStringLiteral("exclamationmark.circle.fill"),
                 QT_TRANSLATE_NOOP("ClipActivities", "Too large to keep"), tooLargeDuration);
    tooLarge.tint = Tint::Warning;
    return tooLarge;
}

}
