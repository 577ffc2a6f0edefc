#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_catalogs.py FOLDER   Compiled asset catalogues, each named for its form or fault."""

import struct
import sys
from pathlib import Path

from catalog_builder import ATLAS, ATLAS_LINK, app_icon, catalog, rendition
from macho_builder import patched_bytes


def number(value):
    return struct.pack(">I", value)


def main():
    out = Path(sys.argv[1])
    bom = catalog(app_icon())
    good = bom.bytes()

    def with_block(name, change):
        made = catalog(app_icon())
        place = made.names[name]
        made.blocks[place] = change(made, made.blocks[place])
        return made.bytes()

    def loop(made, tree):
        # The first leaf's successor is itself.
        child = struct.unpack_from(">I", tree, 8)[0]
        leaf = struct.unpack_from(">I", made.blocks[child], 12)[0]
        made.blocks[leaf] = patched_bytes(made.blocks[leaf], 4, number(leaf))
        return tree

    def self_tree(made, tree):
        return patched_bytes(tree, 8, number(made.names["RENDITIONS"]))

    def node_of_itself(made, tree):
        child = struct.unpack_from(">I", tree, 8)[0]
        made.blocks[child] = patched_bytes(made.blocks[child], 12, number(child))
        return tree

    def cut_entries(made, tree):
        child = struct.unpack_from(">I", tree, 8)[0]
        leaf = struct.unpack_from(">I", made.blocks[child], 12)[0]
        value = struct.unpack_from(">I", made.blocks[leaf], 12)[0]
        made.blocks[value] = made.blocks[value][:100]
        return tree

    def too_many(made, tree):
        child = struct.unpack_from(">I", tree, 8)[0]
        leaf = struct.unpack_from(">I", made.blocks[child], 12)[0]
        made.blocks[leaf] = patched_bytes(made.blocks[leaf], 2, b"\xff\xff")
        return tree

    def entry_as_name(made, tree):
        leaf = struct.unpack_from(">I", tree, 8)[0]
        child = struct.unpack_from(">I", made.blocks[made.names["RENDITIONS"]], 8)[0]
        entries = struct.unpack_from(">I", made.blocks[child], 12)[0]
        made.blocks[leaf] = patched_bytes(made.blocks[leaf], 16, made.blocks[entries][12:16])
        return tree

    index = struct.unpack_from(">I", good, 16)[0]
    files = {
        "app icon": good,
        "app icon, translucent": catalog(app_icon(opaque=False)).bytes(),
        "app icon as jpeg": catalog([rendition("AppIcon", "icon.jpg", 1024, 1024, idiom="phone", pixel_format="JPEG")]).bytes(),
        "atlas links": catalog([
            rendition("AppIcon", "icon@2x.png", 120, 120, 2, "phone", layout=ATLAS_LINK),
            rendition("", "ZZZZPackedAsset-2.0.0", 512, 512, 2, "phone", part=181, layout=ATLAS, opaque=False)]).bytes(),
        "many pictures": catalog([rendition(f"picture {n}", f"p{n}.png", n + 1, n + 2, 2, part=181) for n in range(40)]).bytes(),
        "no catalogue": b"BOMStore" + bytes(100),
        "text": b"text",
        "nothing": b"",
        "cut off": good[:700],
        "a leaf that follows itself": with_block("RENDITIONS", loop),
        "a tree that is its own node": with_block("RENDITIONS", self_tree),
        "a node that is its own child": with_block("RENDITIONS", node_of_itself),
        "an entry that is cut off": with_block("RENDITIONS", cut_entries),
        "an entry as a name": with_block("FACETKEYS", entry_as_name),
        "more pairs than the leaf holds": with_block("RENDITIONS", too_many),
        "key format without end": with_block("KEYFORMAT", lambda made, block: patched_bytes(block, 8, b"\xff\xff\xff\xff")),
        "blocks without end": patched_bytes(good, index, number(0xFFFFFFFF)),
        "a block past the end": with_block("FACETKEYS", lambda made, block: patched_bytes(block, 8, number(0xFFFFFF))),
        "names past the end": patched_bytes(good, 24, number(0xFFFFFFF0)),
    }
    for name, content in files.items():
        (out / name).write_bytes(content)


if __name__ == "__main__":
    main()
