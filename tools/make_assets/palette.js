// Few colours for a picture of many.

const channel = [0, 1, 2];

// The average colour of each box after cutting the colours count - 1 times, always the box with the largest spread.
function medianCut(colours, count) {
    const boxes = [{ colours }];
    const measure = (box) => {
        const spreads = channel.map((c) => {
            const mean = box.colours.reduce((sum, each) => sum + each[c], 0) / box.colours.length;
            return box.colours.reduce((sum, each) => sum + (each[c] - mean) ** 2, 0);
        });
        box.axis = spreads.indexOf(Math.max(...spreads));
        box.spread = spreads[box.axis];
    };
    measure(boxes[0]);
    while (boxes.length < count) {
        const widest = boxes.reduce((a, b) => (b.spread > a.spread ? b : a));
        if (widest.spread === 0) break;
        widest.colours.sort((a, b) => a[widest.axis] - b[widest.axis]);
        const mean = widest.colours.reduce((sum, each) => sum + each[widest.axis], 0) / widest.colours.length;
        let middle = widest.colours.findIndex((each) => each[widest.axis] > mean);
        middle = Math.max(1, middle);
        const upper = { colours: widest.colours.slice(middle) };
        widest.colours = widest.colours.slice(0, middle);
        measure(widest);
        measure(upper);
        boxes.push(upper);
    }
    return boxes.map((box) => channel.map((c) => box.colours.reduce((sum, each) => sum + each[c], 0) / box.colours.length));
}

export function nearest(palette, colour) {
    let best = 0;
    let least = Infinity;
    palette.forEach((each, entry) => {
        const distance = channel.reduce((sum, c) => sum + (each[c] - colour[c]) ** 2, 0);
        if (distance < least) [best, least] = [entry, distance];
    });
    return best;
}

// A palette of at most count whole colours for the given ones: median cut, then some rounds of moving each colour to
// the middle of those that it stands for.
export function makePalette(colours, count) {
    let palette = medianCut([...colours], count);
    for (let round = 0; round < 4; ++round) {
        const sums = palette.map(() => [0, 0, 0, 0]);
        for (const colour of colours) {
            const sum = sums[nearest(palette, colour)];
            channel.forEach((c) => (sum[c] += colour[c]));
            ++sum[3];
        }
        palette = palette.map((old, entry) => (sums[entry][3] ? channel.map((c) => sums[entry][c] / sums[entry][3]) : old));
    }
    return palette.map((colour) => colour.map(Math.round));
}
