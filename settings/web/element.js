/**
 * Makes an element.
 * @param {string} tag
 * @param {Object<string, unknown>} [attributes] `null`, `undefined` and `false` leave one out.
 * @param {...(Node|string)} children
 * @returns {HTMLElement}
 */
export function element(tag, attributes = {}, ...children) {
  const made = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) setAttribute(made, name, value);
  made.append(...children);
  return made;
}

/** Sets an attribute, or takes it away for `null`, `undefined` and `false`. */
export function setAttribute(target, name, value) {
  if (value == null || value === false) target.removeAttribute(name);
  else target.setAttribute(name, value === true ? '' : value);
}

/** Writes text only when it differs, so that a selection in unchanged text survives. */
export function setText(target, text) {
  if (target.textContent === text) return;
  // Another text in the same place costs a browser less than other contents.
  if (target.firstChild?.nodeType === Node.TEXT_NODE) target.firstChild.data = text;
  else target.textContent = text;
}

/** Hides or shows only what is not so yet: a browser styles anew what is told once more. */
export function setHidden(target, isHidden) {
  if (target.hidden !== isHidden) target.hidden = isHidden;
}

/** The element that has the keyboard, also inside shadow roots. */
export function focusedElement() {
  let focused = document.activeElement;
  while (focused?.shadowRoot?.activeElement) focused = focused.shadowRoot.activeElement;
  return focused;
}
