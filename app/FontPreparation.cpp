// SPDX-License-Identifier: MIT
#include "FontPreparation.h"

#include <fontconfig/fontconfig.h>

namespace lumora
{

FontPreparation::FontPreparation() : m_thread([] { FcInit(); }) {}

FontPreparation::~FontPreparation()
{
    wait();
}

void FontPreparation::wait()
{
    if (m_thread.joinable())
        m_thread.join();
}

} // namespace lumora
