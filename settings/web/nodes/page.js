import { element, setText } from '../element.js';

export function create(_, context) {
  const title = element('h1', { class: 'title', tabindex: -1 });
  // What it says, the title says to those who do not see it.
  const titleView = element('div', { class: 'title-view', 'aria-hidden': 'true' });
  const leading = element('div', { class: 'leading' });
  const trailing = element('div', { class: 'trailing' });
  const header = element('div', { class: 'header' });
  const list = element('div', { class: 'list' });
  const covers = element('div', { class: 'covers' });
  const content = element('div', { class: 'content' }, header, list);
  const middle = element('div', { class: 'middle' }, title, titleView);
  const bar = element('header', { class: 'bar' }, leading, middle, trailing);
  const page = element('div', { class: 'page' }, bar, content, covers);
  const view = { element: page, title, content, children: [], scrolled: 0, left: null,
                 offset: null, told: null };
  Object.assign(view, { places: { titleView, back: leading, trailing, header }, list, covers });
  watch(view, context);
  return Object.assign(view, {
    leave: () => leave(view),
    enter: () => title.focus({ preventScroll: true }),
    comeBack: () => comeBack(view),
  });
}

/** A covered page is sent without its rows; it keeps showing those it had while it slides away. */
export function update(view, node, context) {
  if (!context.isTop()) return;
  Object.assign(view, { offset: node.offset, children: node.children });
  setText(view.title, node.title);
  view.title.classList.toggle('unseen', Boolean(node.titleView));
  dress(view, node.style);
  for (const [name, place] of Object.entries(view.places)) {
    context.place(place, node[name] ? [node[name]] : []);
  }
  context.place(view.list, node.children);
  context.place(view.covers, node.covers ?? []);
  if (!isLive(view)) stand(view, context);
}

/** Whether somebody can move it: a page that is gone, or lies below something, tells nothing. */
function isLive({ element: page }) {
  return page.isConnected && !page.closest('[inert]');
}

/**
 * Brings a page that nobody could move meanwhile to where it stands on the phone, in a later window
 * or after a reload, say. Once it is live it tells if it has not the room for that.
 */
function stand(view, context) {
  view.told = view.offset;
  if (view.offset === null) return;
  requestAnimationFrame(() => {
    view.content.scrollTop = view.offset;
    tell(view, context);
  });
}

function tell(view, context) {
  const y = view.content.scrollTop;
  if (view.offset === null || y === view.told || !isLive(view)) return;
  view.told = y;
  context.touch({ kind: 'scroll', y });
}

function dress(view, { translucent, ...colors }) {
  for (const [part, color] of Object.entries(colors)) {
    view.element.style.setProperty(`--${part}`, color);
  }
  view.element.classList.toggle('translucent', Boolean(translucent));
  document.querySelector('meta[name=theme-color]').content = colors.bar ?? '';
}

/** Has an act done in the next frame, however often it is asked for before. */
function eachFrame(act) {
  let frame = null;
  return () => (frame ??= requestAnimationFrame(() => {
    frame = null;
    act();
  }));
}

/** Follows what comes into view. */
function watch(view, context) {
  const { element: page, content } = view;
  const look = eachFrame(() => {
    if (isLive(view)) for (const id of view.children) context.view(id).look?.();
  });
  const moved = eachFrame(() => tell(view, context));
  new ResizeObserver(look).observe(content);
  content.addEventListener('scroll', () => {
    // At rest nothing lies below the bar, and it wears its color in full.
    page.classList.toggle('scrolled', content.scrollTop > 0);
    look();
    moved();
  });
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
