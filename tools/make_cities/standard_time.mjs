// Standard time of a zone, in hours positive WEST of Greenwich, as in force in the reference year, from the
// same rules that data/ZONES.DAT holds.

import { readFileSync } from 'node:fs';

const kReferenceYear = 2025;

// Ireland calls winter time the exception; as everywhere else, winter time counts here. Xinjiang stands at its
// legal time, that of Beijing.
const kHoursEast = { 'Europe/Dublin': 0, 'Asia/Urumqi': 8, 'Asia/Kashgar': 8 };

function hoursOf(text) {
  const [, sign, hours, minutes = '0', seconds = '0'] = /^(-?)(\d+)(?::(\d+))?(?::(\d+))?$/.exec(text);
  const value = Number(hours) + Number(minutes) / 60 + Number(seconds) / 3600;
  return sign ? -value : value;
}

// The hours east of every zone's last era that begins in the reference year or before.
function readZones() {
  const source = new URL('../make_zones/tzdata_complete.zi', import.meta.url);
  const east = new Map();
  const links = new Map();
  let zone = null;
  for (const line of readFileSync(source, 'utf8').split('\n')) {
    const words = line.split(' ');
    if (words[0] === 'L') links.set(words[2], words[1]);
    if ('RL#'.includes(words[0][0] ?? '#')) continue;
    if (words[0] === 'Z') zone = words[1];
    const [standard, , , until] = words[0] === 'Z' ? words.slice(2) : words;
    if (!east.has(zone) && (!until || Number(until) > kReferenceYear)) east.set(zone, hoursOf(standard));
  }
  for (const [other, name] of links) east.set(other, east.get(name));
  return east;
}

const zones = readZones();

// Throws when the hours are no whole quarters or the zone is unknown.
export function standardHoursWest(zone) {
  const hours = -(kHoursEast[zone] ?? zones.get(zone)) || 0;
  if (!Number.isInteger(hours * 4)) throw new Error(`odd offset in ${zone}`);
  return hours;
}
