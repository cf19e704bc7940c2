#pragma once

#include "store/Conexion.h"

#include <QString>

#include <functional>

class QWidget;

namespace pastorix {

struct ContenidoDeBase;
struct Sesion;

// "5 ganaderos, 249 vacas, 56 toros; último parto, 30/11/2026"
QString EnPalabras(const ContenidoDeBase& contenido);

// Tells that the database just opened lacked columns, which are there now, empty. No box when it lacked none.
void AvisarColumnasAñadidas(const Sesion& sesion, QWidget* padre);

// Makes a function that follows a work, under a text; see InterfazDeEntrada::AvanceSiTarda.
using HacerAvance = std::function<AvanceDeApertura(const QString& texto)>;

// Looks for damage in the database that the session has open. What is found is told, and the newest sound safety copy, what is in it
// shown, is offered to be put back; else the session goes on with the connection open to be looked at only, so that everything that can
// be read is seen, printed and exported. Throws ErrorAlmacen when the check or the opening fails.
void VigilarBase(Sesion& sesion, QWidget* padre, const HacerAvance& avance);

// For a database that could not even be opened, which has been told: offers the newest sound safety copy in the same way. True when one
// was put back and is to be opened.
bool OfrecerCopia(Sesion& sesion, const QString& fichero, QWidget* padre, const HacerAvance& avance);

} // namespace pastorix
