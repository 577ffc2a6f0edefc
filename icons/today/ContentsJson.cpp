// SPDX-License-Identifier: MIT
#include "ContentsJson.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace lumora
{

QByteArray contentsJson(QJsonObject content)
{
    content[u"info"_s] = QJsonObject{{u"author"_s, u"xcode"_s}, {u"version"_s, 1}};
    return QJsonDocument(content).toJson(QJsonDocument::Indented);
}

QString slotSize(int tenths)
{
    QString points = QString::number(tenths / 10);
    if (tenths % 10 != 0)
        points += u'.' + QString::number(tenths % 10);
    return points + u'x' + points;
}

} // namespace lumora
