// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/style/NamedImage.h"

#include <QAbstractButton>
#include <QPointer>

namespace lumora
{

class INWindowButtonGroup;

/// A button in a window's title bar: one picture for each of its states, and a rollover look shared with its group.
class INWindowButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QString groupIdentifier READ groupIdentifier)

public:
    /// A null identifier joins the default group.
    explicit INWindowButton(const QString &groupIdentifier = {}, QWidget *parent = nullptr);
    /// Uses the five pictures of a kind, for "close" for example "window_close_active" and so on.
    INWindowButton(const QString &groupIdentifier, const QString &kind, QWidget *parent);
    ~INWindowButton() override;

    QString groupIdentifier() const;
    INWindowButtonGroup *group() const { return m_group; }

    /// Shown in the key window.
    NamedImage activeImage() const { return m_activeImage; }
    void setActiveImage(const NamedImage &image);
    /// Shown in any other window.
    NamedImage activeNotKeyWindowImage() const { return m_activeNotKeyWindowImage; }
    void setActiveNotKeyWindowImage(const NamedImage &image);
    /// Shown while the button is disabled.
    NamedImage inactiveImage() const { return m_inactiveImage; }
    void setInactiveImage(const NamedImage &image);
    /// Shown while the mouse is over a button of the group.
    NamedImage rolloverImage() const { return m_rolloverImage; }
    void setRolloverImage(const NamedImage &image);
    /// Shown while the button is held down.
    NamedImage pressedImage() const { return m_pressedImage; }
    void setPressedImage(const NamedImage &image);

    /// The picture of the current state.
    NamedImage image() const;
    /// The area in which the mouse counts as over the button, in its own coordinates.
    QRect mouseTrackingArea() const { return rect(); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void change(NamedImage &image, const NamedImage &to);
    void release();

    INWindowButtonGroup *m_group;
    bool m_captures = false;
    NamedImage m_activeImage;
    NamedImage m_activeNotKeyWindowImage;
    NamedImage m_inactiveImage;
    NamedImage m_rolloverImage;
    NamedImage m_pressedImage;
};

} // namespace lumora
