// SPDX-License-Identifier: MIT
#include "CheckParts.h"
#include "foundation/WholeFile.h"
#include "icons/today/AndroidFigures.h"
#include "icons/today/ContentExtent.h"
#include "pictures/scaling/PicturePlanes.h"

#include <QDir>
#include <QHash>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qint64 longestXml = 1024 * 1024;
/// A pixel of the smallest layer, in parts of its edge.
constexpr double safeZoneTolerance = 0.01;

/// A layer in the icon's XML.
struct LayerReference
{
    QString type; ///< "mipmap", "drawable", "color"
    QString name;
    bool inset = false; ///< inside an <inset> element
};

std::optional<LayerReference> referenceOf(QStringView text)
{
    if (!text.startsWith(u'@') || text.contains(u':'))
        return std::nullopt;
    const qsizetype slash = text.indexOf(u'/');
    if (slash < 0)
        return std::nullopt;
    return LayerReference{text.sliced(1, slash - 1).toString(), text.sliced(slash + 1).toString(), false};
}

/// The layers of an adaptive icon by the names of their elements; nothing if the file is not one or cannot be read.
std::optional<QHash<QString, LayerReference>> readAdaptiveIcon(const QString &path)
{
    const Result<QByteArray> bytes = readWholeFile(path, longestXml);
    if (!bytes)
        return std::nullopt;
    QXmlStreamReader reader(bytes.value());
    QHash<QString, LayerReference> layers;
    QStringList open;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::EndElement)
            open.removeLast();
        if (token != QXmlStreamReader::StartElement)
            continue;
        open << reader.name().toString();
        if (open.size() == 1 && open.first() != u"adaptive-icon")
            return std::nullopt;
        if (open.size() < 2)
            continue;
        const QStringView drawable =
            reader.attributes().value(u"http://schemas.android.com/apk/res/android"_s, u"drawable"_s);
        if (std::optional<LayerReference> reference = referenceOf(drawable)) {
            reference->inset = open.size() > 2;
            layers.insert(open[1], *reference);
        }
    }
    return reader.hasError() || layers.isEmpty() ? std::nullopt : std::optional(layers);
}

/// "xhdpi" of "mipmap-en-xhdpi-v26"; nothing for a folder without a density.
std::optional<DensityBucket> bucketOf(const QString &folder)
{
    const QStringList parts = folder.split(u'-');
    for (const DensityBucket &bucket : densityBuckets) {
        if (parts.contains(QLatin1StringView(bucket.name)))
            return bucket;
    }
    return parts.contains(QLatin1StringView(lowDensity.name)) ? std::optional(lowDensity) : std::nullopt;
}

/// An inset layer is smaller than the mask by itself.
void judgeMaskedLayer(const QString &path, bool isMonochrome, bool isInset, IconCheck &check)
{
    const QImage pixels = pictureFacts(path).pixels();
    if (isMonochrome && isOpaque(pixels)) {
        check.add(IconRule::MonochromeOpaque, path);
        return;
    }
    const double diameter = contentDiameter(pixels);
    const double safe = double{adaptiveSafeDp} / adaptiveLayerDp;
    if (!isInset && diameter > safe + safeZoneTolerance)
        check.add(IconRule::OutsideSafeZone, path,
                  FailureDetail("DETAIL_OF_DP", {{"[FOUND]", QString::number(qRound(diameter * adaptiveLayerDp))},
                                                 {"[LIMIT]", QString::number(adaptiveSafeDp)}}));
}

class ResourcesCheck
{
public:
    ResourcesCheck(const QString &folder, IconCheck &check) : m_folder(folder), m_check(check) {}

    void run()
    {
        readTree();
        QSet<QString> legacyNames;
        for (const QString &file : m_files) {
            if (!file.contains(u"-anydpi") || !file.endsWith(u".xml"))
                continue;
            const QString path = m_folder + u'/' + file;
            const QString name = QFileInfo(file).completeBaseName();
            const std::optional<QHash<QString, LayerReference>> icon = readAdaptiveIcon(path);
            if (!icon) {
                // Other drawings may also be for any density; a broken icon file is recognized by its name.
                if (name.startsWith(u"ic_launcher"))
                    m_check.add(IconRule::ContentsUnreadable, path);
                continue;
            }
            legacyNames << file.section(u'-', 0, 0) + u'/' + name;
            judge(path, *icon);
        }
        for (const QString &file : m_files)
            judgeFile(file, legacyNames);
    }

private:
    void readTree()
    {
        const QStringList folders =
            QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
        for (const QString &folder : folders) {
            const QStringList files =
                QDir(m_folder + u'/' + folder).entryList(QDir::Files | QDir::NoSymLinks, QDir::Name);
            for (const QString &file : files) {
                const QString relative = folder + u'/' + file;
                m_files << relative;
                m_byResource[folder.section(u'-', 0, 0) + u'/' + file.section(u'.', 0, 0)] << relative;
            }
        }
    }

    void judge(const QString &path, const QHash<QString, LayerReference> &icon)
    {
        for (auto layer = icon.begin(); layer != icon.end(); ++layer) {
            const QString resource = layer->type + u'/' + layer->name;
            if (layer->type == u"color" ? !hasColor(layer->name) : !m_byResource.contains(resource))
                m_check.add(IconRule::ResourceMissing, path, QString(u'@' + resource));
            if (layer->type == u"color" || m_layers.contains(resource))
                continue;
            m_layers << resource;
            judgeLayer(layer.key(), *layer, m_byResource.value(resource));
        }
        // The round icon usually has the same layers: one finding is enough.
        if (!icon.contains(u"monochrome"_s) && !m_withoutMonochrome.contains(icon.value(u"foreground"_s).name)) {
            m_withoutMonochrome << icon.value(u"foreground"_s).name;
            m_check.add(IconRule::MonochromeMissing, path);
        }
    }

    void judgeLayer(const QString &part, const LayerReference &layer, const QStringList &files)
    {
        QString largest;
        int largestPercent = 0;
        for (const QString &file : files) {
            if (file.endsWith(u".xml"))
                continue;
            const std::optional<DensityBucket> bucket = bucketOf(file.section(u'/', 0, 0));
            SlotDemands demands;
            if (bucket && !layer.inset)
                demands.size = QSize(bucket->pixels(adaptiveLayerDp), bucket->pixels(adaptiveLayerDp));
            const bool readable = checkSlot(m_folder + u'/' + file, demands, m_check).has_value();
            if (readable && bucket && bucket->percent > largestPercent) {
                largestPercent = bucket->percent;
                largest = file;
            }
        }
        if (!largest.isEmpty() && part != u"background")
            judgeMaskedLayer(m_folder + u'/' + largest, part == u"monochrome", layer.inset, m_check);
    }

    bool hasColor(const QString &name) const
    {
        const QByteArray wanted = "name=\"" + name.toUtf8() + '"';
        return std::any_of(m_files.begin(), m_files.end(), [&](const QString &file) {
            if (file.section(u'/', 0, 0).section(u'-', 0, 0) == u"color")
                return QFileInfo(file).completeBaseName() == name;
            if (!file.startsWith(u"values") || !file.endsWith(u".xml"))
                return false;
            const Result<QByteArray> bytes = readWholeFile(m_folder + u'/' + file, longestXml);
            return bytes && bytes.value().contains(wanted);
        });
    }

    /// The pictures for systems without adaptive icons, and layers that are in no icon.
    void judgeFile(const QString &file, const QSet<QString> &legacyNames)
    {
        const QString folder = file.section(u'/', 0, 0);
        const QString resource = folder.section(u'-', 0, 0) + u'/' + file.section(u'/', 1).section(u'.', 0, 0);
        const std::optional<DensityBucket> bucket = bucketOf(folder);
        if (!bucket || file.endsWith(u".xml"))
            return;
        if (legacyNames.contains(resource)) {
            const int edge = bucket->pixels(legacyIconDp);
            checkSlot(m_folder + u'/' + file, {QSize(edge, edge), Transparency::Shown}, m_check);
        } else if (!m_layers.contains(resource)) {
            for (const char *part : {"_foreground", "_background", "_monochrome"}) {
                if (resource.endsWith(QLatin1StringView(part)) && legacyNames.contains(resource.chopped(qstrlen(part))))
                    m_check.add(IconRule::UnassignedFile, m_folder + u'/' + file);
            }
        }
    }

    QString m_folder;
    IconCheck &m_check;
    QStringList m_files;
    QHash<QString, QStringList> m_byResource;
    QSet<QString> m_layers;
    QSet<QString> m_withoutMonochrome; ///< the foregrounds of such icons
};

} // namespace

void checkMaskedLayer(const QString &file, bool isMonochrome, IconCheck &check)
{
    judgeMaskedLayer(file, isMonochrome, false, check);
}

void checkAndroidResources(const QString &folder, IconCheck &check)
{
    check.checked << folder;
    ResourcesCheck(folder, check).run();
}

void checkPlayPicture(const QString &file, IconCheck &check)
{
    check.checked << file;
    const std::optional<PictureFacts> facts =
        checkSlot(file, {QSize(playStoreSize, playStoreSize), Transparency::Forbidden}, check);
    if (facts && (facts->palette || facts->deep))
        check.add(IconRule::PlayIconColors, file, facts->palette ? "DETAIL_PALETTE" : "DETAIL_16_BITS");
    if (facts && facts->fileBytes > playStoreBytes)
        check.add(IconRule::StoreFileTooLong, file,
                  FailureDetail("DETAIL_BYTES", {{"[COUNT]", QString::number(facts->fileBytes)}}));
}

} // namespace lumora
