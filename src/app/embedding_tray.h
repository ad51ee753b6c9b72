#pragma once

namespace vantor {

/// Whether somebody on the X display takes the icons' windows in now. Asks the display's server and
/// not the toolkit, whose answer would be final about the session's bus, too. False without any X
/// display.
bool hasEmbeddingTray();

}  // namespace vantor
