// SPDX-License-Identifier: MIT
// The icons that a project's settings name, and those that its build takes by their names.
#include "CheckParts.h"
#include "foundation/WholeFile.h"
#include "icons/project/NamedIcons.h"
#include "icons/project/ProjectRecognition.h"
#include "pictures/PictureReader.h"

#include <QFileInfo>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

Transparency transparencyOf(IconUse use)
{
    switch (use) {
    case IconUse::Store:
        return Transparency::Refused;
    case IconUse::Opaque:
    case IconUse::Tinted:
    case IconUse::Maskable:
        return Transparency::Lost;
    default:
        return Transparency::Shown;
    }
}

/// Only the structure: which of its elements a build can draw is not known here.
void judgeDrawing(const QString &path, IconCheck &check)
{
    const Result<QByteArray> bytes = readWholeFile(path, largestPictureFile);
    QXmlStreamReader reader(bytes ? bytes.value() : QByteArray());
    const bool isDrawing = reader.readNextStartElement() && reader.name() == u"svg";
    while (!reader.atEnd())
        reader.readNext();
    if (!isDrawing || reader.hasError())
        check.add(IconRule::PictureUnreadable, path);
}

void judgePicture(const NamedIcon &icon, const QString &path, IconCheck &check)
{
    SlotDemands demands;
    demands.size = QSize(icon.edge, icon.edge);
    demands.transparency = transparencyOf(icon.use);
    demands.leastSquare = icon.least;
    const std::optional<PictureFacts> facts = checkSlot(path, demands, check);
    if (!facts)
        return;
    if (icon.use == IconUse::Tinted)
        checkTinted(*facts, path, check);
    const bool isMasked = icon.use == IconUse::Foreground || icon.use == IconUse::Monochrome;
    // Where the edge is free, the build also scales the picture.
    if (isMasked && icon.edge > 0)
        checkMaskedLayer(path, icon.use == IconUse::Monochrome, check);
}

void judge(const NamedIcon &icon, const QString &path, IconCheck &check)
{
    if (!QFileInfo::exists(path))
        check.add(IconRule::FileMissing, path);
    else if (icon.path.endsWith(u".svg"))
        judgeDrawing(path, check);
    else if (icon.path.endsWith(u".png"))
        judgePicture(icon, path, check);
    else if (icon.path.endsWith(u".ico"))
        checkIcoFile(path, check);
    else if (icon.path.endsWith(u".icns"))
        checkIcnsFile(path, check);
}

} // namespace

void checkNamedIcons(const QString &folder, IconCheck &check)
{
    const QList<RecognizedProject> projects = recognizeProjects(folder);
    for (const RecognizedProject &project : projects) {
        const QString place = project.folder.isEmpty() ? folder : QString(folder + u'/' + project.folder);
        const Result<QList<NamedIcon>> icons = namedIcons(project.kind, place);
        if (!icons) {
            const bool isOutside = icons.failure().code == FailureCode::LeadsOutside;
            check.checked << icons.failure().subject;
            check.add(isOutside ? IconRule::FileOutside : IconRule::ContentsUnreadable, icons.failure().subject,
                      icons.failure().detail);
            continue;
        }
        for (const NamedIcon &icon : icons.value()) {
            const QString path = place + u'/' + icon.path;
            if (check.checked.contains(path) || (!icon.isNamed && !QFileInfo::exists(path)))
                continue;
            IconCheck part;
            part.checked << path;
            judge(icon, path, part);
            part.checked.removeDuplicates();
            check.checked += part.checked;
            // A web manifest may name the same picture.
            for (const IconFinding &finding : part.findings) {
                if (!check.findings.contains(finding))
                    check.findings << finding;
            }
        }
    }
}

} // namespace lumora
