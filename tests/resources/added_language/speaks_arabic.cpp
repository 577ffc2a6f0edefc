// SPDX-License-Identifier: MIT
// Returns 0 if the texts have a third language, and a system with that language uses it, from right to left.
#include "resources/Resources.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    lumora::loadResources();
    const QStringList languages = lumora::availableLanguages();
    const QLocale taken = lumora::installTexts(application, QLocale(QStringLiteral("ar_EG")));
    const QString close = qtTrId("CLOSE");
    QTextStream(stdout) << languages.join(u' ') << ' ' << taken.bcp47Name() << ' ' << close << '\n';
    const bool complete = languages == QStringList{QStringLiteral("ar"), QStringLiteral("de"), QStringLiteral("en")};
    const bool spoken = taken.language() == QLocale::Arabic && close == QStringLiteral("إغلاق");
    return complete && spoken && taken.textDirection() == Qt::RightToLeft ? 0 : 1;
}
