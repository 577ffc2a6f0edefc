// SPDX-License-Identifier: MIT
#include "PictureWorkshop.h"

#include "Motifs.h"
#include "foundation/LazyValue.h"
#include "foundation/MemoryLimit.h"
#include "foundation/ThreadGroup.h"
#include "pictures/pixels/PictureMemory.h"
#include "pictures/png/PngEncoder.h"

#include <algorithm>
#include <atomic>
#include <map>
#include <mutex>
#include <thread>
#include <tuple>

namespace lumora
{

namespace
{

/// From this many pixels on a picture takes so long to encode that several threads share it, or that a twentieth of its
/// bytes is not worth the time.
constexpr qint64 largePicture = 1 << 20;

/// Values that are made once. The first thread that asks makes the value; the others wait for it.
template <typename Key, typename Value> class MadeOnce
{
public:
    template <typename Make> Value get(const Key &key, const Make &make) { return entryOf(key).get(make); }

private:
    LazyValue<Value> &entryOf(const Key &key)
    {
        const std::scoped_lock lock(m_mutex);
        return m_entries[key];
    }

    std::mutex m_mutex;
    std::map<Key, LazyValue<Value>> m_entries;
};

} // namespace

class PictureWorkshop::Private
{
public:
    explicit Private(const Motifs &pictured) : motifs(pictured) {}

    ~Private()
    {
        stopping = true;
        threads.join();
    }

    QImage drawing(Motif motif, int layer, int edge)
    {
        return drawn.get({motif, layer, edge}, [this, motif, layer, edge] {
            ++drawings;
            return motifs.at(motif, layer, edge);
        });
    }

    QImage pixels(const PictureRecipe &recipe)
    {
        const QImage motif = drawing(recipe.motif, recipe.layer, recipe.edge);
        const QSize size(recipe.width, recipe.height);
        if (motif.isNull() || (motif.size() == size && recipe.ground == 0))
            return motif;
        QImage picture = newPicture(size, QImage::Format_RGBA8888_Premultiplied);
        picture.fill(recipe.ground == 0 ? QColor(Qt::transparent) : QColor::fromRgb(recipe.ground));
        drawInMiddle(picture, motif);
        return picture;
    }

    Result<QByteArray> file(const PictureRecipe &recipe)
    {
        return withinMemory(QString(), [&] { return files.get(recipe, [&] { return encodedOrFailed(recipe); }); });
    }

    /// A picture that found no memory is not tried again for every file that shows it.
    Result<QByteArray> encodedOrFailed(const PictureRecipe &recipe)
    {
        return withinMemory(QString(), [&] { return encoded(recipe); });
    }

    Result<QByteArray> encoded(const PictureRecipe &recipe)
    {
        const QImage picture = pixels(recipe);
        if (picture.isNull())
            return outOfMemory({});
        const bool large = qint64{picture.width()} * picture.height() >= largePicture;
        if (recipe.form == PictureForm::Opaque) {
            const int helpers = large ? std::max(static_cast<int>(std::thread::hardware_concurrency()) / 2, 1) : 1;
            return encodeOpaquePng(picture, helpers, {});
        }
        return large ? encodePngQuickly(picture, {}) : encodePng(picture, {});
    }

    const Motifs &motifs;
    std::atomic<int> drawings = 0;
    MadeOnce<std::tuple<Motif, int, int>, QImage> drawn;
    MadeOnce<PictureRecipe, Result<QByteArray>> files;
    std::vector<PictureRecipe> prepared;
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> stopping = false;
    ThreadGroup threads;
};

PictureWorkshop::PictureWorkshop(const Motifs &motifs) : m_state(std::make_unique<Private>(motifs)) {}

PictureWorkshop::~PictureWorkshop() = default;

void PictureWorkshop::prepare(std::vector<PictureRecipe> recipes)
{
    // The longest work starts first; at the end it would leave the other cores idle.
    std::stable_sort(recipes.begin(), recipes.end(), [](const PictureRecipe &one, const PictureRecipe &other) {
        return qint64{one.width} * one.height > qint64{other.width} * other.height;
    });
    m_state->prepared = std::move(recipes);
    // A thread that the system refuses costs time only: `file` makes what is not made yet.
    m_state->threads.start(std::max(std::thread::hardware_concurrency(), 1U), [state = m_state.get()] {
        for (std::size_t index = state->next++; index < state->prepared.size() && !state->stopping;
             index = state->next++)
            (void)state->file(state->prepared[index]);
    });
}

Result<QByteArray> PictureWorkshop::file(const PictureRecipe &recipe)
{
    return m_state->file(recipe);
}

Result<QImage> PictureWorkshop::pixels(const PictureRecipe &recipe)
{
    return withinMemory(QString(), [&]() -> Result<QImage> {
        QImage picture = m_state->pixels(recipe);
        return picture.isNull() ? Result<QImage>(outOfMemory({})) : std::move(picture);
    });
}

int PictureWorkshop::drawings() const
{
    return m_state->drawings;
}

} // namespace lumora
