#pragma once

#include <QIcon>
#include <QObject>
#include <QQmlEngine>

namespace velm
{

// The symbols by their names, each a glyph of the bundled font.
class Symbols : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit Symbols(QObject *parent = nullptr) : QObject(parent) {}

    // A question mark where there is no such symbol.
    Q_INVOKABLE QString glyph(const QString &name) const;
    Q_INVOKABLE QStringList names() const;

    // Whether the glyph is to be turned by a quarter, and whether it mirrors from right to left.
    Q_INVOKABLE bool lies(const QString &name) const;
    Q_INVOKABLE bool isMirrored(const QString &name) const;
};

// For menus, which draw no text as a picture.
QIcon symbolIcon(const QString &name, const QColor &colour);

}
