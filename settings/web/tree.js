import { kinds } from './nodes/kinds.js';

const root = 'window';

/**
 * What a kind of node hands back from `create`: its element, and for a control how to tie the
 * group's footer to it; where it matters, what to do when what was touched is not accepted: the
 * program says why, and nothing when the connection was lost meanwhile.
 * @typedef {{element: HTMLElement, describe?: function(HTMLElement?): void,
 *     refused?: function(string=): void}} View
 * A kind whose views can serve one node after the other, since `update` sets all that they show,
 * tells by `isFree(view)` when one whose node is gone may.
 */

/** Keeps the elements of the page in step with the nodes that were sent. */
export class Tree {
  #pages;
  #send;
  #nodes = new Map();
  #views = new Map();
  #touched = new Set();
  #free = [];

  /**
   * @param {HTMLElement} pages where the window goes
   * @param {function(Object): void} send takes a touch
   */
  constructor(pages, send) {
    this.#pages = pages;
    this.#send = send;
  }

  /** @param {{kind: string, nodes?: Object, removed?: string[], reason?: string}} message */
  receive({ kind, nodes = {}, removed = [], reason }) {
    if (kind === 'refused') console.warn(`Touch refused: ${reason}`);
    if (kind !== 'update') for (const view of this.#views.values()) view.refused?.(reason);
    if (kind === 'screen') removed = [...this.#nodes.keys()].filter((id) => !(id in nodes));
    for (const [id, node] of Object.entries(nodes)) this.#nodes.set(id, node);
    this.#forget(new Set(removed));
    this.#render(new Set([...Object.keys(nodes), ...this.#touched]));
    this.#touched.clear();
    this.#free = [];
  }

  /** Views that are free go in the order in which they came, which is mostly that on the page. */
  #forget(ids) {
    for (const id of ids) this.#nodes.delete(id);
    for (const [id, view] of this.#views) {
      if (!ids.has(id)) continue;
      this.#views.delete(id);
      if (kinds[view.kind].isFree?.(view)) this.#free.push(view);
    }
  }

  /** The window comes last: it moves pages that must be complete by then. */
  #render(ids) {
    const windowChanged = ids.delete(root);
    for (const id of ids) if (this.#views.has(id)) this.#refresh(id);
    if (!windowChanged) return;
    if (this.#views.has(root)) this.#refresh(root);
    else this.#pages.append(this.#view(root).element);
  }

  #refresh(id) {
    const old = this.#views.get(id);
    const view = this.#view(id);
    if (view === old) kinds[view.kind].update(view, this.#nodes.get(id), view.context);
    else old.element.replaceWith(view.element);
  }

  /** @returns {View} the view of a node, new on first sight and when the node changed its kind */
  #view(id) {
    const node = this.#nodes.get(id);
    const known = this.#views.get(id);
    if (known?.kind === node.kind) return known;
    const view = this.#takeFree(node.kind) ?? this.#make(node, id);
    view.context.id = view.element.dataset.node = id;
    this.#views.set(id, view);
    kinds[node.kind].update(view, node, view.context);
    return view;
  }

  #takeFree(kind) {
    const at = this.#free.findIndex((view) => view.kind === kind);
    return at < 0 ? null : this.#free.splice(at, 1)[0];
  }

  #make(node, id) {
    const context = this.#context(id);
    return Object.assign(kinds[node.kind].create(node, context), { kind: node.kind, context });
  }

  /**
   * What a kind may ask of the tree. A touch is its own, or of a button that its node names; what
   * `place` is to leave alone in the container is told by a selector.
   */
  #context(id) {
    const context = {
      id,
      touch: (touch, target = context.id) => this.#touch(context.id, { ...touch, id: target }),
      node: (other) => this.#nodes.get(other),
      view: (other) => this.#view(other),
      place: (container, ids, spared) => this.#place(container, ids, spared),
      isTop: () => this.#nodes.get(root).children.at(-1) === context.id,
    };
    return context;
  }

  /** The answer to a touch puts its control right, also when it left the node as it was. */
  #touch(control, touch) {
    this.#touched.add(control);
    this.#send(touch);
  }

  /** Makes the children of a container those of the given ids, moving only what is out of place. */
  #place(container, ids, spared = ':not(*)') {
    const wanted = ids.filter((id) => this.#isDrawable(id)).map((id) => this.#view(id).element);
    for (const child of [...container.children]) {
      if (!wanted.includes(child) && !child.matches(spared)) child.remove();
    }
    wanted.forEach((child, index) => {
      const there = container.children[index];
      if (there !== child) container.insertBefore(child, there ?? null);
    });
  }

  #isDrawable(id) {
    const kind = this.#nodes.get(id)?.kind;
    if (Object.hasOwn(kinds, kind ?? '')) return true;
    console.warn(`Nothing draws ${id} of kind ${kind}`);
    return false;
  }
}
