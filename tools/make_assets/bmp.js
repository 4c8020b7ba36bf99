// Pictures of 8 bits a pixel as BMP files.

// Bytes of a BMP: 40-byte header, palette of 256 entries, rows bottom-up. Palette: up to 256 [red, green, blue];
// indices: one byte a pixel, rows from the top.
export function encodeBmp(width, height, palette, indices) {
    const stride = (width + 3) & ~3;
    const firstPixel = 14 + 40 + 4 * 256;
    const bytes = Buffer.alloc(firstPixel + stride * height);
    bytes.write("BM", 0, "latin1");
    bytes.writeUInt32LE(bytes.length, 2);
    bytes.writeUInt32LE(firstPixel, 10);
    bytes.writeUInt32LE(40, 14);
    bytes.writeInt32LE(width, 18);
    bytes.writeInt32LE(height, 22);
    bytes.writeUInt16LE(1, 26); // planes
    bytes.writeUInt16LE(8, 28); // bits a pixel
    bytes.writeUInt32LE(stride * height, 34);
    bytes.writeUInt32LE(256, 46); // colours in the palette
    palette.forEach(([red, green, blue], entry) => bytes.set([blue, green, red, 0], 54 + 4 * entry));
    for (let y = 0; y < height; ++y) {
        bytes.set(indices.subarray(y * width, (y + 1) * width), firstPixel + (height - 1 - y) * stride);
    }
    return bytes;
}
