// Country polygons of Natural Earth, 1:50 million, and the share of every map pixel that each one covers.

import { createCanvas } from '@napi-rs/canvas';
import { geoEquirectangular, geoPath } from 'd3-geo';
import { createRequire } from 'node:module';
import { feature, neighbors } from 'topojson-client';
import { columnsPerDegree, eachNeighbour, height, north, rowsPerDegree, width } from './geometry.js';

const world = createRequire(import.meta.url)('world-atlas/countries-50m.json');

export const countries = feature(world, world.objects.countries).features;
export const borderingCountries = neighbors(world.objects.countries.geometries);

const fine = 4; // the canvas is so many times finer than the map
const canvas = createCanvas(width * fine, height * fine);
const context = canvas.getContext('2d');
context.setTransform(columnsPerDegree * fine, 0, 0, rowsPerDegree * fine,
    180 * columnsPerDegree * fine, north * rowsPerDegree * fine);
const degrees = geoEquirectangular().scale(180 / Math.PI).translate([0, 0]).precision(0);
const draw = geoPath(degrees, context);

// The map pixels that a shape's bounds touch: first column and row, count of columns and rows; null off the map.
function pixelBounds(shape) {
    const [[x0, y0], [x1, y1]] = draw.bounds(shape);
    const left = Math.max(Math.floor((180 + x0) * columnsPerDegree), 0);
    const top = Math.max(Math.floor((north + y0) * rowsPerDegree), 0);
    const right = Math.min(Math.ceil((180 + x1) * columnsPerDegree), width);
    const bottom = Math.min(Math.ceil((north + y1) * rowsPerDegree), height);
    return right > left && bottom > top ? { left, top, columns: right - left, rows: bottom - top } : null;
}

// Calls visit(map pixel, share from 0 to 1) for every map pixel that the shape covers in part or whole.
function eachCoveredPixel(shape, visit) {
    const box = pixelBounds(shape);
    if (!box) return;
    context.clearRect(-180, -north, 360, height / rowsPerDegree);
    context.beginPath();
    draw(shape);
    context.fill();
    const { data } = context.getImageData(box.left * fine, box.top * fine, box.columns * fine, box.rows * fine);
    for (let row = 0; row < box.rows; ++row)
        for (let column = 0; column < box.columns; ++column) {
            let alpha = 0;
            for (let y = row * fine; y < (row + 1) * fine; ++y)
                for (let x = column * fine; x < (column + 1) * fine; ++x)
                    alpha += data[4 * (y * box.columns * fine + x) + 3];
            if (alpha > 0) visit((box.top + row) * width + box.left + column, alpha / (255 * fine * fine));
        }
}

export const polygonsOf = ({ geometry }) => geometry.type === 'Polygon' ? [geometry.coordinates] : geometry.coordinates;

const small = 4; // columns or rows up to which an island is in danger of falling between the pixels
const offshore = 0.3; // share from which an islet beside other land is drawn all the same: less only frays the coast

// For each map pixel the index of the country that it shows, or -1 for sea. A pixel is land if half of it is;
// an island without such a pixel keeps its best one.
export function countryOfPixels() {
    const land = new Float32Array(width * height);
    const greatest = new Float32Array(width * height);
    const owner = new Int16Array(width * height).fill(-1);
    countries.forEach((country, number) => eachCoveredPixel(country, (pixel, share) => {
        land[pixel] += share;
        if (share > greatest[pixel]) {
            greatest[pixel] = share;
            owner[pixel] = number;
        }
    }));
    const drawn = land.map((share) => (share >= 0.5 ? 1 : 0));
    for (const country of countries)
        for (const coordinates of polygonsOf(country)) {
            const island = { type: 'Polygon', coordinates };
            const box = pixelBounds(island);
            if (!box || box.columns > small || box.rows > small) continue;
            let best = -1;
            let bestShare = 0;
            eachCoveredPixel(island, (pixel, share) => {
                if (drawn[pixel]) share = Infinity;
                if (share > bestShare) [best, bestShare] = [pixel, share];
            });
            if (best < 0) continue;
            let besideLand = false;
            eachNeighbour(best, (pixel) => (besideLand ||= drawn[pixel] === 1));
            if (!besideLand || bestShare >= offshore) drawn[best] = 1;
        }
    return owner.map((number, pixel) => (drawn[pixel] ? number : -1));
}
