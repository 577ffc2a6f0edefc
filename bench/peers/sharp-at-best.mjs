// SPDX-License-Identifier: MIT
// sharp at its best: the source is decoded once, each size is made once, all at once, and written under every name.
// usage: node sharp-at-best.mjs SOURCE FOLDER SIZE...
import { writeFile } from "node:fs/promises";
import sharp from "sharp";

const [source, folder, ...sizes] = process.argv.slice(2);
const { data, info } = await sharp(source).raw().toBuffer({ resolveWithObject: true });
const raw = { width: info.width, height: info.height, channels: info.channels };
const files = new Map();
for (const size of sizes) {
  if (!files.has(size)) files.set(size, sharp(data, { raw }).resize(Number(size), Number(size)).png().toBuffer());
}
await Promise.all(sizes.map(async (size, index) => writeFile(`${folder}/${index}.png`, await files.get(size))));
