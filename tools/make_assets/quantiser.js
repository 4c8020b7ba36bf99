// Reduces colours to a palette of least squared error: median cut by variance, then k-means.

const rounds = 12;

// colours: array of [red, green, blue] as real numbers. Returns the palette (whole numbers) and each colour's entry.
export function quantise(colours, count) {
    let centres = split(colours, count).map(mean);
    let entries;
    for (let round = 0; round < rounds; ++round) {
        entries = colours.map((colour) => nearest(centres, colour));
        centres = meansByEntry(colours, entries, centres);
    }
    const palette = centres.map((centre) => centre.map(Math.round));
    return { palette, entries: colours.map((colour) => nearest(palette, colour)) };
}

function mean(colours) {
    const sum = [0, 0, 0];
    for (const colour of colours) for (let c = 0; c < 3; ++c) sum[c] += colour[c];
    return sum.map((value) => value / colours.length);
}

// The squared error of a box and the channel that has most of it.
function measure(colours) {
    const centre = mean(colours);
    const error = [0, 0, 0];
    for (const colour of colours) for (let c = 0; c < 3; ++c) error[c] += (colour[c] - centre[c]) ** 2;
    return { colours, error: error[0] + error[1] + error[2], channel: error.indexOf(Math.max(...error)) };
}

// Splits the box of the greatest error at its mean until there are enough boxes.
function split(colours, count) {
    const boxes = [measure(colours)];
    while (boxes.length < count) {
        const worst = boxes.reduce((a, b) => (b.error > a.error ? b : a));
        if (worst.error === 0) break;
        const middle = mean(worst.colours)[worst.channel];
        const below = worst.colours.filter((colour) => colour[worst.channel] <= middle);
        const above = worst.colours.filter((colour) => colour[worst.channel] > middle);
        boxes.splice(boxes.indexOf(worst), 1, measure(below), measure(above));
    }
    return boxes.map((box) => box.colours);
}

function nearest(palette, [red, green, blue]) {
    let best = 0;
    let bestDistance = Infinity;
    for (let i = 0; i < palette.length; ++i) {
        const [r, g, b] = palette[i];
        const distance = (r - red) ** 2 + (g - green) ** 2 + (b - blue) ** 2;
        if (distance < bestDistance) [best, bestDistance] = [i, distance];
    }
    return best;
}

function meansByEntry(colours, entries, centres) {
    const members = centres.map(() => []);
    entries.forEach((entry, i) => members[entry].push(colours[i]));
    return members.map((group, i) => (group.length ? mean(group) : centres[i]));
}
