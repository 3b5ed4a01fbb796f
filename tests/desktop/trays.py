"""The two kinds of trays that show status items."""

from waiting import wait_for, wait_for_rest

PANEL_SETTINGS = """\
[General]
panels=panel1
[panel1]
plugins=statusnotifier
position=Bottom
desktop=0
panelSize=32
iconSize=22
width=100
width-percent=true
[statusnotifier]
type=statusnotifier
alignment=Right
"""


class EmbeddingTray:
    """The older kind: it embeds a window of the program (XEmbed)."""

    def __init__(self, desktop):
        self._desktop = desktop
        desktop.start("trayer", "--edge", "bottom", "--align", "right", "--widthtype", "request",
                      "--height", "28")

    def icon(self, program):
        return wait_for_rest("the icon in the tray", lambda: self.place(program))

    def place(self, program):
        return program.embedded_icon()


class NotifierTray:
    """The newer kind: it shows what the program offers over D-Bus (StatusNotifierItem)."""

    def __init__(self, desktop):
        self._desktop = desktop
        settings = desktop.folder / "config" / "lxqt" / "panel.conf"
        settings.parent.mkdir()
        settings.write_text(PANEL_SETTINGS)
        desktop.start("lxqt-panel", is_accessible=True)
        wait_for("the panel", lambda: desktop.accessibility.elements("lxqt-panel"))

    def icon(self, program):
        return wait_for_rest("the icon in the panel", lambda: self.place(program))

    def place(self, _program):
        return self._desktop.accessibility.places("lxqt-panel").get(("push button", ""))
