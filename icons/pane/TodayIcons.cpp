// SPDX-License-Identifier: MIT
#include "TodayIcons.h"

#include "EntryField.h"
#include "IconView.h"
#include "PreviewTile.h"
#include "ProjectQuestion.h"
#include "SetGeneration.h"
#include "SnippetBox.h"
#include "SourceWell.h"
#include "TodayIconPane.h"
#include "icons/IconCatalogue.h"
#include "icons/IconSource.h"
#include "icons/preview/TodaySnippets.h"
#include "icons/today/Motifs.h"
#include "pictures/PictureReader.h"
#include "tool/FailureText.h"
#include "tool/FileReading.h"
#include "tool/style/ElidedLabel.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/popover/SFBPopover.h"

#include <QComboBox>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <future>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString defaultName = u"App"_s;

QStringList sourceFilters()
{
    return {qtTrId("ICONS_FILTER_SOURCES") + u" (*.png *.svg *.jpg *.jpeg *.webp *.tif *.tiff *.bmp *.gif *.icns)"_s};
}

} // namespace

TodayIcons::TodayIcons(const Services &services, QObject *parent)
    : QObject(parent), m_services(services), m_iconReading(new FileReading(services.fileReader, this)),
      m_generation(new SetGeneration(this))
{
    for (FileReading *&reading : m_readings)
        reading = new FileReading(services.fileReader, this);
    connect(m_generation, &SetGeneration::projectFound, this, &TodayIcons::ask);
}

TodayIcons::~TodayIcons() = default;

TodayIconPane *TodayIcons::pane() const
{
    return m_pane;
}

QWidget *TodayIcons::makePane(QWidget *parent)
{
    m_pane = new TodayIconPane(parent);
    connectPane();
    connectRun();
    m_pane->title()->setText(m_iconName.isEmpty() ? qtTrId("ICONS_SOURCE_TITLE") : m_iconName);
    m_pane->setStatus(m_iconName.isEmpty() ? qtTrId("ICONS_EXAMPLE") : QString(), false);
    refresh();
    return m_pane;
}

void TodayIcons::connectReading(FileReading *reading)
{
    connect(reading, &FileReading::slow, m_pane, [this, reading] { m_pane->showReading(reading->path()); });
    connect(reading, &FileReading::ended, m_pane, [this] {
        const bool isReading =
            m_iconReading->isReading() ||
            std::any_of(m_readings.begin(), m_readings.end(), [](const FileReading *one) { return one->isReading(); });
        if (!isReading)
            m_pane->endReading();
    });
    connect(m_pane->stopButton(), &HoverButton::clicked, reading, &FileReading::stop);
}

void TodayIcons::connectPane()
{
    connectReading(m_iconReading);
    for (FileReading *reading : m_readings)
        connectReading(reading);
    connect(m_pane->browseButton(), &HoverButton::clicked, this, &TodayIcons::browseIcon);
    connect(m_pane->iconView(), &IconView::pixelSideChanged, this, &TodayIcons::refresh);
    for (const FurtherSource source : furtherSources) {
        const SourceWell *well = m_pane->well(source);
        connect(well, &SourceWell::clicked, this, [this, source] { browseSource(source); });
        connect(well, &SourceWell::fileDropped, this,
                [this, source](const QString &path) { readSource(source, path); });
        connect(well, &SourceWell::removalWanted, this, [this, source] { removeSource(source); });
    }
    connect(m_pane->well(FurtherSource::Background), &SourceWell::colorDropped, m_pane->backgroundField(),
            &ColorEntryField::setColor);
    connect(m_pane->backgroundField(), &ColorEntryField::colorChanged, this, [this] {
        m_sources.backgroundColor = m_pane->backgroundField()->color();
        refresh();
    });
    connect(m_pane->flattenField(), &ColorEntryField::colorChanged, this, [this] {
        m_sources.flatten = m_pane->flattenField()->color();
        refresh();
    });
    connect(m_pane->nameField(), &EntryField::textChanged, this, [this](const QString &name) {
        m_pane->nameField()->setRefused(name.contains(u'/') || name.startsWith(u'.'), qtTrId("DETAIL_NO_FILE_NAME"));
        refresh();
    });
    connect(m_pane->snippetSets(), &QComboBox::currentIndexChanged, this, &TodayIcons::showSnippet);
    connect(m_pane->copyButton(), &IconButton::clicked, this, &TodayIcons::copySnippet);
}

// The sources

void TodayIcons::setIcon(const QImage &picture, const QString &name)
{
    m_iconReading->stop();
    m_tellsIcon = false;
    m_sources.icon = Artwork(picture);
    m_iconDerived.clear();
    m_iconName = name;
    m_isOpaque.reset();
    if (!m_pane)
        return;
    m_pane->title()->setText(name);
    m_pane->setStatus({}, false);
    refresh();
}

void TodayIcons::readIcon(const QString &path)
{
    m_browsePath = QFileInfo(path).path();
    m_iconReading->read(path, largestPictureFile, [this, path](const Result<QByteArray> &bytes) {
        const QString name = QFileInfo(path).fileName();
        const Result<ReadSource> source =
            bytes ? readTodaySource(bytes.value(), name, SourceFit::AnySquare) : bytes.failure();
        return FileReading::Conclusion([this, source, path, name] {
            if (source)
                takeIcon(source.value(), name);
            else
                refuse(source.failure(), path, m_pane->browseButton());
        });
    });
}

void TodayIcons::readSource(FurtherSource source, const QString &path)
{
    m_browsePath = QFileInfo(path).path();
    m_readings[static_cast<std::size_t>(source)]->read(
        path, largestPictureFile, [this, source, path](const Result<QByteArray> &bytes) {
            const QString name = QFileInfo(path).fileName();
            const Result<ReadSource> read =
                bytes ? readTodaySource(bytes.value(), name, SourceFit::AnySquare) : bytes.failure();
            return FileReading::Conclusion([this, source, read, path, name] {
                if (read)
                    takeSource(source, read.value(), name);
                else
                    refuse(read.failure(), path, m_pane->well(source));
            });
        });
}

void TodayIcons::takePasted(const QImage &picture)
{
    m_iconReading->stop();
    m_jobs.start([this, picture, name = qtTrId("ICONS_PASTED")](const BackgroundJob &job) {
        const Result<ReadSource> source = todaySource(picture, name, SourceFit::AnySquare);
        job.post([this, source, name] {
            if (source)
                takeIcon(source.value(), name);
            else
                refuse(source.failure(), name, m_pane->browseButton());
        });
    });
}

void TodayIcons::takeIcon(const ReadSource &source, const QString &name)
{
    m_sources.icon = source.artwork;
    m_iconDerived = source.derived;
    m_iconName = name;
    m_isOpaque.reset();
    m_tellsIcon = true;
    m_pane->title()->setText(name);
    QStringList notes;
    for (const Derived &one : source.derived)
        notes << qtTrId(derivationTexts[static_cast<std::size_t>(one.derivation)].textKey);
    m_pane->setStatus(notes.join(u"; "_s), false);
    refresh();
}

void TodayIcons::takeSource(FurtherSource source, const ReadSource &read, const QString &name)
{
    artworkOf(source) = read.artwork;
    m_sourceDerived[static_cast<std::size_t>(source)] = read.derived;
    m_pane->well(source)->setFileName(name);
    refresh();
}

void TodayIcons::removeSource(FurtherSource source)
{
    m_readings[static_cast<std::size_t>(source)]->stop();
    artworkOf(source) = {};
    m_sourceDerived[static_cast<std::size_t>(source)].clear();
    m_pane->well(source)->setFileName({});
    if (source == FurtherSource::Background)
        m_pane->backgroundField()->clear();
    refresh();
}

Artwork &TodayIcons::artworkOf(FurtherSource source)
{
    switch (source) {
    case FurtherSource::Dark:
        return m_sources.dark;
    case FurtherSource::Tinted:
        return m_sources.tinted;
    case FurtherSource::Monochrome:
        return m_sources.monochrome;
    case FurtherSource::Foreground:
        return m_sources.foreground;
    case FurtherSource::Background:
        break;
    }
    return m_sources.background;
}

void TodayIcons::refuse(const Failure &failure, const QString &path, QWidget *control)
{
    const QString name = QFileInfo(path).fileName();
    // The line below the icon is the icon's.
    if (control == m_pane->browseButton())
        m_pane->setStatus(name + u": "_s + failureReason(failure), true);
    emit messageWanted(
        qtTrId("ICONS_ALERT_TITLE"),
        qtTrId("ICONS_TODAY_REFUSED").replace("[WHAT]"_L1, failureReason(failure)).replace("[FILE]"_L1, name), control,
        true);
}

void TodayIcons::browseIcon()
{
    m_services.fileChooser.chooseFiles(m_pane->window(),
                                       {qtTrId("ICONS_BROWSE_TODAY"), m_browsePath, sourceFilters(), false},
                                       [this](const QStringList &paths) { readIcon(paths.first()); });
}

void TodayIcons::browseSource(FurtherSource source)
{
    m_services.fileChooser.chooseFiles(m_pane->window(),
                                       {m_pane->well(source)->text(), m_browsePath, sourceFilters(), false},
                                       [this, source](const QStringList &paths) { readSource(source, paths.first()); });
}

QList<Derived> TodayIcons::derived() const
{
    QList<Derived> all = m_iconDerived;
    for (const QList<Derived> &some : m_sourceDerived)
        all += some;
    return all;
}

SetOptions TodayIcons::options() const
{
    const EntryField *field = m_pane->nameField();
    const QString name = field->text().trimmed();
    return {name.isEmpty() || field->isRefused() ? defaultName : name, IosForm::OneSize};
}

// What the pane shows

void TodayIcons::refresh()
{
    if (!m_pane)
        return;
    m_isStale = true;
    if (!m_isDrawing)
        draw();
}

void TodayIcons::draw()
{
    m_isDrawing = true;
    m_isStale = false;
    const qreal scale = m_pane->devicePixelRatioF();
    const int placeEdge = static_cast<int>(std::lround(PreviewTile::side * scale));
    const int sourceEdge = static_cast<int>(std::lround(SourceWell::side * scale));
    const int iconEdge = std::max(m_pane->iconView()->pixelSide(), 1);
    m_jobs.start([this, sources = m_sources, options = options(), placeEdge, sourceEdge,
                  iconEdge](const BackgroundJob &job) mutable {
        if (sources.icon.isNull()) {
            const Result<QImage> builtIn = builtInIcon();
            sources.icon = builtIn ? Artwork(builtIn.value()) : Artwork();
        }
        const Motifs motifs(sources, MacForm::Body);
        Drawn drawn;
        std::future<QImage> icon =
            std::async(std::launch::async, [&sources, iconEdge] { return sources.icon.at(iconEdge); });
        drawn.previews = iconPreviews(motifs, placeEdge, sourceEdge);
        drawn.isOpaque = sources.icon.isOpaque();
        drawn.background = motifs.backgroundColor();
        drawn.icon = icon.get();
        drawn.original = sources.icon.at(sourceIconSize);
        for (const TodaySet set : TodayIconPane::offeredSets)
            drawn.snippets.insert(static_cast<int>(set), todaySnippet(set, motifs, options));
        job.post([this, drawn, icon = sources.icon] {
            if (m_sources.icon.isNull())
                m_sources.icon = icon;
            m_isDrawing = false;
            // What was read meanwhile is drawn at once.
            if (m_isStale)
                draw();
            else
                show(drawn);
        });
    });
}

void TodayIcons::show(const Drawn &drawn)
{
    if (!m_pane)
        return;
    m_isOpaque = drawn.isOpaque;
    m_snippets = drawn.snippets;
    m_pane->iconView()->setPicture(drawn.icon);
    m_pane->showPreviews(drawn.previews);
    m_pane->backgroundField()->setDerivedColor(drawn.background);
    m_pane->backgroundField()->setPlaceholderText(drawn.background.name());
    m_pane->flattenField()->setEnabled(!drawn.isOpaque);
    showSnippet();
    if (std::exchange(m_tellsIcon, false))
        emit iconRead(drawn.original, m_iconName);
    emit previewsShown();
}

void TodayIcons::showSnippet()
{
    const QString text = m_snippets.value(m_pane->snippetSets()->currentData().toInt());
    if (text != m_pane->snippet()->toPlainText())
        m_pane->snippet()->setPlainText(text);
}

void TodayIcons::copySnippet()
{
    m_services.clipboard.setText(m_pane->snippet()->toPlainText());
    emit messageWanted(qtTrId("SNIPPETS_TITLE"), qtTrId("SNIPPETS_MESSAGE"), m_pane->copyButton(), false);
}

} // namespace lumora
