// The table of zone lines as rows of C++.

import { hoursOf } from './zone_borders.js';

const maxColumns = 120;

// lines: { title, points: [longitude, latitude] in degrees }.
export const tableText = (lines) => [
    '// Made from the zone mask by tools/make_assets: npm run zone-lines. Degrees, east and north positive; above each',
    '// line the standard time on both sides of most of it.',
    ...lines.flatMap(lineRows),
    '{EndOfTable, EndOfTable},',
    '',
].join('\n');

function lineRows({ title, points }) {
    const rows = [];
    for (const [longitude, latitude] of points) {
        const cell = `{${single(longitude)}, ${single(latitude)}},`;
        if (rows.length > 0 && rows.at(-1).length + 1 + cell.length <= maxColumns) rows.push(`${rows.pop()} ${cell}`);
        else rows.push(cell);
    }
    return [`// ${title}`, '{PenUp, PenUp},', ...rows];
}

const single = (value) => `${Number.isInteger(value) ? value.toFixed(1) : value}F`;

// What a chain of mask sides mostly parts, such as "GMT - 5:00 | GMT - 4:00".
export function titleOf(sides) {
    const counts = new Map();
    for (const { codes } of sides) counts.set(String(codes), (counts.get(String(codes)) ?? 0) + 1);
    const [commonest] = [...counts].reduce((a, b) => (b[1] > a[1] ? b : a));
    return commonest.split(',').map((code) => clock(hoursOf(Number(code)))).join(' | ');
}

function clock(hours) {
    const minutes = Math.round(Math.abs(hours) * 60);
    return `GMT ${hours < 0 ? '-' : '+'} ${Math.floor(minutes / 60)}:${String(minutes % 60).padStart(2, '0')}`;
}
