// The text side of a place: cleaned names, the order of a cities file,
// and positions in the form 84W23, 122W25, 33N45.

const kBaseLetters = {
  ß: 'ss', æ: 'ae', œ: 'oe', ø: 'o', ł: 'l', đ: 'd', ð: 'd', þ: 'th',
  ı: 'i', ə: 'e', ħ: 'h', ŧ: 't', ŋ: 'n',
};

// Lower case without accents and apostrophes. tools/check_cities.py holds
// the same rule; the two must change together.
export function fold(text) {
  return text
    .normalize('NFD')
    .replace(/\p{Mn}/gu, '')
    .toLowerCase()
    .replace(/[ßæœøłđðþıəħŧŋ]/g, (letter) => kBaseLetters[letter])
    .replaceAll("'", '');
}

// The name as one field that needs no quotes: what follows a comma is a
// wider area or an alias and goes, as do square brackets and words in
// other scripts; apostrophes of all kinds become the typewriter's.
export function cleanName(name, asciiName) {
  const latin = name.replace(/[^\p{Script=Latin}\p{M}\p{P}\p{N}\p{Zs}`]/gu, '');
  const source = /\p{L}/u.test(latin) ? latin : asciiName;
  return source
    .normalize('NFC')
    .replace(/,.*/, '')
    .replace(/\[.*?\]/g, '')
    .replace(/[‘’ʻʼ”“`"]/g, "'")
    .replace(/[‐-―]/g, '-')
    .replace(/\( /g, '(')
    .replace(/\s+/g, ' ')
    .trim();
}

function compareText(a, b) {
  if (a === b) return 0;
  return a < b ? -1 : 1;
}

// Sorts by city, then region, by the folded text; the texts as written
// break ties, so the order never depends on the machine's locale.
export function compareRecords(a, b) {
  return (
    compareText(fold(a.city), fold(b.city)) ||
    compareText(fold(a.region), fold(b.region)) ||
    compareText(a.city, b.city) ||
    compareText(a.region, b.region)
  );
}

// Degrees to degrees, letter and minutes, rounded to the nearest minute;
// 60 minutes become the next degree. letters: [positive, negative].
export function formatPosition(degrees, letters) {
  const minutes = Math.round(Math.abs(degrees) * 60);
  const whole = String(Math.floor(minutes / 60)).padStart(2, '0');
  const rest = String(minutes % 60).padStart(2, '0');
  return whole + letters[degrees < 0 ? 1 : 0] + rest;
}
