// SPDX-License-Identifier: MIT
#pragma once

#include "DeviceModel.h"
#include "foundation/Result.h"

#include <QByteArray>

#include <span>
#include <vector>

namespace lumora
{

/// The limits of a device list: bytes of the file, and number of models.
inline constexpr qsizetype largestModelFile = 1024 * 1024;
inline constexpr std::size_t mostModels = 5000;

/// Models read from a file, with the bytes that their texts point into. Only movable, so that the models are never
/// copied without the bytes.
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

/// Reads a device list: comment lines that begin with "#", one header line that names every column, then one line of
/// comma-separated values per model. Checks every field, that sizes are points times scale, that no identifier occurs
/// twice, and that no model's newest version is older than its first. A list with a fault is refused as a whole, with
/// line and column in `detail`; `name` is the failure's subject.
Result<ModelList> readModelList(const QByteArray &bytes, const QString &name);

/// Whether each family's models are together, the newest first. The built-in list must be in this order.
bool areNewestFirst(std::span<const DeviceModel> models);

/// The built-in models.
std::span<const DeviceModel> builtInModels();

} // namespace lumora
