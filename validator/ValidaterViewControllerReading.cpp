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

/// Passes the results of one package on to the pane, unless another package has replaced it meanwhile.
class ValidaterViewController::Reading final : public InspectionObserver
{
public:
    Reading(const BackgroundJob &job, ValidaterViewController *controller, quint64 number)
        : m_job(job), m_controller(controller), m_number(number)
    {
    }

    void gathered(const PackageFacts &facts, const Extraction &extraction) override
    {
        std::optional<FoundContent> found;
        if (!facts.hasApp)
            found = foundContent(facts.ipaPath);
        post([facts, extraction, found](ValidaterViewController &controller) {
            controller.updateInterface(facts, extraction, found);
        });
    }
    void validated(const ArtworkReport &artwork) override
    {
        post([artwork](ValidaterViewController &controller) { controller.validate(artwork); });
    }

private:
    void post(std::function<void(ValidaterViewController &)> show) const
    {
        m_job.post([controller = m_controller, number = m_number, show = std::move(show)] {
            if (controller->m_reading == number)
                show(*controller);
        });
    }

    const BackgroundJob &m_job;
    ValidaterViewController *m_controller; ///< only for posted functions
    quint64 m_number;
};

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
    const int iconScale = qCeil(view()->devicePixelRatioF());
    const quint64 number = ++m_reading;
    startReview(path, number);
    m_jobs.start([this, path, number, workFolder = services().workFolder, decoder = m_profileDecoder,
                  stop = m_stop.get_token(), iconScale](const BackgroundJob &job) {
        const InspectionSite site{workFolder, *decoder, {}, stop, iconScale};
        Reading observer(job, this, number);
        PackageInspection(path, site.profileDecoder, observer).unzipApp(site);
    });
}

} // namespace lumora
