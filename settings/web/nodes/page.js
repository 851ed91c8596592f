import { element, setText } from '../element.js';

export function create() {
  const title = element('h1', { class: 'title', tabindex: -1 });
  const leading = element('div', { class: 'leading' });
  const content = element('div', { class: 'content' });
  const bar = element('header', { class: 'bar' }, leading, title);
  const page = element('div', { class: 'page' }, bar, content);
  // At rest nothing lies below the bar, and it wears its color in full.
  content.addEventListener('scroll', () => page.classList.toggle('scrolled', content.scrollTop > 0));
  const view = { element: page, title, leading, content, scrolled: 0, left: null };
  return Object.assign(view, {
    leave: () => leave(view),
    enter: () => title.focus({ preventScroll: true }),
    comeBack: () => comeBack(view),
  });
}

/** A covered page is sent without its rows; it keeps showing those it had while it slides away. */
export function update(view, node, context) {
  if (!context.isTop()) return;
  setText(view.title, node.title);
  const { translucent, ...colors } = node.style;
  for (const [part, color] of Object.entries(colors)) {
    view.element.style.setProperty(`--${part}`, color);
  }
  view.element.classList.toggle('translucent', Boolean(translucent));
  document.querySelector('meta[name=theme-color]').content = colors.bar;
  context.place(view.leading, node.back ? [node.back] : []);
  context.place(view.content, node.children);
}

function rows(view) {
  return [...view.content.querySelectorAll('.row')];
}

function leave(view) {
  view.scrolled = view.content.scrollTop;
  const row = document.activeElement?.closest('.row');
  view.left = { id: row?.dataset.node, index: rows(view).indexOf(row) };
}

function comeBack(view) {
  view.content.scrollTop = view.scrolled;
  const all = rows(view);
  const row = all.find(({ dataset }) => dataset.node === view.left?.id) ?? all[view.left?.index];
  (row ?? view.title).focus({ preventScroll: true });
}
