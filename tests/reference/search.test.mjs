import assert from 'node:assert/strict';
import { onPage, pages } from './browser.mjs';

/**
 * Runs in the browser: each name on the page, with the place that it is a name of. What stands
 * within a link is a name of where that leads, what stands in a row of that row, anything else of
 * the page; of a sample or a declaration it is enough that something is called so.
 */
function namesOn([file, html]) {
  const page = new DOMParser().parseFromString(html, 'text/html');
  const names = [];
  const add = (name, place = null) => names.push([name.trim(),
    /^(id|name|uri)$/.test(name) ? 'frame.html#' + name : place]);
  const here = (href) => (href.startsWith('#') ? file + href : href);
  const each = (selector, act) => page.querySelectorAll(selector).forEach(act);
  each('main :is(dt, th, td, li, h3) > a, main a:has(> code), nav li > a', (link) =>
    link.closest('.ways') || add(link.textContent, here(link.getAttribute('href'))));
  each('.facts code:not([data-copy]), .facts .include', (code) =>
    add(code.textContent.replace(/\/id$/, '/7'), file));
  each('.fields summary code', (code) => {
    const row = code.closest('tr').id;
    add(code.textContent, (code.closest('.common') ? 'frame.html' : file) + '#' + row);
  });
  each('.operations dt b, .class th code', (name) => add(name.textContent,
    file + '#' + name.closest('[id]').id));
  each('.canvas .node a', (link) => add(link.querySelector('text').textContent,
    link.getAttribute('xlink:href')));
  each('.canvas .edge text', (text) => text.textContent.startsWith('+ ') ||
    add(text.textContent.replace('[]', '')));
  each('pre:is(.array, .full, .shallow, .reference)', (sample) => {
    for (const [, key] of sample.textContent.matchAll(/"(\w+)":/g)) {
      add(key);
    }
    sample.querySelectorAll('a').forEach((link) => add(link.textContent, link.getAttribute('href')));
  });
  each('.snippet, .fields details > code', ({ textContent }) => {
    const pattern = /#include "[^"]*"|\b(?:kiv::)?\w+::[A-Z][\w:]*|(?:->|\w\.)(?!what)[gsai]\w+\(/g;
    for (const [name] of textContent.matchAll(pattern)) {
      if (!/^std::|data::/.test(name)) {
        add(name.replace(/^(->|\w\.)/, ''));
      }
    }
  });
  return names.filter(([name]) => name !== '');
}

onPage('every name that a page prints leads to its place', 'index.html', {}, async (page) => {
  const names = new Map();
  for (const entry of pages) {
    for (const [name, place] of await page.evaluate(namesOn, entry)) {
      names.set(name, (names.get(name) || new Set()).add(place));
    }
  }
  const asked = [...names].map(([name, places]) => [name, [...places].filter(Boolean)]);
  assert.ok(asked.length > 6000, `${asked.length} names are too few to be all`);
  const lost = await page.evaluate((list) => {
    const entries = search.entriesOf(names);
    return list.flatMap(([name, places]) => {
      const result = search.find(entries, name);
      const found = result.entries.slice(0, result.exact).map((entry) => entry.place);
      const missing = places.filter((place) => !found.includes(place));
      return found.length === 0 || missing.length > 0 ? [`${name}: ${missing}`] : [];
    });
  }, asked);
  assert.deepEqual(lost.slice(0, 20), [], `${lost.length} of ${asked.length} names are lost`);
  const unread = await page.evaluate(() => {
    const entries = search.entriesOf(names);
    return entries.filter((entry) => entry.text &&
      !search.find(entries, entry.text).entries.includes(entry)).map((entry) => entry.text);
  });
  assert.deepEqual(unread, []);
});

const hits = (page) => page.locator('#search-hits a');

onPage('search tells names apart and reads texts', 'radio.html', {}, async (page) => {
  const type = (text) => page.locator('#search-text').fill(text);
  const cases = [
    ['/radio/stations/7', 'radio.stations.html'],
    ['zel::kiv::common::radio::Presets', 'radio.presets.html'],
    ['#include "services/radio/Stations.h"', 'radio.stations.html'],
    ['radio stations', 'radio.stations.html'],
    ['radio/presets.station', 'radio.presets.html#station'],
    ['preset->isExternalResourceObjectStationSet()', 'radio.presets.html#station'],
    ['radio::Presets::PresetObject::getPosition', 'radio.presets.html#position'],
    ['std::string const& getId() const', 'frame.html#id'],
    ['radio/presets/uri', 'radio.presets.html#uri'],
    ['Shallow', 'frame.html#SerializationType.Shallow'],
    ['ExternalResourceObject', 'frame.html#ExternalResourceObject'],
    ['getObjects', 'frame.html#radio::Presets.getObjects'],
    ['gearbox oil', 'gearbox.transmissions.html#gearboxOilTemperatur'],
    ['gearboxOilTemperature', 'gearbox.transmissions.html#gearboxOilTemperatur'],
    ['restartsegem', 'radio.players.html#restartSegement'],
  ];
  for (const [text, place] of cases) {
    await type(text);
    assert.equal(await hits(page).first().getAttribute('href'), place, text);
  }
  await type('restartSegment');
  assert.match(await page.locator('.note').textContent(), /letter for letter.*1 hit/);
  await type('<img src=x onerror=alert(1)>');
  assert.match(await page.locator('.note').textContent(), /Nothing is called “<img/);
});

onPage('the keyboard is enough, and reaches every hit', 'radio.html', {}, async (page) => {
  await page.keyboard.press('/');
  await page.keyboard.type('station');
  const all = Number.parseInt(await page.locator('.note').textContent(), 10);
  assert.ok(all > 80);
  await page.keyboard.press('ArrowUp');
  await page.keyboard.press('Enter');
  assert.equal(await page.locator('[aria-selected="true"]').getAttribute('id'), 'search-hit-20');
  while (await page.locator('.more').count() > 0) {
    await page.locator('.more').click();
  }
  assert.equal(await hits(page).count(), all);
  await page.keyboard.press('Escape');
  await page.keyboard.press('ArrowDown');
  await page.keyboard.press('Tab');
  assert.ok(await page.locator('.results').isHidden());
  await page.keyboard.press('/');
  await page.keyboard.type('restartsegem');
  await page.keyboard.press('Enter');
  await page.waitForURL('**/radio.players.html#restartSegement');
});
