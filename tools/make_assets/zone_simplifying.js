// Fewer points for the chains between zones: those that leave the smallest squared distance from the border.

// Sums over the first points of a chain, for the moments of any run of them in one step.
function momentSums(points, weights) {
    const sums = [[0, 0, 0, 0, 0, 0]];
    points.forEach(([x, y], i) => {
        const w = weights[i];
        sums.push([w, w * x, w * y, w * x * x, w * x * y, w * y * y].map((value, k) => sums[i][k] + value));
    });
    return sums;
}

// Weighted squared distance of the points from first to last from the straight line between these two.
function lineError(points, sums, first, last) {
    const [w, wx, wy, wxx, wxy, wyy] = sums[last + 1].map((value, k) => value - sums[first][k]);
    const [x, y] = points[first];
    const xx = wxx - 2 * x * wx + x * x * w;
    const xy = wxy - x * wy - y * wx + x * y * w;
    const yy = wyy - 2 * y * wy + y * y * w;
    const [dx, dy] = [points[last][0] - x, points[last][1] - y];
    const square = dx * dx + dy * dy;
    return square === 0 ? xx + yy : (dy * dy * xx - 2 * dx * dy * xy + dx * dx * yy) / square;
}

// The points of a chain to keep, first and last among them, where a point costs as much as that error.
export function keptPoints({ points, weights }, price) {
    const sums = momentSums(points, weights);
    const best = [{ cost: 0 }];
    for (let last = 1; last < points.length; ++last) {
        best[last] = { cost: Infinity };
        for (let first = last - 1; first >= 0; --first) {
            const cost = best[first].cost + price + lineError(points, sums, first, last);
            if (cost < best[last].cost) best[last] = { cost, from: first };
        }
    }
    const kept = [];
    for (let i = points.length - 1; i !== undefined; i = best[i].from) kept.unshift(i);
    return kept;
}

const innerCount = (kept) => kept.reduce((sum, each) => sum + each.length - 2, 0);

// Keeps just so many points between the ends of the chains. Returns for each chain the indexes of its points.
export function simplified(chains, wanted) {
    let [low, high] = [0.01, 10000]; // prices with too many points, with few enough
    while (high / low > 1.0001) {
        const middle = Math.sqrt(low * high);
        if (innerCount(chains.map((chain) => keptPoints(chain, middle))) > wanted) low = middle;
        else high = middle;
    }
    const kept = chains.map((chain) => keptPoints(chain, high));
    while (innerCount(kept) < wanted) addBestPoint(chains, kept);
    return kept;
}

// The one more point that takes most error away.
function addBestPoint(chains, kept) {
    let best = { gain: -1 };
    chains.forEach(({ points, weights }, c) => {
        const sums = momentSums(points, weights);
        for (let k = 1; k < kept[c].length; ++k) {
            const [first, last] = [kept[c][k - 1], kept[c][k]];
            const whole = lineError(points, sums, first, last);
            for (let i = first + 1; i < last; ++i) {
                const gain = whole - lineError(points, sums, first, i) - lineError(points, sums, i, last);
                if (gain > best.gain) best = { gain, c, k, i };
            }
        }
    });
    kept[best.c].splice(best.k, 0, best.i);
}
