// Natural colours of the land, from the Natural Earth II raster.

import { createRequire } from "node:module";
import { dirname, join } from "node:path";
import { createCanvas, loadImage } from "@napi-rs/canvas";
import { mapHeight, mapWidth } from "./geometry.js";
import { sampleCountries } from "./countries.js";

const rasterWidth = 2048; // pixels, 360 degrees
const rasterHeight = 1024; // pixels, 180 degrees
const tile = 256;
const saturation = 1.12; // the raster is made to lie under other things: a little paler than a map wants to be
const contrast = 1.1;
const brightness = 0.9; // so that the night, a fixed step darker, stands out

async function readRaster() {
    const folder = join(dirname(createRequire(import.meta.url).resolve("@cesium/engine/package.json")),
                        "Source/Assets/Textures/NaturalEarthII/2");
    const context = createCanvas(rasterWidth, rasterHeight).getContext("2d");
    for (let x = 0; x < rasterWidth / tile; ++x) {
        for (let y = 0; y < rasterHeight / tile; ++y) {
            context.drawImage(await loadImage(join(folder, `${x}/${y}.jpg`)), x * tile, rasterHeight - (y + 1) * tile);
        }
    }
    return context.getImageData(0, 0, rasterWidth, rasterHeight).data;
}

// The raster's colours on the rows of the map; where the sea is or touches, the colour of the nearest land.
async function landColours() {
    const raster = await readRaster();
    const rows = Math.round((rasterHeight * 150) / 180);
    const firstRow = (rasterHeight * 10) / 180;
    const fine = 4;
    const owner = sampleCountries(rasterWidth * fine, rows * fine);
    const colours = new Array(rasterWidth * rows).fill(null);
    for (let y = 0; y < rows; ++y) {
        for (let x = 0; x < rasterWidth; ++x) {
            let inland = true;
            for (let dy = 0; dy < fine && inland; ++dy) {
                for (let dx = 0; dx < fine && inland; ++dx) inland = owner[(y * fine + dy) * rasterWidth * fine + x * fine + dx] > 0;
            }
            const place = 4 * (Math.min(rasterHeight - 1, Math.round(firstRow + y)) * rasterWidth + x);
            if (inland) colours[y * rasterWidth + x] = [raster[place], raster[place + 1], raster[place + 2]];
        }
    }
    for (let round = 0; round < 12; ++round) { // the land's colours grow over the coast
        const before = colours.slice();
        before.forEach((colour, place) => {
            if (colour) return;
            const [x, y] = [place % rasterWidth, Math.floor(place / rasterWidth)];
            const near = [];
            for (let dy = -1; dy <= 1; ++dy) {
                for (let dx = -1; dx <= 1; ++dx) {
                    const each = y + dy >= 0 && y + dy < rows
                        ? before[(y + dy) * rasterWidth + ((x + dx + rasterWidth) % rasterWidth)] : null;
                    if (each) near.push(each);
                }
            }
            if (near.length > 0) colours[place] = [0, 1, 2].map((c) => near.reduce((sum, each) => sum + each[c], 0) / near.length);
        });
    }
    return { colours, rows };
}

function livelier(colour) {
    const grey = 0.3 * colour[0] + 0.59 * colour[1] + 0.11 * colour[2];
    return colour.map((level) => {
        const vivid = ((grey + (level - grey) * saturation - 150) * contrast + 150) * brightness;
        return Math.min(255, Math.max(32, vivid));
    });
}

// The colour of each pixel of the map as if it were land.
export async function naturalColours() {
    const { colours, rows } = await landColours();
    const fallback = [150, 160, 130]; // islands far from any land of the raster's
    const result = [];
    for (let y = 0; y < mapHeight; ++y) {
        for (let x = 0; x < mapWidth; ++x) {
            const sum = [0, 0, 0];
            const parts = 3;
            for (let dy = 0; dy < parts; ++dy) {
                for (let dx = 0; dx < parts; ++dx) {
                    const column = Math.floor(((x + (dx + 0.5) / parts) * rasterWidth) / mapWidth);
                    const row = Math.min(rows - 1, Math.floor(((y + (dy + 0.5) / parts) * rows) / mapHeight));
                    const colour = colours[row * rasterWidth + column] ?? fallback;
                    [0, 1, 2].forEach((c) => (sum[c] += colour[c]));
                }
            }
            result.push(livelier(sum.map((level) => level / parts ** 2)));
        }
    }
    return result;
}
