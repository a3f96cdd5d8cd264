// Opens the reference from disk, in the browser of the machine.
import { chromium } from 'playwright-core';
import { pathToFileURL } from 'node:url';

export const address = pathToFileURL(process.env.REFERENCE_PAGE).href;

export function launch() {
  return chromium.launch({
    executablePath: process.env.CHROMIUM || '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
      '--disable-background-networking', '--disable-component-update', '--disable-sync'],
  });
}

/** A page, and in `faults` all that it complained of and all that it asked of others. */
export async function openPage(browser, place = '', options = {}) {
  const context = await browser.newContext({ viewport: { width: 1280, height: 900 }, ...options });
  const page = await context.newPage();
  page.setDefaultTimeout(10000);
  const faults = [];
  page.on('console', (message) => faults.push(message.text()));
  page.on('pageerror', (error) => faults.push(error.message));
  context.on('request', (request) => {
    if (!/^(file|data):/.test(request.url())) {
      faults.push('asked for ' + request.url());
    }
  });
  await page.goto(address + place);
  return { page, faults };
}
