#include "island/IslandCommands.h"

#include "island/ActivityCommand.h"
#include "island/IslandController.h"
#include "island/IslandStatus.h"

#include <QCoreApplication>
#include <QJsonObject>

namespace velm
{

namespace
{

CommandReply openOn(IslandController &island, const CommandCall &call)
{
    if (call.arguments.isEmpty()) {
        island.open();
        return {};
    }
    const QString &word = call.arguments.first();
    const auto tab = tabNamed(word);
    if (!tab)
        return refused(QStringLiteral("no section is called \"%1\"").arg(word));
    island.closeSettings(); // who asks for a section wants to see it
    island.open(*tab);
    return {};
}

CommandReply openSettings(IslandController &island, const CommandCall &call)
{
    if (call.arguments.isEmpty()) {
        island.openSettings(island.settingsPage());
        return {};
    }
    const QString &word = call.arguments.first();
    const auto page = settingsPage(word);
    if (!page)
        return refused(QStringLiteral("no settings page is called \"%1\"").arg(word));
    island.openSettings(*page);
    return {};
}

CommandReply dismiss(IslandController &island, const CommandCall &call)
{
    if (call.arguments.isEmpty()) {
        island.dismissActivity();
        return {};
    }
    const QString &id = call.arguments.first();
    if (!island.hasActivity() || island.activity()->id != id)
        return refused(QStringLiteral("no activity \"%1\" is shown").arg(id));
    island.dismissActivity(id);
    return {};
}

CommandReply status(const IslandController &island, const StatusLine &statusLine, const CommandCall &call)
{
    const QString line = statusLine ? statusLine()
                                    : QCoreApplication::translate("StatusLine", "Right now: ") +
                                          QCoreApplication::translate("StatusLine", "your Mac is idle");
    return call.wantsJson ? printed(statusJson(island, line)) : printed(statusText(island, line));
}

}

QList<Command> islandCommands(IslandController *island, StatusLine statusLine)
{
    const auto command = [](const char *noun, const char *arguments, const QString &help,
                            std::function<CommandReply(const CommandCall &)> answer) {
        return Command{
            QString::fromLatin1(noun), {}, QString::fromLatin1(arguments), help, now(std::move(answer))};
    };
    return {
        command("open", "[TAB]", QStringLiteral("Open the island, on a section"),
                [island](const CommandCall &call) { return openOn(*island, call); }),
        command("close", "", QStringLiteral("Close the island"),
                [island](const CommandCall &) {
                    island->close();
                    return CommandReply{};
                }),
        command("settings", "[PAGE]", QStringLiteral("Open the settings, on a page"),
                [island](const CommandCall &call) { return openSettings(*island, call); }),
        command("status", "", QStringLiteral("Show what the island does now"),
                [island, line = std::move(statusLine)](const CommandCall &call) {
                    return status(*island, line, call);
                }),
        activityCommand(island),
        command("dismiss", "[ID]", QStringLiteral("Take away the live activity, or only the one called ID"),
                [island](const CommandCall &call) { return dismiss(*island, call); }),
    };
}

}
