// SPDX-License-Identifier: MIT
#include "ProjectCheck.h"

#include "CheckParts.h"
#include "icons/today/FilePlan.h"

#include <QFileInfo>
#include <QSet>

namespace lumora
{

namespace
{

class PlanCheck
{
public:
    PlanCheck(const QString &root, const FilePlan &plan) : m_root(root), m_plan(plan) {}

    IconCheck run()
    {
        for (const PlannedFile &file : m_plan.files)
            m_written << whole(file);
        for (const PlannedFile &file : m_plan.files) {
            if (file.kind == FileKind::Picture)
                judgePicture(file);
            if (!isInFolder(file)) {
                IconCheck part;
                checkFile(whole(file), part);
                add(part);
            }
        }
        m_check.sort();
        return m_check;
    }

private:
    QString whole(const PlannedFile &file) const { return m_root + u'/' + file.path; }

    /// Adds what is not known yet.
    void add(const IconCheck &part)
    {
        m_check.checked += part.checked;
        for (const IconFinding &finding : part.findings) {
            if (!m_check.findings.contains(finding))
                m_check.findings << finding;
        }
    }

    void judgePicture(const PlannedFile &file)
    {
        const PictureRecipe &recipe = file.pictures.front();
        SlotDemands demands;
        demands.size = QSize(recipe.width, recipe.height);
        if (recipe.form == PictureForm::Opaque)
            demands.transparency = Transparency::Refused;
        IconCheck part;
        checkSlot(whole(file), demands, part);
        part.checked << whole(file);
        add(part);
    }

    /// Whether the file lies in a folder that is judged as a whole; judges each such folder once.
    bool isInFolder(const PlannedFile &file)
    {
        for (QString folder = QFileInfo(whole(file)).path(); folder.size() > m_root.size();
             folder = QFileInfo(folder).path()) {
            if (m_folders.contains(folder))
                return true;
            IconCheck part;
            if (!checkFolder(folder, part))
                continue;
            m_folders << folder;
            // A catalogue has one icon; Android resources also hold what is not the icon's.
            if (!folder.endsWith(u".appiconset"))
                part.findings.removeIf([this](const IconFinding &found) { return !m_written.contains(found.path); });
            add(part);
            return true;
        }
        return false;
    }

    QString m_root;
    const FilePlan &m_plan;
    IconCheck m_check;
    QSet<QString> m_written;
    QSet<QString> m_folders;
};

} // namespace

IconCheck checkProject(const QString &root, const FilePlan &plan)
{
    return PlanCheck(root, plan).run();
}

} // namespace lumora
