# SPDX-License-Identifier: MIT
"""Reads which file includes which, and says where that crosses a border between the folders.

The borders, for what a file includes directly or through any number of headers:
  - an engine reaches no Qt Widgets and no file of a widget library;
  - widgets/ reaches no tool, no app/, no cli/;
  - a tool's pane reaches no other tool's pane and nothing of the window around it;
  - what panes stand on (lumora_tool) reaches no pane;
  - foundation/ reaches nothing but itself, resources/ nothing but foundation/.
CMake checks the same for what is linked; an include can cross a border that the linker never sees.
"""
import re
from pathlib import Path

FOLDERS = ["app", "icons", "placeholders", "resizer", "color", "devices", "validator", "widgets", "cli", "foundation", "resources"]
TOOLS = ["icons", "placeholders", "resizer", "color", "devices", "validator"]
TARGET = re.compile(r"^\s*(lumora_engine|lumora_widget_library|add_library|add_executable|qt_add_executable|target_sources)\(\s*([\w-]+)\s([^)]*)\)", re.M)
SOURCE = re.compile(r"[\w./]+\.(?:cpp|h)\b")
INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)', re.M)


def source_files(root):
    for folder in FOLDERS:
        for pattern in ("*.h", "*.cpp"):
            yield from sorted((root / folder).rglob(pattern))


def targets(root):
    """Which CMake target, and of which kind, each source file belongs to."""
    owners = {}
    for folder in FOLDERS:
        for listing in sorted((root / folder).rglob("CMakeLists.txt")):
            text = re.sub(r"#.*", "", listing.read_text())
            for kind, name, arguments in TARGET.findall(text):
                for source in SOURCE.findall(arguments):
                    owners[(listing.parent / source).resolve()] = (name, kind)
    return owners


def includes(file, root):
    """The project's files and the system's headers that a file names; generated headers are neither."""
    own, system = [], []
    for quoted, bracketed in INCLUDE.findall(file.read_text(encoding="utf-8")):
        if bracketed:
            system.append(bracketed)
            continue
        for place in (file.parent / quoted, root / quoted):
            if place.exists():
                own.append(place.resolve())
                break
    return own, system


def violations(root, widget_headers):
    """One sentence for each border crossed; `widget_headers` are the names of Qt Widgets' headers."""
    root = Path(root).resolve()
    owners = targets(root)
    graph = {file.resolve(): includes(file, root) for file in source_files(root)}

    def reached(start):
        """Everything that including leads to, each with the chain that leads there."""
        open_files, seen = [(start, [start])], {start}
        while open_files:
            file, chain = open_files.pop()
            own, system = graph.get(file, ([], []))
            yield from ((header, None, chain) for header in system)
            for target in own:
                if target not in seen:
                    seen.add(target)
                    yield str(target.relative_to(root)), owners.get(target), chain
                    open_files.append((target, chain + [target]))

    for file in graph:
        folder = file.relative_to(root).parts[0]
        name, kind = owners.get(file, ("", ""))
        for target, owner, chain in reached(file):
            why = crossing(folder, name, kind, target, owner, widget_headers)
            if why:
                through = "".join(f" through {step.relative_to(root)}" for step in chain[1:])
                yield f"{file.relative_to(root)} includes {target}{through}: {why}"


def crossing(folder, name, kind, target, owner, widget_headers):
    """Why a file of target `name` in `folder` may not reach `target`, or nothing."""
    owner_name, owner_kind = owner or ("", "")
    target_folder = target.split("/")[0] if "/" in target else ""
    if kind == "lumora_engine" and (target.split("/")[-1] in widget_headers or owner_kind == "lumora_widget_library"):
        return "engines know no widgets"
    if folder == "widgets" and target_folder in [*TOOLS, "app", "cli"]:
        return "the widget kit knows no tool"
    if name.endswith("_pane"):
        if owner_name.endswith("_pane") and owner_name != name:
            return "a tool knows no other tool's pane"
        if owner_name == "lumora_shell":
            return "a pane knows nothing of the window around it"
    if name == "lumora_tool" and (owner_name.endswith("_pane") or owner_name == "lumora_shell"):
        return "what panes stand on knows no pane"
    if folder == "foundation" and target_folder in FOLDERS and target_folder != folder:
        return "the foundation stands on nothing"
    if folder == "resources" and target_folder in FOLDERS and target_folder not in (folder, "foundation"):
        return "resources stand on the foundation only"
    return ""


def orphans(root):
    """Source files that no target lists: nobody compiles or includes them by way of the build."""
    root = Path(root).resolve()
    owners = targets(root)
    return [str(file.relative_to(root)) for file in source_files(root) if file.resolve() not in owners]
