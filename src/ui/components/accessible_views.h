#pragma once

namespace vantor {

/// Lets assistive technology see the painted views and the cards; once, before the first window.
void installViewAccessibility();

}  // namespace vantor
