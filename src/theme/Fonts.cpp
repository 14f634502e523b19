#include "theme/Fonts.h"

#include <QFontDatabase>
#include <QGuiApplication>

#include <algorithm>

namespace velm
{

namespace
{
constexpr double usualPointSize = 11; // the largest default of the common desktops
constexpr double largestScale = 1.4;
constexpr double pointsPerInch = 72;
constexpr double pixelsPerInch = 96; // what a point size means where no screen says otherwise
}

QString installSymbolFont()
{
    static const int id =
        QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/MaterialIcons-Regular.ttf"));
    return QFontDatabase::applicationFontFamilies(id).value(0);
}

QString Fonts::fixedFamily() const { return QFontDatabase::systemFont(QFontDatabase::FixedFont).family(); }

double Fonts::scale() const
{
    const QFont font = QGuiApplication::font();
    const double points =
        font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * pointsPerInch / pixelsPerInch;
    return std::clamp(points / usualPointSize, 1.0, largestScale);
}

}
