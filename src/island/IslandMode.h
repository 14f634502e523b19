#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace velm
{

// Enums reach QML through a namespace of their own: C++ says IslandMode::Peek and QML IslandMode.Peek.
namespace IslandModes
{

Q_NAMESPACE
QML_NAMED_ELEMENT(IslandMode)

// What the island is doing, from least to most.
enum class IslandMode {
    Idle,     // resting: the notch's size, or a pill with a live activity
    Peek,     // the pointer is on the notch
    Catching, // files are being dragged: the drop zone
    Expanded  // the panel, on the current section
};
Q_ENUM_NS(IslandMode)

}

using IslandModes::IslandMode;

}
