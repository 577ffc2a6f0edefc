// SPDX-License-Identifier: MIT
#include "IconInput.h"

#include "cli/arguments/Declaration.h"
#include "cli/console/CommandText.h"
#include "foundation/WholeFile.h"
#include "icons/IconSource.h"
#include "pictures/PictureReader.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumora
{

void IconArguments::declareOn(Declaration &declaration, const char *sourceKey, const QStringList &otherPlaces,
                              const QStringList &otherSources)
{
    declaration.operand("SOURCE", &source, sourceKey);
    declaration.flag("--example", &example, "CLI_EXAMPLE");
    declaration.exactlyOne(QStringList{u"SOURCE"_s, u"--example"_s} + otherSources);
    place.declareOn(declaration, "CLI_ICONS_TO", otherPlaces);
}

Result<QImage> iconSource(const IconArguments &arguments)
{
    if (arguments.example) {
        const Result<QImage> picture = builtInIcon();
        if (!picture)
            return Failure{picture.failure().code, u"--example"_s, picture.failure().detail};
        return picture;
    }
    if (arguments.source != u"-")
        return readIconSource(arguments.source);
    const QString name = commandText("CLI_STANDARD_INPUT");
    const Result<QByteArray> bytes = readWholeDescriptor(STDIN_FILENO, name, largestPictureFile);
    if (!bytes)
        return bytes.failure();
    return readIconSource(bytes.value(), name);
}

} // namespace lumora
