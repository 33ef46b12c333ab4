#!/usr/bin/python3
"""Stands on the session bus for a session's service manager: says "ready", and for each process that is to get a name of
its own "scope NAME NUMBERS"."""

from gi.repository import Gio, GLib

INTERFACE = """<node><interface name='org.freedesktop.systemd1.Manager'>
<method name='StartTransientUnit'><arg type='s' direction='in'/><arg type='s' direction='in'/>
<arg type='a(sv)' direction='in'/><arg type='a(sa(sv))' direction='in'/><arg type='o' direction='out'/></method>
</interface></node>"""
PLACE, NAME = "/org/freedesktop/systemd1", "org.freedesktop.systemd1"


def asked(_bus, _sender, _path, _interface, _method, arguments, invocation):
    scope, mode, properties, _auxiliary = arguments.unpack()
    print("scope", scope, mode, dict(properties)["PIDs"], flush=True)
    invocation.return_value(GLib.Variant("(o)", (PLACE + "/job/1",)))


def serve(bus, _name):
    bus.register_object(PLACE, Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], asked, None, None)


Gio.bus_own_name(Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.NONE, serve,
                 lambda _bus, _name: print("ready", flush=True), None)
GLib.MainLoop().run()
