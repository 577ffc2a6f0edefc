// SPDX-License-Identifier: MIT
#include "INWindowButtonGroup.h"

#include <memory>
#include <unordered_map>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString defaultIdentifier = u"app.lumora.defaultWindowButtonGroup"_s;

} // namespace

INWindowButtonGroup::INWindowButtonGroup(QString identifier) : m_identifier(std::move(identifier)) {}

INWindowButtonGroup *INWindowButtonGroup::groupWithIdentifier(const QString &identifier)
{
    static std::unordered_map<QString, std::unique_ptr<INWindowButtonGroup>> groups;
    const QString name = identifier.isNull() ? defaultIdentifier : identifier;
    auto &group = groups[name];
    if (!group)
        group.reset(new INWindowButtonGroup(name));
    return group.get();
}

void INWindowButtonGroup::setNumberOfCaptures(int number)
{
    if (number < 0 || number == m_numberOfCaptures)
        return;
    m_numberOfCaptures = number;
    emit INWindowButtonGroupDidUpdateRolloverStateNotification();
}

void INWindowButtonGroup::didCaptureMousePointer()
{
    setNumberOfCaptures(m_numberOfCaptures + 1);
}

void INWindowButtonGroup::didReleaseMousePointer()
{
    setNumberOfCaptures(m_numberOfCaptures - 1);
}

void INWindowButtonGroup::resetMouseCaptures()
{
    setNumberOfCaptures(0);
}

bool INWindowButtonGroup::shouldDisplayRollOver() const
{
    return m_numberOfCaptures > 0;
}

} // namespace lumora
