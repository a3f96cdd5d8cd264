// Makes the page handier. Everything it shows stands in the page without it.
'use strict';

(() => {
  const mostShown = 40;
  const parts = [...document.querySelectorAll('.part')];
  const query = document.getElementById('query');
  const popup = document.querySelector('.results');
  const note = popup.querySelector('.note');
  const list = document.getElementById('results');
  const menu = document.querySelector('.menu');
  const theme = document.querySelector('.theme');
  let entries = null;
  let active = -1;

  // One service at a time

  function placeInAddress() {
    try {
      return decodeURIComponent(location.hash.slice(1));
    } catch {
      return '';
    }
  }

  /** The element of that place, or what comes nearest: its resource, its service. */
  function elementAt(place) {
    for (let rest = place; rest !== ''; rest = rest.split('/').slice(0, -1).join('/')) {
      const element = document.getElementById(rest);
      if (element) {
        return element;
      }
    }
    return null;
  }

  function partAt(place) {
    const element = elementAt(place);
    return (element && element.closest('.part')) || parts[0];
  }

  function markCurrent(part, place) {
    for (const item of document.querySelectorAll('nav > ul > li')) {
      item.classList.toggle('current', item.firstChild.getAttribute('href') === '#' + part.id);
    }
    const shown = place.split('/').slice(0, 2).join('/');
    let current = null;
    for (const link of document.querySelectorAll('nav a')) {
      if (link.getAttribute('href') === '#' + shown) {
        link.setAttribute('aria-current', 'true');
        current = link;
      } else {
        link.removeAttribute('aria-current');
      }
    }
    if (current) {
      current.scrollIntoView({ block: 'nearest' });
    }
  }

  // The other parts stay findable by the browser's own search, where it can.
  function hide(part) {
    part.setAttribute('hidden', 'until-found');
  }

  function show(part) {
    for (const each of parts) {
      if (each === part) {
        each.removeAttribute('hidden');
      } else {
        hide(each);
      }
    }
  }

  function titleOf(place) {
    return (place === '' ? '' : place + ' – ') + 'Interface reference';
  }

  function showAddress() {
    const place = placeInAddress();
    const element = elementAt(place);
    const part = partAt(place);
    show(part);
    markCurrent(part, element ? element.id : '');
    document.title = titleOf(element && part !== parts[0] ? element.id : '');
    closeMenu();
    for (const each of document.querySelectorAll('.here')) {
      each.classList.remove('here');
    }
    if (!element || element === part) {
      window.scrollTo(0, 0);
    } else {
      element.classList.add('here');
      element.scrollIntoView();
    }
  }

  // Search

  const ranks = { service: 0, resource: 1, kind: 2, field: 3 };

  function entryOf(name, place, sort, more) {
    return { name, place, sort, what: ranks[sort], kind: null, aliases: [], note: sort, ...more };
  }

  function collect() {
    const found = [];
    for (const row of document.querySelectorAll('.kinds tbody tr')) {
      found.push(entryOf(row.cells[0].textContent, row.id, 'kind', { note: 'kind of field' }));
    }
    for (const part of document.querySelectorAll('.service')) {
      found.push(entryOf(part.id, part.id, 'service', {}));
    }
    for (const article of document.querySelectorAll('article')) {
      const [service, name] = article.id.split('/');
      const aliases = [...article.querySelectorAll('.facts code')].map((code) => code.textContent);
      found.push(entryOf(name, article.id, 'resource', { aliases, note: 'resource of ' + service }));
    }
    for (const row of document.querySelectorAll('.fields tbody tr')) {
      const kind = row.querySelector('.kind').textContent;
      const place = row.id.split('/').slice(0, 2).join('/');
      found.push(entryOf(row.cells[0].textContent, row.id, 'field',
        { kind, note: place + ', ' + kind }));
    }
    return found;
  }

  function optionFor(entry, index) {
    const option = document.createElement('li');
    option.id = 'result-' + index;
    option.setAttribute('role', 'option');
    option.setAttribute('aria-selected', 'false');
    const link = document.createElement('a');
    link.href = '#' + entry.place;
    link.tabIndex = -1;
    const name = document.createElement('strong');
    name.textContent = entry.name;
    const rest = document.createElement('span');
    rest.textContent = entry.note;
    link.append(name, ' ', rest);
    option.append(link);
    return option;
  }

  function noteFor(result, text) {
    const count = result.entries.length;
    if (count === 0) {
      return `Nothing is called “${text}”.`;
    }
    if (result.isNear) {
      return `Nothing is called “${text}”. Names are matched letter for letter. Near it:`;
    }
    return count > mostShown ? `The first ${mostShown} of ${count}` : '';
  }

  function activate(index) {
    const options = list.children;
    if (options[active]) {
      options[active].setAttribute('aria-selected', 'false');
    }
    active = index;
    if (options[active]) {
      options[active].setAttribute('aria-selected', 'true');
      options[active].scrollIntoView({ block: 'nearest' });
      query.setAttribute('aria-activedescendant', options[active].id);
    } else {
      query.removeAttribute('aria-activedescendant');
    }
  }

  function open(isOpen) {
    popup.hidden = !isOpen;
    query.setAttribute('aria-expanded', String(isOpen));
  }

  function lookUp() {
    const text = query.value.trim();
    entries = entries || collect();
    const result = search.find(entries, text);
    list.replaceChildren(...result.entries.slice(0, mostShown).map(optionFor));
    note.textContent = text === '' ? '' : noteFor(result, text);
    open(text !== '');
    activate(result.entries.length > 0 ? 0 : -1);
  }

  /** Leaves the search for the place that was chosen, and lets the keyboard go on from there. */
  function leave() {
    open(false);
    query.blur();
    const element = elementAt(placeInAddress());
    const heading = element && (element.querySelector('h2, h3, a') || element);
    if (heading) {
      heading.focus({ preventScroll: true });
    }
  }

  function choose() {
    const option = list.children[active];
    if (option) {
      location.hash = option.firstChild.getAttribute('href');
      showAddress();
      leave();
    }
  }

  function step(by) {
    const count = list.children.length;
    if (popup.hidden) {
      lookUp();
    } else if (count > 0) {
      activate((active + by + count) % count);
    }
  }

  const keys = {
    ArrowDown: () => step(1),
    ArrowUp: () => step(-1),
    Enter: choose,
    Escape: () => {
      if (popup.hidden) {
        query.value = '';
        query.blur();
      }
      open(false);
    },
  };

  function isTyping(target) {
    return target.closest('input, textarea, select, [contenteditable]') !== null;
  }

  // Menu of small screens, colours, copying

  function closeMenu() {
    document.body.classList.remove('menu-open');
    menu.setAttribute('aria-expanded', 'false');
  }

  function toggleMenu() {
    const isOpen = document.body.classList.toggle('menu-open');
    menu.setAttribute('aria-expanded', String(isOpen));
  }

  function showTheme() {
    theme.querySelector('.word').textContent = window.theme.current();
  }

  function addCopyButton(code) {
    const button = document.createElement('button');
    button.type = 'button';
    button.className = 'copy';
    button.textContent = 'Copy';
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

  document.querySelector('.search').hidden = false;
  theme.hidden = false;
  menu.hidden = false;
  showTheme();
  theme.addEventListener('click', () => {
    window.theme.next();
    showTheme();
  });
  menu.addEventListener('click', toggleMenu);
  for (const code of document.querySelectorAll('.include, article pre')) {
    addCopyButton(code);
  }

  query.addEventListener('input', lookUp);
  query.addEventListener('focus', () => {
    if (query.value !== '') {
      lookUp();
      query.select();
    }
  });
  query.addEventListener('keydown', (event) => {
    const act = keys[event.key];
    if (act && !event.isComposing) {
      event.preventDefault();
      act();
    }
  });
  list.addEventListener('click', leave);
  document.addEventListener('click', (event) => {
    if (!event.target.closest('.search')) {
      open(false);
    }
  });
  document.addEventListener('keydown', (event) => {
    const isPlain = !event.ctrlKey && !event.metaKey && !event.altKey;
    if (event.key === '/' && isPlain && !isTyping(event.target)) {
      event.preventDefault();
      query.focus();
      query.select();
    } else if (event.key === 'Escape') {
      closeMenu();
    }
  });
  // The browser opens a hidden part when its own search finds something there, and also on the way
  // to an address, which `showAddress` takes care of.
  for (const part of parts) {
    part.addEventListener('beforematch', () => {
      if (partAt(placeInAddress()) !== part) {
        history.pushState(null, '', '#' + part.id);
        show(part);
        markCurrent(part, part.id);
      }
    });
  }
  window.addEventListener('hashchange', showAddress);
  document.documentElement.classList.remove('loading');
  showAddress();
})();
