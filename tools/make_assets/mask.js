// The zone mask: in each pixel the code of its time zone.

import { mapHeight, mapWidth, maskWidth } from "./geometry.js";
import { codeOfZone, isSea, zoneAt } from "./zones.js";

const parts = 3; // samples along each side of a pixel
const reach = 5; // pixels that a land's zone extends over the sea

// The zone that most samples of each pixel lie in; land counts before sea.
function sampleZones() {
    const codes = new Uint8Array(maskWidth * mapHeight);
    const land = new Uint8Array(maskWidth * mapHeight);
    for (let y = 0; y < mapHeight; ++y) {
        for (let x = 0; x < maskWidth; ++x) {
            const counts = new Map();
            for (let dy = 0; dy < parts; ++dy) {
                for (let dx = 0; dx < parts; ++dx) {
                    const longitude = -180 + ((x + (dx + 0.5) / parts) * 360) / maskWidth;
                    const zone = zoneAt(longitude, 80 - ((y + (dy + 0.5) / parts) * 150) / mapHeight);
                    const key = codeOfZone(zone) + (isSea(zone) ? 0 : 1000);
                    counts.set(key, (counts.get(key) ?? 0) + (isSea(zone) ? 1 : 2));
                }
            }
            const best = [...counts].reduce((a, b) => (b[1] > a[1] ? b : a))[0];
            codes[y * maskWidth + x] = best % 1000;
            land[y * maskWidth + x] = best >= 1000 ? 1 : 0;
        }
    }
    return { codes, land };
}

// Steps to all pixels within reach, nearest first.
function nearSteps() {
    const steps = [];
    for (let dy = -reach; dy <= reach; ++dy) {
        for (let dx = -reach; dx <= reach; ++dx) {
            if (dx * dx + dy * dy <= reach * reach) steps.push([dx, dy]);
        }
    }
    return steps.sort(([ax, ay], [bx, by]) => ax * ax + ay * ay - bx * bx - by * by || ay - by || ax - bx);
}

// Near a coast the sea takes the zone of the nearest land, so that a port whose pixel falls into the water keeps its own.
function growOverSea({ codes, land }) {
    const steps = nearSteps();
    return codes.map((code, pixel) => {
        if (land[pixel]) return code;
        const [x, y] = [pixel % maskWidth, Math.floor(pixel / maskWidth)];
        for (const [dx, dy] of steps) {
            if (x + dx < 0 || x + dx >= maskWidth || y + dy < 0 || y + dy >= mapHeight) continue;
            if (land[pixel + dy * maskWidth + dx]) return codes[pixel + dy * maskWidth + dx];
        }
        return code;
    });
}

// Where a border runs through a city's pixel, the pixel is the city's.
function giveToCities(codes, cities) {
    const owners = new Map();
    for (const { name, code, column, line } of cities) {
        const pixel = line * maskWidth + column;
        if (owners.has(pixel) && codes[pixel] !== code) throw new Error(`${name} and ${owners.get(pixel)} share a pixel`);
        if (codes[pixel] !== code) console.log(`zone mask: the pixel of ${name} goes from ${codes[pixel]} to ${code}`);
        owners.set(pixel, name);
        codes[pixel] = code;
    }
}

// Palette: the code in red; green and blue only tell the zones apart for the eye. Pixels as wide as the maps, the last
// columns repeated.
export function zoneMask(cities) {
    const codes = growOverSea(sampleZones());
    giveToCities(codes, cities);
    const used = [...new Set(codes)].sort((a, b) => a - b);
    console.log(`zone mask: ${used.length} zones`);
    const palette = used.map((code, entry) => [code, (entry * 97) % 256, (entry * 59 + 128) % 256]);
    const entryOf = new Map(used.map((code, entry) => [code, entry]));
    const indices = new Uint8Array(mapWidth * mapHeight);
    indices.forEach((_, pixel) => {
        const x = Math.min(pixel % mapWidth, maskWidth - 1);
        indices[pixel] = entryOf.get(codes[Math.floor(pixel / mapWidth) * maskWidth + x]);
    });
    return { palette, indices };
}
