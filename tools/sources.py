"""Reading C++ sources as far as the checks need it: includes, and what stands at namespace scope. It knows the
shapes that clang-format leaves, not the language."""

import os
import re

PROJECT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
LOGIC_ROOMS = ("core", "persistence", "dock", "containers", "shortcuts", "keyboard", "notes", "feeds", "library",
               "appearance", "system")
SOURCE = (".cpp", ".h")


def read(path):
    with open(os.path.join(PROJECT, path), encoding="utf-8") as file:
        return file.read()


def files_below(folder, endings=SOURCE):
    """Paths relative to the project, sorted."""
    found = []
    for place, _, names in os.walk(os.path.join(PROJECT, folder)):
        found += [os.path.relpath(os.path.join(place, name), PROJECT) for name in names if name.endswith(endings)]
    return sorted(found)


def room_of(path):
    """"fold.h" of src/containers is in "containers"; src/main.cpp is in ""."""
    parts = path.split("/")
    return parts[1] if len(parts) > 2 else ""


def includes(text):
    """(spelling, quoted) of every include."""
    return [(name, mark == '"') for mark, name in re.findall(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', text, re.M)]


_TOKEN = re.compile(r'R"(?P<tag>[^()\\ ]{0,16})\((?P<raw>.*?)\)(?P=tag)"|//[^\n]*|/\*.*?\*/|'
                    r'"(?:[^"\\\n]|\\.)*"|(?<![0-9A-Za-z])\'(?:[^\'\\\n]|\\.)*\'', re.S)


def blank(text, keep_strings=False):
    """The text without comments, and without what stands in strings; every line keeps its number."""
    def one(match):
        token = match.group(0)
        if token.startswith(("//", "/*")):
            return re.sub(r"[^\n]", " ", token)
        if keep_strings:
            return token
        return token[0] + re.sub(r"[^\n]", " ", token[1:-1]) + token[-1] if token[0] != "R" else \
            re.sub(r"[^\n]", " ", token)
    return _TOKEN.sub(one, text)


_NAMED = re.compile(r"([A-Za-z_]\w*(?:::~?[A-Za-z_]\w*)*|operator[^\s(]+)\s*\($")
_NO_NAME = {"if", "for", "while", "switch", "return", "sizeof", "decltype", "static_assert", "alignas", "noexcept",
            "requires", "defined", "__attribute__"}


def _function_name(head):
    """The name that a piece at namespace scope declares as a function, or None."""
    head = re.sub(r"^\s*#.*$", "", head, flags=re.M)
    head = re.sub(r"\[\[[^\]]*\]\]", " ", head).strip()
    if not head or re.match(r"(using|typedef|friend|extern \"C\"|static_assert|template\s*<[^{]*>\s*(class|struct)\b)", head):
        return None
    if re.match(r"(template\s*<.*?>\s*)?(class|struct|enum|union|namespace)\b[^()]*$", head, re.S):
        return None
    opening = head.find("(")
    if opening < 0 or "=" in head[:opening].replace("operator=", "").replace("==", ""):
        return None
    match = _NAMED.search(head[:opening + 1])
    if not match or match.group(1) in _NO_NAME or not head[:match.start()].strip():
        return None
    return match.group(1)


class Function:
    def __init__(self, name, line, lines, defined, hidden):
        self.name, self.line, self.lines = name, line, lines  # lines: of the body, 0 for a declaration
        self.defined, self.hidden = defined, hidden  # hidden: in an anonymous namespace or static


def functions(text):
    """What is declared and defined at namespace scope; members defined outside their class are named
    "Class::member"."""
    text = blank(text)
    found, scopes, start, at = [], [], 0, 0
    while at < len(text):
        letter = text[at]
        if letter == "#" and not text[start:at].strip():  # a line for the preprocessor
            while at < len(text) and text[at] != "\n":
                at += 2 if text[at] == "\\" else 1
            start = at
        elif letter == "{":
            head = text[start:at].strip()
            if re.search(r"\bnamespace(\s+[\w:]+)?$", head):
                scopes.append("hidden" if head.endswith("namespace") else "named")
                start = at + 1
            else:
                end = _matching(text, at)
                name = _function_name(text[start:at])
                hidden = "hidden" in scopes or head.startswith("static ")
                if name:
                    first = text.count("\n", 0, at) + 1
                    found.append(Function(name, first, text.count("\n", at, end) + 1, True, hidden))
                    start = end + 1
                elif not re.search(r"[=,(]\s*$", text[start:at]):  # a type; the rest belongs to a value
                    start = end + 1
                at = end
        elif letter == "}":
            if scopes:
                scopes.pop()
            start = at + 1
        elif letter == ";":
            head = text[start:at]
            name = _function_name(head)
            if name:
                line = text.count("\n", 0, at) + 1
                found.append(Function(name, line, 0, False, "hidden" in scopes or head.strip().startswith("static ")))
            start = at + 1
        at += 1
    return found


def _matching(text, at):
    depth = 0
    for place in range(at, len(text)):
        depth += {"{": 1, "}": -1}.get(text[place], 0)
        if depth == 0:
            return place
    return len(text) - 1


def opening_paragraph(text):
    """The comment that a header opens with, as one line."""
    lines = []
    for line in text.splitlines():
        if not line.startswith("//"):
            break
        if not line.strip("/ "):
            break
        lines.append(line.lstrip("/ ").rstrip())
    return " ".join(lines)
