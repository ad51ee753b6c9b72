#pragma once

namespace vantor {

/// Whether the X display has a tray that embeds icons now. Asks the display's server and not the
/// toolkit, whose first answer is final, for the session's bus too. False without an X display.
bool hasEmbeddingTray();

}  // namespace vantor
