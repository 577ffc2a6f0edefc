// SPDX-License-Identifier: MIT
#include "TodayColors.h"

#include "CodeField.h"
#include "ContrastView.h"
#include "FormListView.h"
#include "PaletteView.h"
#include "TodayColorPane.h"
#include "color/WellColor.h"
#include "color/forms/ColorReader.h"
#include "color/palettes/ColorCatalogue.h"
#include "color/palettes/PaletteSaving.h"
#include "color/picker/BFPopoverColorWell.h"
#include "foundation/StoppableRead.h"
#include "tool/FailureText.h"
#include "tool/FileReading.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/ImageButton.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// A color set's color has the name of its folder; every other file its own.
QString nameOfFile(const QString &path)
{
    const QFileInfo info(path);
    const QString folder = QFileInfo(info.path()).fileName();
    return folder.endsWith(".colorset"_L1) ? folder.chopped(9) : info.completeBaseName();
}

} // namespace

TodayColors::TodayColors(const Services &services, QObject *parent)
    : QObject(parent), m_services(services), m_reading(new FileReading(services.fileReader, this))
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(restDuration);
    connect(&m_rest, &QTimer::timeout, this, [this] { keep(m_resting); });
    m_patience.setSingleShot(true);
    m_patience.setInterval(FileReading::patience);
}

QWidget *TodayColors::makePane(QWidget *parent)
{
    m_pane = new TodayColorPane(parent);
    connectInput();
    connectPalette();
    m_pane->setColor(m_color);
    showPalette();
    return m_pane;
}

void TodayColors::connectInput()
{
    connect(m_pane->field(), &CodeField::colorTyped, this, &TodayColors::take);
    connect(m_pane->field(), &CodeField::colorConfirmed, this, [this] { keep(m_color); });
    connect(m_pane->well(), &ColorWell::colorPicked, this, [this](const ColorWell *well) {
        take(wideColorFrom(well->color()));
        picked();
    });
    connect(m_pane->pipetteButton(), &ImageButton::clicked, this, &TodayColors::pipetteWanted);
    connect(m_pane->contrast(), &ContrastView::colorWanted, this, [this](const WideColor &color) {
        take(color);
        picked();
    });
    connect(m_pane->forms(), &FormListView::copied, this,
            [this](const QString &text) { m_services.clipboard.setText(text); });
}

void TodayColors::connectPalette()
{
    PaletteView *view = m_pane->palette();
    connect(m_reading, &FileReading::slow, view, [view] { view->setReading(true); });
    connect(m_reading, &FileReading::ended, view, [view] { view->setReading(false); });
    connect(&m_patience, &QTimer::timeout, view, [view] { view->setReading(true); });
    connect(view, &PaletteView::stopWanted, this, &TodayColors::stopReading);
    connect(view, &PaletteView::chosen, this,
            [this](int index) { take(palette().at(static_cast<std::size_t>(index)).color); });
    connect(view, &PaletteView::addWanted, this, [this] { keep(m_color); });
    connect(view, &PaletteView::removalWanted, this, [this](int index) {
        m_picked.remove(static_cast<std::size_t>(index));
        showPalette();
    });
    connect(view, &PaletteView::openWanted, this, [this] {
        const FileRequest request{qtTrId("COLOR_PALETTE_OPEN_TITLE"),
                                  m_lastFolder,
                                  {qtTrId("COLOR_PALETTE_FILES") + u" (*.gpl *.json *.css)"_s},
                                  false};
        m_services.fileChooser.chooseFiles(m_pane->window(), request,
                                           [this](const QStringList &paths) { openPalette(paths.constFirst()); });
    });
    connect(view, &PaletteView::catalogueWanted, this, [this] {
        m_services.folderChooser.chooseFolder(m_pane->window(), {qtTrId("COLOR_CATALOGUE_TITLE"), m_lastFolder},
                                              [this](const QString &folder) { openCatalogue(folder); });
    });
    connect(view, &PaletteView::saveWanted, this, [this] {
        m_services.folderChooser.chooseFolder(m_pane->window(), {qtTrId("COLOR_PALETTE_SAVE_TITLE"), m_lastFolder},
                                              [this](const QString &folder) { savePaletteInto(folder); });
    });
}

void TodayColors::setColor(const WideColor &color)
{
    m_color = color;
    if (m_pane)
        m_pane->setColor(color);
}

void TodayColors::take(const WideColor &color)
{
    setColor(color);
    emit colorChanged(color);
}

bool TodayColors::takeText(const QString &text)
{
    const Result<ColorReading> reading = readColor(text);
    if (!reading)
        return false;
    take(reading.value().color);
    keep(m_color);
    return true;
}

void TodayColors::picked()
{
    // A color that is typed meanwhile is not the one that was picked.
    m_resting = m_color;
    m_rest.start();
}

void TodayColors::keep(const WideColor &color)
{
    if (m_picked.add(color))
        showPalette();
}

void TodayColors::showPalette()
{
    if (m_pane)
        m_pane->palette()->setPalette(palette());
}

void TodayColors::openPalette(const QString &path)
{
    m_lastFolder = QFileInfo(path).path();
    m_reading->read(path, largestPaletteFile, [=, this](const Result<QByteArray> &bytes) -> FileReading::Conclusion {
        const Result<Palette> read = bytes ? readPalette(bytes.value(), nameOfFile(path)) : bytes.failure();
        return [=, this] {
            if (!m_pane)
                return;
            if (!read) {
                emit messageWanted(qtTrId("COLOR_PALETTE_REFUSED"), failureReason(read.failure()),
                                   m_pane->palette()->openButton(), true);
                return;
            }
            m_picked.add(read.value());
            showPalette();
        };
    });
}

void TodayColors::endSearch()
{
    m_patience.stop();
    m_pane->palette()->setReading(false);
}

void TodayColors::stopReading()
{
    m_reading->stop();
    m_searching.request_stop();
    endSearch();
}

void TodayColors::openCatalogue(const QString &folder)
{
    m_lastFolder = QFileInfo(folder).path();
    m_searching.request_stop();
    m_searching = std::stop_source();
    m_patience.start();
    const ReadFile readFile = [reader = m_services.fileReader](const QString &path, qint64 limit) {
        return reader->read(path, limit);
    };
    m_jobs.start([this, folder, readFile, stop = m_searching](const BackgroundJob &job) {
        const std::stop_callback closing(job.stopToken(), [stop] { stop.request_stop(); });
        const std::stop_token token = stop.get_token();
        const std::function<Result<CatalogueColors>()> work = [=] {
            return readColorCatalogue(folder, token, mostCatalogueEntries, readFile);
        };
        const std::optional<Result<CatalogueColors>> answer = unlessStopped(work, token);
        if (!answer)
            return;
        job.post([this, folder, token, read = *answer] {
            if (!m_pane || token.stop_requested())
                return;
            endSearch();
            IconButton *button = m_pane->palette()->catalogueButton();
            if (!read) {
                emit messageWanted(qtTrId("COLOR_PALETTE_REFUSED"), failureReason(read.failure()), button, true);
                return;
            }
            m_picked.add(read.value().palette);
            showPalette();
            if (!read.value().failures.empty())
                emit messageWanted(qtTrId("COLOR_CATALOGUE_PARTLY"),
                                   failureLines(read.value().failures, folder).join(u'\n'), button, true);
        });
    });
}

void TodayColors::savePaletteInto(const QString &folder)
{
    m_lastFolder = folder;
    PaletteView *view = m_pane->palette();
    const Result<QString> saved = savePalette(palette(), u"palette"_s, view->format(), folder);
    if (saved)
        emit messageWanted(qtTrId("COLOR_PALETTE_SAVED"), QDir::toNativeSeparators(saved.value()), view->saveButton(),
                           false);
    else
        emit messageWanted(qtTrId("COLOR_PALETTE_NOT_SAVED"), failureReason(saved.failure()), view->saveButton(), true);
}

} // namespace lumora
