// The countries of the world, sampled many times a pixel.

import { readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { geoEquirectangular, geoPath } from "d3-geo";
import { feature, neighbors } from "topojson-client";
import { mapHeight, mapWidth, samples } from "./geometry.js";

const world = JSON.parse(readFileSync(createRequire(import.meta.url).resolve("world-atlas/countries-50m.json")));
const geometries = world.objects.countries.geometries;

export const countryNames = geometries.map((each) => each.properties.name);
export const countryNeighbors = neighbors(geometries);

// Degrees: x the longitude, y the latitude turned downward.
const degrees = geoEquirectangular().scale(180 / Math.PI).translate([0, 0]).precision(0);

// The rings of a polygon or of many, cut at longitude 180.
function ringsOf(shape) {
    const rings = [];
    geoPath(degrees, {
        moveTo: (x, y) => rings.push([[x, y]]),
        lineTo: (x, y) => rings.at(-1).push([x, y]),
        closePath: () => {},
        arc: () => {},
    })(shape);
    return rings;
}

// Calls fill(row, first, beyond) for every run of samples inside the rings, by the even-odd rule.
function scan(rings, width, height, fill) {
    const crossings = Array.from({ length: height }, () => []);
    const toX = (longitude) => ((longitude + 180) / 360) * width - 0.5;
    const toY = (downward) => ((80 + downward) / 150) * height - 0.5;
    for (const ring of rings) {
        ring.forEach(([x1, y1], place) => {
            const [x2, y2] = ring[(place + 1) % ring.length];
            const [upper, lower] = y1 < y2 ? [[x1, y1], [x2, y2]] : [[x2, y2], [x1, y1]];
            const top = toY(upper[1]);
            const bottom = toY(lower[1]);
            for (let row = Math.max(0, Math.ceil(top)); row < Math.min(height, bottom); ++row) {
                const part = (row - top) / (bottom - top);
                crossings[row].push(toX(upper[0]) + part * (toX(lower[0]) - toX(upper[0])));
            }
        });
    }
    crossings.forEach((xs, row) => {
        xs.sort((a, b) => a - b);
        for (let pair = 0; pair + 1 < xs.length; pair += 2) {
            const first = Math.max(0, Math.ceil(xs[pair]));
            const beyond = Math.min(width, Math.ceil(xs[pair + 1]));
            if (first < beyond) fill(row, first, beyond);
        }
    });
}

// Which country each sample lies in: its number plus 1, or 0 for the sea. samples by samples for each pixel.
export function sampleCountries(width, height) {
    const owner = new Uint16Array(width * height);
    geometries.forEach((geometry, number) => {
        scan(ringsOf(feature(world, geometry)), width, height, (row, first, beyond) => {
            owner.fill(number + 1, row * width + first, row * width + beyond);
        });
    });
    return owner;
}

// Less than two degrees from end to end.
function isSmall([ring]) {
    return [0, 1].every((axis) => {
        const places = ring.map((point) => point[axis]);
        return Math.max(...places) - Math.min(...places) < 2;
    });
}

// Islands too small to fill half a pixel: for each, the pixel that it fills best, its country and how far it is filled.
function smallIslands() {
    const found = [];
    geometries.forEach((geometry, number) => {
        const shape = feature(world, geometry).geometry;
        const polygons = shape.type === "Polygon" ? [shape.coordinates] : shape.coordinates;
        for (const coordinates of polygons.filter(isSmall)) {
            const filled = new Map();
            scan(ringsOf({ type: "Polygon", coordinates }), mapWidth * samples, mapHeight * samples, (row, first, beyond) => {
                for (let x = first; x < beyond; ++x) {
                    const pixel = Math.floor(row / samples) * mapWidth + Math.floor(x / samples);
                    filled.set(pixel, (filled.get(pixel) ?? 0) + 1);
                }
            });
            const best = [...filled].reduce((a, b) => (b[1] > a[1] ? b : a), [0, 0]);
            if (filled.size > 0 && best[1] < (samples * samples) / 2) {
                found.push({ pixel: best[0], country: number + 1, share: best[1] / samples ** 2 });
            }
        }
    });
    return found;
}

// The country of each pixel of the map, number plus 1, or 0 where most of the pixel is sea.
export function countryMap(owner) {
    const map = new Uint16Array(mapWidth * mapHeight);
    for (let y = 0; y < mapHeight; ++y) {
        for (let x = 0; x < mapWidth; ++x) {
            const counts = new Map();
            for (let dy = 0; dy < samples; ++dy) {
                for (let dx = 0; dx < samples; ++dx) {
                    const each = owner[(y * samples + dy) * mapWidth * samples + x * samples + dx];
                    counts.set(each, (counts.get(each) ?? 0) + 1);
                }
            }
            const sea = counts.get(0) ?? 0;
            counts.delete(0);
            if (sea > (samples * samples) / 2) continue;
            map[y * mapWidth + x] = [...counts].reduce((a, b) => (b[1] > a[1] ? b : a))[0];
        }
    }
    for (const { pixel, country, share } of smallIslands()) {
        if (share > 0.15 && map[pixel] === 0) map[pixel] = country;
    }
    return map;
}
