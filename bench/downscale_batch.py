#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Halves 200 mixed double-resolution pictures with Lumora and with its peers, whole processes in one run.

usage: bench/downscale_batch.py LUMORA [--runs N] [--keep FOLDER] [--peer NAME ...]

ImageMagick makes the pictures from fixed seeds. npm installs sharp into a temporary folder. vipsthumbnail
has no percentage: it gets the box in which its pictures have the same total of pixels as the halves.
Prints times and processor times (user and system; best of the runs, taken in turns), the bytes written, and Lumora's
ratio to each peer. The processor time hardly depends on what else the machine is doing.
"""
import argparse
import os
import resource
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SHARP = """
const sharp = require('sharp'), fs = require('fs'), path = require('path');
const [source, target] = process.argv.slice(1);
Promise.all(fs.readdirSync(source).map(async name => {
  const picture = sharp(path.join(source, name));
  const {width, height} = await picture.metadata();
  await picture.resize(Math.floor(width / 2), Math.floor(height / 2)).toFile(
      path.join(target, name.replace('@2x', '')));
}));
"""

PHOTO = ["-attenuate", "0.1", "+noise", "Gaussian"]


def drawing(width, height, number):
    """A rounded button with a gradient, a disc and a stroke on a transparent background."""
    hue = number * 47 % 360
    inset = max(2, min(width, height) // 12)
    radius = min(width, height) // 6
    return ["-size", f"{width}x{height}", f"gradient:hsl({hue},70%,60%)-hsl({hue},80%,40%)",
            "(", "-size", f"{width}x{height}", "xc:none", "-fill", "white", "-draw",
            f"roundrectangle {inset},{inset} {width - inset},{height - inset} {radius},{radius}", ")",
            "-alpha", "set", "-compose", "DstIn", "-composite", "-compose", "Over",
            "-fill", f"hsl({hue + 180},60%,80%)", "-stroke", "white", "-strokewidth", "3", "-draw",
            f"circle {width // 2},{height // 2} {width // 2},{height // 4}"]


def photo(width, height, number):
    return ["-seed", str(number), "-size", f"{width}x{height}", "plasma:fractal", *PHOTO]


# (number, kind, sizes in turn, appended arguments, PNG flavor)
MIX = [
    (50, drawing, [(58, 58), (80, 80), (88, 88), (120, 120), (152, 152)], [], "PNG32"),
    (40, drawing, [(200, 88), (320, 100), (560, 120), (640, 180)], [], "PNG32"),
    (20, drawing, [(128, 128), (257, 131)], ["-colors", "200"], "PNG8"),
    (10, photo, [(320, 320), (480, 300)], ["-colorspace", "Gray", "-depth", "8"], "PNG"),
    (10, photo, [(300, 300), (512, 384)], ["-depth", "16"], "PNG48"),
    (40, photo, [(640, 960), (640, 1136), (960, 640), (750, 1334)], [], "PNG24"),
    (20, drawing, [(640, 960), (1242, 1242)], [], "PNG32"),
    (10, photo, [(1536, 2048), (2048, 1536)], [], "PNG24"),
]


def make_pictures(folder):
    halves = 0
    sizes = []
    number = 0
    for count, kind, dimensions, more, flavor in MIX:
        for i in range(count):
            width, height = dimensions[i % len(dimensions)]
            subprocess.run(["convert", *kind(width, height, number), *more, "-strip",
                            f"{flavor}:{folder}/picture{number:03}@2x.png"], check=True)
            sizes.append((width, height))
            halves += (width // 2) * (height // 2)
            number += 1
    return sizes, halves


def box_of_as_many_pixels(sizes, wanted):
    """The square box for which the pictures, only shrunk, have that many pixels in total."""
    def pixels(box):
        total = 0
        for width, height in sizes:
            scale = min(1, box / width, box / height)
            total += round(width * scale) * round(height * scale)
        return total
    return min(range(16, 2049), key=lambda box: abs(pixels(box) - wanted))


def processor_time_of_children():
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


def bytes_in(folder):
    return sum(file.stat().st_size for file in Path(folder).iterdir())


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("lumora")
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("--keep", help="folder for pictures, results and sharp; used again when it exists")
    parser.add_argument("--peer", action="append", choices=["mogrify", "vipsthumbnail", "sharp"],
                        help="compare with this one only; may be given several times")
    options = parser.parse_args()
    lumora = str(Path(options.lumora).resolve())
    scratch = Path(options.keep or tempfile.mkdtemp(prefix="lumora-bench-")).resolve()
    source = scratch / "source"
    if source.exists():
        shutil.rmtree(source)
    source.mkdir(parents=True)
    sizes, halves = make_pictures(source)
    if not (scratch / "node_modules" / "sharp").exists():
        subprocess.run(["npm", "install", "--silent", "--prefix", str(scratch), "sharp"], check=True)

    names = sorted(str(file) for file in source.iterdir())
    box = box_of_as_many_pixels(sizes, halves)

    def peers(target):
        return {
            "lumora": [lumora, "downscale", str(source), "--to", target],
            "mogrify": ["mogrify", "-path", target, "-resize", "50%", *names],
            "vipsthumbnail": ["vipsthumbnail", "--size", f"{box}x{box}>", "-o", f"{target}/%s.png", *names],
            "sharp": ["node", "-e", SHARP, str(source), target],
        }

    compared = options.peer or list(peers(""))
    best = {name: float("inf") for name in peers("") if name == "lumora" or name in compared}
    processor = dict(best)
    size = {}
    for _ in range(options.runs):
        for name in best:
            target = scratch / name
            if target.exists():
                shutil.rmtree(target)
            target.mkdir()
            start = time.perf_counter()
            used = processor_time_of_children()
            subprocess.run(peers(str(target))[name], check=True, stdout=subprocess.DEVNULL, cwd=scratch,
                           env={**os.environ, "NODE_PATH": str(scratch / "node_modules")})
            best[name] = min(best[name], time.perf_counter() - start)
            processor[name] = min(processor[name], processor_time_of_children() - used)
            size[name] = bytes_in(target)
            written = len(list(target.iterdir()))
            if written != len(names):
                sys.exit(f"{name} wrote {written} of {len(names)} files")

    print(f"{len(names)} pictures, {halves / 1e6:.1f} million pixels in the halves; best of {options.runs} runs")
    for name, seconds in best.items():
        print(f"{name:14} {seconds * 1000:6.0f} ms  {processor[name] * 1000:6.0f} ms of processor  "
              f"{size[name] / 1e6:6.2f} MB   Lumora takes {best['lumora'] / seconds:.2f} of the time, "
              f"{processor['lumora'] / processor[name]:.2f} of the processor, {size['lumora'] / size[name]:.2f} of the bytes")
    if not options.keep:
        shutil.rmtree(scratch)


if __name__ == "__main__":
    main()
