import { element, setAttribute, setText } from '../element.js';
import { openPicker, shortHex } from '../picker.js';
import { describe, tapRow, updateTapRow } from '../row.js';

export function create(_, context) {
  const view = tapRow({ class: 'row color', 'aria-haspopup': 'dialog' }, () => open(view, context));
  const hex = element('span', { class: 'hex', id: `${context.id}-color`, 'aria-hidden': 'true' });
  const well = element('span', { class: 'well' });
  view.element.append(hex, well);
  return Object.assign(view, {
    hex, well, describe: (footer) => describe(view.element, footer, hex),
  });
}

export function update(view, node) {
  updateTapRow(view, node);
  view.node = node;
  setAttribute(view.element, 'data-key', node.key);
  paint(view, node.color);
}

function paint(view, color) {
  setText(view.hex, shortHex(color).toUpperCase());
  view.well.style.setProperty('--color', color);
}

function open(view, context) {
  const { label, color, alpha } = view.node;
  openPicker({
    title: label, color, alpha,
    changed: (picked) => paint(view, picked),
    closed: (picked) => {
      view.element.focus({ preventScroll: true });
      if (picked !== color) context.touch({ kind: 'pick', color: picked });
    },
  });
}
