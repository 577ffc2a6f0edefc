// SPDX-License-Identifier: MIT
#include "RenderedIcons.h"

#include "PriorityWorkers.h"
#include "foundation/LazyValue.h"
#include "foundation/MemoryLimit.h"
#include "pictures/png/PngRows.h"
#include "pictures/png/PngSection.h"
#include "pictures/scaling/Resampler.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <map>
#include <mutex>
#include <new>
#include <optional>
#include <vector>

namespace lumora
{

namespace
{

/// One size on its way to a file.
struct Piece
{
    std::unique_ptr<const ImageRows> rows;
    std::vector<PngSection> sections;
    std::atomic<int> sectionsLeft = 0;
    std::atomic<bool> isWhole = true;       ///< false once a section could not be made
    std::optional<Result<QByteArray>> file; ///< nothing until it is finished
};

/// Sections have priority over new sizes: finishing a size that is begun keeps memory low.
constexpr int sectionPriority = 1 << 20;

/// An icon of this size or larger takes so long that it is begun early; otherwise the other cores would wait for it at
/// the end.
constexpr int smallestEarlySize = 256;

} // namespace

class RenderedIcons::Workshop
{
public:
    explicit Workshop(const QImage &icon) : m_icon(icon) {}

    void prepare(std::span<const int> sizes)
    {
        const std::scoped_lock lock(m_mutex);
        for (const int size : sizes) {
            if (m_pieces.contains(size))
                continue;
            Piece *piece = m_pieces.emplace(size, std::make_unique<Piece>()).first->second.get();
            // The files are written in the requested order while others are rendered.
            const int priority = size >= smallestEarlySize ? size : -static_cast<int>(m_pieces.size());
            if (!m_workers.start([this, piece, size] { render(*piece, size); }, priority))
                piece->file = outOfMemory({});
        }
    }

    Result<QByteArray> png(int size)
    {
        prepare({&size, 1});
        std::unique_lock lock(m_mutex);
        const Piece &piece = *m_pieces.at(size);
        while (!piece.file) {
            lock.unlock();
            const bool isDone = m_workers.doOneAlone();
            lock.lock();
            if (!isDone && !piece.file)
                m_finished.wait(lock);
        }
        return *piece.file;
    }

private:
    void render(Piece &piece, int size)
    {
        const int count = pngSectionCount({size, size});
        if (const Outcome taken = takeRows(piece, {size, size}, count); !taken) {
            finish(piece, taken.failure());
            return;
        }
        for (int index = 1; index < count; ++index) {
            if (!m_workers.start([this, &piece, index] { makeSection(piece, index); }, sectionPriority))
                makeSection(piece, index);
        }
        makeSection(piece, 0);
    }

    /// Gives the piece its pixels and room for its sections.
    Outcome takeRows(Piece &piece, QSize size, int sections)
    {
        return withinMemory({}, [&]() -> Outcome {
            const bool isOwnSize = size == m_icon.size() && !size.isEmpty();
            const Result<QImage> picture = isOwnSize ? m_icon : resampler().scaledTo(size);
            if (!picture)
                return picture.failure();
            piece.rows = std::make_unique<ImageRows>(picture.value());
            piece.sections.resize(static_cast<std::size_t>(sections));
            piece.sectionsLeft = sections;
            return Done{};
        });
    }

    void makeSection(Piece &piece, int index)
    {
        const Outcome made = withinMemory({}, [&]() -> Outcome {
            piece.sections[static_cast<std::size_t>(index)] = makePngSection(*piece.rows, index);
            return Done{};
        });
        if (!made)
            piece.isWhole = false;
        if (piece.sectionsLeft.fetch_sub(1) > 1)
            return;
        Result<QByteArray> file = withinMemory({}, [&]() -> Result<QByteArray> {
            if (!piece.isWhole)
                return outOfMemory({});
            return joinPngSections(piece.rows->size(), piece.sections);
        });
        piece.sections = {};
        piece.rows.reset();
        finish(piece, std::move(file));
    }

    void finish(Piece &piece, Result<QByteArray> file)
    {
        const std::scoped_lock lock(m_mutex);
        piece.file = std::move(file);
        m_finished.notify_all();
    }

    /// Made by the first thread that needs it; another may already encode the picture at its original size.
    const Resampler &resampler()
    {
        return *m_resampler.get([this] { return std::make_unique<Resampler>(m_icon, QString()); });
    }

    QImage m_icon;
    LazyValue<std::unique_ptr<Resampler>> m_resampler;
    std::mutex m_mutex;
    std::condition_variable m_finished;
    std::map<int, std::unique_ptr<Piece>> m_pieces;
    PriorityWorkers m_workers; ///< last, so that its threads end before the members that they use
};

RenderedIcons::RenderedIcons(const QImage &icon) : m_workshop(std::make_unique<Workshop>(icon)) {}

RenderedIcons::~RenderedIcons() = default;

void RenderedIcons::prepare(std::span<const int> sizes)
{
    // A size that finds no memory now is tried again by `png`, which says so.
    try {
        m_workshop->prepare(sizes);
    } catch (const std::bad_alloc &) {
    }
}

Result<QByteArray> RenderedIcons::png(int size)
{
    return withinMemory({}, [&] { return m_workshop->png(size); });
}

} // namespace lumora
