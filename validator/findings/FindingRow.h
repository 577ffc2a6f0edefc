// SPDX-License-Identifier: MIT
#pragma once

#include "validator/rules/Rule.h"

#include <QList>
#include <QWidget>

class QVBoxLayout;

namespace lumora
{

class FindingHeader;
class IconButton;

/// A broken rule: its line, and below it, while it is open, what was found, why it matters and how to mend it.
class FindingRow final : public QWidget
{
    Q_OBJECT

public:
    /// Places that are listed; a hostile package may have many.
    static constexpr qsizetype mostPlaces = 30;

    FindingRow(const Rule &rule, QList<Evidence> places, QWidget *parent = nullptr);

    const Rule &rule() const { return m_rule; }
    const QList<Evidence> &places() const { return m_places; }
    FindingHeader *header() const { return m_header; }
    /// Null until the row is opened, like the next one.
    IconButton *ignoreButton() const { return m_ignore; }
    /// Also null for a rule that new icons do not mend.
    IconButton *iconsButton() const { return m_icons; }
    void setOpen(bool isOpen);
    /// A note beside the button for icons, about the picture that they are made from. Set it before the row is opened.
    void setIconNote(const QString &note) { m_iconNote = note; }
    /// Whether the words, separated by spaces, are all in the texts of the row, whatever their case.
    bool matches(const QString &words) const;

signals:
    void ignored(const QString &id);
    /// New icons are wanted, which mend this rule.
    void iconsWanted();
    void opened(bool isOpen);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    /// Scrolls so that the whole row is in view, or its beginning if there is no room for the whole.
    void reveal();
    void makeBody();
    void addPart(QVBoxLayout *column, const QString &heading, const QString &text);
    QString foundText() const;

    const Rule &m_rule;
    QList<Evidence> m_places;
    FindingHeader *m_header;
    QString m_iconNote;
    QWidget *m_body = nullptr;
    bool m_isRevealed = true; ///< false from the user's opening until the row has its new height
    IconButton *m_ignore = nullptr;
    IconButton *m_icons = nullptr;
};

} // namespace lumora
