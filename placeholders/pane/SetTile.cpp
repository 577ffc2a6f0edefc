// SPDX-License-Identifier: MIT
#include "SetTile.h"

#include "tool/style/LabelStyle.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int padding = 8;
constexpr int miniatureHeight = 64;
constexpr int nameSize = 13;
constexpr int countSize = 12;
constexpr qreal cornerRadius = 8;
constexpr qreal outlineWidth = 1;
constexpr qreal tickedWidth = 3;
constexpr int tileWidth = 148;

/// Some of the sizes, spread over all, from the first to the last.
std::vector<QSize> examples(const std::vector<ListedSize> &sizes)
{
    constexpr std::size_t most = 4;
    const std::size_t count = std::min(sizes.size(), most);
    std::vector<QSize> some;
    for (std::size_t index = 0; index < count; ++index)
        some.push_back(sizes[count == 1 ? 0 : index * (sizes.size() - 1) / (count - 1)].pixels());
    return some;
}

/// The pictures side by side on one line, as large as the area allows.
std::vector<QRectF> placesIn(const QRectF &area, const std::vector<QSize> &pictures)
{
    constexpr qreal between = 6;
    qreal width = 0;
    qreal height = 1;
    for (const QSize &picture : pictures) {
        width += picture.width();
        height = std::max<qreal>(height, picture.height());
    }
    const qreal room = area.width() - between * static_cast<qreal>(pictures.size() - 1);
    const qreal scale = std::min(room / width, area.height() / height);
    qreal left = area.center().x() - (width * scale + area.width() - room) / 2;
    std::vector<QRectF> places;
    for (const QSize &picture : pictures) {
        const QSizeF size = QSizeF(picture) * scale;
        places.emplace_back(QPointF(left, area.bottom() - size.height()), size);
        left += size.width() + between;
    }
    return places;
}

} // namespace

SetTile::SetTile(const QString &name, const std::vector<ListedSize> &sizes, QWidget *parent)
    : QAbstractButton(parent), m_sizes(sizes)
{
    const QString count = sizes.size() == 1
                              ? qtTrId("PLACEHOLDER_ONE_PICTURE")
                              : qtTrId("PLACEHOLDER_PICTURES").replace("[COUNT]"_L1, QString::number(sizes.size()));
    setText(name);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleDescription(count);
    QStringList texts;
    for (const ListedSize &size : sizes)
        texts << sizeText(size);
    setToolTip(name + u": "_s + texts.join(u", "_s));

    auto *nameLabel = new QLabel(name, this);
    styleLabel(nameLabel, latoBold(nameSize), palette::chromeText);
    auto *countLabel = new QLabel(count, this);
    styleLabel(countLabel, latoRegular(countSize), palette::chromeText);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(2);
    column->addSpacing(miniatureHeight + padding);
    column->addStretch(1);
    for (QLabel *label : {nameLabel, countLabel}) {
        label->setAlignment(Qt::AlignCenter);
        column->addWidget(label);
    }
    // The tile itself takes the pointer, and speaks for its parts.
    for (QWidget *part : std::initializer_list<QWidget *>{nameLabel, countLabel})
        part->setAttribute(Qt::WA_TransparentForMouseEvents);
}

QSize SetTile::sizeHint() const
{
    return {tileWidth, layout()->sizeHint().height()};
}

void SetTile::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal width = isChecked() ? tickedWidth : outlineWidth;
    painter.setPen(QPen(isChecked() ? palette::placeholdersBorder : palette::panelOutline, width));
    painter.setBrush(underMouse() ? palette::panel : palette::window);
    const qreal inset = tickedWidth;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
    const QRectF area(padding * 2, padding * 2, rect().width() - 4 * padding, miniatureHeight - padding);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::separator);
    for (const QRectF &place : placesIn(area, examples(m_sizes)))
        painter.drawRoundedRect(place, 1, 1);
    if (hasFocus()) {
        painter.setPen(QPen(palette::focusRing, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    }
}

} // namespace lumora
