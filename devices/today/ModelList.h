// SPDX-License-Identifier: MIT
#pragma once

#include "DeviceModel.h"
#include "foundation/Result.h"

#include <QByteArray>

#include <span>
#include <vector>

namespace lumora
{

/// The largest file, and the most models, that a device list may have.
inline constexpr qsizetype largestModelFile = 1024 * 1024;
inline constexpr std::size_t mostModels = 5000;

/// Models read from a file, with the bytes that their texts point into. Moves, so that nobody copies the one without
/// the other.
class ModelList
{
public:
    ModelList(QByteArray bytes, std::vector<DeviceModel> models)
        : m_bytes(std::move(bytes)), m_models(std::move(models))
    {
    }
    ModelList(const ModelList &) = delete;
    ModelList &operator=(const ModelList &) = delete;
    ModelList(ModelList &&) = default;
    ModelList &operator=(ModelList &&) = default;

    std::span<const DeviceModel> models() const { return m_models; }

private:
    QByteArray m_bytes;
    std::vector<DeviceModel> m_models;
};

/// Reads a device list: comma-separated values after lines of comment that begin with "#", one header line that names
/// every column, one line a model. Every field is checked, and that sizes are points times scale, no identifier stands
/// twice, no model ends before it began. Refused as a whole, with line and column in `detail`; `name` is what the
/// failure calls the file.
Result<ModelList> readModelList(const QByteArray &bytes, const QString &name);

/// Whether each family's models stand together, the newest first: what the list that is built in has to keep.
bool areNewestFirst(std::span<const DeviceModel> models);

/// The models that are built in.
std::span<const DeviceModel> builtInModels();

} // namespace lumora
