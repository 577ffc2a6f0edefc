// SPDX-License-Identifier: MIT
#pragma once

#include "IconCatalogue.h"
#include "ShownIcon.h"
#include "tool/BackgroundJobs.h"
#include "tool/DropView.h"
#include "tool/FileReading.h"
#include "tool/TimedCaption.h"
#include "tool/ToolViewController.h"

#include <QImage>

#include <array>
#include <atomic>
#include <memory>

namespace Ui
{
class IconsViewController;
}

namespace lumora
{

class CheckboxButton;
class IconView;
class RadioButton;
class TodayIcons;

/// The icon tool: takes a source picture, exports whole icon sets or one icon of a typed size, shows previews and the
/// code that declares the icons in a project.
class IconsViewController final : public ToolViewController, public DropViewDelegate
{
    Q_OBJECT

public:
    explicit IconsViewController(const Services &services, QObject *parent = nullptr);
    ~IconsViewController() override;

    const Ui::IconsViewController &outlets() const { return *m_ui; }

    /// The side of today, which has the same icon.
    TodayIcons *today() const { return m_today; }

    /// The accepted source; a built-in picture until the user chooses one.
    const QImage &icon();
    /// Takes the picture without checks; a null picture leaves the tool without a source.
    void setIcon(const QImage &icon);
    /// The last destination folder of an export, empty at first.
    const QString &savePath() const { return m_savePath; }
    /// The folder of the last source, empty at first.
    const QString &browsePath() const { return m_browsePath; }
    /// The edge length of the custom icon in pixels, 0 until one is accepted.
    int customIconSize() const { return m_customIconSize; }
    /// The corners that the two corner options give.
    CornerMode cornerMode() const;

    /// Takes the picture as the source if it is exactly 1024 pixels wide and high; otherwise shows a message at the
    /// browse button and keeps the present source.
    void createIconFromURL(const QString &path);
    /// The same as dropping this file.
    void setIconFromDelegate(const QString &path);
    void dropViewReceivedFiles(const QStringList &files) override;
    /// Does nothing: colors are of no use here.
    void dropViewReceivedColor(const QColor &) override {}

    bool takesFiles() const override { return true; }
    void browseButtonPressed() override;
    void paste() override;

signals:
    /// The built-in picture was read after the first frame. It becomes the source unless another was chosen before.
    void builtInIconRead();

public slots:
    void generatePlatformPressed();
    void generateCustomPressed();

    void iPhoneCheckboxChecked();
    void iPadCheckboxChecked();
    void macCheckboxChecked();
    void androidCheckboxChecked();
    void webtouchCheckboxChecked();
    void faviconCheckboxChecked();
    /// Chooses every platform, or none if all are chosen.
    void allPressed();
    void checkbox_rounded_ios7_checked();
    void checkbox_rounded_ios6_checked();

    void snippetPlatformClicked();
    void copyButtonClicked();
    /// Redraws the previews with the present corner option.
    void editPreviewIcon();

private:
    /// The platforms chosen now: written on the main thread, read by running exports just before each platform.
    using Choices = std::array<std::atomic<bool>, iconPlatforms.size()>;

    /// The kinds of texts in the line below the source.
    enum class StatusKind { Note, Reading, Refusal };

    void setUpAppearance();
    void setUpPreviews();
    void setUpReading();
    void loadBuiltInIcon();
    void setUpSnippets();
    void setUpToday();
    bool isToday() const;
    /// Takes the icon that was read on the side of today.
    void takeIconOfToday(const QImage &icon, const QString &name);
    /// Draws the pictures of an icon that was read on the side of today, once this side is in view.
    void refreshPictures();
    void connectControls();
    void openDialog();
    /// The edge lengths at which the pane shows the source, the large one first.
    QList<int> pictureSides() const;
    void showIcon(const ShownIcon &shown);
    void acceptIcon(const ShownIcon &shown, const QString &title);
    /// Refuses the source `name`; `what` describes it.
    void refuseIcon(const QString &name, const QString &what);
    void showStatus(const QString &text, StatusKind kind = StatusKind::Note);
    void readingIsSlow();
    void readingEnded();
    void showSource();
    /// The same for another size of the view, off the main thread; meanwhile the view stretches what it has.
    void fitSource();
    void drawPreview(IconView *preview);
    void togglePlatform(IconPlatform platform);
    CheckboxButton *checkbox(IconPlatform platform) const;
    bool isChosen(IconPlatform platform) const;
    void chooseCorners(RadioButton *clicked);
    void deselectRadioButtons();
    void refreshSnippet();
    bool hasSource();
    void openChooseDestinationForPlatforms(bool forPlatforms);
    void generatePlatformIcons();
    void generateCustomIcon();
    void showNewFolder(const QString &name, QWidget *fromView);

    std::unique_ptr<Ui::IconsViewController> m_ui;
    QImage m_icon;
    bool m_builtInIconPending = true; ///< read after the window's first frame, or as soon as it is needed
    QString m_savePath;
    QString m_browsePath;
    int m_customIconSize = 0;
    std::array<IconView *, 5> m_previews{};
    QString m_statusBefore; ///< the status line's text before a slow reading
    FileReading *m_reading = nullptr;
    TimedCaption *m_platformCaption = nullptr;
    TimedCaption *m_customCaption = nullptr;
    TodayIcons *m_today = nullptr;   ///< owned by this
    bool m_picturesAreStale = false; ///< the pictures are not yet those of the icon
    std::shared_ptr<Choices> m_choices = std::make_shared<Choices>();
    bool m_isFitting = false;
    BackgroundJobs m_jobs; ///< last, so that it waits for running exports before other members are destroyed
};

} // namespace lumora
