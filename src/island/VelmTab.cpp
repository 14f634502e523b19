#include "island/VelmTab.h"

#include "island/RawValue.h"

#include <QCoreApplication>

#include <array>

namespace velm
{

namespace
{

struct Row {
    const char *title;
    const char *icon;
    const char *blurb;
    Tint accent;
};

// In the order of the enum.
constexpr std::array<Row, 11> rows{{
    {QT_TRANSLATE_NOOP("VelmTab", "Files"), "folder.fill",
     QT_TRANSLATE_NOOP("VelmTab", "Sort any folder by kind or month, with undo"), Tint::Files},
    {QT_TRANSLATE_NOOP("VelmTab", "Clipboard"), "doc.on.clipboard.fill",
     QT_TRANSLATE_NOOP("VelmTab", "Everything you copy, searchable and pinnable"), Tint::Clipboard},
    {QT_TRANSLATE_NOOP("VelmTab", "Shelf"), "tray.full.fill",
     QT_TRANSLATE_NOOP("VelmTab", "Park files mid-drag, then drop them anywhere"), Tint::Shelf},
    {QT_TRANSLATE_NOOP("VelmTab", "Notes"), "note.text",
     QT_TRANSLATE_NOOP("VelmTab", "A scratchpad that saves as you type"), Tint::Notes},
    {QT_TRANSLATE_NOOP("VelmTab", "Focus"), "timer",
     QT_TRANSLATE_NOOP("VelmTab", "Pomodoro sessions with streaks and history"), Tint::Timer},
    {QT_TRANSLATE_NOOP("VelmTab", "Tasks"), "checklist",
     QT_TRANSLATE_NOOP("VelmTab", "Tasks with priorities, dates and lists"), Tint::Todo},
    {QT_TRANSLATE_NOOP("VelmTab", "System"), "gauge.with.dots.needle.33percent",
     QT_TRANSLATE_NOOP("VelmTab", "Battery, memory, storage and uptime"), Tint::System},
    {QT_TRANSLATE_NOOP("VelmTab", "Playing"), "waveform",
     QT_TRANSLATE_NOOP("VelmTab", "What's playing, with controls in the notch"), Tint::Media},
    {QT_TRANSLATE_NOOP("VelmTab", "Devices"), "airpodspro",
     QT_TRANSLATE_NOOP("VelmTab", "Bluetooth batteries and audio output"), Tint::Devices},
    {QT_TRANSLATE_NOOP("VelmTab", "Shots"), "camera.viewfinder",
     QT_TRANSLATE_NOOP("VelmTab", "Recent screenshots, ready to drag out"), Tint::Shots},
    {QT_TRANSLATE_NOOP("VelmTab", "Network"), "wifi",
     QT_TRANSLATE_NOOP("VelmTab", "Wi-Fi, addresses and live throughput"), Tint::Network},
}};

const Row &row(VelmTab tab) { return rows.at(static_cast<size_t>(tab)); }

QString translated(const char *text) { return QCoreApplication::translate("VelmTab", text); }

}

QList<VelmTab> allTabs()
{
    QList<VelmTab> tabs;
    for (size_t i = 0; i < rows.size(); ++i)
        tabs.append(static_cast<VelmTab>(i));
    return tabs;
}

QString rawValue(VelmTab tab) { return rawValue<VelmTab>(tab); }

std::optional<VelmTab> tabNamed(const QString &rawValue) { return fromRawValue<VelmTab>(rawValue); }

QString title(VelmTab tab) { return translated(row(tab).title); }

QString blurb(VelmTab tab) { return translated(row(tab).blurb); }

QString icon(VelmTab tab) { return QString::fromLatin1(row(tab).icon); }

Tint accent(VelmTab tab) { return row(tab).accent; }

}
