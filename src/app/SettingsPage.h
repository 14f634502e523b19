#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

#include <optional>

namespace velm::SettingsPages
{

Q_NAMESPACE
QML_NAMED_ELEMENT(SettingsPage)

// The pages of the settings, in the order in which they are shown.
enum class SettingsPage { Sections, General, Clipboard, About };
Q_ENUM_NS(SettingsPage)

}

namespace velm
{

using SettingsPages::SettingsPage;

// "sections", "general", "clipboard", "about".
QString rawValue(SettingsPage page);
std::optional<SettingsPage> settingsPage(const QString &rawValue);

}
