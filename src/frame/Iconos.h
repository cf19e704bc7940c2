#pragma once

#include <QCursor>
#include <QIcon>

namespace pastorix {

// A drawing of the program by its name ("vacas", "buscar", "guardar"...), sharp at every size. An unknown name is an empty icon.
QIcon Icono(const char* nombre);

// The hand over pictures that can be pressed.
QCursor CursorMano();

} // namespace pastorix
