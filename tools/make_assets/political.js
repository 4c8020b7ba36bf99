// Countries in calm colours, no two neighbours in the same.

import { countryNames, countryNeighbors } from "./countries.js";
import { mapHeight, mapWidth } from "./geometry.js";

const tints = [
    [236, 205, 146], // sand
    [188, 211, 152], // leaf
    [243, 229, 171], // straw
    [226, 172, 150], // clay
    [202, 184, 214], // heather
    [172, 204, 196], // lichen
    [240, 201, 196], // shell
];
const ice = [240, 243, 245];
const borderShade = 0.78;

// Countries that share a border in the data or touch on the map.
function allNeighbors(map) {
    const sets = countryNeighbors.map((each) => new Set(each));
    const meet = (a, b) => {
        if (a === 0 || b === 0 || a === b) return;
        sets[a - 1].add(b - 1);
        sets[b - 1].add(a - 1);
    };
    for (let y = 0; y < mapHeight; ++y) {
        for (let x = 0; x < mapWidth; ++x) {
            const here = map[y * mapWidth + x];
            meet(here, map[y * mapWidth + ((x + 1) % mapWidth)]);
            if (y + 1 < mapHeight) meet(here, map[(y + 1) * mapWidth + x]);
        }
    }
    return sets;
}

// A tint for each country: those with the most neighbours choose first, each the tint used least so far.
function chooseTints(neighbors) {
    const choice = new Array(neighbors.length).fill(-1);
    const used = tints.map(() => 0);
    const order = neighbors.map((_, country) => country).sort((a, b) => neighbors[b].size - neighbors[a].size || a - b);
    for (const country of order) {
        const taken = new Set([...neighbors[country]].map((each) => choice[each]));
        const free = tints.map((_, tint) => tint).filter((tint) => !taken.has(tint));
        if (free.length === 0) throw new Error(`no tint left for ${countryNames[country]}`);
        choice[country] = free.reduce((a, b) => (used[b] < used[a] ? b : a));
        ++used[choice[country]];
    }
    return choice;
}

// Palette (without the sea) and the entry of each pixel plus 1, 0 for the sea.
export function politicalPicture(map) {
    const neighbors = allNeighbors(map);
    const choice = chooseTints(neighbors);
    const clashes = neighbors.reduce(
        (sum, set, country) => sum + [...set].filter((each) => choice[each] === choice[country]).length, 0);
    console.log(`political map: ${choice.length} countries in ${tints.length} tints, ${clashes} neighbours alike`);
    const antarctica = countryNames.indexOf("Antarctica");
    const fills = [...tints, ice];
    const palette = [...fills, ...fills.map((tint) => tint.map((level) => Math.round(level * borderShade)))];
    const entries = new Uint8Array(map.length);
    map.forEach((country, pixel) => {
        if (country === 0) return;
        const tint = country - 1 === antarctica ? tints.length : choice[country - 1];
        const x = pixel % mapWidth;
        const right = map[pixel - x + ((x + 1) % mapWidth)];
        const below = map[pixel + mapWidth] ?? country;
        const onBorder = (right !== country && right !== 0) || (below !== country && below !== 0);
        entries[pixel] = 1 + tint + (onBorder ? fills.length : 0);
    });
    return { palette, entries };
}
