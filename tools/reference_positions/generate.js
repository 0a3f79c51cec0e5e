// Writes tests/data/reference_positions.tsv: geocentric ecliptic longitudes from modern theories, the
// yardstick for the accuracy of this program's own series.
//
//   npm install --no-package-lock
//   node generate.js [--date YYYY-MM-DD] [--output FILE]
//
// --date is the date of making that the header states (today when left out).

import { readFileSync, writeFileSync } from 'node:fs'
import { createRequire } from 'node:module'
import { fileURLToPath } from 'node:url'
import { dirname, join } from 'node:path'
import { parseArgs } from 'node:util'
import { base, coord, elp, julian, nutation, planetposition, pluto, precess, solar } from 'astronomia'
import data from 'astronomia/data'

const require = createRequire(import.meta.url)
const here = dirname(fileURLToPath(import.meta.url))

// 1800 January 1, 12h; a step of this length takes every body through all its phases and signs, and
// rows fall on noon and midnight in turn, so that each Julian day is exact in binary.
const kFirstDay = 2378497.0
const kStepDays = 859.5
const kLastDay = 2488069.5 // 2100 January 1, 0h

// Pluto's series represents the orbit from 1885 to 2099 only.
const kPlutoFirstDay = julian.CalendarGregorianToJD(1885, 1, 1)

const kPlanets = ['mercury', 'venus', 'mars', 'jupiter', 'saturn', 'uranus', 'neptune']

// Series B (J2000.0) with precession rather than series D (of date): in this release of the library
// series D of Uranus and Neptune holds terms that are not numbers, which the library takes as 0.
function theory (name) {
  const series = data[`vsop87B${name}`]
  for (const powers of [series.L, series.B, series.R]) {
    for (const term of Object.values(powers).flat(2)) {
      if (!Number.isFinite(term)) throw new Error(`the series of ${name} is damaged`)
    }
  }
  return new planetposition.Planet(series)
}

const earth = theory('earth')
const planets = kPlanets.map(theory)
const moon = new elp.Moon(data.elpMppDeFull)

const toDegrees = (radians) => base.pmod(radians * 180 / Math.PI, 360)

function rectangular ({ lon, lat, range }) {
  return [range * Math.cos(lat) * Math.cos(lon), range * Math.cos(lat) * Math.sin(lon), range * Math.sin(lat)]
}

// Geometric geocentric longitude (radians), mean equinox of date, of a heliocentric place of J2000.0.
function geocentricLongitude (body, day) {
  const observer = rectangular(earth.position2000(day))
  const [x, y, z] = rectangular(body).map((value, axis) => value - observer[axis])
  const direction = new coord.Ecliptic(Math.atan2(y, x), Math.atan2(z, Math.hypot(x, y)))
  return precess.eclipticPosition(direction, 2000.0, base.JDEToJulianYear(day)).lon
}

function sunLongitude (day) {
  return solar.apparentVSOP87(earth, day).lon
}

function moonLongitude (day) {
  return moon.position(day).lon + nutation.nutation(day)[0]
}

function calendarText (day) {
  const { year, month, day: date } = julian.JDToCalendarGregorian(day)
  const two = (number) => String(number).padStart(2, '0')
  return `${year}-${two(month)}-${two(Math.floor(date))}T${two(Math.round(date % 1 * 24))}`
}

function row (day) {
  const longitudes = [sunLongitude(day), moonLongitude(day)]
  for (const planet of planets) longitudes.push(geocentricLongitude(planet.position2000(day), day))
  const cells = longitudes.map((radians) => toDegrees(radians).toFixed(7))
  cells.push(day < kPlutoFirstDay ? '-' : toDegrees(geocentricLongitude(pluto.heliocentric(day), day)).toFixed(7))
  return [day.toFixed(1), calendarText(day), ...cells].join('\t')
}

function header (version, date) {
  return [
    'Geocentric ecliptic longitudes of the Sun, the Moon and the planets, in degrees.',
    `Made ${date} by tools/reference_positions/generate.js with astronomia ${version} (MIT licence).`,
    'Time: the Julian day is the argument of the theories as it stands. Give the same number to the',
    '  program under test; no difference between Universal and dynamical time is applied on either side.',
    '  The date column is that day in the Gregorian calendar, with the hour.',
    'Mercury to Neptune: VSOP87 series B (Bretagnon and Francou 1988), geometric (no light time, no',
    '  aberration), precessed (IAU 1976) from J2000.0 to the mean equinox and ecliptic of date.',
    'Pluto: heliocentric series of Meeus, Astronomical Algorithms, chapter 37 (valid 1885 to 2099), with',
    '  the Earth of VSOP87, geometric and precessed like the planets; - before 1885.',
    'Sun: VSOP87, apparent: with aberration and the nutation of IAU 1980, true equinox of date.',
    'Moon: ELP/MPP02 (fit to DE405), geometric, with the nutation in longitude of IAU 1980 (true equinox',
    '  of date), no aberration.'
  ].map((line) => `# ${line}`)
}

function main () {
  const { values } = parseArgs({ options: { date: { type: 'string' }, output: { type: 'string' } } })
  const date = values.date ?? new Date().toISOString().slice(0, 10)
  const output = values.output ?? join(here, '..', '..', 'tests', 'data', 'reference_positions.tsv')
  const library = join(dirname(require.resolve('astronomia')), '..', 'package.json')
  const { version } = JSON.parse(readFileSync(library, 'utf8'))

  const lines = header(version, date)
  lines.push(['julian_day', 'date', 'sun', 'moon', ...kPlanets, 'pluto'].join('\t'))
  for (let day = kFirstDay; day < kLastDay; day += kStepDays) lines.push(row(day))
  writeFileSync(output, lines.join('\n') + '\n')
}

main()
