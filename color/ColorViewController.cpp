// SPDX-License-Identifier: MIT
#include "ColorViewController.h"

#include "ColorField.h"
#include "PastedColor.h"
#include "color/WellColor.h"
#include "color/pane/TodayColorPane.h"
#include "color/pane/TodayColors.h"
#include "color/picker/ColorWell.h"
#include "color/pipette/Pipette.h"
#include "tool/DropHighlight.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "ui_ColorViewController.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QDropEvent>
#include <QMimeData>

#include <utility>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The color at start-up: that of the chrome text, with the exact components from which its code is truncated.
constexpr RgbaColor firstColor{0.204F, 0.286F, 0.369F, 1.0F};
constexpr int fieldFontSize = 35;
constexpr int labelFontSize = 13;

constexpr auto tagName = "tag";

/// Accepts a color, or a text that is a color code. A file is neither, although its name arrives as a text, too.
bool carriesColor(const QMimeData &content)
{
    return content.hasColor() || (!content.hasUrls() && !content.hasImage() && pastedColor(content.text()));
}

} // namespace

ColorViewController::ColorViewController(const Services &services, QObject *parent)
    : ToolViewController(services, parent), m_ui(std::make_unique<Ui::ColorViewController>())
{
    m_ui->setupUi(view());
    setUpField();
    setUpPipette();
    setUpRows();
    m_ui->dropView->setDelegate(this);
    m_ui->dropView->setTakesColors(true);
    new DropHighlight(m_ui->dropView, palette::color, m_ui->dropView);
    m_ui->dropView->installEventFilter(this);
    m_resetTimer.setSingleShot(true);
    m_resetTimer.setInterval(copiedDuration);
    connect(&m_resetTimer, &QTimer::timeout, this, &ColorViewController::resetButtons);
    setUpToday();
    setTheColor(firstColor);
    m_ui->colorTextField->showText(stringFromColor(firstColor));
    resetButtons();
    createPopup();
}

ColorViewController::~ColorViewController() = default;

void ColorViewController::setUpField()
{
    QLineEdit *field = m_ui->colorTextField;
    field->setFont(latoBold(fieldFontSize));
    field->setAccessibleName(qtTrId("ACCESSIBLE_COLOR_FIELD"));
    // The pane handles a dropped text. The field would accept a dropped file's name as typed text.
    field->setAcceptDrops(false);
    connect(m_ui->colorTextField, &HexField::typed, this, [this] { controlTextDidChange(m_ui->colorTextField); });
    connect(field, &QLineEdit::textChanged, this, &ColorViewController::showCodes);
    connect(m_ui->colorTextField, &HexField::digitsCompleted, this,
            [this](const QString &digits) { static_cast<void>(colorWithHexString(digits)); });
    connect(m_ui->colorTextField, &HexField::colorPasted, this, &ColorViewController::setTheColor);
    connect(m_ui->colorTextField, &HexField::pasteWanted, this, &ColorViewController::pasteIntoField);
    m_ui->colorWell->setAccessibleName(qtTrId("ACCESSIBLE_COLOR_WELL"));
    connect(m_ui->colorWell, &ColorWell::colorPicked, this, &ColorViewController::colorWellReceivedColor);
}

void ColorViewController::setUpRows()
{
    for (const CodeRow &row : codeRows()) {
        styleLabel(row.code, latoBold(labelFontSize), palette::chromeText);
        row.code->installEventFilter(this);
        row.code->setCursor(Qt::PointingHandCursor);
        row.code->setToolTip(qtTrId("COLOR_CLICK_COPIES"));
    }
    styleLabel(m_ui->opacityNote, latoRegular(labelFontSize), palette::chromeText);
    connect(iosButton(), &HoverButton::clicked, this, [this] { iosButtonPressed(iosButton()); });
    connect(macButton(), &HoverButton::clicked, this, [this] { macButtonPressed(macButton()); });
    connect(javaButton(), &HoverButton::clicked, this, [this] { javaButtonPressed(javaButton()); });
    connect(cssButton(), &HoverButton::clicked, this, [this] { cssButtonPressed(cssButton()); });
}

ColorField *ColorViewController::colorTextField() const
{
    return m_ui->colorTextField;
}

BFPopoverColorWell *ColorViewController::colorWell() const
{
    return m_ui->colorWell;
}

HoverButton *ColorViewController::iosButton() const
{
    return m_ui->iosButton;
}

HoverButton *ColorViewController::macButton() const
{
    return m_ui->macButton;
}

HoverButton *ColorViewController::javaButton() const
{
    return m_ui->javaButton;
}

HoverButton *ColorViewController::cssButton() const
{
    return m_ui->cssButton;
}

QLabel *ColorViewController::iosLabel() const
{
    return m_ui->iosLabel;
}

QLabel *ColorViewController::macLabel() const
{
    return m_ui->macLabel;
}

QLabel *ColorViewController::javaLabel() const
{
    return m_ui->javaLabel;
}

QLabel *ColorViewController::cssLabel() const
{
    return m_ui->cssLabel;
}

ImageButton *ColorViewController::pipetteButton() const
{
    return m_ui->pipetteButton;
}

QLabel *ColorViewController::opacityNote() const
{
    return m_ui->opacityNote;
}

std::array<ColorViewController::CodeRow, colorNotationCount> ColorViewController::codeRows() const
{
    return {{
        {m_ui->iosButton, m_ui->iosLabel, m_ui->iosCode, qtTrId("COLOR_IOS_BUTTON"), qtTrId("COLOR_IOS")},
        {m_ui->macButton, m_ui->macLabel, m_ui->macCode, qtTrId("COLOR_MAC_BUTTON"), qtTrId("COLOR_MAC")},
        {m_ui->javaButton, m_ui->javaLabel, m_ui->javaCode, qtTrId("COLOR_JAVA_BUTTON"), qtTrId("COLOR_JAVA")},
        {m_ui->cssButton, m_ui->cssLabel, m_ui->cssCode, qtTrId("COLOR_CSS_BUTTON"), qtTrId("COLOR_CSS")},
    }};
}

Result<ColorCodes> ColorViewController::colorWithHexString(const QString &text)
{
    Result<ColorCodes> codes = lumora::colorWithHexString(text);
    if (codes)
        setTheColor(codes.value().color);
    return codes;
}

void ColorViewController::controlTextDidChange(const QObject *notificationObject)
{
    if (notificationObject == m_ui->colorTextField)
        m_ui->colorTextField->applyTypingRule();
}

void ColorViewController::colorWellReceivedColor(const ColorWell *sender)
{
    takeColor(sender->color());
}

void ColorViewController::iosButtonPressed(HoverButton *sender)
{
    saveTitleAndCopy(sender);
}

void ColorViewController::macButtonPressed(HoverButton *sender)
{
    saveTitleAndCopy(sender);
}

void ColorViewController::javaButtonPressed(HoverButton *sender)
{
    saveTitleAndCopy(sender);
}

void ColorViewController::cssButtonPressed(HoverButton *sender)
{
    saveTitleAndCopy(sender);
}

void ColorViewController::saveTitleAndCopy(HoverButton *sender)
{
    m_savedButtonTitle = sender->text();
    copyCodeForButton(sender);
}

void ColorViewController::copyCodeForButton(HoverButton *button)
{
    resetButtons();
    const Result<ColorCodes> codes = codesForCopying(m_ui->colorTextField->text());
    if (!codes) {
        showPopupWithTitle(qtTrId("COLOR_ALERT_TITLE"), qtTrId("COLOR_ALERT_MESSAGE"), m_ui->colorTextField, true);
        return;
    }
    setTheColor(codes.value().color);
    services().clipboard.setText(codes.value().list.at(button->property(tagName).toUInt()));
    const QColor chosen = m_ui->colorTextField->textColor();
    styleButton(button, qtTrId("COPIED"), chosen, chosen);
    m_resetTimer.start();
}

void ColorViewController::resetButtons()
{
    const std::array<CodeRow, colorNotationCount> rows = codeRows();
    for (std::size_t tag = 0; tag < rows.size(); ++tag) {
        const CodeRow &row = rows[tag];
        styleButton(row.button, row.buttonText, palette::color, palette::colorBorder);
        row.button->setProperty(tagName, static_cast<uint>(tag));
        styleLabel(row.label, latoRegular(labelFontSize), palette::chromeText);
        row.label->setText(row.labelText);
    }
}

void ColorViewController::dropViewReceivedColor(const QColor &color)
{
    takeColor(rgbaFrom(color));
}

bool ColorViewController::eventFilter(QObject *watched, QEvent *event)
{
    if (isDropView(watched) && filterDrag(watched, event))
        return true;
    if (filterCodeClick(watched, event))
        return true;
    return ToolViewController::eventFilter(watched, event);
}

/// Whether it is the area for drops of either side.
bool ColorViewController::isDropView(const QObject *object) const
{
    const TodayColorPane *today = m_today == nullptr ? nullptr : m_today->pane();
    return object == m_ui->dropView || (today != nullptr && object == today->dropView());
}

bool ColorViewController::filterDrag(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove && event->type() != QEvent::Drop)
        return false;
    auto *drop = static_cast<QDropEvent *>(event);
    const QMimeData &content = *drop->mimeData();
    // The view itself accepts colors; pictures and other files are for other tools.
    if (content.hasColor())
        return false;
    if (!carriesColor(content)) {
        drop->ignore();
        return true;
    }
    drop->acceptProposedAction();
    auto *view = static_cast<DropView *>(watched);
    if (event->type() != QEvent::Drop) {
        view->target();
    } else {
        view->forget();
        if (!isToday())
            takeColor(pastedColor(content.text())->color);
        else
            m_today->takeText(content.text());
    }
    return true;
}

void ColorViewController::setTheColor(const RgbaColor &color)
{
    m_theColor = color;
    if (!m_takesFromToday)
        m_today->setColor(wideColorOfCode(color));
    m_ui->colorTextField->setTextColor(color);
    m_ui->colorWell->setColor(color);
    const int percent = qRound(static_cast<double>(color.alpha) * 100);
    m_ui->opacityNote->setText(qtTrId("COLOR_NO_OPACITY").replace("[PERCENT]"_L1, QString::number(percent)));
    m_ui->opacityNote->setVisible(color.alpha < 1.0F);
}

void ColorViewController::takeColor(const RgbaColor &color)
{
    setTheColor(color);
    m_ui->colorTextField->showText(stringFromColor(color));
    m_today->picked();
}

void ColorViewController::showCodes()
{
    const Result<ColorCodes> codes = codesForCopying(m_ui->colorTextField->text());
    const std::array<CodeRow, colorNotationCount> rows = codeRows();
    for (std::size_t tag = 0; tag < rows.size(); ++tag) {
        const QString code = codes ? codes.value().list[tag] : QString();
        rows[tag].code->setText(code);
        rows[tag].button->setAccessibleDescription(code);
    }
}

} // namespace lumora
