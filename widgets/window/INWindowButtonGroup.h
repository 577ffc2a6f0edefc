// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

namespace lumora
{

/// Window buttons that show their rollover look together, as long as the mouse is over one of them. Groups are found by
/// their identifier and live as long as the program.
class INWindowButtonGroup : public QObject
{
    Q_OBJECT

public:
    /// The group with the identifier, made at the first call; a null identifier means the default group.
    static INWindowButtonGroup *groupWithIdentifier(const QString &identifier);

    const QString &identifier() const { return m_identifier; }
    /// The number of buttons that the mouse is over.
    int numberOfCaptures() const { return m_numberOfCaptures; }
    /// Ignores a negative number.
    void setNumberOfCaptures(int number);

    void didCaptureMousePointer();
    void didReleaseMousePointer();
    void resetMouseCaptures();
    bool shouldDisplayRollOver() const;

signals:
    /// The number of captures changed.
    void INWindowButtonGroupDidUpdateRolloverStateNotification();

private:
    explicit INWindowButtonGroup(QString identifier);

    QString m_identifier;
    int m_numberOfCaptures = 0;
};

} // namespace lumora
