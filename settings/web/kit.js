// The kit's components are registered one by one: its loader would put a style element into the
// page, which the content security policy refuses.
import { initialize } from './ui/ionic/index.js';
import { defineCustomElement as defineRange } from './ui/ionic/ion-range.js';
import { defineCustomElement as defineSegment } from './ui/ionic/ion-segment.js';
import { defineCustomElement as defineSegmentButton } from './ui/ionic/ion-segment-button.js';
import { defineCustomElement as defineToggle } from './ui/ionic/ion-toggle.js';

initialize({ mode: 'ios' });
for (const define of [defineRange, defineSegment, defineSegmentButton, defineToggle]) define();

/**
 * Acts once the kit has drawn a component for the first time. Until then it takes attributes away
 * from the component, and what is inside is not there yet.
 */
export function whenDrawn(component, act) {
  if (component.shadowRoot.childElementCount > 0) return act();
  new MutationObserver((_, observer) => {
    observer.disconnect();
    act();
  }).observe(component.shadowRoot, { childList: true });
}
