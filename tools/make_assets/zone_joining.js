// Long lines out of the chains between zones.

import { chainsOf, placeOf } from './zone_borders.js';

const endsOf = (chain) => [chain.corners[0], chain.corners.at(-1)];

// Chains that meet at each junction, a chain twice where both its ends do.
function meetings(chains) {
    const at = new Map();
    for (const chain of chains)
        for (const corner of endsOf(chain)) at.get(corner)?.push(chain) ?? at.set(corner, [chain]);
    return at;
}

// A junction of an odd number of chains leaves one that a line must end with.
const lineCount = (chains) => [...meetings(chains).values()].filter((around) => around.length % 2).length / 2;

// Leaves out the chains of least worth until the rest makes just so many lines. Returns the chains.
export function prunedChains(sides, wantedLines, worthOf) {
    for (let left = sides; ; ) {
        const chains = chainsOf(left);
        if (lineCount(chains) <= wantedLines) return chains;
        const least = chains.reduce((a, b) => (worthOf(b) < worthOf(a) ? b : a));
        const gone = new Set(least.sides);
        left = left.filter((side) => !gone.has(side));
    }
}

const look = 8; // corners into a chain that tell its direction

function direction(chain, corner, backwards) {
    const corners = backwards ? [...chain.corners].reverse() : chain.corners;
    const [x, y] = placeOf(corner);
    const [toX, toY] = placeOf(corners[Math.min(look, corners.length - 1)]);
    return Math.atan2(toY - y, toX - x);
}

// Joins chains two by two at junctions, the straightest pair first, into lines: lists of { chain, backwards }.
// No line closes.
export function joinedLines(chains) {
    const tips = chains.flatMap((chain) => [false, true].map((backwards) =>
        ({ chain, backwards, corner: endsOf(chain)[backwards ? 1 : 0] })));
    const pairs = [];
    tips.forEach((a, i) => {
        for (const b of tips.slice(i + 1)) {
            if (a.corner !== b.corner || a.chain === b.chain) continue;
            const turn = direction(a.chain, a.corner, a.backwards) - direction(b.chain, b.corner, b.backwards);
            pairs.push({ a, b, straight: -Math.cos(turn) });
        }
    });
    const lineOf = new Map(chains.map((chain) => [chain, { chains: [chain] }]));
    for (const { a, b } of pairs.sort((p, q) => q.straight - p.straight)) {
        const [one, other] = [lineOf.get(a.chain), lineOf.get(b.chain)];
        if (a.partner || b.partner || one === other) continue;
        a.partner = b;
        b.partner = a;
        one.chains.push(...other.chains);
        for (const chain of other.chains) lineOf.set(chain, one);
    }
    return [...new Set(lineOf.values())].map(({ chains: ofLine }) => walk(tips, ofLine));
}

function walk(tips, chains) {
    const tipOf = (chain, backwards) => tips.find((tip) => tip.chain === chain && tip.backwards === backwards);
    const start = tips.find((tip) => chains.includes(tip.chain) && !tip.partner);
    const line = [];
    for (let tip = start; tip; tip = tipOf(tip.chain, !tip.backwards).partner)
        line.push({ chain: tip.chain, backwards: tip.backwards });
    return line;
}
