import { element } from './element.js';

/** How long the page waits for more before it tells what was typed, in milliseconds. */
const pause = 300;

/** The longest text that the program takes, in bytes of UTF-8. */
const longestText = 32 * 1024;

/** The same as it is written in a message, which leaves some room for what stands around it. */
const longestWritten = 63 * 1024;

const bytes = (text) => new TextEncoder().encode(text).length;
const fits = (text) =>
  bytes(text) <= longestText && bytes(JSON.stringify(text)) <= longestWritten;

/** A field whose text the program keeps. What the user typed is theirs until the program has it. */
export class Field {
  #timer = null;
  #known = '';
  #sent = null;
  #before = null;

  /** Hears a text that the program is to have. */
  changed = () => {};

  /** Hears of everything typed whether it fits; what does not is not taken into the field. */
  typed = () => {};

  /**
   * @param {HTMLInputElement|HTMLTextAreaElement} input
   * @param {string} [label] is drawn before the input
   */
  constructor(input, label) {
    this.input = input;
    this.element = label ? element('label', { class: 'field' }, label, input) : input;
    // What is being composed is no text yet.
    const on = (type, act) =>
      input.addEventListener(type, ({ isComposing }) => isComposing || act());
    for (const type of ['beforeinput', 'compositionstart']) on(type, () => this.#remember());
    for (const type of ['input', 'compositionend']) on(type, () => this.#hear());
    input.addEventListener('blur', () => this.flush());
  }

  /** Whether a text is on its way of which the program has not said yet that it has it. */
  get isUnanswered() {
    return this.#sent !== null;
  }

  /** Tells at once what was typed and not told yet. */
  flush() {
    clearTimeout(this.#timer);
    const { value } = this.input;
    if (value === (this.#sent ?? this.#known)) return;
    this.#sent = value;
    this.changed(value);
  }

  /** The program does not take the text that is on its way; the user keeps it. */
  refuse() {
    this.#sent = null;
  }

  /** Shows the program's text, unless the user has one that the program did not know. */
  show(text) {
    const { value, selectionStart: caret } = this.input;
    const isOwn = this.isUnanswered || value !== this.#known;
    this.#known = text;
    if (text === this.#sent) this.#sent = null;
    if (isOwn || value === text) return;
    this.input.value = text;
    this.input.setSelectionRange(caret, caret);
  }

  #remember() {
    const { value, selectionStart, selectionEnd } = this.input;
    this.#before = { value, selection: [selectionStart, selectionEnd] };
  }

  #hear() {
    const isTaken = fits(this.input.value);
    if (!isTaken) this.#undo();
    this.typed(isTaken);
    clearTimeout(this.#timer);
    this.#timer = setTimeout(() => this.flush(), pause);
  }

  #undo() {
    this.input.value = this.#before.value;
    this.input.setSelectionRange(...this.#before.selection);
  }
}
