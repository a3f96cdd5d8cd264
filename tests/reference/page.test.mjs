import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { launch, openPage } from './browser.mjs';

let browser;
before(async () => { browser = await launch(); });
after(() => browser.close());

/** A test that runs on a page of its own; the page must not complain or leave the disk. */
function onPage(name, place, options, check) {
  test(name, async () => {
    const { page, faults } = await openPage(browser, place, options);
    await check(page);
    await page.context().close();
    assert.deepEqual(faults, []);
  });
}

const hash = (page) => page.evaluate(() => decodeURIComponent(location.hash));
const found = (page) => page.locator('#results strong').allTextContents();

async function type(page, text) {
  await page.keyboard.press('/');
  await page.keyboard.type(text);
}

function isInView(locator) {
  return locator.evaluate((element) => {
    const box = element.getBoundingClientRect();
    const bar = document.querySelector('.bar').getBoundingClientRect();
    const top = bar.width < innerWidth ? 0 : bar.bottom;
    return box.height > 0 && box.top >= top - 1 && box.top < innerHeight;
  });
}

onPage('without script all is there, and every link leads somewhere', '#radio/presets',
  { javaScriptEnabled: false }, async (page) => {
    const counts = await page.evaluate(() => ['.service', 'article', '.fields tbody tr']
      .map((selector) => document.querySelectorAll(selector).length));
    assert.deepEqual(counts, [32, 181, 1669]);
    const [broken, twice] = await page.evaluate(() => {
      const ids = [...document.querySelectorAll('[id]')].map((each) => each.id);
      const known = new Set(ids);
      const links = [...document.querySelectorAll('a')]
        .map((link) => link.getAttribute('href') || link.getAttribute('xlink:href'))
        .filter((href) => href !== null);
      return [links.filter((href) => !known.has(href.slice(1))),
        ids.filter((id, at) => ids.indexOf(id) !== at)];
    });
    assert.deepEqual([broken, twice], [[], []]);
    assert.ok(await isInView(page.locator('[id="radio/presets"] h3')));
    await page.locator('[id="radio/presets/station"] a', { hasText: 'radio/stations' }).click();
    assert.equal(await hash(page), '#radio/stations');
    assert.ok(await isInView(page.locator('[id="radio/stations"] h3')));
    assert.ok(await page.locator('#query').isHidden());
  });

onPage('search finds a key, and Enter leads there', '', {}, async (page) => {
  await type(page, 'restartsegem');
  assert.deepEqual(await found(page), ['restartSegement']);
  await page.keyboard.press('Enter');
  assert.equal(await hash(page), '#radio/players/restartSegement');
  const row = page.locator('[id="radio/players/restartSegement"]');
  assert.ok(await isInView(row));
  assert.ok(await row.locator('a').first().evaluate((link) => link === document.activeElement));
});

onPage('search goes by class, path, accessor and kind, and tells what is near', '', {},
  async (page) => {
    const cases = [
      ['radio::Presets', 'presets'],
      ['/radio/presets/', 'presets'],
      ['radio/presets.station', 'station'],
      ['isRestartSegementSet()', 'restartSegement'],
      ['polymorphic', 'polymorphic'],
      ['radio', 'radio'],
      ['gearboxOilTemperature', 'gearboxOilTemperatur'],
      ['restartSegment', 'restartSegement'],
    ];
    for (const [text, first] of cases) {
      await page.locator('#query').fill(text);
      assert.equal((await found(page))[0], first, text);
    }
    assert.match(await page.locator('.note').textContent(), /letter for letter/);
    await page.locator('#query').fill('<img src=x onerror=alert(1)>');
    assert.match(await page.locator('.note').textContent(), /Nothing is called “<img/);
  });

onPage('the keyboard is enough', '', {}, async (page) => {
  await type(page, 'station');
  const selected = () => page.locator('#results [aria-selected="true"]').textContent();
  const first = await selected();
  await page.keyboard.press('ArrowDown');
  assert.notEqual(await selected(), first);
  await page.keyboard.press('ArrowUp');
  await page.keyboard.press('ArrowUp');
  assert.equal(await selected(), await page.locator('#results li').last().textContent());
  await page.keyboard.press('Escape');
  assert.ok(await page.locator('.results').isHidden());
  await page.keyboard.press('Escape');
  assert.equal(await page.locator('#query').inputValue(), '');
});

onPage('a link leads from presets to stations, and back leads back', '#radio/presets', {},
  async (page) => {
    await page.locator('[id="radio/presets/station"] td a', { hasText: 'radio/stations' }).click();
    assert.ok(await isInView(page.locator('[id="radio/stations"] h3')));
    await page.locator('#radio .node a', { hasText: 'entertainmentSources' }).click();
    assert.ok(await page.locator('#sourcemanager > h2').isVisible());
    assert.ok(!(await page.locator('#radio > h2').isVisible()));
    await page.goBack();
    await page.goBack();
    assert.equal(await hash(page), '#radio/presets');
    assert.ok(await isInView(page.locator('[id="radio/presets"] h3')));
    assert.match(await page.title(), /radio\/presets/);
  });

onPage('the three depths are those of the library', '#radio/presets', {}, async (page) => {
  const texts = await page.locator('[id="radio/presets"] .forms pre').allTextContents();
  const [full, shallow, reference] = texts.map((text) => JSON.parse(text));
  assert.equal(full.station.uri, shallow.station);
  assert.equal(reference, full.uri);
});

onPage('the snippets compile', '', { javaScriptEnabled: false }, async (page) => {
  const snippets = await page.locator('.snippet').allTextContents();
  assert.equal(snippets.length, 181);
  const lines = snippets.map((snippet) => snippet.split('\n'));
  const isInclude = (line) => line.startsWith('#include');
  const includes = lines.flat().filter(isInclude);
  const bodies = lines.map((each, at) =>
    [`namespace snippet${at} {`, ...each.filter((line) => !isInclude(line)), '}'].join('\n'));
  const folder = mkdtempSync(join(tmpdir(), 'snippets-'));
  try {
    // One as it stands, and all in one unit, their includes first.
    writeFileSync(join(folder, 'one.cpp'), snippets.find((each) => each.includes('target')));
    writeFileSync(join(folder, 'all.cpp'), [...new Set(includes), ...bodies].join('\n'));
    const folders = process.env.INCLUDE_FOLDERS.split(':').map((each) => '-I' + each);
    execFileSync(process.env.CXX, ['-std=c++17', '-fsyntax-only', '-Wall', '-Wextra', '-Werror',
      ...folders, join(folder, 'one.cpp'), join(folder, 'all.cpp')], { stdio: 'pipe' });
  } finally {
    rmSync(folder, { recursive: true });
  }
});
