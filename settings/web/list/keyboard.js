import { announce } from '../announce.js';

const strides = { ArrowUp: -1, ArrowDown: 1 };

/** The keyboard in a list: keeps its place whatever becomes of the rows, and moves rows. */
export class Keyboard {
  #table;
  #spot = null;
  #moving = null;

  /**
   * @param {HTMLElement} table
   * @param {function(string, {section: number, row: number}): void} move hears which cell is to go
   *     where
   */
  constructor(table, move) {
    this.#table = table;
    table.addEventListener('focusin', ({ target }) => (this.#spot = spotOf(target)));
    table.addEventListener('keydown', (event) => this.#hear(event, move));
  }

  /** Lets the rows change. */
  keep(change) {
    const held = document.activeElement;
    const isHere = held !== this.#table && this.#table.contains(held);
    const moving = this.#moving;
    this.#moving = null;
    change();
    if (isHere) this.#restore(moving);
  }

  #hear(event, move) {
    const stride = strides[event.key];
    const cell = event.target.closest('.grip')?.closest('.cell');
    if (!cell || !stride) return;
    event.preventDefault();
    const { section, row: from } = this.#spot;
    const row = from + stride;
    if (this.#moving || row < 0 || row >= Number(cell.ariaSetSize)) return;
    this.#moving = { label: labelOf(cell), row };
    move(cell.dataset.node, { section, row });
  }

  /** The keyboard stays at its position, whichever row is there now, unless it moved one. */
  #restore(moving) {
    const moved = moving && this.#moved(moving);
    const target = moved?.querySelector('.grip') ?? this.#buttonAt(this.#spot) ?? this.#table;
    if (target !== document.activeElement) target.focus({ preventScroll: true });
    this.#spot = spotOf(target);
    if (!moved) return;
    moved.scrollIntoView({ block: 'nearest' });
    announce(`${labelOf(moved)}, ${moved.ariaPosInSet} of ${moved.ariaSetSize}`);
  }

  /** The row that was moved, if it came to where it was to go. */
  #moved({ label, row }) {
    const cell = this.#cellAt(this.#spot.section, row);
    return cell && labelOf(cell) === label ? cell : null;
  }

  #cellAt(section, row) {
    const place = `[data-section="${section}"][data-row="${row}"]`;
    return this.#table.querySelector(`.cell${place}:not(.carried)`);
  }

  #buttonAt({ section, row, part }) {
    const last = this.#cellAt(section, row - 1);
    const cell = this.#cellAt(section, row) ?? (Number(last?.ariaSetSize) === row ? last : null);
    return cell?.querySelector(`.${part}:not([hidden])`)
      ?? cell?.querySelector('button:not([hidden])');
  }
}

const labelOf = (cell) => cell.querySelector('.label').textContent;

/** Where an element stands: section, row and which of the row's buttons. */
function spotOf(target) {
  const cell = target.closest('.cell');
  if (!cell) return null;
  const { section, row } = cell.dataset;
  return { section: Number(section), row: Number(row), part: target.className };
}
