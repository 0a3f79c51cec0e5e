// The zone of a place. GeoNames gives today's zones; where clocks have differed in the past the tz project
// keeps a zone of its own, and near some borders GeoNames errs.

import { readFileSync } from 'node:fs';

const kDegreeKilometres = 111.2;

// Older zones by area: country, first division, and what the place must fit.
const kAreas = [
  { zone: 'America/Blanc-Sablon', country: 'CA', division: '10', fits: (p) => p.longitude > -59.5 && p.latitude < 52 },
  { zone: 'America/Montreal', country: 'CA', division: '10' },
  { zone: 'America/Nipigon', country: 'CA', division: '08', fits: (p) => p.latitude > 48 && p.longitude > -88.6 && p.longitude < -86 },
  { zone: 'America/Thunder_Bay', country: 'CA', division: '08', fits: (p) => p.latitude > 47.9 && p.longitude > -90.8 && p.longitude <= -88.6 },
  { zone: 'America/Rainy_River', country: 'CA', division: '08', fits: (p) => p.latitude < 49.2 && p.longitude < -93 },
  { zone: 'Europe/Belfast', country: 'GB', division: 'NIR' },
  { zone: 'Asia/Hanoi', country: 'VN', fits: (p) => p.latitude > 17 },
  { zone: 'Asia/Ho_Chi_Minh', country: 'VN', fits: (p) => p.latitude <= 17 },
  { zone: 'Asia/Kashgar', country: 'CN', division: '13', fits: (p) => p.longitude < 81 },
  { zone: 'Asia/Kashgar', country: 'CN', division: '14', fits: (p) => p.longitude < 83 },
  { zone: 'Asia/Urumqi', country: 'CN', division: '13' },
  { zone: 'Asia/Harbin', country: 'CN', division: '08' },
  { zone: 'Asia/Harbin', country: 'CN', division: '05' },
  { zone: 'Asia/Chongqing', country: 'CN', division: ['33', '32', '29', '18', '16', '26', '21', '15', '06', '14'] },
  { zone: 'Asia/Chongqing', country: 'CN', division: '20', fits: (p) => p.longitude < 112 },
  { zone: 'America/Rosario', country: 'AR', division: '21' },
  { zone: 'America/Coyhaique', country: 'CL', division: '02' },
  { zone: 'Europe/Uzhgorod', country: 'UA', division: '25' },
  { zone: 'Europe/Zaporozhye', country: 'UA', division: ['26', '14'] },
  { zone: 'Africa/Timbuktu', country: 'ML', division: '08' },
  { zone: 'America/Ensenada', country: 'MX', division: '02', fits: isNear(31.87, -116.6, 80) },
  { zone: 'America/Bahia_Banderas', country: 'MX', division: '18', second: '020' },
  { zone: 'America/New_York', country: 'US', division: 'AL', wrong: 'America/Kentucky/Louisville' },
  { zone: 'Asia/Khandyga', country: 'RU', division: '63', fits: isNear(62.65, 135.57, 300) },
  { zone: 'Asia/Ust-Nera', country: 'RU', division: '63', fits: isNear(64.57, 143.24, 250) },
  { zone: 'Asia/Srednekolymsk', country: 'RU', division: '63', wrong: 'Asia/Magadan' },
  { zone: 'Asia/Srednekolymsk', country: 'RU', division: '64', fits: isNear(50.67, 156.12, 150) },
  { zone: 'Asia/Sakhalin', country: 'RU', division: '64', wrong: 'Asia/Tokyo' },
  { zone: 'Australia/Currie', country: 'AU', division: '06', fits: isNear(-39.93, 143.85, 80) },
  { zone: 'Asia/Tel_Aviv', country: 'IL', fits: isNear(32.08, 34.78, 12) },
  { zone: 'America/Pangnirtung', country: 'CA', division: '14', fits: isNear(66.15, -65.7, 100) },
  { zone: 'America/Coral_Harbour', country: 'CA', division: '14', fits: isNear(64.14, -83.17, 100) },
  { zone: 'America/Resolute', country: 'CA', division: '14', fits: isNear(74.7, -94.83, 100) },
  { zone: 'America/Adak', country: 'US', division: 'AK', fits: (p) => p.longitude < -169.5 && p.latitude < 54 },
  { zone: 'America/Noronha', country: 'BR', fits: isNear(-3.84, -32.41, 100) },
  { zone: 'America/Scoresbysund', country: 'GL', fits: isNear(70.49, -21.97, 200) },
  { zone: 'Australia/Lord_Howe', country: 'AU', fits: isNear(-31.55, 159.08, 60) },
  { zone: 'Atlantic/Jan_Mayen', country: 'SJ', fits: isNear(70.98, -8.48, 100) },
  { zone: 'Africa/Mogadishu', country: 'SO' },
  { zone: 'Asia/Damascus', country: 'SY' },
  { zone: 'Asia/Tashkent', country: 'UZ', wrong: 'Asia/Bishkek' },
  { zone: 'Asia/Shanghai', country: 'CN', wrong: 'Asia/Urumqi' },
  { zone: 'Asia/Nicosia', country: 'CY', wrong: 'Europe/Athens' },
];

function isNear(latitude, longitude, kilometres) {
  return (place) => {
    const north = (place.latitude - latitude) * kDegreeKilometres;
    const east = (place.longitude - longitude) * kDegreeKilometres * Math.cos((latitude * Math.PI) / 180);
    return Math.hypot(north, east) < kilometres;
  };
}

function holds(area, place) {
  return (
    area.country === place.country &&
    (!area.division || [area.division].flat().includes(place.division1)) &&
    (!area.second || area.second === place.division2) &&
    (!area.wrong || area.wrong === place.timeZone) &&
    (!area.fits || area.fits(place))
  );
}

function readCorrections() {
  const text = readFileSync(new URL('zone_corrections.tsv', import.meta.url), 'utf8');
  const rows = text.trim().split('\n').slice(1).map((line) => line.split('\t'));
  return new Map(rows.map(([id, , zone]) => [Number(id), zone]));
}

const corrections = readCorrections();

export function zoneOf(place) {
  return (
    corrections.get(place.id) ?? kAreas.find((area) => holds(area, place))?.zone ?? place.timeZone
  );
}
