#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Scales 200 mixed @3x pictures to @2x and 1x with Lumora and with sharp, whole processes in one run.

usage: bench/density_batch.py LUMORA [--runs N] [--sharp FOLDER]

The pictures are those of downscale_batch.py under names of their own. sharp is installed by npm into a scratch folder,
or taken from the given one; all pictures and both sizes are asked of it at once, so that it uses every core. Prints the
best time of the runs, taken in turns, the bytes written, and the ratios.
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

import downscale_batch

SHARP = """
const sharp = require('sharp'), fs = require('fs'), path = require('path');
const [source, target] = process.argv.slice(1);
Promise.all(fs.readdirSync(source).map(async name => {
  const file = path.join(source, name);
  const {width, height} = await sharp(file).metadata();
  const scaled = (factor, mark) => sharp(file)
      .resize(Math.max(1, Math.round(width * factor / 3)), Math.max(1, Math.round(height * factor / 3)), {fit: 'fill'})
      .toFile(path.join(target, name.replace('@3x', mark)));
  await Promise.all([scaled(2, '@2x'), scaled(1, '')]);
}));
"""


def timed(command, **more):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    begin = time.monotonic()
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, **more)
    elapsed = time.monotonic() - begin
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return elapsed, after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def written(folder):
    return sum(path.stat().st_size for path in folder.rglob("*.png"))


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("lumora", type=Path)
    parser.add_argument("--runs", type=int, default=3)
    parser.add_argument("--sharp", type=Path)
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as scratch:
        scratch = Path(scratch)
        source = scratch / "source"
        source.mkdir()
        downscale_batch.make_pictures(source)
        for picture in list(source.iterdir()):
            picture.rename(picture.with_name(picture.name.replace("@2x", "@3x")))
        modules = arguments.sharp or scratch / "npm"
        if not (modules / "node_modules/sharp").exists():
            modules.mkdir(exist_ok=True)
            subprocess.run(["npm", "install", "--silent", "--prefix", modules, "sharp"], check=True)
        best = {}
        sizes = {}
        for run in range(arguments.runs):
            for name in ("lumora", "sharp"):
                target = scratch / f"{name}{run}"
                target.mkdir()
                if name == "lumora":
                    command = [arguments.lumora.resolve(), "downscale", source, "--from", "3x", "--to-scales", "2x,1x",
                               "--layout", "ios", "--out", target, "--quiet"]
                    took = timed(command)
                else:
                    took = timed(["node", "-e", SHARP, source, target],
                                 env=os.environ | {"NODE_PATH": str(modules / "node_modules")})
                assert len(list(target.rglob("*.png"))) == 400, name
                sizes[name] = written(target)
                best[name] = tuple(map(min, best.get(name, took), took))
                shutil.rmtree(target)
        for name, (elapsed, processor) in best.items():
            print(f"{name:8} {elapsed:7.2f} s  {processor:7.2f} s processor  {sizes[name]:>11,} bytes")
        print(f"time {best['lumora'][0] / best['sharp'][0]:.2f}  processor {best['lumora'][1] / best['sharp'][1]:.2f}  "
              f"bytes {sizes['lumora'] / sizes['sharp']:.2f} of sharp's")


if __name__ == "__main__":
    sys.exit(main())
