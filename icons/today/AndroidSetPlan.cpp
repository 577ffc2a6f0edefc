// SPDX-License-Identifier: MIT
#include "AndroidFigures.h"
#include "Motifs.h"
#include "SetPlans.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The files of one app's icon.
class AdaptivePlan
{
public:
    AdaptivePlan(const Motifs &motifs, const AndroidNames &names, const QString &folder, FilePlan &plan)
        : m_motifs(motifs), m_names(names), m_folder(below(folder, u"res"_s)), m_plan(plan)
    {
    }

    Outcome add(const QString &storePath)
    {
        if (m_names.playStore) {
            Result<PictureRecipe> store = opaqueIcon(m_motifs, playStoreSize, m_plan);
            if (!store)
                return store.failure();
            // The store requires 32 bits per pixel.
            store.value().form = PictureForm::Transparent;
            m_plan.addPicture(storePath, store.value());
        }
        addXml();
        addBackground();
        addForeground();
        if (m_motifs.hasMonochrome())
            addMonochrome();
        else
            m_plan.note(Derivation::MonochromeLeftOut);
        for (const DensityBucket &bucket : densityBuckets) {
            m_plan.addPicture(path(m_names.type, bucket, m_names.icon),
                              filled(Motif::Icon, bucket.pixels(legacyIconDp)));
            if (!m_names.round.isEmpty())
                m_plan.addPicture(path(m_names.type, bucket, m_names.round),
                                  filled(Motif::Round, bucket.pixels(legacyIconDp)));
        }
        return Done{};
    }

private:
    QString path(const QString &type, const DensityBucket &bucket, const QString &name) const
    {
        return m_folder + u'/' + type + u'-' + QLatin1StringView(bucket.name) + u'/' + name + u".png"_s;
    }

    QString layerName(QLatin1StringView layer) const { return m_names.icon + u'_' + layer; }

    bool hasPictureBackground() const { return !m_motifs.sources().background.isNull(); }

    void addXml()
    {
        const QString picture = u'@' + m_names.type + u'/';
        const QString background = hasPictureBackground() ? QString(picture + layerName("background"_L1))
                                                          : QString(u"@color/"_s + m_names.backgroundColor);
        QString xml =
            u"<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
            "<adaptive-icon xmlns:android=\"http://schemas.android.com/apk/res/android\">\n"
            "    <background android:drawable=\"%1\"/>\n"
            "    <foreground android:drawable=\"%2\"/>\n"_s.arg(background, picture + layerName("foreground"_L1));
        if (m_motifs.hasMonochrome())
            xml += u"    <monochrome android:drawable=\"%1\"/>\n"_s.arg(picture + layerName("monochrome"_L1));
        xml += u"</adaptive-icon>\n"_s;
        for (const QString &name : {m_names.icon, m_names.round}) {
            if (!name.isEmpty())
                m_plan.addText(m_folder + u'/' + m_names.type + u"-anydpi-v26/"_s + name + u".xml"_s, xml.toUtf8());
        }
    }

    void addBackground()
    {
        const QString name = layerName("background"_L1);
        if (hasPictureBackground()) {
            for (const DensityBucket &bucket : densityBuckets)
                m_plan.addPicture(path(m_names.type, bucket, name),
                                  filled(Motif::Background, bucket.pixels(adaptiveLayerDp)));
            return;
        }
        const QString &color = m_names.backgroundColor;
        m_plan.addText(m_folder + u"/values/"_s + color + u".xml"_s,
                       u"<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<resources>\n"
                       "    <color name=\"%1\">%2</color>\n</resources>\n"_s
                           .arg(color, notedBackground(m_motifs, m_plan).name().toUpper())
                           .toUtf8());
    }

    void addForeground()
    {
        for (const DensityBucket &bucket : densityBuckets)
            m_plan.addPicture(path(m_names.type, bucket, layerName("foreground"_L1)),
                              adaptiveLayer(m_motifs, Motif::Foreground, bucket.pixels(adaptiveLayerDp), m_plan));
    }

    void addMonochrome()
    {
        for (const DensityBucket &bucket : densityBuckets)
            m_plan.addPicture(path(m_names.type, bucket, layerName("monochrome"_L1)),
                              adaptiveLayer(m_motifs, Motif::Monochrome, bucket.pixels(adaptiveLayerDp), m_plan));
        for (const DensityBucket &bucket : densityBuckets) {
            if (m_names.notification)
                m_plan.addPicture(path(u"drawable"_s, bucket, u"ic_notification"_s),
                                  filled(Motif::Monochrome, bucket.pixels(notificationDp)));
        }
    }

    const Motifs &m_motifs;
    const AndroidNames &m_names;
    QString m_folder;
    FilePlan &m_plan;
};

} // namespace

Outcome planAdaptive(const Motifs &motifs, const AndroidNames &names, const QString &folder, FilePlan &plan)
{
    return AdaptivePlan(motifs, names, folder, plan).add(below(folder, names.icon + u"-playstore.png"_s));
}

PictureRecipe adaptiveLayer(const Motifs &motifs, Motif motif, int edge, FilePlan &plan)
{
    PictureRecipe recipe = filled(motif, edge);
    const bool isForeground = motif == Motif::Foreground;
    const TodaySources &sources = motifs.sources();
    if (!(isForeground ? sources.foreground : sources.monochrome).isNull())
        return recipe;
    plan.note(isForeground ? Derivation::ForegroundFromIcon : Derivation::MonochromeFromIcon);
    recipe.edge = motifs.safeEdge(double{adaptiveSafeDp} / adaptiveLayerDp, edge);
    return recipe;
}

} // namespace lumora
