// SPDX-License-Identifier: MIT
#pragma once

#include "SealRows.h"

#include <QByteArrayView>
#include <QList>
#include <QXmlStreamReader>

#include <optional>

namespace lumora
{

/// Reads the XML form of a seal piece by piece, in memory that does not grow with it.
class SealXml
{
public:
    SealXml(SealTaker &taker, qsizetype mostRows) : m_taker(taker), m_mostRows(mostRows) {}

    /// The next bytes. Returns how the reading ended; empty while it goes on.
    std::optional<SealEnd> take(QByteArrayView bytes);

private:
    enum class Level { Top, Files, Rules, Row, Other };

    std::optional<SealEnd> handle(QXmlStreamReader::TokenType token);
    std::optional<SealEnd> begin(QStringView name);
    std::optional<SealEnd> end(QStringView name);
    void open(QStringView name);
    std::optional<SealEnd> close();
    std::optional<SealEnd> value(QStringView kind);
    void field(QStringView kind);
    std::optional<SealEnd> row();

    SealTaker &m_taker;
    qsizetype m_mostRows;
    QXmlStreamReader m_xml;
    qsizetype m_sinceToken = 0; ///< bytes
    QList<Level> m_levels;
    int m_depth = 0;
    QString m_text;
    bool m_readsText = false;
    SealList m_list = SealList::Old;
    QString m_topKey;
    QString m_rowKey;
    QString m_fieldKey;
    SealedFile m_file;
    SealRule m_rule;
    qsizetype m_rows = 0;
};

} // namespace lumora
