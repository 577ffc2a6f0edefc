// SPDX-License-Identifier: MIT
#pragma once

#include "color/spaces/WideColor.h"

#include <QWidget>

class QLabel;

namespace lumora
{

class BFPopoverColorWell;
class CodeField;
class ContrastView;
class DropView;
class FormListView;
class ImageButton;
class PaletteView;

/// The color tool's side of today: one color, its forms, its contrast, and the palette.
class TodayColorPane final : public QWidget
{
    Q_OBJECT

public:
    explicit TodayColorPane(QWidget *parent = nullptr);

    /// Shows the color everywhere.
    void setColor(const WideColor &color);
    /// The area that takes dropped colors: all of the pane.
    DropView *dropView() const { return m_dropView; }
    CodeField *field() const { return m_field; }
    QLabel *refusal() const { return m_refusal; }
    ImageButton *pipetteButton() const { return m_pipetteButton; }
    BFPopoverColorWell *well() const { return m_well; }
    FormListView *forms() const { return m_forms; }
    ContrastView *contrast() const { return m_contrast; }
    PaletteView *palette() const { return m_palette; }

private:
    QWidget *makeInput();

    DropView *m_dropView;
    CodeField *m_field;
    QLabel *m_refusal;
    ImageButton *m_pipetteButton;
    BFPopoverColorWell *m_well;
    FormListView *m_forms;
    ContrastView *m_contrast;
    PaletteView *m_palette;
};

} // namespace lumora
