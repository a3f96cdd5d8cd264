// Opens the reference from disk, in the browser of the machine.
import { chromium } from 'playwright-core';
import { readdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { pathToFileURL } from 'node:url';
import assert from 'node:assert/strict';

const folder = process.env.REFERENCE;

/** The text of each page by its name. */
export const pages = new Map(readdirSync(folder).filter((name) => name.endsWith('.html')).sort()
  .map((name) => [name, readFileSync(join(folder, name), 'utf8')]));

let browser;
before(async () => {
  browser = await chromium.launch({
    executablePath: process.env.CHROMIUM || '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
      '--disable-background-networking', '--disable-component-update', '--disable-sync'],
  });
});
after(() => browser.close());

/** A test in a browser window of its own; the page must not complain or leave the disk. */
export function onPage(name, place, options, check) {
  test(name, async () => {
    const context = await browser.newContext({ viewport: { width: 1280, height: 900 }, ...options });
    const page = await context.newPage();
    page.setDefaultTimeout(10000);
    const faults = [];
    page.on('console', (message) => faults.push(message.text()));
    page.on('pageerror', (error) => faults.push(error.message));
    context.on('request', (request) => /^(file|data):/.test(request.url()) ||
      faults.push('asked for ' + request.url()));
    const go = (to) => page.goto(pathToFileURL(join(folder, '/')).href + to);
    await go(place);
    await check(page, go);
    await context.close();
    assert.deepEqual(faults, []);
  });
}
