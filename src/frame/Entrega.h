#pragma once

#include <QString>
#include <QStringList>

// How the three databases come to lie beside the program before its first start. All of them or none: what a failure leaves is taken away
// again. Each throws ErrorAlmacen, and none replaces a file.
namespace pastorix {

// New ones, with the people that a fresh database cannot do without: the reserved veterinarian, the owner of the common pool of bulls,
// and the one of bulls that stand on no farm. No central user: nobody can enter as one until the office sets it.
void EntregarVacias(const QString& carpeta);

// Copies from another folder, whatever the letter case of the names there; the originals stay where they are. What lies in a folder
// "Base de Datos" inside it counts too, for people point at the program that they used before.
void EntregarCopias(const QString& origen, const QString& carpeta);

// Which of the three such a folder lacks.
QStringList BasesQueFaltan(const QString& origen);

} // namespace pastorix
