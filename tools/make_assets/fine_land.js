// What the points of the fine maps are: a country or water. Coasts and borders of 1:10 million; great lakes count as
// water.

import { createRequire } from 'node:module';
import { feature } from 'topojson-client';
import { countries, polygonsOf } from './countries.js';
import { at, columnsPerDegree, fineHeight, fineWidth, height, north, rowsPerDegree, south, width } from './geometry.js';
import { loadLakes } from './lakes.js';
import { lakePixels } from './land.js';

const world = createRequire(import.meta.url)('world-atlas/countries-10m.json');
const fineCountries = feature(world, world.objects.countries).features;

export const samples = 4; // points along each side of a fine pixel
export const columns = fineWidth * samples;
export const rows = fineHeight * samples;

// A ring of [column, row] of points, free of leaps at 180 degrees; it may reach beyond the map on either side.
function pointRing(ring) {
    let turns = 0; // round the globe
    return ring.map(([longitude, latitude], i) => {
        const step = i > 0 ? longitude - ring[i - 1][0] : 0;
        if (Math.abs(step) > 180) turns -= Math.sign(step);
        return [(((longitude + 180) / 360) + turns) * columns, ((north - latitude) / (north - south)) * rows];
    });
}

// Calls visit(first point, point after the last) for the runs of points that lie inside the rings.
function eachRun(rings, visit) {
    const crossings = new Map(); // columns where a row of points crosses the rings, by row
    for (const ring of rings.map(pointRing))
        ring.forEach(([x0, y0], i) => {
            const [x1, y1] = ring[(i + 1) % ring.length];
            const end = Math.min(Math.ceil(Math.max(y0, y1) - 0.5), rows);
            for (let row = Math.max(Math.ceil(Math.min(y0, y1) - 0.5), 0); row < end; ++row) {
                if (!crossings.has(row)) crossings.set(row, []);
                crossings.get(row).push(x0 + ((row + 0.5 - y0) * (x1 - x0)) / (y1 - y0));
            }
        });
    for (const [row, places] of crossings) {
        places.sort((a, b) => a - b);
        for (let i = 0; i < places.length; i += 2)
            for (const shift of [-columns, 0, columns]) {
                const [first, end] = [places[i], places[i + 1]].map(
                    (x) => Math.min(Math.max(Math.ceil(x + shift - 0.5), 0), columns));
                if (end > first) visit(row * columns + first, row * columns + end);
            }
    }
}

// Country index of each point, -1 for sea and great lakes; and of each fine pixel, which is land if half of its points
// are. country: the same of the stored maps' pixels.
export function fineLand(country) {
    const points = new Int16Array(columns * rows).fill(-1);
    for (const each of fineCountries) {
        const number = numberOf(each, country);
        for (const rings of polygonsOf(each)) eachRun(rings, (first, end) => points.fill(number, first, end));
    }
    drainLand(points, loadLakes().filter(isGreat));
    const pixels = majorities(points);
    for (const each of fineCountries)
        for (const [shore] of polygonsOf(each)) keepIslet(shore, numberOf(each, country), points, pixels);
    return { points, pixels };
}

function drainLand(points, lakes) {
    for (const rings of lakes) eachRun(rings, (first, end) => points.fill(-1, first, end));
}

// Share of land in each fine pixel, 0 to 1, with all lakes of the vectors as water.
export function landShares({ points }) {
    const drained = points.slice();
    drainLand(drained, loadLakes());
    return Float32Array.from({ length: fineWidth * fineHeight }, (_, pixel) => {
        let land = 0;
        eachPoint(pixel, (point) => (land += drained[point] >= 0 ? 1 : 0));
        return land / (samples * samples);
    });
}

// The country of this name or, where 1:50 million has none, the one that the stored maps show nearest.
function numberOf({ properties, geometry }, country) {
    const number = countries.findIndex((other) => other.properties.name === properties.name);
    if (number >= 0) return number;
    const [longitude, latitude] = geometry.coordinates.flat(geometry.type === 'Polygon' ? 1 : 2)[0];
    const column = Math.floor((longitude + 180) * columnsPerDegree);
    const row = Math.floor((north - latitude) * rowsPerDegree);
    for (let reach = 0; ; ++reach)
        for (let y = Math.max(row - reach, 0); y <= Math.min(row + reach, height - 1); ++y)
            for (let x = column - reach; x <= column + reach; ++x)
                if (country[at(x, y)] >= 0) return country[at(x, y)];
}

// Whether a lake is as large as those of the stored maps.
function isGreat([shore]) {
    const ring = pointRing(shore);
    const area = ring.reduce((sum, [x, y], i) => {
        const [nextX, nextY] = ring[(i + 1) % ring.length];
        return sum + (x * nextY - y * nextX) / 2;
    }, 0);
    return Math.abs(area) * width * height >= lakePixels * columns * rows;
}

// The country with most of a pixel's points, -1 where less than half of them are land.
function majorities(points) {
    const pixels = new Int16Array(fineWidth * fineHeight).fill(-1);
    const counts = new Uint8Array(countries.length);
    for (let pixel = 0; pixel < pixels.length; ++pixel) {
        const found = [];
        let land = 0;
        eachPoint(pixel, (point) => {
            const number = points[point];
            if (number < 0) return;
            ++land;
            if (counts[number]++ === 0) found.push(number);
        });
        if (2 * land >= samples * samples) pixels[pixel] = found.reduce((a, b) => (counts[b] > counts[a] ? b : a));
        for (const number of found) counts[number] = 0;
    }
    return pixels;
}

// Calls visit(point) for the points of a fine pixel.
export function eachPoint(pixel, visit) {
    const first = Math.floor(pixel / fineWidth) * samples * columns + (pixel % fineWidth) * samples;
    for (let y = 0; y < samples; ++y) for (let x = 0; x < samples; ++x) visit(first + y * columns + x);
}

const small = 3; // columns or rows up to which an islet is in danger of falling between the pixels
const offshore = 0.3; // share of a pixel from which an islet beside other land is kept: less only frays the coast

// An islet of which no pixel is half covered keeps the pixel that it covers most.
function keepIslet(shore, number, points, pixels) {
    const [xs, ys] = [0, 1].map((axis) => pointRing(shore).map((point) => point[axis] / samples));
    const [left, right, top, bottom] = [Math.min(...xs), Math.max(...xs), Math.min(...ys), Math.max(...ys)];
    if (right - left > small || bottom - top > small || top < 0 || bottom >= fineHeight) return;
    let best = { pixel: fineAt(Math.floor((left + right) / 2), Math.floor((top + bottom) / 2)), share: 0 };
    for (let y = Math.floor(top); y <= bottom; ++y)
        for (let x = Math.floor(left); x <= right; ++x) {
            const pixel = fineAt(x, y);
            let share = 0;
            eachPoint(pixel, (point) => (share += (points[point] === number) / (samples * samples)));
            if (share > 0 && pixels[pixel] >= 0) return;
            if (share > best.share) best = { pixel, share };
        }
    const [x, y] = [best.pixel % fineWidth, Math.floor(best.pixel / fineWidth)];
    let besideLand = false;
    for (let ny = Math.max(y - 1, 0); ny <= Math.min(y + 1, fineHeight - 1); ++ny)
        for (let nx = x - 1; nx <= x + 1; ++nx) besideLand ||= pixels[fineAt(nx, ny)] >= 0;
    if (!besideLand || best.share >= offshore) pixels[best.pixel] = number;
}

// Index of a fine pixel; columns wrap round the globe.
export const fineAt = (column, row) => row * fineWidth + ((column + fineWidth) % fineWidth);
