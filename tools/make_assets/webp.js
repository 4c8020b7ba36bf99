// WebP pictures, by the program cwebp of Debian's package webp.

import { execFileSync } from 'node:child_process';

// pixels: red, green, blue from the top row down; options: cwebp's own.
export function encodeWebp(width, height, pixels, options) {
    const input = Buffer.concat([Buffer.from(`P6\n${width} ${height}\n255\n`), Uint8Array.from(pixels)]);
    return execFileSync('cwebp', ['-quiet', '-m', '6', ...options, '-o', '-', '--', '-'],
        { input, maxBuffer: 2 ** 26 });
}
