// Finds names by what somebody types. It knows nothing of the page: an entry is
// { name, place, kind, what }, the place being `radio/presets/station` or a part of such.
'use strict';

const search = (() => {
  /** How many slips a word of that length may hold and still be taken for another. */
  function slipsIn(length) {
    return Math.min(4, Math.max(1, Math.floor(length / 3)));
  }

  /**
   * How many letters must be added, dropped, changed or swapped with their neighbour to make one
   * word of the other; limit + 1 stands for anything above the limit.
   */
  function slipsBetween(one, other, limit) {
    if (Math.abs(one.length - other.length) > limit) {
      return limit + 1;
    }
    let twoAbove = [];
    let above = Array.from({ length: other.length + 1 }, (_, column) => column);
    for (let line = 1; line <= one.length; ++line) {
      const row = [line];
      for (let column = 1; column <= other.length; ++column) {
        const change = one[line - 1] === other[column - 1] ? 0 : 1;
        row[column] = Math.min(above[column] + 1, row[column - 1] + 1, above[column - 1] + change);
        if (line > 1 && column > 1 && one[line - 1] === other[column - 2] &&
            one[line - 2] === other[column - 1]) {
          row[column] = Math.min(row[column], twoAbove[column - 2] + 1);
        }
      }
      if (Math.min(...row) > limit) {
        return limit + 1;
      }
      twoAbove = above;
      above = row;
    }
    return above[other.length];
  }

  /** `radio::Presets`, `radio.presets` and `/radio/presets/` are all `radio/presets`. */
  function normal(text) {
    return text.trim().replace(/::|\./g, '/').replace(/^\/+|\/+$/g, '').toLowerCase();
  }

  /** The key that an accessor is made of, `position` for `getPosition` or `isPositionSet()`. */
  function keyOfAccessor(text) {
    const found = /^(?:(?:get|set|add)([A-Z]\w*)|is([A-Z]\w*)Set)(?:\(.*)?$/.exec(text.trim());
    return found ? (found[1] || found[2]).toLowerCase() : null;
  }

  function isWordStart(name, at) {
    return /[A-Z]/.test(name[at]) && !/[A-Z]/.test(name[at - 1]);
  }

  /** How well an entry fits, the smaller the better, or null. */
  function rank(entry, wanted, key) {
    const name = entry.name.toLowerCase();
    const place = entry.place.toLowerCase();
    if (name === wanted || place === wanted) {
      return 0;
    }
    if (key !== null && name === key) {
      return 1;
    }
    const at = name.indexOf(wanted);
    if (at === 0) {
      return 2;
    }
    if (at > 0) {
      return isWordStart(entry.name, at) ? 3 : 4;
    }
    if (place.includes(wanted) && wanted.includes('/')) {
      return 5;
    }
    if (entry.aliases.some((alias) => alias.toLowerCase().includes(wanted))) {
      return 6;
    }
    return entry.kind === wanted ? 7 : null;
  }

  function byRank(one, other) {
    return one.rank - other.rank || one.entry.what - other.entry.what ||
      one.entry.name.length - other.entry.name.length ||
      (one.entry.place < other.entry.place ? -1 : 1);
  }

  /** Entries whose name is a slip or two away, the closest first. */
  function near(entries, wanted) {
    const limit = slipsIn(wanted.length);
    const slips = new Map();
    const found = [];
    for (const entry of entries) {
      const name = entry.name.toLowerCase();
      if (!slips.has(name)) {
        slips.set(name, slipsBetween(wanted, name, limit));
      }
      if (slips.get(name) <= limit) {
        found.push({ entry, rank: slips.get(name) });
      }
    }
    found.sort(byRank);
    return found.filter((each) => each.rank <= found[0].rank + 1).map((each) => each.entry);
  }

  /** What fits, or what is near if nothing does: { entries, isNear }. */
  function find(entries, text) {
    const wanted = normal(text);
    if (wanted === '') {
      return { entries: [], isNear: false };
    }
    const key = keyOfAccessor(text);
    const found = [];
    for (const entry of entries) {
      const place = rank(entry, wanted, key);
      if (place !== null) {
        found.push({ entry, rank: place });
      }
    }
    if (found.length > 0) {
      found.sort(byRank);
      return { entries: found.map((each) => each.entry), isNear: false };
    }
    return { entries: near(entries, key || wanted.split('/').pop()), isNear: true };
  }

  return { find };
})();
