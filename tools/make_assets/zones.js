// Time zone of a point of the Earth and the code that the program's zone table gives to its standard offset.

import tzLookup from '@photostructure/tz-lookup';

const year = 2026; // the rules of this year decide

// Mask code of each offset, hours east of Greenwich, that occurs in the mask. Newfoundland's own code 35 does not.
const codeOfOffset = new Map([
    [-12, 240], [-11, 110], [-10, 100], [-9, 90], [-8, 80], [-7, 70], [-6, 60], [-5, 50], [-4, 40], [-3, 30],
    [-2, 20], [-1, 10], [0, 0], [1, 230], [2, 220], [3, 210], [3.5, 205], [4, 200], [4.5, 195], [5, 190],
    [5.5, 185], [5.75, 182], [6, 180], [6.5, 175], [7, 170], [8, 160], [9, 150], [9.5, 145], [10, 140], [11, 130],
    [12, 120],
]);

// Offsets that the zone table lacks, or that the mask leaves to the user's own hand, and the ones that stand in.
const standIn = new Map([[-9.5, -10], [-3.5, -4], [8.75, 8], [10.5, 10], [12.75, 12], [13, 12], [14, 12]]);

export const codes = [...codeOfOffset.values()];

// Name of the zone at a point, degrees east and north; "Etc/..." at sea.
export const zoneAt = (longitude, latitude) => tzLookup(latitude, longitude);

export const isSeaZone = (zone) => zone.startsWith('Etc/');

const known = new Map();

// Mask code of a zone.
export function codeOfZone(zone) {
    if (!known.has(zone)) {
        const offset = standardOffset(zone);
        const code = codeOfOffset.get(standIn.get(offset) ?? offset);
        if (code === undefined) throw new Error(`no code for ${zone} at ${offset} hours`);
        known.set(zone, code);
    }
    return known.get(zone);
}

// Hours east of Greenwich outside daylight saving: the smaller offset of January and July. That also gives what
// clocks show most of the year in Ireland (0) and Morocco (+1), whose own law calls it otherwise.
export function standardOffset(zone) {
    const format = new Intl.DateTimeFormat('en-US', { timeZone: zone, timeZoneName: 'longOffset' });
    const hours = [0, 6].map((month) => {
        const parts = format.formatToParts(Date.UTC(year, month, 15, 12));
        const text = parts.find((part) => part.type === 'timeZoneName').value;
        const match = /^GMT(?:([+-])(\d\d):(\d\d))?$/.exec(text);
        if (!match) throw new Error(`cannot read offset ${text} of ${zone}`);
        const [, sign, hour = 0, minute = 0] = match;
        return (sign === '-' ? -1 : 1) * (Number(hour) + Number(minute) / 60);
    });
    return Math.min(...hours) + 0; // no minus zero
}
