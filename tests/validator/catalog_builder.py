# SPDX-License-Identifier: MIT
"""Writes compiled asset catalogues: names, sizes and flags as in real ones, but no meaningful pixels."""

import struct

TOKENS = [7, 13, 12, 15, 16, 2, 17]  # appearance, localization, scale, idiom, subtype, part, identifier
IDIOMS = ["universal", "phone", "pad", "tv", "car", "watch", "marketing", "mac", "vision"]
PICTURE, RAW, ATLAS_LINK, ATLAS, SET = 12, 1000, 1003, 1004, 1010
LEAF_SIZE = 4


class Bom:
    def __init__(self):
        self.blocks = [b""]
        self.names = {}

    def add(self, content, name=None):
        self.blocks.append(content)
        number = len(self.blocks) - 1
        if name:
            self.names[name] = number
        return number

    def tree(self, name, pairs):
        """Leaves of a few pairs each, and one node above them if there are several."""
        groups = [pairs[at:at + LEAF_SIZE] for at in range(0, len(pairs), LEAF_SIZE)] or [[]]
        placed = [[(self.add(value), self.add(key)) for key, value in group] for group in groups]
        first = len(self.blocks)
        for index, group in enumerate(placed):
            forward = first + index + 1 if index + 1 < len(placed) else 0
            backward = first + index - 1 if index else 0
            node = struct.pack(">HHII", 1, len(group), forward, backward)
            self.add(node + b"".join(struct.pack(">II", value, key) for value, key in group))
        child = first
        if len(placed) > 1:
            node = struct.pack(">HHII", 0, len(placed) - 1, 0, 0)
            for index in range(len(placed) - 1):
                node += struct.pack(">II", first + index, placed[index][-1][1])
            child = self.add(node + struct.pack(">I", first + len(placed) - 1))
        self.add(b"tree" + struct.pack(">IIIIB", 1, child, 4096, len(pairs), 0), name)

    def bytes(self):
        body = bytes(512)
        places = []
        for block in self.blocks:
            places.append((len(body) if block else 0, len(block)))
            body += block
        index = struct.pack(">I", len(places)) + b"".join(struct.pack(">II", *place) for place in places)
        names = struct.pack(">I", len(self.names))
        for name, number in self.names.items():
            names += struct.pack(">IB", number, len(name)) + name.encode()
        head = b"BOMStore" + struct.pack(">IIIIII", 1, len(self.blocks) - 1, len(body), len(index),
                                         len(body) + len(index), len(names))
        return head + body[len(head):] + index + names


def csi(name, width, height, scale, layout, pixel_format, payload, chain=b""):
    content = b"ISTC" + struct.pack("<IIIII", 1, 0, width, height, scale * 100)
    content += bytes(reversed(pixel_format.encode())) + struct.pack("<I", 1) + bytes(4) + struct.pack("<HH", layout, 0)
    content += name.encode().ljust(128, b"\0") + struct.pack("<III", len(chain), 1, 0) + struct.pack("<I", len(payload))
    return content + chain + payload


def elements(opaque):
    return b"MLEC" + struct.pack("<III", 2 if opaque else 0, 0, 4) + b"bvx$"


def jpeg(width, height):
    """A gray picture: every block says with two bits that it is like the one before."""
    def huffman(table):
        return b"\xff\xc4\0\x14" + bytes([table, 1]) + bytes(15 + 1)

    blocks = -(-width // 8) * -(-height // 8)
    return (b"\xff\xd8\xff\xe0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0" + b"\xff\xdb\0\x43\0" + b"\1" * 64
            + b"\xff\xc0\0\x0b\x08" + struct.pack(">HH", height, width) + b"\1\1\x11\0" + huffman(0) + huffman(0x10)
            + b"\xff\xda\0\x08\1\1\0\0\x3f\0" + bytes(-(-blocks // 4)) + b"\xff\xd9")


def rendition(facet, name, width, height, scale=1, idiom="universal", appearance=0, part=220, opaque=True, layout=PICTURE,
              pixel_format="ARGB"):
    """A pair for `catalog`: the parts of the key, and the entry."""
    payload = elements(opaque)
    chain = b""
    if pixel_format == "JPEG":
        data = jpeg(width, height)
        payload = b"DWAR" + struct.pack("<II", 1, len(data)) + data
        width = height = 0
    elif layout == ATLAS_LINK:
        chain = struct.pack("<III", 1010, 1, 28 + 4) + b"KLNI" + struct.pack("<IIIII", 0, 0, 0, width, height)
        chain += struct.pack("<HH", ATLAS_LINK, 4) + bytes(4)
        payload = b""
    elif layout == SET:
        payload = b"SISM" + struct.pack("<II", 1, 1) + struct.pack("<IIHH", width, height, 1, 1)
        width = height = 0
    numbers = {7: appearance, 12: scale, 15: IDIOMS.index(idiom), 2: part}
    return (facet, numbers, csi(name, width, height, scale if layout != SET else 0, layout, pixel_format, payload, chain))


def catalog(renditions, appearances=("UIAppearanceDark",), tool="Xcode 26.0 (17A324) via AssetCatalogSimulatorAgent"):
    facets = {}
    for facet, _, _ in renditions:
        if facet:
            facets.setdefault(facet, len(facets) + 100)
    bom = Bom()
    head = b"RATC" + struct.pack("<IIII", 971, 17, 0, len(renditions)) + bytes(128 + 256 + 16 + 16)
    bom.add(head, "CARHEADER")
    bom.add(b"META" + bytes(256) + b"15.0".ljust(256, b"\0") + b"ios".ljust(256, b"\0") + tool.encode().ljust(256, b"\0"),
            "EXTENDED_METADATA")
    bom.add(b"tmfk" + struct.pack("<II", 0, len(TOKENS)) + struct.pack(f"<{len(TOKENS)}I", *TOKENS), "KEYFORMAT")
    pairs = []
    for facet, numbers, entry in renditions:
        numbers = numbers | {17: facets.get(facet, 0)}
        pairs.append((struct.pack(f"<{len(TOKENS)}H", *[numbers.get(token, 0) for token in TOKENS]), entry))
    bom.tree("RENDITIONS", pairs)
    bom.tree("FACETKEYS", [(name.encode(), struct.pack("<HHH", 0, 0, 3) + struct.pack(
        "<HHHHHH", 1, 85, 2, 220, 17, number)) for name, number in facets.items()])
    bom.tree("APPEARANCEKEYS", [(name.encode(), struct.pack("<H", number + 1)) for number, name in enumerate(appearances)])
    return bom


def app_icon(opaque=True, size=1024, facet="AppIcon", idioms=("phone", "pad"), dark=True, pixel_format="ARGB"):
    """The icon of an app as current tools build it."""
    entries = []
    for idiom in idioms:
        entries.append(rendition(facet, facet, size, size, idiom=idiom, part=218, layout=SET, pixel_format="\0\0\0\0"))
        entries.append(rendition(facet, "icon.png", size, size, idiom=idiom, opaque=opaque, pixel_format=pixel_format))
        if dark:
            entries.append(rendition(facet, "dark.png", size, size, idiom=idiom, appearance=1, opaque=False))
    return entries
