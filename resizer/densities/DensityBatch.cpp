// SPDX-License-Identifier: MIT
#include "DensityBatch.h"

#include "foundation/MemoryLimit.h"
#include "foundation/ThreadGroup.h"
#include "foundation/WholeFile.h"
#include "pictures/PictureReader.h"
#include "pictures/png/PngEncoder.h"
#include "pictures/scaling/Resampler.h"
#include "pictures/svg/SvgDrawing.h"
#include "pictures/svg/SvgInspection.h"
#include "pictures/webp/WebPEncoder.h"
#include "resizer/MemoryBudget.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <condition_variable>
#include <map>
#include <mutex>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The memory that all pictures in work may take together.
constexpr qint64 memoryForPictures = 768LL * 1024 * 1024;

/// The sources a worker that may be taken before the oldest of them is reported.
constexpr std::size_t sourcesAhead = 4;

/// The decoded picture, its color planes and their halves (twice as deep for a translucent picture), and the largest
/// result with its file.
qint64 scalingMemory(QSize pixels)
{
    constexpr qint64 bytesPerPixel = 4 + 14 + 6;
    return bytesPerPixel * pixels.width() * pixels.height();
}

Result<QByteArray> encoded(const QImage &picture, const PlannedTarget &planned, const DensityBatchOptions &options)
{
    if (planned.format == ScaledFormat::WebP)
        return encodeWebP(picture, {options.webpQuality}, planned.target);
    return encodePngQuickly(picture, planned.target);
}

Outcome write(const QString &path, const QByteArray &bytes, ExistingFiles existing)
{
    const QFileInfo file(path);
    const bool taken = file.exists() || file.isSymLink();
    if (taken && existing == ExistingFiles::Keep)
        return Failure{FailureCode::CannotWrite, path, "DETAIL_CAME_MEANWHILE"};
    if (!QDir().mkpath(file.path()))
        return Failure{FailureCode::CannotCreateFolder, file.path(), {}};
    return writeWholeFile(path, bytes);
}

/// One source in work, read once for all of its sizes.
class SourceScaling
{
public:
    SourceScaling(const PlannedSource &source, const DensityBatchOptions &options)
        : m_source(source), m_options(options)
    {
    }

    std::vector<ScaledFile> run(MemoryBudget &budget) const
    {
        std::vector<ScaledFile> files;
        for (const PlannedTarget &picture : m_source.pictures) {
            if (picture.written)
                files.push_back({m_source.source, picture.target, picture.size, picture.rounded, 0, Done{}});
        }
        if (files.empty())
            return files;
        const MemoryBudget::Share share(budget, scalingMemory(largestSize(files)));
        const Outcome scaled = withinMemory(m_source.source, [&] { return scaleInto(files); });
        if (!scaled)
            failAll(files, scaled.failure());
        return files;
    }

private:
    Outcome scaleInto(std::vector<ScaledFile> &files) const
    {
        const bool isDrawing = m_source.kind == SourceKind::Drawings;
        const qint64 limit = isDrawing ? largestSvgFile : largestPictureFile;
        const ReadSource read = [limit, file = m_options.read](const QString &path) { return file(path, limit); };
        const auto answer = readUnlessStopped(read, m_source.source, m_options.stop);
        if (!answer)
            return Failure{FailureCode::Stopped, m_source.source, {}};
        const Result<QByteArray> &content = *answer;
        if (isDrawing && content)
            return drawInto(files, content.value());
        const Result<QImage> picture =
            content ? readStraightPicture(content.value(), m_source.source) : content.failure();
        if (!picture)
            return picture.failure();
        const QSize size = picture.value().size();
        // The orientation may swap the sides that the header gives; any other size means that the file has changed
        // since.
        if (size != m_source.size && size != m_source.size.transposed())
            return Failure{FailureCode::WrongSize, m_source.source, "DETAIL_CHANGED_SINCE"};
        const Resampler resampler(picture.value(), m_source.source);
        writeEach(files, size, [&resampler](QSize pixels) { return resampler.scaledTo(pixels); });
        return Done{};
    }

    Outcome drawInto(std::vector<ScaledFile> &files, const QByteArray &content) const
    {
        const auto drawing = SvgDrawing::read(content, m_source.source, SvgShape::Any);
        if (!drawing)
            return drawing.failure();
        if (drawing.value()->size() != m_source.size)
            return Failure{FailureCode::WrongSize, m_source.source, "DETAIL_CHANGED_SINCE"};
        writeEach(files, m_source.size,
                  [&drawing](QSize pixels) { return Result<QImage>(drawing.value()->at(pixels)); });
        return Done{};
    }

    template <typename InSize> void writeEach(std::vector<ScaledFile> &files, QSize size, const InSize &inSize) const
    {
        auto file = files.begin();
        for (const PlannedTarget &planned : m_source.pictures) {
            if (!planned.written)
                continue;
            const ScaledSize scaled = scaledSize(size, m_source.density, planned.density);
            file->size = scaled.size;
            const Result<QImage> result = inSize(scaled.size);
            const Result<QByteArray> bytes =
                result ? encoded(result.value(), planned, m_options) : Result<QByteArray>(result.failure());
            file->outcome = bytes ? write(planned.target, bytes.value(), m_options.existing) : bytes.failure();
            file->bytes = bytes && file->outcome ? bytes.value().size() : 0;
            ++file;
        }
    }

    /// A drawing is smaller than its pictures.
    QSize largestSize(const std::vector<ScaledFile> &files) const
    {
        QSize largest = m_source.size;
        for (const ScaledFile &file : files)
            largest = largest.expandedTo(file.size);
        return largest;
    }

    static void failAll(std::vector<ScaledFile> &files, const Failure &failure)
    {
        // Files that are already written stay.
        for (ScaledFile &file : files) {
            if (file.bytes == 0)
                file.outcome = failure;
        }
    }

    const PlannedSource &m_source;
    const DensityBatchOptions &m_options;
};

/// Workers scale the sources; the calling thread reports them in order. The workers keep close to the reports, so that
/// a stop leaves the rest undone however fast they are.
class Batch
{
public:
    Batch(const DensityPlan &plan, const DensityBatchOptions &options) : m_plan(plan), m_options(options) {}

    void run(const SourceScaled &scaled)
    {
        const auto workers = std::min(static_cast<std::size_t>(std::max(QThread::idealThreadCount(), 1)), count());
        m_lead = sourcesAhead * workers;
        ThreadGroup threads;
        threads.start(workers, [this] {
            while (workOnNext()) {
            }
        });
        for (std::size_t index = 0; index < count(); ++index) {
            if (threads.isEmpty())
                workOnNext();
            if (!scaled(static_cast<qsizetype>(index), take(index)))
                break;
        }
        beginNoMore();
        threads.join();
        for (const auto &[index, files] : m_done)
            scaled(static_cast<qsizetype>(index), files);
    }

private:
    std::size_t count() const { return m_plan.sources.size(); }

    void beginNoMore()
    {
        const std::lock_guard lock(m_mutex);
        m_next = count();
        m_room.notify_all();
    }

    /// Scales the next source; returns whether there was one to scale.
    bool workOnNext()
    {
        std::unique_lock lock(m_mutex);
        m_room.wait(lock, [this] { return m_next >= count() || m_next < m_reported + m_lead; });
        if (m_next >= count())
            return false;
        const std::size_t index = m_next++;
        lock.unlock();
        std::vector<ScaledFile> files = SourceScaling(m_plan.sources[index], m_options).run(m_budget);
        lock.lock();
        m_done.emplace(index, std::move(files));
        m_finished.notify_one();
        return true;
    }

    std::vector<ScaledFile> take(std::size_t index)
    {
        std::unique_lock lock(m_mutex);
        m_finished.wait(lock, [this, index] { return m_done.contains(index); });
        m_reported = index + 1;
        m_room.notify_all();
        return std::move(m_done.extract(index).mapped());
    }

    const DensityPlan &m_plan;
    const DensityBatchOptions &m_options;
    MemoryBudget m_budget{memoryForPictures};
    std::size_t m_lead = 0; ///< the most sources that the workers are ahead of the reports

    std::mutex m_mutex; ///< guards everything below
    std::condition_variable m_finished;
    std::condition_variable m_room;
    std::size_t m_reported = 0;
    std::map<std::size_t, std::vector<ScaledFile>> m_done;
    std::size_t m_next = 0;
};

} // namespace

void scaleDensities(const DensityPlan &plan, const DensityBatchOptions &options, const SourceScaled &scaled)
{
    if (!plan.sources.empty())
        Batch(plan, options).run(scaled);
}

} // namespace lumora
