// SPDX-License-Identifier: MIT
#include "ReasonView.h"

#include "SizeChips.h"
#include "tool/style/LabelStyle.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"
#include "words/LongWords.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int textSize = 13;
/// The left edge of a box's text.
constexpr int indent = 30;
constexpr int gap = 6;

} // namespace

ReasonView::ReasonView(QWidget *parent) : QWidget(parent), m_label(new QLabel), m_chips(new SizeChips)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(indent, 0, 0, 0);
    layout->setSpacing(gap);
    layout->addWidget(m_label);
    layout->addWidget(m_chips);
    styleLabel(m_label, latoRegular(textSize), palette::errorDark);
    m_label->setWordWrap(true);
    setReason({}, {});
}

QString ReasonView::reason() const
{
    return m_label->accessibleName();
}

const QStringList &ReasonView::sizes() const
{
    return m_chips->texts();
}

void ReasonView::setReason(const QString &reason, const QStringList &sizes)
{
    m_label->setText(breakingLongWords(reason));
    // The chips are a picture of the list; a screen reader gets the list as one text.
    m_label->setAccessibleName(sizes.isEmpty() ? reason : reason + u' ' + sizes.join(u", "_s));
    m_chips->setTexts(sizes);
    m_chips->setVisible(!sizes.isEmpty());
    setVisible(!reason.isEmpty());
}

} // namespace lumora
