"""Workspaces as files, for the tests on the real program: what a person has kept, written by hand, and the
reading back of what the program saved."""

import os


def lines(*rows):
    return "".join(str(row) + "\r\n" for row in rows)


def link(caption, path, x=150, y=300, **fields):
    return lines("[Link]", "[Size]", fields.get("size", 10), "[LinkX]", x, "[LinkY]", y, "[LinkLabel]", caption,
                 "[LinkType]", fields.get("type", 2), "[LinkPath]", path, "[LinkParam]", fields.get("param", ""),
                 "[Color]", "-1", "[Bold]", "0", "[Confirm]", "0", "[Command]", fields.get("command", 0), "[Icon]", "",
                 "[Tags]", "", "[RunIn]", "1", "[TagStart]", "0", "[PromptParameters]", "0", "[StartIn]", "",
                 "[Admin]", "0", "[SpeedLaunch]", "0", "[Tip]", "", "[End Link]")


def container(name, x=900, y=900, w=3000, h=3000, note="", note_on=0, folded=0, shrink=0, links=""):
    return lines("108", "[Container]", "-1", "[Name]", name, "[Date]", "", "[Modified]", "", "[Backcolor]", 0x290700,
                 "[Forecolor]", 0xFFFFFF, "[ContainerTextBack]", 0xE1FDFF, "[ContainerTextFor]", 0, "[Icon]", "",
                 "[CopyPath]", "", "[AutoRefresh]", 0, "[NOTE ON]", note_on, "[NoteFontSize]", 10, "[START Note]", note,
                 "[END Note]", "[ConShrinkW]", 700, "[ConShrinkH]", 950, "[Folded]", folded, "[Shrink]", shrink,
                 "[X]", x, "[Y]", y, "[W]", w, "[H]", h) + links


def settings(x=1500, y=1500, w=12000, h=8250, extra="", links=""):
    return lines("108", "[X]", x, "[Y]", y, "[W]", w, "[H]", h) + extra + links


def put(folder, ini, containers=()):
    """Writes a settings folder anew."""
    for path in (folder, os.path.join(folder, "Containers")):
        os.makedirs(path, exist_ok=True)
    write(os.path.join(folder, "Quillmere.ini"), ini)
    for number, text in enumerate(containers):
        write(os.path.join(folder, "Containers", "%d.con" % number), text)


def write(path, text):
    with open(path, "wb") as file:
        file.write(text.encode("utf-8"))


def read(*path):
    with open(os.path.join(*path), "rb") as file:
        return file.read().decode("utf-8")


def value(text, tag):
    """The line behind the first line that is this tag; None if there is none."""
    rows = text.split("\r\n")
    return rows[rows.index(tag) + 1] if tag in rows else None


def tree(folder):
    """Every file below a folder: name -> bytes."""
    found = {}
    for place, _, names in os.walk(folder):
        for name in names:
            path = os.path.join(place, name)
            with open(path, "rb") as file:
                found[os.path.relpath(path, folder)] = file.read()
    return found
