// SPDX-License-Identifier: MIT
// How a package gets from its path to the validator's pane.
#include "LongWords.h"
#include "ShownFact.h"
#include "ValidaterViewController.h"
#include "ui_ValidaterViewController.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

struct ValidaterViewController::Reading
{
    const BackgroundJob &job;
    QString path;
    InspectionSite site;
    ValidaterViewController *controller; ///< for what is posted only
    quint64 number;
    std::optional<Failure> stopped = {};

    /// Runs the function on the main thread, unless another package has taken this one's place by then.
    void post(std::function<void(ValidaterViewController &)> show) const
    {
        job.post([controller = controller, number = number, show = std::move(show)] {
            if (controller->m_reading == number)
                show(*controller);
        });
    }
};

void ValidaterViewController::foundIpaFile(const QString &path)
{
    // A package that the system hands over while another is read or shown takes its place: the one that is read ends
    // at its next block, and the queue comes to the new one.
    m_stop.request_stop();
    m_stop = std::stop_source();
    reset();
    m_facts.ipaPath = path;
    readyForIpa();
    const QString reading = qtTrId("VALIDATER_READING").replace("[FILE]"_L1, shownFact(QFileInfo(path).fileName()));
    m_ui->readingLoaderField->setText(breakingLongWords(reading));
    m_ui->readingLoaderField->setAccessibleName(reading);
    if (!services().hasWorkFolder) {
        updateInterface(m_facts, Failure{FailureCode::CannotCreateFolder, path, {}});
        validate({});
        return;
    }
    const InspectionSite site{{}, *m_profileDecoder, {}, m_stop.get_token()};
    const quint64 number = ++m_reading;
    m_jobs.start([this, path, site, number](const BackgroundJob &job) { unzipApp({job, path, site, this, number}); });
}

void ValidaterViewController::unzipApp(Reading reading)
{
    reading.stopped = extractPackage(reading.path, reading.site).failure;
    beginGatheringInfo(reading);
}

void ValidaterViewController::beginGatheringInfo(const Reading &reading)
{
    if (reading.site.stop.stop_requested())
        doneGatheringInfo(reading);
    else
        fetchAppContents(reading);
}

void ValidaterViewController::fetchAppContents(const Reading &reading)
{
    const PackageFacts facts = readBundle(reading.path, reading.site);
    reading.post([facts, stopped = reading.stopped](ValidaterViewController &controller) {
        controller.updateInterface(facts, stopped);
    });
    startValidate(reading, facts);
    doneGatheringInfo(reading);
}

void ValidaterViewController::startValidate(const Reading &reading, const PackageFacts &facts)
{
    const ArtworkReport artwork = checkArtwork(facts, reading.site);
    reading.post([artwork](ValidaterViewController &controller) { controller.validate(artwork); });
}

void ValidaterViewController::doneGatheringInfo(const Reading &reading)
{
    removePayload(reading.site);
}

} // namespace lumora
