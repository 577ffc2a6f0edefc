// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QStringList>

class QCoreApplication;

namespace lumora
{

/// Makes the compiled-in fonts (:/fonts), images (:/images) and texts (:/strings) available. Further calls do nothing.
void loadResources();

/// The languages that have a text table, as locale names ("de", "en").
QStringList availableLanguages();

/// Whether the toolkit's own texts are loaded in the user's language, too. They are read from disk; a command has no
/// dialogs and does not need them.
enum class ToolkitTexts { Install, LeaveOut };

/// Installs the text table of the locale's first language that has one, English if none has. Then qtTrId("KEY") returns
/// the text of KEY, or the key itself if it has no text. Also installs the toolkit's own texts in that language if the
/// system has them. Returns the language. The application owns the translators.
QLocale installTexts(QCoreApplication &application, const QLocale &locale,
                     ToolkitTexts toolkit = ToolkitTexts::Install);

} // namespace lumora
