/** How far down the finger has to draw a sheet for it to go, in pixels. */
const far = 100;

/**
 * Lets a finger draw a sheet down.
 * @param {HTMLElement} sheet
 * @param {function(): void} dismissed is called when it was drawn far enough; otherwise, and unless
 *     it goes away then, the sheet comes up again
 */
export function swipeDown(sheet, dismissed) {
  sheet.addEventListener('pointerdown', (event) => {
    if (event.button === 0 && !event.target.closest('button, a')) follow(sheet, event, dismissed);
  });
}

function follow(sheet, { clientY, pointerId }, dismissed) {
  const over = new AbortController();
  const on = (type, act) => sheet.addEventListener(type, act, { signal: over.signal });
  const drawn = (event) => Math.max(0, event.clientY - clientY);
  sheet.classList.remove('springing');
  sheet.setPointerCapture(pointerId);
  on('pointermove', (event) => (sheet.style.translate = `0 ${drawn(event)}px`));
  on('pointercancel', () => comeUp(sheet, over));
  on('pointerup', (event) => {
    if (drawn(event) > far) dismissed();
    comeUp(sheet, over);
  });
}

/** The way back takes its time, so that the answer that lets the sheet go meets it below. */
function comeUp(sheet, over) {
  over.abort();
  sheet.classList.add('springing');
  sheet.style.translate = '';
}
