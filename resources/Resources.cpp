// SPDX-License-Identifier: MIT
#include "Resources.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QTranslator>

#include <memory>

// The resource initialisers live outside any namespace; Q_INIT_RESOURCE declares them where it stands.
static void initialiseResources()
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

bool installLanguage(QCoreApplication &application, const QString &language)
{
    auto translator = std::make_unique<QTranslator>(&application);
    if (!translator->load(QStringLiteral(":/strings/") + tablePrefix + language + QStringLiteral(".qm")))
        return false;
    return QCoreApplication::installTranslator(translator.release());
}

} // namespace

void loadResources()
{
    initialiseResources();
}

QStringList availableLanguages()
{
    QStringList languages;
    const QStringList tables =
        QDir(QStringLiteral(":/strings")).entryList({tablePrefix + QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (const QString &table : tables)
        languages << table.mid(tablePrefix.size()).chopped(3);
    return languages;
}

void installTexts(QCoreApplication &application, const QLocale &locale)
{
    const QStringList available = availableLanguages();
    const QStringList wanted = locale.uiLanguages();
    for (const QString &tag : wanted) {
        // "de-AT" is served by a table of its own where there is one, else by "de".
        QString name = tag;
        name.replace(u'-', u'_');
        for (; !name.isEmpty(); name = name.contains(u'_') ? name.section(u'_', 0, -2) : QString()) {
            if (available.contains(name) && installLanguage(application, name))
                return;
        }
    }
    installLanguage(application, QStringLiteral("en"));
}

} // namespace lumora
