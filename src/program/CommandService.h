#pragma once

#include "app/CommandTable.h"

#include <QDBusContext>
#include <QObject>

namespace velm
{

// The running program's door for commands: the session bus name app.velm.Velm with the one method Run.
// Where there is no bus, the program runs on without it.
class CommandService : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "app.velm.Velm1")

public:
    explicit CommandService(CommandTable table) : m_table(std::move(table)) {}
    ~CommandService() override;

    // False when the name has another owner: then another instance runs.
    bool take();

public Q_SLOTS:
    // The words after "velm"; paths absolute. Answers late where the command waits for something.
    Q_SCRIPTABLE int Run(const QStringList &arguments, QString &out, QString &err);

private:
    CommandTable m_table;
    bool m_isRegistered = false;
};

}
