const timing = { duration: 350, easing: 'cubic-bezier(0.32, 0.72, 0, 1)', fill: 'both' };

/** The frames of a push: which part of which page moves how. A pop plays them backwards. */
const moves = [
  ['front', '.content', [{ transform: 'translateX(100%)' }, { transform: 'none' }]],
  ['front', '.bar', [{ opacity: 0 }, { opacity: 1 }]],
  ['front', '.middle', [{ transform: 'translateX(60%)' }, { transform: 'none' }]],
  ['front', '.leading', [{ transform: 'translateX(60%)' }, { transform: 'none' }]],
  ['back', '.content', [{ transform: 'none', filter: 'brightness(1)' },
                        { transform: 'translateX(-30%)', filter: 'brightness(0.9)' }]],
  ['back', '.middle', [{ transform: 'none' }, { transform: 'translateX(-60%)' }]],
];

/**
 * Slides one page over another, or away again.
 * @param {HTMLElement} front the upper page
 * @param {HTMLElement} back the page it covers
 * @param {boolean} isPush whether the upper page comes or goes
 * @returns {Animation[]} empty for those who asked for less motion
 */
export function slide(front, back, isPush) {
  if (matchMedia('(prefers-reduced-motion: reduce)').matches) return [];
  const pages = { front, back };
  return moves.map(([page, part, frames]) =>
    pages[page].querySelector(part).animate(isPush ? frames : [...frames].reverse(), timing));
}
