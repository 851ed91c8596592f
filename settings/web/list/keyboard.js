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
    change();
    if (isHere) this.#restore(held);
  }

  #hear(event, move) {
    const stride = strides[event.key];
    const cell = event.target.closest('.grip')?.closest('.cell');
    if (!cell || !stride) return;
    event.preventDefault();
    const row = this.#spot.row + stride;
    if (row < 0 || row >= Number(cell.ariaSetSize)) return;
    this.#spot.row = row;
    this.#moving = cell.querySelector('.label').textContent;
    move(cell.dataset.node, { section: this.#spot.section, row });
  }

  /** A row that moved within its section keeps the keyboard; for one that went, the next has it. */
  #restore(held) {
    const stays = this.#table.contains(held)
      && spotOf(held).section === this.#spot.section;
    const target = stays ? held : this.#buttonAt(this.#spot) ?? this.#table;
    if (target !== document.activeElement) target.focus({ preventScroll: true });
    this.#spot = spotOf(target);
    this.#tell(target.closest('.cell'));
  }

  #tell(cell) {
    if (cell?.querySelector('.label').textContent === this.#moving) {
      cell.scrollIntoView({ block: 'nearest' });
      announce(`${this.#moving}, ${cell.ariaPosInSet} of ${cell.ariaSetSize}`);
    }
    this.#moving = null;
  }

  #buttonAt({ section, row, part }) {
    const at = (index) =>
      this.#table.querySelector(`.cell[data-section="${section}"][data-row="${index}"]`);
    const last = at(row - 1);
    const cell = at(row) ?? (Number(last?.ariaSetSize) === row ? last : null);
    return cell?.querySelector(`.${part}:not([hidden])`)
      ?? cell?.querySelector('button:not([hidden])');
  }
}

/** Where an element stands: section, row and which of the row's buttons. */
function spotOf(target) {
  const cell = target.closest('.cell');
  if (!cell) return null;
  const { section, row } = cell.dataset;
  return { section: Number(section), row: Number(row), part: target.className };
}
