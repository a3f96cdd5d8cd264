// Which names are a slip or two away from a word.
'use strict';

const spelling = (() => {
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

  /** Those of `entries`, which have a `name`, that may have been meant, the closest first. */
  function near(entries, word) {
    const wanted = word.replace(/^(?:get|set|add|is)(?=[A-Z])/, '').toLowerCase();
    const limit = slipsIn(wanted.length);
    const known = new Map();
    for (const { name } of entries) {
      if (!known.has(name)) {
        known.set(name, slipsBetween(wanted, name.toLowerCase(), limit));
      }
    }
    const least = Math.min(...known.values());
    return entries.filter(({ name }) => known.get(name) <= Math.min(limit, least + 1))
      .sort((one, other) => known.get(one.name) - known.get(other.name));
  }

  return { near };
})();
