#pragma once

#include <QColor>
#include <QStringView>

#include <optional>

namespace velm
{

// A colour as it was written down, in sRGB. Parts are fractions of full strength, and as little bounded as
// what was written: rgb(300, 0, 0) has a red of more than 1.
struct ColorLiteral {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    bool operator==(const ColorLiteral &) const = default;
};

// "#abc", "#aabbcc", "#aabbccdd" (whose alpha does not count), and whatever begins with "rgb" and has three
// numbers or four. Upper or lower case, white space around it.
std::optional<ColorLiteral> parseColorLiteral(QStringView text);

// As it can be painted: bounded.
QColor paintable(const ColorLiteral &color);

}
