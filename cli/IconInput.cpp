// SPDX-License-Identifier: MIT
#include "IconInput.h"

#include "foundation/WholeFile.h"
#include "icons/IconSource.h"
#include "pictures/PictureReader.h"

#include <QFile>

#include <unistd.h>

namespace lumora
{

void IconArguments::declareOn(CLI::App &subcommand)
{
    subcommand.add_option(
        "source", source,
        "Picture of 1024 x 1024 pixels (PNG, JPEG, TIFF, WebP, BMP, GIF, ICNS), - for standard input; "
        "without one the built-in picture is used");
    subcommand.add_option("--to", destination, "Existing folder that gets a fresh folder \"icons\"")
        ->type_name("DIR")
        ->required();
    subcommand.add_flag("--json", json, "Print folder and files as one JSON object");
}

Result<QImage> iconSource(const IconArguments &arguments)
{
    if (arguments.source.empty()) {
        const QImage picture = builtInIcon();
        if (picture.isNull())
            return Failure{FailureCode::NotFound, QStringLiteral("the built-in picture"), {}};
        return picture;
    }
    if (arguments.source != "-")
        return readIconSource(QFile::decodeName(arguments.source.c_str()));
    const QString name = QStringLiteral("standard input");
    const Result<QByteArray> bytes = readWholeDescriptor(STDIN_FILENO, name, largestPictureFile);
    if (!bytes)
        return bytes.failure();
    return readIconSource(bytes.value(), name);
}

} // namespace lumora
