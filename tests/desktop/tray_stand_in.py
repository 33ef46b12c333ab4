#!/usr/bin/python3
"""Stands for a notification area that is reached over the session bus. Called with "host" it shows icons from the
start, otherwise when it is told "host". Says on its output what comes; on its input it is told what a person does
with the icon: "activate", "middle", "lines" shows the menu's lines, "choose CAPTION" clicks on one."""

import sys

from gi.repository import Gio, GLib

WATCHER = "org.kde.StatusNotifierWatcher"
INTERFACE = """<node><interface name='org.kde.StatusNotifierWatcher'>
<method name='RegisterStatusNotifierItem'><arg type='s' direction='in'/></method>
<method name='RegisterStatusNotifierHost'><arg type='s' direction='in'/></method>
<property name='IsStatusNotifierHostRegistered' type='b' access='read'/>
<property name='RegisteredStatusNotifierItems' type='as' access='read'/>
<property name='ProtocolVersion' type='i' access='read'/>
<signal name='StatusNotifierHostRegistered'/><signal name='StatusNotifierItemRegistered'><arg type='s'/></signal>
</interface></node>"""
PLACE = "/StatusNotifierWatcher"
ITEM, ITEM_PLACE = "org.kde.StatusNotifierItem", "/StatusNotifierItem"
MENU, PROPERTIES = "com.canonical.dbusmenu", "org.freedesktop.DBus.Properties"


def tell(*words):
    print(*words, flush=True)


class Area:
    def __init__(self, has_host):
        self.has_host, self.item = has_host, None

    def serve(self, bus):
        self.bus = bus
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        bus.register_object(PLACE, interface, self.asked, self.property, None)

    def property(self, _bus, _sender, _path, _interface, name):
        tell("asked", name)
        if name == "IsStatusNotifierHostRegistered":
            return GLib.Variant("b", self.has_host)
        return GLib.Variant("i", 0) if name == "ProtocolVersion" else GLib.Variant("as", [])

    def asked(self, _bus, sender, _path, _interface, method, arguments, invocation):
        invocation.return_value(None)
        if method == "RegisterStatusNotifierItem":
            self.item = sender
            self.name = arguments.unpack()[0]
            Gio.bus_watch_name_on_connection(self.bus, self.name, Gio.BusNameWatcherFlags.NONE, None,
                                             lambda *_: tell("gone"))
            tell("item")

    def call(self, path, interface, method, arguments):
        return self.bus.call_sync(self.name, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, 5000, None)

    def of_item(self, name):
        return self.call(ITEM_PLACE, PROPERTIES, "Get", GLib.Variant("(ss)", (ITEM, name))).unpack()[0]

    def lines_of_menu(self):
        """As a tray does it when the menu is about to show: (number, properties) of each line."""
        place = self.of_item("Menu")
        self.call(place, MENU, "AboutToShow", GLib.Variant("(i)", (0,)))
        layout = self.call(place, MENU, "GetLayout", GLib.Variant("(iias)", (0, -1, [])))
        return [(number, properties) for number, properties, _ in layout.unpack()[1][2]]

    # What a person does

    def host(self):
        self.has_host = True
        self.bus.emit_signal(None, PLACE, WATCHER, "StatusNotifierHostRegistered", None)

    def activate(self):
        self.call(ITEM_PLACE, ITEM, "Activate", GLib.Variant("(ii)", (0, 0)))

    def middle(self):
        self.call(ITEM_PLACE, ITEM, "SecondaryActivate", GLib.Variant("(ii)", (0, 0)))

    def tip(self):
        tell("tip", self.of_item("ToolTip")[2])

    def picture(self):
        tell("picture", "named" if self.of_item("IconName") else len(self.of_item("IconPixmap")))

    def lines(self):
        words = []
        for _, line in self.lines_of_menu():
            caption = "-" if line.get("type") == "separator" else line.get("label", "")
            words.append(caption + ("" if line.get("enabled", True) else " (off)"))
        tell("lines", "|".join(words))

    def choose(self, caption):
        number = next(number for number, line in self.lines_of_menu() if line.get("label") == caption)
        event = GLib.Variant("(isvu)", (number, "clicked", GLib.Variant("i", 0), 0))
        self.call(self.of_item("Menu"), MENU, "Event", event)


def main():
    area = Area("host" in sys.argv[1:])

    def heard(_channel, _condition):
        words = sys.stdin.readline().strip().split(" ", 1)
        if words[0]:
            getattr(area, words[0])(*words[1:])
        return bool(words[0])

    GLib.io_add_watch(GLib.IOChannel.unix_new(0), GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN, heard)
    Gio.bus_own_name(Gio.BusType.SESSION, WATCHER, Gio.BusNameOwnerFlags.NONE,
                     lambda bus, _name: area.serve(bus), lambda _bus, _name: tell("ready"), None)
    GLib.MainLoop().run()


main()
