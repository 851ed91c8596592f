import { safeAction, showActions } from '../actions.js';
import { element, setText } from '../element.js';

export function create(_, { id }) {
  const title = element('h2', { id: `${id}-title` });
  const message = element('p', { id: `${id}-message` });
  const actions = element('div', { class: 'actions' });
  const dialog = element('dialog', {
    class: 'alert', role: 'alertdialog', open: true, tabindex: -1, 'aria-modal': 'true',
    'aria-labelledby': title.id, 'aria-describedby': message.id,
  }, element('div', { class: 'words' }, title, message), actions);
  return {
    element: dialog, title, message, actions,
    focus: () => safeAction(actions),
    escape: () => actions.querySelector('.cancel')?.click(),
  };
}

export function update(view, node, context) {
  setText(view.title, node.title);
  setText(view.message, node.message);
  view.actions.classList.toggle('pair', node.actions.length === 2);
  showActions(view.actions, node.actions, (id) => context.touch({ kind: 'tap' }, id));
}
