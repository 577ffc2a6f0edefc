// SPDX-License-Identifier: MIT
#include "Fonts.h"

#include "resources/Resources.h"

#include <QFontDatabase>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// Loads both weights once and returns the family name they share; empty when they could not be loaded.
QString latoFamily()
{
    static const QString family = [] {
        loadResources();
        const int regular = QFontDatabase::addApplicationFont(u":/fonts/Lato-Regular.ttf"_s);
        const int bold = QFontDatabase::addApplicationFont(u":/fonts/Lato-Bold.ttf"_s);
        if (regular < 0 || bold < 0)
            return QString();
        return QFontDatabase::applicationFontFamilies(bold).value(0);
    }();
    return family;
}

QFont lato(int points, QFont::Weight weight)
{
    QFont font;
    const QString family = latoFamily();
    if (!family.isEmpty())
        font.setFamily(family);
    font.setStyleHint(QFont::SansSerif);
    font.setWeight(weight);
    font.setPixelSize(points);
    return font;
}

} // namespace

QFont latoBold(int points)
{
    return lato(points, QFont::Bold);
}

QFont latoRegular(int points)
{
    return lato(points, QFont::Normal);
}

} // namespace lumora
