// The program's cities, their zones, and the pixels of the zone mask that they are sampled on.

import { readFileSync } from "node:fs";
import { maskWidth, mapHeight } from "./geometry.js";
import { codeOfZone, isSea, zoneAt } from "./zones.js";

const row = /^ *\{"(.+)", *(-?[\d.]+)F, *(-?[\d.]+)F\},$/gm;

// The zone of a place on land. Coordinates are coarse: one that lies at sea has the zone of the nearest land within
// half a degree, or, farther out, that of the sea.
function zoneOf(longitude, latitude) {
    for (let ring = 0; ring <= 10; ++ring) {
        for (let step = 0; step < 32; ++step) {
            const angle = (step / 32) * 2 * Math.PI;
            const radius = ring * 0.05; // degrees of latitude
            const zone = zoneAt(longitude + (radius * Math.cos(angle)) / Math.cos((latitude * Math.PI) / 180),
                                latitude + radius * Math.sin(angle));
            if (!isSea(zone)) return zone;
        }
    }
    return zoneAt(longitude, latitude);
}

// A coordinate in whole minutes, as the program's dialog keeps it.
function inMinutes(coordinate) {
    const magnitude = Math.abs(coordinate);
    const degrees = Math.floor(magnitude);
    const minutes = Math.floor((magnitude + 0.005 - degrees) * 60);
    return Math.sign(coordinate) * Math.fround(minutes / 60 + degrees);
}

function maskPixel(longitude, latitude) {
    const x = Math.fround(((180 - inMinutes(longitude)) * maskWidth) / 360);
    return { column: Math.floor(maskWidth - x), line: Math.floor(((80 - inMinutes(latitude)) * mapHeight) / 150) };
}

export function readCities() {
    const source = readFileSync(new URL("../../places/cities.cpp", import.meta.url), "utf8");
    return [...source.matchAll(row)].map(([, name, longitude, latitude]) => {
        const place = [Math.fround(longitude), Math.fround(latitude)];
        const zone = zoneOf(...place);
        return { name, zone, code: codeOfZone(zone), ...maskPixel(...place) };
    });
}
