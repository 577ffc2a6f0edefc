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
    /// Takes a copied color, or a copied text with a color's code.
    void paste() override;

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

    bool filterDrag(QEvent *event);
    bool filterKey(QEvent *event);
    void setUpField();
    void setUpRows();
    void saveTitleAndCopy(HoverButton *sender);
    void setTheColor(const RgbaColor &color);
    void takeColor(const RgbaColor &color);
    /// Sets the text from the program, which does not count as typing.
    void setFieldText(const QString &text);
    void showCodes();

    std::unique_ptr<Ui::ColorViewController> m_ui;
    RgbaColor m_theColor;
    QString m_savedButtonTitle;
    QTimer m_resetTimer;
    bool m_setsText = false;
};

} // namespace lumora
