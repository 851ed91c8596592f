import { element, setText } from '../element.js';

/** Says what went wrong until it is put away. */
export function create(_, context) {
  const text = element('p');
  const close = element('button', { class: 'close', type: 'button', 'aria-label': 'Dismiss' }, '×');
  close.addEventListener('click', () => context.touch({ kind: 'tap' }));
  return { element: element('div', { class: 'banner' }, text, close), text };
}

export function update(view, node) {
  setText(view.text, node.text);
}
