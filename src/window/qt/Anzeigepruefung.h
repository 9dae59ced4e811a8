// Whether Qt can show a window here. It has to be known before: without a display Qt ends the process, and nothing can
// catch that.
#pragma once

struct xcb_connection_t;

namespace zepholt {

// True when the display that Qt would take answers and Qt's part for it can be loaded. Where no X server answers but a
// Wayland compositor does, chooses that for Qt.
bool AnzeigeVorhanden();

// True when the connection to the X server is broken; without one (null) false.
bool VerbindungGestoert(xcb_connection_t* verbindung);

} // namespace zepholt
