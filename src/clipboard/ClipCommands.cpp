#include "clipboard/ClipCommands.h"

#include "app/AgeText.h"
#include "app/Characters.h"
#include "app/RecordCodec.h"
#include "app/UniquePrefix.h"
#include "clipboard/ClipboardManager.h"

#include <QJsonArray>
#include <QMetaEnum>

#include <algorithm>

namespace velm
{

namespace
{

constexpr qsizetype screenWidth = 80;
constexpr qsizetype idWidth = 8; // a prefix that nearly always is unique
constexpr QStringView gap = u"  ";
constexpr qsizetype mostText = 32 * 1024 * 1024; // code units; the session bus drops who sends much more

QString padded(const QString &text, qsizetype width)
{
    return text + QString(std::max<qsizetype>(width - characterCount(text), 0), u' ');
}

QString cut(const QString &text, qsizetype width)
{
    return characterCount(text) <= width ? text : firstCharacters(text, width - 1) + u'…';
}

// One line a clip: id, pin, kind, title, age.
QString table(const QList<ClipItem> &items, const QDateTime &now)
{
    qsizetype kindWidth = 0;
    qsizetype ageWidth = 0;
    QList<ClipRow> rows;
    for (const ClipItem &item : items) {
        rows.append(makeRow(item, {}, now));
        kindWidth = std::max(kindWidth, characterCount(label(item.kind)));
        ageWidth = std::max(ageWidth, characterCount(rows.last().age));
    }
    const qsizetype fixed = idWidth + 1 + kindWidth + ageWidth + 4 * gap.size();
    const qsizetype titleWidth = screenWidth - fixed;
    QString text;
    for (const ClipRow &row : rows) {
        text += row.id.left(idWidth) + gap + (row.pinned ? u'*' : u' ') + gap +
                padded(label(row.kind), kindWidth) + gap + padded(cut(row.preview, titleWidth), titleWidth) +
                gap + row.age + u'\n';
    }
    return text;
}

QJsonArray json(const QList<ClipItem> &items)
{
    QJsonArray array;
    for (const ClipItem &item : items) {
        QJsonObject object = toJson(item);
        object.insert(QStringLiteral("preview"), item.preview());
        object.insert(QStringLiteral("subtitle"), item.subtitle());
        array.append(object);
    }
    return array;
}

std::optional<ClipFilter> filterNamed(const QString &name)
{
    const QMetaEnum filters = QMetaEnum::fromType<ClipFilter>();
    for (int i = 0; i < filters.keyCount(); ++i) {
        if (name == QString::fromLatin1(filters.key(i)).toLower())
            return static_cast<ClipFilter>(filters.value(i));
    }
    return {};
}

CommandReply list(const ClipboardManager &clipboard, const QDateTime &now, const CommandCall &call)
{
    const QString name = call.options.value(QStringLiteral("filter"), QStringLiteral("all"));
    const auto filter = filterNamed(name);
    if (!filter)
        return refused(
            QStringLiteral("\"%1\" is no filter: all, pinned, text, link, image or files").arg(name));
    const auto items = visibleItems(clipboard.items(), *filter, call.options.value(QStringLiteral("search")));
    if (!call.wantsJson)
        return printed(items.isEmpty() ? QStringLiteral("No clips") : table(items, now));
    qsizetype size = 0;
    for (const ClipItem &item : items)
        size += item.text.size();
    if (size > mostText)
        return refused(QStringLiteral("this is too much text to print: narrow it with --filter or --search"));
    return printed(json(items));
}

// A command that does something with one clip.
Command::Run withClip(ClipboardManager *clipboard,
                      std::function<void(const QString &id, const CommandCall &)> act)
{
    return now([clipboard, act = std::move(act)](const CommandCall &call) {
        QStringList ids;
        for (const ClipItem &item : clipboard->items())
            ids.append(item.id);
        const Result<QString> id = uniquePrefix(call.arguments.value(0), ids, QStringLiteral("clip"));
        if (!id)
            return refused(id.sentence());
        act(*id, call);
        return CommandReply{};
    });
}

Command::Run always(std::function<void()> act)
{
    return now([act = std::move(act)](const CommandCall &) {
        act();
        return CommandReply{};
    });
}

void setPaused(ClipboardManager &clipboard, bool isPaused)
{
    if (clipboard.isPaused() != isPaused)
        clipboard.togglePause();
}

}

QList<Command> clipCommands(ClipboardManager *clipboard, RunLoop *loop)
{
    const QString clip = QStringLiteral("clip");
    const auto use = [clipboard](const QString &id, const CommandCall &call) {
        clipboard->use(id, call.options.contains(QStringLiteral("paste")));
    };
    const auto pin = [clipboard](const QString &id, const CommandCall &) { clipboard->togglePin(id); };
    const auto remove = [clipboard](const QString &id, const CommandCall &) { clipboard->remove(id); };
    const auto listed = [clipboard, loop](const CommandCall &call) {
        return list(*clipboard, loop->wallTime(), call);
    };
    return {
        {clip, QStringLiteral("list"), QStringLiteral("[--filter F] [--search TEXT]"),
         QStringLiteral("list the clipboard's history (F: all, pinned, text, link, image, files)"),
         now(listed)},
        {clip, QStringLiteral("use"), QStringLiteral("ID [--paste]"),
         QStringLiteral("put a clip back on the clipboard, and paste it"), withClip(clipboard, use)},
        {clip, QStringLiteral("pin"), QStringLiteral("ID"), QStringLiteral("pin a clip, or unpin it"),
         withClip(clipboard, pin)},
        {clip, QStringLiteral("delete"), QStringLiteral("ID"), QStringLiteral("delete a clip"),
         withClip(clipboard, remove)},
        {clip,
         QStringLiteral("clear"),
         {},
         QStringLiteral("delete all clips that are not pinned"),
         always([clipboard] { clipboard->clearUnpinned(); })},
        {clip,
         QStringLiteral("pause"),
         {},
         QStringLiteral("stop keeping what is copied"),
         always([clipboard] { setPaused(*clipboard, true); })},
        {clip, QStringLiteral("resume"), {}, QStringLiteral("keep what is copied again"), always([clipboard] {
             setPaused(*clipboard, false);
         })},
    };
}

}
