#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: fake_portal.py RED GREEN BLUE   A desktop portal on the session bus whose color picker answers at once with the
color, components from 0 to 1; with "cancel" instead of a color, it answers that the user canceled."""
import sys

from gi.repository import Gio, GLib

INTERFACE = Gio.DBusNodeInfo.new_for_xml("""
<node><interface name="org.freedesktop.portal.Screenshot">
  <method name="PickColor">
    <arg type="s" direction="in"/><arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
  </method>
  <property name="version" type="u" access="read"/>
</interface></node>""").interfaces[0]


def answer():
    if sys.argv[1] == "cancel":
        return 1, {}
    return 0, {"color": GLib.Variant("(ddd)", tuple(map(float, sys.argv[1:4])))}


def called(connection, sender, path, interface, method, parameters, invocation):
    token = parameters.unpack()[1]["handle_token"]
    request = f"/org/freedesktop/portal/desktop/request/{sender[1:].replace('.', '_')}/{token}"
    invocation.return_value(GLib.Variant("(o)", (request,)))
    connection.emit_signal(sender, request, "org.freedesktop.portal.Request", "Response",
                           GLib.Variant("(ua{sv})", answer()))


def read(connection, sender, path, interface, name):
    return GLib.Variant("u", 2)


def joined(connection, name):
    connection.register_object("/org/freedesktop/portal/desktop", INTERFACE, called, read, None)


Gio.bus_own_name(Gio.BusType.SESSION, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE, joined, None, None)
GLib.MainLoop().run()
