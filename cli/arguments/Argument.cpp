// SPDX-License-Identifier: MIT
#include "Argument.h"

namespace lumora
{

Argument &Argument::letter(char16_t character)
{
    shortName = character;
    return *this;
}

Argument &Argument::words(const QStringList &accepted)
{
    choices = accepted;
    return *this;
}

Argument &Argument::range(int smallest, int largest)
{
    least = smallest;
    most = largest;
    return *this;
}

Argument &Argument::list()
{
    isCommaList = true;
    return *this;
}

Argument &Argument::required()
{
    isRequired = true;
    return *this;
}

Argument &Argument::in(ArgumentGroup heading)
{
    group = heading;
    return *this;
}

bool Argument::isRepeatable() const
{
    return std::holds_alternative<QStringList *>(target) || std::holds_alternative<QList<int> *>(target);
}

QString Argument::spelled() const
{
    return isFlag() || isOperand() ? name : name + u' ' + placeholder;
}

} // namespace lumora
