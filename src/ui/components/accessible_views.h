#pragma once

namespace vantor {

/// Makes the painted views and the cards accessible. To be called once, before the first window.
void installViewAccessibility();

}  // namespace vantor
