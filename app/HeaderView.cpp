// SPDX-License-Identifier: MIT
#include "HeaderView.h"

#include "tool/style/ColorBand.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/ShellMetrics.h"
#include "tool/style/StyledText.h"
#include "widgets/buttons/ImageButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QGraphicsDropShadowEffect>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int titleTop = 12;
constexpr int titleHeight = 40;
constexpr int buttonSide = 60;
constexpr int infoButtonFromRight = 125;
constexpr int iconButtonFromRight = 65;

ImageButton *headerButton(const QString &image, const QString &name, HeaderView *parent)
{
    auto *button = new ImageButton(parent);
    button->setImage(NamedImage(image));
    button->setAlternateImage(NamedImage(image));
    button->setAccessibleName(name);
    button->setToolTip(name);
    return button;
}

} // namespace

QPointF headerPopupAnchor(const QRectF &buttonFrame, qreal windowHeight, qreal titleBarHeight)
{
    return {buttonFrame.x() + buttonFrame.width() / 2,
            (buttonFrame.y() + buttonFrame.height() / 2) + (windowHeight - titleBarHeight - popupAnchorBelowTitleBar)};
}

HeaderLayout HeaderLayout::forSize(QSize titleBar)
{
    const int width = titleBar.width();
    const int height = titleBar.height();
    const int left = metrics::sidebarWidth;
    return {QRect(0, 0, width, height), QRect(left, titleTop, width - left, titleHeight),
            QRect(left, height - metrics::borderWidth, width - left, metrics::borderWidth),
            QRect(width - infoButtonFromRight, height - buttonSide, buttonSide, buttonSide),
            QRect(width - iconButtonFromRight, height - buttonSide, buttonSide, buttonSide)};
}

HeaderView::HeaderView(QWidget *parent)
    : QWidget(parent), m_band(new ColorBand(this)), m_title(new QLabel(this)), m_topBorder(new ColorBand(this)),
      m_infoButton(headerButton(u"icon_settings"_s, qtTrId("ACCESSIBLE_HELP"), this)),
      m_iconButton(headerButton(u"header_icon"_s, qtTrId("ACCESSIBLE_ABOUT"), this))
{
    m_band->setBackgroundColor(palette::icons);
    m_topBorder->setBackgroundColor(palette::icons);
    styleLabel(m_title, latoRegular(20), palette::headerText);
    m_title->setTextFormat(Qt::RichText);
    m_title->setAlignment(Qt::AlignCenter);
    auto *shadow = new QGraphicsDropShadowEffect(m_title);
    shadow->setColor(palette::headerShadow);
    shadow->setOffset(0, 1);
    shadow->setBlurRadius(0);
    m_title->setGraphicsEffect(shadow);
    // The title bar below drags the window, except at the buttons.
    for (QWidget *passive : std::initializer_list<QWidget *>{m_band, m_title, m_topBorder})
        passive->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void HeaderView::setTitle(const StyledText &title)
{
    m_title->setText(title.toHtml());
    m_title->setAccessibleName(title.text());
}

void HeaderView::resizeEvent(QResizeEvent *)
{
    const HeaderLayout layout = HeaderLayout::forSize(size());
    m_band->setGeometry(layout.band);
    m_title->setGeometry(layout.title);
    m_topBorder->setGeometry(layout.topBorder);
    m_infoButton->setGeometry(layout.infoButton);
    m_iconButton->setGeometry(layout.iconButton);
}

} // namespace lumora
