// Runs before the page is drawn, so that it does not flash in the wrong colours.
'use strict';

window.theme = (() => {
  const key = 'kiv-reference-colours';
  const choices = ['system', 'light', 'dark'];
  const root = document.documentElement;

  // Pages that are opened from disk may have no storage.
  function stored() {
    try {
      return localStorage.getItem(key);
    } catch {
      return null;
    }
  }

  function current() {
    return root.dataset.theme || 'system';
  }

  function choose(choice) {
    if (choice === 'light' || choice === 'dark') {
      root.dataset.theme = choice;
    } else {
      delete root.dataset.theme;
    }
  }

  /** Goes on to the next choice, keeps it, and returns its word. */
  function next() {
    const choice = choices[(choices.indexOf(current()) + 1) % choices.length];
    choose(choice);
    try {
      localStorage.setItem(key, choice);
    } catch {
      // It holds for this page then.
    }
    return choice;
  }

  choose(stored());
  root.classList.replace('plain', 'scripted');
  return { current, next };
})();
