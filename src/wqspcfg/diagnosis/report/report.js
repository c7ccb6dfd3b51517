// Search, filters, links and keys of the page. Without it, the page is whole but for these.
'use strict';
(() => {
  const find = (selector, within = document) => within.querySelector(selector);
  const findAll = (selector, within = document) => [...within.querySelectorAll(selector)];

  const form = find('#search');
  const query = find('#query');
  const classChoice = find('#device-class');
  const choices = findAll('input[type=checkbox]', form);
  const clear = find('#clear');
  const hits = find('#hits');
  const nothing = find('#nothing');
  const main = find('main');
  const toc = find('#contents');

  // ---- what there is to find ----

  const sections = findAll('main > section').map((element) => ({
    element,
    deviceClass: element.dataset.class,
    bodies: findAll('tbody', element).map((body) => ({
      element: body,
      isSettings: body.parentElement.classList.contains('settings'),
      heading: find('tr.key', body),
      rows: findAll('tr:not(.key)', body).map((row) => ({ element: row, text: null })),
    })),
  }));
  const total = findAll('table.settings tbody tr:not(.key)').length;

  const textOf = (element) => element.textContent.toLowerCase();
  // Made when it is first needed: a row is found by its own text and that of its key and service, and a section without
  // rows by all of it.
  const index = () => {
    for (const section of sections) {
      if (!section.bodies.length) {
        section.text ??= textOf(section.element);
      }
      const isTitled = section.bodies.some((body) => body.isSettings);
      const title = isTitled ? findAll('h2, dl', section.element).map(textOf).join('\n') : '';
      for (const body of section.bodies) {
        const above = title + '\n' + (body.heading ? textOf(body.heading) : '') + '\n';
        for (const row of body.rows) {
          row.text ??= above + textOf(row.element);
        }
      }
    }
  };

  // ---- search and filters ----

  const count = (number) => number.toLocaleString('en');
  let telling = 0;
  const tell = (text) => {
    clearTimeout(telling);
    telling = setTimeout(() => {
      if (hits.textContent !== text) {
        hits.textContent = text;
      }
    }, 150); // so that a screen reader tells the last of several quick changes
  };

  const apply = () => {
    const terms = query.value.toLowerCase().split(/\s+/).filter(Boolean);
    const wanted = choices.filter((choice) => choice.checked).map((choice) => choice.value);
    const deviceClass = classChoice ? classChoice.value : '';
    if (terms.length) {
      index();
    }
    let settings = 0;
    let others = 0;
    for (const section of sections) {
      const isOther = deviceClass && section.deviceClass !== undefined && section.deviceClass !== deviceClass;
      if (!section.bodies.length) {
        const isShown = !isOther && !wanted.length && terms.every((term) => section.text.includes(term));
        section.element.hidden = !isShown;
        others += isShown;
        continue;
      }
      let shown = 0;
      for (const body of section.bodies) {
        let shownHere = 0;
        for (const row of body.rows) {
          const own = row.element.dataset.class;
          const isShown = !isOther
            && (body.isSettings
              ? wanted.every((name) => row.element.classList.contains(name))
              : !deviceClass || own === deviceClass)
            && terms.every((term) => row.text.includes(term));
          row.element.hidden = !isShown;
          shownHere += isShown;
        }
        body.element.hidden = !shownHere;
        shown += shownHere;
        if (body.isSettings) {
          settings += shownHere;
        } else {
          others += shownHere;
        }
      }
      section.element.hidden = !shown;
    }
    const isFiltered = terms.length > 0 || wanted.length > 0 || deviceClass !== '';
    clear.hidden = !isFiltered;
    nothing.hidden = settings + others > 0;
    document.body.classList.toggle('filtered', isFiltered);
    for (const link of findAll('nav a')) {
      const target = document.getElementById(link.hash.slice(1));
      link.parentElement.classList.toggle('absent', !target || target.hidden);
    }
    tell(isFiltered ? `${count(settings)} of ${count(total)} settings` : `${count(total)} settings`);
    mark(terms);
  };

  // Marks what was found, where the browser can do so without changing the page.
  const mark = (terms) => {
    if (!globalThis.CSS?.highlights) {
      return;
    }
    CSS.highlights.delete('hit');
    if (!terms.length) {
      return;
    }
    const ranges = [];
    const walker = document.createTreeWalker(main, NodeFilter.SHOW_ELEMENT | NodeFilter.SHOW_TEXT, (node) => {
      if (node.nodeType === Node.TEXT_NODE) {
        return NodeFilter.FILTER_ACCEPT;
      }
      return node.hidden || node.matches('form, header, dl, details:not([open]) > :not(summary)')
        ? NodeFilter.FILTER_REJECT : NodeFilter.FILTER_SKIP;
    });
    while (ranges.length < 1000 && walker.nextNode()) {
      const node = walker.currentNode;
      const text = node.data.toLowerCase();
      if (text.length !== node.data.length) {
        continue; // a few characters have a longer lower case
      }
      for (const term of terms) {
        for (let at = text.indexOf(term); at >= 0; at = text.indexOf(term, at + term.length)) {
          const range = new Range();
          range.setStart(node, at);
          range.setEnd(node, at + term.length);
          ranges.push(range);
        }
      }
    }
    CSS.highlights.set('hit', new Highlight(...ranges));
  };

  const reset = () => {
    form.reset();
    apply();
  };

  // ---- links and keys ----

  const focusOn = (element) => {
    if (!element.matches('a, button, input, select, summary, [tabindex]')) {
      element.tabIndex = -1;
    }
    element.focus({ preventScroll: true });
  };

  // What is above it gets its true height only when it comes near: again, until it stays where it is.
  const scrollTo = (target) => {
    const block = target.matches('tr:not(.key)') ? 'center' : 'start';
    let top = NaN;
    let steady = 0;
    const step = () => {
      target.scrollIntoView({ block });
      const now = target.getBoundingClientRect().top;
      steady = Math.abs(now - top) < 1 ? steady + 1 : 0;
      top = now;
      if (steady < 3) {
        requestAnimationFrame(step);
      }
    };
    step();
  };

  // Leads to an element even where the filters hide it.
  const show = (id) => {
    const target = id && document.getElementById(id);
    if (!target || !main.contains(target)) {
      return;
    }
    if (target.closest('[hidden]')) {
      reset();
    }
    scrollTo(target);
    focusOn(target.matches('section') ? find('h2', target) : target);
  };

  const shownRows = () => findAll('main tbody tr:not(.key)').filter((row) => !row.closest('[hidden]'));

  const goTo = (row) => {
    focusOn(row);
    row.scrollIntoView({ block: 'nearest' });
  };

  document.addEventListener('click', (event) => {
    const link = event.target.closest('a[href^="#"]');
    if (link && !event.ctrlKey && !event.metaKey && !event.shiftKey) {
      if (narrow.matches && toc.contains(link)) {
        toc.open = false;
      }
      setTimeout(() => show(link.hash.slice(1))); // after the browser has followed it
    }
  });
  window.addEventListener('hashchange', () => show(location.hash.slice(1)));

  const isTyping = (element) => element.matches('input, select, textarea');

  document.addEventListener('keydown', (event) => {
    if (event.ctrlKey || event.metaKey || event.altKey || event.isComposing) {
      return;
    }
    const at = document.activeElement;
    if (event.key === '/' && !isTyping(at)) {
      query.focus();
      query.select();
      event.preventDefault();
    } else if (event.key === 'Escape' && form.contains(at)) {
      reset();
      query.focus();
      event.preventDefault();
    } else if (at === query && (event.key === 'ArrowDown' || event.key === 'Enter')) {
      const first = shownRows()[0];
      if (first) {
        goTo(first);
      }
      event.preventDefault();
    } else if (at.matches('tbody tr')) {
      if (event.key === 'ArrowDown' || event.key === 'ArrowUp') {
        const rows = shownRows();
        const next = rows[rows.indexOf(at) + (event.key === 'ArrowDown' ? 1 : -1)];
        if (next) {
          goTo(next);
        } else if (event.key === 'ArrowUp') {
          query.focus();
        }
        event.preventDefault();
      } else if (event.key === 'Enter') {
        const details = find('details', at);
        if (details) {
          details.open = !details.open;
        } else {
          find('a', at)?.click();
        }
        event.preventDefault();
      }
    }
  });

  // ---- what the reader sees of the contents ----

  const narrow = matchMedia('(max-width: 60rem)');
  const fold = () => { toc.open = !narrow.matches; };
  narrow.addEventListener('change', fold);
  fold();

  const seen = new Set();
  const links = new Map(findAll('nav a').map((link) => [link.hash.slice(1), link]));
  const observer = new IntersectionObserver((entries) => {
    for (const { target, isIntersecting } of entries) {
      seen[isIntersecting ? 'add' : 'delete'](target);
    }
    const first = sections.find((section) => seen.has(section.element));
    for (const [id, link] of links) {
      if (first && id === first.element.id) {
        link.setAttribute('aria-current', 'true');
      } else {
        link.removeAttribute('aria-current');
      }
    }
  }, { rootMargin: '-15% 0px -60% 0px' });
  sections.forEach((section) => observer.observe(section.element));

  // The heads of tables stick below it.
  new ResizeObserver(() => {
    document.documentElement.style.setProperty('--bar', `${form.offsetHeight}px`);
  }).observe(form);

  let waiting = 0;
  query.addEventListener('input', () => {
    cancelAnimationFrame(waiting);
    waiting = requestAnimationFrame(() => {
      apply();
      if (form.getBoundingClientRect().top <= 0) {
        window.scrollTo(0, 0); // what is found first
      }
    });
  });
  form.addEventListener('change', apply);
  form.addEventListener('reset', () => setTimeout(apply));
  form.addEventListener('submit', (event) => event.preventDefault());

  form.hidden = false;
  form.reset();
  if (location.hash) {
    const follow = () => show(location.hash.slice(1));
    follow();
    window.addEventListener('load', () => setTimeout(follow)); // the browser takes the focus when it follows it itself
  }
})();
