// SPDX-License-Identifier: MIT
// The ways of a color into the color tool: pasted, typed, picked from the screen.
#include "ColorField.h"
#include "ColorViewController.h"
#include "PastedColor.h"
#include "color/WellColor.h"
#include "color/pane/TodayColorPane.h"
#include "color/pane/TodayColors.h"
#include "color/pipette/Pipette.h"
#include "tool/DropHighlight.h"
#include "ui_ColorViewController.h"
#include "widgets/style/Palette.h"

#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QShortcut>

#include <utility>

using namespace Qt::StringLiterals;

namespace lumora
{

void ColorViewController::paste()
{
    const QColor color = services().clipboard.color();
    if (color.isValid()) {
        takeColor(rgbaFrom(color));
        return;
    }
    if (isToday())
        m_today->takeText(services().clipboard.plainText());
    else if (const auto pasted = pastedColor(services().clipboard.plainText()))
        takeColor(pasted->color);
}

void ColorViewController::pasteIntoField()
{
    // The field itself ignores a copied color.
    if (services().clipboard.color().isValid())
        paste();
    else
        m_ui->colorTextField->takeText(services().clipboard.plainText());
}

bool ColorViewController::filterCodeClick(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    for (const CodeRow &row : codeRows()) {
        // A drag selects a part of the code instead.
        if (row.code == watched && !row.code->hasSelectedText() &&
            static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
            saveTitleAndCopy(row.button);
    }
    return false;
}

void ColorViewController::setUpPipette()
{
    const QKeySequence keys(Qt::CTRL | Qt::SHIFT | Qt::Key_P);
    m_ui->pipetteButton->setAccessibleName(qtTrId("COLOR_SCREEN_PIPETTE"));
    m_ui->pipetteButton->setToolTip(qtTrId("COLOR_SCREEN_PIPETTE") + u" (" + keys.toString(QKeySequence::NativeText) +
                                    u')');
    connect(m_ui->pipetteButton, &ImageButton::clicked, this, &ColorViewController::pipetteButtonPressed);
    auto *shortcut = new QShortcut(keys, view());
    connect(shortcut, &QShortcut::activated, this, &ColorViewController::pipetteButtonPressed);
    setPipette(makeScreenPipette());
}

void ColorViewController::setUpToday()
{
    m_today = new TodayColors(services(), this);
    connect(m_today, &TodayColors::colorChanged, this, [this](const WideColor &color) {
        const QScopedValueRollback fromToday(m_takesFromToday, true);
        const RgbaColor shown = wellColor(color);
        setTheColor(shown);
        m_ui->colorTextField->showText(hex8Of(color).first(7));
    });
    connect(m_today, &TodayColors::pipetteWanted, this, &ColorViewController::pipetteButtonPressed);
    connect(m_today, &TodayColors::messageWanted, this, &ColorViewController::showPopupWithTitle);
    addToday([this](QWidget *pane) {
        QWidget *today = m_today->makePane(pane);
        DropView *dropView = m_today->pane()->dropView();
        new DropHighlight(dropView, palette::color, dropView);
        dropView->setDelegate(this);
        dropView->installEventFilter(this);
        ImageButton *pipette = m_today->pane()->pipetteButton();
        pipette->setImage(m_ui->pipetteButton->image());
        pipette->setAccessibleName(m_ui->pipetteButton->accessibleName());
        pipette->setToolTip(m_ui->pipetteButton->toolTip());
        return today;
    });
    // A drop elsewhere in the window goes to the classic view, also while the side of today covers it.
    connect(sides(), &PaneSides::shown, this,
            [this](ToolSide side) { m_ui->dropView->setTakesWhileHidden(side == ToolSide::Today); });
}

bool ColorViewController::isToday() const
{
    return sides()->side() == ToolSide::Today;
}

ImageButton *ColorViewController::shownPipetteButton() const
{
    return isToday() && m_today->pane() != nullptr ? m_today->pane()->pipetteButton() : m_ui->pipetteButton;
}

void ColorViewController::setPipette(std::unique_ptr<Pipette> pipette)
{
    m_pipette = std::move(pipette);
    connect(m_pipette.get(), &Pipette::picked, this, [this](const RgbaColor &color) {
        endPicking();
        takeColor(color);
    });
    connect(m_pipette.get(), &Pipette::canceled, this, &ColorViewController::endPicking);
    connect(m_pipette.get(), &Pipette::failed, this, [this] {
        endPicking();
        showPopupWithTitle(qtTrId("COLOR_PIPETTE_FAILED_TITLE"), qtTrId("COLOR_PIPETTE_FAILED_MESSAGE"),
                           shownPipetteButton(), true);
    });
}

void ColorViewController::pipetteButtonPressed()
{
    if (m_pickingButton != nullptr)
        return;
    m_pickingButton = shownPipetteButton();
    m_pipetteHadFocus = m_pickingButton->hasFocus();
    m_pickingButton->setEnabled(false);
    m_pipette->pick(view());
}

void ColorViewController::endPicking()
{
    ImageButton *button = std::exchange(m_pickingButton, nullptr);
    if (button == nullptr)
        return;
    button->setEnabled(true);
    // A disabled button would pass the focus on.
    if (m_pipetteHadFocus)
        button->setFocus();
}

} // namespace lumora
