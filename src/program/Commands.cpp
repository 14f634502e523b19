#include "program/Commands.h"

#include "app/PreferencesCommands.h"
#include "clipboard/ClipCommands.h"
#include "island/IslandCommands.h"
#include "program/Application.h"

namespace velm
{

namespace
{

QList<Command> programCommands(Application *application)
{
    return {{QStringLiteral("quit"),
             {},
             {},
             QStringLiteral("End Velm; everything is saved"),
             [application](const CommandCall &, const Command::Reply &reply) {
                 reply({});
                 application->quitSoon();
             }}};
}

}

CommandTable commandTable(Application *application)
{
    CommandTable table;
    table.add(islandCommands(application ? &application->island() : nullptr));
    table.add(programCommands(application));
    table.add(preferencesCommands(application ? &application->preferences() : nullptr));
    table.add(clipCommands(application ? &application->clipboard() : nullptr,
                           application ? &application->loop() : nullptr));
    return table;
}

}
