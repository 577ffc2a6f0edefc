// SPDX-License-Identifier: MIT
// usage: generate_device_models models.csv models.inc   The device list as rows of a constexpr table. A list that the
// reader refuses, or one out of order, stops the build.
#include "ModelList.h"
#include "foundation/WholeFile.h"

#include <cstdio>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QString quoted(std::string_view text)
{
    return u'"' + QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())) + u'"';
}

QString row(const OsVersion &version)
{
    const auto &[major, minor, patch] = version.numbers;
    return u"{{%1, %2, %3}, %4}"_s.arg(major).arg(minor).arg(patch).arg(version.count);
}

QString row(Having value)
{
    return u"Having::"_s + (value == Having::Unknown ? u"Unknown"_s : value == Having::Yes ? u"Yes"_s : u"No"_s);
}

QString row(Biometry value)
{
    const std::array names = {u"Unknown"_s, u"None"_s, u"TouchId"_s, u"FaceId"_s};
    return u"Biometry::"_s + names[static_cast<std::size_t>(value)];
}

QString row(bool value)
{
    return value ? u"true"_s : u"false"_s;
}

QString row(const DeviceModel &model)
{
    QStringList fields;
    for (const std::string_view text : {model.identifier, model.name, model.released, model.chip, model.arch})
        fields << quoted(text);
    fields << row(model.minOs) << row(model.maxOs);
    for (const int number : {model.widthPixels, model.heightPixels, model.scale, model.renderWidth, model.renderHeight,
                             model.widthPoints, model.heightPoints})
        fields << QString::number(number);
    fields << QString::number(model.diagonalInches, 'f', 2) << QString::number(model.pixelsPerInch);
    fields << row(model.biometry) << row(model.dynamicIsland) << row(model.lidar) << row(model.usbC)
           << row(model.cellular5G);
    for (const bool flag : {model.arm64, model.metal, model.arkit, model.minimumPerformanceA12, model.gamingTier})
        fields << row(flag);
    return u'{' + fields.join(u", "_s) + u"},\n"_s;
}

int refuse(const QString &what)
{
    std::fprintf(stderr, "%s\n", qPrintable(what));
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return refuse(u"usage: generate_device_models models.csv models.inc"_s);
    const QString source = QString::fromLocal8Bit(argv[1]);
    const Result<QByteArray> bytes = readWholeFile(source, largestModelFile);
    if (!bytes)
        return refuse(source + u": cannot be read"_s);
    const Result<ModelList> list = readModelList(bytes.value(), source);
    if (!list)
        return refuse(source + u": "_s + list.failure().detail.words());
    if (!areNewestFirst(list.value().models()))
        return refuse(source + u": a family's models are not together, or an older one stands before a newer"_s);
    QString rows;
    for (const DeviceModel &model : list.value().models())
        rows += row(model);
    if (!writeWholeFile(QString::fromLocal8Bit(argv[2]), rows.toUtf8()))
        return refuse(QString::fromLocal8Bit(argv[2]) + u": cannot be written"_s);
    return 0;
}
