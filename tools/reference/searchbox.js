// The search field and the list of what was found.
'use strict';

(() => {
  const batch = 20;
  const box = document.querySelector('.search');
  const query = document.getElementById('search-text');
  const popup = box.querySelector('.results');
  const note = popup.querySelector('.note');
  const list = document.getElementById('search-hits');
  let entries = null;
  let hits = [];
  let active = -1;

  function prepare() {
    entries = entries || search.entriesOf(names);
  }

  function element(tag, text) {
    const made = document.createElement(tag);
    made.textContent = text;
    return made;
  }

  /** One line of the list; the link in it is the option. */
  function lineOf(option, index) {
    option.id = 'search-hit-' + index;
    option.tabIndex = -1;
    option.setAttribute('role', 'option');
    option.setAttribute('aria-selected', 'false');
    const line = document.createElement('li');
    line.setAttribute('role', 'presentation');
    line.append(option);
    return line;
  }

  function lineOfHit(entry, index) {
    const link = document.createElement('a');
    link.href = entry.place;
    const what = entry.kind ? `${entry.kind} field` : entry.sort;
    const path = entry.path === entry.name ? '' : `${entry.path}, `;
    link.append(element('strong', entry.name), ' ', element('span', path + what));
    if (entry.text) {
      link.append(' ', element('small', entry.text.replaceAll('`', '')));
    }
    return lineOf(link, index);
  }

  function options() {
    return list.querySelectorAll('[role="option"]');
  }

  /** Puts the next hits on the list, in the place of the line that offered them. */
  function showMore() {
    const from = options().length - 1;
    list.lastChild.remove();
    showFrom(from);
    return from;
  }

  function showFrom(from) {
    const next = hits.slice(from, from + batch);
    list.append(...next.map((entry, index) => lineOfHit(entry, from + index)));
    const left = hits.length - from - next.length;
    if (left > 0) {
      const more = element('span', `Show ${Math.min(left, batch)} of ${left} more`);
      more.className = 'more';
      list.append(lineOf(more, from + batch));
    }
  }

  function count(number) {
    return number === 1 ? '1 hit' : `${number} hits`;
  }

  function noteFor(result, text) {
    if (!result.isNear) {
      return count(result.entries.length);
    }
    const nothing = `Nothing is called “${text}”.`;
    return result.entries.length === 0 ? nothing :
      `${nothing} Names are matched letter for letter. Near it: ${count(result.entries.length)}`;
  }

  function activate(index, mayScroll = true) {
    options()[active]?.setAttribute('aria-selected', 'false');
    active = index;
    const chosen = options()[active];
    if (chosen) {
      chosen.setAttribute('aria-selected', 'true');
      if (mayScroll) {
        chosen.scrollIntoView({ block: 'nearest' });
      }
      query.setAttribute('aria-activedescendant', chosen.id);
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
    prepare();
    const result = search.find(entries, text);
    hits = result.entries;
    list.replaceChildren();
    showFrom(0);
    note.textContent = text === '' ? '' : noteFor(result, text);
    if (!popup.hidden) {
      popup.scrollTop = 0;
    }
    open(text !== '');
    active = -1;
    activate(hits.length > 0 ? 0 : -1, false);
  }

  function choose(chosen) {
    if (chosen?.className === 'more') {
      activate(showMore());
    } else {
      chosen?.click();
    }
  }

  function step(by) {
    const { length } = options();
    if (popup.hidden) {
      lookUp();
    } else if (length > 0) {
      activate((active + by + length) % length);
    }
  }

  const keys = {
    ArrowDown: () => step(1),
    ArrowUp: () => step(-1),
    Enter: () => choose(options()[active]),
    Escape: () => {
      if (popup.hidden) {
        query.value = '';
      }
      open(false);
    },
  };

  box.hidden = false;
  query.addEventListener('input', lookUp);
  query.addEventListener('focus', prepare);
  query.addEventListener('keydown', (event) => {
    const act = keys[event.key];
    if (act && !event.isComposing) {
      event.preventDefault();
      act();
    }
  });
  list.addEventListener('click', (event) => {
    const chosen = event.target.closest('[role="option"]');
    if (chosen?.className === 'more') {
      choose(chosen);
    } else if (chosen) {
      open(false);
      query.blur();
    }
  });
  // What is in the list keeps the focus in the field, so that only leaving both closes it.
  popup.addEventListener('mousedown', (event) => event.preventDefault());
  box.addEventListener('focusout', (event) => {
    if (!box.contains(event.relatedTarget)) {
      open(false);
    }
  });
  document.addEventListener('keydown', (event) => {
    const isPlain = !event.ctrlKey && !event.metaKey && !event.altKey;
    const isTyping = event.target.closest('input, textarea, select, [contenteditable]');
    if (event.key === '/' && isPlain && !isTyping) {
      event.preventDefault();
      query.focus();
      query.select();
    }
  });
  // Before somebody types, so that the first letter does not wait for it.
  (window.requestIdleCallback || setTimeout)(prepare);
})();
