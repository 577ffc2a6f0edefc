// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QStringList>

class QCoreApplication;

namespace lumora
{

/// Makes the compiled-in fonts (:/fonts), images (:/images) and texts (:/strings) reachable. Harmless when called
/// again.
void loadResources();

/// The languages that have a text table, as locale names ("de", "en").
QStringList availableLanguages();

/// Whether what the toolkit says by itself is wanted in the user's language, too. It is read from the disk; a command,
/// which has no dialogs, does without.
enum class ToolkitTexts { Install, LeaveOut };

/// Installs the text table of the locale's first language that has one, English where none has, so that qtTrId("KEY")
/// answers the text of KEY and a key without a text answers itself; and the toolkit's own texts in that language where
/// the system has them. Answers the language. The application owns the translators.
QLocale installTexts(QCoreApplication &application, const QLocale &locale,
                     ToolkitTexts toolkit = ToolkitTexts::Install);

} // namespace lumora
