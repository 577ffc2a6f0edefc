// SPDX-License-Identifier: MIT
#pragma once

#include "ColorCode.h"
#include "tool/DropView.h"
#include "tool/ToolViewController.h"

#include <QTimer>

#include <array>
#include <chrono>
#include <memory>

class QLabel;

namespace Ui
{
class ColorViewController;
}

namespace lumora
{

class BFPopoverColorWell;
class ColorField;
class ColorWell;
class HoverButton;
class ImageButton;
class Pipette;
class TodayColors;

/// The color tool: takes a typed, picked, dropped or pasted color and has a button for each notation that copies its
/// code.
class ColorViewController final : public ToolViewController, public DropViewDelegate
{
    Q_OBJECT

public:
    explicit ColorViewController(const Services &services, QObject *parent = nullptr);
    ~ColorViewController() override;

    ColorField *colorTextField() const;
    BFPopoverColorWell *colorWell() const;
    HoverButton *iosButton() const;
    HoverButton *macButton() const;
    HoverButton *javaButton() const;
    HoverButton *cssButton() const;
    QLabel *iosLabel() const;
    QLabel *macLabel() const;
    QLabel *javaLabel() const;
    QLabel *cssLabel() const;
    ImageButton *pipetteButton() const;
    /// Shows that the codes have no opacity if the color is translucent.
    QLabel *opacityNote() const;

    /// The current color: the last valid one, whatever the field contains.
    const RgbaColor &theColor() const { return m_theColor; }
    /// The previous caption of the copy button that was pressed last.
    const QString &savedButtonTitle() const { return m_savedButtonTitle; }

    /// How long a button reports that it has copied.
    static constexpr std::chrono::milliseconds copiedDuration{2000};

    /// The code list of the text. Its color becomes the current one; a refused text changes nothing.
    Result<ColorCodes> colorWithHexString(const QString &text);
    /// Parses while the user types; ignores every sender except the color's field.
    void controlTextDidChange(const QObject *notificationObject);
    void colorWellReceivedColor(const ColorWell *sender);
    void iosButtonPressed(HoverButton *sender);
    void macButtonPressed(HoverButton *sender);
    void javaButtonPressed(HoverButton *sender);
    void cssButtonPressed(HoverButton *sender);
    /// Copies the code at the index that is the button's tag.
    void copyCodeForButton(HoverButton *button);
    /// Sets the initial look of buttons and labels.
    void resetButtons();

    void dropViewReceivedColor(const QColor &color) override;
    bool takesClipboard() const override { return true; }
    /// Takes a copied color, or a copied text with a color in any form.
    void paste() override;
    void pipetteButtonPressed();
    /// The side of today, which has the same color, and the palette of both sides.
    TodayColors *today() const { return m_today; }
    /// The pipette that picks from the screen; the system's own by default.
    void setPipette(std::unique_ptr<Pipette> pipette);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The controls of one notation.
    struct CodeRow
    {
        HoverButton *button;
        QLabel *label;
        QLabel *code;
        QString buttonText;
        QString labelText;
    };
    std::array<CodeRow, colorNotationCount> codeRows() const;

    bool isDropView(const QObject *object) const;
    bool filterDrag(QObject *watched, QEvent *event);
    bool filterCodeClick(QObject *watched, QEvent *event);
    void setUpPipette();
    void setUpToday();
    bool isToday() const;
    /// The pipette button of the side in view.
    ImageButton *shownPipetteButton() const;
    void endPicking();
    void pasteIntoField();
    void setUpField();
    void setUpRows();
    void saveTitleAndCopy(HoverButton *sender);
    void setTheColor(const RgbaColor &color);
    void takeColor(const RgbaColor &color);
    void showCodes();

    std::unique_ptr<Ui::ColorViewController> m_ui;
    RgbaColor m_theColor;
    QString m_savedButtonTitle;
    QTimer m_resetTimer;
    std::unique_ptr<Pipette> m_pipette;
    ImageButton *m_pickingButton = nullptr; ///< the one that started the pipette
    bool m_pipetteHadFocus = false;
    TodayColors *m_today = nullptr; ///< owned by this
    bool m_takesFromToday = false;
};

} // namespace lumora
