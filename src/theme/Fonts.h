#pragma once

#include <QObject>
#include <QQmlEngine>

namespace velm
{

// Adds the bundled symbol font to the program's fonts, once; the name of its family, empty when the font
// cannot be read.
QString installSymbolFont();

// The families that the look is set in, and how much larger than usual the desktop wants its words.
class Fonts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString fixedFamily READ fixedFamily CONSTANT)
    Q_PROPERTY(QString symbolFamily READ symbolFamily CONSTANT)
    Q_PROPERTY(double scale READ scale CONSTANT)

public:
    explicit Fonts(QObject *parent = nullptr) : QObject(parent) {}

    QString fixedFamily() const;
    QString symbolFamily() const { return installSymbolFont(); }

    // 1 up to the usual size of an interface font, growing with larger ones to 1.4, where the panel is full.
    double scale() const;
};

}
