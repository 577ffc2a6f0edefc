// SPDX-License-Identifier: MIT
#pragma once

#include "PickerMode.h"
#include "color/picking/RecentColors.h"

#include <QHash>
#include <QPointer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QStackedWidget;
class QToolButton;

namespace lumora
{

class ChannelRow;
class PickerModel;
class Pipette;
class SwatchWidget;

/// The picker itself, without a host: the page of the mode, below it the opacity, the color with its code, and the
/// pipette. It fills whatever it is put into.
class PickerContent final : public QWidget
{
    Q_OBJECT

public:
    /// The model has to outlive the content.
    explicit PickerContent(PickerModel *model, QWidget *parent = nullptr);
    ~PickerContent() override;

    PickerMode mode() const { return m_mode; }
    void setMode(PickerMode mode);
    /// The page of a mode, made when it is first asked for.
    QWidget *page(PickerMode mode);

    bool showsAlpha() const;
    void setShowsAlpha(bool shows);
    void setRecentColors(const RecentColors &recent);
    /// Replaces what picks from the screen.
    void setPipette(std::unique_ptr<Pipette> pipette);

    ChannelRow *opacityRow() const { return m_opacity; }
    QLineEdit *codeField() const { return m_code; }
    QToolButton *pipetteButton() const { return m_pipetteButton; }
    /// Says that the screen could not be read; hidden as long as nothing went wrong.
    QLabel *complaint() const { return m_complaint; }

private:
    QLayout *makeCodeRow();
    /// Lets Tab come to what every mode has after the page, which stands above but is made later.
    void putBehindInTabOrder(const QWidget *page);
    void showPicked();
    void codeEdited(const QString &text);
    void codeFinished();
    /// Sets the text without taking it for typed.
    void setCodeText(const QString &text);
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
    QLineEdit *m_code;
    QToolButton *m_pipetteButton;
    QLabel *m_complaint;
    std::unique_ptr<Pipette> m_pipette;
    bool m_setsCode = false;
    bool m_pipetteHadFocus = false;
};

} // namespace lumora
