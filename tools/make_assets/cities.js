// The zone of each city.

import { tableOfCities } from './city_table.js';
import { kmPerDegree, radians } from './geometry.js';
import { codeOfZone, isSeaZone, zoneAt } from './zones.js';

// Rows of the table with the zone at each city's own coordinates and its mask code.
export const loadCities = () => tableOfCities().map((city) => {
    const zone = zoneOnLand(city);
    return { ...city, zone, code: codeOfZone(zone) };
});

const searchKm = 60;
const bearings = 72;

// The table's coordinates are coarse: where they fall into the sea the nearest land has the city's zone.
function zoneOnLand({ longitude, latitude, name }) {
    for (let km = 0; km <= searchKm; ++km)
        for (let i = 0; i < bearings; ++i) {
            const bearing = radians((i * 360) / bearings);
            const zone = zoneAt(
                longitude + (km * Math.sin(bearing)) / (kmPerDegree * Math.cos(radians(latitude))),
                latitude + (km * Math.cos(bearing)) / kmPerDegree);
            if (!isSeaZone(zone)) return zone;
        }
    throw new Error(`no land within ${searchKm} km of ${name}`);
}

// The lines of the test's table of cities and zones.
export function cityZonesText(cities) {
    const heading = [
        '# The zone of each city: row of the city table, code of the zone mask, zone.',
        '# Made by tools/make_assets, not from the mask but from a time zone lookup at the coordinates of the city',
        '# table (at the nearest land where they fall into the sea) and from the standard offset of that zone by',
        `# the tz database ${process.versions.tz}.`,
    ];
    const lines = cities.map(({ row, code, zone, name }) => `${row} ${code} ${zone}  # ${name}`);
    return [...heading, ...lines, ''].join('\n');
}
