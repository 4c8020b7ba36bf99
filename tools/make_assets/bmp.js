// Eight-bit BMP with a full palette, a 40-byte header and rows from the bottom up.

const headerBytes = 14 + 40;
const paletteBytes = 256 * 4;
const pixelsPerMetre = 2835; // 72 to the inch

// pixels: palette indexes from the top row down; palette: up to 256 [red, green, blue].
export function encodeBmp({ width, height, pixels, palette }) {
    const stride = (width + 3) & ~3;
    const file = Buffer.alloc(headerBytes + paletteBytes + stride * height);
    file.write('BM');
    file.writeUInt32LE(file.length, 2);
    file.writeUInt32LE(headerBytes + paletteBytes, 10);
    file.writeUInt32LE(40, 14);
    file.writeInt32LE(width, 18);
    file.writeInt32LE(height, 22);
    file.writeUInt16LE(1, 26); // planes
    file.writeUInt16LE(8, 28); // bits a pixel
    file.writeUInt32LE(stride * height, 34);
    file.writeInt32LE(pixelsPerMetre, 38);
    file.writeInt32LE(pixelsPerMetre, 42);
    file.writeUInt32LE(256, 46); // palette entries
    palette.forEach(([red, green, blue], i) => file.set([blue, green, red, 0], headerBytes + i * 4));
    for (let row = 0; row < height; ++row)
        file.set(pixels.subarray(row * width, (row + 1) * width),
            headerBytes + paletteBytes + (height - 1 - row) * stride);
    return file;
}
