#include "island/ActivityCommand.h"

#include "island/IslandController.h"

#include <cmath>

namespace velm
{

namespace
{

// What a script's activity is where it does not say.
constexpr auto defaultId = "command";
constexpr auto defaultIcon = "sparkles";
constexpr Seconds defaultDuration{3};

// An absent option changes nothing; a wrong one says what it should be.
Outcome readNumber(const CommandCall &call, const QString &option, const QString &expected,
                   const std::function<bool(double)> &accept)
{
    if (!call.options.contains(option))
        return done();
    const QString word = call.options.value(option);
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    if (isNumber && std::isfinite(number) && accept(number))
        return done();
    return Refusal{QStringLiteral("--%1 takes %2, not \"%3\"").arg(option, expected, word)};
}

}

Result<LiveActivity> activityFrom(const CommandCall &call)
{
    LiveActivity activity{.id = call.options.value(QStringLiteral("id"), QString::fromLatin1(defaultId)),
                          .icon =
                              call.options.value(QStringLiteral("icon"), QString::fromLatin1(defaultIcon)),
                          .leading = call.arguments.value(0),
                          .sticky = call.options.contains(QStringLiteral("sticky")),
                          .duration = defaultDuration};
    if (activity.leading.trimmed().isEmpty())
        return Refusal{QStringLiteral("an activity needs a title")};
    if (call.arguments.size() > 1)
        activity.trailing = call.arguments[1];
    const auto progress = readNumber(call, QStringLiteral("progress"), QStringLiteral("a number from 0 to 1"),
                                     [&activity](double number) {
                                         activity.progress = number;
                                         return number >= 0 && number <= 1;
                                     });
    if (!progress)
        return Refusal{progress.sentence()};
    const auto seconds = readNumber(call, QStringLiteral("seconds"), QStringLiteral("a number above 0"),
                                    [&activity](double number) {
                                        activity.duration = Seconds(number);
                                        return number > 0;
                                    });
    if (!seconds)
        return Refusal{seconds.sentence()};
    return activity;
}

Command activityCommand(IslandController *island)
{
    const auto run = [island](const CommandCall &call) {
        const auto activity = activityFrom(call);
        if (!activity)
            return refused(activity.sentence());
        island->present(*activity);
        return CommandReply{};
    };
    return {QStringLiteral("activity"),
            {},
            QStringLiteral("TITLE [DETAIL] [--icon S] [--progress 0..1] [--seconds N | --sticky] [--id ID]"),
            QStringLiteral("Show a live activity in the closed island"),
            now(run)};
}

}
