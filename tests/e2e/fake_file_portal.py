#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: fake_file_portal.py FILE FOLDER   A desktop portal on the session bus whose file chooser returns at once the file,
or the folder if one is requested; prints a line about it on stdout."""
import sys
from pathlib import Path

from gi.repository import Gio, GLib

INTERFACE = Gio.DBusNodeInfo.new_for_xml("""
<node><interface name="org.freedesktop.portal.FileChooser">
  <method name="OpenFile">
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/>
    <arg type="o" direction="out"/>
  </method>
  <property name="version" type="u" access="read"/>
</interface></node>""").interfaces[0]


def called(connection, sender, path, interface, method, parameters, invocation):
    options = parameters.unpack()[2]
    kind, chosen = ("folder", sys.argv[2]) if options.get("directory") else ("file", sys.argv[1])
    print("asked for a", kind, flush=True)
    request = f"/org/freedesktop/portal/desktop/request/{sender[1:].replace('.', '_')}/{options['handle_token']}"
    invocation.return_value(GLib.Variant("(o)", (request,)))

    def respond():
        uris = GLib.Variant("as", [Path(chosen).as_uri()])
        connection.emit_signal(sender, request, "org.freedesktop.portal.Request", "Response",
                               GLib.Variant("(ua{sv})", (0, {"uris": uris})))
        return GLib.SOURCE_REMOVE

    # The toolkit listens only after the answer to its call.
    GLib.timeout_add(200, respond)


def read(connection, sender, path, interface, name):
    return GLib.Variant("u", 4)


def joined(connection, name):
    connection.register_object("/org/freedesktop/portal/desktop", INTERFACE, called, read, None)


def owned(connection, name):
    print("ready", flush=True)


Gio.bus_own_name(Gio.BusType.SESSION, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE, joined, owned, None)
GLib.MainLoop().run()
