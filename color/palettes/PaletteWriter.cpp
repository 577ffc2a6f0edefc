// SPDX-License-Identifier: MIT
#include "Palette.h"

#include "color/forms/ColorForm.h"
#include "color/forms/FormValues.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString written(QLatin1StringView form, const WideColor &color)
{
    return formText(*colorFormNamed(QString(form)), color);
}

/// Whether hexadecimal bytes would lose the color.
bool needsWideForm(const WideColor &color)
{
    return isClippedIn(color, RgbSpace::Srgb);
}

bool isPlain(QChar character)
{
    return character.isLetterOrNumber() || character == u'-' || character == u'_';
}

/// Makes names unique: the second "sky" becomes "sky-2".
class DistinctNames
{
public:
    QString take(const QString &wanted)
    {
        QString name = wanted;
        // Some file systems, such as the Mac's, ignore case.
        for (int number = 2; m_taken.contains(name.toCaseFolded()); ++number)
            name = wanted + u'-' + QString::number(number);
        m_taken.insert(name.toCaseFolded());
        return name;
    }

private:
    QSet<QString> m_taken;
};

/// The name with "-" in place of all characters except letters and digits; never empty, never beginning with a dot.
/// "#336699", the name of a color that nobody named, becomes "color-336699".
QString plainName(const QString &name)
{
    QString plain;
    const bool unnamed = name.startsWith(u'#') && name.size() > 1 && name[1].isLetterOrNumber();
    const QString wanted = unnamed ? QString(u"color-"_s + QStringView(name).sliced(1)) : name;
    for (const QChar character : wanted)
        plain += isPlain(character) ? character : QChar(u'-');
    return plain.isEmpty() ? u"color"_s : plain.left(100);
}

QString oneLine(const QString &name)
{
    return name.simplified();
}

QByteArray colorSetContent(const WideColor &color)
{
    const ColorForm &form = *colorFormNamed(u"colorset");
    const QString text = needsWideForm(color) ? displayP3FormText(form, color) : formText(form, color);
    return QJsonDocument::fromJson(text.toUtf8()).toJson();
}

std::vector<PaletteFile> colorSets(const Palette &palette, const QString &name)
{
    const QString catalogue = plainName(name) + u".xcassets/"_s;
    std::vector<PaletteFile> files;
    files.push_back({catalogue + u"Contents.json"_s, "{\n  \"info\" : {\n    \"author\" : \"xcode\",\n"
                                                     "    \"version\" : 1\n  }\n}\n"});
    DistinctNames names;
    for (const PaletteColor &entry : palette) {
        const QString folder = catalogue + names.take(plainName(entry.name)) + u".colorset/"_s;
        files.push_back({folder + u"Contents.json"_s, colorSetContent(entry.color)});
    }
    return files;
}

QByteArray gplContent(const Palette &palette, const QString &name)
{
    QByteArray text = "GIMP Palette\nName: " + oneLine(name).toUtf8() + "\nColumns: 0\n#\n";
    for (const PaletteColor &entry : palette) {
        const auto [red, green, blue, alpha] = bytesOf(entry.color);
        text += QString::asprintf("%3d %3d %3d\t", red, green, blue).toLatin1() + oneLine(entry.name).toUtf8() + '\n';
    }
    return text;
}

QByteArray jsonContent(const Palette &palette, const QString &name)
{
    QJsonArray colors;
    for (const PaletteColor &entry : palette)
        colors.append(QJsonObject{
            {u"name"_s, entry.name}, {u"hex8"_s, hex8Of(entry.color)}, {u"css"_s, written("css-p3"_L1, entry.color)}});
    return QJsonDocument(QJsonObject{{u"schema"_s, 1}, {u"name"_s, name}, {u"colors"_s, colors}}).toJson();
}

QByteArray cssContent(const Palette &palette)
{
    QByteArray text = ":root {\n";
    DistinctNames names;
    for (const PaletteColor &entry : palette) {
        const QString value = written(needsWideForm(entry.color) ? "css-p3"_L1 : "css-hex"_L1, entry.color);
        text += "  --" + names.take(plainName(entry.name)).toUtf8() + ": " + value.toLatin1() + ";\n";
    }
    return text + "}\n";
}

} // namespace

std::vector<PaletteFile> paletteFiles(const Palette &palette, const QString &name, PaletteFormat format)
{
    const QString stem = plainName(name);
    switch (format) {
    case PaletteFormat::ColorSets:
        return colorSets(palette, name);
    case PaletteFormat::Gpl:
        return {{stem + u".gpl"_s, gplContent(palette, name)}};
    case PaletteFormat::Json:
        return {{stem + u".json"_s, jsonContent(palette, name)}};
    case PaletteFormat::CssVariables:
        break;
    }
    return {{stem + u".css"_s, cssContent(palette)}};
}

} // namespace lumora
