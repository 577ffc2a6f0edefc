// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

struct xcb_connection_t;

namespace lumora
{

/// Finds out whether a window can be opened: a display server answers, or the user asked for a platform that needs
/// none. If only one kind of server answers, it makes the toolkit use that one. Make it before the application object,
/// which would abort the program, and keep it until that object is connected, since an X server without clients may
/// restart and be away for a moment.
class Display
{
public:
    Display();
    ~Display();
    Q_DISABLE_COPY_MOVE(Display)

    bool isReachable() const { return m_reachable; }

private:
    bool xAnswers();

    xcb_connection_t *m_connection = nullptr;
    bool m_reachable = false;
};

} // namespace lumora
