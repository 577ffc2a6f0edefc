// SPDX-License-Identifier: MIT
#include "Resources.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

// The resource initializers live outside any namespace; Q_INIT_RESOURCE declares them where it is used.
static void initializeResources()
{
    Q_INIT_RESOURCE(lumora_fonts);
    Q_INIT_RESOURCE(images);
    Q_INIT_RESOURCE(lumora_strings);
}

namespace lumora
{

namespace
{

const QString tablePrefix = QStringLiteral("lumora_");
const QString tableSuffix = QStringLiteral(".qm");

bool installTable(QCoreApplication &application, const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>(&application);
    return translator->load(name, folder) && QCoreApplication::installTranslator(translator.release());
}

/// The toolkit's own texts, in its dialogs and in the menu of a text field, come with the system. Where they are
/// missing, these texts are in English.
bool installLanguage(QCoreApplication &application, const QString &language, ToolkitTexts toolkit)
{
    if (toolkit == ToolkitTexts::Install)
        installTable(application, QStringLiteral("qtbase_") + language,
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    return installTable(application, tablePrefix + language, QStringLiteral(":/strings"));
}

} // namespace

void loadResources()
{
    initializeResources();
}

QStringList availableLanguages()
{
    QStringList languages;
    // No name filter: it compiles a regular expression, which takes longer than the rest of this function.
    const QStringList tables = QDir(QStringLiteral(":/strings")).entryList(QDir::Files, QDir::Name);
    for (const QString &table : tables) {
        if (table.startsWith(tablePrefix) && table.endsWith(tableSuffix))
            languages << table.mid(tablePrefix.size()).chopped(tableSuffix.size());
    }
    return languages;
}

QLocale installTexts(QCoreApplication &application, const QLocale &locale, ToolkitTexts toolkit)
{
    const QStringList available = availableLanguages();
    const QStringList wanted = locale.uiLanguages();
    for (const QString &tag : wanted) {
        // "de-AT" uses its own table if there is one, else that of "de".
        QString name = tag;
        name.replace(u'-', u'_');
        for (; !name.isEmpty(); name = name.contains(u'_') ? name.section(u'_', 0, -2) : QString()) {
            if (available.contains(name) && installLanguage(application, name, toolkit))
                return QLocale(name);
        }
    }
    installLanguage(application, QStringLiteral("en"), toolkit);
    return QLocale(QLocale::English);
}

} // namespace lumora
