#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""A file manager on the session bus that shows nothing; prints "ready", then each address that it is asked to select."""
from gi.repository import Gio, GLib

NAME = "org.freedesktop.FileManager1"
INTERFACE = Gio.DBusNodeInfo.new_for_xml(f"""
<node><interface name="{NAME}">
  <method name="ShowItems"><arg type="as" direction="in"/><arg type="s" direction="in"/></method>
</interface></node>""").interfaces[0]


def called(connection, sender, path, interface, method, parameters, invocation):
    for address in parameters.unpack()[0]:
        print("selected", address, flush=True)
    invocation.return_value(None)


def joined(connection, name):
    connection.register_object("/org/freedesktop/FileManager1", INTERFACE, called, None, None)


def owned(connection, name):
    print("ready to select", flush=True)


Gio.bus_own_name(Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.NONE, joined, owned, None)
GLib.MainLoop().run()
