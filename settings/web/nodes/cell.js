import { element, setHidden, setText } from '../element.js';

/** What the row's buttons are called, before the row's own label. */
const names = { insert: 'Insert', delete: 'Delete' };

export function create(_, context) {
  const control = element('button', { type: 'button', class: 'control' });
  const label = element('span', { class: 'label' });
  const grip = element('button',
    { type: 'button', class: 'grip', 'aria-keyshortcuts': 'ArrowUp ArrowDown' });
  const confirm = element('button', { type: 'button', class: 'confirm', hidden: true }, 'Delete');
  const cell = element('div', { class: 'cell', role: 'listitem' }, control, label, grip, confirm);
  const view = { element: cell, control, label, grip, confirm, isBusy: false };
  const hear = (button, target) =>
    button.addEventListener('click', (event) => tap(view, context, event, target()));
  // Once it asks, the control takes back what it asked.
  hear(control, () => (view.node.confirm ? context.id : view.node.control));
  hear(confirm, () => view.node.confirm);
  return view;
}

/**
 * Taps a button unless the row awaits an answer. The second half of a double click is none of
 * ours: by then another row may stand below the mouse.
 */
function tap(view, context, { detail: clicks }, target) {
  if (view.isBusy || clicks > 1) return;
  view.isBusy = true;
  view.element.ariaBusy = 'true';
  context.touch({ kind: 'tap' }, target);
}

/** What is held, by a hand or by the keyboard, stays what it is until it is let go. */
export function isFree({ element: cell }) {
  return !cell.matches('.dragged, .carried, :active, :has(:focus-visible)');
}

export function update(view, node) {
  Object.assign(view, { node, isBusy: false });
  ask(view, node);
  const { element: cell, control, label, grip, confirm } = view;
  Object.assign(cell.dataset, { section: node.section, row: node.row, editing: node.editing });
  cell.style.setProperty('--row', node.row);
  cell.ariaBusy = null;
  cell.ariaPosInSet = String(node.row + 1);
  setText(label, node.label);
  label.style.color = node.color;
  setHidden(control, !node.control);
  control.ariaLabel = node.confirm ? 'Cancel' : `${names[node.editing]} ${node.label}`;
  control.ariaExpanded = node.editing === 'delete' ? String(Boolean(node.confirm)) : null;
  confirm.ariaLabel = `Delete ${node.label} now`;
  setHidden(grip, !node.movable);
  grip.ariaLabel = `Reorder ${node.label}`;
}

/** Shows or withdraws the button that confirms; the keyboard goes along. */
function ask({ element: cell, control, confirm }, node) {
  const isHeld = cell.contains(document.activeElement);
  const isNew = confirm.hidden && node.confirm;
  const isOver = document.activeElement === confirm && !node.confirm;
  setHidden(confirm, !node.confirm);
  if (isHeld && isNew) confirm.focus({ preventScroll: true });
  if (isOver) control.focus({ preventScroll: true });
}
