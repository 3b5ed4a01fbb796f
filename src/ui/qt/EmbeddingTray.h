// Trays of X11 that take icons as windows into themselves (System Tray Protocol 0.4).
// Threads: main thread. Needs a QtApplication.
#pragma once

namespace vantrel::qt::EmbeddingTray {

// Whether the first screen has one at present. Asks the server, and nobody else:
// Qt's own question settles for good which kind of tray Qt will use.
bool exists();

}  // namespace vantrel::qt::EmbeddingTray
