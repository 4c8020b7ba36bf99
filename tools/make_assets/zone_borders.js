// The borders between the zones of the mask: sides of its pixels, and the chains that they form.

import { readFileSync } from 'node:fs';
import { height, north, rowsPerDegree, width } from './geometry.js';
import { isSeaZone, zoneAt } from './zones.js';

export const columns = 956; // of the mask, round the globe
const columnsPerDegree = columns / 360;
const cornerColumns = columns + 1;

// Red values of a stored picture, from the top row down.
export function readReds(file) {
    const bytes = readFileSync(file);
    const [firstPalette, firstPixel] = [54, 1078];
    return Uint8Array.from({ length: width * height }, (_, pixel) => {
        const row = height - 1 - Math.floor(pixel / width);
        return bytes[firstPalette + bytes[firstPixel + row * width + (pixel % width)] * 4 + 2];
    });
}

// Code of a point, as the program samples the mask.
export function codeAt(mask, longitude, latitude) {
    const column = Math.min(columns - 1, Math.max(0, Math.floor((longitude + 180) * columnsPerDegree)));
    return mask[Math.min(height - 1, Math.max(0, Math.floor((north - latitude) * rowsPerDegree))) * width + column];
}

// Hours east of Greenwich of a code.
export const hoursOf = (code) => (code === 240 ? -12 : code >= 120 ? (240 - code) / 10 : 0 - code / 10);

// Borders that the table of the date line shows: the clocks of the two sides differ by a day, give or take.
const isDateLine = (a, b) => Math.abs(hoursOf(a) - hoursOf(b)) >= 20;

// A corner of the mask's pixels is a number; this is its place in degrees.
export const placeOf = (corner) =>
    [(corner % cornerColumns) / columnsPerDegree - 180, north - Math.floor(corner / cornerColumns) / rowsPerDegree];

// Middle of a pixel of the mask, degrees.
export const middleOf = (column, row) =>
    [(column + 0.5) / columnsPerDegree - 180, north - (row + 0.5) / rowsPerDegree];

// How much a border matters: on land as the map shows it, in the waters of a country, at sea.
const weights = { shore: 10, waters: 7, sea: 1 };

// Sides of pixels between different codes: { ends: two corners, codes: the earlier clock first, weight }. The map's
// sea alone has no red.
export function borderSides(mask, map) {
    const weightOf = (column, row) => {
        if (map[row * width + Math.floor(((column + 0.5) * width) / columns)] > 0) return weights.shore;
        return isSeaZone(zoneAt(...middleOf(column, row))) ? weights.sea : weights.waters;
    };
    const sides = [];
    const add = (column, row, otherColumn, otherRow, ends) => {
        const codes = [mask[row * width + column], mask[otherRow * width + otherColumn]];
        if (codes[0] === codes[1] || isDateLine(...codes)) return;
        const weight = Math.max(weightOf(column, row), weightOf(otherColumn, otherRow));
        sides.push({ ends, codes: codes.sort((a, b) => hoursOf(a) - hoursOf(b)), weight });
    };
    for (let row = 0; row < height; ++row)
        for (let column = 0; column < columns; ++column) {
            const corner = row * cornerColumns + column;
            if (column > 0) add(column, row, column - 1, row, [corner, corner + cornerColumns]);
            if (row > 0) add(column, row, column, row - 1, [corner, corner + 1]);
        }
    return sides;
}

const addTo = (map, key, value) => map.get(key)?.push(value) ?? map.set(key, [value]);

// Joins sides into chains { corners, sides } that run from junction to junction or to the edge of the map. A closed
// border without a junction is opened at its lightest side.
export function chainsOf(sides) {
    const sidesAt = new Map();
    for (const side of sides) for (const corner of side.ends) addTo(sidesAt, corner, side);
    const used = new Set();
    const follow = (start, first) => {
        const chain = { corners: [start], sides: [] };
        for (let side = first; side; ) {
            used.add(side);
            const next = side.ends[side.ends[0] === chain.corners.at(-1) ? 1 : 0];
            chain.corners.push(next);
            chain.sides.push(side);
            const onward = sidesAt.get(next);
            side = onward.length === 2 ? onward.find((each) => !used.has(each)) : undefined;
        }
        return chain;
    };
    const chains = [];
    for (const [corner, around] of sidesAt)
        if (around.length !== 2) for (const side of around) if (!used.has(side)) chains.push(follow(corner, side));
    for (const side of sides) if (!used.has(side)) chains.push(opened(follow(side.ends[0], side)));
    return chains;
}

function opened({ corners, sides }) {
    const lightest = sides.reduce((best, side, i) => (side.weight < sides[best].weight ? i : best), 0);
    const after = lightest + 1;
    return {
        corners: [...corners.slice(after), ...corners.slice(1, after)],
        sides: [...sides.slice(after), ...sides.slice(0, lightest)],
    };
}
