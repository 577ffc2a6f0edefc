// SPDX-License-Identifier: MIT
#pragma once

#include "OpacityFade.h"
#include "tool/BackgroundJobs.h"
#include "tool/DropView.h"
#include "tool/ToolViewController.h"
#include "tool/style/StyledText.h"
#include "validator/bundle/CheckResults.h"
#include "validator/bundle/FoundContent.h"
#include "validator/bundle/PackageInspection.h"
#include "validator/review/InspectionProcess.h"
#include "validator/review/ReviewProcess.h"

#include <memory>
#include <optional>
#include <stop_token>

namespace Ui
{
class ValidaterViewController;
}

namespace lumora
{

class CheckboxButton;
class FindingsView;
class ReasonView;
class ReviewSections;
class TimedCaption;
class ValidatePopupContentView;

/// The app package validator's pane. It has two interfaces: one for dropping or choosing a package, and one that shows
/// the report: its sum, what was read, and seven boxes that explain their verdict when pressed, each with its reason
/// below it. For a file that is no package the report says what was found. Of a package that is not of old time it also
/// shows what the store's rules find; another process reads it for that, so that no package takes the window down.
class ValidaterViewController final : public ToolViewController, public DropViewDelegate
{
    Q_OBJECT

public:
    explicit ValidaterViewController(const Services &services, QObject *parent = nullptr);
    ~ValidaterViewController() override;

    const Ui::ValidaterViewController &outlets() const { return *m_ui; }
    SFBPopover *validatePopup() const { return m_validatePopup.get(); }
    ValidatePopupContentView *validatePopupContentView() const { return m_validatePopupContentView; }

    /// The path of the package that is validated.
    QString ipaPath() const { return m_facts.ipaPath; }
    const PackageFacts &facts() const { return m_facts; }
    /// One sentence for each missing icon size; and for each required launch image, if the app has none.
    const QStringList &invalidAppIconsArray() const { return m_invalidAppIconsArray; }
    const QStringList &invalidDefaultsArray() const { return m_invalidDefaultsArray; }

    const QList<CheckResult> &results() const { return m_results; }
    /// What was found instead of a package; empty if nothing was, or if a package was found.
    const std::optional<FoundContent> &found() const { return m_found; }
    /// What the store's rules say; empty until the reader has answered, and without one.
    const std::optional<PackageReview> &review() const { return m_review; }
    FindingsView *findingsView() const { return m_findings; }
    ReviewSections *reviewSections() const { return m_sections; }
    /// The ids of the rules that the user ignores, while the program runs.
    const QStringList &ignoredRules() const { return m_ignored; }
    /// The whole report as text, for sending.
    QString reportText() const;

    /// The folder in which the browse panel opens, empty for the user's own.
    QString browsePath() const { return m_browsePath; }
    void setBrowsePath(const QString &path) { m_browsePath = path; }
    /// Every tool has a save path. The validator writes nothing, so it only stores it.
    QString savePath() const { return m_savePath; }
    void setSavePath(const QString &path) { m_savePath = path; }
    /// Always empty: the artwork checks know the required icons (`requiredIcons`) of the app's platform.
    std::optional<QList<int>> iPhoneRequiredIcons() const { return std::nullopt; }

    /// The font size of the facts.
    static constexpr int fontSize = 15;
    /// The delay from the browse panel's confirmation to the reading, so that the sheet is closed; in milliseconds.
    static constexpr int browseDelay = 1000;

    /// Takes the path as if it had been dropped.
    void dropIpaFileFromDelegate(const QString &path);
    void dropViewReceivedFiles(const QStringList &files) override;
    bool takesFiles() const override { return true; }
    void browseButtonPressed() override;
    void paste() override;

    /// The whole text, with the font on the first occurrence of the sub-text.
    static StyledText createAttributedTextFromString(const QString &string, const QFont &withFont,
                                                     const QString &forString);

    /// Like the shared popup, but in the pane's own popup, whose message may have any length.
    void showValidatePopupWithTitle(const QString &title, const QString &message, QWidget *fromView, bool isError);
    void showAlertWithTitle(const QString &title, const QString &andMessage, QWidget *fromView);

signals:
    /// Icons are wanted from the picture at the path, which is empty when the package has none.
    void iconsWanted(const QString &picture);
    /// The models that run the package are wanted.
    void modelsWanted(const lumora::DeviceDemands &demands);

public slots:
    void resetButtonPressed();
    void cancelButtonPressed();
    void copyReportButtonPressed();
    void checkAgainButtonPressed();
    void checkboxAppIconsPressed();
    void checkboxDefaultsPressed();
    void checkboxBundleIdentifierPressed();
    void checkboxReleaseBuildPressed();
    void checkboxLocalizationsPressed();
    void checkboxURLSchemesPressed();
    void checkboxFacebookAppIDPressed();

private:
    void awakeFromNib();
    void setUpReport();
    void connectActions();
    void createValidatePopup();
    QList<QWidget *> factViews() const;
    QList<CheckboxButton *> boxes() const;

    void openBrowsePanel();
    void foundIpaFile(const QString &path);
    void readyForIpa();
    void reset();

    /// Sends the package through the background queue, where `PackageInspection` takes its steps, in a process of its
    /// own if there is one.
    void startInspection(const QString &path, quint64 number);
    void updateInterface(const PackageFacts &facts, const Extraction &extraction,
                         const std::optional<FoundContent> &found);
    void validate(const ArtworkReport &artwork);
    /// The inspection came to no end.
    void giveUp(ReaderEnd end);
    void setUpReview();
    void startReview(const QString &path, quint64 number);
    void showProgress(int perMille);
    /// The line below the bar: what is read and, where that is known, how much of it.
    void showReadingText();
    QString withPercent(const QString &text) const;
    void takeReview(std::variant<PackageReview, ReaderEnd> review);
    bool isReviewPending() const { return m_isReviewing && !m_found; }
    /// Presents the report when all that belongs to it is there.
    void conclude();
    void showReview();
    /// The sum and the findings without the ignored rules.
    void showFindings();
    void passIconsOn();
    void saveReport();
    void writeReport(const QString &folder);
    QString readerNote() const;
    void showFact(QLabel *field, const char *labelKey, const QString &value);
    void showAppIcon(const QImage &icon);
    bool hasFacts() const { return !m_found && (!m_inspectionEnd || m_facts.appInfoPlist); }
    /// Shows the sum on top and the reasons in their rows; without a package, what was found.
    void showSum();
    void clearReport();
    ReasonView *reasonView(Check check) const;
    void setReading(bool reading);
    /// Gives the keyboard to the new report, unless the user is elsewhere, and makes screen readers announce it.
    void presentReport();
    QList<QWidget *> headViews() const;
    bool hasKeyboard() const;
    void showPresence(CheckboxButton *box, bool present);
    void explain(CheckboxButton *box, const char *invalidTitleKey, const char *invalidTextKey,
                 const char *validTextKey);

    std::unique_ptr<Ui::ValidaterViewController> m_ui;
    std::shared_ptr<const ProfileDecoder> m_profileDecoder; ///< shared with the readings
    std::unique_ptr<SFBPopover> m_validatePopup;
    ValidatePopupContentView *m_validatePopupContentView = nullptr; ///< owned by the popover
    OpacityFade m_fade;
    QString m_browsePath;
    QString m_savePath;
    PackageFacts m_facts;
    QStringList m_invalidAppIconsArray;
    QStringList m_invalidDefaultsArray;
    Extraction m_extraction;
    QList<CheckResult> m_results;
    std::optional<FoundContent> m_found;
    TimedCaption *m_copyCaption = nullptr; ///< owned by the controller
    FindingsView *m_findings = nullptr;    ///< owned by the view, like the next one
    ReviewSections *m_sections = nullptr;
    TimedCaption *m_saveCaption = nullptr; ///< owned by the controller
    std::optional<PackageReview> m_review;
    std::optional<ReaderEnd> m_readerEnd;     ///< why there is no review
    std::optional<ReaderEnd> m_inspectionEnd; ///< why there are no facts or verdicts
    QStringList m_ignored;
    int m_readPercent = 0;
    bool m_isReviewing = false;
    bool m_isJudged = false; ///< the classic checks are done
    /// Counts the packages, so that results of a replaced reading are dropped.
    quint64 m_reading = 0;
    std::stop_source m_stop;
    /// Packages are read one after the other: all are unpacked into the same folder, where two readings would judge,
    /// and remove, each other's files. A new package stops the current reading and waits for its end, which comes
    /// within a block of 4 KB. Last, so that it is destroyed first.
    BackgroundJobs m_jobs{BackgroundJobs::Order::Serial, "bgQueue"};
    /// Readers and the writing of reports.
    BackgroundJobs m_reviewJobs{BackgroundJobs::Order::Serial, "reviews"};
};

} // namespace lumora
