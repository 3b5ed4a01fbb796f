"""What a screen reader knows of the programs on a desktop (AT-SPI over D-Bus)."""

from gi.repository import Gio, GLib

from screen import Rectangle

ACCESSIBLE = "org.a11y.atspi.Accessible"
COMPONENT = "org.a11y.atspi.Component"
VALUE = "org.a11y.atspi.Value"
PROPERTIES = "org.freedesktop.DBus.Properties"
REGISTRY = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
SCREEN_COORDINATES = 0  # ATSPI_COORD_TYPE_SCREEN
# Numbers of bits, from AtspiStateType.
CHECKED, SHOWING = 4, 25
MILLISECONDS = 5000


def connect(address):
    flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT |
             Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
    connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
    connection.set_exit_on_close(False)
    return connection


def call(connection, name, path, interface, method, arguments=None):
    return connection.call_sync(
        name, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, MILLISECONDS, None,
    ).unpack()


class Element:
    """A control, as it was when it was found. When it is gone, what it is asked raises
    GLib.Error."""

    def __init__(self, connection, reference):
        self._connection = connection
        self._reference = reference
        self.name = self._property(ACCESSIBLE, "Name")
        self.role = self._call(ACCESSIBLE, "GetRoleName")[0]
        low, high = self._call(ACCESSIBLE, "GetState")[0]
        self.states = high << 32 | low

    def __repr__(self):
        return f"{self.role} '{self.name}'"

    def _call(self, interface, method, arguments=None):
        return call(self._connection, *self._reference, interface, method, arguments)

    def _property(self, interface, name):
        return self._call(PROPERTIES, "Get", GLib.Variant("(ss)", (interface, name)))[0]

    def children(self):
        references = self._call(ACCESSIBLE, "GetChildren")[0]
        return [Element(self._connection, reference) for reference in references]

    def is_checked(self):
        return bool(self.states >> CHECKED & 1)

    def is_showing(self):
        return bool(self.states >> SHOWING & 1)

    def value(self):
        return self._property(VALUE, "CurrentValue")

    def place(self):
        coordinates = GLib.Variant("(u)", (SCREEN_COORDINATES,))
        return Rectangle(*self._call(COMPONENT, "GetExtents", coordinates)[0])


class Accessibility:
    """All that is accessible on the desktop with this session bus."""

    def __init__(self, session_address):
        session = connect(session_address)
        address = call(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")[0]
        self._connection = connect(address)

    def elements(self, program):
        """Everything of a program that is shown, in the order of the screen reader."""
        try:
            return [element
                    for application in Element(self._connection, REGISTRY).children()
                    if application.name == program
                    for window in application.children()
                    for element in self._shown(window)]
        except GLib.Error:
            return []  # Something went away meanwhile; who waits looks again.

    def places(self, program):
        """Where they are, by role and name; of equal ones the first."""
        try:
            return {(element.role, element.name): element.place()
                    for element in reversed(self.elements(program))}
        except GLib.Error:
            return {}

    def _shown(self, element):
        if not element.is_showing():
            return []
        return [element] + [inner for child in element.children() for inner in self._shown(child)]
