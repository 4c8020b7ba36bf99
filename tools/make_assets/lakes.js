// The lakes of Natural Earth, 1:50 million, as Debian's package marble-qt-data brings them: big-endian records of rings
// whose points count in half minutes, each absolute point followed by some relative to it.

import { readFileSync } from 'node:fs';
import { marble } from './marble.js';

const unitsPerDegree = 120;
const headerBytes = 6;
const outer = 2; // kinds of records: a lake's shore,
const inner = 3; // the shore of an island in the lake before it,
const group = 4; // a heading of several rings

// Each lake as a list of rings of [longitude, latitude].
export function loadLakes() {
    const file = readFileSync(marble('naturalearth/ne_50m_lakes.pn2'));
    const lakes = [];
    for (let offset = headerBytes; offset < file.length;) {
        const kind = file.readUInt8(offset);
        if (kind === group) {
            offset += 6;
            continue;
        }
        if (kind !== outer && kind !== inner) throw new Error(`a record of the lakes is of kind ${kind}`);
        if (kind === outer) lakes.push([]);
        const { ring, end } = readRing(file, offset + 5);
        lakes.at(-1).push(ring);
        offset = end;
    }
    return lakes;
}

function readRing(file, start) {
    const ring = [];
    const add = (x, y) => ring.push([x / unitsPerDegree, y / unitsPerDegree]);
    let offset = start + 4;
    for (let absolutePoints = file.readUInt32BE(start); absolutePoints > 0; --absolutePoints) {
        const [y, x, relativePoints] = [0, 2, 4].map((at) => file.readInt16BE(offset + at));
        add(x, y);
        const end = offset + 6 + 2 * relativePoints;
        for (offset += 6; offset < end; offset += 2) add(x + file.readInt8(offset + 1), y + file.readInt8(offset));
    }
    return { ring, end: offset };
}
