import { element, setText } from '../element.js';
import { swipeDown } from '../swipe.js';

export function create(node, context) {
  const { id } = context;
  const parts = {
    title: element('h2', { id: `${id}-title` }),
    subtitle: element('p', { class: 'subtitle', id: `${id}-subtitle` }),
    points: element('ul', { class: 'points' }),
    // It has the keyboard at once, and shows that to those who use one.
    button: element('button', { type: 'button', class: 'continue quiet' }),
    caption: element('p', { class: 'caption' }),
  };
  const sheet = element('dialog', {
    class: 'sheet welcome', open: true, tabindex: -1, 'aria-modal': 'true',
    'aria-labelledby': parts.title.id, 'aria-describedby': parts.subtitle.id,
  }, element('div', { class: 'read' }, parts.title, parts.subtitle, parts.points),
    element('footer', {}, parts.button, parts.caption));
  const view = { element: sheet, ...parts, node, focus: () => parts.button };
  view.escape = () => context.touch({ kind: 'tap' }, view.node.dismiss);
  parts.button.addEventListener('click', () =>
    context.touch({ kind: 'tap' }, view.node.button.id));
  sheet.addEventListener('keydown', () => parts.button.classList.remove('quiet'));
  swipeDown(sheet, view.escape);
  return view;
}

export function update(view, node) {
  view.node = node;
  view.element.style.setProperty('--tint', node.tint);
  setText(view.title, node.title);
  setText(view.subtitle, node.subtitle);
  setText(view.button, node.button.title);
  setText(view.caption, node.caption);
  view.points.replaceChildren(...node.items.map(({ title, description }) =>
    element('li', {}, element('h3', {}, title), element('p', {}, description))));
}
