import { element } from './element.js';

const units = ['bytes', 'KB', 'MB', 'GB'];

/** A row that opens an attachment in a tab of its own. */
export function attachment({ name, size, address }) {
  const parts = Object.entries({ name, size: humanSize(size) })
    .map(([part, text]) => element('span', { class: part }, text));
  return element('li', {}, element('a', {
    class: 'attachment', href: address, target: '_blank', rel: 'noopener noreferrer',
  }, ...parts));
}

/** A number of bytes in the unit that suits it. */
function humanSize(bytes) {
  const power = Math.min(Math.floor(Math.log10(Math.max(bytes, 1)) / 3), units.length - 1);
  const digits = { maximumFractionDigits: power && 1 };
  return `${(bytes / 1000 ** power).toLocaleString('en', digits)} ${units[power]}`;
}
