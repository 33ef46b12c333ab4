#!/usr/bin/python3
"""Answers on the session bus for a file manager. Says "ready" once it has its name, and each method that it is asked
for with the first address."""

from gi.repository import Gio, GLib

INTERFACE = """<node><interface name='org.freedesktop.FileManager1'>
<method name='ShowItems'><arg type='as' direction='in'/><arg type='s' direction='in'/></method>
<method name='ShowItemProperties'><arg type='as' direction='in'/><arg type='s' direction='in'/></method>
</interface></node>"""
PLACE, NAME = "/org/freedesktop/FileManager1", "org.freedesktop.FileManager1"


def asked(_bus, _sender, _path, _interface, method, arguments, invocation):
    invocation.return_value(None)
    print(method, arguments[0][0], flush=True)


def serve(bus):
    bus.register_object(PLACE, Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], asked, None, None)


def main():
    Gio.bus_own_name(Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.NONE,
                     lambda bus, _name: serve(bus), lambda _bus, _name: print("ready", flush=True), None)
    GLib.MainLoop().run()


main()
