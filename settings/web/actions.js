import { element } from './element.js';

/**
 * Draws the buttons among which an alert or an action sheet leaves the choice.
 * @param {HTMLElement} container
 * @param {{id: string, title: string, style: 'default'|'cancel'|'destructive'}[]} actions
 * @param {function(string, string): void} tapped hears the id and the style of the chosen one
 */
export function showActions(container, actions, tapped) {
  const told = JSON.stringify(actions);
  if (container.told === told) return;
  container.told = told;
  container.replaceChildren(...actions.map(({ id, title, style }) => {
    const button = element('button', { type: 'button', class: `action ${style}` }, title);
    button.addEventListener('click', () => tapped(id, style));
    return button;
  }));
}

/** The button that leaves all as it is, else the first. */
export function safeAction(container) {
  return container.querySelector('.cancel') ?? container.firstElementChild;
}
