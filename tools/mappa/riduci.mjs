// Reduces Natural Earth's countries to the arcs and polygons that the maps of the game show.
//
//   npm install world-atlas@2.0.2
//   node riduci.mjs node_modules/world-atlas/countries-10m.json > art/mappa/europa.txt
//
// Run once by hand: the build reads only the reduced file.
import fs from 'node:fs';

const QUANTUM = 0.005; // degrees; a quarter of a pixel of the largest picture
const FINE = [-26, 30, 54, 72]; // lon, lat, lon, lat: full detail inside
const KEEP = [-32, 22, 68, 78]; // polygons wholly outside are dropped
const TOLERANCE_FINE = 0.009;
const TOLERANCE_FAR = 0.6;
const SMALLEST_RING = 0.0035; // square degrees of the equator
const MERGED = {'N. Cyprus': 'Cyprus', 'Vatican': 'Italy', 'San Marino': 'Italy',
                'Åland': 'Finland', 'Dhekelia': 'Cyprus', 'Akrotiri': 'Cyprus',
                'Cyprus U.N. Buffer Zone': 'Cyprus', 'Baikonur': 'Kazakhstan'};

const world = JSON.parse(fs.readFileSync(process.argv[2]));
const {scale, translate} = world.transform;
const arcs = world.arcs.map((arc) => {
  let x = 0, y = 0;
  return arc.map(([dx, dy]) => {
    x += dx;
    y += dy;
    const lon = x * scale[0] + translate[0];
    // The far east of Russia lies beyond the line where longitudes jump.
    return [lon < -150 ? lon + 360 : lon, y * scale[1] + translate[1]];
  });
});

const forward = (i) => (i < 0 ? ~i : i);
const ringPoints = (ring) =>
    ring.flatMap((i) => (i < 0 ? arcs[~i].slice().reverse() : arcs[i]));
const box = (points) => points.reduce(
    ([a, b, c, d], [x, y]) => [Math.min(a, x), Math.min(b, y), Math.max(c, x), Math.max(d, y)],
    [Infinity, Infinity, -Infinity, -Infinity]);
const meets = (a, b) => a[0] <= b[2] && a[2] >= b[0] && a[1] <= b[3] && a[3] >= b[1];
const inside = ([x, y], [a, b, c, d]) => x >= a && x <= c && y >= b && y <= d;

function area(points) {
  let sum = 0, y = 0;
  for (let i = 0; i < points.length; i++) {
    const [x0, y0] = points[i], [x1, y1] = points[(i + 1) % points.length];
    sum += x0 * y1 - x1 * y0;
    y += y0;
  }
  return Math.abs(sum / 2) * Math.cos((y / points.length) * Math.PI / 180);
}

// The peninsula is a polygon of its own, by whose bounds it is found.
const isCrimea = (b) => b[0] > 32 && b[2] < 37 && b[1] > 44 && b[3] < 46.5;

const countries = new Map();
for (const g of world.objects.countries.geometries) {
  const polygons = g.type === 'Polygon' ? [g.arcs] : g.type === 'MultiPolygon' ? g.arcs : [];
  for (const rings of polygons) {
    const outer = ringPoints(rings[0]);
    const b = box(outer);
    const wound = b[2] - b[0] > 190; // torn apart by that jump
    if (wound || !meets(b, KEEP) || area(outer) < SMALLEST_RING) continue;
    let name = MERGED[g.properties.name] ?? g.properties.name;
    if (name === 'Russia' && isCrimea(b)) name = 'Ukraine';
    if (!countries.has(name)) countries.set(name, []);
    countries.get(name).push(
        rings.filter((r, i) => i === 0 || area(ringPoints(r)) >= SMALLEST_RING));
  }
}

const users = new Map(); // arc -> names of the countries on its sides, one entry per use
for (const [name, polygons] of countries) {
  for (const i of polygons.flat(2).map(forward)) users.set(i, [...(users.get(i) ?? []), name]);
}

// Douglas-Peucker with a tolerance that grows outside the detailed window.
function simplify(points) {
  const keep = new Uint8Array(points.length);
  const tolerance = (p) => (inside(p, FINE) ? TOLERANCE_FINE : TOLERANCE_FAR);
  const split = (from, to) => {
    let worst = 0, at = -1;
    const [ax, ay] = points[from], [bx, by] = points[to];
    const length2 = (bx - ax) ** 2 + (by - ay) ** 2;
    for (let i = from + 1; i < to; i++) {
      const [x, y] = points[i];
      const t = length2 === 0 ? 0 :
          Math.max(0, Math.min(1, ((x - ax) * (bx - ax) + (y - ay) * (by - ay)) / length2));
      const d = Math.hypot(x - ax - t * (bx - ax), y - ay - t * (by - ay)) / tolerance(points[i]);
      if (d > worst) worst = d, at = i;
    }
    if (worst > 1) {
      keep[at] = 1;
      split(from, at);
      split(at, to);
    }
  };
  keep[0] = keep[points.length - 1] = 1;
  split(0, points.length - 1);
  return points.filter((_, i) => keep[i]);
}

const order = [...users.keys()].sort((a, b) => a - b);
const number = new Map(order.map((i, n) => [i, n]));
const out = [
  '# Coasts and borders of Europe, reduced for the maps of the game.',
  '# Source: Natural Earth 4.1, 1:10m cultural vectors, public domain (naturalearthdata.com),',
  '# as packed in world-atlas 2.0.2; reduced by tools/mappa/riduci.mjs.',
  '# quanto: degrees per unit. arco: kind (C coast, T land border, I inner line, not drawn), then',
  '# longitude and latitude of the first point and the step to each further one, in units.',
  '# paese: name. anello: a ring of that country (outer or hole) as a list of arcs, ~n when reversed.',
  `quanto ${QUANTUM}`,
];
for (const i of order) {
  const names = users.get(i);
  const kind = names.length === 1 ? 'C' : new Set(names).size > 1 ? 'T' : 'I';
  let [px, py] = [0, 0];
  const steps = [];
  for (const [x, y] of simplify(arcs[i])) {
    const [qx, qy] = [Math.round(x / QUANTUM), Math.round(y / QUANTUM)];
    if (steps.length > 1 && qx === px && qy === py) continue;
    steps.push(`${qx - px} ${qy - py}`);
    [px, py] = [qx, qy];
  }
  out.push(`arco ${kind} ${steps.join(' ')}`);
}
for (const [name, polygons] of [...countries].sort()) {
  out.push(`paese ${name}`);
  for (const ring of polygons.flat()) {
    out.push('anello ' + ring.map((i) => (i < 0 ? '~' : '') + number.get(forward(i))).join(' '));
  }
}
process.stdout.write(out.join('\n') + '\n');
