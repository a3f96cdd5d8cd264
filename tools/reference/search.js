// Finds names by what somebody types. It knows nothing of the page. What it searches is in
// `names.js`, which the writer of the reference makes of the catalogue:
//
//   names = { services: [[name, about, resources]], others: [[name, sort, place, text, names]] }
//   resources: [[key, class, element, elementKey, about, fields]]
//   fields: [[key, kind, note, accessors]], without the fields that all elements have
'use strict';

const search = (() => {
  const sorts = ['service', 'resource', 'page', 'kind', 'frame', 'common field', 'field'];

  const worstRank = 8;

  /** The last part of a path, and what stands before it. */
  function split(path) {
    const at = path.lastIndexOf('/');
    return at < 0 ? ['', path] : [path.slice(0, at), path.slice(at + 1)];
  }

  /**
   * One way to write what can be written in many: `radio::Presets`, `services/radio/Presets.h` and
   * `zel::kiv::common::radio::Presets` are `radio/Presets`, `void setId(std::string const& value)`
   * is `setId`.
   */
  function normal(text) {
    const call = text.indexOf('(');
    const name = call < 0 ? text : text.slice(0, call).split(/[\s*&]|->/).pop();
    return name.replace(/^\s*#include\b/, '').replace(/["'<>`;,]/g, '').trim()
      .replace(/^services\/(.*)\.h$/, '$1').replace(/\.html(?=#|$)/, '')
      .replace(/(::|[.#/\s])+/g, '/').replace(/^\/|\/$/g, '')
      .replace(/^(zel\/kiv\/common|kiv)\/(?=.)/, '');
  }

  /** The words of a text or of what somebody types, for people. */
  function plain(text) {
    return text.toLowerCase().replace(/[`"“”.,;:()]+/g, ' ');
  }

  /**
   * All of `names` lead to the entry at once, `path` says where it is, `text` explains it. The names
   * stand in one text, each in a line of its own, since that is searched fastest.
   */
  function entryOf(sort, name, path, place, names, text, kind = '') {
    const lines = `\n${name}\n${path}\n${names.join('\n')}\n`;
    return { sort, name, path, place, text, kind, lines, lower: lines.toLowerCase(),
      lowerName: name.toLowerCase(), order: sorts.indexOf(sort), plainText: null };
  }

  function entryOfResource(service, [key, type, element, elementKey, about]) {
    const path = `${service}/${key}`;
    const names = [type, `${service}/${type}`, element, `${type}/${element}`,
      `${service}/${type}/${element}`, elementKey, `${type}/h`];
    return entryOf('resource', key, path, `${service}.${key}.html`, names, about);
  }

  function byWeight(one, other) {
    return one.order - other.order || one.name.length - other.name.length ||
      (one.path < other.path ? -1 : 1);
  }

  /** What there is to find, one entry for each place, what weighs most first. */
  function entriesOf(names) {
    const entries = names.others.map(([name, sort, place, text, more]) =>
      entryOf(sort, name, normal(name), place, more.map(normal), text));
    for (const [service, about, resources] of names.services) {
      entries.push(entryOf('service', service, service, `${service}.html`, [], about));
      for (const resource of resources) {
        const holder = entryOfResource(service, resource);
        entries.push(holder);
        for (const [key, kind, note, accessors] of resource[5]) {
          entries.push(entryOf('field', key, `${holder.path}/${key}`, `${holder.place}#${key}`,
            accessors, note, kind));
        }
      }
    }
    return entries.sort(byWeight);
  }

  function called(entries, name) {
    const line = `\n${name.toLowerCase()}\n`;
    return entries.filter((entry) => entry.lower.includes(line));
  }

  /** A field of what the path names before its last part, or that itself: the rest is an id then. */
  function within(entries, path) {
    const [head, tail] = split(path);
    const holder = head && called(entries, head).find((each) => each.sort === 'resource');
    if (!holder) {
      return head.includes('/') ? within(entries, head) : [];
    }
    const fields = entries.filter((each) => each.path.startsWith(`${holder.path}/`));
    const common = entries.filter((each) => each.sort === 'common field');
    const found = called(fields, tail);
    return found.length > 0 ? found : called(common, tail).map((each) => entryOf('field', each.name,
      `${holder.path}/${each.name}`, `${holder.place}#${each.name}`, [], each.text)).concat(holder);
  }

  function startsWord(name, at) {
    return at === 0 || (/[A-Z]/.test(name[at]) && !/[A-Z]/.test(name[at - 1]));
  }

  /** What is looked for, in the forms in which it is compared. */
  function soughtFor(wanted, text) {
    const lower = wanted.toLowerCase();
    return { lower, line: `\n${wanted}\n`, lowerLine: `\n${lower}\n`,
      words: plain(text).trim().split(/[\s/]+/) };
  }

  /** How well an entry fits of which a name holds what is looked for. */
  function rankOfName(entry, { lower, line, lowerLine }) {
    const at = entry.lowerName.indexOf(lower);
    if (entry.lower.includes(lowerLine)) {
      return entry.lines.includes(line) ? 0 : 1;
    }
    return at < 0 ? 5 : at === 0 ? 2 : startsWord(entry.name, at) ? 3 : 4;
  }

  /** How well an entry fits, the smaller the better, or null. */
  function rank(entry, sought) {
    if (entry.lower.includes(sought.lower)) {
      return rankOfName(entry, sought);
    }
    if (sought.words.every((word) => entry.lower.includes(word))) {
      return 6;
    }
    entry.plainText ??= plain(entry.text);
    if (sought.words.every((word) =>
      entry.plainText.includes(word) || entry.lower.includes(word))) {
      return 7;
    }
    return entry.kind.replace(' ', '/') === sought.lower ? worstRank : null;
  }

  /** What fits, the best first; the first `exact` of them are called so. */
  function fitting(entries, wanted, text) {
    const sought = soughtFor(wanted, text);
    const byRank = Array.from({ length: worstRank + 1 }, () => []);
    for (const entry of entries) {
      const value = rank(entry, sought);
      if (value !== null) {
        byRank[value].push(entry);
      }
    }
    return { entries: byRank.flat(), exact: byRank[0].length + byRank[1].length, isNear: false };
  }

  /** What fits, or what is near if nothing does: { entries, exact, isNear }. */
  function find(entries, text) {
    const wanted = normal(text);
    if (wanted === '') {
      return { entries: [], exact: 0, isNear: false };
    }
    const result = fitting(entries, wanted, text);
    if (result.exact === 0) {
      const inside = within(entries, wanted);
      const isBegun = result.entries.some((each) => each.path.startsWith(wanted));
      if (inside.length > 0 && !isBegun) {
        const others = result.entries.filter((each) => !inside.includes(each));
        return { entries: inside.concat(others), exact: inside.length, isNear: false };
      }
    }
    return result.entries.length > 0 ? result :
      { entries: spelling.near(entries, split(wanted)[1]), exact: 0, isNear: true };
  }

  return { entriesOf, find };
})();
