// SPDX-License-Identifier: MIT
// Halves pictures by sharp's defaults and prints the bytes of each, one a line, without writing any.
// usage: node sharp-halves.mjs PICTURE...
import sharp from "sharp";

for (const file of process.argv.slice(2)) {
  const picture = sharp(file);
  const { width, height } = await picture.metadata();
  const half = (pixels) => Math.max(1, Math.floor(pixels / 2));
  console.log((await picture.resize(half(width), half(height)).png().toBuffer()).length);
}
