#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace velm
{

namespace Tints
{

Q_NAMESPACE
QML_NAMED_ELEMENT(Tint)

// A colour by its meaning; the theme knows the colour itself. From Files on: the accent of that section.
enum class Tint {
    Text,
    Success,
    Warning,
    Danger,
    Files,
    Clipboard,
    Shelf,
    Notes,
    Timer,
    Todo,
    System,
    Media,
    Devices,
    Shots,
    Network
};
Q_ENUM_NS(Tint)

}

using Tints::Tint;

}
