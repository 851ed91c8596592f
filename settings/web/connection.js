/** How long each further try waits, in milliseconds; the last one repeats. */
const delays = [0, 250, 500, 1000, 2000];

/** The line to the program that decides everything. It mends itself. */
export class Connection {
  #listener;
  #socket = null;
  #failures = 0;

  /**
   * @param {{received: function(Object): void, changed: function('open'|'lost'|'forbidden'): void}}
   *     listener `open` is told once the first message is in, so that nothing stale can be touched.
   */
  constructor(listener) {
    this.#listener = listener;
  }

  open() {
    const socket = new WebSocket(new URL('socket', location.href.replace(/^http/, 'ws')));
    let reached = false;
    socket.addEventListener('message', ({ data }) => {
      this.#listener.received(JSON.parse(data));
      if (reached) return;
      reached = true;
      this.#failures = 0;
      this.#listener.changed('open');
    });
    socket.addEventListener('close', () => this.#closed(reached));
    this.#socket = socket;
  }

  /** Sends a touch. One made while nobody listens is dropped: the next screen shows the truth. */
  send(touch) {
    if (this.#socket.readyState === WebSocket.OPEN) this.#socket.send(JSON.stringify(touch));
  }

  async #closed(reached) {
    if (!reached && (await isForbidden())) return this.#listener.changed('forbidden');
    this.#listener.changed('lost');
    const delay = delays[Math.min(this.#failures++, delays.length - 1)];
    setTimeout(() => this.open(), delay);
  }
}

/** A socket does not tell why it was turned away; a plain request does. */
async function isForbidden() {
  try {
    return (await fetch('.', { cache: 'no-store' })).status === 403;
  } catch {
    return false;
  }
}
