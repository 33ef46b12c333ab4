#!/usr/bin/python3
"""Answers on the session bus for a desktop that keeps settings. Called with one group, key and value; a new value on
its standard input is told as a change. Says "ready" once it has its name, and "asked" for each question."""

import sys

from gi.repository import Gio, GLib

INTERFACE = """<node><interface name='org.freedesktop.portal.Settings'>
<method name='ReadAll'><arg type='as' direction='in'/><arg type='a{sa{sv}}' direction='out'/></method>
<signal name='SettingChanged'><arg type='s'/><arg type='s'/><arg type='v'/></signal>
</interface></node>"""
PLACE, NAME = "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings"


class Portal:
    def __init__(self, group, key, value):
        self.group, self.key, self.value = group, key, GLib.Variant.parse(None, value)

    def settings(self):
        return GLib.Variant("(a{sa{sv}})", ({self.group: {self.key: self.value}},))

    def serve(self, bus):
        self.bus = bus
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        bus.register_object(PLACE, interface, self.asked, None, None)

    def asked(self, _bus, _sender, _path, _interface, _method, _arguments, invocation):
        invocation.return_value(self.settings())
        print("asked", flush=True)

    def change(self, line):
        self.value = GLib.Variant.parse(None, line)
        told = GLib.Variant("(ssv)", (self.group, self.key, self.value))
        self.bus.emit_signal(None, PLACE, NAME, "SettingChanged", told)


def main():
    portal = Portal(*sys.argv[1:4])

    def heard(_channel, _condition):
        line = sys.stdin.readline()
        if line:
            portal.change(line.strip())
        return bool(line)

    GLib.io_add_watch(GLib.IOChannel.unix_new(0), GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN, heard)
    Gio.bus_own_name(Gio.BusType.SESSION, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE,
                     lambda bus, _name: portal.serve(bus), lambda _bus, _name: print("ready", flush=True), None)
    GLib.MainLoop().run()


main()
