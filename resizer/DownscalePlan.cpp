// SPDX-License-Identifier: MIT
#include "DownscalePlan.h"

#include "FileIdentity.h"
#include "RetinaName.h"
#include "RetinaSearch.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <iterator>
#include <utility>

namespace lumora
{

namespace
{

/// A picture, and the searched folder in which it was found; empty if the user named the picture itself.
struct FoundPicture
{
    QString path;
    QString root;
};

class Planning
{
public:
    explicit Planning(const DownscaleRequest &request) : m_request(request) {}

    DownscalePlan plan()
    {
        for (const QString &argument : m_request.filesAndFolders)
            gather(argument);
        for (const FoundPicture &picture : std::as_const(m_found)) {
            m_sources.insert(fileIdentity(picture.path));
            m_plainTargets.insert(fileIdentity(targetOf(picture)));
        }
        // A named file that was refused is the user's picture, too.
        for (const QString &argument : m_request.filesAndFolders)
            m_sources.insert(fileIdentity(argument));
        for (const FoundPicture &picture : std::as_const(m_found))
            add(picture);
        return std::move(m_plan);
    }

private:
    void gather(const QString &argument)
    {
        const QFileInfo entry(argument);
        const QString path = entry.absoluteFilePath();
        if (!entry.exists()) {
            m_plan.failures.push_back({FailureCode::NotFound, argument, {}});
        } else if (!entry.isDir()) {
            if (isDoubleResolution(path))
                keepOnce({path, {}});
            else
                m_plan.failures.push_back({FailureCode::NotMarked, argument, {}});
        } else {
            RetinaSearch found = findDoubleResolution(path);
            if (found.files.isEmpty() && found.failures.empty())
                m_plan.failures.push_back({FailureCode::MissingContent, argument, {}});
            for (const QString &file : std::as_const(found.files)) {
                if (!isOwnResult(file, path))
                    keepOnce({file, path});
            }
            std::move(found.failures.begin(), found.failures.end(), std::back_inserter(m_plan.failures));
        }
    }

    /// Files that an earlier run wrote into a folder inside the searched one are not sources.
    bool isOwnResult(const QString &file, const QString &root) const
    {
        const QString destination = m_request.destination + u'/';
        return m_request.layout == TreeLayout::Kept && destination.startsWith(QDir::cleanPath(root) + u'/') &&
               m_request.destination != QDir::cleanPath(root) && QDir::cleanPath(file).startsWith(destination);
    }

    void keepOnce(const FoundPicture &picture)
    {
        const QString identity = fileIdentity(picture.path);
        if (!m_seen.contains(identity))
            m_found.append(picture);
        m_seen.insert(identity);
    }

    QString targetOf(const FoundPicture &picture) const
    {
        QString folder = m_request.destination;
        if (m_request.layout == TreeLayout::Kept && !picture.root.isEmpty()) {
            const QString inside = QDir(picture.root).relativeFilePath(QFileInfo(picture.path).path());
            if (inside != u".")
                folder += u'/' + inside;
        }
        return downscaledPath(picture.path, folder);
    }

    void add(const FoundPicture &picture)
    {
        QString target = targetOf(picture);
        const QString other = m_takenBy.value(fileIdentity(target));
        if (!other.isEmpty())
            target = numbered(target);
        if (m_request.replacement == FileReplacement::Refuse) {
            const QFileInfo there(target);
            const bool isSource = m_sources.contains(fileIdentity(target));
            if (isSource || there.exists() || there.isSymLink()) {
                m_plan.failures.push_back(
                    {isSource ? FailureCode::WouldReplaceSource : FailureCode::Exists, target, {}});
                return;
            }
        }
        if (!other.isEmpty())
            m_plan.failures.push_back({FailureCode::NameTaken,
                                       picture.path,
                                       {"DETAIL_NAME_NUMBERED", {{"[OTHER]", other}, {"[TARGET]", target}}}});
        m_takenBy.insert(fileIdentity(target), picture.path);
        m_plan.jobs.append({picture.path, target});
    }

    /// "a_1.png" for "a.png", or the first number that no other picture has.
    QString numbered(const QString &target) const
    {
        const QString stem = target.chopped(QStringView(u".png").size());
        for (int number = 1;; ++number) {
            const QString name = stem + u'_' + QString::number(number) + u".png";
            const QString identity = fileIdentity(name);
            if (!m_plainTargets.contains(identity) && !m_takenBy.contains(identity))
                return name;
        }
    }

    const DownscaleRequest &m_request;
    DownscalePlan m_plan;
    QList<FoundPicture> m_found;
    QSet<QString> m_seen;              ///< identities of `m_found`
    QSet<QString> m_sources;           ///< identities of all files that are read or were named
    QSet<QString> m_plainTargets;      ///< identities of the halves under their own names
    QHash<QString, QString> m_takenBy; ///< the identity of a target, and its source
};

} // namespace

DownscalePlan planDownscaling(const DownscaleRequest &request)
{
    return Planning(request).plan();
}

} // namespace lumora
