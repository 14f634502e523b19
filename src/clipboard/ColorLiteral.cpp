#include "clipboard/ColorLiteral.h"

#include <QVarLengthArray>

#include <algorithm>

namespace velm
{

namespace
{

constexpr double fullByte = 255;

std::optional<ColorLiteral> parseHexadecimal(QStringView digits)
{
    const auto isHexadecimal = [](QChar c) { return c.unicode() < 0x80 && std::isxdigit(c.unicode()) != 0; };
    const bool isShort = digits.size() == 3;
    if (!isShort && digits.size() != 6 && digits.size() != 8)
        return {};
    if (!std::all_of(digits.begin(), digits.end(), isHexadecimal))
        return {};
    const auto part = [&](qsizetype index) {
        return isShort ? digits.sliced(index, 1).toInt(nullptr, 16) * 0x11 / fullByte
                       : digits.sliced(index * 2, 2).toInt(nullptr, 16) / fullByte;
    };
    return ColorLiteral{part(0), part(1), part(2), 1};
}

bool isNumberPart(QChar c) { return (c >= u'0' && c <= u'9') || c == u'.'; }

// The runs of digits and dots that are numbers; what comes after the fourth does not matter.
std::optional<ColorLiteral> parseNumbers(QStringView text)
{
    QVarLengthArray<double, 4> numbers;
    for (auto at = text.begin(); at != text.end() && numbers.size() < 4;) {
        const auto start = std::find_if(at, text.end(), isNumberPart);
        at = std::find_if_not(start, text.end(), isNumberPart);
        bool isNumber = false;
        const double number = QStringView(start, at).toDouble(&isNumber);
        if (isNumber)
            numbers.append(number);
    }
    if (numbers.size() < 3)
        return {};
    return ColorLiteral{numbers[0] / fullByte, numbers[1] / fullByte, numbers[2] / fullByte,
                        numbers.size() > 3 ? numbers[3] : 1};
}

}

std::optional<ColorLiteral> parseColorLiteral(QStringView text)
{
    const QStringView literal = text.trimmed();
    if (literal.startsWith(u'#'))
        return parseHexadecimal(literal.sliced(1));
    if (literal.startsWith(u"rgb", Qt::CaseInsensitive))
        return parseNumbers(literal);
    return {};
}

QColor paintable(const ColorLiteral &color)
{
    const auto bounded = [](double part) { return static_cast<float>(std::clamp(part, 0.0, 1.0)); };
    return QColor::fromRgbF(bounded(color.red), bounded(color.green), bounded(color.blue),
                            bounded(color.alpha));
}

}
