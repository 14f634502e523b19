#pragma once

#include <QList>
#include <QObject>
#include <QtQmlIntegration>

namespace velm
{

namespace ClipKinds
{

Q_NAMESPACE
QML_NAMED_ELEMENT(ClipKind)

// What was copied. A kind's key with a small first letter is its raw value in files: "text".
enum class ClipKind { Text, Link, Code, Color, Image, Files };
Q_ENUM_NS(ClipKind)

}

using ClipKinds::ClipKind;

QList<ClipKind> allClipKinds();

// For people, in their language.
QString label(ClipKind kind);

// A symbol's name: "photo.fill".
QString icon(ClipKind kind);

}
