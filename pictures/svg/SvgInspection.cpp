// SPDX-License-Identifier: MIT
#include "SvgInspection.h"

#include "pictures/PictureFormat.h"
#include "pictures/PictureReader.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int deepestNesting = 100;
/// Long attributes count as further elements, one for as many characters: the points of a path take time, too.
constexpr qsizetype charactersPerElement = 400;
/// The most pixels of a picture inside the drawing.
constexpr qint64 largestEmbeddedArea = 4096LL * 4096;

const QSet<QString> scripts = {u"script"_s, u"handler"_s, u"listener"_s, u"foreignObject"_s};
const QSet<QString> texts = {u"text"_s, u"tspan"_s, u"textArea"_s, u"tbreak"_s};
const QSet<QString> animations = {u"animate"_s, u"animateColor"_s, u"animateMotion"_s, u"animateTransform"_s, u"set"_s};
const QSet<QString> passedOver = {u"filter"_s, u"mask"_s, u"clipPath"_s, u"pattern"_s, u"marker"_s};
const QSet<QString> passedOverAttributes = {u"filter"_s,       u"mask"_s,       u"clip-path"_s,
                                            u"marker-start"_s, u"marker-mid"_s, u"marker-end"_s};

struct Element
{
    qint64 own = 1; ///< what it counts for by itself
    std::vector<int> children;
    QString used;                ///< the id that it repeats
    std::optional<qint64> whole; ///< with everything below and repeated
    bool beingCounted = false;
};

/// Follows a file's elements and the references between them.
class Inspection
{
public:
    explicit Inspection(const QByteArray &bytes) : m_reader(bytes), m_bytes(bytes) {}

    /// What is wrong, or nothing.
    std::optional<Failure> read()
    {
        while (!m_reader.atEnd() && !m_failure) {
            switch (m_reader.readNext()) {
            case QXmlStreamReader::DTD:
                if (!m_reader.entityDeclarations().isEmpty() || m_reader.text().contains(u"<!ENTITY"))
                    refuse("DETAIL_SVG_ENTITIES");
                break;
            case QXmlStreamReader::StartElement:
                begin();
                break;
            case QXmlStreamReader::EndElement:
                m_open.pop_back();
                break;
            case QXmlStreamReader::Characters:
                if (m_inStyle)
                    checkStyle(m_reader.text().toString());
                break;
            case QXmlStreamReader::ProcessingInstruction:
                if (m_reader.processingInstructionTarget() == u"xml-stylesheet")
                    refuse("DETAIL_SVG_STYLE_SHEET");
                break;
            default:
                break;
            }
        }
        if (!m_failure && m_reader.hasError())
            refuse({"DETAIL_SVG_LINE",
                    {{"[ERROR]", m_reader.errorString()}, {"[LINE]", QString::number(m_reader.lineNumber())}}});
        if (!m_failure && m_elements.empty())
            refuse("DETAIL_SVG_EMPTY");
        if (!m_failure)
            count(0);
        return m_failure;
    }

    QStringList notDrawn() const
    {
        QStringList names(m_notDrawn.begin(), m_notDrawn.end());
        names.sort();
        return names;
    }

private:
    void refuse(const FailureDetail &detail, FailureCode code = FailureCode::NotReadable)
    {
        if (!m_failure)
            m_failure = Failure{code, {}, detail};
    }

    void tooMuch() { refuse("DETAIL_SVG_TOO_MUCH", FailureCode::TooLarge); }

    void begin()
    {
        const QString name = m_reader.name().toString();
        if (m_elements.empty() && name != u"svg") {
            refuse("DETAIL_NO_SVG");
            return;
        }
        if (scripts.contains(name))
            refuse("DETAIL_SVG_SCRIPT");
        else if (texts.contains(name))
            refuse("DETAIL_SVG_TEXT");
        else if (animations.contains(name))
            refuse("DETAIL_SVG_ANIMATED");
        if (passedOver.contains(name))
            m_notDrawn.insert(name);
        m_inStyle = name == u"style";
        if (m_elements.size() >= mostSvgElements || m_open.size() >= deepestNesting) {
            tooMuch();
            return;
        }
        const int index = static_cast<int>(m_elements.size());
        m_elements.emplace_back();
        if (!m_open.empty())
            m_elements[static_cast<std::size_t>(m_open.back())].children.push_back(index);
        m_open.push_back(index);
        const QXmlStreamAttributes attributes = m_reader.attributes();
        for (const QXmlStreamAttribute &attribute : attributes)
            take(m_elements.back(), index, name, attribute);
    }

    void take(Element &element, int index, const QString &name, const QXmlStreamAttribute &attribute)
    {
        const QString key = attribute.name().toString();
        const QString value = attribute.value().toString();
        if (!value.startsWith(u"data:"))
            element.own += value.size() / charactersPerElement;
        if (key == u"id")
            m_byId.insert(value, index);
        else if (key == u"href")
            takeReference(element, name, value.trimmed());
        else if (key.startsWith(u"on"))
            refuse("DETAIL_SVG_SCRIPT");
        else if (value.contains(u"url", Qt::CaseInsensitive) || value.contains(u'@'))
            checkStyle(value);
        if (passedOverAttributes.contains(key) && value != u"none")
            m_notDrawn.insert(key);
    }

    void takeReference(Element &element, const QString &name, const QString &target)
    {
        if (name == u"a")
            return;
        if (target.startsWith(u'#')) {
            if (name == u"use")
                element.used = target.sliced(1);
        } else if (name == u"image" && target.startsWith(u"data:image/")) {
            checkEmbedded(target);
        } else {
            refuse({"DETAIL_SVG_OUTSIDE", {{"[TARGET]", target.left(60)}}});
        }
    }

    void checkEmbedded(const QString &target)
    {
        const qsizetype comma = target.indexOf(u',');
        const QByteArray picture = QByteArray::fromBase64(target.sliced(comma + 1).toLatin1());
        const QByteArray format = pictureFormat(picture);
        const Result<QSize> size = storedPixelSize(picture, {});
        if (comma < 0 || !target.first(comma).endsWith(u";base64") || (format != "png" && format != "jpeg") || !size)
            refuse("DETAIL_SVG_PICTURE_BROKEN");
        else if (qint64{size.value().width()} * size.value().height() > largestEmbeddedArea)
            refuse("DETAIL_SVG_PICTURE_LARGE", FailureCode::TooLarge);
    }

    void checkStyle(const QString &style)
    {
        static const QRegularExpression outside(u"url\\(\\s*[\"']?\\s*(?!#)|@import|@font-face"_s,
                                                QRegularExpression::CaseInsensitiveOption);
        if (outside.match(style).hasMatch())
            refuse("DETAIL_SVG_STYLE_OUTSIDE");
    }

    /// The nesting of both elements and repetitions is bounded, and with it this recursion.
    qint64 count(int index, int depth = 0)
    {
        Element &element = m_elements[static_cast<std::size_t>(index)];
        if (element.whole)
            return *element.whole;
        if (element.beingCounted) {
            refuse("DETAIL_SVG_ENDLESS");
            return 0;
        }
        if (depth > 2 * deepestNesting) {
            tooMuch();
            return 0;
        }
        element.beingCounted = true;
        qint64 whole = element.own;
        for (const int child : element.children)
            whole += count(child, depth + 1);
        if (const auto used = m_byId.constFind(element.used); !element.used.isEmpty() && used != m_byId.constEnd())
            whole += count(*used, depth + 1);
        if (whole > mostSvgElements)
            tooMuch();
        element.beingCounted = false;
        element.whole = whole;
        return whole;
    }

    QXmlStreamReader m_reader;
    QByteArray m_bytes;
    std::vector<Element> m_elements;
    std::vector<int> m_open;
    QHash<QString, int> m_byId;
    QSet<QString> m_notDrawn;
    bool m_inStyle = false;
    std::optional<Failure> m_failure;
};

} // namespace

Result<SvgInspection> inspectSvg(const QByteArray &bytes, const QString &name)
{
    if (bytes.size() > largestSvgFile)
        return Failure{FailureCode::TooLarge, name, {}};
    Inspection inspection(bytes);
    if (const std::optional<Failure> failure = inspection.read())
        return Failure{failure->code, name, failure->detail};
    return SvgInspection{inspection.notDrawn()};
}

bool beginsAsSvg(const QByteArray &bytes)
{
    QByteArray start = bytes.first(std::min<qsizetype>(bytes.size(), 1024));
    if (start.startsWith("\xEF\xBB\xBF"))
        start.remove(0, 3);
    start = start.trimmed();
    return start.startsWith("<?xml") || start.startsWith("<svg") || start.startsWith("<!");
}

} // namespace lumora
