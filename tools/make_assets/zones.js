// Time zones of today, as the codes of the zone mask.

import tzlookup from "@photostructure/tz-lookup";

const offsets = new Map();

// Hours east of Greenwich of a zone's standard time, by the rules of 2026.
function standardOffset(zone) {
    if (!offsets.has(zone)) {
        const format = new Intl.DateTimeFormat("en", { timeZone: zone, timeZoneName: "longOffset" });
        const hours = [0, 6].map((month) => {
            const name = format.formatToParts(new Date(Date.UTC(2026, month, 15))).find((part) => part.type === "timeZoneName").value;
            const [, sign, hour, minute] = /^GMT(?:([+-])(\d+):(\d+))?$/.exec(name);
            return sign ? (sign + "1") * (Number(hour) + Number(minute) / 60) : 0;
        });
        offsets.set(zone, Math.min(...hours));
    }
    return offsets.get(zone);
}

// Offsets that the program's zone table lacks, and the neighbours that they go to.
const neighbours = new Map([[-9.5, -10], [8.75, 8], [10.5, 10], [12.75, 12], [13, 12], [14, 12], [-3.5, -4]]);

const tableOffsets = [
    -12, -11, -10, -9, -8, -7, -6, -5, -4, -3, -2, -1, 0, 1, 2, 3, 3.5, 4, 4.5, 5, 5.5, 5.75, 6, 6.5, 7, 8, 9, 9.5, 10, 11, 12,
];

// Ten times the hours west; east of Greenwich that much less than 240, 12 hours west 240 itself.
function codeOfOffset(hours) {
    const tabled = neighbours.get(hours) ?? hours;
    if (!tableOffsets.includes(tabled)) throw new Error(`no zone of ${hours} hours`);
    if (tabled === -12) return 240;
    return tabled > 0 ? Math.trunc(240 - 10 * tabled) : -10 * tabled + 0;
}

export const zoneAt = (longitude, latitude) => tzlookup(latitude, longitude);
export const isSea = (zone) => zone.startsWith("Etc/");
export const codeOfZone = (zone) => codeOfOffset(standardOffset(zone));
