import { announce } from '../announce.js';
import { element, setText } from '../element.js';

const words = 'Restarting the lock screen…';

export function create() {
  const date = element('p', { class: 'date' });
  const time = element('p', { class: 'time' });
  const screen = element('div', {
    class: 'restart', role: 'dialog', tabindex: -1, 'aria-modal': 'true', 'aria-label': words,
  }, element('div', { class: 'locked', 'aria-hidden': 'true' }, date, time),
    element('div', { class: 'dark' }, element('span', { class: 'spinner' })));
  announce(words);
  return { element: screen, date, time, hides: true, focus: () => screen };
}

export function update(view, node) {
  view.element.dataset.phase = node.phase;
  const now = new Date();
  setText(view.date,
    now.toLocaleDateString('en', { weekday: 'long', month: 'long', day: 'numeric' }));
  setText(view.time, now.toLocaleTimeString('en',
    { hour: 'numeric', minute: '2-digit', hourCycle: 'h23' }));
}
