// Writes the tables of series in src/astro/modern: VSOP87B cut for Mercury to Mars, in full for Jupiter to
// Neptune, and ELP/MPP02 cut for the Moon.
//
//   npm install --no-package-lock
//   node cut_series.js [--output DIRECTORY]

import { writeFileSync } from 'node:fs'
import { fileURLToPath } from 'node:url'
import { dirname, join } from 'node:path'
import { parseArgs } from 'node:util'
import data from 'astronomia/data'

const here = dirname(fileURLToPath(import.meta.url))
const kArcSecond = Math.PI / 180 / 3600

// What the terms left out may amount to: the root mean square of their sum in arc seconds, as seen from the
// Sun (from the Earth for the Moon), within kCenturies of 2000. At its worst such a sum reaches five times that.
const kCenturies = 4
const kLeftOut = { mercury: 0.04, venus: 0.02, earth: 0.02, mars: 0.03, moon: 0.03 }
const kMoonDistanceLeftOut = 20 // kilometres

const kGiants = ['jupiter', 'saturn', 'uranus', 'neptune']
const kLongestRow = 110

const capital = (name) => name[0].toUpperCase() + name.slice(1)

// The terms of one quantity as { power, row }, in published order.
function termsOf (series) {
  return Object.entries(series).flatMap(([power, rows]) => rows.map((row) => {
    if (!row.every(Number.isFinite)) throw new Error('a term is not a number')
    return { power: Number(power), row }
  }))
}

// The terms that are kept: all but the smallest, whose sum has the root mean square `limit`.
function cut (terms, sizeOf, limit) {
  const smallestFirst = [...terms].sort((a, b) => sizeOf(a) - sizeOf(b))
  const dropped = new Set()
  let square = 0
  for (const term of smallestFirst) {
    square += sizeOf(term) ** 2 / 2
    if (Math.sqrt(square) >= limit) break
    dropped.add(term)
  }
  return terms.filter((term) => !dropped.has(term))
}

// How many terms there are of each power, up to the highest.
function countsOf (terms) {
  const counts = new Array(6).fill(0)
  for (const { power } of terms) ++counts[power]
  return `{${counts.join(', ')}}`
}

// As many items to a line as fit.
function filled (items) {
  const lines = []
  let line = '   '
  for (const item of items) {
    if (line.length + item.length + 2 > kLongestRow) {
      lines.push(line)
      line = '   '
    }
    line += ` ${item},`
  }
  return [...lines, line].join('\n')
}

function page (comment, body) {
  const head = comment.map((line) => `// ${line}`)
  return ['// clang-format off', ...head, '', '#include "astro/modern/series_tables.h"', '',
    'namespace tolvanis::modern {', 'namespace {', '', ...body, '', '}  // namespace tolvanis::modern', ''].join('\n')
}

function innerPlanet (name) {
  const series = data[`vsop87B${name}`]
  const meanDistance = series.R[0][0][0]
  const kept = ['L', 'B', 'R'].map((quantity) => {
    const unit = quantity === 'R' ? kArcSecond * meanDistance : kArcSecond
    const size = ({ power, row }) => Math.abs(row[0]) * (kCenturies / 10) ** power
    return cut(termsOf(series[quantity]), size, kLeftOut[name] * unit)
  })
  const rows = kept.flat().map(({ row }) => `{${row.join(', ')}}`)
  return {
    table: `constexpr PlanetTerm k${capital(name)}Terms[] = {\n${filled(rows)}\n};`,
    series: `const PlanetSeries k${capital(name)}Series = {k${capital(name)}Terms, {{${kept.map(countsOf).join(', ')}}}};`
  }
}

function innerPlanets () {
  const planets = ['mercury', 'venus', 'earth', 'mars'].map(innerPlanet)
  return page([
    'VSOP87, version B: heliocentric longitude, latitude and radius, dynamical ecliptic and equinox of J2000.0',
    '(Bretagnon and Francou 1988), without its smallest terms. Amplitude (radians or astronomical units), phase',
    '(radians) and rate (radians in a thousand years) of each cosine, by quantity and by power of the time.',
    'Made by tools/modern_tables/cut_series.js from astronomia 4.2.0 (MIT licence); see its README.'
  ], [planets.map(({ table }) => table).join('\n\n'), '', '}  // namespace', '',
    ...planets.map(({ series }) => series)])
}

const short = (value, digits) => String(Number(value.toPrecision(digits)))

function moon () {
  const series = data.elpMppDeFull
  const kept = ['L', 'B', 'R'].map((quantity) => {
    const size = ({ power, row }) => Math.abs(row[0]) * kCenturies ** power
    return cut(termsOf(series[quantity]), size, quantity === 'R' ? kMoonDistanceLeftOut : kLeftOut.moon)
  })
  const rows = kept.flat().map(({ row }) =>
    `{${short(row[0], 9)}, {${[12, 14, 7, 5, 4].map((digits, i) => short(row[i + 1] ?? 0, digits)).join(', ')}}}`)
  return page([
    'ELP/MPP02 fitted to DE405: geocentric longitude, latitude (arc seconds) and distance (kilometres) of the Moon,',
    'mean ecliptic of date and departure point of J2000.0 (Chapront and Francou 2003), without its smallest terms.',
    'Amplitude of each sine and its argument as a polynomial of Julian centuries (radians), by quantity and by',
    'power of the time.',
    'Made by tools/modern_tables/cut_series.js from astronomia 4.2.0 (MIT licence); see its README.'
  ], [`constexpr MoonTerm kTerms[] = {\n${filled(rows)}\n};`, '', '}  // namespace', '',
    `const MoonSeries kMoonSeries = {kTerms, {{${kept.map(countsOf).join(', ')}}},\n` +
    `    {${series.W1.join(', ')}}};`])
}

// In full, in units of the published last digit; each rate is kept once.
function giantPlanet (name) {
  const series = data[`vsop87B${name}`]
  const quantities = ['L', 'B', 'R'].map((quantity) => termsOf(series[quantity]))
  const periodic = quantities.map((terms) => terms.filter(({ row }) => row[2] !== 0))
  const secular = quantities.map((terms) => {
    const powers = new Array(6).fill(0)
    for (const { power, row } of terms) if (row[2] === 0) powers[power] += row[0] * Math.cos(row[1])
    return `{${powers.join(', ')}}`
  })
  const rates = [...new Set(periodic.flat().map(({ row }) => row[2]))].sort((a, b) => a - b)
  const place = new Map(rates.map((rate, i) => [rate, i]))
  const digits = (value) => Math.round(value * 1e11) + 0 // no -0
  const rows = periodic.flat().map(({ row: [amplitude, phase, rate] }) =>
    `{${digits(amplitude * Math.cos(phase))}, ${digits(-amplitude * Math.sin(phase))}, ${place.get(rate)}}`)
  const k = `k${capital(name)}`
  return {
    table: `constexpr double ${k}Rates[] = {\n${filled(rates.map(String))}\n};\n` +
      `constexpr GiantTerm ${k}Terms[] = {\n${filled(rows)}\n};`,
    series: `const GiantSeries ${k}Series = {${k}Terms, ${k}Rates,\n    {{${periodic.map(countsOf).join(', ')}}},\n` +
      `    {{${secular.join(',\n      ')}}}};`
  }
}

function giantPlanets () {
  const planets = kGiants.map(giantPlanet)
  return page([
    'VSOP87, version B, in full: heliocentric longitude, latitude and radius, dynamical ecliptic and equinox of',
    'J2000.0 (Bretagnon and Francou 1988). The factors of cosine and sine (units of 1e-11 radian or astronomical',
    'unit) and the place of their rate in the table of rates (radians in a thousand years), by quantity and by',
    'power of the time; the terms without a rate are the polynomials beside them.',
    'Made by tools/modern_tables/cut_series.js from astronomia 4.2.0 (MIT licence); see its README.'
  ], [planets.map(({ table }) => table).join('\n\n'), '', '}  // namespace', '',
    ...planets.map(({ series }) => series)])
}

function main () {
  const { values } = parseArgs({ options: { output: { type: 'string' } } })
  const directory = values.output ?? join(here, '..', '..', 'src', 'astro', 'modern')
  writeFileSync(join(directory, 'inner_planets_table.cpp'), innerPlanets())
  writeFileSync(join(directory, 'moon_table.cpp'), moon())
  writeFileSync(join(directory, 'giant_planets_table.cpp'), giantPlanets())
}

main()
