import { element, setText } from '../element.js';
import { Drag } from '../list/drag.js';
import { missing, rowsWithin } from '../list/inview.js';
import { Keyboard } from '../list/keyboard.js';

/** A row in the hand stays whatever comes, and so does its picture under the finger. */
const inHand = '.dragged, .carried';

export function create(node, context) {
  const table = element('div', { class: 'table', tabindex: -1 });
  const move = (id, place) => context.touch({ kind: 'drag', ...place }, id);
  const drop = (id, place) => (place ? move(id, place) : show(view));
  const lists = [];
  const view = {
    element: table, lists, drag: new Drag(lists, drop), keyboard: new Keyboard(table, move),
    node, there: { first: 0, end: 0 }, asked: '', context,
  };
  view.look = () => look(view);
  table.addEventListener('click', ({ target }) => target.closest('button') || takeBack(view));
  table.addEventListener('keydown', ({ key }) => key === 'Escape' && takeBack(view));
  return view;
}

export function update(view, node, context) {
  const { element: table } = view;
  view.node = node;
  table.style.setProperty('--rowHeight', `${node.rowHeight}px`);
  table.style.setProperty('--separator', node.separator);
  show(view);
  follow(view, context);
}

function show(view) {
  const { node, lists, keyboard, drag, context } = view;
  keyboard.keep(() => {
    showSections(view, node.sections);
    lists.forEach((list, section) => place(view, list, section, context));
  });
  drag.arrange();
}

function showSections(view, sections) {
  while (view.lists.length > sections.length) view.lists.pop().parentElement.remove();
  while (view.lists.length < sections.length) addSection(view);
  sections.forEach(({ title, count }, index) => {
    const list = view.lists[index];
    setText(list.previousElementSibling, title);
    list.style.setProperty('--count', count);
    list.hidden = count === 0;
  });
}

function addSection({ element: table, lists, drag, context }) {
  const heading = element('h2', { class: 'heading', id: `${context.id}-${lists.length}` });
  const list = element('div', { class: 'rows', role: 'list', 'aria-labelledby': heading.id });
  table.append(element('section', { class: 'group' }, heading, list));
  lists.push(list);
  drag.watch(list);
}

function place(view, list, section, context) {
  const ids = view.node.children.filter((id) => context.node(id).section === section);
  context.place(list, ids, inHand);
  for (const cell of list.children) cell.ariaSetSize = String(view.node.sections[section].count);
}

/** Does not delete after all. */
function takeBack({ element: table, context }) {
  const asking = table.querySelector('.confirm:not([hidden])')?.closest('.cell');
  if (asking) context.touch({ kind: 'tap' }, asking.dataset.node);
}

/** Notes which rows are there now, and whether others are in view already. */
function follow(view, context) {
  const before = (section) =>
    view.node.sections.slice(0, section).reduce((sum, { count }) => sum + count, 0);
  const rows = view.node.children.map((id) => context.node(id))
    .map(({ section, row }) => before(section) + row);
  const there = { first: Math.min(...rows), end: Math.max(...rows) + 1 };
  if (there.first !== view.there.first || there.end !== view.there.end) view.asked = '';
  view.there = there;
  requestAnimationFrame(view.look);
}

/** Asks for the rows that come into view. */
function look(view) {
  const { element: table, node, lists, drag, context } = view;
  const scroller = table.closest('.content');
  if (!scroller || table.closest('[inert]')) return;
  drag.arrange();
  const counts = node.sections.map(({ count }) => count);
  const seen = rowsWithin(lists, counts, node.rowHeight, scroller.getBoundingClientRect());
  const total = counts.reduce((sum, count) => sum + count, 0);
  const rows = seen && missing(seen, view.there, total);
  const asked = JSON.stringify(rows);
  if (!rows || asked === view.asked) return;
  view.asked = asked;
  context.touch({ kind: 'window', ...rows });
}
