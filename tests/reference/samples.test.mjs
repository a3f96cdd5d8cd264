import assert from 'node:assert/strict';
import { execFileSync, spawnSync } from 'node:child_process';
import { mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after } from 'node:test';
import { onPage, pages } from './browser.mjs';

const folder = mkdtempSync(join(tmpdir(), 'reference-'));
after(() => rmSync(folder, { recursive: true }));

/** What the button beside each piece of code copies. */
function codeOn(list) {
  return list.map((html) => {
    const page = new DOMParser().parseFromString(html, 'text/html');
    const codes = [...page.querySelectorAll('pre')].map((pre) => [pre.className, pre.textContent]);
    return { name: page.body.dataset.path, ...Object.fromEntries(codes) };
  });
}

onPage('samples are what the library reads, and snippets compile', 'index.html', {}, async (page) => {
  const resources = [...pages.values()].filter((text) => text.includes('data-page="resource"'));
  const codes = await page.evaluate(codeOn, resources);
  assert.equal(codes.length, 181);
  const write = (name, text) => {
    writeFileSync(join(folder, name), text);
    return join(folder, name);
  };
  for (const code of codes) {
    assert.equal(JSON.parse(code.reference), JSON.parse(code.full).uri);
    assert.equal(code.shallow.lastIndexOf('{'), 0); // nothing within but uris
    const check = (...words) => {
      const { status, stdout } =
        spawnSync(process.env.KIV, ['check', code.name, ...words], { encoding: 'utf8' });
      assert.equal(status, 0, `${code.name}: ${stdout}`);
    };
    check(write('array.json', code.array));
    check('--element', write('full.json', code.full), write('shallow.json', code.shallow));
  }
  const isInclude = (line) => line.startsWith('#include');
  const lines = codes.map(({ snippet }) => snippet.split('\n'));
  const bodies = lines.map((each, at) =>
    [`namespace snippet${at} {`, ...each.filter((line) => !isInclude(line)), '}'].join('\n'));
  // One as it stands, and all in one unit, their includes first.
  const one = write('one.cpp', codes.find(({ snippet }) => snippet.includes('target')).snippet);
  const whole = write('all.cpp', [...new Set(lines.flat().filter(isInclude)), ...bodies].join('\n'));
  const folders = process.env.INCLUDE_FOLDERS.split(':').map((each) => '-I' + each);
  execFileSync(process.env.CXX, ['-std=c++17', '-fsyntax-only', '-Wall', '-Wextra', '-Werror',
    ...folders, one, whole], { stdio: 'pipe' });
});
