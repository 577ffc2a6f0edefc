// SPDX-License-Identifier: MIT
#include "RenderedIcons.h"

#include "foundation/MemoryLimit.h"
#include "pictures/png/PngRows.h"
#include "pictures/png/PngSection.h"
#include "pictures/scaling/Resampler.h"

#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
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

    ~Workshop()
    {
        m_pool.clear();
        m_pool.waitForDone();
    }

    void prepare(std::span<const int> sizes)
    {
        const std::scoped_lock lock(m_mutex);
        for (const int size : sizes) {
            if (m_pieces.contains(size))
                continue;
            Piece *piece = m_pieces.emplace(size, std::make_unique<Piece>()).first->second.get();
            // The files are written in the requested order while others are rendered.
            const int priority = size >= smallestEarlySize ? size : -static_cast<int>(m_pieces.size());
            start([this, piece, size] { render(*piece, size); }, priority);
        }
    }

    Result<QByteArray> png(int size)
    {
        prepare({&size, 1});
        std::unique_lock lock(m_mutex);
        const Piece &piece = *m_pieces.at(size);
        m_finished.wait(lock, [&piece] { return piece.file.has_value(); });
        return *piece.file;
    }

private:
    /// Queues the work by priority, the highest first. The pool only gets the number of waiting tasks. The tasks
    /// themselves pass between threads under a lock of the standard library, which the thread sanitizer sees without an
    /// instrumented Qt.
    void start(std::function<void()> work, int priority)
    {
        {
            const std::scoped_lock lock(m_waitingMutex);
            m_waiting.emplace(priority, std::move(work));
        }
        m_pool.start([this] { takeWaiting()(); });
    }

    std::function<void()> takeWaiting()
    {
        const std::scoped_lock lock(m_waitingMutex);
        return std::move(m_waiting.extract(m_waiting.begin()).mapped());
    }

    void render(Piece &piece, int size)
    {
        const int count = pngSectionCount({size, size});
        if (const Outcome taken = takeRows(piece, {size, size}, count); !taken) {
            finish(piece, taken.failure());
            return;
        }
        for (int index = 1; index < count; ++index)
            start([this, &piece, index] { makeSection(piece, index); }, sectionPriority);
        makeSection(piece, 0);
    }

    /// Gives the piece its pixels and room for its sections.
    Outcome takeRows(Piece &piece, QSize size, int sections)
    {
        const bool isOwnSize = size == m_icon.size() && !size.isEmpty();
        const Result<QImage> picture = isOwnSize ? m_icon : resampler().scaledTo(size);
        if (!picture)
            return picture.failure();
        return withinMemory({}, [&]() -> Outcome {
            piece.rows = std::make_unique<ImageRows>(picture.value());
            // A conversion without memory leaves nothing.
            if (piece.rows->size() != size)
                return outOfMemory({});
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
        std::call_once(m_takenApart, [this] { m_resampler = std::make_unique<Resampler>(m_icon, QString()); });
        return *m_resampler;
    }

    QImage m_icon;
    std::once_flag m_takenApart;
    std::unique_ptr<Resampler> m_resampler;
    std::mutex m_mutex;
    std::condition_variable m_finished;
    std::map<int, std::unique_ptr<Piece>> m_pieces;
    std::mutex m_waitingMutex; ///< guards the waiting tasks
    std::multimap<int, std::function<void()>, std::greater<>> m_waiting;
    QThreadPool m_pool; ///< last, so that its threads end before the members that they use
};

RenderedIcons::RenderedIcons(const QImage &icon) : m_workshop(std::make_unique<Workshop>(icon)) {}

RenderedIcons::~RenderedIcons() = default;

void RenderedIcons::prepare(std::span<const int> sizes)
{
    m_workshop->prepare(sizes);
}

Result<QByteArray> RenderedIcons::png(int size)
{
    return m_workshop->png(size);
}

} // namespace lumora
