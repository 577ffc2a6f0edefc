# SPDX-License-Identifier: MIT
"""Reads which file includes which, and names every include that crosses a border between the folders.

The borders, for what a file includes directly or through any number of headers:
  - a folder reaches only itself and folders on lower floors (FLOORS);
  - an engine reaches no Qt Widgets and no file of a widget library;
  - a tool reaches no other tool, neither its engine nor its pane.
No two rooms (folders of the tree) include each other over any way round, and neither do two files.
CMake checks the same for what is linked; an include can cross a border that the linker never sees.
"""
import re
from pathlib import Path

# From the ground up. A folder includes no other folder of its own floor.
FLOORS = [
    ["foundation"],
    ["pictures", "resources"],
    ["widgets"],
    ["tool"],
    ["icons", "placeholders", "resizer", "color", "devices", "validator"],
    ["cli"],
    ["app"],
]
FOLDERS = [folder for floor in FLOORS for folder in floor]
TOOLS = FLOORS[4]
FLOOR_OF = {folder: number for number, floor in enumerate(FLOORS) for folder in floor}
TARGET = re.compile(r"^\s*(lumora_engine|lumora_widget_library|add_library|add_executable|qt_add_executable|target_sources)\(\s*([\w-]+)\s([^)]*)\)", re.M)
SOURCE = re.compile(r"[\w./]+\.(?:cpp|h)\b")
INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)', re.M)


def source_files(root):
    for folder in FOLDERS:
        for pattern in ("*.h", "*.cpp"):
            yield from sorted((root / folder).rglob(pattern))


def targets(root):
    """The CMake target of each source file, and the target's kind."""
    owners = {}
    for folder in FOLDERS:
        for listing in sorted((root / folder).rglob("CMakeLists.txt")):
            text = re.sub(r"#.*", "", listing.read_text())
            for kind, name, arguments in TARGET.findall(text):
                for source in SOURCE.findall(arguments):
                    owners[(listing.parent / source).resolve()] = (name, kind)
    return owners


def includes(file, root):
    """The project's files and the system's headers that a file includes; generated headers are neither."""
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
        """Everything that is included directly or indirectly, each with its chain of includes."""
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
    """Why a file of target `name` in `folder` may not reach `target`; empty if it may."""
    owner_name, owner_kind = owner or ("", "")
    target_folder = target.split("/")[0] if "/" in target else ""
    if kind == "lumora_engine" and (target.split("/")[-1] in widget_headers or owner_kind == "lumora_widget_library"):
        return "engines know no widgets"
    if target_folder == folder or target_folder not in FLOOR_OF:
        return ""
    if folder in TOOLS and target_folder in TOOLS:
        return "a tool knows no other tool"
    if FLOOR_OF[target_folder] > FLOOR_OF[folder]:
        return f"{folder}/ is below {target_folder}/"
    if FLOOR_OF[target_folder] == FLOOR_OF[folder]:
        return f"{folder}/ is on one floor with {target_folder}/"
    return ""


def direct_includes(root):
    """For each source file the project's files that it includes directly, all as paths from the root."""
    root = Path(root).resolve()
    return {
        str(file.relative_to(root)): [str(own.relative_to(root)) for own in includes(file, root)[0]]
        for file in source_files(root)
    }


def circles(root):
    """One sentence for each circle, of files and of rooms."""
    files = direct_includes(root)
    owners = {str(file.relative_to(Path(root).resolve())): name for file, (name, _) in targets(root).items()}

    def room_of(file):
        """A tool's folder is two rooms, its engine and its pane."""
        return f"{Path(file).parent} ({owners.get(file, '')})"

    rooms = {}
    for file, targets_of_file in files.items():
        rooms.setdefault(room_of(file), set()).update(map(room_of, targets_of_file))
        rooms[room_of(file)].discard(room_of(file))
    for graph in (files, rooms):
        for circle in circles_of(graph):
            yield f"{' -> '.join([*circle, circle[0]])}: a circle"


def circles_of(graph):
    """Each set of nodes that reach one another, as one cycle through them (Tarjan's strongly connected components)."""
    index, low, stack, on_stack, found = {}, {}, [], set(), []

    def visit(node):
        index[node] = low[node] = len(index)
        stack.append(node)
        on_stack.add(node)
        for target in graph.get(node, ()):
            if target not in index:
                visit(target)
                low[node] = min(low[node], low[target])
            elif target in on_stack:
                low[node] = min(low[node], index[target])
        if low[node] == index[node]:
            component = []
            while True:
                member = stack.pop()
                on_stack.discard(member)
                component.append(member)
                if member == node:
                    break
            if len(component) > 1 or node in graph.get(node, ()):
                found.append(sorted(component))

    for node in sorted(graph):
        if node not in index:
            visit(node)
    return found


def orphans(root):
    """Source files that no target lists, so that the build never compiles them."""
    root = Path(root).resolve()
    owners = targets(root)
    return [str(file.relative_to(root)) for file in source_files(root) if file.resolve() not in owners]
