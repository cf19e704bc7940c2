#pragma once

class QApplication;

namespace pastorix {

// What the whole application has in common before its first window: names, icon, Spanish for the toolkit's own texts and numbers
// whatever the system's language, and an end that is asked for (closing one form on the way to the next is none).
void PrepararAplicacion(QApplication& aplicacion);

} // namespace pastorix
