// SPDX-License-Identifier: MIT
// The way of a package from its path to the validator's pane.
#include "ValidaterViewController.h"
#include "ui_ValidaterViewController.h"
#include "words/LongWords.h"
#include "words/ShownFact.h"

#include <QFileInfo>
#include <QtMath>

using namespace Qt::StringLiterals;

namespace lumora
{

void ValidaterViewController::foundIpaFile(const QString &path)
{
    // A package that the system opens while another is read or shown replaces the other: the reading ends at its next
    // block, and the queue continues with the new package.
    m_stop.request_stop();
    m_stop = std::stop_source();
    reset();
    m_facts.ipaPath = path;
    readyForIpa();
    const QString reading = qtTrId("VALIDATER_READING").replace("[FILE]"_L1, shownFact(QFileInfo(path).fileName()));
    m_ui->readingLoaderField->setText(breakingLongWords(reading));
    m_ui->readingLoaderField->setAccessibleName(reading);
    if (services().workFolder.isEmpty()) {
        updateInterface(m_facts, {Failure{FailureCode::CannotCreateFolder, path, {}}, {}}, {});
        validate({});
        return;
    }
    const quint64 number = ++m_reading;
    startReview(path, number);
    startInspection(path, number);
}

void ValidaterViewController::startInspection(const QString &path, quint64 number)
{
    const ReaderOrder order{services().readerProgram, path, services().readerPatience};
    m_jobs.start([this, order, number, workFolder = services().workFolder, decoder = m_profileDecoder,
                  stop = m_stop.get_token(), iconScale = qCeil(view()->devicePixelRatioF())](const BackgroundJob &job) {
        const auto post = [&](std::function<void()> show) {
            job.post([this, number, show = std::move(show)] {
                if (m_reading == number)
                    show();
            });
        };
        const InspectionResults results{
            [&](const GatheredFacts &gathered) {
                post([this, gathered] { updateInterface(gathered.facts, gathered.extraction, gathered.found); });
            },
            [&](const ArtworkReport &artwork) { post([this, artwork] { validate(artwork); }); },
        };
        if (order.program.isEmpty() || !decoder->worksLockedIn())
            inspectHere(order.package, {workFolder, *decoder, {}, stop, iconScale}, results);
        else if (const auto end = inspectInProcess(order, workFolder, iconScale, stop, results))
            post([this, end] { giveUp(*end); });
    });
}

} // namespace lumora
