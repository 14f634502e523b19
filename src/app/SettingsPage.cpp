#include "app/SettingsPage.h"

namespace velm
{

namespace
{

struct Entry {
    SettingsPage page;
    QLatin1String rawValue;
};

constexpr Entry pages[] = {
    {SettingsPage::Sections, QLatin1String("sections")},
    {SettingsPage::General, QLatin1String("general")},
    {SettingsPage::Clipboard, QLatin1String("clipboard")},
    {SettingsPage::About, QLatin1String("about")},
};

}

QString rawValue(SettingsPage page)
{
    for (const Entry &entry : pages) {
        if (entry.page == page)
            return entry.rawValue;
    }
    return {};
}

std::optional<SettingsPage> settingsPage(const QString &rawValue)
{
    for (const Entry &entry : pages) {
        if (entry.rawValue == rawValue)
            return entry.page;
    }
    return {};
}

}
