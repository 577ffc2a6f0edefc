// SPDX-License-Identifier: MIT
#pragma once

#include "SelectionButton.h"

namespace lumora
{

/// A check box. Once it is set valid or invalid, it keeps its image whatever the pointer does.
class CheckboxButton final : public SelectionButton
{
    Q_OBJECT
    Q_PROPERTY(bool invalid READ isInvalid WRITE setInvalid)
public:
    explicit CheckboxButton(QWidget *parent = nullptr);

    bool isInvalid() const { return m_invalid; }
    /// Shows the invalid image, or the active image for false. Both freeze the box: isStaticBox() is true from then on.
    void setInvalid(bool invalid);
    /// Whether the box ignores the pointer; it still sends clicked().
    bool isStaticBox() const { return m_staticBox; }
    /// Shows the idle image; a frozen box stays frozen.
    void setIdle();

    const NamedImage &invalidImage() const { return m_invalidImage; }

protected:
    bool isFrozen() const override { return m_staticBox; }
    void mouseEntered() override;
    void mouseExited() override;
    void mouseDown() override;

private:
    NamedImage m_invalidImage;
    bool m_invalid = false;
    bool m_staticBox = false;
};

} // namespace lumora
