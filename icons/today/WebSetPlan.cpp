// SPDX-License-Identifier: MIT
#include "Motifs.h"
#include "SetPlans.h"
#include "WebFigures.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QJsonObject manifestIcon(const QString &file, int edge, const QString &purpose)
{
    return {{u"src"_s, QString(u'/' + file)},
            {u"sizes"_s, u"%1x%1"_s.arg(edge)},
            {u"type"_s, u"image/png"_s},
            {u"purpose"_s, purpose}};
}

/// The lines for the head of every page.
QByteArray headLines(bool hasSvg, const QColor &theme)
{
    QString lines = u"<link rel=\"icon\" href=\"/favicon.ico\" sizes=\"32x32\">\n"_s;
    if (hasSvg)
        lines += u"<link rel=\"icon\" href=\"/favicon.svg\" type=\"image/svg+xml\">\n"_s;
    lines += u"<link rel=\"apple-touch-icon\" href=\"/apple-touch-icon.png\">\n"
             "<link rel=\"manifest\" href=\"/site.webmanifest\">\n"
             "<meta name=\"theme-color\" content=\"%1\">\n"_s.arg(theme.name());
    return lines.toUtf8();
}

} // namespace

Outcome planWeb(const Motifs &motifs, const SetOptions &options, const QString &folder, FilePlan &plan)
{
    plan.files.append(
        windowsIcon(below(folder, u"favicon.ico"_s), std::vector(faviconSizes.begin(), faviconSizes.end())));
    const QByteArray svg = motifs.sources().icon.svgFile();
    if (!svg.isEmpty())
        plan.addText(below(folder, u"favicon.svg"_s), svg);
    plan.addPicture(below(folder, u"apple-touch-icon.png"_s), touchIcon(motifs, appleTouchSize, plan));
    QJsonArray icons;
    for (const int edge : manifestSizes) {
        const QString file = u"icon-%1.png"_s.arg(edge);
        plan.addPicture(below(folder, file), filled(Motif::Icon, edge));
        icons.append(manifestIcon(file, edge, u"any"_s));
    }
    for (const int edge : maskableSizes) {
        const QString file = u"maskable-%1.png"_s.arg(edge);
        plan.addPicture(below(folder, file), maskableIcon(motifs, edge, plan));
        icons.append(manifestIcon(file, edge, u"maskable"_s));
    }
    const QColor background = notedBackground(motifs, plan);
    const QJsonObject manifest{{u"name"_s, options.name},
                               {u"short_name"_s, options.name},
                               {u"start_url"_s, u"/"_s},
                               {u"display"_s, u"standalone"_s},
                               {u"background_color"_s, background.name()},
                               {u"theme_color"_s, background.name()},
                               {u"icons"_s, icons}};
    plan.addText(below(folder, u"site.webmanifest"_s), QJsonDocument(manifest).toJson(QJsonDocument::Indented));
    plan.addText(below(folder, u"head.html"_s), headLines(!svg.isEmpty(), background));
    return Done{};
}

} // namespace lumora
