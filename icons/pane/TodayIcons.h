// SPDX-License-Identifier: MIT
#pragma once

#include "icons/preview/IconPreviews.h"
#include "icons/today/SetPlans.h"
#include "icons/today/TodaySources.h"
#include "tool/BackgroundJobs.h"
#include "tool/services/Services.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <array>
#include <memory>
#include <optional>

namespace lumora
{

class FileReading;
class ProjectQuestion;
class SFBPopover;
class SetGeneration;
class TodayIconPane;
struct JobResult;
struct ProjectOffer;

/// The work of the icon tool's side of today: reads the sources, has everything drawn that the pane shows, and writes
/// the sets, all off the main thread.
class TodayIcons final : public QObject
{
    Q_OBJECT

public:
    TodayIcons(const Services &services, QObject *parent);
    ~TodayIcons() override;

    /// Makes the pane, which its parent owns.
    QWidget *makePane(QWidget *parent);
    /// Null until it is made.
    TodayIconPane *pane() const;
    SetGeneration *generation() const { return m_generation; }
    const TodaySources &sources() const { return m_sources; }

    /// Takes a picture of 1024 x 1024 pixels that was chosen elsewhere.
    void setIcon(const QImage &picture, const QString &name);
    /// Reads a picture or drawing as the icon; a refusal is a message at the browse button.
    void readIcon(const QString &path);
    void readSource(FurtherSource source, const QString &path);
    void browseIcon();
    /// Takes a picture of the clipboard as the icon.
    void takePasted(const QImage &picture);

signals:
    /// Another icon was read on this side: its picture of 1024 x 1024 pixels and its name.
    void iconRead(const QImage &picture, const QString &name);
    /// Everything is drawn as the sources now are.
    void previewsShown();
    void messageWanted(const QString &title, const QString &text, QWidget *control, bool isError);
    /// A run has ended, or the user is asked.
    void attentionWanted();

private:
    /// What one drawing of everything gives.
    struct Drawn
    {
        QImage icon;     ///< as large as the pane shows it
        QImage original; ///< 1024 pixels wide
        IconPreviews previews;
        QHash<int, QString> snippets; ///< by set
        bool isOpaque = false;
        QColor background;
    };

    void connectPane();
    /// Shows a slow read, with a button to stop it.
    void connectReading(FileReading *reading);
    void connectRun();
    void browseSource(FurtherSource source);
    Artwork &artworkOf(FurtherSource source);
    void removeSource(FurtherSource source);
    void takeIcon(const ReadSource &source, const QString &name);
    void takeSource(FurtherSource source, const ReadSource &read, const QString &name);
    void refuse(const Failure &failure, const QString &path, QWidget *control);
    QList<Derived> derived() const;
    SetOptions options() const;
    /// Draws everything again as soon as the present drawing is done.
    void refresh();
    void draw();
    void show(const Drawn &drawn);
    void showSnippet();
    void copySnippet();
    void generate();
    void refuseTransparency();
    void begin(const QString &folder);
    void ask(const ProjectOffer &offer);
    void showQuestion();
    void closeQuestion();
    void runEnded();

    Services m_services;
    QPointer<TodayIconPane> m_pane;
    FileReading *m_iconReading;                                    ///< owned by this
    std::array<FileReading *, furtherSources.size()> m_readings{}; ///< the same
    SetGeneration *m_generation;                                   ///< the same
    TodaySources m_sources;
    QString m_iconName;
    QList<Derived> m_iconDerived;
    std::array<QList<Derived>, furtherSources.size()> m_sourceDerived;
    QHash<int, QString> m_snippets;
    std::optional<bool> m_isOpaque; ///< unknown until the icon was drawn
    QString m_browsePath;
    QString m_savePath;
    bool m_isDrawing = false;
    bool m_isStale = false;   ///< what is being drawn is no longer what is wanted
    bool m_tellsIcon = false; ///< the icon was read here and not sent yet
    QPointer<ProjectQuestion> m_question;
    std::unique_ptr<SFBPopover> m_popover;
    BackgroundJobs m_jobs; ///< last, so that it waits for a drawing before other members are destroyed
};

} // namespace lumora
