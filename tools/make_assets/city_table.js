// The program's city table.

import { readFileSync } from 'node:fs';

const table = new URL('../../src/places/cities.cpp', import.meta.url);
const rows = 350;

// Rows from 1 on.
export function tableOfCities() {
    const entries = [...readFileSync(table, 'utf8').matchAll(/\{"([^"]+)",\s*(-?[\d.]+)F,\s*(-?[\d.]+)F\}/g)];
    if (entries.length !== rows) throw new Error(`${entries.length} cities instead of ${rows}`);
    return entries.map(([, name, longitude, latitude], i) =>
        ({ row: i + 1, name, longitude: Number(longitude), latitude: Number(latitude) }));
}
