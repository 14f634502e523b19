#include "island/SectionChoice.h"

#include "app/Settings.h"

namespace velm
{

SectionChoice::SectionChoice(Settings &settings)
    : m_settings(settings), m_current(tabNamed(settings.lastTab()).value_or(VelmTab::Files))
{
    const QList<VelmTab> left = visible();
    if (!left.isEmpty() && !left.contains(m_current))
        m_current = left.first();
    connect(&settings, &Settings::disabledTabsChanged, this, &SectionChoice::reconcile);
    connect(&settings, &Settings::lastTabChanged, this, &SectionChoice::followStored);
}

QList<VelmTab> SectionChoice::visible() const
{
    const QStringList disabled = m_settings.disabledTabs();
    QList<VelmTab> tabs = allTabs();
    tabs.removeIf([&disabled](VelmTab tab) { return disabled.contains(rawValue(tab)); });
    return tabs;
}

void SectionChoice::choose(VelmTab tab)
{
    setCurrent(tab);
    m_settings.setLastTab(rawValue(tab));
}

void SectionChoice::reconcile()
{
    const QList<VelmTab> left = visible();
    if (!left.isEmpty() && !left.contains(m_current))
        choose(left.first());
    Q_EMIT visibleChanged();
}

void SectionChoice::followStored()
{
    const auto stored = tabNamed(m_settings.lastTab());
    if (stored && visible().contains(*stored))
        setCurrent(*stored);
}

void SectionChoice::setCurrent(VelmTab tab)
{
    if (tab == m_current)
        return;
    m_current = tab;
    Q_EMIT currentChanged();
}

}
