/**
 * Gives an element the alpha of its node, from 0 to 1, in the node's time in seconds.
 * @param {HTMLElement} element
 * @param {{alpha?: number, fade?: number}} node
 */
export function fade(element, { alpha = 1, fade: duration = 0 }) {
  element.style.transitionDuration = `${duration}s`;
  element.style.opacity = alpha;
}
