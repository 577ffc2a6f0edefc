// SPDX-License-Identifier: MIT
#include "TypingRule.h"

using namespace Qt::StringLiterals;

namespace lumora
{

TypingOutcome outcomeOfTyping(const QString &fieldText)
{
    TypingOutcome outcome;
    QString digits = fieldText;
    digits.remove(u'#');
    if (digits.size() >= 7) {
        digits.chop(1);
        outcome.correctedText = u'#' + digits;
    }
    if (digits.size() == 3 || digits.size() == 6)
        outcome.colorText = digits;
    return outcome;
}

} // namespace lumora
