#pragma once

#include "island/Tint.h"

#include <QList>
#include <QString>
#include <QtQmlIntegration>

#include <optional>

namespace velm
{

namespace Sections
{

Q_NAMESPACE
QML_NAMED_ELEMENT(VelmTab)

// The sections of the panel, in the rail's order.
enum class VelmTab { Files, Clipboard, Shelf, Notes, Timer, Todo, System, Media, Devices, Shots, Network };
Q_ENUM_NS(VelmTab)

}

using Sections::VelmTab;

QList<VelmTab> allTabs();

// As it stands in files, preferences and commands: "files", "todo".
QString rawValue(VelmTab tab);
std::optional<VelmTab> tabNamed(const QString &rawValue);

// For people, in their language.
QString title(VelmTab tab);
QString blurb(VelmTab tab);

// A symbol's name: "folder.fill".
QString icon(VelmTab tab);

// The section's accent.
Tint accent(VelmTab tab);

}
