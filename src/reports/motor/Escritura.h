#pragma once

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

namespace pastorix {

// A file as it is to be, and where.
struct FicheroEntero {
    QString nombre;
    QByteArray bytes;
};

// The one way in which exports reach the disk. Each file is written under a temporary name beside its place and through to the disk; only when
// all of them are there do they take their places. Until then a failure leaves every old file as it was, and nothing beside it.
// Throws ErrorInforme(Escritura) with the file's name and the cause.
void EscribirFicheros(const std::vector<FicheroEntero>& ficheros);

// The error of an export that came to nothing, as above.
[[noreturn]] void NoSePuedeEscribir(const QString& fichero, const std::string& causa);

} // namespace pastorix
