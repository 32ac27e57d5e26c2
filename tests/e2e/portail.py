#!/usr/bin/python3
"""A desktop that says how it looks, over the session's bus, and says so again whenever it is told to change.

Usage: dbus-run-session -- python3 portail.py   (lines on standard input: KEY NUMBER, or KEY WORD for a wrong value)

Prints "pret" once it can be asked.
"""

import sys

from gi.repository import Gio, GLib

ESPACE = "org.freedesktop.appearance"
INTERFACE = """
<node><interface name="org.freedesktop.portal.Settings">
  <method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/></method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>"""
REGLAGES = {}
BOUCLE = GLib.MainLoop()


def valeur(mot):
    """A setting as the bus carries it."""
    return GLib.Variant("u", int(mot)) if mot.isdigit() else GLib.Variant("s", mot)


def repond(_bus, _client, _objet, _interface, _methode, demande, reponse):
    espace, cle = demande.unpack()
    if espace == ESPACE and cle in REGLAGES:
        # As the portals do: the value within a value.
        reponse.return_value(GLib.Variant("(v)", (GLib.Variant("v", REGLAGES[cle]),)))
    else:
        reponse.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")


def change(source, _condition, bus):
    """Takes the next line of standard input; its end ends the desktop."""
    ligne = source.readline()
    if not ligne:
        BOUCLE.quit()
        return False
    cle, mot = ligne.split()
    REGLAGES[cle] = valeur(mot)
    bus.emit_signal(None, "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged",
                    GLib.Variant("(ssv)", (ESPACE, cle, REGLAGES[cle])))
    return True


def pret(bus, _nom):
    """The desktop can be asked."""
    bus.register_object("/org/freedesktop/portal/desktop",
                        Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], repond, None, None)
    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, change, bus)
    print("pret", flush=True)


Gio.bus_own_name(Gio.BusType.SESSION, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE, pret, None, None)
BOUCLE.run()
