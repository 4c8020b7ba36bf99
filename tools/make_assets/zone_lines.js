// Makes the table of time-zone lines that the program draws: the borders of the zone mask, as a fixed number of lines
// and points on the grid of the stored maps.

import { writeFileSync } from 'node:fs';
import { north, rowsPerDegree, width } from './geometry.js';
import { borderSides, columns, middleOf, placeOf, readReds } from './zone_borders.js';
import { joinedLines, prunedChains } from './zone_joining.js';
import { agreement, checkedForm } from './zone_line_check.js';
import { tableText, titleOf } from './zone_line_text.js';
import { simplified } from './zone_simplifying.js';

const project = new URL('../../', import.meta.url);
const lineCount = 54;
const rowCount = 1139; // with a marker before each line and one at the end
const pointCount = rowCount - lineCount - 1;

// Points set by hand: a beginning and an end that lines of the mask join at a corner, and a line of its own round the
// Andaman and Nicobar Islands. The boxes (west, east, south, north) hold the borders for which they stand.
const beginning = {
    points: [[37.5, 80], [37.5, 69.118], [32.625, 69.118], [31.125, 69.706], [30, 68.824]],
    joins: [28.24, 69.12],
    box: [28.2, 38, 69.13, 80],
};
const end = {
    points: [[19.1, -33.5], [22.5, -33.3], [22.5, -70]],
    joins: [12.8, -33.5],
    box: [12.5, 22.8, -58.6, -33.5],
};
const islands = {
    points: [[91.5, 14.118], [95.625, 15], [93.75, 2.941], [87.75, 3.529], [91.5, 14.118]],
    code: 185,
    seaCode: 180,
    box: [87, 96.5, 1, 16],
};
const pointsOffGrid = 2; // the first two of the end

const inBox = ([longitude, latitude], [west, east, southern, northern]) =>
    longitude > west && longitude < east && latitude > southern && latitude < northern;
const distance = ([x, y], [toX, toY]) => Math.hypot(toX - x, toY - y);

const mask = readReds(new URL('assets/zone_mask.bmp', project));
const map = readReds(new URL('assets/political_day.bmp', project));

// Borders of the mask but for those that the points set by hand stand for.
function freeSides() {
    const withoutIslands = mask.map((code, pixel) => {
        const place = middleOf(pixel % width, Math.floor(pixel / width));
        return code === islands.code && inBox(place, islands.box) ? islands.seaCode : code;
    });
    return borderSides(withoutIslands, map).filter(({ ends }) => {
        const [[x, y], [toX, toY]] = ends.map(placeOf);
        return [beginning, end].every(({ box }) => !inBox([(x + toX) / 2, (y + toY) / 2], box));
    });
}

// The weight of a chain; a line that goes on by hand keeps its end whatever that weighs.
function worthOf({ corners, sides }) {
    const isJoined = [corners[0], corners.at(-1)].some((corner) =>
        [beginning, end].some(({ joins }) => distance(placeOf(corner), joins) < 360 / columns));
    return isJoined ? Infinity : sides.reduce((sum, side) => sum + side.weight, 0);
}

// Nearest corner of the maps' pixels to a corner of the mask's, and the degrees of one.
const gridOf = ([longitude, latitude]) =>
    [Math.round(((longitude + 180) * width) / 360), Math.round((north - latitude) * rowsPerDegree)];
const degreesOf = ([column, row]) =>
    [(column * 360) / width - 180, Number((north - row / rowsPerDegree).toFixed(3))];

// A chain's corners on the grid; each weighs as much as the heavier of its two sides.
const gridChain = ({ corners, sides }) => ({
    points: corners.map((corner) => gridOf(placeOf(corner))),
    weights: corners.map((_, i) => Math.max(sides[i - 1]?.weight ?? 0, sides[i]?.weight ?? 0)),
});

// Lines of the mask: { title, points }.
function maskLines() {
    const chains = prunedChains(freeSides(), lineCount - 1, worthOf);
    const lines = joinedLines(chains);
    const setByHand = [beginning, end, islands].reduce((sum, { points }) => sum + points.length, 0);
    const joints = lines.reduce((sum, line) => sum + line.length + 1, 0);
    const grid = chains.map(gridChain);
    const kept = simplified(grid, pointCount - setByHand - joints);
    const pointsOf = new Map(chains.map((chain, c) => [chain, kept[c].map((i) => degreesOf(grid[c].points[i]))]));
    return lines.map((line) => ({
        title: titleOf(line.flatMap(({ chain }) => chain.sides)),
        points: line.flatMap(({ chain, backwards }, i) => {
            const points = pointsOf.get(chain);
            return (backwards ? points.toReversed() : points).slice(i === 0 ? 0 : 1);
        }),
    }));
}

// Takes out of the table the line with an end nearest to a place, and turns it so that it begins there.
function takeLineAt(table, place) {
    const far = ({ points }) => Math.min(distance(points[0], place), distance(points.at(-1), place));
    const line = table.reduce((a, b) => (far(b) < far(a) ? b : a));
    table.splice(table.indexOf(line), 1);
    if (distance(line.points[0], place) > distance(line.points.at(-1), place)) line.points.reverse();
    return line;
}

// All lines, each from north to south, from west to east by their beginnings, but for the given first and last.
function wholeTable() {
    const table = maskLines();
    const first = takeLineAt(table, beginning.joins);
    const last = takeLineAt(table, end.joins);
    first.points.unshift(...beginning.points);
    last.points.reverse().push(...end.points);
    table.push({ title: 'Andaman and Nicobar Islands, GMT + 5:30', points: islands.points });
    for (const { points } of table) if (points.at(-1)[1] > points[0][1]) points.reverse();
    table.sort((a, b) => a.points[0][0] - b.points[0][0] || b.points[0][1] - a.points[0][1]);
    return [first, ...table, last];
}

const table = wholeTable();
const lines = table.map(({ points }) => points);
const percent = ({ steps, agreeing }) => `${agreeing} of ${steps}, ${((100 * agreeing) / steps).toFixed(1)} %`;
console.log(`zone lines: ${checkedForm(lines, { lineCount, pointCount, offGrid: pointsOffGrid })}`);
console.log(`steps beside land that part two zones of the mask: ${percent(agreement(mask, lines))}`);
console.log(`  of those in the given rows: ${percent(agreement(mask, [beginning.points, end.points]))}`);
writeFileSync(new URL('src/map/zone_line_points.inc', project), tableText(table));
