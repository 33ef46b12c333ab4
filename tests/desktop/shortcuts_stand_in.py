#!/usr/bin/python3
"""Answers on the session bus for a desktop that binds keys of the whole desktop. "mute" takes questions and never
answers, "bare" knows no such keys. Says on its output what it was told; "press" on its input presses the key."""

import sys

from gi.repository import Gio, GLib

INTERFACES = """<node><interface name='org.freedesktop.portal.GlobalShortcuts'>
<method name='CreateSession'><arg type='a{sv}' direction='in'/><arg type='o' direction='out'/></method>
<method name='BindShortcuts'><arg type='o' direction='in'/><arg type='a(sa{sv})' direction='in'/>
<arg type='s' direction='in'/><arg type='a{sv}' direction='in'/><arg type='o' direction='out'/></method>
<signal name='Activated'><arg type='o'/><arg type='s'/><arg type='t'/><arg type='a{sv}'/></signal></interface>
<interface name='org.freedesktop.portal.Session'><method name='Close'/></interface></node>"""
PLACE, SHORTCUTS = "/org/freedesktop/portal/desktop", "org.freedesktop.portal.GlobalShortcuts"


def tell(*words):
    print(*words, flush=True)


class Portal:
    def __init__(self, kind):
        self.kind, self.session, self.owner = kind, None, None
        self.shortcuts, self.sessions = Gio.DBusNodeInfo.new_for_xml(INTERFACES).interfaces

    def serve(self, bus):
        self.bus = bus
        if self.kind != "bare":
            bus.register_object(PLACE, self.shortcuts, self.asked, None, None)

    def asked(self, _bus, sender, _path, _interface, method, arguments, invocation):
        tell("asked")
        if self.kind != "mute":
            getattr(self, method)(sender, invocation, *arguments.unpack())

    def path(self, kind, sender, token):
        return "%s/%s/%s/%s" % (PLACE, kind, sender[1:].replace(".", "_"), token)

    def respond(self, sender, request, results):
        answer = GLib.Variant("(ua{sv})", (0, results))
        self.bus.emit_signal(sender, request, "org.freedesktop.portal.Request", "Response", answer)

    def CreateSession(self, sender, invocation, options):
        request = self.path("request", sender, options["handle_token"])
        self.owner, self.session = sender, self.path("session", sender, options["session_handle_token"])
        self.bus.register_object(self.session, self.sessions, self.closed, None, None)
        invocation.return_value(GLib.Variant("(o)", (request,)))
        self.respond(sender, request, {"session_handle": GLib.Variant("s", self.session)})

    def BindShortcuts(self, sender, invocation, session, shortcuts, _window, options):
        if session != self.session:
            return invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", session)
        request = self.path("request", sender, options["handle_token"])
        invocation.return_value(GLib.Variant("(o)", (request,)))
        for name, wishes in shortcuts:
            tell("bound", name, wishes["preferred_trigger"], wishes["description"])
        return self.respond(sender, request, {})

    def closed(self, _bus, _sender, _path, _interface, _method, _arguments, invocation):
        invocation.return_value(None)
        tell("closed")

    def press(self):
        told = GLib.Variant("(osta{sv})", (self.session, "toggle", 0, {}))
        self.bus.emit_signal(self.owner, PLACE, SHORTCUTS, "Activated", told)


def main():
    portal = Portal(sys.argv[1] if len(sys.argv) > 1 else "")

    def heard(_channel, _condition):
        line = sys.stdin.readline()
        if line.strip() == "press":
            portal.press()
        return bool(line)

    GLib.io_add_watch(GLib.IOChannel.unix_new(0), GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN, heard)
    Gio.bus_own_name(Gio.BusType.SESSION, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE,
                     lambda bus, _name: portal.serve(bus), lambda _bus, _name: tell("ready"), None)
    GLib.MainLoop().run()


main()
