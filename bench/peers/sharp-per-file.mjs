// SPDX-License-Identifier: MIT
// The way icon generators use sharp: one pipeline a file, from the source file to the icon file, all started at once.
// usage: node sharp-per-file.mjs SOURCE FOLDER SIZE...
import sharp from "sharp";

const [source, folder, ...sizes] = process.argv.slice(2);
await Promise.all(
  sizes.map((size, index) => sharp(source).resize(Number(size), Number(size)).png().toFile(`${folder}/${index}.png`)),
);
