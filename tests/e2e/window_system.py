# SPDX-License-Identifier: MIT
"""The desktop of a walk that goes under each window system: X11, or Wayland where LUMORA_E2E_WINDOW_SYSTEM says so.

    from window_system import Desktop
"""
import os

import desktop
import wayland_desktop

Desktop = {"x11": desktop.Desktop, "wayland": wayland_desktop.WaylandDesktop}[os.environ.get("LUMORA_E2E_WINDOW_SYSTEM", "x11")]
