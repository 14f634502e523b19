#pragma once

#include "platform/front/FrontProgram.h"

#include <QHash>
#include <QStringList>

namespace velm
{

// The desktop entries of the installed programs (freedesktop.org, Desktop Entry format),
// read when first asked for.
class DesktopEntries
{
public:
    // By the class that a program gives its windows (StartupWMClass), else by the entry's id; case does not
    // matter. Absent when no entry claims it.
    std::optional<ProgramInfo> find(const QString &windowClass);

private:
    struct Entry {
        ProgramInfo program;
        QString windowClass;
    };

    void readAll();
    void readFolder(const QString &folder);
    static std::optional<Entry> readFile(const QString &path, const QString &id);

    bool m_isRead = false;
    QHash<QString, ProgramInfo> m_byClass; // lower case
    QHash<QString, ProgramInfo> m_byId;    // lower case
};

}
