import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { createRequire } from 'node:module';
import { test } from 'node:test';
import { onPage, pages } from './browser.mjs';

const all = (text, pattern) => [...text.matchAll(pattern)].map((match) => match[1]);

test('every link leads somewhere, and no place is there twice', () => {
  const ids = new Map([...pages].map(([name, text]) => [name, all(text, / id="([^"]*)"/g)]));
  const twice = [...ids].flatMap(([name, list]) =>
    list.filter((id, at) => list.indexOf(id) !== at).map((id) => `${name}#${id}`));
  const broken = [...pages].flatMap(([name, text]) => all(text, / (?:xlink:)?href="([^"]*)"/g)
    .filter((href) => {
      const [file, id] = href.split('#');
      return file.endsWith('.html') || file === '' ? !ids.has(file || name) ||
        (id !== undefined && !ids.get(file || name).includes(id)) : !/^(data:,|\w+\.css)$/.test(href);
    }).map((href) => `${name}: ${href}`));
  assert.deepEqual([twice, broken], [[], []]);
  const [services, resources, fields] = all(String(execFileSync(process.env.KIV, ['list']))
    .trim().split('\n').at(-1).replaceAll(/(\d),/g, '$1'), /(\d+)/g).map(Number);
  const own = [...pages].filter(([name]) => name !== 'kinds.html').map(([, text]) => text).join('')
    .match(/<tr id=[^>]*><th scope="row">/g).length;
  assert.equal(pages.size, 4 + services + resources);
  assert.equal(own, fields + 3); // those of the frame
});

onPage('without script a page is whole', 'radio.presets.html', { javaScriptEnabled: false },
  async (page) => {
    await page.locator('#station td a', { hasText: 'radio/stations' }).click();
    assert.ok(await page.locator('h1', { hasText: 'Stations' }).isVisible());
    assert.ok(await page.locator('#search-text').isHidden());
  });

onPage('an address of before leads on, and one that names nothing says so', 'index.html', {},
  async (page, go) => {
    const moves = [['#radio', 'radio.html'], ['#radio/presets', 'radio.presets.html'],
      ['#radio/presets/station', 'radio.presets.html#station'],
      ['#kinds/string-list', 'kinds.html#string-list'], ['#silence', 'silence.html']];
    for (const [from, to] of moves) {
      await go('kinds.html');
      await go('index.html' + from);
      await page.waitForURL('**/' + to);
    }
    await go('radio.presets.html#statoin');
    const notice = page.locator('#page-notice');
    assert.match(await notice.textContent(), /no “statoin” in radio\/presets\. Near it: station/);
    await notice.getByRole('link').click();
    await page.waitForURL('**/radio.presets.html#station');
    assert.match(await page.locator('.path').innerText(), /radio\s*presets\s*station/);
    await go('radio.presets.html#uri');
    assert.ok(await page.locator('#uri').isVisible());
  });

onPage('back leads to where one was', 'places.locations.html', {}, async (page) => {
  const link = page.locator('.own td li a').last();
  await link.scrollIntoViewIfNeeded();
  const before = await page.evaluate(() => scrollY);
  await link.click();
  await page.waitForURL(/html$/);
  await page.goBack();
  await page.waitForFunction((wanted) => Math.abs(scrollY - wanted) < 2, before);
  await page.locator('.skip').focus();
  await page.keyboard.press('Enter');
  assert.ok(await page.locator('h1').isVisible());
});

onPage('long tables can be filtered', 'radio.stations.html', {}, async (page) => {
  await page.getByLabel('Filter').fill('logoover');
  assert.equal(await page.locator('.own tbody tr:visible').count(), 2);
  assert.match(await page.locator('.filter [role="status"]').textContent(), /^2 of/);
});

onPage('the menu of a small screen gives the focus back', 'index.html',
  { viewport: { width: 390, height: 640 } }, async (page) => {
    const menu = page.getByRole('button', { name: 'Services' });
    await menu.click();
    await page.keyboard.press('Tab');
    await page.keyboard.press('Escape');
    assert.ok(await menu.evaluate((button) => button === document.activeElement));
    assert.ok(await page.locator('.services').isHidden());
  });

onPage('print shows what is folded, on white', 'radio.presets.html', {}, async (page) => {
  await page.getByRole('button', { name: 'Colours' }).click({ clickCount: 2 }); // to dark
  await page.emulateMedia({ media: 'print' });
  assert.equal(await page.evaluate(() => getComputedStyle(document.body).backgroundColor),
    'rgb(255, 255, 255)');
  assert.ok((await page.locator('.snippet').boundingBox()).height > 100);
});

const axe = createRequire(import.meta.url).resolve('axe-core/axe.min.js');
for (const colorScheme of ['light', 'dark']) {
  onPage(`nothing keeps anybody out in the ${colorScheme} colours`, 'index.html', { colorScheme },
    async (page, go) => {
      for (const place of ['index.html', 'frame.html', 'kinds.html', 'silence.html', 'radio.html',
        'radio.stations.html#frequency']) {
        await go(place);
        await page.addScriptTag({ path: axe });
        await page.keyboard.press('/');
        await page.keyboard.type('station');
        const { violations } = await page.evaluate(() => {
          document.querySelectorAll('details').forEach((each) => { each.open = true; });
          return axe.run({ preload: false });
        });
        assert.deepEqual(violations.filter((each) => /serious|critical/.test(each.impact))
          .map((each) => `${place}: ${each.id}: ${each.nodes[0].html}`), []);
      }
    });
}
