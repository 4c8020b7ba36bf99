// Greyscale PNG of one bit a pixel.

import { crc32, deflateSync } from 'node:zlib';

// pixels: 1 is white, 0 is black, from the top row down.
export function encodeBitPng(width, height, pixels) {
    const stride = 1 + Math.ceil(width / 8); // a byte that names the row's filter comes first: 0, none
    const rows = Buffer.alloc(stride * height);
    pixels.forEach((bit, i) => {
        const [x, y] = [i % width, Math.floor(i / width)];
        rows[y * stride + 1 + (x >> 3)] |= bit << (7 - (x & 7));
    });
    const header = Buffer.alloc(13);
    header.writeUInt32BE(width, 0);
    header.writeUInt32BE(height, 4);
    header[8] = 1; // bits a pixel, greyscale
    const signature = Buffer.from([0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a]);
    const content = deflateSync(rows, { level: 9 });
    return Buffer.concat([signature, chunk('IHDR', header), chunk('IDAT', content), chunk('IEND', Buffer.alloc(0))]);
}

function chunk(type, content) {
    const name = Buffer.from(type);
    const [length, check] = [Buffer.alloc(4), Buffer.alloc(4)];
    length.writeUInt32BE(content.length);
    check.writeUInt32BE(crc32(Buffer.concat([name, content])));
    return Buffer.concat([length, name, content, check]);
}
