// Makes a page handier. Everything it shows stands there without it.
'use strict';

(() => {
  const notice = document.getElementById('page-notice');
  const pathKey = document.querySelector('.path .key');
  const path = document.body.dataset.path;

  // Addresses

  function placeInAddress() {
    try {
      return decodeURIComponent(location.hash.slice(1));
    } catch {
      return location.hash.slice(1);
    }
  }

  /**
   * The start page has a link for each place that an address of the form `#radio/presets/station`
   * may name; what follows it is a place on that page.
   */
  function movedTo(place) {
    const parts = place.split('/');
    for (let length = parts.length; length > 0; --length) {
      const link = document.getElementById(parts.slice(0, length).join('/'));
      if (link) {
        const rest = parts.slice(length).join('/');
        return link.href && link.getAttribute('href') + (rest ? '#' + rest : '');
      }
    }
    return null;
  }

  function noticeOf(place) {
    const rows = [...document.querySelectorAll('tr[id], dt[id]')].map((row) => ({ name: row.id }));
    const near = spelling.near(rows, place).slice(0, 3);
    const parts = [`There is no “${place}” ${path ? 'in ' + path : 'here'}.`];
    for (const { name } of near) {
      const link = document.createElement('a');
      link.href = '#' + name;
      link.textContent = name;
      parts.push(parts.length === 1 ? ' Near it: ' : ', ', link);
    }
    return parts;
  }

  function isField(target) {
    return target !== null && target.matches('.fields tr');
  }

  function showAddress() {
    const place = placeInAddress();
    const target = place === '' ? null : document.getElementById(place);
    const moved = place !== '' && document.body.dataset.page === 'start' && movedTo(place);
    if (moved) {
      location.replace(moved);
      return;
    }
    notice.replaceChildren(...(place !== '' && !target ? noticeOf(place) : []));
    pathKey.textContent = isField(target) ? place : '';
    document.title = (isField(target) ? `${place} – ` : '') + document.body.dataset.title;
    const fold = target?.closest('details');
    if (fold && !fold.open) {
      fold.open = true;
      target.scrollIntoView();
    }
  }

  // Menu of small screens, colours

  const menu = document.querySelector('.menu');
  const theme = document.querySelector('.theme');
  const services = document.getElementById('page-services');

  function openMenu(isOpen) {
    document.body.classList.toggle('menu-open', isOpen);
    menu.setAttribute('aria-expanded', String(isOpen));
  }

  function closeMenu() {
    if (menu.getAttribute('aria-expanded') === 'true') {
      openMenu(false);
      menu.focus();
    }
  }

  function showTheme() {
    theme.querySelector('.word').textContent = window.theme.current();
  }

  // Copying

  function addCopyButton(code) {
    const button = document.createElement('button');
    button.type = 'button';
    button.className = 'copy';
    button.textContent = 'Copy';
    button.setAttribute('aria-label', `Copy: ${code.dataset.copy}`);
    button.addEventListener('click', async () => {
      try {
        await navigator.clipboard.writeText(code.textContent);
        button.textContent = 'Copied';
      } catch {
        getSelection().selectAllChildren(code);
        button.textContent = 'Selected';
      }
      setTimeout(() => { button.textContent = 'Copy'; }, 1500);
    });
    code.after(button);
  }

  // Filter of long tables

  function startFilter(filter) {
    const input = filter.querySelector('input');
    const status = filter.querySelector('[role="status"]');
    const rows = [...document.querySelectorAll('.fields.own tbody tr')];
    const links = [...document.querySelectorAll('.keys li')];
    input.addEventListener('input', () => {
      const wanted = input.value.trim().toLowerCase();
      rows.forEach((row, index) => {
        row.hidden = !row.textContent.toLowerCase().includes(wanted);
        links[index].hidden = row.hidden;
      });
      const shown = rows.filter((row) => !row.hidden).length;
      status.textContent = wanted === '' ? '' : `${shown} of ${rows.length}`;
    });
    filter.hidden = false;
  }

  // Printing shows what is folded.

  let folded = [];

  function unfold() {
    folded = [...document.querySelectorAll('details:not([open])')];
    folded.forEach((each) => { each.open = true; });
  }

  theme.hidden = false;
  menu.hidden = false;
  showTheme();
  theme.addEventListener('click', () => {
    window.theme.next();
    showTheme();
  });
  menu.addEventListener('click', () => openMenu(!document.body.classList.contains('menu-open')));
  document.addEventListener('keydown', (event) => {
    if (event.key === 'Escape' && (services.contains(event.target) || event.target === menu)) {
      closeMenu();
    }
  });
  document.querySelectorAll('[data-copy]').forEach(addCopyButton);
  document.querySelectorAll('.filter').forEach(startFilter);
  window.addEventListener('beforeprint', unfold);
  window.addEventListener('afterprint', () => {
    folded.forEach((each) => { each.open = false; });
  });
  services.querySelector('[aria-current]')?.scrollIntoView({ block: 'nearest' });
  window.addEventListener('hashchange', showAddress);
  showAddress();
})();
