// Standard time of an IANA zone, in hours positive WEST of Greenwich,
// as in force in the reference year.

const kReferenceYear = 2025;

// Zones whose standard time is the later of their two offsets: Morocco and
// Western Sahara keep +1 and go back an hour for Ramadan. (Ireland calls
// winter time the exception; as everywhere else, winter time counts here.)
const kStandardIsLater = new Set(['Africa/Casablanca', 'Africa/El_Aaiun']);

function offsetMinutesEast(formatter, date) {
  const part = formatter
    .formatToParts(date)
    .find(({ type }) => type === 'timeZoneName').value;
  if (part === 'GMT') return 0;
  const match = /^GMT([+-])(\d\d):(\d\d)$/.exec(part);
  if (!match) throw new Error(`cannot read the offset "${part}"`);
  const minutes = Number(match[2]) * 60 + Number(match[3]);
  return match[1] === '-' ? -minutes : minutes;
}

function standardMinutesEast(zone) {
  const formatter = new Intl.DateTimeFormat('en-US', {
    timeZone: zone,
    timeZoneName: 'longOffset',
  });
  const offsets = [];
  for (let day = 1; day <= 365; day += 5) {
    const date = new Date(Date.UTC(kReferenceYear, 0, day, 12));
    offsets.push(offsetMinutesEast(formatter, date));
  }
  return kStandardIsLater.has(zone) ? Math.max(...offsets) : Math.min(...offsets);
}

const known = new Map();

// Hours west of the zone's standard time; throws when they are no whole
// quarters of an hour or the zone is unknown.
export function standardHoursWest(zone) {
  if (!known.has(zone)) {
    const hours = -standardMinutesEast(zone) / 60 || 0;
    if (!Number.isInteger(hours * 4)) throw new Error(`odd offset in ${zone}`);
    known.set(zone, hours);
  }
  return known.get(zone);
}
