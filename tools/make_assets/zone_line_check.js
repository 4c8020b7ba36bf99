// What the finished lines must be, and how well they part the zones of the mask.

import { north, rowsPerDegree, south, width } from './geometry.js';
import { codeAt } from './zone_borders.js';
import { isSeaZone, zoneAt } from './zones.js';

const step = 0.1; // degrees along a line
const aside = (1.2 * 360) / 956; // degrees to each side of it

const isOnMap = ([longitude, latitude]) => Math.abs(longitude) <= 180 && latitude <= north && latitude >= south;
const isAshore = (place) => isOnMap(place) && !isSeaZone(zoneAt(...place));

// Steps beside land, and those of them with different codes on the two sides.
export function agreement(mask, lines) {
    const count = { steps: 0, agreeing: 0 };
    for (const line of lines)
        for (let i = 1; i < line.length; ++i)
            for (const [left, right] of sidesAlong(line[i - 1], line[i])) {
                if (!isAshore(left) && !isAshore(right)) continue;
                ++count.steps;
                if (codeAt(mask, ...left) !== codeAt(mask, ...right)) ++count.agreeing;
            }
    return count;
}

function sidesAlong([x, y], [toX, toY]) {
    const length = Math.hypot(toX - x, toY - y);
    const [alongX, alongY] = [(toX - x) / length, (toY - y) / length];
    const pairs = [];
    for (let at = step / 2; at < length; at += step)
        pairs.push([-aside, aside].map((a) => [x + alongX * at - alongY * a, y + alongY * at + alongX * a]));
    return pairs;
}

const isOnGrid = ([longitude, latitude]) => [((longitude + 180) * width) / 360, (north - latitude) * rowsPerDegree]
    .every((cell) => Math.abs(cell - Math.round(cell)) < 0.002);

const isClosed = (line) => String(line[0]) === String(line.at(-1));

// Throws unless the lines have the form that the program wants. Returns a text that says so.
export function checkedForm(lines, { lineCount, pointCount, offGrid }) {
    const points = lines.flat();
    const found = [
        ['lines', lines.length, lineCount],
        ['points', points.length, pointCount],
        ['points off the grid', points.filter((point) => !isOnGrid(point)).length, offGrid],
        ['points off the map', points.filter((point) => !isOnMap(point)).length, 0],
        ['closed lines', lines.filter(isClosed).length, 1],
        ['lines without a length', lines.filter((line) => line.length < 2).length, 0],
        ['steps across the edge', countSteps(lines, (a, b) => Math.abs(a[0] - b[0]) > 180), 0],
        ['repeated points', countSteps(lines, (a, b) => String(a) === String(b)), 0],
    ];
    for (const [what, count, wanted] of found)
        if (count !== wanted) throw new Error(`zone lines: ${count} ${what}, not ${wanted}`);
    return found.map(([what, count]) => `${count} ${what}`).join(', ');
}

const countSteps = (lines, is) =>
    lines.reduce((sum, line) => sum + line.filter((point, i) => i > 0 && is(line[i - 1], point)).length, 0);
