// The borders of the time zones as a table of lines, traced from the zone mask.

import { readFileSync, writeFileSync } from 'node:fs';

const project = new URL('../../', import.meta.url);
const maskWidth = 956; // pixels, 360 degrees
const width = 960; // of the maps
const height = 510;
const lineCount = 54;
const rowCount = 1139; // with a marker before each line and one at the end
const landWeight = 12; // of a border on land beside one at sea, when lines are chosen
const pointWeight = 6; // of a point near land beside one at sea, when points are taken away
const nearLand = 4; // pixels

// The red values of an 8-bit BMP, rows from the top.
function readRed(name) {
    const bytes = readFileSync(new URL(`assets/${name}`, project));
    return Uint8Array.from({ length: width * height }, (_, pixel) => {
        const row = height - 1 - Math.floor(pixel / width);
        return bytes[54 + 4 * bytes[1078 + row * width + (pixel % width)] + 2];
    });
}

const mask = readRed('zone_mask.bmp');
const map = readRed('political_day.bmp'); // the sea's red value is 0, no land's is
const codeAt = (x, y) => mask[y * width + x];
const isLand = (x, y) => map[y * width + Math.min(width - 1, Math.round(((x + 0.5) * width) / maskWidth - 0.5))] > 0;

// Hours east of Greenwich.
const hoursOf = (code) => (code === 240 ? -12 : code >= 120 ? (240 - code) / 10 : -code / 10);

// The islands in the Bay of Bengal have a plain ring of their own.
const ring = [[91.5, 14.118], [94.5, 14.118], [94.5, 6.176], [91.5, 6.176], [91.5, 14.118]];
const inRing = (x, y) => {
    const longitude = -180 + (x * 360) / maskWidth;
    const latitude = 80 - (y * 150) / height;
    return longitude > 88.5 && longitude < 97 && latitude > 3 && latitude < 17;
};

// A piece of border between two pixels; the International Date Line, where the clocks agree but for the date, is none.
function isBorder(x1, y1, x2, y2) {
    const [a, b] = [codeAt(x1, y1), codeAt(x2, y2)];
    if (a === b || Math.abs(hoursOf(a) - hoursOf(b)) > 12) return false;
    return !((a === 185 || b === 185) && inRing(x1, y1));
}

const node = (x, y) => y * (maskWidth + 1) + x;
const placeOf = (n) => [n % (maskWidth + 1), Math.floor(n / (maskWidth + 1))];

// All pieces of border, one pixel long, as a graph of pixel corners: corner -> [[corner, weight]...].
function borderGraph() {
    const graph = new Map();
    const join = (a, b, weight) => {
        for (const [from, to] of [[a, b], [b, a]]) {
            if (!graph.has(from)) graph.set(from, []);
            graph.get(from).push([to, weight]);
        }
    };
    for (let y = 0; y < height; ++y) {
        for (let x = 0; x < maskWidth; ++x) {
            const weight = (x2, y2) => (isLand(x, y) || isLand(x2, y2) ? landWeight : 1);
            if (x > 0 && isBorder(x - 1, y, x, y)) join(node(x, y), node(x, y + 1), weight(x - 1, y));
            if (y > 0 && isBorder(x, y - 1, x, y)) join(node(x, y), node(x + 1, y), weight(x, y - 1));
        }
    }
    return graph;
}

// Borders from one meeting of zones to the next, and closed ones.
function chainsOf(graph) {
    const used = new Set();
    const key = (a, b) => (a < b ? `${a} ${b}` : `${b} ${a}`);
    const chains = [];
    const walk = (start, [next, weight]) => {
        const chain = { nodes: [start], weight: 0 };
        let [from, to, gain] = [start, next, weight];
        for (;;) {
            used.add(key(from, to));
            chain.nodes.push(to);
            chain.weight += gain;
            const onward = graph.get(to).filter(([each]) => !used.has(key(to, each)));
            if (graph.get(to).length !== 2 || onward.length === 0) break;
            [from, [to, gain]] = [to, onward[0]];
        }
        chains.push(chain);
    };
    const all = [...graph.keys()].sort((a, b) => a - b);
    for (const meetings of [true, false]) {
        for (const start of all) {
            if ((graph.get(start).length !== 2) !== meetings) continue;
            for (const edge of graph.get(start)) if (!used.has(key(start, edge[0]))) walk(start, edge);
        }
    }
    return chains;
}

// Long lines: the weightiest border first, carried on at both ends by the weightiest that is left there.
function joinChains(chains) {
    const ends = new Map();
    for (const chain of chains) {
        for (const end of [chain.nodes[0], chain.nodes.at(-1)]) ends.set(end, [...(ends.get(end) ?? []), chain]);
    }
    const free = new Set(chains);
    const lines = [];
    for (const chain of [...chains].sort((a, b) => b.weight - a.weight)) {
        if (!free.delete(chain)) continue;
        const line = { nodes: [...chain.nodes], weight: chain.weight };
        for (let side = 0; side < 2; ++side) {
            for (;;) {
                const end = line.nodes.at(-1);
                const next = (ends.get(end) ?? []).filter((each) => free.has(each)).sort((a, b) => b.weight - a.weight)[0];
                if (!next) break;
                free.delete(next);
                const nodes = next.nodes[0] === end ? next.nodes : [...next.nodes].reverse();
                line.nodes.push(...nodes.slice(1));
                line.weight += next.weight;
            }
            line.nodes.reverse();
        }
        lines.push(line);
    }
    return lines;
}

// A corner of the mask as the nearest corner of the maps' pixels: [column, row].
const toGrid = (n) => {
    const [x, y] = placeOf(n);
    return [Math.round((x * width) / maskWidth), y];
};
const toDegrees = ([column, row]) => [-180 + column * 0.375, Number((80 - (row * 150) / height).toFixed(3))];
const fromDegrees = ([longitude, latitude]) => [(longitude + 180) / 0.375, ((80 - latitude) * height) / 150];

function withoutRepeats(points) {
    return points.filter((point, place) => place === 0 || String(point) !== String(points[place - 1]));
}

// A closed line ends one step before it would meet its own beginning.
function openEnds(points) {
    return String(points[0]) === String(points.at(-1)) ? points.slice(0, -1) : points;
}

// The shortest way along borders between the corners nearest to two places, which is taken out of the graph.
function takeRoute(graph, from, to) {
    const nearest = (place) => {
        const [column, row] = fromDegrees(place);
        const distance = (n) => {
            const [x, y] = toGrid(n);
            return (x - column) ** 2 + (y - row) ** 2;
        };
        return [...graph.keys()].reduce((a, b) => (distance(b) < distance(a) ? b : a));
    };
    const [start, end] = [nearest(from), nearest(to)];
    const before = new Map([[start, null]]);
    for (const each of before.keys()) { // grows while it is walked: the nearest corners first
        for (const [next] of graph.get(each)) if (!before.has(next)) before.set(next, each);
    }
    if (!before.has(end)) throw new Error(`no border leads from ${from} to ${to}`);
    const nodes = [end];
    while (nodes[0] !== start) nodes.unshift(before.get(nodes[0]));
    nodes.slice(1).forEach((each, place) => {
        graph.set(each, graph.get(each).filter(([next]) => next !== nodes[place]));
        graph.set(nodes[place], graph.get(nodes[place]).filter(([next]) => next !== each));
    });
    return withoutRepeats(nodes.map(toGrid));
}

// How much a line changes with the middle one of three points: between the height of their triangle and its area.
function change([ax, ay], [bx, by], [cx, cy]) {
    const area = Math.abs((bx - ax) * (cy - ay) - (cx - ax) * (by - ay)) / 2;
    return area / Math.sqrt(Math.hypot(cx - ax, cy - ay) + 0.5);
}

function isNearLand([column, row]) {
    for (let y = Math.max(0, row - nearLand); y < Math.min(height, row + nearLand); ++y) {
        for (let x = Math.max(0, column - nearLand); x < Math.min(width, column + nearLand); ++x) {
            if (map[y * width + x] > 0) return true;
        }
    }
    return false;
}

// Takes away, one after the other, the points that change the lines least, until as many are left as wanted.
function simplify(lines, wanted) {
    for (const line of lines) line.costs = line.points.map((point) => (isNearLand(point) ? pointWeight : 1));
    let count = lines.reduce((sum, line) => sum + line.points.length, 0);
    while (count > wanted) {
        let least = { cost: Infinity };
        for (const line of lines) {
            for (let place = Math.max(1, line.fixedFirst); place < line.points.length - Math.max(1, line.fixedLast); ++place) {
                line.cache ??= [];
                const cost = (line.cache[place] ??=
                    change(line.points[place - 1], line.points[place], line.points[place + 1]) * line.costs[place] +
                    1e-6 * place / line.points.length);
                if (cost < least.cost) least = { cost, line, place };
            }
        }
        if (!least.line) throw new Error('no point left to take away');
        for (const list of [least.line.points, least.line.costs, least.line.cache]) list.splice(least.place, 1);
        least.line.cache[least.place] = least.line.cache[least.place - 1] = undefined;
        --count;
    }
}

const firstRows = [[37.5, 80], [37.5, 69.118], [32.625, 69.118], [31.125, 69.706], [30, 68.824]];
const lastRows = [[19.1, -33.5], [22.5, -33.3], [22.5, -70]];

const graph = borderGraph();
const south = takeRoute(graph, [29.5, 66.5], [38.25, 47.2]); // Finland to the Sea of Azov
const coast = takeRoute(graph, [24, -11], [12.75, -33.4]); // inner Africa, round Namibia, to the Cape
const lines = joinChains(chainsOf(graph))
    .map(({ nodes, weight }) => ({ points: openEnds(withoutRepeats(nodes.map(toGrid))), weight, fixedFirst: 1, fixedLast: 1 }));

const onGrid = (places) => places.map(fromDegrees).map((place) => place.map(Math.round));
const first = { points: [...onGrid(firstRows), ...south], fixedFirst: 5, fixedLast: 1 };
const last = { points: [...coast, ...lastRows.map(fromDegrees)], fixedFirst: 1, fixedLast: 3 };
const loop = { points: onGrid(ring), fixedFirst: 5, fixedLast: 0 };

const others = lines.filter((line) => line.points.length > 1).sort((a, b) => b.weight - a.weight);
const kept = [first, ...others.slice(0, lineCount - 3), loop, last];
simplify(kept, rowCount - lineCount - 1);

const text = (value) => `${Number.isInteger(value) ? value.toFixed(1) : value}F`;
const rows = kept.flatMap((line) => {
    const points = line.points.map((point) => toDegrees(point).map((v) => Number(v.toFixed(3))));
    if (line === last) points.splice(-3, 3, ...lastRows);
    const cells = points.map(([longitude, latitude]) => `{${text(longitude)}, ${text(latitude)}},`);
    const wrapped = [];
    for (let place = 0; place < cells.length; place += 5) wrapped.push(cells.slice(place, place + 5).join(' '));
    return ['{PenUp, PenUp},', ...wrapped];
});
writeFileSync(new URL('map/zone_line_points.inc', project),
    '// Borders of the time zones, traced from the zone mask by tools/make_assets (npm run zone-lines). Degrees, east and\n' +
    '// north positive; each line begins after a {PenUp, PenUp}.\n' + rows.join('\n') + '\n{EndOfTable, EndOfTable},\n');
const points = kept.reduce((sum, line) => sum + line.points.length, 0);
console.log(`zone lines: ${kept.length} lines, ${points + kept.length + 1} rows; ${others.length - lineCount + 3} lesser lines left out`);
