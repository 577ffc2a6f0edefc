// SPDX-License-Identifier: MIT
#pragma once

#include "LabelFont.h"
#include "Placeholder.h"
#include "PlaceholderSizes.h"
#include "tool/BackgroundJobs.h"
#include "tool/DropView.h"
#include "tool/ToolViewController.h"

#include <QHash>

#include <memory>
#include <vector>

namespace Ui
{
class PlaceholderViewController;
}

namespace lumora
{

class HoverButton;
struct PlaceholderRun;
class TimedCaption;
class TodayPlaceholders;
class ZKTextField;

/// The placeholder tool: writes labeled gray pictures in the screen sizes of iOS devices or of the Mac, or one in a
/// typed size, and shows them beforehand.
class PlaceholderViewController final : public ToolViewController, public DropViewDelegate
{
    Q_OBJECT

public:
    explicit PlaceholderViewController(const Services &services, QObject *parent = nullptr);
    ~PlaceholderViewController() override;

    const Ui::PlaceholderViewController &outlets() const { return *m_ui; }

    /// The pictures to write once a destination is chosen, in order; empty between runs.
    const std::vector<Placeholder> &saveImages() const { return m_saveImages; }
    /// The last destination folder, empty at first.
    const QString &savePath() const { return m_savePath; }
    /// The last accepted custom size, 0 at first.
    int customWidth() const { return m_customWidth; }
    int customHeight() const { return m_customHeight; }
    /// A name for the custom picture, empty at first. It changes nothing: files are named for their size.
    const QString &customName() const { return m_customName; }
    void setCustomName(const QString &name) { m_customName = name; }
    /// The button that started the run; nullptr after the run.
    HoverButton *selectedButton() const { return m_selectedButton; }

public slots:
    void iosButtonPressed();
    void macButtonPressed();
    void customButtonPressed();

    /// The side of today, which alone takes files; its pane is null until it is seen first.
    TodayPlaceholders *today() const { return m_today; }
    bool takesFiles() const override;
    void browseButtonPressed() override;
    void paste() override;
    void dropViewReceivedFiles(const QStringList &files) override;
    /// Does nothing: colors are of no use here.
    void dropViewReceivedColor(const QColor &) override {}

private:
    void setUpToday();
    void setUpAppearance();
    void setUpButton(HoverButton *button, const QString &what);
    void showCustomMiniature();
    bool acceptEdge(ZKTextField *field, int &edge);
    void createiOSPlaceholders();
    void createMacPlaceholders();
    void createCustomPlaceholder();
    void createPlaceholders(const QList<QSize> &sizes);
    void openChooseDestination();
    void discardImages();
    void saveImagesToDisk(HoverButton *button);
    void finish(HoverButton *button, const PlaceholderRun &run);

    std::unique_ptr<Ui::PlaceholderViewController> m_ui;
    LabelFont m_font;
    std::vector<Placeholder> m_saveImages;
    QString m_savePath;
    int m_customWidth = 0;
    int m_customHeight = 0;
    QString m_customName;
    HoverButton *m_selectedButton = nullptr;
    QHash<HoverButton *, TimedCaption *> m_captions;
    TodayPlaceholders *m_today = nullptr;
    BackgroundJobs m_jobs; ///< last, so that it waits for running jobs before other members are destroyed
};

} // namespace lumora
