import { element } from './element.js';

/** How long the page waits for more before it tells what was typed, in milliseconds. */
const pause = 300;

/** A field whose text the program keeps. */
export class Field {
  #timer = null;
  #told = '';

  /** Hears what was typed. */
  changed = () => {};

  /**
   * @param {HTMLInputElement|HTMLTextAreaElement} input
   * @param {string} [label] is drawn before the input
   */
  constructor(input, label) {
    this.input = input;
    this.element = label ? element('label', { class: 'field' }, label, input) : input;
    input.addEventListener('input', () => {
      clearTimeout(this.#timer);
      this.#timer = setTimeout(() => this.flush(), pause);
    });
    input.addEventListener('blur', () => this.flush());
  }

  /** Tells at once what was typed and not told yet. */
  flush() {
    clearTimeout(this.#timer);
    if (this.input.value === this.#told) return;
    this.#told = this.input.value;
    this.changed(this.#told);
  }

  /** Shows the program's text, but not over what is being typed. */
  show(text) {
    const isTyping = document.activeElement === this.input && this.input.value !== this.#told;
    if (isTyping) return;
    this.#told = text;
    if (this.input.value === text) return;
    const { selectionStart: caret } = this.input;
    this.input.value = text;
    this.input.setSelectionRange(caret, caret);
  }
}
