#include "app/PreferencesCommands.h"

#include <QJsonDocument>

namespace velm
{

namespace
{

constexpr qsizetype screenWidth = 80;

QString asJson(const QJsonValue &value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

// A string stands for itself.
QString shown(const QJsonValue &value) { return value.isString() ? value.toString() : asJson(value); }

QString elided(const QString &line)
{
    return line.size() <= screenWidth ? line : line.left(screenWidth - 1) + QStringLiteral("…");
}

// The word as JSON, or, where it is none, as a string.
QJsonValue parsed(const QString &word)
{
    const QJsonArray array = QJsonDocument::fromJson(QByteArray('[' + word.toUtf8() + ']')).array();
    return array.size() == 1 ? array.first() : QJsonValue(word);
}

Refusal unknownKey(const QString &key) { return {QStringLiteral("no preference is called \"%1\"").arg(key)}; }

CommandReply list(const QJsonObject &values, const CommandCall &call)
{
    if (call.wantsJson)
        return printed(values);
    qsizetype longest = 0;
    const QStringList keys = values.keys();
    for (const QString &key : keys)
        longest = std::max(longest, key.size());
    QString text;
    for (const QString &key : keys)
        text += elided(key.leftJustified(longest + 2) + shown(values.value(key))) + u'\n';
    return printed(text);
}

CommandReply get(const PreferencesFile &preferences, const CommandCall &call)
{
    const QJsonValue value = preferences.value(call.arguments.first());
    if (value.isUndefined())
        return refused(unknownKey(call.arguments.first()).sentence);
    return printed((call.wantsJson ? asJson(value) : shown(value)) + u'\n');
}

// Replies when the change is on the disk, so that a script can go on from there.
void replyWhenStored(PreferencesFile &preferences, const Command::Reply &reply)
{
    preferences.whenStored([reply](const Outcome &outcome) {
        CommandReply answer;
        if (!outcome)
            answer.err = QStringLiteral("velm: set for as long as Velm runs, %1\n").arg(outcome.sentence());
        reply(answer);
    });
}

void set(PreferencesFile &preferences, const CommandCall &call, const Command::Reply &reply)
{
    preferences.set(call.arguments[0], parsed(call.arguments[1]));
    replyWhenStored(preferences, reply);
}

void reset(PreferencesFile &preferences, const CommandCall &call, const Command::Reply &reply)
{
    const QString key = call.arguments.first();
    if (preferences.value(key).isUndefined())
        return reply(refused(unknownKey(key).sentence));
    preferences.reset(key);
    replyWhenStored(preferences, reply);
}

}

QList<Command> preferencesCommands(PreferencesFile *preferences)
{
    const auto noun = QStringLiteral("prefs");
    return {
        {noun, {}, {}, QStringLiteral("the preferences"), now([=](const CommandCall &call) {
             return list(preferences->values(), call);
         })},
        {noun, QStringLiteral("get"), QStringLiteral("KEY"), QStringLiteral("one preference"),
         now([=](const CommandCall &call) { return get(*preferences, call); })},
        {noun, QStringLiteral("set"), QStringLiteral("KEY VALUE"),
         QStringLiteral("change it; VALUE is JSON, or a bare word for a string"),
         [=](const CommandCall &call, const Command::Reply &reply) { set(*preferences, call, reply); }},
        {noun, QStringLiteral("reset"), QStringLiteral("KEY"), QStringLiteral("give it its default again"),
         [=](const CommandCall &call, const Command::Reply &reply) { reset(*preferences, call, reply); }},
    };
}

}
