import { element, setAttribute, setText } from './element.js';

/** Ties a group's footer to a control, for those who do not see that it stands below. */
export function describe(control, footer, ...more) {
  const ids = [...more, footer].filter(Boolean).map(({ id }) => id);
  setAttribute(control, 'aria-describedby', ids.join(' ') || null);
}

/**
 * A row that is tapped as a whole.
 * @param {Object} attributes of its button
 * @param {function(): void} tapped
 */
export function tapRow(attributes, tapped) {
  const label = element('span', { class: 'label' });
  const row = element('button', { type: 'button', ...attributes }, label);
  row.addEventListener('click', () => {
    // Some browsers leave the keyboard elsewhere on a click; coming back needs to know the row.
    row.focus({ preventScroll: true });
    tapped();
  });
  return { element: row, label, describe: (footer) => describe(row, footer) };
}

/** Brings a tapped row up to date. */
export function updateTapRow(view, node) {
  setText(view.label, node.label);
  view.element.disabled = node.enabled === false;
}
