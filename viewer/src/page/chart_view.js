// Draws the values of fields over time. The table under it has the same as text.

const kNamespace = "http://www.w3.org/2000/svg";
const svg = (name, attributes, text) => {
    const made = document.createElementNS(kNamespace, name);
    for (const [key, value] of Object.entries(attributes)) {
        made.setAttribute(key, value);
    }
    if (text !== undefined) {
        made.textContent = text;
    }
    return made;
};

/** Round numbers between two others, some four of them. */
function ticks(low, high) {
    const raw = (high - low) / 4 || 1;
    const size = 10 ** Math.floor(Math.log10(raw));
    const step = [1, 2, 5, 10].map((factor) => factor * size).find((candidate) => candidate >= raw);
    const found = [];
    for (let at = Math.ceil(low / step) * step; at <= high + step * 1e-9; at += step) {
        found.push(Math.abs(at) < step * 1e-9 ? 0 : at);
    }
    return found;
}
const number = (value) => String(Number(value.toPrecision(6)));

function timeText(time, range) {
    const text = new Date(time).toISOString();
    return range < 10000 ? text.slice(14, 23) : range < 86400000 ? text.slice(11, 19) : text.slice(5, 16).replace("T", " ");
}

/** Draws into `box`; `open(point)` is called for one that was clicked. */
export function draw(box, chart, open) {
    box.replaceChildren();
    const points = chart.series.flatMap((series) => series.points);
    if (points.length === 0) {
        return;
    }
    const width = Math.max(280, box.clientWidth), height = 260;
    const left = 64, right = 12, top = 10, bottom = 34;
    const xOf = (point) => (chart.hasTimes ? point.time : point.entry + 1);
    const bounds = (values) => values.reduce(([low, high], value) => [Math.min(low, value), Math.max(high, value)], [Infinity, -Infinity]);
    const [x0, x1] = bounds(points.map(xOf));
    let [y0, y1] = bounds(points.map((point) => point.value));
    if (y0 === y1) {
        [y0, y1] = [y0 - 1, y1 + 1];
    }
    const x = (value) => left + ((value - x0) / (x1 - x0 || 1)) * (width - left - right);
    const y = (value) => height - bottom - ((value - y0) / (y1 - y0)) * (height - top - bottom);
    const picture = svg("svg", { viewBox: `0 0 ${width} ${height}`, width, height, role: "img", "aria-label": describe(chart) });
    for (const value of ticks(y0, y1)) {
        picture.append(svg("line", { class: "grid", x1: left, x2: width - right, y1: y(value), y2: y(value) }),
            svg("text", { x: left - 6, y: y(value) + 4, "text-anchor": "end" }, number(value)));
    }
    const columns = Math.max(2, Math.floor((width - left) / 130));
    for (let i = 0; i < columns; ++i) {
        const value = x0 + ((x1 - x0) * i) / (columns - 1);
        const anchor = i === 0 ? "start" : i === columns - 1 ? "end" : "middle";
        if (i === 0 || x1 > x0) {
            picture.append(svg("text", { x: x(value), y: height - 10, "text-anchor": anchor },
                chart.hasTimes ? timeText(value, x1 - x0) : `#${Math.round(value)}`));
        }
    }
    chart.series.forEach((series, place) => {
        const places = series.points.map((point) => [x(xOf(point)), y(point.value)]);
        picture.append(svg("polyline", { class: `line line-${place}`, points: places.map(([px, py]) => `${px.toFixed(1)},${py.toFixed(1)}`).join(" ") }));
        if (places.length <= 200) {
            places.forEach(([px, py]) => picture.append(svg("circle", { class: `dot line-${place}`, cx: px.toFixed(1), cy: py.toFixed(1), r: 3 })));
        }
    });
    const mark = svg("circle", { class: "near", r: 6, cx: -20, cy: -20 });
    const label = svg("text", { class: "near-text", x: 0, y: 0 });
    picture.append(mark, label);
    let near = null;
    picture.addEventListener("pointermove", (event) => {
        const scale = width / picture.getBoundingClientRect().width;
        const px = event.offsetX * scale, py = event.offsetY * scale;
        let best = Infinity;
        for (const point of points) {
            const away = (x(xOf(point)) - px) ** 2 + ((y(point.value) - py) ** 2) / 4;
            if (away < best) {
                [best, near] = [away, point];
            }
        }
        const cx = x(xOf(near)), cy = y(near.value);
        mark.setAttribute("cx", cx);
        mark.setAttribute("cy", cy);
        label.textContent = `#${near.entry + 1}: ${number(near.value)}`;
        label.setAttribute("x", Math.min(cx + 8, width - 110));
        label.setAttribute("y", Math.max(cy - 8, 14));
    });
    picture.addEventListener("click", () => near && open(near));
    box.append(picture);
}

/** The chart in words. */
export function describe(chart) {
    const words = chart.series.map(({ path, name, count, low, high }) => `${name ? `${name} (${path})` : path}: ${count} ${count === 1 ? "value" : "values"}, from ${number(low)} to ${number(high)}`);
    return words.join("; ");
}
