// What every map pixel is: a country or water. Great lakes count as water.

import { countryOfPixels } from './countries.js';
import { eachNeighbour, height, north, rowsPerDegree, width } from './geometry.js';

export const lakePixels = 6; // smaller inland waters are left out

// Country index of each map pixel, -1 for sea and lakes.
export function landPixels(raster) {
    const country = countryOfPixels();
    const wet = country.map((number, pixel) => (number >= 0 && waterShare(raster, pixel) >= 0.5 ? 1 : 0));
    for (const lake of inlandWaters(wet, country)) for (const pixel of lake) country[pixel] = -1;
    return country;
}

// Share of a map pixel that the raster shows as water.
function waterShare(raster, pixel) {
    let water = 0;
    let all = 0;
    eachRasterPixel(raster, pixel % width, Math.floor(pixel / width), 0, (index) => {
        water += raster.water[index];
        ++all;
    });
    return water / all;
}

// Calls visit(raster pixel index) for the raster pixels under a map pixel and so many more on every side.
export function eachRasterPixel(raster, column, row, margin, visit) {
    const perColumn = raster.width / width;
    const perRow = raster.height / 180 / rowsPerDegree;
    const top = (90 - north) * (raster.height / 180);
    const firstY = Math.max(Math.round(top + row * perRow) - margin, 0);
    const lastY = Math.min(Math.round(top + (row + 1) * perRow) - 1 + margin, raster.height - 1);
    const firstX = Math.round(column * perColumn) - margin;
    const lastX = Math.round((column + 1) * perColumn) - 1 + margin;
    for (let y = firstY; y <= lastY; ++y)
        for (let x = firstX; x <= lastX; ++x) visit(y * raster.width + ((x + raster.width) % raster.width));
}

// Connected sets of wet pixels that are large enough and nowhere touch the sea: bays and fjords are no lakes.
function inlandWaters(wet, country) {
    const lakes = [];
    const seen = new Uint8Array(width * height);
    for (let start = 0; start < wet.length; ++start) {
        if (!wet[start] || seen[start]) continue;
        const lake = [start];
        let coastal = false;
        seen[start] = 1;
        for (const pixel of lake)
            eachNeighbour(pixel, (next) => {
                if (country[next] < 0) coastal = true;
                if (!wet[next] || seen[next]) return;
                seen[next] = 1;
                lake.push(next);
            });
        if (!coastal && lake.length >= lakePixels) lakes.push(lake);
    }
    return lakes;
}
