import Sortable from '../ui/sortable.js';

const options = {
  draggable: '.cell', handle: '.grip', forceFallback: true, fallbackTolerance: 3,
  ghostClass: 'dragged', fallbackClass: 'carried', scrollSensitivity: 66, scrollSpeed: 12,
  // Which rows give way is worked out from where they are, for most of a long list is not there.
  sort: false,
};

/** How a pointer ends that was not lifted. */
const cancels = ['pointercancel', 'touchcancel'];

/** Rows that are dragged by their grips. */
export class Drag {
  #lists;
  #drop;
  #from = null;
  #y = 0;
  #over = null;

  /**
   * @param {HTMLElement[]} lists of cells, all of the same height
   * @param {function(string, {section: number, row: number}?): void} drop hears which cell was
   *     dropped where; nowhere when the drag was cancelled
   */
  constructor(lists, drop) {
    this.#lists = lists;
    this.#drop = drop;
  }

  /** Lets the rows of a list be dragged. */
  watch(list) {
    Sortable.create(list, {
      ...options, onStart: ({ item }) => this.#start(item),
      onEnd: ({ originalEvent: { type } }) => this.#end(cancels.includes(type)),
    });
  }

  /** Makes way for the row in the hand; without one all rows stand where they belong. */
  arrange() {
    const shown = this.#from && this.#gap();
    for (const list of this.#lists) {
      list.classList.toggle('sorting', Boolean(this.#from));
      for (const cell of list.children) this.#shift(cell, shown);
    }
  }

  #start(item) {
    const { section, row, node } = item.dataset;
    const { top, height } = item.getBoundingClientRect();
    this.#from = { id: node, section: Number(section), row: Number(row), height };
    this.#y = top + height / 2;
    this.#over = new AbortController();
    addEventListener('pointermove', ({ clientY }) => {
      this.#y = clientY;
      this.arrange();
    }, { signal: this.#over.signal });
    addEventListener('keydown', hearKey, { signal: this.#over.signal, capture: true });
    this.arrange();
  }

  /** The gap stays until the answer says where the row belongs now. */
  #end(isCancelled) {
    this.#over.abort();
    const { id } = this.#from;
    const place = isCancelled ? null : this.#below();
    this.#from = null;
    this.#drop(id, place);
  }

  /** The position below the finger: that of the list which is nearest to it. */
  #below() {
    const distances = this.#lists.map((list) => {
      const { top, bottom } = list.getBoundingClientRect();
      return list.hidden ? Infinity : Math.max(0, top - this.#y, this.#y - bottom);
    });
    const section = distances.indexOf(Math.min(...distances));
    const { top, height } = this.#lists[section].getBoundingClientRect();
    const y = Math.min(height - 1, Math.max(0, this.#y - top));
    return { section, row: Math.floor(y / this.#from.height) };
  }

  /** Only the row's own list makes way for it. */
  #gap() {
    const { section, row } = this.#below();
    return section === this.#from.section ? row : this.#from.row;
  }

  #shift(cell, gap) {
    const { section, row } = cell.dataset;
    const isNear = this.#from?.section === Number(section) && !cell.matches('.carried');
    const rest = Number(row) - (Number(row) > this.#from?.row ? 1 : 0);
    const rows = isNear ? rest + (rest >= gap ? 1 : 0) - Number(row) : 0;
    cell.classList.toggle('vacated', isNear && Number(row) === this.#from.row);
    cell.style.translate = rows ? `0 ${rows * this.#from.height}px` : '';
  }
}

/** Escape ends a drag as a pointer does that is cancelled, and does nothing else meanwhile. */
function hearKey(event) {
  if (event.key !== 'Escape') return;
  event.preventDefault();
  event.stopPropagation();
  document.dispatchEvent(new PointerEvent('pointercancel'));
}
