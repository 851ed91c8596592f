const region = document.getElementById('announcement');

/** Has a text read out, also one that was read out just before. */
export function announce(text) {
  region.textContent = '';
  setTimeout(() => (region.textContent = text), 100);
}
