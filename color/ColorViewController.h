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

/// The color tool: a color typed, picked, dropped or pasted, and a button for each notation that copies its code.
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

    /// The current color: the last one that was valid, whatever is being typed.
    const RgbaColor &theColor() const { return m_theColor; }
    /// What the copy button pressed last showed before.
    const QString &savedButtonTitle() const { return m_savedButtonTitle; }

    /// How long a button says that it has copied.
    static constexpr std::chrono::milliseconds copiedDuration{2000};

    /// The code list of the text, whose color becomes the current one; refused text changes nothing.
    Result<ColorCodes> colorWithHexString(const QString &text);
    /// Parses while the user types; of interest only where it comes from the color's field.
    void controlTextDidChange(const QObject *notificationObject);
    void colorWellReceivedColor(const ColorWell *sender);
    void iosButtonPressed(HoverButton *sender);
    void macButtonPressed(HoverButton *sender);
    void javaButtonPressed(HoverButton *sender);
    void cssButtonPressed(HoverButton *sender);
    /// Copies the code whose index in the list is the button's tag.
    void copyCodeForButton(HoverButton *button);
    /// Gives buttons and labels the look they have at rest.
    void resetButtons();

    void dropViewReceivedColor(const QColor &color) override;
    bool takesClipboard() const override { return true; }
    /// Takes a copied color, or a copied text that is one.
    void paste() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// What belongs to one notation.
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
    /// Setting the text from the program does not count as typing.
    void setFieldText(const QString &text);
    void showCodes();

    std::unique_ptr<Ui::ColorViewController> m_ui;
    RgbaColor m_theColor;
    QString m_savedButtonTitle;
    QTimer m_resetTimer;
    bool m_setsText = false;
};

} // namespace lumora
