// The natural map: land in the colours of the Natural Earth II raster.

import { height, width } from './geometry.js';
import { eachRasterPixel } from './land.js';
import { dayAndNight } from './map_pictures.js';
import { quantise } from './quantiser.js';

const night = { seaByNight: [0, 10, 54], darkerBy: 30 };
const landColours = 255;

// The raster is made to lie under other things: stronger colours, and a little darker, so that the night, a fixed
// step below the day, stands out.
const saturation = 1.12;
const contrast = 1.1;
const middle = 150; // level that the contrast leaves as it is
const brightness = 0.9;

export function naturalMap(raster, country) {
    const inland = inlandPixels(raster);
    const pixels = new Uint8Array(width * height);
    const land = [];
    country.forEach((number, pixel) => number >= 0 && land.push(pixel));
    const colours = land.map((pixel) => landColour(raster, inland, pixel));
    const { palette, entries } = quantise(colours, landColours);
    entries.forEach((entry, i) => (pixels[land[i]] = 1 + entry));
    const errors = colours.map((colour, i) => colour.reduce((sum, v, c) => sum + (v - palette[entries[i]][c]) ** 2, 0));
    console.log(`natural map: ${land.length} land pixels, ${palette.length} colours, root mean square error ` +
        `${Math.sqrt(errors.reduce((a, b) => a + b) / errors.length / 3).toFixed(2)} levels a channel`);
    return dayAndNight(pixels, palette, night);
}

// Raster pixels that are land and touch no water, so that no blue of the sea has bled into them.
export function inlandPixels({ width: columns, height: rows, water }) {
    return water.map((_, index) => {
        const x = index % columns;
        const y = Math.floor(index / columns);
        for (let ny = Math.max(y - 1, 0); ny <= Math.min(y + 1, rows - 1); ++ny)
            for (let nx = x - 1; nx <= x + 1; ++nx) if (water[ny * columns + ((nx + columns) % columns)]) return 0;
        return 1;
    });
}

// Raster pixels round the map pixel that are searched for land, in turn.
export const searchMargins = [0, 1, 2, 4, 8, 16, 32];
export const atollColour = [150, 176, 92]; // of lone islands that the raster is too coarse for

// Mean colour of the inland that the raster shows at a map pixel or, if it shows none, near it.
function landColour(raster, inland, pixel) {
    for (const margin of searchMargins) {
        const sum = [0, 0, 0];
        let count = 0;
        eachRasterPixel(raster, pixel % width, Math.floor(pixel / width), margin, (index) => {
            if (!inland[index]) return;
            for (let c = 0; c < 3; ++c) sum[c] += raster.data[4 * index + c];
            ++count;
        });
        if (count > 0) return strengthened(sum.map((value) => value / count));
    }
    return atollColour;
}

export function strengthened(colour) {
    const grey = 0.3 * colour[0] + 0.59 * colour[1] + 0.11 * colour[2];
    return colour.map((value) => {
        const vivid = grey + (value - grey) * saturation;
        const level = ((vivid - middle) * contrast + middle) * brightness;
        return Math.min(Math.max(level, night.darkerBy + 1), 255);
    });
}
