// SPDX-License-Identifier: MIT
#include "InspectionProcess.h"

#include "InspectionAnswer.h"
#include "ReaderCall.h"
#include "ReaderPipe.h"
#include "foundation/Log.h"
#include "foundation/PrintableText.h"

#include <QDir>

namespace lumora
{

namespace
{

/// Sorts the messages of one inspection.
class Messages
{
public:
    Messages(QString package, const InspectionResults &results) : m_package(std::move(package)), m_results(results) {}

    ReaderStep take(const QString &word, const QByteArray &content)
    {
        if (word == logWord) {
            logLine(printableText(QString::fromUtf8(content)));
            return ReaderStep::Continue;
        }
        if (word == gatheredWord && !m_isGathered) {
            const auto gathered = gatheredFactsIn(content, m_package);
            if (!gathered)
                return ReaderStep::Nonsense;
            m_isGathered = true;
            m_results.gathered(*gathered);
            return ReaderStep::Continue;
        }
        const auto artwork = word == artworkWord && m_isGathered ? artworkIn(content) : std::nullopt;
        if (!artwork)
            return ReaderStep::Nonsense;
        m_results.validated(*artwork);
        return ReaderStep::End;
    }

private:
    QString m_package;
    const InspectionResults &m_results;
    bool m_isGathered = false;
};

} // namespace

std::optional<ReaderEnd> inspectInProcess(const ReaderOrder &order, const QString &workFolder, int iconScale,
                                          const std::stop_token &stop, const InspectionResults &results)
{
    // The process may remove this folder but put no link in its place, so that it can be removed safely. Nothing of the
    // package before may be left in it, or it would be read as this one.
    const QString folder = workFolder + u'/' + inspectionFolder;
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    Messages messages(order.package, results);
    const auto end = readInProcess(
        order, inspectionCall(order.package, workFolder, iconScale), stop, [](int) {},
        [&messages](const QString &word, const QByteArray &content) { return messages.take(word, content); });
    // The process ends with its answer, often before it has removed what it has unpacked.
    QDir(folder).removeRecursively();
    return end;
}

} // namespace lumora
