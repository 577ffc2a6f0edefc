// SPDX-License-Identifier: MIT
#pragma once

#include "PickerMode.h"
#include "color/picking/RecentColors.h"

#include <QHash>
#include <QPointer>
#include <QWidget>

class QLabel;
class QStackedWidget;
class QToolButton;

namespace lumora
{

class ChannelRow;
class HexField;
class PickerModel;
class Pipette;
class SwatchWidget;

/// The picker itself, without a host: the page of the mode, and below it the opacity, the color with its code, and the
/// pipette. It fills its parent.
class PickerContent final : public QWidget
{
    Q_OBJECT

public:
    /// The model must outlive the content.
    explicit PickerContent(PickerModel *model, QWidget *parent = nullptr);
    ~PickerContent() override;

    PickerMode mode() const { return m_mode; }
    void setMode(PickerMode mode);
    /// The page of a mode, made at the first call.
    QWidget *page(PickerMode mode);

    bool showsAlpha() const;
    void setShowsAlpha(bool shows);
    void setRecentColors(const RecentColors &recent);
    /// Replaces the pipette that picks from the screen.
    void setPipette(std::unique_ptr<Pipette> pipette);

    ChannelRow *opacityRow() const { return m_opacity; }
    HexField *codeField() const { return m_code; }
    QToolButton *pipetteButton() const { return m_pipetteButton; }
    /// Reports that the screen could not be read; hidden without an error.
    QLabel *complaint() const { return m_complaint; }

private:
    QLayout *makeCodeRow();
    /// Makes Tab go from the page to the controls of all modes; the page is above them but made later.
    void putBehindInTabOrder(const QWidget *page);
    void showPicked();
    void connectCode();
    void paste();
    void digitsCompleted(const QString &digits);
    /// Keeps the opacity, unless the code has one.
    void takeCode(const RgbaColor &color);
    void codeFinished();
    void pickFromScreen();
    void screenFailed();
    void endPicking();

    PickerModel *m_model;
    PickerMode m_mode = PickerMode::Wheel;
    QStackedWidget *m_pages;
    QHash<PickerMode, QWidget *> m_pageOfMode;
    RecentColors m_recent;
    ChannelRow *m_opacity;
    SwatchWidget *m_swatch;
    HexField *m_code;
    QToolButton *m_pipetteButton;
    QLabel *m_complaint;
    std::unique_ptr<Pipette> m_pipette;
    bool m_pipetteHadFocus = false;
};

} // namespace lumora
