// SPDX-License-Identifier: MIT
#pragma once

#include "icons/preview/IconPreviews.h"
#include "icons/today/TodaySet.h"

#include <QWidget>

#include <array>
#include <vector>

class QComboBox;
class QLabel;
class QStackedWidget;

namespace lumora
{

class CheckboxButton;
class ColorEntryField;
class DropView;
class ElidedLabel;
class EntryField;
class HoverButton;
class IconButton;
class IconView;
class JobResultView;
class LBProgressBar;
class PreviewTile;
class SnippetBox;
class SourceWell;

/// The icon tool's side of today: the icon and its further sources, the sets to be written, the lines that declare
/// them, and a row of the places in which the icon will be seen.
class TodayIconPane final : public QWidget
{
    Q_OBJECT

public:
    /// The sets with a box of their own.
    static constexpr std::array<TodaySet, 7> offeredSets = {TodaySet::Ios,      TodaySet::MacOs, TodaySet::WatchOs,
                                                            TodaySet::Adaptive, TodaySet::Web,   TodaySet::Windows,
                                                            TodaySet::Linux};

    explicit TodayIconPane(QWidget *parent = nullptr);

    /// All of the icon's column takes dropped files.
    DropView *dropView() const { return m_dropView; }
    IconView *iconView() const { return m_iconView; }
    ElidedLabel *title() const { return m_title; }
    ElidedLabel *statusLabel() const { return m_status; }
    HoverButton *browseButton() const { return m_browse; }
    /// In place of the button to browse while a slow file is read.
    HoverButton *stopButton() const { return m_stop; }
    SourceWell *well(FurtherSource source) const { return m_wells[static_cast<std::size_t>(source)]; }
    ColorEntryField *backgroundField() const { return m_background; }
    /// The color that the icon is put on where a store forbids transparency.
    ColorEntryField *flattenField() const { return m_flatten; }
    CheckboxButton *box(TodaySet set) const;
    QList<TodaySet> chosenSets() const;
    HoverButton *allButton() const { return m_all; }
    HoverButton *generateButton() const { return m_generate; }
    EntryField *nameField() const { return m_name; }
    QLabel *progressLabel() const { return m_progressLabel; }
    HoverButton *cancelButton() const { return m_cancel; }
    PreviewTile *tile(PreviewPlace place) const { return m_tiles[static_cast<std::size_t>(place)]; }
    QComboBox *snippetSets() const { return m_snippetSets; }
    SnippetBox *snippet() const { return m_snippet; }
    IconButton *copyButton() const { return m_copy; }
    JobResultView *result() const { return m_result; }

    /// The line below the icon; refusals have the color of errors.
    void setStatus(const QString &text, bool isRefusal);
    /// Shows the file's name in place of the status until `endReading`.
    void showReading(const QString &path);
    void endReading();
    void showPreviews(const IconPreviews &previews);
    /// Shows the bar and the button to cancel in place of the buttons that start.
    /// File `number`, from 1, of `count` is being written.
    void showProgress(qsizetype number, qsizetype count);
    void setRunning(bool running);

signals:
    /// The user ticked the set, or took it off.
    void setToggled(lumora::TodaySet set, bool isChosen);

private:
    QWidget *makeSources();
    QWidget *makeSets();
    QWidget *makeSnippets();
    QWidget *makePreviews();
    void toggle(TodaySet set);
    void setChosen(TodaySet set, bool isChosen);
    void toggleAll();
    void showStatus(const QString &text, bool isRefusal);

    DropView *m_dropView;
    IconView *m_iconView;
    ElidedLabel *m_title;
    ElidedLabel *m_status;
    HoverButton *m_browse;
    HoverButton *m_stop;
    QString m_statusText;
    bool m_isRefusal = false;
    std::array<SourceWell *, furtherSources.size()> m_wells{};
    ColorEntryField *m_background;
    ColorEntryField *m_flatten;
    std::array<CheckboxButton *, offeredSets.size()> m_boxes{};
    EntryField *m_name;
    HoverButton *m_all;
    HoverButton *m_generate;
    LBProgressBar *m_progress;
    QLabel *m_progressLabel;
    HoverButton *m_cancel;
    QStackedWidget *m_actions;
    std::array<PreviewTile *, previewPlaces.size()> m_tiles{};
    QComboBox *m_snippetSets;
    SnippetBox *m_snippet;
    IconButton *m_copy;
    JobResultView *m_result;
};

} // namespace lumora
