#pragma once

#include <QString>

#include <exception>

class QWidget;

namespace pastorix {

// The text of the box " Error inesperado": the system's one general report of the unexpected. Lines joined by a carriage return.
QString TextoErrorInesperado(long numero, const QString& descripcion);

// Shows that box. Only the start of the program and the date check print it.
void AvisarErrorInesperado(QWidget* padre, long numero, const QString& descripcion,
                           const QString& detalle = {});

// The box " Error de acceso" of a database that does not open; the cause stands below the fixed text.
void AvisarErrorDeAcceso(QWidget* padre, const std::exception& causa);

} // namespace pastorix
