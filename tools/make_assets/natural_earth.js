// The Natural Earth II raster: 2048 x 1024, geographic, shipped as tiles of 256 whose rows count from the south.

import { createCanvas, loadImage } from '@napi-rs/canvas';
import { createRequire } from 'node:module';
import path from 'node:path';

const packageFolder = path.dirname(createRequire(import.meta.url).resolve('@cesium/engine/package.json'));
const tiles = path.join(packageFolder, 'Source/Assets/Textures/NaturalEarthII/2');
const tileSize = 256;

export async function loadNaturalEarth() {
    const [across, down] = [8, 4];
    const canvas = createCanvas(across * tileSize, down * tileSize);
    const context = canvas.getContext('2d');
    for (let x = 0; x < across; ++x)
        for (let y = 0; y < down; ++y)
            context.drawImage(await loadImage(path.join(tiles, `${x}/${y}.jpg`)),
                x * tileSize, (down - 1 - y) * tileSize);
    const { width, height } = canvas;
    const { data } = context.getImageData(0, 0, width, height);
    return { width, height, data, water: waterOf(data) };
}

// Seas and lakes are the only strongly blue things in the raster: ice shadows and rivers stay below this.
const waterBlueOverRed = 45;

function waterOf(data) {
    const water = new Uint8Array(data.length / 4);
    for (let i = 0; i < water.length; ++i) water[i] = data[4 * i + 2] - data[4 * i] > waterBlueOverRed ? 1 : 0;
    return water;
}
