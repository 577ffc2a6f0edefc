// SPDX-License-Identifier: MIT
#pragma once

#include "PictureRecipe.h"
#include "foundation/Result.h"

#include <QByteArray>
#include <QImage>

#include <memory>
#include <vector>

namespace lumora
{

class Motifs;

/// Makes the pictures of all sets: each motif is drawn once in each size, each recipe encoded once, on all cores.
class PictureWorkshop
{
public:
    /// The motifs must outlive it.
    explicit PictureWorkshop(const Motifs &motifs);
    /// Cancels pictures that are not begun; waits for those that are.
    ~PictureWorkshop();
    PictureWorkshop(const PictureWorkshop &) = delete;
    PictureWorkshop &operator=(const PictureWorkshop &) = delete;

    /// Starts to make pictures that will be needed, the largest first. Called once.
    void prepare(std::vector<PictureRecipe> recipes);

    /// The picture as a PNG file; waits until it is made. Fails with `TooLarge` and without a subject if memory runs
    /// out.
    Result<QByteArray> file(const PictureRecipe &recipe);

    /// The picture's pixels, premultiplied RGBA. Fails as `file` does.
    Result<QImage> pixels(const PictureRecipe &recipe);

    /// The number of times that a motif has been drawn at any size.
    int drawings() const;

private:
    class Private;
    std::unique_ptr<Private> m_state;
};

} // namespace lumora
